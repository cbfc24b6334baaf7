#include "proxycheck/groupRows.h"
#include "proxycheck/proxyCheck.h"
#include "support/test.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>

using namespace melvox_proxycheck;

namespace
{

struct outcome_t
{
    int code;
    QString out;
    QString error;
};

/** Long enough for the slowest group on a busy machine. */
int const LONGEST_RUN = 100000; // milliseconds

outcome_t start(QString const& program, QStringList const& arguments, QString const& broken = QString())
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("MELVOX_BREAK", broken);
    // A proxy that is declared anew has what the library has too, on purpose.
    environment.insert("ASAN_OPTIONS", "detect_odr_violation=0");
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    bool const finished = process.waitForFinished(LONGEST_RUN);
    outcome_t const outcome = {finished && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                               QString::fromUtf8(process.readAllStandardOutput()),
                               QString::fromUtf8(process.readAllStandardError())};
    return outcome;
}

QString textOf(char const* path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

/** The check itself: it finds nothing in a good proxy, and in a broken one what is broken and nothing else. */
class tst_proxyCheck : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void theKitsProxyIsClean();
    void eachBreakIsFoundAndNothingElse_data();
    void eachBreakIsFoundAndNothingElse();
    void aProxyWithoutABreakIsCleanAlsoWhenItIsPutTogetherAnew();
    void aSignalThatIsNotDeclaredIsFound();
    void oneGroupCanBeCheckedAlone();
    void listsAllGroups();
    void saysHowItIsCalled();
    void namesTheGroupsWhenThereIsNoneOfAName();
    void refusesArgumentsItDoesNotKnow_data();
    void refusesArgumentsItDoesNotKnow();
    void everyOperationOfTheProxyIsCalled();
};

void tst_proxyCheck::theKitsProxyIsClean()
{
    outcome_t const outcome = start(MELVOX_PROXY_CHECK, {});
    QCOMPARE(outcome.out, QString("%1 groups checked, 0 findings\n").arg(groupNames().size()));
    QCOMPARE(outcome.error, QString());
    QCOMPARE(outcome.code, 0);
}

void tst_proxyCheck::eachBreakIsFoundAndNothingElse_data()
{
    QTest::addColumn<QString>("finding"); // a number of milliseconds reads N
    QTest::newRow("validityNeverSet") << "pdopLimit: the getters after its report: expected valid 4.75, seen not valid";
    QTest::newRow("validBeforeAnyReport")
        << "correctionSelection: the getters before any report: expected not valid, seen valid 0";
    QTest::newRow("getterWritesOutputOnFalse")
        << "correctionMaxAge: the getters before any report: expected - - -, seen overwritten overwritten overwritten "
           "beyond the range overwritten beyond the range overwritten";
    QTest::newRow("portBeyondTheRange")
        << "portTxRxInfo: the getters before any report: expected nothing, seen beyond the range (no no 0 0)";
    QTest::newRow("oneAntennaForBoth")
        << "antennaHeight: the getters after its report: expected valid (yes 1.5 2.5 3.5) (no 4.5 5.5 6.5), "
           "seen valid (yes 1.5 2.5 3.5) (yes 1.5 2.5 3.5)";
    QTest::newRow("signalBeforeCache")
        << "geoidalModel: the getters when its signal comes: expected valid 2, seen not valid";
    QTest::newRow("wrongArgument")
        << "elevationMask: the signals after its report: expected elevationMaskUpdated 12.5, "
           "seen elevationMaskUpdated 13.5";
    QTest::newRow("signalOnlyOnChange") << "usbMode: the signals after its report: expected usbModeUpdated 0, "
                                           "seen nothing";
    QTest::newRow("signalTwice") << "rtgUseMode: the signals after its report: expected rtgUseModeUpdated 1, "
                                    "seen rtgUseModeUpdated 1; rtgUseModeUpdated 1";
    QTest::newRow("otherThread") << "netPriority: the thread of its signals: expected the one that the proxy lives in, "
                                    "seen another one";
    QTest::newRow("listEventsOutOfOrder")
        << "profiles: the signals after its report: expected profilesCleared; profileUpdated \"night\" 4294967294; "
           "profileUpdated \"day\" 1, seen profileUpdated \"night\" 4294967294; profilesCleared; "
           "profileUpdated \"day\" 1";
    QTest::newRow("lockSignalMissing") << "portLock: the signals after its report: expected lockStateUpdated 2, "
                                          "seen nothing";
    QTest::newRow("reportInsideRequest") << "ppsConfig: the request, the signals within the call: expected nothing, "
                                            "seen ppsConfigUpdated (0 50000 1000 3 120)";
    QTest::newRow("blockingRequest") << "diffConfig: the request, the call: expected that it returns within N ms, "
                                        "seen N ms at best of 3";
    QTest::newRow("requestRunsTheEventLoop")
        << "webControl: the request, the call: expected that the event loop stands still, seen that it ran within";
    QTest::newRow("requestNotSent") << "activePort: the request, what the receiver hears: expected a message, "
                                       "seen nothing";
    QTest::newRow("orderChangesTheCache")
        << "rtcmVersion: setRtcmVersion, the getters before the receiver's answer: expected valid 0, seen valid 1";
    QTest::newRow("orderAnswersItself")
        << "talkerIdMode: setTalkerIdMode, the signals within the call: expected nothing, seen talkerIdModeUpdated 2";
    QTest::newRow("orderNotSent") << "baseName: setBaseName, what the receiver hears last: "
                                     "expected baseName \"EAST 2\", seen baseName";
    QTest::newRow("orderSwapsFields") << "basePosition: setBasePosition, what the receiver hears last: "
                                         "expected basePosition (height=99.5 latitude=0.75 longitude=-1.25), "
                                         "seen basePosition (height=99.5 latitude=-1.25 longitude=0.75)";
}

void tst_proxyCheck::eachBreakIsFoundAndNothingElse()
{
    QFETCH(QString, finding);
    outcome_t outcome = start(MELVOX_BROKEN_PROXY, {"--wait", "300"}, QTest::currentDataTag());
    outcome.out.replace(QRegularExpression("\\d+ ms"), "N ms");
    QCOMPARE(outcome.out, QString("%1\n%2 groups checked, 1 finding\n").arg(finding).arg(groupNames().size()));
    QCOMPARE(outcome.code, 1);
}

// What the rows above find must come of the break alone.
void tst_proxyCheck::aProxyWithoutABreakIsCleanAlsoWhenItIsPutTogetherAnew()
{
    outcome_t const outcome = start(MELVOX_BROKEN_PROXY, {}, "none");
    QCOMPARE(outcome.out, QString("%1 groups checked, 0 findings\n").arg(groupNames().size()));
    QCOMPARE(outcome.code, 0);
}

void tst_proxyCheck::aSignalThatIsNotDeclaredIsFound()
{
    outcome_t const outcome = start(MELVOX_BROKEN_DECLARATION, {});
    QCOMPARE(outcome.out, QString("badBaud: the declared signals: expected badBaudDetected(), seen nothing\n"
                                  "%1 groups checked, 1 finding\n")
                              .arg(groupNames().size()));
    QCOMPARE(outcome.code, 1);
}

void tst_proxyCheck::oneGroupCanBeCheckedAlone()
{
    outcome_t const outcome =
        start(MELVOX_BROKEN_PROXY, {"--group", "geoidalModel", "--group", "baseName"}, "validityNeverSet");
    QCOMPARE(outcome.out, QString("2 groups checked, 0 findings\n"));
    QCOMPARE(outcome.code, 0);
}

void tst_proxyCheck::listsAllGroups()
{
    outcome_t const outcome = start(MELVOX_PROXY_CHECK, {"--list"});
    QCOMPARE(outcome.out, groupNames().join("\n") + "\n");
    QVERIFY(groupNames().contains("enumerations") && groupNames().contains("portLock"));
    QCOMPARE(groupNames().removeDuplicates(), 0);
    QCOMPARE(outcome.code, 0);
}

void tst_proxyCheck::saysHowItIsCalled()
{
    outcome_t const outcome = start(MELVOX_PROXY_CHECK, {"--help"});
    for (char const* option : {"--group NAME", "--list", "--wait MS", "--help"})
        QVERIFY2(outcome.out.contains(option), option);
    QCOMPARE(outcome.code, 0);
}

void tst_proxyCheck::namesTheGroupsWhenThereIsNoneOfAName()
{
    outcome_t const outcome = start(MELVOX_PROXY_CHECK, {"--group", "elevationmask"});
    QVERIFY(
        outcome.error.contains("there is no group \"elevationmask\"; the groups are: enumerations, elevationMask,"));
    QCOMPARE(outcome.out, QString());
    QCOMPARE(outcome.code, 2);
}

void tst_proxyCheck::refusesArgumentsItDoesNotKnow_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("error");
    QTest::newRow("unknown") << QStringList("--groups")
                             << "unknown: --groups; known are --group, --list, --wait and --help";
    QTest::newRow("no value") << QStringList("--group") << "--group needs a value";
    QTest::newRow("no number") << QStringList({"--wait", "long"})
                               << "--wait takes a whole number of milliseconds from 1 to 600000, not \"long\"";
    QTest::newRow("no time") << QStringList({"--wait", "0"})
                             << "--wait takes a whole number of milliseconds from 1 to 600000, not \"0\"";
}

void tst_proxyCheck::refusesArgumentsItDoesNotKnow()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, error);
    outcome_t const outcome = start(MELVOX_PROXY_CHECK, arguments);
    QCOMPARE(outcome.error, "melvox_proxy_check: " + error + "\n");
    QCOMPARE(outcome.code, 2);
}

// An operation that is declared one day must not be left out.
void tst_proxyCheck::everyOperationOfTheProxyIsCalled()
{
    QString const rows = textOf(MELVOX_PROXY_ROWS);
    QRegularExpressionMatchIterator found =
        QRegularExpression("^    (?!explicit|friend)[\\w:<>&* ]+[ *&](\\w+)\\([^;]*;",
                           QRegularExpression::MultilineOption)
            .globalMatch(textOf(MELVOX_PROXY_HEADER).section("signals:", 0, 0));
    int count = 0;
    while (found.hasNext())
    {
        QString const name = found.next().captured(1);
        ++count;
        QVERIFY2(rows.contains(QRegularExpression("(\\.|::)" + name + "\\b")), qPrintable(name));
    }
    QVERIFY(count > 100);
}

QTEST_MAIN(tst_proxyCheck)
#include "tst_proxyCheck.moc"
