#include "proxycheck/groupRows.h"

#include "proxycheck/proxyText.h"

#include <QTemporaryFile>

#include <cstring>

using namespace brel_common_qt;

namespace melvox_proxycheck
{

namespace
{

typedef groupRow_t row_t;
typedef std::vector<groupRow_t> rows_t;

QVariantMap fields()
{
    return QVariantMap();
}

/** The fields of a record: fields("type", 1, "enabled", true). */
template <typename... more_t> QVariantMap fields(char const* name, QVariant const& value, more_t const&... more)
{
    QVariantMap map = fields(more...);
    map.insert(name, value);
    return map;
}

QVariantList entries()
{
    return QVariantList();
}

template <typename... more_t> QVariantList entries(QVariant const& entry, more_t const&... more)
{
    return QVariantList() << entry << entries(more...);
}

QVariant nothing()
{
    return QVariant();
}

/** A value that means something only while it is valid. */
template <typename... value_t> QString when(bool valid, value_t const&... values)
{
    return valid ? "valid" + joined(values...) : QString("not valid");
}

/** What a getter by key says. It is asked twice, with two things in its output, so that one sees what it leaves. */
template <typename value_t, typename getter_t> QString byKey(getter_t get, value_t one, value_t other)
{
    value_t first = one;
    value_t second = other;
    bool const found = get(first);
    if (get(second) != found)
        return " sometimes";
    if (!found)
        return first == one && second == other ? " -" : " overwritten";
    return first == second ? joined(first) : QString(" not set");
}

/** A key beyond the range is worth a word only when something is found there. */
QString beyond(QString const& found, QString const& unknown)
{
    return found == unknown ? QString() : " beyond the range" + found;
}

QString correctionEnabled(device_t const& d, int type)
{
    return byKey([&](bool& enabled) { return d.getCorrectionEnabled(melvoxCorrectionType_t(type), enabled); }, false,
                 true);
}

QString correctionMaxAge(device_t const& d, int type)
{
    return byKey([&](unsigned int& age) { return d.getCorrectionMaxAge(melvoxCorrectionType_t(type), age); }, 77u, 78u);
}

/** Of all correction types, and of those before and behind them. */
template <typename of_t> QString ofTypes(device_t const& d, of_t of)
{
    QString all;
    for (int type = MELVOX_CORR_TYPE_RTCM19; type <= MELVOX_CORR_TYPE_RTG; ++type)
        all += of(d, type);
    all += beyond(of(d, MELVOX_CORR_TYPE_RTCM19 - 1), " -") + beyond(of(d, MELVOX_CORR_TYPE_RTG + 1), " -");
    return all.mid(1);
}

QString correctionsEnabled(device_t const& d)
{
    return ofTypes(d, correctionEnabled);
}

QString correctionMaxAges(device_t const& d)
{
    return ofTypes(d, correctionMaxAge);
}

QString measUse(device_t const& d)
{
    QString all;
    for (char const* name : {"GPS", "GLO", "GAL", "BEI"})
        all += byKey([&](bool& use) { return d.getMeasUse(name, use); }, false, true);
    all += beyond(byKey([&](bool& use) { return d.getMeasUse("", use); }, false, true), " -");
    return all.mid(1);
}

QString ethernetSource(device_t const& d, int source)
{
    melvoxEthernetConfigSource_t const s = melvoxEthernetConfigSource_t(source);
    return joined(d.ethernetConfig(s), d.ethernetConfigDhcp(s));
}

QString ethernetConfig(device_t const& d)
{
    QString all;
    for (int source = MELVOX_ETH_CFG_SOURCE_CABLE; source < MELVOX_NUM_ETH_CFG_SOURCES; ++source)
        all += ethernetSource(d, source);
    all += beyond(ethernetSource(d, MELVOX_ETH_CFG_SOURCE_UNKNOWN), " null no");
    return all.mid(1);
}

QString firmwareVersions(device_t const& d)
{
    QString all;
    for (melvoxFirmwareVersion_t const& version : d.firmwareVersions())
        all += joined(version.first, version.second);
    return all.mid(1);
}

template <typename entry_t> QString atPorts(device_t const& d, entry_t const* (device_t::*getter)(melvoxPort_t) const)
{
    QString all;
    for (int port = MELVOX_PORT_FIRST; port < MELVOX_NUM_PORTS; ++port)
    {
        entry_t const* const entry = (d.*getter)(melvoxPort_t(port));
        if (entry)
            all += joined(port, *entry);
    }
    for (int port : {MELVOX_PORT_FIRST - 1, int(MELVOX_PORT_UNKNOWN)})
        all += beyond(joined((d.*getter)(melvoxPort_t(port))), " null");
    return all.mid(1);
}

/** The list of a port, and one message of it on its own. */
QString outputs(device_t const& d)
{
    QString all = atPorts(d, &device_t::portOutputs);
    melvoxMessageOutput_t const* const one = d.messageOutput(MELVOX_PORT_ETH8, "NMEAGGA");
    return one ? all + ", NMEAGGA" + joined(*one) : all;
}

QVariantMap navInfo(int first)
{
    QVariantMap all = fields("valid", true, "gpsWeek", first + 2230, "gpsTime", first + 345600.25, "navValid", first,
                             "datum", first + 1, "geoid", first + 2, "navMode", 4, "navSource", 5, "stationId",
                             first + 5, "failureCode", first + 6);
    double number = first + 7.5;
    for (char const* name : {"setDeltaNorth", "setDeltaEast", "setDeltaUp", "latError", "lonError", "heightError",
                             "velocityNorth", "velocityEast", "velocityUp"})
        all.insert(name, number++);
    return all;
}

QVariantMap antennaInfo(char const* name, char const* serial, int id)
{
    return fields("name", name, "serial", serial, "id", id);
}

QVariantMap antennaHeight(bool useAdjustments, double height)
{
    return fields("useAdjustments", useAdjustments, "height", height, "slantRange", height + 1, "radius", height + 2);
}

QVariantMap sat(int id, double longitude, int lookAngle, bool flag)
{
    return fields("id", id, "longitude", longitude, "lookAngle", lookAngle, "net1", flag, "net2", !flag, "flagU", flag,
                  "flagA", !flag, "flagC", flag);
}

QVariantMap satStats(int id, double number)
{
    return fields("id", id, "beam", 2, "status", 9, "strength", number, "agcVoltage", number / 2, "goodPercent",
                  number + 90, "idlePercent", number / 4, "resyncCount", 8, "frequencyOffset", -number);
}

QVariantMap output(int port, char const* message, int method, double interval)
{
    return fields("port", port, "message", message, "method", method, "interval", interval);
}

QVariantMap ethernet(int source, bool dhcp, unsigned int first)
{
    return fields("source", source, "dhcp", dhcp, "ipAddress", first, "netmask", first + 1, "gateway", first + 2,
                  "dns1", first + 3, "dns2", first + 4);
}

/** A file to send, as long as the program runs. */
QTemporaryFile const& sampleFile()
{
    static QTemporaryFile file;
    if (!file.isOpen())
    {
        if (!file.open() || file.write("sample") < 0)
            qFatal("cannot write a file to %s", qPrintable(file.fileTemplate()));
        file.flush();
    }
    return file;
}

std::string samplePath()
{
    QByteArray const path = sampleFile().fileName().toUtf8();
    return std::string(path.constData(), std::size_t(path.size()));
}

QVariantMap sample(char const* pathField, char const* sizeField)
{
    return fields(pathField, sampleFile().fileName(), sizeField, int(sampleFile().size()));
}

void uploadBlock(device_t& d)
{
    QExplicitlySharedDataPointer<buffer_t> const block(new buffer_t(4));
    block->setLength(4);
    std::memcpy(block->data(), "abcd", 4);
    d.port()->uploadData(block);
}

void startUpdate(device_t& d)
{
    melvoxFirmwareUpdateComponent_t const component = {3, MELVOX_FW_COMP_NAV, samplePath()};
    d.startFirmwareUpdate(QList<melvoxFirmwareUpdateComponent_t>() << component, "");
}

// clang-format off

rows_t solutionRows()
{
    return {
        {"elevationMask", row_t::EACH, &device_t::queryElevationMask,
            [](device_t const& d) { return when(d.elevationMaskValid(), d.elevationMask()); }, "not valid",
            {{12.5, "elevationMaskUpdated 12.5", "valid 12.5"}, {7.25, "elevationMaskUpdated 7.25", "valid 7.25"}},
            {{"setElevationMask", [](device_t& d) { d.setElevationMask(15.5); }, 15.5}}},
        {"pdopLimit", row_t::EACH, &device_t::queryPdopLimit,
            [](device_t const& d) { return when(d.pdopLimitValid(), d.pdopLimit()); }, "not valid",
            {{4.75, "pdopLimitUpdated 4.75", "valid 4.75"}, {6.5, "pdopLimitUpdated 6.5", "valid 6.5"}},
            {{"setPdopLimit", [](device_t& d) { d.setPdopLimit(8.25); }, 8.25}}},
        {"geoidalModel", row_t::EACH, &device_t::queryGeoidalModel,
            [](device_t const& d) { return when(d.geoidalModelValid(), d.geoidalModel()); }, "not valid",
            {{2, "geoidalModelUpdated 2", "valid 2"}, {1, "geoidalModelUpdated 1", "valid 1"}},
            {{"setGeoidalModel", [](device_t& d) { d.setGeoidalModel(MELVOX_GEOIDAL_MODEL_DEFAULT); }, 2}}},
        {"correctionEnabled", row_t::EACH, &device_t::queryCorrectionsEnabled, correctionsEnabled, "- - -",
            {{fields("type", 1, "enabled", true), "correctionEnabledUpdated 1 yes", "- yes -"},
             {fields("type", 0, "enabled", false), "correctionEnabledUpdated 0 no", "no yes -"},
             {fields("type", 1, "enabled", false), "correctionEnabledUpdated 1 no", "no no -"}},
            {{"setCorrectionEnabled", [](device_t& d) { d.setCorrectionEnabled(MELVOX_CORR_TYPE_RTG, true); },
                fields("type", 2, "enabled", true)}}},
        {"correctionMaxAge", row_t::EACH, &device_t::queryCorrectionsMaxAge, correctionMaxAges, "- - -",
            {{fields("type", 2, "seconds", 1200), "correctionMaxAgeUpdated 2 1200", "- - 1200"},
             {fields("type", 0, "seconds", 60), "correctionMaxAgeUpdated 0 60", "60 - 1200"},
             {fields("type", 2, "seconds", 90), "correctionMaxAgeUpdated 2 90", "60 - 90"}},
            {{"setCorrectionMaxAge", [](device_t& d) { d.setCorrectionMaxAge(MELVOX_CORR_TYPE_SBAS, 180); },
                fields("type", 1, "seconds", 180)}}},
        {"ntripPPP", row_t::EACH, &device_t::queryNtripPPPMode,
            [](device_t const& d) { return when(d.ntripPPPModeValid(), d.ntripPPP()); }, "not valid",
            {{fields("mode", 1, "protocol", 0), "ntripPPPModeUpdated (1 0)", "valid (1 0)"},
             {fields("mode", 0, "protocol", 1), "ntripPPPModeUpdated (0 1)", "valid (0 1)"}},
            {{"setNtripPPPMode", [](device_t& d)
                {
                    melvoxNtripPPP_t const mode = {MELVOX_NTRIP_PPP_MODE_ON, MELVOX_NTRIP_PPP_MODE_HTTP};
                    d.setNtripPPPMode(mode);
                },
                fields("mode", 1, "protocol", 0)}}},
        {"ppsConfig", row_t::EACH, &device_t::queryPpsConfig,
            [](device_t const& d) { return when(d.ppsConfigValid(), d.ppsConfig()); }, "not valid",
            {{fields("polarity", 1, "width", 1600000, "interval", 32768, "signalDelay", 2, "chipDelay", 999999),
                "ppsConfigUpdated (1 1600000 32768 2 999999)", "valid (1 1600000 32768 2 999999)"},
             {fields("polarity", 0, "width", 50000, "interval", 1000, "signalDelay", 3, "chipDelay", 120),
                "ppsConfigUpdated (0 50000 1000 3 120)", "valid (0 50000 1000 3 120)"}},
            {{"setPpsConfig", [](device_t& d)
                {
                    melvoxPpsConfig_t const config = {1, 160000, 500, 7, 130};
                    d.setPpsConfig(config);
                },
                fields("polarity", 1, "width", 160000, "interval", 500, "signalDelay", 7, "chipDelay", 130)}}},
    };
}

rows_t navigationRows()
{
    return {
        {"measUse", row_t::EACH, &device_t::queryMeasUse, measUse, "- - - -",
            {{entries(fields("name", "GPS", "use", true), fields("name", "GLO", "use", false),
                      fields("name", "BEI", "use", true)),
                "measUseUpdated [(\"GPS\" yes), (\"GLO\" no), (\"BEI\" yes)]", "yes no - yes"},
             {entries(fields("name", "GPS", "use", true), fields("name", "GAL", "use", true)),
                "measUseUpdated [(\"GPS\" yes), (\"GAL\" yes)]", "yes - yes -"}},
            {{"setMeasUse", [](device_t& d)
                {
                    meas_t const glonass = {"GLO", true};
                    meas_t const galileo = {"GAL", false};
                    d.setMeasUse(QList<meas_t>() << glonass << galileo);
                },
                entries(fields("name", "GLO", "use", true), fields("name", "GAL", "use", false))}}},
        {"dynamicConfig", row_t::EACH, &device_t::queryDynamicConfig,
            [](device_t const& d) { return when(d.dynamicConfigValid(), d.dynamicConfig()); }, "not valid",
            {{fields("autoMode", true, "mode", 3, "velocitySmoothing", false),
                "dynamicConfigUpdated (yes 3 no)", "valid (yes 3 no)"},
             {fields("autoMode", false, "mode", 2, "velocitySmoothing", true),
                "dynamicConfigUpdated (no 2 yes)", "valid (no 2 yes)"}},
            {{"setDynamicConfig", [](device_t& d)
                {
                    melvoxDynamicConfig_t const config = {false, MELVOX_DYN_MODE_LOW, true};
                    d.setDynamicConfig(config);
                },
                fields("autoMode", false, "mode", 1, "velocitySmoothing", true)}}},
        {"extendedNavInfo", row_t::EACH, 0,
            [](device_t const& d) { return when(d.extendedNavInfoValid(), d.extendedNavInfo()); }, "not valid",
            {{navInfo(1), "extendedNavInfoUpdated",
                "valid (2231 345601.25 1 2 3 4 5 6 7 8.5 9.5 10.5 11.5 12.5 13.5 14.5 15.5 16.5)"},
             {fields("valid", false), "extendedNavInfoUpdated", "not valid"},
             {navInfo(2), "extendedNavInfoUpdated",
                "valid (2232 345602.25 2 3 4 4 5 7 8 9.5 10.5 11.5 12.5 13.5 14.5 15.5 16.5 17.5)"}},
            {}},
        {"vhdInfo", row_t::EACH, 0, 0, 0,
            {{fields("rawHeading", 359.5, "attitude", -1.25, "baseline", 2.5, "headingRms", 0.125),
                "vhdInfoUpdated 359.5 -1.25 2.5 0.125", 0},
             {fields("rawHeading", 12.5, "attitude", 3.75, "baseline", 1.5, "headingRms", 0.25),
                "vhdInfoUpdated 12.5 3.75 1.5 0.25", 0}},
            {}},
    };
}

rows_t antennaRows()
{
    return {
        {"antennaAlignment", row_t::EACH, &device_t::queryAntennaAlignment,
            [](device_t const& d)
            { return when(d.antennaAlignmentValid(), d.antennaAlignmentMode(), d.antennaAlignmentUserAngle()); },
            "not valid",
            {{fields("mode", 2, "angle", 359.99),
                "antennaAlignmentModeUpdated 2; antennaAlignmentUserAngleUpdated 359.99", "valid 2 359.99"},
             {fields("mode", 1, "angle", 0.5),
                "antennaAlignmentModeUpdated 1; antennaAlignmentUserAngleUpdated 0.5", "valid 1 0.5"}},
            {{"setAntennaAlignment",
                [](device_t& d) { d.setAntennaAlignment(MELVOX_ANT_ALIGN_MODE_USER_SPECIFIED, 45.5f); },
                fields("mode", 2, "angle", 45.5)}}},
        {"antennaInfo", row_t::EACH, &device_t::queryAntennaInfo,
            [](device_t const& d)
            {
                return when(d.antennaInfoValid(), d.antennaInfo(MELVOX_ANTENNA_FIRST),
                            d.antennaInfo(MELVOX_ANTENNA_SECOND));
            },
            "not valid",
            {{entries(antennaInfo("AOAD/M_T", "S 1", 17), antennaInfo("NAX3G+C", "S 2", 254)), "antennaInfosUpdated",
                "valid (\"AOAD/M_T\" \"S 1\" 17) (\"NAX3G+C\" \"S 2\" 254)"},
             {entries(antennaInfo("NONE", "S 3", 1), antennaInfo("AOAD/M_T", "S 4", 2)), "antennaInfosUpdated",
                "valid (\"NONE\" \"S 3\" 1) (\"AOAD/M_T\" \"S 4\" 2)"}},
            {{"setAntennaInfo", [](device_t& d)
                {
                    melvoxAntennaInfo_t const first = {"NONE", "S 5", 3};
                    melvoxAntennaInfo_t const second = {"NAX3G+C", "S 6", 4};
                    d.setAntennaInfo(first, second);
                },
                entries(antennaInfo("NONE", "S 5", 3), antennaInfo("NAX3G+C", "S 6", 4))}}},
        {"antennaHeight", row_t::EACH, &device_t::queryAntennaHeight,
            [](device_t const& d)
            {
                return when(d.antennaHeightValid(), d.antennaHeight(MELVOX_ANTENNA_FIRST),
                            d.antennaHeight(MELVOX_ANTENNA_SECOND));
            },
            "not valid",
            {{entries(antennaHeight(true, 1.5), antennaHeight(false, 4.5)), "antennaHeightsUpdated",
                "valid (yes 1.5 2.5 3.5) (no 4.5 5.5 6.5)"},
             {entries(antennaHeight(false, 7.25), antennaHeight(true, 10.25)), "antennaHeightsUpdated",
                "valid (no 7.25 8.25 9.25) (yes 10.25 11.25 12.25)"}},
            {{"setAntennaHeight", [](device_t& d)
                {
                    melvoxAntennaHeight_t const first = {true, 20.5, 21.5, 22.5};
                    melvoxAntennaHeight_t const second = {false, 30.5, 31.5, 32.5};
                    d.setAntennaHeight(first, second);
                },
                entries(antennaHeight(true, 20.5), antennaHeight(false, 30.5))}}},
        {"antennaRemote", row_t::EACH, &device_t::queryAntennaRemote,
            [](device_t const& d) { return when(d.antennaRemoteValid(), d.antennaRemote()); }, "not valid",
            {{fields("automatic", true, "name", "AOAD/M_T"),
                "antennaRemoteUpdated (yes \"AOAD/M_T\")", "valid (yes \"AOAD/M_T\")"},
             {fields("automatic", false, "name", "NONE"),
                "antennaRemoteUpdated (no \"NONE\")", "valid (no \"NONE\")"}},
            {{"setAntennaRemote", [](device_t& d)
                {
                    melvoxAntennaRemote_t const remote = {true, "NAX3G+C"};
                    d.setAntennaRemote(remote);
                },
                fields("automatic", true, "name", "NAX3G+C")}}},
        {"antennaDualMode", row_t::EACH, &device_t::queryAntennaDualMode,
            [](device_t const& d) { return when(d.antennaDualModeValid(), d.antennaDualMode()); }, "not valid",
            {{"SFONLY", "antennaDualModeUpdated \"SFONLY\"", "valid \"SFONLY\""},
             {"DEFAULT", "antennaDualModeUpdated \"DEFAULT\"", "valid \"DEFAULT\""}},
            {{"setAntennaDualMode", [](device_t& d) { d.setAntennaDualMode("SFONLY"); }, "SFONLY"}}},
        {"antennaList", row_t::LIST, 0,
            [](device_t const& d) { return d.antennaList().join("|"); }, "",
            {{nothing(), "antennaListReset", "", "antennaListReset"},
             {"NAX3G+C", "antennaNameAdded \"NAX3G+C\"", "NAX3G+C", "antennaName"},
             {"AOAD/M_T", "antennaNameAdded \"AOAD/M_T\"", "NAX3G+C|AOAD/M_T", "antennaName"},
             {nothing(), "antennaListReset", "", "antennaListReset"},
             {"NONE", "antennaNameAdded \"NONE\"", "NONE", "antennaName"}},
            {}},
    };
}

rows_t correctionRows()
{
    return {
        {"correctionSelection", row_t::EACH, &device_t::queryCorrectionSelection,
            [](device_t const& d) { return when(d.correctionSelectionValid(), d.correctionSelection()); }, "not valid",
            {{1, "correctionSelectionUpdated 1", "valid 1"}, {0, "correctionSelectionUpdated 0", "valid 0"}},
            {{"setCorrectionSelection",
                [](device_t& d) { d.setCorrectionSelection(MELVOX_CORRECTION_SELECTION_SECONDARY); }, 1}}},
        {"netPriority", row_t::EACH, &device_t::queryNetPriority,
            [](device_t const& d) { return when(d.netPriorityValid()); }, "not valid",
            {{1, "netPriorityUpdated 1", "valid"}, {0, "netPriorityUpdated 0", "valid"}}, {}},
        {"rtgUseMode", row_t::EACH, &device_t::queryRtgUseMode,
            [](device_t const& d) { return when(d.rtgUseModeValid()); }, "not valid",
            {{1, "rtgUseModeUpdated 1", "valid"}, {0, "rtgUseModeUpdated 0", "valid"}}, {}},
        {"correctionSats", row_t::EACH, &device_t::queryCorrectionSats,
            [](device_t const& d) { return text(d.correctionSats()); }, "{}",
            {{entries(sat(643, 15.5, 31, false), sat(609, -97.5, 7, true)), "correctionSatsUpdated",
                "{609: (609 -97.5 7 yes no yes no yes), 643: (643 15.5 31 no yes no yes no)}"},
             {entries(sat(446, -54.5, 12, false)), "correctionSatsUpdated",
                "{446: (446 -54.5 12 no yes no yes no)}"},
             {entries(), "correctionSatsUpdated", "{}"}},
            {}},
        {"correctionSatStats", row_t::EACH, 0,
            [](device_t const& d)
            {
                return text(d.correctionSatStats()) + ' ' + when(d.correctionSatInUseValid(), d.correctionSatInUse());
            },
            "{} not valid",
            {{fields("inUse", 609, "sats", entries(satStats(609, 4.5))), "correctionSatStatsUpdated",
                "{609: (609 2 9 4.5 2.25 94.5 1.125 8 -4.5)} valid 609"},
             {fields("inUse", 0, "sats", entries(satStats(446, 5.5))), "correctionSatStatsUpdated",
                "{446: (446 2 9 5.5 2.75 95.5 1.375 8 -5.5)} not valid"}},
            {}},
        {"correctionSatSelection", row_t::EACH, &device_t::queryCorrectionSatSelected,
            [](device_t const& d) { return when(d.correctionSatSelectionValid(), d.correctionSatSelectionIsAuto()); },
            "not valid",
            {{fields("auto", false, "id", 643), "correctionSatSelected 643", "valid no"},
             {fields("auto", true, "id", 0), "correctionSatAutoSelected", "valid yes"}},
            {{"selectCorrectionSat", [](device_t& d) { d.selectCorrectionSat(678); }, fields("auto", false, "id", 678)},
             {"autoSelectCorrectionSat", [](device_t& d) { d.autoSelectCorrectionSat(); },
                fields("auto", true, "id", 0)}}},
        {"userCorrectionSat", row_t::EACH, 0,
            [](device_t const& d)
            {
                return when(d.userCorrectionSatValid(), d.userCorrectionSatDefined(), d.userCorrectionSatId(),
                            double(d.userCorrectionSatFrequency()));
            },
            "not valid",
            {{fields("defined", true, "id", 123, "frequency", 1545512.5), "userCorrectionSatUpdated",
                "valid yes 123 1545512.5"},
             {fields("defined", false, "id", 7, "frequency", 1525000.0), "userCorrectionSatUpdated",
                "valid no 7 1525000"}},
            {{"defineUserCorrectionSat", [](device_t& d) { d.defineUserCorrectionSat(124, 1545000.5f); },
                fields("defined", true, "id", 124, "frequency", 1545000.5)},
             {"deleteUserCorrectionSat", [](device_t& d) { d.deleteUserCorrectionSat(); }, fields("defined", false)}}},
        {"mrvAlmanacInfo", row_t::EACH, &device_t::queryMrvAlmanacInfo,
            [](device_t const& d) { return when(d.mrvAlmanacInfoValid(), d.mrvAlmanacInfo().updateTime); }, "not valid",
            {{fields("updateTime", 1795000000.25), "mrvAlmanacInfoUpdated", "valid 1795000000.25"},
             {fields("updateTime", 1795000100.5), "mrvAlmanacInfoUpdated", "valid 1795000100.5"}},
            {}},
        {"starfireAlmStatus", row_t::EACH, &device_t::queryStarfireAlmStatus,
            [](device_t const& d) { return when(d.starfireAlmStatusValid(), d.newStarfireAlmReady()); }, "not valid",
            {{fields("newReady", true), "starfireAlmStatusUpdated", "valid yes"},
             {fields("newReady", false), "starfireAlmStatusUpdated", "valid no"}},
            {{"useNewStarfireAlm", [](device_t& d) { d.useNewStarfireAlm(); }, nothing(), "useNewStarfireAlm"}}},
        {"starfireAlmSwitchPolicy", row_t::EACH, &device_t::queryStarfireAlmSwitchPolicy,
            [](device_t const& d) { return when(d.starfireAlmSwitchPolicyValid(), d.starfireAlmSwitchPolicy()); },
            "not valid",
            {{fields("mode", 1, "hours", 23, "minutes", 59), "starfireAlmSwitchPolicyUpdated", "valid (1 23 59)"},
             {fields("mode", 0, "hours", 2, "minutes", 30), "starfireAlmSwitchPolicyUpdated", "valid (0 2 30)"}},
            {{"setStarfireAlmSwitchPolicy", [](device_t& d)
                {
                    melvoxStarfireAlmSwitchPolicy_t const policy = {MELVOX_STARFIRE_ALM_SWITCH_MODE_MANUAL, 4, 5};
                    d.setStarfireAlmSwitchPolicy(policy);
                },
                fields("mode", 1, "hours", 4, "minutes", 5)}}},
    };
}

rows_t differentialRows()
{
    return {
        {"diffConfig", row_t::EACH, &device_t::queryDiffConfig,
            [](device_t const& d) { return when(d.diffConfigValid(), d.diffConfig()); }, "not valid",
            {{fields("mode", 2, "stationId", 1023, "dynamic", false, "port", 13, "portSet", true),
                "diffConfigUpdated (2 1023 no 13 yes)", "valid (2 1023 no 13 yes)"},
             {fields("mode", 0, "stationId", 5, "dynamic", true, "port", 1, "portSet", false),
                "diffConfigUpdated (0 5 yes 1 no)", "valid (0 5 yes 1 no)"}},
            {{"setDiffConfig", [](device_t& d)
                {
                    melvoxDiffConfig_t const config = {MELVOX_DIFF_MODE_BASE_RTCM1, 7, false, MELVOX_PORT_COM3, true};
                    d.setDiffConfig(config);
                },
                fields("mode", 1, "stationId", 7, "dynamic", false, "port", 2, "portSet", true)}}},
        {"rtcmVersion", row_t::EACH, &device_t::queryRtcmVersion,
            [](device_t const& d) { return when(d.rtcmVersionValid(), d.rtcmVersion()); }, "not valid",
            {{1, "rtcmVersionUpdated 1", "valid 1"}, {0, "rtcmVersionUpdated 0", "valid 0"}},
            {{"setRtcmVersion", [](device_t& d) { d.setRtcmVersion(MELVOX_RTCM_VERSION_23); }, 1}}},
        {"baseName", row_t::EACH, &device_t::queryBaseName,
            [](device_t const& d) { return when(d.baseNameValid(), d.baseName()); }, "not valid",
            {{QString::fromUtf8("S\xc3\xbc" "d"), "baseNameUpdated \"S\xc3\xbc" "d\"", "valid \"S\xc3\xbc" "d\""},
             {"NORTH FIELD", "baseNameUpdated \"NORTH FIELD\"", "valid \"NORTH FIELD\""}},
            {{"setBaseName", [](device_t& d) { d.setBaseName("EAST 2"); }, "EAST 2"}}},
        {"basePosition", row_t::EACH, &device_t::queryBasePosition,
            [](device_t const& d) { return when(d.basePositionValid(), d.basePosition()); }, "not valid",
            {{fields("latitude", 0.5, "longitude", -1.75, "height", 102.25),
                "basePositionUpdated (0.5 -1.75 102.25)", "valid (0.5 -1.75 102.25)"},
             {fields("latitude", -0.25, "longitude", 2.5, "height", -3.5),
                "basePositionUpdated (-0.25 2.5 -3.5)", "valid (-0.25 2.5 -3.5)"}},
            {{"setBasePosition", [](device_t& d)
                {
                    melvoxBasePosition_t const position = {0.75, -1.25, 99.5};
                    d.setBasePosition(position);
                },
                fields("latitude", 0.75, "longitude", -1.25, "height", 99.5)}}},
    };
}

rows_t outputRows()
{
    return {
        {"activePort", row_t::EACH, &device_t::queryActivePort,
            [](device_t const& d) { return when(d.activePortValid(), d.activePort()); }, "not valid",
            {{4, "activePortUpdated 4", "valid 4"}, {14, "activePortUpdated 14", "valid 14"}}, {}},
        {"outputs", row_t::LIST, &device_t::queryAllOutputs, outputs, "",
            {{nothing(), "outputsCleared", "", "outputsCleared"},
             {output(13, "NMEAGGA", 1, 0.25), "outputConfigUpdated 13 \"NMEAGGA\" (1 0.25)",
                "13 {\"NMEAGGA\": (1 0.25)}, NMEAGGA (1 0.25)", "output"},
             {output(0, "NMEAGLL", 0, 5.0), "outputConfigUpdated 0 \"NMEAGLL\" (0 5)",
                "0 {\"NMEAGLL\": (0 5)} 13 {\"NMEAGGA\": (1 0.25)}, NMEAGGA (1 0.25)", "output"},
             {nothing(), "outputsCleared", "", "outputsCleared"},
             {output(0, "NMEAVTG", 1, 1.0), "outputConfigUpdated 0 \"NMEAVTG\" (1 1)",
                "0 {\"NMEAVTG\": (1 1)}", "output"}},
            {{"setOutput", [](device_t& d)
                {
                    melvoxMessageOutput_t const output = {MELVOX_OUTPUT_METHOD_INTERVAL, 0.5};
                    d.setOutput(MELVOX_PORT_USB1, "NMEAGGA", output);
                },
                output(4, "NMEAGGA", 1, 0.5), "output"},
             {"turnOffAllOutput", [](device_t& d) { d.turnOffAllOutput(MELVOX_PORT_COM3); }, 2, "turnOffAllOutput"}}},
        {"portTxRxInfo", row_t::EACH, 0,
            [](device_t const& d) { return atPorts(d, &device_t::portTxRxInfo); }, "",
            {{fields("port", 0, "txValid", true, "rxValid", false, "txUsage", 12.5, "rxUsage", 3.5),
                "portTxRxInfoUpdated", "0 (yes no 12.5 3.5)"},
             {fields("port", 13, "txValid", false, "rxValid", true, "txUsage", 4.5, "rxUsage", 5.5),
                "portTxRxInfoUpdated", "0 (yes no 12.5 3.5) 13 (no yes 4.5 5.5)"}},
            {}},
        {"ggaMode", row_t::EACH, &device_t::queryGgaMode,
            [](device_t const& d)
            { return when(d.ggaModeValid(), d.ggaMode(), d.ggaQuality(), d.ggaCorrectionsScaling()); }, "not valid",
            {{fields("mode", 0, "quality", 1, "scaling", 2), "ggaModeUpdated", "valid 0 1 2"},
             {fields("mode", 1, "quality", 2, "scaling", 0), "ggaModeUpdated", "valid 1 2 0"}},
            {{"setGgaMode", [](device_t& d)
                { d.setGgaMode(MELVOX_GGA_MODE_HIGH_PRECISION, GGA_QUALITY_RTK, MELVOX_GGA_CORRECTIONS_SCALED); },
                fields("mode", 0, "quality", 2, "scaling", 1)}}},
        {"talkerIdMode", row_t::EACH, &device_t::queryTalkerIdMode,
            [](device_t const& d) { return when(d.talkerIdModeValid(), d.talkerIdMode()); }, "not valid",
            {{2, "talkerIdModeUpdated 2", "valid 2"}, {1, "talkerIdModeUpdated 1", "valid 1"}},
            {{"setTalkerIdMode", [](device_t& d) { d.setTalkerIdMode(MELVOX_TALKER_ID_MODE_GL); }, 2}}},
        {"showDtmWarning", row_t::EACH, 0,
            [](device_t const& d) { return text(d.showDtmWarning()); }, "yes", {},
            {{"setShowDtmWarning", [](device_t& d) { d.setShowDtmWarning(false); }, nothing(), "", "no"},
             {"setShowDtmWarning", [](device_t& d) { d.setShowDtmWarning(true); }, nothing(), "", "yes"}}},
    };
}

rows_t portRows()
{
    return {
        {"serialConfig", row_t::EACH, 0, 0, 0,
            {{fields("port", 5, "baud", 230400, "charSize", 0, "parity", 2, "stopBits", 1),
                "serialConfigUpdated 5 (230400 0 2 1)", 0},
             {fields("port", 0, "baud", 9600, "charSize", 1, "parity", 1, "stopBits", 0),
                "serialConfigUpdated 0 (9600 1 1 0)", 0}},
            {{"setSerialConfig", [](device_t& d)
                {
                    melvoxSerialPortConfig_t const config = {38400, CHAR_SIZE_7, PARITY_E, STOP_2};
                    d.setSerialConfig(MELVOX_PORT_COM4, config);
                },
                fields("port", 3, "baud", 38400, "charSize", 0, "parity", 2, "stopBits", 1)}}},
        {"serialRs232Mode", row_t::EACH, 0, 0, 0,
            {{fields("port", 3, "rs232", true), "serialRs232ModeUpdated 3 yes", 0},
             {fields("port", 0, "rs232", false), "serialRs232ModeUpdated 0 no", 0}},
            {}},
        {"vcomConfig", row_t::EACH, 0, 0, 0,
            {{fields("port", 6, "enabled", true, "mode", 1, "remoteAddress", 3232235783u, "remotePort", 5001,
                     "localPort", 65534),
                "vcomConfigUpdated 6 (yes 1 3232235783 5001 65534)", 0},
             {fields("port", 13, "enabled", false, "mode", 0, "remoteAddress", 167772161u, "remotePort", 80,
                     "localPort", 81),
                "vcomConfigUpdated 13 (no 0 167772161 80 81)", 0}},
            {{"setVcomConfig", [](device_t& d)
                {
                    melvoxVcomConfig_t const config = {true, MODE_UDP_RESTRICT, 0xC0A80107u, 5001, 65535};
                    d.setVcomConfig(MELVOX_PORT_ETH2, config);
                },
                fields("port", 7, "enabled", true, "mode", 0, "remoteAddress", 0xC0A80107u, "remotePort", 5001,
                       "localPort", 65535)}}},
        {"usbMode", row_t::EACH, &device_t::queryUsbMode,
            [](device_t const& d) { return when(d.usbModeValid(), d.usbMode()); }, "not valid",
            {{1, "usbModeUpdated 1", "valid 1"}, {0, "usbModeUpdated 0", "valid 0"}},
            {{"setUsbMode", [](device_t& d) { d.setUsbMode(MELVOX_USB_MODE_DRIVE); }, 1}}},
        {"badBaud", row_t::EACH, 0, 0, 0, {{nothing(), "badBaudDetected", 0}}, {}},
        {"portLock", row_t::ANSWERS, 0,
            [](device_t const& d) { return text(d.port()->lockState()); }, "0",
            {{2, "lockStateUpdated 2", "2"}, {0, "lockStateUpdated 0", "0"}},
            {{"setLockState", [](device_t& d) { d.port()->setLockState(PORT_LOCK_PLUGIN); }, 2}}},
        {"uploadResult", row_t::ANSWERS, 0, 0, 0,
            {{0, "uploadResult 0", 0}, {1, "uploadResult 1", 0}},
            {{"uploadData", uploadBlock, QByteArray("abcd"), "uploadData"}}},
    };
}

rows_t networkRows()
{
    return {
        {"ethernetConfig", row_t::EACH, &device_t::queryEthernetConfig, ethernetConfig, "null no null no",
            {{ethernet(1, true, 3232235520u), "ethernetConfigUpdated yes (3232235520 3232235521 3232235522 3232235523 3232235524)",
                "null no (3232235520 3232235521 3232235522 3232235523 3232235524) yes"},
             {ethernet(0, false, 10), "ethernetConfigUpdated no (10 11 12 13 14)",
                "(10 11 12 13 14) no (3232235520 3232235521 3232235522 3232235523 3232235524) yes"},
             {ethernet(1, false, 20), "ethernetConfigUpdated no (20 21 22 23 24)",
                "(10 11 12 13 14) no (20 21 22 23 24) no"}},
            {{"setEthernetConfig", [](device_t& d)
                {
                    ethernetConfig_t const config = {30, 31, 32, 33, 34};
                    d.setEthernetConfig(MELVOX_ETH_CFG_SOURCE_WIFI, config);
                },
                ethernet(1, false, 30)},
             {"setEthernetConfigDhcp", [](device_t& d) { d.setEthernetConfigDhcp(MELVOX_ETH_CFG_SOURCE_WIFI); },
                fields("source", 1, "dhcp", true)}}},
        {"webControl", row_t::EACH, &device_t::queryWebControl,
            [](device_t const& d) { return when(d.webControlValid(), d.webUiEnabled()); }, "not valid",
            {{fields("enabled", true), "webControlUpdated", "valid yes"},
             {fields("enabled", false), "webControlUpdated", "valid no"}},
            {{"setWebUiEnabled", [](device_t& d) { d.setWebUiEnabled(true); }, fields("enabled", true)}}},
        {"webUiUploadState", row_t::EACH, 0,
            [](device_t const& d) { return joined(d.webUiUploadState(), d.webUiUploadDescription()); }, " 2 \"\"",
            {{fields("state", 1, "description", "Receiving"), "webUiUploadStateUpdated", " 1 \"Receiving\""},
             {fields("state", 0, "description", "Failed"), "webUiUploadStateUpdated", " 0 \"Failed\""}},
            {{"startWebUiUpload", [](device_t& d) { d.startWebUiUpload(samplePath()); }, sample("path", "size"),
                "startWebUiUpload"},
             {"cancelWebUiUpload", [](device_t& d) { d.cancelWebUiUpload(); }, nothing(), "cancelWebUiUpload"}}},
        {"webUiUploadPercent", row_t::EACH, 0, 0, 0,
            {{0.25, "webUiUploadPercentUpdated 0.25", 0}, {1.0, "webUiUploadPercentUpdated 1", 0}}, {}},
    };
}

rows_t firmwareRows()
{
    QVariantMap component = sample("path", "size");
    component.insert("fileIndex", 3);
    component.insert("component", 2);
    return {
        {"firmwareVersions", row_t::EACH, 0, firmwareVersions, "",
            {{fields("component", "NAV", "version", "1.14.40"), "firmwareVersionUpdated \"NAV\" \"1.14.40\"",
                "\"NAV\" \"1.14.40\"", "firmwareVersion"},
             {fields("component", "BOOT1", "version", "2.9"), "firmwareVersionUpdated \"BOOT1\" \"2.9\"",
                "\"NAV\" \"1.14.40\" \"BOOT1\" \"2.9\"", "firmwareVersion"},
             {fields("component", "NAV", "version", "1.15"), "firmwareVersionUpdated \"NAV\" \"1.15\"",
                "\"NAV\" \"1.15\" \"BOOT1\" \"2.9\"", "firmwareVersion"}},
            {}},
        {"firmwareUpdateState", row_t::EACH, 0, 0, 0,
            {{fields("state", 1, "description", "Receiving NAV"), "firmwareUpdateStateUpdated 1 \"Receiving NAV\"", 0},
             {fields("state", 2, "description", "Done"), "firmwareUpdateStateUpdated 2 \"Done\"", 0}},
            {{"startFirmwareUpdate", startUpdate, fields("components", entries(component), "combinedPath", ""),
                "startFirmwareUpdate"}}},
        {"firmwareUpdatePercent", row_t::EACH, 0, 0, 0,
            {{0.25, "firmwareUpdateProgressUpdated 0.25", 0}, {1.0, "firmwareUpdateProgressUpdated 1", 0}}, {}},
        {"firmwareUpdateProgress", row_t::EACH, 0, 0, 0,
            {{entries(fields("component", 2, "status", 1), fields("component", 8, "status", 3)),
                "firmwareUpdateProgress [(2 1), (8 3)]", 0},
             {entries(fields("component", 2, "status", 2)), "firmwareUpdateProgress [(2 2)]", 0}},
            {}},
    };
}

rows_t receiverRows()
{
    return {
        {"productInfo", row_t::EACH, 0,
            [](device_t const& d) { return when(d.productInfoValid(), d.serialNumber(), d.modelName()); }, "not valid",
            {{fields("serialNumber", "M-4711", "modelName", "Melvox 5"),
                "productInfoUpdated \"M-4711\" \"Melvox 5\"", "valid \"M-4711\" \"Melvox 5\""},
             {fields("serialNumber", "M-4712", "modelName", "Melvox 6"),
                "productInfoUpdated \"M-4712\" \"Melvox 6\"", "valid \"M-4712\" \"Melvox 6\""}},
            {}},
        {"profiles", row_t::LIST, &device_t::listProfiles, 0, 0,
            {{nothing(), "profilesCleared", 0, "profilesCleared"},
             {fields("name", "night", "modified", 4294967294u), "profileUpdated \"night\" 4294967294", 0, "profile"},
             {fields("name", "day", "modified", 1u), "profileUpdated \"day\" 1", 0, "profile"}},
            {{"useProfile", [](device_t& d) { d.useProfile("night"); }, "night", "useProfile"},
             {"saveAsProfile", [](device_t& d) { d.saveAsProfile("day 2"); }, "day 2", "saveAsProfile"},
             {"deleteProfile", [](device_t& d) { d.deleteProfile("old"); }, "old", "deleteProfile"}}},
        {"activeProfile", row_t::EACH, &device_t::queryActiveProfile,
            [](device_t const& d) { return when(d.activeProfileValid(), d.activeProfile()); }, "not valid",
            {{"night", "activeProfileUpdated \"night\"", "valid \"night\""},
             {"", "activeProfileUpdated \"\"", "valid \"\""}},
            {}},
        {"profileDump", row_t::ANSWERS, 0, 0, 0,
            // What succeeds writes a file, and that is not the check's to do.
            {{fields("path", "profile_check", "success", false, "description", "Busy"),
                "profileDumpDone \"profile_check\" no \"Busy\"", 0},
             {fields("path", "profile_check", "success", false, "description", "Failed"),
                "profileDumpDone \"profile_check\" no \"Failed\"", 0}},
            {{"dumpAsProfile", [](device_t& d) { d.dumpAsProfile("profile_check"); }, "profile_check", "dumpProfile"}}},
        {"irdmStat", row_t::EACH, 0, 0, 0,
            {{fields("imei", "300234", "provisioningStatus", "Provisioned", "modemStatus", "On"),
                "irdmStatUpdated \"300234\" \"Provisioned\" \"On\"", 0},
             {fields("imei", "300235", "provisioningStatus", "None", "modemStatus", "Off"),
                "irdmStatUpdated \"300235\" \"None\" \"Off\"", 0}},
            {}},
        {"lteModemStat", row_t::EACH, &device_t::queryLteModemStatus, 0, 0,
            {{fields("rssi", "-71 dBm", "networkStatus", "Registered", "modemStatus", "On"),
                "lteModemStatUpdated \"-71 dBm\" \"Registered\" \"On\"", 0},
             {fields("rssi", "", "networkStatus", "None", "modemStatus", "Off"),
                "lteModemStatUpdated \"\" \"None\" \"Off\"", 0}},
            {{"setLteModemStatus", [](device_t& d) { d.setLteModemStatus(true); }, fields("on", true)}}},
        {"restart", row_t::EACH, 0, 0, 0, {},
            {{"coldRestart", [](device_t& d) { d.coldRestart(true); }, fields("useBuiltInAlmanac", true), "coldRestart"},
             {"warmRestart", [](device_t& d) { d.warmRestart(); }, nothing(), "warmRestart"},
             {"reboot", [](device_t& d) { d.reboot(7); }, fields("delay", 7), "reboot"}}},
        {"everything", row_t::EACH, &device_t::queryAll, 0, 0, {}, {}},
    };
}

// clang-format on

rows_t allRows()
{
    rows_t all;
    for (rows_t const& rows : {solutionRows(), navigationRows(), antennaRows(), correctionRows(), differentialRows(),
                               outputRows(), portRows(), networkRows(), firmwareRows(), receiverRows()})
        all.insert(all.end(), rows.begin(), rows.end());
    return all;
}

} // namespace

std::vector<groupRow_t> const& groupRows()
{
    static rows_t const rows = allRows();
    return rows;
}

} // namespace melvox_proxycheck
