#include "receiver/simClock.h"

#include <QDateTime>

#include <algorithm>

namespace melvox_receiver
{

namespace
{

qint64 const MANUAL_START = 1767225600000; // 2026-01-01 00:00 UTC
double const FASTEST = 1000.0;

} // namespace

simClock_t::simClock_t(mode_t mode, QObject* parent)
    : QObject(parent), m_mode(mode), m_speed(1.0),
      m_base(mode == MANUAL ? MANUAL_START : QDateTime::currentMSecsSinceEpoch()), m_ticked(m_base), m_inTick(false)
{
    m_sinceBase.start();
    m_timer.setInterval(LONGEST_TICK);
    connect(&m_timer, &QTimer::timeout, this, &simClock_t::follow);
}

simClock_t::~simClock_t() = default;

simClock_t::mode_t simClock_t::mode() const
{
    return m_mode;
}

qint64 simClock_t::timeOfDay() const
{
    return m_base + (m_mode == MANUAL ? 0 : qint64(double(m_sinceBase.elapsed()) * m_speed));
}

qint64 simClock_t::now() const
{
    return m_inTick || m_mode == MANUAL ? m_ticked : timeOfDay();
}

void simClock_t::advance(qint64 milliseconds)
{
    if (m_mode != MANUAL || m_inTick || milliseconds <= 0)
        return;
    tickUntil(m_ticked + milliseconds);
}

void simClock_t::tickUntil(qint64 end)
{
    while (m_ticked < end)
    {
        int const step = int(std::min<qint64>(LONGEST_TICK, end - m_ticked));
        m_ticked += step;
        m_inTick = true;
        emit ticked(step);
        m_inTick = false;
    }
}

void simClock_t::anchor()
{
    m_base = timeOfDay();
    m_sinceBase.restart();
}

void simClock_t::setSpeed(double speed)
{
    anchor();
    m_speed = std::clamp(speed, 0.0, FASTEST);
}

double simClock_t::speed() const
{
    return m_speed;
}

void simClock_t::wantTicks(QObject* who, bool wanted)
{
    if (!wanted)
    {
        forget(who);
        return;
    }
    if (m_users.contains(who))
        return;
    m_users.insert(who);
    connect(who, &QObject::destroyed, this, &simClock_t::forget);
    updateTimer();
}

void simClock_t::forget(QObject* who)
{
    if (!m_users.remove(who))
        return;
    disconnect(who, &QObject::destroyed, this, &simClock_t::forget);
    updateTimer();
}

bool simClock_t::isTicking() const
{
    return m_timer.isActive();
}

void simClock_t::updateTimer()
{
    bool const needed = m_mode == REAL_TIME && !m_users.isEmpty();
    if (needed == m_timer.isActive())
        return;
    if (!needed)
    {
        m_timer.stop();
        return;
    }
    // The time without ticks is over; nobody wanted them.
    if (!m_inTick)
        m_ticked = std::max(m_ticked, timeOfDay());
    m_timer.start();
}

void simClock_t::follow()
{
    tickUntil(timeOfDay());
}

} // namespace melvox_receiver
