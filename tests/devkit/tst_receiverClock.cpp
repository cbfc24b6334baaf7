#include "receiver/simClock.h"

#include "support/test.h"

using melvox_receiver::simClock_t;

class tst_receiverClock : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void startsAManualClockAtTheSameTime();
    void turnsAManualClockOnlyByHand();
    void ticksInStepsThatAddUp();
    void isAtTheEndOfTheTickWhileItTicks();
    void startsARealClockAtTheTimeOfDay();
    void runsItsTimerOnlyWhileSomebodyWantsTicks();
    void forgetsWhoeverIsGone();
    void passesTimeAtItsSpeed();
    void standsStillAtSpeedZero();
    void holdsTheSpeedWithinItsRange_data();
    void holdsTheSpeedWithinItsRange();
    void doesNotTickForTimeThatNobodyWanted();
};

void tst_receiverClock::startsAManualClockAtTheSameTime()
{
    simClock_t clock(simClock_t::MANUAL);
    QCOMPARE(QDateTime::fromMSecsSinceEpoch(clock.now()).toUTC(), QDateTime(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC));
}

void tst_receiverClock::turnsAManualClockOnlyByHand()
{
    simClock_t clock(simClock_t::MANUAL);
    qint64 const start = clock.now();
    clock.wantTicks(this, true);
    QVERIFY(!clock.isTicking());
    clock.advance(1234);
    QCOMPARE(clock.now(), start + 1234);
    clock.advance(-5);
    QCOMPARE(clock.now(), start + 1234);
}

void tst_receiverClock::ticksInStepsThatAddUp()
{
    simClock_t clock(simClock_t::MANUAL);
    QList<int> ticks;
    connect(&clock, &simClock_t::ticked, this, [&](int milliseconds) { ticks << milliseconds; });
    clock.advance(250);
    QCOMPARE(ticks, (QList<int>{100, 100, 50}));
}

void tst_receiverClock::isAtTheEndOfTheTickWhileItTicks()
{
    simClock_t clock(simClock_t::MANUAL);
    qint64 const start = clock.now();
    QList<qint64> times;
    connect(&clock, &simClock_t::ticked, this, [&](int) { times << clock.now() - start; });
    clock.advance(150);
    QCOMPARE(times, (QList<qint64>{100, 150}));
}

void tst_receiverClock::startsARealClockAtTheTimeOfDay()
{
    simClock_t clock;
    QVERIFY(qAbs(clock.now() - QDateTime::currentMSecsSinceEpoch()) < 2000);
    qint64 const start = clock.now();
    clock.advance(1000000);
    QVERIFY(clock.now() - start < 100000);
}

void tst_receiverClock::runsItsTimerOnlyWhileSomebodyWantsTicks()
{
    simClock_t clock;
    QObject other;
    QVERIFY(!clock.isTicking());
    clock.wantTicks(this, true);
    clock.wantTicks(&other, true);
    clock.wantTicks(&other, true);
    QVERIFY(clock.isTicking());
    clock.wantTicks(&other, false);
    QVERIFY(clock.isTicking());
    clock.wantTicks(this, false);
    QVERIFY(!clock.isTicking());
}

void tst_receiverClock::forgetsWhoeverIsGone()
{
    simClock_t clock;
    {
        QObject other;
        clock.wantTicks(&other, true);
        QVERIFY(clock.isTicking());
    }
    QVERIFY(!clock.isTicking());
}

void tst_receiverClock::passesTimeAtItsSpeed()
{
    simClock_t clock;
    clock.setSpeed(500);
    clock.wantTicks(this, true);
    qint64 const start = clock.now();
    qint64 ticked = 0;
    QElapsedTimer timer;
    connect(&clock, &simClock_t::ticked, this, [&](int milliseconds) { ticked += milliseconds; });
    timer.start();
    QVERIFY(melvox_test::waitFor([&]() { return ticked >= 100000; }));
    // 100 simulated seconds are 200 ms.
    QVERIFY2(timer.elapsed() >= 150, qPrintable(QString::number(timer.elapsed())));
    QVERIFY(clock.now() - start >= ticked);
}

void tst_receiverClock::standsStillAtSpeedZero()
{
    simClock_t clock;
    clock.setSpeed(0);
    qint64 const start = clock.now();
    QElapsedTimer timer;
    timer.start();
    QVERIFY(melvox_test::waitFor([&]() { return timer.elapsed() > 20; }));
    QCOMPARE(clock.now(), start);
}

void tst_receiverClock::holdsTheSpeedWithinItsRange_data()
{
    QTest::addColumn<double>("given");
    QTest::addColumn<double>("held");
    QTest::newRow("below") << -1.0 << 0.0;
    QTest::newRow("lowest") << 0.0 << 0.0;
    QTest::newRow("half") << 0.5 << 0.5;
    QTest::newRow("highest") << 1000.0 << 1000.0;
    QTest::newRow("above") << 1001.0 << 1000.0;
}

void tst_receiverClock::holdsTheSpeedWithinItsRange()
{
    QFETCH(double, given);
    QFETCH(double, held);
    simClock_t clock;
    QCOMPARE(clock.speed(), 1.0);
    clock.setSpeed(given);
    QCOMPARE(clock.speed(), held);
}

void tst_receiverClock::doesNotTickForTimeThatNobodyWanted()
{
    simClock_t clock;
    clock.setSpeed(1000);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(melvox_test::waitFor([&]() { return timer.elapsed() > 300; }));
    clock.setSpeed(1);
    qint64 ticked = 0;
    connect(&clock, &simClock_t::ticked, this, [&](int milliseconds) { ticked += milliseconds; });
    clock.wantTicks(this, true);
    QVERIFY(melvox_test::waitFor([&]() { return ticked > 0; }));
    QVERIFY2(ticked < 60000, qPrintable(QString::number(ticked)));
}

QTEST_MAIN(tst_receiverClock)
#include "tst_receiverClock.moc"
