#include "melvox_ui/melvoxUiUsbFirmwareSelectDialog.h"

#include "melvox_ui/melvoxUiFirmwarePackage.h"

#include "support/firmware.h"
#include "support/folder.h"
#include "support/looks.h"
#include "support/pageTest.h"
#include "support/unprivileged.h"

#include <QGroupBox>
#include <QSignalSpy>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::folder_t;
using melvox_test::package_t;
using melvox_test::rowTexts;
using melvox_test::waitFor;

class tst_melvoxUiUsbFirmwareSelectDialog : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    static QTreeWidget* tree(QWidget* dialog) { return find<QTreeWidget>(dialog, "treeWidget"); }
    static bool isScanning(QWidget* dialog) { return melvox_test::button(dialog, "Stop Scan")->isEnabled(); }
    static bool scan(melvoxUiUsbFirmwareSelectDialog_t& dialog, QString const& mountPoint, int product = 8)
    {
        dialog.scan(mountPoint, product);
        return waitFor([&] { return !isScanning(&dialog); });
    }
    static QStringList names(QWidget* dialog);
    static void select(QWidget* dialog, int row) { tree(dialog)->setCurrentItem(tree(dialog)->topLevelItem(row)); }
    static QByteArray combined() { return package_t().add(2, "1.14.40").add(0, "2.1").bytes(); }

private slots:
    void startsEmptyWithNothingToPress();
    void hasItsTextsAndColumns();
    void offersItsButtonsInOrder();
    void makesRoomForWhatItLists();
    void listsFilesOfTwoComponentsOrMore();
    void listsAFileWhateverTheCaseOfItsSuffix_data();
    void listsAFileWhateverTheCaseOfItsSuffix();
    void listsADirectoryOfFirmwareFiles();
    void listsNoDirectoryWithoutFirmware();
    void looksIntoTheUpdatesFolderOfADrive();
    void looksIntoTheUpdatesFolderOfADriveThatCannotBeListed();
    void listsWhatLiesInTheUpdatesFolderOnce();
    void listsNoDamagedFile();
    void fillsOneColumnPerComponentWithoutAGap();
    void showsNoComponentBeyondTheSeventh();
    void letsTheLaterRecordOfAComponentWin();
    void endsEmptyOnADriveWithoutFirmware();
    void countsWhatItFound();
    void enablesSelectOnlyForASelectionAfterTheScan();
    void stopEndsTheScanAndLetsSelect();
    void ignoresASecondScanWhileOneRuns();
    void clearsTheListForANewScan();
    void forgetsTheChosenPackageForANewScan();
    void handsOnACopyOfTheChosenPackage();
    void passesThePreferredProductOn();
    void givesThePackageOutOnce();
    void replacesAPackageThatNobodyTook();
    void selectsNothingWithoutASelection();
    void tellsTheChoiceBeforeItCloses();
    void cancelClosesAndStopsTheScan();
    void sortsByNameAtFirst();
    void canBeDestroyedDuringAScan();
};

QStringList tst_melvoxUiUsbFirmwareSelectDialog::names(QWidget* dialog)
{
    QStringList names;
    for (int i = 0; i < tree(dialog)->topLevelItemCount(); ++i)
        names << tree(dialog)->topLevelItem(i)->text(0);
    return names;
}

void tst_melvoxUiUsbFirmwareSelectDialog::startsEmptyWithNothingToPress()
{
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QCOMPARE(labelText(&dialog, "packageCountLabel"), QString("0 firmware package(s) found"));
    QVERIFY(!melvox_test::button(&dialog, "Stop Scan")->isEnabled());
    QVERIFY(!melvox_test::button(&dialog, "Select Package")->isEnabled());
    QVERIFY(melvox_test::button(&dialog, "Cancel")->isEnabled());
    QVERIFY(!dialog.takePackage());
}

void tst_melvoxUiUsbFirmwareSelectDialog::hasItsTextsAndColumns()
{
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QCOMPARE(find<QGroupBox>(&dialog, "selectGroup")->title(), QString("Select Firmware Package"));
    QCOMPARE(melvox_test::headerTexts(tree(&dialog)).join(" "),
             QString("Path BOOT1 BOOT2 NAV PIOBOOT1 PIOBOOT2 PIOAPP"));
    QVERIFY(!tree(&dialog)->rootIsDecorated());
    QVERIFY(tree(&dialog)->isSortingEnabled());
}

void tst_melvoxUiUsbFirmwareSelectDialog::offersItsButtonsInOrder()
{
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QCOMPARE(melvox_test::actionTexts(&dialog, "buttonBox"), QStringList() << "Stop Scan"
                                                                           << "Select Package");
}

void tst_melvoxUiUsbFirmwareSelectDialog::makesRoomForWhatItLists()
{
    folder_t drive;
    drive.write("a-release-that-was-given-a-very-long-name.srec", combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    dialog.show();
    QVERIFY(scan(dialog, drive.path("")));
    QVERIFY(melvox_test::showsColumn(tree(&dialog), 0));
}

void tst_melvoxUiUsbFirmwareSelectDialog::listsFilesOfTwoComponentsOrMore()
{
    folder_t drive;
    // Each in a folder of its own with nothing else, so that only the file itself counts.
    drive.write("two.srec", combined());
    drive.write("three.srec", package_t().add(2, "a").add(0, "b").add(1, "c").bytes());
    drive.write("other.txt", combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(names(&dialog), QStringList() << "three.srec"
                                           << "two.srec");

    folder_t lone;
    lone.write("single.srec", package_t().add(2, "1.14.40").bytes());
    QVERIFY(scan(dialog, lone.path("")));
    QVERIFY(!names(&dialog).contains("single.srec"));
}

void tst_melvoxUiUsbFirmwareSelectDialog::listsAFileWhateverTheCaseOfItsSuffix_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("listed");
    QTest::newRow("lower") << "a.srec" << true;
    QTest::newRow("upper") << "a.SREC" << true;
    QTest::newRow("mixed") << "a.sReC" << true;
    QTest::newRow("the last of several dots counts") << "nav.v1.14.srec" << true;
    QTest::newRow("a suffix that only starts like it") << "a.srecs" << false;
    QTest::newRow("in front of another") << "a.srec.bak" << false;
    QTest::newRow("no suffix") << "srec" << false;
}

void tst_melvoxUiUsbFirmwareSelectDialog::listsAFileWhateverTheCaseOfItsSuffix()
{
    QFETCH(QString, name);
    QFETCH(bool, listed);
    folder_t drive;
    drive.write(name, combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(names(&dialog).contains(name), listed);
}

void tst_melvoxUiUsbFirmwareSelectDialog::listsADirectoryOfFirmwareFiles()
{
    folder_t drive;
    drive.write("release/nav.srec", package_t().add(2, "1.15").bytes());
    drive.write("release/boot.srec", package_t().add(0, "2.2").bytes());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(names(&dialog), QStringList("release"));
    QCOMPARE(tree(&dialog)->topLevelItem(0)->text(1), QString("2.2"));
    QCOMPARE(tree(&dialog)->topLevelItem(0)->text(3), QString("1.15"));
    select(&dialog, 0);
    tap(&dialog, "Select Package");
    QScopedPointer<melvoxUiFirmwarePackage_t> const package(dialog.takePackage());
    QCOMPARE(package->files, QStringList() << drive.path("release/boot.srec") << drive.path("release/nav.srec"));
    QVERIFY(package->fileInfo().isDir());
}

void tst_melvoxUiUsbFirmwareSelectDialog::listsNoDirectoryWithoutFirmware()
{
    folder_t drive;
    drive.write("photos/a.jpg", "x");
    drive.makeDir("empty.srec");
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QVERIFY(names(&dialog).isEmpty());
}

void tst_melvoxUiUsbFirmwareSelectDialog::looksIntoTheUpdatesFolderOfADrive()
{
    folder_t drive;
    drive.write("updates/a.srec", combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(names(&dialog), QStringList("a.srec"));
}

void tst_melvoxUiUsbFirmwareSelectDialog::looksIntoTheUpdatesFolderOfADriveThatCannotBeListed()
{
    folder_t drive;
    drive.write("updates/a.srec", combined());
    QVERIFY(QFile::setPermissions(drive.path(), QFile::Permissions(0x1111)));
    melvox_test::unprivileged_t const user;
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path()));
    QCOMPARE(names(&dialog), QStringList("a.srec"));
}

void tst_melvoxUiUsbFirmwareSelectDialog::listsWhatLiesInTheUpdatesFolderOnce()
{
    folder_t drive;
    drive.write("updates/lone.srec", package_t().add(2, "1").bytes());
    drive.write("updates/a.srec", combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    // Mount points may end with a separator or not.
    QVERIFY(scan(dialog, drive.path()));
    QCOMPARE(names(&dialog), QStringList() << "a.srec"
                                           << "updates");
    QVERIFY(scan(dialog, drive.path() + "/"));
    QCOMPARE(names(&dialog), QStringList() << "a.srec"
                                           << "updates");
}

void tst_melvoxUiUsbFirmwareSelectDialog::listsNoDamagedFile()
{
    folder_t drive;
    drive.write("bad.srec", combined().replace("7878", "7879"));
    drive.write("cut.srec", combined().left(100));
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QVERIFY(names(&dialog).isEmpty());
}

void tst_melvoxUiUsbFirmwareSelectDialog::fillsOneColumnPerComponentWithoutAGap()
{
    folder_t drive;
    package_t package;
    for (int component = 0; component <= 6; ++component)
        package.add(component, qPrintable(QString("v%1").arg(component)));
    drive.write("all.srec", package.bytes());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(rowTexts(tree(&dialog), 0).join(" "), QString("all.srec v0 v1 v2 v3 v4 v5 v6"));
    QCOMPARE(melvox_test::headerTexts(tree(&dialog)).join("|"),
             QString("Path|BOOT1|BOOT2|NAV|PIOBOOT1|PIOBOOT2|PIOAPP|"));
}

void tst_melvoxUiUsbFirmwareSelectDialog::showsNoComponentBeyondTheSeventh()
{
    folder_t drive;
    drive.write("a.srec", package_t().add(7, "seven").add(16, "all").add(2, "1.15").bytes());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(rowTexts(tree(&dialog), 0).join("|"), QString("a.srec|||1.15|||"));
    QCOMPARE(tree(&dialog)->topLevelItem(0)->columnCount(), 4);
}

void tst_melvoxUiUsbFirmwareSelectDialog::letsTheLaterRecordOfAComponentWin()
{
    folder_t drive;
    drive.write("a.srec", package_t().add(2, "first").add(2, "second").bytes());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(tree(&dialog)->topLevelItem(0)->text(3), QString("second"));
}

void tst_melvoxUiUsbFirmwareSelectDialog::endsEmptyOnADriveWithoutFirmware()
{
    folder_t drive;
    drive.write("a.txt");
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(labelText(&dialog, "packageCountLabel"), QString("0 firmware package(s) found"));
    QVERIFY(!melvox_test::button(&dialog, "Select Package")->isEnabled());
}

void tst_melvoxUiUsbFirmwareSelectDialog::countsWhatItFound()
{
    folder_t drive;
    drive.write("a.srec", combined());
    drive.write("sub/b.srec", combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(labelText(&dialog, "packageCountLabel"), QString("2 firmware package(s) found"));
}

void tst_melvoxUiUsbFirmwareSelectDialog::enablesSelectOnlyForASelectionAfterTheScan()
{
    folder_t drive;
    drive.write("a.srec", combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    dialog.scan(drive.path(""), 8);
    QVERIFY(melvox_test::button(&dialog, "Stop Scan")->isEnabled());
    // What is selected before the scan has ended cannot be chosen yet.
    QTreeWidgetItem* const item = new QTreeWidgetItem(tree(&dialog));
    tree(&dialog)->setCurrentItem(item);
    QVERIFY(!melvox_test::button(&dialog, "Select Package")->isEnabled());
    delete item;
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QVERIFY(!melvox_test::button(&dialog, "Select Package")->isEnabled());
    select(&dialog, 0);
    QVERIFY(melvox_test::button(&dialog, "Select Package")->isEnabled());
    tree(&dialog)->clearSelection();
    QVERIFY(!melvox_test::button(&dialog, "Select Package")->isEnabled());
}

void tst_melvoxUiUsbFirmwareSelectDialog::stopEndsTheScanAndLetsSelect()
{
    folder_t drive;
    drive.write("a.srec", combined());
    for (int i = 0; i < 2000; ++i)
        drive.makeDir(QString("%1").arg(i));
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    dialog.scan(drive.path(""), 8);
    QVERIFY(waitFor([&] { return tree(&dialog)->topLevelItemCount() > 0 || !isScanning(&dialog); }));
    QVERIFY2(isScanning(&dialog), "the scan was over before it could be stopped");
    select(&dialog, 0);
    QVERIFY(!melvox_test::button(&dialog, "Select Package")->isEnabled());
    tap(&dialog, "Stop Scan");
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QVERIFY(melvox_test::button(&dialog, "Select Package")->isEnabled());
}

void tst_melvoxUiUsbFirmwareSelectDialog::ignoresASecondScanWhileOneRuns()
{
    folder_t drive;
    drive.write("one/a.srec", combined());
    drive.write("two/b.srec", combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    dialog.scan(drive.path("one"), 8);
    dialog.scan(drive.path("two"), 8);
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QCOMPARE(names(&dialog), QStringList("a.srec"));
}

void tst_melvoxUiUsbFirmwareSelectDialog::clearsTheListForANewScan()
{
    folder_t drive;
    drive.write("one/a.srec", combined());
    drive.write("two/b.srec", combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("one")));
    dialog.scan(drive.path("two"), 8);
    QCOMPARE(labelText(&dialog, "packageCountLabel"), QString("0 firmware package(s) found"));
    QVERIFY(names(&dialog).isEmpty());
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QCOMPARE(names(&dialog), QStringList("b.srec"));
}

void tst_melvoxUiUsbFirmwareSelectDialog::forgetsTheChosenPackageForANewScan()
{
    folder_t drive;
    drive.write("a.srec", combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    select(&dialog, 0);
    dialog.selectPackage();
    QVERIFY(scan(dialog, drive.path("")));
    QVERIFY(!dialog.takePackage());
}

void tst_melvoxUiUsbFirmwareSelectDialog::handsOnACopyOfTheChosenPackage()
{
    folder_t drive;
    drive.write("a.srec", combined());
    drive.write("b.srec", package_t().add(6, "7.7").add(5, "5.5").bytes());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    select(&dialog, 1);
    tap(&dialog, "Select Package");
    QScopedPointer<melvoxUiFirmwarePackage_t> const package(dialog.takePackage());
    QVERIFY(package);
    QVERIFY(scan(dialog, drive.path("gone"))); // the items are gone, the copy is not
    QCOMPARE(package->name, QString("b.srec"));
    QCOMPARE(package->files, QStringList(drive.path("b.srec")));
    QCOMPARE(package->fileInfo().fileName(), QString("b.srec"));
    QCOMPARE(int(package->records.size()), 2);
    QCOMPARE(package->records.at(0).component, MELVOX_FW_COMP_PIO_APP);
    QCOMPARE(package->records.at(1).version, QString("5.5"));
}

void tst_melvoxUiUsbFirmwareSelectDialog::passesThePreferredProductOn()
{
    folder_t drive;
    drive.write("a.srec", package_t().add(2, "for three", 3).add(0, "for nine", 9).bytes());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path(""), 9));
    select(&dialog, 0);
    dialog.selectPackage();
    QScopedPointer<melvoxUiFirmwarePackage_t> const package(dialog.takePackage());
    QCOMPARE(package->records.first().product, 9);
}

void tst_melvoxUiUsbFirmwareSelectDialog::givesThePackageOutOnce()
{
    folder_t drive;
    drive.write("a.srec", combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    select(&dialog, 0);
    dialog.selectPackage();
    delete dialog.takePackage();
    QVERIFY(!dialog.takePackage());
}

void tst_melvoxUiUsbFirmwareSelectDialog::replacesAPackageThatNobodyTook()
{
    folder_t drive;
    drive.write("a.srec", combined());
    drive.write("b.srec", combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    select(&dialog, 0);
    dialog.selectPackage();
    select(&dialog, 1);
    dialog.selectPackage();
    QScopedPointer<melvoxUiFirmwarePackage_t> const package(dialog.takePackage());
    QCOMPARE(package->name, QString("b.srec"));
}

void tst_melvoxUiUsbFirmwareSelectDialog::selectsNothingWithoutASelection()
{
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QSignalSpy selected(&dialog, SIGNAL(packageSelected()));
    dialog.show();
    dialog.selectPackage();
    QCOMPARE(int(selected.count()), 0);
    QVERIFY(dialog.isVisible());
}

void tst_melvoxUiUsbFirmwareSelectDialog::tellsTheChoiceBeforeItCloses()
{
    folder_t drive;
    drive.write("a.srec", combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QSignalSpy selected(&dialog, SIGNAL(packageSelected()));
    QSignalSpy accepted(&dialog, SIGNAL(accepted()));
    dialog.show();
    QVERIFY(scan(dialog, drive.path("")));
    select(&dialog, 0);
    tap(&dialog, "Select Package");
    QCOMPARE(int(selected.count()), 1);
    QCOMPARE(int(accepted.count()), 1);
    QVERIFY(!dialog.isVisible());
}

void tst_melvoxUiUsbFirmwareSelectDialog::cancelClosesAndStopsTheScan()
{
    folder_t drive;
    for (int i = 0; i < 2000; ++i)
        drive.makeDir(QString("%1").arg(i));
    drive.write("1999/a/b/c/a.srec", combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QSignalSpy rejected(&dialog, SIGNAL(rejected()));
    dialog.show();
    dialog.scan(drive.path(""), 8);
    tap(&dialog, "Cancel");
    QCOMPARE(int(rejected.count()), 1);
    QVERIFY(!dialog.isVisible());
    QVERIFY(waitFor([&] { return !isScanning(&dialog); }));
    QVERIFY(names(&dialog).isEmpty());
}

void tst_melvoxUiUsbFirmwareSelectDialog::sortsByNameAtFirst()
{
    folder_t drive;
    for (char const* name : {"c.srec", "a.srec", "b.srec"})
        drive.write(name, combined());
    melvoxUiUsbFirmwareSelectDialog_t dialog(0);
    QVERIFY(scan(dialog, drive.path("")));
    QCOMPARE(names(&dialog), QStringList() << "a.srec"
                                           << "b.srec"
                                           << "c.srec");
}

void tst_melvoxUiUsbFirmwareSelectDialog::canBeDestroyedDuringAScan()
{
    folder_t drive;
    for (int i = 0; i < 200; ++i)
        drive.write(QString("%1/a.srec").arg(i), combined());
    for (int i = 0; i < 5; ++i)
    {
        melvoxUiUsbFirmwareSelectDialog_t dialog(0);
        dialog.scan(drive.path(""), 8);
        if (i % 2)
            QVERIFY(waitFor([&] { return tree(&dialog)->topLevelItemCount() > 0; }));
    }
}

QTEST_MAIN(tst_melvoxUiUsbFirmwareSelectDialog)
#include "tst_melvoxUiUsbFirmwareSelectDialog.moc"
