#include "link/journal.h"
#include "support/test.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace
{

struct outcome_t
{
    int exitCode;
    QString output;
    QString errors;
};

/** Runs the program where there is no screen. */
outcome_t run(QStringList const& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (char const* variable : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(variable);
    process.setProcessEnvironment(environment);
    process.start(MELVOX_DISPLAY_PROGRAM, arguments);
    bool const ended = process.waitForFinished(60000) && process.exitStatus() == QProcess::NormalExit;
    return {ended ? process.exitCode() : -1, QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

class tst_displayProgram : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void helpAndVersionNeedNoScreen()
    {
        outcome_t const help = run({"--help"});
        QCOMPARE(help.exitCode, 0);
        QVERIFY(help.output.contains("--connect"));
        QVERIFY(help.errors.isEmpty());
        outcome_t const version = run({"--version"});
        QCOMPARE(version.exitCode, 0);
        QVERIFY(version.output.startsWith("melvox_display "));
    }

    void wrongCommandLineIsRefused_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("part");
        QTest::newRow("option") << QStringList{"--sise", "800x480"} << "There is no option \"--sise\".";
        QTest::newRow("value") << QStringList{"--size", "big"} << "--size takes";
        QTest::newRow("profiles") << QStringList{"--platform", "offscreen", "--profiles", "/dev/null/profiles"}
                                  << "may make, read and write, not \"/dev/null/profiles\".";
        QTest::newRow("page") << QStringList{"--page", "none"} << "The pages are: solutionControl,";
    }

    void wrongCommandLineIsRefused()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, part);
        outcome_t const outcome = run(arguments);
        QCOMPARE(outcome.exitCode, 2);
        QVERIFY2(outcome.errors.contains(part), qPrintable(outcome.errors));
        QVERIFY(outcome.output.isEmpty());
    }

    void aJournalWithAnErrorStartsNothing()
    {
        QTemporaryDir folder;
        QString const file = folder.filePath("a.jsonl");
        QFile journal(file);
        QVERIFY(journal.open(QIODevice::WriteOnly));
        journal.write("{\"journal\":\"melvox\",\"version\":9}\n");
        journal.close();
        outcome_t const played = run({"--replay", file, "--record", folder.filePath("b.jsonl")});
        QCOMPARE(played.exitCode, 2);
        QCOMPARE(played.errors,
                 QString("melvox_display: %1:1: the journal has the format version 9; this program reads "
                         "version 1\n")
                     .arg(file));
        QVERIFY(played.output.isEmpty());
        QVERIFY(!QFile::exists(folder.filePath("b.jsonl")));
        outcome_t const recorded = run({"--record", file});
        QCOMPARE(recorded.exitCode, 2);
        QVERIFY2(recorded.errors.contains("there is a file"), qPrintable(recorded.errors));
    }

    void aCrashLeavesAJournalThatCanBePlayed()
    {
        QTemporaryDir folder;
        QString const file = folder.filePath("a.jsonl");
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        process.setProcessEnvironment(environment);
        process.start(MELVOX_DISPLAY_PROGRAM, {"--record", file, "--settings", folder.filePath("display.conf")});
        auto const isWritten = [&file]()
        {
            QFile journal(file);
            return journal.open(QIODevice::ReadOnly) && journal.readAll().contains("\"kind\":\"report\"");
        };
        QVERIFY(melvox_test::waitFor(isWritten, 60000));
        process.kill();
        QVERIFY(process.waitForFinished());
        melvox_link::journal_t journal;
        QString fault;
        QVERIFY2(melvox_link::readJournal(file, journal, fault), qPrintable(fault));
        QVERIFY(!journal.isWhole);
    }

    void tourNeedsNoScreenAndListsItsPictures()
    {
        QTemporaryDir folder;
        outcome_t const outcome = run({"--tour", folder.filePath("pictures"), "--size", "1024x600", "--settings",
                                       folder.filePath("display.conf")});
        QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.errors));
        QDir const pictures(folder.filePath("pictures"));
        QStringList const names = pictures.entryList({"*.png"});
        QVERIFY(names.size() > 5);
        for (QString const& name : names)
            QVERIFY2(outcome.output.contains(name), qPrintable(name));
        QCOMPARE(QImage(pictures.filePath(names.first())).size(), QSize(1024, 600));
        QVERIFY(outcome.output.contains(QString("%1 pictures, 0 faults").arg(names.size())));
    }
};

QTEST_GUILESS_MAIN(tst_displayProgram)
#include "tst_displayProgram.moc"
