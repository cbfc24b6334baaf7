#include "brel_common_qt/remoteMelvoxDevice.h"

#include <QTimer>

namespace brel_common_qt
{

namespace
{

/** A group of settings that is valid once it was set. */
template <typename value_t> struct kept_t
{
    bool valid = false;
    value_t value = value_t();

    void keep(value_t const& newValue)
    {
        value = newValue;
        valid = true;
    }
};

struct ggaSettings_t
{
    melvoxGgaMode_t mode;
    ggaQuality_t quality;
    melvoxGgaCorrectionsScaling_t scaling;
};

struct alignment_t
{
    melvoxAntennaAlignmentMode_t mode;
    float degrees;
};

struct ethernet_t
{
    bool dhcp;
    ethernetConfig_t config;
};

struct userSat_t
{
    bool defined;
    int id;
    float kilohertz;
};

struct satSelection_t
{
    bool automatic;
    int id;
};

template <typename value_t> struct pair_t
{
    value_t of[MELVOX_NUM_ANTENNAS];
};

/** Answers never come within the call that asked. */
template <typename tell_t> void later(QObject* object, tell_t tell)
{
    QTimer::singleShot(0, object, tell);
}

} // namespace

struct remoteMelvoxDevice_t::privateData_t
{
    kept_t<double> elevationMask;
    kept_t<double> pdopLimit;
    kept_t<melvoxGeoidalModel_t> geoidalModel;
    std::map<melvoxCorrectionType_t, bool> correctionEnabled;
    std::map<melvoxCorrectionType_t, unsigned int> correctionMaxAge;
    kept_t<melvoxNtripPPP_t> ntripPPP;
    measUse_t measUse;
    kept_t<melvoxDynamicConfig_t> dynamicConfig;
    melvoxExtendedNavInfo_t extendedNavInfo = melvoxExtendedNavInfo_t();
    kept_t<alignment_t> antennaAlignment;
    kept_t<pair_t<melvoxAntennaInfo_t>> antennaInfo;
    kept_t<pair_t<melvoxAntennaHeight_t>> antennaHeight;
    kept_t<melvoxAntennaRemote_t> antennaRemote;
    kept_t<melvoxAntennaDualMode_t> antennaDualMode;
    kept_t<melvoxCorrectionSelection_t> correctionSelection;
    melvoxCorrectionSatMap_t correctionSats;
    melvoxCorrectionSatStatsMap_t correctionSatStats;
    kept_t<satSelection_t> correctionSatSelection;
    kept_t<userSat_t> userCorrectionSat;
    melvoxMrvAlmanacInfo_t mrvAlmanacInfo = melvoxMrvAlmanacInfo_t();
    kept_t<melvoxStarfireAlmSwitchPolicy_t> starfireAlmSwitchPolicy;
    kept_t<melvoxDiffConfig_t> diffConfig;
    kept_t<melvoxRtcmVersion_t> rtcmVersion;
    kept_t<std::string> baseName;
    kept_t<melvoxBasePosition_t> basePosition;
    std::map<melvoxPort_t, melvoxPortOutputs_t> outputs;
    kept_t<ggaSettings_t> ggaMode;
    kept_t<melvoxTalkerIdMode_t> talkerIdMode;
    bool showDtmWarning = true;
    kept_t<melvoxUsbMode_t> usbMode;
    std::map<melvoxEthernetConfigSource_t, ethernet_t> ethernet;
    kept_t<bool> webUiEnabled;
    kept_t<melvoxPpsConfig_t> ppsConfig;
    QList<melvoxFirmwareVersion_t> firmwareVersions;
    QStringList profiles;
    kept_t<std::string> activeProfile;
    std::string none;
};

remoteMelvoxDevice_t::remoteMelvoxDevice_t(remotePort_t* port, QObject* parent)
    : remoteDevice_t(port, parent), m_data(new privateData_t)
{
}

remoteMelvoxDevice_t::~remoteMelvoxDevice_t()
{
    delete m_data;
}

// Most groups are kept alike: asked for, valid, read, set.
#define FOREIGN_GROUP(type, Name, name, TELL)                                                                          \
    void remoteMelvoxDevice_t::query##Name()                                                                           \
    {                                                                                                                  \
        if (m_data->name.valid)                                                                                        \
            later(this, [this] { emit TELL; });                                                                        \
    }                                                                                                                  \
    bool remoteMelvoxDevice_t::name##Valid() const                                                                     \
    {                                                                                                                  \
        return m_data->name.valid;                                                                                     \
    }                                                                                                                  \
    type remoteMelvoxDevice_t::name() const                                                                            \
    {                                                                                                                  \
        return m_data->name.value;                                                                                     \
    }                                                                                                                  \
    void remoteMelvoxDevice_t::set##Name(type value)                                                                   \
    {                                                                                                                  \
        m_data->name.keep(value);                                                                                      \
        query##Name();                                                                                                 \
    }

FOREIGN_GROUP(double, ElevationMask, elevationMask, elevationMaskUpdated(elevationMask()))
FOREIGN_GROUP(double, PdopLimit, pdopLimit, pdopLimitUpdated(pdopLimit()))
FOREIGN_GROUP(melvoxGeoidalModel_t, GeoidalModel, geoidalModel, geoidalModelUpdated(geoidalModel()))
FOREIGN_GROUP(melvoxDynamicConfig_t const&, DynamicConfig, dynamicConfig, dynamicConfigUpdated(dynamicConfig()))
FOREIGN_GROUP(melvoxAntennaRemote_t const&, AntennaRemote, antennaRemote, antennaRemoteUpdated(antennaRemote()))
FOREIGN_GROUP(melvoxAntennaDualMode_t const&, AntennaDualMode, antennaDualMode,
              antennaDualModeUpdated(antennaDualMode()))
FOREIGN_GROUP(melvoxCorrectionSelection_t, CorrectionSelection, correctionSelection,
              correctionSelectionUpdated(correctionSelection()))
FOREIGN_GROUP(melvoxStarfireAlmSwitchPolicy_t const&, StarfireAlmSwitchPolicy, starfireAlmSwitchPolicy,
              starfireAlmSwitchPolicyUpdated())
FOREIGN_GROUP(melvoxDiffConfig_t const&, DiffConfig, diffConfig, diffConfigUpdated(diffConfig()))
FOREIGN_GROUP(melvoxRtcmVersion_t, RtcmVersion, rtcmVersion, rtcmVersionUpdated(rtcmVersion()))
FOREIGN_GROUP(std::string const&, BaseName, baseName, baseNameUpdated(baseName()))
FOREIGN_GROUP(melvoxBasePosition_t const&, BasePosition, basePosition, basePositionUpdated(basePosition()))
FOREIGN_GROUP(melvoxTalkerIdMode_t, TalkerIdMode, talkerIdMode, talkerIdModeUpdated(talkerIdMode()))
FOREIGN_GROUP(melvoxUsbMode_t, UsbMode, usbMode, usbModeUpdated(usbMode()))
FOREIGN_GROUP(melvoxPpsConfig_t const&, PpsConfig, ppsConfig, ppsConfigUpdated(ppsConfig()))

// What a memory has nothing to tell about.
#define FOREIGN_SILENCE(Name, name)                                                                                    \
    void remoteMelvoxDevice_t::query##Name()                                                                           \
    {                                                                                                                  \
    }                                                                                                                  \
    bool remoteMelvoxDevice_t::name##Valid() const                                                                     \
    {                                                                                                                  \
        return false;                                                                                                  \
    }

FOREIGN_SILENCE(NetPriority, netPriority)
FOREIGN_SILENCE(RtgUseMode, rtgUseMode)
FOREIGN_SILENCE(MrvAlmanacInfo, mrvAlmanacInfo)
FOREIGN_SILENCE(StarfireAlmStatus, starfireAlmStatus)
FOREIGN_SILENCE(ActivePort, activePort)

#undef FOREIGN_GROUP
#undef FOREIGN_SILENCE

void remoteMelvoxDevice_t::queryAll()
{
    queryElevationMask();
    queryPdopLimit();
    queryGeoidalModel();
    queryCorrectionsEnabled();
    queryCorrectionsMaxAge();
    queryNtripPPPMode();
    queryMeasUse();
    queryDynamicConfig();
    queryAntennaAlignment();
    queryAntennaInfo();
    queryAntennaHeight();
    queryAntennaRemote();
    queryAntennaDualMode();
    queryCorrectionSelection();
    queryCorrectionSatSelected();
    queryStarfireAlmSwitchPolicy();
    queryDiffConfig();
    queryRtcmVersion();
    queryBaseName();
    queryBasePosition();
    queryAllOutputs();
    queryGgaMode();
    queryTalkerIdMode();
    queryUsbMode();
    queryEthernetConfig();
    queryWebControl();
    queryPpsConfig();
    listProfiles();
    queryActiveProfile();
}

// --- solution control and navigation ------------------------------------------------------------------------------

void remoteMelvoxDevice_t::queryCorrectionsEnabled()
{
    for (auto const& entry : m_data->correctionEnabled)
        later(this, [this, entry] { emit correctionEnabledUpdated(entry.first, entry.second); });
}

bool remoteMelvoxDevice_t::getCorrectionEnabled(melvoxCorrectionType_t type, bool& enabled) const
{
    auto const found = m_data->correctionEnabled.find(type);
    if (found == m_data->correctionEnabled.end())
        return false;
    enabled = found->second;
    return true;
}

void remoteMelvoxDevice_t::setCorrectionEnabled(melvoxCorrectionType_t type, bool enabled)
{
    m_data->correctionEnabled[type] = enabled;
    queryCorrectionsEnabled();
}

void remoteMelvoxDevice_t::queryCorrectionsMaxAge()
{
    for (auto const& entry : m_data->correctionMaxAge)
        later(this, [this, entry] { emit correctionMaxAgeUpdated(entry.first, entry.second); });
}

bool remoteMelvoxDevice_t::getCorrectionMaxAge(melvoxCorrectionType_t type, unsigned int& seconds) const
{
    auto const found = m_data->correctionMaxAge.find(type);
    if (found == m_data->correctionMaxAge.end())
        return false;
    seconds = found->second;
    return true;
}

void remoteMelvoxDevice_t::setCorrectionMaxAge(melvoxCorrectionType_t type, unsigned int seconds)
{
    m_data->correctionMaxAge[type] = seconds;
    queryCorrectionsMaxAge();
}

void remoteMelvoxDevice_t::queryNtripPPPMode()
{
    if (m_data->ntripPPP.valid)
        later(this, [this] { emit ntripPPPModeUpdated(ntripPPP()); });
}

bool remoteMelvoxDevice_t::ntripPPPModeValid() const
{
    return m_data->ntripPPP.valid;
}

melvoxNtripPPP_t remoteMelvoxDevice_t::ntripPPP() const
{
    return m_data->ntripPPP.value;
}

void remoteMelvoxDevice_t::setNtripPPPMode(melvoxNtripPPP_t mode)
{
    m_data->ntripPPP.keep(mode);
    queryNtripPPPMode();
}

void remoteMelvoxDevice_t::queryMeasUse()
{
    if (!m_data->measUse.isEmpty())
        later(this, [this] { emit measUseUpdated(m_data->measUse); });
}

bool remoteMelvoxDevice_t::getMeasUse(std::string const& name, bool& use) const
{
    for (meas_t const& meas : m_data->measUse)
    {
        if (meas.name == name)
        {
            use = meas.use;
            return true;
        }
    }
    return false;
}

void remoteMelvoxDevice_t::setMeasUse(QList<meas_t> const& use)
{
    m_data->measUse = use;
    queryMeasUse();
}

bool remoteMelvoxDevice_t::extendedNavInfoValid() const
{
    return false;
}

melvoxExtendedNavInfo_t const& remoteMelvoxDevice_t::extendedNavInfo() const
{
    return m_data->extendedNavInfo;
}

// --- antennas -----------------------------------------------------------------------------------------------------

void remoteMelvoxDevice_t::queryAntennaAlignment()
{
    if (!m_data->antennaAlignment.valid)
        return;
    later(this,
          [this]
          {
              emit antennaAlignmentModeUpdated(antennaAlignmentMode());
              emit antennaAlignmentUserAngleUpdated(antennaAlignmentUserAngle());
          });
}

bool remoteMelvoxDevice_t::antennaAlignmentValid() const
{
    return m_data->antennaAlignment.valid;
}

melvoxAntennaAlignmentMode_t remoteMelvoxDevice_t::antennaAlignmentMode() const
{
    return m_data->antennaAlignment.value.mode;
}

float remoteMelvoxDevice_t::antennaAlignmentUserAngle() const
{
    return m_data->antennaAlignment.value.degrees;
}

void remoteMelvoxDevice_t::setAntennaAlignment(melvoxAntennaAlignmentMode_t mode, float degrees)
{
    m_data->antennaAlignment.keep(alignment_t{mode, degrees});
    queryAntennaAlignment();
}

void remoteMelvoxDevice_t::queryAntennaInfo()
{
    if (m_data->antennaInfo.valid)
        later(this, [this] { emit antennaInfosUpdated(); });
}

bool remoteMelvoxDevice_t::antennaInfoValid() const
{
    return m_data->antennaInfo.valid;
}

melvoxAntennaInfo_t const& remoteMelvoxDevice_t::antennaInfo(melvoxAntenna_t antenna) const
{
    return m_data->antennaInfo.value.of[antenna];
}

void remoteMelvoxDevice_t::setAntennaInfo(melvoxAntennaInfo_t const& first, melvoxAntennaInfo_t const& second)
{
    m_data->antennaInfo.keep(pair_t<melvoxAntennaInfo_t>{{first, second}});
    queryAntennaInfo();
}

void remoteMelvoxDevice_t::queryAntennaHeight()
{
    if (m_data->antennaHeight.valid)
        later(this, [this] { emit antennaHeightsUpdated(); });
}

bool remoteMelvoxDevice_t::antennaHeightValid() const
{
    return m_data->antennaHeight.valid;
}

melvoxAntennaHeight_t const& remoteMelvoxDevice_t::antennaHeight(melvoxAntenna_t antenna) const
{
    return m_data->antennaHeight.value.of[antenna];
}

void remoteMelvoxDevice_t::setAntennaHeight(melvoxAntennaHeight_t const& first, melvoxAntennaHeight_t const& second)
{
    m_data->antennaHeight.keep(pair_t<melvoxAntennaHeight_t>{{first, second}});
    queryAntennaHeight();
}

QStringList remoteMelvoxDevice_t::antennaList() const
{
    return QStringList();
}

// --- correction sources and satellites ----------------------------------------------------------------------------

void remoteMelvoxDevice_t::queryCorrectionSats()
{
    later(this, [this] { emit correctionSatsUpdated(); });
}

melvoxCorrectionSatMap_t const& remoteMelvoxDevice_t::correctionSats() const
{
    return m_data->correctionSats;
}

melvoxCorrectionSatStatsMap_t const& remoteMelvoxDevice_t::correctionSatStats() const
{
    return m_data->correctionSatStats;
}

void remoteMelvoxDevice_t::queryCorrectionSatSelected()
{
    if (!m_data->correctionSatSelection.valid)
        return;
    later(this,
          [this]
          {
              if (correctionSatSelectionIsAuto())
                  emit correctionSatAutoSelected();
              else
                  emit correctionSatSelected(m_data->correctionSatSelection.value.id);
          });
}

bool remoteMelvoxDevice_t::correctionSatSelectionValid() const
{
    return m_data->correctionSatSelection.valid;
}

bool remoteMelvoxDevice_t::correctionSatSelectionIsAuto() const
{
    return m_data->correctionSatSelection.value.automatic;
}

bool remoteMelvoxDevice_t::correctionSatInUseValid() const
{
    return false;
}

unsigned int remoteMelvoxDevice_t::correctionSatInUse() const
{
    return 0;
}

void remoteMelvoxDevice_t::selectCorrectionSat(int id)
{
    m_data->correctionSatSelection.keep(satSelection_t{false, id});
    queryCorrectionSatSelected();
}

void remoteMelvoxDevice_t::autoSelectCorrectionSat()
{
    m_data->correctionSatSelection.keep(satSelection_t{true, 0});
    queryCorrectionSatSelected();
}

bool remoteMelvoxDevice_t::userCorrectionSatValid() const
{
    return m_data->userCorrectionSat.valid;
}

bool remoteMelvoxDevice_t::userCorrectionSatDefined() const
{
    return m_data->userCorrectionSat.value.defined;
}

unsigned int remoteMelvoxDevice_t::userCorrectionSatId() const
{
    return static_cast<unsigned int>(m_data->userCorrectionSat.value.id);
}

float remoteMelvoxDevice_t::userCorrectionSatFrequency() const
{
    return m_data->userCorrectionSat.value.kilohertz;
}

void remoteMelvoxDevice_t::defineUserCorrectionSat(int id, float kilohertz)
{
    m_data->userCorrectionSat.keep(userSat_t{true, id, kilohertz});
    later(this, [this] { emit userCorrectionSatUpdated(); });
}

void remoteMelvoxDevice_t::deleteUserCorrectionSat()
{
    m_data->userCorrectionSat.keep(userSat_t{false, 0, 0});
    later(this, [this] { emit userCorrectionSatUpdated(); });
}

melvoxMrvAlmanacInfo_t const& remoteMelvoxDevice_t::mrvAlmanacInfo() const
{
    return m_data->mrvAlmanacInfo;
}

bool remoteMelvoxDevice_t::newStarfireAlmReady() const
{
    return false;
}

void remoteMelvoxDevice_t::useNewStarfireAlm()
{
}

// --- ports and message output -------------------------------------------------------------------------------------

melvoxPort_t remoteMelvoxDevice_t::activePort() const
{
    return MELVOX_PORT_UNKNOWN;
}

void remoteMelvoxDevice_t::queryAllOutputs()
{
    later(this,
          [this]
          {
              emit outputsCleared();
              for (auto const& port : m_data->outputs)
              {
                  for (auto const& output : port.second)
                      emit outputConfigUpdated(port.first, output.first, output.second);
              }
          });
}

melvoxPortOutputs_t const* remoteMelvoxDevice_t::portOutputs(melvoxPort_t port) const
{
    auto const found = m_data->outputs.find(port);
    return found == m_data->outputs.end() ? nullptr : &found->second;
}

melvoxMessageOutput_t const* remoteMelvoxDevice_t::messageOutput(melvoxPort_t port, std::string const& name) const
{
    melvoxPortOutputs_t const* const outputs = portOutputs(port);
    if (!outputs || outputs->find(name) == outputs->end())
        return nullptr;
    return &outputs->find(name)->second;
}

PortTxRxInfo const* remoteMelvoxDevice_t::portTxRxInfo(melvoxPort_t) const
{
    return nullptr;
}

void remoteMelvoxDevice_t::setOutput(melvoxPort_t port, std::string const& name, melvoxMessageOutput_t const& output)
{
    m_data->outputs[port][name] = output;
    later(this, [this, port, name, output] { emit outputConfigUpdated(port, name, output); });
}

void remoteMelvoxDevice_t::turnOffAllOutput(melvoxPort_t port)
{
    m_data->outputs.erase(port);
    queryAllOutputs();
}

void remoteMelvoxDevice_t::queryGgaMode()
{
    if (m_data->ggaMode.valid)
        later(this, [this] { emit ggaModeUpdated(); });
}

bool remoteMelvoxDevice_t::ggaModeValid() const
{
    return m_data->ggaMode.valid;
}

melvoxGgaMode_t remoteMelvoxDevice_t::ggaMode() const
{
    return m_data->ggaMode.value.mode;
}

ggaQuality_t remoteMelvoxDevice_t::ggaQuality() const
{
    return m_data->ggaMode.value.quality;
}

melvoxGgaCorrectionsScaling_t remoteMelvoxDevice_t::ggaCorrectionsScaling() const
{
    return m_data->ggaMode.value.scaling;
}

void remoteMelvoxDevice_t::setGgaMode(melvoxGgaMode_t mode, ggaQuality_t quality, melvoxGgaCorrectionsScaling_t scaling)
{
    m_data->ggaMode.keep(ggaSettings_t{mode, quality, scaling});
    queryGgaMode();
}

bool remoteMelvoxDevice_t::showDtmWarning() const
{
    return m_data->showDtmWarning;
}

void remoteMelvoxDevice_t::setShowDtmWarning(bool show)
{
    m_data->showDtmWarning = show;
}

void remoteMelvoxDevice_t::setSerialConfig(melvoxPort_t port, melvoxSerialPortConfig_t const& config)
{
    later(this, [this, port, config] { emit serialConfigUpdated(port, config); });
}

void remoteMelvoxDevice_t::setVcomConfig(melvoxPort_t port, melvoxVcomConfig_t const& config)
{
    later(this, [this, port, config] { emit vcomConfigUpdated(port, config); });
}

// --- network and web interface ------------------------------------------------------------------------------------

void remoteMelvoxDevice_t::queryEthernetConfig()
{
    for (auto const& entry : m_data->ethernet)
        later(this, [this, entry] { emit ethernetConfigUpdated(entry.second.dhcp, entry.second.config); });
}

ethernetConfig_t const* remoteMelvoxDevice_t::ethernetConfig(melvoxEthernetConfigSource_t source) const
{
    auto const found = m_data->ethernet.find(source);
    return found == m_data->ethernet.end() ? nullptr : &found->second.config;
}

bool remoteMelvoxDevice_t::ethernetConfigDhcp(melvoxEthernetConfigSource_t source) const
{
    auto const found = m_data->ethernet.find(source);
    return found != m_data->ethernet.end() && found->second.dhcp;
}

void remoteMelvoxDevice_t::setEthernetConfig(melvoxEthernetConfigSource_t source, ethernetConfig_t const& config)
{
    m_data->ethernet[source] = ethernet_t{false, config};
    queryEthernetConfig();
}

void remoteMelvoxDevice_t::setEthernetConfigDhcp(melvoxEthernetConfigSource_t source)
{
    m_data->ethernet[source].dhcp = true;
    queryEthernetConfig();
}

void remoteMelvoxDevice_t::queryWebControl()
{
    if (m_data->webUiEnabled.valid)
        later(this, [this] { emit webControlUpdated(); });
}

bool remoteMelvoxDevice_t::webControlValid() const
{
    return m_data->webUiEnabled.valid;
}

bool remoteMelvoxDevice_t::webUiEnabled() const
{
    return m_data->webUiEnabled.value;
}

void remoteMelvoxDevice_t::setWebUiEnabled(bool enabled)
{
    m_data->webUiEnabled.keep(enabled);
    queryWebControl();
}

void remoteMelvoxDevice_t::startWebUiUpload(std::string const&)
{
    later(this, [this] { emit webUiUploadStateUpdated(); });
}

melvoxWebUiUploadState_t remoteMelvoxDevice_t::webUiUploadState() const
{
    return MELVOX_WEB_UI_UPLOAD_COMPLETE;
}

std::string const& remoteMelvoxDevice_t::webUiUploadDescription() const
{
    return m_data->none;
}

void remoteMelvoxDevice_t::cancelWebUiUpload()
{
}

// --- firmware, profiles, restart, receiver information ------------------------------------------------------------

bool remoteMelvoxDevice_t::productInfoValid() const
{
    return false;
}

std::string const& remoteMelvoxDevice_t::serialNumber() const
{
    return m_data->none;
}

std::string const& remoteMelvoxDevice_t::modelName() const
{
    return m_data->none;
}

QList<melvoxFirmwareVersion_t> const& remoteMelvoxDevice_t::firmwareVersions() const
{
    return m_data->firmwareVersions;
}

void remoteMelvoxDevice_t::startFirmwareUpdate(QList<melvoxFirmwareUpdateComponent_t> const&, std::string const&)
{
    later(this, [this] { emit firmwareUpdateStateUpdated(FIRMWARE_UPDATE_ERROR, "a memory runs no firmware"); });
}

void remoteMelvoxDevice_t::listProfiles()
{
    later(this,
          [this]
          {
              emit profilesCleared();
              for (QString const& name : m_data->profiles)
                  emit profileUpdated(name.toStdString(), 0u);
          });
}

void remoteMelvoxDevice_t::useProfile(std::string const& name)
{
    m_data->activeProfile.keep(name);
    queryActiveProfile();
}

void remoteMelvoxDevice_t::saveAsProfile(std::string const& name)
{
    m_data->profiles << QString::fromStdString(name);
    listProfiles();
}

void remoteMelvoxDevice_t::deleteProfile(std::string const& name)
{
    m_data->profiles.removeAll(QString::fromStdString(name));
    listProfiles();
}

void remoteMelvoxDevice_t::queryActiveProfile()
{
    if (m_data->activeProfile.valid)
        later(this, [this] { emit activeProfileUpdated(activeProfile()); });
}

bool remoteMelvoxDevice_t::activeProfileValid() const
{
    return m_data->activeProfile.valid;
}

std::string const& remoteMelvoxDevice_t::activeProfile() const
{
    return m_data->activeProfile.value;
}

void remoteMelvoxDevice_t::dumpAsProfile(std::string const& path)
{
    later(this, [this, path] { emit profileDumpDone(path, false, "a memory writes no files"); });
}

void remoteMelvoxDevice_t::coldRestart(bool)
{
}

void remoteMelvoxDevice_t::warmRestart()
{
}

void remoteMelvoxDevice_t::reboot(unsigned int)
{
}

void remoteMelvoxDevice_t::queryLteModemStatus()
{
}

void remoteMelvoxDevice_t::setLteModemStatus(bool)
{
}

} // namespace brel_common_qt
