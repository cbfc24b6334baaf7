#include "behaviourTest.h"

#include "receiver/correctionSignal.h"

using namespace melvox_receiver;

namespace
{

qint64 const SECOND = 1000;
qint64 const MINUTE = 60 * SECOND;
qint64 const HOUR = 60 * MINUTE;

int const HIGH = 446; // the satellite that stands highest, and the one that stands lowest
int const LOW = 643;

QVariantMap policy(int mode, int hours, int minutes)
{
    return {{"mode", mode}, {"hours", hours}, {"minutes", minutes}};
}

QVariantMap userSat(int id)
{
    return {{"defined", true}, {"id", id}, {"frequency", 1545500.0}};
}

} // namespace

class tst_correctionsBehaviour : public melvox_test::behaviourTest_t
{
    Q_OBJECT

private:
    void start() { QVERIFY(receiver->setSituation("correctionReports", true)); }
    /** For long times, which are over sooner with nothing to receive. */
    void startWithoutSatellites()
    {
        QVERIFY(receiver->setSituation("correctionSatsInView", QVariantList()));
        start();
    }
    QVariantMap stats(int id) const;
    QList<int> ids(QString const& group) const;
    int inUse() const { return receiver->setting("correctionSatStats").toMap().value("inUse").toInt(); }
    bool waitForStatus(int id, int status, qint64 longest);
    bool isReady() const { return receiver->setting("starfireAlmStatus").toMap().value("newReady").toBool(); }
    qint64 almanacTime() const
    {
        return receiver->setting("mrvAlmanacInfo").toMap().value("updateTime").toLongLong() * SECOND;
    }

private slots:
    void restsUntilItIsToldToReport();
    void tellsStatisticsEverySecond();
    void keepsToWholeSecondsHoweverTheClockIsTurned();
    void takesASignalFromPowerOnToLock();
    void losesAndFindsSignalsAgain();
    void doesNotAlwaysFindALowSatellite();
    void tellsBelievableNumbers();
    void tellsNoPacketsBeforeLock();
    void receivesHighSatellitesBetter();
    void usesTheStrongestLockedSatellite();
    void keepsTheSatelliteInUseWhileItIsLocked();
    void looksForTheSelectedSatelliteOnly();
    void usesNoneWhileTheSelectedSatelliteIsNotLocked();
    void looksForAllAgainAfterAutoSelect();
    void dropsSatellitesThatGoOutOfView();
    void receivesSatellitesThatComeIntoView();
    void receivesAUserDefinedSatellite();
    void forgetsAUserDefinedSatellite();
    void goesAutomaticWhenTheSelectedSatelliteIsDeleted();
    void startsAnewAfterARestart();
    void hadAnAlmanacTheDayBefore();
    void takesTheAlmanacAfterThePolicysTime();
    void takesTheAlmanacAtOnceWithoutATime();
    void takesAnAlmanacThatComesAtOnceWithoutATime();
    void leavesTheAlmanacToTheOperator();
    void takesTheAlmanacWhenTheOperatorSaysSo();
    void hasANewAlmanacADayLater();
    void takesWordOfANewAlmanac();
    void refusesSituationsThatItDoesNotKnow_data();
    void refusesSituationsThatItDoesNotKnow();
};

QVariantMap tst_correctionsBehaviour::stats(int id) const
{
    for (QVariant const& record : receiver->setting("correctionSatStats").toMap().value("sats").toList())
    {
        if (record.toMap().value("id").toInt() == id)
            return record.toMap();
    }
    return QVariantMap();
}

QList<int> tst_correctionsBehaviour::ids(QString const& group) const
{
    QVariant const value = receiver->setting(group);
    QList<int> ids;
    for (QVariant const& record :
         value.userType() == QMetaType::QVariantMap ? value.toMap().value("sats").toList() : value.toList())
        ids << record.toMap().value("id").toInt();
    return ids;
}

bool tst_correctionsBehaviour::waitForStatus(int id, int status, qint64 longest)
{
    for (qint64 waited = 0; waited < longest; waited += SECOND)
    {
        clock->advance(SECOND);
        QVariantMap const record = stats(id);
        if (!record.isEmpty() && record.value("status").toInt() == status)
            return true;
    }
    return false;
}

void tst_correctionsBehaviour::restsUntilItIsToldToReport()
{
    clock->advance(10 * SECOND);
    QVERIFY(display->messages.isEmpty());
    start();
    clock->advance(10 * SECOND);
    QCOMPARE(int(told("correctionSatStats").size()), 10);
    QVERIFY(receiver->setSituation("correctionReports", false));
    display->messages.clear();
    clock->advance(10 * SECOND);
    QVERIFY(display->messages.isEmpty());
}

void tst_correctionsBehaviour::tellsStatisticsEverySecond()
{
    start();
    clock->advance(MINUTE);
    QCOMPARE(int(told("correctionSatStats").size()), 60);
    QCOMPARE(ids("correctionSatStats"), (QList<int>{446, 625, 643, 678}));
}

void tst_correctionsBehaviour::keepsToWholeSecondsHoweverTheClockIsTurned()
{
    start();
    clock->advance(950);
    QCOMPARE(int(told("correctionSatStats").size()), 0);
    clock->advance(70);
    QCOMPARE(int(told("correctionSatStats").size()), 1);
    clock->advance(1979);
    QCOMPARE(int(told("correctionSatStats").size()), 2);
    clock->advance(1);
    QCOMPARE(int(told("correctionSatStats").size()), 3);
}

void tst_correctionsBehaviour::takesASignalFromPowerOnToLock()
{
    start();
    QList<int> seen;
    for (int second = 0; second < 30; ++second)
    {
        clock->advance(SECOND);
        int const status = stats(HIGH).value("status").toInt();
        if (seen.isEmpty() || seen.last() != status)
            seen << status;
    }
    QCOMPARE(seen, (QList<int>{WAIT_FOR_AGC, START_OF_PROCESSING, VFFT, SIGNAL_DETECTION, FREQUENCY_VERIFY,
                               SIGNAL_ACQUISITION, PULL_IN, LOCKED}));
}

void tst_correctionsBehaviour::losesAndFindsSignalsAgain()
{
    start();
    QVERIFY(waitForStatus(HIGH, LOCKED, MINUTE));
    QCOMPARE(stats(HIGH).value("resyncCount").toInt(), 0);
    QVERIFY(waitForStatus(HIGH, START_OF_PROCESSING, 4 * HOUR));
    QCOMPARE(stats(HIGH).value("goodPercent").toDouble(), 0.0);
    QVERIFY(waitForStatus(HIGH, LOCKED, MINUTE));
    QCOMPARE(stats(HIGH).value("resyncCount").toInt(), 1);
}

void tst_correctionsBehaviour::doesNotAlwaysFindALowSatellite()
{
    start();
    QVERIFY(waitForStatus(LOW, DETECTION_FAILED, HOUR));
    QVERIFY(waitForStatus(LOW, START_OF_PROCESSING, MINUTE));
    QVERIFY(waitForStatus(LOW, LOCKED, HOUR));
}

void tst_correctionsBehaviour::tellsBelievableNumbers()
{
    start();
    for (int second = 0; second < 600; ++second)
    {
        clock->advance(SECOND);
        for (int id : ids("correctionSatStats"))
        {
            QVariantMap const record = stats(id);
            double const strength = record.value("strength").toDouble();
            double const agc = record.value("agcVoltage").toDouble();
            double const good = record.value("goodPercent").toDouble();
            double const idle = record.value("idlePercent").toDouble();
            QVERIFY(strength >= 0 && strength < 30);
            QVERIFY(agc >= 0 && agc < 2);
            QVERIFY(good >= 0 && good <= 100 && idle >= 0 && idle <= 100);
            QVERIFY(record.value("beam").toInt() > 0);
            QVERIFY(record.value("status").toInt() <= VFFT);
        }
    }
}

void tst_correctionsBehaviour::tellsNoPacketsBeforeLock()
{
    start();
    for (int second = 0; second < 20; ++second)
    {
        clock->advance(SECOND);
        bool const locked = stats(HIGH).value("status").toInt() == LOCKED;
        QCOMPARE(stats(HIGH).value("goodPercent").toDouble() > 0, locked);
        QCOMPARE(stats(HIGH).value("idlePercent").toDouble() > 0, locked);
    }
    clock->advance(20 * SECOND);
    QVERIFY(stats(HIGH).value("goodPercent").toDouble() > 95);
}

void tst_correctionsBehaviour::receivesHighSatellitesBetter()
{
    correctionSignal_t const high(1, 1, 41);
    correctionSignal_t const low(2, 2, 12);
    QVERIFY(high.bestStrength() > low.bestStrength() + 5);
    start();
    QVERIFY(waitForStatus(HIGH, LOCKED, MINUTE));
    QVERIFY(qAbs(stats(HIGH).value("strength").toDouble() - 17.3) < 1.5);
}

void tst_correctionsBehaviour::usesTheStrongestLockedSatellite()
{
    start();
    clock->advance(10 * SECOND);
    QCOMPARE(inUse(), 0);
    clock->advance(20 * SECOND);
    QCOMPARE(inUse(), HIGH);
}

void tst_correctionsBehaviour::keepsTheSatelliteInUseWhileItIsLocked()
{
    start();
    QVERIFY(receiver->setSituation("correctionSatsInView", QVariantList{625}));
    QVERIFY(waitForStatus(625, LOCKED, MINUTE));
    QCOMPARE(inUse(), 625);
    QVERIFY(receiver->setSituation("correctionSatsInView", QVariantList{625, HIGH}));
    QVERIFY(waitForStatus(HIGH, LOCKED, MINUTE));
    QCOMPARE(stats(625).value("status").toInt(), int(LOCKED));
    QCOMPARE(inUse(), 625);
    QVERIFY(receiver->setSituation("correctionSatsInView", QVariantList{HIGH}));
    clock->advance(SECOND);
    QCOMPARE(inUse(), HIGH);
}

void tst_correctionsBehaviour::looksForTheSelectedSatelliteOnly()
{
    start();
    clock->advance(MINUTE);
    display->command("correctionSatSelection", QVariantMap{{"auto", false}, {"id", 678}});
    clock->advance(SECOND);
    QCOMPARE(stats(HIGH).value("status").toInt(), int(PROCESSING_DISABLED));
    QCOMPARE(stats(625).value("status").toInt(), int(PROCESSING_DISABLED));
    QVERIFY(stats(678).value("status").toInt() != PROCESSING_DISABLED);
    QVERIFY(waitForStatus(678, LOCKED, MINUTE));
    QCOMPARE(inUse(), 678);
}

void tst_correctionsBehaviour::usesNoneWhileTheSelectedSatelliteIsNotLocked()
{
    start();
    clock->advance(MINUTE);
    display->command("correctionSatSelection", QVariantMap{{"auto", false}, {"id", 678}});
    QVERIFY(receiver->setSituation("correctionSatsInView", QVariantList{HIGH}));
    clock->advance(SECOND);
    QCOMPARE(inUse(), 0);
    QVERIFY(stats(678).isEmpty());
}

void tst_correctionsBehaviour::looksForAllAgainAfterAutoSelect()
{
    start();
    display->command("correctionSatSelection", QVariantMap{{"auto", false}, {"id", 678}});
    clock->advance(MINUTE);
    display->command("correctionSatSelection", QVariantMap{{"auto", true}});
    clock->advance(SECOND);
    QCOMPARE(stats(HIGH).value("status").toInt(), int(VFFT));
    QVERIFY(waitForStatus(HIGH, LOCKED, MINUTE));
}

void tst_correctionsBehaviour::dropsSatellitesThatGoOutOfView()
{
    start();
    clock->advance(MINUTE);
    display->messages.clear();
    QVERIFY(receiver->setSituation("correctionSatsInView", QVariantList{HIGH, LOW}));
    clock->advance(SECOND);
    QCOMPARE(ids("correctionSats"), (QList<int>{HIGH, LOW}));
    QCOMPARE(ids("correctionSatStats"), (QList<int>{HIGH, LOW}));
    QCOMPARE(int(told("correctionSats").size()), 1);
    QVERIFY(receiver->setSituation("correctionSatsInView", QVariantList()));
    clock->advance(SECOND);
    QVERIFY(ids("correctionSats").isEmpty());
    QVERIFY(ids("correctionSatStats").isEmpty());
    QCOMPARE(inUse(), 0);
}

void tst_correctionsBehaviour::receivesSatellitesThatComeIntoView()
{
    start();
    QVERIFY(receiver->setSituation("correctionSatsInView", QVariantList{LOW}));
    clock->advance(MINUTE);
    QVERIFY(receiver->setSituation("correctionSatsInView", QVariantList{LOW, HIGH}));
    clock->advance(SECOND);
    QCOMPARE(stats(HIGH).value("status").toInt(), int(WAIT_FOR_AGC));
}

void tst_correctionsBehaviour::receivesAUserDefinedSatellite()
{
    start();
    display->command("userCorrectionSat", userSat(700));
    clock->advance(SECOND);
    QVERIFY(ids("correctionSats").contains(700));
    display->command("correctionSatSelection", QVariantMap{{"auto", false}, {"id", 700}});
    QVERIFY(waitForStatus(700, LOCKED, MINUTE));
    QCOMPARE(inUse(), 700);
}

void tst_correctionsBehaviour::forgetsAUserDefinedSatellite()
{
    start();
    display->command("userCorrectionSat", userSat(700));
    clock->advance(SECOND);
    display->command("userCorrectionSat", userSat(701));
    clock->advance(SECOND);
    QVERIFY(ids("correctionSats").contains(701) && !ids("correctionSats").contains(700));
    display->command("userCorrectionSat", QVariantMap{{"defined", false}});
    clock->advance(SECOND);
    QCOMPARE(ids("correctionSats"), (QList<int>{446, 625, 643, 678}));
    QVERIFY(stats(701).isEmpty());
}

void tst_correctionsBehaviour::goesAutomaticWhenTheSelectedSatelliteIsDeleted()
{
    display->command("userCorrectionSat", userSat(700));
    display->command("correctionSatSelection", QVariantMap{{"auto", false}, {"id", 700}});
    display->command("userCorrectionSat", QVariantMap{{"defined", false}});
    QCOMPARE(display->last("correctionSatSelection").toMap().value("auto"), QVariant(true));
    display->command("correctionSatSelection", QVariantMap{{"auto", false}, {"id", HIGH}});
    display->command("userCorrectionSat", userSat(700));
    display->command("userCorrectionSat", QVariantMap{{"defined", false}});
    QCOMPARE(display->last("correctionSatSelection").toMap().value("auto"), QVariant(false));
}

void tst_correctionsBehaviour::startsAnewAfterARestart()
{
    start();
    clock->advance(HOUR);
    receiver->restart();
    clock->advance(SECOND);
    for (int id : ids("correctionSatStats"))
    {
        QCOMPARE(stats(id).value("status").toInt(), int(WAIT_FOR_AGC));
        QCOMPARE(stats(id).value("resyncCount").toInt(), 0);
    }
    QCOMPARE(inUse(), 0);
}

void tst_correctionsBehaviour::hadAnAlmanacTheDayBefore()
{
    QCOMPARE(almanacTime(), clock->now() - 24 * HOUR);
    simClock_t real;
    melvox_test::receiverEnd_t end;
    receiver_t today(&end, &real);
    qint64 const told = today.setting("mrvAlmanacInfo").toMap().value("updateTime").toLongLong() * SECOND;
    QVERIFY(qAbs(real.now() - 24 * HOUR - told) < MINUTE);
}

void tst_correctionsBehaviour::takesTheAlmanacAfterThePolicysTime()
{
    startWithoutSatellites();
    display->command("starfireAlmSwitchPolicy", policy(0, 1, 30));
    QVERIFY(isReady());
    clock->advance(HOUR + 30 * MINUTE - SECOND);
    QVERIFY(isReady());
    clock->advance(SECOND);
    QVERIFY(!isReady());
    QCOMPARE(almanacTime(), clock->now());
}

void tst_correctionsBehaviour::takesTheAlmanacAtOnceWithoutATime()
{
    display->command("starfireAlmSwitchPolicy", policy(0, 0, 0));
    QVERIFY(!isReady());
    QCOMPARE(display->last("starfireAlmStatus").toMap().value("newReady"), QVariant(false));
}

void tst_correctionsBehaviour::takesAnAlmanacThatComesAtOnceWithoutATime()
{
    display->command("starfireAlmSwitchPolicy", policy(0, 0, 0));
    clock->advance(HOUR);
    QVERIFY(receiver->setSituation("newAlmanac", true));
    QVERIFY(!isReady());
    QCOMPARE(almanacTime(), clock->now());
}

void tst_correctionsBehaviour::leavesTheAlmanacToTheOperator()
{
    startWithoutSatellites();
    display->command("starfireAlmSwitchPolicy", policy(1, 0, 0));
    clock->advance(3 * HOUR);
    QVERIFY(isReady());
}

void tst_correctionsBehaviour::takesTheAlmanacWhenTheOperatorSaysSo()
{
    startWithoutSatellites();
    display->command("starfireAlmSwitchPolicy", policy(1, 0, 0));
    clock->advance(MINUTE);
    display->command("useNewStarfireAlm");
    QVERIFY(!isReady());
    QCOMPARE(almanacTime(), clock->now());
    clock->advance(MINUTE);
    display->command("useNewStarfireAlm");
    QCOMPARE(almanacTime(), clock->now() - MINUTE);
}

void tst_correctionsBehaviour::hasANewAlmanacADayLater()
{
    startWithoutSatellites();
    display->command("starfireAlmSwitchPolicy", policy(1, 0, 0));
    display->command("useNewStarfireAlm");
    clock->advance(24 * HOUR - SECOND);
    QVERIFY(!isReady());
    clock->advance(SECOND);
    QVERIFY(isReady());
}

void tst_correctionsBehaviour::takesWordOfANewAlmanac()
{
    startWithoutSatellites();
    display->command("useNewStarfireAlm");
    display->command("starfireAlmSwitchPolicy", policy(0, 0, 1));
    clock->advance(HOUR);
    QVERIFY(!isReady());
    QVERIFY(receiver->setSituation("newAlmanac", true));
    QVERIFY(isReady());
    clock->advance(MINUTE);
    QVERIFY(!isReady());
}

void tst_correctionsBehaviour::refusesSituationsThatItDoesNotKnow_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("no flag") << "correctionReports" << QVariant(1);
    QTest::newRow("no list") << "correctionSatsInView" << QVariant(446);
    QTest::newRow("no id") << "correctionSatsInView" << QVariant(QVariantList{"446"});
    QTest::newRow("no almanac") << "newAlmanac" << QVariant(false);
    QTest::newRow("no name") << "correctionWeather" << QVariant(true);
}

void tst_correctionsBehaviour::refusesSituationsThatItDoesNotKnow()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    QVERIFY(!receiver->setSituation(name, value));
}

QTEST_MAIN(tst_correctionsBehaviour)
#include "tst_correctionsBehaviour.moc"
