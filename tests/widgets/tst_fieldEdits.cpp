#include "brel_common_qt_gui/distanceEdit.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "brel_common_qt_gui/ipAddressEdit.h"
#include "brel_common_qt_gui/ipPortEdit.h"
#include "support/test.h"
#include "typing.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

#include <limits>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::part;
using melvox_test::showActive;
using melvox_test::text;
using melvox_test::type;

namespace
{

/** An edit and something else to tap on. */
class dialog_t : public QWidget
{
public:
    dialog_t()
    {
        QVBoxLayout* const layout = new QVBoxLayout(this);
        layout->addWidget(&height);
        layout->addWidget(&other);
    }

    distanceEdit_t height;
    QLineEdit other;
};

QString shown(distanceEdit_t const& edit)
{
    return text(edit, "distanceLineEdit") + " " + part<QLabel>(edit, "distanceUnitLabel")->text();
}

bool looksTaken(distanceEdit_t const& edit)
{
    return part<QLineEdit>(edit, "distanceLineEdit")->styleSheet().isEmpty();
}

} // namespace

class tst_fieldEdits : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void distanceThatIsOnlyShownComesBackExactly_data();
    void distanceThatIsOnlyShownComesBackExactly();
    void distanceIsShownInItsUnit_data();
    void distanceIsShownInItsUnit();
    void typedDistanceIsReadInItsUnit_data();
    void typedDistanceIsReadInItsUnit();
    void shownDistanceFollowsTheUnit();
    void unitChangeKeepsWhatWasTyped();
    void unitChangePutsUnfinishedTypingAway();
    void operatorsUnitIsUsedFromTheStart();
    void keysThatLeadToNoDistanceAreRefused_data();
    void keysThatLeadToNoDistanceAreRefused();
    void noDistanceIsNotTaken_data();
    void noDistanceIsNotTaken();
    void leavingKeepsWhatWasTyped();
    void distancesThatAreNoneAreNotSet_data();
    void distancesThatAreNoneAreNotSet();
    void typingTheShownTextAgainKeepsTheExactValue();
    void changesOfTheDistanceAreTold();
    void distanceFieldIsMadeForTouch();

    void addressComesBack_data();
    void addressComesBack();
    void addressTextIsReadStrictly_data();
    void addressTextIsReadStrictly();
    void addressCanBeTyped_data();
    void addressCanBeTyped();
    void keysThatLeadToNoAddressAreRefused_data();
    void keysThatLeadToNoAddressAreRefused();

    void portComesBack_data();
    void portComesBack();
    void portTextIsReadStrictly_data();
    void portTextIsReadStrictly();
    void keysThatLeadToNoPortAreRefused_data();
    void keysThatLeadToNoPortAreRefused();

    void numericKeypadIsAskedFor();
    void formMayAskForAnotherKeypad();
    void editsMayGoBeforeOrAfterTheirField();

private:
    void tearDown() override;
};

void tst_fieldEdits::tearDown()
{
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_METER);
}

void tst_fieldEdits::distanceThatIsOnlyShownComesBackExactly_data()
{
    QTest::addColumn<double>("metres");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("a third") << 1 / 3.;
    QTest::newRow("negative") << -412.123456789;
    QTest::newRow("tiny negative") << -1e-9;
    QTest::newRow("rounded up") << 9.99999999;
    QTest::newRow("limit") << 1e9;
    QTest::newRow("lower limit") << -1e9;
}

void tst_fieldEdits::distanceThatIsOnlyShownComesBackExactly()
{
    QFETCH(double, metres);
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.height.setDistance(metres, DISTANCE_UNIT_METER);
    QSignalSpy changed(&dialog.height, SIGNAL(valueChanged()));
    for (int i = 0; i < 5; ++i)
    {
        dialog.height.setFocus();
        dialog.other.setFocus();
        guiSettings_t::get().setDistanceUnit(i % 2 ? DISTANCE_UNIT_METER : DISTANCE_UNIT_US_SURVEY_FOOT);
        QVERIFY(dialog.height.meters() == metres);
        QVERIFY(looksTaken(dialog.height));
    }
    QCOMPARE(changed.count(), 0);
}

void tst_fieldEdits::distanceIsShownInItsUnit_data()
{
    QTest::addColumn<double>("metres");
    QTest::addColumn<int>("unit");
    QTest::addColumn<QString>("text");
    QTest::newRow("metres") << 12.34567 << int(DISTANCE_UNIT_METER) << "12.3457 m";
    QTest::newRow("survey feet") << 1200.0 << int(DISTANCE_UNIT_US_SURVEY_FOOT) << "3937.0000 ft";
    QTest::newRow("negative") << -1200.0 << int(DISTANCE_UNIT_US_SURVEY_FOOT) << "-3937.0000 ft";
    QTest::newRow("zero") << 0.0 << int(DISTANCE_UNIT_METER) << "0.0000 m";
    QTest::newRow("rounded to zero") << -0.00001 << int(DISTANCE_UNIT_METER) << "0.0000 m";
}

void tst_fieldEdits::distanceIsShownInItsUnit()
{
    QFETCH(double, metres);
    QFETCH(int, unit);
    QFETCH(QString, text);
    distanceEdit_t edit;
    edit.setDistance(metres, static_cast<distanceUnit_t>(unit));
    QCOMPARE(shown(edit), text);
}

void tst_fieldEdits::typedDistanceIsReadInItsUnit_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("unit");
    QTest::addColumn<double>("metres");
    int const m = DISTANCE_UNIT_METER;
    int const ft = DISTANCE_UNIT_US_SURVEY_FOOT;
    QTest::newRow("metres") << "412.1234" << m << 412.1234;
    QTest::newRow("whole") << "412" << m << 412.0;
    QTest::newRow("negative") << "-0.5" << m << -0.5;
    QTest::newRow("zero") << "0" << m << 0.0;
    QTest::newRow("survey feet") << "3937" << ft << 1200.0;
    QTest::newRow("negative feet") << "-39.37" << ft << -12.0;
}

void tst_fieldEdits::typedDistanceIsReadInItsUnit()
{
    QFETCH(QString, keys);
    QFETCH(int, unit);
    QFETCH(double, metres);
    distanceEdit_t edit;
    edit.setDistance(1.5, static_cast<distanceUnit_t>(unit));
    type(edit, "distanceLineEdit", keys);
    QCOMPARE(edit.meters(), metres);
    QVERIFY(looksTaken(edit));
}

void tst_fieldEdits::shownDistanceFollowsTheUnit()
{
    distanceEdit_t edit;
    edit.setDistance(1200, DISTANCE_UNIT_METER);
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
    QCOMPARE(shown(edit), QString("3937.0000 ft"));
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_METER);
    QCOMPARE(shown(edit), QString("1200.0000 m"));
}

void tst_fieldEdits::unitChangeKeepsWhatWasTyped()
{
    distanceEdit_t edit;
    type(edit, "distanceLineEdit", "1200");
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
    QCOMPARE(shown(edit), QString("3937.0000 ft"));
    QCOMPARE(edit.meters(), 1200.0);
}

void tst_fieldEdits::unitChangePutsUnfinishedTypingAway()
{
    distanceEdit_t edit;
    edit.setDistance(12, DISTANCE_UNIT_METER);
    type(edit, "distanceLineEdit", "-");
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
    QCOMPARE(shown(edit), QString("39.3700 ft"));
    QVERIFY(looksTaken(edit));
}

void tst_fieldEdits::operatorsUnitIsUsedFromTheStart()
{
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
    distanceEdit_t edit;
    QCOMPARE(shown(edit), QString("0.0000 ft"));
}

void tst_fieldEdits::keysThatLeadToNoDistanceAreRefused_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("left");
    QTest::newRow("junk") << "a1 2,e3m"
                          << "123";
    QTest::newRow("two points") << "1.2.3"
                                << "1.23";
    QTest::newRow("two signs") << "--1-"
                               << "-1";
    QTest::newRow("too many decimals") << "1.23456"
                                       << "1.2345";
    QTest::newRow("too large") << "1000000001"
                               << "100000000";
}

void tst_fieldEdits::keysThatLeadToNoDistanceAreRefused()
{
    QFETCH(QString, keys);
    QFETCH(QString, left);
    distanceEdit_t edit;
    type(edit, "distanceLineEdit", keys);
    QCOMPARE(text(edit, "distanceLineEdit"), left);
}

void tst_fieldEdits::noDistanceIsNotTaken_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("sign") << "-";
    QTest::newRow("point") << ".";
    QTest::newRow("set by a keypad") << "about 5";
}

void tst_fieldEdits::noDistanceIsNotTaken()
{
    QFETCH(QString, text);
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.height.setDistance(12.5, DISTANCE_UNIT_METER);
    dialog.height.setFocus();
    part<QLineEdit>(dialog, "distanceLineEdit")->setText(text);
    QCOMPARE(dialog.height.meters(), 12.5);
    QVERIFY(!looksTaken(dialog.height));
    dialog.other.setFocus();
    QCOMPARE(shown(dialog.height), QString("12.5000 m"));
    QVERIFY(looksTaken(dialog.height));
}

void tst_fieldEdits::leavingKeepsWhatWasTyped()
{
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.height.setDistance(12.5, DISTANCE_UNIT_METER);
    type(dialog, "distanceLineEdit", "7");
    dialog.other.setFocus();
    QCOMPARE(shown(dialog.height), QString("7.0000 m"));
    type(dialog, "distanceLineEdit", "");
    dialog.other.setFocus();
    QCOMPARE(dialog.height.meters(), 7.0);
}

void tst_fieldEdits::distancesThatAreNoneAreNotSet_data()
{
    QTest::addColumn<double>("metres");
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("minus infinite") << -std::numeric_limits<double>::infinity();
    QTest::newRow("beyond") << 1000000001.0;
    QTest::newRow("beyond below") << -1000000001.0;
}

void tst_fieldEdits::distancesThatAreNoneAreNotSet()
{
    QFETCH(double, metres);
    distanceEdit_t edit;
    edit.setDistance(12.5, DISTANCE_UNIT_METER);
    edit.setDistance(metres, DISTANCE_UNIT_US_SURVEY_FOOT);
    QCOMPARE(edit.meters(), 12.5);
    QCOMPARE(shown(edit), QString("12.5000 m"));
}

void tst_fieldEdits::typingTheShownTextAgainKeepsTheExactValue()
{
    distanceEdit_t edit;
    edit.setDistance(1 / 3., DISTANCE_UNIT_METER);
    type(edit, "distanceLineEdit", "0.3333");
    QVERIFY(edit.meters() == 1 / 3.);
    type(edit, "distanceLineEdit", "0.3334");
    QCOMPARE(edit.meters(), 0.3334);
}

void tst_fieldEdits::changesOfTheDistanceAreTold()
{
    distanceEdit_t edit;
    QSignalSpy changed(&edit, SIGNAL(valueChanged()));
    edit.setDistance(5, DISTANCE_UNIT_METER);
    QCOMPARE(changed.count(), 1);
    edit.setDistance(5, DISTANCE_UNIT_US_SURVEY_FOOT);
    QCOMPARE(changed.count(), 1);
    QTest::keyClick(part<QLineEdit>(edit, "distanceLineEdit"), Qt::Key_Home);
    QTest::keyClicks(part<QLineEdit>(edit, "distanceLineEdit"), "1");
    QCOMPARE(changed.count(), 2);
}

void tst_fieldEdits::distanceFieldIsMadeForTouch()
{
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    QLineEdit* const field = part<QLineEdit>(dialog, "distanceLineEdit");
    QVERIFY(!field->accessibleName().isEmpty());
    dialog.height.setKeypadPrompt("Base Station Height");
    QCOMPARE(field->property("keypadType").toString(), QString("numeric"));
    QCOMPARE(field->property("keypadPrompt").toString(), QString("Base Station Height"));
    QCOMPARE(field->accessibleName(), QString("Base Station Height"));
    QVERIFY(field->height() >= 40);
    dialog.height.setFocus();
    QCOMPARE(QApplication::focusWidget(), static_cast<QWidget*>(field));
}

void tst_fieldEdits::addressComesBack_data()
{
    QTest::addColumn<uint>("address");
    QTest::addColumn<QString>("text");
    QTest::newRow("first byte is the most significant") << 0xC0A80001u << "192.168.0.1";
    QTest::newRow("zero") << 0u << "0.0.0.0";
    QTest::newRow("broadcast") << 0xFFFFFFFFu << "255.255.255.255";
    QTest::newRow("all bytes") << 0x01020304u << "1.2.3.4";
}

void tst_fieldEdits::addressComesBack()
{
    QFETCH(uint, address);
    QFETCH(QString, text);
    QLineEdit field;
    ipAddressEdit_t edit(&field, nullptr);
    edit.setAddress(address);
    QCOMPARE(field.text(), text);
    unsigned int read = ~address;
    QVERIFY(edit.getAddress(read));
    QCOMPARE(read, address);
}

void tst_fieldEdits::addressTextIsReadStrictly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::newRow("address") << "1.2.3.4" << true;
    QTest::newRow("blanks around") << "  1.2.3.4 " << true;
    QTest::newRow("leading zeros are decimal") << "001.002.003.004" << true;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("blank") << "   " << false;
    QTest::newRow("three numbers") << "1.2.3" << false;
    QTest::newRow("five numbers") << "1.2.3.4.5" << false;
    QTest::newRow("nothing between") << "1..3.4" << false;
    QTest::newRow("nothing first") << ".2.3.4" << false;
    QTest::newRow("nothing last") << "1.2.3." << false;
    QTest::newRow("too large a byte") << "1.2.3.256" << false;
    QTest::newRow("far too large a byte") << "1.2.3.4294967300" << false;
    QTest::newRow("four digits") << "1.2.3.0004" << false;
    QTest::newRow("sign") << "1.2.3.+4" << false;
    QTest::newRow("negative") << "1.2.3.-4" << false;
    QTest::newRow("blank inside") << "1.2. 3.4" << false;
    QTest::newRow("hexadecimal") << "0x1.2.3.4" << false;
    QTest::newRow("one number") << "16909060" << false;
    QTest::newRow("name") << "localhost" << false;
    QTest::newRow("other digits") << QString::fromUtf8("1.2.3.\xD9\xA4") << false;
    QTest::newRow("junk behind") << "1.2.3.4/24" << false;
}

void tst_fieldEdits::addressTextIsReadStrictly()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    QLineEdit field;
    ipAddressEdit_t const edit(&field, nullptr);
    field.setText(text);
    unsigned int address = 42;
    QCOMPARE(edit.getAddress(address), valid);
    QCOMPARE(address, valid ? 0x01020304u : 42u);
}

void tst_fieldEdits::addressCanBeTyped_data()
{
    QTest::addColumn<QString>("keys");
    QTest::newRow("short") << "1.2.3.4";
    QTest::newRow("long") << "192.168.100.200";
    QTest::newRow("largest") << "255.255.255.255";
    QTest::newRow("unfinished") << "192.168.";
}

void tst_fieldEdits::addressCanBeTyped()
{
    QFETCH(QString, keys);
    QLineEdit field;
    ipAddressEdit_t const edit(&field, nullptr);
    QTest::keyClicks(&field, keys);
    QCOMPARE(field.text(), keys);
}

void tst_fieldEdits::keysThatLeadToNoAddressAreRefused_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("left");
    QTest::newRow("too large") << "256"
                               << "25";
    QTest::newRow("too many digits") << "1.0000"
                                     << "1.000";
    QTest::newRow("letters") << "a1x"
                             << "1";
    QTest::newRow("blanks and signs") << " 1 -.2"
                                      << "1.2";
    QTest::newRow("fifth number") << "1.2.3.4.5"
                                  << "1.2.3.45";
}

void tst_fieldEdits::keysThatLeadToNoAddressAreRefused()
{
    QFETCH(QString, keys);
    QFETCH(QString, left);
    QLineEdit field;
    ipAddressEdit_t const edit(&field, nullptr);
    QTest::keyClicks(&field, keys);
    QCOMPARE(field.text(), left);
}

void tst_fieldEdits::portComesBack_data()
{
    QTest::addColumn<uint>("port");
    QTest::newRow("lowest") << 0u;
    QTest::newRow("usual") << 5000u;
    QTest::newRow("highest") << 65535u;
}

void tst_fieldEdits::portComesBack()
{
    QFETCH(uint, port);
    QLineEdit field;
    ipPortEdit_t edit(&field, nullptr);
    edit.setPort(static_cast<unsigned short>(port));
    QCOMPARE(field.text(), QString::number(port));
    unsigned short read = static_cast<unsigned short>(~port);
    QVERIFY(edit.getPort(read));
    QCOMPARE(uint(read), port);
}

void tst_fieldEdits::portTextIsReadStrictly_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("port");
    QTest::newRow("port") << "8080" << 8080;
    QTest::newRow("blanks around") << " 80 " << 80;
    QTest::newRow("leading zeros") << "00080" << 80;
    QTest::newRow("highest") << "65535" << 65535;
    QTest::newRow("empty") << "" << -1;
    QTest::newRow("too large") << "65536" << -1;
    QTest::newRow("wraps round") << "65616" << -1;
    QTest::newRow("far too large") << "4294967376" << -1;
    QTest::newRow("six digits") << "000080" << -1;
    QTest::newRow("negative") << "-1" << -1;
    QTest::newRow("sign") << "+1" << -1;
    QTest::newRow("blank inside") << "8 0" << -1;
    QTest::newRow("point") << "80.0" << -1;
    QTest::newRow("hexadecimal") << "0x50" << -1;
    QTest::newRow("name") << "http" << -1;
}

void tst_fieldEdits::portTextIsReadStrictly()
{
    QFETCH(QString, text);
    QFETCH(int, port);
    QLineEdit field;
    ipPortEdit_t const edit(&field, nullptr);
    field.setText(text);
    unsigned short read = 42;
    QCOMPARE(edit.getPort(read), port >= 0);
    QCOMPARE(int(read), port >= 0 ? port : 42);
}

void tst_fieldEdits::keysThatLeadToNoPortAreRefused_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("left");
    QTest::newRow("too large") << "65536"
                               << "6553";
    QTest::newRow("too many digits") << "000000"
                                     << "00000";
    QTest::newRow("junk") << "-a8 0.80"
                          << "8080";
}

void tst_fieldEdits::keysThatLeadToNoPortAreRefused()
{
    QFETCH(QString, keys);
    QFETCH(QString, left);
    QLineEdit field;
    ipPortEdit_t const edit(&field, nullptr);
    QTest::keyClicks(&field, keys);
    QCOMPARE(field.text(), left);
}

void tst_fieldEdits::numericKeypadIsAskedFor()
{
    QLineEdit address;
    QLineEdit port;
    ipAddressEdit_t const addressEdit(&address, nullptr);
    ipPortEdit_t const portEdit(&port, nullptr);
    QCOMPARE(address.property("keypadType").toString(), QString("numeric"));
    QCOMPARE(port.property("keypadType").toString(), QString("numeric"));
}

void tst_fieldEdits::formMayAskForAnotherKeypad()
{
    QLineEdit field;
    field.setProperty("keypadType", "full");
    ipAddressEdit_t const edit(&field, nullptr);
    QCOMPARE(field.property("keypadType").toString(), QString("full"));
}

void tst_fieldEdits::editsMayGoBeforeOrAfterTheirField()
{
    QWidget page;
    QLineEdit* const address = new QLineEdit(&page);
    QLineEdit* const port = new QLineEdit(&page);
    QObject* const addressEdit = new ipAddressEdit_t(address, &page);
    new ipPortEdit_t(port, &page);
    delete port;
    delete addressEdit;
    QTest::keyClicks(address, "1.2");
    QCOMPARE(address->text(), QString("1.2"));
}

QTEST_MAIN(tst_fieldEdits)
#include "tst_fieldEdits.moc"
