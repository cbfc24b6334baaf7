#include "brel_common_qt/melvoxAntenna.h"
#include "brel_common_qt/melvoxDifferential.h"
#include "brel_common_qt/melvoxFirmware.h"
#include "brel_common_qt/melvoxNavigation.h"
#include "brel_common_qt/melvoxOutput.h"
#include "brel_common_qt/melvoxPort.h"
#include "brel_common_qt/textHelpers.h"
#include "brel_common_qt/timestamps.h"
#include "brel_common_qt/version.h"
#include "support/test.h"

#include <QSet>

#include <cmath>
#include <ctime>
#include <limits>

using namespace brel_common_qt;

namespace
{

typedef std::vector<unsigned int> version_t;

version_t version(unsigned int a, unsigned int b, unsigned int c)
{
    version_t parts;
    parts.push_back(a);
    parts.push_back(b);
    parts.push_back(c);
    return parts;
}

QString utf8(char const* text)
{
    return QString::fromUtf8(text);
}

double const NOT_A_NUMBER = std::numeric_limits<double>::quiet_NaN();
double const INFINITE = std::numeric_limits<double>::infinity();

} // namespace

class tst_texts : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void constantTextsAreThere();

    void latitudesFollowTheFormat_data();
    void latitudesFollowTheFormat();
    void longitudesFollowTheFormat_data();
    void longitudesFollowTheFormat();
    void minutesAndSecondsNeverReadSixty_data();
    void minutesAndSecondsNeverReadSixty();
    void precisionIsAsAskedFor();
    void zeroPaddingFillsEveryPart();
    void aSignStandsForTheDirectionWhenNoLetterIsWanted();
    void valuesThatAreNoPositionGiveTheNoDataText_data();
    void valuesThatAreNoPositionGiveTheNoDataText();

    void distancesFollowTheUnit_data();
    void distancesFollowTheUnit();

    void lineSettingsHaveTexts();
    void everyPortHasANameOfItsOwn();
    void portNamesLeadBackToTheirPorts();
    void unknownNamesLeadToNoPort_data();
    void unknownNamesLeadToNoPort();
    void antennasHaveNames();
    void basesStandStillAndRoversMayMove();
    void ggaQualitiesReadAsInTheSentence();
    void everyFirmwareComponentHasANameOfItsOwn();
    void everyUpdateStatusHasATextOfItsOwn();
    void measurementNamesAreTheReceivers();
    void fileSuffixesHaveNoDot();

    void readsVersions_data();
    void readsVersions();
    void refusesWhatIsNoVersion_data();
    void refusesWhatIsNoVersion();
    void comparesVersionsPartByPart_data();
    void comparesVersionsPartByPart();
    void buildsVersionTexts();

    void fileNamesCarryTheTimeInUtc_data();
    void fileNamesCarryTheTimeInUtc();
    void theTimestampIsNow();
};

void tst_texts::constantTextsAreThere()
{
    QCOMPARE(YesString, QString("Yes"));
    QCOMPARE(NoString, QString("No"));
    QCOMPARE(NoneString, QString("None"));
    QCOMPARE(UnknownString, QString("Unknown"));
    QCOMPARE(NoDataString, QString("---"));
    QCOMPARE(utcString, QString(" UTC"));
}

void tst_texts::latitudesFollowTheFormat_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("text");
    int const d = LATLON_FORMAT_DEGREE;
    int const m = LATLON_FORMAT_DEGMIN;
    int const s = LATLON_FORMAT_DEGMINSEC;
    QTest::newRow("degrees") << 40.5 << d << utf8("40.500000000° N");
    QTest::newRow("minutes") << 40.5 << m << utf8("40° 30.0000000' N");
    QTest::newRow("seconds") << 40.5 << s << utf8("40° 30' 0.00000\" N");
    QTest::newRow("south") << -33.8568 << s << utf8("33° 51' 24.48000\" S");
    QTest::newRow("below one degree south") << -0.25 << m << utf8("0° 15.0000000' S");
    QTest::newRow("equator") << 0.0 << d << utf8("0.000000000° N");
    QTest::newRow("equator from below") << -0.0 << d << utf8("0.000000000° N");
    QTest::newRow("north pole") << 90.0 << s << utf8("90° 0' 0.00000\" N");
    QTest::newRow("south pole") << -90.0 << m << utf8("90° 0.0000000' S");
    QTest::newRow("rounded to the equator") << -4e-10 << d << utf8("0.000000000° N");
    QTest::newRow("just south of it") << -6e-10 << d << utf8("0.000000001° S");
    QTest::newRow("rounded in minutes") << -4e-10 << m << utf8("0° 0.0000000' N");
    QTest::newRow("rounded in seconds") << -1e-9 << s << utf8("0° 0' 0.00000\" N");
}

void tst_texts::latitudesFollowTheFormat()
{
    QFETCH(double, degrees);
    QFETCH(int, format);
    QFETCH(QString, text);
    QCOMPARE(latitudeString(degrees, latLonStringOptions_t(static_cast<latLonFormat_t>(format))), text);
}

void tst_texts::longitudesFollowTheFormat_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QString>("text");
    QTest::newRow("east") << 15.0 << utf8("15° 0' 0.00000\" E");
    QTest::newRow("west") << -118.5 << utf8("118° 30' 0.00000\" W");
    QTest::newRow("zero") << 0.0 << utf8("0° 0' 0.00000\" E");
    QTest::newRow("date line from the west") << 180.0 << utf8("180° 0' 0.00000\" E");
    QTest::newRow("date line from the east") << -180.0 << utf8("180° 0' 0.00000\" W");
    QTest::newRow("counted on eastwards") << 190.0 << utf8("170° 0' 0.00000\" W");
    QTest::newRow("counted on westwards") << -190.0 << utf8("170° 0' 0.00000\" E");
    QTest::newRow("all round") << 360.0 << utf8("0° 0' 0.00000\" E");
}

void tst_texts::longitudesFollowTheFormat()
{
    QFETCH(double, degrees);
    QFETCH(QString, text);
    QCOMPARE(longitudeString(degrees, latLonStringOptions_t(LATLON_FORMAT_DEGMINSEC)), text);
}

void tst_texts::minutesAndSecondsNeverReadSixty_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<int>("format");
    QTest::addColumn<QString>("text");
    int const m = LATLON_FORMAT_DEGMIN;
    int const s = LATLON_FORMAT_DEGMINSEC;
    QTest::newRow("minute stays") << 12 + 59.9999999 / 60 << m << utf8("12° 59.9999999' N");
    QTest::newRow("minute to degree") << 12 + 59.99999999 / 60 << m << utf8("13° 0.0000000' N");
    QTest::newRow("second stays") << 12 + 34 / 60. + 59.99999 / 3600 << s << utf8("12° 34' 59.99999\" N");
    QTest::newRow("second to minute") << 12 + 34 / 60. + 59.999999 / 3600 << s << utf8("12° 35' 0.00000\" N");
    QTest::newRow("second to degree") << 12 + 59 / 60. + 59.999999 / 3600 << s << utf8("13° 0' 0.00000\" N");
    QTest::newRow("south") << -(12 + 59 / 60. + 59.999999 / 3600) << s << utf8("13° 0' 0.00000\" S");
    QTest::newRow("to the pole") << 89.9999999999 << s << utf8("90° 0' 0.00000\" N");
}

void tst_texts::minutesAndSecondsNeverReadSixty()
{
    QFETCH(double, degrees);
    QFETCH(int, format);
    QFETCH(QString, text);
    QCOMPARE(latitudeString(degrees, latLonStringOptions_t(static_cast<latLonFormat_t>(format))), text);
}

void tst_texts::precisionIsAsAskedFor()
{
    latLonStringOptions_t options(LATLON_FORMAT_DEGMINSEC);
    options.precision = 1;
    QCOMPARE(latitudeString(10.00999, options), utf8("10° 0' 36.0\" N"));
    options.precision = 0;
    QCOMPARE(latitudeString(-10.5, options), utf8("10° 30' 0\" S"));
    options.format = LATLON_FORMAT_DEGREE;
    QCOMPARE(latitudeString(10.9, options), utf8("11° N"));
    QCOMPARE(latitudeString(-0.3, options), utf8("0° N"));
}

void tst_texts::zeroPaddingFillsEveryPart()
{
    latLonStringOptions_t options(LATLON_FORMAT_DEGMINSEC);
    options.zeroPad = true;
    options.precision = 2;
    double const value = 5 + 6 / 60. + 7 / 3600.;
    QCOMPARE(latitudeString(value, options), utf8("05° 06' 07.00\" N"));
    QCOMPARE(longitudeString(-value, options), utf8("005° 06' 07.00\" W"));
    options.format = LATLON_FORMAT_DEGREE;
    QCOMPARE(longitudeString(5.25, options), utf8("005.25° E"));
    options.precision = 0;
    QCOMPARE(longitudeString(5.25, options), utf8("005° E"));
}

void tst_texts::aSignStandsForTheDirectionWhenNoLetterIsWanted()
{
    latLonStringOptions_t options(LATLON_FORMAT_DEGMIN);
    options.useDirection = false;
    options.precision = 3;
    QCOMPARE(latitudeString(-0.5, options), utf8("-0° 30.000'"));
    QCOMPARE(latitudeString(0.5, options), utf8("0° 30.000'"));
    QCOMPARE(longitudeString(-1e-9, options), utf8("0° 0.000'"));
}

void tst_texts::valuesThatAreNoPositionGiveTheNoDataText_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::newRow("no number") << NOT_A_NUMBER << NOT_A_NUMBER;
    QTest::newRow("infinite") << INFINITE << INFINITE;
    QTest::newRow("minus infinite") << -INFINITE << -INFINITE;
    QTest::newRow("just beyond") << std::nextafter(90.0, 91.0) << std::nextafter(360.0, 361.0);
    QTest::newRow("just beyond below") << std::nextafter(-90.0, -91.0) << std::nextafter(-360.0, -361.0);
    QTest::newRow("huge") << 1e300 << -1e300;
}

void tst_texts::valuesThatAreNoPositionGiveTheNoDataText()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    for (int format = LATLON_FORMAT_DEGREE; format <= LATLON_FORMAT_DEGMINSEC; ++format)
    {
        latLonStringOptions_t const options(static_cast<latLonFormat_t>(format));
        QCOMPARE(latitudeString(latitude, options), NoDataString);
        QCOMPARE(longitudeString(longitude, options), NoDataString);
    }
}

void tst_texts::distancesFollowTheUnit_data()
{
    QTest::addColumn<double>("metres");
    QTest::addColumn<int>("unit");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");
    int const m = DISTANCE_UNIT_METER;
    int const ft = DISTANCE_UNIT_US_SURVEY_FOOT;
    QTest::newRow("metres") << 12.345 << m << 2 << "12.35 m";
    QTest::newRow("no decimals") << 12.345 << m << 0 << "12 m";
    QTest::newRow("negative") << -12.5 << m << 1 << "-12.5 m";
    QTest::newRow("survey feet") << 1200.0 << ft << 2 << "3937.00 ft";
    QTest::newRow("not 0.3048") << 1e6 << ft << 2 << "3280833.33 ft";
    QTest::newRow("rounded to zero") << -0.001 << m << 2 << "0.00 m";
    QTest::newRow("large") << 1e7 << m << 2 << "10000000.00 m";
    QTest::newRow("no number") << NOT_A_NUMBER << m << 2 << "---";
    QTest::newRow("infinite") << INFINITE << ft << 2 << "---";
}

void tst_texts::distancesFollowTheUnit()
{
    QFETCH(double, metres);
    QFETCH(int, unit);
    QFETCH(int, decimals);
    QFETCH(QString, text);
    QCOMPARE(distanceString(metres, static_cast<distanceUnit_t>(unit), decimals), text);
}

void tst_texts::lineSettingsHaveTexts()
{
    QCOMPARE(baudString(115200), QString("115200"));
    QCOMPARE(baudString(0), QString("0"));
    QCOMPARE(parityString(PARITY_N), QString("None"));
    QCOMPARE(parityString(PARITY_O), QString("Odd"));
    QCOMPARE(parityString(PARITY_E), QString("Even"));
    QCOMPARE(parityString(static_cast<parity_t>(3)), UnknownString);
    QCOMPARE(charSizeString(CHAR_SIZE_7), QString("7"));
    QCOMPARE(charSizeString(CHAR_SIZE_8), QString("8"));
    QCOMPARE(charSizeString(static_cast<charSize_t>(2)), UnknownString);
    QCOMPARE(stopBitsString(STOP_1), QString("1"));
    QCOMPARE(stopBitsString(STOP_2), QString("2"));
    QCOMPARE(stopBitsString(static_cast<stopBits_t>(2)), UnknownString);
}

void tst_texts::everyPortHasANameOfItsOwn()
{
    QCOMPARE(melvoxPortName(MELVOX_PORT_COM1), QString("COM1"));
    QCOMPARE(melvoxPortName(MELVOX_PORT_COM4), QString("COM4"));
    QCOMPARE(melvoxPortName(MELVOX_PORT_USB1), QString("USB1"));
    QCOMPARE(melvoxPortName(MELVOX_PORT_USB2), QString("USB2"));
    QCOMPARE(melvoxPortName(MELVOX_PORT_ETH1), QString("ETH1"));
    QCOMPARE(melvoxPortName(MELVOX_PORT_ETH8), QString("ETH8"));
    QCOMPARE(melvoxPortName(MELVOX_PORT_UNKNOWN), UnknownString);
    QCOMPARE(melvoxPortName(static_cast<melvoxPort_t>(-1)), UnknownString);
    QSet<QString> names;
    for (int port = MELVOX_PORT_FIRST; port < MELVOX_NUM_PORTS; ++port)
        names << melvoxPortName(static_cast<melvoxPort_t>(port));
    QCOMPARE(names.size(), int(MELVOX_NUM_PORTS));
}

void tst_texts::portNamesLeadBackToTheirPorts()
{
    for (int port = MELVOX_PORT_FIRST; port < MELVOX_NUM_PORTS; ++port)
        QCOMPARE(int(melvoxPortFromName(melvoxPortName(static_cast<melvoxPort_t>(port)))), port);
}

void tst_texts::unknownNamesLeadToNoPort_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << "";
    QTest::newRow("unknown") << UnknownString;
    QTest::newRow("beyond") << "ETH9";
    QTest::newRow("part") << "COM";
    QTest::newRow("blank") << "COM1 ";
}

void tst_texts::unknownNamesLeadToNoPort()
{
    QFETCH(QString, name);
    QCOMPARE(int(melvoxPortFromName(name)), int(MELVOX_PORT_UNKNOWN));
}

void tst_texts::antennasHaveNames()
{
    QCOMPARE(melvoxAntennaName(MELVOX_ANTENNA_FIRST), QString("Primary"));
    QCOMPARE(melvoxAntennaName(MELVOX_ANTENNA_SECOND), QString("Secondary"));
    QCOMPARE(melvoxAntennaName(MELVOX_NUM_ANTENNAS), UnknownString);
}

void tst_texts::basesStandStillAndRoversMayMove()
{
    QVERIFY(!melvoxDiffModeIsBase(MELVOX_DIFF_MODE_ROVER_RTCM));
    QVERIFY(melvoxDiffModeIsBase(MELVOX_DIFF_MODE_BASE_RTCM1));
    QVERIFY(melvoxDiffModeIsBase(MELVOX_DIFF_MODE_BASE_RTCM9));
    QVERIFY(melvoxDiffModeIsDynamic(MELVOX_DIFF_MODE_ROVER_RTCM));
    QVERIFY(!melvoxDiffModeIsDynamic(MELVOX_DIFF_MODE_BASE_RTCM1));
    QVERIFY(!melvoxDiffModeIsDynamic(MELVOX_DIFF_MODE_BASE_RTCM9));
}

void tst_texts::ggaQualitiesReadAsInTheSentence()
{
    QCOMPARE(toString(GGA_QUALITY_DIFF_SPS), QString("2"));
    QCOMPARE(toString(GGA_QUALITY_RTK), QString("5"));
    QCOMPARE(toString(GGA_QUALITY_UNKNOWN), QString());
}

void tst_texts::everyFirmwareComponentHasANameOfItsOwn()
{
    QCOMPARE(melvoxFirmwareComponentString(MELVOX_FW_COMP_NAV), QString("NAV"));
    QCOMPARE(melvoxFirmwareComponentString(MELVOX_FW_COMP_PIO_BOOT2), QString("PIOBOOT2"));
    QCOMPARE(melvoxFirmwareComponentString(MELVOX_FW_COMP_STM8), QString("STM8"));
    QCOMPARE(melvoxFirmwareComponentString(MELVOX_FW_COMP_GGM02), QString("GGM02"));
    QCOMPARE(melvoxFirmwareComponentString(MELVOX_FW_COMP_ALL), QString("ALL"));
    QCOMPARE(melvoxFirmwareComponentString(MELVOX_NUM_FW_COMPONENTS), UnknownString);
    QCOMPARE(melvoxFirmwareComponentString(MELVOX_FW_UNKNOWN_COMPONENT), UnknownString);
    QSet<QString> names;
    for (int component = MELVOX_FW_COMP_MIN; component < MELVOX_NUM_FW_COMPONENTS; ++component)
        names << melvoxFirmwareComponentString(static_cast<melvoxFirmwareComponent_t>(component));
    QCOMPARE(names.size(), int(MELVOX_NUM_FW_COMPONENTS));
}

void tst_texts::everyUpdateStatusHasATextOfItsOwn()
{
    QSet<QString> texts;
    for (int status = 0; status < NUM_MELVOX_FWU_STATUS; ++status)
        texts << melvoxFirmwareUpdateStatusString(static_cast<melvoxFirmwareUpdateStatus_t>(status));
    QCOMPARE(texts.size(), int(NUM_MELVOX_FWU_STATUS));
    QVERIFY(!texts.contains(UnknownString));
    QVERIFY(!texts.contains(QString()));
    QCOMPARE(melvoxFirmwareUpdateStatusString(MELVOX_FWU_STATUS_FAILURE), QString("Failure"));
    QCOMPARE(melvoxFirmwareUpdateStatusString(NUM_MELVOX_FWU_STATUS), UnknownString);
}

void tst_texts::measurementNamesAreTheReceivers()
{
    QCOMPARE(MELVOX_MEAS_NAME_GPS, std::string("GPS"));
    QCOMPARE(MELVOX_MEAS_NAME_GLONASS, std::string("GLO"));
    QCOMPARE(MELVOX_MEAS_NAME_GALILEO, std::string("GAL"));
    QCOMPARE(MELVOX_MEAS_NAME_BEIDOU, std::string("BEI"));
}

void tst_texts::fileSuffixesHaveNoDot()
{
    QVERIFY(!SrecFileSuffix.isEmpty());
    QVERIFY(!SrecFileSuffix.contains('.'));
    QVERIFY(!MelvoxWebUiPackageFileSuffix.isEmpty());
    QVERIFY(!MelvoxWebUiPackageFileSuffix.contains('.'));
    QVERIFY(SrecFileSuffix != MelvoxWebUiPackageFileSuffix);
    QVERIFY(UsbUpdatesDir.startsWith('/'));
}

void tst_texts::readsVersions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("built");
    QTest::newRow("three parts") << "1.14.33"
                                 << "1.14.33";
    QTest::newRow("one part") << "7"
                              << "7";
    QTest::newRow("eight parts") << "1.2.3.4.5.6.7.8"
                                 << "1.2.3.4.5.6.7.8";
    QTest::newRow("leading zeros") << "01.007"
                                   << "1.7";
    QTest::newRow("largest number") << "4294967295.0"
                                    << "4294967295.0";
}

void tst_texts::readsVersions()
{
    QFETCH(QString, text);
    QFETCH(QString, built);
    version_t parts;
    QVERIFY(parseVersion(text.toLatin1().constData(), parts));
    QString again;
    QVERIFY(buildVersion(again, parts));
    QCOMPARE(again, built);
}

void tst_texts::refusesWhatIsNoVersion_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("dot") << ".";
    QTest::newRow("ends with a dot") << "1.14.";
    QTest::newRow("starts with a dot") << ".14";
    QTest::newRow("two dots") << "1..14";
    QTest::newRow("letter") << "1.14b";
    QTest::newRow("sign") << "1.-14";
    QTest::newRow("blank before") << " 1.14";
    QTest::newRow("blank after") << "1.14 ";
    QTest::newRow("nine parts") << "1.2.3.4.5.6.7.8.9";
    QTest::newRow("too large a number") << "1.4294967296";
    QTest::newRow("very large number") << "18446744073709551617";
}

void tst_texts::refusesWhatIsNoVersion()
{
    QFETCH(QString, text);
    version_t parts = version(9, 8, 7);
    QVERIFY(!parseVersion(text.toLatin1().constData(), parts));
    QVERIFY(parts == version(9, 8, 7));
}

void tst_texts::comparesVersionsPartByPart_data()
{
    QTest::addColumn<QString>("lower");
    QTest::addColumn<QString>("higher");
    QTest::newRow("last part") << "1.14.32"
                               << "1.14.33";
    QTest::newRow("as numbers") << "1.9"
                                << "1.10";
    QTest::newRow("first part counts most") << "1.99.99"
                                            << "2.0";
    QTest::newRow("missing part is zero") << "1.14"
                                          << "1.14.1";
    QTest::newRow("no overflow") << "0"
                                 << "4294967295";
}

void tst_texts::comparesVersionsPartByPart()
{
    QFETCH(QString, lower);
    QFETCH(QString, higher);
    version_t a;
    version_t b;
    QVERIFY(parseVersion(lower.toLatin1().constData(), a));
    QVERIFY(parseVersion(higher.toLatin1().constData(), b));
    QVERIFY(versionCompare(a, b) < 0);
    QVERIFY(versionCompare(b, a) > 0);
    QCOMPARE(versionCompare(a, a), 0);
    a.push_back(0);
    version_t shorter(a.begin(), a.end() - 1);
    QCOMPARE(versionCompare(a, shorter), 0);
    QCOMPARE(versionCompare(version_t(), version_t()), 0);
}

void tst_texts::buildsVersionTexts()
{
    QString text = "before";
    QVERIFY(!buildVersion(text, version_t()));
    QCOMPARE(text, QString("before"));
    QVERIFY(buildVersion(text, version_t(1, 5)));
    QCOMPARE(text, QString("5"));
    QVERIFY(buildVersion(text, version(1, 14, 33)));
    QCOMPARE(text, QString("1.14.33"));
}

void tst_texts::fileNamesCarryTheTimeInUtc_data()
{
    QTest::addColumn<uint>("seconds");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<QString>("text");
    QTest::newRow("the beginning") << 0u << 0 << "19700101_000000";
    QTest::newRow("a morning") << 1795253405u << 0 << "20261121_093005";
    QTest::newRow("beyond 2038") << 4294967295u << 0 << "21060207_062815";
    QTest::newRow("with decimals") << 1795253405u << 3 << "20261121_093005_000";
    QTest::newRow("fewer than none") << 1795253405u << -1 << "20261121_093005";
}

void tst_texts::fileNamesCarryTheTimeInUtc()
{
    QFETCH(uint, seconds);
    QFETCH(int, decimals);
    QFETCH(QString, text);
    QByteArray const zone = qgetenv("TZ");
    qputenv("TZ", "America/Los_Angeles");
    tzset();
    QString const elsewhere = filenameTimestamp(seconds, decimals);
    qputenv("TZ", zone);
    tzset();
    QCOMPARE(elsewhere, text);
}

void tst_texts::theTimestampIsNow()
{
    double const before = QDateTime::currentMSecsSinceEpoch() / 1000.0;
    double const now = dataTimestamp();
    double const after = QDateTime::currentMSecsSinceEpoch() / 1000.0;
    QVERIFY(before <= now);
    QVERIFY(now <= after);
}

QTEST_MAIN(tst_texts)
#include "tst_texts.moc"
