#include "receiver/sky.h"

#include <cmath>

namespace melvox_receiver
{

namespace
{

double const FULL_TURN = 2.0 * std::acos(-1.0);

int const SATELLITES_ROUND = 18; // of one constellation; at any time about half of them are up
int const HIGHEST = 86;          // degrees
int const WEAKEST = 31;          // dB-Hz
double const GAIN = 0.21;        // dB-Hz per degree of elevation

struct orbit_t
{
    int firstNumber;
    qint64 period; // milliseconds
};

orbit_t const ORBITS[NUM_CONSTELLATIONS] = {{1, 43082000}, {65, 40544000}, {1, 50685000}, {19, 46393000}};

/** Fractions of a turn that look as if they were strewn. */
double strewn(int constellation, int i, double step)
{
    double const turn = i * step + constellation * 0.381966;
    return turn - std::floor(turn);
}

} // namespace

QList<satellite_t> satellitesInView(qint64 at)
{
    QList<satellite_t> satellites;
    for (int c = 0; c < NUM_CONSTELLATIONS; ++c)
    {
        double const turned = double(at % ORBITS[c].period) / double(ORBITS[c].period);
        for (int i = 0; i < SATELLITES_ROUND; ++i)
        {
            double const height = std::sin(FULL_TURN * (turned + strewn(c, i, 0.618034)));
            int const elevation = int(std::lround(HIGHEST * height));
            if (elevation < 1)
                continue;
            int const azimuth = int(360.0 * (turned + strewn(c, i, 0.7548776))) % 360;
            satellites << satellite_t{constellation_t(c), ORBITS[c].firstNumber + i, elevation, azimuth,
                                      WEAKEST + int(GAIN * elevation)};
        }
    }
    return satellites;
}

} // namespace melvox_receiver
