#include "brel_common_qt/remoteMelvoxDevice.h"

#include "remoteMelvoxDevice_p.h"
#include "values.h"

#include <QTimer>
#include <QtDebug>

using namespace melvox_kit;
using melvox_link::message_t;

namespace brel_common_qt
{

namespace
{

/** For queryAll(): all there is to ask, settings first, long lists last. */
char const* const ALL_GROUPS[] = {"productInfo",
                                  "activePort",
                                  "firmwareVersions",
                                  "elevationMask",
                                  "pdopLimit",
                                  "geoidalModel",
                                  "correctionEnabled",
                                  "correctionMaxAge",
                                  "ntripPPP",
                                  "measUse",
                                  "dynamicConfig",
                                  "extendedNavInfo",
                                  "antennaAlignment",
                                  "antennaInfo",
                                  "antennaHeight",
                                  "antennaRemote",
                                  "antennaDualMode",
                                  "correctionSelection",
                                  "netPriority",
                                  "rtgUseMode",
                                  "correctionSats",
                                  "correctionSatStats",
                                  "correctionSatSelection",
                                  "userCorrectionSat",
                                  "mrvAlmanacInfo",
                                  "starfireAlmStatus",
                                  "starfireAlmSwitchPolicy",
                                  "diffConfig",
                                  "rtcmVersion",
                                  "baseName",
                                  "basePosition",
                                  "ggaMode",
                                  "talkerIdMode",
                                  "serialConfig",
                                  "serialRs232Mode",
                                  "vcomConfig",
                                  "usbMode",
                                  "ethernetConfig",
                                  "webControl",
                                  "ppsConfig",
                                  "activeProfile",
                                  "profiles",
                                  "irdmStat",
                                  "lteModemStat",
                                  "outputs",
                                  "antennaList"};

/** What signals carry, for whoever queues or records them. */
void registerMetaTypes()
{
    qRegisterMetaType<endian::f64_t>("endian::f64_t");
    qRegisterMetaType<endian::f32_t>("endian::f32_t");
    qRegisterMetaType<endian::u32_t>("endian::u32_t");
    qRegisterMetaType<endian::s32_t>("endian::s32_t");
    qRegisterMetaType<std::string>("std::string");
    qRegisterMetaType<measUse_t>("measUse_t");
    qRegisterMetaType<melvoxAntennaDualMode_t>("brel_common_qt::melvoxAntennaDualMode_t");
    qRegisterMetaType<melvoxPort_t>("brel_common_qt::melvoxPort_t");
    qRegisterMetaType<melvoxCorrectionType_t>("brel_common_qt::melvoxCorrectionType_t");
    qRegisterMetaType<melvoxGeoidalModel_t>("brel_common_qt::melvoxGeoidalModel_t");
    qRegisterMetaType<melvoxNtripPPP_t>("brel_common_qt::melvoxNtripPPP_t");
    qRegisterMetaType<melvoxDynamicConfig_t>("brel_common_qt::melvoxDynamicConfig_t");
    qRegisterMetaType<melvoxAntennaAlignmentMode_t>("brel_common_qt::melvoxAntennaAlignmentMode_t");
    qRegisterMetaType<melvoxAntennaRemote_t>("brel_common_qt::melvoxAntennaRemote_t");
    qRegisterMetaType<melvoxCorrectionSelection_t>("brel_common_qt::melvoxCorrectionSelection_t");
    qRegisterMetaType<melvoxNetPriority_t>("brel_common_qt::melvoxNetPriority_t");
    qRegisterMetaType<melvoxRtgUseMode_t>("brel_common_qt::melvoxRtgUseMode_t");
    qRegisterMetaType<melvoxDiffConfig_t>("brel_common_qt::melvoxDiffConfig_t");
    qRegisterMetaType<melvoxRtcmVersion_t>("brel_common_qt::melvoxRtcmVersion_t");
    qRegisterMetaType<melvoxBasePosition_t>("brel_common_qt::melvoxBasePosition_t");
    qRegisterMetaType<melvoxMessageOutput_t>("brel_common_qt::melvoxMessageOutput_t");
    qRegisterMetaType<melvoxTalkerIdMode_t>("brel_common_qt::melvoxTalkerIdMode_t");
    qRegisterMetaType<melvoxSerialPortConfig_t>("brel_common_qt::melvoxSerialPortConfig_t");
    qRegisterMetaType<melvoxVcomConfig_t>("brel_common_qt::melvoxVcomConfig_t");
    qRegisterMetaType<melvoxUsbMode_t>("brel_common_qt::melvoxUsbMode_t");
    qRegisterMetaType<ethernetConfig_t>("brel_common_qt::ethernetConfig_t");
    qRegisterMetaType<melvoxPpsConfig_t>("brel_common_qt::melvoxPpsConfig_t");
    qRegisterMetaType<firmwareUpdateState_t>("brel_common_qt::firmwareUpdateState_t");
    qRegisterMetaType<portLock_t>("brel_common_qt::portLock_t");
    qRegisterMetaType<uploadStatus_t>("brel_common_qt::uploadStatus_t");
    qRegisterMetaType<QList<melvoxFirmwareUpdateProgress_t>>("QList<brel_common_qt::melvoxFirmwareUpdateProgress_t>");
}

/** Both antennas' records as one value. */
template <typename record_t> QVariantList writePair(record_t const& first, record_t const& second)
{
    QVariantList pair;
    pair << writeRecord(first) << writeRecord(second);
    return pair;
}

QVariantMap atPort(melvoxPort_t port, QVariantMap value)
{
    value.insert("port", write(port));
    return value;
}

QVariantMap named(char const* name, QVariant const& value)
{
    QVariantMap map;
    map.insert(name, value);
    return map;
}

QVariantMap namedPair(char const* first, QVariant const& firstValue, char const* second, QVariant const& secondValue)
{
    QVariantMap value;
    value.insert(first, firstValue);
    value.insert(second, secondValue);
    return value;
}

/** Names a file to the receiver, which may read it from now on. */
QVariantMap offered(sentFiles_t& files, char const* pathField, char const* sizeField, std::string const& path)
{
    qint64 const size = files.offer(write(path).toString(), pathFromText(path));
    return namedPair(pathField, write(path), sizeField, double(size));
}

/** The same where an empty path stands for no file. */
QVariantMap offeredIfAny(sentFiles_t& files, char const* pathField, char const* sizeField, std::string const& path)
{
    return path.empty() ? named(pathField, write(path)) : offered(files, pathField, sizeField, path);
}

} // namespace

remoteMelvoxDevice_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_, portEndpoint_t* endpoint_)
    : device(device_), endpoint(endpoint_),
      listener([this](message_t const& message) { takeOrLog(message); }, [this]() { failDumps(); }),
      showDtmWarning(true), firmwareUpdating(false)
{
    webUiUploadState.value.state = MELVOX_WEB_UI_UPLOAD_COMPLETE;
}

void remoteMelvoxDevice_t::privateData_t::request(char const* group)
{
    endpoint->send(message_t(message_t::REQUEST, group));
}

void remoteMelvoxDevice_t::privateData_t::command(char const* group, QVariant const& value)
{
    endpoint->send(message_t(message_t::COMMAND, group, value));
}

void remoteMelvoxDevice_t::privateData_t::commandNow(char const* group, QVariant const& value)
{
    endpoint->sendNow(message_t(message_t::COMMAND, group, value));
}

void remoteMelvoxDevice_t::privateData_t::takeOrLog(message_t const& message)
{
    // The group alone: nobody knows how large the rest is.
    if (!take(message))
        qDebug("ignored from the receiver: %s", qPrintable(message.group.left(100)));
}

bool remoteMelvoxDevice_t::privateData_t::sendFileBlock(QVariant const& wanted)
{
    QString name;
    qint64 offset = 0;
    qint64 size = 0;
    if (!readFields(wanted, "path", name, "offset", offset, "size", size) || offset < 0 || size < 1)
        return false;
    QVariantMap answer = namedPair("path", name, "offset", double(offset));
    QByteArray block;
    QString reason;
    sentFiles_t& files = webUiFiles.isOffered(name) ? webUiFiles : firmwareFiles;
    if (!files.read(name, offset, size, block, reason))
        answer.insert("error", reason);
    answer.insert("data", block);
    commandNow("fileBlock", answer);
    return true;
}

bool remoteMelvoxDevice_t::privateData_t::takeProfileDump(QVariant const& value)
{
    QString name;
    std::string description;
    bool success = false;
    QByteArray data;
    if (!readFields(value, "path", name, "success", success, "description", description) ||
        (success && !readFields(value, "data", data)))
        return false;
    // Only what was asked for is written: a receiver must not be able to choose files of ours.
    if (!dumps.contains(name))
        return false;
    std::string const path = dumps.take(name);
    QString reason;
    if (success && !writeWhole(pathFromText(path), data, reason))
    {
        success = false;
        description = textFrom(remoteMelvoxDevice_t::tr("The profile could not be written: %1").arg(reason));
    }
    emit device->profileDumpDone(path, success, description);
    return true;
}

void remoteMelvoxDevice_t::privateData_t::failDumps()
{
    QHash<QString, std::string> const failed = dumps;
    dumps.clear();
    for (std::string const& path : failed)
        emit device->profileDumpDone(path, false,
                                     textFrom(remoteMelvoxDevice_t::tr("The link to the receiver was lost.")));
}

remoteMelvoxDevice_t::remoteMelvoxDevice_t(remotePort_t* port, QObject* parent)
    : remoteDevice_t(port, parent), m_data(new privateData_t(this, &port->m_data->endpoint))
{
    registerMetaTypes();
    m_data->listener.connect(m_data->endpoint, SIGNAL(received(melvox_link::message_t)),
                             SLOT(take(melvox_link::message_t)));
    m_data->listener.connect(m_data->endpoint, SIGNAL(openChanged(bool)), SLOT(changeOpen(bool)));
}

remoteMelvoxDevice_t::~remoteMelvoxDevice_t()
{
    delete m_data;
}

void remoteMelvoxDevice_t::queryAll()
{
    for (char const* group : ALL_GROUPS)
        m_data->request(group);
}

// --- solution control ----------------------------------------------------------------------------------------------

void remoteMelvoxDevice_t::queryElevationMask()
{
    m_data->request("elevationMask");
}

bool remoteMelvoxDevice_t::elevationMaskValid() const
{
    return m_data->elevationMask.valid;
}

double remoteMelvoxDevice_t::elevationMask() const
{
    return m_data->elevationMask.value;
}

void remoteMelvoxDevice_t::setElevationMask(double degrees)
{
    m_data->command("elevationMask", write(degrees));
}

void remoteMelvoxDevice_t::queryPdopLimit()
{
    m_data->request("pdopLimit");
}

bool remoteMelvoxDevice_t::pdopLimitValid() const
{
    return m_data->pdopLimit.valid;
}

double remoteMelvoxDevice_t::pdopLimit() const
{
    return m_data->pdopLimit.value;
}

void remoteMelvoxDevice_t::setPdopLimit(double limit)
{
    m_data->command("pdopLimit", write(limit));
}

void remoteMelvoxDevice_t::queryGeoidalModel()
{
    m_data->request("geoidalModel");
}

bool remoteMelvoxDevice_t::geoidalModelValid() const
{
    return m_data->geoidalModel.valid;
}

melvoxGeoidalModel_t remoteMelvoxDevice_t::geoidalModel() const
{
    return m_data->geoidalModel.value;
}

void remoteMelvoxDevice_t::setGeoidalModel(melvoxGeoidalModel_t model)
{
    m_data->command("geoidalModel", write(model));
}

void remoteMelvoxDevice_t::queryCorrectionsEnabled()
{
    m_data->request("correctionEnabled");
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
    correctionEnabled_t const value = {type, enabled};
    m_data->command("correctionEnabled", writeRecord(value));
}

void remoteMelvoxDevice_t::queryCorrectionsMaxAge()
{
    m_data->request("correctionMaxAge");
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
    correctionMaxAge_t const value = {type, seconds};
    m_data->command("correctionMaxAge", writeRecord(value));
}

void remoteMelvoxDevice_t::queryNtripPPPMode()
{
    m_data->request("ntripPPP");
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
    m_data->command("ntripPPP", writeRecord(mode));
}

// --- navigation mode and status ------------------------------------------------------------------------------------

void remoteMelvoxDevice_t::queryMeasUse()
{
    m_data->request("measUse");
}

bool remoteMelvoxDevice_t::getMeasUse(std::string const& name, bool& use) const
{
    for (meas_t const& meas : m_data->measUse.value)
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
    QVariantList list;
    for (meas_t const& meas : use)
        list << writeRecord(meas);
    m_data->command("measUse", list);
}

void remoteMelvoxDevice_t::queryDynamicConfig()
{
    m_data->request("dynamicConfig");
}

bool remoteMelvoxDevice_t::dynamicConfigValid() const
{
    return m_data->dynamicConfig.valid;
}

melvoxDynamicConfig_t const& remoteMelvoxDevice_t::dynamicConfig() const
{
    return m_data->dynamicConfig.value;
}

void remoteMelvoxDevice_t::setDynamicConfig(melvoxDynamicConfig_t const& config)
{
    m_data->command("dynamicConfig", writeRecord(config));
}

bool remoteMelvoxDevice_t::extendedNavInfoValid() const
{
    return m_data->extendedNavInfo.valid;
}

melvoxExtendedNavInfo_t const& remoteMelvoxDevice_t::extendedNavInfo() const
{
    return m_data->extendedNavInfo.value;
}

// --- antennas and their alignment ----------------------------------------------------------------------------------

void remoteMelvoxDevice_t::queryAntennaAlignment()
{
    m_data->request("antennaAlignment");
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
    return m_data->antennaAlignment.value.angle;
}

void remoteMelvoxDevice_t::setAntennaAlignment(melvoxAntennaAlignmentMode_t mode, float degrees)
{
    antennaAlignment_t const value = {mode, degrees};
    m_data->command("antennaAlignment", writeRecord(value));
}

void remoteMelvoxDevice_t::queryAntennaInfo()
{
    m_data->request("antennaInfo");
    // The names never change while the receiver runs; asking again would empty every list that shows them.
    if (m_data->antennaList.isEmpty())
        m_data->request("antennaList");
}

bool remoteMelvoxDevice_t::antennaInfoValid() const
{
    return m_data->antennaInfo.valid;
}

melvoxAntennaInfo_t const& remoteMelvoxDevice_t::antennaInfo(melvoxAntenna_t antenna) const
{
    return m_data->antennaInfo.value.of[antenna == MELVOX_ANTENNA_SECOND ? 1 : 0];
}

void remoteMelvoxDevice_t::setAntennaInfo(melvoxAntennaInfo_t const& first, melvoxAntennaInfo_t const& second)
{
    m_data->command("antennaInfo", writePair(first, second));
}

void remoteMelvoxDevice_t::queryAntennaHeight()
{
    m_data->request("antennaHeight");
}

bool remoteMelvoxDevice_t::antennaHeightValid() const
{
    return m_data->antennaHeight.valid;
}

melvoxAntennaHeight_t const& remoteMelvoxDevice_t::antennaHeight(melvoxAntenna_t antenna) const
{
    return m_data->antennaHeight.value.of[antenna == MELVOX_ANTENNA_SECOND ? 1 : 0];
}

void remoteMelvoxDevice_t::setAntennaHeight(melvoxAntennaHeight_t const& first, melvoxAntennaHeight_t const& second)
{
    m_data->command("antennaHeight", writePair(first, second));
}

void remoteMelvoxDevice_t::queryAntennaRemote()
{
    m_data->request("antennaRemote");
}

bool remoteMelvoxDevice_t::antennaRemoteValid() const
{
    return m_data->antennaRemote.valid;
}

melvoxAntennaRemote_t const& remoteMelvoxDevice_t::antennaRemote() const
{
    return m_data->antennaRemote.value;
}

void remoteMelvoxDevice_t::setAntennaRemote(melvoxAntennaRemote_t const& remote)
{
    m_data->command("antennaRemote", writeRecord(remote));
}

void remoteMelvoxDevice_t::queryAntennaDualMode()
{
    m_data->request("antennaDualMode");
}

bool remoteMelvoxDevice_t::antennaDualModeValid() const
{
    return m_data->antennaDualMode.valid;
}

melvoxAntennaDualMode_t const& remoteMelvoxDevice_t::antennaDualMode() const
{
    return m_data->antennaDualMode.value;
}

void remoteMelvoxDevice_t::setAntennaDualMode(melvoxAntennaDualMode_t const& mode)
{
    m_data->command("antennaDualMode", write(mode));
}

QStringList remoteMelvoxDevice_t::antennaList() const
{
    return m_data->antennaList;
}

// --- correction sources and satellites -----------------------------------------------------------------------------

void remoteMelvoxDevice_t::queryCorrectionSelection()
{
    m_data->request("correctionSelection");
}

bool remoteMelvoxDevice_t::correctionSelectionValid() const
{
    return m_data->correctionSelection.valid;
}

melvoxCorrectionSelection_t remoteMelvoxDevice_t::correctionSelection() const
{
    return m_data->correctionSelection.value;
}

void remoteMelvoxDevice_t::setCorrectionSelection(melvoxCorrectionSelection_t selection)
{
    m_data->command("correctionSelection", write(selection));
}

void remoteMelvoxDevice_t::queryNetPriority()
{
    m_data->request("netPriority");
}

bool remoteMelvoxDevice_t::netPriorityValid() const
{
    return m_data->netPriority.valid;
}

void remoteMelvoxDevice_t::queryRtgUseMode()
{
    m_data->request("rtgUseMode");
}

bool remoteMelvoxDevice_t::rtgUseModeValid() const
{
    return m_data->rtgUseMode.valid;
}

void remoteMelvoxDevice_t::queryCorrectionSats()
{
    m_data->request("correctionSats");
}

melvoxCorrectionSatMap_t const& remoteMelvoxDevice_t::correctionSats() const
{
    return m_data->correctionSats.value;
}

melvoxCorrectionSatStatsMap_t const& remoteMelvoxDevice_t::correctionSatStats() const
{
    return m_data->correctionSatStats.value.sats;
}

void remoteMelvoxDevice_t::queryCorrectionSatSelected()
{
    m_data->request("correctionSatSelection");
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
    return m_data->correctionSatStats.value.inUse != 0;
}

unsigned int remoteMelvoxDevice_t::correctionSatInUse() const
{
    return m_data->correctionSatStats.value.inUse;
}

void remoteMelvoxDevice_t::selectCorrectionSat(int id)
{
    correctionSatSelection_t const value = {false, id};
    m_data->command("correctionSatSelection", writeRecord(value));
}

void remoteMelvoxDevice_t::autoSelectCorrectionSat()
{
    correctionSatSelection_t const value = {true, 0};
    m_data->command("correctionSatSelection", writeRecord(value));
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
    return m_data->userCorrectionSat.value.id;
}

float remoteMelvoxDevice_t::userCorrectionSatFrequency() const
{
    return m_data->userCorrectionSat.value.frequency;
}

void remoteMelvoxDevice_t::defineUserCorrectionSat(int id, float kilohertz)
{
    QVariantMap value = namedPair("id", id, "frequency", write(kilohertz));
    value.insert("defined", true);
    m_data->command("userCorrectionSat", value);
}

void remoteMelvoxDevice_t::deleteUserCorrectionSat()
{
    m_data->command("userCorrectionSat", named("defined", write(false)));
}

void remoteMelvoxDevice_t::queryMrvAlmanacInfo()
{
    m_data->request("mrvAlmanacInfo");
}

bool remoteMelvoxDevice_t::mrvAlmanacInfoValid() const
{
    return m_data->mrvAlmanacInfo.valid;
}

melvoxMrvAlmanacInfo_t const& remoteMelvoxDevice_t::mrvAlmanacInfo() const
{
    return m_data->mrvAlmanacInfo.value;
}

void remoteMelvoxDevice_t::queryStarfireAlmStatus()
{
    m_data->request("starfireAlmStatus");
}

bool remoteMelvoxDevice_t::starfireAlmStatusValid() const
{
    return m_data->newStarfireAlmReady.valid;
}

bool remoteMelvoxDevice_t::newStarfireAlmReady() const
{
    return m_data->newStarfireAlmReady.value;
}

void remoteMelvoxDevice_t::useNewStarfireAlm()
{
    m_data->command("useNewStarfireAlm");
}

void remoteMelvoxDevice_t::queryStarfireAlmSwitchPolicy()
{
    m_data->request("starfireAlmSwitchPolicy");
}

bool remoteMelvoxDevice_t::starfireAlmSwitchPolicyValid() const
{
    return m_data->starfireAlmSwitchPolicy.valid;
}

melvoxStarfireAlmSwitchPolicy_t const& remoteMelvoxDevice_t::starfireAlmSwitchPolicy() const
{
    return m_data->starfireAlmSwitchPolicy.value;
}

void remoteMelvoxDevice_t::setStarfireAlmSwitchPolicy(melvoxStarfireAlmSwitchPolicy_t const& policy)
{
    m_data->command("starfireAlmSwitchPolicy", writeRecord(policy));
}

// --- differential operation ----------------------------------------------------------------------------------------

void remoteMelvoxDevice_t::queryDiffConfig()
{
    m_data->request("diffConfig");
}

bool remoteMelvoxDevice_t::diffConfigValid() const
{
    return m_data->diffConfig.valid;
}

melvoxDiffConfig_t const& remoteMelvoxDevice_t::diffConfig() const
{
    return m_data->diffConfig.value;
}

void remoteMelvoxDevice_t::setDiffConfig(melvoxDiffConfig_t const& config)
{
    m_data->command("diffConfig", writeRecord(config));
}

void remoteMelvoxDevice_t::queryRtcmVersion()
{
    m_data->request("rtcmVersion");
}

bool remoteMelvoxDevice_t::rtcmVersionValid() const
{
    return m_data->rtcmVersion.valid;
}

melvoxRtcmVersion_t remoteMelvoxDevice_t::rtcmVersion() const
{
    return m_data->rtcmVersion.value;
}

void remoteMelvoxDevice_t::setRtcmVersion(melvoxRtcmVersion_t version)
{
    m_data->command("rtcmVersion", write(version));
}

void remoteMelvoxDevice_t::queryBaseName()
{
    m_data->request("baseName");
}

bool remoteMelvoxDevice_t::baseNameValid() const
{
    return m_data->baseName.valid;
}

std::string const& remoteMelvoxDevice_t::baseName() const
{
    return m_data->baseName.value;
}

void remoteMelvoxDevice_t::setBaseName(std::string const& name)
{
    m_data->command("baseName", write(name));
}

void remoteMelvoxDevice_t::queryBasePosition()
{
    m_data->request("basePosition");
}

bool remoteMelvoxDevice_t::basePositionValid() const
{
    return m_data->basePosition.valid;
}

melvoxBasePosition_t const& remoteMelvoxDevice_t::basePosition() const
{
    return m_data->basePosition.value;
}

void remoteMelvoxDevice_t::setBasePosition(melvoxBasePosition_t const& position)
{
    m_data->command("basePosition", writeRecord(position));
}

// --- ports and message output --------------------------------------------------------------------------------------

void remoteMelvoxDevice_t::queryActivePort()
{
    m_data->request("activePort");
}

bool remoteMelvoxDevice_t::activePortValid() const
{
    return m_data->activePort.valid;
}

melvoxPort_t remoteMelvoxDevice_t::activePort() const
{
    return m_data->activePort.value;
}

void remoteMelvoxDevice_t::queryAllOutputs()
{
    m_data->request("outputs");
}

melvoxPortOutputs_t const* remoteMelvoxDevice_t::portOutputs(melvoxPort_t port) const
{
    auto const found = m_data->outputs.find(port);
    return found == m_data->outputs.end() ? 0 : &found->second;
}

melvoxMessageOutput_t const* remoteMelvoxDevice_t::messageOutput(melvoxPort_t port, std::string const& name) const
{
    melvoxPortOutputs_t const* const outputs = portOutputs(port);
    if (!outputs)
        return 0;
    auto const found = outputs->find(name);
    return found == outputs->end() ? 0 : &found->second;
}

PortTxRxInfo const* remoteMelvoxDevice_t::portTxRxInfo(melvoxPort_t port) const
{
    auto const found = m_data->portTxRxInfo.find(port);
    return found == m_data->portTxRxInfo.end() ? 0 : &found->second;
}

void remoteMelvoxDevice_t::setOutput(melvoxPort_t port, std::string const& name, melvoxMessageOutput_t const& output)
{
    QVariantMap value = atPort(port, writeRecord(output));
    value.insert("message", write(name));
    m_data->command("output", value);
}

void remoteMelvoxDevice_t::turnOffAllOutput(melvoxPort_t port)
{
    m_data->command("turnOffAllOutput", write(port));
}

void remoteMelvoxDevice_t::queryGgaMode()
{
    m_data->request("ggaMode");
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
    ggaSetting_t const value = {mode, quality, scaling};
    m_data->command("ggaMode", writeRecord(value));
}

void remoteMelvoxDevice_t::queryTalkerIdMode()
{
    m_data->request("talkerIdMode");
}

bool remoteMelvoxDevice_t::talkerIdModeValid() const
{
    return m_data->talkerIdMode.valid;
}

melvoxTalkerIdMode_t remoteMelvoxDevice_t::talkerIdMode() const
{
    return m_data->talkerIdMode.value;
}

void remoteMelvoxDevice_t::setTalkerIdMode(melvoxTalkerIdMode_t mode)
{
    m_data->command("talkerIdMode", write(mode));
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
    m_data->command("serialConfig", atPort(port, writeRecord(config)));
}

void remoteMelvoxDevice_t::setVcomConfig(melvoxPort_t port, melvoxVcomConfig_t const& config)
{
    m_data->command("vcomConfig", atPort(port, writeRecord(config)));
}

void remoteMelvoxDevice_t::queryUsbMode()
{
    m_data->request("usbMode");
}

bool remoteMelvoxDevice_t::usbModeValid() const
{
    return m_data->usbMode.valid;
}

melvoxUsbMode_t remoteMelvoxDevice_t::usbMode() const
{
    return m_data->usbMode.value;
}

void remoteMelvoxDevice_t::setUsbMode(melvoxUsbMode_t mode)
{
    m_data->command("usbMode", write(mode));
}

// --- network and web interface -------------------------------------------------------------------------------------

void remoteMelvoxDevice_t::queryEthernetConfig()
{
    m_data->request("ethernetConfig");
}

ethernetConfig_t const* remoteMelvoxDevice_t::ethernetConfig(melvoxEthernetConfigSource_t source) const
{
    auto const found = m_data->ethernetConfig.find(source);
    return found == m_data->ethernetConfig.end() ? 0 : &found->second.config;
}

bool remoteMelvoxDevice_t::ethernetConfigDhcp(melvoxEthernetConfigSource_t source) const
{
    auto const found = m_data->ethernetConfig.find(source);
    return found != m_data->ethernetConfig.end() && found->second.dhcp;
}

void remoteMelvoxDevice_t::setEthernetConfig(melvoxEthernetConfigSource_t source, ethernetConfig_t const& config)
{
    ethernetSetting_t const setting = {false, config};
    QVariantMap value = writeRecord(setting);
    value.insert("source", write(source));
    m_data->command("ethernetConfig", value);
}

void remoteMelvoxDevice_t::setEthernetConfigDhcp(melvoxEthernetConfigSource_t source)
{
    m_data->command("ethernetConfig", namedPair("source", write(source), "dhcp", true));
}

void remoteMelvoxDevice_t::queryWebControl()
{
    m_data->request("webControl");
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
    m_data->command("webControl", named("enabled", write(enabled)));
}

void remoteMelvoxDevice_t::startWebUiUpload(std::string const& path)
{
    // A receiver that is at one upload goes on with that.
    if (m_data->webUiUploadState.value.state != MELVOX_WEB_UI_UPLOAD_IN_PROGRESS)
        m_data->webUiFiles.withdrawAll();
    m_data->command("startWebUiUpload", offered(m_data->webUiFiles, "path", "size", path));
}

melvoxWebUiUploadState_t remoteMelvoxDevice_t::webUiUploadState() const
{
    return m_data->webUiUploadState.value.state;
}

std::string const& remoteMelvoxDevice_t::webUiUploadDescription() const
{
    return m_data->webUiUploadState.value.description;
}

void remoteMelvoxDevice_t::cancelWebUiUpload()
{
    m_data->command("cancelWebUiUpload");
}

// --- PPS -----------------------------------------------------------------------------------------------------------

void remoteMelvoxDevice_t::queryPpsConfig()
{
    m_data->request("ppsConfig");
}

bool remoteMelvoxDevice_t::ppsConfigValid() const
{
    return m_data->ppsConfig.valid;
}

melvoxPpsConfig_t const& remoteMelvoxDevice_t::ppsConfig() const
{
    return m_data->ppsConfig.value;
}

void remoteMelvoxDevice_t::setPpsConfig(melvoxPpsConfig_t const& config)
{
    m_data->command("ppsConfig", writeRecord(config));
}

// --- firmware, profiles, restart, receiver information -------------------------------------------------------------

bool remoteMelvoxDevice_t::productInfoValid() const
{
    return m_data->productInfo.valid;
}

std::string const& remoteMelvoxDevice_t::serialNumber() const
{
    return m_data->productInfo.value.serialNumber;
}

std::string const& remoteMelvoxDevice_t::modelName() const
{
    return m_data->productInfo.value.modelName;
}

QList<melvoxFirmwareVersion_t> const& remoteMelvoxDevice_t::firmwareVersions() const
{
    return m_data->firmwareVersions;
}

void remoteMelvoxDevice_t::startFirmwareUpdate(QList<melvoxFirmwareUpdateComponent_t> const& components,
                                               std::string const& combinedPath)
{
    if (!m_data->firmwareUpdating)
        m_data->firmwareFiles.withdrawAll();
    QVariantList list;
    for (melvoxFirmwareUpdateComponent_t const& component : components)
    {
        QVariantMap value = offeredIfAny(m_data->firmwareFiles, "path", "size", component.path);
        value.insert("fileIndex", write(component.fileIndex));
        value.insert("component", write(component.component));
        list << value;
    }
    QVariantMap update = offeredIfAny(m_data->firmwareFiles, "combinedPath", "combinedSize", combinedPath);
    update.insert("components", list);
    m_data->commandNow("startFirmwareUpdate", update);
}

void remoteMelvoxDevice_t::listProfiles()
{
    m_data->request("profiles");
}

void remoteMelvoxDevice_t::useProfile(std::string const& name)
{
    m_data->command("useProfile", write(name));
}

void remoteMelvoxDevice_t::saveAsProfile(std::string const& name)
{
    m_data->command("saveAsProfile", write(name));
}

void remoteMelvoxDevice_t::deleteProfile(std::string const& name)
{
    m_data->command("deleteProfile", write(name));
}

void remoteMelvoxDevice_t::queryActiveProfile()
{
    m_data->request("activeProfile");
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
    m_data->dumps.insert(write(path).toString(), path);
    m_data->command("dumpProfile", write(path));
    if (!m_data->endpoint->isOpen())
        QTimer::singleShot(0, &m_data->listener, SLOT(lose()));
}

void remoteMelvoxDevice_t::coldRestart(bool useBuiltInAlmanac)
{
    m_data->command("coldRestart", named("useBuiltInAlmanac", write(useBuiltInAlmanac)));
}

void remoteMelvoxDevice_t::warmRestart()
{
    m_data->command("warmRestart");
}

void remoteMelvoxDevice_t::reboot(unsigned int delaySeconds)
{
    m_data->command("reboot", named("delay", write(delaySeconds)));
}

void remoteMelvoxDevice_t::queryLteModemStatus()
{
    m_data->request("lteModemStat");
}

void remoteMelvoxDevice_t::setLteModemStatus(bool on)
{
    m_data->command("lteModemStat", named("on", write(on)));
}

} // namespace brel_common_qt
