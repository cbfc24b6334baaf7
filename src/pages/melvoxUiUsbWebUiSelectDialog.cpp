#include "melvoxUiUsbWebUiSelectDialog_p.h"

#include "brel_common_qt/melvoxFirmware.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

bool isPackage(QFileInfo const& info)
{
    return !info.isDir() && info.suffix().compare(MelvoxWebUiPackageFileSuffix, Qt::CaseInsensitive) == 0;
}

} // namespace

melvoxUiUsbWebUiSelectDialog_t::scanner_t::scanner_t(QObject* parent) : fileScanner_t(parent)
{
}

melvoxUiUsbWebUiSelectDialog_t::scanner_t::~scanner_t()
{
    stopScan();
}

bool melvoxUiUsbWebUiSelectDialog_t::scanner_t::filter(QFileInfo const& fileInfo)
{
    if (isPackage(fileInfo))
        postFile(new scanFile_t(fileInfo));
    return true;
}

melvoxUiUsbWebUiSelectDialog_t::item_t::item_t(QFileInfo const& fileInfo) : path(fileInfo.filePath())
{
    setText(0, fileInfo.fileName());
}

scanDialog_t melvoxUiUsbWebUiSelectDialog_t::privateData_t::parts(QDialog* dialog) const
{
    scanDialog_t const parts = {dialog, scanner, ui.treeWidget, ui.buttonBox, stopButton, selectButton};
    return parts;
}

melvoxUiUsbWebUiSelectDialog_t::melvoxUiUsbWebUiSelectDialog_t(QWidget* parent)
    : QDialog(parent), m_data(new privateData_t)
{
    m_data->ui.setupUi(this);
    m_data->scanner = new scanner_t(this);
    m_data->stopButton = addActionButton(m_data->ui.buttonBox, tr("Stop Scan"), nullptr, nullptr);
    m_data->selectButton = addActionButton(m_data->ui.buttonBox, tr("Select Package"), nullptr, nullptr);
    connectScanDialog(m_data->parts(this), SLOT(selectPackage()));
    setResizeMode(m_data->ui.treeWidget->header(), QHeaderView::ResizeToContents);
    checkScanState();
}

melvoxUiUsbWebUiSelectDialog_t::~melvoxUiUsbWebUiSelectDialog_t()
{
    delete m_data->scanner;
    delete m_data;
}

void melvoxUiUsbWebUiSelectDialog_t::scan(QString const& mountPoint)
{
    if (m_data->scanner->isScanning())
        return;
    m_data->ui.treeWidget->clear();
    m_data->scanner->clearPaths();
    m_data->scanner->addPath(mountPoint);
    m_data->scanner->addPath(mountPoint + UsbUpdatesDir);
    m_data->scanner->startScan();
}

void melvoxUiUsbWebUiSelectDialog_t::checkSelection()
{
    showSelection(m_data->parts(this));
}

void melvoxUiUsbWebUiSelectDialog_t::checkScanState()
{
    showScanState(m_data->parts(this));
    checkSelection();
}

void melvoxUiUsbWebUiSelectDialog_t::selectPackage()
{
    item_t const* const item = selectedItem<item_t>(m_data->ui.treeWidget);
    if (!item)
        return;
    emit packageSelected(item->path);
    accept();
}

void melvoxUiUsbWebUiSelectDialog_t::handleFilesReceived()
{
    while (scanFile_t* const file = m_data->scanner->takeScanFile())
    {
        m_data->ui.treeWidget->addTopLevelItem(new item_t(file->fileInfo()));
        delete file;
    }
}

} // namespace brel_common_qt_gui
