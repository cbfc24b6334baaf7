#include "display/displayStyle.h"
#include "journalReplay.h"
#include "support/test.h"

#include <QApplication>
#include <QDir>

/** What a customer saw: each journal in the folder is played, and the pages must send what they sent then. */
class tst_journals : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void initTestCase() { melvox_display::applyDisplayStyle(*qApp); }

    void sendsWhatTheJournalSays_data()
    {
        QTest::addColumn<QString>("file");
        QDir const folder(MELVOX_JOURNALS);
        QStringList const names = folder.entryList({"*.jsonl"}, QDir::Files, QDir::Name);
        QVERIFY2(!names.isEmpty(), qPrintable("there are no journals in " + folder.path()));
        for (QString const& name : names)
            QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }

    void sendsWhatTheJournalSays()
    {
        QFETCH(QString, file);
        QStringList const differences = melvox_test::replayed(file);
        QVERIFY2(differences.isEmpty(), qPrintable(differences.join("\n")));
    }
};

QTEST_MAIN(tst_journals)
#include "tst_journals.moc"
