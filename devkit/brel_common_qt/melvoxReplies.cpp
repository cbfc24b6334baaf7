#include "remoteMelvoxDevice_p.h"

#include <QHash>

using namespace melvox_kit;

namespace brel_common_qt
{

namespace
{

bool isPort(melvoxPort_t port)
{
    return port >= MELVOX_PORT_FIRST && port < MELVOX_NUM_PORTS;
}

bool isCorrectionType(melvoxCorrectionType_t type)
{
    return type >= MELVOX_CORR_TYPE_RTCM19 && type <= MELVOX_CORR_TYPE_RTG;
}

bool isEthernetSource(melvoxEthernetConfigSource_t source)
{
    return source >= MELVOX_ETH_CFG_SOURCE_CABLE && source < MELVOX_NUM_ETH_CFG_SOURCES;
}

/** A record, and the port that it is about. */
template <typename record_t> bool readAtPort(QVariant const& value, melvoxPort_t& port, record_t& record)
{
    return readFields(value, "port", port) && isPort(port) && read(value, record);
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
 *  to its private record.
 *
 *  What a signal carries is never the cache itself: a slot that shows a dialog and waits lets the next message in,
 *  and the slots after it must still find what they were called with. */
struct remoteMelvoxDevice_t::privateData_t::replyTable_t
{
    typedef remoteMelvoxDevice_t device_t;
    typedef privateData_t cache_t;
    typedef std::function<bool(cache_t& cache, QVariant const& value)> reply_t;
    typedef QHash<QString, reply_t> replies_t;

    /** A group that is kept as it comes and told of with its value. */
    template <typename value_t, typename argument_t>
    static reply_t kept(cached_t<value_t> cache_t::*cached, void (device_t::*told)(argument_t))
    {
        return [cached, told](cache_t& c, QVariant const& v)
        {
            value_t value = value_t();
            if (!read(v, value))
                return false;
            (c.*cached).set(value);
            (c.device->*told)(value);
            return true;
        };
    }

    /** A group that is kept as it comes and told of without its value. */
    template <typename value_t> static reply_t kept(cached_t<value_t> cache_t::*cached, void (device_t::*told)())
    {
        return [cached, told](cache_t& c, QVariant const& v)
        {
            value_t value = value_t();
            if (!read(v, value))
                return false;
            (c.*cached).set(value);
            (c.device->*told)();
            return true;
        };
    }

    /** The same for a group of a single field. */
    template <typename value_t>
    static reply_t kept(char const* field, cached_t<value_t> cache_t::*cached, void (device_t::*told)())
    {
        return [field, cached, told](cache_t& c, QVariant const& v)
        {
            value_t value = value_t();
            if (!readFields(v, field, value))
                return false;
            (c.*cached).set(value);
            (c.device->*told)();
            return true;
        };
    }

    /** A number that is told of and not kept. */
    static reply_t passedOn(void (device_t::*told)(double))
    {
        return [told](cache_t& c, QVariant const& v)
        {
            double number = 0;
            if (!read(v, number))
                return false;
            (c.device->*told)(number);
            return true;
        };
    }

    /** Three texts that are told of and not kept. */
    static reply_t passedOn(char const* first, char const* second, char const* third,
                            void (device_t::*told)(std::string const&, std::string const&, std::string const&))
    {
        return [first, second, third, told](cache_t& c, QVariant const& v)
        {
            std::string firstText, secondText, thirdText;
            if (!readFields(v, first, firstText, second, secondText, third, thirdText))
                return false;
            (c.device->*told)(firstText, secondText, thirdText);
            return true;
        };
    }

    static void solution(replies_t& replies)
    {
        replies["elevationMask"] = kept(&cache_t::elevationMask, &device_t::elevationMaskUpdated);
        replies["pdopLimit"] = kept(&cache_t::pdopLimit, &device_t::pdopLimitUpdated);
        replies["geoidalModel"] = kept(&cache_t::geoidalModel, &device_t::geoidalModelUpdated);
        replies["correctionEnabled"] = [](cache_t& c, QVariant const& v)
        {
            correctionEnabled_t value;
            if (!read(v, value) || !isCorrectionType(value.type))
                return false;
            c.correctionEnabled[value.type] = value.enabled;
            emit c.device->correctionEnabledUpdated(value.type, value.enabled);
            return true;
        };
        replies["correctionMaxAge"] = [](cache_t& c, QVariant const& v)
        {
            correctionMaxAge_t value;
            if (!read(v, value) || !isCorrectionType(value.type))
                return false;
            c.correctionMaxAge[value.type] = value.seconds;
            emit c.device->correctionMaxAgeUpdated(value.type, value.seconds);
            return true;
        };
        replies["ntripPPP"] = kept(&cache_t::ntripPPP, &device_t::ntripPPPModeUpdated);
    }

    static void navigation(replies_t& replies)
    {
        replies["measUse"] = kept(&cache_t::measUse, &device_t::measUseUpdated);
        replies["dynamicConfig"] = kept(&cache_t::dynamicConfig, &device_t::dynamicConfigUpdated);
        replies["extendedNavInfo"] = [](cache_t& c, QVariant const& v)
        {
            bool valid = false;
            if (!readFields(v, "valid", valid) || (valid && !read(v, c.extendedNavInfo.value)))
                return false;
            c.extendedNavInfo.valid = valid;
            emit c.device->extendedNavInfoUpdated();
            return true;
        };
        replies["vhdInfo"] = [](cache_t& c, QVariant const& v)
        {
            double heading, attitude, baseline, rms;
            if (!readFields(v, "rawHeading", heading, "attitude", attitude, "baseline", baseline, "headingRms", rms))
                return false;
            emit c.device->vhdInfoUpdated(heading, attitude, baseline, rms);
            return true;
        };
    }

    static void antennas(replies_t& replies)
    {
        replies["antennaAlignment"] = [](cache_t& c, QVariant const& v)
        {
            antennaAlignment_t alignment;
            if (!read(v, alignment))
                return false;
            c.antennaAlignment.set(alignment);
            emit c.device->antennaAlignmentModeUpdated(alignment.mode);
            emit c.device->antennaAlignmentUserAngleUpdated(alignment.angle);
            return true;
        };
        replies["antennaInfo"] = kept(&cache_t::antennaInfo, &device_t::antennaInfosUpdated);
        replies["antennaHeight"] = kept(&cache_t::antennaHeight, &device_t::antennaHeightsUpdated);
        replies["antennaRemote"] = kept(&cache_t::antennaRemote, &device_t::antennaRemoteUpdated);
        replies["antennaDualMode"] = kept(&cache_t::antennaDualMode, &device_t::antennaDualModeUpdated);
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
            QString const name = v.toString();
            c.antennaList << name;
            emit c.device->antennaNameAdded(name);
            return true;
        };
    }

    static void corrections(replies_t& replies)
    {
        replies["correctionSelection"] = kept(&cache_t::correctionSelection, &device_t::correctionSelectionUpdated);
        replies["netPriority"] = kept(&cache_t::netPriority, &device_t::netPriorityUpdated);
        replies["rtgUseMode"] = kept(&cache_t::rtgUseMode, &device_t::rtgUseModeUpdated);
        replies["correctionSats"] = kept(&cache_t::correctionSats, &device_t::correctionSatsUpdated);
        replies["correctionSatStats"] = kept(&cache_t::correctionSatStats, &device_t::correctionSatStatsUpdated);
        replies["correctionSatSelection"] = [](cache_t& c, QVariant const& v)
        {
            correctionSatSelection_t selection;
            if (!read(v, selection))
                return false;
            c.correctionSatSelection.set(selection);
            if (selection.automatic)
                emit c.device->correctionSatAutoSelected();
            else
                emit c.device->correctionSatSelected(selection.id);
            return true;
        };
        replies["userCorrectionSat"] = kept(&cache_t::userCorrectionSat, &device_t::userCorrectionSatUpdated);
        replies["mrvAlmanacInfo"] = kept(&cache_t::mrvAlmanacInfo, &device_t::mrvAlmanacInfoUpdated);
        replies["starfireAlmStatus"] =
            kept("newReady", &cache_t::newStarfireAlmReady, &device_t::starfireAlmStatusUpdated);
        replies["starfireAlmSwitchPolicy"] =
            kept(&cache_t::starfireAlmSwitchPolicy, &device_t::starfireAlmSwitchPolicyUpdated);
    }

    static void differential(replies_t& replies)
    {
        replies["diffConfig"] = kept(&cache_t::diffConfig, &device_t::diffConfigUpdated);
        replies["rtcmVersion"] = kept(&cache_t::rtcmVersion, &device_t::rtcmVersionUpdated);
        replies["baseName"] = kept(&cache_t::baseName, &device_t::baseNameUpdated);
        replies["basePosition"] = kept(&cache_t::basePosition, &device_t::basePositionUpdated);
    }

    static void outputs(replies_t& replies)
    {
        replies["activePort"] = kept(&cache_t::activePort, &device_t::activePortUpdated);
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
            if (!readAtPort(v, port, output) || !readFields(v, "message", name))
                return false;
            c.outputs[port][name] = output;
            emit c.device->outputConfigUpdated(port, name, output);
            return true;
        };
        replies["portTxRxInfo"] = [](cache_t& c, QVariant const& v)
        {
            melvoxPort_t port = melvoxPort_t();
            PortTxRxInfo info;
            if (!readAtPort(v, port, info))
                return false;
            c.portTxRxInfo[port] = info;
            emit c.device->portTxRxInfoUpdated();
            return true;
        };
        replies["ggaMode"] = kept(&cache_t::ggaMode, &device_t::ggaModeUpdated);
        replies["talkerIdMode"] = kept(&cache_t::talkerIdMode, &device_t::talkerIdModeUpdated);
    }

    static void ports(replies_t& replies)
    {
        replies["serialConfig"] = [](cache_t& c, QVariant const& v)
        {
            melvoxPort_t port = melvoxPort_t();
            melvoxSerialPortConfig_t config = melvoxSerialPortConfig_t();
            if (!readAtPort(v, port, config))
                return false;
            emit c.device->serialConfigUpdated(port, config);
            return true;
        };
        replies["serialRs232Mode"] = [](cache_t& c, QVariant const& v)
        {
            melvoxPort_t port = melvoxPort_t();
            bool rs232 = false;
            if (!readFields(v, "port", port, "rs232", rs232) || !isPort(port))
                return false;
            emit c.device->serialRs232ModeUpdated(port, rs232);
            return true;
        };
        replies["vcomConfig"] = [](cache_t& c, QVariant const& v)
        {
            melvoxPort_t port = melvoxPort_t();
            melvoxVcomConfig_t config = melvoxVcomConfig_t();
            if (!readAtPort(v, port, config))
                return false;
            emit c.device->vcomConfigUpdated(port, config);
            return true;
        };
        replies["usbMode"] = kept(&cache_t::usbMode, &device_t::usbModeUpdated);
        replies["badBaud"] = [](cache_t& c, QVariant const&)
        {
            emit c.device->badBaudDetected();
            return true;
        };
        replies["ppsConfig"] = kept(&cache_t::ppsConfig, &device_t::ppsConfigUpdated);
    }

    static void network(replies_t& replies)
    {
        replies["ethernetConfig"] = [](cache_t& c, QVariant const& v)
        {
            melvoxEthernetConfigSource_t source = melvoxEthernetConfigSource_t();
            ethernetSetting_t setting;
            if (!readFields(v, "source", source) || !isEthernetSource(source) || !read(v, setting))
                return false;
            c.ethernetConfig[source] = setting;
            emit c.device->ethernetConfigUpdated(setting.dhcp, setting.config);
            return true;
        };
        replies["webControl"] = kept("enabled", &cache_t::webUiEnabled, &device_t::webControlUpdated);
        replies["webUiUploadState"] = [](cache_t& c, QVariant const& v)
        {
            webUiUploadState_t state;
            if (!read(v, state))
                return false;
            c.webUiUploadState.set(state);
            if (state.state != MELVOX_WEB_UI_UPLOAD_IN_PROGRESS)
                c.webUiFiles.release();
            emit c.device->webUiUploadStateUpdated();
            return true;
        };
        replies["webUiUploadPercent"] = passedOn(&device_t::webUiUploadPercentUpdated);
    }

    static void firmware(replies_t& replies)
    {
        replies["firmwareVersion"] = [](cache_t& c, QVariant const& v)
        {
            std::string component, version;
            if (!readFields(v, "component", component, "version", version))
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
            if (!readFields(v, "state", state, "description", description))
                return false;
            c.firmwareUpdating = state == FIRMWARE_UPDATE_IN_PROGRESS;
            if (!c.firmwareUpdating)
                c.firmwareFiles.release();
            emit c.device->firmwareUpdateStateUpdated(state, description);
            return true;
        };
        replies["firmwareUpdatePercent"] = passedOn(&device_t::firmwareUpdateProgressUpdated);
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
            if (!readFields(v, "name", name, "modified", modified))
                return false;
            emit c.device->profileUpdated(name, modified);
            return true;
        };
        replies["activeProfile"] = kept(&cache_t::activeProfile, &device_t::activeProfileUpdated);
        replies["profileDump"] = [](cache_t& c, QVariant const& v) { return c.takeProfileDump(v); };
    }

    static void receiver(replies_t& replies)
    {
        replies["productInfo"] = [](cache_t& c, QVariant const& v)
        {
            productInfo_t info;
            if (!read(v, info))
                return false;
            c.productInfo.set(info);
            emit c.device->productInfoUpdated(info.serialNumber, info.modelName);
            return true;
        };
        replies["irdmStat"] = passedOn("imei", "provisioningStatus", "modemStatus", &device_t::irdmStatUpdated);
        replies["lteModemStat"] = passedOn("rssi", "networkStatus", "modemStatus", &device_t::lteModemStatUpdated);
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
    replyTable_t::reply_t const reply = replies.value(message.group);
    return reply && reply(*this, message.value);
}

} // namespace brel_common_qt
