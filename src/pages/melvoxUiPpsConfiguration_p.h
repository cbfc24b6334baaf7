#ifndef MELVOX_UI_PPS_CONFIGURATION_P_H
#define MELVOX_UI_PPS_CONFIGURATION_P_H

#include "melvox_ui/melvoxUiPpsConfiguration.h"

#include "ui_melvoxUiPpsConfiguration.h"

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

struct MELVOX_UI_HIDDEN melvoxUiPpsConfiguration_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiPpsConfiguration ui;
    bool setUi; //!< the editors were filled from the receiver once
};

} // namespace brel_common_qt_gui

#endif
