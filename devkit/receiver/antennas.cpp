#include "receiver/antennas.h"

namespace melvox_receiver
{

namespace
{

int const BETWEEN_NAMES = 20;           // milliseconds
int const BETWEEN_BASE_MESSAGES = 5000; // those that tell the base station's antenna

char const* const BASE_ANTENNA = "MVXBASE2         NONE";

} // namespace

antennas_t::antennas_t(receiver_t& owner) : behaviour_t(owner), m_waited(0), m_untilRemote(0)
{
}

behaviour_t::answer_t antennas_t::request(link_t* from, QString const& group)
{
    if (group != "antennaList")
        return NOT_MINE;
    tellNames(from);
    return DONE;
}

QStringList antennas_t::situations() const
{
    return {"antennaNamesAnew"};
}

behaviour_t::answer_t antennas_t::situation(QString const& name, QVariant const& value)
{
    if (name != "antennaNamesAnew")
        return NOT_MINE;
    if (value.userType() != QMetaType::Bool || !value.toBool())
        return UNREADABLE;
    for (link_t* link : receiver.links())
        tellNames(link);
    return DONE;
}

void antennas_t::tellNames(link_t* to)
{
    receiver.event(to, "antennaListReset");
    m_next[to] = 0;
    updateTicks();
}

void antennas_t::settingChanged(QString const& group)
{
    if (group != "antennaRemote")
        return;
    QVariantMap const remote = receiver.setting(group).toMap();
    bool const wanted = remote.value("automatic").toBool() && remote.value("name").toString() != BASE_ANTENNA;
    m_untilRemote = wanted ? BETWEEN_BASE_MESSAGES : 0;
    updateTicks();
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
    advanceNames(milliseconds);
    advanceRemote(milliseconds);
    updateTicks();
}

void antennas_t::advanceNames(int milliseconds)
{
    if (m_next.isEmpty())
        return;
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
        m_waited = 0;
}

void antennas_t::advanceRemote(int milliseconds)
{
    if (m_untilRemote == 0)
        return;
    m_untilRemote = qMax(0, m_untilRemote - milliseconds);
    if (m_untilRemote == 0)
        receiver.change("antennaRemote", QVariantMap{{"automatic", true}, {"name", BASE_ANTENNA}});
}

void antennas_t::updateTicks()
{
    wantTicks(!m_next.isEmpty() || m_untilRemote > 0);
}

} // namespace melvox_receiver
