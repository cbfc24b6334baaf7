#include "melvox_ui/melvoxUiCorrectionsReceiver.h"

#include "melvox_ui/melvoxUiCorrectionSatSelectDialog.h"
#include "support/pageTest.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTimer>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

QVariantMap stat(int id, int status, double strength, double agc, double good, double idle, unsigned int resync)
{
    return map("id", id, "beam", id % 200 + 1, "status", status, "strength", strength, "agcVoltage", agc, "goodPercent",
               good, "idlePercent", idle, "resyncCount", resync, "frequencyOffset", 12.5);
}

QVariantMap sat(int id)
{
    return map("id", id, "longitude", double(id), "lookAngle", 30, "net1", true, "net2", false, "flagU", true, "flagA",
               false, "flagC", false);
}

} // namespace

class tst_melvoxUiCorrectionsReceiver : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void reportStats(int inUse, QVariantList const& sats);
    void reportFour(int inUse = 30);
    void reportPolicy(int mode, int hours, int minutes);
    void reportEverything();
    QTreeWidget* tree(QWidget* page) { return find<QTreeWidget>(page, "statusTree"); }
    QString column(QWidget* page, int column);
    void tapHeader(QTreeWidget* tree, int column);

private slots:
    void showsNoDataAndSendsNothingBeforeTheFirstReport();
    void showsValuesThatTheProxyHeldBeforeThePageWasBuilt();
    void namesItsGroupsAndColumns();
    void captionsItsValues_data();
    void captionsItsValues();
    void keepsEverythingOnOnePageOfAStack();
    void writesARowForEachSatellite();
    void writesTheStatusInWords_data();
    void writesTheStatusInWords();
    void showsBadPacketsWhereTheReceiverTellsGoodOnes_data();
    void showsBadPacketsWhereTheReceiverTellsGoodOnes();
    void marksTheSatelliteInUse();
    void marksAnotherSatelliteWhenTheOneInUseChanges();
    void showsTheIdOfTheSatelliteInUse();
    void showsNoneInUseAsZero();
    void showsNoneInUseAlsoWhenNoSatelliteIsLeft();
    void changesRowsInPlace();
    void changesARowForEachOfItsValues_data();
    void changesARowForEachOfItsValues();
    void neverShowsASatelliteTwice();
    void takesAwayASatelliteWithoutStatistics();
    void emptiesTheTableForEmptyStatistics();
    void appendsNewSatellitesWhileUnsorted();
    void keepsASelectedRowWhileRowsComeAndGo();
    void selectsNoOtherRowWhenTheSelectedOneGoes();
    void keepsTheScrollPosition();
    void doesNotSortUntilAHeaderIsTapped();
    void staysSortedOnceAHeaderWasTapped();
    void sortsByEveryColumn_data();
    void sortsByEveryColumn();
    void countsRowsWithTheSameBadPacketsAsLessThanEachOther();
    void ordersByBadPacketsInBothDirections();
    void keepsAllOfManyRowsWithTheSameBadPackets();
    void leavesRowsWithTheSameBadPacketsWhereTheyStand();
    void fitsTheColumnsToWhatSatellitesWillTell();
    void fitsTheColumnsOnceAndThenLeavesThemToTheOperator();
    void neverStartsTheTimerForOldStatistics();
    void clearsTheSatelliteInUse();
    void clearsTheSatelliteInUseWhenTheTimerIsUp();
    void showsWhetherTheSatelliteIsChosenAutomatically();
    void showsTheCorrectionSelection();
    void sendsTheCorrectionSelection();
    void leavesACorrectionSelectionItDoesNotOfferUnchosenAndUnsent();
    void writesTheTimeOfTheAlmanac();
    void showsWhetherANewAlmanacIsThere();
    void switchesToTheNewAlmanacAtATap();
    void showsThePolicyAndItsTime();
    void showsNoTimeOfAManualPolicy();
    void writesTheSwitchTimeInTwoDigitsEach_data();
    void writesTheSwitchTimeInTwoDigitsEach();
    void disablesBothPolicyControlsUntilThePolicyIsKnown();
    void enablesTheTimeOnlyForTheAutomaticPolicy();
    void aPolicyOfAnUnknownModeLeavesNoChoiceAndIsNotSent();
    void keepsTheTimeWhenTheReceiverGoesManual();
    void fillsEachEditorFromTheFirstReportOnly();
    void resetBringsEveryEditorBackToTheReceiver();
    void resetBeforeTheFirstReportChangesNothing();
    void acceptsAndRefusesSwitchTimes_data();
    void acceptsAndRefusesSwitchTimes();
    void refusesATimeWithoutExactlyTwoParts_data();
    void refusesATimeWithoutExactlyTwoParts();
    void sendsAManualPolicyWithoutATime();
    void sendsTheSelectionAlsoWhenTheTimeIsWrong();
    void sendsEveryGroupInThePagesOrder();
    void asksForEveryGroupInThePagesOrder();
    void ignoresNetPriorityAndRtgUseMode();
    void opensTheSatelliteDialogWithTheReceiversState();
    void loadsTheReceiversStateEachTimeTheDialogOpens();
    void sendsTheSatelliteThatIsChosenInTheDialog();
    void takesItsDialogAlong();
    void keepsTheKeypadWordsAndTheMaskOfTheTime();
};

void tst_melvoxUiCorrectionsReceiver::reportStats(int inUse, QVariantList const& sats)
{
    receiver->report("correctionSatStats", map("inUse", inUse, "sats", sats));
}

void tst_melvoxUiCorrectionsReceiver::reportFour(int inUse)
{
    reportStats(inUse, list(stat(30, 9, 8.5, 1.75, 99.5, 10.0, 3), stat(7, 3, 10.25, 0.5, 12.0, 40.0, 20),
                            stat(112, 5, -1.0, 12.0, 0.0, 9.0, 100), stat(46, 10, 9.0, 1.5, 99.5, 100.0, 4)));
}

void tst_melvoxUiCorrectionsReceiver::reportPolicy(int mode, int hours, int minutes)
{
    receiver->report("starfireAlmSwitchPolicy", map("mode", mode, "hours", hours, "minutes", minutes));
}

void tst_melvoxUiCorrectionsReceiver::reportEverything()
{
    reportFour();
    receiver->report("correctionSatSelection", map("auto", true, "id", 0));
    receiver->report("correctionSelection", 1);
    receiver->report("mrvAlmanacInfo", map("updateTime", 1772600767.75));
    receiver->report("starfireAlmStatus", map("newReady", true));
    reportPolicy(0, 7, 5);
}

QString tst_melvoxUiCorrectionsReceiver::column(QWidget* page, int column)
{
    QStringList texts;
    for (int i = 0; i < tree(page)->topLevelItemCount(); ++i)
        texts << tree(page)->topLevelItem(i)->text(column);
    return texts.join("|");
}

void tst_melvoxUiCorrectionsReceiver::tapHeader(QTreeWidget* tree, int column)
{
    QHeaderView* const header = tree->header();
    header->setOffset(header->sectionPosition(column));
    QPoint const middle(header->sectionSize(column) / 2, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, middle);
}

void tst_melvoxUiCorrectionsReceiver::showsNoDataAndSendsNothingBeforeTheFirstReport()
{
    melvoxUiCorrectionsReceiver_t page(device);
    QStringList const labels = QStringList() << "currentSatIdLabel"
                                             << "autoSelectLabel"
                                             << "correctionSelectionLabel"
                                             << "mrvAlmUpdatedLabel"
                                             << "mrvAlmAvailableLabel"
                                             << "mrvAlmSwitchPolicyLabel"
                                             << "mrvAlmAutoSwitchTimeLabel";
    for (QString const& label : labels)
        QVERIFY2(labelText(&page, label) == NoDataString, qPrintable(label));
    QStringList const editors = QStringList() << "correctionSelectionCombo"
                                              << "useNewMrvAlmButton"
                                              << "mrvAlmSwitchPolicyCombo"
                                              << "mrvAlmAutoSwitchTimeLineEdit";
    for (QString const& editor : editors)
        QVERIFY2(!isEnabled(&page, editor), qPrintable(editor));
    QCOMPARE(tree(&page)->topLevelItemCount(), 0);
    tap(&page, "Apply");
    QVERIFY(receiver->sent().isEmpty());
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiCorrectionsReceiver::showsValuesThatTheProxyHeldBeforeThePageWasBuilt()
{
    reportEverything();
    melvoxUiCorrectionsReceiver_t page(device);
    QCOMPARE(column(&page, 0), QString("7|30|46|112"));
    QCOMPARE(labelText(&page, "currentSatIdLabel"), QString("30"));
    QCOMPARE(labelText(&page, "autoSelectLabel"), YesString);
    QCOMPARE(labelText(&page, "correctionSelectionLabel"), QString("Secondary"));
    QCOMPARE(chosen(&page, "correctionSelectionCombo"), QString("Secondary"));
    QCOMPARE(labelText(&page, "mrvAlmUpdatedLabel"), QString("Wed Mar 4 05:06:07 2026 UTC"));
    QCOMPARE(labelText(&page, "mrvAlmAvailableLabel"), YesString);
    QCOMPARE(labelText(&page, "mrvAlmSwitchPolicyLabel"), QString("Automatic"));
    QCOMPARE(labelText(&page, "mrvAlmAutoSwitchTimeLabel"), QString("07:05"));
    QCOMPARE(editText(&page, "mrvAlmAutoSwitchTimeLineEdit"), QString("07:05"));
    QVERIFY(isEnabled(&page, "mrvAlmAutoSwitchTimeLineEdit"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiCorrectionsReceiver::namesItsGroupsAndColumns()
{
    melvoxUiCorrectionsReceiver_t page(device);
    QCOMPARE(find<QGroupBox>(&page, "satSelectionGroup")->title(), QString("Satellite Selection"));
    QCOMPARE(find<QGroupBox>(&page, "mrvAlmanacGroup")->title(), QString("MRV Almanac"));
    QCOMPARE(find<QGroupBox>(&page, "downlinkStatusGroup")->title(), QString("Downlink Status"));
    QCOMPARE(melvox_test::headerTexts(tree(&page)).join("|"),
             QString("MRV Satellite|Active|Signal Status|SNR|AGC Voltage (V)|Packets % Idle|Packets % Bad|"
                     "Resync Count"));
    QComboBox const* const selection = find<QComboBox>(&page, "correctionSelectionCombo");
    QCOMPARE(selection->count(), 2);
    QCOMPARE(selection->itemText(0) + selection->itemText(1), QString("DefaultSecondary"));
    QComboBox const* const policy = find<QComboBox>(&page, "mrvAlmSwitchPolicyCombo");
    QCOMPARE(policy->count(), 2);
    QCOMPARE(policy->itemText(0) + policy->itemText(1), QString("AutomaticManual"));
}

void tst_melvoxUiCorrectionsReceiver::captionsItsValues_data()
{
    QTest::addColumn<QString>("caption");
    QTest::newRow("currentSatIdTitleLabel") << "Current Selection:";
    QTest::newRow("autoSelectTitleLabel") << "Auto-Select:";
    QTest::newRow("correctionSelectionTitleLabel") << "Correction Selection:";
    QTest::newRow("mrvAlmUpdatedTitleLabel") << "MRV Almanac Updated:";
    QTest::newRow("mrvAlmAvailableTitleLabel") << "New Almanac Available:";
    QTest::newRow("mrvAlmSwitchPolicyTitleLabel") << "Switch Policy:";
    QTest::newRow("mrvAlmAutoSwitchTimeTitleLabel") << "Auto-switch After(HH:MM):";
}

void tst_melvoxUiCorrectionsReceiver::captionsItsValues()
{
    QFETCH(QString, caption);
    melvoxUiCorrectionsReceiver_t page(device);
    QCOMPARE(labelText(&page, QTest::currentDataTag()), caption);
}

void tst_melvoxUiCorrectionsReceiver::keepsEverythingOnOnePageOfAStack()
{
    melvoxUiCorrectionsReceiver_t page(device);
    QStackedWidget const* const stack = find<QStackedWidget>(&page, "stackedWidget");
    QWidget const* const settings = find<QWidget>(&page, "settingsPage");
    QCOMPARE(stack->currentWidget(), settings);
    QVERIFY(settings->isAncestorOf(tree(&page)));
    QVERIFY(settings->isAncestorOf(find<QWidget>(&page, "mrvAlmanacGroup")));
    QVERIFY(find<QWidget>(&page, "statusButtonBox")->isAncestorOf(melvox_test::button(&page, "Query")));
}

void tst_melvoxUiCorrectionsReceiver::writesARowForEachSatellite()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportStats(30, list(stat(30, 9, 8.126, 1.754, 99.5, 10.004, 4000000000u)));
    QCOMPARE(melvox_test::rowTexts(tree(&page), 0).join("|"),
             QString("30|Yes|Locked|8.13|1.75|10.00%|0.50%|4000000000"));
}

void tst_melvoxUiCorrectionsReceiver::writesTheStatusInWords_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("text");
    char const* const texts[] = {"Wait for power",
                                 "Processing disabled",
                                 "Wait for AGC to settle",
                                 "Start of processing",
                                 "Signal detection",
                                 "Signal detection failed",
                                 "Frequency verify",
                                 "Signal acquisition",
                                 "AFC plus Costas pull-in",
                                 "Locked",
                                 "VFFT"};
    for (int status = 0; status < 11; ++status)
        QTest::newRow(texts[status]) << status << QString(texts[status]);
    QTest::newRow("11") << 11 << NoDataString;
    QTest::newRow("255") << 255 << NoDataString;
}

void tst_melvoxUiCorrectionsReceiver::writesTheStatusInWords()
{
    QFETCH(int, status);
    QFETCH(QString, text);
    melvoxUiCorrectionsReceiver_t page(device);
    reportStats(1, list(stat(1, status, 0, 0, 0, 0, 0)));
    QCOMPARE(column(&page, 2), text);
}

void tst_melvoxUiCorrectionsReceiver::showsBadPacketsWhereTheReceiverTellsGoodOnes_data()
{
    QTest::addColumn<double>("good");
    QTest::addColumn<QString>("bad");
    QTest::newRow("all good") << 100.0 << "0.00%";
    QTest::newRow("none good") << 0.0 << "100.00%";
    QTest::newRow("most good") << 98.25 << "1.75%";
}

void tst_melvoxUiCorrectionsReceiver::showsBadPacketsWhereTheReceiverTellsGoodOnes()
{
    QFETCH(double, good);
    QFETCH(QString, bad);
    melvoxUiCorrectionsReceiver_t page(device);
    reportStats(1, list(stat(1, 0, 0, 0, good, 0, 0)));
    QCOMPARE(column(&page, 6), bad);
}

void tst_melvoxUiCorrectionsReceiver::marksTheSatelliteInUse()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour(46);
    QCOMPARE(column(&page, 0), QString("7|30|46|112"));
    QCOMPARE(column(&page, 1), QString("No|No|Yes|No"));
}

void tst_melvoxUiCorrectionsReceiver::marksAnotherSatelliteWhenTheOneInUseChanges()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour(46);
    reportFour(112);
    QCOMPARE(column(&page, 1), QString("No|No|No|Yes"));
    reportFour(5);
    QCOMPARE(column(&page, 1), QString("No|No|No|No"));
}

void tst_melvoxUiCorrectionsReceiver::showsTheIdOfTheSatelliteInUse()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour(112);
    QCOMPARE(labelText(&page, "currentSatIdLabel"), QString("112"));
    reportStats(9, QVariantList());
    QCOMPARE(labelText(&page, "currentSatIdLabel"), QString("9"));
}

void tst_melvoxUiCorrectionsReceiver::showsNoneInUseAsZero()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour(0);
    QCOMPARE(labelText(&page, "currentSatIdLabel"), QString("0"));
}

void tst_melvoxUiCorrectionsReceiver::showsNoneInUseAlsoWhenNoSatelliteIsLeft()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour();
    reportStats(0, QVariantList());
    QCOMPARE(labelText(&page, "currentSatIdLabel"), QString("0"));
}

void tst_melvoxUiCorrectionsReceiver::changesRowsInPlace()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour();
    QTreeWidgetItem const* const row = tree(&page)->topLevelItem(1);
    reportStats(7, list(stat(30, 8, 1.0, 2.0, 3.0, 4.0, 5), stat(7, 3, 10.25, 0.5, 12.0, 40.0, 20)));
    QCOMPARE(static_cast<QTreeWidgetItem const*>(tree(&page)->topLevelItem(1)), row);
    QCOMPARE(melvox_test::rowTexts(tree(&page), 1).join("|"),
             QString("30|No|AFC plus Costas pull-in|1.00|2.00|4.00%|97.00%|5"));
}

void tst_melvoxUiCorrectionsReceiver::changesARowForEachOfItsValues_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("row");
    QTest::newRow("status") << "status"
                            << "30|Yes|Wait for AGC to settle|8.00|1.00|10.00%|50.00%|3";
    QTest::newRow("SNR") << "strength"
                         << "30|Yes|Locked|2.00|1.00|10.00%|50.00%|3";
    QTest::newRow("AGC voltage") << "agcVoltage"
                                 << "30|Yes|Locked|8.00|2.00|10.00%|50.00%|3";
    QTest::newRow("idle packets") << "idlePercent"
                                  << "30|Yes|Locked|8.00|1.00|2.00%|50.00%|3";
    QTest::newRow("bad packets") << "goodPercent"
                                 << "30|Yes|Locked|8.00|1.00|10.00%|98.00%|3";
    QTest::newRow("resync count") << "resyncCount"
                                  << "30|Yes|Locked|8.00|1.00|10.00%|50.00%|2";
}

void tst_melvoxUiCorrectionsReceiver::changesARowForEachOfItsValues()
{
    QFETCH(QString, field);
    QFETCH(QString, row);
    melvoxUiCorrectionsReceiver_t page(device);
    QVariantMap sat = stat(30, 9, 8, 1, 50, 10, 3);
    reportStats(30, list(sat));
    sat[field] = 2;
    reportStats(30, list(sat));
    QCOMPARE(melvox_test::rowTexts(tree(&page), 0).join("|"), row);
}

void tst_melvoxUiCorrectionsReceiver::neverShowsASatelliteTwice()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour();
    reportFour(7);
    reportStats(1, list(stat(30, 1, 1, 1, 1, 1, 1), stat(30, 2, 2, 2, 2, 2, 2), stat(7, 1, 1, 1, 1, 1, 1)));
    QCOMPARE(column(&page, 0), QString("7|30"));
}

void tst_melvoxUiCorrectionsReceiver::takesAwayASatelliteWithoutStatistics()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour();
    reportStats(30, list(stat(30, 9, 1, 1, 1, 1, 1), stat(112, 9, 1, 1, 1, 1, 1)));
    QCOMPARE(column(&page, 0), QString("30|112"));
}

void tst_melvoxUiCorrectionsReceiver::emptiesTheTableForEmptyStatistics()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour();
    reportStats(0, QVariantList());
    QCOMPARE(tree(&page)->topLevelItemCount(), 0);
}

void tst_melvoxUiCorrectionsReceiver::appendsNewSatellitesWhileUnsorted()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportStats(0, list(stat(50, 9, 1, 1, 1, 1, 1)));
    reportStats(0, list(stat(50, 9, 1, 1, 1, 1, 1), stat(60, 9, 1, 1, 1, 1, 1), stat(40, 9, 1, 1, 1, 1, 1)));
    QCOMPARE(column(&page, 0), QString("50|40|60"));
}

void tst_melvoxUiCorrectionsReceiver::keepsASelectedRowWhileRowsComeAndGo()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour();
    tree(&page)->setCurrentItem(tree(&page)->topLevelItem(2));
    reportStats(1, list(stat(46, 1, 1, 1, 1, 1, 1), stat(1, 1, 1, 1, 1, 1, 1), stat(47, 1, 1, 1, 1, 1, 1)));
    QCOMPARE(tree(&page)->selectedItems().size(), 1);
    QCOMPARE(tree(&page)->selectedItems().first()->text(0), QString("46"));
}

void tst_melvoxUiCorrectionsReceiver::selectsNoOtherRowWhenTheSelectedOneGoes()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour();
    tree(&page)->setCurrentItem(tree(&page)->topLevelItem(0));
    reportStats(30, list(stat(30, 9, 1, 1, 1, 1, 1)));
    QVERIFY(tree(&page)->selectedItems().isEmpty());
}

void tst_melvoxUiCorrectionsReceiver::keepsTheScrollPosition()
{
    melvoxUiCorrectionsReceiver_t page(device);
    page.resize(800, 430);
    page.show();
    QVariantList sats;
    for (int id = 1; id <= 60; ++id)
        sats << stat(id, 9, id, 1, 1, 1, 1);
    reportStats(1, sats);
    melvox_test::settle();
    QScrollBar* const bar = tree(&page)->verticalScrollBar();
    bar->setValue(bar->maximum() / 2);
    int const value = bar->value();
    QVERIFY(value > 0);
    sats.removeLast();
    sats[30] = stat(31, 3, 0, 0, 0, 0, 0);
    reportStats(2, sats);
    melvox_test::settle();
    QCOMPARE(bar->value(), value);
}

void tst_melvoxUiCorrectionsReceiver::doesNotSortUntilAHeaderIsTapped()
{
    melvoxUiCorrectionsReceiver_t page(device);
    QVERIFY(!tree(&page)->isSortingEnabled());
    QVERIFY(!tree(&page)->header()->isSortIndicatorShown());
    QVERIFY(tree(&page)->header()->isVisibleTo(&page));
}

void tst_melvoxUiCorrectionsReceiver::staysSortedOnceAHeaderWasTapped()
{
    melvoxUiCorrectionsReceiver_t page(device);
    page.resize(800, 430);
    page.show();
    reportFour();
    tapHeader(tree(&page), 3);
    QCOMPARE(column(&page, 3), QString("-1.00|8.50|9.00|10.25"));
    reportStats(30, list(stat(30, 9, 8.5, 1, 1, 1, 1), stat(7, 9, 7.5, 1, 1, 1, 1), stat(8, 9, 100, 1, 1, 1, 1),
                         stat(9, 9, 8.0, 1, 1, 1, 1)));
    QCOMPARE(column(&page, 3), QString("7.50|8.00|8.50|100.00"));
    tapHeader(tree(&page), 3);
    QCOMPARE(column(&page, 3), QString("100.00|8.50|8.00|7.50"));
}

void tst_melvoxUiCorrectionsReceiver::sortsByEveryColumn_data()
{
    QTest::addColumn<int>("by");
    QTest::addColumn<QString>("ids");
    QTest::newRow("satellite, as a number") << 0 << "7|30|46|112";
    QTest::newRow("active, the one in use last") << 1 << "7|46|112|30";
    QTest::newRow("signal status, by its code") << 2 << "7|112|30|46";
    QTest::newRow("SNR") << 3 << "112|30|46|7";
    QTest::newRow("AGC voltage, as a number") << 4 << "7|46|30|112";
    QTest::newRow("idle packets, as a number") << 5 << "112|30|7|46";
    QTest::newRow("resync count, as a number") << 7 << "30|46|7|112";
}

void tst_melvoxUiCorrectionsReceiver::sortsByEveryColumn()
{
    QFETCH(int, by);
    QFETCH(QString, ids);
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour(30);
    tree(&page)->sortItems(by, Qt::AscendingOrder);
    QCOMPARE(column(&page, 0), ids);
    tree(&page)->sortItems(by == 0 ? 3 : 0, Qt::AscendingOrder);
    tree(&page)->sortItems(by, Qt::DescendingOrder);
    if (by != 1) // where rows are equal, their order says nothing
    {
        QStringList reversed;
        for (QString const& id : ids.split('|'))
            reversed.prepend(id);
        QCOMPARE(column(&page, 0), reversed.join("|"));
    }
}

void tst_melvoxUiCorrectionsReceiver::countsRowsWithTheSameBadPacketsAsLessThanEachOther()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportStats(1, list(stat(1, 9, 1, 1, 50, 1, 1), stat(2, 9, 2, 1, 50, 1, 1), stat(3, 9, 3, 1, 49, 1, 1)));
    tree(&page)->sortItems(6, Qt::AscendingOrder);
    QTreeWidgetItem const* const first = tree(&page)->findItems("1", Qt::MatchExactly, 0).first();
    QTreeWidgetItem const* const second = tree(&page)->findItems("2", Qt::MatchExactly, 0).first();
    QTreeWidgetItem const* const worse = tree(&page)->findItems("3", Qt::MatchExactly, 0).first();
    QVERIFY(*first < *second);
    QVERIFY(*second < *first);
    QVERIFY(*first < *worse);
    QVERIFY(!(*worse < *first));
}

void tst_melvoxUiCorrectionsReceiver::ordersByBadPacketsInBothDirections()
{
    melvoxUiCorrectionsReceiver_t page(device);
    QVariantList sats;
    double const good[] = {100.0, 0.0, 50.0, 99.5, 9.0};
    for (int i = 0; i < 5; ++i)
        sats << stat(i + 1, 9, 1, 1, good[i], 1, 1);
    reportStats(1, sats);
    tree(&page)->sortItems(6, Qt::AscendingOrder);
    QCOMPARE(column(&page, 6), QString("0.00%|0.50%|50.00%|91.00%|100.00%"));
    tree(&page)->sortItems(6, Qt::DescendingOrder);
    QCOMPARE(column(&page, 6), QString("100.00%|91.00%|50.00%|0.50%|0.00%"));
}

void tst_melvoxUiCorrectionsReceiver::keepsAllOfManyRowsWithTheSameBadPackets()
{
    melvoxUiCorrectionsReceiver_t page(device);
    QVariantList sats;
    for (int id = 1; id <= 300; ++id)
        sats << stat(id, 9, id, 1, 50, 1, 1);
    reportStats(1, sats);
    tree(&page)->sortItems(6, Qt::AscendingOrder);
    tree(&page)->sortItems(6, Qt::DescendingOrder);
    QStringList ids = column(&page, 0).split('|');
    QCOMPARE(ids.removeDuplicates(), 0);
    QCOMPARE(ids.size(), 300);
}

void tst_melvoxUiCorrectionsReceiver::leavesRowsWithTheSameBadPacketsWhereTheyStand()
{
    melvoxUiCorrectionsReceiver_t page(device);
    page.resize(800, 430);
    page.show();
    reportStats(4, list(stat(1, 1, 1, 1, 0, 1, 1), stat(2, 1, 1, 1, 0, 1, 1), stat(3, 1, 1, 1, 0, 1, 1),
                        stat(4, 9, 9, 1, 99, 1, 1)));
    tapHeader(tree(&page), 6);
    QString const before = column(&page, 0);
    for (int second = 1; second <= 3; ++second)
    {
        reportStats(4, list(stat(1, 1, 1, 1, 0, 1, 1), stat(2, 1, 1, 1, 0, 1, 1), stat(3, 1, 1, 1, 0, 1, 1),
                            stat(4, 9, 9, 1, 99 - second, 1, 1)));
        QCOMPARE(column(&page, 0), before);
    }
}

void tst_melvoxUiCorrectionsReceiver::fitsTheColumnsToWhatSatellitesWillTell()
{
    melvoxUiCorrectionsReceiver_t page(device);
    page.show();
    reportStats(1, list(stat(65535, 8, -99.99, -99.99, 0, 100, 4294967295u)));
    melvox_test::settle();
    QTreeWidgetItem const* const row = tree(&page)->topLevelItem(0);
    for (int column = 0; column < tree(&page)->columnCount(); ++column)
    {
        QFontMetrics const metrics(tree(&page)->font());
        QVERIFY2(tree(&page)->header()->sectionSize(column) > metrics.boundingRect(row->text(column)).width(),
                 qPrintable(row->text(column)));
        QVERIFY(tree(&page)->header()->sectionSize(column) >
                metrics.boundingRect(tree(&page)->headerItem()->text(column)).width());
    }
}

void tst_melvoxUiCorrectionsReceiver::fitsTheColumnsOnceAndThenLeavesThemToTheOperator()
{
    melvoxUiCorrectionsReceiver_t page(device);
    QHeaderView* const header = tree(&page)->header();
    header->resizeSection(2, 333);
    reportStats(1, list(stat(1, 8, 1, 1, 1, 1, 1)));
    melvox_test::settle();
    QCOMPARE(header->sectionSize(2), 333);
}

void tst_melvoxUiCorrectionsReceiver::neverStartsTheTimerForOldStatistics()
{
    melvoxUiCorrectionsReceiver_t page(device);
    page.show();
    reportEverything();
    QCOMPARE(page.findChildren<QTimer*>().size(), 1);
    QVERIFY(!page.findChild<QTimer*>()->isActive());
}

void tst_melvoxUiCorrectionsReceiver::clearsTheSatelliteInUse()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour();
    page.clearCorrectionSatStats();
    QCOMPARE(labelText(&page, "currentSatIdLabel"), NoDataString);
    QCOMPARE(tree(&page)->topLevelItemCount(), 4);
}

void tst_melvoxUiCorrectionsReceiver::clearsTheSatelliteInUseWhenTheTimerIsUp()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportFour();
    page.findChild<QTimer*>()->start(0);
    QVERIFY(melvox_test::waitFor([&]() { return labelText(&page, "currentSatIdLabel") == NoDataString; }));
}

void tst_melvoxUiCorrectionsReceiver::showsWhetherTheSatelliteIsChosenAutomatically()
{
    melvoxUiCorrectionsReceiver_t page(device);
    receiver->report("correctionSatSelection", map("auto", true, "id", 30));
    QCOMPARE(labelText(&page, "autoSelectLabel"), YesString);
    receiver->report("correctionSatSelection", map("auto", false, "id", 30));
    QCOMPARE(labelText(&page, "autoSelectLabel"), NoString);
    QCOMPARE(labelText(&page, "correctionSelectionLabel"), NoDataString);
}

void tst_melvoxUiCorrectionsReceiver::showsTheCorrectionSelection()
{
    melvoxUiCorrectionsReceiver_t page(device);
    receiver->report("correctionSelection", 1);
    QCOMPARE(labelText(&page, "correctionSelectionLabel"), QString("Secondary"));
    QCOMPARE(chosen(&page, "correctionSelectionCombo"), QString("Secondary"));
    receiver->report("correctionSelection", 0);
    QCOMPARE(labelText(&page, "correctionSelectionLabel"), QString("Default"));
    QCOMPARE(chosen(&page, "correctionSelectionCombo"), QString("Secondary"));
}

void tst_melvoxUiCorrectionsReceiver::sendsTheCorrectionSelection()
{
    melvoxUiCorrectionsReceiver_t page(device);
    receiver->report("correctionSelection", 0);
    choose(&page, "correctionSelectionCombo", "Secondary");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList("correctionSelection 1"));
}

void tst_melvoxUiCorrectionsReceiver::leavesACorrectionSelectionItDoesNotOfferUnchosenAndUnsent()
{
    melvoxUiCorrectionsReceiver_t page(device);
    receiver->report("correctionSelection", 5);
    QCOMPARE(labelText(&page, "correctionSelectionLabel"), QString());
    QCOMPARE(find<QComboBox>(&page, "correctionSelectionCombo")->currentIndex(), -1);
    tap(&page, "Apply");
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiCorrectionsReceiver::writesTheTimeOfTheAlmanac()
{
    melvoxUiCorrectionsReceiver_t page(device);
    receiver->report("mrvAlmanacInfo", map("updateTime", 1772600767.999));
    QCOMPARE(labelText(&page, "mrvAlmUpdatedLabel"), QString("Wed Mar 4 05:06:07 2026 UTC"));
}

void tst_melvoxUiCorrectionsReceiver::showsWhetherANewAlmanacIsThere()
{
    melvoxUiCorrectionsReceiver_t page(device);
    receiver->report("starfireAlmStatus", map("newReady", true));
    QCOMPARE(labelText(&page, "mrvAlmAvailableLabel"), YesString);
    QVERIFY(isEnabled(&page, "useNewMrvAlmButton"));
    receiver->report("starfireAlmStatus", map("newReady", false));
    QCOMPARE(labelText(&page, "mrvAlmAvailableLabel"), NoString);
    QVERIFY(!isEnabled(&page, "useNewMrvAlmButton"));
}

void tst_melvoxUiCorrectionsReceiver::switchesToTheNewAlmanacAtATap()
{
    melvoxUiCorrectionsReceiver_t page(device);
    receiver->report("starfireAlmStatus", map("newReady", true));
    tap(&page, "Switch to New Almanac");
    QCOMPARE(receiver->commands().size(), 1);
    QCOMPARE(receiver->commands().first().trimmed(), QString("useNewStarfireAlm"));
}

void tst_melvoxUiCorrectionsReceiver::showsThePolicyAndItsTime()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportPolicy(0, 13, 45);
    QCOMPARE(labelText(&page, "mrvAlmSwitchPolicyLabel"), QString("Automatic"));
    QCOMPARE(labelText(&page, "mrvAlmAutoSwitchTimeLabel"), QString("13:45"));
    QCOMPARE(chosen(&page, "mrvAlmSwitchPolicyCombo"), QString("Automatic"));
    QCOMPARE(editText(&page, "mrvAlmAutoSwitchTimeLineEdit"), QString("13:45"));
}

void tst_melvoxUiCorrectionsReceiver::showsNoTimeOfAManualPolicy()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportPolicy(1, 13, 45);
    QCOMPARE(labelText(&page, "mrvAlmSwitchPolicyLabel"), QString("Manual"));
    QCOMPARE(labelText(&page, "mrvAlmAutoSwitchTimeLabel"), QString("00:00"));
    QCOMPARE(chosen(&page, "mrvAlmSwitchPolicyCombo"), QString("Manual"));
    QCOMPARE(editText(&page, "mrvAlmAutoSwitchTimeLineEdit"), QString("00:00"));
    QVERIFY(!isEnabled(&page, "mrvAlmAutoSwitchTimeLineEdit"));
}

void tst_melvoxUiCorrectionsReceiver::writesTheSwitchTimeInTwoDigitsEach_data()
{
    QTest::addColumn<int>("hours");
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << 0 << 0 << "00:00";
    QTest::newRow("one digit each") << 7 << 5 << "07:05";
    QTest::newRow("two digits each") << 24 << 59 << "24:59";
    QTest::newRow("more digits") << 100 << 5 << "100:05";
}

void tst_melvoxUiCorrectionsReceiver::writesTheSwitchTimeInTwoDigitsEach()
{
    QFETCH(int, hours);
    QFETCH(int, minutes);
    QFETCH(QString, text);
    melvoxUiCorrectionsReceiver_t page(device);
    reportPolicy(0, hours, minutes);
    QCOMPARE(labelText(&page, "mrvAlmAutoSwitchTimeLabel"), text);
}

void tst_melvoxUiCorrectionsReceiver::disablesBothPolicyControlsUntilThePolicyIsKnown()
{
    melvoxUiCorrectionsReceiver_t page(device);
    receiver->report("correctionSelection", 0);
    page.checkStarfireAlmSwitchPolicy();
    QVERIFY(!isEnabled(&page, "mrvAlmSwitchPolicyCombo"));
    QVERIFY(!isEnabled(&page, "mrvAlmAutoSwitchTimeLineEdit"));
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList("correctionSelection 0"));
}

void tst_melvoxUiCorrectionsReceiver::enablesTheTimeOnlyForTheAutomaticPolicy()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportPolicy(0, 1, 2);
    QVERIFY(isEnabled(&page, "mrvAlmAutoSwitchTimeLineEdit"));
    choose(&page, "mrvAlmSwitchPolicyCombo", "Manual");
    QVERIFY(!isEnabled(&page, "mrvAlmAutoSwitchTimeLineEdit"));
    QCOMPARE(labelText(&page, "mrvAlmSwitchPolicyLabel"), QString("Automatic"));
    choose(&page, "mrvAlmSwitchPolicyCombo", "Automatic");
    QVERIFY(isEnabled(&page, "mrvAlmAutoSwitchTimeLineEdit"));
}

void tst_melvoxUiCorrectionsReceiver::aPolicyOfAnUnknownModeLeavesNoChoiceAndIsNotSent()
{
    melvoxUiCorrectionsReceiver_t page(device);
    page.show();
    reportPolicy(1972710843, 198897642, 5);
    QCOMPARE(labelText(&page, "mrvAlmSwitchPolicyLabel"), QString());
    QCOMPARE(chosen(&page, "mrvAlmSwitchPolicyCombo"), QString());
    QVERIFY(!isEnabled(&page, "mrvAlmAutoSwitchTimeLineEdit"));
    page.submit();
    QCOMPARE(receiver->commands().filter("starfireAlmSwitchPolicy"), QStringList());
}

void tst_melvoxUiCorrectionsReceiver::keepsTheTimeWhenTheReceiverGoesManual()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportPolicy(0, 11, 12);
    reportPolicy(1, 3, 4);
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "mrvAlmSwitchPolicyCombo"), QString("Manual"));
    QCOMPARE(editText(&page, "mrvAlmAutoSwitchTimeLineEdit"), QString("11:12"));
}

void tst_melvoxUiCorrectionsReceiver::fillsEachEditorFromTheFirstReportOnly()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportEverything();
    choose(&page, "correctionSelectionCombo", "Default");
    type(&page, "mrvAlmAutoSwitchTimeLineEdit", "09:08");
    choose(&page, "mrvAlmSwitchPolicyCombo", "Manual");
    receiver->report("correctionSelection", 1);
    reportPolicy(0, 22, 33);
    QCOMPARE(chosen(&page, "correctionSelectionCombo"), QString("Default"));
    QCOMPARE(chosen(&page, "mrvAlmSwitchPolicyCombo"), QString("Manual"));
    QCOMPARE(editText(&page, "mrvAlmAutoSwitchTimeLineEdit"), QString("09:08"));
    QVERIFY(!isEnabled(&page, "mrvAlmAutoSwitchTimeLineEdit"));
    QCOMPARE(labelText(&page, "correctionSelectionLabel"), QString("Secondary"));
    QCOMPARE(labelText(&page, "mrvAlmAutoSwitchTimeLabel"), QString("22:33"));
}

void tst_melvoxUiCorrectionsReceiver::resetBringsEveryEditorBackToTheReceiver()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportEverything();
    choose(&page, "correctionSelectionCombo", "Default");
    type(&page, "mrvAlmAutoSwitchTimeLineEdit", "09:08");
    choose(&page, "mrvAlmSwitchPolicyCombo", "Manual");
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "correctionSelectionCombo"), QString("Secondary"));
    QCOMPARE(chosen(&page, "mrvAlmSwitchPolicyCombo"), QString("Automatic"));
    QCOMPARE(editText(&page, "mrvAlmAutoSwitchTimeLineEdit"), QString("07:05"));
    QVERIFY(isEnabled(&page, "mrvAlmAutoSwitchTimeLineEdit"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiCorrectionsReceiver::resetBeforeTheFirstReportChangesNothing()
{
    melvoxUiCorrectionsReceiver_t page(device);
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "correctionSelectionCombo"), QString("Default"));
    QCOMPARE(chosen(&page, "mrvAlmSwitchPolicyCombo"), QString("Automatic"));
    QCOMPARE(editText(&page, "mrvAlmAutoSwitchTimeLineEdit"), QString("00:00"));
}

void tst_melvoxUiCorrectionsReceiver::acceptsAndRefusesSwitchTimes_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("sent");
    QTest::addColumn<QString>("error");
    QString const hours("Invalid MRV Almanac Auto-switch Hours\n");
    QString const minutes("MRV Almanac Auto-switch Minutes must be 0 - 59\n");
    QString const time("MRV Almanac Auto-switch Time must be <= 24 hours\n");
    QTest::newRow("nothing") << "00:00"
                             << "hours=0 minutes=0 mode=0"
                             << "";
    QTest::newRow("as usual") << "07:05"
                              << "hours=7 minutes=5 mode=0"
                              << "";
    QTest::newRow("one digit each") << "7:5"
                                    << "hours=7 minutes=5 mode=0"
                                    << "";
    QTest::newRow("most minutes") << "12:59"
                                  << "hours=12 minutes=59 mode=0"
                                  << "";
    QTest::newRow("just below a day") << "23:59"
                                      << "hours=23 minutes=59 mode=0"
                                      << "";
    QTest::newRow("a day") << "24:00"
                           << "hours=24 minutes=0 mode=0"
                           << "";
    QTest::newRow("just above a day") << "24:01"
                                      << "" << time;
    QTest::newRow("more hours") << "25:00"
                                << "" << time;
    QTest::newRow("most hours") << "99:59"
                                << "" << time;
    QTest::newRow("too many minutes") << "12:60"
                                      << "" << minutes;
    QTest::newRow("minutes go before the day") << "99:99"
                                               << "" << minutes;
    QTest::newRow("no minutes") << "12:"
                                << "" << minutes;
    QTest::newRow("no hours") << ":30"
                              << "" << hours;
    QTest::newRow("no hours and too many minutes") << ":99"
                                                   << "" << hours;
    QTest::newRow("blank") << ""
                           << "" << hours;
}

void tst_melvoxUiCorrectionsReceiver::acceptsAndRefusesSwitchTimes()
{
    QFETCH(QString, typed);
    QFETCH(QString, sent);
    QFETCH(QString, error);
    melvoxUiCorrectionsReceiver_t page(device);
    reportPolicy(0, 1, 2);
    type(&page, "mrvAlmAutoSwitchTimeLineEdit", typed);
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().join(";"), sent.isEmpty() ? QString() : "starfireAlmSwitchPolicy " + sent);
    QCOMPARE(reportedErrors(), error);
}

void tst_melvoxUiCorrectionsReceiver::refusesATimeWithoutExactlyTwoParts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("one part") << "0700";
    QTest::newRow("three parts") << "07:00:00";
    QTest::newRow("an empty third part") << "07:00:";
}

void tst_melvoxUiCorrectionsReceiver::refusesATimeWithoutExactlyTwoParts()
{
    QFETCH(QString, text);
    melvoxUiCorrectionsReceiver_t page(device);
    reportPolicy(0, 1, 2);
    // The mask lets nobody type this; a keypad that writes texts could.
    find<QLineEdit>(&page, "mrvAlmAutoSwitchTimeLineEdit")->setInputMask(QString());
    find<QLineEdit>(&page, "mrvAlmAutoSwitchTimeLineEdit")->setText(text);
    tap(&page, "Apply");
    QCOMPARE(reportedErrors(), QString("Invalid MRV Almanac Auto-switch Time\n"));
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiCorrectionsReceiver::sendsAManualPolicyWithoutATime()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportPolicy(0, 11, 12);
    type(&page, "mrvAlmAutoSwitchTimeLineEdit", "99:99");
    choose(&page, "mrvAlmSwitchPolicyCombo", "Manual");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList("starfireAlmSwitchPolicy hours=0 minutes=0 mode=1"));
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiCorrectionsReceiver::sendsTheSelectionAlsoWhenTheTimeIsWrong()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportEverything();
    type(&page, "mrvAlmAutoSwitchTimeLineEdit", "12:60");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList("correctionSelection 1"));
    QCOMPARE(reportedErrors(), QString("MRV Almanac Auto-switch Minutes must be 0 - 59\n"));
    QVERIFY(!melvox_test::openBox());
}

void tst_melvoxUiCorrectionsReceiver::sendsEveryGroupInThePagesOrder()
{
    melvoxUiCorrectionsReceiver_t page(device);
    reportEverything();
    choose(&page, "correctionSelectionCombo", "Default");
    type(&page, "mrvAlmAutoSwitchTimeLineEdit", "16:17");
    tap(&page, "Apply");
    QCOMPARE(receiver->sent().join("\n"), QString("command correctionSelection 0\n"
                                                  "command starfireAlmSwitchPolicy hours=16 minutes=17 mode=0"));
}

void tst_melvoxUiCorrectionsReceiver::asksForEveryGroupInThePagesOrder()
{
    melvoxUiCorrectionsReceiver_t page(device);
    tap(&page, "Query");
    QCOMPARE(receiver->requests().join("\n"), QString("correctionSelection\n"
                                                      "netPriority\n"
                                                      "rtgUseMode\n"
                                                      "correctionSats\n"
                                                      "correctionSatSelection\n"
                                                      "mrvAlmanacInfo\n"
                                                      "starfireAlmStatus\n"
                                                      "starfireAlmSwitchPolicy"));
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiCorrectionsReceiver::ignoresNetPriorityAndRtgUseMode()
{
    melvoxUiCorrectionsReceiver_t page(device);
    receiver->report("netPriority", 1);
    receiver->report("rtgUseMode", 1);
    QVERIFY(!isEnabled(&page, "correctionSelectionCombo"));
    tap(&page, "Apply");
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiCorrectionsReceiver::opensTheSatelliteDialogWithTheReceiversState()
{
    melvoxUiCorrectionsReceiver_t page(device);
    page.show();
    reportFour(46);
    receiver->report("correctionSats", list(sat(30), sat(46), sat(112)));
    receiver->report("correctionSatSelection", map("auto", false, "id", 46));
    QWidget* const dialog = page.findChild<melvoxUiCorrectionSatSelectDialog_t*>();
    QVERIFY(dialog && !dialog->isVisible());
    tap(&page, "Select Satellite");
    QVERIFY(dialog->isVisible());
    QCOMPARE(chosen(dialog, "autoSelectCombo"), QString("No"));
    QTreeWidget const* const sats = find<QTreeWidget>(dialog, "satTree");
    QCOMPARE(sats->topLevelItemCount(), 3);
    QCOMPARE(sats->selectedItems().size(), 1);
    QCOMPARE(sats->selectedItems().first()->text(0), QString("46"));
}

void tst_melvoxUiCorrectionsReceiver::loadsTheReceiversStateEachTimeTheDialogOpens()
{
    melvoxUiCorrectionsReceiver_t page(device);
    receiver->report("correctionSatSelection", map("auto", false, "id", 46));
    tap(&page, "Select Satellite");
    QWidget* const dialog = page.findChild<melvoxUiCorrectionSatSelectDialog_t*>();
    choose(dialog, "autoSelectCombo", "Yes");
    tap(dialog, "Cancel");
    tap(&page, "Select Satellite");
    QCOMPARE(chosen(dialog, "autoSelectCombo"), QString("No"));
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiCorrectionsReceiver::sendsTheSatelliteThatIsChosenInTheDialog()
{
    melvoxUiCorrectionsReceiver_t page(device);
    receiver->report("correctionSats", list(sat(30), sat(46), sat(112)));
    receiver->report("correctionSatSelection", map("auto", false, "id", 46));
    tap(&page, "Select Satellite");
    QWidget* const dialog = page.findChild<melvoxUiCorrectionSatSelectDialog_t*>();
    QTreeWidget* const sats = find<QTreeWidget>(dialog, "satTree");
    sats->setCurrentItem(sats->topLevelItem(2));
    tap(dialog, "OK");
    QCOMPARE(receiver->commands(), QStringList("correctionSatSelection auto=false id=112"));
    QVERIFY(!dialog->isVisible());
}

void tst_melvoxUiCorrectionsReceiver::takesItsDialogAlong()
{
    melvoxUiCorrectionsReceiver_t* const page = new melvoxUiCorrectionsReceiver_t(device);
    QPointer<QWidget> const dialog(page->findChild<melvoxUiCorrectionSatSelectDialog_t*>());
    QVERIFY(dialog);
    delete page;
    QVERIFY(!dialog);
    reportEverything(); // nobody listens any more
}

void tst_melvoxUiCorrectionsReceiver::keepsTheKeypadWordsAndTheMaskOfTheTime()
{
    melvoxUiCorrectionsReceiver_t page(device);
    QLineEdit const* const edit = find<QLineEdit>(&page, "mrvAlmAutoSwitchTimeLineEdit");
    QCOMPARE(edit->property("keypadType").toString(), QString("numeric"));
    QCOMPARE(edit->property("keypadPrompt").toString(), QString("MRV Almanac Auto-switch Time"));
    QVERIFY(edit->inputMask().startsWith("99:99"));
    QCOMPARE(edit->text(), QString("00:00"));
}

QTEST_MAIN(tst_melvoxUiCorrectionsReceiver)
#include "tst_melvoxUiCorrectionsReceiver.moc"
