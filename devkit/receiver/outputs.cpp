#include "receiver/outputs.h"

#include <algorithm>

namespace melvox_receiver
{

namespace
{

double const SLOWEST = 3600.0; // seconds

struct outputMessage_t
{
    char const* name;
    double fastest; //!< seconds
};

outputMessage_t const MESSAGES[] = {
    {"NMEADTM", 1.0},      {"NMEAGBS", 1.0},     {"NMEAGGA", 0.1},     {"NMEAGLL", 1.0},     {"NMEAGNS", 1.0},
    {"NMEAGRS", 1.0},      {"NMEAGSA", 0.1},     {"NMEAGST", 0.1},     {"NMEAGSV", 1.0},     {"NMEAHDT", 0.1},
    {"NMEARMC", 1.0},      {"NMEAROT", 1.0},     {"NMEAVTG", 0.1},     {"NMEAZDA", 0.1},     {"NMEAPZLQDTM", 1.0},
    {"NMEAPZLQGGA", 0.1},  {"NMEAPZLQGST", 0.1}, {"NMEAPZLQMDE", 1.0}, {"NMEAPZLQSET", 1.0}, {"PVT1B", 0.1},
    {"NMEAPTPSRVHD", 1.0}, {"RTCM1", 1.0},       {"RTCM3", 1.0},       {"RTCM9", 1.0},       {"RTCM16", 1.0},
    {"RTCM31", 1.0},       {"RTCM34", 1.0},      {"??", 1.0},
};

outputMessage_t const* findMessage(QString const& name)
{
    for (outputMessage_t const& message : MESSAGES)
    {
        if (name == message.name)
            return &message;
    }
    return nullptr;
}

rule_t outputRule()
{
    return record({{"port", whole(0, NUM_PORTS - 1)},
                   {"message", text(32)},
                   {"method", whole(0, 1)},
                   {"interval", optional(number(0, SLOWEST), 0.0)}});
}

QVariantMap record(unsigned int port, QString const& message, double interval)
{
    return {{"port", port}, {"message", message}, {"method", interval > 0.0 ? 1 : 0}, {"interval", interval}};
}

} // namespace

QStringList outputMessages()
{
    QStringList names;
    for (outputMessage_t const& message : MESSAGES)
        names << message.name;
    return names;
}

outputs_t::outputs_t(receiver_t& owner) : behaviour_t(owner)
{
    m_intervals[{0, "PVT1B"}] = 1.0;
    m_intervals[{1, "NMEAGGA"}] = 0.2;
    m_intervals[{1, "NMEAVTG"}] = 0.2;
    m_intervals[{1, "NMEAZDA"}] = 1.0;
    m_intervals[{2, "RTCM1"}] = 1.0;
    m_intervals[{2, "RTCM31"}] = 1.0;
    m_intervals[{6, "NMEAGGA"}] = 1.0;
    m_intervals[{6, "NMEAGSV"}] = 1.0;
}

behaviour_t::answer_t outputs_t::request(link_t* from, QString const& group)
{
    if (group != "outputs")
        return NOT_MINE;
    list(from);
    return DONE;
}

void outputs_t::list(link_t* to)
{
    receiver.event(to, "outputsCleared");
    for (auto it = m_intervals.begin(); it != m_intervals.end(); ++it)
        receiver.report(to, "output", record(it.key().first, it.key().second, it.value()));
}

behaviour_t::answer_t outputs_t::command(link_t* from, QString const& group, QVariant const& value)
{
    if (group == "output")
        return set(from, value);
    return group == "turnOffAllOutput" ? turnOffAll(value) : NOT_MINE;
}

behaviour_t::answer_t outputs_t::set(link_t* from, QVariant const& value)
{
    QVariantMap given = value.toMap();
    // Without output an interval has no meaning, whatever it is.
    if (isNumber(given.value("method")) && given.value("method").toInt() == 0)
        given.remove("interval");
    QVariant taken;
    QString why;
    if (take(outputRule(), given, QVariant(), taken, why) != TAKEN)
        return UNREADABLE;
    QVariantMap const wanted = taken.toMap();
    QString const name = wanted.value("message").toString();
    outputMessage_t const* const message = findMessage(name);
    if (!message)
        return UNREADABLE;
    QPair<unsigned int, QString> const key(wanted.value("port").toUInt(), name);
    double const before = m_intervals.value(key, 0.0);
    double after = 0.0;
    if (wanted.value("method").toInt() == 1)
        after = std::max(wanted.value("interval").toDouble(), message->fastest);
    if (after > 0.0)
        m_intervals[key] = after;
    else
        m_intervals.remove(key);
    if (after == before)
        receiver.report(from, "output", record(key.first, name, after));
    else
        receiver.report("output", record(key.first, name, after));
    return DONE;
}

behaviour_t::answer_t outputs_t::turnOffAll(QVariant const& value)
{
    QVariant port;
    QString why;
    if (take(whole(0, NUM_PORTS - 1), value, QVariant(), port, why) != TAKEN)
        return UNREADABLE;
    for (QPair<unsigned int, QString> const& key : m_intervals.keys())
    {
        if (key.first != port.toUInt())
            continue;
        m_intervals.remove(key);
        receiver.report("output", record(key.first, key.second, 0.0));
    }
    return DONE;
}

} // namespace melvox_receiver
