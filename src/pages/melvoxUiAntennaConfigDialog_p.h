#ifndef MELVOX_UI_ANTENNA_CONFIG_DIALOG_P_H
#define MELVOX_UI_ANTENNA_CONFIG_DIALOG_P_H

#include "melvox_ui/melvoxUiAntennaConfigDialog.h"

#include "ui_melvoxUiAntennaConfigDialog.h"

namespace brel_common_qt_gui
{

struct MELVOX_UI_HIDDEN melvoxUiAntennaConfigDialog_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiAntennaConfigDialog ui;
    brel_common_qt::melvoxAntenna_t antenna;
    double height; //!< not edited here, sent back as it came
};

} // namespace brel_common_qt_gui

#endif
