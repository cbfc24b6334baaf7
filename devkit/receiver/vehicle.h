#ifndef MELVOX_RECEIVER_VEHICLE_H
#define MELVOX_RECEIVER_VEHICLE_H

#include <QtGlobal>

namespace melvox_receiver
{

/** How the vehicle that carries the receiver moves: degrees from north, metres per second. */
struct motion_t
{
    double course;
    double north;
    double east;
    double up;
};

/** Where it is: degrees on WGS-84, metres above the ellipsoid. */
struct place_t
{
    double latitude;
    double longitude;
    double height;
};

/** It drives slowly in a wide circle over ground that is nearly flat. The time is that of the simulated clock. */
motion_t vehicleMotion(qint64 at);

/** The way that the motion makes. */
place_t vehiclePlace(qint64 at);

} // namespace melvox_receiver

#endif
