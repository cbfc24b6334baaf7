#include "melvox_ui/melvoxUiUsbProfileListDialog.h"

#include "support/folder.h"
#include "support/looks.h"
#include "support/pageTest.h"

#include <QGroupBox>
#include <QSignalSpy>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::folder_t;
using melvox_test::waitFor;

class tst_melvoxUiUsbProfileListDialog : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    static QTreeWidget* tree(QWidget* dialog) { return find<QTreeWidget>(dialog, "treeWidget"); }
    static bool isScanning(QWidget* dialog) { return melvox_test::button(dialog, "Stop Scan")->isEnabled(); }
    static bool scan(melvoxUiUsbProfileListDialog_t& dialog, QString const& mountPoint)
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
    void enablesSelectOnlyForASelectionAfterTheScan();
    void ignoresASecondScanWhileOneRuns();
    void clearsTheListForANewScan();
    void handsThePathOfTheChoiceOnAndCloses();
    void selectsNothingWithoutASelection();
    void cancelClosesAndStopsTheScan();
    void stopEndsTheScan();
};

QStringList tst_melvoxUiUsbProfileListDialog::names(QWidget* dialog)
{
    QStringList names;
    for (int i = 0; i < tree(dialog)->topLevelItemCount(); ++i)
        names << tree(dialog)->topLevelItem(i)->text(0);
    return names;
}

void tst_melvoxUiUsbProfileListDialog::hasItsTextsAndColumns()
{
    melvoxUiUsbProfileListDialog_t dialog(0);
    QCOMPARE(find<QGroupBox>(&dialog, "selectGroup")->title(), QString("Select MELVOX Profile File"));
    QCOMPARE(melvox_test::headerTexts(tree(&dialog)), QStringList("Filename"));
    QVERIFY(!tree(&dialog)->rootIsDecorated());
    QVERIFY(tree(&dialog)->isSortingEnabled());
}

void tst_melvoxUiUsbProfileListDialog::offersItsButtonsInOrder()
{
    melvoxUiUsbProfileListDialog_t dialog(0);
    QCOMPARE(melvox_test::actionTexts(&dialog, "buttonBox"), QStringList() << "Stop Scan"
                                                                           << "Load Profile");
}

void tst_melvoxUiUsbProfileListDialog::startsEmptyWithNothingToPress()
{
    melvoxUiUsbProfileListDialog_t dialog(0);
    QVERIFY(names(&dialog).isEmpty());
    QVERIFY(!melvox_test::button(&dialog, "Stop Scan")->isEnabled());
    QVERIFY(!melvox_test::button(&dialog, "Load Profile")->isEnabled());
}

void tst_melvoxUiUsbProfileListDialog::listsFilesByTheirNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("listed");
    QTest::newRow("plain") << "profile_a.melvox" << true;
    QTest::newRow("nothing but the word") << "profile.melvox" << true;
    QTest::newRow("other case") << "Profile_A.MELVOX" << true;
    QTest::newRow("capitals") << "PROFILE2.MelVox" << true;
    QTest::newRow("another start") << "myprofile.melvox" << false;
    QTest::newRow("another suffix") << "profile_a.dravel" << false;
    QTest::newRow("the last of several dots counts") << "profile.1.2.melvox" << true;
    QTest::newRow("in front of another suffix") << "profile.melvox.bak" << false;
    QTest::newRow("a longer suffix") << "profile.melvoxx" << false;
    QTest::newRow("a start cut short") << "profil.melvox" << false;
}

void tst_melvoxUiUsbProfileListDialog::listsFilesByTheirNames()
{
    QFETCH(QString, name);
    QFETCH(bool, listed);
    folder_t drive;
    drive.write(name, "x");
    melvoxUiUsbProfileListDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(names(&dialog), listed ? QStringList(name) : QStringList());
}

void tst_melvoxUiUsbProfileListDialog::listsNoDirectories()
{
    folder_t drive;
    drive.makeDir("profile_a.melvox");
    melvoxUiUsbProfileListDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QVERIFY(names(&dialog).isEmpty());
}

void tst_melvoxUiUsbProfileListDialog::findsFilesInFolders()
{
    folder_t drive;
    drive.write("sub/profile_b.melvox");
    drive.write("profile_a.melvox");
    melvoxUiUsbProfileListDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(names(&dialog), QStringList() << "profile_a.melvox"
                                           << "profile_b.melvox");
}

void tst_melvoxUiUsbProfileListDialog::enablesSelectOnlyForASelectionAfterTheScan()
{
    folder_t drive;
    drive.write("profile_a.melvox");
    melvoxUiUsbProfileListDialog_t dialog(0);
    dialog.scan(drive.path(""));
    QVERIFY(isScanning(&dialog));
    QTreeWidgetItem* const item = new QTreeWidgetItem(tree(&dialog));
    tree(&dialog)->setCurrentItem(item);
    QVERIFY(!melvox_test::button(&dialog, "Load Profile")->isEnabled());
    delete item;
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QVERIFY(!melvox_test::button(&dialog, "Load Profile")->isEnabled());
    select(&dialog, 0);
    QVERIFY(melvox_test::button(&dialog, "Load Profile")->isEnabled());
}

void tst_melvoxUiUsbProfileListDialog::ignoresASecondScanWhileOneRuns()
{
    folder_t drive;
    drive.write("one/profile_a.melvox");
    drive.write("two/profile_b.melvox");
    melvoxUiUsbProfileListDialog_t dialog(0);
    dialog.scan(drive.path("one"));
    dialog.scan(drive.path("two"));
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QCOMPARE(names(&dialog), QStringList("profile_a.melvox"));
}

void tst_melvoxUiUsbProfileListDialog::clearsTheListForANewScan()
{
    folder_t drive;
    drive.write("one/profile_a.melvox");
    drive.write("two/profile_b.melvox");
    melvoxUiUsbProfileListDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("one")));
    dialog.scan(drive.path("two"));
    QVERIFY(names(&dialog).isEmpty());
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QCOMPARE(names(&dialog), QStringList("profile_b.melvox"));
}

void tst_melvoxUiUsbProfileListDialog::handsThePathOfTheChoiceOnAndCloses()
{
    folder_t drive;
    drive.write("profile_a.melvox");
    drive.write("sub/profile_b.melvox");
    melvoxUiUsbProfileListDialog_t dialog(0);
    QSignalSpy selected(&dialog, SIGNAL(fileSelected(QString)));
    QSignalSpy accepted(&dialog, SIGNAL(accepted()));
    dialog.show();
    QVERIFY(scan(dialog, drive.path("")));
    select(&dialog, 1);
    tap(&dialog, "Load Profile");
    QCOMPARE(int(selected.count()), 1);
    QCOMPARE(selected.at(0).at(0).toString(), drive.path("sub/profile_b.melvox"));
    QCOMPARE(int(accepted.count()), 1);
    QVERIFY(!dialog.isVisible());
}

void tst_melvoxUiUsbProfileListDialog::selectsNothingWithoutASelection()
{
    melvoxUiUsbProfileListDialog_t dialog(0);
    QSignalSpy selected(&dialog, SIGNAL(fileSelected(QString)));
    dialog.show();
    dialog.selectFile();
    QCOMPARE(int(selected.count()), 0);
    QVERIFY(dialog.isVisible());
}

void tst_melvoxUiUsbProfileListDialog::cancelClosesAndStopsTheScan()
{
    folder_t drive;
    for (int i = 0; i < 2000; ++i)
        drive.makeDir(QString("%1").arg(i));
    drive.write("1999/a/b/c/profile_a.melvox");
    melvoxUiUsbProfileListDialog_t dialog(0);
    dialog.show();
    dialog.scan(drive.path(""));
    tap(&dialog, "Cancel");
    QVERIFY(!dialog.isVisible());
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QVERIFY(names(&dialog).isEmpty());
}

void tst_melvoxUiUsbProfileListDialog::stopEndsTheScan()
{
    folder_t drive;
    for (int i = 0; i < 2000; ++i)
        drive.makeDir(QString("%1").arg(i));
    drive.write("1999/a/b/c/profile_a.melvox");
    melvoxUiUsbProfileListDialog_t dialog(0);
    dialog.scan(drive.path(""));
    tap(&dialog, "Stop Scan");
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QVERIFY(names(&dialog).isEmpty());
}

QTEST_MAIN(tst_melvoxUiUsbProfileListDialog)
#include "tst_melvoxUiUsbProfileListDialog.moc"
