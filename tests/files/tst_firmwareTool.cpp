#include "brel_common_qt/melvoxFirmware.h"

#include "support/folder.h"
#include "support/test.h"

#include <QProcess>
#include <QStandardPaths>

using namespace brel_common_qt;
using melvox_test::folder_t;

class tst_firmwareTool : public melvox_test::test_t
{
    Q_OBJECT

private:
    int run(QStringList const& arguments, QString const& program = MELVOX_FIRMWARE_PROGRAM);

    QString m_out;
    QString m_error;

private slots:
    void makesAPackageThatTheDisplayFinds();
    void makesThePackageAlikeEachTime();
    void listsWhatAPackageHolds();
    void checksPackages();
    void makesFilesThatOtherToolsRead();
    void leavesNoFileWhenItCannotWrite();
    void saysWhatIsWrong_data();
    void saysWhatIsWrong();
    void tellsItsVersionAndItsOptions();
};

int tst_firmwareTool::run(QStringList const& arguments, QString const& program)
{
    QProcess process;
    process.start(program, arguments);
    if (!process.waitForFinished(30000))
        return -1;
    m_out = QString::fromUtf8(process.readAllStandardOutput());
    m_error = QString::fromUtf8(process.readAllStandardError());
    return process.exitCode();
}

void tst_firmwareTool::makesAPackageThatTheDisplayFinds()
{
    folder_t folder;
    QString const path = folder.path("a.srec");
    QCOMPARE(run({"make", path, "nav=1.15.2", "BOOT1=2.9", "--product", "3"}), 0);
    QList<melvoxFirmwareScanRecord_t> records;
    melvoxFirmwareScanFile(path, records, 8);
    QCOMPARE(int(records.size()), 2);
    QCOMPARE(records.at(0).component, MELVOX_FW_COMP_NAV);
    QCOMPARE(records.at(0).version, QString("1.15.2"));
    QCOMPARE(records.at(0).product, 3);
    QCOMPARE(records.at(1).component, MELVOX_FW_COMP_BOOT1);
}

void tst_firmwareTool::makesThePackageAlikeEachTime()
{
    folder_t folder;
    QCOMPARE(run({"make", folder.path("a.srec"), "NAV=1"}), 0);
    QCOMPARE(run({"make", folder.path("b.srec"), "NAV=1"}), 0);
    QVERIFY(!folder.read("a.srec").isEmpty());
    QCOMPARE(folder.read("a.srec"), folder.read("b.srec"));
}

void tst_firmwareTool::listsWhatAPackageHolds()
{
    folder_t folder;
    QString const path = folder.path("a.srec");
    run({"make", path, "NAV=1.15.2", "GPB=7", "--size", "3"});
    QCOMPARE(run({"list", path}), 0);
    QCOMPARE(m_out, path + ":\n  NAV           1.15.2        product 8  3072 bytes\n"
                           "  GPB           7             product 8  3072 bytes\n");
}

void tst_firmwareTool::checksPackages()
{
    folder_t folder;
    QString const good = folder.path("good.srec");
    run({"make", good, "NAV=1"});
    QString const bad = folder.write("bad.srec", folder.read("good.srec").left(3000));
    QCOMPARE(run({"check", good}), 0);
    QCOMPARE(m_out, good + ": good\n");
    QCOMPARE(run({"check", bad, good}), 1);
    QVERIFY2(m_error.contains(bad + ": line "), qPrintable(m_error));
    QCOMPARE(m_out, good + ": good\n");
    QCOMPARE(run({"check", folder.path("gone")}), 1);
}

void tst_firmwareTool::makesFilesThatOtherToolsRead()
{
    if (QStandardPaths::findExecutable("srec_info").isEmpty())
        QSKIP("srec_info is not installed (Debian: srecord), so nobody else can be asked about these files");
    folder_t folder;
    QString const path = folder.path("a.srec");
    run({"make", path, "NAV=1.15.2", "BOOT1=2.9", "--size", "4"});
    QCOMPARE(run({path}, "srec_info"), 0);
    QVERIFY2(m_out.contains("02000000 - 02000FFF"), qPrintable(m_out));
    QVERIFY2(m_out.contains("0000 - 0FFF") || m_out.contains("00000000 - 00000FFF"), qPrintable(m_out));
    // And it would have noticed.
    QByteArray spoilt = folder.read("a.srec");
    spoilt[200] = spoilt.at(200) == '0' ? '1' : '0';
    QVERIFY(run({folder.write("b.srec", spoilt)}, "srec_info") != 0);
}

void tst_firmwareTool::leavesNoFileWhenItCannotWrite()
{
    folder_t folder;
    QCOMPARE(run({"make", folder.path("gone/a.srec"), "NAV=1"}), 1);
    QVERIFY2(m_error.contains("cannot write"), qPrintable(m_error));
    QCOMPARE(run({"make", folder.path("a.srec"), "NAV=1", "TEA=2"}), 2);
    QVERIFY(!QFile::exists(folder.path("a.srec")));
}

void tst_firmwareTool::saysWhatIsWrong_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("part");
    QTest::newRow("nothing") << QStringList() << "say make";
    QTest::newRow("something else") << QStringList("brew") << "say make";
    QTest::newRow("make nothing") << QStringList("make") << "say make";
    QTest::newRow("make without components") << QStringList{"make", "/tmp/x"} << "such as NAV=1.14.33";
    QTest::newRow("an unknown component") << QStringList{"make", "/tmp/x", "TEA=1"} << "there are: BOOT1, BOOT2, NAV";
    QTest::newRow("no version") << QStringList{"make", "/tmp/x", "NAV"} << "such as NAV=1.14.33";
    QTest::newRow("a version with a blank") << QStringList{"make", "/tmp/x", "NAV=1 2"} << "without blanks";
    QTest::newRow("a product") << QStringList{"make", "/tmp/x", "NAV=1", "--product", "x"} << "--product takes";
    QTest::newRow("a size of nothing") << QStringList{"make", "/tmp/x", "NAV=1", "--size", "0"} << "--size takes";
    QTest::newRow("too large a size") << QStringList{"make", "/tmp/x", "NAV=1", "--size", "16385"} << "--size takes";
    QTest::newRow("list nothing") << QStringList("list") << "name the files";
    QTest::newRow("an unknown option") << QStringList("--milk") << "milk";
}

void tst_firmwareTool::saysWhatIsWrong()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, part);
    QCOMPARE(run(arguments), 2);
    QVERIFY2(m_error.startsWith("melvox_firmware: ") && m_error.contains(part), qPrintable(m_error));
    QVERIFY(m_out.isEmpty());
}

void tst_firmwareTool::tellsItsVersionAndItsOptions()
{
    QCOMPARE(run({"--version"}), 0);
    QVERIFY(m_out.startsWith("melvox_firmware "));
    QCOMPARE(run({"--help"}), 0);
    QVERIFY(m_out.contains("make|list|check"));
}

QTEST_MAIN(tst_firmwareTool)
#include "tst_firmwareTool.moc"
