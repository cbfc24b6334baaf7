#ifndef MELVOX_UI_PROFILE_LOADER_P_H
#define MELVOX_UI_PROFILE_LOADER_P_H

#include "melvox_ui/melvoxUiProfileLoader.h"

#include "ui_melvoxUiProfileLoadDialog.h"

class QFile;

namespace brel_common_qt_gui
{

class dialogPage_t;
class fileChooser_t;
class melvoxUiUsbProfileListDialog_t;

struct MELVOX_UI_HIDDEN melvoxUiProfileLoader_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);
    ~privateData_t();

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiProfileLoadDialog ui;
    dialogPage_t* progressPage;
    // Null on units without USB drives.
    dialogPage_t* driveSelectPage;
    melvoxUiUsbProfileListDialog_t* listDialog;
    dialogPage_t* listPage;
    QFile* file; //!< owned; null unless a load runs
    QPushButton* cancelButton;
    bool blockSent;             //!< and the port has not answered yet
    fileChooser_t* fileChooser; //!< the loader's child
};

} // namespace brel_common_qt_gui

#endif
