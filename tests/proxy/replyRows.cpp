#include "replyRows.h"

#include "proxyText.h"
#include "support/operator.h"

using namespace brel_common_qt;

namespace melvox_test
{

namespace
{

typedef remoteMelvoxDevice_t device_t;

/** A value that means something only while it is valid. */
template <typename... value_t> QString when(bool valid, value_t const&... values)
{
    return valid ? "valid" + joined(values...) : QString("not valid");
}

/** What the groups have that are told of but not kept. */
QString nothing(device_t const&)
{
    return QString();
}

QString correctionEnabled(device_t const& d)
{
    QString all;
    for (int type = MELVOX_CORR_TYPE_RTCM19; type <= MELVOX_CORR_TYPE_RTG; ++type)
    {
        bool enabled = false;
        bool const found = d.getCorrectionEnabled(melvoxCorrectionType_t(type), enabled);
        all += found ? joined(enabled) : " -";
    }
    return all.mid(1);
}

QString correctionMaxAge(device_t const& d)
{
    QString all;
    for (int type = MELVOX_CORR_TYPE_RTCM19; type <= MELVOX_CORR_TYPE_RTG; ++type)
    {
        unsigned int seconds = 0;
        bool const found = d.getCorrectionMaxAge(melvoxCorrectionType_t(type), seconds);
        all += found ? joined(seconds) : " -";
    }
    return all.mid(1);
}

QString measUse(device_t const& d)
{
    std::string const* const names[] = {&MELVOX_MEAS_NAME_GPS, &MELVOX_MEAS_NAME_GLONASS, &MELVOX_MEAS_NAME_GALILEO,
                                        &MELVOX_MEAS_NAME_BEIDOU};
    QString all;
    for (std::string const* name : names)
    {
        bool use = false;
        bool const found = d.getMeasUse(*name, use);
        all += found ? joined(use) : " -";
    }
    return all.mid(1);
}

QString ethernetConfig(device_t const& d)
{
    QString all;
    for (int source = 0; source < MELVOX_NUM_ETH_CFG_SOURCES; ++source)
    {
        melvoxEthernetConfigSource_t const s = melvoxEthernetConfigSource_t(source);
        all += joined(d.ethernetConfig(s), d.ethernetConfigDhcp(s));
    }
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
    return all.mid(1);
}

} // namespace

// clang-format off
QList<replyRow_t> const REPLY_ROWS = QList<replyRow_t>()
    // solution control
    << replyRow_t{"elevationMask", []() -> QVariant { return 12.5; },
        [](device_t const& d) { return when(d.elevationMaskValid(), d.elevationMask()); },
        "not valid", "valid 12.5", "elevationMaskUpdated 12.5"}
    << replyRow_t{"pdopLimit", []() -> QVariant { return 4.75; },
        [](device_t const& d) { return when(d.pdopLimitValid(), d.pdopLimit()); },
        "not valid", "valid 4.75", "pdopLimitUpdated 4.75"}
    << replyRow_t{"geoidalModel", []() -> QVariant { return 2; },
        [](device_t const& d) { return when(d.geoidalModelValid(), d.geoidalModel()); },
        "not valid", "valid 2", "geoidalModelUpdated 2"}
    << replyRow_t{"correctionEnabled", []() -> QVariant { return map("type", 1, "enabled", true); },
        correctionEnabled, "- - -", "- yes -", "correctionEnabledUpdated 1 yes"}
    << replyRow_t{"correctionMaxAge", []() -> QVariant { return map("type", 2, "seconds", 1200); },
        correctionMaxAge, "- - -", "- - 1200", "correctionMaxAgeUpdated 2 1200"}
    << replyRow_t{"ntripPPP", []() -> QVariant { return map("mode", 1, "protocol", 2); },
        [](device_t const& d) { return when(d.ntripPPPModeValid(), d.ntripPPP()); },
        "not valid", "valid (1 2)", "ntripPPPModeUpdated (1 2)"}
    // navigation mode and status
    << replyRow_t{"measUse",
        []() -> QVariant
        {
            return list(map("name", "GPS", "use", true), map("name", "GLO", "use", false),
                        map("name", "BEI", "use", true));
        },
        measUse, "- - - -", "yes no - yes", "measUseUpdated [(\"GPS\" yes), (\"GLO\" no), (\"BEI\" yes)]"}
    << replyRow_t{"dynamicConfig",
        []() -> QVariant { return map("autoMode", true, "mode", 3, "velocitySmoothing", false); },
        [](device_t const& d) { return when(d.dynamicConfigValid(), d.dynamicConfig()); },
        "not valid", "valid (yes 3 no)", "dynamicConfigUpdated (yes 3 no)"}
    << replyRow_t{"extendedNavInfo",
        []() -> QVariant
        {
            QVariantMap all = map("valid", true, "gpsWeek", 2237, "gpsTime", 345600.25, "navValid", 1, "datum", 2,
                                  "geoid", 3, "navMode", 4, "navSource", 5, "stationId", 6, "failureCode", 7);
            char const* const names[] = {"setDeltaNorth", "setDeltaEast", "setDeltaUp", "latError", "lonError",
                                         "heightError", "velocityNorth", "velocityEast", "velocityUp"};
            double number = 8.5;
            for (char const* name : names)
                all.insert(name, number++);
            return all;
        },
        [](device_t const& d) { return when(d.extendedNavInfoValid(), d.extendedNavInfo()); },
        "not valid", "valid (2237 345600.25 1 2 3 4 5 6 7 8.5 9.5 10.5 11.5 12.5 13.5 14.5 15.5 16.5)",
        "extendedNavInfoUpdated"}
    << replyRow_t{"vhdInfo",
        []() -> QVariant { return map("rawHeading", 359.5, "attitude", -1.25, "baseline", 2.5, "headingRms", 0.125); },
        nothing, 0, "", "vhdInfoUpdated 359.5 -1.25 2.5 0.125"}
    // antennas and their alignment
    << replyRow_t{"antennaAlignment", []() -> QVariant { return map("mode", 2, "angle", 359.99); },
        [](device_t const& d)
        { return when(d.antennaAlignmentValid(), d.antennaAlignmentMode(), d.antennaAlignmentUserAngle()); },
        "not valid", "valid 2 359.99", "antennaAlignmentModeUpdated 2; antennaAlignmentUserAngleUpdated 359.99"}
    << replyRow_t{"antennaInfo",
        []() -> QVariant
        {
            return list(map("name", "AOAD/M_T", "serial", "S 1", "id", 17),
                        map("name", "NAX3G+C", "serial", "S 2", "id", 254));
        },
        [](device_t const& d)
        {
            return when(d.antennaInfoValid(), d.antennaInfo(MELVOX_ANTENNA_FIRST),
                        d.antennaInfo(MELVOX_ANTENNA_SECOND));
        },
        "not valid", "valid (\"AOAD/M_T\" \"S 1\" 17) (\"NAX3G+C\" \"S 2\" 254)", "antennaInfosUpdated"}
    << replyRow_t{"antennaHeight",
        []() -> QVariant
        {
            return list(map("useAdjustments", true, "height", 1.5, "slantRange", 2.5, "radius", 3.5),
                        map("useAdjustments", false, "height", 4.5, "slantRange", 5.5, "radius", 6.5));
        },
        [](device_t const& d)
        {
            return when(d.antennaHeightValid(), d.antennaHeight(MELVOX_ANTENNA_FIRST),
                        d.antennaHeight(MELVOX_ANTENNA_SECOND));
        },
        "not valid", "valid (yes 1.5 2.5 3.5) (no 4.5 5.5 6.5)", "antennaHeightsUpdated"}
    << replyRow_t{"antennaRemote", []() -> QVariant { return map("automatic", true, "name", "AOAD/M_T"); },
        [](device_t const& d) { return when(d.antennaRemoteValid(), d.antennaRemote()); },
        "not valid", "valid (yes \"AOAD/M_T\")", "antennaRemoteUpdated (yes \"AOAD/M_T\")"}
    << replyRow_t{"antennaDualMode", []() -> QVariant { return "SFONLY"; },
        [](device_t const& d) { return when(d.antennaDualModeValid(), d.antennaDualMode()); },
        "not valid", "valid \"SFONLY\"", "antennaDualModeUpdated \"SFONLY\""}
    << replyRow_t{"antennaName", []() -> QVariant { return "AOAD/M_T"; },
        [](device_t const& d) { return d.antennaList().join("|"); },
        "", "AOAD/M_T", "antennaNameAdded \"AOAD/M_T\""}
    // correction sources and satellites
    << replyRow_t{"correctionSelection", []() -> QVariant { return 1; },
        [](device_t const& d) { return when(d.correctionSelectionValid(), d.correctionSelection()); },
        "not valid", "valid 1", "correctionSelectionUpdated 1"}
    << replyRow_t{"netPriority", []() -> QVariant { return 1; },
        [](device_t const& d) { return when(d.netPriorityValid()); },
        "not valid", "valid", "netPriorityUpdated 1"}
    << replyRow_t{"rtgUseMode", []() -> QVariant { return 1; },
        [](device_t const& d) { return when(d.rtgUseModeValid()); },
        "not valid", "valid", "rtgUseModeUpdated 1"}
    << replyRow_t{"correctionSats",
        []() -> QVariant
        {
            QVariantMap const east = map("id", 643, "longitude", 15.5, "lookAngle", 31, "net1", false, "net2", true,
                                   "flagU", false, "flagA", true, "flagC", false);
            QVariantMap const west = map("id", 609, "longitude", -97.5, "lookAngle", 7, "net1", true, "net2", false,
                                   "flagU", true, "flagA", false, "flagC", true);
            return list(east, west);
        },
        [](device_t const& d) { return text(d.correctionSats()); }, "{}",
        "{609: (609 -97.5 7 yes no yes no yes), 643: (643 15.5 31 no yes no yes no)}", "correctionSatsUpdated"}
    << replyRow_t{"correctionSatStats",
        []() -> QVariant
        {
            QVariantMap const sat = map("id", 609, "beam", 2, "status", 9, "strength", 4.5, "agcVoltage", 1.25,
                                  "goodPercent", 98.5, "idlePercent", 0.5, "resyncCount", 8, "frequencyOffset", -9.5);
            return map("inUse", 609, "sats", list(sat));
        },
        [](device_t const& d)
        {
            return text(d.correctionSatStats()) + ' ' + when(d.correctionSatInUseValid(), d.correctionSatInUse());
        },
        "{} not valid", "{609: (609 2 9 4.5 1.25 98.5 0.5 8 -9.5)} valid 609", "correctionSatStatsUpdated"}
    << replyRow_t{"correctionSatSelection", []() -> QVariant { return map("auto", false, "id", 643); },
        [](device_t const& d) { return when(d.correctionSatSelectionValid(), d.correctionSatSelectionIsAuto()); },
        "not valid", "valid no", "correctionSatSelected 643"}
    << replyRow_t{"correctionSatSelection", []() -> QVariant { return map("auto", true, "id", 0); },
        [](device_t const& d) { return when(d.correctionSatSelectionValid(), d.correctionSatSelectionIsAuto()); },
        "not valid", "valid yes", "correctionSatAutoSelected"}
    << replyRow_t{"userCorrectionSat",
        []() -> QVariant { return map("defined", true, "id", 123, "frequency", 1545512.5); },
        [](device_t const& d)
        {
            return when(d.userCorrectionSatValid(), d.userCorrectionSatDefined(), d.userCorrectionSatId(),
                        double(d.userCorrectionSatFrequency()));
        },
        "not valid", "valid yes 123 1545512.5", "userCorrectionSatUpdated"}
    << replyRow_t{"mrvAlmanacInfo", []() -> QVariant { return map("updateTime", 1795000000.25); },
        [](device_t const& d) { return when(d.mrvAlmanacInfoValid(), d.mrvAlmanacInfo().updateTime); },
        "not valid", "valid 1795000000.25", "mrvAlmanacInfoUpdated"}
    << replyRow_t{"starfireAlmStatus", []() -> QVariant { return map("newReady", true); },
        [](device_t const& d) { return when(d.starfireAlmStatusValid(), d.newStarfireAlmReady()); },
        "not valid", "valid yes", "starfireAlmStatusUpdated"}
    << replyRow_t{"starfireAlmSwitchPolicy", []() -> QVariant { return map("mode", 1, "hours", 23, "minutes", 59); },
        [](device_t const& d) { return when(d.starfireAlmSwitchPolicyValid(), d.starfireAlmSwitchPolicy()); },
        "not valid", "valid (1 23 59)", "starfireAlmSwitchPolicyUpdated"}
    // differential operation
    << replyRow_t{"diffConfig",
        []() -> QVariant { return map("mode", 2, "stationId", 1023, "dynamic", false, "port", 13, "portSet", true); },
        [](device_t const& d) { return when(d.diffConfigValid(), d.diffConfig()); },
        "not valid", "valid (2 1023 no 13 yes)", "diffConfigUpdated (2 1023 no 13 yes)"}
    << replyRow_t{"rtcmVersion", []() -> QVariant { return 1; },
        [](device_t const& d) { return when(d.rtcmVersionValid(), d.rtcmVersion()); },
        "not valid", "valid 1", "rtcmVersionUpdated 1"}
    << replyRow_t{"baseName", []() -> QVariant { return QString::fromUtf8("S\xc3\xbc" "d"); },
        [](device_t const& d) { return when(d.baseNameValid(), d.baseName()); },
        "not valid", "valid \"S\xc3\xbc" "d\"", "baseNameUpdated \"S\xc3\xbc" "d\""}
    << replyRow_t{"basePosition",
        []() -> QVariant { return map("latitude", 0.5, "longitude", -1.75, "height", 102.25); },
        [](device_t const& d) { return when(d.basePositionValid(), d.basePosition()); },
        "not valid", "valid (0.5 -1.75 102.25)", "basePositionUpdated (0.5 -1.75 102.25)"}
    // ports and message output
    << replyRow_t{"activePort", []() -> QVariant { return 4; },
        [](device_t const& d) { return when(d.activePortValid(), d.activePort()); },
        "not valid", "valid 4", "activePortUpdated 4"}
    << replyRow_t{"output",
        []() -> QVariant { return map("port", 13, "message", "NMEAGGA", "method", 1, "interval", 0.2); },
        [](device_t const& d) { return atPorts(d, &device_t::portOutputs); },
        "", "13 {\"NMEAGGA\": (1 0.2)}", "outputConfigUpdated 13 \"NMEAGGA\" (1 0.2)"}
    << replyRow_t{"portTxRxInfo",
        []() -> QVariant { return map("port", 0, "txValid", true, "rxValid", false, "txUsage", 12.5, "rxUsage", 3.5); },
        [](device_t const& d) { return atPorts(d, &device_t::portTxRxInfo); },
        "", "0 (yes no 12.5 3.5)", "portTxRxInfoUpdated"}
    << replyRow_t{"ggaMode", []() -> QVariant { return map("mode", 0, "quality", 1, "scaling", 2); },
        [](device_t const& d)
        { return when(d.ggaModeValid(), d.ggaMode(), d.ggaQuality(), d.ggaCorrectionsScaling()); },
        "not valid", "valid 0 1 2", "ggaModeUpdated"}
    << replyRow_t{"talkerIdMode", []() -> QVariant { return 2; },
        [](device_t const& d) { return when(d.talkerIdModeValid(), d.talkerIdMode()); },
        "not valid", "valid 2", "talkerIdModeUpdated 2"}
    << replyRow_t{"serialConfig",
        []() -> QVariant { return map("port", 5, "baud", 230400, "charSize", 0, "parity", 2, "stopBits", 1); },
        nothing, 0, "", "serialConfigUpdated 5 (230400 0 2 1)"}
    << replyRow_t{"serialRs232Mode", []() -> QVariant { return map("port", 3, "rs232", true); },
        nothing, 0, "", "serialRs232ModeUpdated 3 yes"}
    << replyRow_t{"vcomConfig",
        []() -> QVariant
        {
            return map("port", 6, "enabled", true, "mode", 1, "remoteAddress", 3232235783u,
                       "remotePort", 5001, "localPort", 65534);
        },
        nothing, 0, "", "vcomConfigUpdated 6 (yes 1 3232235783 5001 65534)"}
    << replyRow_t{"usbMode", []() -> QVariant { return 1; },
        [](device_t const& d) { return when(d.usbModeValid(), d.usbMode()); },
        "not valid", "valid 1", "usbModeUpdated 1"}
    // network and web interface
    << replyRow_t{"ethernetConfig",
        []() -> QVariant
        {
            return map("source", 1, "dhcp", true, "ipAddress", 1, "netmask", 2, "gateway", 3,
                       "dns1", 4, "dns2", 4294967294u);
        },
        ethernetConfig, "null no null no", "null no (1 2 3 4 4294967294) yes",
        "ethernetConfigUpdated yes (1 2 3 4 4294967294)"}
    << replyRow_t{"webControl", []() -> QVariant { return map("enabled", true); },
        [](device_t const& d) { return when(d.webControlValid(), d.webUiEnabled()); },
        "not valid", "valid yes", "webControlUpdated"}
    << replyRow_t{"webUiUploadState", []() -> QVariant { return map("state", 1, "description", "Receiving"); },
        [](device_t const& d) { return joined(d.webUiUploadState(), d.webUiUploadDescription()); },
        " 2 \"\"", " 1 \"Receiving\"", "webUiUploadStateUpdated"}
    << replyRow_t{"webUiUploadPercent", []() -> QVariant { return 0.4567; },
        nothing, 0, "", "webUiUploadPercentUpdated 0.4567"}
    << replyRow_t{"ppsConfig",
        []() -> QVariant
        {
            return map("polarity", 1, "width", 1600000, "interval", 32768, "signalDelay", 2, "chipDelay", 999999);
        },
        [](device_t const& d) { return when(d.ppsConfigValid(), d.ppsConfig()); },
        "not valid", "valid (1 1600000 32768 2 999999)", "ppsConfigUpdated (1 1600000 32768 2 999999)"}
    // firmware, profiles, receiver information
    << replyRow_t{"productInfo", []() -> QVariant { return map("serialNumber", "M-4711", "modelName", "Melvox 5"); },
        [](device_t const& d) { return when(d.productInfoValid(), d.serialNumber(), d.modelName()); },
        "not valid", "valid \"M-4711\" \"Melvox 5\"", "productInfoUpdated \"M-4711\" \"Melvox 5\""}
    << replyRow_t{"firmwareVersion", []() -> QVariant { return map("component", "NAV", "version", "1.14.40"); },
        firmwareVersions, "", "\"NAV\" \"1.14.40\"", "firmwareVersionUpdated \"NAV\" \"1.14.40\""}
    << replyRow_t{"firmwareUpdateState", []() -> QVariant { return map("state", 1, "description", "Receiving NAV"); },
        nothing, 0, "", "firmwareUpdateStateUpdated 1 \"Receiving NAV\""}
    << replyRow_t{"firmwareUpdatePercent", []() -> QVariant { return 0.25; },
        nothing, 0, "", "firmwareUpdateProgressUpdated 0.25"}
    << replyRow_t{"firmwareUpdateProgress",
        []() -> QVariant { return list(map("component", 2, "status", 1), map("component", 8, "status", 3)); },
        nothing, 0, "", "firmwareUpdateProgress [(2 1), (8 3)]"}
    << replyRow_t{"profile", []() -> QVariant { return map("name", "night", "modified", 4294967294u); },
        nothing, 0, "", "profileUpdated \"night\" 4294967294"}
    << replyRow_t{"activeProfile", []() -> QVariant { return "night"; },
        [](device_t const& d) { return when(d.activeProfileValid(), d.activeProfile()); },
        "not valid", "valid \"night\"", "activeProfileUpdated \"night\""}
    << replyRow_t{"irdmStat",
        []() -> QVariant { return map("imei", "300234", "provisioningStatus", "Provisioned", "modemStatus", "On"); },
        nothing, 0, "", "irdmStatUpdated \"300234\" \"Provisioned\" \"On\""}
    << replyRow_t{"lteModemStat",
        []() -> QVariant { return map("rssi", "-71 dBm", "networkStatus", "Registered", "modemStatus", "On"); },
        nothing, 0, "", "lteModemStatUpdated \"-71 dBm\" \"Registered\" \"On\""};
// clang-format on

} // namespace melvox_test
