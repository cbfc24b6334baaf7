#include "melvox_ui/melvoxUiUsbWebUiSelectDialog.h"

#include "support/folder.h"
#include "support/looks.h"
#include "support/pageTest.h"
#include "support/unprivileged.h"

#include <QGroupBox>
#include <QSignalSpy>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::folder_t;
using melvox_test::waitFor;

class tst_melvoxUiUsbWebUiSelectDialog : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    static QTreeWidget* tree(QWidget* dialog) { return find<QTreeWidget>(dialog, "treeWidget"); }
    static bool isScanning(QWidget* dialog) { return melvox_test::button(dialog, "Stop Scan")->isEnabled(); }
    static bool scan(melvoxUiUsbWebUiSelectDialog_t& dialog, QString const& mountPoint)
    {
        dialog.scan(mountPoint);
        return waitFor([&] { return !isScanning(&dialog); });
    }
    static QStringList names(QWidget* dialog);
    static void select(QWidget* dialog, int row) { tree(dialog)->setCurrentItem(tree(dialog)->topLevelItem(row)); }

private slots:
    void hasItsTextsAndColumns();
    void offersItsButtonsInOrder();
    void startsEmptyWithNothingToPress();
    void listsFilesByTheirNames_data();
    void listsFilesByTheirNames();
    void listsNoDirectories();
    void findsFilesInFolders();
    void looksIntoTheUpdatesFolderOfADriveThatCannotBeListed();
    void listsWhatLiesInTheUpdatesFolderOnce();
    void enablesSelectOnlyForASelectionAfterTheScan();
    void ignoresASecondScanWhileOneRuns();
    void clearsTheListForANewScan();
    void handsThePathOfTheChoiceOnAndCloses();
    void selectsNothingWithoutASelection();
    void cancelClosesAndStopsTheScan();
    void stopEndsTheScan();
};

QStringList tst_melvoxUiUsbWebUiSelectDialog::names(QWidget* dialog)
{
    QStringList names;
    for (int i = 0; i < tree(dialog)->topLevelItemCount(); ++i)
        names << tree(dialog)->topLevelItem(i)->text(0);
    return names;
}

void tst_melvoxUiUsbWebUiSelectDialog::hasItsTextsAndColumns()
{
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    QCOMPARE(find<QGroupBox>(&dialog, "selectGroup")->title(), QString("Select Web Interface Package"));
    QCOMPARE(melvox_test::headerTexts(tree(&dialog)), QStringList("File"));
    QVERIFY(!tree(&dialog)->rootIsDecorated());
    QVERIFY(tree(&dialog)->isSortingEnabled());
}

void tst_melvoxUiUsbWebUiSelectDialog::offersItsButtonsInOrder()
{
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    QCOMPARE(melvox_test::actionTexts(&dialog, "buttonBox"), QStringList() << "Stop Scan"
                                                                           << "Select Package");
}

void tst_melvoxUiUsbWebUiSelectDialog::startsEmptyWithNothingToPress()
{
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    QVERIFY(names(&dialog).isEmpty());
    QVERIFY(!melvox_test::button(&dialog, "Stop Scan")->isEnabled());
    QVERIFY(!melvox_test::button(&dialog, "Select Package")->isEnabled());
}

void tst_melvoxUiUsbWebUiSelectDialog::listsFilesByTheirNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("listed");
    QTest::newRow("plain") << "a.webui" << true;
    QTest::newRow("other case") << "A.WebUI" << true;
    QTest::newRow("any name") << "melvox 1.2.webui" << true;
    QTest::newRow("another suffix") << "a.srec" << false;
    QTest::newRow("in front of another suffix") << "a.webui.zip" << false;
    QTest::newRow("no suffix") << "webui" << false;
}

void tst_melvoxUiUsbWebUiSelectDialog::listsFilesByTheirNames()
{
    QFETCH(QString, name);
    QFETCH(bool, listed);
    folder_t drive;
    drive.write(name, "x");
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(names(&dialog), listed ? QStringList(name) : QStringList());
}

void tst_melvoxUiUsbWebUiSelectDialog::listsNoDirectories()
{
    folder_t drive;
    drive.makeDir("a.webui");
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QVERIFY(names(&dialog).isEmpty());
}

void tst_melvoxUiUsbWebUiSelectDialog::findsFilesInFolders()
{
    folder_t drive;
    drive.write("sub/b.webui");
    drive.write("a.webui");
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(names(&dialog), QStringList() << "a.webui"
                                           << "b.webui");
}

void tst_melvoxUiUsbWebUiSelectDialog::looksIntoTheUpdatesFolderOfADriveThatCannotBeListed()
{
    folder_t drive;
    drive.write("updates/a.webui", "x");
    QVERIFY(QFile::setPermissions(drive.path(), QFile::Permissions(0x1111)));
    melvox_test::unprivileged_t const user;
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path()));
    QCOMPARE(names(&dialog), QStringList("a.webui"));
}

void tst_melvoxUiUsbWebUiSelectDialog::listsWhatLiesInTheUpdatesFolderOnce()
{
    folder_t drive;
    drive.write("updates/a.webui");
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(names(&dialog), QStringList("a.webui"));
    QVERIFY(scan(dialog, drive.path()));
    QCOMPARE(names(&dialog), QStringList("a.webui"));
}

void tst_melvoxUiUsbWebUiSelectDialog::enablesSelectOnlyForASelectionAfterTheScan()
{
    folder_t drive;
    drive.write("a.webui");
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    dialog.scan(drive.path(""));
    QVERIFY(isScanning(&dialog));
    QTreeWidgetItem* const item = new QTreeWidgetItem(tree(&dialog));
    tree(&dialog)->setCurrentItem(item);
    QVERIFY(!melvox_test::button(&dialog, "Select Package")->isEnabled());
    delete item;
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QVERIFY(!melvox_test::button(&dialog, "Select Package")->isEnabled());
    select(&dialog, 0);
    QVERIFY(melvox_test::button(&dialog, "Select Package")->isEnabled());
}

void tst_melvoxUiUsbWebUiSelectDialog::ignoresASecondScanWhileOneRuns()
{
    folder_t drive;
    drive.write("one/a.webui");
    drive.write("two/b.webui");
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    dialog.scan(drive.path("one"));
    dialog.scan(drive.path("two"));
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QCOMPARE(names(&dialog), QStringList("a.webui"));
}

void tst_melvoxUiUsbWebUiSelectDialog::clearsTheListForANewScan()
{
    folder_t drive;
    drive.write("one/a.webui");
    drive.write("two/b.webui");
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("one")));
    dialog.scan(drive.path("two"));
    QVERIFY(names(&dialog).isEmpty());
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QCOMPARE(names(&dialog), QStringList("b.webui"));
}

void tst_melvoxUiUsbWebUiSelectDialog::handsThePathOfTheChoiceOnAndCloses()
{
    folder_t drive;
    drive.write("a.webui");
    drive.write("sub/b.webui");
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    QSignalSpy selected(&dialog, SIGNAL(packageSelected(QString)));
    QSignalSpy accepted(&dialog, SIGNAL(accepted()));
    dialog.show();
    QVERIFY(scan(dialog, drive.path("")));
    select(&dialog, 1);
    tap(&dialog, "Select Package");
    QCOMPARE(int(selected.count()), 1);
    QCOMPARE(selected.at(0).at(0).toString(), drive.path("sub/b.webui"));
    QCOMPARE(int(accepted.count()), 1);
    QVERIFY(!dialog.isVisible());
}

void tst_melvoxUiUsbWebUiSelectDialog::selectsNothingWithoutASelection()
{
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    QSignalSpy selected(&dialog, SIGNAL(packageSelected(QString)));
    dialog.show();
    dialog.selectPackage();
    QCOMPARE(int(selected.count()), 0);
    QVERIFY(dialog.isVisible());
}

void tst_melvoxUiUsbWebUiSelectDialog::cancelClosesAndStopsTheScan()
{
    folder_t drive;
    for (int i = 0; i < 2000; ++i)
        drive.makeDir(QString("%1").arg(i));
    drive.write("1999/a/b/c/a.webui");
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    dialog.show();
    dialog.scan(drive.path(""));
    tap(&dialog, "Cancel");
    QVERIFY(!dialog.isVisible());
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QVERIFY(names(&dialog).isEmpty());
}

void tst_melvoxUiUsbWebUiSelectDialog::stopEndsTheScan()
{
    folder_t drive;
    for (int i = 0; i < 2000; ++i)
        drive.makeDir(QString("%1").arg(i));
    drive.write("1999/a/b/c/a.webui");
    melvoxUiUsbWebUiSelectDialog_t dialog(0);
    dialog.scan(drive.path(""));
    tap(&dialog, "Stop Scan");
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QVERIFY(names(&dialog).isEmpty());
}

QTEST_MAIN(tst_melvoxUiUsbWebUiSelectDialog)
#include "tst_melvoxUiUsbWebUiSelectDialog.moc"
