#ifndef SAMPLES_OPERATE_H
#define SAMPLES_OPERATE_H

class QApplication;

namespace brel_common_qt
{
class remotePort_t;
}

int operate(QApplication& application, brel_common_qt::remotePort_t* port);

#endif
