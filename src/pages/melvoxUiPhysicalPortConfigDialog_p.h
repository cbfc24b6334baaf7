#ifndef MELVOX_UI_PHYSICAL_PORT_CONFIG_DIALOG_P_H
#define MELVOX_UI_PHYSICAL_PORT_CONFIG_DIALOG_P_H

#include "melvox_ui/melvoxUiPhysicalPortConfigDialog.h"

#include "ui_melvoxUiPhysicalPortConfigDialog.h"

namespace brel_common_qt_gui
{

struct MELVOX_UI_HIDDEN melvoxUiPhysicalPortConfigDialog_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiPhysicalPortConfigDialog ui;
    brel_common_qt::melvoxPort_t port;
};

} // namespace brel_common_qt_gui

#endif
