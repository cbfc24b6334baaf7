#ifndef MELVOX_RECEIVER_CORRECTION_SIGNAL_H
#define MELVOX_RECEIVER_CORRECTION_SIGNAL_H

#include <QVariant>

#include <random>

namespace melvox_receiver
{

/** How a correction satellite is received, by the codes that a receiver tells. */
enum signalStatus_t
{
    WAIT_FOR_POWER,
    PROCESSING_DISABLED,
    WAIT_FOR_AGC,
    START_OF_PROCESSING,
    SIGNAL_DETECTION,
    DETECTION_FAILED,
    FREQUENCY_VERIFY,
    SIGNAL_ACQUISITION,
    PULL_IN,
    LOCKED,
    VFFT
};

/** One satellite's way from power on to lock, and out of it again: seldom when it stands high, often when low. The same
 *  satellite fares alike each time, so that what a test sees comes again. */
class correctionSignal_t
{
public:
    correctionSignal_t(unsigned int id, unsigned int beam, int lookAngle);

    /** As after power on: nothing is known of the signal. */
    void restart();

    /** Whether the receiver looks for this satellite at all. */
    void setProcessed(bool processed);

    void advance(int milliseconds);

    signalStatus_t status() const { return m_status; }
    /** Signal to noise once it is locked. */
    double bestStrength() const;

    /** A record of the group "correctionSatStats", a little different each time. */
    QVariantMap stats();

private:
    void enter(signalStatus_t status);
    signalStatus_t next();
    int duration();
    double uniform();
    double noise(double deviation);

    unsigned int m_id;
    unsigned int m_beam;
    int m_lookAngle;
    signalStatus_t m_status;
    int m_left;   //!< milliseconds that the status lasts
    int m_locked; //!< milliseconds since it was locked
    unsigned int m_locks;
    std::mt19937 m_random;
};

} // namespace melvox_receiver

#endif
