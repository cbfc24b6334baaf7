#ifndef MELVOX_TEST_WHOLE_UNIT_H
#define MELVOX_TEST_WHOLE_UNIT_H

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "display/displayWindow.h"
#include "display/keypad.h"
#include "display/screen.h"
#include "display/uiSettings.h"
#include "display/unit.h"
#include "link/localLink.h"
#include "receiver/receiver.h"
#include "receiver/simClock.h"
#include "support/operator.h"
#include "support/test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTemporaryDir>

namespace melvox_test
{

/** A whole unit on the smallest screen, with a receiver of its own and an operator's finger. */
class wholeUnit_t
{
public:
    /** With settings in that file; without one, with none but for this run. */
    explicit wholeUnit_t(QString const& pageName, QString const& settingsFile = QString())
        : unit(melvox_display::connection_t()),
          settings(settingsFile.isEmpty() ? folder.filePath("display.conf") : settingsFile),
          window(melvox_display::allPages(), &unit, &settings, QSize(800, 480)), page(nullptr)
    {
        unit.localLink()->setLatency(1);
        unit.start();
        window.showFirstPage(pageName);
        window.show();
        window.activateWindow();
        page = window.screen()->page(pageName);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QVERIFY(waitFor([this]() { return knowsEverything(); }));
        settle();
    }

    void go(QString const& name)
    {
        QVERIFY(window.screen()->showPage(name));
        page = window.screen()->page(name);
        settle();
    }

    /** Scrolls a widget into view and touches it on the screen. */
    void tap(QWidget* widget)
    {
        for (QWidget* above = widget->parentWidget(); above; above = above->parentWidget())
        {
            if (QScrollArea* view = qobject_cast<QScrollArea*>(above))
                view->ensureWidgetVisible(widget);
        }
        settle();
        QPoint const place = widget->mapTo(&window, widget->rect().center());
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        settle();
    }

    /** Touches a button of the page, or of one of its dialogs, by its text or its name. */
    void tapIn(QWidget* root, QString const& button) { tap(melvox_test::button(root, button)); }

    void tapIn(QString const& buttonBox, QString const& button)
    {
        tapIn(find<QDialogButtonBox>(page, buttonBox), button);
    }

    /** Touches an edit, which brings the keypad, and keys of it. */
    void typeInto(QLineEdit* edit, QString const& keys)
    {
        tap(edit);
        QVERIFY2(window.screen()->keypad()->isOpen(), qPrintable(edit->objectName()));
        for (QString const& name : keys.split(' '))
        {
            QPushButton* found = nullptr;
            for (QPushButton* key : window.screen()->keypad()->findChildren<QPushButton*>("key_" + name))
                found = key->isVisible() ? key : found;
            QVERIFY2(found, qPrintable("no key " + name));
            tap(found);
        }
    }

    /** Touches the row of a tree that has this text in the column. */
    void tapRow(QTreeWidget* tree, QString const& text, int column = 0)
    {
        QList<QTreeWidgetItem*> const found = tree->findItems(text, Qt::MatchExactly, column);
        QVERIFY2(!found.isEmpty(), qPrintable("no row " + text));
        tree->scrollToItem(found.first());
        for (QWidget* above = tree->parentWidget(); above; above = above->parentWidget())
        {
            if (QScrollArea* view = qobject_cast<QScrollArea*>(above))
                view->ensureWidgetVisible(tree);
        }
        settle();
        QPoint const place = tree->viewport()->mapTo(&window, tree->visualItemRect(found.first()).center());
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        settle();
    }

    /** Whether the label of the page comes to show this. */
    bool shows(QString const& label, QString const& text)
    {
        return waitFor([&]() { return labelText(page, label) == text; });
    }

    QVariantMap record(QString const& group) { return unit.receiver()->setting(group).toMap(); }

    /** Whether the receiver has told of what the pages let one set. */
    bool knowsEverything() const
    {
        brel_common_qt::remoteMelvoxDevice_t const* const device = unit.device();
        return device->ppsConfigValid() && device->extendedNavInfoValid() && device->starfireAlmSwitchPolicyValid() &&
               device->correctionSatSelectionValid() && device->basePositionValid() && device->antennaHeightValid() &&
               device->antennaDualModeValid() && device->activePortValid() && device->usbModeValid() &&
               device->portTxRxInfo(brel_common_qt::MELVOX_PORT_ETH8) &&
               device->ethernetConfig(brel_common_qt::MELVOX_ETH_CFG_SOURCE_CABLE);
    }

    QTemporaryDir folder;
    melvox_display::unit_t unit;
    melvox_display::uiSettings_t settings;
    melvox_display::displayWindow_t window;
    QWidget* page;
};

} // namespace melvox_test

#endif
