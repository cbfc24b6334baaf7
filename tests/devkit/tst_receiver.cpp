#include "link/localLink.h"
#include "receiver/antennas.h"
#include "receiver/outputs.h"
#include "receiver/profileText.h"
#include "receiver/receiver.h"
#include "receiverEnd.h"

#include "support/test.h"

#include <QRegularExpression>

#include <cmath>

using namespace melvox_receiver;
using melvox_link::toText;
using melvox_test::receiverEnd_t;

namespace
{

QVariantMap output(unsigned int port, char const* message, int method, double interval)
{
    return {{"port", port}, {"message", message}, {"method", method}, {"interval", interval}};
}

QVariantMap block(char const* path, int offset, QByteArray const& data)
{
    return {{"path", path}, {"offset", offset}, {"data", data}};
}

QStringList ofGroup(QStringList const& texts, QString const& group)
{
    QStringList found;
    for (QString const& text : texts)
    {
        if (text == group || text.startsWith(group + ' '))
            found << text;
    }
    return found;
}

} // namespace

class tst_receiver : public melvox_test::test_t
{
    Q_OBJECT

protected:
    void setUp() override
    {
        clock.reset(new simClock_t(simClock_t::MANUAL));
        display.reset(new receiverEnd_t);
        receiver.reset(new receiver_t(display.data(), clock.data()));
    }
    void tearDown() override
    {
        receiver.reset();
        display.reset();
        clock.reset();
    }

private slots:
    void holdsSettingsWithinItsLimits_data();
    void holdsSettingsWithinItsLimits();
    void keepsAndTellsTheOldValueWhenItRefuses_data();
    void keepsAndTellsTheOldValueWhenItRefuses();
    void keepsARateWhenItIsGivenOneThatItDoesNotHave_data();
    void keepsARateWhenItIsGivenOneThatItDoesNotHave();
    void countsAndTellsOfWhatItCannotRead_data();
    void countsAndTellsOfWhatItCannotRead();
    void cutsWhatItTellsOfLongMessages();
    void tellsAllDisplaysOfAChange();
    void tellsOnlyWhoeverAskedOfNoChange();
    void knowsThePortOfEachDisplay();
    void tellsWhoeverAsksForThePortOfAllPorts();
    void tellsADisplayOfItsNewPort();
    void goesOnWhenADisplayIsGone();
    void canBeSetFromItsOwnSide();
    void keepsGpsAndBeidouAsTheyAre();
    void takesAddressesOverDhcp();
    void takesAnEthernetCommandWithoutDhcpAsManual();
    void makesABaseStandStill();
    void refusesABaseWithoutAStationId();
    void refusesABaseWithoutAPort();
    void needsNoPortAsARover();
    void keepsRtcm23AsABase();
    void deletesTheUserSatellite();
    void selectsTheUserSatelliteOnceDefined();
    void tellsAntennaNamesOneByOne();
    void startsTheAntennaNamesAnew();
    void putsMessagesOut();
    void holdsOutputIntervalsWithinItsLimits_data();
    void holdsOutputIntervalsWithinItsLimits();
    void turnsAMessageOff();
    void needsNoIntervalToTurnAMessageOff();
    void turnsAllMessagesOfAPortOff();
    void ignoresAnUnknownOutputMessage();
    void usesANewAlmanacOnce();
    void losesItsSolutionForAWhile_data();
    void losesItsSolutionForAWhile();
    void rebootsAfterTheDelay();
    void givesTheLockToOneDisplay();
    void takesTheLockBackFromADisplayThatIsGone();
    void savesUsesAndDeletesProfiles();
    void keepsItsFactoryProfile();
    void refusesProfileNames_data();
    void refusesProfileNames();
    void dumpsAndLoadsItsSettings();
    void refusesADamagedProfile_data();
    void refusesADamagedProfile();
    void loadsAProfileAfterOneThatWasBrokenOff();
    void drawsAWebPackageBlockByBlock();
    void cancelsAWebUpload();
    void givesUpAWebUploadWhenTheDisplayIsSilent();
    void tellsWhyAWebUploadFailed();
    void passesOverABlockThatCameTwice();
    void failsTransfersOfFilesThatCannotBeRead();
    void failsAnUpdateOfAnUnknownComponent();
    void setsThePortOfTheLinkWithoutBeingToldWhich();
    void followsTheSettingsOfItsSerialLine();
    void runsNoTimerWhileItRests();

private:
    QScopedPointer<simClock_t> clock;
    QScopedPointer<receiverEnd_t> display;
    QScopedPointer<receiver_t> receiver;
};

void tst_receiver::holdsSettingsWithinItsLimits_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QVariant>("sent");
    QTest::addColumn<QVariant>("taken");
    auto const number = [](char const* group, double sent, double taken)
    {
        QTest::newRow(qPrintable(QString("%1 %2").arg(group).arg(sent)))
            << QString(group) << QVariant(sent) << QVariant(taken);
    };
    number("elevationMask", -0.1, 0);
    number("elevationMask", 0, 0);
    number("elevationMask", 90, 90);
    number("elevationMask", 90.1, 90);
    number("pdopLimit", 0.9, 1);
    number("pdopLimit", 1, 1);
    number("pdopLimit", 100, 100);
    number("pdopLimit", 100.1, 100);
    auto const age = [](int sent, int taken)
    {
        QTest::newRow(qPrintable(QString("age %1").arg(sent)))
            << "correctionMaxAge" << QVariant(QVariantMap{{"type", 0}, {"seconds", sent}})
            << QVariant(QVariantMap{{"type", 0}, {"seconds", taken}});
    };
    age(0, 0);
    age(3600, 3600);
    age(9999, 3600);
    auto const pps = [](char const* field, int sent, int taken)
    {
        QVariantMap config = {{"polarity", 1}, {"width", 7}, {"interval", 7}, {"signalDelay", 7}, {"chipDelay", 7}};
        config[field] = sent;
        QVariantMap expected = config;
        expected[field] = taken;
        QTest::newRow(qPrintable(QString("%1 %2").arg(field).arg(sent)))
            << "ppsConfig" << QVariant(config) << QVariant(expected);
    };
    pps("width", 1600000, 1600000);
    pps("width", 1600001, 1600000);
    pps("interval", 0, 1);
    pps("interval", 32768, 32768);
    pps("interval", 32769, 32768);
    pps("signalDelay", 32769, 32768);
    pps("chipDelay", 999999, 999999);
    pps("chipDelay", 1000000, 999999);
    auto const angle = [](double sent, double taken)
    {
        QTest::newRow(qPrintable(QString("angle %1").arg(sent)))
            << "antennaAlignment" << QVariant(QVariantMap{{"mode", 2}, {"angle", sent}})
            << QVariant(QVariantMap{{"mode", 2}, {"angle", taken}});
    };
    angle(359.99, 359.99);
    angle(360, 359.99);
    angle(-1, 0);
    auto const policy = [](int hours, int minutes, int takenMinutes)
    {
        QTest::newRow(qPrintable(QString("policy %1:%2").arg(hours).arg(minutes)))
            << "starfireAlmSwitchPolicy" << QVariant(QVariantMap{{"mode", 0}, {"hours", hours}, {"minutes", minutes}})
            << QVariant(QVariantMap{{"mode", 0}, {"hours", qMin(hours, 24)}, {"minutes", takenMinutes}});
    };
    policy(24, 0, 0);
    policy(24, 1, 0);
    policy(25, 0, 0);
    policy(23, 60, 59);
    QTest::newRow("base name") << "baseName" << QVariant(QString(32, 'x')) << QVariant(QString(31, 'x'));
    QTest::newRow("antenna mode in lower case") << "antennaDualMode" << QVariant("sfonly") << QVariant("SFONLY");
    QTest::newRow("angle without user mode")
        << "antennaAlignment" << QVariant(QVariantMap{{"mode", 1}, {"angle", 45.0}})
        << QVariant(QVariantMap{{"mode", 1}, {"angle", 0.0}});
    QTest::newRow("no quality") << "ggaMode" << QVariant(QVariantMap{{"mode", 1}, {"quality", 0}, {"scaling", 1}})
                                << QVariant(QVariantMap{{"mode", 1}, {"quality", 2}, {"scaling", 1}});
    QTest::newRow("highest base") << "basePosition"
                                  << QVariant(QVariantMap{{"latitude", 0.1}, {"longitude", 0.2}, {"height", 20000.5}})
                                  << QVariant(QVariantMap{{"latitude", 0.1}, {"longitude", 0.2}, {"height", 20000.0}});
}

void tst_receiver::holdsSettingsWithinItsLimits()
{
    QFETCH(QString, group);
    QFETCH(QVariant, sent);
    QFETCH(QVariant, taken);
    display->command(group, sent);
    QCOMPARE(display->texts(), QStringList(toText({message_t::REPORT, group, taken})));
    QCOMPARE(receiver->ignoredCount(), 0);
}

void tst_receiver::keepsAndTellsTheOldValueWhenItRefuses_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QVariant>("sent");
    QTest::newRow("geoid") << "geoidalModel" << QVariant(3);
    QTest::newRow("geoid below") << "geoidalModel" << QVariant(-1);
    QTest::newRow("selection") << "correctionSelection" << QVariant(2);
    QTest::newRow("talker") << "talkerIdMode" << QVariant(3);
    QTest::newRow("usb") << "usbMode" << QVariant(2);
    QTest::newRow("dual mode") << "antennaDualMode" << QVariant("BOTH");
    QTest::newRow("ppp") << "ntripPPP" << QVariant(QVariantMap{{"mode", 1}, {"protocol", 2}});
    QTest::newRow("dynamic mode") << "dynamicConfig"
                                  << QVariant(
                                         QVariantMap{{"autoMode", false}, {"mode", 4}, {"velocitySmoothing", true}});
    QTest::newRow("remote antenna") << "antennaRemote"
                                    << QVariant(QVariantMap{{"automatic", false}, {"name", "UNHEARD-OF"}});
    QTest::newRow("satellite") << "correctionSatSelection" << QVariant(QVariantMap{{"auto", false}, {"id", 1}});
    QTest::newRow("user satellite out of band")
        << "userCorrectionSat" << QVariant(QVariantMap{{"defined", true}, {"id", 9}, {"frequency", 1524999.9}});
    QTest::newRow("user satellite without id")
        << "userCorrectionSat" << QVariant(QVariantMap{{"defined", true}, {"id", 0}, {"frequency", 1545500.0}});
    QTest::newRow("latitude") << "basePosition"
                              << QVariant(QVariantMap{{"latitude", 1.58}, {"longitude", 0.0}, {"height", 0.0}});
    QTest::newRow("station id")
        << "diffConfig"
        << QVariant(QVariantMap{{"mode", 0}, {"stationId", 1024}, {"dynamic", true}, {"port", 0}, {"portSet", false}});
}

void tst_receiver::keepsAndTellsTheOldValueWhenItRefuses()
{
    QFETCH(QString, group);
    QFETCH(QVariant, sent);
    QVariant const before = receiver->setting(group);
    display->command(group, sent);
    QCOMPARE(display->texts(), QStringList(toText({message_t::REPORT, group, before})));
    QCOMPARE(receiver->setting(group), before);
    QCOMPARE(receiver->ignoredCount(), 0);
}

void tst_receiver::keepsARateWhenItIsGivenOneThatItDoesNotHave_data()
{
    QTest::addColumn<unsigned int>("baud");
    QTest::newRow("none") << 0u;
    QTest::newRow("between two") << 14400u;
    QTest::newRow("above all") << 460800u;
}

void tst_receiver::keepsARateWhenItIsGivenOneThatItDoesNotHave()
{
    QFETCH(unsigned int, baud);
    display->command("serialConfig",
                     QVariantMap{{"port", 2}, {"baud", baud}, {"charSize", 1}, {"parity", 1}, {"stopBits", 1}});
    QCOMPARE(display->texts(), QStringList("serialConfig baud=38400 charSize=1 parity=0 port=2 stopBits=0"));
    QCOMPARE(receiver->ignoredCount(), 0);
}

void tst_receiver::countsAndTellsOfWhatItCannotRead_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("unknown group") << "espresso" << QVariant(2);
    QTest::newRow("text for a number") << "elevationMask" << QVariant("12");
    QTest::newRow("no number") << "elevationMask" << QVariant(std::nan(""));
    QTest::newRow("broken number") << "geoidalModel" << QVariant(0.5);
    QTest::newRow("number for a flag") << "webControl" << QVariant(QVariantMap{{"enabled", 1}});
    QTest::newRow("field missing") << "ntripPPP" << QVariant(QVariantMap{{"mode", 1}});
    QTest::newRow("one antenna") << "antennaInfo" << QVariant(QVariantList{QVariantMap()});
    QTest::newRow("key missing") << "correctionEnabled" << QVariant(QVariantMap{{"enabled", true}});
    QTest::newRow("no such type") << "correctionEnabled" << QVariant(QVariantMap{{"type", 3}, {"enabled", true}});
    QTest::newRow("virtual port as physical")
        << "serialConfig"
        << QVariant(QVariantMap{{"port", 6}, {"baud", 9600}, {"charSize", 1}, {"parity", 0}, {"stopBits", 0}});
    QTest::newRow("reboot never") << "reboot" << QVariant(QVariantMap{{"delay", -1}});
}

void tst_receiver::countsAndTellsOfWhatItCannotRead()
{
    QFETCH(QString, group);
    QFETCH(QVariant, value);
    QStringList told;
    connect(receiver.data(), &receiver_t::ignored, this, [&](QString const&, QString const& text) { told << text; });
    settings_t const before = receiver->settings();
    display->command(group, value);
    QCOMPARE(receiver->ignoredCount(), 1);
    QCOMPARE(told, QStringList("command " + toText({message_t::COMMAND, group, value})));
    QVERIFY(display->texts().isEmpty());
    QCOMPARE(receiver->settings(), before);
}

void tst_receiver::cutsWhatItTellsOfLongMessages()
{
    QString told;
    connect(receiver.data(), &receiver_t::ignored, this, [&](QString const&, QString const& text) { told = text; });
    display->command(QString(100000, 'x'));
    QCOMPARE(told, ("command " + QString(100000, 'x')).left(200));
}

void tst_receiver::tellsAllDisplaysOfAChange()
{
    receiverEnd_t other;
    receiver->addLink(&other, 6);
    display->command("elevationMask", 12.5);
    QCOMPARE(display->texts(), QStringList("elevationMask 12.5"));
    QCOMPARE(other.texts(), QStringList("elevationMask 12.5"));
}

void tst_receiver::tellsOnlyWhoeverAskedOfNoChange()
{
    receiverEnd_t other;
    receiver->addLink(&other, 6);
    display->command("geoidalModel", 3);
    display->command("elevationMask", 7.0);
    display->request("pdopLimit");
    QCOMPARE(display->texts(), (QStringList{"geoidalModel 1", "elevationMask 7", "pdopLimit 25"}));
    QVERIFY(other.texts().isEmpty());
}

void tst_receiver::knowsThePortOfEachDisplay()
{
    receiverEnd_t other;
    receiver->addLink(&other, 8);
    display->request("activePort");
    other.request("activePort");
    QCOMPARE(display->texts().first(), QString("activePort 0"));
    QCOMPARE(other.texts().first(), QString("activePort 8"));
}

void tst_receiver::tellsWhoeverAsksForThePortOfAllPorts()
{
    receiverEnd_t other;
    receiver->addLink(&other, 8);
    display->request("activePort");
    QStringList const texts = display->texts();
    QCOMPARE(int(texts.filter(QRegularExpression("^serialConfig .*port=[0-5] ")).size()), 6);
    QCOMPARE(int(texts.filter(QRegularExpression("^serialRs232Mode port=[0-5] ")).size()), 6);
    QCOMPARE(int(texts.filter(QRegularExpression("^vcomConfig .*port=([6-9]|1[0-3]) ")).size()), 8);
    QVERIFY(other.texts().isEmpty());
}

void tst_receiver::tellsADisplayOfItsNewPort()
{
    receiver->setActivePort(display.data(), 4);
    QCOMPARE(display->texts(), QStringList("activePort 4"));
    QCOMPARE(receiver->activePort(display.data()), 4u);
}

void tst_receiver::goesOnWhenADisplayIsGone()
{
    {
        receiverEnd_t other;
        receiver->addLink(&other, 8);
        other.request("antennaList");
        other.command("portLock", 1);
        other.command("startFirmwareUpdate",
                      QVariantMap{{"components", QVariantList{QVariantMap{
                                                     {"fileIndex", 0}, {"component", 2}, {"path", "a"}, {"size", 9}}}},
                                  {"combinedPath", ""}});
    }
    clock->advance(2000);
    display->command("elevationMask", 12.5);
    QCOMPARE(display->last("elevationMask"), QVariant(12.5));
}

void tst_receiver::canBeSetFromItsOwnSide()
{
    QVERIFY(receiver->set("pdopLimit", 200.0));
    QCOMPARE(display->texts(), QStringList("pdopLimit 100"));
    QVERIFY(!receiver->set("geoidalModel", 3));
    QVERIFY(!receiver->set("geoidalModel", "EGM"));
    QVERIFY(!receiver->set("netPriority", 1));
    QVERIFY(!receiver->set("espresso", 1));
    QVERIFY(display->texts().isEmpty());
}

void tst_receiver::keepsGpsAndBeidouAsTheyAre()
{
    display->command("measUse", QVariantList{QVariantMap{{"name", "GPS"}, {"use", false}},
                                             QVariantMap{{"name", "BEI"}, {"use", false}},
                                             QVariantMap{{"name", "GLO"}, {"use", false}},
                                             QVariantMap{{"name", "QZSS"}, {"use", true}}});
    QCOMPARE(display->texts(), QStringList("measUse [name=GPS use=true] [name=GLO use=false] [name=GAL use=true] "
                                           "[name=BEI use=true]"));
}

void tst_receiver::takesAddressesOverDhcp()
{
    display->command("ethernetConfig", QVariantMap{{"source", 0}, {"dhcp", true}});
    QVariantMap const config = display->last("ethernetConfig").toMap();
    QCOMPARE(config.value("dhcp"), QVariant(true));
    QCOMPARE(config.value("ipAddress").toUInt(), 192u << 24 | 168u << 16 | 1u << 8 | 74u);
}

void tst_receiver::takesAnEthernetCommandWithoutDhcpAsManual()
{
    display->command("ethernetConfig", QVariantMap{{"source", 0}, {"dhcp", true}});
    display->command(
        "ethernetConfig",
        QVariantMap{
            {"source", 0}, {"ipAddress", 1u}, {"netmask", 2u}, {"gateway", 3u}, {"dns1", 4u}, {"dns2", 4294967295u}});
    display->messages = display->messages.mid(1);
    QCOMPARE(display->texts(), QStringList("ethernetConfig dhcp=false dns1=4 dns2=4294967295 gateway=3 ipAddress=1 "
                                           "netmask=2 source=0"));
}

void tst_receiver::makesABaseStandStill()
{
    display->command("diffConfig",
                     QVariantMap{{"mode", 2}, {"stationId", 7}, {"dynamic", true}, {"port", 8}, {"portSet", true}});
    QCOMPARE(display->texts().first(), QString("diffConfig dynamic=false mode=2 port=8 portSet=true stationId=7"));
}

void tst_receiver::refusesABaseWithoutAStationId()
{
    QVariant const before = receiver->setting("diffConfig");
    display->command("diffConfig",
                     QVariantMap{{"mode", 1}, {"stationId", 0}, {"dynamic", false}, {"port", 8}, {"portSet", true}});
    QCOMPARE(display->last("diffConfig"), before);
}

void tst_receiver::refusesABaseWithoutAPort()
{
    QVariant const before = receiver->setting("diffConfig");
    display->command("diffConfig",
                     QVariantMap{{"mode", 1}, {"stationId", 7}, {"dynamic", false}, {"port", 14}, {"portSet", true}});
    QCOMPARE(display->last("diffConfig"), before);
}

void tst_receiver::needsNoPortAsARover()
{
    display->command("diffConfig",
                     QVariantMap{{"mode", 0}, {"stationId", 7}, {"dynamic", false}, {"port", 14}, {"portSet", true}});
    QCOMPARE(display->texts(), QStringList("diffConfig dynamic=false mode=0 port=1 portSet=false stationId=7"));
}

void tst_receiver::keepsRtcm23AsABase()
{
    display->command("rtcmVersion", 1);
    display->command("diffConfig",
                     QVariantMap{{"mode", 1}, {"stationId", 7}, {"dynamic", false}, {"port", 8}, {"portSet", true}});
    display->command("rtcmVersion", 0);
    QCOMPARE(display->last("rtcmVersion"), QVariant(1));
}

void tst_receiver::deletesTheUserSatellite()
{
    display->command("userCorrectionSat", QVariantMap{{"defined", true}, {"id", 700}, {"frequency", 1545500.0}});
    display->command("userCorrectionSat", QVariantMap{{"defined", false}});
    QCOMPARE(display->texts(), (QStringList{"userCorrectionSat defined=true frequency=1545500 id=700",
                                            "userCorrectionSat defined=false frequency=0 id=0"}));
}

void tst_receiver::selectsTheUserSatelliteOnceDefined()
{
    display->command("correctionSatSelection", QVariantMap{{"auto", false}, {"id", 700}});
    QCOMPARE(display->texts(), QStringList("correctionSatSelection auto=true id=446"));
    display->command("userCorrectionSat", QVariantMap{{"defined", true}, {"id", 700}, {"frequency", 1545500.0}});
    display->command("correctionSatSelection", QVariantMap{{"auto", false}, {"id", 700}});
    QCOMPARE(display->texts().last(), QString("correctionSatSelection auto=false id=700"));
    display->command("correctionSatSelection", QVariantMap{{"auto", true}});
    QCOMPARE(display->texts(), QStringList("correctionSatSelection auto=true id=700"));
}

void tst_receiver::tellsAntennaNamesOneByOne()
{
    display->request("antennaList");
    QCOMPARE(display->texts(), QStringList("antennaListReset"));
    clock->advance(20);
    QCOMPARE(display->texts(), QStringList("antennaName " + antennaNames().at(0)));
    clock->advance(1000);
    QStringList expected;
    for (QString const& name : antennaNames().mid(1))
        expected << "antennaName " + name;
    QCOMPARE(display->texts(), expected);
    clock->advance(1000);
    QVERIFY(display->texts().isEmpty());
}

void tst_receiver::startsTheAntennaNamesAnew()
{
    display->request("antennaList");
    clock->advance(60);
    display->texts();
    display->request("antennaList");
    clock->advance(20);
    QCOMPARE(display->texts(), (QStringList{"antennaListReset", "antennaName " + antennaNames().at(0)}));
}

void tst_receiver::putsMessagesOut()
{
    QVERIFY(outputMessages().size() > 20);
    display->command("output", output(3, "??", 1, 2.0));
    QCOMPARE(display->texts(), QStringList("output interval=2 message=?? method=1 port=3"));
    display->request("outputs");
    QVERIFY(display->texts().contains("output interval=2 message=?? method=1 port=3"));
}

void tst_receiver::holdsOutputIntervalsWithinItsLimits_data()
{
    QTest::addColumn<QString>("message");
    QTest::addColumn<double>("sent");
    QTest::addColumn<double>("taken");
    QTest::newRow("nothing") << "NMEAGGA" << 0.0 << 0.1;
    QTest::newRow("ten a second") << "NMEAGGA" << 0.1 << 0.1;
    QTest::newRow("five a second") << "NMEAGGA" << 0.2 << 0.2;
    QTest::newRow("too fast for this one") << "NMEARMC" << 0.2 << 1.0;
    QTest::newRow("slow") << "RTCM1" << 60.0 << 60.0;
    QTest::newRow("too slow") << "RTCM1" << 3601.0 << 3600.0;
    QTest::newRow("negative") << "RTCM1" << -1.0 << 1.0;
}

void tst_receiver::holdsOutputIntervalsWithinItsLimits()
{
    QFETCH(QString, message);
    QFETCH(double, sent);
    QFETCH(double, taken);
    display->command("output", output(5, qPrintable(message), 1, sent));
    QCOMPARE(display->texts().first(), toText({message_t::REPORT, "output", output(5, qPrintable(message), 1, taken)}));
}

void tst_receiver::turnsAMessageOff()
{
    display->command("output", QVariantMap{{"port", 1}, {"message", "NMEAGGA"}, {"method", 0}});
    QCOMPARE(display->texts(), QStringList("output interval=0 message=NMEAGGA method=0 port=1"));
    display->request("outputs");
    for (QString const& text : display->texts())
        QVERIFY2(!text.contains("NMEAGGA") || !text.contains("port=1"), qPrintable(text));
}

void tst_receiver::needsNoIntervalToTurnAMessageOff()
{
    display->command("output", output(1, "NMEAGGA", 0, std::nan("")));
    QCOMPARE(display->texts(), QStringList("output interval=0 message=NMEAGGA method=0 port=1"));
}

void tst_receiver::turnsAllMessagesOfAPortOff()
{
    display->command("turnOffAllOutput", 1);
    QCOMPARE(display->texts(), (QStringList{"output interval=0 message=NMEAGGA method=0 port=1",
                                            "output interval=0 message=NMEAVTG method=0 port=1",
                                            "output interval=0 message=NMEAZDA method=0 port=1"}));
    display->request("outputs");
    QStringList const left = display->texts();
    QCOMPARE(left.size(), 6);
    for (QString const& text : left)
        QVERIFY2(!text.endsWith("port=1"), qPrintable(text));
}

void tst_receiver::ignoresAnUnknownOutputMessage()
{
    display->command("output", output(3, "NMEAXYZ", 1, 1.0));
    QVERIFY(display->texts().isEmpty());
    QCOMPARE(receiver->ignoredCount(), 1);
}

void tst_receiver::usesANewAlmanacOnce()
{
    display->command("useNewStarfireAlm");
    QCOMPARE(display->texts(),
             (QStringList{"mrvAlmanacInfo updateTime=1767225600", "starfireAlmStatus newReady=false"}));
    clock->advance(1000);
    display->command("useNewStarfireAlm");
    QVERIFY(display->texts().isEmpty());
}

void tst_receiver::losesItsSolutionForAWhile_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("recovery");
    QTest::newRow("warm") << "warmRestart" << QVariant() << 20000;
    QTest::newRow("cold") << "coldRestart" << QVariant(QVariantMap{{"useBuiltInAlmanac", false}}) << 60000;
    QTest::newRow("with almanac") << "coldRestart" << QVariant(QVariantMap{{"useBuiltInAlmanac", true}}) << 40000;
    QTest::newRow("reboot") << "reboot" << QVariant(QVariantMap{{"delay", 0}}) << 30100;
}

void tst_receiver::losesItsSolutionForAWhile()
{
    QFETCH(QString, command);
    QFETCH(QVariant, value);
    QFETCH(int, recovery);
    display->request("extendedNavInfo");
    QCOMPARE(display->last("extendedNavInfo").toMap().value("navValid"), QVariant(1));
    display->command(command, value);
    clock->advance(recovery - 100);
    QCOMPARE(display->last("extendedNavInfo").toMap().value("navValid"), QVariant(0));
    QCOMPARE(display->last("extendedNavInfo").toMap().value("failureCode"), QVariant(2));
    clock->advance(100);
    QCOMPARE(display->last("extendedNavInfo").toMap().value("navValid"), QVariant(1));
}

void tst_receiver::rebootsAfterTheDelay()
{
    display->command("portLock", 2);
    display->command("reboot", QVariantMap{{"delay", 5}});
    clock->advance(4900);
    QCOMPARE(display->texts(), QStringList("portLock 2"));
    clock->advance(100);
    QCOMPARE(display->last("portLock"), QVariant(0));
}

void tst_receiver::givesTheLockToOneDisplay()
{
    receiverEnd_t other;
    receiver->addLink(&other, 6);
    display->command("portLock", 2);
    other.command("portLock", 1);
    other.command("portLock", 0);
    display->command("portLock", 1);
    QCOMPARE(display->texts(), (QStringList{"portLock 2", "portLock 2"}));
    QCOMPARE(other.texts(), (QStringList{"portLock 0", "portLock 0"}));
    display->command("portLock", 0);
    other.command("portLock", 1);
    QCOMPARE(display->texts(), QStringList("portLock 0"));
    QCOMPARE(other.texts(), QStringList("portLock 1"));
}

void tst_receiver::takesTheLockBackFromADisplayThatIsGone()
{
    receiverEnd_t other;
    receiver->addLink(&other, 6);
    display->command("portLock", 2);
    display->setOpen(false);
    other.command("portLock", 1);
    QCOMPARE(other.texts(), QStringList("portLock 1"));
}

void tst_receiver::savesUsesAndDeletesProfiles()
{
    display->command("elevationMask", 12.5);
    display->command("vcomConfig", QVariantMap{{"port", 9},
                                               {"enabled", true},
                                               {"mode", 0},
                                               {"remoteAddress", 3232235527u},
                                               {"remotePort", 1},
                                               {"localPort", 2}});
    clock->advance(3000);
    display->texts();
    display->command("saveAsProfile", "Mine");
    QCOMPARE(display->texts(), QStringList("profile modified=1767225603 name=Mine"));
    display->command("useProfile", "Factory");
    QStringList const back = display->texts();
    QCOMPARE(back.size(), 3);
    QVERIFY(back.contains("elevationMask 7"));
    QCOMPARE(back.last(), QString("activeProfile Factory"));
    display->command("useProfile", "Mine");
    QStringList const again = display->texts();
    QVERIFY(again.contains("elevationMask 12.5"));
    QVERIFY(again.contains("vcomConfig enabled=true localPort=2 mode=0 port=9 remoteAddress=3232235527 remotePort=1"));
    QCOMPARE(again.last(), QString("activeProfile Mine"));
    display->command("deleteProfile", "Mine");
    QCOMPARE(display->texts(), QStringList("activeProfile \"\""));
    display->request("profiles");
    QCOMPARE(display->texts(), (QStringList{"profilesCleared", "profile modified=1767225600 name=Factory"}));
}

void tst_receiver::keepsItsFactoryProfile()
{
    display->command("elevationMask", 12.5);
    display->texts();
    display->command("saveAsProfile", "Factory");
    display->command("deleteProfile", "Factory");
    display->command("useProfile", "Unheard-of");
    QCOMPARE(display->texts(), QStringList("activeProfile Factory"));
    display->command("useProfile", "Factory");
    QCOMPARE(display->last("elevationMask"), QVariant(7.0));
}

void tst_receiver::refusesProfileNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("taken");
    QTest::newRow("empty") << "" << false;
    QTest::newRow("short") << "a" << true;
    QTest::newRow("longest") << QString(32, 'a') << true;
    QTest::newRow("too long") << QString(33, 'a') << false;
    QTest::newRow("two lines") << "a\nb" << false;
    QTest::newRow("not ASCII") << QString::fromUtf8("Stra\xc3\x9f"
                                                    "e")
                               << false;
}

void tst_receiver::refusesProfileNames()
{
    QFETCH(QString, name);
    QFETCH(bool, taken);
    display->command("saveAsProfile", name);
    QCOMPARE(!display->texts().isEmpty(), taken);
    display->request("profiles");
    QCOMPARE(int(display->texts().size()), taken ? 3 : 2);
}

void tst_receiver::dumpsAndLoadsItsSettings()
{
    display->command("elevationMask", 12.5);
    display->command("baseName", "North field");
    display->command("dumpProfile", "/drive/profile_1");
    QVariantMap const dump = display->last("profileDump").toMap();
    QCOMPARE(dump.value("path"), QVariant("/drive/profile_1"));
    QCOMPARE(dump.value("success"), QVariant(true));
    QByteArray const data = dump.value("data").toByteArray();
    QVERIFY(data.size() > 1024);
    display->command("useProfile", "Factory");
    display->texts();

    int blocks = 0;
    for (int offset = 0; offset < data.size(); offset += 1024, ++blocks)
        display->command("uploadData", data.mid(offset, 1024));
    QStringList const texts = display->texts();
    QCOMPARE(ofGroup(texts, "uploadResult"), melvox_test::times(blocks, "uploadResult 0"));
    QCOMPARE(ofGroup(texts, "elevationMask"), QStringList("elevationMask 12.5"));
    QCOMPARE(ofGroup(texts, "baseName"), QStringList("baseName North field"));
}

void tst_receiver::refusesADamagedProfile_data()
{
    QTest::addColumn<QByteArray>("data");
    QByteArray const good = profileText(startSettings());
    QTest::newRow("no profile") << QByteArray("S0030000FC\n");
    QTest::newRow("later version") << QByteArray("melvox-profile 2\n");
    QTest::newRow("one digit changed") << QByteArray(good).replace("\"pdopLimit\":25", "\"pdopLimit\":26");
    QTest::newRow("something behind it") << good + "x";
    QTest::newRow("too long") << QByteArray("melvox-profile 1\n") + QByteArray(1024 * 1024, '\n');
}

void tst_receiver::refusesADamagedProfile()
{
    QFETCH(QByteArray, data);
    display->command("elevationMask", 12.5);
    display->texts();
    display->command("uploadData", data);
    QCOMPARE(display->texts(), QStringList("uploadResult 1"));
}

void tst_receiver::loadsAProfileAfterOneThatWasBrokenOff()
{
    QByteArray const data = profileText(startSettings());
    display->command("elevationMask", 12.5);
    display->command("uploadData", data.left(1024));
    display->texts();
    display->command("uploadData", data);
    QCOMPARE(display->texts(), (QStringList{"elevationMask 7", "uploadResult 0"}));
}

void tst_receiver::drawsAWebPackageBlockByBlock()
{
    QByteArray const package(40000, 'w');
    display->command("startWebUiUpload", QVariantMap{{"path", "web.pkg"}, {"size", package.size()}});
    int blocks = 0;
    while (display->last("fileWanted").isValid())
    {
        QVariantMap const wanted = display->last("fileWanted").toMap();
        display->messages.clear();
        display->command("fileBlock", block("web.pkg", wanted.value("offset").toInt(),
                                            package.mid(wanted.value("offset").toInt(), wanted.value("size").toInt())));
        ++blocks;
    }
    QCOMPARE(blocks, 3);
    QCOMPARE(display->texts().mid(0, 2),
             (QStringList{"webUiUploadPercent 0.6",
                          "webUiUploadState description=Restarting the receiver (1 of 2) state=1"}));
}

void tst_receiver::cancelsAWebUpload()
{
    display->command("startWebUiUpload", QVariantMap{{"path", "web.pkg"}, {"size", 10}});
    display->texts();
    display->command("cancelWebUiUpload");
    QCOMPARE(display->texts(), QStringList("webUiUploadState description=The upload was cancelled state=0"));
}

void tst_receiver::givesUpAWebUploadWhenTheDisplayIsSilent()
{
    display->command("startWebUiUpload", QVariantMap{{"path", "web.pkg"}, {"size", 10}});
    clock->advance(9900);
    QCOMPARE(display->last("webUiUploadState").toMap().value("state"), QVariant(1));
    clock->advance(100);
    QCOMPARE(display->last("webUiUploadState").toMap().value("state"), QVariant(0));
}

void tst_receiver::tellsWhyAWebUploadFailed()
{
    display->command("startWebUiUpload", QVariantMap{{"path", "web.pkg"}, {"size", 10}});
    QVariantMap answer = block("web.pkg", 0, QByteArray());
    answer["error"] = "The drive is gone";
    display->texts();
    display->command("fileBlock", answer);
    QCOMPARE(display->texts(), QStringList("webUiUploadState description=The drive is gone state=0"));
}

static QVariantMap component(int number, char const* path, int size)
{
    return {{"fileIndex", 0}, {"component", number}, {"path", path}, {"size", size}};
}

void tst_receiver::passesOverABlockThatCameTwice()
{
    display->command("startWebUiUpload", QVariantMap{{"path", "web.pkg"}, {"size", 20000}});
    QByteArray const first(16384, 'a');
    display->command("fileBlock", block("web.pkg", 0, first));
    display->command("fileBlock", block("web.pkg", 0, first));
    display->command("fileBlock", block("web.pkg", 16384, QByteArray(3616, 'b')));
    clock->advance(20000);
    QCOMPARE(display->last("webUiUploadState").toMap().value("state"), QVariant(2));
    QCOMPARE(receiver->ignoredCount(), 0);
}

void tst_receiver::failsTransfersOfFilesThatCannotBeRead()
{
    display->command("startWebUiUpload", QVariantMap{{"path", "gone"}, {"size", -1.0}});
    QCOMPARE(display->texts(), QStringList("webUiUploadState description=The package cannot be read state=0"));
    display->command("portLock", 2);
    display->command("startFirmwareUpdate",
                     QVariantMap{{"components", QVariantList{component(2, "gone", -1)}}, {"combinedPath", ""}});
    QCOMPARE(display->last("firmwareUpdateState"),
             QVariant(QVariantMap{{"state", 0}, {"description", "The file for NAV cannot be read"}}));
}

void tst_receiver::failsAnUpdateOfAnUnknownComponent()
{
    display->command("startFirmwareUpdate",
                     QVariantMap{{"components", QVariantList{component(255, "what", 5)}}, {"combinedPath", ""}});
    QCOMPARE(display->last("firmwareUpdateState").toMap().value("state"), QVariant(0));
}

void tst_receiver::setsThePortOfTheLinkWithoutBeingToldWhich()
{
    receiver->setActivePort(display.data(), 3);
    display->texts();
    display->command("serialConfig", QVariantMap{{"baud", 4800}, {"charSize", 1}, {"parity", 1}, {"stopBits", 1}});
    QCOMPARE(display->texts(), QStringList("serialConfig baud=4800 charSize=1 parity=1 port=3 stopBits=1"));
    receiver->setActivePort(display.data(), 7);
    display->texts();
    display->command("serialConfig", QVariantMap{{"baud", 4800}, {"charSize", 1}, {"parity", 1}, {"stopBits", 1}});
    QVERIFY(display->texts().isEmpty());
    QCOMPARE(receiver->ignoredCount(), 1);
}

void tst_receiver::followsTheSettingsOfItsSerialLine()
{
    melvox_link::localLinkPair_t pair;
    pair.receiverEnd()->makeSerial({115200, 8, 'N', 1});
    receiver->addLink(pair.receiverEnd(), 1);
    QCOMPARE(display->texts(), QStringList("serialConfig baud=115200 charSize=1 parity=0 port=1 stopBits=0"));
    melvox_link::line_t line;
    display->command("serialConfig",
                     QVariantMap{{"port", 0}, {"baud", 4800}, {"charSize", 1}, {"parity", 1}, {"stopBits", 1}});
    QVERIFY(pair.receiverEnd()->line(line));
    QCOMPARE(melvox_link::lineText(line), QString("115200 8N1"));
    display->command("serialConfig",
                     QVariantMap{{"port", 1}, {"baud", 9600}, {"charSize", 0}, {"parity", 2}, {"stopBits", 1}});
    QVERIFY(pair.receiverEnd()->line(line));
    QCOMPARE(melvox_link::lineText(line), QString("9600 7E2"));
}

void tst_receiver::runsNoTimerWhileItRests()
{
    simClock_t real;
    receiverEnd_t end;
    receiver_t resting(&end, &real);
    QVERIFY(!real.isTicking());
    end.request("antennaList");
    QVERIFY(real.isTicking());
    QVERIFY(melvox_test::waitFor([&]() { return !real.isTicking(); }));
    QCOMPARE(int(end.messages.size()), 1 + int(antennaNames().size()));
}

QTEST_MAIN(tst_receiver)
#include "tst_receiver.moc"
