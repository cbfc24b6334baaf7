#include "melvox_ui/melvoxUiAntennaConfigDialog.h"

#include "support/pageTest.h"

#include <QGroupBox>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

melvoxAntennaInfo_t info(char const* name, char const* serial, unsigned int id)
{
    melvoxAntennaInfo_t const record = {name, serial, id};
    return record;
}

melvoxAntennaHeight_t height(bool use, double height, double slantRange, double radius)
{
    melvoxAntennaHeight_t const record = {use, height, slantRange, radius};
    return record;
}

} // namespace

class tst_melvoxUiAntennaConfigDialog : public melvox_test::pageTest_t
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    melvoxUiAntennaConfigDialog_t* dialog;

    void reportNames();
    void reportBoth();
    QString items(char const* combo);
    QString sent(char const* group) { return receiver->commands().filter(group).join(";"); }

private slots:
    void keepsTheTitleOfAnotherDialog();
    void namesItsGroupsAndItems();
    void captionsItsValues_data();
    void captionsItsValues();
    void namesTheAntenna();
    void startsWithItsFirstTexts();
    void knowsNoNameAtFirst();
    void listsTheNamesThatAreKnownAlready();
    void appendsEachNameThatArrives();
    void leavesTheChoiceAloneWhenANameArrives();
    void startsTheListAgainWhenTheReceiverDoes();
    void choosesTheNameWithoutRegardToCase();
    void choosesNoNameThatIsNotListed();
    void padsTheSetupId_data();
    void padsTheSetupId();
    void showsRangesAsDigitsAndSign_data();
    void showsRangesAsDigitsAndSign();
    void enablesTheAdjustmentsOnlyWhenTheyAreUsed();
    void sendsBothAntennasInTheirOrder();
    void sendsTheSecondAntennaSecond();
    void sendsTheFirstAntennaUnlessToldOtherwise();
    void sendsZerosForAnotherAntennaThatIsNotKnown();
    void sendsTheNameInCapitals();
    void sendsAnEmptyNameWhenNoneIsChosen();
    void sendsNoneAsAName();
    void sendsTheSerialNumberAsTyped();
    void keepsTheHeightAsItCame();
    void acceptsAndRefusesSetupIds_data();
    void acceptsAndRefusesSetupIds();
    void acceptsAndRefusesRanges_data();
    void acceptsAndRefusesRanges();
    void checksAdjustmentsThatAreNotUsed();
    void sendsAdjustmentsThatAreNotUsed();
    void reportsThreeLinesInOneBoxAndStaysOpen();
    void closesAfterSending();
    void closesWithoutSendingOnCancel();
    void asksForNothing();
    void keepsTheKeypadWordsAndTheMaskOfEachEdit_data();
    void keepsTheKeypadWordsAndTheMaskOfEachEdit();
};

void tst_melvoxUiAntennaConfigDialog::setUp()
{
    pageTest_t::setUp();
    dialog = new melvoxUiAntennaConfigDialog_t(device, 0);
}

void tst_melvoxUiAntennaConfigDialog::tearDown()
{
    delete dialog;
    pageTest_t::tearDown();
}

void tst_melvoxUiAntennaConfigDialog::reportNames()
{
    receiver->event("antennaListReset");
    receiver->report("antennaName", "TRM55971.00     NONE");
    receiver->report("antennaName", "NAX3g+c         None");
}

void tst_melvoxUiAntennaConfigDialog::reportBoth()
{
    receiver->report("antennaInfo",
                     list(map("name", "ONE", "serial", "s1", "id", 11), map("name", "Two", "serial", "s2", "id", 22)));
    receiver->report("antennaHeight",
                     list(map("useAdjustments", true, "height", 1.5, "slantRange", 100.25, "radius", -10.0),
                          map("useAdjustments", false, "height", 2.5, "slantRange", -200.0, "radius", 20.5)));
}

QString tst_melvoxUiAntennaConfigDialog::items(char const* combo)
{
    QStringList texts;
    QComboBox const* const found = find<QComboBox>(dialog, combo);
    for (int i = 0; i < found->count(); ++i)
        texts << found->itemText(i);
    return texts.join("|");
}

void tst_melvoxUiAntennaConfigDialog::keepsTheTitleOfAnotherDialog()
{
    QCOMPARE(dialog->windowTitle(), QString("MELVOX Virtual Port Configuration"));
    dialog->setAntenna(MELVOX_ANTENNA_SECOND);
    QCOMPARE(dialog->windowTitle(), QString("MELVOX Virtual Port Configuration"));
}

void tst_melvoxUiAntennaConfigDialog::namesItsGroupsAndItems()
{
    QCOMPARE(find<QGroupBox>(dialog, "infoGroup")->title(), QString("Antenna Identification"));
    QCOMPARE(find<QGroupBox>(dialog, "adjustGroup")->title(), QString("Antenna Adjustments"));
    QCOMPARE(items("useAdjustmentsCombo"), QString("No|Yes"));
    QCOMPARE(find<QComboBox>(dialog, "slantRangeSignCombo")->count(), 2);
    QCOMPARE(find<QComboBox>(dialog, "radiusSignCombo")->count(), 2);
}

void tst_melvoxUiAntennaConfigDialog::captionsItsValues_data()
{
    QTest::addColumn<QString>("caption");
    QTest::newRow("antennaTitleLabel") << "Antenna:";
    QTest::newRow("nameTitleLabel") << "IGS Antenna:";
    QTest::newRow("serialNumberTitleLabel") << "Serial Number:";
    QTest::newRow("setupIdTitleLabel") << "Setup ID:";
    QTest::newRow("useAdjustmentsTitleLabel") << "Use Adjustments:";
    QTest::newRow("slantRangeTitleLabel") << "Slant Range (mm):";
    QTest::newRow("radiusTitleLabel") << "Radius (mm):";
}

void tst_melvoxUiAntennaConfigDialog::captionsItsValues()
{
    QFETCH(QString, caption);
    QCOMPARE(labelText(dialog, QTest::currentDataTag()), caption);
}

void tst_melvoxUiAntennaConfigDialog::namesTheAntenna()
{
    QCOMPARE(labelText(dialog, "antennaLabel"), QString("--"));
    dialog->setAntenna(MELVOX_ANTENNA_SECOND);
    QCOMPARE(labelText(dialog, "antennaLabel"), melvoxAntennaName(MELVOX_ANTENNA_SECOND));
    dialog->setAntenna(MELVOX_ANTENNA_FIRST);
    QCOMPARE(labelText(dialog, "antennaLabel"), melvoxAntennaName(MELVOX_ANTENNA_FIRST));
}

void tst_melvoxUiAntennaConfigDialog::startsWithItsFirstTexts()
{
    QCOMPARE(editText(dialog, "serialNumberLineEdit"), QString());
    QCOMPARE(editText(dialog, "setupIdLineEdit"), QString("000"));
    QCOMPARE(editText(dialog, "slantRangeLineEdit"), QString("00000"));
    QCOMPARE(editText(dialog, "radiusLineEdit"), QString("00000"));
    QCOMPARE(chosen(dialog, "useAdjustmentsCombo"), QString("No"));
}

void tst_melvoxUiAntennaConfigDialog::knowsNoNameAtFirst()
{
    QCOMPARE(items("nameCombo"), QString("NONE"));
}

void tst_melvoxUiAntennaConfigDialog::listsTheNamesThatAreKnownAlready()
{
    reportNames();
    melvoxUiAntennaConfigDialog_t late(device, 0);
    QComboBox const* const combo = find<QComboBox>(&late, "nameCombo");
    QCOMPARE(combo->count(), 3);
    QCOMPARE(combo->itemText(0), QString("NONE"));
    QCOMPARE(combo->itemText(2), QString("NAX3g+c         None"));
}

void tst_melvoxUiAntennaConfigDialog::appendsEachNameThatArrives()
{
    dialog->show();
    reportNames();
    QCOMPARE(items("nameCombo"), QString("NONE|TRM55971.00     NONE|NAX3g+c         None"));
    receiver->report("antennaName", "AOAD/M_T        NONE");
    QCOMPARE(items("nameCombo"), QString("NONE|TRM55971.00     NONE|NAX3g+c         None|AOAD/M_T        NONE"));
}

void tst_melvoxUiAntennaConfigDialog::leavesTheChoiceAloneWhenANameArrives()
{
    reportNames();
    dialog->setInfo(info("TRM55971.00     NONE", "", 0));
    receiver->report("antennaName", "AOAD/M_T        NONE");
    QCOMPARE(chosen(dialog, "nameCombo"), QString("TRM55971.00     NONE"));
    dialog->setInfo(info("LATE", "", 0));
    receiver->report("antennaName", "LATE");
    QCOMPARE(find<QComboBox>(dialog, "nameCombo")->currentIndex(), -1);
}

void tst_melvoxUiAntennaConfigDialog::startsTheListAgainWhenTheReceiverDoes()
{
    reportNames();
    receiver->event("antennaListReset");
    QCOMPARE(items("nameCombo"), QString("NONE"));
    receiver->report("antennaName", "LATE");
    QCOMPARE(items("nameCombo"), QString("NONE|LATE"));
}

void tst_melvoxUiAntennaConfigDialog::choosesTheNameWithoutRegardToCase()
{
    reportNames();
    dialog->setInfo(info("NAX3G+C         NONE", "", 0));
    QCOMPARE(find<QComboBox>(dialog, "nameCombo")->currentIndex(), 2);
    dialog->setInfo(info("none", "", 0));
    QCOMPARE(find<QComboBox>(dialog, "nameCombo")->currentIndex(), 0);
}

void tst_melvoxUiAntennaConfigDialog::choosesNoNameThatIsNotListed()
{
    reportNames();
    dialog->setInfo(info("NAX3G+C", "", 0));
    QCOMPARE(find<QComboBox>(dialog, "nameCombo")->currentIndex(), -1);
    dialog->setInfo(info("", "", 0));
    QCOMPARE(find<QComboBox>(dialog, "nameCombo")->currentIndex(), -1);
}

void tst_melvoxUiAntennaConfigDialog::padsTheSetupId_data()
{
    QTest::addColumn<unsigned int>("id");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << 0u << "000";
    QTest::newRow("one digit") << 7u << "007";
    QTest::newRow("three digits") << 255u << "255";
}

void tst_melvoxUiAntennaConfigDialog::padsTheSetupId()
{
    QFETCH(unsigned int, id);
    QFETCH(QString, text);
    dialog->setInfo(info("", "", id));
    QCOMPARE(editText(dialog, "setupIdLineEdit"), text);
}

void tst_melvoxUiAntennaConfigDialog::showsRangesAsDigitsAndSign_data()
{
    QTest::addColumn<double>("millimetres");
    QTest::addColumn<QString>("digits");
    QTest::addColumn<int>("sign");
    QTest::newRow("nothing") << 0.0 << "00000" << 0;
    QTest::newRow("positive") << 123.0 << "00123" << 0;
    QTest::newRow("negative") << -123.0 << "00123" << 1;
    QTest::newRow("cut off, not rounded") << 99.999 << "00099" << 0;
    QTest::newRow("cut off towards zero") << -0.9 << "00000" << 1;
    QTest::newRow("highest") << 32767.0 << "32767" << 0;
    QTest::newRow("lowest") << -32768.0 << "32768" << 1;
}

void tst_melvoxUiAntennaConfigDialog::showsRangesAsDigitsAndSign()
{
    QFETCH(double, millimetres);
    QFETCH(QString, digits);
    QFETCH(int, sign);
    dialog->setHeight(height(true, 0, millimetres, 1));
    QCOMPARE(editText(dialog, "slantRangeLineEdit"), digits);
    QCOMPARE(find<QComboBox>(dialog, "slantRangeSignCombo")->currentIndex(), sign);
    QCOMPARE(editText(dialog, "radiusLineEdit"), QString("00001"));
    dialog->setHeight(height(true, 0, 1, millimetres));
    QCOMPARE(editText(dialog, "radiusLineEdit"), digits);
    QCOMPARE(find<QComboBox>(dialog, "radiusSignCombo")->currentIndex(), sign);
    QCOMPARE(editText(dialog, "slantRangeLineEdit"), QString("00001"));
}

void tst_melvoxUiAntennaConfigDialog::enablesTheAdjustmentsOnlyWhenTheyAreUsed()
{
    char const* const editors[] = {"slantRangeSignCombo", "slantRangeLineEdit", "radiusSignCombo", "radiusLineEdit"};
    for (char const* const editor : editors)
        QVERIFY2(!isEnabled(dialog, editor), editor);
    choose(dialog, "useAdjustmentsCombo", "Yes");
    for (char const* const editor : editors)
        QVERIFY2(isEnabled(dialog, editor), editor);
    dialog->setHeight(height(false, 0, 0, 0));
    for (char const* const editor : editors)
        QVERIFY2(!isEnabled(dialog, editor), editor);
}

void tst_melvoxUiAntennaConfigDialog::sendsBothAntennasInTheirOrder()
{
    reportNames();
    reportBoth();
    dialog->setAntenna(MELVOX_ANTENNA_FIRST);
    dialog->setInfo(info("TRM55971.00     NONE", "s3", 33));
    dialog->setHeight(height(true, 3.5, 300, -30));
    tap(dialog, "OK");
    QCOMPARE(receiver->commands().join("\n"),
             QString("antennaInfo [id=33 name=TRM55971.00     NONE serial=s3] [id=22 name=Two serial=s2]\n"
                     "antennaHeight [height=3.5 radius=-30 slantRange=300 useAdjustments=true] "
                     "[height=2.5 radius=20.5 slantRange=-200 useAdjustments=false]"));
}

void tst_melvoxUiAntennaConfigDialog::sendsTheSecondAntennaSecond()
{
    reportNames();
    reportBoth();
    dialog->setAntenna(MELVOX_ANTENNA_SECOND);
    dialog->setInfo(info("TRM55971.00     NONE", "s3", 33));
    dialog->setHeight(height(true, 3.5, 0, 0));
    type(dialog, "serialNumberLineEdit", "Sn 4");
    type(dialog, "setupIdLineEdit", "044");
    find<QComboBox>(dialog, "slantRangeSignCombo")->setCurrentIndex(1);
    type(dialog, "slantRangeLineEdit", "00400");
    find<QComboBox>(dialog, "radiusSignCombo")->setCurrentIndex(0);
    type(dialog, "radiusLineEdit", "00040");
    tap(dialog, "OK");
    QCOMPARE(receiver->commands().join("\n"),
             QString("antennaInfo [id=11 name=ONE serial=s1] [id=44 name=TRM55971.00     NONE serial=Sn 4]\n"
                     "antennaHeight [height=1.5 radius=-10 slantRange=100.25 useAdjustments=true] "
                     "[height=3.5 radius=40 slantRange=-400 useAdjustments=true]"));
}

void tst_melvoxUiAntennaConfigDialog::sendsTheFirstAntennaUnlessToldOtherwise()
{
    reportBoth();
    type(dialog, "setupIdLineEdit", "044");
    tap(dialog, "OK");
    QCOMPARE(sent("antennaInfo"), QString("antennaInfo [id=44 name=NONE serial=\"\"] [id=22 name=Two serial=s2]"));
}

void tst_melvoxUiAntennaConfigDialog::sendsZerosForAnotherAntennaThatIsNotKnown()
{
    dialog->setAntenna(MELVOX_ANTENNA_SECOND);
    tap(dialog, "OK");
    QCOMPARE(sent("antennaInfo"), QString("antennaInfo [id=0 name=\"\" serial=\"\"] [id=0 name=NONE serial=\"\"]"));
}

void tst_melvoxUiAntennaConfigDialog::sendsTheNameInCapitals()
{
    reportNames();
    dialog->setInfo(info("nax3g+c         none", "", 0));
    tap(dialog, "OK");
    QVERIFY(sent("antennaInfo").contains("name=NAX3G+C         NONE"));
}

void tst_melvoxUiAntennaConfigDialog::sendsAnEmptyNameWhenNoneIsChosen()
{
    dialog->setInfo(info("UNHEARD OF", "s", 1));
    tap(dialog, "OK");
    QVERIFY(sent("antennaInfo").startsWith("antennaInfo [id=1 name=\"\" serial=s]"));
}

void tst_melvoxUiAntennaConfigDialog::sendsNoneAsAName()
{
    reportNames();
    dialog->setInfo(info("UNHEARD OF", "s", 1));
    choose(dialog, "nameCombo", "NONE");
    tap(dialog, "OK");
    QVERIFY(sent("antennaInfo").startsWith("antennaInfo [id=1 name=NONE serial=s]"));
}

void tst_melvoxUiAntennaConfigDialog::sendsTheSerialNumberAsTyped()
{
    type(dialog, "serialNumberLineEdit", " a1 B2 ");
    tap(dialog, "OK");
    QVERIFY(sent("antennaInfo").contains("serial= a1 B2 ]"));
}

void tst_melvoxUiAntennaConfigDialog::keepsTheHeightAsItCame()
{
    dialog->setHeight(height(false, -12.75, 1, 2));
    tap(dialog, "OK");
    QVERIFY(sent("antennaHeight").startsWith("antennaHeight [height=-12.75 radius=2 slantRange=1"));
}

void tst_melvoxUiAntennaConfigDialog::acceptsAndRefusesSetupIds_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("sent");
    QTest::newRow("lowest") << "000" << 0;
    QTest::newRow("one digit") << "7" << 7;
    QTest::newRow("highest") << "255" << 255;
    QTest::newRow("just above") << "256" << -1;
    QTest::newRow("most") << "999" << -1;
    QTest::newRow("blank") << "" << -1;
}

void tst_melvoxUiAntennaConfigDialog::acceptsAndRefusesSetupIds()
{
    QFETCH(QString, typed);
    QFETCH(int, sent);
    type(dialog, "setupIdLineEdit", typed);
    tap(dialog, "OK");
    if (sent >= 0)
    {
        QVERIFY(this->sent("antennaInfo").startsWith(QString("antennaInfo [id=%1 ").arg(sent)));
        QCOMPARE(receiver->commands().size(), 2);
        QCOMPARE(reportedErrors(), QString());
    }
    else
    {
        QVERIFY(receiver->commands().isEmpty());
        QCOMPARE(reportedErrors(), QString("Setup ID must be 0 - 255\n"));
    }
}

void tst_melvoxUiAntennaConfigDialog::acceptsAndRefusesRanges_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("sign");
    QTest::addColumn<QString>("sent");
    QTest::newRow("nothing") << "00000" << 0 << "0";
    QTest::newRow("nothing, turned round") << "00000" << 1 << "0";
    QTest::newRow("positive") << "00123" << 0 << "123";
    QTest::newRow("negative") << "00123" << 1 << "-123";
    QTest::newRow("highest") << "32767" << 0 << "32767";
    QTest::newRow("just above") << "32768" << 0 << "";
    QTest::newRow("highest, turned round") << "32767" << 1 << "-32767";
    QTest::newRow("lowest") << "32768" << 1 << "-32768";
    QTest::newRow("just below") << "32769" << 1 << "";
    QTest::newRow("most") << "99999" << 0 << "";
    QTest::newRow("least") << "99999" << 1 << "";
    QTest::newRow("blank") << "" << 0 << "";
    QTest::newRow("blank, turned round") << "" << 1 << "";
}

void tst_melvoxUiAntennaConfigDialog::acceptsAndRefusesRanges()
{
    QFETCH(QString, typed);
    QFETCH(int, sign);
    QFETCH(QString, sent);
    char const* const groups[] = {"slantRange", "radius"};
    char const* const titles[] = {"Slant Range", "Radius"};
    choose(dialog, "useAdjustmentsCombo", "Yes");
    for (int i = 0; i < 2; ++i)
    {
        dialog->setHeight(height(true, 0, 5, 5));
        receiver->clear();
        QString const group(groups[i]);
        type(dialog, group + "LineEdit", typed);
        find<QComboBox>(dialog, group + "SignCombo")->setCurrentIndex(sign);
        tap(dialog, "OK");
        if (sent.isEmpty())
        {
            QVERIFY(receiver->commands().isEmpty());
            QCOMPARE(reportedErrors(), QString("%1 must be -32768 - 32767\n").arg(titles[i]));
        }
        else
        {
            QString const first = this->sent("antennaHeight").section(']', 0, 0);
            QVERIFY2(first.contains(QString("%1=%2 ").arg(group, sent)), qPrintable(first));
            QVERIFY(first.contains(i == 0 ? "radius=5 " : "slantRange=5 "));
        }
    }
}

void tst_melvoxUiAntennaConfigDialog::checksAdjustmentsThatAreNotUsed()
{
    dialog->setHeight(height(false, 0, 40000, 0));
    QVERIFY(!isEnabled(dialog, "slantRangeLineEdit"));
    tap(dialog, "OK");
    QCOMPARE(reportedErrors(), QString("Slant Range must be -32768 - 32767\n"));
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiAntennaConfigDialog::sendsAdjustmentsThatAreNotUsed()
{
    dialog->setHeight(height(false, 1, -300, 40));
    tap(dialog, "OK");
    QVERIFY(
        sent("antennaHeight").startsWith("antennaHeight [height=1 radius=40 slantRange=-300 useAdjustments=false]"));
}

void tst_melvoxUiAntennaConfigDialog::reportsThreeLinesInOneBoxAndStaysOpen()
{
    dialog->show();
    choose(dialog, "useAdjustmentsCombo", "Yes");
    type(dialog, "setupIdLineEdit", "300");
    type(dialog, "slantRangeLineEdit", "40000");
    type(dialog, "radiusLineEdit", "");
    tap(dialog, "OK");
    QCOMPARE(reportedErrors(), QString("Setup ID must be 0 - 255\n"
                                       "Slant Range must be -32768 - 32767\n"
                                       "Radius must be -32768 - 32767\n"));
    QVERIFY(!melvox_test::openBox());
    QVERIFY(receiver->commands().isEmpty());
    QVERIFY(dialog->isVisible());
    QCOMPARE(editText(dialog, "setupIdLineEdit"), QString("300"));
}

void tst_melvoxUiAntennaConfigDialog::closesAfterSending()
{
    dialog->show();
    tap(dialog, "OK");
    QVERIFY(!dialog->isVisible());
    QCOMPARE(receiver->commands().size(), 2);
    QVERIFY(receiver->commands().first().startsWith("antennaInfo "));
}

void tst_melvoxUiAntennaConfigDialog::closesWithoutSendingOnCancel()
{
    dialog->show();
    type(dialog, "setupIdLineEdit", "300");
    tap(dialog, "Cancel");
    QVERIFY(!dialog->isVisible());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiAntennaConfigDialog::asksForNothing()
{
    dialog->show();
    reportNames();
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiAntennaConfigDialog::keepsTheKeypadWordsAndTheMaskOfEachEdit_data()
{
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("keypad");
    QTest::addColumn<QString>("prompt");
    QTest::addColumn<QString>("mask");
    QTest::newRow("serial number") << "serialNumberLineEdit"
                                   << "full"
                                   << "Antenna Serial Number"
                                   << "";
    QTest::newRow("setup id") << "setupIdLineEdit"
                              << "numeric"
                              << "Antenna Setup ID"
                              << "999";
    QTest::newRow("slant range") << "slantRangeLineEdit"
                                 << "numeric"
                                 << "Antenna Slant Range"
                                 << "99999";
    QTest::newRow("radius") << "radiusLineEdit"
                            << "numeric"
                            << "Antenna Radius"
                            << "99999";
}

void tst_melvoxUiAntennaConfigDialog::keepsTheKeypadWordsAndTheMaskOfEachEdit()
{
    QFETCH(QString, edit);
    QFETCH(QString, keypad);
    QFETCH(QString, prompt);
    QFETCH(QString, mask);
    QLineEdit const* const found = find<QLineEdit>(dialog, edit);
    QCOMPARE(found->property("keypadType").toString(), keypad);
    QCOMPARE(found->property("keypadPrompt").toString(), prompt);
    QCOMPARE(found->inputMask().section(';', 0, 0), mask);
}

QTEST_MAIN(tst_melvoxUiAntennaConfigDialog)
#include "tst_melvoxUiAntennaConfigDialog.moc"
