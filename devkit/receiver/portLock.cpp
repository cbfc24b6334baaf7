#include "receiver/portLock.h"

namespace melvox_receiver
{

portLock_t::portLock_t(receiver_t& owner) : behaviour_t(owner), m_holder(nullptr), m_refused(false)
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
    if (!m_holder && !m_refused && wanted.toInt() != 0)
        hold(from, wanted.toInt());
    else if (m_holder == from && wanted.toInt() == 0)
        hold(nullptr, 0);
    // Another display's lock is none to the one that asks.
    receiver.report(from, group, receiver.lockOf(from));
    return DONE;
}

QStringList portLock_t::situations() const
{
    return {"lockRefused"};
}

behaviour_t::answer_t portLock_t::situation(QString const&, QVariant const& value)
{
    if (value.userType() != QMetaType::Bool)
        return UNREADABLE;
    m_refused = value.toBool();
    return DONE;
}

void portLock_t::hold(link_t* holder, int state)
{
    m_holder = holder;
    receiver.setLock(holder, state);
}

void portLock_t::linkClosed(link_t* link)
{
    if (m_holder == link)
        hold(nullptr, 0);
}

void portLock_t::restarted()
{
    link_t* const holder = m_holder;
    hold(nullptr, 0);
    if (holder)
        receiver.report(holder, "portLock", 0);
}

} // namespace melvox_receiver
