#ifndef MELVOX_RECEIVER_SOLUTION_H
#define MELVOX_RECEIVER_SOLUTION_H

#include "receiver/settingsTable.h"

#include <random>

namespace melvox_receiver
{

/** The ways to a position, the better the higher. */
enum solutionMode_t
{
    NO_SOLUTION,
    AUTONOMOUS,
    DIFFERENTIAL,
    FLOAT,
    FIXED
};

/** How good the position is, and what the receiver tells of it. Each step up takes a while, down none. Times are those
 *  of the simulated clock. */
class solution_t
{
public:
    solution_t();

    /** The best that satellites and corrections allow. False: there is no such mode. */
    bool setBest(qint64 now, QString const& mode);

    /** Why there is no solution while the best is none; see the failure codes that a receiver tells. */
    void setFailure(int code);

    /** The solution is gone and comes back, at first without corrections, after so many milliseconds. */
    void lose(qint64 now, int recovery);
    bool isRecovering(qint64 at) const;

    solutionMode_t mode(settings_t const& settings, qint64 at) const;

    /** The value of the group "extendedNavInfo". */
    QVariantMap info(settings_t const& settings, qint64 at);

private:
    solutionMode_t climbed(qint64 at) const;
    int failure(settings_t const& settings, qint64 at) const;
    void addErrors(QVariantMap& info, settings_t const& settings, solutionMode_t mode);
    void addVelocity(QVariantMap& info, settings_t const& settings, solutionMode_t mode, qint64 at);
    double noise(double deviation);

    solutionMode_t m_best;
    int m_failure;
    solutionMode_t m_climbFrom;
    qint64 m_climbStart;   //!< before it there is no solution
    std::mt19937 m_random; //!< starts alike each time, so that what a test sees comes again
};

} // namespace melvox_receiver

#endif
