#include "support/pageTest.h"

using namespace brel_common_qt;

namespace
{

typedef remoteMelvoxDevice_t device_t;

struct row_t
{
    char const* name;
    void (*command)(device_t& device);
    char const* sent;
};

// Each field has a value of its own, so that none can stand in for another.
row_t const ROWS[] = {
    {"setElevationMask", [](device_t& d) { d.setElevationMask(12.5); }, "elevationMask 12.5"},
    {"setPdopLimit", [](device_t& d) { d.setPdopLimit(4.75); }, "pdopLimit 4.75"},
    {"setGeoidalModel", [](device_t& d) { d.setGeoidalModel(MELVOX_GEOIDAL_MODEL_DEFAULT); }, "geoidalModel 2"},
    {"setCorrectionEnabled", [](device_t& d) { d.setCorrectionEnabled(MELVOX_CORR_TYPE_RTG, true); },
     "correctionEnabled enabled=true type=2"},
    {"setCorrectionMaxAge", [](device_t& d) { d.setCorrectionMaxAge(MELVOX_CORR_TYPE_SBAS, 4294967295u); },
     "correctionMaxAge seconds=4294967295 type=1"},
    {"setNtripPPPMode",
     [](device_t& d)
     {
         melvoxNtripPPP_t const mode = {MELVOX_NTRIP_PPP_MODE_OFF, MELVOX_NTRIP_PPP_MODE_HTTPS};
         d.setNtripPPPMode(mode);
     },
     "ntripPPP mode=0 protocol=1"},
    {"setMeasUse",
     [](device_t& d)
     {
         meas_t const glonass = {MELVOX_MEAS_NAME_GLONASS, true};
         meas_t const galileo = {MELVOX_MEAS_NAME_GALILEO, false};
         d.setMeasUse(QList<meas_t>() << glonass << galileo);
     },
     "measUse [name=GLO use=true] [name=GAL use=false]"},
    {"setMeasUse of nothing", [](device_t& d) { d.setMeasUse(QList<meas_t>()); }, "measUse []"},
    {"setDynamicConfig",
     [](device_t& d)
     {
         melvoxDynamicConfig_t const config = {false, MELVOX_DYN_MODE_HIGH, true};
         d.setDynamicConfig(config);
     },
     "dynamicConfig autoMode=false mode=3 velocitySmoothing=true"},
    {"setAntennaAlignment", [](device_t& d) { d.setAntennaAlignment(MELVOX_ANT_ALIGN_MODE_USER_SPECIFIED, 359.99f); },
     "antennaAlignment angle=359.99 mode=2"},
    {"setAntennaInfo",
     [](device_t& d)
     {
         melvoxAntennaInfo_t const first = {"AOAD/M_T", "S 1", 17};
         melvoxAntennaInfo_t const second = {"NAX3G+C", "", 255};
         d.setAntennaInfo(first, second);
     },
     "antennaInfo [id=17 name=AOAD/M_T serial=S 1] [id=255 name=NAX3G+C serial=\"\"]"},
    {"setAntennaHeight",
     [](device_t& d)
     {
         melvoxAntennaHeight_t const first = {true, 1.5, 2.5, 3.5};
         melvoxAntennaHeight_t const second = {false, 4.5, 5.5, 6.5};
         d.setAntennaHeight(first, second);
     },
     "antennaHeight [height=1.5 radius=3.5 slantRange=2.5 useAdjustments=true]"
     " [height=4.5 radius=6.5 slantRange=5.5 useAdjustments=false]"},
    {"setAntennaRemote",
     [](device_t& d)
     {
         melvoxAntennaRemote_t const remote = {true, "AOAD/M_T"};
         d.setAntennaRemote(remote);
     },
     "antennaRemote automatic=true name=AOAD/M_T"},
    {"setAntennaDualMode", [](device_t& d) { d.setAntennaDualMode("SFONLY"); }, "antennaDualMode SFONLY"},
    {"setCorrectionSelection", [](device_t& d) { d.setCorrectionSelection(MELVOX_CORRECTION_SELECTION_SECONDARY); },
     "correctionSelection 1"},
    {"selectCorrectionSat", [](device_t& d) { d.selectCorrectionSat(678); },
     "correctionSatSelection auto=false id=678"},
    {"autoSelectCorrectionSat", [](device_t& d) { d.autoSelectCorrectionSat(); },
     "correctionSatSelection auto=true id=0"},
    {"defineUserCorrectionSat", [](device_t& d) { d.defineUserCorrectionSat(123, 1545512.5f); },
     "userCorrectionSat defined=true frequency=1545512.5 id=123"},
    {"deleteUserCorrectionSat", [](device_t& d) { d.deleteUserCorrectionSat(); }, "userCorrectionSat defined=false"},
    {"setStarfireAlmSwitchPolicy",
     [](device_t& d)
     {
         melvoxStarfireAlmSwitchPolicy_t const policy = {MELVOX_STARFIRE_ALM_SWITCH_MODE_MANUAL, 23, 59};
         d.setStarfireAlmSwitchPolicy(policy);
     },
     "starfireAlmSwitchPolicy hours=23 minutes=59 mode=1"},
    {"useNewStarfireAlm", [](device_t& d) { d.useNewStarfireAlm(); }, "useNewStarfireAlm"},
    {"setDiffConfig",
     [](device_t& d)
     {
         melvoxDiffConfig_t const config = {MELVOX_DIFF_MODE_BASE_RTCM9, 1023, false, MELVOX_PORT_ETH8, true};
         d.setDiffConfig(config);
     },
     "diffConfig dynamic=false mode=2 port=13 portSet=true stationId=1023"},
    {"setRtcmVersion", [](device_t& d) { d.setRtcmVersion(MELVOX_RTCM_VERSION_23); }, "rtcmVersion 1"},
    {"setBaseName", [](device_t& d) { d.setBaseName("NORTH FIELD"); }, "baseName NORTH FIELD"},
    {"setBaseName to nothing", [](device_t& d) { d.setBaseName(""); }, "baseName \"\""},
    {"setBasePosition",
     [](device_t& d)
     {
         melvoxBasePosition_t const position = {0.6544984694978736, -1.7, 102.125};
         d.setBasePosition(position);
     },
     "basePosition height=102.125 latitude=0.6544984694978736 longitude=-1.7"},
    {"setOutput",
     [](device_t& d)
     {
         melvoxMessageOutput_t const output = {MELVOX_OUTPUT_METHOD_INTERVAL, 0.2};
         d.setOutput(MELVOX_PORT_USB1, "NMEAGGA", output);
     },
     "output interval=0.2 message=NMEAGGA method=1 port=4"},
    {"turnOffAllOutput", [](device_t& d) { d.turnOffAllOutput(MELVOX_PORT_COM3); }, "turnOffAllOutput 2"},
    {"setGgaMode",
     [](device_t& d)
     { d.setGgaMode(MELVOX_GGA_MODE_HIGH_PRECISION, GGA_QUALITY_DIFF_SPS, MELVOX_GGA_CORRECTIONS_SUPERSCALED); },
     "ggaMode mode=0 quality=1 scaling=2"},
    {"setTalkerIdMode", [](device_t& d) { d.setTalkerIdMode(MELVOX_TALKER_ID_MODE_GL); }, "talkerIdMode 2"},
    {"setSerialConfig",
     [](device_t& d)
     {
         melvoxSerialPortConfig_t const config = {230400, CHAR_SIZE_7, PARITY_E, STOP_2};
         d.setSerialConfig(MELVOX_PORT_USB2, config);
     },
     "serialConfig baud=230400 charSize=0 parity=2 port=5 stopBits=1"},
    {"setVcomConfig",
     [](device_t& d)
     {
         melvoxVcomConfig_t const config = {true, MODE_UDP_RESTRICT, 0xC0A80107u, 5001, 65535};
         d.setVcomConfig(MELVOX_PORT_ETH2, config);
     },
     "vcomConfig enabled=true localPort=65535 mode=0 port=7 remoteAddress=3232235783 remotePort=5001"},
    {"setUsbMode", [](device_t& d) { d.setUsbMode(MELVOX_USB_MODE_DRIVE); }, "usbMode 1"},
    {"setEthernetConfig",
     [](device_t& d)
     {
         ethernetConfig_t const config = {1, 2, 3, 4, 4294967295u};
         d.setEthernetConfig(MELVOX_ETH_CFG_SOURCE_WIFI, config);
     },
     "ethernetConfig dhcp=false dns1=4 dns2=4294967295 gateway=3 ipAddress=1 netmask=2 source=1"},
    {"setEthernetConfigDhcp", [](device_t& d) { d.setEthernetConfigDhcp(MELVOX_ETH_CFG_SOURCE_WIFI); },
     "ethernetConfig dhcp=true source=1"},
    {"setWebUiEnabled", [](device_t& d) { d.setWebUiEnabled(true); }, "webControl enabled=true"},
    {"cancelWebUiUpload", [](device_t& d) { d.cancelWebUiUpload(); }, "cancelWebUiUpload"},
    {"setPpsConfig",
     [](device_t& d)
     {
         melvoxPpsConfig_t const config = {1, 1600000, 32768, 2, 999999};
         d.setPpsConfig(config);
     },
     "ppsConfig chipDelay=999999 interval=32768 polarity=1 signalDelay=2 width=1600000"},
    {"useProfile", [](device_t& d) { d.useProfile("night"); }, "useProfile night"},
    {"saveAsProfile", [](device_t& d) { d.saveAsProfile("harvest 2"); }, "saveAsProfile harvest 2"},
    {"deleteProfile", [](device_t& d) { d.deleteProfile("old"); }, "deleteProfile old"},
    {"dumpAsProfile", [](device_t& d) { d.dumpAsProfile("/media/usb/profile_1.dravel"); },
     "dumpProfile /media/usb/profile_1.dravel"},
    {"coldRestart", [](device_t& d) { d.coldRestart(true); }, "coldRestart useBuiltInAlmanac=true"},
    {"warmRestart", [](device_t& d) { d.warmRestart(); }, "warmRestart"},
    {"reboot", [](device_t& d) { d.reboot(7); }, "reboot delay=7"},
    {"setLteModemStatus", [](device_t& d) { d.setLteModemStatus(true); }, "lteModemStat on=true"},
};

} // namespace

class tst_commands : public melvox_test::pageTest_t
{
    Q_OBJECT

private slots:
    void eachCommandIsSentOnceWithAllItsFields_data();
    void eachCommandIsSentOnceWithAllItsFields();
    void aCommandDoesNotTouchTheCache();
    void textPassesAsUtf8();
    void whetherToWarnOfDtmIsKeptHereAndNotSent();
};

void tst_commands::eachCommandIsSentOnceWithAllItsFields_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < int(sizeof ROWS / sizeof *ROWS); ++i)
        QTest::newRow(ROWS[i].name) << i;
}

void tst_commands::eachCommandIsSentOnceWithAllItsFields()
{
    QFETCH(int, row);
    ROWS[row].command(*device);
    QCOMPARE(receiver->sent(), QStringList() << QString("command ") + ROWS[row].sent);
}

// What the receiver made of a value comes back as a report; until then the old one stands.
void tst_commands::aCommandDoesNotTouchTheCache()
{
    receiver->report("elevationMask", 10.0);
    device->setElevationMask(12.5);
    device->setPdopLimit(4.0);
    QCOMPARE(device->elevationMask(), 10.0);
    QVERIFY(!device->pdopLimitValid());
}

void tst_commands::textPassesAsUtf8()
{
    device->setBaseName("S\xc3\xbc"
                        "d");
    QCOMPARE(receiver->messages().at(0).value.toString(), QString::fromUtf8("S\xc3\xbc"
                                                                            "d"));
}

void tst_commands::whetherToWarnOfDtmIsKeptHereAndNotSent()
{
    QVERIFY(device->showDtmWarning());
    device->setShowDtmWarning(false);
    QVERIFY(!device->showDtmWarning());
    device->setShowDtmWarning(true);
    QVERIFY(device->showDtmWarning());
    QVERIFY(receiver->sent().isEmpty());
}

QTEST_MAIN(tst_commands)
#include "tst_commands.moc"
