#include "melvox_ui/melvoxUiDifferentialConfiguration.h"

#include "brel_common_qt_gui/guiSettings.h"
#include "brel_common_qt_gui/latitudeEdit.h"
#include "melvox_ui/melvoxUiBasePositionDialog.h"
#include "support/pageTest.h"

#include <QGroupBox>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

double const RADIANS_PER_DEGREE = 3.14159265358979323846 / 180;

char const* const ROVER = "Rover - RTCM";
char const* const BASE_1 = "Base - RTCM2.3 (1 & 31)";
char const* const BASE_9 = "Base - RTCM2.3 (9 & 34)";

} // namespace

class tst_melvoxUiDifferentialConfiguration : public melvox_test::pageTest_t
{
    Q_OBJECT

protected:
    void tearDown() override;

private:
    void reportConfig(int mode, int stationId, bool dynamic, int port, bool portSet = true);
    void reportPosition();
    void reportEverything();
    QStringList items(QWidget* page, char const* combo);
    QString sentConfig() { return receiver->commands().filter("diffConfig").join(";"); }

private slots:
    void showsNoDataAndSendsOnlyTheNameBeforeTheFirstReport();
    void showsValuesThatTheProxyHeldBeforeThePageWasBuilt();
    void namesItsGroupsAndItems();
    void captionsItsValues_data();
    void captionsItsValues();
    void offersEveryPortButTheSecondUsbPort();
    void showsEachReportInItsLabel();
    void showsThePortOnlyOfABase();
    void showsAnIdPlainAndFillsItPadded();
    void fillsEachEditorFromTheFirstReportOnly();
    void resetBringsEveryEditorBackToTheReceiver();
    void resetBeforeTheFirstReportChangesNothing();
    void enablesThePortOnlyForABase();
    void forcesVersionAndIdForABase();
    void keepsAnIdThatABaseMayHave();
    void givesABaseAnIdForABlankOne();
    void givesTheVersionBackToARoverAndKeepsTheId();
    void letsOnlyARoverBeDynamic();
    void showsABaseThatTheReceiverCallsDynamic();
    void leavesAModeItDoesNotOfferUnchosenAndUnsent();
    void leavesAPortItDoesNotOfferUnchosenAndSendsTheFirst();
    void keepsThePortComboForARover();
    void sendsThePortOfEachItem_data();
    void sendsThePortOfEachItem();
    void acceptsAndRefusesStationIds_data();
    void acceptsAndRefusesStationIds();
    void countsABlankIdAsZero();
    void marksThePortOfABaseAsSet();
    void sendsARoverWithThePortThatTheReceiverHad();
    void asksForTheOutputsRightAfterTheConfiguration();
    void sendsVersionAndNameAlsoWhenTheIdIsRefused();
    void sendsTheForcedVersionOfABase();
    void forcesTheVersionAgainWhenABaseIsSent();
    void sendsTheVersionOfARoverOnlyWhenItIsKnown();
    void enablesTheVersionOfARoverOnlyWhenItIsKnown();
    void sendsTheNameBeforeTheReceiverHasToldOne();
    void sendsANameInAscii();
    void sendsAnEmptyName();
    void sendsEveryGroupInThePagesOrderAndAsksAgain();
    void asksForEveryGroupInThePagesOrder();
    void showsThePositionInTheOperatorsFormatAndUnit();
    void followsTheOperatorsFormatAndUnit();
    void showsNoDataForWhatIsNoPosition();
    void opensThePositionDialogWithTheReceiversPosition();
    void opensThePositionDialogWithZerosWhileNoneIsKnown();
    void loadsTheReceiversPositionEachTimeTheDialogOpens();
    void showsThePositionThatTheDialogSentOnceTheReceiverTookIt();
    void takesItsDialogAlong();
    void keepsTheKeypadWordsOfEachEdit();
};

void tst_melvoxUiDifferentialConfiguration::tearDown()
{
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_METER);
    guiSettings_t::get().setLatLonFormat(LATLON_FORMAT_DEGREE);
    pageTest_t::tearDown();
}

void tst_melvoxUiDifferentialConfiguration::reportConfig(int mode, int stationId, bool dynamic, int port, bool portSet)
{
    receiver->report("diffConfig",
                     map("mode", mode, "stationId", stationId, "dynamic", dynamic, "port", port, "portSet", portSet));
}

void tst_melvoxUiDifferentialConfiguration::reportPosition()
{
    receiver->report("basePosition", map("latitude", -48.5 * RADIANS_PER_DEGREE, "longitude",
                                         11.25 * RADIANS_PER_DEGREE, "height", 1200.0));
}

void tst_melvoxUiDifferentialConfiguration::reportEverything()
{
    reportConfig(2, 345, false, MELVOX_PORT_ETH3);
    receiver->report("rtcmVersion", 1);
    receiver->report("baseName", "HILL 7");
    reportPosition();
}

QStringList tst_melvoxUiDifferentialConfiguration::items(QWidget* page, char const* combo)
{
    QStringList texts;
    QComboBox const* const found = find<QComboBox>(page, combo);
    for (int i = 0; i < found->count(); ++i)
        texts << found->itemText(i);
    return texts;
}

void tst_melvoxUiDifferentialConfiguration::showsNoDataAndSendsOnlyTheNameBeforeTheFirstReport()
{
    melvoxUiDifferentialConfiguration_t page(device);
    char const* const labels[] = {"diffModeLabel",  "rtcmVersionLabel", "outputPortLabel",
                                  "stationIdLabel", "dynamicModeLabel", "stationNameLabel",
                                  "latitudeLabel",  "longitudeLabel",   "heightLabel"};
    for (char const* const label : labels)
        QVERIFY2(labelText(&page, label) == NoDataString, label);
    QVERIFY(!isEnabled(&page, "diffConfigGroup"));
    QVERIFY(!isEnabled(&page, "rtcmVersionCombo"));
    QVERIFY(isEnabled(&page, "stationNameLineEdit"));
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList("baseName \"\""));
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiDifferentialConfiguration::showsValuesThatTheProxyHeldBeforeThePageWasBuilt()
{
    reportEverything();
    melvoxUiDifferentialConfiguration_t page(device);
    QCOMPARE(labelText(&page, "diffModeLabel"), QString(BASE_9));
    QCOMPARE(labelText(&page, "rtcmVersionLabel"), QString("2.3"));
    QCOMPARE(labelText(&page, "outputPortLabel"), QString("ETH3"));
    QCOMPARE(labelText(&page, "stationIdLabel"), QString("345"));
    QCOMPARE(labelText(&page, "dynamicModeLabel"), QString("Static"));
    QCOMPARE(labelText(&page, "stationNameLabel"), QString("HILL 7"));
    QCOMPARE(chosen(&page, "diffModeCombo"), QString(BASE_9));
    QCOMPARE(chosen(&page, "outputPortCombo"), QString("ETH3"));
    QCOMPARE(editText(&page, "stationIdLineEdit"), QString("0345"));
    QCOMPARE(editText(&page, "stationNameLineEdit"), QString("HILL 7"));
    QVERIFY(labelText(&page, "latitudeLabel").startsWith("48.5"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiDifferentialConfiguration::namesItsGroupsAndItems()
{
    melvoxUiDifferentialConfiguration_t page(device);
    QCOMPARE(find<QGroupBox>(&page, "diffConfigGroup")->title(), QString("RTCM Configuration"));
    QCOMPARE(find<QGroupBox>(&page, "basePositionGroup")->title(), QString("Base Station"));
    QCOMPARE(items(&page, "diffModeCombo").join("|"), QString("%1|%2|%3").arg(ROVER, BASE_1, BASE_9));
    QCOMPARE(items(&page, "rtcmVersionCombo").join("|"), QString("3.2|2.3"));
    QCOMPARE(items(&page, "dynamicModeCombo").join("|"), QString("Static|Dynamic"));
}

void tst_melvoxUiDifferentialConfiguration::captionsItsValues_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("caption");
    QTest::newRow("diffModeTitleLabel") << "diffConfigGroup"
                                        << "Mode:";
    QTest::newRow("rtcmVersionTitleLabel") << "diffConfigGroup"
                                           << "Input Version:";
    QTest::newRow("outputPortTitleLabel") << "diffConfigGroup"
                                          << "Base Output Port:";
    QTest::newRow("stationIdTitleLabel") << "diffConfigGroup"
                                         << "Station/Site ID:";
    QTest::newRow("dynamicModeTitleLabel") << "diffConfigGroup"
                                           << "Dynamic Mode:";
    QTest::newRow("stationNameTitleLabel") << "basePositionGroup"
                                           << "Name:";
    QTest::newRow("latitudeTitleLabel") << "basePositionGroup"
                                        << "Latitude:";
    QTest::newRow("longitudeTitleLabel") << "basePositionGroup"
                                         << "Longitude:";
    QTest::newRow("heightTitleLabel") << "basePositionGroup"
                                      << "Height:";
}

void tst_melvoxUiDifferentialConfiguration::captionsItsValues()
{
    QFETCH(QString, group);
    QFETCH(QString, caption);
    melvoxUiDifferentialConfiguration_t page(device);
    QCOMPARE(labelText(find<QWidget>(&page, group), QTest::currentDataTag()), caption);
}

void tst_melvoxUiDifferentialConfiguration::offersEveryPortButTheSecondUsbPort()
{
    melvoxUiDifferentialConfiguration_t page(device);
    QStringList expected;
    for (int port = MELVOX_PORT_FIRST; port < MELVOX_NUM_PORTS; ++port)
    {
        if (port != MELVOX_PORT_USB2)
            expected << melvoxPortName(melvoxPort_t(port));
    }
    QCOMPARE(expected.size(), 13);
    QCOMPARE(items(&page, "outputPortCombo").join("|"), expected.join("|"));
}

void tst_melvoxUiDifferentialConfiguration::showsEachReportInItsLabel()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 1023, true, MELVOX_PORT_COM2);
    QCOMPARE(labelText(&page, "diffModeLabel"), QString(ROVER));
    QCOMPARE(labelText(&page, "stationIdLabel"), QString("1023"));
    QCOMPARE(labelText(&page, "dynamicModeLabel"), QString("Dynamic"));
    QCOMPARE(labelText(&page, "rtcmVersionLabel"), NoDataString);
    receiver->report("rtcmVersion", 0);
    QCOMPARE(labelText(&page, "rtcmVersionLabel"), QString("3.2"));
    receiver->report("baseName", "Somewhere");
    QCOMPARE(labelText(&page, "stationNameLabel"), QString("Somewhere"));
    reportConfig(1, 2, false, MELVOX_PORT_COM2);
    QCOMPARE(labelText(&page, "diffModeLabel"), QString(BASE_1));
}

void tst_melvoxUiDifferentialConfiguration::showsThePortOnlyOfABase()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 5, false, MELVOX_PORT_COM2);
    QCOMPARE(labelText(&page, "outputPortLabel"), NoDataString);
    reportConfig(1, 5, false, MELVOX_PORT_COM2);
    QCOMPARE(labelText(&page, "outputPortLabel"), QString("COM2"));
    reportConfig(2, 5, false, MELVOX_PORT_USB2);
    QCOMPARE(labelText(&page, "outputPortLabel"), QString("USB2"));
}

void tst_melvoxUiDifferentialConfiguration::showsAnIdPlainAndFillsItPadded()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 7, false, 0);
    QCOMPARE(labelText(&page, "stationIdLabel"), QString("7"));
    QCOMPARE(editText(&page, "stationIdLineEdit"), QString("0007"));
}

void tst_melvoxUiDifferentialConfiguration::fillsEachEditorFromTheFirstReportOnly()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportEverything();
    reportConfig(0, 11, true, MELVOX_PORT_COM4);
    receiver->report("rtcmVersion", 0);
    receiver->report("baseName", "VALLEY");
    QCOMPARE(chosen(&page, "diffModeCombo"), QString(BASE_9));
    QCOMPARE(chosen(&page, "rtcmVersionCombo"), QString("2.3"));
    QCOMPARE(chosen(&page, "outputPortCombo"), QString("ETH3"));
    QCOMPARE(editText(&page, "stationIdLineEdit"), QString("0345"));
    QCOMPARE(chosen(&page, "dynamicModeCombo"), QString("Static"));
    QCOMPARE(editText(&page, "stationNameLineEdit"), QString("HILL 7"));
    QCOMPARE(labelText(&page, "diffModeLabel"), QString(ROVER));
    QCOMPARE(labelText(&page, "rtcmVersionLabel"), QString("3.2"));
    QCOMPARE(labelText(&page, "stationNameLabel"), QString("VALLEY"));
}

void tst_melvoxUiDifferentialConfiguration::resetBringsEveryEditorBackToTheReceiver()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 345, true, MELVOX_PORT_ETH3);
    receiver->report("rtcmVersion", 0);
    receiver->report("baseName", "HILL 7");
    choose(&page, "diffModeCombo", BASE_9);
    choose(&page, "outputPortCombo", "COM4");
    type(&page, "stationIdLineEdit", "0001");
    type(&page, "stationNameLineEdit", "VALLEY");
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "diffModeCombo"), QString(ROVER));
    QCOMPARE(chosen(&page, "rtcmVersionCombo"), QString("3.2"));
    QVERIFY(isEnabled(&page, "rtcmVersionCombo"));
    QCOMPARE(editText(&page, "stationIdLineEdit"), QString("0345"));
    QCOMPARE(chosen(&page, "dynamicModeCombo"), QString("Dynamic"));
    QCOMPARE(editText(&page, "stationNameLineEdit"), QString("HILL 7"));
    reportConfig(1, 12, false, MELVOX_PORT_USB1);
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "diffModeCombo"), QString(BASE_1));
    QCOMPARE(chosen(&page, "outputPortCombo"), QString("USB1"));
    QCOMPARE(editText(&page, "stationIdLineEdit"), QString("0012"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiDifferentialConfiguration::resetBeforeTheFirstReportChangesNothing()
{
    melvoxUiDifferentialConfiguration_t page(device);
    type(&page, "stationNameLineEdit", "VALLEY");
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "diffModeCombo"), QString(ROVER));
    QCOMPARE(editText(&page, "stationIdLineEdit"), QString("0000"));
    QCOMPARE(editText(&page, "stationNameLineEdit"), QString("VALLEY"));
}

void tst_melvoxUiDifferentialConfiguration::enablesThePortOnlyForABase()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 5, false, 0);
    QVERIFY(!isEnabled(&page, "outputPortCombo"));
    choose(&page, "diffModeCombo", BASE_1);
    QVERIFY(isEnabled(&page, "outputPortCombo"));
    choose(&page, "diffModeCombo", BASE_9);
    QVERIFY(isEnabled(&page, "outputPortCombo"));
    choose(&page, "diffModeCombo", ROVER);
    QVERIFY(!isEnabled(&page, "outputPortCombo"));
}

void tst_melvoxUiDifferentialConfiguration::forcesVersionAndIdForABase()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 0, false, 0);
    receiver->report("rtcmVersion", 0);
    QCOMPARE(editText(&page, "stationIdLineEdit"), QString("0000"));
    choose(&page, "diffModeCombo", BASE_1);
    QCOMPARE(chosen(&page, "rtcmVersionCombo"), QString("2.3"));
    QVERIFY(!isEnabled(&page, "rtcmVersionCombo"));
    QCOMPARE(editText(&page, "stationIdLineEdit"), QString("0001"));
}

void tst_melvoxUiDifferentialConfiguration::keepsAnIdThatABaseMayHave()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 2, false, 0);
    choose(&page, "diffModeCombo", BASE_1);
    QCOMPARE(editText(&page, "stationIdLineEdit"), QString("0002"));
    type(&page, "stationIdLineEdit", "1");
    choose(&page, "diffModeCombo", BASE_9);
    QCOMPARE(editText(&page, "stationIdLineEdit"), QString("1"));
}

void tst_melvoxUiDifferentialConfiguration::givesABaseAnIdForABlankOne()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 2, false, 0);
    type(&page, "stationIdLineEdit", "");
    choose(&page, "diffModeCombo", BASE_9);
    QCOMPARE(editText(&page, "stationIdLineEdit"), QString("0001"));
}

void tst_melvoxUiDifferentialConfiguration::givesTheVersionBackToARoverAndKeepsTheId()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 0, false, 0);
    receiver->report("rtcmVersion", 0);
    choose(&page, "diffModeCombo", BASE_1);
    choose(&page, "diffModeCombo", ROVER);
    QCOMPARE(editText(&page, "stationIdLineEdit"), QString("0001"));
    QVERIFY(isEnabled(&page, "rtcmVersionCombo"));
    QCOMPARE(chosen(&page, "rtcmVersionCombo"), QString("2.3"));
}

void tst_melvoxUiDifferentialConfiguration::letsOnlyARoverBeDynamic()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 5, true, 0);
    QVERIFY(isEnabled(&page, "dynamicModeCombo"));
    QCOMPARE(chosen(&page, "dynamicModeCombo"), QString("Dynamic"));
    choose(&page, "diffModeCombo", BASE_1);
    QCOMPARE(chosen(&page, "dynamicModeCombo"), QString("Static"));
    QVERIFY(!isEnabled(&page, "dynamicModeCombo"));
    choose(&page, "diffModeCombo", ROVER);
    QCOMPARE(chosen(&page, "dynamicModeCombo"), QString("Static"));
    QVERIFY(isEnabled(&page, "dynamicModeCombo"));
}

void tst_melvoxUiDifferentialConfiguration::showsABaseThatTheReceiverCallsDynamic()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(1, 5, true, MELVOX_PORT_COM2);
    QCOMPARE(labelText(&page, "dynamicModeLabel"), QString("Dynamic"));
    QCOMPARE(chosen(&page, "dynamicModeCombo"), QString("Dynamic"));
    QVERIFY(!isEnabled(&page, "dynamicModeCombo"));
    tap(&page, "Apply");
    QCOMPARE(sentConfig(), QString("diffConfig dynamic=true mode=1 port=1 portSet=true stationId=5"));
}

void tst_melvoxUiDifferentialConfiguration::leavesAModeItDoesNotOfferUnchosenAndUnsent()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(7, 5, true, MELVOX_PORT_COM2);
    QCOMPARE(labelText(&page, "diffModeLabel"), QString());
    QCOMPARE(find<QComboBox>(&page, "diffModeCombo")->currentIndex(), -1);
    QVERIFY(!isEnabled(&page, "outputPortCombo"));
    tap(&page, "Apply");
    QCOMPARE(sentConfig(), QString());
    QVERIFY(!receiver->requests().contains("outputs"));
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiDifferentialConfiguration::leavesAPortItDoesNotOfferUnchosenAndSendsTheFirst()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(1, 5, false, MELVOX_PORT_USB2);
    QCOMPARE(find<QComboBox>(&page, "outputPortCombo")->currentIndex(), -1);
    tap(&page, "Apply");
    QCOMPARE(sentConfig(), QString("diffConfig dynamic=false mode=1 port=0 portSet=true stationId=5"));
}

void tst_melvoxUiDifferentialConfiguration::keepsThePortComboForARover()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(1, 5, false, MELVOX_PORT_ETH8);
    reportConfig(0, 5, false, MELVOX_PORT_COM1);
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "outputPortCombo"), QString("ETH8"));
}

void tst_melvoxUiDifferentialConfiguration::sendsThePortOfEachItem_data()
{
    QTest::addColumn<int>("port");
    for (int port = MELVOX_PORT_FIRST; port < MELVOX_NUM_PORTS; ++port)
    {
        if (port != MELVOX_PORT_USB2)
            QTest::newRow(qPrintable(melvoxPortName(melvoxPort_t(port)))) << port;
    }
}

void tst_melvoxUiDifferentialConfiguration::sendsThePortOfEachItem()
{
    QFETCH(int, port);
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(1, 5, false, MELVOX_PORT_USB2);
    choose(&page, "outputPortCombo", melvoxPortName(melvoxPort_t(port)));
    tap(&page, "Apply");
    QCOMPARE(sentConfig(), QString("diffConfig dynamic=false mode=1 port=%1 portSet=true stationId=5").arg(port));
}

void tst_melvoxUiDifferentialConfiguration::acceptsAndRefusesStationIds_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("sent");
    QTest::addColumn<QString>("error");
    QString const site("RTCM Site ID must be 0 - 1023\n");
    QString const station("RTCM Station ID must be 1 - 1023\n");
    QTest::newRow("rover, lowest") << ROVER << "0000" << 0 << "";
    QTest::newRow("rover, inside") << ROVER << "0512" << 512 << "";
    QTest::newRow("rover, highest") << ROVER << "1023" << 1023 << "";
    QTest::newRow("rover, just above") << ROVER << "1024" << -1 << site;
    QTest::newRow("rover, most") << ROVER << "9999" << -1 << site;
    QTest::newRow("base, just below") << BASE_1 << "0000" << -1 << station;
    QTest::newRow("base, lowest") << BASE_1 << "0001" << 1 << "";
    QTest::newRow("base, highest") << BASE_1 << "1023" << 1023 << "";
    QTest::newRow("base, just above") << BASE_1 << "1024" << -1 << station;
    QTest::newRow("other base, just below") << BASE_9 << "0000" << -1 << station;
    QTest::newRow("other base, lowest") << BASE_9 << "1" << 1 << "";
    QTest::newRow("other base, highest") << BASE_9 << "1023" << 1023 << "";
    QTest::newRow("other base, just above") << BASE_9 << "1024" << -1 << station;
}

void tst_melvoxUiDifferentialConfiguration::acceptsAndRefusesStationIds()
{
    QFETCH(QString, mode);
    QFETCH(QString, typed);
    QFETCH(int, sent);
    QFETCH(QString, error);
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 5, false, 0, false);
    choose(&page, "diffModeCombo", mode);
    type(&page, "stationIdLineEdit", typed);
    tap(&page, "Apply");
    QCOMPARE(reportedErrors(), error);
    QCOMPARE(sentConfig().isEmpty(), sent < 0);
    if (sent >= 0)
        QVERIFY(sentConfig().endsWith(QString("stationId=%1").arg(sent)));
}

void tst_melvoxUiDifferentialConfiguration::countsABlankIdAsZero()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 5, true, 0, false);
    type(&page, "stationIdLineEdit", "");
    tap(&page, "Apply");
    QCOMPARE(sentConfig(), QString("diffConfig dynamic=true mode=0 port=0 portSet=false stationId=0"));
    receiver->clear();
    choose(&page, "diffModeCombo", BASE_1);
    type(&page, "stationIdLineEdit", "");
    tap(&page, "Apply");
    QCOMPARE(sentConfig(), QString());
    QCOMPARE(reportedErrors(), QString("RTCM Station ID must be 1 - 1023\n"));
}

void tst_melvoxUiDifferentialConfiguration::marksThePortOfABaseAsSet()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 5, false, MELVOX_PORT_COM2, false);
    choose(&page, "diffModeCombo", BASE_9);
    choose(&page, "outputPortCombo", "USB1");
    tap(&page, "Apply");
    QCOMPARE(sentConfig(), QString("diffConfig dynamic=false mode=2 port=4 portSet=true stationId=5"));
}

void tst_melvoxUiDifferentialConfiguration::sendsARoverWithThePortThatTheReceiverHad()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(1, 5, false, MELVOX_PORT_ETH2, true);
    choose(&page, "diffModeCombo", ROVER);
    choose(&page, "dynamicModeCombo", "Dynamic");
    tap(&page, "Apply");
    QCOMPARE(sentConfig(), QString("diffConfig dynamic=true mode=0 port=7 portSet=true stationId=5"));
}

void tst_melvoxUiDifferentialConfiguration::asksForTheOutputsRightAfterTheConfiguration()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(1, 5, false, MELVOX_PORT_COM2);
    tap(&page, "Apply");
    QVERIFY(receiver->sent().at(0).startsWith("command diffConfig"));
    QCOMPARE(receiver->sent().at(1), QString("request outputs"));
}

void tst_melvoxUiDifferentialConfiguration::sendsVersionAndNameAlsoWhenTheIdIsRefused()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportEverything();
    type(&page, "stationIdLineEdit", "2000");
    type(&page, "stationNameLineEdit", "VALLEY");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().join("\n"), QString("rtcmVersion 1\nbaseName VALLEY"));
    QCOMPARE(reportedErrors(), QString("RTCM Station ID must be 1 - 1023\n"));
    QVERIFY(!receiver->requests().contains("outputs"));
    QVERIFY(receiver->requests().contains("diffConfig"));
}

void tst_melvoxUiDifferentialConfiguration::sendsTheForcedVersionOfABase()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 5, false, 0);
    choose(&page, "diffModeCombo", BASE_1);
    tap(&page, "Apply");
    QVERIFY(!isEnabled(&page, "rtcmVersionCombo"));
    QCOMPARE(receiver->commands().filter("rtcmVersion"), QStringList("rtcmVersion 1"));
}

void tst_melvoxUiDifferentialConfiguration::forcesTheVersionAgainWhenABaseIsSent()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(1, 5, false, 0);
    receiver->report("rtcmVersion", 0);
    QCOMPARE(chosen(&page, "rtcmVersionCombo"), QString("3.2"));
    QVERIFY(!isEnabled(&page, "rtcmVersionCombo"));
    tap(&page, "Apply");
    QCOMPARE(chosen(&page, "rtcmVersionCombo"), QString("2.3"));
    QCOMPARE(receiver->commands().filter("rtcmVersion"), QStringList("rtcmVersion 1"));
}

void tst_melvoxUiDifferentialConfiguration::sendsTheVersionOfARoverOnlyWhenItIsKnown()
{
    melvoxUiDifferentialConfiguration_t page(device);
    receiver->report("rtcmVersion", 1);
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList("baseName \"\""));
    receiver->clear();
    reportConfig(0, 5, false, 0);
    choose(&page, "rtcmVersionCombo", "3.2");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().filter("rtcmVersion"), QStringList("rtcmVersion 0"));
}

void tst_melvoxUiDifferentialConfiguration::enablesTheVersionOfARoverOnlyWhenItIsKnown()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportConfig(0, 5, false, 0);
    QVERIFY(!isEnabled(&page, "rtcmVersionCombo"));
    receiver->report("rtcmVersion", 0);
    QVERIFY(isEnabled(&page, "rtcmVersionCombo"));
    choose(&page, "diffModeCombo", BASE_1);
    receiver->report("rtcmVersion", 1);
    QVERIFY(!isEnabled(&page, "rtcmVersionCombo"));
}

void tst_melvoxUiDifferentialConfiguration::sendsTheNameBeforeTheReceiverHasToldOne()
{
    melvoxUiDifferentialConfiguration_t page(device);
    type(&page, "stationNameLineEdit", "Early Bird");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList("baseName Early Bird"));
}

void tst_melvoxUiDifferentialConfiguration::sendsANameInAscii()
{
    melvoxUiDifferentialConfiguration_t page(device);
    find<QLineEdit>(&page, "stationNameLineEdit")->setText(QString("M") + QChar(0xfc) + "hle");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList("baseName M?hle"));
}

void tst_melvoxUiDifferentialConfiguration::sendsAnEmptyName()
{
    melvoxUiDifferentialConfiguration_t page(device);
    receiver->report("baseName", "HILL 7");
    type(&page, "stationNameLineEdit", "");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList("baseName \"\""));
}

void tst_melvoxUiDifferentialConfiguration::sendsEveryGroupInThePagesOrderAndAsksAgain()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportEverything();
    choose(&page, "diffModeCombo", BASE_1);
    choose(&page, "outputPortCombo", "COM3");
    type(&page, "stationIdLineEdit", "0789");
    type(&page, "stationNameLineEdit", "VALLEY 9");
    tap(&page, "Apply");
    QCOMPARE(receiver->sent().join("\n"),
             QString("command diffConfig dynamic=false mode=1 port=2 portSet=true stationId=789\n"
                     "request outputs\n"
                     "command rtcmVersion 1\n"
                     "command baseName VALLEY 9\n"
                     "request diffConfig\n"
                     "request rtcmVersion\n"
                     "request baseName\n"
                     "request basePosition"));
}

void tst_melvoxUiDifferentialConfiguration::asksForEveryGroupInThePagesOrder()
{
    melvoxUiDifferentialConfiguration_t page(device);
    QVERIFY(receiver->sent().isEmpty());
    tap(&page, "Query");
    QCOMPARE(receiver->sent().join("\n"), QString("request diffConfig\n"
                                                  "request rtcmVersion\n"
                                                  "request baseName\n"
                                                  "request basePosition"));
}

void tst_melvoxUiDifferentialConfiguration::showsThePositionInTheOperatorsFormatAndUnit()
{
    guiSettings_t::get().setLatLonFormat(LATLON_FORMAT_DEGMINSEC);
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
    melvoxUiDifferentialConfiguration_t page(device);
    reportPosition();
    latLonStringOptions_t const options(LATLON_FORMAT_DEGMINSEC);
    QCOMPARE(labelText(&page, "latitudeLabel"), latitudeString(-48.5, options));
    QCOMPARE(labelText(&page, "longitudeLabel"), longitudeString(11.25, options));
    QCOMPARE(labelText(&page, "heightLabel"), QString("3937.00 ft"));
}

void tst_melvoxUiDifferentialConfiguration::followsTheOperatorsFormatAndUnit()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportPosition();
    QCOMPARE(labelText(&page, "latitudeLabel"), latitudeString(-48.5, latLonStringOptions_t()));
    QCOMPARE(labelText(&page, "heightLabel"), QString("1200.00 m"));
    guiSettings_t::get().setLatLonFormat(LATLON_FORMAT_DEGMIN);
    QCOMPARE(labelText(&page, "latitudeLabel"), latitudeString(-48.5, latLonStringOptions_t(LATLON_FORMAT_DEGMIN)));
    QCOMPARE(labelText(&page, "longitudeLabel"), longitudeString(11.25, latLonStringOptions_t(LATLON_FORMAT_DEGMIN)));
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
    QCOMPARE(labelText(&page, "heightLabel"), QString("3937.00 ft"));
}

void tst_melvoxUiDifferentialConfiguration::showsNoDataForWhatIsNoPosition()
{
    melvoxUiDifferentialConfiguration_t page(device);
    receiver->report("basePosition", map("latitude", 2.0, "longitude", 7.0, "height", 5.0));
    QCOMPARE(labelText(&page, "latitudeLabel"), NoDataString);
    QCOMPARE(labelText(&page, "longitudeLabel"), NoDataString);
    QCOMPARE(labelText(&page, "heightLabel"), QString("5.00 m"));
}

void tst_melvoxUiDifferentialConfiguration::opensThePositionDialogWithTheReceiversPosition()
{
    melvoxUiDifferentialConfiguration_t page(device);
    page.show();
    reportPosition();
    QWidget* const dialog = page.findChild<melvoxUiBasePositionDialog_t*>();
    QVERIFY(dialog && !dialog->isVisible());
    tap(&page, "Configure");
    QVERIFY(dialog->isVisible());
    QCOMPARE(find<latitudeEdit_t>(dialog, "latitudeEdit")->degrees(), -48.5);
    QCOMPARE(editText(dialog, "distanceLineEdit").toDouble(), 1200.0);
}

void tst_melvoxUiDifferentialConfiguration::opensThePositionDialogWithZerosWhileNoneIsKnown()
{
    melvoxUiDifferentialConfiguration_t page(device);
    tap(&page, "Configure");
    QWidget* const dialog = page.findChild<melvoxUiBasePositionDialog_t*>();
    tap(dialog, "Apply");
    QCOMPARE(receiver->commands(), QStringList("basePosition height=0 latitude=0 longitude=0"));
    QVERIFY(!dialog->isVisible());
}

void tst_melvoxUiDifferentialConfiguration::loadsTheReceiversPositionEachTimeTheDialogOpens()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportPosition();
    tap(&page, "Configure");
    QWidget* const dialog = page.findChild<melvoxUiBasePositionDialog_t*>();
    type(dialog, "distanceLineEdit", "7");
    tap(dialog, "Cancel");
    receiver->report("basePosition", map("latitude", 0.5, "longitude", 0.25, "height", 33.5));
    tap(&page, "Configure");
    QCOMPARE(editText(dialog, "distanceLineEdit").toDouble(), 33.5);
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiDifferentialConfiguration::showsThePositionThatTheDialogSentOnceTheReceiverTookIt()
{
    melvoxUiDifferentialConfiguration_t page(device);
    reportPosition();
    tap(&page, "Configure");
    QWidget* const dialog = page.findChild<melvoxUiBasePositionDialog_t*>();
    type(dialog, "distanceLineEdit", "77.25");
    tap(dialog, "Apply");
    QCOMPARE(labelText(&page, "heightLabel"), QString("1200.00 m"));
    receiver->report("basePosition", receiver->messages().last().value);
    QCOMPARE(labelText(&page, "heightLabel"), QString("77.25 m"));
}

void tst_melvoxUiDifferentialConfiguration::takesItsDialogAlong()
{
    melvoxUiDifferentialConfiguration_t* const page = new melvoxUiDifferentialConfiguration_t(device);
    QPointer<QWidget> const dialog(page->findChild<melvoxUiBasePositionDialog_t*>());
    QVERIFY(dialog);
    delete page;
    QVERIFY(!dialog);
    reportEverything(); // nobody listens any more
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
}

void tst_melvoxUiDifferentialConfiguration::keepsTheKeypadWordsOfEachEdit()
{
    melvoxUiDifferentialConfiguration_t page(device);
    QLineEdit const* const id = find<QLineEdit>(&page, "stationIdLineEdit");
    QCOMPARE(id->property("keypadType").toString(), QString("numeric"));
    QCOMPARE(id->property("keypadPrompt").toString(), QString("Station/Site ID"));
    QVERIFY(id->inputMask().startsWith("9999"));
    QLineEdit const* const name = find<QLineEdit>(&page, "stationNameLineEdit");
    QCOMPARE(name->property("keypadType").toString(), QString("full"));
    QCOMPARE(name->property("keypadPrompt").toString(), QString("Base Station Name"));
}

QTEST_MAIN(tst_melvoxUiDifferentialConfiguration)
#include "tst_melvoxUiDifferentialConfiguration.moc"
