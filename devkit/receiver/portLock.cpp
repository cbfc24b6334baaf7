#include "receiver/portLock.h"

namespace melvox_receiver
{

portLock_t::portLock_t(receiver_t& owner) : behaviour_t(owner), m_holder(nullptr), m_state(0)
{
}

/** A display that has the lock must give it back before it can have the other one. */
behaviour_t::answer_t portLock_t::command(link_t* from, QString const& group, QVariant const& value)
{
    if (group != "portLock")
        return NOT_MINE;
    QVariant wanted;
    QString why;
    if (take(whole(0, 2), value, QVariant(), wanted, why) != TAKEN)
        return UNREADABLE;
    if (!m_holder && wanted.toInt() != 0)
    {
        m_holder = from;
        m_state = wanted.toInt();
    }
    else if (m_holder == from && wanted.toInt() == 0)
    {
        m_holder = nullptr;
        m_state = 0;
    }
    // Another display's lock is none to the one that asks.
    receiver.report(from, group, m_holder == from ? m_state : 0);
    return DONE;
}

void portLock_t::linkClosed(link_t* link)
{
    if (m_holder == link)
        m_holder = nullptr;
    if (!m_holder)
        m_state = 0;
}

void portLock_t::restarted()
{
    if (m_holder)
        receiver.report(m_holder, "portLock", 0);
    m_holder = nullptr;
    m_state = 0;
}

} // namespace melvox_receiver
