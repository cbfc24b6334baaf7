#include "receiver/traffic.h"

#include <algorithm>

namespace melvox_receiver
{

traffic_t::traffic_t() : m_capacity(0), m_waiting(0), m_sent(0), m_received(0), m_possible(0)
{
}

void traffic_t::setCapacity(double bytesPerSecond)
{
    m_capacity = bytesPerSecond;
    m_waiting = std::min(m_waiting, m_capacity);
}

bool traffic_t::putOut(int bytes)
{
    if (m_waiting + bytes > m_capacity)
        return false;
    m_waiting += bytes;
    return true;
}

void traffic_t::takeIn(int bytes)
{
    m_received += bytes;
}

void traffic_t::advance(int milliseconds)
{
    double const possible = m_capacity * milliseconds / 1000.0;
    double const sent = std::min(m_waiting, possible);
    m_waiting -= sent;
    m_sent += sent;
    m_possible += possible;
}

void traffic_t::measure(double& txUsage, double& rxUsage)
{
    double const scale = m_possible > 0 ? 100.0 / m_possible : 0.0;
    txUsage = m_sent * scale;
    rxUsage = std::min(m_received * scale, 100.0);
    m_sent = m_received = m_possible = 0;
}

} // namespace melvox_receiver
