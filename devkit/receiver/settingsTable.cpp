#include "receiver/settingsTable.h"

#include <cmath>

namespace melvox_receiver
{

namespace
{

double const HALF_TURN = std::acos(-1.0);
double const ROUNDING = 1e-9; // of positions typed in degrees

unsigned int const COM1 = 0;
unsigned int const LOWEST_RTCM_BASE_MODE = 1;
int const RTCM_23 = 1;
unsigned int const LONGEST_SWITCH_DELAY = 24 * 60; // minutes

unsigned int address(unsigned int a, unsigned int b, unsigned int c, unsigned int d)
{
    return a << 24 | b << 16 | c << 8 | d;
}

/** NUM_PORTS itself is the number of no port. */
rule_t portOrNone()
{
    return whole(0, NUM_PORTS);
}

rule_t ipAddress()
{
    return whole(0, 4294967295.0);
}

/** The receiver cannot position without GPS and decides on BeiDou itself, whatever it is told; and it keeps its table of
 *  names. */
bool adjustMeasUse(settings_t const&, QVariant const& old, QVariant& taken)
{
    QVariantList table = old.toList();
    for (QVariant const& item : taken.toList())
    {
        for (QVariant& entry : table)
        {
            QVariantMap known = entry.toMap();
            QString const name = item.toMap().value("name").toString();
            if (known.value("name").toString().compare(name, Qt::CaseInsensitive) != 0)
                continue;
            if (known.value("name") == "GPS" || known.value("name") == "BEI")
                continue;
            known["use"] = item.toMap().value("use").toBool();
            entry = known;
        }
    }
    taken = table;
    return true;
}

bool adjustDynamicConfig(settings_t const&, QVariant const& old, QVariant& taken)
{
    QVariantMap config = taken.toMap();
    if (config.value("autoMode").toBool())
        config["mode"] = old.toMap().value("mode");
    else
        config["velocitySmoothing"] = old.toMap().value("velocitySmoothing");
    taken = config;
    return true;
}

/** Only a user-specified alignment has an angle. */
bool adjustAntennaAlignment(settings_t const&, QVariant const&, QVariant& taken)
{
    QVariantMap alignment = taken.toMap();
    if (alignment.value("mode").toInt() != 2)
        alignment["angle"] = 0.0;
    taken = alignment;
    return true;
}

bool adjustAntennaRemote(settings_t const&, QVariant const& old, QVariant& taken)
{
    QVariantMap remote = taken.toMap();
    // The base station tells its antenna itself; what was known stays until it does.
    if (remote.value("automatic").toBool())
        remote["name"] = old.toMap().value("name");
    taken = remote;
    return true;
}

bool knowsSatellite(settings_t const& settings, QVariant const& id)
{
    for (QVariant const& satellite : settings.value("correctionSats").toList())
    {
        if (satellite.toMap().value("id").toInt() == id.toInt())
            return true;
    }
    QVariantMap const user = settings.value("userCorrectionSat").toMap();
    return user.value("defined").toBool() && user.value("id").toInt() == id.toInt();
}

bool adjustCorrectionSatSelection(settings_t const& settings, QVariant const& old, QVariant& taken)
{
    QVariantMap selection = taken.toMap();
    if (selection.value("auto").toBool())
        selection["id"] = old.toMap().value("id");
    taken = selection;
    return selection.value("auto").toBool() || knowsSatellite(settings, selection.value("id"));
}

bool adjustUserCorrectionSat(settings_t const&, QVariant const&, QVariant& taken)
{
    QVariantMap satellite = taken.toMap();
    if (!satellite.value("defined").toBool())
    {
        satellite["id"] = 0;
        satellite["frequency"] = 0.0;
        taken = satellite;
        return true;
    }
    double const frequency = satellite.value("frequency").toDouble();
    // The L band that the correction receiver tunes in, in kilohertz.
    bool const tunable = frequency >= 1525000.0 && frequency <= 1559000.0;
    return tunable && satellite.value("id").toInt() != 0;
}

bool adjustStarfireAlmSwitchPolicy(settings_t const&, QVariant const& old, QVariant& taken)
{
    QVariantMap policy = taken.toMap();
    unsigned int const delay = policy.value("hours").toUInt() * 60 + policy.value("minutes").toUInt();
    if (policy.value("mode").toInt() != 0)
    {
        policy["hours"] = old.toMap().value("hours");
        policy["minutes"] = old.toMap().value("minutes");
    }
    else if (delay > LONGEST_SWITCH_DELAY)
    {
        policy["minutes"] = 0;
    }
    taken = policy;
    return true;
}

bool isBase(settings_t const& settings)
{
    return settings.value("diffConfig").toMap().value("mode").toUInt() >= LOWEST_RTCM_BASE_MODE;
}

bool adjustDiffConfig(settings_t const&, QVariant const& old, QVariant& taken)
{
    QVariantMap config = taken.toMap();
    if (config.value("mode").toUInt() >= LOWEST_RTCM_BASE_MODE)
    {
        config["dynamic"] = false;
        taken = config;
        return config.value("stationId").toUInt() > 0 && config.value("port").toUInt() < NUM_PORTS;
    }
    config["port"] = old.toMap().value("port");
    config["portSet"] = false;
    taken = config;
    return true;
}

bool adjustRtcmVersion(settings_t const& settings, QVariant const&, QVariant& taken)
{
    return !isBase(settings) || taken.toInt() == RTCM_23;
}

bool adjustGgaMode(settings_t const&, QVariant const& old, QVariant& taken)
{
    QVariantMap mode = taken.toMap();
    // Quality 0 means: as it is.
    if (mode.value("quality").toInt() == 0)
        mode["quality"] = old.toMap().value("quality");
    taken = mode;
    return true;
}

bool adjustEthernetConfig(settings_t const&, QVariant const& old, QVariant& taken)
{
    QVariantMap config = taken.toMap();
    if (!config.value("dhcp").toBool())
        return true;
    unsigned int const network = config.value("source").toInt() == 0 ? 1 : 2;
    config["ipAddress"] = address(192, 168, network, 74);
    config["netmask"] = address(255, 255, 255, 0);
    config["gateway"] = config["dns1"] = address(192, 168, network, 1);
    config["dns2"] = old.toMap().value("dns2");
    taken = config;
    return true;
}

QVariantMap meas(char const* name, bool use)
{
    return {{"name", name}, {"use", use}};
}

QVariantMap antennaInfo(char const* name, char const* serial, int id)
{
    return {{"name", name}, {"serial", serial}, {"id", id}};
}

QVariantMap antennaHeight(bool useAdjustments, double height, double slantRange, double radius)
{
    return {{"useAdjustments", useAdjustments}, {"height", height}, {"slantRange", slantRange}, {"radius", radius}};
}

QVariantMap satellite(int id, double longitude, int lookAngle, int nets, char const* attributes)
{
    QString const flags = attributes;
    return {{"id", id},
            {"longitude", longitude},
            {"lookAngle", lookAngle},
            {"net1", (nets & 1) != 0},
            {"net2", (nets & 2) != 0},
            {"flagU", flags.contains('U')},
            {"flagA", flags.contains('A')},
            {"flagC", flags.contains('C')}};
}

QVariantMap satelliteStats(int id, int beam, int status, double strength, double goodPercent)
{
    return {{"id", id},
            {"beam", beam},
            {"status", status},
            {"strength", strength},
            {"agcVoltage", 1.31},
            {"goodPercent", goodPercent},
            {"idlePercent", 2.5},
            {"resyncCount", 1},
            {"frequencyOffset", -143.0}};
}

QVariantList serialConfigs()
{
    QVariantList ports;
    unsigned int const bauds[NUM_PHYSICAL_PORTS] = {115200, 57600, 38400, 19200, 115200, 115200};
    for (unsigned int i = 0; i < NUM_PHYSICAL_PORTS; ++i)
    {
        ports << QVariantMap{{"port", i}, {"baud", bauds[i]}, {"charSize", 1}, {"parity", 0}, {"stopBits", 0}};
    }
    return ports;
}

QVariantList serialRs232Modes()
{
    QVariantList ports;
    for (unsigned int i = 0; i < NUM_PHYSICAL_PORTS; ++i)
        ports << QVariantMap{{"port", i}, {"rs232", i <= COM1 + 1}};
    return ports;
}

QVariantList vcomConfigs()
{
    QVariantList ports;
    for (unsigned int i = FIRST_VIRTUAL_PORT; i < NUM_PORTS; ++i)
    {
        ports << QVariantMap{{"port", i},       {"enabled", i == FIRST_VIRTUAL_PORT},
                             {"mode", 1},       {"remoteAddress", 0u},
                             {"remotePort", 0}, {"localPort", 4996 + i}};
    }
    return ports;
}

QVariantList ethernetConfigs()
{
    QVariantList sources;
    sources << QVariantMap{{"source", 0},
                           {"dhcp", false},
                           {"ipAddress", address(192, 168, 0, 10)},
                           {"netmask", address(255, 255, 255, 0)},
                           {"gateway", address(192, 168, 0, 1)},
                           {"dns1", address(192, 168, 0, 1)},
                           {"dns2", address(0, 0, 0, 0)}};
    sources << QVariantMap{{"source", 1},
                           {"dhcp", true},
                           {"ipAddress", address(192, 168, 2, 74)},
                           {"netmask", address(255, 255, 255, 0)},
                           {"gateway", address(192, 168, 2, 1)},
                           {"dns1", address(192, 168, 2, 1)},
                           {"dns2", address(0, 0, 0, 0)}};
    return sources;
}

QVariantList byType(char const* field, QVariantList const& values)
{
    QVariantList records;
    for (int type = 0; type < values.size(); ++type)
        records << QVariantMap{{"type", type}, {field, values.at(type)}};
    return records;
}

QStringList antennaWords()
{
    return QStringList() << ""
                         << "NONE" << antennaNames();
}

setting_t readOnly(char const* group, QVariant const& start)
{
    return {group, READ_ONLY, start, rule_t(), QString(), nullptr};
}

setting_t readOnlyKeyed(char const* group, char const* key, QVariantList const& start)
{
    return {group, READ_ONLY, start, rule_t(), key, nullptr};
}

setting_t plain(char const* group, QVariant const& start, rule_t const& rule, adjust_t adjust = nullptr)
{
    return {group, READ_WRITE, start, rule, QString(), adjust};
}

setting_t keyed(char const* group, char const* key, QVariantList const& start, rule_t const& rule,
                adjust_t adjust = nullptr)
{
    return {group, READ_WRITE, start, rule, key, adjust};
}

QList<setting_t> solutionSettings()
{
    return {
        plain("elevationMask", 7.0, number(0, 90)),
        plain("pdopLimit", 25.0, number(1, 100)),
        plain("geoidalModel", 1, whole(0, 2)),
        keyed("correctionEnabled", "type", byType("enabled", {true, true, false}),
              record({{"type", whole(0, 2)}, {"enabled", flag()}})),
        keyed("correctionMaxAge", "type", byType("seconds", {60, 180, 1200}),
              record({{"type", whole(0, 2)}, {"seconds", whole(0, 3600, CLAMP)}})),
        plain("ntripPPP", QVariantMap{{"mode", 0}, {"protocol", 0}},
              record({{"mode", whole(0, 1)}, {"protocol", whole(0, 1)}})),
        plain("measUse", QVariantList{meas("GPS", true), meas("GLO", true), meas("GAL", true), meas("BEI", true)},
              listOf(record({{"name", text(16)}, {"use", flag()}})), &adjustMeasUse),
        plain("dynamicConfig", QVariantMap{{"autoMode", false}, {"mode", 2}, {"velocitySmoothing", false}},
              record({{"autoMode", flag()}, {"mode", whole(0, 3)}, {"velocitySmoothing", flag()}}),
              &adjustDynamicConfig),
        plain(
            "ppsConfig",
            QVariantMap{{"polarity", 1}, {"width", 50000}, {"interval", 1000}, {"signalDelay", 0}, {"chipDelay", 120}},
            record({{"polarity", whole(0, 1)},
                    {"width", whole(0, 1600000, CLAMP)},
                    {"interval", whole(1, 32768, CLAMP)},
                    {"signalDelay", whole(0, 32768, CLAMP)},
                    {"chipDelay", whole(0, 999999, CLAMP)}})),
    };
}

QList<setting_t> antennaSettings()
{
    rule_t const info = record({{"name", word(antennaWords())}, {"serial", text(32)}, {"id", whole(0, 255)}});
    rule_t const height = record({{"useAdjustments", flag()},
                                  {"height", number(-32768, 32767)},
                                  {"slantRange", number(-32768, 32767)},
                                  {"radius", number(-32768, 32767)}});
    return {
        plain("antennaAlignment", QVariantMap{{"mode", 0}, {"angle", 0.0}},
              record({{"mode", whole(0, 2)}, {"angle", number(0, 359.99)}}), &adjustAntennaAlignment),
        plain("antennaInfo",
              QVariantList{antennaInfo("MVXGA400         NONE", "MA4-10287", 1),
                           antennaInfo("MVXGA400         NONE", "MA4-10291", 2)},
              listOf(info, 2)),
        plain("antennaHeight", QVariantList{antennaHeight(false, 52.1, 0.0, 0.0), antennaHeight(false, 52.1, 0.0, 0.0)},
              listOf(height, 2)),
        plain("antennaRemote", QVariantMap{{"automatic", true}, {"name", "MVXBASE2         NONE"}},
              record({{"automatic", flag()}, {"name", word(antennaWords())}}), &adjustAntennaRemote),
        plain("antennaDualMode", "DEFAULT", word({"DEFAULT", "SFONLY"})),
    };
}

QList<setting_t> correctionSettings()
{
    return {
        plain("correctionSelection", 0, whole(0, 1)),
        readOnly("netPriority", 0),
        readOnly("rtgUseMode", 1),
        readOnly("correctionSats",
                 QVariantList{satellite(446, -97.5, 41, 3, "UA"), satellite(625, 15.0, 28, 1, "U"),
                              satellite(643, 143.5, 12, 2, "AC"), satellite(678, -54.0, 35, 1, "UC")}),
        readOnly("correctionSatStats", QVariantMap{{"inUse", 446},
                                                   {"sats", QVariantList{satelliteStats(446, 1, 9, 17.3, 98.2),
                                                                         satelliteStats(678, 2, 7, 9.1, 61.0)}}}),
        plain("userCorrectionSat", QVariantMap{{"defined", false}, {"id", 0}, {"frequency", 0.0}},
              record({{"defined", flag()},
                      {"id", optional(whole(0, 65535))},
                      {"frequency", optional(number(0, 2000000, REFUSE))}}),
              &adjustUserCorrectionSat),
        plain("correctionSatSelection", QVariantMap{{"auto", true}, {"id", 446}},
              record({{"auto", flag()}, {"id", optional(whole(0, 65535))}}), &adjustCorrectionSatSelection),
        readOnly("mrvAlmanacInfo", QVariantMap{{"updateTime", 1767139200.0}}),
        readOnly("starfireAlmStatus", QVariantMap{{"newReady", true}}),
        plain("starfireAlmSwitchPolicy", QVariantMap{{"mode", 0}, {"hours", 2}, {"minutes", 0}},
              record({{"mode", whole(0, 1)}, {"hours", whole(0, 24, CLAMP)}, {"minutes", whole(0, 59, CLAMP)}}),
              &adjustStarfireAlmSwitchPolicy),
        plain("diffConfig",
              QVariantMap{{"mode", 0}, {"stationId", 0}, {"dynamic", true}, {"port", 1}, {"portSet", false}},
              record({{"mode", whole(0, 2)},
                      {"stationId", whole(0, 1023)},
                      {"dynamic", flag()},
                      {"port", portOrNone()},
                      {"portSet", flag()}}),
              &adjustDiffConfig),
        plain("rtcmVersion", 0, whole(0, 1), &adjustRtcmVersion),
        plain("baseName", "BASE 1", text(31)),
        plain("basePosition", QVariantMap{{"latitude", 0.5907}, {"longitude", -2.0596}, {"height", 38.42}},
              record({{"latitude", number(-HALF_TURN / 2 - ROUNDING, HALF_TURN / 2 + ROUNDING, REFUSE)},
                      {"longitude", number(-2 * HALF_TURN - ROUNDING, 2 * HALF_TURN + ROUNDING, REFUSE)},
                      {"height", number(-1000, 20000)}})),
    };
}

QList<setting_t> portSettings()
{
    rule_t const serial = record({{"port", whole(0, NUM_PHYSICAL_PORTS - 1)},
                                  {"baud", wholeOf({1200, 2400, 4800, 9600, 19200, 38400, 57600, 115200, 230400})},
                                  {"charSize", whole(0, 1)},
                                  {"parity", whole(0, 2)},
                                  {"stopBits", whole(0, 1)}});
    rule_t const vcom = record({{"port", whole(FIRST_VIRTUAL_PORT, NUM_PORTS - 1)},
                                {"enabled", flag()},
                                {"mode", whole(0, 1)},
                                {"remoteAddress", ipAddress()},
                                {"remotePort", whole(0, 65535)},
                                {"localPort", whole(0, 65535)}});
    rule_t const ethernet = record({{"source", whole(0, 1)},
                                    {"dhcp", optional(flag(), false)},
                                    {"ipAddress", optional(ipAddress())},
                                    {"netmask", optional(ipAddress())},
                                    {"gateway", optional(ipAddress())},
                                    {"dns1", optional(ipAddress())},
                                    {"dns2", optional(ipAddress())}});
    return {
        plain("ggaMode", QVariantMap{{"mode", 0}, {"quality", 2}, {"scaling", 0}},
              record({{"mode", whole(0, 1)}, {"quality", whole(0, 2)}, {"scaling", whole(0, 2)}}), &adjustGgaMode),
        plain("talkerIdMode", 0, whole(0, 2)),
        keyed("serialConfig", "port", serialConfigs(), serial),
        readOnlyKeyed("serialRs232Mode", "port", serialRs232Modes()),
        keyed("vcomConfig", "port", vcomConfigs(), vcom),
        plain("usbMode", 0, whole(0, 1)),
        keyed("ethernetConfig", "source", ethernetConfigs(), ethernet, &adjustEthernetConfig),
        plain("webControl", QVariantMap{{"enabled", true}}, record({{"enabled", flag()}})),
        readOnly("productInfo", QVariantMap{{"serialNumber", "MVX0041873"}, {"modelName", "Melvox M8"}}),
        readOnly(
            "irdmStat",
            QVariantMap{{"imei", "300125061874090"}, {"provisioningStatus", "PROVISIONED"}, {"modemStatus", "ON"}}),
    };
}

} // namespace

QStringList const& antennaNames()
{
    static QStringList const names = {
        "MVXGA400         NONE", "MVXGA400         MVXD", "MVXGA410         NONE", "MVXGA410         MVXD",
        "MVXBASE2         NONE", "MVXBASE2         MVXD", "MVXHP7           NONE", "MVXHP7           CONE",
        "MVXTWIN3         NONE", "MVXMARINE1       NONE", "MVXAERO2         NONE", "MVXCHOKE         NONE",
        "MVXCHOKE         MVXC", "MVXROVER5        NONE", "MVXROVER5        MVXD", "MVXSMALL1        NONE"};
    return names;
}

QList<setting_t> const& settingsTable()
{
    static QList<setting_t> const table =
        solutionSettings() + antennaSettings() + correctionSettings() + portSettings();
    return table;
}

setting_t const* findSetting(QString const& group)
{
    for (setting_t const& setting : settingsTable())
    {
        if (setting.group == group)
            return &setting;
    }
    return nullptr;
}

settings_t startSettings()
{
    settings_t settings;
    for (setting_t const& setting : settingsTable())
        settings.insert(setting.group, setting.start);
    return settings;
}

} // namespace melvox_receiver
