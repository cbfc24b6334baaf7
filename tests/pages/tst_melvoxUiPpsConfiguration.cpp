#include "melvox_ui/melvoxUiPpsConfiguration.h"

#include "support/pageTest.h"

#include <QGroupBox>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

class tst_melvoxUiPpsConfiguration : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void reportPps(int polarity, unsigned int width, unsigned int interval, unsigned int signalDelay,
                   unsigned int chipDelay);
    /** As if the operator could see the details. */
    static void enter(QWidget* page, QString const& edit, QString const& text);

private slots:
    void showsNoDataAndSendsNothingBeforeTheFirstReport();
    void showsValuesThatTheProxyHeldBeforeThePageWasBuilt();
    void showsEachReportInItsLabels();
    void fillsTheEditorsFromTheFirstReportOnly();
    void padsEditorsToTheirMasks();
    void resetBringsEveryEditorBackToTheReceiver();
    void hidesAndDisablesTheDetails();
    void sendsTheReceiversDetailsBackWithAnotherPolarity();
    void sendsEveryFieldInItsPlace();
    void acceptsAndRefusesDetails_data();
    void acceptsAndRefusesDetails();
    void refusesDetailsLeftBlank();
    void reportsEveryBadFieldInOneBoxAndSendsNothing();
    void sendsNothingWithoutAPolarity();
    void sendsAPolarityItDoesNotKnowOnlyWhenAnotherIsChosen();
    void asksForThePps();
    void keepsMaskTextAndKeypadWordsOfEachEdit_data();
    void keepsMaskTextAndKeypadWordsOfEachEdit();
    void offersTwoPolarities();
};

void tst_melvoxUiPpsConfiguration::reportPps(int polarity, unsigned int width, unsigned int interval,
                                             unsigned int signalDelay, unsigned int chipDelay)
{
    receiver->report("ppsConfig", map("polarity", polarity, "width", width, "interval", interval, "signalDelay",
                                      signalDelay, "chipDelay", chipDelay));
}

void tst_melvoxUiPpsConfiguration::enter(QWidget* page, QString const& edit, QString const& text)
{
    find<QLineEdit>(page, edit)->setText(text);
}

void tst_melvoxUiPpsConfiguration::showsNoDataAndSendsNothingBeforeTheFirstReport()
{
    melvoxUiPpsConfiguration_t page(device);
    QStringList const labels = QString("polarity width interval signalDelay chipDelay").split(' ');
    for (QString const& label : labels)
        QCOMPARE(labelText(&page, label + "Label"), NoDataString);
    QVERIFY(!isEnabled(&page, "ppsGroup"));
    QVERIFY(!isEnabled(&page, "polarityCombo"));
    tap(&page, "Apply");
    QVERIFY(receiver->sent().isEmpty());
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiPpsConfiguration::showsValuesThatTheProxyHeldBeforeThePageWasBuilt()
{
    reportPps(1, 250000, 1000, 12, 345);
    melvoxUiPpsConfiguration_t page(device);
    QCOMPARE(labelText(&page, "polarityLabel"), QString("Positive"));
    QCOMPARE(chosen(&page, "polarityCombo"), QString("Positive"));
    QCOMPARE(editText(&page, "widthLineEdit"), QString("0250000"));
    QVERIFY(isEnabled(&page, "polarityCombo"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiPpsConfiguration::showsEachReportInItsLabels()
{
    melvoxUiPpsConfiguration_t page(device);
    reportPps(1, 250000, 1000, 12, 345);
    QCOMPARE(labelText(&page, "polarityLabel"), QString("Positive"));
    QCOMPARE(labelText(&page, "widthLabel"), QString("250000"));
    QCOMPARE(labelText(&page, "intervalLabel"), QString("1000"));
    QCOMPARE(labelText(&page, "signalDelayLabel"), QString("12"));
    QCOMPARE(labelText(&page, "chipDelayLabel"), QString("345"));
    QVERIFY(isEnabled(&page, "ppsGroup"));
    reportPps(0, 1, 2, 3, 4);
    QCOMPARE(labelText(&page, "polarityLabel"), QString("Negative"));
    QCOMPARE(labelText(&page, "chipDelayLabel"), QString("4"));
}

void tst_melvoxUiPpsConfiguration::fillsTheEditorsFromTheFirstReportOnly()
{
    melvoxUiPpsConfiguration_t page(device);
    reportPps(1, 250000, 1000, 12, 345);
    reportPps(0, 1, 2, 3, 4);
    QCOMPARE(chosen(&page, "polarityCombo"), QString("Positive"));
    QCOMPARE(editText(&page, "widthLineEdit"), QString("0250000"));
    QCOMPARE(editText(&page, "intervalLineEdit"), QString("01000"));
    QCOMPARE(editText(&page, "signalDelayLineEdit"), QString("00012"));
    QCOMPARE(editText(&page, "chipDelayLineEdit"), QString("000345"));
}

void tst_melvoxUiPpsConfiguration::padsEditorsToTheirMasks()
{
    melvoxUiPpsConfiguration_t page(device);
    reportPps(0, 5, 6, 7, 8);
    QCOMPARE(editText(&page, "widthLineEdit"), QString("0000005"));
    QCOMPARE(editText(&page, "intervalLineEdit"), QString("00006"));
    QCOMPARE(editText(&page, "signalDelayLineEdit"), QString("00007"));
    QCOMPARE(editText(&page, "chipDelayLineEdit"), QString("000008"));
}

void tst_melvoxUiPpsConfiguration::resetBringsEveryEditorBackToTheReceiver()
{
    melvoxUiPpsConfiguration_t page(device);
    reportPps(1, 250000, 1000, 12, 345);
    reportPps(0, 1600000, 32768, 32767, 999999);
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "polarityCombo"), QString("Negative"));
    QCOMPARE(editText(&page, "widthLineEdit"), QString("1600000"));
    QCOMPARE(editText(&page, "intervalLineEdit"), QString("32768"));
    QCOMPARE(editText(&page, "signalDelayLineEdit"), QString("32767"));
    QCOMPARE(editText(&page, "chipDelayLineEdit"), QString("999999"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiPpsConfiguration::hidesAndDisablesTheDetails()
{
    melvoxUiPpsConfiguration_t page(device);
    page.show();
    QGroupBox* const details = find<QGroupBox>(&page, "groupBox");
    QVERIFY(!details->isVisible());
    QVERIFY(details->isAncestorOf(find<QLineEdit>(&page, "widthLineEdit")));
    QVERIFY(details->isAncestorOf(find<QLineEdit>(&page, "chipDelayLineEdit")));
    details->show();
    details->setEnabled(true);
    reportPps(1, 250000, 1000, 12, 345);
    QVERIFY(!details->isVisible());
    QVERIFY(!details->isEnabled());
    QVERIFY(find<QComboBox>(&page, "polarityCombo")->isVisible());
}

void tst_melvoxUiPpsConfiguration::sendsTheReceiversDetailsBackWithAnotherPolarity()
{
    melvoxUiPpsConfiguration_t page(device);
    reportPps(1, 250000, 1000, 12, 345);
    choose(&page, "polarityCombo", "Negative");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().join("; "),
             QString("ppsConfig chipDelay=345 interval=1000 polarity=0 signalDelay=12 width=250000"));
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiPpsConfiguration::sendsEveryFieldInItsPlace()
{
    melvoxUiPpsConfiguration_t page(device);
    reportPps(0, 250000, 1000, 12, 345);
    choose(&page, "polarityCombo", "Positive");
    enter(&page, "widthLineEdit", "0000011");
    enter(&page, "intervalLineEdit", "00022");
    enter(&page, "signalDelayLineEdit", "00033");
    enter(&page, "chipDelayLineEdit", "000044");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().join("; "),
             QString("ppsConfig chipDelay=44 interval=22 polarity=1 signalDelay=33 width=11"));
}

void tst_melvoxUiPpsConfiguration::acceptsAndRefusesDetails_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("error");
    QTest::newRow("width 0") << "widthLineEdit"
                             << "0000000"
                             << "";
    QTest::newRow("highest width") << "widthLineEdit"
                                   << "1600000"
                                   << "";
    QTest::newRow("width too high") << "widthLineEdit"
                                    << "1600001"
                                    << "Pulse width must be 0 - 1600000\n";
    QTest::newRow("interval 0") << "intervalLineEdit"
                                << "00000"
                                << "Interval must be 1 - 32768\n";
    QTest::newRow("lowest interval") << "intervalLineEdit"
                                     << "00001"
                                     << "";
    QTest::newRow("highest interval") << "intervalLineEdit"
                                      << "32768"
                                      << "";
    QTest::newRow("interval too high") << "intervalLineEdit"
                                       << "32769"
                                       << "Interval must be 1 - 32768\n";
    QTest::newRow("signal delay 0") << "signalDelayLineEdit"
                                    << "00000"
                                    << "";
    QTest::newRow("highest signal delay") << "signalDelayLineEdit"
                                          << "32768"
                                          << "";
    QTest::newRow("signal delay too high") << "signalDelayLineEdit"
                                           << "32769"
                                           << "Signal delay must be 0 - 32768\n";
    QTest::newRow("chip delay 0") << "chipDelayLineEdit"
                                  << "000000"
                                  << "";
    QTest::newRow("highest chip delay") << "chipDelayLineEdit"
                                        << "999999"
                                        << "";
}

void tst_melvoxUiPpsConfiguration::acceptsAndRefusesDetails()
{
    QFETCH(QString, edit);
    QFETCH(QString, typed);
    QFETCH(QString, error);
    melvoxUiPpsConfiguration_t page(device);
    reportPps(1, 250000, 1000, 12, 345);
    enter(&page, edit, typed);
    tap(&page, "Apply");
    QCOMPARE(reportedErrors(), error);
    QCOMPARE(receiver->commands().size(), error.isEmpty() ? 1 : 0);
    if (!error.isEmpty())
        return;
    QString const field = edit.left(edit.indexOf("LineEdit"));
    QCOMPARE(receiver->messages().first().value.toMap().value(field).toUInt(), typed.toUInt());
}

void tst_melvoxUiPpsConfiguration::refusesDetailsLeftBlank()
{
    melvoxUiPpsConfiguration_t page(device);
    reportPps(1, 250000, 1000, 12, 345);
    enter(&page, "chipDelayLineEdit", "");
    tap(&page, "Apply");
    QCOMPARE(reportedErrors(), QString("Chip delay must be 0 - 999999\n"));
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiPpsConfiguration::reportsEveryBadFieldInOneBoxAndSendsNothing()
{
    melvoxUiPpsConfiguration_t page(device);
    reportPps(1, 250000, 1000, 12, 345);
    enter(&page, "widthLineEdit", "9999999");
    enter(&page, "intervalLineEdit", "99999");
    enter(&page, "signalDelayLineEdit", "");
    enter(&page, "chipDelayLineEdit", "");
    tap(&page, "Apply");
    QCOMPARE(reportedErrors(), QString("Pulse width must be 0 - 1600000\nInterval must be 1 - 32768\n"
                                       "Signal delay must be 0 - 32768\nChip delay must be 0 - 999999\n"));
    QVERIFY(!melvox_test::openBox());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiPpsConfiguration::sendsNothingWithoutAPolarity()
{
    melvoxUiPpsConfiguration_t page(device);
    reportPps(1, 250000, 1000, 12, 345);
    find<QComboBox>(&page, "polarityCombo")->setCurrentIndex(-1);
    tap(&page, "Apply");
    QVERIFY(receiver->sent().isEmpty());
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiPpsConfiguration::sendsAPolarityItDoesNotKnowOnlyWhenAnotherIsChosen()
{
    melvoxUiPpsConfiguration_t page(device);
    reportPps(2, 250000, 1000, 12, 345);
    QCOMPARE(labelText(&page, "polarityLabel"), QString());
    tap(&page, "Apply");
    QVERIFY(receiver->sent().isEmpty());
    choose(&page, "polarityCombo", "Positive");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().size(), 1);
}

void tst_melvoxUiPpsConfiguration::asksForThePps()
{
    melvoxUiPpsConfiguration_t page(device);
    tap(&page, "Query");
    QCOMPARE(receiver->sent().join("; "), QString("request ppsConfig"));
}

void tst_melvoxUiPpsConfiguration::keepsMaskTextAndKeypadWordsOfEachEdit_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("mask");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("prompt");
    QTest::newRow("width") << "widthLineEdit"
                           << "9999999"
                           << "0000000"
                           << "1PPS Pulse Width";
    QTest::newRow("interval") << "intervalLineEdit"
                              << "99999"
                              << "00000"
                              << "1PPS Interval";
    QTest::newRow("signal delay") << "signalDelayLineEdit"
                                  << "99999"
                                  << "00000"
                                  << "1PPS Signal Delay";
    QTest::newRow("chip delay") << "chipDelayLineEdit"
                                << "999999"
                                << "000000"
                                << "1PPS Chip Delay";
}

void tst_melvoxUiPpsConfiguration::keepsMaskTextAndKeypadWordsOfEachEdit()
{
    QFETCH(QString, edit);
    QFETCH(QString, mask);
    QFETCH(QString, text);
    QFETCH(QString, prompt);
    melvoxUiPpsConfiguration_t page(device);
    QLineEdit const* const found = find<QLineEdit>(&page, edit);
    QCOMPARE(found->inputMask().section(';', 0, 0), mask);
    QCOMPARE(found->text(), text);
    QCOMPARE(found->property("keypadType").toString(), QString("numeric"));
    QCOMPARE(found->property("keypadPrompt").toString(), prompt);
}

void tst_melvoxUiPpsConfiguration::offersTwoPolarities()
{
    melvoxUiPpsConfiguration_t page(device);
    QComboBox const* const combo = find<QComboBox>(&page, "polarityCombo");
    QCOMPARE(combo->count(), 2);
    QCOMPARE(combo->itemText(0), QString("Negative"));
    QCOMPARE(combo->itemText(1), QString("Positive"));
}

QTEST_MAIN(tst_melvoxUiPpsConfiguration)
#include "tst_melvoxUiPpsConfiguration.moc"
