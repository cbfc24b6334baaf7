#ifndef MELVOX_UI_RESTART_P_H
#define MELVOX_UI_RESTART_P_H

#include "melvox_ui/melvoxUiRestart.h"

#include "ui_melvoxUiRestart.h"

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

struct MELVOX_UI_HIDDEN melvoxUiRestart_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiRestart ui;
};

} // namespace brel_common_qt_gui

#endif
