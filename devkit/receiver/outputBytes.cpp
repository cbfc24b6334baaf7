#include "receiver/outputBytes.h"

#include "receiver/nmea.h"
#include "receiver/rtcm.h"

#include <QDataStream>
#include <QIODevice>

namespace melvox_receiver
{

namespace
{

char const PVT_START[] = {'P', 'V', 1, 'B'};

/** Position, velocity and time as this simulation packs them: the start above, the length of what follows up to the
 *  checksum, milliseconds since 1970, degrees, metres, metres per second, mode, number of satellites; then the sum of all
 *  bytes before it. Numbers have their lowest byte first. */
QByteArray pvt(fix_t const& fix)
{
    QByteArray body;
    QDataStream stream(&body, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
    stream << fix.at << fix.place.latitude << fix.place.longitude << fix.place.height;
    stream.setFloatingPointPrecision(QDataStream::SinglePrecision);
    stream << float(fix.motion.north) << float(fix.motion.east) << float(fix.motion.up);
    stream << quint8(fix.mode) << quint8(fix.used.size());

    QByteArray bytes(PVT_START, sizeof PVT_START);
    bytes += char(body.size() & 0xFF);
    bytes += char(body.size() >> 8);
    bytes += body;
    quint16 sum = 0;
    for (char c : bytes)
        sum = quint16(sum + static_cast<unsigned char>(c));
    bytes += char(sum & 0xFF);
    bytes += char(sum >> 8);
    return bytes;
}

} // namespace

QByteArrayList outputBytes(QString const& message, fix_t const& fix, settings_t const& settings, unsigned int sequence)
{
    if (message.startsWith("NMEA"))
        return nmeaSentences(message.mid(4).toLatin1(), fix, nmeaOptions(settings));
    if (message == "PVT1B")
        return {pvt(fix)};
    if (!message.startsWith("RTCM"))
        return {};
    QByteArray const frame = rtcmFrame(message.mid(4).toInt(), fix, settings, sequence);
    return frame.isEmpty() ? QByteArrayList() : QByteArrayList{frame};
}

} // namespace melvox_receiver
