#include "melvox_ui/melvoxUiSolutionControl.h"

#include "support/pageTest.h"

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

class tst_melvoxUiSolutionControl : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void reportEverything();

private slots:
    void showsNoDataAndSendsOnlyTheLeoModeBeforeTheFirstReport();
    void showsValuesThatTheProxyHeldBeforeThePageWasBuilt();
    void showsEachReportInItsLabel();
    void showsOneDecimalOfMaskAndPdop();
    void fillsEachEditorFromTheFirstReportOnly();
    void leavesWhatTheOperatorTypesAlone();
    void resetBringsEveryEditorBackToTheReceiver();
    void resetBeforeTheFirstReportChangesNothing();
    void padsEditorsToTheirMasks();
    void acceptsAndRefusesElevationMasks_data();
    void acceptsAndRefusesElevationMasks();
    void acceptsAndRefusesPdopLimits_data();
    void acceptsAndRefusesPdopLimits();
    void refusesAnElevationMaskLeftBlank();
    void refusesAPdopLimitLeftBlank();
    void reportsBothBadGroupsInOneBoxAndStillSendsTheOthers();
    void sendsAMaximumAgeOfZero();
    void dropsAMaximumAgeLeftBlankWithoutAWord();
    void sendsEveryGroupInThePagesOrder();
    void leavesAGeoidalModelItDoesNotOfferUnchosenAndUnsent();
    void offersTwoGeoidalModelsOnly();
    void setsARowThatTheReceiverToldAndNoOther();
    void showsNoProtocolWhileTheLeoModeIsOff();
    void fillsTheProtocolFromAFirstReportWithTheModeOff();
    void sendsTheLeoModeOffWithoutItsProtocol();
    void sendsNothingForALeoModeWithoutAChoice();
    void sendsNothingForALeoProtocolWithoutAChoice();
    void letsTheLeoModeBeSentToASilentReceiver();
    void startsWithSbasOn();
    void asksForEveryGroupInThePagesOrder();
    void keepsTheKeypadWordsOfEachEdit_data();
    void keepsTheKeypadWordsOfEachEdit();
    void keepsTheMaskOfEachEdit_data();
    void keepsTheMaskOfEachEdit();
};

void tst_melvoxUiSolutionControl::reportEverything()
{
    receiver->report("elevationMask", 12.5);
    receiver->report("pdopLimit", 7.5);
    receiver->report("geoidalModel", 1);
    receiver->report("correctionEnabled", map("type", 0, "enabled", true));
    receiver->report("correctionEnabled", map("type", 1, "enabled", false));
    receiver->report("correctionEnabled", map("type", 2, "enabled", true));
    receiver->report("correctionMaxAge", map("type", 0, "seconds", 30));
    receiver->report("correctionMaxAge", map("type", 1, "seconds", 240));
    receiver->report("correctionMaxAge", map("type", 2, "seconds", 1800));
    receiver->report("ntripPPP", map("mode", 1, "protocol", 1));
}

void tst_melvoxUiSolutionControl::showsNoDataAndSendsOnlyTheLeoModeBeforeTheFirstReport()
{
    melvoxUiSolutionControl_t page(device);
    QStringList const labels = QStringList() << "elevationMaskLabel"
                                             << "pdopLabel"
                                             << "geoidalModelLabel"
                                             << "rtcmEnabledLabel"
                                             << "rtcmAgeLabel"
                                             << "sbasEnabledLabel"
                                             << "sbasAgeLabel"
                                             << "mrvEnabledLabel"
                                             << "mrvAgeLabel"
                                             << "ntripPPPModeLabel"
                                             << "ntripPPPProtocolLabel";
    for (QString const& label : labels)
        QCOMPARE(labelText(&page, label), NoDataString);
    QStringList const editors = QStringList() << "elevationMaskLineEdit"
                                              << "pdopLineEdit"
                                              << "geoidalModelCombo"
                                              << "rtcmEnabledCombo"
                                              << "rtcmAgeLineEdit"
                                              << "sbasEnabledCombo"
                                              << "sbasAgeLineEdit"
                                              << "mrvEnabledCombo"
                                              << "mrvAgeLineEdit";
    for (QString const& editor : editors)
        QVERIFY2(!isEnabled(&page, editor), qPrintable(editor));
    QVERIFY(isEnabled(&page, "ntripPPPModeCombo"));
    QVERIFY(isEnabled(&page, "ntripPPPProtocolCombo"));

    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList("ntripPPP mode=0 protocol=0"));
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiSolutionControl::showsValuesThatTheProxyHeldBeforeThePageWasBuilt()
{
    reportEverything();
    melvoxUiSolutionControl_t page(device);
    QCOMPARE(labelText(&page, "elevationMaskLabel"), QString("12.5"));
    QCOMPARE(editText(&page, "elevationMaskLineEdit"), QString("12.5"));
    QCOMPARE(labelText(&page, "mrvAgeLabel"), QString("1800"));
    QCOMPARE(chosen(&page, "ntripPPPProtocolCombo"), QString("HTTPS"));
    QVERIFY(isEnabled(&page, "pdopLineEdit"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiSolutionControl::showsEachReportInItsLabel()
{
    melvoxUiSolutionControl_t page(device);
    reportEverything();
    QCOMPARE(labelText(&page, "elevationMaskLabel"), QString("12.5"));
    QCOMPARE(labelText(&page, "pdopLabel"), QString("7.5"));
    QCOMPARE(labelText(&page, "geoidalModelLabel"), QString("EGM84"));
    QCOMPARE(labelText(&page, "rtcmEnabledLabel"), YesString);
    QCOMPARE(labelText(&page, "sbasEnabledLabel"), NoString);
    QCOMPARE(labelText(&page, "mrvEnabledLabel"), YesString);
    QCOMPARE(labelText(&page, "rtcmAgeLabel"), QString("30"));
    QCOMPARE(labelText(&page, "sbasAgeLabel"), QString("240"));
    QCOMPARE(labelText(&page, "mrvAgeLabel"), QString("1800"));
    QCOMPARE(labelText(&page, "ntripPPPModeLabel"), QString("On"));
    QCOMPARE(labelText(&page, "ntripPPPProtocolLabel"), QString("HTTPS"));
}

void tst_melvoxUiSolutionControl::showsOneDecimalOfMaskAndPdop()
{
    melvoxUiSolutionControl_t page(device);
    receiver->report("elevationMask", 10);
    receiver->report("pdopLimit", 6);
    QCOMPARE(labelText(&page, "elevationMaskLabel"), QString("10.0"));
    QCOMPARE(labelText(&page, "pdopLabel"), QString("6.0"));
}

void tst_melvoxUiSolutionControl::fillsEachEditorFromTheFirstReportOnly()
{
    melvoxUiSolutionControl_t page(device);
    reportEverything();
    receiver->report("elevationMask", 20.0);
    receiver->report("pdopLimit", 30.0);
    receiver->report("geoidalModel", 0);
    receiver->report("correctionEnabled", map("type", 0, "enabled", false));
    receiver->report("correctionMaxAge", map("type", 2, "seconds", 99));
    receiver->report("ntripPPP", map("mode", 1, "protocol", 0));

    QCOMPARE(editText(&page, "elevationMaskLineEdit"), QString("12.5"));
    QCOMPARE(editText(&page, "pdopLineEdit"), QString("007.5"));
    QCOMPARE(chosen(&page, "geoidalModelCombo"), QString("EGM84"));
    QCOMPARE(chosen(&page, "rtcmEnabledCombo"), QString("Yes"));
    QCOMPARE(editText(&page, "mrvAgeLineEdit"), QString("1800"));
    QCOMPARE(chosen(&page, "ntripPPPProtocolCombo"), QString("HTTPS"));
    QCOMPARE(labelText(&page, "elevationMaskLabel"), QString("20.0"));
    QCOMPARE(labelText(&page, "geoidalModelLabel"), QString("None"));
    QCOMPARE(labelText(&page, "rtcmEnabledLabel"), NoString);
    QCOMPARE(labelText(&page, "mrvAgeLabel"), QString("99"));
    QCOMPARE(labelText(&page, "ntripPPPProtocolLabel"), QString("HTTP"));
}

void tst_melvoxUiSolutionControl::leavesWhatTheOperatorTypesAlone()
{
    melvoxUiSolutionControl_t page(device);
    reportEverything();
    type(&page, "elevationMaskLineEdit", "33.3");
    receiver->report("elevationMask", 21.0);
    QCOMPARE(editText(&page, "elevationMaskLineEdit"), QString("33.3"));
    QCOMPARE(labelText(&page, "elevationMaskLabel"), QString("21.0"));
}

void tst_melvoxUiSolutionControl::resetBringsEveryEditorBackToTheReceiver()
{
    melvoxUiSolutionControl_t page(device);
    reportEverything();
    type(&page, "elevationMaskLineEdit", "33.3");
    type(&page, "pdopLineEdit", "044.4");
    choose(&page, "geoidalModelCombo", "None");
    choose(&page, "rtcmEnabledCombo", "No");
    choose(&page, "sbasEnabledCombo", "Yes");
    choose(&page, "mrvEnabledCombo", "No");
    type(&page, "rtcmAgeLineEdit", "0001");
    type(&page, "sbasAgeLineEdit", "0002");
    type(&page, "mrvAgeLineEdit", "0003");
    choose(&page, "ntripPPPModeCombo", "Off");
    choose(&page, "ntripPPPProtocolCombo", "HTTP");

    tap(&page, "Reset");
    QCOMPARE(editText(&page, "elevationMaskLineEdit"), QString("12.5"));
    QCOMPARE(editText(&page, "pdopLineEdit"), QString("007.5"));
    QCOMPARE(chosen(&page, "geoidalModelCombo"), QString("EGM84"));
    QCOMPARE(chosen(&page, "rtcmEnabledCombo"), QString("Yes"));
    QCOMPARE(chosen(&page, "sbasEnabledCombo"), QString("No"));
    QCOMPARE(chosen(&page, "mrvEnabledCombo"), QString("Yes"));
    QCOMPARE(editText(&page, "rtcmAgeLineEdit"), QString("0030"));
    QCOMPARE(editText(&page, "sbasAgeLineEdit"), QString("0240"));
    QCOMPARE(editText(&page, "mrvAgeLineEdit"), QString("1800"));
    QCOMPARE(chosen(&page, "ntripPPPModeCombo"), QString("On"));
    QCOMPARE(chosen(&page, "ntripPPPProtocolCombo"), QString("HTTPS"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiSolutionControl::resetBeforeTheFirstReportChangesNothing()
{
    melvoxUiSolutionControl_t page(device);
    choose(&page, "ntripPPPModeCombo", "On");
    tap(&page, "Reset");
    QCOMPARE(editText(&page, "elevationMaskLineEdit"), QString("00.0"));
    QCOMPARE(editText(&page, "pdopLineEdit"), QString("000.0"));
    QCOMPARE(editText(&page, "rtcmAgeLineEdit"), QString("0001"));
    QCOMPARE(chosen(&page, "ntripPPPModeCombo"), QString("On"));
    QCOMPARE(labelText(&page, "elevationMaskLabel"), NoDataString);
}

void tst_melvoxUiSolutionControl::padsEditorsToTheirMasks()
{
    melvoxUiSolutionControl_t page(device);
    receiver->report("elevationMask", 5.0);
    receiver->report("pdopLimit", 6.0);
    receiver->report("correctionMaxAge", map("type", 1, "seconds", 30));
    QCOMPARE(editText(&page, "elevationMaskLineEdit"), QString("05.0"));
    QCOMPARE(editText(&page, "pdopLineEdit"), QString("006.0"));
    QCOMPARE(editText(&page, "sbasAgeLineEdit"), QString("0030"));
    QCOMPARE(labelText(&page, "sbasAgeLabel"), QString("30"));
}

void tst_melvoxUiSolutionControl::acceptsAndRefusesElevationMasks_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("sent");
    QTest::newRow("just below") << "03.9"
                                << "";
    QTest::newRow("lowest") << "04.0"
                            << "elevationMask 4";
    QTest::newRow("lowest, one digit") << "4"
                                       << "elevationMask 4";
    QTest::newRow("inside") << "12.3"
                            << "elevationMask 12.3";
    QTest::newRow("highest") << "60.0"
                             << "elevationMask 60";
    QTest::newRow("just above") << "60.1"
                                << "";
}

void tst_melvoxUiSolutionControl::acceptsAndRefusesElevationMasks()
{
    QFETCH(QString, typed);
    QFETCH(QString, sent);
    melvoxUiSolutionControl_t page(device);
    receiver->report("elevationMask", 10.0);
    type(&page, "elevationMaskLineEdit", typed);
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().filter("elevationMask").join("; "), sent);
    QCOMPARE(reportedErrors(), sent.isEmpty() ? QString("Elevation mask must be 4 - 60\n") : QString());
}

void tst_melvoxUiSolutionControl::acceptsAndRefusesPdopLimits_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("sent");
    QTest::newRow("just below") << "001.9"
                                << "";
    QTest::newRow("lowest") << "002.0"
                            << "pdopLimit 2";
    QTest::newRow("inside") << "045.6"
                            << "pdopLimit 45.6";
    QTest::newRow("highest") << "100.0"
                             << "pdopLimit 100";
    QTest::newRow("just above") << "100.1"
                                << "";
}

void tst_melvoxUiSolutionControl::acceptsAndRefusesPdopLimits()
{
    QFETCH(QString, typed);
    QFETCH(QString, sent);
    melvoxUiSolutionControl_t page(device);
    receiver->report("pdopLimit", 10.0);
    type(&page, "pdopLineEdit", typed);
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().filter("pdopLimit").join("; "), sent);
    QCOMPARE(reportedErrors(), sent.isEmpty() ? QString("PDOP limit must be 2 - 100\n") : QString());
}

void tst_melvoxUiSolutionControl::refusesAnElevationMaskLeftBlank()
{
    melvoxUiSolutionControl_t page(device);
    receiver->report("elevationMask", 10.0);
    type(&page, "elevationMaskLineEdit", "");
    tap(&page, "Apply");
    QCOMPARE(reportedErrors(), QString("Elevation mask must be 4 - 60\n"));
    QVERIFY(receiver->commands().filter("elevationMask").isEmpty());
}

void tst_melvoxUiSolutionControl::refusesAPdopLimitLeftBlank()
{
    melvoxUiSolutionControl_t page(device);
    receiver->report("pdopLimit", 10.0);
    type(&page, "pdopLineEdit", "");
    tap(&page, "Apply");
    QCOMPARE(reportedErrors(), QString("PDOP limit must be 2 - 100\n"));
    QVERIFY(receiver->commands().filter("pdopLimit").isEmpty());
}

void tst_melvoxUiSolutionControl::reportsBothBadGroupsInOneBoxAndStillSendsTheOthers()
{
    melvoxUiSolutionControl_t page(device);
    reportEverything();
    type(&page, "elevationMaskLineEdit", "99.9");
    type(&page, "pdopLineEdit", "000.0");
    tap(&page, "Apply");
    QCOMPARE(reportedErrors(), QString("Elevation mask must be 4 - 60\nPDOP limit must be 2 - 100\n"));
    QVERIFY(!melvox_test::openBox());
    QCOMPARE(receiver->commands().size(), 8);
    QCOMPARE(receiver->commands().first(), QString("geoidalModel 1"));
}

void tst_melvoxUiSolutionControl::sendsAMaximumAgeOfZero()
{
    melvoxUiSolutionControl_t page(device);
    receiver->report("correctionMaxAge", map("type", 0, "seconds", 30));
    type(&page, "rtcmAgeLineEdit", "0000");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().first(), QString("correctionMaxAge seconds=0 type=0"));
}

void tst_melvoxUiSolutionControl::dropsAMaximumAgeLeftBlankWithoutAWord()
{
    melvoxUiSolutionControl_t page(device);
    receiver->report("correctionMaxAge", map("type", 0, "seconds", 30));
    type(&page, "rtcmAgeLineEdit", "");
    tap(&page, "Apply");
    QVERIFY(receiver->commands().filter("correctionMaxAge").isEmpty());
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiSolutionControl::sendsEveryGroupInThePagesOrder()
{
    melvoxUiSolutionControl_t page(device);
    reportEverything();
    type(&page, "elevationMaskLineEdit", "15.5");
    type(&page, "pdopLineEdit", "044.5");
    choose(&page, "geoidalModelCombo", "None");
    choose(&page, "rtcmEnabledCombo", "No");
    choose(&page, "sbasEnabledCombo", "Yes");
    choose(&page, "mrvEnabledCombo", "No");
    type(&page, "rtcmAgeLineEdit", "0011");
    type(&page, "sbasAgeLineEdit", "0022");
    type(&page, "mrvAgeLineEdit", "9999");
    choose(&page, "ntripPPPProtocolCombo", "HTTP");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().join("\n"), QString("elevationMask 15.5\n"
                                                      "pdopLimit 44.5\n"
                                                      "geoidalModel 0\n"
                                                      "correctionEnabled enabled=false type=0\n"
                                                      "correctionEnabled enabled=true type=1\n"
                                                      "correctionEnabled enabled=false type=2\n"
                                                      "correctionMaxAge seconds=11 type=0\n"
                                                      "correctionMaxAge seconds=22 type=1\n"
                                                      "correctionMaxAge seconds=9999 type=2\n"
                                                      "ntripPPP mode=1 protocol=0"));
    QVERIFY(receiver->requests().isEmpty());
}

void tst_melvoxUiSolutionControl::leavesAGeoidalModelItDoesNotOfferUnchosenAndUnsent()
{
    melvoxUiSolutionControl_t page(device);
    receiver->report("geoidalModel", 1);
    receiver->report("geoidalModel", 2);
    QCOMPARE(labelText(&page, "geoidalModelLabel"), QString());
    tap(&page, "Reset");
    QCOMPARE(find<QComboBox>(&page, "geoidalModelCombo")->currentIndex(), -1);
    tap(&page, "Apply");
    QVERIFY(receiver->commands().filter("geoidalModel").isEmpty());
}

void tst_melvoxUiSolutionControl::offersTwoGeoidalModelsOnly()
{
    melvoxUiSolutionControl_t page(device);
    QComboBox const* const combo = find<QComboBox>(&page, "geoidalModelCombo");
    QCOMPARE(combo->count(), 2);
    QCOMPARE(combo->itemText(0), QString("None"));
    QCOMPARE(combo->itemText(1), QString("EGM84"));
}

void tst_melvoxUiSolutionControl::setsARowThatTheReceiverToldAndNoOther()
{
    melvoxUiSolutionControl_t page(device);
    receiver->report("correctionEnabled", map("type", 1, "enabled", false));
    receiver->report("correctionMaxAge", map("type", 2, "seconds", 77));
    QVERIFY(isEnabled(&page, "sbasEnabledCombo"));
    QVERIFY(isEnabled(&page, "mrvAgeLineEdit"));
    QVERIFY(!isEnabled(&page, "rtcmEnabledCombo"));
    QVERIFY(!isEnabled(&page, "mrvEnabledCombo"));
    QVERIFY(!isEnabled(&page, "sbasAgeLineEdit"));
    QCOMPARE(editText(&page, "rtcmAgeLineEdit"), QString("0001"));
    QCOMPARE(editText(&page, "mrvAgeLineEdit"), QString("0077"));
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().join("\n"), QString("correctionEnabled enabled=false type=1\n"
                                                      "correctionMaxAge seconds=77 type=2\n"
                                                      "ntripPPP mode=0 protocol=0"));
}

void tst_melvoxUiSolutionControl::showsNoProtocolWhileTheLeoModeIsOff()
{
    melvoxUiSolutionControl_t page(device);
    receiver->report("ntripPPP", map("mode", 1, "protocol", 1));
    receiver->report("ntripPPP", map("mode", 0, "protocol", 1));
    QCOMPARE(labelText(&page, "ntripPPPModeLabel"), QString("Off"));
    QCOMPARE(labelText(&page, "ntripPPPProtocolLabel"), NoDataString);
}

void tst_melvoxUiSolutionControl::fillsTheProtocolFromAFirstReportWithTheModeOff()
{
    melvoxUiSolutionControl_t page(device);
    receiver->report("ntripPPP", map("mode", 0, "protocol", 1));
    QCOMPARE(chosen(&page, "ntripPPPModeCombo"), QString("Off"));
    QCOMPARE(chosen(&page, "ntripPPPProtocolCombo"), QString("HTTPS"));
}

void tst_melvoxUiSolutionControl::sendsTheLeoModeOffWithoutItsProtocol()
{
    melvoxUiSolutionControl_t page(device);
    receiver->report("ntripPPP", map("mode", 0, "protocol", 1));
    find<QComboBox>(&page, "ntripPPPProtocolCombo")->setCurrentIndex(-1);
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList("ntripPPP mode=0 protocol=0"));
}

void tst_melvoxUiSolutionControl::sendsNothingForALeoModeWithoutAChoice()
{
    melvoxUiSolutionControl_t page(device);
    find<QComboBox>(&page, "ntripPPPModeCombo")->setCurrentIndex(-1);
    tap(&page, "Apply");
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiSolutionControl::sendsNothingForALeoProtocolWithoutAChoice()
{
    melvoxUiSolutionControl_t page(device);
    choose(&page, "ntripPPPModeCombo", "On");
    find<QComboBox>(&page, "ntripPPPProtocolCombo")->setCurrentIndex(-1);
    tap(&page, "Apply");
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiSolutionControl::letsTheLeoModeBeSentToASilentReceiver()
{
    melvoxUiSolutionControl_t page(device);
    choose(&page, "ntripPPPModeCombo", "On");
    choose(&page, "ntripPPPProtocolCombo", "HTTPS");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList("ntripPPP mode=1 protocol=1"));
    QCOMPARE(labelText(&page, "ntripPPPModeLabel"), NoDataString);
}

void tst_melvoxUiSolutionControl::startsWithSbasOn()
{
    melvoxUiSolutionControl_t page(device);
    QCOMPARE(chosen(&page, "sbasEnabledCombo"), QString("Yes"));
    QCOMPARE(chosen(&page, "rtcmEnabledCombo"), QString("No"));
    QCOMPARE(chosen(&page, "mrvEnabledCombo"), QString("No"));
}

void tst_melvoxUiSolutionControl::asksForEveryGroupInThePagesOrder()
{
    melvoxUiSolutionControl_t page(device);
    QVERIFY(receiver->sent().isEmpty());
    tap(&page, "Query");
    QCOMPARE(receiver->sent().join("\n"), QString("request elevationMask\n"
                                                  "request pdopLimit\n"
                                                  "request geoidalModel\n"
                                                  "request correctionEnabled\n"
                                                  "request correctionMaxAge\n"
                                                  "request ntripPPP"));
}

void tst_melvoxUiSolutionControl::keepsTheKeypadWordsOfEachEdit_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("prompt");
    QTest::newRow("elevation mask") << "elevationMaskLineEdit"
                                    << "Elevation Mask";
    QTest::newRow("PDOP") << "pdopLineEdit"
                          << "Maximum PDOP";
    QTest::newRow("RTCM age") << "rtcmAgeLineEdit"
                              << "RTCM 1,9 Max Diff Age";
    QTest::newRow("SBAS age") << "sbasAgeLineEdit"
                              << "SBAS Max Diff Age";
    QTest::newRow("LEO age") << "mrvAgeLineEdit"
                             << "MRV Max Diff Age";
}

void tst_melvoxUiSolutionControl::keepsTheKeypadWordsOfEachEdit()
{
    QFETCH(QString, edit);
    QFETCH(QString, prompt);
    melvoxUiSolutionControl_t page(device);
    QLineEdit const* const found = find<QLineEdit>(&page, edit);
    QCOMPARE(found->property("keypadType").toString(), QString("numeric"));
    QCOMPARE(found->property("keypadPrompt").toString(), prompt);
}

void tst_melvoxUiSolutionControl::keepsTheMaskOfEachEdit_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("mask");
    QTest::newRow("elevation mask") << "elevationMaskLineEdit"
                                    << "99.9; ";
    QTest::newRow("PDOP") << "pdopLineEdit"
                          << "999.9; ";
    QTest::newRow("RTCM age") << "rtcmAgeLineEdit"
                              << "9999; ";
    QTest::newRow("SBAS age") << "sbasAgeLineEdit"
                              << "9999; ";
    QTest::newRow("LEO age") << "mrvAgeLineEdit"
                             << "9999; ";
}

void tst_melvoxUiSolutionControl::keepsTheMaskOfEachEdit()
{
    QFETCH(QString, edit);
    QFETCH(QString, mask);
    melvoxUiSolutionControl_t page(device);
    // Qt takes the blank character off the mask it gives back when it is a space.
    QVERIFY(mask.startsWith(find<QLineEdit>(&page, edit)->inputMask().section(';', 0, 0)));
    QVERIFY(!find<QLineEdit>(&page, edit)->inputMask().isEmpty());
}

QTEST_MAIN(tst_melvoxUiSolutionControl)
#include "tst_melvoxUiSolutionControl.moc"
