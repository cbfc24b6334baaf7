#include "receiver/network.h"

namespace melvox_receiver
{

namespace
{

// Milliseconds after the change. The report of it still comes through.
int const CUT_AFTER = 500;
int const JOIN_AFTER = 3500;

} // namespace

network_t::network_t(receiver_t& owner) : behaviour_t(owner), m_cable(cable()), m_cutAt(-1), m_joinAt(-1)
{
}

QVariant network_t::cable() const
{
    return receiver.setting("ethernetConfig").toList().value(0);
}

void network_t::settingChanged(QString const& group)
{
    if (group != "ethernetConfig" || cable() == m_cable)
        return;
    m_cable = cable();
    m_cutAt = receiver.clock().now() + CUT_AFTER;
    m_joinAt = receiver.clock().now() + JOIN_AFTER;
    wantTicks(true);
}

void network_t::advance(int)
{
    qint64 const now = receiver.clock().now();
    if (m_cutAt >= 0 && now >= m_cutAt)
        cut();
    if (m_joinAt >= 0 && now >= m_joinAt)
        join();
}

void network_t::cut()
{
    m_cutAt = -1;
    for (link_t* link : receiver.links())
    {
        unsigned int const port = receiver.activePort(link);
        if (port >= FIRST_VIRTUAL_PORT && port < NUM_PORTS)
            m_cutLinks.cut(link);
    }
}

void network_t::join()
{
    m_joinAt = -1;
    wantTicks(false);
    m_cutLinks.joinAll();
}

} // namespace melvox_receiver
