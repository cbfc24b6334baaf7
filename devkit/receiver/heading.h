#ifndef MELVOX_RECEIVER_HEADING_H
#define MELVOX_RECEIVER_HEADING_H

#include "receiver/solution.h"

namespace melvox_receiver
{

/** The heading of the line between the two antennas, which lies on the vehicle as the receiver is told. */
class heading_t
{
public:
    /** The value of the group "vhdInfo"; invalid without a solution. */
    QVariant info(settings_t const& settings, solutionMode_t mode, qint64 at);

private:
    double noise(double deviation);

    std::mt19937 m_random; //!< starts alike each time, so that what a test sees comes again
};

} // namespace melvox_receiver

#endif
