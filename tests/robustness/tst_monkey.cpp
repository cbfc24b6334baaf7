#include "shrink.h"
#include "supervisor.h"
#include "support/test.h"

#include <QProcess>

#include <algorithm>

using namespace melvox_robustness;

namespace
{

int const LONGEST_RUN = 120000; // milliseconds
/** Show the page, arm it, and tap three times are five; some faults need one more to be seen. */
int const FEW = 8;
/** For blocks the lock must be asked for and granted before, by a receiver that does as it likes. */
int const FEW_WITH_LOCK = 20;

struct result_t
{
    int code;
    QString output;
};

result_t monkey(QStringList const& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(MELVOX_MONKEY_PROGRAM, arguments);
    if (!process.waitForFinished(LONGEST_RUN))
        return {-1, "it does not come to an end"};
    return {process.exitCode(), QString::fromUtf8(process.readAll())};
}

bool has(steps_t const& steps, int step)
{
    return std::find(steps.begin(), steps.end(), step) != steps.end();
}

steps_t upTo(int count)
{
    steps_t steps;
    for (int i = 0; i < count; ++i)
        steps.push_back(i);
    return steps;
}

} // namespace

/** The checks of the monkey, checked. */
class tst_monkey : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void findsEachFaultAndTheFewStepsToIt_data();
    void findsEachFaultAndTheFewStepsToIt();
    void findsNothingWhereNothingIsWrong();
    void shrinksToTheStepsThatMatter();
    void shrinksNoFurtherOnceTimeIsUp();
    void writesStepsAsItReadsThem();
    void refusesStepsThatAreNone_data();
    void refusesStepsThatAreNone();
};

void tst_monkey::findsEachFaultAndTheFewStepsToIt_data()
{
    QTest::addColumn<QString>("told");
    QTest::addColumn<int>("few");
    QTest::newRow("unasked") << "unasked: sent without knowing the receiver's value: pdopLimit 3" << FEW;
    QTest::newRow("warning") << "warning: something is wrong" << FEW;
    QTest::newRow("crash") << "crash: " << FEW;
    QTest::newRow("lock") << "lock: the lock is held while nothing is transferred" << FEW;
    QTest::newRow("unlocked") << "unlocked: a block of a profile is sent without the lock" << FEW;
    QTest::newRow("blocks") << "blocks: more than one block" << FEW_WITH_LOCK;
    QTest::newRow("dialog") << "dialog: a page is shown whose dialog is gone" << FEW;
    QTest::newRow("growth") << "growth: " << FEW;
}

void tst_monkey::findsEachFaultAndTheFewStepsToIt()
{
    QFETCH(QString, told);
    QFETCH(int, few);
    result_t const result = monkey(
        {"--seed", "5", "--steps", "2000", "--round", "500", "--shrink", "60", "--fault", QTest::currentDataTag()});
    QCOMPARE(result.code, 1);
    QVERIFY2(result.output.contains(told), qPrintable(result.output));
    QVERIFY2(result.output.contains("seed 5 fails at step"), qPrintable(result.output));
    QString const only = result.output.section("--only ", 1).trimmed();
    steps_t steps;
    QVERIFY2(fromText(only, steps), qPrintable(result.output));
    QVERIFY2(!steps.empty() && int(steps.size()) <= few, qPrintable(result.output));
}

void tst_monkey::findsNothingWhereNothingIsWrong()
{
    result_t const result = monkey({"--seed", "5", "--steps", "2000", "--round", "500", "--fault", "none"});
    QVERIFY2(result.code == 0, qPrintable(result.output));
}

void tst_monkey::shrinksToTheStepsThatMatter()
{
    steps_t const left = shrunk(
        upTo(1000), [](steps_t const& steps) { return has(steps, 3) && has(steps, 500) && has(steps, 999); },
        [] { return false; });
    QCOMPARE(left, steps_t({3, 500, 999}));
}

void tst_monkey::shrinksNoFurtherOnceTimeIsUp()
{
    steps_t const all = upTo(100);
    QCOMPARE(shrunk(
                 all, [](steps_t const&) { return true; }, [] { return true; }),
             all);
}

void tst_monkey::writesStepsAsItReadsThem()
{
    steps_t steps;
    QVERIFY(fromText("0-3,7,9-10", steps));
    QCOMPARE(steps, steps_t({0, 1, 2, 3, 7, 9, 10}));
    QCOMPARE(toText(steps), QString("0-3,7,9-10"));
}

void tst_monkey::refusesStepsThatAreNone_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("word") << "word";
    QTest::newRow("backwards") << "3-1";
    QTest::newRow("hole") << "1,,2";
    QTest::newRow("negative") << "-4";
}

void tst_monkey::refusesStepsThatAreNone()
{
    QFETCH(QString, text);
    steps_t steps;
    QVERIFY(!fromText(text, steps));
}

QTEST_GUILESS_MAIN(tst_monkey)
#include "tst_monkey.moc"
