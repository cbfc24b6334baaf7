#ifndef MELVOX_RECEIVER_SKY_H
#define MELVOX_RECEIVER_SKY_H

#include <QList>
#include <QtGlobal>

namespace melvox_receiver
{

enum constellation_t
{
    GPS,
    GLONASS,
    GALILEO,
    BEIDOU,
    NUM_CONSTELLATIONS
};

struct satellite_t
{
    constellation_t constellation;
    int number;    //!< as sentences number it within its constellation
    int elevation; //!< degrees above the horizon
    int azimuth;   //!< degrees from north
    int signal;    //!< C/N0 in dB-Hz
};

/** The satellites above the horizon, the same ones whenever the simulated clock shows this time. */
QList<satellite_t> satellitesInView(qint64 at);

} // namespace melvox_receiver

#endif
