#include "brel_common_qt/firmwareScan.h"
#include "brel_common_qt/scanStop.h"

#include "support/firmware.h"
#include "support/folder.h"
#include "support/test.h"

#include <sys/stat.h>

using namespace brel_common_qt;
using melvox_test::folder_t;
using melvox_test::package_t;

class tst_firmwareScan : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void namesComponentsInFilesAsOnTheScreen();
    void findsEachComponentOfAFile();
    void putsThePreferredProductFirst();
    void appendsToWhatWasFoundBefore();
    void takesNothingFromADamagedFile_data();
    void takesNothingFromADamagedFile();
    void saysWhyAFileIsNotUsed();
    void doesNotWaitForAPipe();
    void readsAFileOfManyBlocks();
    void findsTheFilesOfADirectoryInTheOrderOfTheirNames();
    void putsThePreferredProductOfADirectoryFirst();
    void leavesFilesOfSeveralComponentsOutOfADirectory();
    void looksIntoADirectoryWithoutItsSubdirectories();
    void findsNothingInADirectoryThatIsNotThere();
    void breaksOffWhenTheScanIsStopped();
};

void tst_firmwareScan::namesComponentsInFilesAsOnTheScreen()
{
    for (int i = 0; i < MELVOX_NUM_FW_COMPONENTS; ++i)
        QCOMPARE(QString(melvox_firmware::componentName(i)),
                 melvoxFirmwareComponentString(melvoxFirmwareComponent_t(i)));
    QVERIFY(!melvox_firmware::componentName(MELVOX_NUM_FW_COMPONENTS));
}

void tst_firmwareScan::findsEachComponentOfAFile()
{
    folder_t folder;
    QString const path = folder.write("a.srec", package_t().add(2, "1.14.40").add(0, "2.1").add(6, "7.7").bytes());
    QList<melvoxFirmwareScanRecord_t> records;
    melvoxFirmwareScanFile(path, records, 8);
    QCOMPARE(int(records.size()), 3);
    QCOMPARE(records.at(0).component, MELVOX_FW_COMP_NAV);
    QCOMPARE(records.at(0).version, QString("1.14.40"));
    QCOMPARE(records.at(0).product, 8);
    QCOMPARE(records.at(0).fileIndex, 0u);
    QCOMPARE(records.at(1).component, MELVOX_FW_COMP_BOOT1);
    QCOMPARE(records.at(1).fileIndex, 1u);
    QCOMPARE(records.at(2).component, MELVOX_FW_COMP_PIO_APP);
    QCOMPARE(records.at(2).version, QString("7.7"));
    QCOMPARE(records.at(2).fileIndex, 2u);
}

void tst_firmwareScan::putsThePreferredProductFirst()
{
    folder_t folder;
    QString const path =
        folder.write("a.srec", package_t().add(0, "a", 3).add(1, "b", 8).add(2, "c", 3).add(3, "d", 8).bytes());
    QList<melvoxFirmwareScanRecord_t> records;
    melvoxFirmwareScanFile(path, records, 8);
    QString order;
    for (melvoxFirmwareScanRecord_t const& record : records)
        order += record.version + QString::number(record.fileIndex);
    QCOMPARE(order, QString("b1d3a0c2"));
}

void tst_firmwareScan::appendsToWhatWasFoundBefore()
{
    folder_t folder;
    QString const path = folder.write("a.srec", package_t().add(2, "1").bytes());
    QList<melvoxFirmwareScanRecord_t> records;
    melvoxFirmwareScanFile(path, records, 8);
    melvoxFirmwareScanFile(path, records, 8);
    QCOMPARE(int(records.size()), 2);
}

void tst_firmwareScan::takesNothingFromADamagedFile_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray const good = package_t().add(2, "1").add(0, "2").bytes();
    QByteArray changed = good;
    changed[changed.size() - 40] = changed.at(changed.size() - 40) == '7' ? '8' : '7';
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("a digit changed near the end") << changed;
    QTest::newRow("cut off") << good.left(good.size() - 60);
    QTest::newRow("something after the end") << good + "and more";
    QTest::newRow("no text") << QByteArray(5000, '\0');
}

void tst_firmwareScan::takesNothingFromADamagedFile()
{
    QFETCH(QByteArray, bytes);
    folder_t folder;
    QString const path = folder.write("a.srec", bytes);
    QList<melvoxFirmwareScanRecord_t> records;
    melvoxFirmwareScanFile(path, records, 8);
    QVERIFY(records.isEmpty());
    QString reason;
    QVERIFY(!melvox_kit::readFirmwareFile(path, records, reason));
    QVERIFY(!reason.isEmpty());
}

namespace
{

QString lastLine;

#if QT_VERSION < 0x050000
void remember(QtMsgType, char const* text)
{
    lastLine = text;
}
#else
void remember(QtMsgType, QMessageLogContext const& context, QString const& text)
{
    lastLine = QString(context.category) + ": " + text;
}
#endif

} // namespace

void tst_firmwareScan::saysWhyAFileIsNotUsed()
{
    folder_t folder;
    QString const path = folder.write("a.srec", "nonsense\n");
    QList<melvoxFirmwareScanRecord_t> records;
#if QT_VERSION < 0x050000
    QtMsgHandler const before = qInstallMsgHandler(&remember);
#else
    QtMessageHandler const before = qInstallMessageHandler(&remember);
#endif
    melvoxFirmwareScanFile(path, records, 8);
    QString const damaged = lastLine;
    melvoxFirmwareScanFile(folder.path("gone.srec"), records, 8);
    QString const gone = lastLine;
#if QT_VERSION < 0x050000
    qInstallMsgHandler(before);
#else
    qInstallMessageHandler(before);
#endif
    QCOMPARE(damaged, QString("melvox.firmware: %1 is not used: line 1: this is not an S-record").arg(path));
    QVERIFY2(gone.contains("gone.srec is not used: "), qPrintable(gone));
}

void tst_firmwareScan::doesNotWaitForAPipe()
{
    folder_t folder;
    QString const pipe = folder.path("pipe");
    QVERIFY(::mkfifo(QFile::encodeName(pipe).constData(), 0600) == 0);
    QVERIFY(QFile::link(pipe, folder.path("a.srec")));
    QList<melvoxFirmwareScanRecord_t> records;
    QString reason;
    QVERIFY(!melvox_kit::readFirmwareFile(pipe, records, reason));
    QCOMPARE(reason, QString("this is not a file"));
    QStringList files;
    melvoxFirmwareScanDir(folder.path(), files, records, 8);
    QVERIFY(records.isEmpty());
    QVERIFY(files.isEmpty());
}

void tst_firmwareScan::readsAFileOfManyBlocks()
{
    folder_t folder;
    QString const path = folder.write("a.srec", package_t().add(2, "1", 8, 700000).add(0, "2", 8, 700000).bytes());
    QVERIFY(QFileInfo(path).size() > 3 * 1024 * 1024);
    QList<melvoxFirmwareScanRecord_t> records;
    melvoxFirmwareScanFile(path, records, 8);
    QCOMPARE(int(records.size()), 2);
}

void tst_firmwareScan::findsTheFilesOfADirectoryInTheOrderOfTheirNames()
{
    folder_t folder;
    folder.write("b.srec", package_t().add(2, "b").bytes());
    folder.write("c.SREC", package_t().add(0, "c").bytes());
    folder.write("a.srec", package_t().add(6, "a").bytes());
    folder.write("bad.srec", "nonsense");
    folder.write("d.txt", package_t().add(1, "d").bytes());
    QStringList files("before");
    QList<melvoxFirmwareScanRecord_t> records;
    records << melvoxFirmwareScanRecord_t();
    melvoxFirmwareScanDir(folder.path(), files, records, 8);
    QCOMPARE(files,
             QStringList() << "before" << folder.path("a.srec") << folder.path("b.srec") << folder.path("c.SREC"));
    QCOMPARE(int(records.size()), 4);
    QCOMPARE(records.at(1).version, QString("a"));
    QCOMPARE(records.at(2).version, QString("b"));
    QCOMPARE(records.at(3).version, QString("c"));
}

void tst_firmwareScan::putsThePreferredProductOfADirectoryFirst()
{
    folder_t folder;
    folder.write("a.srec", package_t().add(2, "a", 3).bytes());
    folder.write("b.srec", package_t().add(2, "b", 8).bytes());
    QStringList files;
    QList<melvoxFirmwareScanRecord_t> records;
    melvoxFirmwareScanDir(folder.path(), files, records, 8);
    QCOMPARE(files, QStringList() << folder.path("b.srec") << folder.path("a.srec"));
    QCOMPARE(records.at(0).version, QString("b"));
}

void tst_firmwareScan::leavesFilesOfSeveralComponentsOutOfADirectory()
{
    folder_t folder;
    folder.write("a.srec", package_t().add(2, "1").add(0, "2").bytes());
    folder.write("b.srec", package_t().add(6, "3").bytes());
    QStringList files;
    QList<melvoxFirmwareScanRecord_t> records;
    melvoxFirmwareScanDir(folder.path(), files, records, 8);
    QCOMPARE(files, QStringList(folder.path("b.srec")));
    QCOMPARE(int(records.size()), 1);
}

void tst_firmwareScan::looksIntoADirectoryWithoutItsSubdirectories()
{
    folder_t folder;
    folder.write("sub/a.srec", package_t().add(2, "1").bytes());
    folder.makeDir("dir.srec");
    QStringList files;
    QList<melvoxFirmwareScanRecord_t> records;
    melvoxFirmwareScanDir(folder.path(), files, records, 8);
    QVERIFY(files.isEmpty());
    QVERIFY(records.isEmpty());
}

void tst_firmwareScan::findsNothingInADirectoryThatIsNotThere()
{
    folder_t folder;
    QStringList files;
    QList<melvoxFirmwareScanRecord_t> records;
    melvoxFirmwareScanDir(folder.path("gone"), files, records, 8);
    QVERIFY(files.isEmpty());
    QVERIFY(records.isEmpty());
}

void tst_firmwareScan::breaksOffWhenTheScanIsStopped()
{
    folder_t folder;
    QString const path = folder.write("a.srec", package_t().add(2, "1").bytes());
    std::atomic<bool> stopped(true);
    QList<melvoxFirmwareScanRecord_t> records;
    QStringList files;
    {
        melvox_kit::scanStop_t const stop(stopped);
        melvoxFirmwareScanFile(path, records, 8);
        melvoxFirmwareScanDir(folder.path(), files, records, 8);
        QVERIFY(records.isEmpty());
        stopped = false;
        melvoxFirmwareScanFile(path, records, 8);
        QCOMPARE(int(records.size()), 1);
    }
    stopped = true;
    melvoxFirmwareScanFile(path, records, 8);
    QCOMPARE(int(records.size()), 2);
}

QTEST_MAIN(tst_firmwareScan)
#include "tst_firmwareScan.moc"
