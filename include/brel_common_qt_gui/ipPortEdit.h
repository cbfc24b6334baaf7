#ifndef BREL_COMMON_QT_GUI_IP_PORT_EDIT_H
#define BREL_COMMON_QT_GUI_IP_PORT_EDIT_H

#include "brel_common_qt_gui/brelCommonQtGuiExport.h"

#include <QObject>

class QLineEdit;

namespace brel_common_qt_gui
{

/** Turns a line edit into one for the number of an IP port. */
class BREL_COMMON_QT_GUI_EXPORT ipPortEdit_t : public QObject
{
    Q_OBJECT

public:
    /** The line edit must live as long. Lets only a port be typed, and wants the numeric keypad unless the form wants
     *  another. */
    ipPortEdit_t(QLineEdit* lineEdit, QObject* parent);

    void setPort(unsigned short port);

    /** False, and `port` untouched, unless the text is a decimal number of 0 to 65535, of at most five digits. Blanks
     *  around it do not count. */
    bool getPort(unsigned short& port) const;

private:
    Q_DISABLE_COPY(ipPortEdit_t)

    QLineEdit* m_lineEdit;
};

} // namespace brel_common_qt_gui

#endif
