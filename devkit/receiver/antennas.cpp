#include "receiver/antennas.h"

namespace melvox_receiver
{

namespace
{

int const BETWEEN_NAMES = 20; // milliseconds

}

antennas_t::antennas_t(receiver_t& owner) : behaviour_t(owner), m_waited(0)
{
}

behaviour_t::answer_t antennas_t::request(link_t* from, QString const& group)
{
    if (group != "antennaList")
        return NOT_MINE;
    receiver.event(from, "antennaListReset");
    m_next[from] = 0;
    wantTicks(true);
    return DONE;
}

void antennas_t::linkClosed(link_t* link)
{
    m_next.remove(link);
}

void antennas_t::restarted()
{
    m_next.clear();
}

void antennas_t::advance(int milliseconds)
{
    for (m_waited += milliseconds; m_waited >= BETWEEN_NAMES && !m_next.isEmpty(); m_waited -= BETWEEN_NAMES)
    {
        for (link_t* link : m_next.keys())
        {
            receiver.report(link, "antennaName", antennaNames().at(m_next[link]));
            if (++m_next[link] == antennaNames().size())
                m_next.remove(link);
        }
    }
    if (m_next.isEmpty())
    {
        m_waited = 0;
        wantTicks(false);
    }
}

} // namespace melvox_receiver
