#include "melvoxUiProfileLoader_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/usbDriveManager.h"
#include "brel_common_qt_gui/dialogPage.h"
#include "brel_common_qt_gui/usbDriveSelectDialog.h"
#include "melvox_ui/melvoxUiUsbProfileListDialog.h"
#include "support/fileChooser.h"
#include "support/pageSupport.h"

#include <QFile>
#include <QFileInfo>
#include <QPushButton>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

unsigned int const BLOCK_SIZE = 1024; // bytes

} // namespace

melvoxUiProfileLoader_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), progressPage(nullptr), driveSelectPage(nullptr), listDialog(nullptr), listPage(nullptr),
      file(nullptr), cancelButton(nullptr), blockSent(false), fileChooser(nullptr)
{
}

melvoxUiProfileLoader_t::privateData_t::~privateData_t()
{
    delete progressPage;
    delete driveSelectPage;
    delete listPage;
    delete file;
}

melvoxUiProfileLoader_t::melvoxUiProfileLoader_t(remoteMelvoxDevice_t* device, QObject* parent)
    : QObject(parent), m_data(new privateData_t(device))
{
    createDialogs();
    if (usbDriveManager_t::m_instance)
        createUsbDialogs();
    connect(device->port(), SIGNAL(lockStateUpdated(brel_common_qt::portLock_t)),
            SLOT(handleLockState(brel_common_qt::portLock_t)));
    connect(device->port(), SIGNAL(uploadResult(brel_common_qt::uploadStatus_t)),
            SLOT(handleUploadResult(brel_common_qt::uploadStatus_t)));
}

melvoxUiProfileLoader_t::~melvoxUiProfileLoader_t()
{
    // Nobody else would give the lock back.
    if (m_data->file)
        m_data->device->port()->setLockState(PORT_LOCK_NONE);
    delete m_data;
}

void melvoxUiProfileLoader_t::createDialogs()
{
    QDialog* const progress = new QDialog;
    m_data->ui.setupUi(progress);
    m_data->ui.buttonBox->button(QDialogButtonBox::Close)->setMinimumHeight(TOUCH_HEIGHT);
    connect(m_data->ui.buttonBox, SIGNAL(rejected()), progress, SLOT(reject()));
    m_data->cancelButton = addActionButton(m_data->ui.buttonBox, tr("Cancel Load"), this, SLOT(cancelLoad()));
    m_data->cancelButton->setEnabled(false);
    m_data->progressPage = new dialogPage_t(progress);
    m_data->fileChooser = new fileChooser_t(QFileDialog::AcceptOpen, tr("Open MELVOX Profile"),
                                            tr("MELVOX Profile (*.melvox);;All Files (*)"), this);
    connect(m_data->fileChooser, SIGNAL(fileSelected(QString)), SLOT(fileSelected(QString)));
}

void melvoxUiProfileLoader_t::createUsbDialogs()
{
    usbDriveSelectDialog_t* const drives = new usbDriveSelectDialog_t(usbDriveManager_t::m_instance, nullptr);
    connect(drives, SIGNAL(driveSelected(brel_common_qt::usbDrive_t const&)),
            SLOT(driveSelected(brel_common_qt::usbDrive_t const&)));
    m_data->driveSelectPage = new dialogPage_t(drives);
    m_data->listDialog = new melvoxUiUsbProfileListDialog_t(nullptr);
    connect(m_data->listDialog, SIGNAL(fileSelected(QString)), SLOT(fileSelected(QString)));
    m_data->listPage = new dialogPage_t(m_data->listDialog);
}

bool melvoxUiProfileLoader_t::isLoading() const
{
    return m_data->file != nullptr;
}

void melvoxUiProfileLoader_t::showProgress()
{
    m_data->progressPage->show();
}

void melvoxUiProfileLoader_t::loadProfile()
{
    if (m_data->driveSelectPage)
        m_data->driveSelectPage->show();
    else
        showFileDialog();
}

void melvoxUiProfileLoader_t::showFileDialog()
{
    m_data->fileChooser->show();
}

void melvoxUiProfileLoader_t::driveSelected(usbDrive_t const& drive)
{
    m_data->listDialog->scan(drive.mountPoint);
    m_data->listPage->show();
}

void melvoxUiProfileLoader_t::fileSelected(QString const& path)
{
    if (m_data->file)
        return;
    m_data->cancelButton->setEnabled(false);
    m_data->progressPage->show();
    m_data->file = new QFile(path);
    m_data->blockSent = false;
    if (!m_data->file->open(QIODevice::ReadOnly))
    {
        m_data->ui.statusLabel->setText(tr("Failed to open file"));
        finishUpload();
        return;
    }
    m_data->ui.loadSourceLabel->setText(QFileInfo(path).fileName());
    m_data->ui.statusLabel->setText(tr("Locking port"));
    m_data->device->port()->setLockState(PORT_LOCK_FRAMEWORK);
}

void melvoxUiProfileLoader_t::handleLockState(portLock_t lockState)
{
    if (!m_data->file)
        return;
    switch (lockState)
    {
    case PORT_LOCK_NONE:
        m_data->ui.statusLabel->setText(tr("Unable to lock port"));
        finishUpload();
        break;
    case PORT_LOCK_FRAMEWORK:
        m_data->cancelButton->setEnabled(true);
        // The lock may be reported again while a block is under way.
        if (!m_data->blockSent)
            uploadBlock();
        break;
    case PORT_LOCK_PLUGIN:
        break;
    }
}

void melvoxUiProfileLoader_t::uploadBlock()
{
    QFile* const file = m_data->file;
    m_data->ui.statusLabel->setText(tr("Loading data (%1/%2)").arg(file->pos()).arg(file->size()));
    QExplicitlySharedDataPointer<buffer_t> const buffer(new buffer_t(BLOCK_SIZE));
    qint64 const size = file->read(buffer->data(), BLOCK_SIZE);
    if (size <= 0)
    {
        endWithLock(size == 0 && file->atEnd() ? tr("Load Complete") : tr("Error reading from file"));
        return;
    }
    buffer->setLength(static_cast<unsigned int>(size));
    m_data->blockSent = true;
    m_data->device->port()->uploadData(buffer);
}

void melvoxUiProfileLoader_t::handleUploadResult(uploadStatus_t status)
{
    // An answer to a block of a load that was cancelled is nobody's.
    if (!m_data->file || !m_data->blockSent)
        return;
    m_data->blockSent = false;
    switch (status)
    {
    case UPLOAD_OK:
        uploadBlock();
        break;
    case UPLOAD_ERROR:
        endWithLock(tr("Error writing to port"));
        break;
    case UPLOAD_PORT_CLOSED:
        endWithLock(tr("Error: port is not open"));
        break;
    default:
        endWithLock(tr("Unknown error"));
        break;
    }
}

void melvoxUiProfileLoader_t::cancelLoad()
{
    if (m_data->file)
        endWithLock(tr("Upload cancelled"));
}

void melvoxUiProfileLoader_t::endWithLock(QString const& status)
{
    m_data->ui.statusLabel->setText(status);
    m_data->device->port()->setLockState(PORT_LOCK_NONE);
    finishUpload();
}

void melvoxUiProfileLoader_t::finishUpload()
{
    m_data->cancelButton->setEnabled(false);
    delete m_data->file;
    m_data->file = nullptr;
}

} // namespace brel_common_qt_gui
