#include "proxycheck/signalRecorder.h"
#include "support/pageTest.h"

#include <functional>
#include <limits>

using namespace brel_common_qt;
using melvox_link::message_t;
using melvox_proxycheck::signalRecorder_t;

namespace
{

/** Does something whenever a signal comes. */
class reaction_t : public QObject
{
    Q_OBJECT

public:
    reaction_t(QObject* sender, char const* signal, std::function<void()> const& what) : m_what(what)
    {
        connect(sender, signal, SLOT(react()));
    }

private slots:
    void react() { m_what(); }

private:
    std::function<void()> m_what;
};

QVariantMap sat(int id)
{
    return map("id", id, "longitude", 15.5, "lookAngle", 31, "net1", true, "net2", false, "flagU", false, "flagA",
               false, "flagC", false);
}

QVariantMap stats(int id)
{
    return map("id", id, "beam", 2, "status", 9, "strength", 4.5, "agcVoltage", 1.25, "goodPercent", 98.5,
               "idlePercent", 0.5, "resyncCount", 8, "frequencyOffset", -9.5);
}

QVariantMap antenna(QString const& name)
{
    return map("name", name, "serial", "S", "id", 1);
}

QVariantMap ethernet(int source)
{
    return map("source", source, "dhcp", false, "ipAddress", 1, "netmask", 2, "gateway", 3, "dns1", 4, "dns2", 5);
}

QVariantMap output(int port, QString const& message, double interval)
{
    return map("port", port, "message", message, "method", 1, "interval", interval);
}

} // namespace

class tst_cache : public melvox_test::pageTest_t
{
    Q_OBJECT

private slots:
    void takesNumbersUpToTheLimitsOfTheirFields_data();
    void takesNumbersUpToTheLimitsOfTheirFields();
    void takesAWholeNumberThatComesAsAFloatingOne();
    void ignoresPortsThatAreNone_data();
    void ignoresPortsThatAreNone();
    void ignoresEthernetSourcesThatAreNone_data();
    void ignoresEthernetSourcesThatAreNone();
    void ignoresCorrectionTypesThatAreNone_data();
    void ignoresCorrectionTypesThatAreNone();
    void ignoresSatelliteIdsThatAreNoKeys();
    void ignoresAntennaPairsThatAreNone_data();
    void ignoresAntennaPairsThatAreNone();
    void anUnknownActivePortIsKnownToBeUnknown();

    void keyedGettersLeaveTheirOutputAsItWasWhileNothingIsKnown();
    void keyedGettersKnowEachKeyOnItsOwn();
    void gettersOfWhatIsNotKnownGiveNull();
    void gettersTakeKeysThatAreNone();

    void anEmptyListIsAnAnswer();
    void aListReplacesTheOneBefore();
    void aNavigationReportThatIsNotValidNeedsNoOtherField();
    void noSatelliteInUseIsToldApartFromOneInUse();
    void firmwareVersionsKeepTheOrderInWhichTheyCame();
    void aClearedOutputListIsEmptyWhenItIsToldOf();
    void aResetAntennaListIsEmptyWhenItIsToldOf();
    void antennaNamesKeepTheOrderInWhichTheyCame();
    void theEthernetInterfacesAreKeptApart();
    void aLowBaudRateIsToldOf();
    void clearedProfilesAreToldOf();

    void ignoresGroupsThatNobodyKnows();
    void ignoresWhatOnlyADisplayMaySay_data();
    void ignoresWhatOnlyADisplayMaySay();
    void takesReportsAndEventsAlike();
    void ignoresDeepNests();
    void tellsOfEachMessageByItsStream_data();
    void tellsOfEachMessageByItsStream();

    void aSlotMayAskAndCommand();
    void aSlotMayDestroyAnotherListener();
    void aSlotMayDestroyItself();
    void aMessageThatComesWithinASlotDoesNotSpoilTheOneBefore();
};

// --- limits --------------------------------------------------------------------------------------------------------

void tst_cache::takesNumbersUpToTheLimitsOfTheirFields_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QVariantMap>("report");
    QTest::addColumn<QString>("field");
    QTest::addColumn<double>("number");
    QTest::addColumn<bool>("taken");
    QVariantMap const pps = map("polarity", 1, "width", 2, "interval", 3, "signalDelay", 4, "chipDelay", 5);
    QVariantMap const vcom =
        map("port", 6, "enabled", true, "mode", 1, "remoteAddress", 2, "remotePort", 3, "localPort", 4);
    QVariantMap const alignment = map("mode", 2, "angle", 1.5);
    QVariantMap const position = map("latitude", 0.5, "longitude", 1.5, "height", 2.5);
    QVariantMap const sat = map("auto", false, "id", 1);
    double const largestFloat = double(std::numeric_limits<float>::max());
    double const largestDouble = std::numeric_limits<double>::max();
    QTest::newRow("u8 least") << "ppsConfig" << pps << "polarity" << 0.0 << true;
    QTest::newRow("u8 below") << "ppsConfig" << pps << "polarity" << -1.0 << false;
    QTest::newRow("u8 most") << "ppsConfig" << pps << "polarity" << 255.0 << true;
    QTest::newRow("u8 above") << "ppsConfig" << pps << "polarity" << 256.0 << false;
    QTest::newRow("u16 most") << "vcomConfig" << vcom << "localPort" << 65535.0 << true;
    QTest::newRow("u16 above") << "vcomConfig" << vcom << "localPort" << 65536.0 << false;
    QTest::newRow("u16 below") << "vcomConfig" << vcom << "localPort" << -1.0 << false;
    QTest::newRow("u32 most") << "ppsConfig" << pps << "width" << 4294967295.0 << true;
    QTest::newRow("u32 above") << "ppsConfig" << pps << "width" << 4294967296.0 << false;
    QTest::newRow("u32 below") << "ppsConfig" << pps << "width" << -1.0 << false;
    QTest::newRow("s32 most") << "correctionSatSelection" << sat << "id" << 2147483647.0 << true;
    QTest::newRow("s32 above") << "correctionSatSelection" << sat << "id" << 2147483648.0 << false;
    QTest::newRow("s32 least") << "correctionSatSelection" << sat << "id" << -2147483648.0 << true;
    QTest::newRow("s32 below") << "correctionSatSelection" << sat << "id" << -2147483649.0 << false;
    QTest::newRow("float most") << "antennaAlignment" << alignment << "angle" << largestFloat << true;
    QTest::newRow("float above") << "antennaAlignment" << alignment << "angle" << 1e39 << false;
    QTest::newRow("float below") << "antennaAlignment" << alignment << "angle" << -1e39 << false;
    QTest::newRow("double most") << "basePosition" << position << "height" << largestDouble << true;
    QTest::newRow("double least") << "basePosition" << position << "height" << -largestDouble << true;
}

void tst_cache::takesNumbersUpToTheLimitsOfTheirFields()
{
    QFETCH(QString, group);
    QFETCH(QVariantMap, report);
    QFETCH(QString, field);
    QFETCH(double, number);
    QFETCH(bool, taken);
    report.insert(field, number);
    signalRecorder_t const recorder(device);
    receiver->report(group, report);
    QCOMPARE(!recorder.told.isEmpty(), taken);
}

// Streams know but one kind of number.
void tst_cache::takesAWholeNumberThatComesAsAFloatingOne()
{
    receiver->report("geoidalModel", 2.0);
    receiver->report("elevationMask", 12);
    receiver->report("correctionMaxAge", map("type", 0.0, "seconds", 4294967295.0));
    unsigned int seconds = 0;
    QCOMPARE(int(device->geoidalModel()), 2);
    QCOMPARE(device->elevationMask(), 12.0);
    QVERIFY(device->getCorrectionMaxAge(MELVOX_CORR_TYPE_RTCM19, seconds));
    QCOMPARE(seconds, 4294967295u);
}

void tst_cache::ignoresPortsThatAreNone_data()
{
    QTest::addColumn<int>("port");
    QTest::newRow("below the first") << -1;
    QTest::newRow("unknown") << int(MELVOX_PORT_UNKNOWN);
    QTest::newRow("far away") << 99;
}

void tst_cache::ignoresPortsThatAreNone()
{
    QFETCH(int, port);
    signalRecorder_t const recorder(device);
    receiver->report("output", output(port, "NMEAGGA", 1.0));
    receiver->report("portTxRxInfo",
                     map("port", port, "txValid", true, "rxValid", true, "txUsage", 1.5, "rxUsage", 2.5));
    receiver->report("serialConfig", map("port", port, "baud", 9600, "charSize", 1, "parity", 0, "stopBits", 0));
    receiver->report("serialRs232Mode", map("port", port, "rs232", true));
    receiver->report("vcomConfig", map("port", port, "enabled", true, "mode", 1, "remoteAddress", 1, "remotePort", 2,
                                       "localPort", 3));
    QCOMPARE(recorder.told, QStringList());
    QVERIFY(device->portOutputs(melvoxPort_t(port)) == 0);
    QVERIFY(device->portTxRxInfo(melvoxPort_t(port)) == 0);
}

void tst_cache::ignoresEthernetSourcesThatAreNone_data()
{
    QTest::addColumn<int>("source");
    QTest::newRow("below the first") << -1;
    QTest::newRow("unknown") << int(MELVOX_ETH_CFG_SOURCE_UNKNOWN);
    QTest::newRow("far away") << 99;
}

void tst_cache::ignoresEthernetSourcesThatAreNone()
{
    QFETCH(int, source);
    signalRecorder_t const recorder(device);
    receiver->report("ethernetConfig", ethernet(source));
    QCOMPARE(recorder.told, QStringList());
    QVERIFY(device->ethernetConfig(melvoxEthernetConfigSource_t(source)) == 0);
}

void tst_cache::ignoresCorrectionTypesThatAreNone_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("below the first") << -1;
    QTest::newRow("above the last") << 3;
}

void tst_cache::ignoresCorrectionTypesThatAreNone()
{
    QFETCH(int, type);
    signalRecorder_t const recorder(device);
    receiver->report("correctionEnabled", map("type", type, "enabled", true));
    receiver->report("correctionMaxAge", map("type", type, "seconds", 1200));
    bool enabled = false;
    unsigned int seconds = 0;
    QCOMPARE(recorder.told, QStringList());
    QVERIFY(!device->getCorrectionEnabled(melvoxCorrectionType_t(type), enabled));
    QVERIFY(!device->getCorrectionMaxAge(melvoxCorrectionType_t(type), seconds));
}

// The maps' keys are narrower than the records' ids: 65545 must not pass for satellite 9.
void tst_cache::ignoresSatelliteIdsThatAreNoKeys()
{
    receiver->report("correctionSats", list(sat(65535)));
    receiver->report("correctionSatStats", map("inUse", 65535, "sats", list(stats(65535))));
    signalRecorder_t const recorder(device);
    receiver->report("correctionSats", list(sat(1), sat(65545)));
    receiver->report("correctionSatStats", map("inUse", 9, "sats", list(stats(1), stats(65545))));
    QCOMPARE(recorder.told, QStringList());
    QCOMPARE(device->correctionSats().size(), std::size_t(1));
    QCOMPARE(device->correctionSats().count(65535), std::size_t(1));
    QCOMPARE(device->correctionSatStats().count(65535), std::size_t(1));
    QCOMPARE(device->correctionSatInUse(), 65535u);
}

void tst_cache::ignoresAntennaPairsThatAreNone_data()
{
    QTest::addColumn<int>("antennas");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("three") << 3;
}

void tst_cache::ignoresAntennaPairsThatAreNone()
{
    QFETCH(int, antennas);
    QVariantList infos, heights;
    for (int i = 0; i < antennas; ++i)
    {
        infos << antenna("AOAD/M_T");
        heights << map("useAdjustments", true, "height", 1.5, "slantRange", 2.5, "radius", 3.5);
    }
    signalRecorder_t const recorder(device);
    receiver->report("antennaInfo", infos);
    receiver->report("antennaHeight", heights);
    QCOMPARE(recorder.told, QStringList());
    QVERIFY(!device->antennaInfoValid());
    QVERIFY(!device->antennaHeightValid());
}

void tst_cache::anUnknownActivePortIsKnownToBeUnknown()
{
    receiver->report("activePort", int(MELVOX_PORT_UNKNOWN));
    QVERIFY(device->activePortValid());
    QCOMPARE(int(device->activePort()), int(MELVOX_PORT_UNKNOWN));
}

// --- getters -------------------------------------------------------------------------------------------------------

void tst_cache::keyedGettersLeaveTheirOutputAsItWasWhileNothingIsKnown()
{
    bool enabled = true, use = true;
    unsigned int seconds = 4711;
    QVERIFY(!device->getCorrectionEnabled(MELVOX_CORR_TYPE_SBAS, enabled));
    QVERIFY(!device->getCorrectionMaxAge(MELVOX_CORR_TYPE_SBAS, seconds));
    QVERIFY(!device->getMeasUse("GPS", use));
    QVERIFY(enabled);
    QVERIFY(use);
    QCOMPARE(seconds, 4711u);
}

void tst_cache::keyedGettersKnowEachKeyOnItsOwn()
{
    receiver->report("correctionEnabled", map("type", 1, "enabled", false));
    receiver->report("correctionEnabled", map("type", 2, "enabled", true));
    receiver->report("measUse", list(map("name", "GLO", "use", false)));
    bool enabled = true, use = true;
    QVERIFY(!device->getCorrectionEnabled(MELVOX_CORR_TYPE_RTCM19, enabled));
    QVERIFY(device->getCorrectionEnabled(MELVOX_CORR_TYPE_SBAS, enabled));
    QVERIFY(!enabled);
    QVERIFY(device->getCorrectionEnabled(MELVOX_CORR_TYPE_RTG, enabled));
    QVERIFY(enabled);
    QVERIFY(!device->getMeasUse("GPS", use));
    QVERIFY(use);
    QVERIFY(device->getMeasUse("GLO", use));
    QVERIFY(!use);
}

void tst_cache::gettersOfWhatIsNotKnownGiveNull()
{
    receiver->report("output", output(0, "NMEAGGA", 1.0));
    QVERIFY(device->portOutputs(MELVOX_PORT_COM2) == 0);
    QVERIFY(device->portTxRxInfo(MELVOX_PORT_COM1) == 0);
    QVERIFY(device->messageOutput(MELVOX_PORT_COM1, "NMEAGLL") == 0);
    QVERIFY(device->messageOutput(MELVOX_PORT_COM2, "NMEAGGA") == 0);
    QVERIFY(device->messageOutput(MELVOX_PORT_COM1, "NMEAGGA") != 0);
}

void tst_cache::gettersTakeKeysThatAreNone()
{
    receiver->report("ethernetConfig", ethernet(0));
    receiver->report("antennaInfo", list(antenna("FIRST"), antenna("SECOND")));
    QVERIFY(device->ethernetConfig(MELVOX_ETH_CFG_SOURCE_UNKNOWN) == 0);
    QVERIFY(device->ethernetConfig(melvoxEthernetConfigSource_t(-1)) == 0);
    QVERIFY(!device->ethernetConfigDhcp(MELVOX_ETH_CFG_SOURCE_UNKNOWN));
    QVERIFY(device->portOutputs(MELVOX_PORT_UNKNOWN) == 0);
    QCOMPARE(device->antennaInfo(MELVOX_NUM_ANTENNAS).name, std::string("FIRST"));
}

// --- what the cache makes of reports -------------------------------------------------------------------------------

void tst_cache::anEmptyListIsAnAnswer()
{
    receiver->report("correctionSats", list(sat(1)));
    receiver->report("measUse", list(map("name", "GLO", "use", true)));
    signalRecorder_t const recorder(device);
    receiver->report("correctionSats", QVariantList());
    receiver->report("correctionSatStats", map("inUse", 0, "sats", QVariantList()));
    receiver->report("measUse", QVariantList());
    receiver->report("firmwareUpdateProgress", QVariantList());
    QCOMPARE(recorder.told, QStringList() << "correctionSatsUpdated"
                                          << "correctionSatStatsUpdated"
                                          << "measUseUpdated []"
                                          << "firmwareUpdateProgress []");
    bool use = false;
    QVERIFY(device->correctionSats().empty());
    QVERIFY(!device->getMeasUse("GLO", use));
}

void tst_cache::aListReplacesTheOneBefore()
{
    receiver->report("correctionSats", list(sat(1), sat(2)));
    receiver->report("correctionSats", list(sat(2), sat(3)));
    QCOMPARE(device->correctionSats().count(1), std::size_t(0));
    QCOMPARE(device->correctionSats().count(2), std::size_t(1));
    QCOMPARE(device->correctionSats().count(3), std::size_t(1));
}

void tst_cache::aNavigationReportThatIsNotValidNeedsNoOtherField()
{
    QVariantMap info = map("valid", true, "gpsWeek", 2237, "gpsTime", 1.0, "navValid", 1, "datum", 0, "geoid", 0,
                           "navMode", 1, "navSource", 1, "stationId", 1, "failureCode", 1);
    char const* const lengths[] = {"setDeltaNorth", "setDeltaEast",  "setDeltaUp",   "latError",  "lonError",
                                   "heightError",   "velocityNorth", "velocityEast", "velocityUp"};
    for (char const* name : lengths)
        info.insert(name, 1.5);
    receiver->report("extendedNavInfo", info);
    QVERIFY(device->extendedNavInfoValid());
    signalRecorder_t const recorder(device);
    receiver->report("extendedNavInfo", map("valid", false));
    QVERIFY(!device->extendedNavInfoValid());
    QCOMPARE(recorder.told, QStringList("extendedNavInfoUpdated"));
}

void tst_cache::noSatelliteInUseIsToldApartFromOneInUse()
{
    receiver->report("correctionSatStats", map("inUse", 609, "sats", list(stats(609))));
    QVERIFY(device->correctionSatInUseValid());
    receiver->report("correctionSatStats", map("inUse", 0, "sats", list(stats(609))));
    QVERIFY(!device->correctionSatInUseValid());
    QCOMPARE(device->correctionSatInUse(), 0u);
}

void tst_cache::firmwareVersionsKeepTheOrderInWhichTheyCame()
{
    receiver->report("firmwareVersion", map("component", "NAV", "version", "1.14.32"));
    receiver->report("firmwareVersion", map("component", "BOOT1", "version", "2.0.4"));
    receiver->report("firmwareVersion", map("component", "NAV", "version", "1.14.40"));
    QCOMPARE(device->firmwareVersions().size(), 2);
    QCOMPARE(device->firmwareVersions().at(0).first, std::string("NAV"));
    QCOMPARE(device->firmwareVersions().at(0).second, std::string("1.14.40"));
    QCOMPARE(device->firmwareVersions().at(1).second, std::string("2.0.4"));
}

void tst_cache::aClearedOutputListIsEmptyWhenItIsToldOf()
{
    receiver->report("output", output(0, "NMEAGGA", 1.0));
    signalRecorder_t const recorder(device, [this]()
                                    { return melvox_proxycheck::text(device->portOutputs(MELVOX_PORT_COM1)); });
    receiver->event("outputsCleared");
    receiver->report("output", output(0, "NMEAGLL", 5.0));
    QCOMPARE(recorder.told, QStringList() << "outputsCleared"
                                          << "outputConfigUpdated 0 \"NMEAGLL\" (1 5)");
    QCOMPARE(recorder.states, QStringList() << "null"
                                            << "{\"NMEAGLL\": (1 5)}");
}

void tst_cache::aResetAntennaListIsEmptyWhenItIsToldOf()
{
    receiver->report("antennaName", "AOAD/M_T");
    signalRecorder_t const recorder(device, [this]() { return device->antennaList().join("|"); });
    receiver->event("antennaListReset");
    QCOMPARE(recorder.told, QStringList("antennaListReset"));
    QCOMPARE(recorder.states, QStringList(""));
}

void tst_cache::antennaNamesKeepTheOrderInWhichTheyCame()
{
    receiver->report("antennaName", "NAX3G+C");
    receiver->report("antennaName", "AOAD/M_T");
    QCOMPARE(device->antennaList(), QStringList() << "NAX3G+C"
                                                  << "AOAD/M_T");
}

void tst_cache::theEthernetInterfacesAreKeptApart()
{
    receiver->report("ethernetConfig", ethernet(1));
    QVERIFY(device->ethernetConfig(MELVOX_ETH_CFG_SOURCE_CABLE) == 0);
    QVERIFY(device->ethernetConfig(MELVOX_ETH_CFG_SOURCE_WIFI) != 0);
}

void tst_cache::aLowBaudRateIsToldOf()
{
    signalRecorder_t const recorder(device);
    receiver->event("badBaud");
    QCOMPARE(recorder.told, QStringList("badBaudDetected"));
}

void tst_cache::clearedProfilesAreToldOf()
{
    signalRecorder_t const recorder(device);
    receiver->event("profilesCleared");
    QCOMPARE(recorder.told, QStringList("profilesCleared"));
}

// --- what is not for the proxy -------------------------------------------------------------------------------------

void tst_cache::ignoresGroupsThatNobodyKnows()
{
    signalRecorder_t const recorder(device);
    receiver->report("elevationmask", 10.0);
    receiver->report("", 10.0);
    receiver->event("warmRestart");
    QCOMPARE(recorder.told, QStringList());
    QVERIFY(!device->elevationMaskValid());
}

void tst_cache::ignoresWhatOnlyADisplayMaySay_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("request") << int(message_t::REQUEST);
    QTest::newRow("command") << int(message_t::COMMAND);
}

// A line that is looped back must not pass for a receiver that took everything.
void tst_cache::ignoresWhatOnlyADisplayMaySay()
{
    QFETCH(int, kind);
    signalRecorder_t const recorder(device);
    QSignalSpy const locks(device->port(), SIGNAL(lockStateUpdated(brel_common_qt::portLock_t)));
    message_t const messages[] = {message_t(message_t::kind_t(kind), "elevationMask", 10.0),
                                  message_t(message_t::kind_t(kind), "portLock", 2)};
    for (message_t const& message : messages)
        QMetaObject::invokeMethod(receiver, "received", Q_ARG(melvox_link::message_t, message));
    QCOMPARE(recorder.told, QStringList());
    QVERIFY(!device->elevationMaskValid());
    QVERIFY(locks.isEmpty());
}

void tst_cache::takesReportsAndEventsAlike()
{
    receiver->event("elevationMask", 10.0);
    QVERIFY(device->elevationMaskValid());
}

void tst_cache::ignoresDeepNests()
{
    QVariant nest = 1;
    for (int i = 0; i < 500; ++i)
        nest = QVariantList() << map("name", nest);
    signalRecorder_t const recorder(device);
    receiver->report("measUse", nest);
    receiver->report("correctionSats", nest);
    receiver->report("elevationMask", nest);
    QCOMPARE(recorder.told, QStringList());
}

void tst_cache::tellsOfEachMessageByItsStream_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<int>("stream");
    QTest::newRow("position") << "extendedNavInfo" << 0;
    QTest::newRow("heading") << "vhdInfo" << 1;
    QTest::newRow("satellites") << "correctionSats" << 2;
    QTest::newRow("their signals") << "correctionSatStats" << 2;
    QTest::newRow("a setting") << "elevationMask" << 3;
    QTest::newRow("an unknown one") << "somethingNew" << 3;
}

void tst_cache::tellsOfEachMessageByItsStream()
{
    QFETCH(QString, group);
    QFETCH(int, stream);
    QSignalSpy const spy(device, SIGNAL(messageReceived(int)));
    receiver->report(group, 1);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.at(0).at(0).toInt(), stream);
}

// --- slots that act at once ----------------------------------------------------------------------------------------

void tst_cache::aSlotMayAskAndCommand()
{
    reaction_t const reaction(device, SIGNAL(elevationMaskUpdated(endian::f64_t)),
                              [this]()
                              {
                                  device->queryPdopLimit();
                                  device->setPdopLimit(device->elevationMask());
                              });
    receiver->report("elevationMask", 12.5);
    QCOMPARE(receiver->sent(), QStringList() << "request pdopLimit"
                                             << "command pdopLimit 12.5");
}

void tst_cache::aSlotMayDestroyAnotherListener()
{
    signalRecorder_t* page = 0;
    reaction_t const reaction(device, SIGNAL(baseNameUpdated(std::string)), [&page]() { delete page; });
    page = new signalRecorder_t(device);
    signalRecorder_t const last(device);
    receiver->report("baseName", "NORTH");
    QCOMPARE(last.told, QStringList("baseNameUpdated \"NORTH\""));
}

void tst_cache::aSlotMayDestroyItself()
{
    QObject* page = 0;
    page = new reaction_t(device, SIGNAL(baseNameUpdated(std::string)), [&page]() { page->deleteLater(); });
    signalRecorder_t const last(device);
    receiver->report("baseName", "NORTH");
    melvox_test::settle();
    receiver->report("baseName", "SOUTH");
    QCOMPARE(last.told.size(), 2);
}

// As when a slot shows a dialog and waits for it.
void tst_cache::aMessageThatComesWithinASlotDoesNotSpoilTheOneBefore()
{
    QString const name = QString(200, 'A');
    reaction_t const onName(device, SIGNAL(antennaNameAdded(QString)),
                            [this]() { receiver->event("antennaListReset"); });
    bool nested = false;
    reaction_t const onUse(device, SIGNAL(measUseUpdated(measUse_t)),
                           [this, &nested]()
                           {
                               if (nested)
                                   return;
                               nested = true;
                               receiver->report("measUse", QVariantList());
                           });
    signalRecorder_t const recorder(device);
    receiver->report("antennaName", name);
    receiver->report("measUse", list(map("name", "GLO", "use", true)));
    QCOMPARE(recorder.told, QStringList() << "antennaListReset"
                                          << "antennaNameAdded \"" + name + '"' << "measUseUpdated []"
                                          << "measUseUpdated [(\"GLO\" yes)]");
}

QTEST_MAIN(tst_cache)
#include "tst_cache.moc"
