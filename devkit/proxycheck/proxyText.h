#ifndef MELVOX_PROXYCHECK_PROXY_TEXT_H
#define MELVOX_PROXYCHECK_PROXY_TEXT_H

#include "brel_common_qt/remoteMelvoxDevice.h"

#include <QVariant>

#include <type_traits>

/** What the proxy holds and tells as short texts, so that one comparison shows every field. */
namespace melvox_proxycheck
{

inline QString text(bool flag)
{
    return flag ? "yes" : "no";
}

inline QString text(std::string const& text)
{
    return '"' + QString::fromUtf8(text.data(), int(text.size())) + '"';
}

inline QString text(QString const& text)
{
    return '"' + text + '"';
}

inline QString text(endian::f64_t number)
{
    return QString::number(double(number), 'g', 12);
}

inline QString text(endian::f32_t number)
{
    return QString::number(double(float(number)), 'g', 6);
}

inline QString text(endian::u32_t number)
{
    return QString::number(quint32(number));
}

inline QString text(endian::s32_t number)
{
    return QString::number(qint32(number));
}

template <typename number_t>
typename std::enable_if<std::is_floating_point<number_t>::value, QString>::type text(number_t number)
{
    return QString::number(double(number), 'g', sizeof number > 4 ? 12 : 6);
}

template <typename number_t>
typename std::enable_if<std::is_integral<number_t>::value, QString>::type text(number_t number)
{
    return QString::number(number);
}

template <typename enum_t> typename std::enable_if<std::is_enum<enum_t>::value, QString>::type text(enum_t value)
{
    return QString::number(int(value));
}

QString text(brel_common_qt::melvoxNtripPPP_t const& r);
QString text(brel_common_qt::meas_t const& r);
QString text(brel_common_qt::melvoxDynamicConfig_t const& r);
QString text(brel_common_qt::melvoxExtendedNavInfo_t const& r);
QString text(brel_common_qt::melvoxAntennaInfo_t const& r);
QString text(brel_common_qt::melvoxAntennaHeight_t const& r);
QString text(brel_common_qt::melvoxAntennaRemote_t const& r);
QString text(brel_common_qt::melvoxCorrectionSatStats_t const& r);
QString text(brel_common_qt::melvoxCorrectionSat_t const& r);
QString text(brel_common_qt::melvoxStarfireAlmSwitchPolicy_t const& r);
QString text(brel_common_qt::melvoxDiffConfig_t const& r);
QString text(brel_common_qt::melvoxBasePosition_t const& r);
QString text(brel_common_qt::melvoxMessageOutput_t const& r);
QString text(brel_common_qt::PortTxRxInfo const& r);
QString text(brel_common_qt::melvoxSerialPortConfig_t const& r);
QString text(brel_common_qt::melvoxVcomConfig_t const& r);
QString text(brel_common_qt::ethernetConfig_t const& r);
QString text(brel_common_qt::melvoxPpsConfig_t const& r);
QString text(brel_common_qt::melvoxFirmwareUpdateProgress_t const& r);

/** What a message carries: records by the names of their fields, and numbers alike whatever their type. */
QString text(QVariant const& value);

template <typename entry_t> QString text(QList<entry_t> const& entries)
{
    QStringList texts;
    for (int i = 0; i < entries.size(); ++i)
        texts << text(entries.at(i));
    return '[' + texts.join(", ") + ']';
}

template <typename key_t, typename entry_t> QString text(std::map<key_t, entry_t> const& map)
{
    QStringList texts;
    for (auto const& entry : map)
        texts << text(entry.first) + ": " + text(entry.second);
    return '{' + texts.join(", ") + '}';
}

template <typename entry_t> QString text(entry_t const* entry)
{
    return entry ? text(*entry) : QString("null");
}

inline QString joined()
{
    return QString();
}

/** The texts of all the values, each after a blank. */
template <typename value_t, typename... more_t> QString joined(value_t const& value, more_t const&... more)
{
    return ' ' + text(value) + joined(more...);
}

} // namespace melvox_proxycheck

#endif
