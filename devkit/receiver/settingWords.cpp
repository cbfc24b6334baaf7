#include "receiver/settingWords.h"

#include <QtGlobal>

namespace melvox_receiver
{

namespace
{

typedef std::vector<settingWords_t> rows_t;
typedef std::vector<char const*> words_t;
typedef reading_t r;

settingWords_t row(char const* group, char const* field, char const* name, reading_t reading = r::PLAIN,
                   char const* unit = "", words_t const& words = {})
{
    return {group, field, name, reading, unit, words, false};
}

settingWords_t key(char const* group, char const* field, reading_t reading, words_t const& words = {})
{
    return {group, field, "", reading, "", words, true};
}

words_t const& correctionInputs()
{
    static words_t const words = {QT_TRANSLATE_NOOP("settings", "RTCM V2/V3"), QT_TRANSLATE_NOOP("settings", "SBAS"),
                                  QT_TRANSLATE_NOOP("settings", "LEO")};
    return words;
}

words_t const& antennas()
{
    static words_t const words = {QT_TRANSLATE_NOOP("settings", "Primary antenna"),
                                  QT_TRANSLATE_NOOP("settings", "Secondary antenna")};
    return words;
}

words_t const& networks()
{
    static words_t const words = {QT_TRANSLATE_NOOP("settings", "Cable"), QT_TRANSLATE_NOOP("settings", "WiFi")};
    return words;
}

// clang-format off

rows_t solutionWords()
{
    return {
        row("elevationMask", "", QT_TRANSLATE_NOOP("settings", "Elevation mask"), r::PLAIN, "\xc2\xb0"),
        row("pdopLimit", "", QT_TRANSLATE_NOOP("settings", "Maximum PDOP")),
        row("geoidalModel", "", QT_TRANSLATE_NOOP("settings", "Geoidal model"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "None"), QT_TRANSLATE_NOOP("settings", "EGM84"),
             QT_TRANSLATE_NOOP("settings", "Default")}),
        key("correctionEnabled", "type", r::WORDS, correctionInputs()),
        row("correctionEnabled", "enabled", QT_TRANSLATE_NOOP("settings", "Corrections enabled"), r::FLAG),
        key("correctionMaxAge", "type", r::WORDS, correctionInputs()),
        row("correctionMaxAge", "seconds", QT_TRANSLATE_NOOP("settings", "Maximum differential age"), r::PLAIN, "s"),
        row("ntripPPP", "mode", QT_TRANSLATE_NOOP("settings", "LEO OTI mode"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "Off"), QT_TRANSLATE_NOOP("settings", "On")}),
        row("ntripPPP", "protocol", QT_TRANSLATE_NOOP("settings", "LEO OTI protocol"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "HTTP"), QT_TRANSLATE_NOOP("settings", "HTTPS")}),
        key("measUse", "name", r::PLAIN),
        row("measUse", "use", QT_TRANSLATE_NOOP("settings", "Measurements used"), r::FLAG),
        row("dynamicConfig", "autoMode", QT_TRANSLATE_NOOP("settings", "Dynamic mode: automatic"), r::FLAG),
        row("dynamicConfig", "mode", QT_TRANSLATE_NOOP("settings", "Dynamic mode"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "Static"), QT_TRANSLATE_NOOP("settings", "Low"),
             QT_TRANSLATE_NOOP("settings", "Medium"), QT_TRANSLATE_NOOP("settings", "High")}),
        row("dynamicConfig", "velocitySmoothing", QT_TRANSLATE_NOOP("settings", "Velocity smoothing"), r::FLAG),
        row("ppsConfig", "polarity", QT_TRANSLATE_NOOP("settings", "1PPS polarity"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "Negative"), QT_TRANSLATE_NOOP("settings", "Positive")}),
        row("ppsConfig", "width", QT_TRANSLATE_NOOP("settings", "1PPS pulse width"), r::PLAIN, "ns"),
        row("ppsConfig", "interval", QT_TRANSLATE_NOOP("settings", "1PPS interval"), r::PLAIN, "ms"),
        row("ppsConfig", "signalDelay", QT_TRANSLATE_NOOP("settings", "1PPS signal delay"), r::PLAIN, "ms"),
        row("ppsConfig", "chipDelay", QT_TRANSLATE_NOOP("settings", "1PPS chip delay"), r::PLAIN, "ns"),
    };
}

rows_t antennaWords()
{
    return {
        row("antennaAlignment", "mode", QT_TRANSLATE_NOOP("settings", "Antenna alignment"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "Lateral"), QT_TRANSLATE_NOOP("settings", "Longitudinal"),
             QT_TRANSLATE_NOOP("settings", "User specified")}),
        row("antennaAlignment", "angle", QT_TRANSLATE_NOOP("settings", "Antenna alignment angle"), r::PLAIN, "\xc2\xb0"),
        key("antennaInfo", INDEX, r::WORDS, antennas()),
        row("antennaInfo", "name", QT_TRANSLATE_NOOP("settings", "IGS antenna")),
        row("antennaInfo", "serial", QT_TRANSLATE_NOOP("settings", "Serial number")),
        row("antennaInfo", "id", QT_TRANSLATE_NOOP("settings", "Setup ID")),
        key("antennaHeight", INDEX, r::WORDS, antennas()),
        row("antennaHeight", "useAdjustments", QT_TRANSLATE_NOOP("settings", "Use adjustments"), r::FLAG),
        row("antennaHeight", "height", QT_TRANSLATE_NOOP("settings", "Height"), r::PLAIN, "mm"),
        row("antennaHeight", "slantRange", QT_TRANSLATE_NOOP("settings", "Slant range"), r::PLAIN, "mm"),
        row("antennaHeight", "radius", QT_TRANSLATE_NOOP("settings", "Radius"), r::PLAIN, "mm"),
        row("antennaRemote", "automatic", QT_TRANSLATE_NOOP("settings", "Base station antenna: automatic"), r::FLAG),
        row("antennaRemote", "name", QT_TRANSLATE_NOOP("settings", "Base station antenna")),
        row("antennaDualMode", "", QT_TRANSLATE_NOOP("settings", "Dual antenna mode")),
    };
}

rows_t correctionWords()
{
    return {
        row("correctionSelection", "", QT_TRANSLATE_NOOP("settings", "Correction selection"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "Default"), QT_TRANSLATE_NOOP("settings", "Secondary")}),
        row("userCorrectionSat", "defined", QT_TRANSLATE_NOOP("settings", "Custom satellite defined"), r::FLAG),
        row("userCorrectionSat", "id", QT_TRANSLATE_NOOP("settings", "Custom satellite ID")),
        row("userCorrectionSat", "frequency", QT_TRANSLATE_NOOP("settings", "Custom satellite frequency"), r::PLAIN, "kHz"),
        row("correctionSatSelection", "auto", QT_TRANSLATE_NOOP("settings", "Correction satellite: automatic"), r::FLAG),
        row("correctionSatSelection", "id", QT_TRANSLATE_NOOP("settings", "Correction satellite ID")),
        row("starfireAlmSwitchPolicy", "mode", QT_TRANSLATE_NOOP("settings", "MRV almanac switch policy"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "Automatic"), QT_TRANSLATE_NOOP("settings", "Manual")}),
        row("starfireAlmSwitchPolicy", "hours", QT_TRANSLATE_NOOP("settings", "MRV almanac auto-switch after, hours"), r::PLAIN, "h"),
        row("starfireAlmSwitchPolicy", "minutes", QT_TRANSLATE_NOOP("settings", "MRV almanac auto-switch after, minutes"), r::PLAIN, "min"),
        row("diffConfig", "mode", QT_TRANSLATE_NOOP("settings", "Differential mode"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "Rover - RTCM"), QT_TRANSLATE_NOOP("settings", "Base - RTCM2.3 (1 & 31)"),
             QT_TRANSLATE_NOOP("settings", "Base - RTCM2.3 (9 & 34)")}),
        row("diffConfig", "stationId", QT_TRANSLATE_NOOP("settings", "Station/site ID")),
        row("diffConfig", "dynamic", QT_TRANSLATE_NOOP("settings", "Differential operation: dynamic"), r::FLAG),
        row("diffConfig", "port", QT_TRANSLATE_NOOP("settings", "Base output port"), r::PORT),
        row("diffConfig", "portSet", QT_TRANSLATE_NOOP("settings", "Base output port set"), r::FLAG),
        row("rtcmVersion", "", QT_TRANSLATE_NOOP("settings", "RTCM input version"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "3.2"), QT_TRANSLATE_NOOP("settings", "2.3")}),
        row("baseName", "", QT_TRANSLATE_NOOP("settings", "Base station name")),
        row("basePosition", "latitude", QT_TRANSLATE_NOOP("settings", "Base latitude"), r::LATITUDE),
        row("basePosition", "longitude", QT_TRANSLATE_NOOP("settings", "Base longitude"), r::LONGITUDE),
        row("basePosition", "height", QT_TRANSLATE_NOOP("settings", "Base height"), r::DISTANCE),
    };
}

rows_t portWords()
{
    return {
        row("ggaMode", "mode", QT_TRANSLATE_NOOP("settings", "GGA precision"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "High"), QT_TRANSLATE_NOOP("settings", "Standard")}),
        row("ggaMode", "quality", QT_TRANSLATE_NOOP("settings", "MRV GGA quality"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "As it is"), QT_TRANSLATE_NOOP("settings", "2"),
             QT_TRANSLATE_NOOP("settings", "5")}),
        row("ggaMode", "scaling", QT_TRANSLATE_NOOP("settings", "NMEA GGA correction age scaling"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "Unscaled"), QT_TRANSLATE_NOOP("settings", "Scaled (/10)"),
             QT_TRANSLATE_NOOP("settings", "Scaled (/60)")}),
        row("talkerIdMode", "", QT_TRANSLATE_NOOP("settings", "Force NMEA talker ID"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "Off"), QT_TRANSLATE_NOOP("settings", "GP"),
             QT_TRANSLATE_NOOP("settings", "GL")}),
        key("serialConfig", "port", r::PORT),
        row("serialConfig", "baud", QT_TRANSLATE_NOOP("settings", "Baud rate"), r::PLAIN, "bit/s"),
        row("serialConfig", "charSize", QT_TRANSLATE_NOOP("settings", "Data bits"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "7"), QT_TRANSLATE_NOOP("settings", "8")}),
        row("serialConfig", "parity", QT_TRANSLATE_NOOP("settings", "Parity"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "None"), QT_TRANSLATE_NOOP("settings", "Odd"),
             QT_TRANSLATE_NOOP("settings", "Even")}),
        row("serialConfig", "stopBits", QT_TRANSLATE_NOOP("settings", "Stop bits"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "1"), QT_TRANSLATE_NOOP("settings", "2")}),
        key("vcomConfig", "port", r::PORT),
        row("vcomConfig", "enabled", QT_TRANSLATE_NOOP("settings", "Enabled"), r::FLAG),
        row("vcomConfig", "mode", QT_TRANSLATE_NOOP("settings", "Mode"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "UDP (Restrict)"), QT_TRANSLATE_NOOP("settings", "TCP")}),
        row("vcomConfig", "remoteAddress", QT_TRANSLATE_NOOP("settings", "Remote address"), r::ADDRESS),
        row("vcomConfig", "remotePort", QT_TRANSLATE_NOOP("settings", "Remote port number")),
        row("vcomConfig", "localPort", QT_TRANSLATE_NOOP("settings", "Local port number")),
        row("usbMode", "", QT_TRANSLATE_NOOP("settings", "USB mode"), r::WORDS, "",
            {QT_TRANSLATE_NOOP("settings", "Serial port"), QT_TRANSLATE_NOOP("settings", "Drive")}),
        key("ethernetConfig", "source", r::WORDS, networks()),
        row("ethernetConfig", "dhcp", QT_TRANSLATE_NOOP("settings", "Addresses by DHCP"), r::FLAG),
        row("ethernetConfig", "ipAddress", QT_TRANSLATE_NOOP("settings", "IP address"), r::ADDRESS),
        row("ethernetConfig", "netmask", QT_TRANSLATE_NOOP("settings", "Network mask"), r::ADDRESS),
        row("ethernetConfig", "gateway", QT_TRANSLATE_NOOP("settings", "Gateway"), r::ADDRESS),
        row("ethernetConfig", "dns1", QT_TRANSLATE_NOOP("settings", "First name server"), r::ADDRESS),
        row("ethernetConfig", "dns2", QT_TRANSLATE_NOOP("settings", "Second name server"), r::ADDRESS),
        row("webControl", "enabled", QT_TRANSLATE_NOOP("settings", "Web interface enabled"), r::FLAG),
    };
}

// clang-format on

rows_t allWords()
{
    rows_t all;
    for (rows_t const& rows : {solutionWords(), antennaWords(), correctionWords(), portWords()})
        all.insert(all.end(), rows.begin(), rows.end());
    return all;
}

} // namespace

char const* const INDEX = "#";

std::vector<settingWords_t> const& settingWords()
{
    static rows_t const rows = allWords();
    return rows;
}

settingWords_t const* findWords(QString const& group, QString const& field)
{
    for (settingWords_t const& one : settingWords())
    {
        if (group == one.group && field == one.field)
            return &one;
    }
    return nullptr;
}

settingWords_t const* findKey(QString const& group)
{
    for (settingWords_t const& one : settingWords())
    {
        if (one.isKey && group == one.group)
            return &one;
    }
    return nullptr;
}

} // namespace melvox_receiver
