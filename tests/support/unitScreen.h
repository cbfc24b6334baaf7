#ifndef MELVOX_TEST_UNIT_SCREEN_H
#define MELVOX_TEST_UNIT_SCREEN_H

#include "display/dialogHost.h"
#include "display/displayWindow.h"
#include "display/screen.h"
#include "support/operator.h"
#include "support/test.h"

/** What an operator does on the screen of a whole display unit. */
namespace melvox_test
{

inline QWidget* showPage(melvox_display::displayWindow_t& window, QString const& name)
{
    window.screen()->showPage(name);
    settle();
    return window.screen()->page(name);
}

/** The dialog on top, once it is one of that name. */
inline QDialog* shownDialog(melvox_display::displayWindow_t& window, char const* name)
{
    melvox_display::displayDialogHost_t* const host = window.screen()->dialogs();
    waitFor([&]() { return host->currentDialog() && host->currentDialog()->objectName() == name; });
    return host->currentDialog();
}

/** The message box on top, once there is one. */
inline QMessageBox* shownCard(melvox_display::displayWindow_t& window)
{
    melvox_display::displayDialogHost_t* const host = window.screen()->dialogs();
    waitFor([&]() { return host->currentCard() != nullptr; }, 20000);
    return qobject_cast<QMessageBox*>(host->currentCard());
}

inline void chooseDrive(melvox_display::displayWindow_t& window, QString const& name)
{
    QDialog* const choice = shownDialog(window, "usbDriveSelectDialog");
    QTreeWidget* const tree = find<QTreeWidget>(choice, "driveTreeWidget");
    QVERIFY(waitFor([&]() { return !tree->findItems(name, Qt::MatchExactly).isEmpty(); }));
    tree->setCurrentItem(tree->findItems(name, Qt::MatchExactly).first());
    tap(choice, "selectButton");
}

inline void chooseFile(melvox_display::displayWindow_t& window, char const* list, QString const& name,
                       char const* select)
{
    QDialog* const files = shownDialog(window, list);
    QCOMPARE(files->objectName(), QString(list));
    QVERIFY(waitFor([&]() { return !button(files, "Stop Scan")->isEnabled(); }));
    QTreeWidget* const tree = find<QTreeWidget>(files, "treeWidget");
    QVERIFY2(!tree->findItems(name, Qt::MatchExactly).isEmpty(), qPrintable(name + " is not listed"));
    tree->setCurrentItem(tree->findItems(name, Qt::MatchExactly).first());
    tap(files, select);
}

} // namespace melvox_test

#endif
