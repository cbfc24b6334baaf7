#include "support/everything.h"

#include "support/operator.h"

namespace melvox_test
{

namespace
{

void reportSolution(melvox_link::scriptedLink_t* r)
{
    r->report("elevationMask", 12.5);
    r->report("pdopLimit", 33.5);
    r->report("geoidalModel", 1);
    for (int type = 0; type < 3; ++type)
    {
        r->report("correctionEnabled", map("type", type, "enabled", type != 1));
        r->report("correctionMaxAge", map("type", type, "seconds", 30 + 700 * type));
    }
    r->report("ntripPPP", map("mode", 1, "protocol", 1));
    r->report("measUse", list(map("name", "GPS", "use", true), map("name", "GLO", "use", true),
                              map("name", "GAL", "use", false), map("name", "BEI", "use", true)));
    r->report("dynamicConfig", map("autoMode", false, "mode", 2, "velocitySmoothing", true));
    r->report("ppsConfig",
              map("polarity", 1, "width", 1600000, "interval", 1000, "signalDelay", 250, "chipDelay", 999));
}

void reportNavigation(melvox_link::scriptedLink_t* r)
{
    r->report("extendedNavInfo",
              map("valid", true, "gpsWeek", 2445, "gpsTime", 518412.0, "navValid", 1, "datum", 1, "geoid", 1, "navMode",
                  7, "navSource", 9, "stationId", 1023, "failureCode", 1, "setDeltaNorth", -0.012, "setDeltaEast",
                  0.034, "setDeltaUp", 0.156, "latError", 0.0081, "lonError", 0.0072, "heightError", 0.0163,
                  "velocityNorth", 1.2345, "velocityEast", -2.3456, "velocityUp", 0.0123));
    r->report("vhdInfo", map("rawHeading", 123.45, "attitude", -1.234, "baseline", 1.997, "headingRms", 0.123));
}

void reportAntennas(melvox_link::scriptedLink_t* r)
{
    r->event("antennaListReset");
    r->report("antennaName", "TRM55971.00     NONE");
    r->report("antennaName", "NAX3G+C         NONE");
    r->report("antennaAlignment", map("mode", 2, "angle", 45.5));
    r->report("antennaInfo", list(map("name", "TRM55971.00     NONE", "serial", "SN-1440911", "id", 17),
                                  map("name", "NAX3G+C         NONE", "serial", "SN-1440912", "id", 255)));
    r->report("antennaHeight",
              list(map("useAdjustments", true, "height", 1500.0, "slantRange", 1234.0, "radius", 170.0),
                   map("useAdjustments", false, "height", 2500.0, "slantRange", -32767.0, "radius", -5.0)));
    r->report("antennaRemote", map("automatic", false, "name", "NAX3G+C         NONE"));
    r->report("antennaDualMode", "SFONLY");
}

QVariantMap satellite(int id, double longitude)
{
    return map("id", id, "longitude", longitude, "lookAngle", 30, "net1", true, "net2", id % 2 == 0, "flagU", true,
               "flagA", true, "flagC", id % 3 == 0);
}

QVariantMap statistics(int id, int status)
{
    return map("id", id, "beam", 3, "status", status, "strength", 9.75, "agcVoltage", 1.42, "goodPercent", 97.5,
               "idlePercent", 12.25, "resyncCount", 1234, "frequencyOffset", -321.5);
}

void reportCorrections(melvox_link::scriptedLink_t* r)
{
    r->report("correctionSelection", 1);
    r->report("netPriority", 1);
    r->report("rtgUseMode", 1);
    r->report("correctionSats", list(satellite(402, -97.5), satellite(609, 15.0), satellite(643, 143.5)));
    r->report("correctionSatStats",
              map("inUse", 609, "sats", list(statistics(402, 8), statistics(609, 9), statistics(643, 1))));
    r->report("correctionSatSelection", map("auto", false, "id", 609));
    r->report("userCorrectionSat", map("defined", true, "id", 678, "frequency", 1545500.0));
    r->report("mrvAlmanacInfo", map("updateTime", 1795251600.0));
    r->report("starfireAlmStatus", map("newReady", true));
    r->report("starfireAlmSwitchPolicy", map("mode", 0, "hours", 7, "minutes", 5));
    r->report("diffConfig", map("mode", 1, "stationId", 1023, "dynamic", false, "port", 13, "portSet", true));
    r->report("rtcmVersion", 1);
    r->report("baseName", "North Field Base");
    r->report("basePosition", map("latitude", -0.9273, "longitude", -2.1293, "height", 1234.56));
}

void reportPorts(melvox_link::scriptedLink_t* r)
{
    r->report("activePort", 0);
    for (int port = 0; port < 14; ++port)
    {
        if (port < 6)
        {
            r->report("serialConfig",
                      map("port", port, "baud", 115200, "charSize", 1, "parity", port % 3, "stopBits", port % 2));
            r->report("serialRs232Mode", map("port", port, "rs232", port < 2));
        }
        else
        {
            r->report("vcomConfig", map("port", port, "enabled", port % 2 == 0, "mode", port % 2, "remoteAddress",
                                        3232235777u, "remotePort", 65535, "localPort", 4901 + port));
        }
        r->report("output", map("port", port, "message", "NMEAGGA", "method", 1, "interval", 0.2));
        r->report("output", map("port", port, "message", "RTCM1", "method", 1, "interval", 15.0));
        r->report("portTxRxInfo",
                  map("port", port, "txValid", true, "rxValid", true, "txUsage", 12.5, "rxUsage", 3.25));
    }
    r->report("ggaMode", map("mode", 1, "quality", 2, "scaling", 2));
    r->report("talkerIdMode", 1);
    r->report("usbMode", 1);
}

void reportNetwork(melvox_link::scriptedLink_t* r)
{
    r->report("ethernetConfig", map("source", 0, "dhcp", false, "ipAddress", 3232235876u, "netmask", 4294967040u,
                                    "gateway", 3232235777u, "dns1", 134744072u, "dns2", 134743044u));
    r->report("webControl", map("enabled", true));
    r->report("webUiUploadState", map("state", 1, "description", "Writing the interface files"));
    r->report("webUiUploadPercent", 0.4567);
}

void reportReceiver(melvox_link::scriptedLink_t* r)
{
    r->report("productInfo", map("serialNumber", "MLV-0042117", "modelName", "Melvox 4400"));
    r->report("firmwareVersion", map("component", "BOOT1", "version", "1.0.2"));
    r->report("firmwareVersion", map("component", "NAV", "version", "1.15.7"));
    r->report("firmwareVersion", map("component", "PIOAPP", "version", "2.3.11"));
    r->event("profilesCleared");
    r->report("profile", map("name", "Factory", "modified", 1700000000u));
    r->report("profile", map("name", "Harvest", "modified", 1795251600u));
    r->report("activeProfile", "Harvest");
    r->report("irdmStat", map("imei", "300234010753370", "provisioningStatus", "PROVISIONED", "modemStatus", "ON"));
    r->report("lteModemStat", map("rssi", "-71 dBm", "networkStatus", "REGISTERED", "modemStatus", "ON"));
}

} // namespace

void reportEverything(melvox_link::scriptedLink_t* receiver)
{
    reportSolution(receiver);
    reportNavigation(receiver);
    reportAntennas(receiver);
    reportCorrections(receiver);
    reportPorts(receiver);
    reportNetwork(receiver);
    reportReceiver(receiver);
}

void reportTheLongest(melvox_link::scriptedLink_t* receiver)
{
    reportEverything(receiver);
    receiver->report("elevationMask", 90.0);
    receiver->report("pdopLimit", 1000.0);
    for (int type = 0; type < 3; ++type)
        receiver->report("correctionMaxAge", map("type", type, "seconds", 4294967295u));
    receiver->report("ppsConfig", map("polarity", 1, "width", 4294967295u, "interval", 4294967295u, "signalDelay",
                                      4294967295u, "chipDelay", 4294967295u));
    receiver->report("antennaAlignment", map("mode", 2, "angle", 359.99));
    receiver->report("antennaRemote", map("automatic", true, "name", "ABCDEFGHIJKLMNO WXYZ"));
    receiver->report("diffConfig",
                     map("mode", 2, "stationId", 4294967295u, "dynamic", false, "port", 13, "portSet", true));
    receiver->report("baseName", "A base station with a long name");
    receiver->report("basePosition", map("latitude", -1.5706217938697, "longitude", -3.1414181, "height", -12345678.9));
    receiver->report("productInfo", map("serialNumber", "MLV-0042117-REV-B-0001", "modelName", "Melvox 4400 Dual"));
    receiver->report("lteModemStat",
                     map("rssi", "-113 dBm or less", "networkStatus", "REGISTERED, ROAMING", "modemStatus", "PENDING"));
    receiver->report("irdmStat", map("imei", "300234010753370", "provisioningStatus", "NOT PROVISIONED", "modemStatus",
                                     "SEARCHING"));
}

} // namespace melvox_test
