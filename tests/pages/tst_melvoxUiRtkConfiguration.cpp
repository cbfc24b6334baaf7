#include "melvox_ui/melvoxUiRtkConfiguration.h"

#include "support/pageTest.h"

#include <QStackedWidget>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

class tst_melvoxUiRtkConfiguration : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void reportAlignment(int mode, double angle);

private slots:
    void showsNoDataAndSendsNothingBeforeTheFirstReport();
    void showsValuesThatTheProxyHeldBeforeThePageWasBuilt();
    void showsTheAlignment_data();
    void showsTheAlignment();
    void showsTwoDecimalsOfTheUserAngle();
    void fillsTheEditorsFromTheFirstReportOnly();
    void resetBringsTheEditorsBackToTheReceiver();
    void resetSetsTheAngleToZeroWithoutAUserAngle();
    void resetBeforeTheFirstReportChangesNothing();
    void acceptsAndRefusesUserAngles_data();
    void acceptsAndRefusesUserAngles();
    void refusesAUserAngleLeftBlank();
    void sendsTheAngleZeroForAnAxisWhateverIsTyped_data();
    void sendsTheAngleZeroForAnAxisWhateverIsTyped();
    void sendsNothingWithoutAChoice();
    void letsTheAngleBeTypedForAUserSpecifiedAlignmentOnly();
    void enablesTheAngleWithAFirstReportThatHasOne();
    void keepsTheAngleDisabledOnAFirstLateralReportAfterConstruction();
    void leavesTheAngleEnabledWhenALateralReportWasThereBefore();
    void showsItsOwnPageOfTheStackOnceTheEventLoopRuns();
    void asksForTheAlignment();
    void offersThreeAlignments();
    void keepsMaskTextAndKeypadWordsOfTheAngle();
};

void tst_melvoxUiRtkConfiguration::reportAlignment(int mode, double angle)
{
    receiver->report("antennaAlignment", map("mode", mode, "angle", angle));
}

void tst_melvoxUiRtkConfiguration::showsNoDataAndSendsNothingBeforeTheFirstReport()
{
    melvoxUiRtkConfiguration_t page(device);
    QCOMPARE(labelText(&page, "alignmentLabel"), NoDataString);
    QCOMPARE(labelText(&page, "userAngleLabel"), NoDataString);
    QVERIFY(!isEnabled(&page, "alignmentCombo"));
    QVERIFY(!isEnabled(&page, "userAngleLineEdit"));
    tap(&page, "Apply");
    QVERIFY(receiver->sent().isEmpty());
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiRtkConfiguration::showsValuesThatTheProxyHeldBeforeThePageWasBuilt()
{
    reportAlignment(2, 123.5);
    melvoxUiRtkConfiguration_t page(device);
    QCOMPARE(labelText(&page, "alignmentLabel"), QString("User-Specified"));
    QCOMPARE(labelText(&page, "userAngleLabel"), QString("123.50"));
    QCOMPARE(chosen(&page, "alignmentCombo"), QString("User-Specified"));
    QCOMPARE(editText(&page, "userAngleLineEdit"), QString("123.50"));
    QVERIFY(isEnabled(&page, "alignmentCombo"));
    QVERIFY(isEnabled(&page, "userAngleLineEdit"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiRtkConfiguration::showsTheAlignment_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("alignment");
    QTest::addColumn<QString>("angle");
    QTest::newRow("lateral") << 0 << "Lateral" << NoDataString;
    QTest::newRow("longitudinal") << 1 << "Longitudinal" << NoDataString;
    QTest::newRow("user-specified") << 2 << "User-Specified"
                                    << "77.25";
}

void tst_melvoxUiRtkConfiguration::showsTheAlignment()
{
    QFETCH(int, mode);
    QFETCH(QString, alignment);
    QFETCH(QString, angle);
    melvoxUiRtkConfiguration_t page(device);
    reportAlignment(mode, 77.25);
    QCOMPARE(labelText(&page, "alignmentLabel"), alignment);
    QCOMPARE(labelText(&page, "userAngleLabel"), angle);
    QCOMPARE(chosen(&page, "alignmentCombo"), alignment);
    QVERIFY(isEnabled(&page, "alignmentCombo"));
}

void tst_melvoxUiRtkConfiguration::showsTwoDecimalsOfTheUserAngle()
{
    melvoxUiRtkConfiguration_t page(device);
    reportAlignment(2, 5.0);
    QCOMPARE(labelText(&page, "userAngleLabel"), QString("5.00"));
    QCOMPARE(editText(&page, "userAngleLineEdit"), QString("005.00"));
    reportAlignment(2, 45.5);
    QCOMPARE(labelText(&page, "userAngleLabel"), QString("45.50"));
    tap(&page, "Reset");
    QCOMPARE(editText(&page, "userAngleLineEdit"), QString("045.50"));
}

void tst_melvoxUiRtkConfiguration::fillsTheEditorsFromTheFirstReportOnly()
{
    melvoxUiRtkConfiguration_t page(device);
    reportAlignment(2, 45.5);
    type(&page, "userAngleLineEdit", "012.34");
    reportAlignment(1, 0);
    QCOMPARE(chosen(&page, "alignmentCombo"), QString("User-Specified"));
    QCOMPARE(editText(&page, "userAngleLineEdit"), QString("012.34"));
    QVERIFY(isEnabled(&page, "userAngleLineEdit"));
    QCOMPARE(labelText(&page, "alignmentLabel"), QString("Longitudinal"));
    QCOMPARE(labelText(&page, "userAngleLabel"), NoDataString);
}

void tst_melvoxUiRtkConfiguration::resetBringsTheEditorsBackToTheReceiver()
{
    melvoxUiRtkConfiguration_t page(device);
    reportAlignment(2, 45.5);
    type(&page, "userAngleLineEdit", "012.34");
    choose(&page, "alignmentCombo", "Lateral");
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "alignmentCombo"), QString("User-Specified"));
    QCOMPARE(editText(&page, "userAngleLineEdit"), QString("045.50"));
    QVERIFY(isEnabled(&page, "userAngleLineEdit"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiRtkConfiguration::resetSetsTheAngleToZeroWithoutAUserAngle()
{
    melvoxUiRtkConfiguration_t page(device);
    reportAlignment(1, 45.5);
    choose(&page, "alignmentCombo", "User-Specified");
    type(&page, "userAngleLineEdit", "012.34");
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "alignmentCombo"), QString("Longitudinal"));
    QCOMPARE(editText(&page, "userAngleLineEdit"), QString("000.00"));
    QVERIFY(!isEnabled(&page, "userAngleLineEdit"));
}

void tst_melvoxUiRtkConfiguration::resetBeforeTheFirstReportChangesNothing()
{
    melvoxUiRtkConfiguration_t page(device);
    find<QLineEdit>(&page, "userAngleLineEdit")->setText("111.11");
    tap(&page, "Reset");
    QCOMPARE(editText(&page, "userAngleLineEdit"), QString("111.11"));
    QCOMPARE(chosen(&page, "alignmentCombo"), QString("Lateral"));
}

void tst_melvoxUiRtkConfiguration::acceptsAndRefusesUserAngles_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("sent"); // negative: nothing
    QTest::newRow("zero") << "000.00" << 0.0;
    QTest::newRow("inside") << "045.5" << 45.5;
    QTest::newRow("highest") << "359.99" << double(359.99f);
    QTest::newRow("a full turn") << "360.00" << -1.0;
    QTest::newRow("more") << "999.99" << -1.0;
}

void tst_melvoxUiRtkConfiguration::acceptsAndRefusesUserAngles()
{
    QFETCH(QString, typed);
    QFETCH(double, sent);
    melvoxUiRtkConfiguration_t page(device);
    reportAlignment(2, 10.0);
    type(&page, "userAngleLineEdit", typed);
    tap(&page, "Apply");
    QCOMPARE(reportedErrors(), sent < 0 ? QString("User angle must be 0 - 360\n") : QString());
    QCOMPARE(receiver->messages().size(), sent < 0 ? 0 : 1);
    if (sent < 0)
        return;
    QVariantMap const value = receiver->messages().first().value.toMap();
    QCOMPARE(value.value("mode").toInt(), 2);
    QCOMPARE(value.value("angle").toFloat(), float(sent));
}

void tst_melvoxUiRtkConfiguration::refusesAUserAngleLeftBlank()
{
    melvoxUiRtkConfiguration_t page(device);
    reportAlignment(2, 10.0);
    type(&page, "userAngleLineEdit", "");
    tap(&page, "Apply");
    QCOMPARE(reportedErrors(), QString("User angle must be 0 - 360\n"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiRtkConfiguration::sendsTheAngleZeroForAnAxisWhateverIsTyped_data()
{
    QTest::addColumn<QString>("alignment");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("sent");
    QTest::newRow("lateral") << "Lateral"
                             << "012.34"
                             << "antennaAlignment angle=0 mode=0";
    QTest::newRow("longitudinal") << "Longitudinal"
                                  << "012.34"
                                  << "antennaAlignment angle=0 mode=1";
    QTest::newRow("bad angle") << "Longitudinal"
                               << "999.99"
                               << "antennaAlignment angle=0 mode=1";
}

void tst_melvoxUiRtkConfiguration::sendsTheAngleZeroForAnAxisWhateverIsTyped()
{
    QFETCH(QString, alignment);
    QFETCH(QString, typed);
    QFETCH(QString, sent);
    melvoxUiRtkConfiguration_t page(device);
    reportAlignment(2, 45.5);
    type(&page, "userAngleLineEdit", typed);
    choose(&page, "alignmentCombo", alignment);
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().join("; "), sent);
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiRtkConfiguration::sendsNothingWithoutAChoice()
{
    melvoxUiRtkConfiguration_t page(device);
    reportAlignment(2, 45.5);
    find<QComboBox>(&page, "alignmentCombo")->setCurrentIndex(-1);
    tap(&page, "Apply");
    QVERIFY(receiver->sent().isEmpty());
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiRtkConfiguration::letsTheAngleBeTypedForAUserSpecifiedAlignmentOnly()
{
    melvoxUiRtkConfiguration_t page(device);
    reportAlignment(0, 0);
    choose(&page, "alignmentCombo", "User-Specified");
    QVERIFY(isEnabled(&page, "userAngleLineEdit"));
    choose(&page, "alignmentCombo", "Longitudinal");
    QVERIFY(!isEnabled(&page, "userAngleLineEdit"));
    choose(&page, "alignmentCombo", "User-Specified");
    choose(&page, "alignmentCombo", "Lateral");
    QVERIFY(!isEnabled(&page, "userAngleLineEdit"));
}

void tst_melvoxUiRtkConfiguration::enablesTheAngleWithAFirstReportThatHasOne()
{
    melvoxUiRtkConfiguration_t page(device);
    reportAlignment(2, 45.5);
    QVERIFY(isEnabled(&page, "userAngleLineEdit"));
}

void tst_melvoxUiRtkConfiguration::keepsTheAngleDisabledOnAFirstLateralReportAfterConstruction()
{
    melvoxUiRtkConfiguration_t page(device);
    reportAlignment(0, 0);
    QVERIFY(isEnabled(&page, "alignmentCombo"));
    QVERIFY(!isEnabled(&page, "userAngleLineEdit"));
}

void tst_melvoxUiRtkConfiguration::leavesTheAngleEnabledWhenALateralReportWasThereBefore()
{
    reportAlignment(0, 0);
    melvoxUiRtkConfiguration_t page(device);
    QVERIFY(isEnabled(&page, "userAngleLineEdit"));
    choose(&page, "alignmentCombo", "Longitudinal");
    QVERIFY(!isEnabled(&page, "userAngleLineEdit"));
}

void tst_melvoxUiRtkConfiguration::showsItsOwnPageOfTheStackOnceTheEventLoopRuns()
{
    melvoxUiRtkConfiguration_t page(device);
    QStackedWidget* const stack = find<QStackedWidget>(&page, "stackedWidget");
    QWidget* const other = new QWidget;
    stack->setCurrentIndex(stack->addWidget(other));
    QCOMPARE(stack->currentWidget(), other);
    melvox_test::settle();
    QCOMPARE(stack->currentWidget(), find<QWidget>(&page, "mbrtkPage"));
}

void tst_melvoxUiRtkConfiguration::asksForTheAlignment()
{
    melvoxUiRtkConfiguration_t page(device);
    tap(&page, "Query");
    QCOMPARE(receiver->sent().join("; "), QString("request antennaAlignment"));
}

void tst_melvoxUiRtkConfiguration::offersThreeAlignments()
{
    melvoxUiRtkConfiguration_t page(device);
    QComboBox const* const combo = find<QComboBox>(&page, "alignmentCombo");
    QCOMPARE(combo->count(), 3);
    QCOMPARE(combo->itemText(0), QString("Lateral"));
    QCOMPARE(combo->itemText(1), QString("Longitudinal"));
    QCOMPARE(combo->itemText(2), QString("User-Specified"));
}

void tst_melvoxUiRtkConfiguration::keepsMaskTextAndKeypadWordsOfTheAngle()
{
    melvoxUiRtkConfiguration_t page(device);
    QLineEdit const* const edit = find<QLineEdit>(&page, "userAngleLineEdit");
    QCOMPARE(edit->inputMask().section(';', 0, 0), QString("999.99"));
    QCOMPARE(edit->text(), QString("000.00"));
    QCOMPARE(edit->property("keypadType").toString(), QString("numeric"));
    QCOMPARE(edit->property("keypadPrompt").toString(), QString("MBRTK User Angle"));
}

QTEST_MAIN(tst_melvoxUiRtkConfiguration)
#include "tst_melvoxUiRtkConfiguration.moc"
