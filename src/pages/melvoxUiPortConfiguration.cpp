#include "melvoxUiPortConfiguration_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/textHelpers.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"
#include "support/treeRows.h"

#include <QHostAddress>
#include <QPushButton>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

unsigned int const RECOMMENDED_BAUD = 115200;

enum setUi_t
{
    USB_MODE = 1,
    NUM_SET_UI
};

QString deviceText(bool isActivePort)
{
    return isActivePort ? melvoxUiPortConfiguration_t::tr("Telvar") : melvoxUiPortConfiguration_t::tr("Auxiliary");
}

/** The serial mode is wired: the first two ports are the other kind than the rest. */
bool isRs232(melvoxPort_t port)
{
    return port == MELVOX_PORT_COM1 || port == MELVOX_PORT_COM2;
}

template <typename item_t> item_t* findItem(QTreeWidget* tree, melvoxPort_t port)
{
    for (int row = 0; row < tree->topLevelItemCount(); ++row)
    {
        item_t* const item = static_cast<item_t*>(tree->topLevelItem(row));
        if (item->port() == port)
            return item;
    }
    return 0;
}

/** The port's row, a new last one if there was none. */
template <typename item_t> item_t* findOrAddItem(QTreeWidget* tree, melvoxPort_t port, melvoxPort_t activePort)
{
    item_t* item = findItem<item_t>(tree, port);
    if (!item)
    {
        item = new item_t(port, port == activePort);
        tree->addTopLevelItem(item);
    }
    return item;
}

} // namespace

melvoxUiPortConfiguration_t::physicalItem_t::physicalItem_t(melvoxPort_t port, bool isActivePort)
    : m_port(port), m_config(), m_rs232(false)
{
    setText(COLUMN_NAME, melvoxPortName(port));
    setText(COLUMN_SERIAL_MODE, NoDataString);
    setText(COLUMN_DEVICE, deviceText(isActivePort));
}

melvoxPort_t melvoxUiPortConfiguration_t::physicalItem_t::port() const
{
    return m_port;
}

melvoxSerialPortConfig_t const& melvoxUiPortConfiguration_t::physicalItem_t::config() const
{
    return m_config;
}

void melvoxUiPortConfiguration_t::physicalItem_t::setConfig(melvoxSerialPortConfig_t const& config)
{
    m_config = config;
    setText(COLUMN_BAUD_RATE, baudString(config.baud));
    setText(COLUMN_DATA_BITS, charSizeString(config.charSize));
    setText(COLUMN_PARITY, parityString(config.parity));
    setText(COLUMN_STOP_BITS, stopBitsString(config.stopBits));
}

bool melvoxUiPortConfiguration_t::physicalItem_t::rs232Mode() const
{
    return m_rs232;
}

void melvoxUiPortConfiguration_t::physicalItem_t::setRs232Mode(bool rs232)
{
    m_rs232 = rs232;
    setText(COLUMN_SERIAL_MODE,
            rs232 ? melvoxUiPortConfiguration_t::tr("RS-232") : melvoxUiPortConfiguration_t::tr("RS-422"));
}

melvoxUiPortConfiguration_t::virtualItem_t::virtualItem_t(melvoxPort_t port, bool isActivePort)
    : m_port(port), m_config()
{
    setText(COLUMN_NAME, melvoxPortName(port));
    setText(COLUMN_DEVICE, deviceText(isActivePort));
}

melvoxPort_t melvoxUiPortConfiguration_t::virtualItem_t::port() const
{
    return m_port;
}

melvoxVcomConfig_t const& melvoxUiPortConfiguration_t::virtualItem_t::config() const
{
    return m_config;
}

void melvoxUiPortConfiguration_t::virtualItem_t::setConfig(melvoxVcomConfig_t const& config)
{
    m_config = config;
    setText(COLUMN_ENABLED, yesNo(config.enabled));
    setText(COLUMN_MODE, modeString(config.mode));
    setText(COLUMN_REMOTE_ADDRESS, QHostAddress(config.remoteAddress).toString());
    setText(COLUMN_REMOTE_PORT, QString::number(config.remotePort));
    setText(COLUMN_LOCAL_PORT, QString::number(config.localPort));
}

QString melvoxUiPortConfiguration_t::virtualItem_t::modeString(melvoxVcomMode_t mode)
{
    switch (mode)
    {
    case MODE_UDP_RESTRICT:
        return melvoxUiPortConfiguration_t::tr("UDP (Restrict)");
    case MODE_TCP_REGULAR:
        return melvoxUiPortConfiguration_t::tr("TCP");
    }
    return UnknownString;
}

melvoxUiPortConfiguration_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), setUi(NUM_SET_UI), activePort(MELVOX_PORT_UNKNOWN), configureButton(0), physicalButton(0),
      virtualButton(0), badBaudDialogPage(0), physicalConfigDialog(0), physicalConfigDialogPage(0),
      virtualConfigDialog(0), virtualConfigDialogPage(0)
{
}

melvoxUiPortConfiguration_t::privateData_t::~privateData_t()
{
    delete badBaudDialogPage;
    delete physicalConfigDialogPage;
    delete virtualConfigDialogPage;
}

melvoxUiPortConfiguration_t::melvoxUiPortConfiguration_t(remoteMelvoxDevice_t* device)
    : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    setResizeMode(m_data->ui.physicalTreeWidget->header(), QHeaderView::ResizeToContents);
    setResizeMode(m_data->ui.virtualTreeWidget->header(), QHeaderView::ResizeToContents);
    createButtons();
    createDialogs();
    connectWidgets();
    connectReceiver();

    checkSelectedPort();
    updateUsbMode();
    updateActivePort();
}

melvoxUiPortConfiguration_t::~melvoxUiPortConfiguration_t()
{
    delete m_data;
}

void melvoxUiPortConfiguration_t::createButtons()
{
    QDialogButtonBox* const box = m_data->ui.buttonBox;
    m_data->physicalButton = addActionButton(box, tr("Physical"), this, SLOT(showPhysicalPage()));
    m_data->virtualButton = addActionButton(box, tr("Virtual"), this, SLOT(showVirtualPage()));
    m_data->configureButton = addActionButton(box, tr("Configure Port"), this, SLOT(configureSelectedPort()));
    addPageButtons(box, this);
    m_data->physicalButton->hide();
}

void melvoxUiPortConfiguration_t::createDialogs()
{
    m_data->physicalConfigDialog = new melvoxUiPhysicalPortConfigDialog_t(m_data->device, this);
    m_data->physicalConfigDialogPage = new dialogPage_t(m_data->physicalConfigDialog);
    m_data->virtualConfigDialog = new melvoxUiVirtualPortConfigDialog_t(m_data->device, this);
    m_data->virtualConfigDialogPage = new dialogPage_t(m_data->virtualConfigDialog);
}

void melvoxUiPortConfiguration_t::connectWidgets()
{
    QTreeWidget* const physicalTree = m_data->ui.physicalTreeWidget;
    connect(physicalTree, SIGNAL(itemSelectionChanged()), SLOT(checkSelectedPhysicalPort()));
    connect(physicalTree, SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)), SLOT(configureSelectedPhysicalPort()));
    QTreeWidget* const virtualTree = m_data->ui.virtualTreeWidget;
    connect(virtualTree, SIGNAL(itemSelectionChanged()), SLOT(checkSelectedVirtualPort()));
    connect(virtualTree, SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)), SLOT(configureSelectedVirtualPort()));
}

void melvoxUiPortConfiguration_t::connectReceiver()
{
    remoteMelvoxDevice_t* const device = m_data->device;
    connect(device, SIGNAL(activePortUpdated(brel_common_qt::melvoxPort_t)), SLOT(updateActivePort()));
    connect(device,
            SIGNAL(serialConfigUpdated(brel_common_qt::melvoxPort_t, brel_common_qt::melvoxSerialPortConfig_t const&)),
            SLOT(updatePhysicalConfig(brel_common_qt::melvoxPort_t, brel_common_qt::melvoxSerialPortConfig_t const&)));
    connect(device, SIGNAL(serialRs232ModeUpdated(brel_common_qt::melvoxPort_t, bool)),
            SLOT(updatePhysicalConfig(brel_common_qt::melvoxPort_t, bool)));
    connect(device, SIGNAL(vcomConfigUpdated(brel_common_qt::melvoxPort_t, brel_common_qt::melvoxVcomConfig_t const&)),
            SLOT(updateVirtualConfig(brel_common_qt::melvoxPort_t, brel_common_qt::melvoxVcomConfig_t const&)));
    connect(device, SIGNAL(usbModeUpdated(brel_common_qt::melvoxUsbMode_t)), SLOT(updateUsbMode()));
    connect(device, SIGNAL(badBaudDetected()), SLOT(handleBadBaud()));
}

melvoxUiPortConfiguration_t::physicalItem_t* melvoxUiPortConfiguration_t::physicalItem(melvoxPort_t port)
{
    return findOrAddItem<physicalItem_t>(m_data->ui.physicalTreeWidget, port, m_data->activePort);
}

void melvoxUiPortConfiguration_t::updatePhysicalConfig(melvoxPort_t port, melvoxSerialPortConfig_t const& config)
{
    physicalItem_t* const item = physicalItem(port);
    item->setConfig(config);
    item->setRs232Mode(isRs232(port));
}

void melvoxUiPortConfiguration_t::updatePhysicalConfig(melvoxPort_t port, bool rs232)
{
    physicalItem(port)->setRs232Mode(rs232);
}

void melvoxUiPortConfiguration_t::updateVirtualConfig(melvoxPort_t port, melvoxVcomConfig_t const& config)
{
    findOrAddItem<virtualItem_t>(m_data->ui.virtualTreeWidget, port, m_data->activePort)->setConfig(config);
}

void melvoxUiPortConfiguration_t::updateActivePort()
{
    bool const valid = m_data->device->activePortValid();
    if (valid)
        m_data->activePort = m_data->device->activePort();
    else
        m_data->device->queryActivePort();
    // Over the USB link itself its mode cannot be changed.
    m_data->ui.usbModeCombo->setEnabled(valid && m_data->activePort != MELVOX_PORT_USB1 &&
                                        m_data->device->usbModeValid());
    checkSelectedPort();
}

void melvoxUiPortConfiguration_t::updateUsbMode()
{
    bool const valid = m_data->device->usbModeValid();
    showStatus(m_data->ui.usbModeLabel, valid, m_data->ui.usbModeCombo->itemText(m_data->device->usbMode()));
    fillOnce(m_data->setUi, USB_MODE, valid, this, &melvoxUiPortConfiguration_t::resetUsbMode);
    updateActivePort();
}

void melvoxUiPortConfiguration_t::resetUsbMode()
{
    if (m_data->device->usbModeValid())
        setChoice(m_data->ui.usbModeCombo, m_data->device->usbMode());
}

void melvoxUiPortConfiguration_t::submitUsbMode()
{
    int const index = m_data->ui.usbModeCombo->currentIndex();
    if (m_data->ui.usbModeCombo->isEnabled() && index >= 0)
        m_data->device->setUsbMode(melvoxUsbMode_t(index));
}

void melvoxUiPortConfiguration_t::submit()
{
    submitUsbMode();
}

void melvoxUiPortConfiguration_t::reset()
{
    checkSelectedPort();
    resetUsbMode();
}

void melvoxUiPortConfiguration_t::query()
{
    m_data->device->queryActivePort();
    m_data->device->queryUsbMode();
}

void melvoxUiPortConfiguration_t::checkSelectedPort()
{
    if (m_data->ui.stackedWidget->currentWidget() == m_data->ui.virtualPage)
        checkSelectedVirtualPort();
    else
        checkSelectedPhysicalPort();
}

void melvoxUiPortConfiguration_t::checkSelectedPhysicalPort()
{
    physicalItem_t const* const item = selectedItem<physicalItem_t>(m_data->ui.physicalTreeWidget);
    m_data->configureButton->setEnabled(item && item->port() != m_data->activePort);
}

void melvoxUiPortConfiguration_t::checkSelectedVirtualPort()
{
    virtualItem_t const* const item = selectedItem<virtualItem_t>(m_data->ui.virtualTreeWidget);
    m_data->configureButton->setEnabled(item && item->port() != m_data->activePort);
}

void melvoxUiPortConfiguration_t::configureSelectedPort()
{
    if (m_data->ui.stackedWidget->currentWidget() == m_data->ui.virtualPage)
        configureSelectedVirtualPort();
    else
        configureSelectedPhysicalPort();
}

void melvoxUiPortConfiguration_t::configureSelectedPhysicalPort()
{
    // A double click opens the active port too: its dialog changes both ends of the line.
    physicalItem_t const* const item = selectedItem<physicalItem_t>(m_data->ui.physicalTreeWidget);
    if (!item)
        return;
    m_data->physicalConfigDialog->setPort(item->port());
    m_data->physicalConfigDialog->setRs232Mode(item->rs232Mode());
    m_data->physicalConfigDialog->setConfig(item->config());
    m_data->physicalConfigDialogPage->show();
}

void melvoxUiPortConfiguration_t::configureSelectedVirtualPort()
{
    virtualItem_t const* const item = selectedItem<virtualItem_t>(m_data->ui.virtualTreeWidget);
    if (!item || item->port() == m_data->activePort)
        return;
    m_data->virtualConfigDialog->setPort(item->port());
    m_data->virtualConfigDialog->setConfig(item->config());
    m_data->virtualConfigDialogPage->show();
}

void melvoxUiPortConfiguration_t::showPhysicalPage()
{
    m_data->ui.stackedWidget->setCurrentWidget(m_data->ui.physicalPage);
    m_data->physicalButton->hide();
    m_data->virtualButton->show();
    checkSelectedPhysicalPort();
}

void melvoxUiPortConfiguration_t::showVirtualPage()
{
    m_data->ui.stackedWidget->setCurrentWidget(m_data->ui.virtualPage);
    m_data->virtualButton->hide();
    m_data->physicalButton->show();
    checkSelectedVirtualPort();
}

void melvoxUiPortConfiguration_t::handleBadBaud()
{
    remoteSerialPort_t* const link = qobject_cast<remoteSerialPort_t*>(m_data->device->port());
    serialPortConfig_t const* const current = link ? link->serialPortConfig() : 0;
    if (!current)
        return;
    unsigned int const baud = current->baud;
    serialPortConfig_t faster = *current;
    faster.baud = RECOMMENDED_BAUD;
    link->configure(faster, false);
    showBadBaud(baud);
}

void melvoxUiPortConfiguration_t::showBadBaud(unsigned int baud)
{
    // The box of the first time is shown again as it is.
    if (!m_data->badBaudDialogPage)
    {
        QString const text =
            tr("The MELVOX is connected at a baud rate (%1) below the recommended minimum (%2).\nAttempting to change "
               "the baud rate to the recommended minimum.\nIn the event the baud rate remains unchanged, please "
               "connect again directly at the current baud rate %1.");
        m_data->badBaudDialogPage =
            new dialogPage_t(new QMessageBox(QMessageBox::Warning, tr("Invalid MELVOX Baud Rate"),
                                             text.arg(baud).arg(RECOMMENDED_BAUD), QMessageBox::Ok, this));
    }
    m_data->badBaudDialogPage->show();
}

} // namespace brel_common_qt_gui
