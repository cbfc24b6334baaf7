#include "melvoxUiSettingsProfiles_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/textHelpers.h"
#include "brel_common_qt_gui/dialogPage.h"
#include "melvox_ui/melvoxUiProfileDumper.h"
#include "melvox_ui/melvoxUiProfileLoader.h"
#include "support/asciiText.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"
#include "support/text8.h"
#include "support/utcText.h"

#include <QHeaderView>
#include <QPushButton>
#include <QTimer>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

int const QUERY_AFTER_SAVING = 500; // milliseconds

enum column_t
{
    ACTIVE_COLUMN,
    NAME_COLUMN,
    MODIFIED_COLUMN
};

} // namespace

melvoxUiSettingsProfiles_t::item_t::item_t(std::string const& name_) : name(name_), active(false), tstamp(0)
{
    setText(NAME_COLUMN, fromText8(name));
}

void melvoxUiSettingsProfiles_t::item_t::updateTstamp(unsigned int tstamp_)
{
    tstamp = tstamp_;
    setText(MODIFIED_COLUMN, utcText(tstamp));
}

void melvoxUiSettingsProfiles_t::item_t::setActive(bool active_)
{
    if (active_ != active)
        setText(ACTIVE_COLUMN, active_ ? YesString : QString());
    active = active_;
}

bool melvoxUiSettingsProfiles_t::item_t::operator<(QTreeWidgetItem const& other) const
{
    if (treeWidget() && treeWidget()->sortColumn() == MODIFIED_COLUMN)
        return tstamp < static_cast<item_t const&>(other).tstamp;
    return QTreeWidgetItem::operator<(other);
}

melvoxUiSettingsProfiles_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), dumper(nullptr), loader(nullptr), setActiveButton(nullptr), deleteButton(nullptr),
      confirmDeletePage(nullptr)
{
}

melvoxUiSettingsProfiles_t::privateData_t::~privateData_t()
{
    delete confirmDeletePage;
}

melvoxUiSettingsProfiles_t::melvoxUiSettingsProfiles_t(remoteMelvoxDevice_t* device) : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    m_data->ui.profileList->sortByColumn(NAME_COLUMN, Qt::AscendingOrder);
    setResizeMode(m_data->ui.profileList->header(), QHeaderView::ResizeToContents);
    m_data->dumper = new melvoxUiProfileDumper_t(device, this);
    m_data->loader = new melvoxUiProfileLoader_t(device, this);
    createButtons();
    connectForm();
    connectReceiver();
    checkSelection();
}

melvoxUiSettingsProfiles_t::~melvoxUiSettingsProfiles_t()
{
    delete m_data;
}

melvoxUiProfileDumper_t* melvoxUiSettingsProfiles_t::profileDumper() const
{
    return m_data->dumper;
}

melvoxUiProfileLoader_t* melvoxUiSettingsProfiles_t::profileLoader() const
{
    return m_data->loader;
}

void melvoxUiSettingsProfiles_t::createButtons()
{
    QDialogButtonBox* const box = m_data->ui.buttonBox;
    addActionButton(box, tr("Query"), this, SLOT(query()));
    m_data->setActiveButton = addActionButton(box, tr("Set Active"), this, SLOT(setActive()));
    m_data->deleteButton = addActionButton(box, tr("Delete"), this, SLOT(confirmDeleteProfile()));

    QMessageBox* const confirm = createQuestion(QMessageBox::Question, tr("Confirm Delete Melvox Profile"),
                                                tr("Are you sure you want to delete the selected profile?"), nullptr);
    connect(confirm, SIGNAL(finished(int)), SLOT(confirmDeleteProfileResult(int)));
    m_data->confirmDeletePage = new dialogPage_t(confirm);
}

void melvoxUiSettingsProfiles_t::connectForm()
{
    connect(m_data->ui.saveNewButton, SIGNAL(clicked()), SLOT(saveNew()));
    connect(m_data->ui.profileList, SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)), SLOT(setActive()));
    connect(m_data->ui.profileList, SIGNAL(currentItemChanged(QTreeWidgetItem*, QTreeWidgetItem*)),
            SLOT(checkSelection()));
}

void melvoxUiSettingsProfiles_t::connectReceiver()
{
    remoteMelvoxDevice_t* const device = m_data->device;
    m_data->ui.profileList->connect(device, SIGNAL(profilesCleared()), SLOT(clear()));
    connect(device, SIGNAL(profilesCleared()), SLOT(checkSelection())); // a list that is cleared does not tell
    connect(device, SIGNAL(profileUpdated(std::string const&, endian::u32_t)),
            SLOT(updateProfile(std::string const&, endian::u32_t)));
    connect(device, SIGNAL(activeProfileUpdated(std::string const&)), SLOT(updateActiveProfile()));
}

void melvoxUiSettingsProfiles_t::query()
{
    m_data->device->listProfiles();
    m_data->device->queryActiveProfile();
}

melvoxUiSettingsProfiles_t::item_t* melvoxUiSettingsProfiles_t::currentItem() const
{
    return static_cast<item_t*>(m_data->ui.profileList->currentItem());
}

melvoxUiSettingsProfiles_t::item_t* melvoxUiSettingsProfiles_t::findItem(std::string const& name) const
{
    for (int i = 0; i < m_data->ui.profileList->topLevelItemCount(); ++i)
    {
        item_t* const item = static_cast<item_t*>(m_data->ui.profileList->topLevelItem(i));
        if (item->name == name)
            return item;
    }
    return nullptr;
}

void melvoxUiSettingsProfiles_t::updateProfile(std::string const& name, endian::u32_t timestamp)
{
    if (item_t* const known = findItem(name))
    {
        known->updateTstamp(timestamp);
        return;
    }
    item_t* const item = new item_t(name);
    item->updateTstamp(timestamp);
    m_data->ui.profileList->addTopLevelItem(item);
    updateActiveProfile();
}

void melvoxUiSettingsProfiles_t::updateActiveProfile()
{
    std::string const active = m_data->device->activeProfileValid() ? m_data->device->activeProfile() : std::string();
    // A mark that changes may move its item when the list is sorted by it.
    QList<item_t*> items;
    for (int i = 0; i < m_data->ui.profileList->topLevelItemCount(); ++i)
        items << static_cast<item_t*>(m_data->ui.profileList->topLevelItem(i));
    for (item_t* item : items)
        item->setActive(item->name == active);
    checkSelection();
}

void melvoxUiSettingsProfiles_t::setActive()
{
    if (item_t const* const item = currentItem())
        m_data->device->useProfile(item->name);
}

void melvoxUiSettingsProfiles_t::confirmDeleteProfile()
{
    if (currentItem())
        m_data->confirmDeletePage->show();
}

void melvoxUiSettingsProfiles_t::confirmDeleteProfileResult(int result)
{
    if (result == QMessageBox::Yes)
        deleteProfile();
}

void melvoxUiSettingsProfiles_t::deleteProfile()
{
    item_t* const item = currentItem();
    if (!item)
        return;
    m_data->device->deleteProfile(item->name);
    delete item;
}

void melvoxUiSettingsProfiles_t::saveNew()
{
    m_data->device->saveAsProfile(asciiText(m_data->ui.profileNameLineEdit->text()));
    QTimer::singleShot(QUERY_AFTER_SAVING, this, SLOT(query()));
}

void melvoxUiSettingsProfiles_t::checkSelection()
{
    item_t const* const item = currentItem();
    m_data->setActiveButton->setEnabled(item && !item->active);
    m_data->deleteButton->setEnabled(item != nullptr);
}

} // namespace brel_common_qt_gui
