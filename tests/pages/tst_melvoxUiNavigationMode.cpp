#include "melvox_ui/melvoxUiNavigationMode.h"

#include "support/pageTest.h"

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

QVariantMap meas(char const* name, bool use)
{
    return map("name", name, "use", use);
}

QVariantMap dynamic(bool autoMode, int mode, bool velocitySmoothing)
{
    return map("autoMode", autoMode, "mode", mode, "velocitySmoothing", velocitySmoothing);
}

} // namespace

class tst_melvoxUiNavigationMode : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void reportMeasUse(bool gps, bool glonass, bool galileo, bool beidou);
    static void offerAutoMode(QWidget* page);

private slots:
    void showsNoDataBeforeTheFirstReport();
    void sendsFourTimesNoBeforeTheFirstReport();
    void sendsTheInitialChoicesOfRowsThatTheReceiverDidNotTell();
    void showsValuesThatTheProxyHeldBeforeThePageWasBuilt();
    void showsEachConstellationInItsLabel();
    void showsNoDataForAConstellationThatTheReceiverDoesNotTell();
    void fillsEachRowFromItsFirstReportOnly();
    void neverLetsGpsAndBeidouBeChanged();
    void sendsGpsAndBeidouBackUnchanged_data();
    void sendsGpsAndBeidouBackUnchanged();
    void sendsAllConstellationsAtOnceInRowOrder();
    void resetBringsEveryEditorBackToTheReceiver();
    void showsTheModeThatTheReceiverIsIn_data();
    void showsTheModeThatTheReceiverIsIn();
    void fillsTheModeFromTheFirstReportOnly();
    void sendsTheChosenMode_data();
    void sendsTheChosenMode();
    void offersNoAutomaticMode();
    void offersYesAndNo_data();
    void offersYesAndNo();
    void showsAnAutomaticModeAsAnEmptyText();
    void leavesAnAutomaticModeUnchosenAndUnsent();
    void namesTheAutomaticModeIfOffered();
    void resetFillsModeAndSmoothingOfAnAutomaticModeIfOffered();
    void leavesTheSmoothingAsItIsWithoutAnAutomaticMode();
    void sendsTheAutomaticModeWithItsSmoothingIfOffered_data();
    void sendsTheAutomaticModeWithItsSmoothingIfOffered();
    void demandsASmoothingForTheAutomaticModeAndStillSendsTheMeasurements();
    void letsTheSmoothingBeSetInAutomaticModeOnly();
    void keepsTheSmoothingDisabledOnTheWayBackToStatic();
    void asksForBothGroupsInThePagesOrder();
    void sendsBothGroupsInThePagesOrder();
};

void tst_melvoxUiNavigationMode::reportMeasUse(bool gps, bool glonass, bool galileo, bool beidou)
{
    receiver->report("measUse",
                     list(meas("GPS", gps), meas("GLO", glonass), meas("GAL", galileo), meas("BEI", beidou)));
}

void tst_melvoxUiNavigationMode::offerAutoMode(QWidget* page)
{
    find<QComboBox>(page, "overallModeCombo")->addItem("Automatic");
}

void tst_melvoxUiNavigationMode::showsNoDataBeforeTheFirstReport()
{
    melvoxUiNavigationMode_t page(device);
    QStringList const labels = QString("gps glonass galileo beidou overallMode velocitySmoothing").split(' ');
    for (QString const& label : labels)
    {
        QCOMPARE(labelText(&page, label + "Label"), NoDataString);
        QVERIFY2(!isEnabled(&page, label + "Combo"), qPrintable(label));
    }
}

void tst_melvoxUiNavigationMode::sendsFourTimesNoBeforeTheFirstReport()
{
    melvoxUiNavigationMode_t page(device);
    tap(&page, "Apply");
    QCOMPARE(reportedErrors(), QString());
    QCOMPARE(receiver->messages().size(), 1);
    QCOMPARE(receiver->messages().first().group, QString("measUse"));
    QCOMPARE(receiver->messages().first().value.toList(),
             list(meas("GPS", false), meas("GLO", false), meas("GAL", false), meas("BEI", false)));
}

void tst_melvoxUiNavigationMode::sendsTheInitialChoicesOfRowsThatTheReceiverDidNotTell()
{
    melvoxUiNavigationMode_t page(device);
    receiver->report("measUse", list(meas("GPS", true), meas("GAL", true)));
    tap(&page, "Apply");
    QCOMPARE(receiver->messages().first().value.toList(),
             list(meas("GPS", true), meas("GLO", false), meas("GAL", true), meas("BEI", false)));
}

void tst_melvoxUiNavigationMode::showsValuesThatTheProxyHeldBeforeThePageWasBuilt()
{
    reportMeasUse(true, false, true, false);
    receiver->report("dynamicConfig", dynamic(false, 2, false));
    melvoxUiNavigationMode_t page(device);
    QCOMPARE(labelText(&page, "galileoLabel"), YesString);
    QCOMPARE(chosen(&page, "galileoCombo"), QString("Yes"));
    QVERIFY(isEnabled(&page, "glonassCombo"));
    QCOMPARE(labelText(&page, "overallModeLabel"), QString("Medium"));
    QCOMPARE(chosen(&page, "overallModeCombo"), QString("Medium"));
    QVERIFY(isEnabled(&page, "overallModeCombo"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiNavigationMode::showsEachConstellationInItsLabel()
{
    melvoxUiNavigationMode_t page(device);
    reportMeasUse(true, false, true, false);
    QCOMPARE(labelText(&page, "gpsLabel"), YesString);
    QCOMPARE(labelText(&page, "glonassLabel"), NoString);
    QCOMPARE(labelText(&page, "galileoLabel"), YesString);
    QCOMPARE(labelText(&page, "beidouLabel"), NoString);
    reportMeasUse(false, true, false, true);
    QCOMPARE(labelText(&page, "gpsLabel"), NoString);
    QCOMPARE(labelText(&page, "glonassLabel"), YesString);
    QCOMPARE(labelText(&page, "galileoLabel"), NoString);
    QCOMPARE(labelText(&page, "beidouLabel"), YesString);
}

void tst_melvoxUiNavigationMode::showsNoDataForAConstellationThatTheReceiverDoesNotTell()
{
    melvoxUiNavigationMode_t page(device);
    receiver->report("measUse", list(meas("GPS", true), meas("GAL", true)));
    QCOMPARE(labelText(&page, "glonassLabel"), NoDataString);
    QVERIFY(!isEnabled(&page, "glonassCombo"));
    QVERIFY(isEnabled(&page, "galileoCombo"));
}

void tst_melvoxUiNavigationMode::fillsEachRowFromItsFirstReportOnly()
{
    melvoxUiNavigationMode_t page(device);
    receiver->report("measUse", list(meas("GPS", true), meas("GLO", true)));
    reportMeasUse(false, false, true, true);
    QCOMPARE(chosen(&page, "gpsCombo"), QString("Yes"));
    QCOMPARE(chosen(&page, "glonassCombo"), QString("Yes"));
    QCOMPARE(chosen(&page, "galileoCombo"), QString("Yes"));
    QCOMPARE(chosen(&page, "beidouCombo"), QString("Yes"));
    QCOMPARE(labelText(&page, "glonassLabel"), NoString);
}

void tst_melvoxUiNavigationMode::neverLetsGpsAndBeidouBeChanged()
{
    melvoxUiNavigationMode_t page(device);
    reportMeasUse(true, true, true, true);
    tap(&page, "Reset");
    QVERIFY(!isEnabled(&page, "gpsCombo"));
    QVERIFY(isEnabled(&page, "glonassCombo"));
    QVERIFY(isEnabled(&page, "galileoCombo"));
    QVERIFY(!isEnabled(&page, "beidouCombo"));
}

void tst_melvoxUiNavigationMode::sendsGpsAndBeidouBackUnchanged_data()
{
    QTest::addColumn<bool>("gps");
    QTest::addColumn<bool>("beidou");
    QTest::newRow("GPS") << true << false;
    QTest::newRow("BeiDou") << false << true;
}

void tst_melvoxUiNavigationMode::sendsGpsAndBeidouBackUnchanged()
{
    QFETCH(bool, gps);
    QFETCH(bool, beidou);
    melvoxUiNavigationMode_t page(device);
    reportMeasUse(gps, true, true, beidou);
    choose(&page, "glonassCombo", "No");
    tap(&page, "Apply");
    QCOMPARE(receiver->messages().first().value.toList(),
             list(meas("GPS", gps), meas("GLO", false), meas("GAL", true), meas("BEI", beidou)));
}

void tst_melvoxUiNavigationMode::sendsAllConstellationsAtOnceInRowOrder()
{
    melvoxUiNavigationMode_t page(device);
    receiver->report("measUse", list(meas("BEI", true), meas("GAL", true), meas("GLO", false), meas("GPS", true)));
    choose(&page, "galileoCombo", "No");
    choose(&page, "glonassCombo", "Yes");
    tap(&page, "Apply");
    QCOMPARE(receiver->messages().size(), 1);
    QCOMPARE(receiver->messages().first().value.toList(),
             list(meas("GPS", true), meas("GLO", true), meas("GAL", false), meas("BEI", true)));
}

void tst_melvoxUiNavigationMode::resetBringsEveryEditorBackToTheReceiver()
{
    melvoxUiNavigationMode_t page(device);
    reportMeasUse(true, false, true, false);
    receiver->report("dynamicConfig", dynamic(false, 3, false));
    choose(&page, "glonassCombo", "Yes");
    choose(&page, "galileoCombo", "No");
    choose(&page, "overallModeCombo", "Low");
    reportMeasUse(false, false, true, true);
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "gpsCombo"), QString("No"));
    QCOMPARE(chosen(&page, "glonassCombo"), QString("No"));
    QCOMPARE(chosen(&page, "galileoCombo"), QString("Yes"));
    QCOMPARE(chosen(&page, "beidouCombo"), QString("Yes"));
    QCOMPARE(chosen(&page, "overallModeCombo"), QString("High"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiNavigationMode::showsTheModeThatTheReceiverIsIn_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("text");
    QTest::newRow("static") << 0 << "Static";
    QTest::newRow("low") << 1 << "Low";
    QTest::newRow("medium") << 2 << "Medium";
    QTest::newRow("high") << 3 << "High";
}

void tst_melvoxUiNavigationMode::showsTheModeThatTheReceiverIsIn()
{
    QFETCH(int, mode);
    QFETCH(QString, text);
    melvoxUiNavigationMode_t page(device);
    receiver->report("dynamicConfig", dynamic(false, mode, true));
    QCOMPARE(labelText(&page, "overallModeLabel"), text);
    QCOMPARE(labelText(&page, "velocitySmoothingLabel"), NoDataString);
    QCOMPARE(chosen(&page, "overallModeCombo"), text);
    QVERIFY(isEnabled(&page, "overallModeCombo"));
    QVERIFY(!isEnabled(&page, "velocitySmoothingCombo"));
}

void tst_melvoxUiNavigationMode::fillsTheModeFromTheFirstReportOnly()
{
    melvoxUiNavigationMode_t page(device);
    receiver->report("dynamicConfig", dynamic(false, 2, false));
    receiver->report("dynamicConfig", dynamic(false, 1, false));
    QCOMPARE(labelText(&page, "overallModeLabel"), QString("Low"));
    QCOMPARE(chosen(&page, "overallModeCombo"), QString("Medium"));
}

void tst_melvoxUiNavigationMode::sendsTheChosenMode_data()
{
    showsTheModeThatTheReceiverIsIn_data();
}

void tst_melvoxUiNavigationMode::sendsTheChosenMode()
{
    QFETCH(int, mode);
    QFETCH(QString, text);
    melvoxUiNavigationMode_t page(device);
    receiver->report("dynamicConfig", dynamic(true, 0, true));
    choose(&page, "overallModeCombo", text);
    tap(&page, "Apply");
    QCOMPARE(receiver->messages().last().group, QString("dynamicConfig"));
    QCOMPARE(receiver->messages().last().value.toMap(), dynamic(false, mode, false));
}

void tst_melvoxUiNavigationMode::offersNoAutomaticMode()
{
    melvoxUiNavigationMode_t page(device);
    QComboBox const* const combo = find<QComboBox>(&page, "overallModeCombo");
    QStringList items;
    for (int i = 0; i < combo->count(); ++i)
        items << combo->itemText(i);
    QCOMPARE(items.join(","), QString("Static,Low,Medium,High"));
}

void tst_melvoxUiNavigationMode::offersYesAndNo_data()
{
    QTest::addColumn<QString>("combo");
    QStringList const combos = QString("gps glonass galileo beidou velocitySmoothing").split(' ');
    for (QString const& combo : combos)
        QTest::newRow(qPrintable(combo)) << combo + "Combo";
}

void tst_melvoxUiNavigationMode::offersYesAndNo()
{
    QFETCH(QString, combo);
    melvoxUiNavigationMode_t page(device);
    QComboBox const* const found = find<QComboBox>(&page, combo);
    QCOMPARE(found->count(), 2);
    QCOMPARE(found->itemText(0), QString("No"));
    QCOMPARE(found->itemText(1), QString("Yes"));
    QCOMPARE(found->currentIndex(), 0);
}

void tst_melvoxUiNavigationMode::showsAnAutomaticModeAsAnEmptyText()
{
    melvoxUiNavigationMode_t page(device);
    receiver->report("dynamicConfig", dynamic(true, 2, true));
    QCOMPARE(labelText(&page, "overallModeLabel"), QString());
    QCOMPARE(labelText(&page, "velocitySmoothingLabel"), YesString);
    QVERIFY(isEnabled(&page, "overallModeCombo"));
    receiver->report("dynamicConfig", dynamic(true, 2, false));
    QCOMPARE(labelText(&page, "velocitySmoothingLabel"), NoString);
}

void tst_melvoxUiNavigationMode::leavesAnAutomaticModeUnchosenAndUnsent()
{
    melvoxUiNavigationMode_t page(device);
    receiver->report("dynamicConfig", dynamic(false, 2, false));
    receiver->report("dynamicConfig", dynamic(true, 2, true));
    tap(&page, "Reset");
    QCOMPARE(find<QComboBox>(&page, "overallModeCombo")->currentIndex(), -1);
    QVERIFY(!isEnabled(&page, "velocitySmoothingCombo"));
    tap(&page, "Apply");
    QVERIFY(receiver->commands().filter("dynamicConfig").isEmpty());
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiNavigationMode::namesTheAutomaticModeIfOffered()
{
    melvoxUiNavigationMode_t page(device);
    offerAutoMode(&page);
    receiver->report("dynamicConfig", dynamic(true, 1, false));
    QCOMPARE(labelText(&page, "overallModeLabel"), QString("Automatic"));
    QCOMPARE(chosen(&page, "overallModeCombo"), QString("Automatic"));
}

void tst_melvoxUiNavigationMode::resetFillsModeAndSmoothingOfAnAutomaticModeIfOffered()
{
    melvoxUiNavigationMode_t page(device);
    offerAutoMode(&page);
    receiver->report("dynamicConfig", dynamic(true, 1, true));
    QCOMPARE(chosen(&page, "velocitySmoothingCombo"), QString("Yes"));
    QVERIFY(isEnabled(&page, "velocitySmoothingCombo"));
    choose(&page, "velocitySmoothingCombo", "No");
    choose(&page, "overallModeCombo", "High");
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "overallModeCombo"), QString("Automatic"));
    QCOMPARE(chosen(&page, "velocitySmoothingCombo"), QString("Yes"));
}

void tst_melvoxUiNavigationMode::leavesTheSmoothingAsItIsWithoutAnAutomaticMode()
{
    melvoxUiNavigationMode_t page(device);
    receiver->report("dynamicConfig", dynamic(false, 1, true));
    QCOMPARE(chosen(&page, "velocitySmoothingCombo"), QString("No"));
}

void tst_melvoxUiNavigationMode::sendsTheAutomaticModeWithItsSmoothingIfOffered_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<bool>("smoothing");
    QTest::newRow("no") << "No" << false;
    QTest::newRow("yes") << "Yes" << true;
}

void tst_melvoxUiNavigationMode::sendsTheAutomaticModeWithItsSmoothingIfOffered()
{
    QFETCH(QString, choice);
    QFETCH(bool, smoothing);
    melvoxUiNavigationMode_t page(device);
    offerAutoMode(&page);
    receiver->report("dynamicConfig", dynamic(false, 1, false));
    choose(&page, "overallModeCombo", "Automatic");
    choose(&page, "velocitySmoothingCombo", choice);
    tap(&page, "Apply");
    QCOMPARE(receiver->messages().last().value.toMap(), dynamic(true, 0, smoothing));
}

void tst_melvoxUiNavigationMode::demandsASmoothingForTheAutomaticModeAndStillSendsTheMeasurements()
{
    melvoxUiNavigationMode_t page(device);
    offerAutoMode(&page);
    receiver->report("dynamicConfig", dynamic(true, 1, true));
    find<QComboBox>(&page, "velocitySmoothingCombo")->setCurrentIndex(-1);
    tap(&page, "Apply");
    QCOMPARE(reportedErrors(), QString("Velocity smoothing setting must be specified\n"));
    QCOMPARE(receiver->commands().size(), 1);
    QVERIFY(receiver->commands().first().startsWith("measUse"));
}

void tst_melvoxUiNavigationMode::letsTheSmoothingBeSetInAutomaticModeOnly()
{
    melvoxUiNavigationMode_t page(device);
    offerAutoMode(&page);
    receiver->report("dynamicConfig", dynamic(false, 1, false));
    QVERIFY(!isEnabled(&page, "velocitySmoothingCombo"));
    choose(&page, "overallModeCombo", "Automatic");
    QVERIFY(isEnabled(&page, "velocitySmoothingCombo"));
    choose(&page, "overallModeCombo", "High");
    QVERIFY(!isEnabled(&page, "velocitySmoothingCombo"));
}

void tst_melvoxUiNavigationMode::keepsTheSmoothingDisabledOnTheWayBackToStatic()
{
    melvoxUiNavigationMode_t page(device);
    receiver->report("dynamicConfig", dynamic(false, 0, false));
    choose(&page, "overallModeCombo", "Medium");
    choose(&page, "overallModeCombo", "Static");
    QVERIFY(!isEnabled(&page, "velocitySmoothingCombo"));
}

void tst_melvoxUiNavigationMode::asksForBothGroupsInThePagesOrder()
{
    melvoxUiNavigationMode_t page(device);
    tap(&page, "Query");
    QCOMPARE(receiver->sent().join("; "), QString("request measUse; request dynamicConfig"));
}

void tst_melvoxUiNavigationMode::sendsBothGroupsInThePagesOrder()
{
    melvoxUiNavigationMode_t page(device);
    reportMeasUse(true, true, false, true);
    receiver->report("dynamicConfig", dynamic(false, 3, false));
    tap(&page, "Apply");
    QCOMPARE(receiver->messages().size(), 2);
    QCOMPARE(receiver->messages().at(0).group, QString("measUse"));
    QCOMPARE(receiver->messages().at(1).value.toMap(), dynamic(false, 3, false));
    QCOMPARE(reportedErrors(), QString());
}

QTEST_MAIN(tst_melvoxUiNavigationMode)
#include "tst_melvoxUiNavigationMode.moc"
