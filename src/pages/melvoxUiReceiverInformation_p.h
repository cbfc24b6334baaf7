#ifndef MELVOX_UI_RECEIVER_INFORMATION_P_H
#define MELVOX_UI_RECEIVER_INFORMATION_P_H

#include "melvox_ui/melvoxUiReceiverInformation.h"

#include "ui_melvoxUiReceiverInformation.h"

#include <vector>

namespace brel_common_qt_gui
{

class dialogPage_t;
class melvoxUiFirmwareVersionDisplay_t;
class melvoxVersionWarnDialog_t;
class messageLights_t;

struct MELVOX_UI_HIDDEN melvoxUiReceiverInformation_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);
    ~privateData_t();

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiReceiverInformation ui;
    melvoxUiFirmwareVersionDisplay_t* fwVersions; //!< the page's child
    messageLights_t* lights;                      //!< the page's child
    melvoxVersionWarnDialog_t* versionWarningDialog;
    dialogPage_t* versionWarningPage;   //!< owns the dialog
    std::vector<unsigned int> versions; //!< of the navigation firmware, as told last
    bool enableLteModemButton;
    QString modemStatus; //!< of the LTE modem, as told last
    dialogPage_t* lteModemDialogPage;
};

} // namespace brel_common_qt_gui

#endif
