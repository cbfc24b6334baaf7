#include "receiver/vehicle.h"

#include <cmath>

namespace melvox_receiver
{

namespace
{

double const SPEED = 1.4;         // metres per second
qint64 const ROUND_TIME = 240000; // milliseconds
double const CLIMB_RATE = 0.02;   // metres per second, at most
double const FULL_TURN = 2.0 * std::acos(-1.0);
double const RADIANS = FULL_TURN / 360.0;

place_t const CENTRE = {33.8478, -118.0057, 11.6};

// WGS-84.
double const SEMI_MAJOR = 6378137.0;
double const ECCENTRICITY_SQUARED = 6.69437999014e-3;

} // namespace

motion_t vehicleMotion(qint64 at)
{
    double const round = double(at % ROUND_TIME) / double(ROUND_TIME);
    double const course = round * FULL_TURN;
    return {round * 360.0, SPEED * std::cos(course), SPEED * std::sin(course), CLIMB_RATE * std::sin(course)};
}

place_t vehiclePlace(qint64 at)
{
    motion_t const motion = vehicleMotion(at);
    double const course = motion.course * RADIANS;
    double const turnRate = FULL_TURN * 1000.0 / double(ROUND_TIME); // radians per second
    double const north = SPEED / turnRate * std::sin(course);
    double const east = -SPEED / turnRate * std::cos(course);
    double const up = -CLIMB_RATE / turnRate * std::cos(course);

    double const sine = std::sin(CENTRE.latitude * RADIANS);
    double const curve = 1.0 - ECCENTRICITY_SQUARED * sine * sine;
    double const northRadius = SEMI_MAJOR * (1.0 - ECCENTRICITY_SQUARED) / std::pow(curve, 1.5);
    double const eastRadius = SEMI_MAJOR / std::sqrt(curve) * std::cos(CENTRE.latitude * RADIANS);
    return {CENTRE.latitude + north / northRadius / RADIANS, CENTRE.longitude + east / eastRadius / RADIANS,
            CENTRE.height + up};
}

} // namespace melvox_receiver
