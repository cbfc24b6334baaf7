#ifndef MELVOX_KIT_REMOTE_MELVOX_DEVICE_P_H
#define MELVOX_KIT_REMOTE_MELVOX_DEVICE_P_H

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "melvoxFiles.h"
#include "portEndpoint.h"
#include "values.h"

#include <QHash>

#include <functional>
#include <map>

namespace melvox_kit
{

/** The last answer for a group, if there was one. */
template <typename value_t> struct cached_t
{
    cached_t() : valid(false), value() {}

    void set(value_t const& answer)
    {
        value = answer;
        valid = true;
    }

    bool valid;
    value_t value;
};

/** Brings what the port tells to the proxy. */
class portListener_t : public QObject
{
    Q_OBJECT

public:
    typedef std::function<void(melvox_link::message_t const&)> taken_t;
    typedef std::function<void()> lost_t;

    portListener_t(taken_t const& taken, lost_t const& lost) : m_taken(taken), m_lost(lost) {}

public slots:
    void take(melvox_link::message_t const& message) { m_taken(message); }
    void changeOpen(bool open)
    {
        if (!open)
            lose();
    }
    void lose() { m_lost(); }

private:
    taken_t m_taken;
    lost_t m_lost;
};

} // namespace melvox_kit

namespace brel_common_qt
{

struct remoteMelvoxDevice_t::privateData_t
{
    privateData_t(remoteMelvoxDevice_t* device_, melvox_kit::portEndpoint_t* endpoint_);

    void request(char const* group);
    void command(char const* group, QVariant const& value = QVariant());
    /** Belongs to a transfer that holds the lock. */
    void commandNow(char const* group, QVariant const& value);

    void takeOrLog(melvox_link::message_t const& message);
    /** Takes a message in: fills the cache, then emits the group's signal. False when nobody knows the group or the
     *  value is not of its shape; the cache is then as it was. */
    bool take(melvox_link::message_t const& message);

    struct replyTable_t;

    bool sendFileBlock(QVariant const& wanted);
    bool takeProfileDump(QVariant const& value);
    /** Nobody will answer them any more. */
    void failDumps();

    remoteMelvoxDevice_t* device;
    melvox_kit::portEndpoint_t* endpoint;
    melvox_kit::portListener_t listener;

    melvox_kit::cached_t<double> elevationMask;
    melvox_kit::cached_t<double> pdopLimit;
    melvox_kit::cached_t<melvoxGeoidalModel_t> geoidalModel;
    std::map<melvoxCorrectionType_t, bool> correctionEnabled;
    std::map<melvoxCorrectionType_t, unsigned int> correctionMaxAge;
    melvox_kit::cached_t<melvoxNtripPPP_t> ntripPPP;

    melvox_kit::cached_t<measUse_t> measUse;
    melvox_kit::cached_t<melvoxDynamicConfig_t> dynamicConfig;
    melvox_kit::cached_t<melvoxExtendedNavInfo_t> extendedNavInfo;

    melvox_kit::cached_t<melvox_kit::antennaAlignment_t> antennaAlignment;
    melvox_kit::cached_t<melvox_kit::antennaPair_t<melvoxAntennaInfo_t>> antennaInfo;
    melvox_kit::cached_t<melvox_kit::antennaPair_t<melvoxAntennaHeight_t>> antennaHeight;
    melvox_kit::cached_t<melvoxAntennaRemote_t> antennaRemote;
    melvox_kit::cached_t<melvoxAntennaDualMode_t> antennaDualMode;
    QStringList antennaList;

    melvox_kit::cached_t<melvoxCorrectionSelection_t> correctionSelection;
    melvox_kit::cached_t<melvoxNetPriority_t> netPriority;
    melvox_kit::cached_t<melvoxRtgUseMode_t> rtgUseMode;
    melvox_kit::cached_t<melvoxCorrectionSatMap_t> correctionSats;
    melvox_kit::cached_t<melvox_kit::correctionSatStats_t> correctionSatStats;
    melvox_kit::cached_t<melvox_kit::correctionSatSelection_t> correctionSatSelection;
    melvox_kit::cached_t<melvox_kit::userCorrectionSat_t> userCorrectionSat;
    melvox_kit::cached_t<melvoxMrvAlmanacInfo_t> mrvAlmanacInfo;
    melvox_kit::cached_t<bool> newStarfireAlmReady;
    melvox_kit::cached_t<melvoxStarfireAlmSwitchPolicy_t> starfireAlmSwitchPolicy;

    melvox_kit::cached_t<melvoxDiffConfig_t> diffConfig;
    melvox_kit::cached_t<melvoxRtcmVersion_t> rtcmVersion;
    melvox_kit::cached_t<std::string> baseName;
    melvox_kit::cached_t<melvoxBasePosition_t> basePosition;

    melvox_kit::cached_t<melvoxPort_t> activePort;
    std::map<melvoxPort_t, melvoxPortOutputs_t> outputs;
    std::map<melvoxPort_t, PortTxRxInfo> portTxRxInfo;
    melvox_kit::cached_t<melvox_kit::ggaSetting_t> ggaMode;
    melvox_kit::cached_t<melvoxTalkerIdMode_t> talkerIdMode;
    bool showDtmWarning;
    melvox_kit::cached_t<melvoxUsbMode_t> usbMode;

    std::map<melvoxEthernetConfigSource_t, melvox_kit::ethernetSetting_t> ethernetConfig;
    melvox_kit::cached_t<bool> webUiEnabled;
    melvox_kit::cached_t<melvox_kit::webUiUploadState_t> webUiUploadState;

    melvox_kit::cached_t<melvoxPpsConfig_t> ppsConfig;

    melvox_kit::cached_t<melvox_kit::productInfo_t> productInfo;
    QList<melvoxFirmwareVersion_t> firmwareVersions;
    melvox_kit::cached_t<std::string> activeProfile;

    bool firmwareUpdating;
    melvox_kit::sentFiles_t firmwareFiles;
    melvox_kit::sentFiles_t webUiFiles;
    QHash<QString, std::string> dumps; //!< under way: the path as the receiver was told it, and as the page named it
};

} // namespace brel_common_qt

#endif
