#include "brel_common_qt_gui/guiSettings.h"
#include "brel_common_qt_gui/latitudeEdit.h"
#include "brel_common_qt_gui/longitudeEdit.h"
#include "support/test.h"
#include "typing.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

#include <cmath>
#include <limits>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::part;
using melvox_test::showActive;
using melvox_test::text;
using melvox_test::type;

namespace
{

double const NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();
double const INFINITE = std::numeric_limits<double>::infinity();

/** Two edits and something else to tap on, as on a dialog. */
class dialog_t : public QWidget
{
public:
    dialog_t()
    {
        QVBoxLayout* const layout = new QVBoxLayout(this);
        layout->addWidget(&latitude);
        layout->addWidget(&longitude);
        layout->addWidget(&other);
    }

    latitudeEdit_t latitude;
    longitudeEdit_t longitude;
    QLineEdit other;
};

/** What the fields show, "12 34 56.00000 S". */
QString shown(angleEdit_t const& edit)
{
    QStringList texts;
    QList<QLineEdit*> const fields = edit.findChildren<QLineEdit*>();
    for (int i = 0; i < fields.size(); ++i)
    {
        if (!fields.at(i)->isHidden())
            texts << fields.at(i)->text();
    }
    if (QComboBox* const side = edit.findChild<QComboBox*>())
        texts << side->currentText();
    return texts.join(" ");
}

bool looksTaken(angleEdit_t const& edit)
{
    QList<QLineEdit*> const fields = edit.findChildren<QLineEdit*>();
    for (int i = 0; i < fields.size(); ++i)
    {
        if (!fields.at(i)->styleSheet().isEmpty())
            return false;
    }
    return true;
}

void addFormatRows(char const* name, double degrees)
{
    char const* const formats[] = {"degrees", "minutes", "seconds"};
    for (int format = LATLON_FORMAT_DEGREE; format <= LATLON_FORMAT_DEGMINSEC; ++format)
        QTest::newRow(qPrintable(QString("%1 in %2").arg(name, formats[format]))) << degrees << format;
}

void addValueRows(double limit)
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<int>("format");
    addFormatRows("zero", 0);
    addFormatRows("upper limit", limit);
    addFormatRows("lower limit", -limit);
    addFormatRows("inside upper limit", std::nextafter(limit, 0));
    addFormatRows("inside lower limit", std::nextafter(-limit, 0));
    addFormatRows("59.9999999'", 12 + 59.9999999 / 60);
    addFormatRows("59.99999999'", 12 + 59.99999999 / 60);
    addFormatRows("59.99999\"", -(12 + 34 / 60. + 59.99999 / 3600));
    addFormatRows("59.99999999\"", -(12 + 59 / 60. + 59.99999999 / 3600));
    addFormatRows("tiny negative", -0.0000001);
    addFormatRows("smallest", std::numeric_limits<double>::denorm_min());
    addFormatRows("a third", 1 / 3.);
}

void setFormat(int format)
{
    guiSettings_t::get().setLatLonFormat(static_cast<latLonFormat_t>(format));
}

} // namespace

class tst_angleEdits : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void latitudeThatIsOnlyShownComesBackExactly_data();
    void latitudeThatIsOnlyShownComesBackExactly();
    void longitudeThatIsOnlyShownComesBackExactly_data();
    void longitudeThatIsOnlyShownComesBackExactly();
    void formatsDoNotWearTheValueOff_data();
    void formatsDoNotWearTheValueOff();
    void valueIsShownInTheFormat_data();
    void valueIsShownInTheFormat();
    void shownValueIsCarriedAndNeverReadsSixty_data();
    void shownValueIsCarriedAndNeverReadsSixty();
    void onlyTheFieldsOfTheFormatAreShown();
    void shownValueFollowsTheFormat();
    void formatChangeKeepsWhatWasTyped();
    void formatChangePutsUnfinishedTypingAway();

    void typedValueIsRead_data();
    void typedValueIsRead();
    void everyTypedValueComesBackAsTyped_data();
    void everyTypedValueComesBackAsTyped();
    void southAndWestAreNegative();
    void hemisphereAloneTurnsTheExactValueRound();
    void hemisphereChosenBeforeTheNumberStays();
    void nothingIsNeitherNorthNorSouth();
    void typingTheShownTextAgainKeepsTheExactValue();
    void radiansAreRead();

    void keysThatLeadToNoLatitudeAreRefused_data();
    void keysThatLeadToNoLatitudeAreRefused();
    void keysThatLeadToNoLongitudeAreRefused();
    void minutesBeyondThePoleAreNotTaken();
    void minutesBeyondThePoleMayBeMended();
    void emptyFieldIsNotTaken();
    void leavingPutsBackWhatWasThere();
    void leavingKeepsWhatWasTyped();
    void movingBetweenTheFieldsIsNotLeaving();
    void aKeypadWindowIsNotLeaving();
    void textSetByAKeypadIsRead();
    void returnKeyShowsTheValue();

    void valuesOutsideTheLimitsAreNotSet_data();
    void valuesOutsideTheLimitsAreNotSet();
    void limitIsForgivenItsRounding();
    void longitudesCountedOnAreTheSamePlace_data();
    void longitudesCountedOnAreTheSamePlace();
    void settingPutsTypingAway();
    void changesAreTold();

    void plainAngleIsTypedInDegrees_data();
    void plainAngleIsTypedInDegrees();
    void plainAngleShowsNoNeedlessZeros_data();
    void plainAngleShowsNoNeedlessZeros();
    void plainAngleKeepsItsFormat();
    void plainAngleRefusesMoreThanATurn();

    void keypadPropertiesAreThere();
    void everyPartIsLargeEnoughAndHasAName();
    void tabGoesThroughTheFieldsInOrder();
    void focusGoesToTheDegrees();
    void editMayBeDestroyedWhileItHasTheFocus();

private:
    void tearDown() override;
};

void tst_angleEdits::tearDown()
{
    setFormat(LATLON_FORMAT_DEGREE);
}

void tst_angleEdits::latitudeThatIsOnlyShownComesBackExactly_data()
{
    addValueRows(90);
}

void tst_angleEdits::latitudeThatIsOnlyShownComesBackExactly()
{
    QFETCH(double, degrees);
    QFETCH(int, format);
    setFormat(format);
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.latitude.setLatitude(degrees);
    dialog.latitude.setFocus();
    dialog.other.setFocus();
    QVERIFY(dialog.latitude.degrees() == degrees);
    QVERIFY(looksTaken(dialog.latitude));
}

void tst_angleEdits::longitudeThatIsOnlyShownComesBackExactly_data()
{
    addValueRows(180);
}

void tst_angleEdits::longitudeThatIsOnlyShownComesBackExactly()
{
    QFETCH(double, degrees);
    QFETCH(int, format);
    setFormat(format);
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.longitude.setLongitude(degrees);
    dialog.longitude.setFocus();
    dialog.other.setFocus();
    QVERIFY(dialog.longitude.degrees() == degrees);
    QVERIFY(looksTaken(dialog.longitude));
}

void tst_angleEdits::formatsDoNotWearTheValueOff_data()
{
    addValueRows(180);
}

void tst_angleEdits::formatsDoNotWearTheValueOff()
{
    QFETCH(double, degrees);
    QFETCH(int, format);
    longitudeEdit_t edit;
    edit.setLongitude(degrees);
    QSignalSpy changed(&edit, SIGNAL(valueChanged()));
    for (int i = 1; i <= 9; ++i)
    {
        setFormat((format + i) % 3);
        QVERIFY(edit.degrees() == degrees);
    }
    QCOMPARE(changed.count(), 0);
}

void tst_angleEdits::valueIsShownInTheFormat_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("fields");
    QTest::newRow("degrees") << -33.8568 << int(LATLON_FORMAT_DEGREE) << "33.856800000 S";
    QTest::newRow("minutes") << -33.8568 << int(LATLON_FORMAT_DEGMIN) << "33 51.4080000 S";
    QTest::newRow("seconds") << -33.8568 << int(LATLON_FORMAT_DEGMINSEC) << "33 51 24.48000 S";
    QTest::newRow("zero") << 0.0 << int(LATLON_FORMAT_DEGMINSEC) << "0 00 00.00000 N";
    QTest::newRow("tiny south") << -0.0000001 << int(LATLON_FORMAT_DEGMINSEC) << "0 00 00.00036 S";
    QTest::newRow("north pole") << 90.0 << int(LATLON_FORMAT_DEGMIN) << "90 00.0000000 N";
    QTest::newRow("south pole") << -90.0 << int(LATLON_FORMAT_DEGMINSEC) << "90 00 00.00000 S";
}

void tst_angleEdits::valueIsShownInTheFormat()
{
    QFETCH(double, degrees);
    QFETCH(int, format);
    QFETCH(QString, fields);
    setFormat(format);
    latitudeEdit_t edit;
    edit.setLatitude(degrees);
    QCOMPARE(shown(edit), fields);
}

void tst_angleEdits::shownValueIsCarriedAndNeverReadsSixty_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("fields");
    int const m = LATLON_FORMAT_DEGMIN;
    int const s = LATLON_FORMAT_DEGMINSEC;
    QTest::newRow("minute stays") << 12 + 59.9999999 / 60 << m << "12 59.9999999 N";
    QTest::newRow("minute to degree") << 12 + 59.99999999 / 60 << m << "13 00.0000000 N";
    QTest::newRow("second stays") << 12 + 34 / 60. + 59.99999 / 3600 << s << "12 34 59.99999 N";
    QTest::newRow("second to minute") << 12 + 34 / 60. + 59.99999999 / 3600 << s << "12 35 00.00000 N";
    QTest::newRow("second to degree") << -(12 + 59 / 60. + 59.99999999 / 3600) << s << "13 00 00.00000 S";
    QTest::newRow("to the pole") << 89.999999999999 << s << "90 00 00.00000 N";
}

void tst_angleEdits::shownValueIsCarriedAndNeverReadsSixty()
{
    QFETCH(double, degrees);
    QFETCH(int, format);
    QFETCH(QString, fields);
    setFormat(format);
    latitudeEdit_t edit;
    edit.setLatitude(degrees);
    QCOMPARE(shown(edit), fields);
    QVERIFY(edit.degrees() == degrees);
}

void tst_angleEdits::onlyTheFieldsOfTheFormatAreShown()
{
    latitudeEdit_t edit;
    edit.show();
    for (int format = LATLON_FORMAT_DEGREE; format <= LATLON_FORMAT_DEGMINSEC; ++format)
    {
        setFormat(format);
        QVERIFY(part<QLineEdit>(edit, "latitudeDegreesLineEdit")->isVisible());
        QCOMPARE(part<QLineEdit>(edit, "latitudeMinutesLineEdit")->isVisible(), format != LATLON_FORMAT_DEGREE);
        QCOMPARE(part<QLabel>(edit, "latitudeMinutesSymbol")->isVisible(), format != LATLON_FORMAT_DEGREE);
        QCOMPARE(part<QLineEdit>(edit, "latitudeSecondsLineEdit")->isVisible(), format == LATLON_FORMAT_DEGMINSEC);
        QVERIFY(part<QComboBox>(edit, "latitudeSideCombo")->isVisible());
    }
}

void tst_angleEdits::shownValueFollowsTheFormat()
{
    longitudeEdit_t edit;
    edit.setLongitude(-118.5);
    QCOMPARE(shown(edit), QString("118.500000000 W"));
    setFormat(LATLON_FORMAT_DEGMINSEC);
    QCOMPARE(shown(edit), QString("118 30 00.00000 W"));
    setFormat(LATLON_FORMAT_DEGMIN);
    QCOMPARE(shown(edit), QString("118 30.0000000 W"));
}

void tst_angleEdits::formatChangeKeepsWhatWasTyped()
{
    latitudeEdit_t edit;
    type(edit, "latitudeDegreesLineEdit", "45.25");
    setFormat(LATLON_FORMAT_DEGMIN);
    QCOMPARE(shown(edit), QString("45 15.0000000 N"));
    QCOMPARE(edit.degrees(), 45.25);
    type(edit, "latitudeMinutesLineEdit", "30");
    QCOMPARE(edit.degrees(), 45.5);
}

void tst_angleEdits::formatChangePutsUnfinishedTypingAway()
{
    latitudeEdit_t edit;
    edit.setLatitude(12.5);
    type(edit, "latitudeDegreesLineEdit", "");
    setFormat(LATLON_FORMAT_DEGMIN);
    QCOMPARE(shown(edit), QString("12 30.0000000 N"));
    QVERIFY(looksTaken(edit));
}

void tst_angleEdits::typedValueIsRead_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("degrees");
    QTest::addColumn<QString>("minutes");
    QTest::addColumn<QString>("seconds");
    QTest::addColumn<double>("value");
    int const d = LATLON_FORMAT_DEGREE;
    int const m = LATLON_FORMAT_DEGMIN;
    int const s = LATLON_FORMAT_DEGMINSEC;
    QTest::newRow("degrees") << d << "40.123456789"
                             << ""
                             << "" << 40.123456789;
    QTest::newRow("no point") << d << "7"
                              << ""
                              << "" << 7.0;
    QTest::newRow("point at the end") << d << "7."
                                      << ""
                                      << "" << 7.0;
    QTest::newRow("point at the beginning") << d << ".5"
                                            << ""
                                            << "" << 0.5;
    QTest::newRow("leading zero") << d << "07.5"
                                  << ""
                                  << "" << 7.5;
    QTest::newRow("limit") << d << "90"
                           << ""
                           << "" << 90.0;
    QTest::newRow("minutes") << m << "40"
                             << "7.5"
                             << "" << 40.125;
    QTest::newRow("largest minutes") << m << "40"
                                     << "59.9999999"
                                     << "" << 40 + 59.9999999 / 60;
    QTest::newRow("seconds") << s << "40"
                             << "7"
                             << "30" << 40.125;
    QTest::newRow("largest seconds") << s << "40"
                                     << "59"
                                     << "59.99999" << 40 + (59 + 59.99999 / 60) / 60;
    QTest::newRow("pole in seconds") << s << "90"
                                     << "0"
                                     << "0" << 90.0;
}

void tst_angleEdits::typedValueIsRead()
{
    QFETCH(int, format);
    QFETCH(QString, degrees);
    QFETCH(QString, minutes);
    QFETCH(QString, seconds);
    QFETCH(double, value);
    setFormat(format);
    latitudeEdit_t edit;
    edit.setLatitude(0.123);
    type(edit, "latitudeDegreesLineEdit", degrees);
    if (format != LATLON_FORMAT_DEGREE)
        type(edit, "latitudeMinutesLineEdit", minutes);
    if (format == LATLON_FORMAT_DEGMINSEC)
        type(edit, "latitudeSecondsLineEdit", seconds);
    QCOMPARE(edit.degrees(), value);
    QVERIFY(looksTaken(edit));
}

void tst_angleEdits::everyTypedValueComesBackAsTyped_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("fields");
    for (int minute = 0; minute < 60; minute += 7)
    {
        for (int last = 0; last < 60; last += 13)
        {
            QString const seconds = QString("%1 %2 %3.9999%4 W").arg(minute * 3).arg(minute, 2, 10, QChar('0'));
            QString const fields = seconds.arg(last, 2, 10, QChar('0')).arg(last % 10);
            QTest::newRow(qPrintable(fields)) << int(LATLON_FORMAT_DEGMINSEC) << fields;
        }
        QString const fields =
            QString("%1 %2.999999%3 W").arg(minute * 3).arg(minute, 2, 10, QChar('0')).arg(minute % 10);
        QTest::newRow(qPrintable(fields)) << int(LATLON_FORMAT_DEGMIN) << fields;
        QString const degrees = QString("%1.99999999%2 W").arg(minute * 3).arg(minute % 10);
        QTest::newRow(qPrintable(degrees)) << int(LATLON_FORMAT_DEGREE) << degrees;
    }
}

void tst_angleEdits::everyTypedValueComesBackAsTyped()
{
    QFETCH(int, format);
    QFETCH(QString, fields);
    setFormat(format);
    longitudeEdit_t edit;
    QStringList const texts = fields.split(' ');
    char const* const names[] = {"longitudeDegreesLineEdit", "longitudeMinutesLineEdit", "longitudeSecondsLineEdit"};
    for (int i = 0; i + 1 < texts.size(); ++i)
        type(edit, names[i], texts.at(i));
    QTest::keyClicks(part<QComboBox>(edit, "longitudeSideCombo"), texts.last());
    longitudeEdit_t other;
    other.setLongitude(edit.degrees());
    QCOMPARE(shown(other), fields);
}

void tst_angleEdits::southAndWestAreNegative()
{
    latitudeEdit_t latitude;
    type(latitude, "latitudeDegreesLineEdit", "12.5");
    part<QComboBox>(latitude, "latitudeSideCombo")->setCurrentIndex(1);
    QCOMPARE(latitude.degrees(), -12.5);
    QCOMPARE(part<QComboBox>(latitude, "latitudeSideCombo")->currentText(), QString("S"));
    longitudeEdit_t longitude;
    type(longitude, "longitudeDegreesLineEdit", "12.5");
    part<QComboBox>(longitude, "longitudeSideCombo")->setCurrentIndex(1);
    QCOMPARE(longitude.degrees(), -12.5);
    QCOMPARE(part<QComboBox>(longitude, "longitudeSideCombo")->currentText(), QString("W"));
}

void tst_angleEdits::hemisphereAloneTurnsTheExactValueRound()
{
    double const value = 12 + 59 / 60. + 59.99999999 / 3600;
    setFormat(LATLON_FORMAT_DEGMINSEC);
    latitudeEdit_t edit;
    edit.setLatitude(value);
    part<QComboBox>(edit, "latitudeSideCombo")->setCurrentIndex(1);
    QVERIFY(edit.degrees() == -value);
    part<QComboBox>(edit, "latitudeSideCombo")->setCurrentIndex(0);
    QVERIFY(edit.degrees() == value);
}

void tst_angleEdits::hemisphereChosenBeforeTheNumberStays()
{
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.latitude.setLatitude(0);
    part<QComboBox>(dialog.latitude, "latitudeSideCombo")->setCurrentIndex(1);
    dialog.other.setFocus();
    type(dialog, "latitudeDegreesLineEdit", "30");
    dialog.other.setFocus();
    QCOMPARE(dialog.latitude.degrees(), -30.0);
    dialog.latitude.setLatitude(0);
    QCOMPARE(shown(dialog.latitude), QString("0.000000000 N"));
}

void tst_angleEdits::nothingIsNeitherNorthNorSouth()
{
    latitudeEdit_t edit;
    edit.setLatitude(-5);
    type(edit, "latitudeDegreesLineEdit", "0");
    QCOMPARE(edit.degrees(), 0.0);
    QVERIFY(!std::signbit(edit.degrees()));
}

void tst_angleEdits::typingTheShownTextAgainKeepsTheExactValue()
{
    latitudeEdit_t edit;
    edit.setLatitude(1 / 3.);
    type(edit, "latitudeDegreesLineEdit", "0.333333333");
    QVERIFY(edit.degrees() == 1 / 3.);
    type(edit, "latitudeDegreesLineEdit", "0.333333334");
    QCOMPARE(edit.degrees(), 0.333333334);
}

void tst_angleEdits::radiansAreRead()
{
    longitudeEdit_t edit;
    edit.setLongitude(-180);
    QCOMPARE(edit.radians(), -3.14159265358979323846);
    type(edit, "longitudeDegreesLineEdit", "90");
    QCOMPARE(edit.radians(), -1.57079632679489661923);
}

void tst_angleEdits::keysThatLeadToNoLatitudeAreRefused_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("left");
    QString const degrees = "latitudeDegreesLineEdit";
    QString const minutes = "latitudeMinutesLineEdit";
    QString const seconds = "latitudeSecondsLineEdit";
    int const d = LATLON_FORMAT_DEGREE;
    int const m = LATLON_FORMAT_DEGMIN;
    int const s = LATLON_FORMAT_DEGMINSEC;
    QTest::newRow("beyond the pole") << d << degrees << "91"
                                     << "9";
    QTest::newRow("just beyond the pole") << d << degrees << "90.000000001"
                                          << "90.00000000";
    QTest::newRow("three digits") << d << degrees << "045"
                                  << "04";
    QTest::newRow("sign") << d << degrees << "-5"
                          << "5";
    QTest::newRow("plus") << d << degrees << "+5"
                          << "5";
    QTest::newRow("junk") << d << degrees << "a1 b,2e3"
                          << "12";
    QTest::newRow("two points") << d << degrees << "1.2.3"
                                << "1.23";
    QTest::newRow("too many decimals") << d << degrees << "1.1234567891"
                                       << "1.123456789";
    QTest::newRow("point before minutes") << m << degrees << "1.5"
                                          << "15";
    QTest::newRow("sixty minutes") << m << minutes << "60"
                                   << "6";
    QTest::newRow("rounded to sixty minutes") << m << minutes << "59.99999999"
                                              << "59.9999999";
    QTest::newRow("point before seconds") << s << minutes << "1.5"
                                          << "15";
    QTest::newRow("sixty seconds") << s << seconds << "60"
                                   << "6";
    QTest::newRow("rounded to sixty seconds") << s << seconds << "59.999999"
                                              << "59.99999";
    QTest::newRow("negative seconds") << s << seconds << "-1"
                                      << "1";
}

void tst_angleEdits::keysThatLeadToNoLatitudeAreRefused()
{
    QFETCH(int, format);
    QFETCH(QString, field);
    QFETCH(QString, keys);
    QFETCH(QString, left);
    setFormat(format);
    latitudeEdit_t edit;
    type(edit, field, keys);
    QCOMPARE(text(edit, field), left);
}

void tst_angleEdits::keysThatLeadToNoLongitudeAreRefused()
{
    longitudeEdit_t edit;
    type(edit, "longitudeDegreesLineEdit", "181");
    QCOMPARE(text(edit, "longitudeDegreesLineEdit"), QString("18"));
    type(edit, "longitudeDegreesLineEdit", "180.0");
    QCOMPARE(edit.degrees(), 180.0);
}

void tst_angleEdits::minutesBeyondThePoleAreNotTaken()
{
    setFormat(LATLON_FORMAT_DEGMIN);
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.latitude.setLatitude(45.5);
    type(dialog, "latitudeDegreesLineEdit", "90");
    QVERIFY(!looksTaken(dialog.latitude));
    QCOMPARE(dialog.latitude.degrees(), 45.5);
    dialog.other.setFocus();
    QCOMPARE(shown(dialog.latitude), QString("45 30.0000000 N"));
    QVERIFY(looksTaken(dialog.latitude));
}

void tst_angleEdits::minutesBeyondThePoleMayBeMended()
{
    setFormat(LATLON_FORMAT_DEGMIN);
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.latitude.setLatitude(45.5);
    type(dialog, "latitudeDegreesLineEdit", "90");
    type(dialog, "latitudeMinutesLineEdit", "0");
    QVERIFY(looksTaken(dialog.latitude));
    QCOMPARE(dialog.latitude.degrees(), 90.0);
    dialog.other.setFocus();
    QCOMPARE(shown(dialog.latitude), QString("90 00.0000000 N"));
}

void tst_angleEdits::emptyFieldIsNotTaken()
{
    setFormat(LATLON_FORMAT_DEGMIN);
    latitudeEdit_t edit;
    edit.setLatitude(45.5);
    type(edit, "latitudeMinutesLineEdit", "");
    QVERIFY(!looksTaken(edit));
    QCOMPARE(edit.degrees(), 45.5);
    type(edit, "latitudeMinutesLineEdit", ".");
    QVERIFY(!looksTaken(edit));
    QCOMPARE(edit.degrees(), 45.5);
}

void tst_angleEdits::leavingPutsBackWhatWasThere()
{
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.latitude.setLatitude(45.5);
    type(dialog, "latitudeDegreesLineEdit", "");
    dialog.other.setFocus();
    QCOMPARE(shown(dialog.latitude), QString("45.500000000 N"));
    QCOMPARE(dialog.latitude.degrees(), 45.5);
}

void tst_angleEdits::leavingKeepsWhatWasTyped()
{
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.latitude.setLatitude(45.5);
    type(dialog, "latitudeDegreesLineEdit", "12.25");
    dialog.other.setFocus();
    QCOMPARE(shown(dialog.latitude), QString("12.250000000 N"));
    type(dialog, "latitudeDegreesLineEdit", "");
    dialog.other.setFocus();
    QCOMPARE(dialog.latitude.degrees(), 12.25);
}

void tst_angleEdits::movingBetweenTheFieldsIsNotLeaving()
{
    setFormat(LATLON_FORMAT_DEGMIN);
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.latitude.setLatitude(45.5);
    type(dialog, "latitudeDegreesLineEdit", "");
    part<QLineEdit>(dialog, "latitudeMinutesLineEdit")->setFocus();
    QCOMPARE(text(dialog, "latitudeDegreesLineEdit"), QString());
    part<QComboBox>(dialog, "latitudeSideCombo")->setFocus();
    QCOMPARE(text(dialog, "latitudeDegreesLineEdit"), QString());
    part<QLineEdit>(dialog, "longitudeDegreesLineEdit")->setFocus();
    QCOMPARE(text(dialog, "latitudeDegreesLineEdit"), QString("45"));
}

void tst_angleEdits::aKeypadWindowIsNotLeaving()
{
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    type(dialog, "latitudeDegreesLineEdit", "");
    QWidget keypad;
    QVERIFY(showActive(keypad));
    QVERIFY(!dialog.isActiveWindow());
    QCOMPARE(text(dialog, "latitudeDegreesLineEdit"), QString());
}

void tst_angleEdits::textSetByAKeypadIsRead()
{
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.latitude.setLatitude(45.5);
    QLineEdit* const field = part<QLineEdit>(dialog, "latitudeDegreesLineEdit");
    field->setFocus();
    field->setText("12.5");
    QCOMPARE(dialog.latitude.degrees(), 12.5);
    field->setText("92.5");
    QVERIFY(!looksTaken(dialog.latitude));
    QCOMPARE(dialog.latitude.degrees(), 45.5);
    dialog.other.setFocus();
    QCOMPARE(shown(dialog.latitude), QString("45.500000000 N"));
}

void tst_angleEdits::returnKeyShowsTheValue()
{
    latitudeEdit_t edit;
    type(edit, "latitudeDegreesLineEdit", "5");
    QTest::keyClick(part<QLineEdit>(edit, "latitudeDegreesLineEdit"), Qt::Key_Return);
    QCOMPARE(shown(edit), QString("5.000000000 N"));
    QCOMPARE(edit.degrees(), 5.0);
}

void tst_angleEdits::valuesOutsideTheLimitsAreNotSet_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::newRow("no number") << NOT_A_NUMBER << NOT_A_NUMBER;
    QTest::newRow("infinite") << INFINITE << -INFINITE;
    QTest::newRow("just above") << 90.00000001 << 360.00000001;
    QTest::newRow("just below") << -90.00000001 << -360.00000001;
    QTest::newRow("huge") << 1e300 << -1e300;
}

void tst_angleEdits::valuesOutsideTheLimitsAreNotSet()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    latitudeEdit_t latitudeEdit;
    latitudeEdit.setLatitude(12.5);
    latitudeEdit.setLatitude(latitude);
    QCOMPARE(latitudeEdit.degrees(), 12.5);
    QCOMPARE(shown(latitudeEdit), QString("12.500000000 N"));
    longitudeEdit_t longitudeEdit;
    longitudeEdit.setLongitude(12.5);
    longitudeEdit.setLongitude(longitude);
    QCOMPARE(longitudeEdit.degrees(), 12.5);
}

void tst_angleEdits::limitIsForgivenItsRounding()
{
    latitudeEdit_t edit;
    edit.setLatitude(std::nextafter(90.0, 91.0));
    QVERIFY(edit.degrees() == 90);
    edit.setLatitude(std::nextafter(-90.0, -91.0));
    QVERIFY(edit.degrees() == -90);
}

void tst_angleEdits::longitudesCountedOnAreTheSamePlace_data()
{
    QTest::addColumn<double>("set");
    QTest::addColumn<double>("read");
    QTest::newRow("beyond the date line") << 190.0 << -170.0;
    QTest::newRow("beyond it westwards") << -190.0 << 170.0;
    QTest::newRow("a whole turn") << 360.0 << 0.0;
    QTest::newRow("date line") << 180.0 << 180.0;
    QTest::newRow("date line westwards") << -180.0 << -180.0;
}

void tst_angleEdits::longitudesCountedOnAreTheSamePlace()
{
    QFETCH(double, set);
    QFETCH(double, read);
    longitudeEdit_t edit;
    edit.setLongitude(12.5);
    edit.setLongitude(set);
    QCOMPARE(edit.degrees(), read);
}

void tst_angleEdits::settingPutsTypingAway()
{
    latitudeEdit_t edit;
    edit.setLatitude(45.5);
    type(edit, "latitudeDegreesLineEdit", "");
    edit.setLatitude(45.5);
    QCOMPARE(shown(edit), QString("45.500000000 N"));
    QVERIFY(looksTaken(edit));
    type(edit, "latitudeDegreesLineEdit", "13");
    edit.setLatitude(45.5);
    QCOMPARE(shown(edit), QString("45.500000000 N"));
    QCOMPARE(edit.degrees(), 45.5);
}

void tst_angleEdits::changesAreTold()
{
    latitudeEdit_t edit;
    QSignalSpy changed(&edit, SIGNAL(valueChanged()));
    edit.setLatitude(45);
    QCOMPARE(changed.count(), 1);
    edit.setLatitude(45);
    QCOMPARE(changed.count(), 1);
    QTest::keyClick(part<QLineEdit>(edit, "latitudeDegreesLineEdit"), Qt::Key_End);
    QTest::keyClick(part<QLineEdit>(edit, "latitudeDegreesLineEdit"), Qt::Key_Backspace);
    QCOMPARE(changed.count(), 1);
    QTest::keyClicks(part<QLineEdit>(edit, "latitudeDegreesLineEdit"), "1");
    QCOMPARE(changed.count(), 2);
}

void tst_angleEdits::plainAngleIsTypedInDegrees_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<double>("degrees");
    QTest::newRow("positive") << "45.5" << 45.5;
    QTest::newRow("negative") << "-45.5" << -45.5;
    QTest::newRow("negative below one") << "-0.25" << -0.25;
    QTest::newRow("upper limit") << "360" << 360.0;
    QTest::newRow("lower limit") << "-360" << -360.0;
    QTest::newRow("minus nothing") << "-0" << 0.0;
}

void tst_angleEdits::plainAngleIsTypedInDegrees()
{
    QFETCH(QString, keys);
    QFETCH(double, degrees);
    angleEdit_t edit;
    type(edit, "angleDegreesLineEdit", keys);
    QCOMPARE(edit.degrees(), degrees);
    QCOMPARE(edit.radians(), degrees / 180 * 3.14159265358979323846);
}

void tst_angleEdits::plainAngleShowsNoNeedlessZeros_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QString>("fields");
    QTest::newRow("zero") << 0.0 << "0";
    QTest::newRow("whole") << 120.0 << "120";
    QTest::newRow("decimal") << -45.5 << "-45.5";
    QTest::newRow("rounded") << 1 / 3. << "0.333333333";
    QTest::newRow("rounded up") << 99.9999999999 << "100";
}

void tst_angleEdits::plainAngleShowsNoNeedlessZeros()
{
    QFETCH(double, degrees);
    QFETCH(QString, fields);
    angleEdit_t edit;
    edit.setDegrees(degrees);
    QCOMPARE(shown(edit), fields);
    QVERIFY(edit.degrees() == degrees);
}

void tst_angleEdits::plainAngleKeepsItsFormat()
{
    angleEdit_t edit;
    edit.setDegrees(45.5);
    setFormat(LATLON_FORMAT_DEGMINSEC);
    QCOMPARE(shown(edit), QString("45.5"));
    edit.setDegrees(46.5);
    QCOMPARE(shown(edit), QString("46.5"));
}

void tst_angleEdits::plainAngleRefusesMoreThanATurn()
{
    angleEdit_t edit;
    type(edit, "angleDegreesLineEdit", "361");
    QCOMPARE(text(edit, "angleDegreesLineEdit"), QString("36"));
    type(edit, "angleDegreesLineEdit", "4-5");
    QCOMPARE(text(edit, "angleDegreesLineEdit"), QString("45"));
    type(edit, "angleDegreesLineEdit", "-");
    QVERIFY(!looksTaken(edit));
    QCOMPARE(edit.degrees(), 0.0);
    edit.setDegrees(361);
    QCOMPARE(edit.degrees(), 0.0);
}

void tst_angleEdits::keypadPropertiesAreThere()
{
    latitudeEdit_t edit;
    edit.setKeypadPrompt("Base Station Latitude");
    QList<QLineEdit*> const fields = edit.findChildren<QLineEdit*>();
    QCOMPARE(fields.size(), 3);
    for (int i = 0; i < fields.size(); ++i)
    {
        QCOMPARE(fields.at(i)->property("keypadType").toString(), QString("numeric"));
        QCOMPARE(fields.at(i)->property("keypadPrompt").toString(), QString("Base Station Latitude"));
    }
    QCOMPARE(fields.at(0)->accessibleName(), QString("Base Station Latitude, Degrees"));
    QCOMPARE(fields.at(1)->accessibleName(), QString("Base Station Latitude, Minutes"));
    QCOMPARE(fields.at(2)->accessibleName(), QString("Base Station Latitude, Seconds"));
    QCOMPARE(part<QComboBox>(edit, "latitudeSideCombo")->accessibleName(),
             QString("Base Station Latitude, Hemisphere"));
}

void tst_angleEdits::everyPartIsLargeEnoughAndHasAName()
{
    setFormat(LATLON_FORMAT_DEGMINSEC);
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    angleEdit_t* const edits[] = {&dialog.latitude, &dialog.longitude};
    QStringList names;
    for (int e = 0; e < 2; ++e)
    {
        QList<QWidget*> const parts = edits[e]->findChildren<QWidget*>();
        for (int i = 0; i < parts.size(); ++i)
        {
            bool const isCombo = qobject_cast<QComboBox*>(parts.at(i)) != nullptr;
            if (!isCombo && !qobject_cast<QLineEdit*>(parts.at(i)))
                continue;
            QVERIFY(parts.at(i)->height() >= 40);
            QVERIFY(!parts.at(i)->accessibleName().isEmpty());
            QVERIFY(!parts.at(i)->objectName().isEmpty());
            QVERIFY(!names.contains(parts.at(i)->objectName()));
            names << parts.at(i)->objectName();
        }
    }
    QCOMPARE(names.size(), 8);
}

void tst_angleEdits::tabGoesThroughTheFieldsInOrder()
{
    setFormat(LATLON_FORMAT_DEGMINSEC);
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.latitude.setFocus();
    QStringList names;
    while (QApplication::focusWidget() != &dialog.other && names.size() < 20)
    {
        names << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(names.join(" "), QString("latitudeDegreesLineEdit latitudeMinutesLineEdit latitudeSecondsLineEdit "
                                      "latitudeSideCombo longitudeDegreesLineEdit longitudeMinutesLineEdit "
                                      "longitudeSecondsLineEdit longitudeSideCombo"));
}

void tst_angleEdits::focusGoesToTheDegrees()
{
    dialog_t dialog;
    QVERIFY(showActive(dialog));
    dialog.longitude.setFocus();
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("longitudeDegreesLineEdit"));
}

void tst_angleEdits::editMayBeDestroyedWhileItHasTheFocus()
{
    QWidget window;
    QVBoxLayout* const layout = new QVBoxLayout(&window);
    latitudeEdit_t* const edit = new latitudeEdit_t;
    layout->addWidget(edit);
    layout->addWidget(new QLineEdit);
    QVERIFY(showActive(window));
    type(window, "latitudeDegreesLineEdit", "");
    delete edit;
    setFormat(LATLON_FORMAT_DEGMIN);
    melvox_test::settle();
}

QTEST_MAIN(tst_angleEdits)
#include "tst_angleEdits.moc"
