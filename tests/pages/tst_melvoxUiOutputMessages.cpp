#include "melvox_ui/melvoxUiOutputMessages.h"

#include "melvox_ui/melvoxUiDtmWarnDialog.h"
#include "qdconfig/config.h"
#include "support/pageTest.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

char const* const DEFAULT_MESSAGES[] = {
    "NMEADTM",     "NMEAGBS",     "NMEAGGA",     "NMEAGLL",     "NMEAGNS",     "NMEAGRS", "NMEAGSA",
    "NMEAGST",     "NMEAGSV",     "NMEAHDT",     "NMEARMC",     "NMEAROT",     "NMEAVTG", "NMEAZDA",
    "NMEAPZLQDTM", "NMEAPZLQGGA", "NMEAPZLQGST", "NMEAPZLQMDE", "NMEAPZLQSET", "PVT1B",   "NMEAPTPSRVHD"};
int const NUM_DEFAULT_MESSAGES = 21;

QStringList const ONE_HZ = QStringList("1");
QStringList const MULTI_HZ = QStringList() << "1"
                                           << "5"
                                           << "10";
QStringList const CUSTOM = QStringList() << "Custom Interval"
                                         << "1";

// The display is on COM1 and the page shows COM2 unless a test says otherwise.
int const CONTROL_PORT = 0;
int const OTHER_PORT = 1;

QTreeWidget* treeOf(QWidget* page)
{
    return find<QTreeWidget>(page, "messagesTreeWidget");
}

int rowOf(QWidget* page, QString const& message)
{
    QTreeWidget* const tree = treeOf(page);
    for (int row = 0; row < tree->topLevelItemCount(); ++row)
    {
        if (tree->topLevelItem(row)->text(0) == message)
            return row;
    }
    return -1;
}

QString outputText(QWidget* page, QString const& message)
{
    int const row = rowOf(page, message);
    return row < 0 ? QString("no row") : treeOf(page)->topLevelItem(row)->text(1);
}

void select(QWidget* page, QString const& message)
{
    int const row = rowOf(page, message);
    QVERIFY2(row >= 0, qPrintable(message));
    treeOf(page)->setCurrentItem(treeOf(page)->topLevelItem(row));
}

QStringList selectedMessages(QWidget* page)
{
    QStringList names;
    QList<QTreeWidgetItem*> const items = treeOf(page)->selectedItems();
    for (QTreeWidgetItem const* item : items)
        names << item->text(0);
    return names;
}

QStringList items(QWidget* page, QString const& comboName)
{
    QComboBox* const combo = find<QComboBox>(page, comboName);
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts << combo->itemText(i);
    return texts;
}

/** Whether it would be seen once the page is shown. */
bool isShown(QWidget* page, QString const& name)
{
    return !find<QWidget>(page, name)->isHidden();
}

bool buttonEnabled(QWidget* page, QString const& name)
{
    return melvox_test::button(page, name)->isEnabled();
}

void tapIn(QWidget* page, QString const& box, QString const& name)
{
    tap(find<QWidget>(page, box), name);
}

QDialog* dtmDialog(QWidget* page)
{
    return page->findChild<melvoxUiDtmWarnDialog_t*>();
}

} // namespace

class tst_melvoxUiOutputMessages : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void reportOutput(int port, char const* message, int method, double interval);
    void reportUsage(int port, bool valid, double tx, double rx);
    /** Shows COM2 while the display is on COM1. */
    void choosePort(QWidget* page);

private slots:
    // before anything is known
    void listsTheDefaultMessagesWithoutOutputTextBeforeTheControlPortIsKnown();
    void letsNoPortBeTouchedBeforeTheControlPortIsKnown();
    void asksForNothingByItself();
    void showsWhatTheProxyHeldBeforeThePageWasBuilt();
    void startsOnTheMessagesPage();
    // ports
    void listsEveryPortButUsb2();
    void locksTheControlPort();
    void stillListsTheMessagesOfTheControlPort();
    void unlocksAnyOtherPort();
    void locksThePortThatBecomesTheControlPort();
    void showsEveryDefaultMessageAsDisabledUntilReported();
    void forgetsTheSelectionWhenThePortChanges();
    void showsTheOutputsOfTheChosenPortOnly();
    void showsOutputsThatWereKnownBeforeThePortWasChosen();
    void takesReportsOfTheSelectedPortOnly();
    void appendsMessagesThatAreNoDefaultOnes();
    void keepsAppendedMessagesOnOtherPorts();
    void showsAllAsDisabledWhenTheReceiverClearsItsList();
    void showsTwoHundredMessagesOfAPort();
    // output texts
    void tellsHowAMessageIsPutOut_data();
    void tellsHowAMessageIsPutOut();
    void showsQuestionMarksAsNak();
    // the message settings
    void offersTheRatesOfEachDefaultMessage_data();
    void offersTheRatesOfEachDefaultMessage();
    void choosesTheReportedRateOfEachModel_data();
    void choosesTheReportedRateOfEachModel();
    void showsAMessageThatWasNeverReportedAsDisabled();
    void startsEachMessageAtItsFirstRate();
    void offersIntervalsForCustomIntervalMessagesOnly();
    void letsAnIntervalBeChosenOnlyWithACustomInterval();
    void letsARateBeChosenOnlyWithTheIntervalMethod();
    void goesBackToTheFirstRateWithEachChangeOfMethod();
    void refusesToEditWhatCanOnlyBeDisabled_data();
    void refusesToEditWhatCanOnlyBeDisabled();
    void emptiesTheSettingsWithoutASelection();
    void followsTheReceiverWhileAMessageIsSelected();
    void leavesTheSettingsAloneWhenAnotherMessageIsReported();
    void resetBringsTheSettingsBackToTheReceiver();
    // submit
    void sendsEachRateAsAnInterval_data();
    void sendsEachRateAsAnInterval();
    void sendsEachCustomInterval_data();
    void sendsEachCustomInterval();
    void sendsAnIntervalOfZeroWhenNoneIsChosen();
    void sendsADisabledMessageWithoutItsInterval();
    void sendsNothingWithoutASelection();
    void sendsNothingForAMethodItDoesNotOffer();
    void sendsNakAsQuestionMarks();
    void setsBothHalvesOfThePairedCorrections_data();
    void setsBothHalvesOfThePairedCorrections();
    void leavesTheRowOfTheOtherHalfToTheReceiver();
    void showsASubmittedMessageAsDisabledUntilTheReceiverAnswers();
    // disable
    void disablesTheSelectedMessageAfterAYes();
    void disablesOneHalfOfThePairedCorrectionsAlone();
    void doesNotWarnOfDtmWhenDisabling();
    void asksNothingWhenNoMessageIsSelected();
    void disablesNothingUnlessTheAnswerIsYes_data();
    void disablesNothingUnlessTheAnswerIsYes();
    void disablesNothingWhenNothingIsSelectedAnyMore();
    void disablesAllMessagesOfThePortAfterAYes();
    void disablesNotAllUnlessTheAnswerIsYes_data();
    void disablesNotAllUnlessTheAnswerIsYes();
    void asksWithTheSameBoxAgain();
    // DTM
    void warnsOfDtmForTriggerMessagesOnly_data();
    void warnsOfDtmForTriggerMessagesOnly();
    void warnsOfDtmAlsoWhenATriggerIsTurnedOff();
    void doesNotWarnWhileTheWarningIsOff();
    void keepsWarningWhenTheBoxWasNotTicked();
    void warnsNoMoreAfterTheBoxWasTicked();
    void takesTheTickHoweverTheWarningIsClosed_data();
    void takesTheTickHoweverTheWarningIsClosed();
    void warnsAgainAfterDefaultsUntilTheTickedWarningIsClosed();
    // the settings store
    void keepsTheWarningInTheStore();
    void asksToBeSavedOnceTheWarningIsAsChosen();
    void leavesTheWarningAloneWhenTheKeyIsMissing();
    void leavesTheWarningAloneWhenTheValueIsNoFlag();
    void turnsTheWarningOnByDefault();
    // usage
    void showsUsageWithTwoDecimals();
    void showsNoDataForUsageThatIsNotValid();
    void showsNoDataForAPortWithoutUsage();
    void hidesUsageWithoutAPort();
    // settings for all ports
    void switchesBetweenItsTwoPages();
    void showsNoDataForSettingsBeforeTheFirstReport();
    void sendsNoSettingsBeforeTheFirstReport();
    void showsEachSettingInItsLabel();
    void fillsSettingsFromTheFirstReportOnly();
    void resetBringsSettingsBackToTheReceiver();
    void sendsSettingsInOrder_data();
    void sendsSettingsInOrder();
    void disablesTheQualityOfAReceiverWithoutOne();
    void sendsUnknownQualityForNoChoice();
    void sendsNoGgaModeWithoutAPrecision();
    void sendsUnscaledForNoChoice();
    void showsNothingForATalkerItDoesNotOffer();
    void asksForTheGroupsOfEachPage();
    void standsOnStandardVersionFourTen();
    void keepsItsTexts_data();
    void keepsItsTexts();
    void keepsItsItems_data();
    void keepsItsItems();
    void keepsItsTables();
    void goesAwayWithASelectionAndOpenDialogs();
};

void tst_melvoxUiOutputMessages::reportOutput(int port, char const* message, int method, double interval)
{
    receiver->report("output", map("port", port, "message", message, "method", method, "interval", interval));
}

void tst_melvoxUiOutputMessages::reportUsage(int port, bool valid, double tx, double rx)
{
    receiver->report("portTxRxInfo",
                     map("port", port, "txValid", valid, "rxValid", valid, "txUsage", tx, "rxUsage", rx));
}

void tst_melvoxUiOutputMessages::choosePort(QWidget* page)
{
    receiver->report("activePort", CONTROL_PORT);
    choose(page, "portsCombo", "COM2");
    receiver->clear();
}

void tst_melvoxUiOutputMessages::listsTheDefaultMessagesWithoutOutputTextBeforeTheControlPortIsKnown()
{
    melvoxUiOutputMessages_t page(device);
    QCOMPARE(treeOf(&page)->topLevelItemCount(), NUM_DEFAULT_MESSAGES);
    for (int row = 0; row < NUM_DEFAULT_MESSAGES; ++row)
        QCOMPARE(melvox_test::rowTexts(treeOf(&page), row), QStringList() << DEFAULT_MESSAGES[row] << QString());
    reportOutput(0, "NMEAGGA", 1, 1.0);
    QCOMPARE(outputText(&page, "NMEAGGA"), QString());
}

void tst_melvoxUiOutputMessages::letsNoPortBeTouchedBeforeTheControlPortIsKnown()
{
    melvoxUiOutputMessages_t page(device);
    QVERIFY(!isShown(&page, "warningLabel"));
    QVERIFY(!isEnabled(&page, "messageSettingsGroup"));
    QVERIFY(!isEnabled(&page, "messagesTreeWidget"));
    QVERIFY(!buttonEnabled(&page, "Disable"));
    QVERIFY(!buttonEnabled(&page, "Disable All"));
    tapIn(&page, "messagesButtonBox", "Apply");
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiOutputMessages::asksForNothingByItself()
{
    melvoxUiOutputMessages_t page(device);
    receiver->report("activePort", CONTROL_PORT);
    choose(&page, "portsCombo", "COM2");
    select(&page, "NMEAGGA");
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiOutputMessages::showsWhatTheProxyHeldBeforeThePageWasBuilt()
{
    receiver->report("activePort", 3);
    reportOutput(0, "NMEAGGA", 1, 0.2);
    reportOutput(0, "RTCM9", 1, 1.0);
    reportUsage(0, true, 12.5, 3.25);
    receiver->report("ggaMode", map("mode", 1, "quality", 2, "scaling", 2));
    receiver->report("talkerIdMode", 1);
    melvoxUiOutputMessages_t page(device);
    QCOMPARE(outputText(&page, "NMEAGGA"), QString("Interval 0.20(5)"));
    QCOMPARE(outputText(&page, "NMEAGLL"), QString("Disabled"));
    QCOMPARE(treeOf(&page)->topLevelItemCount(), NUM_DEFAULT_MESSAGES + 1);
    QCOMPARE(rowOf(&page, "RTCM9"), NUM_DEFAULT_MESSAGES);
    QCOMPARE(labelText(&page, "txPercentLabel"), QString("12.50%"));
    QCOMPARE(labelText(&page, "ggaPrecisionLabel"), QString("Standard"));
    QCOMPARE(chosen(&page, "scaleCorrectionCombo"), QString("Scaled (/60)"));
    QCOMPARE(chosen(&page, "talkerIdCombo"), QString("GP"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiOutputMessages::startsOnTheMessagesPage()
{
    melvoxUiOutputMessages_t page(device);
    QCOMPARE(find<QStackedWidget>(&page, "stackedWidget")->currentWidget()->objectName(), QString("messagesPage"));
}

void tst_melvoxUiOutputMessages::listsEveryPortButUsb2()
{
    melvoxUiOutputMessages_t page(device);
    QStringList expected;
    for (int port = MELVOX_PORT_COM1; port <= MELVOX_PORT_ETH8; ++port)
    {
        if (port != MELVOX_PORT_USB2)
            expected << melvoxPortName(melvoxPort_t(port));
    }
    QCOMPARE(items(&page, "portsCombo"), expected);
    QCOMPARE(expected.size(), 13);
    QVERIFY(!items(&page, "portsCombo").contains("USB2"));
}

void tst_melvoxUiOutputMessages::locksTheControlPort()
{
    melvoxUiOutputMessages_t page(device);
    receiver->report("activePort", CONTROL_PORT);
    QVERIFY(isShown(&page, "warningLabel"));
    QCOMPARE(labelText(&page, "warningLabel"), QString("Warning: Control Port Selected"));
    QVERIFY(!isEnabled(&page, "messagesTreeWidget"));
    QVERIFY(!buttonEnabled(&page, "Disable"));
    QVERIFY(!buttonEnabled(&page, "Disable All"));
}

void tst_melvoxUiOutputMessages::stillListsTheMessagesOfTheControlPort()
{
    melvoxUiOutputMessages_t page(device);
    receiver->report("activePort", CONTROL_PORT);
    reportOutput(CONTROL_PORT, "NMEAGGA", 1, 1.0);
    QCOMPARE(outputText(&page, "NMEAGGA"), QString("Interval 1.00(1)"));
    QCOMPARE(treeOf(&page)->topLevelItemCount(), NUM_DEFAULT_MESSAGES);
}

void tst_melvoxUiOutputMessages::unlocksAnyOtherPort()
{
    melvoxUiOutputMessages_t page(device);
    receiver->report("activePort", CONTROL_PORT);
    choose(&page, "portsCombo", "ETH8");
    QVERIFY(!isShown(&page, "warningLabel"));
    QVERIFY(isEnabled(&page, "messagesTreeWidget"));
    QVERIFY(buttonEnabled(&page, "Disable"));
    QVERIFY(buttonEnabled(&page, "Disable All"));
}

void tst_melvoxUiOutputMessages::locksThePortThatBecomesTheControlPort()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    select(&page, "NMEAGGA");
    receiver->report("activePort", OTHER_PORT);
    QVERIFY(isShown(&page, "warningLabel"));
    QVERIFY(!isEnabled(&page, "messagesTreeWidget"));
    QVERIFY(!isEnabled(&page, "messageSettingsGroup"));
    QVERIFY(selectedMessages(&page).isEmpty());
}

void tst_melvoxUiOutputMessages::showsEveryDefaultMessageAsDisabledUntilReported()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGGA", 1, 1.0);
    for (char const* message : DEFAULT_MESSAGES)
        QCOMPARE(outputText(&page, message), QString(message == QString("NMEAGGA") ? "Interval 1.00(1)" : "Disabled"));
}

void tst_melvoxUiOutputMessages::forgetsTheSelectionWhenThePortChanges()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    select(&page, "NMEAGGA");
    QVERIFY(isEnabled(&page, "messageSettingsGroup"));
    choose(&page, "portsCombo", "COM3");
    QVERIFY(selectedMessages(&page).isEmpty());
    QVERIFY(!treeOf(&page)->currentItem());
    QVERIFY(!isEnabled(&page, "messageSettingsGroup"));
    QCOMPARE(editText(&page, "messageNameLineEdit"), QString());
}

void tst_melvoxUiOutputMessages::showsTheOutputsOfTheChosenPortOnly()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGGA", 1, 1.0);
    reportOutput(2, "NMEAGLL", 1, 1.0);
    choose(&page, "portsCombo", "COM3");
    QCOMPARE(outputText(&page, "NMEAGGA"), QString("Disabled"));
    QCOMPARE(outputText(&page, "NMEAGLL"), QString("Interval 1.00(1)"));
}

void tst_melvoxUiOutputMessages::showsOutputsThatWereKnownBeforeThePortWasChosen()
{
    melvoxUiOutputMessages_t page(device);
    reportOutput(6, "NMEAGSV", 1, 30.0);
    receiver->report("activePort", CONTROL_PORT);
    QCOMPARE(outputText(&page, "NMEAGSV"), QString("Disabled"));
    choose(&page, "portsCombo", "ETH1");
    QCOMPARE(outputText(&page, "NMEAGSV"), QString("Interval 30.00"));
}

void tst_melvoxUiOutputMessages::takesReportsOfTheSelectedPortOnly()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(2, "NMEAGGA", 1, 1.0);
    reportOutput(2, "RTCM9", 1, 1.0);
    QCOMPARE(outputText(&page, "NMEAGGA"), QString("Disabled"));
    QCOMPARE(rowOf(&page, "RTCM9"), -1);
}

void tst_melvoxUiOutputMessages::appendsMessagesThatAreNoDefaultOnes()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "RTCM9", 1, 1.0);
    reportOutput(OTHER_PORT, "AAA", 1, 1.0);
    reportOutput(OTHER_PORT, "RTCM9", 0, 0.0);
    QCOMPARE(treeOf(&page)->topLevelItemCount(), NUM_DEFAULT_MESSAGES + 2);
    QCOMPARE(rowOf(&page, "RTCM9"), NUM_DEFAULT_MESSAGES);
    QCOMPARE(rowOf(&page, "AAA"), NUM_DEFAULT_MESSAGES + 1);
    QCOMPARE(outputText(&page, "RTCM9"), QString("Disabled"));
}

void tst_melvoxUiOutputMessages::keepsAppendedMessagesOnOtherPorts()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "RTCM9", 1, 1.0);
    choose(&page, "portsCombo", "COM3");
    QCOMPARE(outputText(&page, "RTCM9"), QString("Disabled"));
}

void tst_melvoxUiOutputMessages::showsAllAsDisabledWhenTheReceiverClearsItsList()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGGA", 1, 1.0);
    reportOutput(OTHER_PORT, "RTCM9", 1, 1.0);
    receiver->event("outputsCleared");
    QCOMPARE(outputText(&page, "NMEAGGA"), QString("Disabled"));
    QCOMPARE(outputText(&page, "RTCM9"), QString("Disabled"));
}

void tst_melvoxUiOutputMessages::showsTwoHundredMessagesOfAPort()
{
    melvoxUiOutputMessages_t page(device);
    receiver->report("activePort", CONTROL_PORT);
    for (int i = 199; i >= 0; --i)
        reportOutput(OTHER_PORT, qPrintable(QString("MSG%1").arg(i, 3, 10, QChar('0'))), 1, 10.0 + i);
    choose(&page, "portsCombo", "COM2");
    QCOMPARE(treeOf(&page)->topLevelItemCount(), NUM_DEFAULT_MESSAGES + 200);
    for (int i = 0; i < 200; ++i)
    {
        // In the order of their names, whatever the order of the reports.
        QStringList const row = melvox_test::rowTexts(treeOf(&page), NUM_DEFAULT_MESSAGES + i);
        QCOMPARE(row.at(0), QString("MSG%1").arg(i, 3, 10, QChar('0')));
        QVERIFY2(row.at(1).startsWith(QString("Interval %1.00").arg(10 + i)), qPrintable(row.at(1)));
    }
    choose(&page, "portsCombo", "COM1");
    QCOMPARE(treeOf(&page)->topLevelItemCount(), NUM_DEFAULT_MESSAGES + 200);
    QCOMPARE(outputText(&page, "MSG117"), QString("Disabled"));
}

void tst_melvoxUiOutputMessages::tellsHowAMessageIsPutOut_data()
{
    QTest::addColumn<int>("method");
    QTest::addColumn<double>("interval");
    QTest::addColumn<QString>("text");
    QTest::newRow("off") << 0 << 5.0 << "Disabled";
    QTest::newRow("ten a second") << 1 << 0.1 << "Interval 0.10(10)";
    QTest::newRow("five a second") << 1 << 0.2 << "Interval 0.20(5)";
    QTest::newRow("two a second") << 1 << 0.5 << "Interval 0.50(2)";
    QTest::newRow("one a second") << 1 << 1.0 << "Interval 1.00(1)";
    QTest::newRow("rate with a point") << 1 << 30.0 << "Interval 30.00";
    QTest::newRow("half a rate") << 1 << 2.0 << "Interval 2.00";
    QTest::newRow("rounded interval, whole rate") << 1 << 0.005 << "Interval 0.01(200)";
    QTest::newRow("rate beyond six digits") << 1 << 0.0000001 << "Interval 0.00(1e+07)";
    QTest::newRow("no time at all") << 1 << 0.0 << "Interval 0.00(inf)";
    QTest::newRow("unknown method") << 2 << 1.0 << UnknownString;
}

void tst_melvoxUiOutputMessages::tellsHowAMessageIsPutOut()
{
    QFETCH(int, method);
    QFETCH(double, interval);
    QFETCH(QString, text);
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGGA", method, interval);
    QCOMPARE(outputText(&page, "NMEAGGA"), text);
}

void tst_melvoxUiOutputMessages::showsQuestionMarksAsNak()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "??", 1, 1.0);
    QCOMPARE(rowOf(&page, "??"), -1);
    QCOMPARE(outputText(&page, "NAK"), QString("Interval 1.00(1)"));
    select(&page, "NAK");
    QCOMPARE(editText(&page, "messageNameLineEdit"), QString("NAK"));
    QCOMPARE(chosen(&page, "methodCombo"), QString("Interval"));
    reportOutput(OTHER_PORT, "??", 0, 0.0);
    QCOMPARE(outputText(&page, "NAK"), QString("Disabled"));
    QCOMPARE(treeOf(&page)->topLevelItemCount(), NUM_DEFAULT_MESSAGES + 1);
}

void tst_melvoxUiOutputMessages::offersTheRatesOfEachDefaultMessage_data()
{
    QStringList const multiHz = QStringList() << "NMEAGGA"
                                              << "NMEAGSA"
                                              << "NMEAGST"
                                              << "NMEAHDT"
                                              << "NMEAVTG"
                                              << "NMEAZDA"
                                              << "NMEAPZLQGGA"
                                              << "NMEAPZLQGST"
                                              << "PVT1B";
    QTest::addColumn<QStringList>("rates");
    for (char const* message : DEFAULT_MESSAGES)
        QTest::newRow(message) << (multiHz.contains(message) ? MULTI_HZ : ONE_HZ);
    QTest::newRow("RTCM1") << CUSTOM;
    QTest::newRow("RTCM31") << CUSTOM;
    QTest::newRow("RTCM9") << ONE_HZ;
    QTest::newRow("RTCM3") << ONE_HZ;
}

void tst_melvoxUiOutputMessages::offersTheRatesOfEachDefaultMessage()
{
    QFETCH(QStringList, rates);
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    char const* const message = QTest::currentDataTag();
    reportOutput(OTHER_PORT, message, 1, 1.0);
    // The model of another message must not stay.
    select(&page, rates == ONE_HZ ? "NMEAGGA" : "NMEAGLL");
    select(&page, message);
    QCOMPARE(items(&page, "rateCombo"), rates);
    QCOMPARE(editText(&page, "messageNameLineEdit"), QString(message));
    QCOMPARE(isShown(&page, "intervalLineCombo"), rates == CUSTOM);
    QCOMPARE(isShown(&page, "intervalLabel"), rates == CUSTOM);
}

void tst_melvoxUiOutputMessages::choosesTheReportedRateOfEachModel_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<double>("interval");
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QString>("seconds");
    QTest::newRow("one hertz") << "NMEAGLL" << 1.0 << "1"
                               << "";
    QTest::newRow("one hertz only, told two") << "NMEAGLL" << 0.5 << "1"
                                              << "";
    QTest::newRow("one hertz only, told one in ten seconds") << "NMEAGLL" << 10.0 << "1"
                                                             << "10";
    QTest::newRow("many, one") << "NMEAGGA" << 1.0 << "1"
                               << "";
    QTest::newRow("many, five") << "NMEAGGA" << 0.2 << "5"
                                << "";
    QTest::newRow("many, ten") << "NMEAGGA" << 0.1 << "10"
                               << "";
    QTest::newRow("many, two") << "NMEAGGA" << 0.5 << "1"
                               << "";
    QTest::newRow("custom, one hertz") << "RTCM1" << 1.0 << "1"
                                       << "";
    QTest::newRow("custom, ten seconds") << "RTCM1" << 10.0 << "Custom Interval"
                                         << "10";
    QTest::newRow("custom, fifteen seconds") << "RTCM1" << 15.0 << "Custom Interval"
                                             << "15";
    QTest::newRow("custom, thirty seconds and a bit") << "RTCM31" << 30.9 << "Custom Interval"
                                                      << "30";
    QTest::newRow("custom, a minute") << "RTCM31" << 60.0 << "Custom Interval"
                                      << "60";
    QTest::newRow("custom, a second and a bit") << "RTCM31" << 1.25 << "Custom Interval"
                                                << "1";
    QTest::newRow("custom, two seconds") << "RTCM1" << 2.0 << "Custom Interval"
                                         << "";
    QTest::newRow("custom, no time at all") << "RTCM1" << 0.0 << "Custom Interval"
                                            << "";
    QTest::newRow("custom, too many seconds") << "RTCM1" << 1e12 << "Custom Interval"
                                              << "";
}

void tst_melvoxUiOutputMessages::choosesTheReportedRateOfEachModel()
{
    QFETCH(QString, message);
    QFETCH(double, interval);
    QFETCH(QString, rate);
    QFETCH(QString, seconds);
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, qPrintable(message), 1, interval);
    select(&page, message);
    QCOMPARE(chosen(&page, "methodCombo"), QString("Interval"));
    QCOMPARE(chosen(&page, "rateCombo"), rate);
    QCOMPARE(chosen(&page, "intervalLineCombo"), seconds);
    QVERIFY(isEnabled(&page, "rateCombo"));
    QCOMPARE(isEnabled(&page, "intervalLineCombo"), rate == "Custom Interval");
}

void tst_melvoxUiOutputMessages::showsAMessageThatWasNeverReportedAsDisabled()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGGA", 1, 0.2);
    select(&page, "NMEAGGA");
    select(&page, "NMEAGSA");
    QCOMPARE(chosen(&page, "methodCombo"), QString("Disabled"));
    QCOMPARE(chosen(&page, "rateCombo"), QString("1"));
    QVERIFY(!isEnabled(&page, "rateCombo"));
    QVERIFY(isEnabled(&page, "messageSettingsGroup"));
}

void tst_melvoxUiOutputMessages::startsEachMessageAtItsFirstRate()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGGA", 1, 0.2);
    reportOutput(OTHER_PORT, "NMEAGSA", 1, 0.5);
    select(&page, "NMEAGGA");
    QCOMPARE(chosen(&page, "rateCombo"), QString("5"));
    // The method stays, and still the rate of the message before must not.
    select(&page, "NMEAGSA");
    QCOMPARE(chosen(&page, "rateCombo"), QString("1"));
}

void tst_melvoxUiOutputMessages::offersIntervalsForCustomIntervalMessagesOnly()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "RTCM1", 0, 0.0);
    QVERIFY(!isShown(&page, "intervalLineCombo"));
    select(&page, "RTCM1");
    QVERIFY(isShown(&page, "intervalLineCombo"));
    QVERIFY(isShown(&page, "intervalLabel"));
    select(&page, "NMEAGGA");
    QVERIFY(!isShown(&page, "intervalLineCombo"));
    QVERIFY(!isShown(&page, "intervalLabel"));
}

void tst_melvoxUiOutputMessages::letsAnIntervalBeChosenOnlyWithACustomInterval()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "RTCM1", 1, 15.0);
    select(&page, "RTCM1");
    QVERIFY(isEnabled(&page, "intervalLineCombo"));
    choose(&page, "rateCombo", "1");
    QVERIFY(!isEnabled(&page, "intervalLineCombo"));
    choose(&page, "rateCombo", "Custom Interval");
    QVERIFY(isEnabled(&page, "intervalLineCombo"));
}

void tst_melvoxUiOutputMessages::letsARateBeChosenOnlyWithTheIntervalMethod()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    select(&page, "NMEAGGA");
    QVERIFY(!isEnabled(&page, "rateCombo"));
    choose(&page, "methodCombo", "Interval");
    QVERIFY(isEnabled(&page, "rateCombo"));
    choose(&page, "methodCombo", "Disabled");
    QVERIFY(!isEnabled(&page, "rateCombo"));
}

void tst_melvoxUiOutputMessages::goesBackToTheFirstRateWithEachChangeOfMethod()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGGA", 1, 0.1);
    select(&page, "NMEAGGA");
    QCOMPARE(chosen(&page, "rateCombo"), QString("10"));
    choose(&page, "methodCombo", "Disabled");
    QCOMPARE(chosen(&page, "rateCombo"), QString("1"));
}

void tst_melvoxUiOutputMessages::refusesToEditWhatCanOnlyBeDisabled_data()
{
    QTest::addColumn<bool>("editable");
    QTest::newRow("RTCM3") << false;
    QTest::newRow("RTCM16") << false;
    QTest::newRow("RTCM1") << true;
    QTest::newRow("RTCM31") << true;
    QTest::newRow("RTCM9") << true;
    QTest::newRow("NMEAGLL") << true;
}

void tst_melvoxUiOutputMessages::refusesToEditWhatCanOnlyBeDisabled()
{
    QFETCH(bool, editable);
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, QTest::currentDataTag(), 1, 1.0);
    select(&page, QTest::currentDataTag());
    QCOMPARE(isEnabled(&page, "messageSettingsGroup"), editable);
    tapIn(&page, "messagesButtonBox", "Apply");
    QCOMPARE(receiver->commands().isEmpty(), !editable);
    while (dtmDialog(&page)->isVisible())
        dtmDialog(&page)->done(0);
    // It can always be disabled, and the selection of another brings the settings back.
    receiver->clear();
    tapIn(&page, "messagesButtonBox", "Disable");
    answer(QMessageBox::Yes);
    QCOMPARE(receiver->commands(),
             QStringList(QString("output interval=0 message=%1 method=0 port=1").arg(QTest::currentDataTag())));
    select(&page, "NMEAGSV");
    QVERIFY(isEnabled(&page, "messageSettingsGroup"));
}

void tst_melvoxUiOutputMessages::emptiesTheSettingsWithoutASelection()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    select(&page, "NMEAGGA");
    treeOf(&page)->clearSelection();
    QCOMPARE(editText(&page, "messageNameLineEdit"), QString());
    QVERIFY(!isEnabled(&page, "messageSettingsGroup"));
    QVERIFY(!isShown(&page, "intervalLineCombo"));
}

void tst_melvoxUiOutputMessages::followsTheReceiverWhileAMessageIsSelected()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    select(&page, "NMEAGGA");
    reportOutput(OTHER_PORT, "NMEAGGA", 1, 0.2);
    QCOMPARE(chosen(&page, "methodCombo"), QString("Interval"));
    QCOMPARE(chosen(&page, "rateCombo"), QString("5"));
    reportOutput(OTHER_PORT, "NMEAGGA", 0, 0.0);
    QCOMPARE(chosen(&page, "methodCombo"), QString("Disabled"));
}

void tst_melvoxUiOutputMessages::leavesTheSettingsAloneWhenAnotherMessageIsReported()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    select(&page, "NMEAGGA");
    choose(&page, "methodCombo", "Interval");
    choose(&page, "rateCombo", "10");
    reportOutput(OTHER_PORT, "NMEAGLL", 1, 1.0);
    QCOMPARE(chosen(&page, "rateCombo"), QString("10"));
}

void tst_melvoxUiOutputMessages::resetBringsTheSettingsBackToTheReceiver()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGGA", 1, 0.2);
    select(&page, "NMEAGGA");
    choose(&page, "methodCombo", "Disabled");
    tapIn(&page, "messagesButtonBox", "Reset");
    QCOMPARE(chosen(&page, "methodCombo"), QString("Interval"));
    QCOMPARE(chosen(&page, "rateCombo"), QString("5"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiOutputMessages::sendsEachRateAsAnInterval_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("rate");
    QTest::addColumn<QString>("sent");
    QTest::newRow("one hertz only") << "NMEAGSV"
                                    << "1"
                                    << "output interval=1 message=NMEAGSV method=1 port=1";
    QTest::newRow("one") << "NMEAVTG"
                         << "1"
                         << "output interval=1 message=NMEAVTG method=1 port=1";
    QTest::newRow("five") << "NMEAVTG"
                          << "5"
                          << "output interval=0.2 message=NMEAVTG method=1 port=1";
    QTest::newRow("ten") << "PVT1B"
                         << "10"
                         << "output interval=0.1 message=PVT1B method=1 port=1";
}

void tst_melvoxUiOutputMessages::sendsEachRateAsAnInterval()
{
    QFETCH(QString, message);
    QFETCH(QString, rate);
    QFETCH(QString, sent);
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    select(&page, message);
    choose(&page, "methodCombo", "Interval");
    choose(&page, "rateCombo", rate);
    tapIn(&page, "messagesButtonBox", "Apply");
    QCOMPARE(receiver->commands(), QStringList(sent));
    QCOMPARE(receiver->sent().size(), 1);
}

void tst_melvoxUiOutputMessages::sendsEachCustomInterval_data()
{
    QTest::addColumn<QString>("sent");
    QStringList const seconds = QStringList() << "1"
                                              << "10"
                                              << "15"
                                              << "30"
                                              << "60";
    for (QString const& interval : seconds)
        QTest::newRow(qPrintable(interval))
            << QString("output interval=%1 message=RTCM1 method=1 port=1").arg(interval);
}

void tst_melvoxUiOutputMessages::sendsEachCustomInterval()
{
    QFETCH(QString, sent);
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "RTCM1", 1, 1.0);
    select(&page, "RTCM1");
    choose(&page, "rateCombo", "Custom Interval");
    choose(&page, "intervalLineCombo", QTest::currentDataTag());
    tapIn(&page, "messagesButtonBox", "Apply");
    QCOMPARE(receiver->commands().first(), sent);
}

void tst_melvoxUiOutputMessages::sendsAnIntervalOfZeroWhenNoneIsChosen()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "RTCM1", 1, 2.0);
    select(&page, "RTCM1");
    tapIn(&page, "messagesButtonBox", "Apply");
    QCOMPARE(receiver->commands().first(), QString("output interval=0 message=RTCM1 method=1 port=1"));
}

void tst_melvoxUiOutputMessages::sendsADisabledMessageWithoutItsInterval()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGSV", 1, 30.0);
    select(&page, "NMEAGSV");
    choose(&page, "methodCombo", "Disabled");
    tapIn(&page, "messagesButtonBox", "Apply");
    QCOMPARE(receiver->commands(), QStringList("output interval=0 message=NMEAGSV method=0 port=1"));
}

void tst_melvoxUiOutputMessages::sendsNothingWithoutASelection()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    tapIn(&page, "messagesButtonBox", "Apply");
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiOutputMessages::sendsNothingForAMethodItDoesNotOffer()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGSV", 2, 1.0);
    select(&page, "NMEAGSV");
    QCOMPARE(chosen(&page, "methodCombo"), QString());
    tapIn(&page, "messagesButtonBox", "Apply");
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiOutputMessages::sendsNakAsQuestionMarks()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "??", 1, 30.0);
    select(&page, "NAK");
    tapIn(&page, "messagesButtonBox", "Apply");
    QCOMPARE(receiver->commands(), QStringList("output interval=1 message=?? method=1 port=1"));
    QCOMPARE(outputText(&page, "NAK"), QString("Disabled"));
    receiver->clear();
    tapIn(&page, "messagesButtonBox", "Disable");
    answer(QMessageBox::Yes);
    QCOMPARE(receiver->commands(), QStringList("output interval=0 message=?? method=0 port=1"));
}

void tst_melvoxUiOutputMessages::setsBothHalvesOfThePairedCorrections_data()
{
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("RTCM1") << (QStringList() << "output interval=1 message=RTCM1 method=1 port=1"
                                             << "output interval=1 message=RTCM31 method=1 port=1");
    QTest::newRow("RTCM31") << (QStringList() << "output interval=1 message=RTCM31 method=1 port=1"
                                              << "output interval=1 message=RTCM1 method=1 port=1");
}

void tst_melvoxUiOutputMessages::setsBothHalvesOfThePairedCorrections()
{
    QFETCH(QStringList, sent);
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, QTest::currentDataTag(), 0, 0.0);
    select(&page, QTest::currentDataTag());
    choose(&page, "methodCombo", "Interval");
    choose(&page, "rateCombo", "1");
    tapIn(&page, "messagesButtonBox", "Apply");
    QCOMPARE(receiver->commands(), sent);
}

void tst_melvoxUiOutputMessages::leavesTheRowOfTheOtherHalfToTheReceiver()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "RTCM1", 1, 1.0);
    reportOutput(OTHER_PORT, "RTCM31", 1, 1.0);
    select(&page, "RTCM1");
    tapIn(&page, "messagesButtonBox", "Apply");
    QCOMPARE(outputText(&page, "RTCM1"), QString("Disabled"));
    QCOMPARE(outputText(&page, "RTCM31"), QString("Interval 1.00(1)"));
}

void tst_melvoxUiOutputMessages::showsASubmittedMessageAsDisabledUntilTheReceiverAnswers()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGSV", 1, 30.0);
    select(&page, "NMEAGSV");
    choose(&page, "rateCombo", "1");
    tapIn(&page, "messagesButtonBox", "Apply");
    QCOMPARE(outputText(&page, "NMEAGSV"), QString("Disabled"));
    QCOMPARE(selectedMessages(&page), QStringList("NMEAGSV"));
    reportOutput(OTHER_PORT, "NMEAGSV", 1, 1.0);
    QCOMPARE(outputText(&page, "NMEAGSV"), QString("Interval 1.00(1)"));
}

void tst_melvoxUiOutputMessages::disablesTheSelectedMessageAfterAYes()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGGA", 1, 1.0);
    select(&page, "NMEAGGA");
    tapIn(&page, "messagesButtonBox", "Disable");
    QVERIFY(melvox_test::openBox());
    QCOMPARE(melvox_test::openBox()->text(), QString("Are you sure you want to disable output of this message?"));
    QCOMPARE(melvox_test::openBox()->windowTitle(), QString("Confirm Disable MELVOX Output Message"));
    QCOMPARE(melvox_test::openBox()->icon(), QMessageBox::Question);
    QCOMPARE(int(melvox_test::openBox()->standardButtons()), int(QMessageBox::Yes | QMessageBox::No));
    QVERIFY(receiver->commands().isEmpty());
    answer(QMessageBox::Yes);
    QCOMPARE(receiver->commands(), QStringList("output interval=0 message=NMEAGGA method=0 port=1"));
    QCOMPARE(receiver->sent().size(), 1);
    QCOMPARE(outputText(&page, "NMEAGGA"), QString("Disabled"));
    QVERIFY(selectedMessages(&page).isEmpty());
    QVERIFY(!isEnabled(&page, "messageSettingsGroup"));
}

void tst_melvoxUiOutputMessages::disablesOneHalfOfThePairedCorrectionsAlone()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "RTCM1", 1, 1.0);
    reportOutput(OTHER_PORT, "RTCM31", 1, 1.0);
    select(&page, "RTCM31");
    tapIn(&page, "messagesButtonBox", "Disable");
    answer(QMessageBox::Yes);
    QCOMPARE(receiver->commands(), QStringList("output interval=0 message=RTCM31 method=0 port=1"));
    QCOMPARE(outputText(&page, "RTCM1"), QString("Interval 1.00(1)"));
}

void tst_melvoxUiOutputMessages::doesNotWarnOfDtmWhenDisabling()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    select(&page, "NMEAGGA");
    tapIn(&page, "messagesButtonBox", "Disable");
    answer(QMessageBox::Yes);
    QVERIFY(!dtmDialog(&page)->isVisible());
}

void tst_melvoxUiOutputMessages::asksNothingWhenNoMessageIsSelected()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    tapIn(&page, "messagesButtonBox", "Disable");
    QVERIFY(!melvox_test::openBox());
}

namespace
{

enum closing_t
{
    BY_NO,
    BY_ITS_WINDOW,
    BY_ESCAPE
};

void addClosings()
{
    QTest::addColumn<int>("closing");
    QTest::newRow("no") << int(BY_NO);
    QTest::newRow("window closed") << int(BY_ITS_WINDOW);
    QTest::newRow("escape") << int(BY_ESCAPE);
}

void closeQuestion(int closing)
{
    if (closing == BY_NO)
        answer(QMessageBox::No);
    else if (closing == BY_ITS_WINDOW)
        melvox_test::closeBox();
    else
        QTest::keyClick(melvox_test::openBox(), Qt::Key_Escape);
}

} // namespace

void tst_melvoxUiOutputMessages::disablesNothingUnlessTheAnswerIsYes_data()
{
    addClosings();
}

void tst_melvoxUiOutputMessages::disablesNothingUnlessTheAnswerIsYes()
{
    QFETCH(int, closing);
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGGA", 1, 1.0);
    select(&page, "NMEAGGA");
    tapIn(&page, "messagesButtonBox", "Disable");
    closeQuestion(closing);
    QVERIFY(!melvox_test::openBox());
    QVERIFY(receiver->sent().isEmpty());
    QCOMPARE(outputText(&page, "NMEAGGA"), QString("Interval 1.00(1)"));
    QCOMPARE(selectedMessages(&page), QStringList("NMEAGGA"));
}

void tst_melvoxUiOutputMessages::disablesNothingWhenNothingIsSelectedAnyMore()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportOutput(OTHER_PORT, "NMEAGGA", 1, 1.0);
    select(&page, "NMEAGGA");
    tapIn(&page, "messagesButtonBox", "Disable");
    treeOf(&page)->clearSelection();
    answer(QMessageBox::Yes);
    QVERIFY(receiver->sent().isEmpty());
    QCOMPARE(outputText(&page, "NMEAGGA"), QString("Interval 1.00(1)"));
}

void tst_melvoxUiOutputMessages::disablesAllMessagesOfThePortAfterAYes()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    choose(&page, "portsCombo", "ETH3");
    tapIn(&page, "messagesButtonBox", "Disable All");
    QVERIFY(melvox_test::openBox());
    QCOMPARE(melvox_test::openBox()->text(),
             QString("Are you sure you want to disable output of all messages on this port?"));
    QCOMPARE(melvox_test::openBox()->windowTitle(), QString("Confirm Disable MELVOX Output Messages"));
    QCOMPARE(melvox_test::openBox()->icon(), QMessageBox::Question);
    QCOMPARE(int(melvox_test::openBox()->standardButtons()), int(QMessageBox::Yes | QMessageBox::No));
    QVERIFY(receiver->sent().isEmpty());
    answer(QMessageBox::Yes);
    QCOMPARE(receiver->sent(), QStringList() << "command turnOffAllOutput 8"
                                             << "request outputs");
}

void tst_melvoxUiOutputMessages::disablesNotAllUnlessTheAnswerIsYes_data()
{
    addClosings();
}

void tst_melvoxUiOutputMessages::disablesNotAllUnlessTheAnswerIsYes()
{
    QFETCH(int, closing);
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    tapIn(&page, "messagesButtonBox", "Disable All");
    closeQuestion(closing);
    QVERIFY(!melvox_test::openBox());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiOutputMessages::asksWithTheSameBoxAgain()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    tapIn(&page, "messagesButtonBox", "Disable All");
    QMessageBox const* const first = melvox_test::openBox();
    answer(QMessageBox::No);
    tapIn(&page, "messagesButtonBox", "Disable All");
    QCOMPARE(static_cast<QMessageBox const*>(melvox_test::openBox()), first);
    answer(QMessageBox::Yes);
    QCOMPARE(receiver->commands(), QStringList("turnOffAllOutput 1"));
}

void tst_melvoxUiOutputMessages::warnsOfDtmForTriggerMessagesOnly_data()
{
    QStringList const triggers = QStringList() << "NMEAPZLQGGA"
                                               << "NMEAGGA"
                                               << "NMEAGLL"
                                               << "NMEARMC";
    QTest::addColumn<bool>("warns");
    for (char const* message : DEFAULT_MESSAGES)
        QTest::newRow(message) << triggers.contains(message);
}

void tst_melvoxUiOutputMessages::warnsOfDtmForTriggerMessagesOnly()
{
    QFETCH(bool, warns);
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    select(&page, QTest::currentDataTag());
    choose(&page, "methodCombo", "Interval");
    tapIn(&page, "messagesButtonBox", "Apply");
    QCOMPARE(receiver->commands().size(), 1);
    QCOMPARE(dtmDialog(&page)->isVisible(), warns);
}

void tst_melvoxUiOutputMessages::warnsOfDtmAlsoWhenATriggerIsTurnedOff()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    select(&page, "NMEAGGA");
    choose(&page, "methodCombo", "Disabled");
    tapIn(&page, "messagesButtonBox", "Apply");
    QVERIFY(dtmDialog(&page)->isVisible());
}

void tst_melvoxUiOutputMessages::doesNotWarnWhileTheWarningIsOff()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    device->setShowDtmWarning(false);
    select(&page, "NMEAGGA");
    tapIn(&page, "messagesButtonBox", "Apply");
    QCOMPARE(receiver->commands().size(), 1);
    QVERIFY(!dtmDialog(&page)->isVisible());
}

void tst_melvoxUiOutputMessages::keepsWarningWhenTheBoxWasNotTicked()
{
    melvoxUiOutputMessages_t page(device);
    QSignalSpy saveNeeded(&page, SIGNAL(saveUiSettingsNeeded()));
    choosePort(&page);
    select(&page, "NMEAGGA");
    tapIn(&page, "messagesButtonBox", "Apply");
    QCOMPARE(saveNeeded.size(), 0);
    tap(dtmDialog(&page), "OK");
    QVERIFY(device->showDtmWarning());
    QCOMPARE(saveNeeded.size(), 1);
    tapIn(&page, "messagesButtonBox", "Apply");
    QVERIFY(dtmDialog(&page)->isVisible());
}

void tst_melvoxUiOutputMessages::warnsNoMoreAfterTheBoxWasTicked()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    select(&page, "NMEAGGA");
    tapIn(&page, "messagesButtonBox", "Apply");
    tap(dtmDialog(&page), "suppressWarningCheckBox");
    QVERIFY(device->showDtmWarning());
    tap(dtmDialog(&page), "OK");
    QVERIFY(!device->showDtmWarning());
    tapIn(&page, "messagesButtonBox", "Apply");
    QVERIFY(!dtmDialog(&page)->isVisible());
}

void tst_melvoxUiOutputMessages::takesTheTickHoweverTheWarningIsClosed_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("accepted") << int(QDialog::Accepted);
    QTest::newRow("rejected") << int(QDialog::Rejected);
    QTest::newRow("any") << 16384;
}

void tst_melvoxUiOutputMessages::takesTheTickHoweverTheWarningIsClosed()
{
    QFETCH(int, result);
    melvoxUiOutputMessages_t page(device);
    QSignalSpy saveNeeded(&page, SIGNAL(saveUiSettingsNeeded()));
    choosePort(&page);
    select(&page, "NMEARMC");
    tapIn(&page, "messagesButtonBox", "Apply");
    tap(dtmDialog(&page), "suppressWarningCheckBox");
    dtmDialog(&page)->done(result);
    QVERIFY(!device->showDtmWarning());
    QCOMPARE(saveNeeded.size(), 1);
}

void tst_melvoxUiOutputMessages::warnsAgainAfterDefaultsUntilTheTickedWarningIsClosed()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    select(&page, "NMEAGGA");
    tapIn(&page, "messagesButtonBox", "Apply");
    tap(dtmDialog(&page), "suppressWarningCheckBox");
    tap(dtmDialog(&page), "OK");
    page.useDefaultUiSettings();
    tapIn(&page, "messagesButtonBox", "Apply");
    QVERIFY(dtmDialog(&page)->isVisible());
    QVERIFY(find<QCheckBox>(dtmDialog(&page), "suppressWarningCheckBox")->isChecked());
    tap(dtmDialog(&page), "OK");
    QVERIFY(!device->showDtmWarning());
    tapIn(&page, "messagesButtonBox", "Apply");
    QVERIFY(!dtmDialog(&page)->isVisible());
}

namespace
{

/** A host that saves as soon as it is asked to. */
class savingHost_t : public QObject
{
    Q_OBJECT

public:
    savingHost_t(melvoxUiOutputMessages_t* page, qdconfig::config_t* config) : m_page(page), m_config(config)
    {
        connect(page, SIGNAL(saveUiSettingsNeeded()), SLOT(save()));
    }

private slots:
    void save() { m_page->saveUiSettings(m_config, "outputs/"); }

private:
    melvoxUiOutputMessages_t* m_page;
    qdconfig::config_t* m_config;
};

/** A store in a file of its own. */
struct store_t
{
    store_t()
        : path(QDir::tempPath() + QString("/tst_outputMessages_%1.ini").arg(QCoreApplication::applicationPid())),
          config(QFile::encodeName(path).constData())
    {
        QFile::remove(path);
    }
    ~store_t() { QFile::remove(path); }

    QString path;
    qdconfig::config_t config;
};

} // namespace

void tst_melvoxUiOutputMessages::keepsTheWarningInTheStore()
{
    store_t store;
    melvoxUiOutputMessages_t page(device);
    device->setShowDtmWarning(false);
    page.saveUiSettings(&store.config, "outputs/");
    std::string text;
    QVERIFY(store.config.getValue("outputs/show_dtm_warning", text));
    QCOMPARE(text, qdconfig::qdConfigEncode(false));

    device->setShowDtmWarning(true);
    page.loadUiSettings(&store.config, "outputs/");
    QVERIFY(!device->showDtmWarning());
    device->setShowDtmWarning(true);
    page.saveUiSettings(&store.config, "outputs/");
    device->setShowDtmWarning(false);
    page.loadUiSettings(&store.config, "outputs/");
    QVERIFY(device->showDtmWarning());
}

void tst_melvoxUiOutputMessages::asksToBeSavedOnceTheWarningIsAsChosen()
{
    store_t store;
    melvoxUiOutputMessages_t page(device);
    savingHost_t host(&page, &store.config);
    choosePort(&page);
    select(&page, "NMEAGGA");
    tapIn(&page, "messagesButtonBox", "Apply");
    tap(dtmDialog(&page), "suppressWarningCheckBox");
    tap(dtmDialog(&page), "OK");
    std::string text;
    QVERIFY(store.config.getValue("outputs/show_dtm_warning", text));
    QCOMPARE(text, qdconfig::qdConfigEncode(false));
}

void tst_melvoxUiOutputMessages::leavesTheWarningAloneWhenTheKeyIsMissing()
{
    store_t store;
    store.config.setValue("show_dtm_warning", qdconfig::qdConfigEncode(true));
    melvoxUiOutputMessages_t page(device);
    device->setShowDtmWarning(false);
    page.loadUiSettings(&store.config, "outputs/");
    QVERIFY(!device->showDtmWarning());
    page.loadUiSettings(&store.config, "");
    QVERIFY(device->showDtmWarning());
}

void tst_melvoxUiOutputMessages::leavesTheWarningAloneWhenTheValueIsNoFlag()
{
    store_t store;
    store.config.setValue("outputs/show_dtm_warning", "perhaps");
    melvoxUiOutputMessages_t page(device);
    device->setShowDtmWarning(false);
    page.loadUiSettings(&store.config, "outputs/");
    QVERIFY(!device->showDtmWarning());
    device->setShowDtmWarning(true);
    page.loadUiSettings(&store.config, "outputs/");
    QVERIFY(device->showDtmWarning());
}

void tst_melvoxUiOutputMessages::turnsTheWarningOnByDefault()
{
    melvoxUiOutputMessages_t page(device);
    QVERIFY(device->showDtmWarning());
    device->setShowDtmWarning(false);
    page.useDefaultUiSettings();
    QVERIFY(device->showDtmWarning());
}

void tst_melvoxUiOutputMessages::showsUsageWithTwoDecimals()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    reportUsage(OTHER_PORT, true, 12.5, 3.257);
    QCOMPARE(labelText(&page, "txPercentLabel"), QString("12.50%"));
    QCOMPARE(labelText(&page, "rxPercentLabel"), QString("3.26%"));
}

void tst_melvoxUiOutputMessages::showsNoDataForUsageThatIsNotValid()
{
    melvoxUiOutputMessages_t page(device);
    choosePort(&page);
    receiver->report("portTxRxInfo",
                     map("port", OTHER_PORT, "txValid", false, "rxValid", true, "txUsage", 1.0, "rxUsage", 2.0));
    QCOMPARE(labelText(&page, "txPercentLabel"), NoDataString);
    QCOMPARE(labelText(&page, "rxPercentLabel"), QString("2.00%"));
    receiver->report("portTxRxInfo",
                     map("port", OTHER_PORT, "txValid", true, "rxValid", false, "txUsage", 1.0, "rxUsage", 2.0));
    QCOMPARE(labelText(&page, "txPercentLabel"), QString("1.00%"));
    QCOMPARE(labelText(&page, "rxPercentLabel"), NoDataString);
}

void tst_melvoxUiOutputMessages::showsNoDataForAPortWithoutUsage()
{
    melvoxUiOutputMessages_t page(device);
    QCOMPARE(labelText(&page, "txPercentLabel"), QString("--"));
    QCOMPARE(labelText(&page, "rxPercentLabel"), QString("--"));
    choosePort(&page);
    reportUsage(OTHER_PORT, true, 12.5, 1.5);
    choose(&page, "portsCombo", "COM3");
    QCOMPARE(labelText(&page, "txPercentLabel"), NoDataString);
    QCOMPARE(labelText(&page, "rxPercentLabel"), NoDataString);
}

void tst_melvoxUiOutputMessages::hidesUsageWithoutAPort()
{
    melvoxUiOutputMessages_t page(device);
    reportUsage(0, true, 12.5, 1.5);
    QVERIFY(!isShown(&page, "portUsageGroup"));
    receiver->report("activePort", CONTROL_PORT);
    QVERIFY(isShown(&page, "portUsageGroup"));
    QCOMPARE(labelText(&page, "txPercentLabel"), QString("12.50%"));
}

void tst_melvoxUiOutputMessages::switchesBetweenItsTwoPages()
{
    melvoxUiOutputMessages_t page(device);
    QStackedWidget const* const stack = find<QStackedWidget>(&page, "stackedWidget");
    tapIn(&page, "messagesButtonBox", "General Settings");
    QCOMPARE(stack->currentWidget()->objectName(), QString("settingsPage"));
    tapIn(&page, "settingsButtonBox", "Messages");
    QCOMPARE(stack->currentWidget()->objectName(), QString("messagesPage"));
}

void tst_melvoxUiOutputMessages::showsNoDataForSettingsBeforeTheFirstReport()
{
    melvoxUiOutputMessages_t page(device);
    QCOMPARE(labelText(&page, "ggaPrecisionLabel"), NoDataString);
    QCOMPARE(labelText(&page, "talkerIdLabel"), NoDataString);
    QCOMPARE(labelText(&page, "ggaQualityLabel"), NoDataString);
    QCOMPARE(labelText(&page, "scaleCorrectionLabel"), NoDataString);
    QVERIFY(!isEnabled(&page, "ggaPrecisionCombo"));
    QVERIFY(!isEnabled(&page, "talkerIdCombo"));
    QVERIFY(!isEnabled(&page, "ggaQualityCombo"));
    QVERIFY(!isEnabled(&page, "scaleCorrectionCombo"));
}

void tst_melvoxUiOutputMessages::sendsNoSettingsBeforeTheFirstReport()
{
    melvoxUiOutputMessages_t page(device);
    tapIn(&page, "settingsButtonBox", "Apply");
    tapIn(&page, "settingsButtonBox", "Reset");
    QVERIFY(receiver->sent().isEmpty());
    QVERIFY(!isEnabled(&page, "ggaPrecisionCombo"));
}

void tst_melvoxUiOutputMessages::showsEachSettingInItsLabel()
{
    melvoxUiOutputMessages_t page(device);
    receiver->report("ggaMode", map("mode", 1, "quality", 2, "scaling", 1));
    receiver->report("talkerIdMode", 1);
    QCOMPARE(labelText(&page, "ggaPrecisionLabel"), QString("Standard"));
    QCOMPARE(labelText(&page, "ggaQualityLabel"), toString(GGA_QUALITY_RTK));
    QCOMPARE(labelText(&page, "scaleCorrectionLabel"), QString("Scaled (/10)"));
    QCOMPARE(labelText(&page, "talkerIdLabel"), QString("GP"));
    QCOMPARE(chosen(&page, "ggaPrecisionCombo"), QString("Standard"));
    QCOMPARE(chosen(&page, "ggaQualityCombo"), QString("5"));
    QCOMPARE(chosen(&page, "scaleCorrectionCombo"), QString("Scaled (/10)"));
    QCOMPARE(chosen(&page, "talkerIdCombo"), QString("GP"));
    QVERIFY(isEnabled(&page, "ggaPrecisionCombo"));
    QVERIFY(isEnabled(&page, "ggaQualityCombo"));
    QVERIFY(isEnabled(&page, "scaleCorrectionCombo"));
    QVERIFY(isEnabled(&page, "talkerIdCombo"));
}

void tst_melvoxUiOutputMessages::fillsSettingsFromTheFirstReportOnly()
{
    melvoxUiOutputMessages_t page(device);
    receiver->report("ggaMode", map("mode", 1, "quality", 2, "scaling", 1));
    receiver->report("talkerIdMode", 1);
    receiver->report("ggaMode", map("mode", 0, "quality", 1, "scaling", 2));
    receiver->report("talkerIdMode", 0);
    QCOMPARE(chosen(&page, "ggaPrecisionCombo"), QString("Standard"));
    QCOMPARE(chosen(&page, "ggaQualityCombo"), QString("5"));
    QCOMPARE(chosen(&page, "scaleCorrectionCombo"), QString("Scaled (/10)"));
    QCOMPARE(chosen(&page, "talkerIdCombo"), QString("GP"));
    QCOMPARE(labelText(&page, "ggaPrecisionLabel"), QString("High"));
    QCOMPARE(labelText(&page, "ggaQualityLabel"), toString(GGA_QUALITY_DIFF_SPS));
    QCOMPARE(labelText(&page, "scaleCorrectionLabel"), QString("Scaled (/60)"));
    QCOMPARE(labelText(&page, "talkerIdLabel"), QString("No"));
}

void tst_melvoxUiOutputMessages::resetBringsSettingsBackToTheReceiver()
{
    melvoxUiOutputMessages_t page(device);
    receiver->report("ggaMode", map("mode", 1, "quality", 2, "scaling", 1));
    receiver->report("talkerIdMode", 1);
    choose(&page, "ggaPrecisionCombo", "High");
    choose(&page, "ggaQualityCombo", "2");
    choose(&page, "scaleCorrectionCombo", "Unscaled");
    choose(&page, "talkerIdCombo", "No");
    tapIn(&page, "settingsButtonBox", "Reset");
    QCOMPARE(chosen(&page, "ggaPrecisionCombo"), QString("Standard"));
    QCOMPARE(chosen(&page, "ggaQualityCombo"), QString("5"));
    QCOMPARE(chosen(&page, "scaleCorrectionCombo"), QString("Scaled (/10)"));
    QCOMPARE(chosen(&page, "talkerIdCombo"), QString("GP"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiOutputMessages::sendsSettingsInOrder_data()
{
    QTest::addColumn<QString>("precision");
    QTest::addColumn<QString>("quality");
    QTest::addColumn<QString>("scaling");
    QTest::addColumn<QString>("talker");
    QTest::addColumn<QString>("sent");
    QTest::newRow("first of each") << "High"
                                   << "2"
                                   << "Unscaled"
                                   << "No"
                                   << "ggaMode mode=0 quality=1 scaling=0; talkerIdMode 0";
    QTest::newRow("last of each") << "Standard"
                                  << "5"
                                  << "Scaled (/60)"
                                  << "GP"
                                  << "ggaMode mode=1 quality=2 scaling=2; talkerIdMode 1";
    QTest::newRow("each other") << "High"
                                << "5"
                                << "Scaled (/10)"
                                << "GP"
                                << "ggaMode mode=0 quality=2 scaling=1; talkerIdMode 1";
}

void tst_melvoxUiOutputMessages::sendsSettingsInOrder()
{
    QFETCH(QString, precision);
    QFETCH(QString, quality);
    QFETCH(QString, scaling);
    QFETCH(QString, talker);
    QFETCH(QString, sent);
    melvoxUiOutputMessages_t page(device);
    receiver->report("ggaMode", map("mode", 0, "quality", 1, "scaling", 0));
    receiver->report("talkerIdMode", 0);
    choose(&page, "ggaPrecisionCombo", precision);
    choose(&page, "ggaQualityCombo", quality);
    choose(&page, "scaleCorrectionCombo", scaling);
    choose(&page, "talkerIdCombo", talker);
    tapIn(&page, "settingsButtonBox", "Apply");
    QCOMPARE(receiver->commands().join("; "), sent);
}

void tst_melvoxUiOutputMessages::disablesTheQualityOfAReceiverWithoutOne()
{
    melvoxUiOutputMessages_t page(device);
    receiver->report("ggaMode", map("mode", 1, "quality", 0, "scaling", 1));
    QCOMPARE(labelText(&page, "ggaQualityLabel"), QString());
    QVERIFY(!isEnabled(&page, "ggaQualityCombo"));
    QVERIFY(isEnabled(&page, "ggaPrecisionCombo"));
    QCOMPARE(chosen(&page, "ggaQualityCombo"), QString());
    tapIn(&page, "settingsButtonBox", "Apply");
    QCOMPARE(receiver->commands(), QStringList("ggaMode mode=1 quality=0 scaling=1"));
    // What is chosen counts only while it can be chosen.
    receiver->report("ggaMode", map("mode", 1, "quality", 2, "scaling", 1));
    choose(&page, "ggaQualityCombo", "2");
    receiver->report("ggaMode", map("mode", 1, "quality", 0, "scaling", 1));
    receiver->clear();
    tapIn(&page, "settingsButtonBox", "Apply");
    QCOMPARE(receiver->commands(), QStringList("ggaMode mode=1 quality=0 scaling=1"));
}

void tst_melvoxUiOutputMessages::sendsUnknownQualityForNoChoice()
{
    melvoxUiOutputMessages_t page(device);
    receiver->report("ggaMode", map("mode", 1, "quality", 2, "scaling", 1));
    find<QComboBox>(&page, "ggaQualityCombo")->setCurrentIndex(-1);
    tapIn(&page, "settingsButtonBox", "Apply");
    QCOMPARE(receiver->commands(), QStringList("ggaMode mode=1 quality=0 scaling=1"));
}

void tst_melvoxUiOutputMessages::sendsNoGgaModeWithoutAPrecision()
{
    melvoxUiOutputMessages_t page(device);
    receiver->report("ggaMode", map("mode", 1, "quality", 2, "scaling", 1));
    receiver->report("talkerIdMode", 1);
    find<QComboBox>(&page, "ggaPrecisionCombo")->setCurrentIndex(-1);
    tapIn(&page, "settingsButtonBox", "Apply");
    QCOMPARE(receiver->commands(), QStringList("talkerIdMode 1"));
}

void tst_melvoxUiOutputMessages::sendsUnscaledForNoChoice()
{
    melvoxUiOutputMessages_t page(device);
    receiver->report("ggaMode", map("mode", 1, "quality", 2, "scaling", 1));
    find<QComboBox>(&page, "scaleCorrectionCombo")->setCurrentIndex(-1);
    tapIn(&page, "settingsButtonBox", "Apply");
    QCOMPARE(receiver->commands(), QStringList("ggaMode mode=1 quality=2 scaling=0"));
}

void tst_melvoxUiOutputMessages::showsNothingForATalkerItDoesNotOffer()
{
    melvoxUiOutputMessages_t page(device);
    receiver->report("talkerIdMode", 2);
    QCOMPARE(labelText(&page, "talkerIdLabel"), QString());
    QCOMPARE(chosen(&page, "talkerIdCombo"), QString());
    QVERIFY(isEnabled(&page, "talkerIdCombo"));
    tapIn(&page, "settingsButtonBox", "Apply");
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiOutputMessages::asksForTheGroupsOfEachPage()
{
    melvoxUiOutputMessages_t page(device);
    tapIn(&page, "messagesButtonBox", "Query");
    QCOMPARE(receiver->sent(), QStringList("request outputs"));
    receiver->clear();
    tapIn(&page, "settingsButtonBox", "Query");
    QCOMPARE(receiver->sent(), QStringList() << "request ggaMode"
                                             << "request talkerIdMode");
}

void tst_melvoxUiOutputMessages::standsOnStandardVersionFourTen()
{
    melvoxUiOutputMessages_t page(device);
    QCOMPARE(labelText(&page, "nmeaStandardLabel"), QString("4.10"));
}

void tst_melvoxUiOutputMessages::keepsItsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("portsTitleLabel") << "Messages For Port:";
    QTest::newRow("txTitleLabel") << "Tx:";
    QTest::newRow("rxTitleLabel") << "Rx:";
    QTest::newRow("messageNameTitleLabel") << "Message:";
    QTest::newRow("methodTitleLabel") << "Method:";
    QTest::newRow("rateTitleLabel") << "Rate (Hz):";
    QTest::newRow("intervalLabel") << "or Interval (sec):";
    QTest::newRow("ggaPrecisionTitleLabel") << "GGA Precision:";
    QTest::newRow("talkerIdTitleLabel") << "Force NMEA Talker ID:";
    QTest::newRow("ggaQualityTitleLabel") << "MRV GGA Quality:";
    QTest::newRow("scaleCorrectionTitleLabel") << "NMEA GGA Correction Age Scaling:";
    QTest::newRow("nmeaStandardTitleLabel") << "NMEA Standard Version:";
}

void tst_melvoxUiOutputMessages::keepsItsTexts()
{
    QFETCH(QString, text);
    melvoxUiOutputMessages_t page(device);
    QCOMPARE(labelText(&page, QTest::currentDataTag()), text);
}

void tst_melvoxUiOutputMessages::keepsItsItems_data()
{
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("methodCombo") << (QStringList() << "Disabled"
                                                   << "Interval");
    QTest::newRow("intervalLineCombo") << (QStringList() << "1"
                                                         << "10"
                                                         << "15"
                                                         << "30"
                                                         << "60");
    QTest::newRow("ggaPrecisionCombo") << (QStringList() << "High"
                                                         << "Standard");
    QTest::newRow("talkerIdCombo") << (QStringList() << "No"
                                                     << "GP");
    QTest::newRow("ggaQualityCombo") << (QStringList() << "2"
                                                       << "5");
    QTest::newRow("scaleCorrectionCombo") << (QStringList() << "Unscaled"
                                                            << "Scaled (/10)"
                                                            << "Scaled (/60)");
}

void tst_melvoxUiOutputMessages::keepsItsItems()
{
    QFETCH(QStringList, expected);
    melvoxUiOutputMessages_t page(device);
    QCOMPARE(items(&page, QTest::currentDataTag()), expected);
}

void tst_melvoxUiOutputMessages::keepsItsTables()
{
    melvoxUiOutputMessages_t page(device);
    QCOMPARE(melvox_test::headerTexts(treeOf(&page)), QStringList() << "Message"
                                                                    << "Output Type");
    QCOMPARE(find<QGroupBox>(&page, "messageListGroup")->title(), QString("Output Messages"));
    QCOMPARE(find<QGroupBox>(&page, "portUsageGroup")->title(), QString("Port Usage"));
    QCOMPARE(find<QGroupBox>(&page, "messageSettingsGroup")->title(), QString("Message Settings"));
    QCOMPARE(find<QGroupBox>(&page, "settingsGroup")->title(), QString("Output Settings for All Ports"));
}

void tst_melvoxUiOutputMessages::goesAwayWithASelectionAndOpenDialogs()
{
    {
        melvoxUiOutputMessages_t page(device);
        choosePort(&page);
        select(&page, "NMEAGGA");
        tapIn(&page, "messagesButtonBox", "Apply");
        tapIn(&page, "messagesButtonBox", "Disable");
        QVERIFY(dtmDialog(&page)->isVisible());
        QVERIFY(melvox_test::openBox());
    }
    QVERIFY(!melvox_test::openBox());
    receiver->clear();
    receiver->report("activePort", OTHER_PORT);
    QVERIFY(receiver->sent().isEmpty());
}

QTEST_MAIN(tst_melvoxUiOutputMessages)
#include "tst_melvoxUiOutputMessages.moc"
