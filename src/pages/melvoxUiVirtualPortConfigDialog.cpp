#include "melvoxUiVirtualPortConfigDialog_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt_gui/errorText.h"
#include "brel_common_qt_gui/ipAddressEdit.h"
#include "brel_common_qt_gui/ipPortEdit.h"
#include "support/dialogButtons.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

melvoxUiVirtualPortConfigDialog_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), port(MELVOX_PORT_UNKNOWN), remoteAddressEdit(0), remotePortEdit(0), localPortEdit(0)
{
}

melvoxUiVirtualPortConfigDialog_t::melvoxUiVirtualPortConfigDialog_t(remoteMelvoxDevice_t* device, QWidget* parent)
    : QDialog(parent), m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    m_data->remoteAddressEdit = new ipAddressEdit_t(m_data->ui.remoteAddressLineEdit, this);
    m_data->remotePortEdit = new ipPortEdit_t(m_data->ui.remotePortLineEdit, this);
    m_data->localPortEdit = new ipPortEdit_t(m_data->ui.localPortLineEdit, this);
    connectDialogButtons(m_data->ui.buttonBox, this, SLOT(submit()));
    connect(m_data->ui.modeCombo, SIGNAL(currentIndexChanged(int)), SLOT(checkMode()));
    checkMode();
}

melvoxUiVirtualPortConfigDialog_t::~melvoxUiVirtualPortConfigDialog_t()
{
    delete m_data;
}

void melvoxUiVirtualPortConfigDialog_t::setPort(melvoxPort_t port)
{
    m_data->port = port;
    m_data->ui.portLabel->setText(melvoxPortName(port));
}

void melvoxUiVirtualPortConfigDialog_t::setConfig(melvoxVcomConfig_t const& config)
{
    m_data->ui.enabledCombo->setCurrentIndex(config.enabled ? 1 : 0);
    setChoice(m_data->ui.modeCombo, config.mode);
    m_data->remoteAddressEdit->setAddress(config.remoteAddress);
    m_data->remotePortEdit->setPort(config.remotePort);
    m_data->localPortEdit->setPort(config.localPort);
}

void melvoxUiVirtualPortConfigDialog_t::checkMode()
{
    bool const hasRemote = m_data->ui.modeCombo->currentIndex() == MODE_UDP_RESTRICT;
    m_data->ui.remoteAddressLineEdit->setEnabled(hasRemote);
    m_data->ui.remotePortLineEdit->setEnabled(hasRemote);
}

void melvoxUiVirtualPortConfigDialog_t::submit()
{
    errorText_t err;
    int const mode = m_data->ui.modeCombo->currentIndex();
    melvoxVcomConfig_t config = {m_data->ui.enabledCombo->currentIndex() > 0, melvoxVcomMode_t(mode), 0, 0, 0};
    if (!m_data->remoteAddressEdit->getAddress(config.remoteAddress))
        err << tr("Remote Address must be a valid IP address") << endl;
    if (!m_data->remotePortEdit->getPort(config.remotePort))
        err << tr("Remote Port must be 0 - 65535") << endl;
    if (!m_data->localPortEdit->getPort(config.localPort))
        err << tr("Local Port must be 0 - 65535") << endl;
    err.report();
    if (!err.isEmpty() || mode < 0)
        return;
    m_data->device->setVcomConfig(m_data->port, config);
    accept();
}

} // namespace brel_common_qt_gui
