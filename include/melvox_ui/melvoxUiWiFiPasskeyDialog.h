#ifndef MELVOX_UI_WIFI_PASSKEY_DIALOG_H
#define MELVOX_UI_WIFI_PASSKEY_DIALOG_H

#include "melvox_ui/melvoxUiExport.h"

#include <QDialog>

namespace brel_common_qt_gui
{

/** Asks for the passkey of a WiFi access point. Offered to hosts: no page shows it, and it needs no receiver.
 *  The host shows it, takes passkey() once it was accepted, and then calls clearPasskey(). */
class MELVOX_UI_EXPORT melvoxUiWiFiPasskeyDialog_t : public QDialog
{
    Q_OBJECT

public:
    explicit melvoxUiWiFiPasskeyDialog_t(QWidget* parent);
    ~melvoxUiWiFiPasskeyDialog_t();

    /** As it was entered; any text but an empty one can be accepted. */
    QString passkey() const;
    void clearPasskey();

public slots:
    void checkPasskey();

private:
    Q_DISABLE_COPY(melvoxUiWiFiPasskeyDialog_t)

    struct privateData_t;
    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
