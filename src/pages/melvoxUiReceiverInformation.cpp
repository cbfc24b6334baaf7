#include "melvoxUiReceiverInformation_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/version.h"
#include "brel_common_qt_gui/dialogPage.h"
#include "brel_common_qt_gui/messageLights.h"
#include "melvox_ui/melvoxUiFirmwareVersionDisplay.h"
#include "melvox_ui/melvoxVersionWarnDialog.h"
#include "support/pageSupport.h"
#include "support/text8.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

std::vector<unsigned int> const MINIMUM_NAV_VERSION = {1, 14, 33};

// Streams of messages, by the numbers of remoteDevice_t::messageReceived().
int const PVT_STREAM = 0;
int const OTHER_STREAM = 3;

// The receiver's words.
char const* const NAV_COMPONENT = "NAV";
char const* const MODEM_PENDING = "PENDING";
char const* const MODEM_OFF = "OFF";

} // namespace

melvoxUiReceiverInformation_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), fwVersions(nullptr), lights(nullptr), versionWarningDialog(nullptr), versionWarningPage(nullptr),
      enableLteModemButton(true), lteModemDialogPage(nullptr)
{
}

melvoxUiReceiverInformation_t::privateData_t::~privateData_t()
{
    delete versionWarningPage;
    delete lteModemDialogPage;
}

melvoxUiReceiverInformation_t::melvoxUiReceiverInformation_t(remoteMelvoxDevice_t* device)
    : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    createLights();
    addActionButton(m_data->ui.buttonBox, tr("Query"), this, SLOT(query()));
    m_data->fwVersions = new melvoxUiFirmwareVersionDisplay_t(device, m_data->ui.firmwareVersionsTextEdit, this);
    createDialogs();
    connectReceiver();
    connect(m_data->ui.toggleLteModemButton, SIGNAL(clicked()), SLOT(toggleLTEModemState()));
    updateProductInfo();
}

melvoxUiReceiverInformation_t::~melvoxUiReceiverInformation_t()
{
    delete m_data;
}

void melvoxUiReceiverInformation_t::createLights()
{
    m_data->lights = new messageLights_t(m_data->device, this);
    m_data->lights->addLight(PVT_STREAM, m_data->ui.pvtLightLabel);
    m_data->lights->addLight(OTHER_STREAM, m_data->ui.otherLightLabel);
}

void melvoxUiReceiverInformation_t::createDialogs()
{
    m_data->versionWarningDialog = new melvoxVersionWarnDialog_t(nullptr);
    m_data->versionWarningDialog->setMinimumVersion(MINIMUM_NAV_VERSION);
    m_data->versionWarningPage = new dialogPage_t(m_data->versionWarningDialog);

    QMessageBox* const confirm = createQuestion(
        QMessageBox::Warning, tr("Toggle the LTE modem?"),
        tr("<p><center>You must have confirmation from Brel Support that this function is operational on this "
           "receiver.</center></p><p><center>LTE is <b>ONLY</b> used for remote diagnostic purposes.</center></p>"
           "<p><center>(Press <b>Yes</b> to toggle, <b>No</b> to cancel)</center></p>"),
        nullptr);
    confirm->setTextFormat(Qt::RichText);
    confirm->setDefaultButton(QMessageBox::No);
    connect(confirm, SIGNAL(finished(int)), SLOT(lteModemDialogFinished(int)));
    m_data->lteModemDialogPage = new dialogPage_t(confirm);
}

void melvoxUiReceiverInformation_t::connectReceiver()
{
    remoteMelvoxDevice_t* const device = m_data->device;
    connect(device, SIGNAL(productInfoUpdated(std::string const&, std::string const&)), SLOT(updateProductInfo()));
    connect(device, SIGNAL(firmwareVersionUpdated(std::string const&, std::string const&)),
            SLOT(firmwareVersionCheck(std::string const&, std::string const&)));
    connect(device, SIGNAL(irdmStatUpdated(std::string const&, std::string const&, std::string const&)),
            SLOT(updateIrdmStat(std::string const&, std::string const&, std::string const&)));
    connect(device, SIGNAL(lteModemStatUpdated(std::string const&, std::string const&, std::string const&)),
            SLOT(updateLteModemStat(std::string const&, std::string const&, std::string const&)));
}

void melvoxUiReceiverInformation_t::query()
{
    m_data->device->queryAll();
}

void melvoxUiReceiverInformation_t::updateProductInfo()
{
    bool const valid = m_data->device->productInfoValid();
    showStatus(m_data->ui.serialNumberLabel, valid, fromText8(m_data->device->serialNumber()));
    showStatus(m_data->ui.modelLabel, valid, fromText8(m_data->device->modelName()));
}

void melvoxUiReceiverInformation_t::firmwareVersionCheck(std::string const& component, std::string const& version)
{
    if (component != NAV_COMPONENT)
        return;
    std::vector<unsigned int> parsed;
    if (parseVersion(version, parsed) && parsed != m_data->versions)
    {
        m_data->versions = parsed;
        if (versionCompare(parsed, MINIMUM_NAV_VERSION) < 0)
        {
            m_data->versionWarningDialog->setCurrentVersion(parsed);
            m_data->versionWarningPage->show();
        }
    }
    QString text;
    if (buildVersion(text, m_data->versions))
        m_data->ui.firmwareLabel->setText(text);
}

void melvoxUiReceiverInformation_t::updateIrdmStat(std::string const& imei, std::string const& provisioningStatus,
                                                   std::string const&)
{
    m_data->ui.edgeSerialNumberLabel->setText(fromText8(imei));
    m_data->ui.provisioningStatusLabel->setText(fromText8(provisioningStatus));
}

void melvoxUiReceiverInformation_t::updateLteModemStat(std::string const& rssi, std::string const& networkStatus,
                                                       std::string const& modemStatus)
{
    m_data->enableLteModemButton = modemStatus != MODEM_PENDING;
    m_data->modemStatus = fromText8(modemStatus);
    m_data->ui.lteModemStatusLabel->setText(m_data->modemStatus);
    m_data->ui.lteNetworkStatusLabel->setText(fromText8(networkStatus));
    m_data->ui.lteRssiLabel->setText(fromText8(rssi));
    m_data->ui.toggleLteModemButton->setEnabled(m_data->enableLteModemButton);
}

void melvoxUiReceiverInformation_t::toggleLTEModemState()
{
    if (m_data->modemStatus == MODEM_OFF)
        m_data->lteModemDialogPage->show();
    else
        switchLteModem(false);
}

void melvoxUiReceiverInformation_t::lteModemDialogFinished(int result)
{
    if (result != QMessageBox::Yes)
        return;
    switchLteModem(true);
    m_data->device->queryLteModemStatus();
}

/** The button comes back with the modem's next report. */
void melvoxUiReceiverInformation_t::switchLteModem(bool on)
{
    m_data->device->setLteModemStatus(on);
    m_data->enableLteModemButton = false;
    m_data->ui.toggleLteModemButton->setEnabled(false);
}

} // namespace brel_common_qt_gui
