#include "melvoxUiWebInterface_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/usbDriveManager.h"
#include "brel_common_qt_gui/dialogPage.h"
#include "brel_common_qt_gui/usbDriveSelectDialog.h"
#include "melvox_ui/melvoxUiUsbWebUiSelectDialog.h"
#include "support/fileChooser.h"
#include "support/pageSupport.h"
#include "support/text8.h"

#include <QFileInfo>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

melvoxUiWebInterface_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), setEnabledUi(false), driveDialogPage(nullptr), packageDialog(nullptr),
      packageDialogPage(nullptr), fileChooser(nullptr)
{
}

melvoxUiWebInterface_t::privateData_t::~privateData_t()
{
    delete driveDialogPage;
    delete packageDialogPage;
}

melvoxUiWebInterface_t::melvoxUiWebInterface_t(remoteMelvoxDevice_t* device) : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    createButtons();
    createDialogs();
    connectReceiver();
    updateWebControl();
    setUploadEnabled(false);
}

melvoxUiWebInterface_t::~melvoxUiWebInterface_t()
{
    delete m_data;
}

void melvoxUiWebInterface_t::createButtons()
{
    QDialogButtonBox* const box = m_data->ui.buttonBox;
    connectButton(box, QDialogButtonBox::Apply, this, SLOT(apply()));
    connectButton(box, QDialogButtonBox::Reset, this, SLOT(reset()));
    addActionButton(box, tr("Query"), this, SLOT(query()));
    connect(m_data->ui.selectPackageButton, SIGNAL(clicked()), SLOT(selectUploadPackage()));
    m_data->device->connect(m_data->ui.cancelUploadButton, SIGNAL(clicked()), SLOT(cancelWebUiUpload()));
}

void melvoxUiWebInterface_t::createDialogs()
{
    if (usbDriveManager_t::m_instance)
    {
        usbDriveSelectDialog_t* const drives = new usbDriveSelectDialog_t(usbDriveManager_t::m_instance, nullptr);
        connect(drives, SIGNAL(driveSelected(brel_common_qt::usbDrive_t const&)),
                SLOT(handleDriveSelected(brel_common_qt::usbDrive_t const&)));
        m_data->driveDialogPage = new dialogPage_t(drives);
    }
    m_data->packageDialog = new melvoxUiUsbWebUiSelectDialog_t(nullptr);
    connect(m_data->packageDialog, SIGNAL(packageSelected(QString)), SLOT(startUpload(QString)));
    m_data->packageDialogPage = new dialogPage_t(m_data->packageDialog);
    QString const filter = tr("MELVOX Web UI Packages (*.%1);;All Files (*)").arg(MelvoxWebUiPackageFileSuffix);
    m_data->fileChooser = new fileChooser_t(QFileDialog::AcceptOpen, tr("Open MELVOX Web UI Package"), filter, this);
    connect(m_data->fileChooser, SIGNAL(fileSelected(QString)), SLOT(startUpload(QString)));
}

void melvoxUiWebInterface_t::connectReceiver()
{
    remoteMelvoxDevice_t* const device = m_data->device;
    connect(device, SIGNAL(webControlUpdated()), SLOT(updateWebControl()));
    connect(device, SIGNAL(webUiUploadStateUpdated()), SLOT(updateUploadState()));
    connect(device, SIGNAL(webUiUploadPercentUpdated(double)), SLOT(setUploadPercent(double)));
    connect(device, SIGNAL(activePortUpdated(brel_common_qt::melvoxPort_t)), SLOT(updateActivePort()));
}

void melvoxUiWebInterface_t::query()
{
    m_data->device->queryWebControl();
}

void melvoxUiWebInterface_t::updateWebControl()
{
    bool const valid = m_data->device->webControlValid();
    showStatus(m_data->ui.uiEnabledLabel, valid,
               m_data->ui.uiEnabledCombo->itemText(m_data->device->webUiEnabled() ? 1 : 0));
    if (valid && !m_data->setEnabledUi)
    {
        reset();
        m_data->setEnabledUi = true;
    }
    updateActivePort();
}

/** The switch needs both: a receiver that has told its state, and a way to it that the switch does not cut. */
void melvoxUiWebInterface_t::updateActivePort()
{
    bool const known = m_data->device->activePortValid();
    if (!known)
        m_data->device->queryActivePort();
    bool const physical = known && m_data->device->activePort() < MELVOX_PORT_ETH1;
    m_data->ui.uiEnabledCombo->setEnabled(physical && m_data->device->webControlValid());
    if (known)
        m_data->ui.warningLabel->setVisible(!physical);
}

void melvoxUiWebInterface_t::reset()
{
    if (m_data->device->webControlValid())
        m_data->ui.uiEnabledCombo->setCurrentIndex(m_data->device->webUiEnabled() ? 1 : 0);
}

void melvoxUiWebInterface_t::apply()
{
    if (m_data->ui.uiEnabledCombo->isEnabled())
        m_data->device->setWebUiEnabled(m_data->ui.uiEnabledCombo->currentIndex() > 0);
}

void melvoxUiWebInterface_t::selectUploadPackage()
{
    if (m_data->driveDialogPage)
        m_data->driveDialogPage->show();
    else
        showFileDialog();
}

void melvoxUiWebInterface_t::handleDriveSelected(usbDrive_t const& drive)
{
    m_data->packageDialog->scan(drive.mountPoint);
    m_data->packageDialogPage->show();
}

void melvoxUiWebInterface_t::showFileDialog()
{
    m_data->fileChooser->show();
}

void melvoxUiWebInterface_t::startUpload(QString const& path)
{
    m_data->ui.uploadPackageLabel->setText(QFileInfo(path).fileName());
    m_data->device->startWebUiUpload(toPath8(path));
}

void melvoxUiWebInterface_t::setUploadPercent(double fraction)
{
    double const percent = fraction * 100;
    m_data->ui.uploadProgressBar->setValue(int(percent));
    m_data->ui.uploadPercentLabel->setText(QString("%1%").arg(percent, 0, 'f', 2));
}

void melvoxUiWebInterface_t::updateUploadState()
{
    switch (m_data->device->webUiUploadState())
    {
    case MELVOX_WEB_UI_UPLOAD_IN_PROGRESS:
        m_data->ui.uploadStatusLabel->setText(fromText8(m_data->device->webUiUploadDescription()));
        setUploadEnabled(true);
        break;
    case MELVOX_WEB_UI_UPLOAD_COMPLETE:
        m_data->ui.uploadStatusLabel->setText(tr("Upload Complete"));
        setUploadEnabled(false);
        break;
    case MELVOX_WEB_UI_UPLOAD_ERROR:
        m_data->ui.uploadStatusLabel->setText(fromText8(m_data->device->webUiUploadDescription()));
        setUploadEnabled(false);
        break;
    }
}

void melvoxUiWebInterface_t::setUploadEnabled(bool uploading)
{
    m_data->ui.selectPackageButton->setEnabled(!uploading);
    m_data->ui.cancelUploadButton->setEnabled(uploading);
}

} // namespace brel_common_qt_gui
