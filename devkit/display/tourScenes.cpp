#include "display/tourScenes.h"

#include "brel_common_qt/melvoxFirmware.h"
#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/usbDriveManager.h"
#include "display/dialogHost.h"
#include "display/screen.h"
#include "display/unit.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QDirIterator>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QTreeWidget>

namespace melvox_display
{

using brel_common_qt::usbDriveManager_t;

namespace
{

QString neededFile(scene_t::need_t need)
{
    switch (need)
    {
    case scene_t::PROFILE:
        return "profile*.melvox";
    case scene_t::WEB_UI:
        return "*." + brel_common_qt::MelvoxWebUiPackageFileSuffix;
    case scene_t::FIRMWARE:
    case scene_t::LAST:
        return "*." + brel_common_qt::SrecFileSuffix;
    case scene_t::NOTHING:
    case scene_t::DRIVE:
        break;
    }
    return QString();
}

} // namespace

QList<scene_t> const& tourScenes()
{
    // clang-format off
    static QList<scene_t> const scenes = {
        {"customSat", scene_t::NOTHING, {
            "type idLineEdit 600", "type freqLineEdit 1545.5000", "press Define Satellite", "read idLabel 600",
            "shoot defined", "press Clear Satellite", "press Close"}},
        {"antennaIdentification", scene_t::NOTHING, {
            "offers antRemoteNameCombo MVXGA400         NONE", "row antennaTree 0", "press Configure", "shoot antennaConfigDialog", "press Cancel"}},
        {"outputMessages", scene_t::NOTHING, {
            "pick portsCombo 1", "find messagesTreeWidget NMEAGGA", "shoot message",
            "press General Settings", "shoot generalSettings", "press Messages"}},
        {"portConfiguration", scene_t::NOTHING, {
            "row physicalTreeWidget 1", "press Configure Port", "shoot physicalPortConfigDialog", "press Cancel",
            "press Virtual", "row virtualTreeWidget 0", "shoot virtualPorts",
            "press Configure Port", "shoot virtualPortConfigDialog", "press Cancel", "press Physical"}},
        {"webInterface", scene_t::WEB_UI, {
            "press Select Package", "row driveTreeWidget 0", "shoot usbDriveSelectDialog", "press Select",
            "row treeWidget 0", "shoot usbWebUiSelectDialog", "press Cancel"}},
        {"firmwareUpdate", scene_t::FIRMWARE, {
            "press Select Package", "row driveTreeWidget 0", "press Select",
            "row treeWidget 0", "shoot usbFirmwareSelectDialog", "press Select Package",
            "row packageTreeWidget 0", "shoot package"}},
        {"settingsProfiles", scene_t::NOTHING, {
            "press Query", "row profileList 0", "shoot profiles"}},
        {"dumpProfile", scene_t::DRIVE, {
            "row driveTreeWidget 0", "press Select", "read statusLabel Dump complete", "shoot done", "press Close"}},
        {"compareProfile", scene_t::PROFILE, {
            "otherSettings", "press Choose Profile", "row driveTreeWidget 0", "press Select", "row treeWidget 0",
            "press Compare Profile", "read statusLabel 3 settings would change.", "shoot differences",
            "press Load This Profile", "read statusLabel Load Complete", "press Close"}},
        {"loadProfile", scene_t::PROFILE, {
            "row driveTreeWidget 0", "press Select", "row treeWidget 0", "shoot usbProfileListDialog",
            "press Load Profile", "read statusLabel Load Complete", "shoot done", "press Close"}},
        {"receiverInformation", scene_t::NOTHING, {
            "oldFirmware", "read currentVersionLabel 1.12.7", "shoot melvoxVersionWarnDialog", "press OK"}},
        {"firmwareUpdate", scene_t::LAST, {
            "press Start Update", "reach progressBar 8300", "shoot progress"}},
    };
    // clang-format on
    return scenes;
}

bool isMet(scene_t::need_t need)
{
    usbDriveManager_t const* manager = usbDriveManager_t::m_instance;
    if (need == scene_t::NOTHING)
        return true;
    if (!manager || manager->drives().isEmpty())
        return false;
    QString const file = neededFile(need);
    // The scenes take the first drive.
    return file.isEmpty() ||
           QDirIterator(manager->drives().constFirst().mountPoint, {file}, QDir::Files, QDirIterator::Subdirectories)
               .hasNext();
}

QWidget* tourHands_t::top() const
{
    if (QDialog* card = m_screen.dialogs()->currentCard())
        return card;
    if (QDialog* dialog = m_screen.dialogs()->currentDialog())
        return dialog;
    return m_screen.page(m_screen.currentPage());
}

template <typename widget_t> widget_t* tourHands_t::find(QString const& name) const
{
    widget_t* widget = top() ? top()->findChild<widget_t*>(name) : nullptr;
    return widget && widget->isVisible() && widget->isEnabled() ? widget : nullptr;
}

bool tourHands_t::select(QString const& tree, int row) const
{
    QTreeWidget* widget = find<QTreeWidget>(tree);
    if (!widget || row < 0 || row >= widget->topLevelItemCount())
        return false;
    widget->setCurrentItem(widget->topLevelItem(row));
    return true;
}

bool tourHands_t::press(QString const& text) const
{
    for (QAbstractButton* button : top()->findChildren<QAbstractButton*>())
    {
        if (QString(button->text()).remove('&') == text && button->isVisible() && button->isEnabled())
        {
            button->click();
            return true;
        }
    }
    return false;
}

bool tourHands_t::take(QString const& step) const
{
    QString const verb = step.section(' ', 0, 0);
    QString const name = step.section(' ', 1, 1);
    QString const value = step.section(' ', 2);
    if (verb == "press")
        return press(step.section(' ', 1));
    if (verb == "otherSettings")
        return sendOtherSettings();
    if (verb == "row")
        return select(name, value.toInt());
    if (verb == "find")
    {
        QTreeWidget* tree = find<QTreeWidget>(name);
        QList<QTreeWidgetItem*> const items =
            tree ? tree->findItems(value, Qt::MatchExactly) : QList<QTreeWidgetItem*>();
        return !items.isEmpty() && select(name, tree->indexOfTopLevelItem(items.first()));
    }
    if (verb == "pick")
    {
        QComboBox* combo = find<QComboBox>(name);
        if (combo)
            combo->setCurrentIndex(value.toInt());
        return combo != nullptr;
    }
    if (verb == "offers")
    {
        QComboBox const* combo = find<QComboBox>(name);
        return combo && combo->findText(value) >= 0;
    }
    if (verb == "type")
    {
        QLineEdit* edit = find<QLineEdit>(name);
        if (edit)
            edit->setText(value);
        return edit != nullptr;
    }
    if (verb == "read")
    {
        QLabel const* label = find<QLabel>(name);
        return label && label->text() == value;
    }
    if (verb == "reach")
    {
        QProgressBar const* bar = find<QProgressBar>(name);
        return bar && bar->value() >= value.toInt();
    }
    if (verb != "oldFirmware")
        return false;
    emit m_unit.device()->firmwareVersionUpdated("NAV", "1.12.7");
    return true;
}

bool tourHands_t::sendOtherSettings() const
{
    m_unit.device()->setElevationMask(12.5);
    m_unit.device()->setPdopLimit(6.5);
    m_unit.device()->setBaseName("NORTH FIELD");
    return true;
}

} // namespace melvox_display
