#include "melvox_ui/melvoxUiProfileLoader.h"

#include "support/dialogs.h"
#include "support/pageTest.h"

#include <QGroupBox>

#include <fcntl.h>
#include <unistd.h>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::chooseFile;
using melvox_test::currentDir_t;
using melvox_test::folder_t;
using melvox_test::openDialog;
using melvox_test::openFileDialog;
using melvox_test::usb_t;

namespace
{

int const FRAMEWORK = 1;

QByteArray pattern(int size)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char(i * 7 + i / 251);
    return bytes;
}

/** Has every further reading of a file fail that this program has open, as that from a drive that was pulled out. */
void breakFile(QString const& path)
{
    int const folder = ::open("/", O_RDONLY);
    for (QString const& name : QDir("/proc/self/fd").entryList(QDir::Files | QDir::System))
    {
        if (QFile::symLinkTarget("/proc/self/fd/" + name) == path)
            ::dup2(folder, name.toInt());
    }
    ::close(folder);
}

} // namespace

class tst_melvoxUiProfileLoader : public melvox_test::pageTest_t
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    static QDialog* progress() { return openDialog("melvoxUiProfileLoadDialog"); }
    QString status() { return labelText(progress(), "statusLabel"); }
    bool canCancel() { return melvox_test::button(progress(), "Cancel Load")->isEnabled(); }
    /** Chooses a file of that size and has the lock granted. */
    void startLoad(int size);
    /** Everything that was uploaded so far, each block as it was. */
    QList<QByteArray> blocks();
    QStringList locks() { return receiver->commands().filter("portLock"); }
    void result(int status) { receiver->report("uploadResult", status); }
    /** The load is over: nothing more is sent, and another one can begin. */
    void checkIdle();

    folder_t* folder;
    melvoxUiProfileLoader_t* loader;

private slots:
    void showsNothingBeforeItIsAsked();
    void opensAFileDialogOnAUnitWithoutUsb();
    void loadsTheChosenFile();
    void doesNothingWhenTheFileDialogIsCancelled();
    void listsTheProfilesOfADrive();
    void hasItsTexts();
    void locksThePortBeforeItSendsAnything();
    void sendsAFileInBlocks_data();
    void sendsAFileInBlocks();
    void showsHowFarItIs();
    void keepsOneBlockUnderWay();
    void sendsNoSecondBlockForASecondLockReport();
    void ignoresAResultBeforeTheLock();
    void ignoresASecondResult();
    void ignoresThePluginLock();
    void finishesWhenTheLockIsRefused();
    void finishesWhenTheLockIsLost();
    void tellsOfAFileThatCannotBeOpened();
    void tellsOfAFileThatCannotBeRead();
    void tellsOfAFileThatCannotBeReadToItsEnd();
    void endsWithAnErrorOfThePort_data();
    void endsWithAnErrorOfThePort();
    void endsWhenItIsCancelled();
    void ignoresAResultAfterItWasCancelled();
    void ignoresALateResultInTheNextLoad();
    void ignoresASecondFileDuringALoad();
    void ignoresASecondFileWhileItWaitsForTheLock();
    void canLoadAgainAfterEachEnd();
    void keepsTheDialogOpenWithTheLastStatus();
    void goesOnWhenItsDialogIsClosed();
    void showsItsProgressAgain();
    void tellsOfALinkThatBreaks();
    void givesTheLockBackWhenItIsDestroyed();
    void cancelsNothingWhileIdle();
};

void tst_melvoxUiProfileLoader::setUp()
{
    pageTest_t::setUp();
    folder = new folder_t;
    loader = new melvoxUiProfileLoader_t(device, 0);
}

void tst_melvoxUiProfileLoader::tearDown()
{
    delete loader;
    delete folder;
    pageTest_t::tearDown();
}

void tst_melvoxUiProfileLoader::startLoad(int size)
{
    loader->fileSelected(folder->write("profile_a.melvox", pattern(size)));
    receiver->report("portLock", FRAMEWORK);
}

QList<QByteArray> tst_melvoxUiProfileLoader::blocks()
{
    QList<QByteArray> blocks;
    for (melvox_link::message_t const& message : receiver->messages())
    {
        if (message.group == "uploadData")
            blocks << message.value.toByteArray();
    }
    return blocks;
}

void tst_melvoxUiProfileLoader::checkIdle()
{
    QVERIFY(!canCancel());
    int const sent = int(receiver->messages().size());
    QString const text = status();
    for (int i = 0; i <= 2; ++i)
    {
        receiver->report("portLock", i);
        result(i);
    }
    QCOMPARE(int(receiver->messages().size()), sent);
    QCOMPARE(status(), text);
    loader->fileSelected(folder->write("profile_next.melvox", "x"));
    QCOMPARE(receiver->commands().last(), QString("portLock 1"));
}

void tst_melvoxUiProfileLoader::showsNothingBeforeItIsAsked()
{
    QVERIFY(!progress());
    QVERIFY(!openFileDialog());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiProfileLoader::opensAFileDialogOnAUnitWithoutUsb()
{
    loader->loadProfile();
    QFileDialog* const dialog = openFileDialog();
    QVERIFY(dialog);
    QCOMPARE(dialog->windowTitle(), QString("Open MELVOX Profile"));
    QCOMPARE(dialog->nameFilters(), QStringList() << "MELVOX Profile (*.melvox)"
                                                  << "All Files (*)");
    QCOMPARE(dialog->acceptMode(), QFileDialog::AcceptOpen);
    QCOMPARE(dialog->directory().canonicalPath(), QDir::current().canonicalPath());
    QVERIFY(dialog->isModal());
}

void tst_melvoxUiProfileLoader::loadsTheChosenFile()
{
    currentDir_t current;
    folder->makeDir("sub");
    loader->loadProfile();
    chooseFile(folder->write("sub/any.name", "x"));
    QCOMPARE(receiver->commands(), QStringList("portLock 1"));
    QVERIFY(progress());
    QCOMPARE(labelText(progress(), "loadSourceLabel"), QString("any.name"));
    QCOMPARE(QDir::currentPath(), folder->path("sub"));
}

void tst_melvoxUiProfileLoader::doesNothingWhenTheFileDialogIsCancelled()
{
    loader->loadProfile();
    melvox_test::cancelFileDialog();
    QVERIFY(!progress());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiProfileLoader::listsTheProfilesOfADrive()
{
    usb_t usb;
    usb.write("STICK/profile_a.melvox", "x");
    usb.write("STICK/profile_b.dravel", "x");
    melvoxUiProfileLoader_t onUsb(device, 0);
    onUsb.loadProfile();
    QVERIFY(!openFileDialog());
    usb.choose("STICK");
    QDialog* const list = openDialog("melvoxUiUsbProfileListDialog");
    QVERIFY(list);
    QVERIFY(melvox_test::waitFor([&] { return !melvox_test::button(list, "Stop Scan")->isEnabled(); }));
    QTreeWidget* const tree = find<QTreeWidget>(list, "treeWidget");
    QCOMPARE(tree->topLevelItemCount(), 1);
    tree->setCurrentItem(tree->topLevelItem(0));
    tap(list, "Load Profile");
    QCOMPARE(receiver->commands(), QStringList("portLock 1"));
    QCOMPARE(labelText(progress(), "loadSourceLabel"), QString("profile_a.melvox"));
}

void tst_melvoxUiProfileLoader::hasItsTexts()
{
    loader->fileSelected(folder->path("gone"));
    QCOMPARE(find<QGroupBox>(progress(), "titleGroup")->title(), QString("Load MELVOX Profile From File"));
    QCOMPARE(labelText(progress(), "loadSourceTitleLabel"), QString("Loading From"));
    QCOMPARE(labelText(progress(), "statusTitleLabel"), QString("Status:"));
    QCOMPARE(labelText(progress(), "loadSourceLabel"), QString("--"));
}

void tst_melvoxUiProfileLoader::locksThePortBeforeItSendsAnything()
{
    loader->fileSelected(folder->write("profile_a.melvox", "x"));
    QCOMPARE(status(), QString("Locking port"));
    QVERIFY(!canCancel());
    QCOMPARE(receiver->commands(), QStringList("portLock 1"));
    receiver->report("portLock", FRAMEWORK);
    QVERIFY(canCancel());
    QCOMPARE(int(blocks().size()), 1);
}

void tst_melvoxUiProfileLoader::sendsAFileInBlocks_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("count");
    QTest::newRow("empty") << 0 << 0;
    QTest::newRow("one byte") << 1 << 1;
    QTest::newRow("1023") << 1023 << 1;
    QTest::newRow("1024") << 1024 << 1;
    QTest::newRow("1025") << 1025 << 2;
    QTest::newRow("2048") << 2048 << 2;
    QTest::newRow("10 MB") << 10 * 1024 * 1024 << 10 * 1024;
}

void tst_melvoxUiProfileLoader::sendsAFileInBlocks()
{
    QFETCH(int, size);
    QFETCH(int, count);
    QByteArray taken;
    startLoad(size);
    for (int i = 0; i < count; ++i)
    {
        QCOMPARE(int(blocks().size()), 1);
        QByteArray const block = blocks().first();
        QCOMPARE(int(block.size()), i + 1 < count ? 1024 : size - i * 1024);
        taken += block;
        receiver->clear();
        result(0);
    }
    QVERIFY(blocks().isEmpty());
    QVERIFY(taken == pattern(size));
    QCOMPARE(status(), QString("Load Complete"));
    QCOMPARE(locks().last(), QString("portLock 0"));
    checkIdle();
}

void tst_melvoxUiProfileLoader::showsHowFarItIs()
{
    startLoad(2500);
    QCOMPARE(status(), QString("Loading data (0/2500)"));
    result(0);
    QCOMPARE(status(), QString("Loading data (1024/2500)"));
    result(0);
    QCOMPARE(status(), QString("Loading data (2048/2500)"));
    result(0);
    QCOMPARE(status(), QString("Load Complete"));
}

void tst_melvoxUiProfileLoader::keepsOneBlockUnderWay()
{
    startLoad(5000);
    for (int i = 1; i <= 4; ++i)
    {
        melvox_test::settle();
        QCOMPARE(int(blocks().size()), i);
        result(0);
    }
}

void tst_melvoxUiProfileLoader::sendsNoSecondBlockForASecondLockReport()
{
    startLoad(5000);
    receiver->report("portLock", FRAMEWORK);
    receiver->report("portLock", FRAMEWORK);
    QCOMPARE(int(blocks().size()), 1);
    QVERIFY(canCancel());
    result(0);
    QCOMPARE(int(blocks().size()), 2);
}

void tst_melvoxUiProfileLoader::ignoresAResultBeforeTheLock()
{
    loader->fileSelected(folder->write("profile_a.melvox", pattern(5000)));
    result(0);
    result(1);
    QVERIFY(blocks().isEmpty());
    QCOMPARE(status(), QString("Locking port"));
}

void tst_melvoxUiProfileLoader::ignoresASecondResult()
{
    startLoad(1000);
    result(0);
    QCOMPARE(status(), QString("Load Complete"));
    result(1);
    QCOMPARE(status(), QString("Load Complete"));
}

void tst_melvoxUiProfileLoader::ignoresThePluginLock()
{
    loader->fileSelected(folder->write("profile_a.melvox", "x"));
    receiver->report("portLock", 2);
    QCOMPARE(status(), QString("Locking port"));
    QVERIFY(blocks().isEmpty());
    QVERIFY(!canCancel());
    receiver->report("portLock", FRAMEWORK);
    QCOMPARE(int(blocks().size()), 1);
}

void tst_melvoxUiProfileLoader::finishesWhenTheLockIsRefused()
{
    loader->fileSelected(folder->write("profile_a.melvox", "x"));
    receiver->clear();
    receiver->report("portLock", 0);
    QCOMPARE(status(), QString("Unable to lock port"));
    // There is no lock to give back.
    QVERIFY(receiver->sent().isEmpty());
    checkIdle();
}

void tst_melvoxUiProfileLoader::finishesWhenTheLockIsLost()
{
    startLoad(5000);
    receiver->clear();
    receiver->report("portLock", 0);
    QCOMPARE(status(), QString("Unable to lock port"));
    QVERIFY(receiver->sent().isEmpty());
    checkIdle();
}

void tst_melvoxUiProfileLoader::tellsOfAFileThatCannotBeOpened()
{
    loader->fileSelected(folder->path("gone.melvox"));
    QCOMPARE(status(), QString("Failed to open file"));
    QVERIFY(receiver->sent().isEmpty());
    checkIdle();
}

void tst_melvoxUiProfileLoader::tellsOfAFileThatCannotBeRead()
{
    // A process's own memory can be opened, but there is nothing to read at its beginning.
    QVERIFY2(QFile::exists("/proc/self/mem"), "this test needs a system that has /proc/self/mem");
    loader->fileSelected("/proc/self/mem");
    receiver->report("portLock", FRAMEWORK);
    QCOMPARE(status(), QString("Error reading from file"));
    QCOMPARE(receiver->commands(), QStringList() << "portLock 1"
                                                 << "portLock 0");
    checkIdle();
}

void tst_melvoxUiProfileLoader::tellsOfAFileThatCannotBeReadToItsEnd()
{
    startLoad(100000);
    breakFile(folder->path("profile_a.melvox"));
    for (int i = 0; i < 100 && loader->isLoading(); ++i)
        result(0);
    QCOMPARE(status(), QString("Error reading from file"));
    QVERIFY(blocks().size() < 97);
    QCOMPARE(locks().last(), QString("portLock 0"));
    checkIdle();
}

void tst_melvoxUiProfileLoader::endsWithAnErrorOfThePort_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<QString>("text");
    QTest::newRow("error") << 1 << "Error writing to port";
    QTest::newRow("closed") << 2 << "Error: port is not open";
    QTest::newRow("unknown") << 3 << "Unknown error";
    QTest::newRow("unknown and negative") << -1 << "Unknown error";
}

void tst_melvoxUiProfileLoader::endsWithAnErrorOfThePort()
{
    QFETCH(int, answer);
    QFETCH(QString, text);
    startLoad(5000);
    result(0);
    receiver->clear();
    result(answer);
    QCOMPARE(status(), text);
    QCOMPARE(receiver->commands(), QStringList("portLock 0"));
    checkIdle();
}

void tst_melvoxUiProfileLoader::endsWhenItIsCancelled()
{
    startLoad(5000);
    receiver->clear();
    tap(progress(), "Cancel Load");
    QCOMPARE(status(), QString("Upload cancelled"));
    QCOMPARE(receiver->commands(), QStringList("portLock 0"));
    checkIdle();
}

void tst_melvoxUiProfileLoader::ignoresAResultAfterItWasCancelled()
{
    startLoad(5000);
    tap(progress(), "Cancel Load");
    receiver->clear();
    result(0);
    QVERIFY(blocks().isEmpty());
    result(1);
    QCOMPARE(status(), QString("Upload cancelled"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiProfileLoader::ignoresALateResultInTheNextLoad()
{
    startLoad(5000);
    tap(progress(), "Cancel Load");
    loader->fileSelected(folder->path("profile_a.melvox"));
    receiver->clear();
    result(0); // of the cancelled load's block
    QVERIFY(blocks().isEmpty());
    receiver->report("portLock", FRAMEWORK);
    QCOMPARE(int(blocks().size()), 1);
    QVERIFY(blocks().first() == pattern(5000).left(1024));
}

void tst_melvoxUiProfileLoader::ignoresASecondFileDuringALoad()
{
    startLoad(1500);
    receiver->clear();
    loader->fileSelected(folder->write("profile_b.melvox", "other"));
    QVERIFY(receiver->sent().isEmpty());
    QVERIFY(canCancel());
    QCOMPARE(labelText(progress(), "loadSourceLabel"), QString("profile_a.melvox"));
    result(0);
    QVERIFY(blocks().last() == pattern(1500).mid(1024));
}

void tst_melvoxUiProfileLoader::ignoresASecondFileWhileItWaitsForTheLock()
{
    loader->fileSelected(folder->write("profile_a.melvox", "a"));
    loader->fileSelected(folder->write("profile_b.melvox", "b"));
    QCOMPARE(receiver->commands(), QStringList("portLock 1"));
    receiver->report("portLock", FRAMEWORK);
    QCOMPARE(blocks(), QList<QByteArray>() << "a");
}

void tst_melvoxUiProfileLoader::canLoadAgainAfterEachEnd()
{
    startLoad(10);
    result(0);
    startLoad(20);
    result(1);
    startLoad(30);
    tap(progress(), "Cancel Load");
    receiver->clear();
    startLoad(40);
    result(0);
    QCOMPARE(int(blocks().first().size()), 40);
    QCOMPARE(status(), QString("Load Complete"));
}

void tst_melvoxUiProfileLoader::keepsTheDialogOpenWithTheLastStatus()
{
    startLoad(10);
    result(0);
    QVERIFY(progress());
    tap(progress(), "Close");
    QVERIFY(!progress());
}

void tst_melvoxUiProfileLoader::goesOnWhenItsDialogIsClosed()
{
    startLoad(3000);
    tap(progress(), "Close");
    result(0);
    result(0);
    QCOMPARE(int(blocks().size()), 3);
    result(0);
    QCOMPARE(locks().last(), QString("portLock 0"));
}

void tst_melvoxUiProfileLoader::showsItsProgressAgain()
{
    QVERIFY(!loader->isLoading());
    startLoad(3000);
    QVERIFY(loader->isLoading());
    tap(progress(), "Close");
    result(0);
    loader->showProgress();
    QCOMPARE(status(), QString("Loading data (1024/3000)"));
    QVERIFY(canCancel());
    result(0);
    result(0);
    QVERIFY(!loader->isLoading());
}

void tst_melvoxUiProfileLoader::tellsOfALinkThatBreaks()
{
    startLoad(3000);
    receiver->setOpen(false);
    QCOMPARE(status(), QString("Error: port is not open"));
    QVERIFY(!canCancel());
}

void tst_melvoxUiProfileLoader::givesTheLockBackWhenItIsDestroyed()
{
    startLoad(3000);
    receiver->clear();
    delete loader;
    loader = 0;
    QCOMPARE(receiver->commands(), QStringList("portLock 0"));
    QVERIFY(!progress());
}

void tst_melvoxUiProfileLoader::cancelsNothingWhileIdle()
{
    loader->cancelLoad();
    QVERIFY(receiver->sent().isEmpty());
}

QTEST_MAIN(tst_melvoxUiProfileLoader)
#include "tst_melvoxUiProfileLoader.moc"
