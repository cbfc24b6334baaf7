#ifndef MELVOX_UI_ETHERNET_CONFIGURATION_P_H
#define MELVOX_UI_ETHERNET_CONFIGURATION_P_H

#include "melvox_ui/melvoxUiEthernetConfiguration.h"

#include "brel_common_qt_gui/dialogPage.h"
#include "ui_melvoxUiEthernetConfiguration.h"

namespace brel_common_qt_gui
{

class ipAddressEdit_t;

struct MELVOX_UI_HIDDEN melvoxUiEthernetConfiguration_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);
    ~privateData_t();

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiEthernetConfiguration ui;
    ipAddressEdit_t* ipAddressEdit;
    ipAddressEdit_t* netmaskEdit;
    ipAddressEdit_t* gatewayEdit;
    ipAddressEdit_t* dns1Edit;
    ipAddressEdit_t* dns2Edit;
    QPushButton* ethernetButton;
    dialogPage_t* ethernetWarningDialogPage; //!< owned
};

} // namespace brel_common_qt_gui

#endif
