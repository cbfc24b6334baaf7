#include "receiver/modem.h"

namespace melvox_receiver
{

namespace
{

/** A network that is weaker is not heard. */
double const WEAKEST_SIGNAL = -113.0; // dBm
double const USUAL_SIGNAL = -71.0;

enum lteStateName_t
{
    LTE_OFF,
    LTE_STARTING,
    LTE_SEARCHING,
    LTE_REGISTERING,
    LTE_CONNECTED,
    LTE_NO_SIM,
    LTE_STOPPING
};

struct lteState_t
{
    char const* networkStatus;
    int duration; //!< milliseconds; 0: for good
    bool hasSim;  //!< is nothing without a SIM card
    bool hasNetwork;
};

lteState_t const LTE_STATES[] = {
    {"DISCONNECTED", 0, false, false},    {"DISCONNECTED", 2000, false, false}, {"SEARCHING", 2500, true, false},
    {"REGISTERING", 1500, true, true},    {"CONNECTED", 0, true, true},         {"SIM MISSING", 0, false, false},
    {"DISCONNECTED", 2000, false, false},
};

} // namespace

modem_t::modem_t(receiver_t& owner)
    : behaviour_t(owner), m_on(false), m_switching(false), m_stuck(false), m_sim(true), m_signal(USUAL_SIGNAL),
      m_state(LTE_OFF), m_left(0)
{
    m_told = status();
}

bool modem_t::hearsNetwork() const
{
    return m_signal > WEAKEST_SIGNAL;
}

QVariantMap modem_t::status() const
{
    lteState_t const& state = LTE_STATES[m_state];
    return {{"rssi", state.hasNetwork ? QString("%1 dBm").arg(m_signal, 0, 'f', 0) : QString("N/A")},
            {"networkStatus", state.networkStatus},
            {"modemStatus", m_switching          ? "PENDING"
                            : m_state == LTE_OFF ? "OFF"
                                                 : "ON"}};
}

/** To all displays, unless they know. */
void modem_t::tell()
{
    QVariantMap const now = status();
    if (now == m_told)
        return;
    m_told = now;
    receiver.report("lteModemStat", now);
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
    if (on.toBool() == m_on || m_stuck)
        receiver.report(from, group, status());
    else
        switchTo(on.toBool());
    return DONE;
}

QStringList modem_t::situations() const
{
    return {"lteModem", "lteSim", "lteSignal"};
}

behaviour_t::answer_t modem_t::situation(QString const& name, QVariant const& value)
{
    if (name == "lteModem")
        return takeState(value.toString());
    bool isNumber = false;
    double const number = value.toDouble(&isNumber);
    if (name == "lteSim" && value.userType() == QMetaType::Bool)
        takeSim(value.toBool());
    else if (name == "lteSignal" && isNumber)
        takeSignal(number);
    else
        return name == "lteSim" || name == "lteSignal" ? UNREADABLE : NOT_MINE;
    return DONE;
}

void modem_t::switchTo(bool on)
{
    m_on = on;
    m_switching = true;
    enter(on ? LTE_STARTING : LTE_STOPPING);
}

void modem_t::enter(int state)
{
    m_state = state;
    m_left = LTE_STATES[state].duration;
    m_switching = m_switching && m_left > 0;
    wantTicks(m_left > 0 && !m_stuck);
    tell();
}

behaviour_t::answer_t modem_t::takeState(QString const& state)
{
    if (state != "OFF" && state != "ON" && state != "PENDING")
        return UNREADABLE;
    m_on = state != "OFF";
    m_stuck = state == "PENDING";
    m_switching = m_stuck;
    enter(m_stuck ? LTE_STARTING : m_on ? LTE_CONNECTED : LTE_OFF);
    return DONE;
}

void modem_t::takeSim(bool present)
{
    m_sim = present;
    if (!m_sim && LTE_STATES[m_state].hasSim)
        enter(LTE_NO_SIM);
    else if (m_sim && m_state == LTE_NO_SIM)
        enter(LTE_SEARCHING);
}

void modem_t::takeSignal(double strength)
{
    m_signal = strength;
    bool const hasGivenUp = m_state == LTE_SEARCHING && m_left == 0;
    if ((LTE_STATES[m_state].hasNetwork && !hearsNetwork()) || (hasGivenUp && hearsNetwork()))
        enter(LTE_SEARCHING);
    else
        tell();
}

void modem_t::restarted()
{
    if (m_on)
        switchTo(true);
    else
        enter(LTE_OFF);
}

void modem_t::advance(int milliseconds)
{
    m_left = qMax(0, m_left - milliseconds);
    if (m_left == 0)
        goOn();
}

void modem_t::goOn()
{
    switch (m_state)
    {
    case LTE_STARTING:
        return enter(m_sim ? LTE_SEARCHING : LTE_NO_SIM);
    case LTE_SEARCHING:
        return search();
    case LTE_REGISTERING:
        return enter(LTE_CONNECTED);
    default:
        return enter(LTE_OFF);
    }
}

/** Without a network it is on all the same, so that it can be switched off, and waits until there is one. */
void modem_t::search()
{
    if (hearsNetwork())
        return enter(LTE_REGISTERING);
    m_switching = false;
    wantTicks(false);
    tell();
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

QStringList iridium_t::situations() const
{
    return {"iridiumProvisioned"};
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
