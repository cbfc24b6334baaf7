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

} // namespace

motion_t vehicleMotion(qint64 at)
{
    double const round = double(at % ROUND_TIME) / double(ROUND_TIME);
    double const course = round * FULL_TURN;
    return {round * 360.0, SPEED * std::cos(course), SPEED * std::sin(course), CLIMB_RATE * std::sin(course)};
}

} // namespace melvox_receiver
