#include "wholeUnit.h"

#include "brel_common_qt/textHelpers.h"
#include "display/displayStyle.h"

#include <QTimer>

using brel_common_qt::NoDataString;
using brel_common_qt::NoString;
using melvox_display::applyDisplayStyle;
using melvox_test::choose;
using melvox_test::find;
using melvox_test::labelText;
using melvox_test::waitFor;
using melvox_test::wholeUnit_t;

/** The whole way from the operator's finger to the receiver and back, on each positioning page. */
class tst_operatingPositioning : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void initTestCase() { applyDisplayStyle(*qApp); }

    void takesAConstellationOutOfUse();
    void choosesADynamicMode();
    void typesTheAngleOfTheAntennas();
    void turnsThePulseAround();
    void showsTheSolutionUntilTheReceiverFallsSilent();
    void showsTheHeadingUntilTheReceiverFallsSilent();
    void followsANewAlignmentInTheHeading();
    void losesTheSolutionWithARestart_data();
    void losesTheSolutionWithARestart();
};

void tst_operatingPositioning::takesAConstellationOutOfUse()
{
    wholeUnit_t f("navigationMode");
    QVERIFY(f.shows("galileoLabel", brel_common_qt::YesString));
    choose(f.page, "galileoCombo", "No");
    f.tapIn(f.page, "Apply");
    QVERIFY(f.shows("galileoLabel", NoString));
    QVariantMap const galileo = f.unit.receiver()->setting("measUse").toList().at(2).toMap();
    QCOMPARE(galileo.value("name"), QVariant("GAL"));
    QCOMPARE(galileo.value("use"), QVariant(false));
}

void tst_operatingPositioning::choosesADynamicMode()
{
    wholeUnit_t f("navigationMode");
    QVERIFY(f.shows("overallModeLabel", "Medium"));
    choose(f.page, "overallModeCombo", "High");
    f.tapIn(f.page, "Apply");
    QVERIFY(f.shows("overallModeLabel", "High"));
    QCOMPARE(f.unit.receiver()->setting("dynamicConfig").toMap().value("mode").toInt(), 3);
}

void tst_operatingPositioning::typesTheAngleOfTheAntennas()
{
    wholeUnit_t f("rtkConfiguration");
    QVERIFY(f.shows("alignmentLabel", "Lateral"));
    choose(f.page, "alignmentCombo", "User-Specified");
    f.typeInto(find<QLineEdit>(f.page, "userAngleLineEdit"), "1 2 3 . 5 done");
    f.tapIn(f.page, "Apply");
    QVERIFY(f.shows("userAngleLabel", "123.50"));
    QCOMPARE(f.unit.receiver()->setting("antennaAlignment").toMap().value("angle").toDouble(), 123.5);
}

void tst_operatingPositioning::turnsThePulseAround()
{
    wholeUnit_t f("ppsConfiguration");
    QVariantMap expected = f.unit.receiver()->setting("ppsConfig").toMap();
    QVERIFY(f.shows("polarityLabel", "Positive"));
    choose(f.page, "polarityCombo", "Negative");
    f.tapIn(f.page, "Apply");
    QVERIFY(f.shows("polarityLabel", "Negative"));
    QVariantMap const taken = f.unit.receiver()->setting("ppsConfig").toMap();
    expected["polarity"] = 0;
    for (auto field = expected.begin(); field != expected.end(); ++field)
        QCOMPARE(taken.value(field.key()).toUInt(), field.value().toUInt());
}

void tst_operatingPositioning::showsTheSolutionUntilTheReceiverFallsSilent()
{
    wholeUnit_t f("extendedNavInfo");
    QVERIFY(f.shows("failureCodeLabel", "1:Navigation solution available"));
    QString const time = labelText(f.page, "gpsTimeLabel");
    QVERIFY(waitFor([&]() { return labelText(f.page, "gpsTimeLabel") != time; }));
    f.unit.receiver()->setSituation("solutionReports", false);
    QTimer* const timer = find<QTimer>(f.page, "clearTimer");
    // A report may be under way, so the page's time runs out more than once.
    QVERIFY(waitFor(
        [&]()
        {
            timer->start(0);
            melvox_test::settle();
            return labelText(f.page, "gpsTimeLabel") == NoDataString;
        }));
    QVERIFY(!timer->isActive());
    QCOMPARE(labelText(f.page, "velocityUpLabel"), NoDataString);
}

void tst_operatingPositioning::showsTheHeadingUntilTheReceiverFallsSilent()
{
    wholeUnit_t f("vhdInfo");
    QVERIFY(waitFor([&]() { return labelText(f.page, "rawHeadingLabel") != NoDataString; }));
    QCOMPARE(labelText(f.page, "attitudeLabel"), QString("-90.000"));
    f.unit.receiver()->setSituation("headingReports", false);
    QTimer* const timer = find<QTimer>(f.page, "clearTimer");
    QVERIFY(waitFor(
        [&]()
        {
            timer->start(0);
            melvox_test::settle();
            return labelText(f.page, "rawHeadingLabel") == NoDataString;
        }));
    QVERIFY(!timer->isActive());
}

void tst_operatingPositioning::followsANewAlignmentInTheHeading()
{
    wholeUnit_t f("rtkConfiguration");
    choose(f.page, "alignmentCombo", "Longitudinal");
    f.tapIn(f.page, "Apply");
    f.go("vhdInfo");
    QVERIFY(f.shows("attitudeLabel", "0.000"));
}

void tst_operatingPositioning::losesTheSolutionWithARestart_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("warm") << "warmRestartButton";
    QTest::newRow("cold") << "coldRestartButton";
}

void tst_operatingPositioning::losesTheSolutionWithARestart()
{
    QFETCH(QString, button);
    wholeUnit_t f("extendedNavInfo");
    QVERIFY(f.shows("navValidLabel", brel_common_qt::YesString));
    f.go("restart");
    f.tap(find<QAbstractButton>(f.page, button));
    f.go("extendedNavInfo");
    QVERIFY(f.shows("navValidLabel", NoString));
    QCOMPARE(labelText(f.page, "failureCodeLabel"), QString("2:Too few measurements for navigation init"));
}

QTEST_MAIN(tst_operatingPositioning)
#include "tst_operatingPositioning.moc"
