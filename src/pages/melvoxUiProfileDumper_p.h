#ifndef MELVOX_UI_PROFILE_DUMPER_P_H
#define MELVOX_UI_PROFILE_DUMPER_P_H

#include "melvox_ui/melvoxUiProfileDumper.h"

#include "ui_melvoxUiProfileDumpDialog.h"

namespace brel_common_qt_gui
{

class dialogPage_t;
class fileChooser_t;

struct MELVOX_UI_HIDDEN melvoxUiProfileDumper_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);
    ~privateData_t();

    brel_common_qt::remoteMelvoxDevice_t* device;
    std::string dumpPath; //!< of the dump that runs or was the last
    Ui_melvoxUiProfileDumpDialog ui;
    dialogPage_t* progressPage;
    dialogPage_t* driveSelectPage; //!< null on units without USB drives
    fileChooser_t* fileChooser;    //!< the dumper's child
};

} // namespace brel_common_qt_gui

#endif
