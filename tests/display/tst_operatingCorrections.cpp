#include "wholeUnit.h"

#include "brel_common_qt/textHelpers.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "display/displayStyle.h"
#include "melvox_ui/melvoxUiAntennaConfigDialog.h"
#include "melvox_ui/melvoxUiBasePositionDialog.h"
#include "melvox_ui/melvoxUiCorrectionSatSelectDialog.h"
#include "melvox_ui/melvoxUiCustomSatDialog.h"

#include <cmath>

using namespace brel_common_qt_gui;
using brel_common_qt::NoDataString;
using brel_common_qt::NoString;
using brel_common_qt::YesString;
using melvox_display::applyDisplayStyle;
using melvox_test::choose;
using melvox_test::find;
using melvox_test::labelText;
using melvox_test::rowTexts;
using melvox_test::waitFor;
using melvox_test::wholeUnit_t;

namespace
{

double degrees(QVariantMap const& position, char const* angle)
{
    return position.value(angle).toDouble() * 180.0 / M_PI;
}

/** Names come one after the other, and each brings the page's choices back to what the receiver has. */
bool hasAllAntennas(wholeUnit_t& f)
{
    QComboBox const* const names = find<QComboBox>(f.page, "antRemoteNameCombo");
    return waitFor([&]() { return names->findText(melvox_receiver::antennaNames().last()) >= 0; });
}

QString heightText(wholeUnit_t& f)
{
    return labelText(f.page, "heightLabel");
}

} // namespace

/** The whole way from the operator's finger to the receiver and back, on each page of corrections, differential and
 *  antennas, and in their dialogs. */
class tst_operatingCorrections : public melvox_test::test_t
{
    Q_OBJECT

protected:
    void tearDown() override
    {
        guiSettings_t::get().setDistanceUnit(brel_common_qt::DISTANCE_UNIT_METER);
        guiSettings_t::get().setLatLonFormat(brel_common_qt::LATLON_FORMAT_DEGREE);
    }

private slots:
    void initTestCase() { applyDisplayStyle(*qApp); }

    void choosesWhichCorrectionsToTake();
    void typesTheTimeAfterWhichTheAlmanacIsSwitched();
    void choosesASatelliteThatIsThenReceived();
    void switchesToTheNewAlmanacByHand();
    void definesASatelliteThatIsThenListed();
    void makesTheReceiverABase();
    void namesTheBase();
    void typesThePositionOfTheBase();
    void followsUnitsAndFormatOfTheOperator();
    void choosesTheAntennaOfTheBase();
    void choosesTheDualMode();
    void configuresAnAntenna();
};

void tst_operatingCorrections::choosesWhichCorrectionsToTake()
{
    wholeUnit_t f("correctionsReceiver");
    QVERIFY(f.shows("correctionSelectionLabel", "Default"));
    choose(f.page, "correctionSelectionCombo", "Secondary");
    f.tapIn(f.page, "Apply");
    QVERIFY(f.shows("correctionSelectionLabel", "Secondary"));
    QCOMPARE(f.unit.receiver()->setting("correctionSelection").toInt(), 1);
}

void tst_operatingCorrections::typesTheTimeAfterWhichTheAlmanacIsSwitched()
{
    wholeUnit_t f("correctionsReceiver");
    QVERIFY(f.shows("mrvAlmAutoSwitchTimeLabel", "02:00"));
    f.typeInto(find<QLineEdit>(f.page, "mrvAlmAutoSwitchTimeLineEdit"), "clear 0 9 3 0 done");
    f.tapIn(f.page, "Apply");
    QVERIFY(f.shows("mrvAlmAutoSwitchTimeLabel", "09:30"));
    QCOMPARE(f.record("starfireAlmSwitchPolicy").value("hours").toInt(), 9);
    QCOMPARE(f.record("starfireAlmSwitchPolicy").value("minutes").toInt(), 30);
}

void tst_operatingCorrections::choosesASatelliteThatIsThenReceived()
{
    wholeUnit_t f("correctionsReceiver");
    QVERIFY(f.shows("autoSelectLabel", YesString));
    f.tapIn(f.page, "selectSatButton");
    QWidget* const dialog = f.window.findChild<melvoxUiCorrectionSatSelectDialog_t*>();
    QVERIFY(dialog->isVisible());
    QTreeWidget* const satellites = find<QTreeWidget>(dialog, "satTree");
    QVERIFY(waitFor([&]() { return satellites->topLevelItemCount() == 4; }));
    choose(dialog, "autoSelectCombo", "No");
    f.tapRow(satellites, "678");
    f.tapIn(dialog, "OK");
    QVERIFY(!dialog->isVisible());
    QVERIFY(f.shows("autoSelectLabel", NoString));
    QCOMPARE(f.record("correctionSatSelection").value("auto"), QVariant(false));
    QCOMPARE(f.record("correctionSatSelection").value("id").toInt(), 678);
    f.unit.receiver()->clock().setSpeed(50);
    QVERIFY(f.shows("currentSatIdLabel", "678"));
    QTreeWidget* const statistics = find<QTreeWidget>(f.page, "statusTree");
    QTreeWidgetItem const* const row = statistics->findItems("678", Qt::MatchExactly).value(0);
    QVERIFY(row);
    QCOMPARE(row->text(1), YesString);
    QCOMPARE(row->text(2), QString("Locked"));
}

void tst_operatingCorrections::switchesToTheNewAlmanacByHand()
{
    wholeUnit_t f("correctionsReceiver");
    choose(f.page, "mrvAlmSwitchPolicyCombo", "Manual");
    f.tapIn(f.page, "Apply");
    QVERIFY(f.shows("mrvAlmSwitchPolicyLabel", "Manual"));
    QVERIFY(f.unit.receiver()->setSituation("newAlmanac", true));
    QVERIFY(f.shows("mrvAlmAvailableLabel", YesString));
    QString const before = labelText(f.page, "mrvAlmUpdatedLabel");
    f.tapIn(f.page, "useNewMrvAlmButton");
    QVERIFY(f.shows("mrvAlmAvailableLabel", NoString));
    QVERIFY(labelText(f.page, "mrvAlmUpdatedLabel") != before);
    QVERIFY(!find<QAbstractButton>(f.page, "useNewMrvAlmButton")->isEnabled());
}

void tst_operatingCorrections::definesASatelliteThatIsThenListed()
{
    wholeUnit_t f("correctionsReceiver");
    QVERIFY(f.window.screen()->showPage("customSat"));
    QWidget* const dialog = f.window.findChild<melvoxUiCustomSatDialog_t*>();
    QVERIFY(dialog && dialog->isVisible());
    QCOMPARE(labelText(dialog, "idLabel"), NoDataString);
    f.typeInto(find<QLineEdit>(dialog, "idLineEdit"), "clear 1 2 3 done");
    f.typeInto(find<QLineEdit>(dialog, "freqLineEdit"), "clear 1 5 4 5 . 5 done");
    f.tapIn(dialog, "Define Satellite");
    QVERIFY(waitFor([&]() { return labelText(dialog, "idLabel") == "123"; }));
    QCOMPARE(labelText(dialog, "freqLabel"), QString("1545.5000"));
    QCOMPARE(f.record("userCorrectionSat").value("id").toInt(), 123);
    QCOMPARE(f.record("userCorrectionSat").value("frequency").toDouble(), 1545500.0);
    f.go("correctionsReceiver");
    QTreeWidget* const statistics = find<QTreeWidget>(f.page, "statusTree");
    QVERIFY(waitFor([&]() { return !statistics->findItems("123", Qt::MatchExactly).isEmpty(); }));
}

void tst_operatingCorrections::makesTheReceiverABase()
{
    wholeUnit_t f("differentialConfiguration");
    QVERIFY(f.shows("diffModeLabel", "Rover - RTCM"));
    choose(f.page, "diffModeCombo", "Base - RTCM2.3 (9 & 34)");
    choose(f.page, "outputPortCombo", "COM3");
    f.typeInto(find<QLineEdit>(f.page, "stationIdLineEdit"), "clear 0 4 5 6 done");
    f.tapIn(f.page, "Apply");
    QVERIFY(f.shows("diffModeLabel", "Base - RTCM2.3 (9 & 34)"));
    QVERIFY(f.shows("stationIdLabel", "456"));
    QVERIFY(f.shows("outputPortLabel", "COM3"));
    QVERIFY(f.shows("rtcmVersionLabel", "2.3"));
    QVariantMap const config = f.record("diffConfig");
    QCOMPARE(config.value("mode").toInt(), 2);
    QCOMPARE(config.value("stationId").toInt(), 456);
    QCOMPARE(config.value("port").toInt(), 2);
}

void tst_operatingCorrections::namesTheBase()
{
    wholeUnit_t f("differentialConfiguration");
    QVERIFY(f.shows("stationNameLabel", "BASE 1"));
    f.typeInto(find<QLineEdit>(f.page, "stationNameLineEdit"), "clear n o r t h done");
    f.tapIn(f.page, "Apply");
    QString const name = melvox_test::editText(f.page, "stationNameLineEdit");
    QCOMPARE(name.toLower(), QString("north"));
    QVERIFY(f.shows("stationNameLabel", name));
    QCOMPARE(f.unit.receiver()->setting("baseName").toString(), name);
}

void tst_operatingCorrections::typesThePositionOfTheBase()
{
    wholeUnit_t f("differentialConfiguration");
    QVERIFY(waitFor([&]() { return heightText(f) != NoDataString; }));
    f.tapIn(f.page, "configureBasePositionButton");
    QWidget* const dialog = f.window.findChild<melvoxUiBasePositionDialog_t*>();
    QVERIFY(dialog->isVisible());
    f.typeInto(find<QLineEdit>(dialog, "latitudeDegreesLineEdit"), "clear 4 8 . 2 5 done");
    f.typeInto(find<QLineEdit>(dialog, "longitudeDegreesLineEdit"), "clear 1 6 . 5 done");
    choose(dialog, "longitudeSideCombo", "E");
    QLineEdit* const height = find<QWidget>(dialog, "heightEdit")->findChild<QLineEdit*>();
    f.typeInto(height, "clear 1 8 2 . 5 done");
    f.tapIn(dialog, "Apply");
    QVERIFY(!dialog->isVisible());
    QVERIFY(waitFor([&]() { return heightText(f).startsWith("182.50"); }));
    QVERIFY2(labelText(f.page, "latitudeLabel").startsWith("48.25"), qPrintable(labelText(f.page, "latitudeLabel")));
    QVERIFY2(labelText(f.page, "longitudeLabel").startsWith("16.5"), qPrintable(labelText(f.page, "longitudeLabel")));
    QVariantMap const position = f.record("basePosition");
    QVERIFY(qAbs(degrees(position, "latitude") - 48.25) < 1e-9);
    QVERIFY(qAbs(degrees(position, "longitude") - 16.5) < 1e-9);
    QCOMPARE(position.value("height").toDouble(), 182.5);
}

void tst_operatingCorrections::followsUnitsAndFormatOfTheOperator()
{
    wholeUnit_t f("differentialConfiguration");
    QVERIFY(waitFor([&]() { return heightText(f) != NoDataString; }));
    QString const metres = heightText(f);
    QString const decimal = labelText(f.page, "latitudeLabel");
    f.go("displaySettings");
    f.tapIn(f.page, "feetButton");
    f.tapIn(f.page, "secondsButton");
    f.go("differentialConfiguration");
    QVERIFY(heightText(f) != metres);
    double const feet = heightText(f).section(' ', 0, 0).toDouble();
    QVERIFY2(qAbs(feet - metres.section(' ', 0, 0).toDouble() * 3937.0 / 1200.0) < 0.02, qPrintable(heightText(f)));
    QVERIFY(labelText(f.page, "latitudeLabel") != decimal);
    QVERIFY2(labelText(f.page, "latitudeLabel").contains('"'), qPrintable(labelText(f.page, "latitudeLabel")));
}

void tst_operatingCorrections::choosesTheAntennaOfTheBase()
{
    wholeUnit_t f("antennaIdentification");
    QVERIFY(f.shows("antRemoteNameLabel", "(Auto) MVXBASE2         NONE"));
    QVERIFY(hasAllAntennas(f));
    choose(f.page, "antRemoteNameCombo", "MVXGA410         MVXD");
    f.tapIn(f.page, "Apply");
    QVERIFY(f.shows("antRemoteNameLabel", "MVXGA410         MVXD"));
    QCOMPARE(f.record("antennaRemote").value("automatic"), QVariant(false));
    QCOMPARE(f.record("antennaRemote").value("name").toString(), QString("MVXGA410         MVXD"));
}

void tst_operatingCorrections::choosesTheDualMode()
{
    wholeUnit_t f("antennaIdentification");
    QVERIFY(f.shows("antDualModeLabel", "DEFAULT"));
    QVERIFY(hasAllAntennas(f));
    choose(f.page, "antDualModeCombo", "SFONLY");
    f.tapIn(f.page, "Apply");
    QVERIFY(f.shows("antDualModeLabel", "SFONLY"));
    QCOMPARE(f.unit.receiver()->setting("antennaDualMode").toString(), QString("SFONLY"));
}

void tst_operatingCorrections::configuresAnAntenna()
{
    wholeUnit_t f("antennaIdentification");
    QTreeWidget* const antennas = find<QTreeWidget>(f.page, "antennaTree");
    QVERIFY(waitFor([&]() { return antennas->topLevelItemCount() == 2 && rowTexts(antennas, 1).at(3) == "2"; }));
    QVERIFY(hasAllAntennas(f));
    QVariant const first = f.unit.receiver()->setting("antennaInfo").toList().at(0);
    f.tapRow(antennas, rowTexts(antennas, 1).at(0));
    f.tapIn(f.page, "Configure");
    QWidget* const dialog = f.window.findChild<melvoxUiAntennaConfigDialog_t*>();
    QVERIFY(dialog->isVisible());
    choose(dialog, "nameCombo", "MVXGA410         NONE");
    f.typeInto(find<QLineEdit>(dialog, "setupIdLineEdit"), "clear 0 4 2 done");
    choose(dialog, "useAdjustmentsCombo", "Yes");
    choose(dialog, "slantRangeSignCombo", "-");
    f.typeInto(find<QLineEdit>(dialog, "slantRangeLineEdit"), "clear 0 1 2 3 4 done");
    f.tapIn(dialog, "OK");
    QVERIFY(!dialog->isVisible());
    QVERIFY(waitFor([&]() { return rowTexts(antennas, 1).at(5) == "-1234"; }));
    QCOMPARE(rowTexts(antennas, 1).mid(1, 4), (QStringList{"MVXGA410         NONE", "MA4-10291", "42", YesString}));
    QVariantMap const info = f.unit.receiver()->setting("antennaInfo").toList().at(1).toMap();
    QCOMPARE(info.value("id").toInt(), 42);
    QCOMPARE(f.unit.receiver()->setting("antennaInfo").toList().at(0), first);
    QVariantMap const height = f.unit.receiver()->setting("antennaHeight").toList().at(1).toMap();
    QCOMPARE(height.value("slantRange").toDouble(), -1234.0);
    QCOMPARE(height.value("useAdjustments"), QVariant(true));
}

QTEST_MAIN(tst_operatingCorrections)
#include "tst_operatingCorrections.moc"
