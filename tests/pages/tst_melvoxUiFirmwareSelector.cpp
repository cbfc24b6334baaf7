#include "melvox_ui/melvoxUiFirmwareSelector.h"

#include "melvox_ui/melvoxUiFirmwarePackage.h"

#include "support/dialogs.h"
#include "support/firmware.h"
#include "support/pageTest.h"

#include <QSignalSpy>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::chooseFile;
using melvox_test::currentDir_t;
using melvox_test::folder_t;
using melvox_test::openBox;
using melvox_test::openDialog;
using melvox_test::openFileDialog;
using melvox_test::package_t;
using melvox_test::usb_t;
using melvox_test::waitFor;

class tst_melvoxUiFirmwareSelector : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    static QByteArray combined() { return package_t().add(2, "1.15").add(0, "2.2").bytes(); }
    static bool selectOnUsb(QString const& name);

private slots:
    void startsWithNothing();
    void opensAFileDialogOnAUnitWithoutUsb();
    void opensTheDriveDialogOnAUnitWithUsb();
    void takesTheWayOfTheUnitAsItWasWhenMade();
    void makesAPackageOfOneFile();
    void takesALoneComponentFromAFileDialog();
    void makesAPackageOfADirectory();
    void asksForTheProductCode();
    void makesTheChosenFilesDirectoryTheCurrentOne();
    void makesTheParentOfAChosenDirectoryTheCurrentOne();
    void keepsThePackageWhenTheFileDialogIsCancelled();
    void opensOneFileDialogHoweverOftenItIsAsked();
    void refusesAFileWithoutFirmwareAndAsksAgain();
    void asksAgainHoweverTheMessageIsClosed();
    void keepsAskingUntilAPackageIsFound();
    void keepsTheEmptyPackageOfARefusedFile();
    void givesThePackageOutOnce();
    void findsAPackageOnADrive();
    void listsTheProductThatWasAskedForFirstOnADrive();
    void staysSilentWhenTheListOfADriveIsCancelled();
    void replacesThePackageOfAnEarlierChoice();
    void canBeDestroyedWhileItsDialogIsOpen();
};

void tst_melvoxUiFirmwareSelector::startsWithNothing()
{
    melvoxUiFirmwareSelector_t selector(0);
    QVERIFY(!selector.takePackage());
    QVERIFY(!openFileDialog());
}

void tst_melvoxUiFirmwareSelector::opensAFileDialogOnAUnitWithoutUsb()
{
    melvoxUiFirmwareSelector_t selector(0);
    selector.selectPackage(8);
    QFileDialog* const dialog = openFileDialog();
    QVERIFY(dialog);
    QCOMPARE(dialog->windowTitle(), QString("Open MELVOX Firmware"));
    QCOMPARE(dialog->nameFilters(), QStringList() << "MELVOX Firmware Files (*.srec)"
                                                  << "All Files (*)");
    QCOMPARE(dialog->directory().canonicalPath(), QDir::current().canonicalPath());
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptOpen);
    QCOMPARE(dialog->fileMode(), QFileDialog::ExistingFile);
    QVERIFY(dialog->isModal());
}

void tst_melvoxUiFirmwareSelector::opensTheDriveDialogOnAUnitWithUsb()
{
    usb_t usb;
    melvoxUiFirmwareSelector_t selector(0);
    selector.selectPackage(8);
    QVERIFY(openDialog("usbDriveSelectDialog"));
    QVERIFY(!openFileDialog());
}

void tst_melvoxUiFirmwareSelector::takesTheWayOfTheUnitAsItWasWhenMade()
{
    melvoxUiFirmwareSelector_t selector(0);
    usb_t usb;
    selector.selectPackage(8);
    QVERIFY(openFileDialog());
    QVERIFY(!openDialog("usbDriveSelectDialog"));
}

void tst_melvoxUiFirmwareSelector::makesAPackageOfOneFile()
{
    currentDir_t current;
    folder_t folder;
    QString const path = folder.write("nav.srec", combined());
    melvoxUiFirmwareSelector_t selector(0);
    QSignalSpy selected(&selector, SIGNAL(packageSelected()));
    selector.selectPackage(8);
    chooseFile(path);
    QCOMPARE(int(selected.count()), 1);
    QScopedPointer<melvoxUiFirmwarePackage_t> const package(selector.takePackage());
    QCOMPARE(package->name, QString("nav.srec"));
    QCOMPARE(package->files, QStringList(path));
    QCOMPARE(int(package->records.size()), 2);
    QCOMPARE(package->records.at(1).version, QString("2.2"));
    QVERIFY(!openFileDialog());
}

void tst_melvoxUiFirmwareSelector::takesALoneComponentFromAFileDialog()
{
    currentDir_t current;
    folder_t folder;
    melvoxUiFirmwareSelector_t selector(0);
    QSignalSpy selected(&selector, SIGNAL(packageSelected()));
    selector.selectPackage(8);
    chooseFile(folder.write("nav.txt", package_t().add(2, "1.15").bytes()));
    QCOMPARE(int(selected.count()), 1);
}

void tst_melvoxUiFirmwareSelector::makesAPackageOfADirectory()
{
    currentDir_t current;
    folder_t folder;
    folder.write("release/nav.srec", package_t().add(2, "1.15").bytes());
    folder.write("release/boot.srec", package_t().add(0, "2.2").bytes());
    melvoxUiFirmwareSelector_t selector(0);
    QSignalSpy selected(&selector, SIGNAL(packageSelected()));
    QVERIFY(QMetaObject::invokeMethod(&selector, "handleFileSelected", Q_ARG(QString, folder.path("release"))));
    QCOMPARE(int(selected.count()), 1);
    QScopedPointer<melvoxUiFirmwarePackage_t> const package(selector.takePackage());
    QCOMPARE(package->name, QString("release"));
    QCOMPARE(package->files, QStringList() << folder.path("release/boot.srec") << folder.path("release/nav.srec"));
    QCOMPARE(int(package->records.size()), 2);
}

void tst_melvoxUiFirmwareSelector::asksForTheProductCode()
{
    currentDir_t current;
    folder_t folder;
    QString const path = folder.write("a.srec", package_t().add(2, "a", 3).add(0, "b", 5).bytes());
    melvoxUiFirmwareSelector_t selector(0);
    selector.selectPackage(5);
    chooseFile(path);
    QScopedPointer<melvoxUiFirmwarePackage_t> const package(selector.takePackage());
    QCOMPARE(package->records.first().product, 5);
}

void tst_melvoxUiFirmwareSelector::makesTheChosenFilesDirectoryTheCurrentOne()
{
    currentDir_t current;
    folder_t folder;
    melvoxUiFirmwareSelector_t selector(0);
    selector.selectPackage(8);
    chooseFile(folder.write("sub/nav.srec", combined()));
    QCOMPARE(QDir::currentPath(), folder.path("sub"));
    selector.selectPackage(8);
    QCOMPARE(openFileDialog()->directory().path(), folder.path("sub"));
}

void tst_melvoxUiFirmwareSelector::makesTheParentOfAChosenDirectoryTheCurrentOne()
{
    currentDir_t current;
    folder_t folder;
    folder.write("release/nav.srec", combined());
    melvoxUiFirmwareSelector_t selector(0);
    selector.selectPackage(8);
    // As a file dialog does that gives out directories.
    QVERIFY(QMetaObject::invokeMethod(openFileDialog(), "fileSelected", Q_ARG(QString, folder.path("release"))));
    melvox_test::settle();
    QCOMPARE(QDir::currentPath(), folder.path());
    openFileDialog()->reject();
    if (openBox())
        reportedErrors();
}

void tst_melvoxUiFirmwareSelector::keepsThePackageWhenTheFileDialogIsCancelled()
{
    currentDir_t current;
    folder_t folder;
    melvoxUiFirmwareSelector_t selector(0);
    selector.selectPackage(8);
    chooseFile(folder.write("nav.srec", combined()));
    QSignalSpy selected(&selector, SIGNAL(packageSelected()));
    QString const before = QDir::currentPath();
    selector.selectPackage(8);
    melvox_test::cancelFileDialog();
    QCOMPARE(int(selected.count()), 0);
    QCOMPARE(QDir::currentPath(), before);
    QScopedPointer<melvoxUiFirmwarePackage_t> const package(selector.takePackage());
    QVERIFY(package);
}

void tst_melvoxUiFirmwareSelector::opensOneFileDialogHoweverOftenItIsAsked()
{
    melvoxUiFirmwareSelector_t selector(0);
    selector.selectPackage(8);
    QFileDialog* const first = openFileDialog();
    selector.selectPackage(8);
    int dialogs = 0;
    for (QWidget* widget : QApplication::topLevelWidgets())
        dialogs += qobject_cast<QFileDialog*>(widget) ? 1 : 0;
    QCOMPARE(dialogs, 1);
    QCOMPARE(openFileDialog(), first);
}

void tst_melvoxUiFirmwareSelector::refusesAFileWithoutFirmwareAndAsksAgain()
{
    currentDir_t current;
    folder_t folder;
    melvoxUiFirmwareSelector_t selector(0);
    QSignalSpy selected(&selector, SIGNAL(packageSelected()));
    selector.selectPackage(8);
    chooseFile(folder.write("bad.srec", "nonsense"));
    QCOMPARE(int(selected.count()), 0);
    QVERIFY(!openFileDialog());
    QVERIFY(openBox());
    QCOMPARE(openBox()->windowTitle(), QString("Invalid Firmware Package"));
    QCOMPARE(openBox()->text(), QString("The selected path does not appear to contain valid MELVOX firmware"));
    QCOMPARE(openBox()->icon(), QMessageBox::Warning);
    answer(QMessageBox::Ok);
    QVERIFY(openFileDialog());
    QVERIFY(!openBox());
}

void tst_melvoxUiFirmwareSelector::asksAgainHoweverTheMessageIsClosed()
{
    currentDir_t current;
    folder_t folder;
    melvoxUiFirmwareSelector_t selector(0);
    selector.selectPackage(8);
    chooseFile(folder.write("bad.srec", "nonsense"));
    melvox_test::closeBox();
    QVERIFY(openFileDialog());
    melvox_test::cancelFileDialog();
    QVERIFY(!openFileDialog());
    QVERIFY(!openBox());
}

void tst_melvoxUiFirmwareSelector::keepsAskingUntilAPackageIsFound()
{
    currentDir_t current;
    folder_t folder;
    QString const bad = folder.write("bad.srec", "nonsense");
    melvoxUiFirmwareSelector_t selector(0);
    QSignalSpy selected(&selector, SIGNAL(packageSelected()));
    selector.selectPackage(8);
    for (int i = 0; i < 3; ++i)
    {
        chooseFile(bad);
        answer(QMessageBox::Ok);
    }
    chooseFile(folder.write("good.srec", combined()));
    QCOMPARE(int(selected.count()), 1);
    QVERIFY(!openFileDialog());
}

void tst_melvoxUiFirmwareSelector::keepsTheEmptyPackageOfARefusedFile()
{
    currentDir_t current;
    folder_t folder;
    melvoxUiFirmwareSelector_t selector(0);
    selector.selectPackage(8);
    chooseFile(folder.write("bad.srec", "nonsense"));
    reportedErrors();
    melvox_test::cancelFileDialog();
    QScopedPointer<melvoxUiFirmwarePackage_t> const package(selector.takePackage());
    QVERIFY(package);
    QVERIFY(package->records.isEmpty());
    QCOMPARE(package->name, QString("bad.srec"));
}

void tst_melvoxUiFirmwareSelector::givesThePackageOutOnce()
{
    currentDir_t current;
    folder_t folder;
    melvoxUiFirmwareSelector_t selector(0);
    selector.selectPackage(8);
    chooseFile(folder.write("nav.srec", combined()));
    delete selector.takePackage();
    QVERIFY(!selector.takePackage());
}

bool tst_melvoxUiFirmwareSelector::selectOnUsb(QString const& name)
{
    QDialog* const list = openDialog("melvoxUiUsbFirmwareSelectDialog");
    if (!list)
        return false;
    QTreeWidget* const tree = find<QTreeWidget>(list, "treeWidget");
    QAbstractButton* const select = melvox_test::button(list, "Select Package");
    if (!waitFor([&] { return !melvox_test::button(list, "Stop Scan")->isEnabled(); }))
        return false;
    QList<QTreeWidgetItem*> const found = tree->findItems(name, Qt::MatchExactly);
    if (found.isEmpty())
        return false;
    tree->setCurrentItem(found.first());
    select->click();
    return true;
}

void tst_melvoxUiFirmwareSelector::findsAPackageOnADrive()
{
    usb_t usb;
    usb.plugIn("STICK");
    QString const path = usb.write("STICK/updates/nav.srec", combined());
    melvoxUiFirmwareSelector_t selector(0);
    QSignalSpy selected(&selector, SIGNAL(packageSelected()));
    selector.selectPackage(8);
    usb.choose("STICK");
    QVERIFY(!openDialog("usbDriveSelectDialog"));
    QVERIFY(selectOnUsb("nav.srec"));
    QCOMPARE(int(selected.count()), 1);
    QScopedPointer<melvoxUiFirmwarePackage_t> const package(selector.takePackage());
    QCOMPARE(package->files, QStringList(path));
    QVERIFY(!openDialog("melvoxUiUsbFirmwareSelectDialog"));
}

void tst_melvoxUiFirmwareSelector::listsTheProductThatWasAskedForFirstOnADrive()
{
    usb_t usb;
    usb.write("STICK/nav.srec", package_t().add(2, "a", 3).add(0, "b", 5).bytes());
    melvoxUiFirmwareSelector_t selector(0);
    selector.selectPackage(5);
    usb.choose("STICK");
    QVERIFY(selectOnUsb("nav.srec"));
    QScopedPointer<melvoxUiFirmwarePackage_t> const package(selector.takePackage());
    QCOMPARE(package->records.first().product, 5);
}

void tst_melvoxUiFirmwareSelector::staysSilentWhenTheListOfADriveIsCancelled()
{
    usb_t usb;
    usb.plugIn("STICK");
    melvoxUiFirmwareSelector_t selector(0);
    QSignalSpy selected(&selector, SIGNAL(packageSelected()));
    selector.selectPackage(8);
    usb.choose("STICK");
    tap(openDialog("melvoxUiUsbFirmwareSelectDialog"), "Cancel");
    QCOMPARE(int(selected.count()), 0);
    QVERIFY(!openBox());
    QVERIFY(!selector.takePackage());
}

void tst_melvoxUiFirmwareSelector::replacesThePackageOfAnEarlierChoice()
{
    usb_t usb;
    usb.write("STICK/a.srec", combined());
    usb.write("STICK/b.srec", combined());
    melvoxUiFirmwareSelector_t selector(0);
    for (char const* name : {"a.srec", "b.srec"})
    {
        selector.selectPackage(8);
        usb.choose("STICK");
        QVERIFY(selectOnUsb(name));
    }
    QScopedPointer<melvoxUiFirmwarePackage_t> const package(selector.takePackage());
    QCOMPARE(package->name, QString("b.srec"));
}

void tst_melvoxUiFirmwareSelector::canBeDestroyedWhileItsDialogIsOpen()
{
    {
        melvoxUiFirmwareSelector_t selector(0);
        selector.selectPackage(8);
    }
    QVERIFY(!openFileDialog());
    currentDir_t current;
    folder_t folder;
    {
        melvoxUiFirmwareSelector_t selector(0);
        selector.selectPackage(8);
        chooseFile(folder.write("bad.srec", "nonsense"));
        QVERIFY(openBox());
    }
    QVERIFY(!openBox());
    QVERIFY(!openFileDialog());
}

QTEST_MAIN(tst_melvoxUiFirmwareSelector)
#include "tst_melvoxUiFirmwareSelector.moc"
