#ifndef BREL_COMMON_QT_GUI_MESSAGE_LIGHTS_H
#define BREL_COMMON_QT_GUI_MESSAGE_LIGHTS_H

#include "brel_common_qt_gui/brelCommonQtGuiExport.h"

#include <QObject>

class QLabel;

namespace brel_common_qt
{
class remoteDevice_t;
}

namespace brel_common_qt_gui
{

/** Activity lights: labels that light up when a message of their stream comes in from the device
 *  (remoteDevice_t::messageReceived() names the streams) and go dark half a second later. */
class BREL_COMMON_QT_GUI_EXPORT messageLights_t : public QObject
{
    Q_OBJECT

public:
    /** The device must live as long. */
    messageLights_t(brel_common_qt::remoteDevice_t* device, QObject* parent);
    ~messageLights_t();

    /** Dark at first. A label that is destroyed drops out by itself; one that is added again changes its stream.
     *  Its property "lit" tells which it is. */
    void addLight(int stream, QLabel* label);

private slots:
    void light(int stream);
    void darken();

private:
    Q_DISABLE_COPY(messageLights_t)

    struct privateData_t;
    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
