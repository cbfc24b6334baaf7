#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/units.h"
#include "brel_common_qt/usbDriveManager.h"

#include "support/test.h"

#include <limits>

using namespace brel_common_qt;

namespace
{

/** The field is of exactly this type and has this value. */
template <typename field_t, typename record_t>
bool holds(record_t const& record, field_t record_t::*field, field_t const& value)
{
    return record.*field == value;
}

template <typename wire_t, typename number_t> void passesUnchanged(number_t number)
{
    wire_t const wire = number;
    number_t const back = wire;
    QCOMPARE(back, number);
    QCOMPARE(sizeof(wire_t), sizeof(number_t));
}

} // namespace

/** Values and field orders that the maker's library and the receiver share with the pages. An aggregate is filled in the
 *  order of its fields; the compiler complains of a field too few or too many. */
class tst_records : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void melvoxPort();
    void melvoxCorrectionType();
    void melvoxGeoidalModel();
    void melvoxNtripPPPMode();
    void melvoxNtripPPPProtocol();
    void melvoxDynamicMode();
    void melvoxNavMode();
    void melvoxNavSource();
    void melvoxAntennaAlignmentMode();
    void melvoxAntenna();
    void melvoxCorrectionSelection();
    void melvoxNetPriority();
    void melvoxRtgUseMode();
    void melvoxStarfireAlmSwitchMode();
    void melvoxDiffMode();
    void melvoxRtcmVersion();
    void charSize();
    void parity();
    void stopBits();
    void flow();
    void melvoxVcomMode();
    void melvoxUsbMode();
    void melvoxOutputMethod();
    void melvoxGgaMode();
    void ggaQuality();
    void melvoxGgaCorrectionsScaling();
    void melvoxTalkerIdMode();
    void melvoxEthernetConfigSource();
    void melvoxWebUiUploadState();
    void melvoxFirmwareComponent();
    void melvoxFirmwareUpdateStatus();
    void firmwareUpdateState();
    void portLock();
    void uploadStatus();
    void latLonFormat();
    void distanceUnit();
    void aLoopOverThePortsNeverReachesTheUnknownOne();
    void melvoxNtripPPPHoldsItsFieldsInOrder();
    void measHoldsItsFieldsInOrder();
    void melvoxDynamicConfigHoldsItsFieldsInOrder();
    void melvoxExtendedNavInfoHoldsItsFieldsInOrder();
    void melvoxAntennaInfoHoldsItsFieldsInOrder();
    void melvoxAntennaHeightHoldsItsFieldsInOrder();
    void melvoxAntennaRemoteHoldsItsFieldsInOrder();
    void melvoxCorrectionSatStatsHoldsItsFieldsInOrder();
    void melvoxCorrectionSatHoldsItsFieldsInOrder();
    void melvoxStarfireAlmSwitchPolicyHoldsItsFieldsInOrder();
    void melvoxMrvAlmanacInfoHoldsItsFieldsInOrder();
    void melvoxDiffConfigHoldsItsFieldsInOrder();
    void melvoxBasePositionHoldsItsFieldsInOrder();
    void melvoxMessageOutputHoldsItsFieldsInOrder();
    void portTxRxInfoHoldsItsFieldsInOrder();
    void melvoxSerialPortConfigHoldsItsFieldsInOrder();
    void melvoxVcomConfigHoldsItsFieldsInOrder();
    void ethernetConfigHoldsItsFieldsInOrder();
    void melvoxPpsConfigHoldsItsFieldsInOrder();
    void melvoxFirmwareScanRecordHoldsItsFieldsInOrder();
    void melvoxFirmwareUpdateComponentHoldsItsFieldsInOrder();
    void melvoxFirmwareUpdateProgressHoldsItsFieldsInOrder();
    void serialPortConfigHoldsItsFieldsInOrder();
    void usbDriveHoldsItsFieldsInOrder();
    void measurementNames();
    void wireNumbersPassUnchanged();
    void wireNumbersLieInTheReceiversByteOrder();
    void aBufferHoldsNoMoreThanItsCapacity();
    void aBufferIsSharedNotCopied();
};

void tst_records::melvoxPort()
{
    QCOMPARE(sizeof(melvoxPort_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_PORT_COM1), 0);
    QCOMPARE(int(MELVOX_PORT_FIRST), 0);
    QCOMPARE(int(MELVOX_PORT_MIN_COM), 0);
    QCOMPARE(int(MELVOX_PORT_COM2), 1);
    QCOMPARE(int(MELVOX_PORT_COM3), 2);
    QCOMPARE(int(MELVOX_PORT_COM4), 3);
    QCOMPARE(int(MELVOX_PORT_MAX_COM), 3);
    QCOMPARE(int(MELVOX_PORT_USB1), 4);
    QCOMPARE(int(MELVOX_PORT_USB2), 5);
    QCOMPARE(int(MELVOX_PORT_MAX_PHYSICAL), 5);
    QCOMPARE(int(MELVOX_PORT_ETH1), 6);
    QCOMPARE(int(MELVOX_PORT_MIN_ETH), 6);
    QCOMPARE(int(MELVOX_PORT_ETH2), 7);
    QCOMPARE(int(MELVOX_PORT_ETH3), 8);
    QCOMPARE(int(MELVOX_PORT_ETH4), 9);
    QCOMPARE(int(MELVOX_PORT_ETH5), 10);
    QCOMPARE(int(MELVOX_PORT_ETH6), 11);
    QCOMPARE(int(MELVOX_PORT_ETH7), 12);
    QCOMPARE(int(MELVOX_PORT_ETH8), 13);
    QCOMPARE(int(MELVOX_PORT_MAX_ETH), 13);
    QCOMPARE(int(MELVOX_NUM_PORTS), 14);
    QCOMPARE(int(MELVOX_PORT_UNKNOWN), 14);
}

void tst_records::melvoxCorrectionType()
{
    QCOMPARE(sizeof(melvoxCorrectionType_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_CORR_TYPE_RTCM19), 0);
    QCOMPARE(int(MELVOX_CORR_TYPE_SBAS), 1);
    QCOMPARE(int(MELVOX_CORR_TYPE_RTG), 2);
}

void tst_records::melvoxGeoidalModel()
{
    QCOMPARE(sizeof(melvoxGeoidalModel_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_GEOIDAL_MODEL_NONE), 0);
    QCOMPARE(int(MELVOX_GEOIDAL_MODEL_EGM96), 1);
    QCOMPARE(int(MELVOX_GEOIDAL_MODEL_DEFAULT), 2);
}

void tst_records::melvoxNtripPPPMode()
{
    QCOMPARE(sizeof(melvoxNtripPPPMode_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_NTRIP_PPP_MODE_OFF), 0);
    QCOMPARE(int(MELVOX_NTRIP_PPP_MODE_ON), 1);
}

void tst_records::melvoxNtripPPPProtocol()
{
    QCOMPARE(sizeof(melvoxNtripPPPProtocol_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_NTRIP_PPP_MODE_HTTP), 0);
    QCOMPARE(int(MELVOX_NTRIP_PPP_MODE_HTTPS), 1);
}

void tst_records::melvoxDynamicMode()
{
    QCOMPARE(sizeof(melvoxDynamicMode_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_DYN_MODE_STATIC), 0);
    QCOMPARE(int(MELVOX_DYN_MODE_LOW), 1);
    QCOMPARE(int(MELVOX_DYN_MODE_MEDIUM), 2);
    QCOMPARE(int(MELVOX_DYN_MODE_HIGH), 3);
    QCOMPARE(int(MELVOX_NUM_DYN_MODES), 4);
}

void tst_records::melvoxNavMode()
{
    QCOMPARE(sizeof(melvoxNavMode_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_NAV_MODE_NON_DIFF), 0);
    QCOMPARE(int(MELVOX_NAV_MODE_DGPS), 1);
    QCOMPARE(int(MELVOX_NAV_MODE_STARFIRE_DUAL), 2);
    QCOMPARE(int(MELVOX_NAV_MODE_RTK_FLOAT), 3);
    QCOMPARE(int(MELVOX_NAV_MODE_RTK_X), 4);
    QCOMPARE(int(MELVOX_NAV_MODE_RTK_WL_FIXED), 5);
    QCOMPARE(int(MELVOX_NAV_MODE_RTK_L1_FIXED), 6);
    QCOMPARE(int(MELVOX_NAV_MODE_RTK_DUAL_FIXED), 7);
    QCOMPARE(int(MELVOX_NAV_MODE_STARFIRE_LP), 8);
}

void tst_records::melvoxNavSource()
{
    QCOMPARE(sizeof(melvoxNavSource_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_NAV_SOURCE_DGPS_WAAS), 0);
    QCOMPARE(int(MELVOX_NAV_SOURCE_DGPS_WAAS_TEST), 1);
    QCOMPARE(int(MELVOX_NAV_SOURCE_DGPS_STARFIRE_GPS), 2);
    QCOMPARE(int(MELVOX_NAV_SOURCE_DGPS_RTCM_1), 3);
    QCOMPARE(int(MELVOX_NAV_SOURCE_DGPS_RTCM_9), 4);
    QCOMPARE(int(MELVOX_NAV_SOURCE_DGPS_EGNOS), 5);
    QCOMPARE(int(MELVOX_NAV_SOURCE_DGPS_MSAS), 6);
    QCOMPARE(int(MELVOX_NAV_SOURCE_DGPS_GAGAN), 7);
    QCOMPARE(int(MELVOX_NAV_SOURCE_DGPS_STARFIRE_GNSS), 8);
    QCOMPARE(int(MELVOX_NAV_SOURCE_RTK_5B), 0);
    QCOMPARE(int(MELVOX_NAV_SOURCE_RTK_RESERVED1), 1);
    QCOMPARE(int(MELVOX_NAV_SOURCE_RTK_RTCM_18_19), 2);
    QCOMPARE(int(MELVOX_NAV_SOURCE_RTK_RTCM_20_21), 3);
    QCOMPARE(int(MELVOX_NAV_SOURCE_RTK_CMR), 4);
    QCOMPARE(int(MELVOX_NAV_SOURCE_RTK_CMR_PLUS), 5);
    QCOMPARE(int(MELVOX_NAV_SOURCE_RTK_RTCM3_L1_COMPACT), 6);
    QCOMPARE(int(MELVOX_NAV_SOURCE_RTK_RTCM3_L1_FULL), 7);
    QCOMPARE(int(MELVOX_NAV_SOURCE_RTK_RTCM3_DUAL_COMPACT), 8);
    QCOMPARE(int(MELVOX_NAV_SOURCE_RTK_RTCM3_DUAL_FULL), 9);
    QCOMPARE(int(MELVOX_NAV_SOURCE_RTK_RTCM3_2_MSM), 10);
    QCOMPARE(int(MELVOX_NAV_SOURCE_RTK_62), 11);
}

void tst_records::melvoxAntennaAlignmentMode()
{
    QCOMPARE(sizeof(melvoxAntennaAlignmentMode_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_ANT_ALIGN_MODE_LATERAL), 0);
    QCOMPARE(int(MELVOX_ANT_ALIGN_MODE_LONGITUDINAL), 1);
    QCOMPARE(int(MELVOX_ANT_ALIGN_MODE_USER_SPECIFIED), 2);
}

void tst_records::melvoxAntenna()
{
    QCOMPARE(sizeof(melvoxAntenna_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_ANTENNA_FIRST), 0);
    QCOMPARE(int(MELVOX_ANTENNA_SECOND), 1);
    QCOMPARE(int(MELVOX_NUM_ANTENNAS), 2);
}

void tst_records::melvoxCorrectionSelection()
{
    QCOMPARE(sizeof(melvoxCorrectionSelection_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_CORRECTION_SELECTION_DEFAULT), 0);
    QCOMPARE(int(MELVOX_CORRECTION_SELECTION_SECONDARY), 1);
}

void tst_records::melvoxNetPriority()
{
    QCOMPARE(sizeof(melvoxNetPriority_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_NET_PRIORITY_NET1), 0);
    QCOMPARE(int(MELVOX_NET_PRIORITY_NET2), 1);
}

void tst_records::melvoxRtgUseMode()
{
    QCOMPARE(sizeof(melvoxRtgUseMode_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_RTG_USE_MODE_OFF), 0);
    QCOMPARE(int(MELVOX_RTG_USE_MODE_ON), 1);
}

void tst_records::melvoxStarfireAlmSwitchMode()
{
    QCOMPARE(sizeof(melvoxStarfireAlmSwitchMode_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_STARFIRE_ALM_SWITCH_MODE_AUTO), 0);
    QCOMPARE(int(MELVOX_STARFIRE_ALM_SWITCH_MODE_MANUAL), 1);
}

void tst_records::melvoxDiffMode()
{
    QCOMPARE(sizeof(melvoxDiffMode_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_DIFF_MODE_ROVER_RTCM), 0);
    QCOMPARE(int(MELVOX_DIFF_MODE_BASE_MIN), 1);
    QCOMPARE(int(MELVOX_DIFF_MODE_BASE_RTCM1), 1);
    QCOMPARE(int(MELVOX_DIFF_MODE_BASE_RTCM9), 2);
    QCOMPARE(int(NUM_MELVOX_DIFF_MODES), 3);
}

void tst_records::melvoxRtcmVersion()
{
    QCOMPARE(sizeof(melvoxRtcmVersion_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_RTCM_VERSION_32), 0);
    QCOMPARE(int(MELVOX_RTCM_VERSION_23), 1);
}

void tst_records::charSize()
{
    QCOMPARE(sizeof(charSize_t), sizeof(qint32));
    QCOMPARE(int(CHAR_SIZE_7), 0);
    QCOMPARE(int(CHAR_SIZE_8), 1);
}

void tst_records::parity()
{
    QCOMPARE(sizeof(parity_t), sizeof(qint32));
    QCOMPARE(int(PARITY_N), 0);
    QCOMPARE(int(PARITY_O), 1);
    QCOMPARE(int(PARITY_E), 2);
}

void tst_records::stopBits()
{
    QCOMPARE(sizeof(stopBits_t), sizeof(qint32));
    QCOMPARE(int(STOP_1), 0);
    QCOMPARE(int(STOP_2), 1);
}

void tst_records::flow()
{
    QCOMPARE(sizeof(flow_t), sizeof(qint32));
    QCOMPARE(int(FLOW_NONE), 0);
    QCOMPARE(int(FLOW_BREL), 1);
}

void tst_records::melvoxVcomMode()
{
    QCOMPARE(sizeof(melvoxVcomMode_t), sizeof(qint32));
    QCOMPARE(int(MODE_UDP_RESTRICT), 0);
    QCOMPARE(int(MODE_TCP_REGULAR), 1);
}

void tst_records::melvoxUsbMode()
{
    QCOMPARE(sizeof(melvoxUsbMode_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_USB_MODE_SERIAL_PORT), 0);
    QCOMPARE(int(MELVOX_USB_MODE_DRIVE), 1);
}

void tst_records::melvoxOutputMethod()
{
    QCOMPARE(sizeof(melvoxOutputMethod_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_OUTPUT_METHOD_OFF), 0);
    QCOMPARE(int(MELVOX_OUTPUT_METHOD_INTERVAL), 1);
}

void tst_records::melvoxGgaMode()
{
    QCOMPARE(sizeof(melvoxGgaMode_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_GGA_MODE_HIGH_PRECISION), 0);
    QCOMPARE(int(MELVOX_GGA_MODE_STANDARD), 1);
}

void tst_records::ggaQuality()
{
    QCOMPARE(sizeof(ggaQuality_t), sizeof(qint32));
    QCOMPARE(int(GGA_QUALITY_UNKNOWN), 0);
    QCOMPARE(int(GGA_QUALITY_DIFF_SPS), 1);
    QCOMPARE(int(GGA_QUALITY_RTK), 2);
}

void tst_records::melvoxGgaCorrectionsScaling()
{
    QCOMPARE(sizeof(melvoxGgaCorrectionsScaling_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_GGA_CORRECTIONS_UNSCALED), 0);
    QCOMPARE(int(MELVOX_GGA_CORRECTIONS_SCALED), 1);
    QCOMPARE(int(MELVOX_GGA_CORRECTIONS_SUPERSCALED), 2);
}

void tst_records::melvoxTalkerIdMode()
{
    QCOMPARE(sizeof(melvoxTalkerIdMode_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_TALKER_ID_MODE_OFF), 0);
    QCOMPARE(int(MELVOX_TALKER_ID_MODE_GP), 1);
    QCOMPARE(int(MELVOX_TALKER_ID_MODE_GL), 2);
}

void tst_records::melvoxEthernetConfigSource()
{
    QCOMPARE(sizeof(melvoxEthernetConfigSource_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_ETH_CFG_SOURCE_CABLE), 0);
    QCOMPARE(int(MELVOX_ETH_CFG_SOURCE_WIFI), 1);
    QCOMPARE(int(MELVOX_NUM_ETH_CFG_SOURCES), 2);
    QCOMPARE(int(MELVOX_ETH_CFG_SOURCE_UNKNOWN), 2);
}

void tst_records::melvoxWebUiUploadState()
{
    QCOMPARE(sizeof(melvoxWebUiUploadState_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_WEB_UI_UPLOAD_ERROR), 0);
    QCOMPARE(int(MELVOX_WEB_UI_UPLOAD_IN_PROGRESS), 1);
    QCOMPARE(int(MELVOX_WEB_UI_UPLOAD_COMPLETE), 2);
}

void tst_records::melvoxFirmwareComponent()
{
    QCOMPARE(sizeof(melvoxFirmwareComponent_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_FW_COMP_MIN), 0);
    QCOMPARE(int(MELVOX_FW_COMP_BOOT1), 0);
    QCOMPARE(int(MELVOX_FW_COMP_BOOT2), 1);
    QCOMPARE(int(MELVOX_FW_COMP_NAV), 2);
    QCOMPARE(int(MELVOX_FW_COMP_MTEST), 3);
    QCOMPARE(int(MELVOX_FW_COMP_PIO_BOOT1), 4);
    QCOMPARE(int(MELVOX_FW_COMP_PIO_BOOT2), 5);
    QCOMPARE(int(MELVOX_FW_COMP_PIO_APP), 6);
    QCOMPARE(int(MELVOX_FW_COMP_PIO_BLUETOOTH), 7);
    QCOMPARE(int(MELVOX_FW_COMP_STM8), 8);
    QCOMPARE(int(MELVOX_FW_COMP_MFG_PIOB), 9);
    QCOMPARE(int(MELVOX_FW_COMP_MFG_GNSS), 10);
    QCOMPARE(int(MELVOX_FW_COMP_OCEAN_TIDE), 11);
    QCOMPARE(int(MELVOX_FW_COMP_GLOBAL_GEOID_GRID), 12);
    QCOMPARE(int(MELVOX_FW_COMP_GPB), 13);
    QCOMPARE(int(MELVOX_FW_COMP_GEOID99), 14);
    QCOMPARE(int(MELVOX_FW_COMP_GGM02), 15);
    QCOMPARE(int(MELVOX_FW_COMP_ALL), 16);
    QCOMPARE(int(MELVOX_NUM_FW_COMPONENTS), 17);
    QCOMPARE(int(MELVOX_FW_UNKNOWN_COMPONENT), 255);
}

void tst_records::melvoxFirmwareUpdateStatus()
{
    QCOMPARE(sizeof(melvoxFirmwareUpdateStatus_t), sizeof(qint32));
    QCOMPARE(int(MELVOX_FWU_STATUS_NOT_STARTED), 0);
    QCOMPARE(int(MELVOX_FWU_STATUS_IN_PROGRESS), 1);
    QCOMPARE(int(MELVOX_FWU_STATUS_SUCCESS), 2);
    QCOMPARE(int(MELVOX_FWU_STATUS_FAILURE), 3);
    QCOMPARE(int(NUM_MELVOX_FWU_STATUS), 4);
}

void tst_records::firmwareUpdateState()
{
    QCOMPARE(sizeof(firmwareUpdateState_t), sizeof(qint32));
    QCOMPARE(int(FIRMWARE_UPDATE_ERROR), 0);
    QCOMPARE(int(FIRMWARE_UPDATE_IN_PROGRESS), 1);
    QCOMPARE(int(FIRMWARE_UPDATE_COMPLETE), 2);
}

void tst_records::portLock()
{
    QCOMPARE(sizeof(portLock_t), sizeof(qint32));
    QCOMPARE(int(PORT_LOCK_NONE), 0);
    QCOMPARE(int(PORT_LOCK_FRAMEWORK), 1);
    QCOMPARE(int(PORT_LOCK_PLUGIN), 2);
}

void tst_records::uploadStatus()
{
    QCOMPARE(sizeof(uploadStatus_t), sizeof(qint32));
    QCOMPARE(int(UPLOAD_OK), 0);
    QCOMPARE(int(UPLOAD_ERROR), 1);
    QCOMPARE(int(UPLOAD_PORT_CLOSED), 2);
}

void tst_records::latLonFormat()
{
    QCOMPARE(sizeof(latLonFormat_t), sizeof(qint32));
    QCOMPARE(int(LATLON_FORMAT_DEGREE), 0);
    QCOMPARE(int(LATLON_FORMAT_DEGMIN), 1);
    QCOMPARE(int(LATLON_FORMAT_DEGMINSEC), 2);
}

void tst_records::distanceUnit()
{
    QCOMPARE(sizeof(distanceUnit_t), sizeof(qint32));
    QCOMPARE(int(DISTANCE_UNIT_METER), 0);
    QCOMPARE(int(DISTANCE_UNIT_US_SURVEY_FOOT), 1);
}

void tst_records::aLoopOverThePortsNeverReachesTheUnknownOne()
{
    int ports = 0;
    for (int port = MELVOX_PORT_FIRST; port < MELVOX_NUM_PORTS; ++port)
    {
        QVERIFY(port != MELVOX_PORT_UNKNOWN);
        ++ports;
    }
    QCOMPARE(ports, 14);
}

void tst_records::melvoxNtripPPPHoldsItsFieldsInOrder()
{
    melvoxNtripPPP_t const record = {MELVOX_NTRIP_PPP_MODE_ON, MELVOX_NTRIP_PPP_MODE_HTTP};
    QVERIFY(holds<melvoxNtripPPPMode_t>(record, &melvoxNtripPPP_t::mode, MELVOX_NTRIP_PPP_MODE_ON));
    QVERIFY(holds<melvoxNtripPPPProtocol_t>(record, &melvoxNtripPPP_t::protocol, MELVOX_NTRIP_PPP_MODE_HTTP));
}

void tst_records::measHoldsItsFieldsInOrder()
{
    meas_t const record = {"GLO", true};
    QVERIFY(holds<std::string>(record, &meas_t::name, "GLO"));
    QVERIFY(holds<bool>(record, &meas_t::use, true));
}

void tst_records::melvoxDynamicConfigHoldsItsFieldsInOrder()
{
    melvoxDynamicConfig_t const record = {true, MELVOX_DYN_MODE_HIGH, false};
    QVERIFY(holds<bool>(record, &melvoxDynamicConfig_t::autoMode, true));
    QVERIFY(holds<melvoxDynamicMode_t>(record, &melvoxDynamicConfig_t::mode, MELVOX_DYN_MODE_HIGH));
    QVERIFY(holds<bool>(record, &melvoxDynamicConfig_t::velocitySmoothing, false));
}

void tst_records::melvoxExtendedNavInfoHoldsItsFieldsInOrder()
{
    melvoxExtendedNavInfo_t const record = {2237u,
                                            345600.25,
                                            1u,
                                            2u,
                                            3u,
                                            MELVOX_NAV_MODE_RTK_X,
                                            MELVOX_NAV_SOURCE_DGPS_EGNOS,
                                            6,
                                            7,
                                            8.5,
                                            9.5,
                                            10.5,
                                            11.5,
                                            12.5,
                                            13.5,
                                            14.5,
                                            15.5,
                                            16.5};
    QVERIFY(holds<unsigned int>(record, &melvoxExtendedNavInfo_t::gpsWeek, 2237u));
    QVERIFY(holds<double>(record, &melvoxExtendedNavInfo_t::gpsTime, 345600.25));
    QVERIFY(holds<unsigned int>(record, &melvoxExtendedNavInfo_t::navValid, 1u));
    QVERIFY(holds<unsigned int>(record, &melvoxExtendedNavInfo_t::datum, 2u));
    QVERIFY(holds<unsigned int>(record, &melvoxExtendedNavInfo_t::geoid, 3u));
    QVERIFY(holds<melvoxNavMode_t>(record, &melvoxExtendedNavInfo_t::navMode, MELVOX_NAV_MODE_RTK_X));
    QVERIFY(holds<melvoxNavSource_t>(record, &melvoxExtendedNavInfo_t::navSource, MELVOX_NAV_SOURCE_DGPS_EGNOS));
    QVERIFY(holds<unsigned short>(record, &melvoxExtendedNavInfo_t::stationId, 6));
    QVERIFY(holds<unsigned char>(record, &melvoxExtendedNavInfo_t::failureCode, 7));
    QVERIFY(holds<double>(record, &melvoxExtendedNavInfo_t::setDeltaNorth, 8.5));
    QVERIFY(holds<double>(record, &melvoxExtendedNavInfo_t::setDeltaEast, 9.5));
    QVERIFY(holds<double>(record, &melvoxExtendedNavInfo_t::setDeltaUp, 10.5));
    QVERIFY(holds<double>(record, &melvoxExtendedNavInfo_t::latError, 11.5));
    QVERIFY(holds<double>(record, &melvoxExtendedNavInfo_t::lonError, 12.5));
    QVERIFY(holds<double>(record, &melvoxExtendedNavInfo_t::heightError, 13.5));
    QVERIFY(holds<double>(record, &melvoxExtendedNavInfo_t::velocityNorth, 14.5));
    QVERIFY(holds<double>(record, &melvoxExtendedNavInfo_t::velocityEast, 15.5));
    QVERIFY(holds<double>(record, &melvoxExtendedNavInfo_t::velocityUp, 16.5));
}

void tst_records::melvoxAntennaInfoHoldsItsFieldsInOrder()
{
    melvoxAntennaInfo_t const record = {"AOAD/M_T", "S-17", 3u};
    QVERIFY(holds<std::string>(record, &melvoxAntennaInfo_t::name, "AOAD/M_T"));
    QVERIFY(holds<std::string>(record, &melvoxAntennaInfo_t::serial, "S-17"));
    QVERIFY(holds<unsigned int>(record, &melvoxAntennaInfo_t::id, 3u));
}

void tst_records::melvoxAntennaHeightHoldsItsFieldsInOrder()
{
    melvoxAntennaHeight_t const record = {true, 1.5, 2.5, 3.5};
    QVERIFY(holds<bool>(record, &melvoxAntennaHeight_t::useAdjustments, true));
    QVERIFY(holds<double>(record, &melvoxAntennaHeight_t::height, 1.5));
    QVERIFY(holds<double>(record, &melvoxAntennaHeight_t::slantRange, 2.5));
    QVERIFY(holds<double>(record, &melvoxAntennaHeight_t::radius, 3.5));
}

void tst_records::melvoxAntennaRemoteHoldsItsFieldsInOrder()
{
    melvoxAntennaRemote_t const record = {true, "AOAD/M_T"};
    QVERIFY(holds<bool>(record, &melvoxAntennaRemote_t::automatic, true));
    QVERIFY(holds<std::string>(record, &melvoxAntennaRemote_t::name, "AOAD/M_T"));
}

void tst_records::melvoxCorrectionSatStatsHoldsItsFieldsInOrder()
{
    melvoxCorrectionSatStats_t const record = {1u, 2, 3, 4.5f, 5.5f, 6.5f, 7.5f, 8u, 9.5f};
    QVERIFY(holds<unsigned int>(record, &melvoxCorrectionSatStats_t::id, 1u));
    QVERIFY(holds<unsigned char>(record, &melvoxCorrectionSatStats_t::beam, 2));
    QVERIFY(holds<unsigned char>(record, &melvoxCorrectionSatStats_t::status, 3));
    QVERIFY(holds<float>(record, &melvoxCorrectionSatStats_t::strength, 4.5f));
    QVERIFY(holds<float>(record, &melvoxCorrectionSatStats_t::agcVoltage, 5.5f));
    QVERIFY(holds<float>(record, &melvoxCorrectionSatStats_t::goodPercent, 6.5f));
    QVERIFY(holds<float>(record, &melvoxCorrectionSatStats_t::idlePercent, 7.5f));
    QVERIFY(holds<unsigned int>(record, &melvoxCorrectionSatStats_t::resyncCount, 8u));
    QVERIFY(holds<float>(record, &melvoxCorrectionSatStats_t::frequencyOffset, 9.5f));
}

void tst_records::melvoxCorrectionSatHoldsItsFieldsInOrder()
{
    melvoxCorrectionSat_t const record = {1u, -97.5, 31, true, false, true, true, false};
    QVERIFY(holds<unsigned int>(record, &melvoxCorrectionSat_t::id, 1u));
    QVERIFY(holds<double>(record, &melvoxCorrectionSat_t::longitude, -97.5));
    QVERIFY(holds<unsigned char>(record, &melvoxCorrectionSat_t::lookAngle, 31));
    QVERIFY(holds<bool>(record, &melvoxCorrectionSat_t::net1, true));
    QVERIFY(holds<bool>(record, &melvoxCorrectionSat_t::net2, false));
    QVERIFY(holds<bool>(record, &melvoxCorrectionSat_t::flagU, true));
    QVERIFY(holds<bool>(record, &melvoxCorrectionSat_t::flagA, true));
    QVERIFY(holds<bool>(record, &melvoxCorrectionSat_t::flagC, false));
}

void tst_records::melvoxStarfireAlmSwitchPolicyHoldsItsFieldsInOrder()
{
    melvoxStarfireAlmSwitchPolicy_t const record = {MELVOX_STARFIRE_ALM_SWITCH_MODE_MANUAL, 2u, 3u};
    QVERIFY(holds<melvoxStarfireAlmSwitchMode_t>(record, &melvoxStarfireAlmSwitchPolicy_t::mode,
                                                 MELVOX_STARFIRE_ALM_SWITCH_MODE_MANUAL));
    QVERIFY(holds<unsigned int>(record, &melvoxStarfireAlmSwitchPolicy_t::hours, 2u));
    QVERIFY(holds<unsigned int>(record, &melvoxStarfireAlmSwitchPolicy_t::minutes, 3u));
}

void tst_records::melvoxMrvAlmanacInfoHoldsItsFieldsInOrder()
{
    melvoxMrvAlmanacInfo_t const record = {1.5e9};
    QVERIFY(holds<double>(record, &melvoxMrvAlmanacInfo_t::updateTime, 1.5e9));
}

void tst_records::melvoxDiffConfigHoldsItsFieldsInOrder()
{
    melvoxDiffConfig_t const record = {MELVOX_DIFF_MODE_BASE_RTCM9, 1023u, false, MELVOX_PORT_ETH3, true};
    QVERIFY(holds<melvoxDiffMode_t>(record, &melvoxDiffConfig_t::mode, MELVOX_DIFF_MODE_BASE_RTCM9));
    QVERIFY(holds<unsigned int>(record, &melvoxDiffConfig_t::stationId, 1023u));
    QVERIFY(holds<bool>(record, &melvoxDiffConfig_t::dynamic, false));
    QVERIFY(holds<melvoxPort_t>(record, &melvoxDiffConfig_t::port, MELVOX_PORT_ETH3));
    QVERIFY(holds<bool>(record, &melvoxDiffConfig_t::portSet, true));
}

void tst_records::melvoxBasePositionHoldsItsFieldsInOrder()
{
    melvoxBasePosition_t const record = {0.5, -1.5, 102.25};
    QVERIFY(holds<double>(record, &melvoxBasePosition_t::latitude, 0.5));
    QVERIFY(holds<double>(record, &melvoxBasePosition_t::longitude, -1.5));
    QVERIFY(holds<double>(record, &melvoxBasePosition_t::height, 102.25));
}

void tst_records::melvoxMessageOutputHoldsItsFieldsInOrder()
{
    melvoxMessageOutput_t const record = {MELVOX_OUTPUT_METHOD_INTERVAL, 0.2};
    QVERIFY(holds<melvoxOutputMethod_t>(record, &melvoxMessageOutput_t::method, MELVOX_OUTPUT_METHOD_INTERVAL));
    QVERIFY(holds<double>(record, &melvoxMessageOutput_t::interval, 0.2));
}

void tst_records::portTxRxInfoHoldsItsFieldsInOrder()
{
    PortTxRxInfo const record = {true, false, 12.5f, 3.5f};
    QVERIFY(holds<bool>(record, &PortTxRxInfo::txValid, true));
    QVERIFY(holds<bool>(record, &PortTxRxInfo::rxValid, false));
    QVERIFY(holds<float>(record, &PortTxRxInfo::txUsage, 12.5f));
    QVERIFY(holds<float>(record, &PortTxRxInfo::rxUsage, 3.5f));
}

void tst_records::melvoxSerialPortConfigHoldsItsFieldsInOrder()
{
    melvoxSerialPortConfig_t const record = {57600u, CHAR_SIZE_8, PARITY_E, STOP_1};
    QVERIFY(holds<unsigned int>(record, &melvoxSerialPortConfig_t::baud, 57600u));
    QVERIFY(holds<charSize_t>(record, &melvoxSerialPortConfig_t::charSize, CHAR_SIZE_8));
    QVERIFY(holds<parity_t>(record, &melvoxSerialPortConfig_t::parity, PARITY_E));
    QVERIFY(holds<stopBits_t>(record, &melvoxSerialPortConfig_t::stopBits, STOP_1));
}

void tst_records::melvoxVcomConfigHoldsItsFieldsInOrder()
{
    melvoxVcomConfig_t const record = {true, MODE_UDP_RESTRICT, 0xC0A80107u, 5001, 65535};
    QVERIFY(holds<bool>(record, &melvoxVcomConfig_t::enabled, true));
    QVERIFY(holds<melvoxVcomMode_t>(record, &melvoxVcomConfig_t::mode, MODE_UDP_RESTRICT));
    QVERIFY(holds<unsigned int>(record, &melvoxVcomConfig_t::remoteAddress, 0xC0A80107u));
    QVERIFY(holds<unsigned short>(record, &melvoxVcomConfig_t::remotePort, 5001));
    QVERIFY(holds<unsigned short>(record, &melvoxVcomConfig_t::localPort, 65535));
}

void tst_records::ethernetConfigHoldsItsFieldsInOrder()
{
    ethernetConfig_t const record = {0xC0A80107u, 0xFFFFFF00u, 0xC0A80101u, 0x08080808u, 0x01010101u};
    QVERIFY(holds<unsigned int>(record, &ethernetConfig_t::ipAddress, 0xC0A80107u));
    QVERIFY(holds<unsigned int>(record, &ethernetConfig_t::netmask, 0xFFFFFF00u));
    QVERIFY(holds<unsigned int>(record, &ethernetConfig_t::gateway, 0xC0A80101u));
    QVERIFY(holds<unsigned int>(record, &ethernetConfig_t::dns1, 0x08080808u));
    QVERIFY(holds<unsigned int>(record, &ethernetConfig_t::dns2, 0x01010101u));
}

void tst_records::melvoxPpsConfigHoldsItsFieldsInOrder()
{
    melvoxPpsConfig_t const record = {1, 1600000u, 1000u, 32768u, 999999u};
    QVERIFY(holds<unsigned char>(record, &melvoxPpsConfig_t::polarity, 1));
    QVERIFY(holds<unsigned int>(record, &melvoxPpsConfig_t::width, 1600000u));
    QVERIFY(holds<unsigned int>(record, &melvoxPpsConfig_t::interval, 1000u));
    QVERIFY(holds<unsigned int>(record, &melvoxPpsConfig_t::signalDelay, 32768u));
    QVERIFY(holds<unsigned int>(record, &melvoxPpsConfig_t::chipDelay, 999999u));
}

void tst_records::melvoxFirmwareScanRecordHoldsItsFieldsInOrder()
{
    melvoxFirmwareScanRecord_t const record = {2u, MELVOX_FW_COMP_STM8, 8, "1.14.33"};
    QVERIFY(holds<unsigned int>(record, &melvoxFirmwareScanRecord_t::fileIndex, 2u));
    QVERIFY(holds<melvoxFirmwareComponent_t>(record, &melvoxFirmwareScanRecord_t::component, MELVOX_FW_COMP_STM8));
    QVERIFY(holds<int>(record, &melvoxFirmwareScanRecord_t::product, 8));
    QVERIFY(holds<QString>(record, &melvoxFirmwareScanRecord_t::version, "1.14.33"));
}

void tst_records::melvoxFirmwareUpdateComponentHoldsItsFieldsInOrder()
{
    melvoxFirmwareUpdateComponent_t const record = {2u, MELVOX_FW_COMP_NAV, "/media/usb/nav.s19"};
    QVERIFY(holds<unsigned int>(record, &melvoxFirmwareUpdateComponent_t::fileIndex, 2u));
    QVERIFY(holds<melvoxFirmwareComponent_t>(record, &melvoxFirmwareUpdateComponent_t::component, MELVOX_FW_COMP_NAV));
    QVERIFY(holds<std::string>(record, &melvoxFirmwareUpdateComponent_t::path, "/media/usb/nav.s19"));
}

void tst_records::melvoxFirmwareUpdateProgressHoldsItsFieldsInOrder()
{
    melvoxFirmwareUpdateProgress_t const record = {MELVOX_FW_COMP_NAV, MELVOX_FWU_STATUS_FAILURE};
    QVERIFY(holds<melvoxFirmwareComponent_t>(record, &melvoxFirmwareUpdateProgress_t::component, MELVOX_FW_COMP_NAV));
    QVERIFY(holds<melvoxFirmwareUpdateStatus_t>(record, &melvoxFirmwareUpdateProgress_t::status,
                                                MELVOX_FWU_STATUS_FAILURE));
}

void tst_records::serialPortConfigHoldsItsFieldsInOrder()
{
    serialPortConfig_t const record = {57600u, CHAR_SIZE_7, PARITY_O, STOP_2, FLOW_BREL};
    QVERIFY(holds<unsigned int>(record, &serialPortConfig_t::baud, 57600u));
    QVERIFY(holds<charSize_t>(record, &serialPortConfig_t::charSize, CHAR_SIZE_7));
    QVERIFY(holds<parity_t>(record, &serialPortConfig_t::parity, PARITY_O));
    QVERIFY(holds<stopBits_t>(record, &serialPortConfig_t::stopBits, STOP_2));
    QVERIFY(holds<flow_t>(record, &serialPortConfig_t::flow, FLOW_BREL));
}

void tst_records::usbDriveHoldsItsFieldsInOrder()
{
    usbDrive_t const record = {"/media/usb/", "KINGSTON"};
    QVERIFY(holds<QString>(record, &usbDrive_t::mountPoint, "/media/usb/"));
    QVERIFY(holds<QString>(record, &usbDrive_t::name, "KINGSTON"));
}

void tst_records::measurementNames()
{
    QCOMPARE(MELVOX_MEAS_NAME_GPS, std::string("GPS"));
    QCOMPARE(MELVOX_MEAS_NAME_GLONASS, std::string("GLO"));
    QCOMPARE(MELVOX_MEAS_NAME_GALILEO, std::string("GAL"));
    QCOMPARE(MELVOX_MEAS_NAME_BEIDOU, std::string("BEI"));
}

void tst_records::wireNumbersPassUnchanged()
{
    passesUnchanged<endian::f64_t, double>(-12.75);
    passesUnchanged<endian::f64_t, double>(std::numeric_limits<double>::max());
    passesUnchanged<endian::f32_t, float>(359.99f);
    passesUnchanged<endian::u32_t, quint32>(0xFFFFFFFEu);
    passesUnchanged<endian::s32_t, qint32>(-2);
    QCOMPARE(double(endian::f64_t()), 0.0);
}

void tst_records::wireNumbersLieInTheReceiversByteOrder()
{
    endian::u32_t const number = 0x01020304u;
    QCOMPARE(QByteArray(reinterpret_cast<char const*>(&number), sizeof number), QByteArray("\x04\x03\x02\x01"));
}

void tst_records::aBufferHoldsNoMoreThanItsCapacity()
{
    buffer_t buffer(1024);
    QCOMPARE(buffer.capacity(), 1024u);
    QCOMPARE(buffer.length(), 0u);
    buffer.setLength(1000);
    QCOMPARE(buffer.length(), 1000u);
    buffer.setLength(1025);
    QCOMPARE(buffer.length(), 1024u);
}

void tst_records::aBufferIsSharedNotCopied()
{
    QExplicitlySharedDataPointer<buffer_t> const filler(new buffer_t(4));
    QExplicitlySharedDataPointer<buffer_t> sender(filler);
    filler->data()[0] = 'x';
    QCOMPARE(sender->data()[0], 'x');
}

QTEST_MAIN(tst_records)
#include "tst_records.moc"
