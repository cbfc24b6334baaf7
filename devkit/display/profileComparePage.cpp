#include "display/profileComparePage.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/usbDriveManager.h"
#include "brel_common_qt_gui/dialogPage.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "brel_common_qt_gui/scrollBarTreeWidget.h"
#include "brel_common_qt_gui/usbDriveSelectDialog.h"
#include "melvox_ui/melvoxUiProfileLoader.h"
#include "melvox_ui/melvoxUiUsbProfileListDialog.h"

#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace melvox_display
{

namespace
{

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

int const COLUMN_SETTING = 0;

// In pixels.
int const LOWEST_TREE = 160;
int const NARROWEST_NAME = 230;

} // namespace

profileComparePage_t::profileComparePage_t(remoteMelvoxDevice_t* device, QWidget* parent)
    : QWidget(parent), m_device(device), m_loader(new melvoxUiProfileLoader_t(device, this)), m_listDialog(nullptr),
      m_drivesPage(nullptr), m_listPage(nullptr), m_fileLabel(new QLabel(tr("No profile chosen"), this)),
      m_status(new QLabel(this)), m_tree(new scrollBarTreeWidget_t(this)), m_query(nullptr), m_load(nullptr),
      m_asked(0), m_waiting(false)
{
    setWindowTitle(tr("Compare Profile"));
    createParts();
    if (usbDriveManager_t::m_instance)
        createUsbDialogs();
    connect(device, SIGNAL(profileDumpDone(std::string const&, bool, std::string const&)),
            SLOT(takeDump(std::string const&, bool, std::string const&)));
    connect(&guiSettings_t::get(), SIGNAL(distanceUnitChanged()), SLOT(showComparison()));
    connect(&guiSettings_t::get(), SIGNAL(latLonFormatChanged()), SLOT(showComparison()));
    clearComparison(tr("Choose a profile file to see what it would change."));
}

profileComparePage_t::~profileComparePage_t()
{
    delete m_drivesPage;
    delete m_listPage;
}

void profileComparePage_t::createParts()
{
    m_fileLabel->setObjectName("profileFileLabel");
    m_fileLabel->setTextFormat(Qt::PlainText);
    m_fileLabel->setWordWrap(true);
    m_status->setObjectName("statusLabel");
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_tree->setObjectName("differenceTreeWidget");
    m_tree->setAccessibleName(tr("What the profile would change"));
    m_tree->setHeaderLabels({tr("Setting"), tr("Receiver Now"), tr("Profile"), tr("Unit")});
    m_tree->setRootIsDecorated(false);
    m_tree->setSelectionMode(QAbstractItemView::NoSelection);
    m_tree->setWordWrap(true);
    m_tree->setMinimumHeight(LOWEST_TREE);
    m_tree->header()->setSectionsMovable(false);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(QHeaderView::Fixed);
    m_tree->viewport()->installEventFilter(this);
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->addWidget(m_fileLabel);
    layout->addWidget(m_status);
    layout->addWidget(m_tree, 1);
    layout->addLayout(createButtons());
}

QBoxLayout* profileComparePage_t::createButtons()
{
    m_query = createButton("queryButton", tr("Query"), &profileComparePage_t::query);
    m_load = createButton("loadButton", tr("Load This Profile"), &profileComparePage_t::load);
    QHBoxLayout* row = new QHBoxLayout;
    row->addWidget(createButton("chooseButton", tr("Choose Profile"), &profileComparePage_t::chooseFile));
    row->addWidget(m_query);
    row->addStretch(1);
    row->addWidget(m_load);
    return row;
}

QPushButton* profileComparePage_t::createButton(QString const& name, QString const& text,
                                                void (profileComparePage_t::*pressed)())
{
    QPushButton* button = new QPushButton(text, this);
    button->setObjectName(name);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, pressed);
    return button;
}

void profileComparePage_t::createUsbDialogs()
{
    usbDriveSelectDialog_t* const drives = new usbDriveSelectDialog_t(usbDriveManager_t::m_instance, nullptr);
    connect(drives, &usbDriveSelectDialog_t::driveSelected, this, &profileComparePage_t::takeDrive);
    m_drivesPage = new dialogPage_t(drives);
    m_listDialog = new melvoxUiUsbProfileListDialog_t(nullptr);
    connect(m_listDialog, &melvoxUiUsbProfileListDialog_t::fileSelected, this, &profileComparePage_t::takeFile);
    // Here nothing is loaded yet.
    for (QPushButton* button : m_listDialog->findChildren<QPushButton*>())
    {
        if (button->text() == melvoxUiUsbProfileListDialog_t::tr("Load Profile"))
            button->setText(tr("Compare Profile"));
    }
    m_listPage = new dialogPage_t(m_listDialog);
}

void profileComparePage_t::chooseFile()
{
    if (m_drivesPage)
    {
        m_drivesPage->show();
        return;
    }
    QFileDialog* const dialog = new QFileDialog(window(), tr("Open MELVOX Profile"), QString(),
                                                tr("MELVOX Profile (*.melvox *.dravel);;All Files (*)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    connect(dialog, &QFileDialog::fileSelected, this, &profileComparePage_t::takeFile);
    dialog->open();
}

void profileComparePage_t::takeDrive(usbDrive_t const& drive)
{
    m_listDialog->scan(drive.mountPoint);
    m_listPage->show();
}

void profileComparePage_t::takeFile(QString const& path)
{
    m_path = path;
    m_fileLabel->setText(tr("Profile: %1").arg(QFileInfo(path).fileName()));
    query();
}

void profileComparePage_t::query()
{
    if (m_path.isEmpty())
        return;
    m_profile = readProfileFile(m_path);
    clearComparison(m_profile.isGood() ? tr("Asking the receiver for its settings...") : m_profile.problem);
    if (!m_profile.isGood())
        return;
    m_waiting = true;
    m_device->dumpAsProfile(m_folder.filePath(QString::number(++m_asked)).toStdString());
}

void profileComparePage_t::clearComparison(QString const& status)
{
    m_waiting = false;
    m_now.clear();
    m_tree->clear();
    m_status->setText(status);
    m_query->setEnabled(!m_path.isEmpty());
    m_load->setEnabled(false);
}

void profileComparePage_t::takeDump(std::string const& path, bool success, std::string const& description)
{
    QString const file = QString::fromStdString(path);
    if (!m_waiting || file != m_folder.filePath(QString::number(m_asked)))
        return;
    if (!success)
    {
        clearComparison(
            tr("The receiver's settings could not be read: %1 Try Query.").arg(QString::fromStdString(description)));
        return;
    }
    profileFile_t const now = readProfileFile(file);
    QFile::remove(file);
    m_waiting = false;
    m_now = now.settings;
    if (now.isGood())
        showComparison();
    else
        clearComparison(tr("The settings that this receiver dumps cannot be compared with a profile."));
}

void profileComparePage_t::showComparison()
{
    if (m_now.isEmpty())
        return;
    m_tree->clear();
    for (difference_t const& one : differences(m_now, m_profile.settings))
        m_tree->addTopLevelItem(new QTreeWidgetItem({one.name, one.now, one.then, one.unit}));
    int const count = m_tree->topLevelItemCount();
    m_status->setText(count == 0   ? tr("Nothing would change: the receiver has these settings already.")
                      : count == 1 ? tr("1 setting would change.")
                                   : tr("%1 settings would change.").arg(count));
    m_load->setEnabled(count > 0);
    arrangeColumns();
}

/** Values are not cut off. What they leave goes to the names, which take two lines where they have to. */
void profileComparePage_t::arrangeColumns()
{
    int values = 0;
    for (int column = COLUMN_SETTING + 1; column < m_tree->columnCount(); ++column)
    {
        m_tree->resizeColumnToContents(column);
        values += m_tree->columnWidth(column);
    }
    m_tree->setColumnWidth(COLUMN_SETTING, qMax(NARROWEST_NAME, m_tree->viewport()->width() - values));
}

bool profileComparePage_t::eventFilter(QObject* object, QEvent* event)
{
    if (object == m_tree->viewport() && event->type() == QEvent::Resize)
        arrangeColumns();
    return QWidget::eventFilter(object, event);
}

void profileComparePage_t::load()
{
    // Only what was compared is loaded.
    if (readProfileFile(m_path).bytes != m_profile.bytes)
    {
        query();
        return;
    }
    if (m_device->port()->lockState() != PORT_LOCK_NONE)
    {
        m_status->setText(tr("Another transfer to the receiver is running. Load the profile when it has ended."));
        return;
    }
    m_loader->fileSelected(m_path);
}

void profileComparePage_t::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_waiting)
        query();
}

} // namespace melvox_display
