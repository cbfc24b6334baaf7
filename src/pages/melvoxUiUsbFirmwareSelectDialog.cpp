#include "melvoxUiUsbFirmwareSelectDialog_p.h"

#include "support/pageSupport.h"
#include "support/qtCompat.h"

#include <memory>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

// One component alone is not offered as a package.
int const LEAST_RECORDS_OF_A_FILE = 2;

int const NAME_COLUMN = 0;

/** Where the versions of the first components stand. Without a gap for MTEST, which has no caption: this is the order
 *  that operators and their instructions know. */
struct column_t
{
    melvoxFirmwareComponent_t component;
    int column;
};

column_t const COLUMNS[] = {
    {MELVOX_FW_COMP_BOOT1, 1},   {MELVOX_FW_COMP_BOOT2, 2},     {MELVOX_FW_COMP_NAV, 3},
    {MELVOX_FW_COMP_MTEST, 4},   {MELVOX_FW_COMP_PIO_BOOT1, 5}, {MELVOX_FW_COMP_PIO_BOOT2, 6},
    {MELVOX_FW_COMP_PIO_APP, 7},
};

bool readPackage(melvoxUiFirmwarePackage_t& package, int preferredProduct)
{
    QFileInfo const& info = package.fileInfo();
    if (info.isDir())
    {
        melvoxFirmwareScanDir(info.filePath(), package.files, package.records, preferredProduct);
        return !package.records.isEmpty();
    }
    if (info.suffix().compare(SrecFileSuffix, Qt::CaseInsensitive) != 0)
        return false;
    melvoxFirmwareScanFile(info.filePath(), package.records, preferredProduct);
    package.files << info.filePath();
    return package.records.size() >= LEAST_RECORDS_OF_A_FILE;
}

} // namespace

melvoxUiUsbFirmwareSelectDialog_t::scanner_t::scanner_t(QObject* parent) : fileScanner_t(parent), preferredProduct(0)
{
}

melvoxUiUsbFirmwareSelectDialog_t::scanner_t::~scanner_t()
{
    stopScan();
}

bool melvoxUiUsbFirmwareSelectDialog_t::scanner_t::filter(QFileInfo const& fileInfo)
{
    std::unique_ptr<melvoxUiFirmwarePackage_t> candidate(new melvoxUiFirmwarePackage_t(fileInfo));
    if (readPackage(*candidate, preferredProduct))
        postFile(candidate.release());
    return true;
}

melvoxUiUsbFirmwareSelectDialog_t::item_t::item_t(melvoxUiFirmwarePackage_t* package_) : package(package_)
{
    setText(NAME_COLUMN, package->name);
    for (melvoxFirmwareScanRecord_t const& record : package->records)
    {
        for (column_t const& column : COLUMNS)
        {
            if (column.component == record.component)
                setText(column.column, record.version);
        }
    }
}

melvoxUiUsbFirmwareSelectDialog_t::item_t::~item_t()
{
    delete package;
}

melvoxUiUsbFirmwareSelectDialog_t::privateData_t::privateData_t()
    : scanner(nullptr), package(nullptr), stopButton(nullptr), selectButton(nullptr)
{
}

melvoxUiUsbFirmwareSelectDialog_t::privateData_t::~privateData_t()
{
    delete package;
}

scanDialog_t melvoxUiUsbFirmwareSelectDialog_t::privateData_t::parts(QDialog* dialog) const
{
    scanDialog_t const parts = {dialog, scanner, ui.treeWidget, ui.buttonBox, stopButton, selectButton};
    return parts;
}

melvoxUiUsbFirmwareSelectDialog_t::melvoxUiUsbFirmwareSelectDialog_t(QWidget* parent)
    : QDialog(parent), m_data(new privateData_t)
{
    m_data->ui.setupUi(this);
    // Or the last one is what is left over, even when that is less than its text needs.
    m_data->ui.treeWidget->header()->setStretchLastSection(false);
    m_data->scanner = new scanner_t(this);
    m_data->stopButton = addActionButton(m_data->ui.buttonBox, tr("Stop Scan"), nullptr, nullptr);
    m_data->selectButton = addActionButton(m_data->ui.buttonBox, tr("Select Package"), nullptr, nullptr);
    connectScanDialog(m_data->parts(this), SLOT(selectPackage()));
    setResizeMode(m_data->ui.treeWidget->header(), QHeaderView::ResizeToContents);
    checkScanState();
}

melvoxUiUsbFirmwareSelectDialog_t::~melvoxUiUsbFirmwareSelectDialog_t()
{
    delete m_data->scanner;
    delete m_data;
}

melvoxUiFirmwarePackage_t* melvoxUiUsbFirmwareSelectDialog_t::takePackage()
{
    melvoxUiFirmwarePackage_t* const taken = m_data->package;
    m_data->package = nullptr;
    return taken;
}

void melvoxUiUsbFirmwareSelectDialog_t::scan(QString const& mountPoint, int preferredProduct)
{
    if (m_data->scanner->isScanning())
        return;
    delete takePackage();
    m_data->ui.treeWidget->clear();
    updatePackageCount();
    m_data->scanner->clearPaths();
    m_data->scanner->addPath(mountPoint);
    m_data->scanner->addPath(mountPoint + UsbUpdatesDir);
    m_data->scanner->preferredProduct = preferredProduct;
    m_data->scanner->startScan();
}

void melvoxUiUsbFirmwareSelectDialog_t::checkSelection()
{
    showSelection(m_data->parts(this));
}

void melvoxUiUsbFirmwareSelectDialog_t::checkScanState()
{
    showScanState(m_data->parts(this));
    checkSelection();
}

void melvoxUiUsbFirmwareSelectDialog_t::selectPackage()
{
    item_t const* const item = selectedItem<item_t>(m_data->ui.treeWidget);
    if (!item)
        return;
    delete takePackage();
    m_data->package = new melvoxUiFirmwarePackage_t(*item->package);
    emit packageSelected();
    accept();
}

void melvoxUiUsbFirmwareSelectDialog_t::handleFilesReceived()
{
    while (scanFile_t* const file = m_data->scanner->takeScanFile())
        addItem(static_cast<melvoxUiFirmwarePackage_t*>(file));
    updatePackageCount();
}

void melvoxUiUsbFirmwareSelectDialog_t::addItem(melvoxUiFirmwarePackage_t* package)
{
    QTreeWidget* const tree = m_data->ui.treeWidget;
    item_t* const item = new item_t(package);
    // A version beyond the captions gets a column without one.
    for (int column = tree->columnCount(); column < item->columnCount(); ++column)
        tree->headerItem()->setText(column, QString());
    tree->addTopLevelItem(item);
}

void melvoxUiUsbFirmwareSelectDialog_t::updatePackageCount()
{
    m_data->ui.packageCountLabel->setText(
        tr("%1 firmware package(s) found").arg(m_data->ui.treeWidget->topLevelItemCount()));
}

} // namespace brel_common_qt_gui
