#include "receiver/receiver.h"
#include "receiverEnd.h"

#include "support/test.h"

#include <cmath>

using namespace melvox_receiver;
using melvox_test::receiverEnd_t;

namespace
{

double const RADIANS = std::acos(-1.0) / 180.0;

QVariantMap pps(int polarity, unsigned int width, unsigned int interval, unsigned int signalDelay,
                unsigned int chipDelay)
{
    return {{"polarity", polarity},
            {"width", width},
            {"interval", interval},
            {"signalDelay", signalDelay},
            {"chipDelay", chipDelay}};
}

double speed(QVariantMap const& info)
{
    return std::hypot(info.value("velocityNorth").toDouble(), info.value("velocityEast").toDouble());
}

/** The turn from one direction to another, degrees, -180 to 180. */
double turn(double from, double to)
{
    return std::remainder(to - from, 360.0);
}

} // namespace

/** What the receiver tells of its solution and heading while its clock is turned. */
class tst_navigationBehaviour : public melvox_test::test_t
{
    Q_OBJECT

protected:
    void setUp() override
    {
        clock.reset(new simClock_t(simClock_t::MANUAL));
        display.reset(new receiverEnd_t);
        receiver.reset(new receiver_t(display.data(), clock.data()));
    }
    void tearDown() override
    {
        receiver.reset();
        display.reset();
        clock.reset();
    }

private slots:
    void tellsTheSolutionEverySecond();
    void tellsTheHeadingFiveTimesASecond();
    void restsUntilItIsToldToReport();
    void stopsEachKindOfReportByItself();
    void tellsAllDisplays();
    void keepsToWholeSecondsHoweverTheClockIsTurned();
    void countsGpsTimeOverTheEndOfTheWeek();
    void tellsSourceAndStationOfEachMode_data();
    void tellsSourceAndStationOfEachMode();
    void estimatesSmallerErrorsTheBetterTheMode();
    void scattersVelocityLessTheBetterTheMode();
    void scattersItsErrorEstimates();
    void climbsFromModeToModeAfterARestart();
    void fallsToAWorseModeAtOnce();
    void refusesSituationsThatItDoesNotKnow_data();
    void refusesSituationsThatItDoesNotKnow();
    void tellsWhyThereIsNoSolution_data();
    void tellsWhyThereIsNoSolution();
    void tellsNoValuesWithoutASolution();
    void losesTheSolutionBehindTooHighAMask();
    void losesTheSolutionWhenThePdopIsTooHigh();
    void losesTheSolutionForLongerTheMoreItForgets();
    void tellsThatInitializationCompletes();
    void startsARestartAnewWithEveryCommand();
    void losesTheHeadingWithTheSolution();
    void movesSlowlyInACircle();
    void standsStillInStaticMode();
    void smoothsVelocityInAutomaticMode();
    void tellsTheTideOfTheGround();
    void goesWithoutCorrectionsWhenNoneIsEnabled();
    void estimatesLargerErrorsWithFewerConstellations();
    void headsWhereTheVehicleGoes_data();
    void headsWhereTheVehicleGoes();
    void tellsBaselineAndRmsOfTheHeading();
    void keepsTheHeadingWithinATurn();
    void holdsPpsWithinItsLimits_data();
    void holdsPpsWithinItsLimits();
    void holdsTheUserAngleBelowATurn();
    void refusesADynamicModeItDoesNotHave();

private:
    int count(QString const& group) const;
    QList<QVariantMap> reports(QString const& group) const;
    QVariantMap info(QString const& mode);
    void reportSolution(bool on) { QVERIFY(receiver->setSituation("solutionReports", on)); }
    void reportHeading(bool on) { QVERIFY(receiver->setSituation("headingReports", on)); }

    QScopedPointer<simClock_t> clock;
    QScopedPointer<receiverEnd_t> display;
    QScopedPointer<receiver_t> receiver;
};

QList<QVariantMap> tst_navigationBehaviour::reports(QString const& group) const
{
    QList<QVariantMap> values;
    for (melvox_link::message_t const& message : display->messages)
    {
        if (message.group == group)
            values << message.value.toMap();
    }
    return values;
}

int tst_navigationBehaviour::count(QString const& group) const
{
    return int(reports(group).size());
}

/** What it tells once the mode is reached. */
QVariantMap tst_navigationBehaviour::info(QString const& mode)
{
    receiver->setSituation("solution", mode);
    clock->advance(60000);
    display->request("extendedNavInfo");
    return display->last("extendedNavInfo").toMap();
}

void tst_navigationBehaviour::tellsTheSolutionEverySecond()
{
    reportSolution(true);
    clock->advance(10000);
    QList<QVariantMap> const infos = reports("extendedNavInfo");
    QCOMPARE(int(infos.size()), 10);
    // 2026-01-01 00:00 UTC is a Thursday, and GPS is 18 seconds ahead.
    double const start = 4 * 86400 + 18;
    for (int i = 0; i < infos.size(); ++i)
    {
        QCOMPARE(infos.at(i).value("gpsWeek").toInt(), 2399);
        QCOMPARE(infos.at(i).value("gpsTime").toDouble(), start + i + 1);
    }
    QCOMPARE(count("vhdInfo"), 0);
}

void tst_navigationBehaviour::tellsTheHeadingFiveTimesASecond()
{
    reportHeading(true);
    clock->advance(10000);
    QCOMPARE(count("vhdInfo"), 50);
    QCOMPARE(count("extendedNavInfo"), 0);
}

void tst_navigationBehaviour::restsUntilItIsToldToReport()
{
    clock->advance(10000);
    QVERIFY(display->messages.isEmpty());
    simClock_t real;
    receiver_t resting(&real);
    QVERIFY(!real.isTicking());
    resting.setSituation("headingReports", true);
    QVERIFY(real.isTicking());
    resting.setSituation("headingReports", false);
    QVERIFY(!real.isTicking());
}

void tst_navigationBehaviour::stopsEachKindOfReportByItself()
{
    reportSolution(true);
    reportHeading(true);
    clock->advance(1000);
    reportSolution(false);
    display->messages.clear();
    clock->advance(2000);
    QCOMPARE(count("extendedNavInfo"), 0);
    QCOMPARE(count("vhdInfo"), 10);
    reportHeading(false);
    display->messages.clear();
    clock->advance(2000);
    QVERIFY(display->messages.isEmpty());
    reportSolution(true);
    clock->advance(2000);
    QCOMPARE(count("extendedNavInfo"), 2);
}

void tst_navigationBehaviour::tellsAllDisplays()
{
    receiverEnd_t other;
    receiver->addLink(&other, 6);
    reportSolution(true);
    clock->advance(1000);
    QCOMPARE(count("extendedNavInfo"), 1);
    QCOMPARE(other.last("extendedNavInfo"), display->last("extendedNavInfo"));
    QVERIFY(other.last("extendedNavInfo").isValid());
}

void tst_navigationBehaviour::keepsToWholeSecondsHoweverTheClockIsTurned()
{
    reportSolution(true);
    for (int i = 0; i < 100; ++i)
        clock->advance(37);
    QList<QVariantMap> const infos = reports("extendedNavInfo");
    QCOMPARE(int(infos.size()), 3);
    for (QVariantMap const& info : infos)
        QCOMPARE(std::fmod(info.value("gpsTime").toDouble(), 1.0), 0.0);
}

void tst_navigationBehaviour::countsGpsTimeOverTheEndOfTheWeek()
{
    clock->advance((3 * 86400 - 20) * 1000LL);
    reportSolution(true);
    clock->advance(3000);
    QList<QVariantMap> const infos = reports("extendedNavInfo");
    QCOMPARE(infos.at(0).value("gpsWeek").toInt(), 2399);
    QCOMPARE(infos.at(0).value("gpsTime").toDouble(), 604799.0);
    QCOMPARE(infos.at(1).value("gpsWeek").toInt(), 2400);
    QCOMPARE(infos.at(1).value("gpsTime").toDouble(), 0.0);
    QCOMPARE(infos.at(2).value("gpsTime").toDouble(), 1.0);
}

void tst_navigationBehaviour::tellsSourceAndStationOfEachMode_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("navMode");
    QTest::addColumn<int>("navSource");
    QTest::addColumn<int>("stationId");
    QTest::newRow("autonomous") << "autonomous" << 0 << 0 << 0;
    QTest::newRow("differential") << "differential" << 2 << 9 << 446;
    QTest::newRow("float") << "float" << 3 << 9 << 12;
    QTest::newRow("fixed") << "fixed" << 7 << 9 << 12;
}

void tst_navigationBehaviour::tellsSourceAndStationOfEachMode()
{
    QFETCH(QString, mode);
    QFETCH(int, navMode);
    QFETCH(int, navSource);
    QFETCH(int, stationId);
    QVariantMap const told = info(mode);
    QCOMPARE(told.value("valid"), QVariant(true));
    QCOMPARE(told.value("navValid").toInt(), 1);
    QCOMPARE(told.value("failureCode").toInt(), 1);
    QCOMPARE(told.value("navMode").toInt(), navMode);
    QCOMPARE(told.value("navSource").toInt(), navSource);
    QCOMPARE(told.value("stationId").toInt(), stationId);
}

void tst_navigationBehaviour::estimatesSmallerErrorsTheBetterTheMode()
{
    QStringList const modes = {"autonomous", "differential", "float", "fixed"};
    QStringList const errors = {"latError", "lonError", "heightError"};
    QVariantMap worse = {{"latError", 10.0}, {"lonError", 10.0}, {"heightError", 10.0}};
    for (QString const& mode : modes)
    {
        QVariantMap const told = info(mode);
        for (QString const& error : errors)
        {
            QVERIFY2(told.value(error).toDouble() > 0.0, qPrintable(mode + ' ' + error));
            QVERIFY2(told.value(error).toDouble() < worse.value(error).toDouble() / 2.0,
                     qPrintable(mode + ' ' + error));
        }
        worse = told;
    }
}

void tst_navigationBehaviour::scattersVelocityLessTheBetterTheMode()
{
    double worse = 1.0;
    for (QString const mode : {"autonomous", "differential", "float", "fixed"})
    {
        info(mode);
        reportSolution(true);
        display->messages.clear();
        clock->advance(240000);
        double sum = 0.0;
        for (QVariantMap const& told : reports("extendedNavInfo"))
            sum += std::pow(speed(told) - 1.4, 2);
        double const scatter = std::sqrt(sum / 240.0);
        QVERIFY2(scatter > 0.0 && scatter < worse, qPrintable(mode));
        worse = scatter;
        reportSolution(false);
    }
}

void tst_navigationBehaviour::scattersItsErrorEstimates()
{
    reportSolution(true);
    clock->advance(5000);
    QSet<QString> different;
    for (QVariantMap const& told : reports("extendedNavInfo"))
        different << QString::number(told.value("latError").toDouble(), 'f', 9);
    QCOMPARE(int(different.size()), 5);
}

void tst_navigationBehaviour::climbsFromModeToModeAfterARestart()
{
    info("fixed");
    reportSolution(true);
    display->messages.clear();
    display->command("warmRestart");
    clock->advance(80000);
    QList<int> modes;
    for (QVariantMap const& told : reports("extendedNavInfo"))
    {
        int const mode = told.value("navValid").toInt() == 0 ? -1 : told.value("navMode").toInt();
        if (modes.isEmpty() || modes.last() != mode)
            modes << mode;
    }
    QCOMPARE(modes, (QList<int>{-1, 0, 2, 3, 7}));
}

void tst_navigationBehaviour::fallsToAWorseModeAtOnce()
{
    info("fixed");
    receiver->setSituation("solution", "differential");
    display->request("extendedNavInfo");
    QCOMPARE(display->last("extendedNavInfo").toMap().value("navMode").toInt(), 2);
    receiver->setSituation("solution", "fixed");
    display->request("extendedNavInfo");
    QCOMPARE(display->last("extendedNavInfo").toMap().value("navMode").toInt(), 2);
}

void tst_navigationBehaviour::refusesSituationsThatItDoesNotKnow_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("another name") << "weather" << QVariant("rain");
    QTest::newRow("another mode") << "solution" << QVariant("perfect");
    QTest::newRow("no mode") << "solution" << QVariant();
    QTest::newRow("no flag") << "solutionReports" << QVariant("yes");
    QTest::newRow("no flag either") << "headingReports" << QVariant(1);
    QTest::newRow("no code") << "failureCode" << QVariant("6");
    QTest::newRow("code too low") << "failureCode" << QVariant(-1);
    QTest::newRow("code too high") << "failureCode" << QVariant(256);
}

void tst_navigationBehaviour::refusesSituationsThatItDoesNotKnow()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    QVERIFY(!receiver->setSituation(name, value));
    clock->advance(5000);
    QVERIFY(display->messages.isEmpty());
}

void tst_navigationBehaviour::tellsWhyThereIsNoSolution_data()
{
    QTest::addColumn<int>("code");
    QTest::newRow("lowest") << 0;
    QTest::newRow("initialization failed") << 3;
    QTest::newRow("modes disabled") << 10;
    QTest::newRow("one that nobody knows") << 255;
}

void tst_navigationBehaviour::tellsWhyThereIsNoSolution()
{
    QFETCH(int, code);
    QVERIFY(receiver->setSituation("failureCode", code));
    display->request("extendedNavInfo");
    QCOMPARE(display->last("extendedNavInfo").toMap().value("failureCode").toInt(), 1);
    QVariantMap const told = info("none");
    QCOMPARE(told.value("navValid").toInt(), 0);
    QCOMPARE(told.value("failureCode").toInt(), code);
}

void tst_navigationBehaviour::tellsNoValuesWithoutASolution()
{
    QVariantMap const told = info("none");
    QCOMPARE(told.value("valid"), QVariant(true));
    QStringList const empty = {"navMode",  "navSource", "stationId",   "setDeltaNorth", "setDeltaEast", "setDeltaUp",
                               "latError", "lonError",  "heightError", "velocityNorth", "velocityEast", "velocityUp"};
    for (QString const& field : empty)
        QVERIFY2(told.value(field).isValid() && told.value(field).toDouble() == 0.0, qPrintable(field));
    QVERIFY(told.value("gpsTime").toDouble() > 0.0);
}

void tst_navigationBehaviour::losesTheSolutionBehindTooHighAMask()
{
    display->command("elevationMask", 60.0);
    display->request("extendedNavInfo");
    QCOMPARE(display->last("extendedNavInfo").toMap().value("failureCode").toInt(), 1);
    display->command("elevationMask", 85.0);
    display->request("extendedNavInfo");
    QCOMPARE(display->last("extendedNavInfo").toMap().value("failureCode").toInt(), 5);
    QCOMPARE(display->last("extendedNavInfo").toMap().value("navValid").toInt(), 0);
}

void tst_navigationBehaviour::losesTheSolutionWhenThePdopIsTooHigh()
{
    display->command("pdopLimit", 2.0);
    display->request("extendedNavInfo");
    QCOMPARE(display->last("extendedNavInfo").toMap().value("failureCode").toInt(), 1);
    display->command("elevationMask", 60.0);
    display->request("extendedNavInfo");
    QCOMPARE(display->last("extendedNavInfo").toMap().value("failureCode").toInt(), 6);
    QCOMPARE(display->last("extendedNavInfo").toMap().value("navMode").toInt(), 0);
}

void tst_navigationBehaviour::losesTheSolutionForLongerTheMoreItForgets()
{
    QList<QPair<QString, QVariant>> const commands = {
        {"warmRestart", QVariant()},
        {"coldRestart", QVariantMap{{"useBuiltInAlmanac", true}}},
        {"coldRestart", QVariantMap{{"useBuiltInAlmanac", false}}},
    };
    reportSolution(true);
    int shorter = 3;
    for (auto const& command : commands)
    {
        display->messages.clear();
        display->command(command.first, command.second);
        clock->advance(120000);
        int without = 0;
        for (QVariantMap const& told : reports("extendedNavInfo"))
            without += told.value("navValid").toInt() == 0 ? 1 : 0;
        QVERIFY2(without > shorter && without < 120, qPrintable(command.first));
        shorter = without;
    }
}

void tst_navigationBehaviour::tellsThatInitializationCompletes()
{
    reportSolution(true);
    display->command("warmRestart");
    clock->advance(25000);
    QList<int> codes;
    for (QVariantMap const& told : reports("extendedNavInfo"))
    {
        if (codes.isEmpty() || codes.last() != told.value("failureCode").toInt())
            codes << told.value("failureCode").toInt();
    }
    QCOMPARE(codes, (QList<int>{2, 4, 1}));
}

void tst_navigationBehaviour::startsARestartAnewWithEveryCommand()
{
    display->command("warmRestart");
    clock->advance(15000);
    display->command("warmRestart");
    clock->advance(15000);
    display->request("extendedNavInfo");
    QCOMPARE(display->last("extendedNavInfo").toMap().value("navValid").toInt(), 0);
    clock->advance(5000);
    QCOMPARE(display->last("extendedNavInfo").toMap().value("navValid").toInt(), 1);
}

void tst_navigationBehaviour::losesTheHeadingWithTheSolution()
{
    reportHeading(true);
    display->command("warmRestart");
    clock->advance(19900);
    QCOMPARE(count("vhdInfo"), 0);
    clock->advance(1100);
    QVERIFY(count("vhdInfo") >= 5);
}

void tst_navigationBehaviour::movesSlowlyInACircle()
{
    info("fixed");
    reportSolution(true);
    clock->advance(240000);
    double north = 0.0;
    double east = 0.0;
    double farthest = 0.0;
    for (QVariantMap const& told : reports("extendedNavInfo"))
    {
        QVERIFY(std::fabs(speed(told) - 1.4) < 0.05);
        QVERIFY(std::fabs(told.value("velocityUp").toDouble()) < 0.05);
        north += told.value("velocityNorth").toDouble();
        east += told.value("velocityEast").toDouble();
        farthest = std::fmax(farthest, std::hypot(north, east));
    }
    // The velocities lead out and back to where it was.
    QVERIFY(farthest > 50.0);
    QVERIFY(std::hypot(north, east) < 3.0);
}

void tst_navigationBehaviour::standsStillInStaticMode()
{
    display->command("dynamicConfig", QVariantMap{{"autoMode", false}, {"mode", 0}, {"velocitySmoothing", false}});
    QVariantMap const told = info("fixed");
    QCOMPARE(speed(told), 0.0);
    display->command("dynamicConfig", QVariantMap{{"autoMode", true}, {"mode", 0}, {"velocitySmoothing", false}});
    QVERIFY(speed(info("fixed")) > 1.0);
}

void tst_navigationBehaviour::smoothsVelocityInAutomaticMode()
{
    info("autonomous");
    reportSolution(true);
    double scatters[2];
    for (bool const smooth : {false, true})
    {
        display->command("dynamicConfig", QVariantMap{{"autoMode", true}, {"mode", 1}, {"velocitySmoothing", smooth}});
        display->messages.clear();
        clock->advance(120000);
        double sum = 0.0;
        for (QVariantMap const& told : reports("extendedNavInfo"))
            sum += std::pow(speed(told) - 1.4, 2);
        scatters[smooth] = std::sqrt(sum);
    }
    QVERIFY(scatters[true] < scatters[false] / 2.0);
}

void tst_navigationBehaviour::tellsTheTideOfTheGround()
{
    double lowest = 1.0;
    double highest = -1.0;
    for (int hour = 0; hour < 13; ++hour)
    {
        display->request("extendedNavInfo");
        double const up = display->last("extendedNavInfo").toMap().value("setDeltaUp").toDouble();
        lowest = std::fmin(lowest, up);
        highest = std::fmax(highest, up);
        clock->advance(3600 * 1000);
    }
    QVERIFY(lowest < -0.1 && lowest > -0.3);
    QVERIFY(highest > 0.1 && highest < 0.3);
}

void tst_navigationBehaviour::goesWithoutCorrectionsWhenNoneIsEnabled()
{
    info("fixed");
    for (int type = 0; type < 3; ++type)
    {
        display->request("extendedNavInfo");
        QCOMPARE(display->last("extendedNavInfo").toMap().value("navMode").toInt(), type < 2 ? 7 : 0);
        display->command("correctionEnabled", QVariantMap{{"type", type}, {"enabled", false}});
    }
    display->request("extendedNavInfo");
    QCOMPARE(display->last("extendedNavInfo").toMap().value("navMode").toInt(), 0);
    QCOMPARE(display->last("extendedNavInfo").toMap().value("navValid").toInt(), 1);
}

void tst_navigationBehaviour::estimatesLargerErrorsWithFewerConstellations()
{
    double const all = info("fixed").value("latError").toDouble();
    display->command("measUse", QVariantList{QVariantMap{{"name", "GLO"}, {"use", false}},
                                             QVariantMap{{"name", "GAL"}, {"use", false}}});
    QVERIFY(info("fixed").value("latError").toDouble() > all);
    QCOMPARE(info("fixed").value("navValid").toInt(), 1);
}

void tst_navigationBehaviour::headsWhereTheVehicleGoes_data()
{
    QTest::addColumn<QVariant>("alignment");
    QTest::addColumn<double>("angle");
    QTest::newRow("lateral") << QVariant(QVariantMap{{"mode", 0}, {"angle", 0.0}}) << 90.0;
    QTest::newRow("longitudinal") << QVariant(QVariantMap{{"mode", 1}, {"angle", 0.0}}) << 0.0;
    QTest::newRow("at an angle") << QVariant(QVariantMap{{"mode", 2}, {"angle", 123.5}}) << 123.5;
}

void tst_navigationBehaviour::headsWhereTheVehicleGoes()
{
    QFETCH(QVariant, alignment);
    QFETCH(double, angle);
    display->command("antennaAlignment", alignment);
    info("fixed");
    clock->advance(30000);
    reportSolution(true);
    reportHeading(true);
    clock->advance(1000);
    QVariantMap const told = display->last("extendedNavInfo").toMap();
    QVariantMap const heading = display->last("vhdInfo").toMap();
    double const course =
        std::atan2(told.value("velocityEast").toDouble(), told.value("velocityNorth").toDouble()) / RADIANS;
    double const raw = heading.value("rawHeading").toDouble();
    double const attitude = heading.value("attitude").toDouble();
    QCOMPARE(attitude, -angle);
    QVERIFY(std::fabs(turn(course, raw + attitude)) < 1.0);
}

void tst_navigationBehaviour::tellsBaselineAndRmsOfTheHeading()
{
    double worse = 10.0;
    for (QString const mode : {"autonomous", "differential", "float", "fixed"})
    {
        info(mode);
        reportHeading(true);
        clock->advance(1000);
        QVariantMap const heading = display->last("vhdInfo").toMap();
        QVERIFY(std::fabs(heading.value("baseline").toDouble() - 1.992) < 0.01);
        QVERIFY(heading.value("headingRms").toDouble() > 0.0);
        QVERIFY(heading.value("headingRms").toDouble() < worse);
        worse = heading.value("headingRms").toDouble();
    }
}

void tst_navigationBehaviour::keepsTheHeadingWithinATurn()
{
    reportHeading(true);
    clock->advance(240000);
    double lowest = 360.0;
    double highest = 0.0;
    for (QVariantMap const& heading : reports("vhdInfo"))
    {
        double const raw = heading.value("rawHeading").toDouble();
        QVERIFY(raw >= 0.0 && raw < 360.0);
        lowest = std::fmin(lowest, raw);
        highest = std::fmax(highest, raw);
    }
    QVERIFY(lowest < 5.0 && highest > 355.0);
}

void tst_navigationBehaviour::holdsPpsWithinItsLimits_data()
{
    QTest::addColumn<QVariantMap>("sent");
    QTest::addColumn<QVariantMap>("taken");
    QTest::newRow("inside") << pps(0, 11, 22, 33, 44) << pps(0, 11, 22, 33, 44);
    QTest::newRow("lowest") << pps(0, 0, 1, 0, 0) << pps(0, 0, 1, 0, 0);
    QTest::newRow("highest") << pps(0, 1600000, 32768, 32768, 999999) << pps(0, 1600000, 32768, 32768, 999999);
    QTest::newRow("width") << pps(0, 1600001, 22, 33, 44) << pps(0, 1600000, 22, 33, 44);
    QTest::newRow("interval too low") << pps(0, 11, 0, 33, 44) << pps(0, 11, 1, 33, 44);
    QTest::newRow("interval too high") << pps(0, 11, 32769, 33, 44) << pps(0, 11, 32768, 33, 44);
    QTest::newRow("signal delay") << pps(0, 11, 22, 32769, 44) << pps(0, 11, 22, 32768, 44);
    QTest::newRow("chip delay") << pps(0, 11, 22, 33, 1000000) << pps(0, 11, 22, 33, 999999);
    QTest::newRow("no such polarity") << pps(2, 11, 22, 33, 44) << pps(1, 50000, 1000, 0, 120);
}

void tst_navigationBehaviour::holdsPpsWithinItsLimits()
{
    QFETCH(QVariantMap, sent);
    QFETCH(QVariantMap, taken);
    display->command("ppsConfig", sent);
    QCOMPARE(count("ppsConfig"), 1);
    for (auto field = taken.begin(); field != taken.end(); ++field)
        QCOMPARE(display->last("ppsConfig").toMap().value(field.key()).toUInt(), field.value().toUInt());
}

void tst_navigationBehaviour::holdsTheUserAngleBelowATurn()
{
    display->command("antennaAlignment", QVariantMap{{"mode", 2}, {"angle", 400.0}});
    QCOMPARE(display->last("antennaAlignment").toMap().value("angle").toDouble(), 359.99);
    display->command("antennaAlignment", QVariantMap{{"mode", 1}, {"angle", 45.0}});
    QCOMPARE(display->last("antennaAlignment").toMap().value("angle").toDouble(), 0.0);
}

void tst_navigationBehaviour::refusesADynamicModeItDoesNotHave()
{
    display->command("dynamicConfig", QVariantMap{{"autoMode", false}, {"mode", 3}, {"velocitySmoothing", false}});
    display->command("dynamicConfig", QVariantMap{{"autoMode", false}, {"mode", 4}, {"velocitySmoothing", false}});
    QCOMPARE(display->last("dynamicConfig").toMap().value("mode").toInt(), 3);
    display->command("dynamicConfig", QVariantMap{{"autoMode", true}, {"mode", 0}, {"velocitySmoothing", true}});
    QCOMPARE(display->last("dynamicConfig").toMap().value("autoMode"), QVariant(true));
    QCOMPARE(display->last("dynamicConfig").toMap().value("velocitySmoothing"), QVariant(true));
}

QTEST_MAIN(tst_navigationBehaviour)
#include "tst_navigationBehaviour.moc"
