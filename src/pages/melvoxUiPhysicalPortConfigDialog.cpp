#include "melvoxUiPhysicalPortConfigDialog_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "support/dialogButtons.h"
#include "support/pageSupport.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

melvoxUiPhysicalPortConfigDialog_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), port(MELVOX_PORT_UNKNOWN)
{
}

melvoxUiPhysicalPortConfigDialog_t::melvoxUiPhysicalPortConfigDialog_t(remoteMelvoxDevice_t* device, QWidget* parent)
    : QDialog(parent), m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    connectDialogButtons(m_data->ui.buttonBox, this, SLOT(submit()));
}

melvoxUiPhysicalPortConfigDialog_t::~melvoxUiPhysicalPortConfigDialog_t()
{
    delete m_data;
}

void melvoxUiPhysicalPortConfigDialog_t::setPort(melvoxPort_t port)
{
    m_data->port = port;
    m_data->ui.portLabel->setText(melvoxPortName(port));
}

void melvoxUiPhysicalPortConfigDialog_t::setRs232Mode(bool rs232)
{
    m_data->ui.serialRs232ModeLabel->setText(rs232 ? tr("RS-232") : tr("RS-422"));
}

void melvoxUiPhysicalPortConfigDialog_t::setConfig(melvoxSerialPortConfig_t const& config)
{
    m_data->ui.baudCombo->setCurrentIndex(m_data->ui.baudCombo->findText(QString::number(config.baud)));
    setChoice(m_data->ui.parityCombo, config.parity);
    setChoice(m_data->ui.stopBitsCombo, config.stopBits);
}

void melvoxUiPhysicalPortConfigDialog_t::submit()
{
    int const dataBits = m_data->ui.dataBitsCombo->currentIndex();
    int const parity = m_data->ui.parityCombo->currentIndex();
    int const stopBits = m_data->ui.stopBitsCombo->currentIndex();
    if (dataBits < 0 || parity < 0 || stopBits < 0)
        return;
    melvoxSerialPortConfig_t const config = {m_data->ui.baudCombo->currentText().toUInt(), CHAR_SIZE_8,
                                             parity_t(parity), stopBits_t(stopBits)};
    if (m_data->device->activePortValid() && m_data->port == m_data->device->activePort())
        configureOwnLink(config);
    else
        m_data->device->setSerialConfig(m_data->port, config);
    accept();
}

void melvoxUiPhysicalPortConfigDialog_t::configureOwnLink(melvoxSerialPortConfig_t const& config)
{
    remoteSerialPort_t* const link = qobject_cast<remoteSerialPort_t*>(m_data->device->port());
    serialPortConfig_t const* const current = link ? link->serialPortConfig() : 0;
    if (!current)
    {
        qWarning("The line settings of %s were not changed: the display's own link is no serial line, or its settings "
                 "are not known",
                 qPrintable(melvoxPortName(m_data->port)));
        return;
    }
    serialPortConfig_t wanted = *current;
    wanted.baud = config.baud;
    wanted.charSize = config.charSize;
    wanted.parity = config.parity;
    wanted.stopBits = config.stopBits;
    link->configure(wanted, false);
}

} // namespace brel_common_qt_gui
