#include "receiver/rtcm.h"

#include <algorithm>
#include <cmath>

namespace melvox_receiver
{

namespace
{

unsigned int const PREAMBLE = 0x66;
double const ZCOUNT_UNIT = 600.0; // milliseconds
qint64 const GPS_EPOCH = 315964800000;
qint64 const LEAP_SECONDS = 18000;
qint64 const HOUR = 3600000;

int const MOST_SATELLITES = 12; // 5 words for 3 of them, 31 words at most
int const PARTIAL_SATELLITES = 3;
int const LONGEST_TEXT = 90;

// WGS-84.
double const SEMI_MAJOR = 6378137.0;
double const ECCENTRICITY_SQUARED = 6.69437999014e-3;

/** Bits, the most significant one first. */
class bits_t
{
public:
    void add(qint64 value, int width)
    {
        for (int i = width - 1; i >= 0; --i)
            m_bits.append((value >> i) & 1);
    }

    /** Up to whole words of 24 bits, with ones and zeros in turn. */
    void fill()
    {
        for (bool one = true; m_bits.size() % 24 != 0; one = !one)
            m_bits.append(one);
    }

    QList<unsigned int> words() const
    {
        QList<unsigned int> words;
        for (int i = 0; i < m_bits.size(); ++i)
        {
            if (i % 24 == 0)
                words << 0u;
            words.last() = words.last() << 1 | (m_bits.at(i) ? 1u : 0u);
        }
        return words;
    }

private:
    QList<bool> m_bits;
};

unsigned int oddOnes(unsigned int value)
{
    unsigned int odd = 0;
    for (; value; value &= value - 1)
        odd ^= 1;
    return odd;
}

/** 24 bits of data with the parity of a satellite's navigation message. `last` is the word before. */
unsigned int withParity(unsigned int data, unsigned int last)
{
    unsigned int const masks[] = {0xEC7CD2, 0x763E69, 0xBB1F34, 0x5D8F9A, 0xAEC7CD, 0x2DEA27};
    unsigned int const bit29 = last >> 1 & 1;
    unsigned int const bit30 = last & 1;
    unsigned int const before[] = {bit29, bit30, bit29, bit30, bit30, bit29};
    unsigned int parity = 0;
    for (int i = 0; i < 6; ++i)
        parity = parity << 1 | (oddOnes(data & masks[i]) ^ before[i]);
    return (bit30 ? ~data & 0xFFFFFF : data) << 6 | parity;
}

/** Serial lines send the lowest bit first, so the bits of each byte stand in reverse. */
QByteArray toLine(QList<unsigned int> const& words)
{
    QByteArray bytes;
    unsigned int last = 0;
    for (unsigned int data : words)
    {
        last = withParity(data, last);
        for (int shift = 24; shift >= 0; shift -= 6)
        {
            unsigned int reversed = 0;
            for (int i = 0; i < 6; ++i)
                reversed = reversed << 1 | (last >> (shift + i) & 1);
            bytes += char(0x40 | reversed);
        }
    }
    return bytes;
}

/** What the base sees of each satellite's range, in metres: slow waves of its own. */
void addCorrections(bits_t& bits, fix_t const& fix, constellation_t constellation, int most)
{
    int count = 0;
    for (satellite_t const& satellite : fix.used)
    {
        if (satellite.constellation != constellation)
            continue;
        if (count++ == most)
            return;
        double const phase = double(fix.at) / 300000.0 + satellite.number;
        bits.add(0, 1); // fine scale: 0.02 m and 0.002 m/s
        bits.add(0, 2);
        bits.add(satellite.number % 32, 5);
        bits.add(std::llround(8.0 * std::sin(phase) / 0.02), 16);
        bits.add(std::llround(8.0 / 300.0 * std::cos(phase) / 0.002), 8);
        bits.add(satellite.number, 8);
    }
}

void addReference(bits_t& bits, QVariantMap const& base)
{
    double const latitude = base.value("latitude").toDouble();
    double const longitude = base.value("longitude").toDouble();
    double const height = base.value("height").toDouble();
    double const sine = std::sin(latitude);
    double const radius = SEMI_MAJOR / std::sqrt(1.0 - ECCENTRICITY_SQUARED * sine * sine);
    double const across = (radius + height) * std::cos(latitude);
    bits.add(std::llround(across * std::cos(longitude) * 100.0), 32);
    bits.add(std::llround(across * std::sin(longitude) * 100.0), 32);
    bits.add(std::llround((radius * (1.0 - ECCENTRICITY_SQUARED) + height) * sine * 100.0), 32);
}

bool addBody(bits_t& bits, int type, fix_t const& fix, settings_t const& settings)
{
    switch (type)
    {
    case 1:
        addCorrections(bits, fix, GPS, MOST_SATELLITES);
        return true;
    case 9:
        addCorrections(bits, fix, GPS, PARTIAL_SATELLITES);
        return true;
    case 31:
        addCorrections(bits, fix, GLONASS, MOST_SATELLITES);
        return true;
    case 34:
        addCorrections(bits, fix, GLONASS, PARTIAL_SATELLITES);
        return true;
    case 3:
        addReference(bits, settings.value("basePosition").toMap());
        return true;
    case 16:
        for (char c : settings.value("baseName").toString().toLatin1().left(LONGEST_TEXT))
            bits.add(static_cast<unsigned char>(c), 8);
        return true;
    default:
        return false;
    }
}

} // namespace

QByteArray rtcmFrame(int type, fix_t const& fix, settings_t const& settings, unsigned int sequence)
{
    QVariantMap const config = settings.value("diffConfig").toMap();
    // Only a base has corrections to give.
    if (config.value("mode").toInt() == 0)
        return QByteArray();
    bits_t body;
    if (!addBody(body, type, fix, settings))
        return QByteArray();
    body.fill();
    QList<unsigned int> const words = body.words();
    if (words.isEmpty())
        return QByteArray();

    qint64 const gpsTime = fix.at - GPS_EPOCH + LEAP_SECONDS;
    bits_t header;
    header.add(PREAMBLE, 8);
    header.add(type, 6);
    header.add(config.value("stationId").toInt(), 10);
    header.add(qint64(double(gpsTime % HOUR) / ZCOUNT_UNIT), 13);
    header.add(sequence % 8, 3);
    header.add(words.size(), 5);
    header.add(0, 3);
    return toLine(header.words() + words);
}

} // namespace melvox_receiver
