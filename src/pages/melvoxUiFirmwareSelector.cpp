#include "melvoxUiFirmwareSelector_p.h"

#include "brel_common_qt/melvoxFirmware.h"
#include "brel_common_qt/usbDriveManager.h"
#include "brel_common_qt_gui/dialogPage.h"
#include "brel_common_qt_gui/usbDriveSelectDialog.h"
#include "melvox_ui/melvoxUiFirmwarePackage.h"
#include "melvox_ui/melvoxUiUsbFirmwareSelectDialog.h"
#include "support/fileChooser.h"

#include <QMessageBox>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

melvoxUiFirmwareSelector_t::privateData_t::privateData_t()
    : package(nullptr), productCode(0), driveSelectPage(nullptr), usbDialog(nullptr), usbDialogPage(nullptr),
      invalidBox(nullptr), invalidBoxPage(nullptr), fileChooser(nullptr)
{
}

melvoxUiFirmwareSelector_t::privateData_t::~privateData_t()
{
    delete package;
    delete driveSelectPage;
    delete usbDialogPage;
    delete invalidBoxPage;
}

melvoxUiFirmwareSelector_t::melvoxUiFirmwareSelector_t(QObject* parent) : QObject(parent), m_data(new privateData_t)
{
    if (usbDriveManager_t::m_instance)
    {
        usbDriveSelectDialog_t* const driveDialog = new usbDriveSelectDialog_t(usbDriveManager_t::m_instance, nullptr);
        connect(driveDialog, SIGNAL(driveSelected(brel_common_qt::usbDrive_t const&)),
                SLOT(handleDriveSelected(brel_common_qt::usbDrive_t const&)));
        m_data->driveSelectPage = new dialogPage_t(driveDialog);
        m_data->usbDialog = new melvoxUiUsbFirmwareSelectDialog_t(nullptr);
        connect(m_data->usbDialog, SIGNAL(packageSelected()), SLOT(handlePackageSelected()));
        m_data->usbDialogPage = new dialogPage_t(m_data->usbDialog);
    }
    QString const filter = tr("MELVOX Firmware Files (*.%1);;All Files (*)").arg(SrecFileSuffix);
    m_data->fileChooser = new fileChooser_t(QFileDialog::AcceptOpen, tr("Open MELVOX Firmware"), filter, this);
    connect(m_data->fileChooser, SIGNAL(fileSelected(QString)), SLOT(handleFileSelected(QString)));
}

melvoxUiFirmwareSelector_t::~melvoxUiFirmwareSelector_t()
{
    delete m_data;
}

melvoxUiFirmwarePackage_t* melvoxUiFirmwareSelector_t::takePackage()
{
    melvoxUiFirmwarePackage_t* const taken = m_data->package;
    m_data->package = nullptr;
    return taken;
}

void melvoxUiFirmwareSelector_t::selectPackage(int productCode)
{
    m_data->productCode = productCode;
    if (m_data->driveSelectPage)
        m_data->driveSelectPage->show();
    else
        showFileDialog();
}

void melvoxUiFirmwareSelector_t::handleDriveSelected(usbDrive_t const& drive)
{
    m_data->usbDialog->scan(drive.mountPoint, m_data->productCode);
    m_data->usbDialogPage->show();
}

void melvoxUiFirmwareSelector_t::handlePackageSelected()
{
    delete takePackage();
    m_data->package = m_data->usbDialog->takePackage();
    if (m_data->package)
        emit packageSelected();
}

void melvoxUiFirmwareSelector_t::showFileDialog()
{
    m_data->fileChooser->show();
}

void melvoxUiFirmwareSelector_t::handleFileSelected(QString const& path)
{
    delete takePackage();
    melvoxUiFirmwarePackage_t* const package = new melvoxUiFirmwarePackage_t(QFileInfo(path));
    m_data->package = package;
    if (package->fileInfo().isDir())
    {
        melvoxFirmwareScanDir(path, package->files, package->records, m_data->productCode);
    }
    else
    {
        melvoxFirmwareScanFile(path, package->records, m_data->productCode);
        package->files << path;
    }
    if (package->records.isEmpty())
        showInvalid();
    else
        emit packageSelected();
}

void melvoxUiFirmwareSelector_t::showInvalid()
{
    if (!m_data->invalidBox)
    {
        m_data->invalidBox = new QMessageBox(QMessageBox::Warning, tr("Invalid Firmware Package"),
                                             tr("The selected path does not appear to contain valid MELVOX firmware"));
        m_data->invalidBoxPage = new dialogPage_t(m_data->invalidBox);
        // However the box is closed: the operator still wants a package.
        connect(m_data->invalidBox, SIGNAL(finished(int)), SLOT(showFileDialog()));
    }
    m_data->invalidBoxPage->show();
}

} // namespace brel_common_qt_gui
