#include "receiver/power.h"

namespace melvox_receiver
{

namespace
{

double const SHORTEST_CUT = 1.0; // seconds
double const LONGEST_CUT = 3600.0;

} // namespace

power_t::power_t(receiver_t& owner) : behaviour_t(owner), m_backAt(-1)
{
}

QStringList power_t::situations() const
{
    return {"powerCut"};
}

behaviour_t::answer_t power_t::situation(QString const&, QVariant const& value)
{
    double const seconds = value.toDouble();
    if (!isNumber(value) || !(seconds >= SHORTEST_CUT && seconds <= LONGEST_CUT))
        return UNREADABLE;
    m_backAt = receiver.clock().now() + qint64(seconds * 1000.0);
    wantTicks(true);
    receiver.setPowered(false);
    for (link_t* link : receiver.links())
        m_cutLinks.cut(link);
    // What was under way must not go on meanwhile.
    receiver.restart();
    return DONE;
}

/** A display that looks for the receiver finds none. */
void power_t::linkAttached(link_t* link)
{
    if (m_backAt >= 0)
        m_cutLinks.cut(link);
}

void power_t::advance(int)
{
    if (receiver.clock().now() < m_backAt)
        return;
    m_backAt = -1;
    wantTicks(false);
    receiver.setPowered(true);
    receiver.restart();
    m_cutLinks.joinAll();
}

} // namespace melvox_receiver
