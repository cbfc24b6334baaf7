#ifndef MELVOX_UI_BASE_POSITION_DIALOG_P_H
#define MELVOX_UI_BASE_POSITION_DIALOG_P_H

#include "melvox_ui/melvoxUiBasePositionDialog.h"

#include "ui_melvoxUiBasePositionDialog.h"

namespace brel_common_qt_gui
{

struct MELVOX_UI_HIDDEN melvoxUiBasePositionDialog_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiBasePositionDialog ui;
};

} // namespace brel_common_qt_gui

#endif
