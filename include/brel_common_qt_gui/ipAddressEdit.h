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
    /** The line edit must live as long. */
    ipAddressEdit_t(QLineEdit* lineEdit, QObject* parent);

    /** The first byte as written is the most significant. */
    void setAddress(unsigned int address);

    /** False, and `address` untouched, unless the text is four decimal numbers of 0 to 255 parted by dots. */
    bool getAddress(unsigned int& address) const;

private:
    Q_DISABLE_COPY(ipAddressEdit_t)

    QLineEdit* m_lineEdit;
};

} // namespace brel_common_qt_gui

#endif
