#ifndef MELVOX_UI_WIFI_PASSKEY_DIALOG_P_H
#define MELVOX_UI_WIFI_PASSKEY_DIALOG_P_H

#include "melvox_ui/melvoxUiWiFiPasskeyDialog.h"

#include "ui_melvoxUiWiFiPasskeyDialog.h"

namespace brel_common_qt_gui
{

struct MELVOX_UI_HIDDEN melvoxUiWiFiPasskeyDialog_t::privateData_t
{
    Ui_melvoxUiWiFiPasskeyDialog ui;
};

} // namespace brel_common_qt_gui

#endif
