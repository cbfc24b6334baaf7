#ifndef MELVOX_UI_VIRTUAL_PORT_CONFIG_DIALOG_P_H
#define MELVOX_UI_VIRTUAL_PORT_CONFIG_DIALOG_P_H

#include "melvox_ui/melvoxUiVirtualPortConfigDialog.h"

#include "ui_melvoxUiVirtualPortConfigDialog.h"

namespace brel_common_qt_gui
{

class ipAddressEdit_t;
class ipPortEdit_t;

struct MELVOX_UI_HIDDEN melvoxUiVirtualPortConfigDialog_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiVirtualPortConfigDialog ui;
    brel_common_qt::melvoxPort_t port;
    ipAddressEdit_t* remoteAddressEdit;
    ipPortEdit_t* remotePortEdit;
    ipPortEdit_t* localPortEdit;
};

} // namespace brel_common_qt_gui

#endif
