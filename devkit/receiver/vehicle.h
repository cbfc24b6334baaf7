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

/** It drives slowly in a wide circle over ground that is nearly flat. The time is that of the simulated clock. */
motion_t vehicleMotion(qint64 at);

} // namespace melvox_receiver

#endif
