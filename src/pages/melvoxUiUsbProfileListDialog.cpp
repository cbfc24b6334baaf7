#include "melvoxUiUsbProfileListDialog_p.h"

#include "support/pageSupport.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

QString const PROFILE_SUFFIX("melvox");
QString const PROFILE_PREFIX("profile");

bool isProfile(QFileInfo const& info)
{
    return !info.isDir() && info.suffix().compare(PROFILE_SUFFIX, Qt::CaseInsensitive) == 0 &&
           info.fileName().startsWith(PROFILE_PREFIX, Qt::CaseInsensitive);
}

} // namespace

melvoxUiUsbProfileListDialog_t::scanner_t::scanner_t(QObject* parent) : fileScanner_t(parent)
{
}

melvoxUiUsbProfileListDialog_t::scanner_t::~scanner_t()
{
    stopScan();
}

bool melvoxUiUsbProfileListDialog_t::scanner_t::filter(QFileInfo const& fileInfo)
{
    if (isProfile(fileInfo))
        postFile(new scanFile_t(fileInfo));
    return true;
}

melvoxUiUsbProfileListDialog_t::item_t::item_t(QFileInfo const& fileInfo) : path(fileInfo.filePath())
{
    setText(0, fileInfo.fileName());
}

scanDialog_t melvoxUiUsbProfileListDialog_t::privateData_t::parts(QDialog* dialog) const
{
    scanDialog_t const parts = {dialog, scanner, ui.treeWidget, ui.buttonBox, stopButton, selectButton};
    return parts;
}

melvoxUiUsbProfileListDialog_t::melvoxUiUsbProfileListDialog_t(QWidget* parent)
    : QDialog(parent), m_data(new privateData_t)
{
    m_data->ui.setupUi(this);
    m_data->scanner = new scanner_t(this);
    m_data->stopButton = addActionButton(m_data->ui.buttonBox, tr("Stop Scan"), nullptr, nullptr);
    m_data->selectButton = addActionButton(m_data->ui.buttonBox, tr("Load Profile"), nullptr, nullptr);
    connectScanDialog(m_data->parts(this), SLOT(selectFile()));
    checkScanState();
}

melvoxUiUsbProfileListDialog_t::~melvoxUiUsbProfileListDialog_t()
{
    delete m_data->scanner;
    delete m_data;
}

void melvoxUiUsbProfileListDialog_t::scan(QString const& mountPoint)
{
    if (m_data->scanner->isScanning())
        return;
    m_data->ui.treeWidget->clear();
    m_data->scanner->clearPaths();
    m_data->scanner->addPath(mountPoint);
    m_data->scanner->startScan();
}

void melvoxUiUsbProfileListDialog_t::checkSelection()
{
    showSelection(m_data->parts(this));
}

void melvoxUiUsbProfileListDialog_t::checkScanState()
{
    showScanState(m_data->parts(this));
    checkSelection();
}

void melvoxUiUsbProfileListDialog_t::selectFile()
{
    item_t const* const item = selectedItem<item_t>(m_data->ui.treeWidget);
    if (!item)
        return;
    emit fileSelected(item->path);
    accept();
}

void melvoxUiUsbProfileListDialog_t::handleFilesReceived()
{
    while (scanFile_t* const file = m_data->scanner->takeScanFile())
    {
        m_data->ui.treeWidget->addTopLevelItem(new item_t(file->fileInfo()));
        delete file;
    }
}

} // namespace brel_common_qt_gui
