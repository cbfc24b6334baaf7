#include "receiver/correctionSignal.h"

#include <algorithm>
#include <cmath>

namespace melvox_receiver
{

namespace
{

struct step_t
{
    int duration;        //!< milliseconds
    signalStatus_t next; //!< if all goes well
    double strength;     //!< as a part of that of a locked signal
};

step_t const STEPS[] = {
    {1000, WAIT_FOR_AGC, 0.0},        // WAIT_FOR_POWER
    {0, START_OF_PROCESSING, 0.0},    // PROCESSING_DISABLED, until it is wanted
    {2000, START_OF_PROCESSING, 0.0}, // WAIT_FOR_AGC
    {1000, VFFT, 0.0},                // START_OF_PROCESSING
    {3000, FREQUENCY_VERIFY, 0.3},    // SIGNAL_DETECTION
    {5000, START_OF_PROCESSING, 0.1}, // DETECTION_FAILED
    {2000, SIGNAL_ACQUISITION, 0.45}, // FREQUENCY_VERIFY
    {2000, PULL_IN, 0.55},            // SIGNAL_ACQUISITION
    {3000, LOCKED, 0.75},             // PULL_IN
    {0, START_OF_PROCESSING, 1.0},    // LOCKED, for as long as it lasts
    {2000, SIGNAL_DETECTION, 0.0},    // VFFT
};

double const SAFE_LOOK_ANGLE = 20.0;    // degrees; below it the signal is not always found
double const LOCK_PER_SQUARE = 400.0;   // milliseconds of lock per degree of look angle squared
int const SHORTEST_LOCK = 10000;        // milliseconds
double const STRENGTH_AT_HORIZON = 5.0; // signal to noise
double const STRENGTH_PER_DEGREE = 0.3;
double const STRENGTH_FOR_GOOD_DATA = 12.0;
double const SETTLED_AGC = 1.31; // volts
double const SETTLING_AGC = 0.74;
double const GOOD_SETTLING = 4000.0; // milliseconds until the decoder has caught up, more or less

double hundredths(double value)
{
    return std::round(value * 100.0) / 100.0;
}

double percent(double value)
{
    return hundredths(std::clamp(value, 0.0, 100.0));
}

} // namespace

correctionSignal_t::correctionSignal_t(unsigned int id, unsigned int beam, int lookAngle)
    : m_id(id), m_beam(beam), m_lookAngle(lookAngle), m_status(WAIT_FOR_POWER), m_left(0), m_locked(0), m_locks(0),
      m_random(id)
{
    restart();
}

void correctionSignal_t::restart()
{
    m_locks = 0;
    enter(WAIT_FOR_POWER);
}

void correctionSignal_t::setProcessed(bool processed)
{
    if (!processed && m_status != PROCESSING_DISABLED)
        enter(PROCESSING_DISABLED);
    else if (processed && m_status == PROCESSING_DISABLED)
        enter(START_OF_PROCESSING);
}

void correctionSignal_t::enter(signalStatus_t status)
{
    m_status = status;
    m_left = duration();
    m_locked = 0;
    if (status == LOCKED)
        ++m_locks;
}

int correctionSignal_t::duration()
{
    if (m_status != LOCKED)
        return STEPS[m_status].duration;
    double const mean = LOCK_PER_SQUARE * m_lookAngle * m_lookAngle;
    return std::max(SHORTEST_LOCK, int(std::min(-mean * std::log(1.0 - uniform()), 1e8)));
}

signalStatus_t correctionSignal_t::next()
{
    double const failing = std::clamp(1.0 - m_lookAngle / SAFE_LOOK_ANGLE, 0.0, 0.9);
    if (m_status == SIGNAL_DETECTION && uniform() < failing)
        return DETECTION_FAILED;
    return STEPS[m_status].next;
}

void correctionSignal_t::advance(int milliseconds)
{
    while (m_status != PROCESSING_DISABLED && milliseconds >= m_left)
    {
        milliseconds -= m_left;
        enter(next());
    }
    m_left -= milliseconds;
    m_locked += milliseconds;
}

double correctionSignal_t::bestStrength() const
{
    return STRENGTH_AT_HORIZON + STRENGTH_PER_DEGREE * m_lookAngle;
}

QVariantMap correctionSignal_t::stats()
{
    bool const locked = m_status == LOCKED;
    bool const tuned = STEPS[m_status].strength > 0.0;
    double const strength = tuned ? STEPS[m_status].strength * bestStrength() + noise(0.2) : 0.0;
    bool const settled = m_status != WAIT_FOR_POWER && m_status != WAIT_FOR_AGC;
    double agc = settled ? SETTLED_AGC + noise(0.01) : 0.0;
    if (m_status == WAIT_FOR_AGC)
        agc = SETTLING_AGC + noise(0.1);
    double const weak = std::max(0.0, STRENGTH_FOR_GOOD_DATA - bestStrength());
    double const good = 99.2 - 39.0 * std::exp(-m_locked / GOOD_SETTLING) - 3.0 * weak + noise(0.2);
    return {{"id", m_id},
            {"beam", m_beam},
            {"status", int(m_status)},
            {"strength", hundredths(std::max(0.0, strength))},
            {"agcVoltage", hundredths(agc)},
            {"goodPercent", locked ? percent(good) : 0.0},
            {"idlePercent", locked ? percent(2.5 + noise(0.5)) : 0.0},
            {"resyncCount", m_locks > 1 ? m_locks - 1 : 0},
            {"frequencyOffset", tuned ? hundredths(-143.0 + noise(2.0)) : 0.0}};
}

double correctionSignal_t::uniform()
{
    return std::uniform_real_distribution<double>(0.0, 1.0)(m_random);
}

double correctionSignal_t::noise(double deviation)
{
    return std::normal_distribution<double>(0.0, deviation)(m_random);
}

} // namespace melvox_receiver
