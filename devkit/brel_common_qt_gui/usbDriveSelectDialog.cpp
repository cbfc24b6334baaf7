#include "brel_common_qt_gui/usbDriveSelectDialog.h"

#include "brel_common_qt_gui/scrollBarTreeWidget.h"
#include "brel_common_qt_gui/touch.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

namespace brel_common_qt_gui
{

using namespace brel_common_qt;

struct usbDriveSelectDialog_t::privateData_t
{
    QPointer<usbDriveManager_t> manager;
    QList<usbDrive_t> drives; //!< in the order of the rows
    scrollBarTreeWidget_t* tree;
    QLabel* emptyLabel;
    QPushButton* selectButton;
};

usbDriveSelectDialog_t::usbDriveSelectDialog_t(usbDriveManager_t* manager, QWidget* parent)
    : QDialog(parent), m_data(new privateData_t)
{
    m_data->manager = manager;
    setObjectName(QLatin1String("usbDriveSelectDialog"));
    setWindowTitle(tr("Select USB Drive"));
    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->addWidget(createList());
    layout->addWidget(createButtons());

    if (manager)
        connect(manager, SIGNAL(drivesChanged()), this, SLOT(updateDrives()));
    connect(m_data->tree, SIGNAL(itemSelectionChanged()), this, SLOT(checkSelection()));
    connect(m_data->tree, SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)), this, SLOT(selectDrive()));
    updateDrives();
}

usbDriveSelectDialog_t::~usbDriveSelectDialog_t()
{
    delete m_data;
}

QWidget* usbDriveSelectDialog_t::createList()
{
    QGroupBox* const group = new QGroupBox(tr("Select USB Drive"), this);
    group->setObjectName(QLatin1String("driveGroup"));
    m_data->tree = new scrollBarTreeWidget_t(group);
    m_data->tree->setObjectName(QLatin1String("driveTreeWidget"));
    m_data->tree->setAccessibleName(tr("USB Drives"));
    m_data->tree->setRootIsDecorated(false);
    m_data->tree->setHeaderLabels(QStringList(tr("Drive")));
    m_data->emptyLabel = new QLabel(tr("No USB drive found.  Plug in a USB drive."), group);
    m_data->emptyLabel->setObjectName(QLatin1String("emptyLabel"));
    m_data->emptyLabel->setWordWrap(true);
    QVBoxLayout* const layout = new QVBoxLayout(group);
    layout->addWidget(m_data->tree);
    layout->addWidget(m_data->emptyLabel);
    return group;
}

QWidget* usbDriveSelectDialog_t::createButtons()
{
    QDialogButtonBox* const buttonBox = new QDialogButtonBox(QDialogButtonBox::Cancel, Qt::Horizontal, this);
    buttonBox->setObjectName(QLatin1String("buttonBox"));
    buttonBox->button(QDialogButtonBox::Cancel)->setMinimumHeight(melvox_kit::TOUCH_HEIGHT);
    m_data->selectButton = buttonBox->addButton(tr("Select"), QDialogButtonBox::ActionRole);
    m_data->selectButton->setObjectName(QLatin1String("selectButton"));
    m_data->selectButton->setMinimumHeight(melvox_kit::TOUCH_HEIGHT);
    m_data->selectButton->setDefault(true);
    connect(m_data->selectButton, SIGNAL(clicked()), this, SLOT(selectDrive()));
    connect(buttonBox, SIGNAL(rejected()), this, SLOT(reject()));
    return buttonBox;
}

int usbDriveSelectDialog_t::selectedRow() const
{
    QList<QTreeWidgetItem*> const selected = m_data->tree->selectedItems();
    return selected.isEmpty() ? -1 : m_data->tree->indexOfTopLevelItem(selected.first());
}

void usbDriveSelectDialog_t::updateDrives()
{
    int const row = selectedRow();
    QString const selected = row < 0 ? QString() : m_data->drives.at(row).mountPoint;
    m_data->tree->clear();
    m_data->drives = m_data->manager ? m_data->manager->drives() : QList<usbDrive_t>();
    for (int i = 0; i < m_data->drives.size(); ++i)
    {
        QTreeWidgetItem* const item = new QTreeWidgetItem(m_data->tree);
        item->setText(0, m_data->drives.at(i).name);
        // Where there is only one there is nothing to choose.
        if (m_data->drives.at(i).mountPoint == selected || m_data->drives.size() == 1)
            m_data->tree->setCurrentItem(item);
    }
    m_data->emptyLabel->setVisible(m_data->drives.isEmpty());
    checkSelection();
}

void usbDriveSelectDialog_t::checkSelection()
{
    m_data->selectButton->setEnabled(selectedRow() >= 0);
}

void usbDriveSelectDialog_t::selectDrive()
{
    int const row = selectedRow();
    if (row < 0)
        return;
    usbDrive_t const drive = m_data->drives.at(row);
    // Closed before it tells, so that what is shown next is shown on top.
    accept();
    emit driveSelected(drive);
}

} // namespace brel_common_qt_gui
