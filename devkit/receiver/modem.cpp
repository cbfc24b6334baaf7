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

namespace
{

struct iridiumState_t
{
    char const* modemStatus;
    char const* provisioningStatus; //!< null: as it is
    int duration;                   //!< milliseconds; 0: for good
};

iridiumState_t const IRIDIUM_STATES[] = {
    {"STARTING", "UNKNOWN", 3000}, {"SEARCHING", "PENDING", 8000}, {"ON", nullptr, 0}};

} // namespace

iridium_t::iridium_t(receiver_t& owner) : behaviour_t(owner), m_provisioned(true), m_state(2), m_left(0)
{
}

behaviour_t::answer_t iridium_t::situation(QString const& name, QVariant const& value)
{
    if (name != "iridiumProvisioned")
        return NOT_MINE;
    if (value.userType() != QMetaType::Bool)
        return UNREADABLE;
    m_provisioned = value.toBool();
    enter(m_state);
    return DONE;
}

void iridium_t::enter(int state)
{
    iridiumState_t const& entered = IRIDIUM_STATES[state];
    m_state = state;
    m_left = entered.duration;
    QVariantMap status = receiver.setting("irdmStat").toMap();
    status["modemStatus"] = entered.modemStatus;
    status["provisioningStatus"] = entered.provisioningStatus ? entered.provisioningStatus
                                   : m_provisioned            ? "PROVISIONED"
                                                              : "NOT PROVISIONED";
    receiver.change("irdmStat", status);
    wantTicks(m_left > 0);
}

void iridium_t::restarted()
{
    enter(0);
}

void iridium_t::advance(int milliseconds)
{
    m_left -= milliseconds;
    if (m_left <= 0)
        enter(m_state + 1);
}

} // namespace melvox_receiver
