#ifndef MELVOX_UI_CUSTOM_SAT_DIALOG_P_H
#define MELVOX_UI_CUSTOM_SAT_DIALOG_P_H

#include "melvox_ui/melvoxUiCustomSatDialog.h"

#include "ui_melvoxUiCustomSatDialog.h"

namespace brel_common_qt_gui
{

struct MELVOX_UI_HIDDEN melvoxUiCustomSatDialog_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiCustomSatDialog ui;
};

} // namespace brel_common_qt_gui

#endif
