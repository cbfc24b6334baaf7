#include "remoteMelvoxDevice_p.h"
#include "values.h"

#include <QHash>

using namespace melvox_kit;

namespace brel_common_qt
{

namespace
{

template <typename value_t> bool fill(cached_t<value_t>& cached, QVariant const& value)
{
    if (!read(value, cached.value))
        return false;
    cached.valid = true;
    return true;
}

template <typename value_t> bool fillField(cached_t<value_t>& cached, char const* name, QVariant const& value)
{
    if (!readField(value, name, cached.value))
        return false;
    cached.valid = true;
    return true;
}

bool readPort(QVariant const& value, melvoxPort_t& port)
{
    melvoxPort_t number = MELVOX_PORT_UNKNOWN;
    if (!readField(value, "port", number) || number < MELVOX_PORT_FIRST || number >= MELVOX_NUM_PORTS)
        return false;
    port = number;
    return true;
}

/** Both antennas' records. */
template <typename record_t> bool fillPair(record_t* pair, bool& valid, QVariant const& value)
{
    QList<record_t> records;
    if (!read(value, records) || records.size() != MELVOX_NUM_ANTENNAS)
        return false;
    for (int i = 0; i < MELVOX_NUM_ANTENNAS; ++i)
        pair[i] = records.at(i);
    valid = true;
    return true;
}

/** A list of records as a map by their ids. */
template <typename record_t> bool fillById(std::map<unsigned short, record_t>& map, QVariant const& value)
{
    QList<record_t> records;
    if (!read(value, records))
        return false;
    map.clear();
    for (int i = 0; i < records.size(); ++i)
        map[static_cast<unsigned short>(records.at(i).id)] = records.at(i);
    return true;
}

/** Which activity light a group lights. */
int streamOf(QString const& group)
{
    if (group == "extendedNavInfo")
        return 0;
    if (group == "vhdInfo")
        return 1;
    if (group.startsWith("correctionSat"))
        return 2;
    return 3;
}

} // namespace

/** What to do with each group that a receiver tells of. Signals are for the proxy alone to emit, so the table belongs
 *  to its private record. */
struct remoteMelvoxDevice_t::privateData_t::replyTable_t
{
    typedef privateData_t cache_t;
    typedef bool (*reply_t)(cache_t& cache, QVariant const& value);
    typedef QHash<QString, reply_t> replies_t;

    static void solution(replies_t& replies)
    {
        replies["elevationMask"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.elevationMask, v))
                return false;
            emit c.device->elevationMaskUpdated(c.elevationMask.value);
            return true;
        };
        replies["pdopLimit"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.pdopLimit, v))
                return false;
            emit c.device->pdopLimitUpdated(c.pdopLimit.value);
            return true;
        };
        replies["geoidalModel"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.geoidalModel, v))
                return false;
            emit c.device->geoidalModelUpdated(c.geoidalModel.value);
            return true;
        };
        replies["correctionEnabled"] = [](cache_t& c, QVariant const& v)
        {
            melvoxCorrectionType_t type = melvoxCorrectionType_t();
            bool enabled = false;
            if (!readField(v, "type", type) || !readField(v, "enabled", enabled))
                return false;
            c.correctionEnabled[type] = enabled;
            emit c.device->correctionEnabledUpdated(type, enabled);
            return true;
        };
        replies["correctionMaxAge"] = [](cache_t& c, QVariant const& v)
        {
            melvoxCorrectionType_t type = melvoxCorrectionType_t();
            unsigned int seconds = 0;
            if (!readField(v, "type", type) || !readField(v, "seconds", seconds))
                return false;
            c.correctionMaxAge[type] = seconds;
            emit c.device->correctionMaxAgeUpdated(type, seconds);
            return true;
        };
        replies["ntripPPP"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.ntripPPP, v))
                return false;
            emit c.device->ntripPPPModeUpdated(c.ntripPPP.value);
            return true;
        };
    }

    static void navigation(replies_t& replies)
    {
        replies["measUse"] = [](cache_t& c, QVariant const& v)
        {
            if (!read(v, c.measUse))
                return false;
            emit c.device->measUseUpdated(c.measUse);
            return true;
        };
        replies["dynamicConfig"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.dynamicConfig, v))
                return false;
            emit c.device->dynamicConfigUpdated(c.dynamicConfig.value);
            return true;
        };
        replies["extendedNavInfo"] = [](cache_t& c, QVariant const& v)
        {
            bool valid = false;
            if (!readField(v, "valid", valid) || (valid && !read(v, c.extendedNavInfo.value)))
                return false;
            c.extendedNavInfo.valid = valid;
            emit c.device->extendedNavInfoUpdated();
            return true;
        };
        replies["vhdInfo"] = [](cache_t& c, QVariant const& v)
        {
            double heading = 0, attitude = 0, baseline = 0, rms = 0;
            if (!readField(v, "rawHeading", heading) || !readField(v, "attitude", attitude) ||
                !readField(v, "baseline", baseline) || !readField(v, "headingRms", rms))
                return false;
            emit c.device->vhdInfoUpdated(heading, attitude, baseline, rms);
            return true;
        };
    }

    static void antennas(replies_t& replies)
    {
        replies["antennaAlignment"] = [](cache_t& c, QVariant const& v)
        {
            float angle = 0;
            if (!readField(v, "angle", angle) || !fillField(c.antennaAlignmentMode, "mode", v))
                return false;
            c.antennaAlignmentUserAngle = angle;
            emit c.device->antennaAlignmentModeUpdated(c.antennaAlignmentMode.value);
            emit c.device->antennaAlignmentUserAngleUpdated(angle);
            return true;
        };
        replies["antennaInfo"] = [](cache_t& c, QVariant const& v)
        {
            if (!fillPair(c.antennaInfo, c.antennaInfoValid, v))
                return false;
            emit c.device->antennaInfosUpdated();
            return true;
        };
        replies["antennaHeight"] = [](cache_t& c, QVariant const& v)
        {
            if (!fillPair(c.antennaHeight, c.antennaHeightValid, v))
                return false;
            emit c.device->antennaHeightsUpdated();
            return true;
        };
        replies["antennaRemote"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.antennaRemote, v))
                return false;
            emit c.device->antennaRemoteUpdated(c.antennaRemote.value);
            return true;
        };
        replies["antennaDualMode"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.antennaDualMode, v))
                return false;
            emit c.device->antennaDualModeUpdated(c.antennaDualMode.value);
            return true;
        };
        replies["antennaListReset"] = [](cache_t& c, QVariant const&)
        {
            c.antennaList.clear();
            emit c.device->antennaListReset();
            return true;
        };
        replies["antennaName"] = [](cache_t& c, QVariant const& v)
        {
            if (v.userType() != QMetaType::QString)
                return false;
            c.antennaList << v.toString();
            emit c.device->antennaNameAdded(c.antennaList.last());
            return true;
        };
    }

    static void corrections(replies_t& replies)
    {
        replies["correctionSelection"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.correctionSelection, v))
                return false;
            emit c.device->correctionSelectionUpdated(c.correctionSelection.value);
            return true;
        };
        replies["netPriority"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.netPriority, v))
                return false;
            emit c.device->netPriorityUpdated(c.netPriority.value);
            return true;
        };
        replies["rtgUseMode"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.rtgUseMode, v))
                return false;
            emit c.device->rtgUseModeUpdated(c.rtgUseMode.value);
            return true;
        };
        replies["correctionSats"] = [](cache_t& c, QVariant const& v)
        {
            if (!fillById(c.correctionSats, v))
                return false;
            emit c.device->correctionSatsUpdated();
            return true;
        };
        replies["correctionSatStats"] = [](cache_t& c, QVariant const& v)
        {
            unsigned int inUse = 0;
            if (!readField(v, "inUse", inUse) || !fillById(c.correctionSatStats, v.toMap().value("sats")))
                return false;
            c.correctionSatInUse.value = inUse;
            c.correctionSatInUse.valid = inUse != 0;
            emit c.device->correctionSatStatsUpdated();
            return true;
        };
        replies["correctionSatSelection"] = [](cache_t& c, QVariant const& v)
        {
            int id = 0;
            if (!readField(v, "id", id) || !fillField(c.correctionSatAuto, "auto", v))
                return false;
            if (c.correctionSatAuto.value)
                emit c.device->correctionSatAutoSelected();
            else
                emit c.device->correctionSatSelected(id);
            return true;
        };
        replies["userCorrectionSat"] = [](cache_t& c, QVariant const& v)
        {
            unsigned int id = 0;
            float frequency = 0;
            if (!readField(v, "id", id) || !readField(v, "frequency", frequency) ||
                !fillField(c.userCorrectionSatDefined, "defined", v))
                return false;
            c.userCorrectionSatId = id;
            c.userCorrectionSatFrequency = frequency;
            emit c.device->userCorrectionSatUpdated();
            return true;
        };
        replies["mrvAlmanacInfo"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.mrvAlmanacInfo, v))
                return false;
            emit c.device->mrvAlmanacInfoUpdated();
            return true;
        };
        replies["starfireAlmStatus"] = [](cache_t& c, QVariant const& v)
        {
            if (!fillField(c.newStarfireAlmReady, "newReady", v))
                return false;
            emit c.device->starfireAlmStatusUpdated();
            return true;
        };
        replies["starfireAlmSwitchPolicy"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.starfireAlmSwitchPolicy, v))
                return false;
            emit c.device->starfireAlmSwitchPolicyUpdated();
            return true;
        };
    }

    static void differential(replies_t& replies)
    {
        replies["diffConfig"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.diffConfig, v))
                return false;
            emit c.device->diffConfigUpdated(c.diffConfig.value);
            return true;
        };
        replies["rtcmVersion"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.rtcmVersion, v))
                return false;
            emit c.device->rtcmVersionUpdated(c.rtcmVersion.value);
            return true;
        };
        replies["baseName"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.baseName, v))
                return false;
            emit c.device->baseNameUpdated(c.baseName.value);
            return true;
        };
        replies["basePosition"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.basePosition, v))
                return false;
            emit c.device->basePositionUpdated(c.basePosition.value);
            return true;
        };
    }

    static void outputs(replies_t& replies)
    {
        replies["activePort"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.activePort, v))
                return false;
            emit c.device->activePortUpdated(c.activePort.value);
            return true;
        };
        replies["outputsCleared"] = [](cache_t& c, QVariant const&)
        {
            c.outputs.clear();
            emit c.device->outputsCleared();
            return true;
        };
        replies["output"] = [](cache_t& c, QVariant const& v)
        {
            melvoxPort_t port = melvoxPort_t();
            std::string name;
            melvoxMessageOutput_t output = melvoxMessageOutput_t();
            if (!readPort(v, port) || !readField(v, "message", name) || !read(v, output))
                return false;
            c.outputs[port][name] = output;
            emit c.device->outputConfigUpdated(port, name, output);
            return true;
        };
        replies["portTxRxInfo"] = [](cache_t& c, QVariant const& v)
        {
            melvoxPort_t port = melvoxPort_t();
            if (!readPort(v, port) || !read(v, c.portTxRxInfo[port]))
                return false;
            emit c.device->portTxRxInfoUpdated();
            return true;
        };
        replies["ggaMode"] = [](cache_t& c, QVariant const& v)
        {
            ggaQuality_t quality = ggaQuality_t();
            melvoxGgaCorrectionsScaling_t scaling = melvoxGgaCorrectionsScaling_t();
            if (!readField(v, "quality", quality) || !readField(v, "scaling", scaling) ||
                !fillField(c.ggaMode, "mode", v))
                return false;
            c.ggaQuality = quality;
            c.ggaCorrectionsScaling = scaling;
            emit c.device->ggaModeUpdated();
            return true;
        };
        replies["talkerIdMode"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.talkerIdMode, v))
                return false;
            emit c.device->talkerIdModeUpdated(c.talkerIdMode.value);
            return true;
        };
    }

    static void ports(replies_t& replies)
    {
        replies["serialConfig"] = [](cache_t& c, QVariant const& v)
        {
            melvoxPort_t port = melvoxPort_t();
            melvoxSerialPortConfig_t config = melvoxSerialPortConfig_t();
            if (!readPort(v, port) || !read(v, config))
                return false;
            emit c.device->serialConfigUpdated(port, config);
            return true;
        };
        replies["serialRs232Mode"] = [](cache_t& c, QVariant const& v)
        {
            melvoxPort_t port = melvoxPort_t();
            bool rs232 = false;
            if (!readPort(v, port) || !readField(v, "rs232", rs232))
                return false;
            emit c.device->serialRs232ModeUpdated(port, rs232);
            return true;
        };
        replies["vcomConfig"] = [](cache_t& c, QVariant const& v)
        {
            melvoxPort_t port = melvoxPort_t();
            melvoxVcomConfig_t config = melvoxVcomConfig_t();
            if (!readPort(v, port) || !read(v, config))
                return false;
            emit c.device->vcomConfigUpdated(port, config);
            return true;
        };
        replies["usbMode"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.usbMode, v))
                return false;
            emit c.device->usbModeUpdated(c.usbMode.value);
            return true;
        };
        replies["badBaud"] = [](cache_t& c, QVariant const&)
        {
            emit c.device->badBaudDetected();
            return true;
        };
        replies["ppsConfig"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.ppsConfig, v))
                return false;
            emit c.device->ppsConfigUpdated(c.ppsConfig.value);
            return true;
        };
    }

    static void network(replies_t& replies)
    {
        replies["ethernetConfig"] = [](cache_t& c, QVariant const& v)
        {
            int source = MELVOX_ETH_CFG_SOURCE_UNKNOWN;
            bool dhcp = false;
            if (!readField(v, "source", source) || source < 0 || source >= MELVOX_NUM_ETH_CFG_SOURCES ||
                !readField(v, "dhcp", dhcp) || !fill(c.ethernetConfig[source], v))
                return false;
            c.ethernetConfigDhcp[source] = dhcp;
            emit c.device->ethernetConfigUpdated(dhcp, c.ethernetConfig[source].value);
            return true;
        };
        replies["webControl"] = [](cache_t& c, QVariant const& v)
        {
            if (!fillField(c.webUiEnabled, "enabled", v))
                return false;
            emit c.device->webControlUpdated();
            return true;
        };
        replies["webUiUploadState"] = [](cache_t& c, QVariant const& v)
        {
            melvoxWebUiUploadState_t state = melvoxWebUiUploadState_t();
            if (!readField(v, "state", state) || !readField(v, "description", c.webUiUploadDescription))
                return false;
            c.webUiUploadState = state;
            emit c.device->webUiUploadStateUpdated();
            return true;
        };
        replies["webUiUploadPercent"] = [](cache_t& c, QVariant const& v)
        {
            double fraction = 0;
            if (!read(v, fraction))
                return false;
            emit c.device->webUiUploadPercentUpdated(fraction);
            return true;
        };
    }

    static void firmware(replies_t& replies)
    {
        replies["firmwareVersion"] = [](cache_t& c, QVariant const& v)
        {
            std::string component, version;
            if (!readField(v, "component", component) || !readField(v, "version", version))
                return false;
            int i = 0;
            while (i < c.firmwareVersions.size() && c.firmwareVersions.at(i).first != component)
                ++i;
            if (i == c.firmwareVersions.size())
                c.firmwareVersions << std::make_pair(component, version);
            else
                c.firmwareVersions[i].second = version;
            emit c.device->firmwareVersionUpdated(component, version);
            return true;
        };
        replies["firmwareUpdateState"] = [](cache_t& c, QVariant const& v)
        {
            firmwareUpdateState_t state = firmwareUpdateState_t();
            std::string description;
            if (!readField(v, "state", state) || !readField(v, "description", description))
                return false;
            emit c.device->firmwareUpdateStateUpdated(state, description);
            return true;
        };
        replies["firmwareUpdatePercent"] = [](cache_t& c, QVariant const& v)
        {
            double fraction = 0;
            if (!read(v, fraction))
                return false;
            emit c.device->firmwareUpdateProgressUpdated(fraction);
            return true;
        };
        replies["firmwareUpdateProgress"] = [](cache_t& c, QVariant const& v)
        {
            QList<melvoxFirmwareUpdateProgress_t> components;
            if (!read(v, components))
                return false;
            emit c.device->firmwareUpdateProgress(components);
            return true;
        };
        replies["fileWanted"] = [](cache_t& c, QVariant const& v) { return c.sendFileBlock(v); };
    }

    static void profiles(replies_t& replies)
    {
        replies["profilesCleared"] = [](cache_t& c, QVariant const&)
        {
            emit c.device->profilesCleared();
            return true;
        };
        replies["profile"] = [](cache_t& c, QVariant const& v)
        {
            std::string name;
            unsigned int modified = 0;
            if (!readField(v, "name", name) || !readField(v, "modified", modified))
                return false;
            emit c.device->profileUpdated(name, modified);
            return true;
        };
        replies["activeProfile"] = [](cache_t& c, QVariant const& v)
        {
            if (!fill(c.activeProfile, v))
                return false;
            emit c.device->activeProfileUpdated(c.activeProfile.value);
            return true;
        };
        replies["profileDump"] = [](cache_t& c, QVariant const& v) { return c.takeProfileDump(v); };
    }

    static void receiver(replies_t& replies)
    {
        replies["productInfo"] = [](cache_t& c, QVariant const& v)
        {
            std::string serial, model;
            if (!readField(v, "serialNumber", serial) || !readField(v, "modelName", model))
                return false;
            c.serialNumber = serial;
            c.modelName = model;
            c.productInfoValid = true;
            emit c.device->productInfoUpdated(serial, model);
            return true;
        };
        replies["irdmStat"] = [](cache_t& c, QVariant const& v)
        {
            std::string imei, provisioning, modem;
            if (!readField(v, "imei", imei) || !readField(v, "provisioningStatus", provisioning) ||
                !readField(v, "modemStatus", modem))
                return false;
            emit c.device->irdmStatUpdated(imei, provisioning, modem);
            return true;
        };
        replies["lteModemStat"] = [](cache_t& c, QVariant const& v)
        {
            std::string rssi, network, modem;
            if (!readField(v, "rssi", rssi) || !readField(v, "networkStatus", network) ||
                !readField(v, "modemStatus", modem))
                return false;
            emit c.device->lteModemStatUpdated(rssi, network, modem);
            return true;
        };
    }

    static replies_t all()
    {
        replies_t replies;
        solution(replies);
        navigation(replies);
        antennas(replies);
        corrections(replies);
        differential(replies);
        outputs(replies);
        ports(replies);
        network(replies);
        firmware(replies);
        profiles(replies);
        receiver(replies);
        return replies;
    }
};

bool remoteMelvoxDevice_t::privateData_t::take(melvox_link::message_t const& message)
{
    static replyTable_t::replies_t const replies = replyTable_t::all();
    emit device->messageReceived(streamOf(message.group));
    replyTable_t::reply_t const reply = replies.value(message.group, 0);
    return reply && reply(*this, message.value);
}

} // namespace brel_common_qt
