#include "melvox_ui/melvoxUiProfileDumper.h"

#include "brel_common_qt/timestamps.h"

#include "support/dialogs.h"
#include "support/pageTest.h"
#include "support/unprivileged.h"

#include <QGroupBox>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::chooseFile;
using melvox_test::currentDir_t;
using melvox_test::folder_t;
using melvox_test::openDialog;
using melvox_test::openFileDialog;
using melvox_test::usb_t;

class tst_melvoxUiProfileDumper : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    static QDialog* progress() { return openDialog("melvoxUiProfileDumpDialog"); }
    void answer(QString const& path, bool success, char const* description, QByteArray const& data = "settings")
    {
        receiver->report("profileDump",
                         map("path", path, "success", success, "description", description, "data", data));
    }
    QString dumpedPath() { return receiver->messages().last().value.toString(); }

private slots:
    void showsNothingBeforeItIsAsked();
    void opensASaveDialogOnAUnitWithoutUsb();
    void dumpsIntoTheChosenFile();
    void doesNothingWhenTheSaveDialogIsCancelled();
    void makesTheChosenDirectoryTheCurrentOne();
    void opensTheDriveDialogOnAUnitWithUsb();
    void namesTheFileOnADriveAfterTheTime();
    void addsNoSeparatorToTheMountPoint();
    void hasItsTexts();
    void showsTheOutcomeWhateverItIs_data();
    void showsTheOutcomeWhateverItIs();
    void ignoresReportsOnOtherPaths();
    void showsTheOutcomeOfTheNewestDumpOnly();
    void tellsOfADriveThatWasPulledOut();
    void tellsOfADriveThatIsFull();
    void tellsOfADriveThatIsWriteProtected();
    void tellsOfAPlaceThatCannotBeWritten();
    void closesItsDialogWithClose();
    void takesItsDialogsAlong();
};

void tst_melvoxUiProfileDumper::showsNothingBeforeItIsAsked()
{
    melvoxUiProfileDumper_t dumper(device, 0);
    QVERIFY(!progress());
    QVERIFY(!openFileDialog());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiProfileDumper::opensASaveDialogOnAUnitWithoutUsb()
{
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.dumpSettings();
    QFileDialog* const dialog = openFileDialog();
    QVERIFY(dialog);
    QCOMPARE(dialog->windowTitle(), QString("Save Melvox Profile"));
    QCOMPARE(dialog->nameFilters(), QStringList() << "Melvox Profile (*.dravel)"
                                                  << "All Files (*)");
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptSave);
    QCOMPARE(dialog->directory().canonicalPath(), QDir::current().canonicalPath());
    QVERIFY(dialog->isModal());
}

void tst_melvoxUiProfileDumper::dumpsIntoTheChosenFile()
{
    currentDir_t current;
    folder_t folder;
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.dumpSettings();
    chooseFile(folder.path("mine.dravel"));
    QCOMPARE(receiver->commands(), QStringList("dumpProfile " + folder.path("mine.dravel")));
    QVERIFY(progress());
    QCOMPARE(labelText(progress(), "dumpDestLabel"), folder.path("mine.dravel"));
    QCOMPARE(labelText(progress(), "statusLabel"), QString("Dumping..."));
    answer(folder.path("mine.dravel"), true, "Dump complete");
    QCOMPARE(folder.read("mine.dravel"), QByteArray("settings"));
    QCOMPARE(labelText(progress(), "statusLabel"), QString("Dump complete"));
}

void tst_melvoxUiProfileDumper::doesNothingWhenTheSaveDialogIsCancelled()
{
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.dumpSettings();
    melvox_test::cancelFileDialog();
    QVERIFY(!progress());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiProfileDumper::makesTheChosenDirectoryTheCurrentOne()
{
    currentDir_t current;
    folder_t folder;
    folder.makeDir("sub");
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.dumpSettings();
    chooseFile(folder.path("sub/mine.dravel"));
    QCOMPARE(QDir::currentPath(), folder.path("sub"));
}

void tst_melvoxUiProfileDumper::opensTheDriveDialogOnAUnitWithUsb()
{
    usb_t usb;
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.dumpSettings();
    QVERIFY(openDialog("usbDriveSelectDialog"));
    QVERIFY(!openFileDialog());
}

void tst_melvoxUiProfileDumper::namesTheFileOnADriveAfterTheTime()
{
    usb_t usb;
    QString const mountPoint = usb.plugIn("STICK");
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.dumpSettings();
    unsigned int const before = static_cast<unsigned int>(dataTimestamp());
    usb.choose("STICK");
    unsigned int const after = static_cast<unsigned int>(dataTimestamp());
    QStringList names;
    for (unsigned int seconds = before; seconds <= after; ++seconds)
        names << "profile_" + filenameTimestamp(seconds, 0) + ".dravel";
    QVERIFY(dumpedPath().startsWith(mountPoint));
    QString const name = dumpedPath().mid(mountPoint.size());
    QVERIFY2(names.contains(name), qPrintable(name));
    QCOMPARE(labelText(progress(), "dumpDestLabel"), name + " on STICK");
    QCOMPARE(labelText(progress(), "statusLabel"), QString("Dumping..."));
}

void tst_melvoxUiProfileDumper::addsNoSeparatorToTheMountPoint()
{
    melvoxUiProfileDumper_t dumper(device, 0);
    usbDrive_t drive;
    drive.mountPoint = "/mnt/stick-";
    drive.name = "The stick";
    dumper.driveSelected(drive);
    QVERIFY2(dumpedPath().startsWith("/mnt/stick-profile_"), qPrintable(dumpedPath()));
    QVERIFY(labelText(progress(), "dumpDestLabel").endsWith(".dravel on The stick"));
}

void tst_melvoxUiProfileDumper::hasItsTexts()
{
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.fileSelected("/nowhere/a");
    QCOMPARE(find<QGroupBox>(progress(), "titleGroup")->title(), QString("Dump MELVOX Settings to File"));
    QCOMPARE(labelText(progress(), "dumpDestTitleLabel"), QString("Dumping to:"));
    QCOMPARE(labelText(progress(), "statusTitleLabel"), QString("Status:"));
}

void tst_melvoxUiProfileDumper::showsTheOutcomeWhateverItIs_data()
{
    QTest::addColumn<bool>("success");
    QTest::newRow("success") << true;
    QTest::newRow("failure") << false;
}

void tst_melvoxUiProfileDumper::showsTheOutcomeWhateverItIs()
{
    QFETCH(bool, success);
    folder_t folder;
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.fileSelected(folder.path("a"));
    answer(folder.path("a"), success, "This is what happened");
    QCOMPARE(labelText(progress(), "statusLabel"), QString("This is what happened"));
    QCOMPARE(QFile::exists(folder.path("a")), success);
}

void tst_melvoxUiProfileDumper::ignoresReportsOnOtherPaths()
{
    folder_t folder;
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.fileSelected(folder.path("a"));
    dumper.profileDumpDone((folder.path("A")).toStdString(), true, "other");
    dumper.profileDumpDone((folder.path("a/")).toStdString(), true, "other");
    dumper.profileDumpDone("", true, "other");
    QCOMPARE(labelText(progress(), "statusLabel"), QString("Dumping..."));
}

void tst_melvoxUiProfileDumper::showsTheOutcomeOfTheNewestDumpOnly()
{
    folder_t folder;
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.fileSelected(folder.path("a"));
    dumper.fileSelected(folder.path("b"));
    answer(folder.path("a"), true, "the first");
    QCOMPARE(labelText(progress(), "statusLabel"), QString("Dumping..."));
    answer(folder.path("b"), true, "the second");
    QCOMPARE(labelText(progress(), "statusLabel"), QString("the second"));
}

void tst_melvoxUiProfileDumper::tellsOfADriveThatWasPulledOut()
{
    usb_t usb;
    usb.plugIn("STICK");
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.dumpSettings();
    usb.choose("STICK");
    usb.pullOut("STICK");
    answer(dumpedPath(), true, "Dump complete");
    QVERIFY2(labelText(progress(), "statusLabel").startsWith("The profile could not be written: "),
             qPrintable(labelText(progress(), "statusLabel")));
    QVERIFY(!QFile::exists(dumpedPath()));
}

void tst_melvoxUiProfileDumper::tellsOfADriveThatIsFull()
{
    // A device on which there is never room.
    QVERIFY2(QFile::exists("/dev/full"), "this test needs a system that has /dev/full");
    folder_t folder;
    QVERIFY(QFile::link("/dev/full", folder.path("a.part")));
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.fileSelected(folder.path("a"));
    answer(folder.path("a"), true, "Dump complete", QByteArray(100000, 'x'));
    QVERIFY2(labelText(progress(), "statusLabel").startsWith("The profile could not be written: "),
             qPrintable(labelText(progress(), "statusLabel")));
    QVERIFY(!QFile::exists(folder.path("a")));
}

void tst_melvoxUiProfileDumper::tellsOfADriveThatIsWriteProtected()
{
    usb_t usb;
    QString const drive = usb.plugIn("STICK");
    QVERIFY(QFile::setPermissions(drive, QFile::Permissions(0x5555)));
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.dumpSettings();
    usb.choose("STICK");
    {
        melvox_test::unprivileged_t const user;
        answer(dumpedPath(), true, "Dump complete");
    }
    QVERIFY2(labelText(progress(), "statusLabel").startsWith("The profile could not be written: "),
             qPrintable(labelText(progress(), "statusLabel")));
    QVERIFY(QDir(drive).entryList(QDir::Files).isEmpty());
}

void tst_melvoxUiProfileDumper::tellsOfAPlaceThatCannotBeWritten()
{
    folder_t folder;
    QString const path = folder.path("gone/a");
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.fileSelected(path);
    answer(path, true, "Dump complete");
    QVERIFY(labelText(progress(), "statusLabel").startsWith("The profile could not be written: "));
}

void tst_melvoxUiProfileDumper::closesItsDialogWithClose()
{
    melvoxUiProfileDumper_t dumper(device, 0);
    dumper.fileSelected("/nowhere/a");
    tap(progress(), "Close");
    QVERIFY(!progress());
}

void tst_melvoxUiProfileDumper::takesItsDialogsAlong()
{
    usb_t usb;
    {
        melvoxUiProfileDumper_t dumper(device, 0);
        dumper.fileSelected("/nowhere/a");
        dumper.dumpSettings();
        QVERIFY(progress());
    }
    QVERIFY(!progress());
    QVERIFY(!openDialog("usbDriveSelectDialog"));
}

QTEST_MAIN(tst_melvoxUiProfileDumper)
#include "tst_melvoxUiProfileDumper.moc"
