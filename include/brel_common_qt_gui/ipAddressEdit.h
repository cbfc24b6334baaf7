#ifndef BREL_COMMON_QT_GUI_IP_ADDRESS_EDIT_H
#define BREL_COMMON_QT_GUI_IP_ADDRESS_EDIT_H

#include "brel_common_qt_gui/brelCommonQtGuiExport.h"

#include <QObject>

class QLineEdit;

namespace brel_common_qt_gui
{

/** Turns a line edit into one for an IPv4 address in dotted decimal. */
class BREL_COMMON_QT_GUI_EXPORT ipAddressEdit_t : public QObject
{
    Q_OBJECT

public:
    /** The line edit must live as long. Lets only what leads to an address be typed, and wants the numeric keypad
     *  unless the form wants another. */
    ipAddressEdit_t(QLineEdit* lineEdit, QObject* parent);

    /** The first byte as written is the most significant. */
    void setAddress(unsigned int address);

    /** False, and `address` untouched, unless the text is four decimal numbers of 0 to 255, of at most three digits
     *  each, parted by dots. Blanks around them do not count. */
    bool getAddress(unsigned int& address) const;

private:
    Q_DISABLE_COPY(ipAddressEdit_t)

    QLineEdit* m_lineEdit;
};

} // namespace brel_common_qt_gui

#endif
