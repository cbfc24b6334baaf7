#include "display/pageRegistry.h"

#include "display/displaySettingsPage.h"
#include "display/profileComparePage.h"
#include "melvox_ui/melvoxUiAntennaIdentification.h"
#include "melvox_ui/melvoxUiCorrectionsReceiver.h"
#include "melvox_ui/melvoxUiCustomSatDialog.h"
#include "melvox_ui/melvoxUiDifferentialConfiguration.h"
#include "melvox_ui/melvoxUiEthernetConfiguration.h"
#include "melvox_ui/melvoxUiExtendedNavInfo.h"
#include "melvox_ui/melvoxUiFirmwareUpdate.h"
#include "melvox_ui/melvoxUiNavigationMode.h"
#include "melvox_ui/melvoxUiOutputMessages.h"
#include "melvox_ui/melvoxUiPortConfiguration.h"
#include "melvox_ui/melvoxUiPpsConfiguration.h"
#include "melvox_ui/melvoxUiProfileDumper.h"
#include "melvox_ui/melvoxUiProfileLoader.h"
#include "melvox_ui/melvoxUiReceiverInformation.h"
#include "melvox_ui/melvoxUiRestart.h"
#include "melvox_ui/melvoxUiRtkConfiguration.h"
#include "melvox_ui/melvoxUiSettingsProfiles.h"
#include "melvox_ui/melvoxUiSolutionControl.h"
#include "melvox_ui/melvoxUiVHDInfo.h"
#include "melvox_ui/melvoxUiWebInterface.h"
#include "melvox_ui/melvoxUiWiFiPasskeyDialog.h"

#include <QCoreApplication>

namespace melvox_display
{

namespace
{

using namespace brel_common_qt_gui;
using brel_common_qt::remoteMelvoxDevice_t;

template <typename page_t> QWidget* page(remoteMelvoxDevice_t* device)
{
    return new page_t(device);
}

/** For dialogs that no page opens. */
template <typename dialog_t> QWidget* dialog(remoteMelvoxDevice_t* device)
{
    return new dialog_t(device, nullptr);
}

/** Shown for its looks: this display has no wireless interface to give the key to. */
QWidget* passkeyDialog(remoteMelvoxDevice_t*)
{
    melvoxUiWiFiPasskeyDialog_t* dialog = new melvoxUiWiFiPasskeyDialog_t(nullptr);
    QObject::connect(dialog, &QDialog::finished, dialog, &melvoxUiWiFiPasskeyDialog_t::clearPasskey);
    return dialog;
}

template <typename page_t> QWidget* ownPage(remoteMelvoxDevice_t*)
{
    return new page_t;
}

/** The profiles page keeps these for whatever controls there are: here, entries of the menu. */
void dumpProfile(QWidget* page)
{
    static_cast<melvoxUiSettingsProfiles_t*>(page)->profileDumper()->dumpSettings();
}

void loadProfile(QWidget* page)
{
    melvoxUiProfileLoader_t* const loader = static_cast<melvoxUiSettingsProfiles_t*>(page)->profileLoader();
    if (loader->isLoading())
        loader->showProgress();
    else
        loader->loadProfile();
}

} // namespace

pageRegistry_t const& allPages()
{
    typedef subsystem_t s;
    // clang-format off
    static pageRegistry_t const pages = {
        {"solutionControl", QT_TRANSLATE_NOOP("pages", "Solution Control"), s::POSITIONING, page<melvoxUiSolutionControl_t>},
        {"navigationMode", QT_TRANSLATE_NOOP("pages", "Navigation Mode"), s::POSITIONING, page<melvoxUiNavigationMode_t>},
        {"rtkConfiguration", QT_TRANSLATE_NOOP("pages", "RTK Configuration"), s::POSITIONING, page<melvoxUiRtkConfiguration_t>},
        {"ppsConfiguration", QT_TRANSLATE_NOOP("pages", "1PPS Settings"), s::POSITIONING, page<melvoxUiPpsConfiguration_t>},
        {"extendedNavInfo", QT_TRANSLATE_NOOP("pages", "Extended Navigation Info"), s::POSITIONING, page<melvoxUiExtendedNavInfo_t>},
        {"vhdInfo", QT_TRANSLATE_NOOP("pages", "VHD Info"), s::POSITIONING, page<melvoxUiVHDInfo_t>},
        {"restart", QT_TRANSLATE_NOOP("pages", "Restart"), s::POSITIONING, page<melvoxUiRestart_t>},
        {"correctionsReceiver", QT_TRANSLATE_NOOP("pages", "Corrections Receiver"), s::CORRECTIONS, page<melvoxUiCorrectionsReceiver_t>},
        {"customSat", QT_TRANSLATE_NOOP("pages", "Custom Satellite"), s::CORRECTIONS, dialog<melvoxUiCustomSatDialog_t>},
        {"differentialConfiguration", QT_TRANSLATE_NOOP("pages", "Differential Configuration"), s::CORRECTIONS, page<melvoxUiDifferentialConfiguration_t>},
        {"antennaIdentification", QT_TRANSLATE_NOOP("pages", "Antenna Identification"), s::CORRECTIONS, page<melvoxUiAntennaIdentification_t>},
        {"outputMessages", QT_TRANSLATE_NOOP("pages", "Output Messages"), s::PORTS, page<melvoxUiOutputMessages_t>},
        {"portConfiguration", QT_TRANSLATE_NOOP("pages", "Port Configuration"), s::PORTS, page<melvoxUiPortConfiguration_t>},
        {"ethernetConfiguration", QT_TRANSLATE_NOOP("pages", "Ethernet Configuration"), s::PORTS, page<melvoxUiEthernetConfiguration_t>},
        {"wiFiPasskey", QT_TRANSLATE_NOOP("pages", "WiFi Passkey"), s::PORTS, passkeyDialog},
        {"webInterface", QT_TRANSLATE_NOOP("pages", "Web Interface"), s::PORTS, page<melvoxUiWebInterface_t>},
        {"firmwareUpdate", QT_TRANSLATE_NOOP("pages", "Firmware Update"), s::FIRMWARE, page<melvoxUiFirmwareUpdate_t>},
        {"settingsProfiles", QT_TRANSLATE_NOOP("pages", "Settings Profiles"), s::FIRMWARE, page<melvoxUiSettingsProfiles_t>},
        {"dumpProfile", QT_TRANSLATE_NOOP("pages", "Dump Profile to File"), s::FIRMWARE, nullptr, "settingsProfiles", dumpProfile},
        {"compareProfile", QT_TRANSLATE_NOOP("pages", "Compare Profile"), s::FIRMWARE, page<profileComparePage_t>},
        {"loadProfile", QT_TRANSLATE_NOOP("pages", "Load Profile From File"), s::FIRMWARE, nullptr, "settingsProfiles", loadProfile},
        {"receiverInformation", QT_TRANSLATE_NOOP("pages", "Receiver Information"), s::FIRMWARE, page<melvoxUiReceiverInformation_t>},
        {"displaySettings", QT_TRANSLATE_NOOP("pages", "Display Settings"), s::DISPLAY, ownPage<displaySettingsPage_t>},
    };
    // clang-format on
    return pages;
}

pageEntry_t const* findPage(pageRegistry_t const& pages, QString const& name)
{
    for (pageEntry_t const& entry : pages)
    {
        if (name == entry.name)
            return &entry;
    }
    return nullptr;
}

QStringList pageNames(pageRegistry_t const& pages)
{
    QStringList names;
    for (pageEntry_t const& entry : pages)
        names << entry.name;
    return names;
}

QString titleOf(pageEntry_t const& page)
{
    return QCoreApplication::translate("pages", page.title);
}

QString headingOf(subsystem_t subsystem)
{
    switch (subsystem)
    {
    case subsystem_t::POSITIONING:
        return QCoreApplication::translate("pages", "Positioning and Status");
    case subsystem_t::CORRECTIONS:
        return QCoreApplication::translate("pages", "Corrections, Differential and Antennas");
    case subsystem_t::PORTS:
        return QCoreApplication::translate("pages", "Ports, Output and Network");
    case subsystem_t::FIRMWARE:
        return QCoreApplication::translate("pages", "Firmware, Profiles and Receiver");
    case subsystem_t::DISPLAY:
        return QCoreApplication::translate("pages", "Display");
    }
    return QString();
}

} // namespace melvox_display
