#ifndef MELVOX_UI_DTM_WARN_DIALOG_P_H
#define MELVOX_UI_DTM_WARN_DIALOG_P_H

#include "melvox_ui/melvoxUiDtmWarnDialog.h"

#include "ui_melvoxUiDtmWarnDialog.h"

namespace brel_common_qt_gui
{

struct MELVOX_UI_HIDDEN melvoxUiDtmWarnDialog_t::privateData_t
{
    Ui_melvoxUiDtmWarnDialog ui;
};

} // namespace brel_common_qt_gui

#endif
