#include "melvoxUiEthernetConfiguration_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt_gui/errorText.h"
#include "brel_common_qt_gui/ipAddressEdit.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"

#include <QHeaderView>
#include <QHostAddress>
#include <QPushButton>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

melvoxEthernetConfigSource_t const SOURCE = MELVOX_ETH_CFG_SOURCE_CABLE;

enum mode_t
{
    MODE_MANUAL,
    MODE_DHCP
};

bool readAddress(ipAddressEdit_t const* edit, unsigned int& address, QString const& error, errorText_t& err)
{
    bool const good = edit->getAddress(address);
    if (!good)
        err << error << endl;
    return good;
}

void showAddress(QLabel* label, bool valid, unsigned int address)
{
    showStatus(label, valid, QHostAddress(address).toString());
}

} // namespace

melvoxUiEthernetConfiguration_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), ipAddressEdit(0), netmaskEdit(0), gatewayEdit(0), dns1Edit(0), dns2Edit(0), ethernetButton(0),
      ethernetWarningDialogPage(0)
{
}

melvoxUiEthernetConfiguration_t::privateData_t::~privateData_t()
{
    delete ethernetWarningDialogPage;
}

melvoxUiEthernetConfiguration_t::melvoxUiEthernetConfiguration_t(remoteMelvoxDevice_t* device)
    : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    setResizeMode(m_data->ui.accessPointsTreeWidget->header(), QHeaderView::ResizeToContents);
    createButtons();
    createEdits();
    createWarning();
    connect(m_data->ui.modeCombo, SIGNAL(currentIndexChanged(int)), SLOT(checkDhcp()));
    connect(device, SIGNAL(ethernetConfigUpdated(bool, brel_common_qt::ethernetConfig_t const&)), SLOT(updateConfig()));

    checkDhcp();
    updateConfig();
}

melvoxUiEthernetConfiguration_t::~melvoxUiEthernetConfiguration_t()
{
    delete m_data;
}

void melvoxUiEthernetConfiguration_t::createButtons()
{
    QDialogButtonBox* const box = m_data->ui.buttonBox;
    connectButton(box, QDialogButtonBox::Apply, this, SLOT(verifySubmit()));
    connectButton(box, QDialogButtonBox::Reset, this, SLOT(reset()));
    m_data->ethernetButton = addActionButton(box, tr("IP Address"), this, SLOT(showEthernetPage()));
    addActionButton(box, tr("Query"), this, SLOT(query()));
}

void melvoxUiEthernetConfiguration_t::createEdits()
{
    m_data->ipAddressEdit = new ipAddressEdit_t(m_data->ui.ipAddressLineEdit, this);
    m_data->netmaskEdit = new ipAddressEdit_t(m_data->ui.netmaskLineEdit, this);
    m_data->gatewayEdit = new ipAddressEdit_t(m_data->ui.gatewayLineEdit, this);
    m_data->dns1Edit = new ipAddressEdit_t(m_data->ui.dns1LineEdit, this);
    m_data->dns2Edit = new ipAddressEdit_t(m_data->ui.dns2LineEdit, this);
}

void melvoxUiEthernetConfiguration_t::createWarning()
{
    QString const text =
        tr("<p><center><b>WARNING:</b> Changing the ethernet settings will temporarily lose connection and cause the "
           "quality panel to blank.</center></p><p><center><FONT COLOR='#800000'><b>Do not make changes during "
           "critical operations.</b></FONT></center></p><p><center>Are you sure you want to make "
           "changes?</center></p><p><center>(Press <b>Yes</b> to continue, <b>No</b> to cancel)</center></p>");
    QMessageBox* const warning = createQuestion(QMessageBox::Warning, tr("Change the ethernet settings?"), text, this);
    warning->setTextFormat(Qt::RichText);
    warning->setDefaultButton(QMessageBox::No);
    connect(warning, SIGNAL(finished(int)), SLOT(ethernetWarningDialogFinished(int)));
    m_data->ethernetWarningDialogPage = new dialogPage_t(warning);
}

void melvoxUiEthernetConfiguration_t::checkDhcp()
{
    bool const manual = m_data->ui.modeCombo->currentIndex() == MODE_MANUAL;
    m_data->ui.ipAddressLineEdit->setEnabled(manual);
    m_data->ui.netmaskLineEdit->setEnabled(manual);
    m_data->ui.gatewayLineEdit->setEnabled(manual);
    m_data->ui.dns1LineEdit->setEnabled(manual);
    m_data->ui.dns2LineEdit->setEnabled(manual);
}

void melvoxUiEthernetConfiguration_t::updateConfig()
{
    showConfig();
    // Addresses that the receiver took by itself must not be mixed with half an old set.
    resetConfig();
    m_data->ui.ethernetConfigGroup->setEnabled(true);
}

void melvoxUiEthernetConfiguration_t::showConfig()
{
    Ui_melvoxUiEthernetConfiguration& ui = m_data->ui;
    ethernetConfig_t const* const known = m_data->device->ethernetConfig(SOURCE);
    ethernetConfig_t const config = known ? *known : ethernetConfig_t();
    bool const dhcp = m_data->device->ethernetConfigDhcp(SOURCE);
    showStatus(ui.modeLabel, known, ui.modeCombo->itemText(dhcp ? MODE_DHCP : MODE_MANUAL));
    showAddress(ui.ipAddressLabel, known, config.ipAddress);
    showAddress(ui.netmaskLabel, known, config.netmask);
    showAddress(ui.gatewayLabel, known, config.gateway);
    showAddress(ui.dns1Label, known, config.dns1);
    showAddress(ui.dns2Label, known, config.dns2);
}

void melvoxUiEthernetConfiguration_t::resetConfig()
{
    ethernetConfig_t const* const config = m_data->device->ethernetConfig(SOURCE);
    if (!config)
        return;
    m_data->ui.modeCombo->setCurrentIndex(m_data->device->ethernetConfigDhcp(SOURCE) ? MODE_DHCP : MODE_MANUAL);
    m_data->ipAddressEdit->setAddress(config->ipAddress);
    m_data->netmaskEdit->setAddress(config->netmask);
    m_data->gatewayEdit->setAddress(config->gateway);
    m_data->dns1Edit->setAddress(config->dns1);
    m_data->dns2Edit->setAddress(config->dns2);
}

void melvoxUiEthernetConfiguration_t::submitConfig(errorText_t& err)
{
    if (!m_data->ui.ethernetConfigGroup->isEnabled())
        return;
    if (m_data->ui.modeCombo->currentIndex() != MODE_MANUAL)
    {
        m_data->device->setEthernetConfigDhcp(SOURCE);
        return;
    }
    // Each is looked at, so that the operator sees all that is wrong at once.
    ethernetConfig_t config = ethernetConfig_t();
    bool good = readAddress(m_data->ipAddressEdit, config.ipAddress, tr("IP Address is invalid"), err);
    good &= readAddress(m_data->netmaskEdit, config.netmask, tr("Netmask must be a valid IP address"), err);
    good &= readAddress(m_data->gatewayEdit, config.gateway, tr("Gateway must be a valid IP address"), err);
    good &= readAddress(m_data->dns1Edit, config.dns1, tr("DNS Server 1 must be a valid IP address"), err);
    good &= readAddress(m_data->dns2Edit, config.dns2, tr("DNS Server 2 must be a valid IP address"), err);
    if (good)
        m_data->device->setEthernetConfig(SOURCE, config);
}

void melvoxUiEthernetConfiguration_t::verifySubmit()
{
    m_data->ethernetWarningDialogPage->show();
}

void melvoxUiEthernetConfiguration_t::ethernetWarningDialogFinished(int result)
{
    if (result == QMessageBox::Yes)
        submit();
}

void melvoxUiEthernetConfiguration_t::submit()
{
    errorText_t err;
    submitConfig(err);
    err.report();
}

void melvoxUiEthernetConfiguration_t::reset()
{
    resetConfig();
}

void melvoxUiEthernetConfiguration_t::query()
{
    m_data->device->queryEthernetConfig();
}

void melvoxUiEthernetConfiguration_t::showEthernetPage()
{
    m_data->ui.stackedWidget->setCurrentWidget(m_data->ui.ethernetPage);
    m_data->ethernetButton->hide();
}

} // namespace brel_common_qt_gui
