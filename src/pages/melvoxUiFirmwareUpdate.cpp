#include "melvoxUiFirmwareUpdate_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/textHelpers.h"
#include "brel_common_qt_gui/dialogPage.h"
#include "melvox_ui/melvoxUiFirmwarePackage.h"
#include "melvox_ui/melvoxUiFirmwareSelector.h"
#include "melvox_ui/melvoxUiFirmwareVersionDisplay.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"
#include "support/text8.h"

#include <QMessageBox>
#include <QPushButton>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

char const* const goodStyleSheet = "QLabel { color:#000000; }";
char const* const errorStyleSheet = "QLabel { color:#ff0000; }";

// The product that these receivers are.
int const PRODUCT_CODE = 8;

double const BAR_MAXIMUM = 10000;

enum column_t
{
    COMPONENT_COLUMN,
    VERSION_COLUMN,
    UPDATE_COLUMN,
    STATUS_COLUMN = UPDATE_COLUMN
};

void showGood(QLabel* label, QString const& text)
{
    label->setStyleSheet(goodStyleSheet);
    label->setText(text);
}

void showError(QLabel* label, QString const& text)
{
    label->setStyleSheet(errorStyleSheet);
    label->setText(text);
}

/** Components stand in the order of the package until the operator sorts them. */
void prepareTree(QTreeWidget* tree)
{
    tree->sortByColumn(-1, Qt::AscendingOrder);
    setResizeMode(tree->header(), QHeaderView::ResizeToContents);
}

} // namespace

melvoxUiFirmwareUpdate_t::packageItem_t::packageItem_t(melvoxFirmwareScanRecord_t const& record, QString const& path_)
    : updateEnabled(true), fileIndex(record.fileIndex), component(record.component), path(toPath8(path_))
{
    setText(COMPONENT_COLUMN, melvoxFirmwareComponentString(component));
    setText(VERSION_COLUMN, record.version);
    setText(UPDATE_COLUMN, yesNo(updateEnabled));
}

melvoxUiFirmwareUpdate_t::packageItem_t::~packageItem_t()
{
}

void melvoxUiFirmwareUpdate_t::packageItem_t::toggleUpdateEnabled()
{
    updateEnabled = !updateEnabled;
    setText(UPDATE_COLUMN, yesNo(updateEnabled));
}

melvoxUiFirmwareUpdate_t::statusItem_t::statusItem_t(packageItem_t const& package) : component(package.component)
{
    setText(COMPONENT_COLUMN, package.text(COMPONENT_COLUMN));
    setText(VERSION_COLUMN, package.text(VERSION_COLUMN));
}

melvoxUiFirmwareUpdate_t::statusItem_t::~statusItem_t()
{
}

void melvoxUiFirmwareUpdate_t::statusItem_t::setStatus(melvoxFirmwareUpdateStatus_t status)
{
    setText(STATUS_COLUMN, melvoxFirmwareUpdateStatusString(status));
}

orphanedLock_t::orphanedLock_t(remoteMelvoxDevice_t* device) : QObject(device->port()), m_port(device->port())
{
    connect(m_port, SIGNAL(lockStateUpdated(brel_common_qt::portLock_t)),
            SLOT(updatePortLockState(brel_common_qt::portLock_t)));
    connect(device, SIGNAL(firmwareUpdateStateUpdated(brel_common_qt::firmwareUpdateState_t, std::string const&)),
            SLOT(updateFirmwareUpdateState(brel_common_qt::firmwareUpdateState_t)));
}

orphanedLock_t::~orphanedLock_t()
{
}

void orphanedLock_t::updatePortLockState(portLock_t state)
{
    if (state != PORT_LOCK_PLUGIN)
        deleteLater();
}

void orphanedLock_t::updateFirmwareUpdateState(firmwareUpdateState_t state)
{
    if (state != FIRMWARE_UPDATE_COMPLETE && state != FIRMWARE_UPDATE_ERROR)
        return;
    // Before it is deleted, the outcome may be told again.
    disconnect(sender(), 0, this, 0);
    m_port->setLockState(PORT_LOCK_NONE);
    deleteLater();
}

melvoxUiFirmwareUpdate_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), versionDisplay(nullptr), selector(nullptr), package(nullptr), disabled(false),
      lockPending(false), started(false), productCode(PRODUCT_CODE), startButton(nullptr), toggleButton(nullptr),
      successDialog(nullptr), failureDialog(nullptr)
{
}

melvoxUiFirmwareUpdate_t::privateData_t::~privateData_t()
{
    delete package;
    delete successDialog;
    delete failureDialog;
}

/** One file for several components. */
bool melvoxUiFirmwareUpdate_t::privateData_t::isCombined() const
{
    return package && package->files.size() == 1 && package->records.size() > 1;
}

melvoxUiFirmwareUpdate_t::melvoxUiFirmwareUpdate_t(remoteMelvoxDevice_t* device) : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    prepareTree(m_data->ui.packageTreeWidget);
    prepareTree(m_data->ui.statusTreeWidget);
    createButtons();
    m_data->selector = new melvoxUiFirmwareSelector_t(this);
    connectForm();
    connectReceiver();
    m_data->versionDisplay = new melvoxUiFirmwareVersionDisplay_t(device, m_data->ui.currentVersionsTextEdit, this);
    createDialogs();

    enterDisabledMode();
    updateActivePort();
    checkPackageSelection();
    checkUpdateReady();
}

melvoxUiFirmwareUpdate_t::~melvoxUiFirmwareUpdate_t()
{
    // Nobody else would give the lock back.
    if (m_data->lockPending && m_data->started)
        new orphanedLock_t(m_data->device);
    else if (m_data->lockPending)
        m_data->device->port()->setLockState(PORT_LOCK_NONE);
    delete m_data;
}

void melvoxUiFirmwareUpdate_t::createButtons()
{
    QDialogButtonBox* const box = m_data->ui.packageButtonBox;
    addActionButton(box, tr("Select Package"), this, SLOT(selectPackage()));
    m_data->toggleButton = addActionButton(box, tr("Toggle Component"), this, SLOT(toggleComponent()));
    m_data->startButton = addActionButton(box, tr("Start Update"), this, SLOT(enterStatusMode()));
    m_data->ui.progressButtonBox->button(QDialogButtonBox::Ok)->setMinimumHeight(TOUCH_HEIGHT);
}

void melvoxUiFirmwareUpdate_t::createDialogs()
{
    QMessageBox* const success =
        new QMessageBox(QMessageBox::Information, tr("Firmware Update Successful"),
                        tr("Firmware update complete.  Press OK to power cycle the receiver"), QMessageBox::Ok);
    QMessageBox* const failure = new QMessageBox(
        QMessageBox::Information, tr("Firmware Update Failed"),
        tr("Update of one or more firmware components failed.  Press OK to power cycle the receiver then retry."),
        QMessageBox::Ok);
    m_data->successDialog = new dialogPage_t(success);
    m_data->failureDialog = new dialogPage_t(failure);
    connect(success, SIGNAL(finished(int)), SLOT(cyclePower()));
    connect(failure, SIGNAL(finished(int)), SLOT(cyclePower()));
}

void melvoxUiFirmwareUpdate_t::connectForm()
{
    connect(m_data->selector, SIGNAL(packageSelected()), SLOT(enterSelectedPackage()));
    connect(m_data->ui.packageTreeWidget, SIGNAL(itemSelectionChanged()), SLOT(checkPackageSelection()));
    connect(m_data->ui.packageTreeWidget, SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)), SLOT(toggleComponent()));
    connect(m_data->ui.progressButtonBox, SIGNAL(accepted()), SLOT(enterPackageMode()));
}

void melvoxUiFirmwareUpdate_t::connectReceiver()
{
    remoteMelvoxDevice_t* const device = m_data->device;
    connect(device, SIGNAL(activePortUpdated(brel_common_qt::melvoxPort_t)), SLOT(updateActivePort()));
    connect(device, SIGNAL(productInfoUpdated(std::string const&, std::string const&)), SLOT(updateProductCode()));
    connect(device->port(), SIGNAL(lockStateUpdated(brel_common_qt::portLock_t)),
            SLOT(updatePortLockState(brel_common_qt::portLock_t)));
    connect(device, SIGNAL(firmwareUpdateStateUpdated(brel_common_qt::firmwareUpdateState_t, std::string const&)),
            SLOT(updateFirmwareUpdateState(brel_common_qt::firmwareUpdateState_t, std::string const&)));
    connect(device, SIGNAL(firmwareUpdateProgressUpdated(double)), SLOT(setPercent(double)));
    connect(device, SIGNAL(firmwareUpdateProgress(QList<brel_common_qt::melvoxFirmwareUpdateProgress_t> const&)),
            SLOT(updateFirmwareProgress(QList<brel_common_qt::melvoxFirmwareUpdateProgress_t> const&)));
}

void melvoxUiFirmwareUpdate_t::updateActivePort()
{
    if (!m_data->disabled || !m_data->device->activePortValid())
        return;
    int const port = m_data->device->activePort();
    bool const physical = port >= MELVOX_PORT_FIRST && port <= MELVOX_PORT_MAX_PHYSICAL;
    bool const ethernet = port >= MELVOX_PORT_MIN_ETH && port <= MELVOX_PORT_MAX_ETH;
    if (physical || (ethernet && m_data->device->isPortTcpConnect()))
        enterPackageMode();
}

void melvoxUiFirmwareUpdate_t::updateProductCode()
{
    m_data->productCode = PRODUCT_CODE;
}

void melvoxUiFirmwareUpdate_t::selectPackage()
{
    m_data->selector->selectPackage(m_data->productCode);
}

void melvoxUiFirmwareUpdate_t::enterSelectedPackage()
{
    melvoxUiFirmwarePackage_t* const package = m_data->selector->takePackage();
    if (!package)
        return;
    delete m_data->package;
    m_data->package = package;
    m_data->ui.packageLabel->setText(package->name);
    m_data->ui.packageTreeWidget->clear();
    fillPackageTree();
    checkPackageSelection();
    checkUpdateReady();
}

void melvoxUiFirmwareUpdate_t::fillPackageTree()
{
    melvoxUiFirmwarePackage_t const& package = *m_data->package;
    for (int i = 0; i < package.records.size(); ++i)
    {
        QString const path = m_data->isCombined() ? QString() : package.files.value(i);
        m_data->ui.packageTreeWidget->addTopLevelItem(new packageItem_t(package.records.at(i), path));
    }
}

melvoxUiFirmwareUpdate_t::packageItem_t* melvoxUiFirmwareUpdate_t::selectedPackageItem() const
{
    QList<QTreeWidgetItem*> const selected = m_data->ui.packageTreeWidget->selectedItems();
    return selected.isEmpty() ? nullptr : static_cast<packageItem_t*>(selected.first());
}

void melvoxUiFirmwareUpdate_t::toggleComponent()
{
    packageItem_t* const item = selectedPackageItem();
    if (!item)
        return;
    item->toggleUpdateEnabled();
    checkUpdateReady();
}

void melvoxUiFirmwareUpdate_t::checkPackageSelection()
{
    m_data->toggleButton->setEnabled(selectedPackageItem() != nullptr);
}

QList<melvoxUiFirmwareUpdate_t::packageItem_t*> melvoxUiFirmwareUpdate_t::enabledItems() const
{
    QList<packageItem_t*> enabled;
    for (int i = 0; i < m_data->ui.packageTreeWidget->topLevelItemCount(); ++i)
    {
        packageItem_t* const item = static_cast<packageItem_t*>(m_data->ui.packageTreeWidget->topLevelItem(i));
        if (item->updateEnabled)
            enabled << item;
    }
    return enabled;
}

void melvoxUiFirmwareUpdate_t::checkUpdateReady()
{
    m_data->startButton->setEnabled(!enabledItems().isEmpty());
}

void melvoxUiFirmwareUpdate_t::enterDisabledMode()
{
    Ui_melvoxUiFirmwareUpdate& ui = m_data->ui;
    m_data->disabled = true;
    showGood(ui.instructionsLabel,
             tr("Firmware updates must be performed over the receiver's serial, USB, or TCP interfaces."));
    showGood(ui.statusLabel, QString());
    ui.stackedWidget->setCurrentWidget(ui.progressPage);
    ui.progressButtonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
}

void melvoxUiFirmwareUpdate_t::enterPackageMode()
{
    m_data->disabled = false;
    m_data->ui.stackedWidget->setCurrentWidget(m_data->ui.packagePage);
}

void melvoxUiFirmwareUpdate_t::enterStatusMode()
{
    Ui_melvoxUiFirmwareUpdate& ui = m_data->ui;
    showGood(ui.instructionsLabel,
             tr("Firmware update in progress.  Do not turn off the receiver or unplug the USB device."));
    ui.statusTreeWidget->clear();
    for (packageItem_t const* item : enabledItems())
        ui.statusTreeWidget->addTopLevelItem(new statusItem_t(*item));
    ui.stackedWidget->setCurrentWidget(ui.progressPage);
    ui.progressButtonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
    m_data->lockPending = true;
    m_data->started = false;
    m_data->device->port()->setLockState(PORT_LOCK_PLUGIN);
}

void melvoxUiFirmwareUpdate_t::updatePortLockState(portLock_t state)
{
    if (!m_data->lockPending)
        return;
    if (state == PORT_LOCK_PLUGIN)
    {
        startUpdate();
        return;
    }
    showError(m_data->ui.statusLabel, tr("Unable to lock port"));
    m_data->ui.progressButtonBox->button(QDialogButtonBox::Ok)->setEnabled(true);
    m_data->lockPending = false;
}

void melvoxUiFirmwareUpdate_t::startUpdate()
{
    bool const combined = m_data->isCombined();
    std::string const combinedPath = combined ? toPath8(m_data->package->files.first()) : std::string();
    QList<melvoxFirmwareUpdateComponent_t> components;
    for (packageItem_t const* item : enabledItems())
    {
        melvoxFirmwareUpdateComponent_t const component = {item->fileIndex, item->component,
                                                           combined ? std::string() : item->path};
        components << component;
    }
    m_data->started = true;
    m_data->device->startFirmwareUpdate(components, combinedPath);
}

void melvoxUiFirmwareUpdate_t::setPercent(double fraction)
{
    m_data->ui.progressBar->setValue(int(fraction * BAR_MAXIMUM));
    m_data->ui.percentLabel->setText(fixed(fraction * 100, 2) + "%");
}

melvoxUiFirmwareUpdate_t::statusItem_t*
melvoxUiFirmwareUpdate_t::findStatusItem(melvoxFirmwareComponent_t component) const
{
    for (int i = 0; i < m_data->ui.statusTreeWidget->topLevelItemCount(); ++i)
    {
        statusItem_t* const item = static_cast<statusItem_t*>(m_data->ui.statusTreeWidget->topLevelItem(i));
        if (item->component == component)
            return item;
    }
    return nullptr;
}

void melvoxUiFirmwareUpdate_t::updateFirmwareProgress(QList<melvoxFirmwareUpdateProgress_t> const& components)
{
    for (melvoxFirmwareUpdateProgress_t const& progress : components)
    {
        if (statusItem_t* const item = findStatusItem(progress.component))
            item->setStatus(progress.status);
    }
}

/** What ends with an update, however it went. The bar is emptied: the texts tell the outcome. */
void melvoxUiFirmwareUpdate_t::endUpdate()
{
    setPercent(0);
    m_data->lockPending = false;
    m_data->device->port()->setLockState(PORT_LOCK_NONE);
    m_data->ui.progressButtonBox->button(QDialogButtonBox::Ok)->setEnabled(true);
}

void melvoxUiFirmwareUpdate_t::updateFirmwareUpdateState(firmwareUpdateState_t state, std::string const& desc)
{
    Ui_melvoxUiFirmwareUpdate& ui = m_data->ui;
    switch (state)
    {
    case FIRMWARE_UPDATE_IN_PROGRESS:
        showGood(ui.statusLabel, fromText8(desc));
        break;
    case FIRMWARE_UPDATE_COMPLETE:
        endUpdate();
        showGood(ui.statusLabel, fromText8(desc));
        showGood(ui.instructionsLabel, tr("Firmware update complete.  Cycle power to the receiver."));
        m_data->successDialog->show();
        break;
    case FIRMWARE_UPDATE_ERROR:
        endUpdate();
        showError(ui.statusLabel, fromText8(desc));
        showError(ui.instructionsLabel,
                  tr("Update of one or more firmware components failed.  Cycle power to the receiver and retry."));
        m_data->failureDialog->show();
        break;
    }
}

void melvoxUiFirmwareUpdate_t::cyclePower()
{
    m_data->device->reboot(0);
}

} // namespace brel_common_qt_gui
