#include "proxycheck/proxyText.h"

using namespace brel_common_qt;

namespace melvox_proxycheck
{

namespace
{

template <typename... field_t> QString record(field_t const&... fields)
{
    return '(' + joined(fields...).mid(1) + ')';
}

QString fieldTexts(QVariantMap const& map)
{
    QStringList texts;
    for (QVariantMap::const_iterator it = map.begin(); it != map.end(); ++it)
        texts << it.key() + '=' + text(it.value());
    return '(' + texts.join(" ") + ')';
}

} // namespace

QString text(QVariant const& value)
{
    switch (value.userType())
    {
    case QMetaType::QVariantMap:
        return fieldTexts(value.toMap());
    case QMetaType::QVariantList:
        return text(value.toList());
    case QMetaType::QString:
        return text(value.toString());
    case QMetaType::Bool:
        return text(value.toBool());
    case QMetaType::QByteArray:
        return QString::fromLatin1(value.toByteArray().toHex());
    default:
        return value.isValid() ? text(value.toDouble()) : QString();
    }
}

QString text(melvoxNtripPPP_t const& r)
{
    return record(r.mode, r.protocol);
}

QString text(meas_t const& r)
{
    return record(r.name, r.use);
}

QString text(melvoxDynamicConfig_t const& r)
{
    return record(r.autoMode, r.mode, r.velocitySmoothing);
}

QString text(melvoxExtendedNavInfo_t const& r)
{
    return record(r.gpsWeek, r.gpsTime, r.navValid, r.datum, r.geoid, r.navMode, r.navSource, r.stationId,
                  r.failureCode, r.setDeltaNorth, r.setDeltaEast, r.setDeltaUp, r.latError, r.lonError, r.heightError,
                  r.velocityNorth, r.velocityEast, r.velocityUp);
}

QString text(melvoxAntennaInfo_t const& r)
{
    return record(r.name, r.serial, r.id);
}

QString text(melvoxAntennaHeight_t const& r)
{
    return record(r.useAdjustments, r.height, r.slantRange, r.radius);
}

QString text(melvoxAntennaRemote_t const& r)
{
    return record(r.automatic, r.name);
}

QString text(melvoxCorrectionSatStats_t const& r)
{
    return record(r.id, r.beam, r.status, r.strength, r.agcVoltage, r.goodPercent, r.idlePercent, r.resyncCount,
                  r.frequencyOffset);
}

QString text(melvoxCorrectionSat_t const& r)
{
    return record(r.id, r.longitude, r.lookAngle, r.net1, r.net2, r.flagU, r.flagA, r.flagC);
}

QString text(melvoxStarfireAlmSwitchPolicy_t const& r)
{
    return record(r.mode, r.hours, r.minutes);
}

QString text(melvoxDiffConfig_t const& r)
{
    return record(r.mode, r.stationId, r.dynamic, r.port, r.portSet);
}

QString text(melvoxBasePosition_t const& r)
{
    return record(r.latitude, r.longitude, r.height);
}

QString text(melvoxMessageOutput_t const& r)
{
    return record(r.method, r.interval);
}

QString text(PortTxRxInfo const& r)
{
    return record(r.txValid, r.rxValid, r.txUsage, r.rxUsage);
}

QString text(melvoxSerialPortConfig_t const& r)
{
    return record(r.baud, r.charSize, r.parity, r.stopBits);
}

QString text(melvoxVcomConfig_t const& r)
{
    return record(r.enabled, r.mode, r.remoteAddress, r.remotePort, r.localPort);
}

QString text(ethernetConfig_t const& r)
{
    return record(r.ipAddress, r.netmask, r.gateway, r.dns1, r.dns2);
}

QString text(melvoxPpsConfig_t const& r)
{
    return record(r.polarity, r.width, r.interval, r.signalDelay, r.chipDelay);
}

QString text(melvoxFirmwareUpdateProgress_t const& r)
{
    return record(r.component, r.status);
}

} // namespace melvox_proxycheck
