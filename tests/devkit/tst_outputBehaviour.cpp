#include "receiver/nmea.h"
#include "receiver/receiver.h"
#include "receiverEnd.h"

#include "link/localLink.h"
#include "support/test.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <cmath>

using namespace melvox_receiver;
using melvox_test::receiverEnd_t;

namespace
{

QVariantMap output(unsigned int port, QString const& message, int method, double interval)
{
    return {{"port", port}, {"message", message}, {"method", method}, {"interval", interval}};
}

QVariantMap serial(unsigned int port, unsigned int baud)
{
    return {{"port", port}, {"baud", baud}, {"charSize", 1}, {"parity", 0}, {"stopBits", 0}};
}

QVariantMap vcom(unsigned int port, bool enabled)
{
    return {{"port", port},        {"enabled", enabled}, {"mode", 1},
            {"remoteAddress", 0u}, {"remotePort", 0},    {"localPort", 5000}};
}

QVariantMap ethernet(int source, unsigned int ipAddress)
{
    return {{"source", source}, {"dhcp", false}, {"ipAddress", ipAddress}, {"netmask", 4294967040u}, {"gateway", 1u},
            {"dns1", 2u},       {"dns2", 3u}};
}

/** Has sentences and frames (in hexadecimal) read by a parser that is not ours. */
QList<QJsonObject> parsed(QByteArrayList const& lines)
{
    QProcess parser;
    parser.start(MELVOX_PYTHON3, {MELVOX_OUTPUT_PARSER});
    if (!parser.waitForStarted())
        qFatal("%s does not start; tests need python3 and python3-nmea2", MELVOX_PYTHON3);
    for (QByteArray const& line : lines)
        parser.write(line.trimmed() + '\n');
    parser.closeWriteChannel();
    if (!parser.waitForFinished() || parser.exitCode() != 0)
        qFatal("the parser failed; tests need python3-nmea2: %s", parser.readAllStandardError().constData());
    QList<QJsonObject> found;
    for (QByteArray const& line : parser.readAllStandardOutput().trimmed().split('\n'))
        found << QJsonDocument::fromJson(line).object();
    return found;
}

QString field(QJsonObject const& sentence, char const* name)
{
    return sentence.value(name).toString();
}

/** "hh:mm:ss.ss" as the parser writes it: seconds of the day. */
double seconds(QJsonObject const& sentence)
{
    QString const text = field(sentence, "timestamp");
    return text.section(':', 0, 0).toDouble() * 3600.0 + text.section(':', 1, 1).toDouble() * 60.0 +
           text.section(':', 2, 2).section('+', 0, 0).toDouble();
}

} // namespace

/** What the receiver puts out on its ports while its clock is turned, and what becomes of the ports. */
class tst_outputBehaviour : public melvox_test::test_t
{
    Q_OBJECT

protected:
    void setUp() override
    {
        clock.reset(new simClock_t(simClock_t::MANUAL));
        display.reset(new receiverEnd_t);
        receiver.reset(new receiver_t(display.data(), clock.data()));
        QVERIFY(receiver->setSituation("outputs", true));
        bytes.clear();
        times.clear();
        connect(receiver.data(), &receiver_t::portOutput, this,
                [this](unsigned int port, QByteArray const& data)
                {
                    bytes[port] << data;
                    times[port] << clock->now();
                });
    }
    void tearDown() override
    {
        receiver.reset();
        display.reset();
        clock.reset();
    }

private:
    /** Has one message put out on COM4, where there is nothing at first, and turns the clock by a second. */
    QByteArrayList oneSecondOf(QString const& message);
    QJsonObject only(QString const& message);
    void makeBase();
    QVariantMap usage(unsigned int port);

    QScopedPointer<simClock_t> clock;
    QScopedPointer<receiverEnd_t> display;
    QScopedPointer<receiver_t> receiver;
    QMap<unsigned int, QByteArrayList> bytes;
    QMap<unsigned int, QList<qint64>> times;

private slots:
    // rates
    void restsUntilItIsToPutOut();
    void refusesASituationThatIsNoFlag();
    void putsAMessageOutAtItsRate_data();
    void putsAMessageOutAtItsRate();
    void putsOutAtWholeMultiplesWheneverTicksCome();
    void stopsWithTheMessage();
    void stopsWithAllMessagesOfThePort();
    void putsOutOnThePortThatWasSet();
    // sentences
    void isUnderstoodByAnotherParser_data();
    void isUnderstoodByAnotherParser();
    void endsEachSentenceWithItsChecksum();
    void tellsWhereTheVehicleIs();
    void tellsHowTheVehicleMoves();
    void tellsTheTimeAndDate();
    void tellsTheHeadingOfTheAntennas();
    void tellsTheTurnOfTheVehicle();
    void tellsTheTideOfTheGround();
    void tellsPositionsWithTheChosenPrecision_data();
    void tellsPositionsWithTheChosenPrecision();
    void tellsTheQualityOfEachSolution_data();
    void tellsTheQualityOfEachSolution();
    void tellsTheErrorsOfTheSolution();
    void scalesTheAgeOfCorrections_data();
    void scalesTheAgeOfCorrections();
    void usesTheTalkerThatIsForced_data();
    void usesTheTalkerThatIsForced();
    void talksAsGpsWhenOnlyGpsIsInUse();
    void tellsAllSatellitesInView();
    void tellsTheSatellitesInUseBySystem();
    void usesFewerSatellitesWithAHigherMask();
    void leavesOutWhatItDoesNotKnowWithoutASolution();
    void neverTellsSixtyMinutes();
    void knowsAllHemispheres_data();
    void knowsAllHemispheres();
    void tellsAltitudesAboveTheChosenGeoid();
    // other messages
    void packsPositionVelocityAndTime();
    void putsCorrectionsOutAsABase_data();
    void putsCorrectionsOutAsABase();
    void putsNoCorrectionsOutAsARover();
    void tellsItsReferencePosition();
    void tellsItsBaseName();
    void countsItsFrames();
    void putsOutNothingForAMessageItOnlyAnswersWith();
    // DTM
    void startsTheDatumWithItsTrigger_data();
    void startsTheDatumWithItsTrigger();
    void leavesTheDatumWhenItsTriggerIsTurnedOff();
    void doesNotStartTheDatumForATriggerThatIsTurnedOff();
    void leavesADatumThatIsThereAsItIs();
    void startsTheDatumAgainWithTheNextTrigger();
    // usage
    void tellsUsageOfTheLine_data();
    void tellsUsageOfTheLine();
    void putsOutNoMoreThanTheLineCarries();
    void tellsWhatComesIn();
    void countsTheDisplaysOwnMessages();
    void tellsUsageOnceASecondAndOnlyChanges();
    void tellsUsageToADisplayThatAsksOrComes();
    void tellsNoUsageWhileItPutsNothingOut();
    // ports
    void putsNothingOutOnADisabledVirtualPort();
    void putsNothingOutOverUsbAsMassStorage();
    void keepsTheUsbModeOverUsb_data();
    void keepsTheUsbModeOverUsb();
    void tellsOfALineThatIsTooSlow_data();
    void tellsOfALineThatIsTooSlow();
    void tellsOfALineThatBecomesTooSlow();
    void tellsOfASlowLineAgainAfterItWasClosed();
    void saysNothingOfSlowLinesOfOthers();
    // Ethernet
    void cutsLinksOverEthernetForAWhileWhenItsAddressesChange();
    void leavesLinksOverSerialPortsAlone();
    void leavesLinksAloneWhenNothingOrTheOtherInterfaceChanges();
    void goesOnWhenACutLinkIsGone();
};

QByteArrayList tst_outputBehaviour::oneSecondOf(QString const& message)
{
    display->command("output", output(3, message, 1, 1.0));
    display->command("output", output(3, "NMEADTM", message == "NMEADTM" ? 1 : 0, 1.0));
    display->command("output", output(3, "NMEAPZLQDTM", message == "NMEAPZLQDTM" ? 1 : 0, 1.0));
    bytes.clear();
    clock->advance(1000);
    return bytes.value(3);
}

QJsonObject tst_outputBehaviour::only(QString const& message)
{
    QByteArrayList const found = oneSecondOf(message);
    return found.size() == 1 ? parsed(found).first() : QJsonObject();
}

void tst_outputBehaviour::makeBase()
{
    // What a base puts out by itself goes to another port than the one that the tests listen at.
    QVERIFY(receiver->set(
        "diffConfig",
        QVariantMap{{"mode", 1}, {"stationId", 731}, {"dynamic", false}, {"port", 4}, {"portSet", true}}));
}

QVariantMap tst_outputBehaviour::usage(unsigned int port)
{
    for (int i = int(display->messages.size()) - 1; i >= 0; --i)
    {
        melvox_link::message_t const& message = display->messages.at(i);
        if (message.group == "portTxRxInfo" && message.value.toMap().value("port").toUInt() == port)
            return message.value.toMap();
    }
    return QVariantMap();
}

void tst_outputBehaviour::restsUntilItIsToPutOut()
{
    simClock_t real;
    receiver_t resting(&real);
    QVERIFY(!real.isTicking());
    resting.setSituation("outputs", true);
    QVERIFY(real.isTicking());
    resting.setSituation("outputs", false);
    QVERIFY(!real.isTicking());

    receiver->setSituation("outputs", false);
    clock->advance(5000);
    QVERIFY(bytes.isEmpty());
}

void tst_outputBehaviour::refusesASituationThatIsNoFlag()
{
    QVERIFY(!receiver->setSituation("outputs", "yes"));
    QVERIFY(!receiver->setSituation("outputs", 1));
}

void tst_outputBehaviour::putsAMessageOutAtItsRate_data()
{
    QTest::addColumn<double>("interval");
    QTest::addColumn<int>("count");
    QTest::newRow("ten a second") << 0.1 << 600;
    QTest::newRow("five a second") << 0.2 << 300;
    QTest::newRow("every 0.3 seconds") << 0.3 << 200;
    QTest::newRow("one a second") << 1.0 << 60;
    QTest::newRow("every 15 seconds") << 15.0 << 4;
    QTest::newRow("once a minute") << 60.0 << 1;
    QTest::newRow("once an hour") << 3600.0 << 0;
}

void tst_outputBehaviour::putsAMessageOutAtItsRate()
{
    QFETCH(double, interval);
    QFETCH(int, count);
    display->command("output", output(3, "NMEAZDA", 1, interval));
    clock->advance(60000);
    QCOMPARE(int(bytes.value(3).size()), count);
}

void tst_outputBehaviour::putsOutAtWholeMultiplesWheneverTicksCome()
{
    display->command("output", output(3, "NMEAZDA", 1, 0.5));
    for (int step : {333, 87, 80, 499, 1, 1000, 250})
        clock->advance(step);
    QByteArrayList texts;
    for (QByteArray const& sentence : bytes.value(3))
        texts << sentence.mid(7, 9);
    QCOMPARE(texts.join(' '), QByteArray("000000.50 000001.00 000001.50 000002.00"));
}

void tst_outputBehaviour::stopsWithTheMessage()
{
    oneSecondOf("NMEAZDA");
    display->command("output", output(3, "NMEAZDA", 0, 0.0));
    bytes.clear();
    clock->advance(5000);
    QVERIFY(!bytes.contains(3));
}

void tst_outputBehaviour::stopsWithAllMessagesOfThePort()
{
    clock->advance(1000);
    QVERIFY(bytes.contains(1));
    display->command("turnOffAllOutput", 1);
    bytes.clear();
    clock->advance(5000);
    QVERIFY(!bytes.contains(1));
    QVERIFY(bytes.contains(6));
}

void tst_outputBehaviour::putsOutOnThePortThatWasSet()
{
    for (unsigned int port = 0; port < NUM_PORTS; ++port)
    {
        display->command("turnOffAllOutput", port);
        receiver->set("vcomConfig", vcom(port, true));
    }
    display->command("output", output(9, "NMEAZDA", 1, 1.0));
    clock->advance(3000);
    QCOMPARE(bytes.keys(), QList<unsigned int>{9});
    QCOMPARE(int(bytes.value(9).size()), 3);
}

void tst_outputBehaviour::isUnderstoodByAnotherParser_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("NMEADTM") << "DTM";
    QTest::newRow("NMEAGBS") << "GBS";
    QTest::newRow("NMEAGGA") << "GGA";
    QTest::newRow("NMEAGLL") << "GLL";
    QTest::newRow("NMEAGNS") << "GNS";
    QTest::newRow("NMEAGSA") << "GSA";
    QTest::newRow("NMEAGST") << "GST";
    QTest::newRow("NMEAGSV") << "GSV";
    QTest::newRow("NMEAHDT") << "HDT";
    QTest::newRow("NMEARMC") << "RMC";
    QTest::newRow("NMEAROT") << "ROT";
    QTest::newRow("NMEAVTG") << "VTG";
    QTest::newRow("NMEAZDA") << "ZDA";
}

void tst_outputBehaviour::isUnderstoodByAnotherParser()
{
    QFETCH(QString, type);
    QByteArrayList const sentences = oneSecondOf(QTest::currentDataTag());
    QVERIFY(!sentences.isEmpty());
    for (QJsonObject const& found : parsed(sentences))
    {
        QVERIFY2(!found.contains("error"), qPrintable(field(found, "error")));
        QCOMPARE(field(found, "type"), type);
    }
}

void tst_outputBehaviour::endsEachSentenceWithItsChecksum()
{
    // Also those that the other parser does not know.
    QByteArrayList sentences;
    for (char const* message : {"NMEAGRS", "NMEAPZLQDTM", "NMEAPZLQGGA", "NMEAPZLQGST", "NMEAPZLQMDE", "NMEAPZLQSET",
                                "NMEAPTPSRVHD", "NMEAGSV"})
    {
        QByteArrayList const these = oneSecondOf(message);
        QVERIFY2(!these.isEmpty(), message);
        sentences += these;
        display->command("turnOffAllOutput", 3);
    }
    for (QByteArray const& sentence : sentences)
    {
        QVERIFY2(sentence.startsWith('$') && sentence.endsWith("\r\n"), sentence);
        QVERIFY2(sentence.size() <= 120, sentence);
        int const star = int(sentence.indexOf('*'));
        int sum = 0;
        for (char c : sentence.mid(1, star - 1))
            sum ^= c;
        QCOMPARE(sentence.mid(star + 1, 2).toInt(nullptr, 16), sum);
    }
    QVERIFY(sentences.first().startsWith("$GNGRS,"));
    QVERIFY(sentences.at(sentences.size() - 1).contains("GSV,"));
}

void tst_outputBehaviour::tellsWhereTheVehicleIs()
{
    clock->advance(60000);
    place_t const place = vehiclePlace(clock->now() + 1000);
    for (char const* message : {"NMEAGGA", "NMEAGLL", "NMEAGNS", "NMEARMC"})
    {
        QJsonObject const found = only(message);
        place_t const now = vehiclePlace(clock->now());
        QVERIFY2(std::fabs(found.value("latitude").toDouble() - now.latitude) < 1e-8, message);
        QVERIFY2(std::fabs(found.value("longitude").toDouble() - now.longitude) < 1e-8, message);
        display->command("turnOffAllOutput", 3);
    }
    // It really goes somewhere.
    QVERIFY(std::fabs(vehiclePlace(clock->now() + 60000).latitude - place.latitude) > 1e-4);
}

void tst_outputBehaviour::tellsHowTheVehicleMoves()
{
    clock->advance(20000);
    QJsonObject const vtg = only("NMEAVTG");
    motion_t const motion = vehicleMotion(clock->now());
    double const speed = std::hypot(motion.north, motion.east);
    QVERIFY(std::fabs(field(vtg, "spd_over_grnd_kmph").toDouble() - speed * 3.6) < 0.3);
    QVERIFY(std::fabs(field(vtg, "spd_over_grnd_kts").toDouble() * 1.852 -
                      field(vtg, "spd_over_grnd_kmph").toDouble()) < 0.01);
    QVERIFY(std::fabs(field(vtg, "true_track").toDouble() - motion.course) < 4.0);
    display->command("turnOffAllOutput", 3);
    QJsonObject const rmc = only("NMEARMC");
    QVERIFY(std::fabs(field(rmc, "spd_over_grnd").toDouble() * 1.852 - speed * 3.6) < 0.3);
    QCOMPARE(field(rmc, "status"), QString("A"));

    // Positions and speeds are those of one way.
    place_t const a = vehiclePlace(clock->now() - 500);
    place_t const b = vehiclePlace(clock->now() + 500);
    double const metres = std::hypot((b.latitude - a.latitude) * 110922.0,
                                     (b.longitude - a.longitude) * 111320.0 * std::cos(a.latitude * 0.0174533));
    QVERIFY2(std::fabs(metres - speed) < 0.01, qPrintable(QString::number(metres)));
}

void tst_outputBehaviour::tellsTheTimeAndDate()
{
    receiver->setSituation("outputs", false);
    clock->advance((23 * 3600 + 59 * 60 + 58) * 1000);
    receiver->setSituation("outputs", true);
    QJsonObject const zda = only("NMEAZDA");
    QCOMPARE(seconds(zda), 23 * 3600.0 + 59 * 60.0 + 59.0);
    QCOMPARE(field(zda, "day") + '-' + field(zda, "month") + '-' + field(zda, "year"), QString("1-1-2026"));
    QJsonObject const next = only("NMEAZDA");
    QCOMPARE(seconds(next), 0.0);
    QCOMPARE(field(next, "day"), QString("2"));
    display->command("turnOffAllOutput", 3);
    QCOMPARE(field(only("NMEARMC"), "datestamp"), QString("2026-01-02"));
}

void tst_outputBehaviour::tellsTheHeadingOfTheAntennas()
{
    receiver->set("antennaAlignment", QVariantMap{{"mode", 1}, {"angle", 0.0}});
    receiver->setSituation("solution", "fixed");
    clock->advance(60000);
    double const heading = field(only("NMEAHDT"), "heading").toDouble();
    double const course = vehicleMotion(clock->now()).course;
    QVERIFY2(std::fabs(std::remainder(heading - course, 360.0)) < 1.0, qPrintable(QString::number(heading)));
    display->command("turnOffAllOutput", 3);
    QByteArrayList const fields = oneSecondOf("NMEAPTPSRVHD").value(0).split(',');
    QCOMPARE(fields.value(0), QByteArray("$PTPSRVHD"));
    QVERIFY(std::fabs(std::remainder(fields.value(3).toDouble() - heading, 360.0)) < 3.0);
    QVERIFY(std::fabs(fields.value(5).toDouble() - 2.0) < 0.1);
}

void tst_outputBehaviour::tellsTheTurnOfTheVehicle()
{
    QJsonObject const rot = only("NMEAROT");
    double const perSecond = std::remainder(vehicleMotion(61000).course - vehicleMotion(60000).course, 360.0);
    QVERIFY(std::fabs(field(rot, "rate_of_turn").toDouble() - 60.0 * perSecond) < 0.11);
    QCOMPARE(field(rot, "status"), QString("A"));
}

void tst_outputBehaviour::tellsTheTideOfTheGround()
{
    QByteArrayList const fields = oneSecondOf("NMEAPZLQSET").value(0).split(',');
    display->request("extendedNavInfo");
    QVariantMap const info = display->last("extendedNavInfo").toMap();
    QCOMPARE(fields.value(0), QByteArray("$PZLQSET"));
    QVERIFY(std::fabs(fields.value(2).toDouble() - info.value("setDeltaNorth").toDouble()) < 1e-3);
    QVERIFY(std::fabs(fields.value(3).toDouble() - info.value("setDeltaEast").toDouble()) < 1e-3);
    QVERIFY(std::fabs(QString(fields.value(4)).section('*', 0, 0).toDouble() - info.value("setDeltaUp").toDouble()) <
            1e-3);
}

void tst_outputBehaviour::tellsPositionsWithTheChosenPrecision_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("latitudeLength");
    QTest::addColumn<int>("altitudeDecimals");
    QTest::newRow("high") << 0 << 12 << 3;
    QTest::newRow("standard") << 1 << 9 << 1;
}

void tst_outputBehaviour::tellsPositionsWithTheChosenPrecision()
{
    QFETCH(int, mode);
    QFETCH(int, latitudeLength);
    QFETCH(int, altitudeDecimals);
    receiver->set("ggaMode", QVariantMap{{"mode", mode}, {"quality", 2}, {"scaling", 0}});
    QJsonObject const gga = only("NMEAGGA");
    QCOMPARE(int(field(gga, "lat").size()), latitudeLength);
    QCOMPARE(int(field(gga, "lon").size()), latitudeLength + 1);
    QCOMPARE(int(oneSecondOf("NMEAGGA").value(0).split(',').value(9).split('.').value(1).size()), altitudeDecimals);
}

void tst_outputBehaviour::tellsTheQualityOfEachSolution_data()
{
    QTest::addColumn<QString>("solution");
    QTest::addColumn<int>("setting");
    QTest::addColumn<QString>("gga");
    QTest::addColumn<QString>("letter");
    QTest::newRow("none") << "none" << 2 << "0"
                          << "N";
    QTest::newRow("autonomous") << "autonomous" << 2 << "1"
                                << "A";
    QTest::newRow("corrected, 2") << "differential" << 1 << "2"
                                  << "D";
    QTest::newRow("corrected, 5") << "differential" << 2 << "5"
                                  << "D";
    QTest::newRow("float") << "float" << 1 << "5"
                           << "F";
    QTest::newRow("fixed") << "fixed" << 1 << "4"
                           << "R";
}

void tst_outputBehaviour::tellsTheQualityOfEachSolution()
{
    QFETCH(QString, solution);
    QFETCH(int, setting);
    QFETCH(QString, gga);
    QFETCH(QString, letter);
    receiver->set("ggaMode", QVariantMap{{"mode", 0}, {"quality", setting}, {"scaling", 0}});
    QVERIFY(receiver->setSituation("solution", solution));
    clock->advance(60000);
    QCOMPARE(field(only("NMEAGGA"), "gps_qual"), gga);
    display->command("turnOffAllOutput", 3);
    QCOMPARE(field(only("NMEAGLL"), "faa_mode"), letter);
    display->command("turnOffAllOutput", 3);
    QCOMPARE(field(only("NMEAVTG"), "faa_mode"), letter);
    display->command("turnOffAllOutput", 3);
    QString const modes = field(only("NMEAGNS"), "mode_indicator");
    QCOMPARE(modes, QString(4, letter.at(0)));
}

void tst_outputBehaviour::tellsTheErrorsOfTheSolution()
{
    receiver->setSituation("solution", "fixed");
    clock->advance(60000);
    QJsonObject const gst = only("NMEAGST");
    display->request("extendedNavInfo");
    QVariantMap const info = display->last("extendedNavInfo").toMap();
    QVERIFY(std::fabs(field(gst, "std_dev_latitude").toDouble() / info.value("latError").toDouble() - 1.0) < 0.6);
    QVERIFY(std::fabs(field(gst, "std_dev_altitude").toDouble() / info.value("heightError").toDouble() - 1.0) < 0.6);
    QVERIFY(field(gst, "std_dev_major").toDouble() >= field(gst, "std_dev_minor").toDouble());
    display->command("turnOffAllOutput", 3);
    QVERIFY(field(only("NMEAGBS"), "lat_err").toDouble() < 0.05);
}

void tst_outputBehaviour::scalesTheAgeOfCorrections_data()
{
    QTest::addColumn<int>("scaling");
    QTest::addColumn<QString>("age");
    // Just before the next frame, so that the ages differ in what is shown of them.
    QTest::newRow("unscaled") << 0 << "12.0";
    QTest::newRow("by ten") << 1 << "1.2";
    QTest::newRow("by sixty") << 2 << "0.2";
}

void tst_outputBehaviour::scalesTheAgeOfCorrections()
{
    QFETCH(int, scaling);
    QFETCH(QString, age);
    receiver->set("ggaMode", QVariantMap{{"mode", 0}, {"quality", 2}, {"scaling", scaling}});
    clock->advance(8000);
    QCOMPARE(field(only("NMEAGGA"), "age_gps_data"), age);
}

void tst_outputBehaviour::usesTheTalkerThatIsForced_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("talker");
    QTest::addColumn<QString>("satelliteTalkers");
    QTest::newRow("none") << 0 << "GN"
                          << "GA GB GL GP";
    QTest::newRow("GP") << 1 << "GP"
                        << "GP";
    QTest::newRow("GL") << 2 << "GL"
                        << "GL";
}

void tst_outputBehaviour::usesTheTalkerThatIsForced()
{
    QFETCH(int, mode);
    QFETCH(QString, talker);
    QFETCH(QString, satelliteTalkers);
    receiver->set("talkerIdMode", mode);
    QCOMPARE(field(only("NMEAGGA"), "talker"), talker);
    display->command("turnOffAllOutput", 3);
    QStringList talkers;
    for (QJsonObject const& sentence : parsed(oneSecondOf("NMEAGSV")))
        talkers << field(sentence, "talker");
    talkers.removeDuplicates();
    talkers.sort();
    QCOMPARE(talkers.join(' '), satelliteTalkers);
}

void tst_outputBehaviour::talksAsGpsWhenOnlyGpsIsInUse()
{
    receiver->set("measUse", QVariantList{QVariantMap{{"name", "GLO"}, {"use", false}},
                                          QVariantMap{{"name", "GAL"}, {"use", false}}});
    nmeaOptions_t const options = nmeaOptions(receiver->settings());
    fix_t fix = fixAt(*receiver, clock->now());
    QList<satellite_t> gps;
    for (satellite_t const& satellite : fix.used)
    {
        QVERIFY(satellite.constellation != GLONASS && satellite.constellation != GALILEO);
        if (satellite.constellation == GPS)
            gps << satellite;
    }
    QVERIFY(!gps.isEmpty());
    fix.used = gps;
    QVERIFY(nmeaSentences("GGA", fix, options).first().startsWith("$GPGGA,"));
}

void tst_outputBehaviour::tellsAllSatellitesInView()
{
    QList<QJsonObject> const sentences = parsed(oneSecondOf("NMEAGSV"));
    QMap<QString, int> told;
    QMap<QString, int> seen;
    QMap<QString, int> sentencesOf;
    for (QJsonObject const& sentence : sentences)
    {
        QString const talker = field(sentence, "talker");
        QCOMPARE(field(sentence, "msg_num").toInt(), ++sentencesOf[talker]);
        told[talker] = field(sentence, "num_sv_in_view").toInt();
        for (char const* name : {"sv_prn_num_1", "sv_prn_num_2", "sv_prn_num_3", "sv_prn_num_4"})
            seen[talker] += sentence.value(name).isString() && field(sentence, name).size() == 2 ? 1 : 0;
    }
    QCOMPARE(told.size(), 4);
    // The last field of a short sentence is no satellite but its signal.
    int total = 0;
    for (QString const& talker : told.keys())
    {
        QVERIFY2(told[talker] >= 5 && told[talker] <= 14, qPrintable(talker));
        QCOMPARE(seen[talker], told[talker]);
        total += told[talker];
    }
    QCOMPARE(total, int(satellitesInView(clock->now()).size()));
}

void tst_outputBehaviour::tellsTheSatellitesInUseBySystem()
{
    QList<QJsonObject> const sentences = parsed(oneSecondOf("NMEAGSA"));
    QCOMPARE(int(sentences.size()), 4);
    fix_t const fix = fixAt(*receiver, clock->now());
    QStringList systems;
    for (QJsonObject const& sentence : sentences)
    {
        QCOMPARE(field(sentence, "mode_fix_type"), QString("3"));
        QVERIFY(std::fabs(field(sentence, "pdop").toDouble() - fix.pdop) < 0.06);
        QVERIFY(field(sentence, "pdop").toDouble() >= field(sentence, "hdop").toDouble());
        systems << sentence.value("data").toVariant().toStringList().last();
    }
    QCOMPARE(systems.join(' '), QString("1 2 3 4"));
    int inUse = 0;
    for (int i = 1; i <= 12; ++i)
        inUse += field(sentences.first(), qPrintable(QString("sv_id%1").arg(i, 2, 10, QChar('0')))).isEmpty() ? 0 : 1;
    int gps = 0;
    for (satellite_t const& satellite : fix.used)
        gps += satellite.constellation == GPS ? 1 : 0;
    QCOMPARE(inUse, std::min(gps, 12));
}

void tst_outputBehaviour::usesFewerSatellitesWithAHigherMask()
{
    int const many = field(only("NMEAGNS"), "num_sats").toInt();
    receiver->set("elevationMask", 40.0);
    int const few = field(only("NMEAGNS"), "num_sats").toInt();
    QVERIFY2(few < many && few > 0, qPrintable(QString("%1 %2").arg(many).arg(few)));
    for (satellite_t const& satellite : fixAt(*receiver, clock->now()).used)
        QVERIFY(satellite.elevation >= 40);
}

void tst_outputBehaviour::leavesOutWhatItDoesNotKnowWithoutASolution()
{
    receiver->setSituation("solution", "none");
    QByteArrayList sentences;
    for (char const* message :
         {"NMEAGGA", "NMEAGLL", "NMEAGNS", "NMEARMC", "NMEAVTG", "NMEAGST", "NMEAGBS", "NMEAHDT", "NMEAROT", "NMEAGSA"})
    {
        QByteArrayList const these = oneSecondOf(message);
        QCOMPARE(int(these.size()), 1);
        sentences += these;
        display->command("turnOffAllOutput", 3);
    }
    QList<QJsonObject> const found = parsed(sentences);
    for (QJsonObject const& sentence : found)
        QVERIFY2(!sentence.contains("error"), qPrintable(field(sentence, "error")));
    for (int i = 0; i < 4; ++i)
        QCOMPARE(field(found.at(i), "lat") + field(found.at(i), "lon_dir"), QString());
    QCOMPARE(field(found.at(0), "num_sats"), QString("00"));
    QCOMPARE(field(found.at(1), "status"), QString("V"));
    QCOMPARE(field(found.at(3), "status"), QString("V"));
    QVERIFY(field(found.at(7), "heading").isEmpty() || field(found.at(7), "heading") == "None");
    QCOMPARE(field(found.at(8), "status"), QString("V"));
    QCOMPARE(field(found.at(9), "mode_fix_type"), QString("1"));
}

void tst_outputBehaviour::neverTellsSixtyMinutes()
{
    nmeaOptions_t options = nmeaOptions(receiver->settings());
    options.highPrecision = false;
    fix_t fix = fixAt(*receiver, clock->now());
    fix.place.latitude = 34.0 - 1e-9;
    fix.place.longitude = -118.0 + 1e-9;
    QByteArrayList const fields = nmeaSentences("GLL", fix, options).first().split(',');
    QCOMPARE(fields.value(1) + fields.value(3), QByteArray("3400.000011800.0000"));
}

void tst_outputBehaviour::knowsAllHemispheres_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("longitude");
    QTest::newRow("north west") << 33.5 << -118.25;
    QTest::newRow("south east") << -33.5 << 151.25;
    QTest::newRow("south west, near zero") << -0.005 << -0.0025;
    QTest::newRow("far east") << 5.0 << 179.9999;
}

void tst_outputBehaviour::knowsAllHemispheres()
{
    QFETCH(double, latitude);
    QFETCH(double, longitude);
    fix_t fix = fixAt(*receiver, clock->now());
    fix.place.latitude = latitude;
    fix.place.longitude = longitude;
    QJsonObject const found = parsed(nmeaSentences("GGA", fix, nmeaOptions(receiver->settings()))).first();
    QVERIFY(std::fabs(found.value("latitude").toDouble() - latitude) < 1e-8);
    QVERIFY(std::fabs(found.value("longitude").toDouble() - longitude) < 1e-8);
}

void tst_outputBehaviour::tellsAltitudesAboveTheChosenGeoid()
{
    QJsonObject const gga = only("NMEAGGA");
    double const height = vehiclePlace(clock->now()).height;
    QVERIFY(std::fabs(field(gga, "altitude").toDouble() + field(gga, "geo_sep").toDouble() - height) < 0.002);
    QVERIFY(field(gga, "geo_sep").toDouble() < -30.0);
    receiver->set("geoidalModel", 0);
    QJsonObject const none = only("NMEAGGA");
    QCOMPARE(field(none, "geo_sep").toDouble(), 0.0);
    QVERIFY(std::fabs(field(none, "altitude").toDouble() - vehiclePlace(clock->now()).height) < 0.002);
}

void tst_outputBehaviour::packsPositionVelocityAndTime()
{
    QByteArray const packed = oneSecondOf("PVT1B").value(0);
    QVERIFY(packed.startsWith(QByteArray("PV\x01"
                                         "B")));
    QCOMPARE(int(packed.size()), 4 + 2 + 46 + 2);
    QCOMPARE(int(static_cast<unsigned char>(packed.at(4))), 46);
    unsigned int sum = 0;
    for (char c : packed.left(packed.size() - 2))
        sum += static_cast<unsigned char>(c);
    QCOMPARE(int(static_cast<unsigned char>(packed.at(packed.size() - 2))), int(sum & 0xFF));
    QCOMPARE(int(static_cast<unsigned char>(packed.at(packed.size() - 1))), int(sum >> 8 & 0xFF));
    QDataStream stream(packed.mid(6));
    stream.setByteOrder(QDataStream::LittleEndian);
    qint64 time = 0;
    double latitude = 0;
    stream >> time >> latitude;
    QCOMPARE(time, clock->now());
    QCOMPARE(latitude, vehiclePlace(clock->now()).latitude);
}

void tst_outputBehaviour::putsCorrectionsOutAsABase_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("satellites");
    QTest::newRow("RTCM1") << 1 << -1;
    QTest::newRow("RTCM9") << 9 << 3;
    QTest::newRow("RTCM31") << 31 << -1;
    QTest::newRow("RTCM34") << 34 << 3;
    QTest::newRow("RTCM3") << 3 << 0;
    QTest::newRow("RTCM16") << 16 << 0;
}

void tst_outputBehaviour::putsCorrectionsOutAsABase()
{
    QFETCH(int, type);
    QFETCH(int, satellites);
    makeBase();
    QByteArrayList const frames = oneSecondOf(QTest::currentDataTag());
    QCOMPARE(int(frames.size()), 1);
    QJsonObject const frame = parsed({frames.first().toHex()}).first();
    QVERIFY2(!frame.contains("error"), qPrintable(field(frame, "error")));
    QCOMPARE(frame.value("preamble").toInt(), 0x66);
    QCOMPARE(frame.value("type").toInt(), type);
    QCOMPARE(frame.value("station").toInt(), 731);
    QCOMPARE(frame.value("length").toInt(), frame.value("words").toInt());
    // 2026-01-01 00:00:01 is 19 seconds into the hour of GPS time.
    QCOMPARE(frame.value("zcount").toInt(), int(19.0 / 0.6));
    int const told = int(frame.value("satellites").toArray().size());
    if (satellites >= 0)
        QCOMPARE(told, satellites);
    else
        QVERIFY2(told > 4 && told <= 12, qPrintable(QString::number(told)));
}

void tst_outputBehaviour::putsNoCorrectionsOutAsARover()
{
    for (char const* message : {"RTCM1", "RTCM3", "RTCM9", "RTCM16", "RTCM31", "RTCM34"})
        QVERIFY2(oneSecondOf(message).isEmpty(), message);
}

void tst_outputBehaviour::tellsItsReferencePosition()
{
    makeBase();
    receiver->set("basePosition",
                  QVariantMap{{"latitude", 0.0}, {"longitude", std::acos(-1.0) / 2.0}, {"height", 10.0}});
    QJsonObject const frame = parsed({oneSecondOf("RTCM3").value(0).toHex()}).first();
    QVariantList const reference = frame.value("reference").toArray().toVariantList();
    QVERIFY(std::fabs(reference.value(0).toDouble()) < 0.02);
    QVERIFY(std::fabs(reference.value(1).toDouble() - 6378147.0) < 0.02);
    QVERIFY(std::fabs(reference.value(2).toDouble()) < 0.02);
}

void tst_outputBehaviour::tellsItsBaseName()
{
    makeBase();
    receiver->set("baseName", "North Field");
    QJsonObject const frame = parsed({oneSecondOf("RTCM16").value(0).toHex()}).first();
    QVERIFY2(field(frame, "text").startsWith("North Field"), qPrintable(field(frame, "text")));
}

void tst_outputBehaviour::countsItsFrames()
{
    makeBase();
    display->command("output", output(3, "RTCM9", 1, 1.0));
    clock->advance(10000);
    QByteArrayList lines;
    for (QByteArray const& frame : bytes.value(3))
        lines << frame.toHex();
    QList<QJsonObject> const frames = parsed(lines);
    QCOMPARE(int(frames.size()), 10);
    for (int i = 0; i < 10; ++i)
        QCOMPARE(frames.at(i).value("sequence").toInt(), i % 8);
}

void tst_outputBehaviour::putsOutNothingForAMessageItOnlyAnswersWith()
{
    QVERIFY(oneSecondOf("??").isEmpty());
}

void tst_outputBehaviour::startsTheDatumWithItsTrigger_data()
{
    QTest::addColumn<QString>("datum");
    QTest::newRow("NMEAGGA") << "NMEADTM";
    QTest::newRow("NMEAGLL") << "NMEADTM";
    QTest::newRow("NMEARMC") << "NMEADTM";
    QTest::newRow("NMEAPZLQGGA") << "NMEAPZLQDTM";
    QTest::newRow("NMEAGNS") << "";
    QTest::newRow("NMEAVTG") << "";
}

void tst_outputBehaviour::startsTheDatumWithItsTrigger()
{
    QFETCH(QString, datum);
    QString const trigger = QTest::currentDataTag();
    display->command("output", output(3, trigger, 1, 5.0));
    QStringList expected("output interval=5 message=" + trigger + " method=1 port=3");
    if (!datum.isEmpty())
        expected << "output interval=1 message=" + datum + " method=1 port=3";
    QCOMPARE(display->texts(), expected);
    clock->advance(1000);
    QCOMPARE(int(bytes.value(3).size()), datum.isEmpty() ? 0 : 1);
}

void tst_outputBehaviour::leavesTheDatumWhenItsTriggerIsTurnedOff()
{
    display->command("output", output(3, "NMEAGGA", 1, 1.0));
    display->texts();
    display->command("output", output(3, "NMEAGGA", 0, 0.0));
    QCOMPARE(display->texts(), QStringList("output interval=0 message=NMEAGGA method=0 port=3"));
    display->request("outputs");
    QVERIFY(display->texts().contains("output interval=1 message=NMEADTM method=1 port=3"));
}

void tst_outputBehaviour::doesNotStartTheDatumForATriggerThatIsTurnedOff()
{
    display->command("output", output(3, "NMEAGGA", 0, 0.0));
    QCOMPARE(display->texts(), QStringList("output interval=0 message=NMEAGGA method=0 port=3"));
}

void tst_outputBehaviour::leavesADatumThatIsThereAsItIs()
{
    display->command("output", output(3, "NMEADTM", 1, 30.0));
    display->texts();
    display->command("output", output(3, "NMEAGGA", 1, 1.0));
    QCOMPARE(display->texts(), QStringList("output interval=1 message=NMEAGGA method=1 port=3"));
}

void tst_outputBehaviour::startsTheDatumAgainWithTheNextTrigger()
{
    display->command("output", output(3, "NMEAGGA", 1, 1.0));
    display->command("output", output(3, "NMEADTM", 0, 0.0));
    display->texts();
    display->command("output", output(3, "NMEAGGA", 1, 1.0));
    QVERIFY(display->texts().contains("output interval=1 message=NMEADTM method=1 port=3"));
}

void tst_outputBehaviour::tellsUsageOfTheLine_data()
{
    QTest::addColumn<int>("charSize");
    QTest::addColumn<int>("parity");
    QTest::addColumn<int>("stopBits");
    QTest::addColumn<unsigned int>("baud");
    QTest::addColumn<int>("bitsPerByte");
    QTest::newRow("9600 8N1") << 1 << 0 << 0 << 9600u << 10;
    QTest::newRow("9600 8E2") << 1 << 2 << 1 << 9600u << 12;
    QTest::newRow("4800 7O1") << 0 << 1 << 0 << 4800u << 10;
    QTest::newRow("19200 7N1") << 0 << 0 << 0 << 19200u << 9;
}

void tst_outputBehaviour::tellsUsageOfTheLine()
{
    QFETCH(int, charSize);
    QFETCH(int, parity);
    QFETCH(int, stopBits);
    QFETCH(unsigned int, baud);
    QFETCH(int, bitsPerByte);
    receiver->set(
        "serialConfig",
        QVariantMap{{"port", 3}, {"baud", baud}, {"charSize", charSize}, {"parity", parity}, {"stopBits", stopBits}});
    display->command("output", output(3, "NMEAZDA", 1, 0.1));
    display->command("output", output(3, "NMEAGST", 1, 1.0));
    clock->advance(2000);
    bytes.clear();
    display->messages.clear();
    clock->advance(1000);
    int size = 0;
    for (QByteArray const& sentence : bytes.value(3))
        size += int(sentence.size());
    double const expected = 100.0 * size * bitsPerByte / baud;
    display->request("outputs");
    QVERIFY(std::fabs(usage(3).value("txUsage").toDouble() - expected) < 1.5);
    QVERIFY(expected > 5.0 && expected < 99.0);
    QCOMPARE(usage(3).value("txValid").toBool(), true);
    QCOMPARE(usage(3).value("rxUsage").toDouble(), 0.0);
}

void tst_outputBehaviour::putsOutNoMoreThanTheLineCarries()
{
    receiver->set("serialConfig", serial(3, 1200));
    display->command("output", output(3, "NMEAGGA", 1, 0.1));
    clock->advance(20000);
    int size = 0;
    for (QByteArray const& sentence : bytes.value(3))
    {
        size += int(sentence.size());
        QVERIFY(sentence.startsWith('$') && sentence.endsWith("\r\n"));
    }
    // 120 bytes a second, and one second's worth that still waits.
    QVERIFY2(size > 19 * 120 && size <= 21 * 120, qPrintable(QString::number(size)));
    display->request("outputs");
    QVERIFY(usage(3).value("txUsage").toDouble() > 99.0);
    QVERIFY(usage(3).value("txUsage").toDouble() <= 100.0);
}

void tst_outputBehaviour::tellsWhatComesIn()
{
    receiver->set("serialConfig", serial(3, 9600));
    clock->advance(1000);
    receiver->takeIn(3, QByteArray(240, 'x'));
    receiver->takeIn(NUM_PORTS, "nowhere");
    clock->advance(1000);
    QCOMPARE(usage(3).value("rxUsage").toDouble(), 25.0);
    clock->advance(1000);
    QCOMPARE(usage(3).value("rxUsage").toDouble(), 0.0);
    receiver->takeIn(3, QByteArray(100000, 'x'));
    clock->advance(1000);
    QCOMPARE(usage(3).value("rxUsage").toDouble(), 100.0);
    QCOMPARE(receiver->ignoredCount(), 0);
}

void tst_outputBehaviour::countsTheDisplaysOwnMessages()
{
    display->command("turnOffAllOutput", 0);
    clock->advance(2000);
    QCOMPARE(usage(0).value("rxUsage").toDouble(), 0.0);
    for (int i = 0; i < 20; ++i)
        display->request("antennaInfo");
    clock->advance(1000);
    QVERIFY(usage(0).value("rxUsage").toDouble() > 0.5);
    QVERIFY(usage(0).value("txUsage").toDouble() > usage(0).value("rxUsage").toDouble());
}

void tst_outputBehaviour::tellsUsageOnceASecondAndOnlyChanges()
{
    display->command("turnOffAllOutput", 0);
    display->command("turnOffAllOutput", 1);
    clock->advance(5000);
    display->texts();
    clock->advance(900);
    for (QString const& text : display->texts())
        QVERIFY2(!text.startsWith("portTxRxInfo"), qPrintable(text));
    clock->advance(5000);
    for (QString const& text : display->texts())
        QVERIFY2(!text.contains(" port=1 ") && !text.contains(" port=4 "), qPrintable(text));
}

void tst_outputBehaviour::tellsUsageToADisplayThatAsksOrComes()
{
    clock->advance(1000);
    receiverEnd_t other;
    receiver->addLink(&other, 7);
    QCOMPARE(int(other.texts().filter("portTxRxInfo").size()), int(NUM_PORTS));
    other.request("outputs");
    QStringList const texts = other.texts();
    QCOMPARE(texts.first(), QString("outputsCleared"));
    QCOMPARE(int(texts.filter("portTxRxInfo").size()), int(NUM_PORTS));
}

void tst_outputBehaviour::tellsNoUsageWhileItPutsNothingOut()
{
    receiver->setSituation("outputs", false);
    display->request("outputs");
    clock->advance(3000);
    QVERIFY(display->texts().filter("portTxRxInfo").isEmpty());
}

void tst_outputBehaviour::putsNothingOutOnADisabledVirtualPort()
{
    clock->advance(1000);
    QVERIFY(bytes.contains(6));
    QVERIFY(usage(6).value("txValid").toBool());
    receiver->set("vcomConfig", vcom(6, false));
    bytes.clear();
    clock->advance(2000);
    QVERIFY(!bytes.contains(6));
    QVERIFY(!usage(6).value("txValid").toBool());
    QVERIFY(!usage(6).value("rxValid").toBool());
    receiver->set("vcomConfig", vcom(6, true));
    clock->advance(1000);
    QVERIFY(bytes.contains(6));
}

void tst_outputBehaviour::putsNothingOutOverUsbAsMassStorage()
{
    display->command("output", output(4, "NMEAZDA", 1, 1.0));
    clock->advance(1000);
    QCOMPARE(int(bytes.value(4).size()), 1);
    display->command("usbMode", 1);
    clock->advance(3000);
    QCOMPARE(int(bytes.value(4).size()), 1);
    QVERIFY(!usage(4).value("txValid").toBool());
    display->command("usbMode", 0);
    clock->advance(1000);
    QCOMPARE(int(bytes.value(4).size()), 2);
}

void tst_outputBehaviour::keepsTheUsbModeOverUsb_data()
{
    QTest::addColumn<unsigned int>("port");
    QTest::addColumn<bool>("changes");
    QTest::newRow("COM4") << 3u << true;
    QTest::newRow("USB1") << 4u << false;
    QTest::newRow("USB2") << 5u << false;
    QTest::newRow("ETH1") << 6u << true;
}

void tst_outputBehaviour::keepsTheUsbModeOverUsb()
{
    QFETCH(unsigned int, port);
    QFETCH(bool, changes);
    receiver->setActivePort(display.data(), port);
    display->texts();
    display->command("usbMode", 1);
    QCOMPARE(display->texts(), QStringList(changes ? "usbMode 1" : "usbMode 0"));
    QCOMPARE(receiver->setting("usbMode").toInt(), changes ? 1 : 0);
}

namespace
{

/** A display over a serial line: its end is the test's. */
struct serialEnd_t : receiverEnd_t
{
    explicit serialEnd_t(unsigned int baud) : settings{baud, 8, 'N', 1} {}

    bool line(melvox_link::line_t& line) const override
    {
        line = settings;
        return true;
    }
    void setLine(melvox_link::line_t const& line) override { settings = line; }

    melvox_link::line_t settings;
};

} // namespace

void tst_outputBehaviour::tellsOfALineThatIsTooSlow_data()
{
    QTest::addColumn<unsigned int>("baud");
    QTest::addColumn<int>("times");
    QTest::newRow("much too slow") << 9600u << 1;
    QTest::newRow("just too slow") << 57600u << 1;
    QTest::newRow("just fast enough") << 115200u << 0;
    QTest::newRow("fast") << 230400u << 0;
}

void tst_outputBehaviour::tellsOfALineThatIsTooSlow()
{
    QFETCH(unsigned int, baud);
    QFETCH(int, times);
    serialEnd_t slow(baud);
    receiver->addLink(&slow, 1);
    // Not before there is somebody to hear it.
    QVERIFY(!slow.texts().contains("badBaud"));
    slow.request("activePort");
    slow.request("activePort");
    QCOMPARE(int(slow.texts().filter("badBaud").size()), times);
    QVERIFY(!display->texts().contains("badBaud"));
}

void tst_outputBehaviour::tellsOfALineThatBecomesTooSlow()
{
    serialEnd_t line(115200);
    receiver->addLink(&line, 1);
    line.request("activePort");
    line.texts();
    line.command("serialConfig", QVariantMap{{"baud", 9600}, {"charSize", 1}, {"parity", 0}, {"stopBits", 0}});
    QCOMPARE(line.settings.baud, 9600u);
    QCOMPARE(line.texts(), (QStringList{"serialConfig baud=9600 charSize=1 parity=0 port=1 stopBits=0", "badBaud"}));
    line.command("serialConfig", QVariantMap{{"baud", 115200}, {"charSize", 1}, {"parity", 0}, {"stopBits", 0}});
    QVERIFY(!line.texts().contains("badBaud"));
}

void tst_outputBehaviour::tellsOfASlowLineAgainAfterItWasClosed()
{
    serialEnd_t slow(9600);
    receiver->addLink(&slow, 1);
    slow.request("activePort");
    slow.texts();
    slow.setOpen(false);
    slow.setOpen(true);
    slow.request("activePort");
    QVERIFY(slow.texts().contains("badBaud"));
}

void tst_outputBehaviour::saysNothingOfSlowLinesOfOthers()
{
    receiverEnd_t network;
    receiver->addLink(&network, 6);
    network.request("activePort");
    network.command("serialConfig", serial(1, 1200));
    QVERIFY(!network.texts().contains("badBaud"));
    QVERIFY(!display->texts().contains("badBaud"));
}

void tst_outputBehaviour::cutsLinksOverEthernetForAWhileWhenItsAddressesChange()
{
    melvox_link::localLinkPair_t pair;
    receiver->addLink(pair.receiverEnd(), 6);
    QStringList heard;
    connect(pair.displayEnd(), &melvox_link::link_t::received, this,
            [&](melvox_link::message_t const& message) { heard << message.group; });
    display->command("ethernetConfig", ethernet(0, 77u));
    QVERIFY(melvox_test::waitFor([&]() { return heard.contains("ethernetConfig"); }));
    clock->advance(400);
    QVERIFY(pair.isOpen());
    clock->advance(200);
    QVERIFY(!pair.isOpen());
    clock->advance(2800);
    QVERIFY(!pair.isOpen());
    clock->advance(200);
    QVERIFY(pair.isOpen());
    clock->advance(10000);
    QVERIFY(pair.isOpen());
}

void tst_outputBehaviour::leavesLinksOverSerialPortsAlone()
{
    melvox_link::localLinkPair_t pair;
    receiver->addLink(pair.receiverEnd(), 1);
    display->command("ethernetConfig", ethernet(0, 77u));
    clock->advance(1000);
    QVERIFY(pair.isOpen());
}

void tst_outputBehaviour::leavesLinksAloneWhenNothingOrTheOtherInterfaceChanges()
{
    melvox_link::localLinkPair_t pair;
    receiver->addLink(pair.receiverEnd(), 6);
    display->command("ethernetConfig", ethernet(1, 77u));
    clock->advance(1000);
    QVERIFY(pair.isOpen());
    display->command("ethernetConfig", ethernet(0, 77u));
    clock->advance(10000);
    display->command("ethernetConfig", ethernet(0, 77u));
    clock->advance(1000);
    QVERIFY(pair.isOpen());
}

void tst_outputBehaviour::goesOnWhenACutLinkIsGone()
{
    QScopedPointer<melvox_link::localLinkPair_t> pair(new melvox_link::localLinkPair_t);
    receiver->addLink(pair->receiverEnd(), 6);
    display->command("ethernetConfig", ethernet(0, 77u));
    clock->advance(1000);
    QVERIFY(!pair->isOpen());
    pair.reset();
    clock->advance(10000);
    display->request("activePort");
    QVERIFY(display->texts().contains("activePort 0"));
}

QTEST_MAIN(tst_outputBehaviour)
#include "tst_outputBehaviour.moc"
