#include "receiver/modem.h"

namespace melvox_receiver
{

namespace
{

int const SWITCHING_ON = 6000; // milliseconds
int const SWITCHING_OFF = 2000;

} // namespace

modem_t::modem_t(receiver_t& owner) : behaviour_t(owner), m_on(false), m_pending(0)
{
}

QVariantMap modem_t::status() const
{
    bool const connected = m_on && m_pending == 0;
    return {{"rssi", connected ? "-71 dBm" : "N/A"},
            {"networkStatus", connected ? "CONNECTED" : "DISCONNECTED"},
            {"modemStatus", m_pending > 0 ? "PENDING"
                            : m_on        ? "ON"
                                          : "OFF"}};
}

behaviour_t::answer_t modem_t::request(link_t* from, QString const& group)
{
    if (group != "lteModemStat")
        return NOT_MINE;
    receiver.report(from, group, status());
    return DONE;
}

behaviour_t::answer_t modem_t::command(link_t* from, QString const& group, QVariant const& value)
{
    if (group != "lteModemStat")
        return NOT_MINE;
    QVariant const on = value.toMap().value("on");
    if (on.userType() != QMetaType::Bool)
        return UNREADABLE;
    if (on.toBool() == m_on)
    {
        receiver.report(from, group, status());
        return DONE;
    }
    m_on = on.toBool();
    m_pending = m_on ? SWITCHING_ON : SWITCHING_OFF;
    wantTicks(true);
    receiver.report(group, status());
    return DONE;
}

void modem_t::advance(int milliseconds)
{
    m_pending = qMax(0, m_pending - milliseconds);
    if (m_pending > 0)
        return;
    wantTicks(false);
    receiver.report("lteModemStat", status());
}

} // namespace melvox_receiver
