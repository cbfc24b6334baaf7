#ifndef BREL_COMMON_QT_REMOTE_MELVOX_DEVICE_H
#define BREL_COMMON_QT_REMOTE_MELVOX_DEVICE_H

#include "brel_common_qt/brelCommonQtExport.h"
#include "brel_common_qt/endianTypes.h"
#include "brel_common_qt/melvoxAntenna.h"
#include "brel_common_qt/melvoxCorrections.h"
#include "brel_common_qt/melvoxDifferential.h"
#include "brel_common_qt/melvoxFirmware.h"
#include "brel_common_qt/melvoxNavigation.h"
#include "brel_common_qt/melvoxNetwork.h"
#include "brel_common_qt/melvoxOutput.h"
#include "brel_common_qt/melvoxPort.h"
#include "brel_common_qt/melvoxPortConfig.h"
#include "brel_common_qt/melvoxPps.h"
#include "brel_common_qt/melvoxSolution.h"
#include "brel_common_qt/remoteDevice.h"
#include "brel_common_qt/stdStringMetaType.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <string>
#include <utility>

namespace brel_common_qt
{

/** A firmware component's name and the text of its version. */
typedef std::pair<std::string, std::string> melvoxFirmwareVersion_t;

/** The receiver proxy: the one way from a page to the receiver.
 *
 *  The host creates it before any page and keeps it longer than every page. For each group X of settings:
 *  - queryX() asks the receiver. It returns at once, also when nobody answers.
 *  - xValid() is true once an answer has come, and stays true, unless the answer is that there is nothing to tell
 *    (extendedNavInfoValid(), correctionSatInUseValid()).
 *  - x() reads the last answer and means something only while xValid(). Getters by key return false, or null, while
 *    nothing is known for the key; an output argument is then left as it was.
 *  - setX() sends new values and does not wait. What the receiver made of them comes back as xUpdated().
 *  - xUpdated() follows every answer, after the cache was refreshed.
 *
 *  Everything is called and emitted on the GUI thread. References and pointers stay good until the next message. */
class BREL_COMMON_QT_EXPORT remoteMelvoxDevice_t : public remoteDevice_t
{
    Q_OBJECT

public:
    /** Takes the port over. */
    explicit remoteMelvoxDevice_t(brel_common_qt::remotePort_t* port, QObject* parent = 0);
    ~remoteMelvoxDevice_t();

    /** Asks for every group. */
    void queryAll();

    // --- solution control -------------------------------------------------------------------------------------

    void queryElevationMask();
    bool elevationMaskValid() const;
    double elevationMask() const; //!< degrees
    void setElevationMask(double degrees);

    void queryPdopLimit();
    bool pdopLimitValid() const;
    double pdopLimit() const;
    void setPdopLimit(double limit);

    void queryGeoidalModel();
    bool geoidalModelValid() const;
    melvoxGeoidalModel_t geoidalModel() const;
    void setGeoidalModel(melvoxGeoidalModel_t model);

    void queryCorrectionsEnabled();
    bool getCorrectionEnabled(melvoxCorrectionType_t type, bool& enabled) const;
    void setCorrectionEnabled(melvoxCorrectionType_t type, bool enabled);

    void queryCorrectionsMaxAge();
    bool getCorrectionMaxAge(melvoxCorrectionType_t type, unsigned int& seconds) const;
    void setCorrectionMaxAge(melvoxCorrectionType_t type, unsigned int seconds);

    void queryNtripPPPMode();
    bool ntripPPPModeValid() const;
    melvoxNtripPPP_t ntripPPP() const;
    void setNtripPPPMode(melvoxNtripPPP_t mode);

    // --- navigation mode and status ---------------------------------------------------------------------------

    void queryMeasUse();
    bool getMeasUse(std::string const& name, bool& use) const;
    void setMeasUse(QList<brel_common_qt::meas_t> const& use);

    void queryDynamicConfig();
    bool dynamicConfigValid() const;
    melvoxDynamicConfig_t const& dynamicConfig() const;
    void setDynamicConfig(melvoxDynamicConfig_t const& config);

    bool extendedNavInfoValid() const;
    melvoxExtendedNavInfo_t const& extendedNavInfo() const;

    // --- antennas and their alignment -------------------------------------------------------------------------

    void queryAntennaAlignment();
    bool antennaAlignmentValid() const;
    melvoxAntennaAlignmentMode_t antennaAlignmentMode() const;
    float antennaAlignmentUserAngle() const; //!< degrees, 0 <= angle < 360
    void setAntennaAlignment(melvoxAntennaAlignmentMode_t mode, float degrees);

    void queryAntennaInfo();
    bool antennaInfoValid() const;
    melvoxAntennaInfo_t const& antennaInfo(melvoxAntenna_t antenna) const;
    void setAntennaInfo(melvoxAntennaInfo_t const& first, melvoxAntennaInfo_t const& second);

    void queryAntennaHeight();
    bool antennaHeightValid() const;
    melvoxAntennaHeight_t const& antennaHeight(melvoxAntenna_t antenna) const;
    void setAntennaHeight(melvoxAntennaHeight_t const& first, melvoxAntennaHeight_t const& second);

    void queryAntennaRemote();
    bool antennaRemoteValid() const;
    melvoxAntennaRemote_t const& antennaRemote() const;
    void setAntennaRemote(melvoxAntennaRemote_t const& remote);

    void queryAntennaDualMode();
    bool antennaDualModeValid() const;
    melvoxAntennaDualMode_t const& antennaDualMode() const;
    void setAntennaDualMode(melvoxAntennaDualMode_t const& mode);

    /** The IGS antenna names known so far. They come one by one after queryAntennaInfo(). */
    QStringList antennaList() const;

    // --- correction sources and satellites --------------------------------------------------------------------

    void queryCorrectionSelection();
    bool correctionSelectionValid() const;
    melvoxCorrectionSelection_t correctionSelection() const;
    void setCorrectionSelection(melvoxCorrectionSelection_t selection);

    void queryNetPriority();
    bool netPriorityValid() const;

    void queryRtgUseMode();
    bool rtgUseModeValid() const;

    void queryCorrectionSats();
    melvoxCorrectionSatMap_t const& correctionSats() const;
    melvoxCorrectionSatStatsMap_t const& correctionSatStats() const;

    void queryCorrectionSatSelected();
    bool correctionSatSelectionValid() const;
    bool correctionSatSelectionIsAuto() const;
    bool correctionSatInUseValid() const;
    unsigned int correctionSatInUse() const; //!< the satellite's id
    void selectCorrectionSat(int id);
    void autoSelectCorrectionSat();

    bool userCorrectionSatValid() const;
    bool userCorrectionSatDefined() const;
    unsigned int userCorrectionSatId() const;
    float userCorrectionSatFrequency() const; //!< kilohertz
    void defineUserCorrectionSat(int id, float kilohertz);
    void deleteUserCorrectionSat();

    void queryMrvAlmanacInfo();
    bool mrvAlmanacInfoValid() const;
    melvoxMrvAlmanacInfo_t const& mrvAlmanacInfo() const;

    void queryStarfireAlmStatus();
    bool starfireAlmStatusValid() const;
    bool newStarfireAlmReady() const;

    void queryStarfireAlmSwitchPolicy();
    bool starfireAlmSwitchPolicyValid() const;
    melvoxStarfireAlmSwitchPolicy_t const& starfireAlmSwitchPolicy() const;
    void setStarfireAlmSwitchPolicy(melvoxStarfireAlmSwitchPolicy_t const& policy);

    // --- differential operation -------------------------------------------------------------------------------

    void queryDiffConfig();
    bool diffConfigValid() const;
    melvoxDiffConfig_t const& diffConfig() const;
    void setDiffConfig(melvoxDiffConfig_t const& config);

    void queryRtcmVersion();
    bool rtcmVersionValid() const;
    melvoxRtcmVersion_t rtcmVersion() const;
    void setRtcmVersion(melvoxRtcmVersion_t version);

    void queryBaseName();
    bool baseNameValid() const;
    std::string const& baseName() const;
    void setBaseName(std::string const& name);

    void queryBasePosition();
    bool basePositionValid() const;
    melvoxBasePosition_t const& basePosition() const;
    void setBasePosition(melvoxBasePosition_t const& position);

    // --- ports and message output -----------------------------------------------------------------------------

    /** The port through which the display itself reaches the receiver. */
    void queryActivePort();
    bool activePortValid() const;
    melvoxPort_t activePort() const;

    /** outputsCleared(), then outputConfigUpdated() for each message of each port. */
    void queryAllOutputs();
    melvoxPortOutputs_t const* portOutputs(melvoxPort_t port) const;                              //!< null: not known
    melvoxMessageOutput_t const* messageOutput(melvoxPort_t port, std::string const& name) const; //!< null: not known
    PortTxRxInfo const* portTxRxInfo(melvoxPort_t port) const;                                    //!< null: not known
    void setOutput(melvoxPort_t port, std::string const& name, melvoxMessageOutput_t const& output);
    void turnOffAllOutput(melvoxPort_t port);

    void queryGgaMode();
    bool ggaModeValid() const;
    melvoxGgaMode_t ggaMode() const;
    ggaQuality_t ggaQuality() const;
    melvoxGgaCorrectionsScaling_t ggaCorrectionsScaling() const;
    void setGgaMode(melvoxGgaMode_t mode, ggaQuality_t quality, melvoxGgaCorrectionsScaling_t scaling);

    void queryTalkerIdMode();
    bool talkerIdModeValid() const;
    melvoxTalkerIdMode_t talkerIdMode() const;
    void setTalkerIdMode(melvoxTalkerIdMode_t mode);

    /** Whether the operator wants to be warned of DTM sentences. Kept here for all pages; true at first. */
    bool showDtmWarning() const;
    void setShowDtmWarning(bool show);

    /** serialConfigUpdated(), serialRs232ModeUpdated() and vcomConfigUpdated() come for each port after queryAll(),
     *  and whenever one changes. */
    void setSerialConfig(melvoxPort_t port, melvoxSerialPortConfig_t const& config);
    void setVcomConfig(melvoxPort_t port, melvoxVcomConfig_t const& config);

    void queryUsbMode();
    bool usbModeValid() const;
    melvoxUsbMode_t usbMode() const;
    void setUsbMode(melvoxUsbMode_t mode);

    // --- network and web interface ----------------------------------------------------------------------------

    void queryEthernetConfig();
    ethernetConfig_t const* ethernetConfig(melvoxEthernetConfigSource_t source) const; //!< null: not known
    bool ethernetConfigDhcp(melvoxEthernetConfigSource_t source) const;
    void setEthernetConfig(melvoxEthernetConfigSource_t source, ethernetConfig_t const& config);
    void setEthernetConfigDhcp(melvoxEthernetConfigSource_t source);

    void queryWebControl();
    bool webControlValid() const;
    bool webUiEnabled() const;
    void setWebUiEnabled(bool enabled);

    /** Uploads a web interface package; state, description and percentage come through the signals. */
    void startWebUiUpload(std::string const& path);
    melvoxWebUiUploadState_t webUiUploadState() const; //!< MELVOX_WEB_UI_UPLOAD_COMPLETE before the first upload
    std::string const& webUiUploadDescription() const;

    // --- PPS --------------------------------------------------------------------------------------------------

    void queryPpsConfig();
    bool ppsConfigValid() const;
    melvoxPpsConfig_t const& ppsConfig() const;
    void setPpsConfig(melvoxPpsConfig_t const& config);

    // --- firmware, profiles, restart, receiver information ----------------------------------------------------

    bool productInfoValid() const;
    std::string const& serialNumber() const;
    std::string const& modelName() const;

    /** Component names and version texts, in the order in which the receiver told of them first. */
    QList<brel_common_qt::melvoxFirmwareVersion_t> const& firmwareVersions() const;

    /** Updates the components in their order. `combinedPath` names the one file that holds them all, or is empty when
     *  each component has its own path. The caller holds the port lock. */
    void startFirmwareUpdate(QList<brel_common_qt::melvoxFirmwareUpdateComponent_t> const& components,
                             std::string const& combinedPath);

    /** profilesCleared(), then profileUpdated() for each profile that the receiver keeps. */
    void listProfiles();
    void useProfile(std::string const& name);
    void saveAsProfile(std::string const& name);
    void deleteProfile(std::string const& name);

    void queryActiveProfile();
    bool activeProfileValid() const;
    std::string const& activeProfile() const;

    /** Writes the receiver's settings to a file; profileDumpDone() tells the outcome. */
    void dumpAsProfile(std::string const& path);

    /** At once, without a question. */
    void coldRestart(bool useBuiltInAlmanac);
    void reboot(unsigned int delaySeconds);

    void queryLteModemStatus();
    void setLteModemStatus(bool on);

public slots:
    /** At once, without a question. */
    void warmRestart();
    void useNewStarfireAlm();
    void cancelWebUiUpload();

signals:
    // solution control
    void elevationMaskUpdated(endian::f64_t degrees);
    void pdopLimitUpdated(endian::f64_t limit);
    void geoidalModelUpdated(brel_common_qt::melvoxGeoidalModel_t model);
    void correctionEnabledUpdated(brel_common_qt::melvoxCorrectionType_t type, bool enabled);
    void correctionMaxAgeUpdated(brel_common_qt::melvoxCorrectionType_t type, endian::u32_t seconds);
    void ntripPPPModeUpdated(brel_common_qt::melvoxNtripPPP_t mode);

    // navigation mode and status
    void measUseUpdated(measUse_t const& use);
    void dynamicConfigUpdated(brel_common_qt::melvoxDynamicConfig_t const& config);
    void extendedNavInfoUpdated();
    void vhdInfoUpdated(double rawHeading, double attitude, double baseline, double headingRms); //!< degrees, metres

    // antennas and their alignment
    void antennaAlignmentModeUpdated(brel_common_qt::melvoxAntennaAlignmentMode_t mode);
    void antennaAlignmentUserAngleUpdated(endian::f32_t degrees);
    void antennaInfosUpdated();
    void antennaHeightsUpdated();
    void antennaRemoteUpdated(brel_common_qt::melvoxAntennaRemote_t const& remote);
    void antennaDualModeUpdated(brel_common_qt::melvoxAntennaDualMode_t const& mode);
    void antennaListReset();
    void antennaNameAdded(QString const& name);

    // correction sources and satellites
    void correctionSelectionUpdated(brel_common_qt::melvoxCorrectionSelection_t selection);
    void netPriorityUpdated(brel_common_qt::melvoxNetPriority_t priority);
    void rtgUseModeUpdated(brel_common_qt::melvoxRtgUseMode_t mode);
    void correctionSatsUpdated();
    void correctionSatStatsUpdated();
    void correctionSatAutoSelected();
    void correctionSatSelected(endian::s32_t id);
    void userCorrectionSatUpdated();
    void mrvAlmanacInfoUpdated();
    void starfireAlmStatusUpdated();
    void starfireAlmSwitchPolicyUpdated();

    // differential operation
    void diffConfigUpdated(brel_common_qt::melvoxDiffConfig_t const& config);
    void rtcmVersionUpdated(brel_common_qt::melvoxRtcmVersion_t version);
    void baseNameUpdated(std::string const& name);
    void basePositionUpdated(brel_common_qt::melvoxBasePosition_t const& position);

    // ports and message output
    void activePortUpdated(brel_common_qt::melvoxPort_t port);
    void outputsCleared();
    void outputConfigUpdated(brel_common_qt::melvoxPort_t port, std::string const& name,
                             brel_common_qt::melvoxMessageOutput_t const& output);
    void portTxRxInfoUpdated();
    void ggaModeUpdated();
    void talkerIdModeUpdated(brel_common_qt::melvoxTalkerIdMode_t mode);
    void serialConfigUpdated(brel_common_qt::melvoxPort_t port, brel_common_qt::melvoxSerialPortConfig_t const& config);
    void serialRs232ModeUpdated(brel_common_qt::melvoxPort_t port, bool rs232);
    void vcomConfigUpdated(brel_common_qt::melvoxPort_t port, brel_common_qt::melvoxVcomConfig_t const& config);
    void usbModeUpdated(brel_common_qt::melvoxUsbMode_t mode);
    /** The display's own link runs at a baud rate too low for it. */
    void badBaudDetected();

    // network and web interface
    void ethernetConfigUpdated(bool dhcp, brel_common_qt::ethernetConfig_t const& config);
    void webControlUpdated();
    void webUiUploadStateUpdated();
    void webUiUploadPercentUpdated(double fraction); //!< 0 to 1

    // PPS
    void ppsConfigUpdated(brel_common_qt::melvoxPpsConfig_t const& config);

    // firmware, profiles, receiver information
    void productInfoUpdated(std::string const& serialNumber, std::string const& modelName);
    void firmwareVersionUpdated(std::string const& component, std::string const& version);
    void firmwareUpdateStateUpdated(brel_common_qt::firmwareUpdateState_t state, std::string const& description);
    void firmwareUpdateProgressUpdated(double fraction); //!< 0 to 1
    void firmwareUpdateProgress(QList<brel_common_qt::melvoxFirmwareUpdateProgress_t> const& components);
    void profilesCleared();
    void profileUpdated(std::string const& name, endian::u32_t modified); //!< seconds since 1970-01-01 00:00 UTC
    void activeProfileUpdated(std::string const& name);
    void profileDumpDone(std::string const& path, bool success, std::string const& description);
    void irdmStatUpdated(std::string const& imei, std::string const& provisioningStatus,
                         std::string const& modemStatus);
    void lteModemStatUpdated(std::string const& rssi, std::string const& networkStatus, std::string const& modemStatus);

private:
    Q_DISABLE_COPY(remoteMelvoxDevice_t)

    struct privateData_t;
    privateData_t* m_data;
};

} // namespace brel_common_qt

#endif
