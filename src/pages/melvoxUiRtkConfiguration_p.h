#ifndef MELVOX_UI_RTK_CONFIGURATION_P_H
#define MELVOX_UI_RTK_CONFIGURATION_P_H

#include "melvox_ui/melvoxUiRtkConfiguration.h"

#include "ui_melvoxUiRtkConfiguration.h"

#include <QBitArray>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

struct MELVOX_UI_HIDDEN melvoxUiRtkConfiguration_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiRtkConfiguration ui;
    QBitArray setUi;
};

} // namespace brel_common_qt_gui

#endif
