#ifndef MELVOX_RECEIVER_FIX_H
#define MELVOX_RECEIVER_FIX_H

#include "receiver/receiver.h"
#include "receiver/sky.h"
#include "receiver/solution.h"
#include "receiver/vehicle.h"

namespace melvox_receiver
{

/** All that output messages tell of one moment. */
struct fix_t
{
    qint64 at; //!< milliseconds since 1970-01-01 00:00 UTC, of the simulated clock
    solutionMode_t mode;
    int navMode;
    int navSource;
    int stationId;
    place_t place;
    double geoidHeight; //!< metres above the ellipsoid; 0 while no geoid is in use
    motion_t motion;
    double speed;    //!< metres per second over ground
    double turnRate; //!< degrees per minute, to the right
    double latError; //!< standard deviations, metres
    double lonError;
    double heightError;
    double tideNorth; //!< metres by which the ground is off
    double tideEast;
    double tideUp;
    double correctionAge; //!< seconds
    bool headingValid;
    double heading; //!< degrees
    double pitch;
    double baseline; //!< metres
    double headingRms;
    double pdop;
    double hdop;
    double vdop;
    QList<satellite_t> view;
    QList<satellite_t> used;
};

/** What the receiver and its behaviours know of a time; without a behaviour that knows the solution an autonomous one. */
fix_t fixAt(receiver_t& receiver, qint64 at);

} // namespace melvox_receiver

#endif
