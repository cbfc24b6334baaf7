#include "melvox_ui/melvoxUiCustomSatDialog.h"

#include "support/pageTest.h"

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

class tst_melvoxUiCustomSatDialog : public melvox_test::pageTest_t
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    melvoxUiCustomSatDialog_t* dialog;

private slots:
    void isTitledAfterTheSatellite();
    void captionsItsValues();
    void showsNoDataAndItsFirstTextsBeforeTheFirstReport();
    void showsASatelliteThatWasDefinedBefore();
    void showsTheSatellite_data();
    void showsTheSatellite();
    void showsNoDataButKeepsTheFieldsWhenNoneIsDefined();
    void sendsIdAndFrequency_data();
    void sendsIdAndFrequency();
    void staysOpenAndShowsWhatTheReceiverTook();
    void getsBackTheFrequencyThatItSent();
    void clearsTheSatellite();
    void closesWithoutSending();
    void keepsTheKeypadWordsOfEachEdit();
};

void tst_melvoxUiCustomSatDialog::setUp()
{
    pageTest_t::setUp();
    dialog = new melvoxUiCustomSatDialog_t(device, 0);
}

void tst_melvoxUiCustomSatDialog::tearDown()
{
    delete dialog;
    pageTest_t::tearDown();
}

void tst_melvoxUiCustomSatDialog::isTitledAfterTheSatellite()
{
    QCOMPARE(dialog->windowTitle(), QString("MELVOX Custom Satellite"));
}

void tst_melvoxUiCustomSatDialog::captionsItsValues()
{
    QCOMPARE(labelText(dialog, "idTitleLabel"), QString("ID:"));
    QCOMPARE(labelText(dialog, "freqTitleLabel"), QString("Frequency (MHz):"));
}

void tst_melvoxUiCustomSatDialog::showsNoDataAndItsFirstTextsBeforeTheFirstReport()
{
    QCOMPARE(labelText(dialog, "idLabel"), NoDataString);
    QCOMPARE(labelText(dialog, "freqLabel"), NoDataString);
    QCOMPARE(editText(dialog, "idLineEdit"), QString("000"));
    QCOMPARE(editText(dialog, "freqLineEdit"), QString("0000.0000"));
}

void tst_melvoxUiCustomSatDialog::showsASatelliteThatWasDefinedBefore()
{
    receiver->report("userCorrectionSat", map("defined", true, "id", 44, "frequency", 1545500.0));
    melvoxUiCustomSatDialog_t late(device, 0);
    QCOMPARE(labelText(&late, "idLabel"), QString("44"));
    QCOMPARE(editText(&late, "freqLineEdit"), QString("1545.5000"));
}

void tst_melvoxUiCustomSatDialog::showsTheSatellite_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<double>("kilohertz");
    QTest::addColumn<QString>("idLabel");
    QTest::addColumn<QString>("idEdit");
    QTest::addColumn<QString>("freqLabel");
    QTest::addColumn<QString>("freqEdit");
    QTest::newRow("as usual") << 123 << 1545500.0 << "123"
                              << "123"
                              << "1545.5000"
                              << "1545.5000";
    QTest::newRow("small") << 7 << 25.0 << "7"
                           << "007"
                           << "0.0250"
                           << "0000.0250";
    QTest::newRow("all decimals") << 45 << 1545807.5 << "45"
                                  << "045"
                                  << "1545.8075"
                                  << "1545.8075";
    QTest::newRow("large") << 1234 << 12345678.0 << "1234"
                           << "1234"
                           << "12345.6780"
                           << "12345.6780";
}

void tst_melvoxUiCustomSatDialog::showsTheSatellite()
{
    QFETCH(int, id);
    QFETCH(double, kilohertz);
    QFETCH(QString, idLabel);
    QFETCH(QString, idEdit);
    QFETCH(QString, freqLabel);
    QFETCH(QString, freqEdit);
    receiver->report("userCorrectionSat", map("defined", true, "id", id, "frequency", kilohertz));
    QCOMPARE(labelText(dialog, "idLabel"), idLabel);
    QCOMPARE(editText(dialog, "idLineEdit"), idEdit);
    QCOMPARE(labelText(dialog, "freqLabel"), freqLabel);
    QCOMPARE(editText(dialog, "freqLineEdit"), freqEdit);
}

void tst_melvoxUiCustomSatDialog::showsNoDataButKeepsTheFieldsWhenNoneIsDefined()
{
    receiver->report("userCorrectionSat", map("defined", true, "id", 123, "frequency", 1545500.0));
    receiver->report("userCorrectionSat", map("defined", false, "id", 5, "frequency", 1.0));
    QCOMPARE(labelText(dialog, "idLabel"), NoDataString);
    QCOMPARE(labelText(dialog, "freqLabel"), NoDataString);
    QCOMPARE(editText(dialog, "idLineEdit"), QString("123"));
    QCOMPARE(editText(dialog, "freqLineEdit"), QString("1545.5000"));
}

void tst_melvoxUiCustomSatDialog::sendsIdAndFrequency_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("megahertz");
    QTest::addColumn<QString>("sent");
    QTest::newRow("as usual") << "045"
                              << "1545.5"
                              << "userCorrectionSat defined=true frequency=1.5455e+06 id=45";
    QTest::newRow("all decimals") << "7"
                                  << "1545.8125"
                                  << "userCorrectionSat defined=true frequency=1545812.5 id=7";
    QTest::newRow("no numbers") << "abc"
                                << "1545.x"
                                << "userCorrectionSat defined=true frequency=0 id=0";
    QTest::newRow("blank") << ""
                           << ""
                           << "userCorrectionSat defined=true frequency=0 id=0";
    QTest::newRow("beyond all limits") << "-5"
                                       << "99999"
                                       << "userCorrectionSat defined=true frequency=9.9999e+07 id=-5";
}

void tst_melvoxUiCustomSatDialog::sendsIdAndFrequency()
{
    QFETCH(QString, id);
    QFETCH(QString, megahertz);
    QFETCH(QString, sent);
    type(dialog, "idLineEdit", id);
    type(dialog, "freqLineEdit", megahertz);
    tap(dialog, "Define Satellite");
    QCOMPARE(receiver->commands(), QStringList(sent));
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiCustomSatDialog::staysOpenAndShowsWhatTheReceiverTook()
{
    dialog->show();
    type(dialog, "idLineEdit", "999");
    type(dialog, "freqLineEdit", "1600");
    tap(dialog, "Define Satellite");
    QVERIFY(dialog->isVisible());
    QCOMPARE(labelText(dialog, "idLabel"), NoDataString);
    receiver->report("userCorrectionSat", map("defined", true, "id", 254, "frequency", 1559000.0));
    QCOMPARE(labelText(dialog, "idLabel"), QString("254"));
    QCOMPARE(editText(dialog, "idLineEdit"), QString("254"));
    QCOMPARE(editText(dialog, "freqLineEdit"), QString("1559.0000"));
}

void tst_melvoxUiCustomSatDialog::getsBackTheFrequencyThatItSent()
{
    type(dialog, "freqLineEdit", "1537.4375");
    tap(dialog, "Define Satellite");
    receiver->report("userCorrectionSat", receiver->messages().first().value);
    QCOMPARE(labelText(dialog, "freqLabel"), QString("1537.4375"));
    QCOMPARE(editText(dialog, "freqLineEdit"), QString("1537.4375"));
}

void tst_melvoxUiCustomSatDialog::clearsTheSatellite()
{
    dialog->show();
    type(dialog, "idLineEdit", "45");
    tap(dialog, "Clear Satellite");
    QCOMPARE(receiver->commands().size(), 1);
    QVERIFY(receiver->commands().first().startsWith("userCorrectionSat defined=false"));
    QVERIFY(dialog->isVisible());
}

void tst_melvoxUiCustomSatDialog::closesWithoutSending()
{
    dialog->show();
    tap(dialog, "Close");
    QVERIFY(!dialog->isVisible());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiCustomSatDialog::keepsTheKeypadWordsOfEachEdit()
{
    QLineEdit const* const id = find<QLineEdit>(dialog, "idLineEdit");
    QCOMPARE(id->property("keypadType").toString(), QString("numeric"));
    QCOMPARE(id->property("keypadPrompt").toString(), QString("Custom Satellite ID"));
    QLineEdit const* const frequency = find<QLineEdit>(dialog, "freqLineEdit");
    QCOMPARE(frequency->property("keypadType").toString(), QString("numeric"));
    QCOMPARE(frequency->property("keypadPrompt").toString(), QString("Custom Satellite Frequency"));
}

QTEST_MAIN(tst_melvoxUiCustomSatDialog)
#include "tst_melvoxUiCustomSatDialog.moc"
