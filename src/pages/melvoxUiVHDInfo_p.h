#ifndef MELVOX_UI_VHD_INFO_P_H
#define MELVOX_UI_VHD_INFO_P_H

#include "melvox_ui/melvoxUiVHDInfo.h"

#include "ui_melvoxUiVHDInfo.h"

#include <QTimer>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

struct MELVOX_UI_HIDDEN melvoxUiVHDInfo_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiVHDInfo ui;
    QTimer clearTimer; //!< runs out when the last report is stale
};

} // namespace brel_common_qt_gui

#endif
