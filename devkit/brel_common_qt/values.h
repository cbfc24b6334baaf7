#ifndef MELVOX_KIT_VALUES_H
#define MELVOX_KIT_VALUES_H

#include "brel_common_qt/remoteMelvoxDevice.h"

#include <QVariant>

#include <limits>
#include <map>
#include <type_traits>

/** How each record becomes a message value and back.
 *
 *  Each record has one list of its fields, fields(), that serves both ways: what is written is what is read.
 *  Reading fails, and leaves the output as it was, when a field is missing or holds another kind of value. */
namespace melvox_kit
{

using namespace brel_common_qt;

bool read(QVariant const& value, bool& flag);
bool read(QVariant const& value, double& number);
bool read(QVariant const& value, float& number);
bool read(QVariant const& value, int& number);
bool read(QVariant const& value, unsigned int& number);
bool read(QVariant const& value, unsigned short& number);
bool read(QVariant const& value, unsigned char& number);
bool read(QVariant const& value, std::string& text);
bool read(QVariant const& value, QString& text);
bool read(QVariant const& value, QByteArray& bytes);
/** Positions in files: whole numbers that a floating number holds exactly. */
bool read(QVariant const& value, qint64& number);

std::string textFrom(QString const& text);

QVariant write(bool flag);
QVariant write(double number);
QVariant write(float number);
QVariant write(int number);
QVariant write(unsigned int number);
QVariant write(std::string const& text);

// Records for the groups of more than one value that the declarations have no record for.

struct correctionEnabled_t
{
    melvoxCorrectionType_t type;
    bool enabled;
};

struct correctionMaxAge_t
{
    melvoxCorrectionType_t type;
    unsigned int seconds;
};

struct antennaAlignment_t
{
    melvoxAntennaAlignmentMode_t mode;
    float angle;
};

/** Both antennas' records. */
template <typename record_t> struct antennaPair_t
{
    record_t of[MELVOX_NUM_ANTENNAS];
};

struct correctionSatStats_t
{
    unsigned int inUse;
    melvoxCorrectionSatStatsMap_t sats;
};

struct correctionSatSelection_t
{
    bool automatic;
    int id;
};

struct userCorrectionSat_t
{
    bool defined;
    unsigned int id;
    float frequency;
};

struct ggaSetting_t
{
    melvoxGgaMode_t mode;
    ggaQuality_t quality;
    melvoxGgaCorrectionsScaling_t scaling;
};

struct ethernetSetting_t
{
    bool dhcp;
    ethernetConfig_t config;
};

struct productInfo_t
{
    std::string serialNumber;
    std::string modelName;
};

struct webUiUploadState_t
{
    melvoxWebUiUploadState_t state;
    std::string description;
};

template <typename list_t> void fields(list_t& f, correctionEnabled_t& r)
{
    f("type", r.type);
    f("enabled", r.enabled);
}

template <typename list_t> void fields(list_t& f, correctionMaxAge_t& r)
{
    f("type", r.type);
    f("seconds", r.seconds);
}

template <typename list_t> void fields(list_t& f, melvoxNtripPPP_t& r)
{
    f("mode", r.mode);
    f("protocol", r.protocol);
}

template <typename list_t> void fields(list_t& f, meas_t& r)
{
    f("name", r.name);
    f("use", r.use);
}

template <typename list_t> void fields(list_t& f, melvoxDynamicConfig_t& r)
{
    f("autoMode", r.autoMode);
    f("mode", r.mode);
    f("velocitySmoothing", r.velocitySmoothing);
}

template <typename list_t> void fields(list_t& f, melvoxExtendedNavInfo_t& r)
{
    f("gpsWeek", r.gpsWeek);
    f("gpsTime", r.gpsTime);
    f("navValid", r.navValid);
    f("datum", r.datum);
    f("geoid", r.geoid);
    f("navMode", r.navMode);
    f("navSource", r.navSource);
    f("stationId", r.stationId);
    f("failureCode", r.failureCode);
    f("setDeltaNorth", r.setDeltaNorth);
    f("setDeltaEast", r.setDeltaEast);
    f("setDeltaUp", r.setDeltaUp);
    f("latError", r.latError);
    f("lonError", r.lonError);
    f("heightError", r.heightError);
    f("velocityNorth", r.velocityNorth);
    f("velocityEast", r.velocityEast);
    f("velocityUp", r.velocityUp);
}

template <typename list_t> void fields(list_t& f, antennaAlignment_t& r)
{
    f("mode", r.mode);
    f("angle", r.angle);
}

template <typename list_t> void fields(list_t& f, melvoxAntennaInfo_t& r)
{
    f("name", r.name);
    f("serial", r.serial);
    f("id", r.id);
}

template <typename list_t> void fields(list_t& f, melvoxAntennaHeight_t& r)
{
    f("useAdjustments", r.useAdjustments);
    f("height", r.height);
    f("slantRange", r.slantRange);
    f("radius", r.radius);
}

template <typename list_t> void fields(list_t& f, melvoxAntennaRemote_t& r)
{
    f("automatic", r.automatic);
    f("name", r.name);
}

template <typename list_t> void fields(list_t& f, melvoxCorrectionSatStats_t& r)
{
    f("id", r.id);
    f("beam", r.beam);
    f("status", r.status);
    f("strength", r.strength);
    f("agcVoltage", r.agcVoltage);
    f("goodPercent", r.goodPercent);
    f("idlePercent", r.idlePercent);
    f("resyncCount", r.resyncCount);
    f("frequencyOffset", r.frequencyOffset);
}

template <typename list_t> void fields(list_t& f, correctionSatStats_t& r)
{
    f("inUse", r.inUse);
    f("sats", r.sats);
}

template <typename list_t> void fields(list_t& f, melvoxCorrectionSat_t& r)
{
    f("id", r.id);
    f("longitude", r.longitude);
    f("lookAngle", r.lookAngle);
    f("net1", r.net1);
    f("net2", r.net2);
    f("flagU", r.flagU);
    f("flagA", r.flagA);
    f("flagC", r.flagC);
}

template <typename list_t> void fields(list_t& f, correctionSatSelection_t& r)
{
    f("auto", r.automatic);
    f("id", r.id);
}

template <typename list_t> void fields(list_t& f, userCorrectionSat_t& r)
{
    f("defined", r.defined);
    f("id", r.id);
    f("frequency", r.frequency);
}

template <typename list_t> void fields(list_t& f, melvoxStarfireAlmSwitchPolicy_t& r)
{
    f("mode", r.mode);
    f("hours", r.hours);
    f("minutes", r.minutes);
}

template <typename list_t> void fields(list_t& f, melvoxMrvAlmanacInfo_t& r)
{
    f("updateTime", r.updateTime);
}

template <typename list_t> void fields(list_t& f, melvoxDiffConfig_t& r)
{
    f("mode", r.mode);
    f("stationId", r.stationId);
    f("dynamic", r.dynamic);
    f("port", r.port);
    f("portSet", r.portSet);
}

template <typename list_t> void fields(list_t& f, melvoxBasePosition_t& r)
{
    f("latitude", r.latitude);
    f("longitude", r.longitude);
    f("height", r.height);
}

template <typename list_t> void fields(list_t& f, melvoxMessageOutput_t& r)
{
    f("method", r.method);
    f("interval", r.interval);
}

template <typename list_t> void fields(list_t& f, PortTxRxInfo& r)
{
    f("txValid", r.txValid);
    f("rxValid", r.rxValid);
    f("txUsage", r.txUsage);
    f("rxUsage", r.rxUsage);
}

template <typename list_t> void fields(list_t& f, ggaSetting_t& r)
{
    f("mode", r.mode);
    f("quality", r.quality);
    f("scaling", r.scaling);
}

template <typename list_t> void fields(list_t& f, melvoxSerialPortConfig_t& r)
{
    f("baud", r.baud);
    f("charSize", r.charSize);
    f("parity", r.parity);
    f("stopBits", r.stopBits);
}

template <typename list_t> void fields(list_t& f, melvoxVcomConfig_t& r)
{
    f("enabled", r.enabled);
    f("mode", r.mode);
    f("remoteAddress", r.remoteAddress);
    f("remotePort", r.remotePort);
    f("localPort", r.localPort);
}

template <typename list_t> void fields(list_t& f, ethernetConfig_t& r)
{
    f("ipAddress", r.ipAddress);
    f("netmask", r.netmask);
    f("gateway", r.gateway);
    f("dns1", r.dns1);
    f("dns2", r.dns2);
}

// One flat map.
template <typename list_t> void fields(list_t& f, ethernetSetting_t& r)
{
    f("dhcp", r.dhcp);
    fields(f, r.config);
}

template <typename list_t> void fields(list_t& f, webUiUploadState_t& r)
{
    f("state", r.state);
    f("description", r.description);
}

template <typename list_t> void fields(list_t& f, melvoxPpsConfig_t& r)
{
    f("polarity", r.polarity);
    f("width", r.width);
    f("interval", r.interval);
    f("signalDelay", r.signalDelay);
    f("chipDelay", r.chipDelay);
}

template <typename list_t> void fields(list_t& f, productInfo_t& r)
{
    f("serialNumber", r.serialNumber);
    f("modelName", r.modelName);
}

template <typename list_t> void fields(list_t& f, melvoxFirmwareUpdateProgress_t& r)
{
    f("component", r.component);
    f("status", r.status);
}

/** Enumerations travel as their numbers. */
template <typename enum_t>
typename std::enable_if<std::is_enum<enum_t>::value, bool>::type read(QVariant const& value, enum_t& out)
{
    int number = 0;
    if (!read(value, number))
        return false;
    out = enum_t(number);
    return true;
}

template <typename enum_t> typename std::enable_if<std::is_enum<enum_t>::value, QVariant>::type write(enum_t value)
{
    return write(int(value));
}

template <typename record_t> bool read(QVariant const& value, QList<record_t>& records);
template <typename record_t> bool read(QVariant const& value, antennaPair_t<record_t>& pair);
template <typename record_t> bool read(QVariant const& value, std::map<unsigned short, record_t>& byId);

/** Takes fields out of a map. */
class fieldReader_t
{
public:
    explicit fieldReader_t(QVariant const& value);

    template <typename field_t> void operator()(char const* name, field_t& field)
    {
        m_good = m_good && m_map.contains(name) && read(m_map.value(name), field);
    }

    bool good() const { return m_good; }

private:
    QVariantMap m_map;
    bool m_good;
};

/** Puts fields into a map. */
class fieldWriter_t
{
public:
    template <typename field_t> void operator()(char const* name, field_t& field) { m_map.insert(name, write(field)); }

    QVariantMap const& map() const { return m_map; }

private:
    QVariantMap m_map;
};

template <typename record_t>
typename std::enable_if<std::is_class<record_t>::value, bool>::type read(QVariant const& value, record_t& record)
{
    fieldReader_t reader(value);
    record_t out = record_t();
    fields(reader, out);
    if (!reader.good())
        return false;
    record = out;
    return true;
}

template <typename record_t> bool read(QVariant const& value, QList<record_t>& records)
{
    if (value.userType() != QMetaType::QVariantList)
        return false;
    QList<record_t> out;
    QVariantList const values = value.toList();
    for (int i = 0; i < values.size(); ++i)
    {
        record_t record;
        if (!read(values.at(i), record))
            return false;
        out << record;
    }
    records = out;
    return true;
}

template <typename record_t> bool read(QVariant const& value, antennaPair_t<record_t>& pair)
{
    QList<record_t> records;
    if (!read(value, records) || records.size() != MELVOX_NUM_ANTENNAS)
        return false;
    for (int i = 0; i < MELVOX_NUM_ANTENNAS; ++i)
        pair.of[i] = records.at(i);
    return true;
}

/** A list of records as a map by their ids. */
template <typename record_t> bool read(QVariant const& value, std::map<unsigned short, record_t>& byId)
{
    QList<record_t> records;
    if (!read(value, records))
        return false;
    std::map<unsigned short, record_t> found;
    for (int i = 0; i < records.size(); ++i)
    {
        if (records.at(i).id > std::numeric_limits<unsigned short>::max())
            return false;
        found[static_cast<unsigned short>(records.at(i).id)] = records.at(i);
    }
    byId.swap(found);
    return true;
}

inline void readEach(fieldReader_t&)
{
}

template <typename field_t, typename... more_t>
void readEach(fieldReader_t& reader, char const* name, field_t& field, more_t&&... more)
{
    reader(name, field);
    readEach(reader, more...);
}

/** Fields of a map that make no record: readFields(value, "name", name, "modified", modified). When it fails, some may
 *  have been read. */
template <typename... field_t> bool readFields(QVariant const& value, field_t&&... fields)
{
    fieldReader_t reader(value);
    readEach(reader, fields...);
    return reader.good();
}

template <typename record_t> QVariantMap writeRecord(record_t record)
{
    fieldWriter_t writer;
    fields(writer, record);
    return writer.map();
}

} // namespace melvox_kit

#endif
