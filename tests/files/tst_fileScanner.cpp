#include "brel_common_qt/fileScanner.h"

#include "support/folder.h"
#include "support/test.h"
#include "support/unprivileged.h"

#include <QElapsedTimer>
#include <QMutex>
#include <QMutexLocker>
#include <QSemaphore>
#include <QSignalSpy>
#include <QThread>

#include <unistd.h>

using namespace brel_common_qt;
using melvox_test::folder_t;
using melvox_test::waitFor;

namespace
{

/** Posts every file. */
class anyFile_t : public fileScanner_t
{
public:
    anyFile_t() : thread(0), slow(0), held(false) {}
    ~anyFile_t() override
    {
        // A test that fails leaves its scan held.
        go.release(1000);
        stopScan();
    }

    QStringList takeNames()
    {
        QStringList names;
        while (scanFile_t* file = takeScanFile())
        {
            names << file->fileInfo().fileName();
            delete file;
        }
        names.sort();
        return names;
    }

    using fileScanner_t::stopScan;

    QThread* thread; //!< in which filter() ran
    QString refused; //!< a directory that is not to be entered
    int slow;        //!< milliseconds for each entry
    bool held;       //!< waits for `go` before each entry
    QSemaphore go;
    QSemaphore came; //!< entries begun while held

    QStringList visited()
    {
        QMutexLocker lock(&m_mutex);
        return m_visited;
    }

protected:
    bool filter(QFileInfo const& fileInfo) override
    {
        thread = QThread::currentThread();
        {
            QMutexLocker lock(&m_mutex);
            m_visited << fileInfo.fileName();
        }
        if (held)
        {
            came.release();
            go.acquire();
        }
        if (slow)
            usleep(useconds_t(slow) * 1000);
        if (!fileInfo.isDir())
            postFile(new scanFile_t(fileInfo));
        return fileInfo.fileName() != refused;
    }

private:
    QMutex m_mutex;
    QStringList m_visited;
};

int alive = 0;

struct counted_t : scanFile_t
{
    explicit counted_t(QFileInfo const& info) : scanFile_t(info) { ++alive; }
    ~counted_t() override { --alive; }
};

class countedFile_t : public fileScanner_t
{
public:
    ~countedFile_t() override { stopScan(); }

protected:
    bool filter(QFileInfo const& fileInfo) override
    {
        if (!fileInfo.isDir())
            postFile(new counted_t(fileInfo));
        return true;
    }
};

/** A scan of a folder with two files that has come by the first. */
struct halfScan_t
{
    halfScan_t() : received(&scanner, SIGNAL(filesReceived()))
    {
        folder.write("a.txt");
        folder.write("b.txt");
        scanner.held = true;
        scanner.addPath(folder.path());
        scanner.startScan();
        scanner.go.release(2); // the folder and one file
    }

    folder_t folder;
    anyFile_t scanner;
    QSignalSpy received;
};

} // namespace

class tst_fileScanner : public melvox_test::test_t
{
    Q_OBJECT

private:
    static bool finish(fileScanner_t& scanner)
    {
        return waitFor([&] { return !scanner.isScanning(); });
    }

private slots:
    void findsFilesOfAllDepths();
    void worksInAThreadOfItsOwn();
    void tellsThatItStartedAndThatItFinished();
    void handsOnWhatItFindsBeforeItHasFinished();
    void tellsOfTheLastFilesBeforeItFinishes();
    void tellsOfManyFilesAtATime();
    void staysSilentWhenNothingMoreIsFound();
    void saysNothingOfFilesThatWereTakenAlready();
    void findsNothingInAnEmptyFolder();
    void passesRootsOverThatAreNotThere();
    void showsTheRootItselfToTheFilter();
    void takesAFileAsARoot();
    void entersADirectoryOnceThoughTwoRootsLeadToIt();
    void doesNotEnterWhatTheFilterRefuses();
    void survivesLinksThatLeadInCircles();
    void passesLinksThatLeadNowhereOver();
    void passesFoldersThatCannotBeReadOver();
    void leavesHiddenEntriesOut();
    void survivesNamesInOtherEncodings();
    void survivesADriveThatIsPulledOut();
    void ignoresASecondStartWhileItRuns();
    void startsAnewAfterItWasStopped();
    void stopsWithinATenthOfASecond();
    void stopsBeforeTheNextEntry();
    void keepsWhatItFoundBeforeItWasStopped();
    void forgetsWhatNobodyTookWhenItStartsAnew();
    void deletesWhatNobodyTook();
    void canBeDestroyedWhileItRuns();
    void scansWhatItsPathsWereWhenItStarted();
    void findsTenThousandFiles();
};

void tst_fileScanner::findsFilesOfAllDepths()
{
    folder_t folder;
    folder.write("a.txt");
    folder.write("one/b.txt");
    folder.write("one/two/three/c.txt");
    anyFile_t scanner;
    scanner.addPath(folder.path());
    scanner.startScan();
    QVERIFY(finish(scanner));
    QCOMPARE(scanner.takeNames(), QStringList() << "a.txt"
                                                << "b.txt"
                                                << "c.txt");
    QVERIFY(!scanner.takeScanFile());
}

void tst_fileScanner::worksInAThreadOfItsOwn()
{
    folder_t folder;
    folder.write("a.txt");
    anyFile_t scanner;
    scanner.addPath(folder.path());
    scanner.startScan();
    QVERIFY(finish(scanner));
    QVERIFY(scanner.thread);
    QVERIFY(scanner.thread != QThread::currentThread());
}

void tst_fileScanner::tellsThatItStartedAndThatItFinished()
{
    folder_t folder;
    anyFile_t scanner;
    QSignalSpy started(&scanner, SIGNAL(scanStarted()));
    QSignalSpy finished(&scanner, SIGNAL(scanFinished()));
    QVERIFY(!scanner.isScanning());
    scanner.addPath(folder.path());
    scanner.startScan();
    QVERIFY(scanner.isScanning());
    QCOMPARE(int(started.count()), 1);
    QVERIFY(waitFor([&] { return finished.count() > 0; }));
    QVERIFY(!scanner.isScanning());
    QCOMPARE(int(started.count()), 1);
    QCOMPARE(int(finished.count()), 1);
}

void tst_fileScanner::handsOnWhatItFindsBeforeItHasFinished()
{
    halfScan_t scan;
    QVERIFY(waitFor([&] { return scan.received.count() > 0; }));
    QVERIFY(scan.scanner.isScanning());
    QCOMPARE(int(scan.scanner.takeNames().size()), 1);
    scan.scanner.go.release();
    QVERIFY(finish(scan.scanner));
    QCOMPARE(int(scan.scanner.takeNames().size()), 1);
}

void tst_fileScanner::tellsOfTheLastFilesBeforeItFinishes()
{
    folder_t folder;
    for (int i = 0; i < 50; ++i)
        folder.write(QString::number(i));
    anyFile_t scanner;
    QSignalSpy received(&scanner, SIGNAL(filesReceived()));
    QSignalSpy finished(&scanner, SIGNAL(scanFinished()));
    scanner.addPath(folder.path());
    scanner.startScan();
    int taken = 0;
    int told = 0;
    QVERIFY(waitFor(
        [&]
        {
            if (received.count() > told)
            {
                told = int(received.count());
                taken += int(scanner.takeNames().size());
            }
            return finished.count() > 0;
        }));
    QCOMPARE(taken, 50);
}

void tst_fileScanner::tellsOfManyFilesAtATime()
{
    folder_t folder;
    for (int i = 0; i < 1000; ++i)
        folder.write(QString::number(i));
    anyFile_t scanner;
    QSignalSpy received(&scanner, SIGNAL(filesReceived()));
    scanner.addPath(folder.path());
    QElapsedTimer time;
    time.start();
    scanner.startScan();
    QVERIFY(finish(scanner));
    QCOMPARE(int(scanner.takeNames().size()), 1000);
    // At first, at the end, and not more often than every hundredth of a second between.
    QVERIFY2(received.count() <= time.elapsed() / 10 + 2, qPrintable(QString::number(received.count())));
}

void tst_fileScanner::staysSilentWhenNothingMoreIsFound()
{
    halfScan_t scan;
    QVERIFY(waitFor([&] { return scan.received.count() > 0; }));
    QElapsedTimer time;
    time.start();
    QVERIFY(waitFor([&] { return time.elapsed() > 100; }));
    QCOMPARE(int(scan.received.count()), 1);
    scan.scanner.go.release();
    QVERIFY(finish(scan.scanner));
    QCOMPARE(int(scan.received.count()), 2);
}

void tst_fileScanner::saysNothingOfFilesThatWereTakenAlready()
{
    halfScan_t scan;
    scan.scanner.came.acquire(3); // one file is posted, and nothing was told yet
    QCOMPARE(int(scan.scanner.takeNames().size()), 1);
    QCoreApplication::processEvents();
    QCOMPARE(int(scan.received.count()), 0);
    scan.scanner.go.release();
    QVERIFY(finish(scan.scanner));
    QCOMPARE(int(scan.received.count()), 1);
}

void tst_fileScanner::findsNothingInAnEmptyFolder()
{
    folder_t folder;
    anyFile_t scanner;
    QSignalSpy received(&scanner, SIGNAL(filesReceived()));
    scanner.addPath(folder.path());
    scanner.startScan();
    QVERIFY(finish(scanner));
    QCOMPARE(int(received.count()), 0);
}

void tst_fileScanner::passesRootsOverThatAreNotThere()
{
    folder_t folder;
    folder.write("a.txt");
    anyFile_t scanner;
    scanner.addPath(folder.path("gone"));
    scanner.addPath(folder.path());
    scanner.addPath(QString());
    scanner.startScan();
    QVERIFY(finish(scanner));
    QVERIFY(scanner.takeNames().contains("a.txt"));
    QVERIFY(!scanner.visited().contains("gone"));
}

void tst_fileScanner::showsTheRootItselfToTheFilter()
{
    folder_t folder;
    folder.makeDir("drive");
    anyFile_t scanner;
    scanner.addPath(folder.path("drive/"));
    scanner.startScan();
    QVERIFY(finish(scanner));
    QCOMPARE(scanner.visited(), QStringList("drive"));
}

void tst_fileScanner::takesAFileAsARoot()
{
    folder_t folder;
    anyFile_t scanner;
    scanner.addPath(folder.write("a.txt"));
    scanner.startScan();
    QVERIFY(finish(scanner));
    QCOMPARE(scanner.takeNames(), QStringList("a.txt"));
}

void tst_fileScanner::entersADirectoryOnceThoughTwoRootsLeadToIt()
{
    folder_t folder;
    folder.write("updates/a.txt");
    anyFile_t scanner;
    scanner.addPath(folder.path() + "/");
    scanner.addPath(folder.path() + "//updates");
    scanner.startScan();
    QVERIFY(finish(scanner));
    QCOMPARE(scanner.takeNames(), QStringList("a.txt"));
    QCOMPARE(int(scanner.visited().count("updates")), 1);
}

void tst_fileScanner::doesNotEnterWhatTheFilterRefuses()
{
    folder_t folder;
    folder.write("yes/a.txt");
    folder.write("no/b.txt");
    anyFile_t scanner;
    scanner.refused = "no";
    scanner.addPath(folder.path());
    scanner.startScan();
    QVERIFY(finish(scanner));
    QCOMPARE(scanner.takeNames(), QStringList("a.txt"));
}

void tst_fileScanner::survivesLinksThatLeadInCircles()
{
    folder_t folder;
    folder.write("one/a.txt");
    QVERIFY(QFile::link(folder.path(), folder.path("one/up")));
    QVERIFY(QFile::link(folder.path("one"), folder.path("one/self")));
    QVERIFY(QFile::link("loop", folder.path("loop")));
    anyFile_t scanner;
    scanner.addPath(folder.path());
    scanner.startScan();
    QVERIFY(finish(scanner));
    QCOMPARE(scanner.takeNames(), QStringList("a.txt"));
}

void tst_fileScanner::passesLinksThatLeadNowhereOver()
{
    folder_t folder;
    folder.write("a.txt");
    QVERIFY(QFile::link(folder.path("gone"), folder.path("b.txt")));
    anyFile_t scanner;
    scanner.addPath(folder.path());
    scanner.startScan();
    QVERIFY(finish(scanner));
    QCOMPARE(scanner.takeNames(), QStringList("a.txt"));
}

void tst_fileScanner::passesFoldersThatCannotBeReadOver()
{
    folder_t folder;
    folder.write("locked/a.txt");
    folder.write("open/b.txt");
    QVERIFY(QFile::setPermissions(folder.path("locked"), QFile::Permissions()));
    anyFile_t scanner;
    scanner.addPath(folder.path());
    {
        melvox_test::unprivileged_t const user;
        scanner.startScan();
        QVERIFY(finish(scanner));
    }
    QCOMPARE(scanner.takeNames(), QStringList("b.txt"));
}

void tst_fileScanner::leavesHiddenEntriesOut()
{
    folder_t folder;
    folder.write(".Trash-1000/a.txt");
    folder.write(".b.txt");
    folder.write("c.txt");
    anyFile_t scanner;
    scanner.addPath(folder.path());
    scanner.startScan();
    QVERIFY(finish(scanner));
    QCOMPARE(scanner.takeNames(), QStringList("c.txt"));
}

void tst_fileScanner::survivesNamesInOtherEncodings()
{
    folder_t folder;
    folder.write("a.txt");
    folder.write(QString::fromUtf8("\xC3\xA4\xE6\x97\xA5.txt"));
    QByteArray const root = QFile::encodeName(folder.path()) + "/";
    for (char const* name : {"b\xE4\xF6.txt", "\xFF\xFE.txt", "line\nfeed.txt"})
    {
        FILE* const file = fopen((root + name).constData(), "w");
        QVERIFY(file);
        fclose(file);
    }
    anyFile_t scanner;
    scanner.addPath(folder.path());
    scanner.startScan();
    QVERIFY(finish(scanner));
    QStringList const names = scanner.takeNames();
    QVERIFY(names.contains("a.txt"));
    QVERIFY(names.contains(QString::fromUtf8("\xC3\xA4\xE6\x97\xA5.txt")));
    QVERIFY(names.contains("line\nfeed.txt"));
    for (char const* name : {"b\xE4\xF6.txt", "\xFF\xFE.txt"})
        QVERIFY(::remove((root + name).constData()) == 0);
}

void tst_fileScanner::survivesADriveThatIsPulledOut()
{
    folder_t folder;
    for (int i = 0; i < 20; ++i)
        folder.write(QString("drive/%1/file").arg(i));
    anyFile_t scanner;
    scanner.held = true;
    scanner.addPath(folder.path("drive"));
    scanner.startScan();
    scanner.came.acquire(); // the drive
    scanner.go.release();
    scanner.came.acquire(); // its first folder
    folder_t::remove(folder.path("drive"));
    scanner.go.release(1000);
    QVERIFY(finish(scanner));
    QVERIFY(scanner.takeNames().isEmpty());
}

void tst_fileScanner::ignoresASecondStartWhileItRuns()
{
    folder_t folder;
    folder.write("a.txt");
    anyFile_t scanner;
    QSignalSpy started(&scanner, SIGNAL(scanStarted()));
    QSignalSpy finished(&scanner, SIGNAL(scanFinished()));
    scanner.addPath(folder.path());
    scanner.startScan();
    scanner.startScan();
    QVERIFY(finish(scanner));
    melvox_test::settle();
    QCOMPARE(int(started.count()), 1);
    QCOMPARE(int(finished.count()), 1);
    QCOMPARE(scanner.takeNames(), QStringList("a.txt"));
}

void tst_fileScanner::startsAnewAfterItWasStopped()
{
    folder_t folder;
    folder.write("a.txt");
    anyFile_t scanner;
    scanner.held = true;
    scanner.addPath(folder.path());
    scanner.startScan();
    scanner.came.acquire();
    scanner.cancelScan();
    QVERIFY(scanner.isScanning());
    scanner.startScan(); // too early
    scanner.go.release(100);
    QVERIFY(finish(scanner));
    QVERIFY(scanner.takeNames().isEmpty());
    scanner.startScan();
    QVERIFY(finish(scanner));
    QCOMPARE(scanner.takeNames(), QStringList("a.txt"));
}

void tst_fileScanner::stopsWithinATenthOfASecond()
{
    folder_t folder;
    for (int i = 0; i < 1000; ++i)
        folder.write(QString::number(i));
    // The best of a few tries: other programs want this machine too.
    qint64 best = 1000000;
    for (int i = 0; i < 5 && best >= 100; ++i)
    {
        anyFile_t scanner;
        scanner.slow = 10;
        QSignalSpy received(&scanner, SIGNAL(filesReceived()));
        scanner.addPath(folder.path());
        scanner.startScan();
        QVERIFY(waitFor([&] { return received.count() > 0; }));
        QElapsedTimer time;
        time.start();
        scanner.cancelScan();
        QVERIFY(finish(scanner));
        best = qMin(best, time.elapsed());
    }
    QVERIFY2(best < 100, qPrintable(QString::number(best)));
}

void tst_fileScanner::stopsBeforeTheNextEntry()
{
    folder_t folder;
    for (int i = 0; i < 10; ++i)
        folder.write(QString::number(i));
    anyFile_t scanner;
    scanner.held = true;
    scanner.addPath(folder.path());
    scanner.startScan();
    scanner.go.release(3);
    scanner.came.acquire(4);
    scanner.cancelScan();
    scanner.go.release(100);
    QVERIFY(finish(scanner));
    QCOMPARE(int(scanner.visited().size()), 4);
}

void tst_fileScanner::keepsWhatItFoundBeforeItWasStopped()
{
    folder_t folder;
    folder.write("a.txt");
    folder.write("b.txt");
    anyFile_t scanner;
    scanner.held = true;
    scanner.addPath(folder.path());
    scanner.startScan();
    scanner.go.release(2);
    scanner.came.acquire(3);
    scanner.cancelScan();
    scanner.go.release(100);
    QVERIFY(finish(scanner));
    QVERIFY(!scanner.takeNames().isEmpty());
}

void tst_fileScanner::forgetsWhatNobodyTookWhenItStartsAnew()
{
    folder_t folder;
    folder.write("one/a.txt");
    folder.write("two/b.txt");
    anyFile_t scanner;
    scanner.addPath(folder.path("one"));
    scanner.startScan();
    QVERIFY(finish(scanner));
    scanner.clearPaths();
    scanner.addPath(folder.path("two"));
    scanner.startScan();
    QVERIFY(finish(scanner));
    QCOMPARE(scanner.takeNames(), QStringList("b.txt"));
}

void tst_fileScanner::deletesWhatNobodyTook()
{
    folder_t folder;
    folder.write("a.txt");
    folder.write("b.txt");
    scanFile_t* taken;
    {
        countedFile_t scanner;
        scanner.addPath(folder.path());
        scanner.startScan();
        QVERIFY(finish(scanner));
        QCOMPARE(alive, 2);
        taken = scanner.takeScanFile();
        QVERIFY(taken);
    }
    QCOMPARE(alive, 1);
    delete taken;
    QCOMPARE(alive, 0);
}

void tst_fileScanner::canBeDestroyedWhileItRuns()
{
    folder_t folder;
    for (int i = 0; i < 100; ++i)
        folder.write(QString::number(i));
    for (int i = 0; i < 20; ++i)
    {
        anyFile_t scanner;
        scanner.slow = i % 2;
        scanner.addPath(folder.path());
        scanner.startScan();
        if (i % 3)
            melvox_test::settle();
    }
    melvox_test::settle();
}

void tst_fileScanner::scansWhatItsPathsWereWhenItStarted()
{
    folder_t folder;
    folder.write("one/a.txt");
    folder.write("two/b.txt");
    anyFile_t scanner;
    scanner.held = true;
    scanner.addPath(folder.path("one"));
    scanner.startScan();
    scanner.clearPaths();
    scanner.addPath(folder.path("two"));
    scanner.go.release(100);
    QVERIFY(finish(scanner));
    QCOMPARE(scanner.takeNames(), QStringList("a.txt"));
}

void tst_fileScanner::findsTenThousandFiles()
{
    folder_t folder;
    for (int i = 0; i < 10000; ++i)
        folder.write(QString("%1/%2").arg(i % 10).arg(i));
    anyFile_t scanner;
    scanner.addPath(folder.path());
    scanner.startScan();
    QVERIFY(waitFor([&] { return !scanner.isScanning(); }, 30000));
    QCOMPARE(int(scanner.takeNames().size()), 10000);
}

QTEST_MAIN(tst_fileScanner)
#include "tst_fileScanner.moc"
