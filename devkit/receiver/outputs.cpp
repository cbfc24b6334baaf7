#include "receiver/outputs.h"

#include "receiver/outputBytes.h"

#include <algorithm>
#include <cmath>

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

/** Who sets the first gets the other one too, so that it is known what its positions refer to. */
struct datumTrigger_t
{
    char const* trigger;
    char const* datum;
};

datumTrigger_t const DATUM_TRIGGERS[] = {
    {"NMEAGGA", "NMEADTM"}, {"NMEAGLL", "NMEADTM"}, {"NMEARMC", "NMEADTM"}, {"NMEAPZLQGGA", "NMEAPZLQDTM"}};
double const DATUM_INTERVAL = 1.0; // seconds

int const USAGE_INTERVAL = 1000;         // milliseconds
double const ETHERNET_CAPACITY = 1.25e6; // bytes per second

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

outputs_t::outputs_t(receiver_t& owner) : behaviour_t(owner), m_puttingOut(false), m_frames()
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
    tellUsage(to);
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
    key_t const key(wanted.value("port").toUInt(), name);
    if (wanted.value("method").toInt() == 0)
    {
        change(key, 0.0, from);
        return DONE;
    }
    change(key, std::max(wanted.value("interval").toDouble(), message->fastest), from);
    startDatum(key);
    return DONE;
}

/** What is no change is told to whoever asked for it only. */
void outputs_t::change(key_t const& key, double interval, link_t* asker)
{
    double const before = m_intervals.value(key, 0.0);
    if (interval > 0.0)
        m_intervals[key] = interval;
    else
        m_intervals.remove(key);
    if (interval == before)
        receiver.report(asker, "output", record(key.first, key.second, interval));
    else
        receiver.report("output", record(key.first, key.second, interval));
}

void outputs_t::startDatum(key_t const& trigger)
{
    for (datumTrigger_t const& entry : DATUM_TRIGGERS)
    {
        key_t const datum(trigger.first, entry.datum);
        if (trigger.second == entry.trigger && !m_intervals.contains(datum))
            change(datum, DATUM_INTERVAL, nullptr);
    }
}

behaviour_t::answer_t outputs_t::turnOffAll(QVariant const& value)
{
    QVariant port;
    QString why;
    if (take(whole(0, NUM_PORTS - 1), value, QVariant(), port, why) != TAKEN)
        return UNREADABLE;
    for (key_t const& key : m_intervals.keys())
    {
        if (key.first != port.toUInt())
            continue;
        m_intervals.remove(key);
        receiver.report("output", record(key.first, key.second, 0.0));
    }
    return DONE;
}

QStringList outputs_t::situations() const
{
    return {"outputs"};
}

behaviour_t::answer_t outputs_t::situation(QString const& name, QVariant const& value)
{
    if (name != "outputs")
        return NOT_MINE;
    if (value.userType() != QMetaType::Bool)
        return UNREADABLE;
    m_puttingOut = value.toBool();
    wantTicks(m_puttingOut);
    return DONE;
}

void outputs_t::advance(int milliseconds)
{
    qint64 const now = receiver.clock().now();
    for (unsigned int port = 0; port < NUM_PORTS; ++port)
        m_traffic[port].setCapacity(capacity(port));
    putOutDue(now, milliseconds);
    for (traffic_t& traffic : m_traffic)
        traffic.advance(milliseconds);
    if (now / USAGE_INTERVAL != (now - milliseconds) / USAGE_INTERVAL)
        measure();
}

/** Messages are put out at whole multiples of their interval, the same whenever ticks come. */
void outputs_t::putOutDue(qint64 now, int milliseconds)
{
    QMap<qint64, QList<key_t>> due;
    for (auto it = m_intervals.begin(); it != m_intervals.end(); ++it)
    {
        qint64 const interval = std::max<qint64>(std::llround(it.value() * 1000.0), 1);
        for (qint64 at = ((now - milliseconds) / interval + 1) * interval; at <= now; at += interval)
            due[at] << it.key();
    }
    for (auto it = due.begin(); it != due.end(); ++it)
    {
        fix_t const fix = fixAt(receiver, it.key());
        for (key_t const& key : it.value())
            putOut(key, fix);
    }
}

void outputs_t::putOut(key_t const& key, fix_t const& fix)
{
    if (!isInUse(key.first))
        return;
    for (QByteArray const& bytes : outputBytes(key.second, fix, receiver.settings(), m_frames[key.first]))
    {
        if (m_traffic[key.first].putOut(int(bytes.size())))
            receiver.putOut(key.first, bytes);
    }
    if (key.second.startsWith("RTCM"))
        ++m_frames[key.first];
}

bool outputs_t::isInUse(unsigned int port) const
{
    if (port >= FIRST_VIRTUAL_PORT)
    {
        QVariantList const configs = receiver.setting("vcomConfig").toList();
        return configs.value(int(port - FIRST_VIRTUAL_PORT)).toMap().value("enabled").toBool();
    }
    // As a mass storage the USB port carries files, and no messages.
    return port < FIRST_USB_PORT || receiver.setting("usbMode").toInt() == 0;
}

double outputs_t::capacity(unsigned int port) const
{
    if (!isInUse(port))
        return 0.0;
    if (port >= FIRST_VIRTUAL_PORT)
        return ETHERNET_CAPACITY;
    return serialCapacity(receiver.setting("serialConfig").toList().value(int(port)).toMap());
}

/** What a display and the receiver tell each other goes over the same line. How long a message is as bytes depends on the
 *  link; its text is nearly as long. */
void outputs_t::passed(link_t* link, message_t const& message)
{
    unsigned int const port = m_puttingOut ? receiver.activePort(link) : NUM_PORTS;
    if (port >= NUM_PORTS)
        return;
    int const size = int(toText(message).size());
    if (message.kind == message_t::REQUEST || message.kind == message_t::COMMAND)
        m_traffic[port].takeIn(size);
    else
        m_traffic[port].putOut(size);
}

void outputs_t::portInput(unsigned int port, QByteArray const& bytes)
{
    if (port < NUM_PORTS)
        m_traffic[port].takeIn(int(bytes.size()));
}

void outputs_t::measure()
{
    for (unsigned int port = 0; port < NUM_PORTS; ++port)
    {
        double txUsage = 0.0;
        double rxUsage = 0.0;
        m_traffic[port].measure(txUsage, rxUsage);
        bool const inUse = isInUse(port);
        // Displays show two decimals; what is less is no change worth telling.
        QVariantMap const usage = {{"port", port},
                                   {"txValid", inUse},
                                   {"rxValid", inUse},
                                   {"txUsage", std::round(txUsage * 100.0) / 100.0},
                                   {"rxUsage", std::round(rxUsage * 100.0) / 100.0}};
        if (usage == m_usage[port])
            continue;
        m_usage[port] = usage;
        receiver.report("portTxRxInfo", usage);
    }
}

void outputs_t::tellUsage(link_t* to)
{
    for (QVariantMap const& usage : m_usage)
    {
        if (m_puttingOut && !usage.isEmpty())
            receiver.report(to, "portTxRxInfo", usage);
    }
}

void outputs_t::linkAttached(link_t* link)
{
    tellUsage(link);
}

} // namespace melvox_receiver
