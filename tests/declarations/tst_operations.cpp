#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/textHelpers.h"
#include "brel_common_qt/timestamps.h"
#include "brel_common_qt/version.h"

#include "support/test.h"

#include <type_traits>

using namespace brel_common_qt;

namespace calls
{

// None of these exists: operations are only looked at. What reads must do so on a proxy that is const.
remoteMelvoxDevice_t const& known();
remoteMelvoxDevice_t& told();
remotePort_t& port();
remoteSerialPort_t const& line();
remoteSerialPort_t& movedLine();
bool& flag();
unsigned int& number();
std::string& text();
template <typename argument_t> argument_t a();

template <typename expected_t, typename found_t> constexpr bool same()
{
    return std::is_same<expected_t, found_t>::value;
}

} // namespace calls

using namespace calls;

/** Fails to compile where an operation cannot be called as pages call it, or returns another type. */
class tst_operations : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void solutionControl();
    void navigationModeAndStatus();
    void antennasAndTheirAlignment();
    void correctionSourcesAndSatellites();
    void differentialOperation();
    void portsAndMessageOutput();
    void networkAndWebInterface();
    void pps();
    void firmwareProfilesRestartAndReceiverInformation();
    void thePortOfTheLink();
    void theSharedHelpers();
    void theTwoAntennasAreNamedByTheValuesOfAFlag();
};

void tst_operations::solutionControl()
{
    static_assert(same<double, decltype(known().elevationMask())>(), "elevationMask");
    static_assert(same<bool, decltype(known().elevationMaskValid())>(), "elevationMaskValid");
    static_assert(same<melvoxGeoidalModel_t, decltype(known().geoidalModel())>(), "geoidalModel");
    static_assert(same<bool, decltype(known().geoidalModelValid())>(), "geoidalModelValid");
    static_assert(same<bool, decltype(known().getCorrectionEnabled(a<melvoxCorrectionType_t>(), flag()))>(),
                  "getCorrectionEnabled");
    static_assert(same<bool, decltype(known().getCorrectionMaxAge(a<melvoxCorrectionType_t>(), number()))>(),
                  "getCorrectionMaxAge");
    static_assert(same<melvoxNtripPPP_t, decltype(known().ntripPPP())>(), "ntripPPP");
    static_assert(same<bool, decltype(known().ntripPPPModeValid())>(), "ntripPPPModeValid");
    static_assert(same<double, decltype(known().pdopLimit())>(), "pdopLimit");
    static_assert(same<bool, decltype(known().pdopLimitValid())>(), "pdopLimitValid");
    static_assert(same<void, decltype(told().queryCorrectionsEnabled())>(), "queryCorrectionsEnabled");
    static_assert(same<void, decltype(told().queryCorrectionsMaxAge())>(), "queryCorrectionsMaxAge");
    static_assert(same<void, decltype(told().queryElevationMask())>(), "queryElevationMask");
    static_assert(same<void, decltype(told().queryGeoidalModel())>(), "queryGeoidalModel");
    static_assert(same<void, decltype(told().queryNtripPPPMode())>(), "queryNtripPPPMode");
    static_assert(same<void, decltype(told().queryPdopLimit())>(), "queryPdopLimit");
    static_assert(same<void, decltype(told().setCorrectionEnabled(a<melvoxCorrectionType_t>(), true))>(),
                  "setCorrectionEnabled");
    static_assert(same<void, decltype(told().setCorrectionMaxAge(a<melvoxCorrectionType_t>(), 1u))>(),
                  "setCorrectionMaxAge");
    static_assert(same<void, decltype(told().setElevationMask(1.0))>(), "setElevationMask");
    static_assert(same<void, decltype(told().setGeoidalModel(a<melvoxGeoidalModel_t>()))>(), "setGeoidalModel");
    static_assert(same<void, decltype(told().setNtripPPPMode(a<melvoxNtripPPP_t>()))>(), "setNtripPPPMode");
    static_assert(same<void, decltype(told().setPdopLimit(1.0))>(), "setPdopLimit");
}

void tst_operations::navigationModeAndStatus()
{
    static_assert(same<melvoxDynamicConfig_t const&, decltype(known().dynamicConfig())>(), "dynamicConfig");
    static_assert(same<bool, decltype(known().dynamicConfigValid())>(), "dynamicConfigValid");
    static_assert(same<melvoxExtendedNavInfo_t const&, decltype(known().extendedNavInfo())>(), "extendedNavInfo");
    static_assert(same<bool, decltype(known().extendedNavInfoValid())>(), "extendedNavInfoValid");
    static_assert(same<bool, decltype(known().getMeasUse(text(), flag()))>(), "getMeasUse");
    static_assert(same<void, decltype(told().queryDynamicConfig())>(), "queryDynamicConfig");
    static_assert(same<void, decltype(told().queryMeasUse())>(), "queryMeasUse");
    static_assert(same<void, decltype(told().setDynamicConfig(a<melvoxDynamicConfig_t&>()))>(), "setDynamicConfig");
    static_assert(same<void, decltype(told().setMeasUse(a<QList<meas_t>>()))>(), "setMeasUse");
}

void tst_operations::antennasAndTheirAlignment()
{
    static_assert(same<melvoxAntennaAlignmentMode_t, decltype(known().antennaAlignmentMode())>(),
                  "antennaAlignmentMode");
    static_assert(same<float, decltype(known().antennaAlignmentUserAngle())>(), "antennaAlignmentUserAngle");
    static_assert(same<bool, decltype(known().antennaAlignmentValid())>(), "antennaAlignmentValid");
    static_assert(same<melvoxAntennaDualMode_t const&, decltype(known().antennaDualMode())>(), "antennaDualMode");
    static_assert(same<bool, decltype(known().antennaDualModeValid())>(), "antennaDualModeValid");
    static_assert(same<melvoxAntennaHeight_t const&, decltype(known().antennaHeight(a<melvoxAntenna_t>()))>(),
                  "antennaHeight");
    static_assert(same<bool, decltype(known().antennaHeightValid())>(), "antennaHeightValid");
    static_assert(same<melvoxAntennaInfo_t const&, decltype(known().antennaInfo(a<melvoxAntenna_t>()))>(),
                  "antennaInfo");
    static_assert(same<bool, decltype(known().antennaInfoValid())>(), "antennaInfoValid");
    static_assert(same<QStringList, decltype(known().antennaList())>(), "antennaList");
    static_assert(same<melvoxAntennaRemote_t const&, decltype(known().antennaRemote())>(), "antennaRemote");
    static_assert(same<bool, decltype(known().antennaRemoteValid())>(), "antennaRemoteValid");
    static_assert(same<void, decltype(told().queryAntennaAlignment())>(), "queryAntennaAlignment");
    static_assert(same<void, decltype(told().queryAntennaDualMode())>(), "queryAntennaDualMode");
    static_assert(same<void, decltype(told().queryAntennaHeight())>(), "queryAntennaHeight");
    static_assert(same<void, decltype(told().queryAntennaInfo())>(), "queryAntennaInfo");
    static_assert(same<void, decltype(told().queryAntennaRemote())>(), "queryAntennaRemote");
    static_assert(same<void, decltype(told().setAntennaAlignment(a<melvoxAntennaAlignmentMode_t>(), 1.0f))>(),
                  "setAntennaAlignment");
    static_assert(same<void, decltype(told().setAntennaDualMode(a<melvoxAntennaDualMode_t>()))>(),
                  "setAntennaDualMode");
    static_assert(
        same<void, decltype(told().setAntennaHeight(a<melvoxAntennaHeight_t&>(), a<melvoxAntennaHeight_t&>()))>(),
        "setAntennaHeight");
    static_assert(same<void, decltype(told().setAntennaInfo(a<melvoxAntennaInfo_t&>(), a<melvoxAntennaInfo_t&>()))>(),
                  "setAntennaInfo");
    static_assert(same<void, decltype(told().setAntennaRemote(a<melvoxAntennaRemote_t&>()))>(), "setAntennaRemote");
}

void tst_operations::correctionSourcesAndSatellites()
{
    static_assert(same<void, decltype(told().autoSelectCorrectionSat())>(), "autoSelectCorrectionSat");
    static_assert(same<melvoxMrvAlmanacInfo_t const&, decltype(known().mrvAlmanacInfo())>(), "mrvAlmanacInfo");
    static_assert(same<bool, decltype(known().mrvAlmanacInfoValid())>(), "mrvAlmanacInfoValid");
    static_assert(same<unsigned int, decltype(known().correctionSatInUse())>(), "correctionSatInUse");
    static_assert(same<bool, decltype(known().correctionSatInUseValid())>(), "correctionSatInUseValid");
    static_assert(same<bool, decltype(known().correctionSatSelectionIsAuto())>(), "correctionSatSelectionIsAuto");
    static_assert(same<bool, decltype(known().correctionSatSelectionValid())>(), "correctionSatSelectionValid");
    static_assert(
        same<std::map<unsigned short, melvoxCorrectionSatStats_t> const&, decltype(known().correctionSatStats())>(),
        "correctionSatStats");
    static_assert(same<std::map<unsigned short, melvoxCorrectionSat_t> const&, decltype(known().correctionSats())>(),
                  "correctionSats");
    static_assert(same<melvoxCorrectionSelection_t, decltype(known().correctionSelection())>(), "correctionSelection");
    static_assert(same<bool, decltype(known().correctionSelectionValid())>(), "correctionSelectionValid");
    static_assert(same<void, decltype(told().defineUserCorrectionSat(1, 1.0f))>(), "defineUserCorrectionSat");
    static_assert(same<void, decltype(told().deleteUserCorrectionSat())>(), "deleteUserCorrectionSat");
    static_assert(same<bool, decltype(known().netPriorityValid())>(), "netPriorityValid");
    static_assert(same<bool, decltype(known().newStarfireAlmReady())>(), "newStarfireAlmReady");
    static_assert(same<void, decltype(told().queryMrvAlmanacInfo())>(), "queryMrvAlmanacInfo");
    static_assert(same<void, decltype(told().queryCorrectionSatSelected())>(), "queryCorrectionSatSelected");
    static_assert(same<void, decltype(told().queryCorrectionSats())>(), "queryCorrectionSats");
    static_assert(same<void, decltype(told().queryCorrectionSelection())>(), "queryCorrectionSelection");
    static_assert(same<void, decltype(told().queryNetPriority())>(), "queryNetPriority");
    static_assert(same<void, decltype(told().queryRtgUseMode())>(), "queryRtgUseMode");
    static_assert(same<void, decltype(told().queryStarfireAlmStatus())>(), "queryStarfireAlmStatus");
    static_assert(same<void, decltype(told().queryStarfireAlmSwitchPolicy())>(), "queryStarfireAlmSwitchPolicy");
    static_assert(same<bool, decltype(known().rtgUseModeValid())>(), "rtgUseModeValid");
    static_assert(same<void, decltype(told().selectCorrectionSat(1))>(), "selectCorrectionSat");
    static_assert(same<void, decltype(told().setCorrectionSelection(a<melvoxCorrectionSelection_t>()))>(),
                  "setCorrectionSelection");
    static_assert(same<void, decltype(told().setStarfireAlmSwitchPolicy(a<melvoxStarfireAlmSwitchPolicy_t&>()))>(),
                  "setStarfireAlmSwitchPolicy");
    static_assert(same<bool, decltype(known().starfireAlmStatusValid())>(), "starfireAlmStatusValid");
    static_assert(same<melvoxStarfireAlmSwitchPolicy_t const&, decltype(known().starfireAlmSwitchPolicy())>(),
                  "starfireAlmSwitchPolicy");
    static_assert(same<bool, decltype(known().starfireAlmSwitchPolicyValid())>(), "starfireAlmSwitchPolicyValid");
    static_assert(same<bool, decltype(known().userCorrectionSatDefined())>(), "userCorrectionSatDefined");
    static_assert(same<float, decltype(known().userCorrectionSatFrequency())>(), "userCorrectionSatFrequency");
    static_assert(same<unsigned int, decltype(known().userCorrectionSatId())>(), "userCorrectionSatId");
    static_assert(same<bool, decltype(known().userCorrectionSatValid())>(), "userCorrectionSatValid");
}

void tst_operations::differentialOperation()
{
    static_assert(same<std::string const&, decltype(known().baseName())>(), "baseName");
    static_assert(same<bool, decltype(known().baseNameValid())>(), "baseNameValid");
    static_assert(same<melvoxBasePosition_t const&, decltype(known().basePosition())>(), "basePosition");
    static_assert(same<bool, decltype(known().basePositionValid())>(), "basePositionValid");
    static_assert(same<melvoxDiffConfig_t const&, decltype(known().diffConfig())>(), "diffConfig");
    static_assert(same<bool, decltype(known().diffConfigValid())>(), "diffConfigValid");
    static_assert(same<void, decltype(told().queryBaseName())>(), "queryBaseName");
    static_assert(same<void, decltype(told().queryBasePosition())>(), "queryBasePosition");
    static_assert(same<void, decltype(told().queryDiffConfig())>(), "queryDiffConfig");
    static_assert(same<void, decltype(told().queryRtcmVersion())>(), "queryRtcmVersion");
    static_assert(same<melvoxRtcmVersion_t, decltype(known().rtcmVersion())>(), "rtcmVersion");
    static_assert(same<bool, decltype(known().rtcmVersionValid())>(), "rtcmVersionValid");
    static_assert(same<void, decltype(told().setBaseName(text()))>(), "setBaseName");
    static_assert(same<void, decltype(told().setBasePosition(a<melvoxBasePosition_t&>()))>(), "setBasePosition");
    static_assert(same<void, decltype(told().setDiffConfig(a<melvoxDiffConfig_t&>()))>(), "setDiffConfig");
    static_assert(same<void, decltype(told().setRtcmVersion(a<melvoxRtcmVersion_t>()))>(), "setRtcmVersion");
}

void tst_operations::portsAndMessageOutput()
{
    static_assert(same<melvoxPort_t, decltype(known().activePort())>(), "activePort");
    static_assert(same<bool, decltype(known().activePortValid())>(), "activePortValid");
    static_assert(same<melvoxGgaCorrectionsScaling_t, decltype(known().ggaCorrectionsScaling())>(),
                  "ggaCorrectionsScaling");
    static_assert(same<melvoxGgaMode_t, decltype(known().ggaMode())>(), "ggaMode");
    static_assert(same<bool, decltype(known().ggaModeValid())>(), "ggaModeValid");
    static_assert(same<ggaQuality_t, decltype(known().ggaQuality())>(), "ggaQuality");
    static_assert(same<melvoxMessageOutput_t const*, decltype(known().messageOutput(a<melvoxPort_t>(), text()))>(),
                  "messageOutput");
    static_assert(
        same<std::map<std::string, melvoxMessageOutput_t> const*, decltype(known().portOutputs(a<melvoxPort_t>()))>(),
        "portOutputs");
    static_assert(same<PortTxRxInfo const*, decltype(known().portTxRxInfo(a<melvoxPort_t>()))>(), "portTxRxInfo");
    static_assert(same<void, decltype(told().queryActivePort())>(), "queryActivePort");
    static_assert(same<void, decltype(told().queryAllOutputs())>(), "queryAllOutputs");
    static_assert(same<void, decltype(told().queryGgaMode())>(), "queryGgaMode");
    static_assert(same<void, decltype(told().queryTalkerIdMode())>(), "queryTalkerIdMode");
    static_assert(same<void, decltype(told().queryUsbMode())>(), "queryUsbMode");
    static_assert(same<void, decltype(told().setGgaMode(a<melvoxGgaMode_t>(), a<ggaQuality_t>(),
                                                        a<melvoxGgaCorrectionsScaling_t>()))>(),
                  "setGgaMode");
    static_assert(same<void, decltype(told().setOutput(a<melvoxPort_t>(), text(), a<melvoxMessageOutput_t&>()))>(),
                  "setOutput");
    static_assert(same<void, decltype(told().setSerialConfig(a<melvoxPort_t>(), a<melvoxSerialPortConfig_t&>()))>(),
                  "setSerialConfig");
    static_assert(same<void, decltype(told().setShowDtmWarning(true))>(), "setShowDtmWarning");
    static_assert(same<void, decltype(told().setTalkerIdMode(a<melvoxTalkerIdMode_t>()))>(), "setTalkerIdMode");
    static_assert(same<void, decltype(told().setUsbMode(a<melvoxUsbMode_t>()))>(), "setUsbMode");
    static_assert(same<void, decltype(told().setVcomConfig(a<melvoxPort_t>(), a<melvoxVcomConfig_t&>()))>(),
                  "setVcomConfig");
    static_assert(same<bool, decltype(known().showDtmWarning())>(), "showDtmWarning");
    static_assert(same<melvoxTalkerIdMode_t, decltype(known().talkerIdMode())>(), "talkerIdMode");
    static_assert(same<bool, decltype(known().talkerIdModeValid())>(), "talkerIdModeValid");
    static_assert(same<void, decltype(told().turnOffAllOutput(a<melvoxPort_t>()))>(), "turnOffAllOutput");
    static_assert(same<melvoxUsbMode_t, decltype(known().usbMode())>(), "usbMode");
    static_assert(same<bool, decltype(known().usbModeValid())>(), "usbModeValid");
}

void tst_operations::networkAndWebInterface()
{
    static_assert(same<ethernetConfig_t const*, decltype(known().ethernetConfig(a<melvoxEthernetConfigSource_t>()))>(),
                  "ethernetConfig");
    static_assert(same<bool, decltype(known().ethernetConfigDhcp(a<melvoxEthernetConfigSource_t>()))>(),
                  "ethernetConfigDhcp");
    static_assert(same<void, decltype(told().queryEthernetConfig())>(), "queryEthernetConfig");
    static_assert(same<void, decltype(told().queryWebControl())>(), "queryWebControl");
    static_assert(
        same<void, decltype(told().setEthernetConfig(a<melvoxEthernetConfigSource_t>(), a<ethernetConfig_t&>()))>(),
        "setEthernetConfig");
    static_assert(same<void, decltype(told().setEthernetConfigDhcp(a<melvoxEthernetConfigSource_t>()))>(),
                  "setEthernetConfigDhcp");
    static_assert(same<void, decltype(told().setWebUiEnabled(true))>(), "setWebUiEnabled");
    static_assert(same<void, decltype(told().startWebUiUpload(text()))>(), "startWebUiUpload");
    static_assert(same<bool, decltype(known().webControlValid())>(), "webControlValid");
    static_assert(same<bool, decltype(known().webUiEnabled())>(), "webUiEnabled");
    static_assert(same<std::string const&, decltype(known().webUiUploadDescription())>(), "webUiUploadDescription");
    static_assert(same<melvoxWebUiUploadState_t, decltype(known().webUiUploadState())>(), "webUiUploadState");
}

void tst_operations::pps()
{
    static_assert(same<melvoxPpsConfig_t const&, decltype(known().ppsConfig())>(), "ppsConfig");
    static_assert(same<bool, decltype(known().ppsConfigValid())>(), "ppsConfigValid");
    static_assert(same<void, decltype(told().queryPpsConfig())>(), "queryPpsConfig");
    static_assert(same<void, decltype(told().setPpsConfig(a<melvoxPpsConfig_t&>()))>(), "setPpsConfig");
}

void tst_operations::firmwareProfilesRestartAndReceiverInformation()
{
    static_assert(same<std::string const&, decltype(known().serialNumber())>(), "serialNumber");
    static_assert(same<std::string const&, decltype(known().activeProfile())>(), "activeProfile");
    static_assert(same<bool, decltype(known().activeProfileValid())>(), "activeProfileValid");
    static_assert(same<void, decltype(told().coldRestart(true))>(), "coldRestart");
    static_assert(same<void, decltype(told().deleteProfile(text()))>(), "deleteProfile");
    static_assert(same<void, decltype(told().dumpAsProfile(text()))>(), "dumpAsProfile");
    static_assert(same<QList<std::pair<std::string, std::string>> const&, decltype(known().firmwareVersions())>(),
                  "firmwareVersions");
    static_assert(same<void, decltype(told().listProfiles())>(), "listProfiles");
    static_assert(same<std::string const&, decltype(known().modelName())>(), "modelName");
    static_assert(same<bool, decltype(known().productInfoValid())>(), "productInfoValid");
    static_assert(same<void, decltype(told().queryActiveProfile())>(), "queryActiveProfile");
    static_assert(same<void, decltype(told().queryAll())>(), "queryAll");
    static_assert(same<void, decltype(told().queryLteModemStatus())>(), "queryLteModemStatus");
    static_assert(same<void, decltype(told().reboot(1u))>(), "reboot");
    static_assert(same<void, decltype(told().saveAsProfile(text()))>(), "saveAsProfile");
    static_assert(same<void, decltype(told().setLteModemStatus(true))>(), "setLteModemStatus");
    static_assert(
        same<void, decltype(told().startFirmwareUpdate(a<QList<melvoxFirmwareUpdateComponent_t>&>(), text()))>(),
        "startFirmwareUpdate");
    static_assert(same<void, decltype(told().useProfile(text()))>(), "useProfile");
}

void tst_operations::thePortOfTheLink()
{
    static_assert(std::is_base_of<remoteDevice_t, remoteMelvoxDevice_t>::value, "the proxy is a device");
    static_assert(std::is_base_of<remotePort_t, remoteSerialPort_t>::value, "a serial port is a port");
    static_assert(same<remotePort_t*, decltype(known().port())>(), "port");
    static_assert(same<bool, decltype(known().isPortTcpConnect())>(), "isPortTcpConnect");
    static_assert(same<void, decltype(port().setLockState(a<portLock_t>()))>(), "setLockState");
    static_assert(same<void, decltype(port().uploadData(a<QExplicitlySharedDataPointer<buffer_t>>()))>(), "uploadData");
    static_assert(same<serialPortConfig_t const*, decltype(line().serialPortConfig())>(), "serialPortConfig");
    static_assert(same<void, decltype(movedLine().configure(a<serialPortConfig_t const&>(), false))>(), "configure");
}

void tst_operations::theSharedHelpers()
{
    static_assert(same<QString, decltype(melvoxPortName(a<melvoxPort_t>()))>(), "melvoxPortName");
    static_assert(same<QString, decltype(melvoxAntennaName(a<melvoxAntenna_t>()))>(), "melvoxAntennaName");
    static_assert(same<QString, decltype(melvoxFirmwareComponentString(a<melvoxFirmwareComponent_t>()))>(),
                  "melvoxFirmwareComponentString");
    static_assert(same<QString, decltype(melvoxFirmwareUpdateStatusString(a<melvoxFirmwareUpdateStatus_t>()))>(),
                  "melvoxFirmwareUpdateStatusString");
    static_assert(same<QString, decltype(toString(a<ggaQuality_t>()))>(), "toString");
    static_assert(same<QString, decltype(baudString(1u))>(), "baudString");
    static_assert(same<QString, decltype(parityString(a<parity_t>()))>(), "parityString");
    static_assert(same<QString, decltype(charSizeString(a<charSize_t>()))>(), "charSizeString");
    static_assert(same<QString, decltype(stopBitsString(a<stopBits_t>()))>(), "stopBitsString");
    static_assert(same<QString, decltype(latitudeString(1.0, a<latLonStringOptions_t const&>()))>(), "latitudeString");
    static_assert(same<QString, decltype(longitudeString(1.0, a<latLonStringOptions_t const&>()))>(),
                  "longitudeString");
    static_assert(same<QString, decltype(distanceString(1.0, a<distanceUnit_t>(), 2))>(), "distanceString");
    static_assert(same<bool, decltype(melvoxDiffModeIsBase(a<melvoxDiffMode_t>()))>(), "melvoxDiffModeIsBase");
    static_assert(same<bool, decltype(melvoxDiffModeIsDynamic(a<melvoxDiffMode_t>()))>(), "melvoxDiffModeIsDynamic");
    static_assert(same<bool, decltype(parseVersion(text(), a<std::vector<unsigned int>&>()))>(), "parseVersion");
    static_assert(same<int, decltype(versionCompare(a<std::vector<unsigned int>>(), a<std::vector<unsigned int>>()))>(),
                  "versionCompare");
    static_assert(same<bool, decltype(buildVersion(a<QString&>(), a<std::vector<unsigned int>>()))>(), "buildVersion");
    static_assert(same<double, decltype(dataTimestamp())>(), "dataTimestamp");
    static_assert(same<QString, decltype(filenameTimestamp(1u, 0))>(), "filenameTimestamp");
    static_assert(
        same<void, decltype(melvoxFirmwareScanFile(a<QString>(), a<QList<melvoxFirmwareScanRecord_t>&>(), 8))>(),
        "melvoxFirmwareScanFile");
    static_assert(same<void, decltype(melvoxFirmwareScanDir(a<QString>(), a<QStringList&>(),
                                                            a<QList<melvoxFirmwareScanRecord_t>&>(), 8))>(),
                  "melvoxFirmwareScanDir");
}

void tst_operations::theTwoAntennasAreNamedByTheValuesOfAFlag()
{
    QCOMPARE(int(MELVOX_ANTENNA_FIRST), int(false));
    QCOMPARE(int(MELVOX_ANTENNA_SECOND), int(true));
}

QTEST_MAIN(tst_operations)
#include "tst_operations.moc"
