#ifndef MELVOX_UI_DIFFERENTIAL_CONFIGURATION_P_H
#define MELVOX_UI_DIFFERENTIAL_CONFIGURATION_P_H

#include "melvox_ui/melvoxUiDifferentialConfiguration.h"

#include "ui_melvoxUiDifferentialConfiguration.h"

#include <QBitArray>

namespace brel_common_qt_gui
{

class dialogPage_t;
class melvoxUiBasePositionDialog_t;

struct MELVOX_UI_HIDDEN melvoxUiDifferentialConfiguration_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiDifferentialConfiguration ui;
    QBitArray setUi;
    melvoxUiBasePositionDialog_t* basePositionDialog;
    dialogPage_t* basePositionDialogPage; //!< owned
};

} // namespace brel_common_qt_gui

#endif
