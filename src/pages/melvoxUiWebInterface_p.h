#ifndef MELVOX_UI_WEB_INTERFACE_P_H
#define MELVOX_UI_WEB_INTERFACE_P_H

#include "melvox_ui/melvoxUiWebInterface.h"

#include "ui_melvoxUiWebInterface.h"

namespace brel_common_qt_gui
{

class dialogPage_t;
class fileChooser_t;
class melvoxUiUsbWebUiSelectDialog_t;

struct MELVOX_UI_HIDDEN melvoxUiWebInterface_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);
    ~privateData_t();

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiWebInterface ui;
    bool setEnabledUi;             //!< the combo was filled from the receiver once
    dialogPage_t* driveDialogPage; //!< null on units without USB drives
    melvoxUiUsbWebUiSelectDialog_t* packageDialog;
    dialogPage_t* packageDialogPage; //!< owns the dialog
    fileChooser_t* fileChooser;      //!< the page's child
};

} // namespace brel_common_qt_gui

#endif
