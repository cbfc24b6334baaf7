#include "proxycheck/proxyCheck.h"

#include "proxycheck/adapter.h"
#include "proxycheck/enumerators.h"
#include "proxycheck/groupRows.h"
#include "proxycheck/signalRecorder.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QScopedPointer>
#include <QStringList>

#include <functional>

namespace melvox_proxycheck
{

namespace
{

char const* const ENUMERATIONS = "enumerations";

/** Which group names what is missing of the signals that belong to none. */
char const* const NO_GROUP = "everything";

/** A call that takes longer blocks the screen. */
int const LONGEST_CALL = 50; // milliseconds
/** One slow call may be the machine's fault. */
int const TRIES = 3;

/** What is queued may queue more. */
int const ROUNDS = 3;

void settle()
{
    for (int i = 0; i < ROUNDS; ++i)
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(0, QEvent::DeferredDelete);
    }
}

void waitFor(std::function<bool()> const& condition, int wait)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < wait)
        settle();
}

/** Sees whether the event loop runs. */
class witness_t : public QObject
{
public:
    witness_t() : m_ran(false) { QCoreApplication::postEvent(this, new QEvent(QEvent::User)); }

    bool ran() const { return m_ran; }

    bool event(QEvent* event) override
    {
        m_ran = m_ran || event->type() == QEvent::User;
        return QObject::event(event);
    }

private:
    bool m_ran;
};

QStringList signalsOf(step_t const& step)
{
    return QString::fromUtf8(step.told).split("; ");
}

QString nameOf(QString const& told)
{
    return told.section(' ', 0, 0);
}

QString nameOf(QByteArray const& signature)
{
    return QString::fromLatin1(signature.left(signature.indexOf('(')));
}

QString orNothing(QString const& text)
{
    return text.isEmpty() ? "nothing" : text;
}

QString toText(message_t const& message)
{
    return (message.group + ' ' + text(message.value)).trimmed();
}

groupRow_t const* findRow(QString const& group)
{
    for (groupRow_t const& row : groupRows())
    {
        if (group == row.group)
            return &row;
    }
    return 0;
}

QStringList signalsOf(groupRow_t const& row)
{
    QStringList names;
    for (step_t const& step : row.steps)
    {
        for (QString const& told : signalsOf(step))
            names << nameOf(told);
    }
    return names;
}

bool belongsToNoGroup(QString const& signal)
{
    for (groupRow_t const& row : groupRows())
    {
        if (signalsOf(row).contains(signal))
            return false;
    }
    return true;
}

/** The signatures that an object has under a name. */
QStringList signaturesOf(QObject const* object, QString const& name)
{
    QStringList found;
    QMetaObject const* const meta = object->metaObject();
    for (int i = 0; i < meta->methodCount(); ++i)
    {
        QByteArray const signature = signatureOf(meta->method(i));
        if (meta->method(i).methodType() == QMetaMethod::Signal && nameOf(signature) == name)
            found << QString::fromLatin1(signature);
    }
    return found;
}

/** One group on a proxy of its own. Each part returns false once there is a finding. */
class rowCheck_t
{
public:
    rowCheck_t(groupRow_t const& row, adapter_t& adapter, int wait);

    QList<finding_t> run();

private:
    typedef std::function<void()> call_t;

    bool checkSignals();
    bool checkBefore();
    bool checkRequest();
    bool checkSteps();
    bool checkOrder(order_t const& order);
    bool checkOrders();

    /** What every call into the proxy has to keep, whatever it is for. */
    bool checkCall(QString const& name, call_t const& call);
    bool checkSilence(QString const& name, QString const& state);
    bool checkHeard(order_t const& order);
    bool play(std::vector<step_t const*> const& steps);
    bool checkTold(QStringList const& expected);
    bool checkStates(std::vector<step_t const*> const& steps);

    QString state() const;
    bool compare(QString const& what, QString const& expected, QString const& seen);
    bool find(QString const& what, QString const& expected, QString const& seen);

    groupRow_t const& m_row;
    adapter_t& m_adapter;
    int m_wait;
    QScopedPointer<device_t> m_device;
    signalRecorder_t m_recorder;
    QList<finding_t> m_findings;
};

rowCheck_t::rowCheck_t(groupRow_t const& row, adapter_t& adapter, int wait)
    : m_row(row), m_adapter(adapter), m_wait(wait), m_device(adapter.createDevice()),
      m_recorder(m_device.data(), [this]() { return state(); })
{
    m_recorder.watchPort(m_device->port());
}

QList<finding_t> rowCheck_t::run()
{
    // What a proxy does by itself when it is made is none of the group's.
    settle();
    if (checkSignals() && checkBefore() && checkRequest() && checkSteps() && checkRequest())
        checkOrders();
    return m_findings;
}

bool rowCheck_t::find(QString const& what, QString const& expected, QString const& seen)
{
    finding_t const finding = {m_row.group, what, orNothing(expected), orNothing(seen)};
    m_findings << finding;
    return false;
}

bool rowCheck_t::compare(QString const& what, QString const& expected, QString const& seen)
{
    return seen == expected || find(what, expected, seen);
}

QString rowCheck_t::state() const
{
    return m_row.state ? m_row.state(*m_device) : QString();
}

bool rowCheck_t::checkSignals()
{
    QStringList const own = signalsOf(m_row);
    for (QByteArray const& signature : m_recorder.missing())
    {
        QString const name = nameOf(signature);
        if (!own.contains(name) && !(belongsToNoGroup(name) && QString(m_row.group) == NO_GROUP))
            continue;
        QStringList const seen = signaturesOf(m_device.data(), name) + signaturesOf(m_device->port(), name);
        return find("the declared signals", QString::fromLatin1(signature), seen.join(", "));
    }
    return true;
}

bool rowCheck_t::checkBefore()
{
    return !m_row.state || compare("the getters before any report", QString::fromUtf8(m_row.unknown), state());
}

bool rowCheck_t::checkCall(QString const& name, call_t const& call)
{
    m_recorder.clear();
    qint64 took = LONGEST_CALL + 1;
    for (int i = 0; i < TRIES && took > LONGEST_CALL; ++i)
    {
        witness_t const witness;
        QElapsedTimer timer;
        timer.start();
        call();
        took = timer.elapsed();
        if (witness.ran())
            return find(name + ", the call", "that the event loop stands still", "that it ran within");
    }
    if (took > LONGEST_CALL)
        return find(name + ", the call", QString("that it returns within %1 ms").arg(LONGEST_CALL),
                    QString("%1 ms at best of %2").arg(took).arg(TRIES));
    return compare(name + ", the signals within the call", QString(), m_recorder.told.join("; "));
}

/** The receiver has said nothing. */
bool rowCheck_t::checkSilence(QString const& name, QString const& expected)
{
    settle();
    return compare(name + ", the signals before the receiver's answer", QString(), m_recorder.told.join("; ")) &&
           compare(name + ", the getters before the receiver's answer", expected, state());
}

bool rowCheck_t::checkRequest()
{
    if (!m_row.query)
        return true;
    QString const before = state();
    QList<message_t> messages;
    bool const canTell = m_adapter.heard(messages);
    int const sent = int(messages.size());
    if (!checkCall("the request", [this]() { (m_device.data()->*m_row.query)(); }))
        return false;
    auto const hears = [this, sent]()
    {
        QList<message_t> heard;
        return m_adapter.heard(heard) && heard.size() > sent;
    };
    if (canTell)
        waitFor(hears, m_wait);
    if (canTell && !hears())
        return find("the request, what the receiver hears", "a message", QString());
    return checkSilence("the request", before);
}

bool rowCheck_t::checkSteps()
{
    std::vector<step_t const*> all;
    for (step_t const& step : m_row.steps)
        all.push_back(&step);
    if (m_row.kind == groupRow_t::LIST)
        return play(all);
    // Pages wait for the signal alone, so it comes also for what is known already.
    if (!all.empty())
        all.push_back(all.back());
    for (step_t const* step : all)
    {
        if (m_row.kind == groupRow_t::ANSWERS && !checkOrder(m_row.orders.front()))
            return false;
        if (!play({step}))
            return false;
    }
    return true;
}

bool rowCheck_t::play(std::vector<step_t const*> const& steps)
{
    QList<message_t> messages;
    QStringList expected;
    for (step_t const* step : steps)
    {
        message_t const message = {m_row.messageOf(*step), step->value};
        messages << message;
        expected << signalsOf(*step);
    }
    m_recorder.clear();
    m_adapter.say(messages);
    waitFor([&]() { return m_recorder.count() >= expected.size(); }, m_wait);
    settle();
    return checkTold(expected) && checkStates(steps);
}

bool rowCheck_t::checkTold(QStringList const& expected)
{
    QStringList wanted = expected;
    QStringList seen = m_recorder.told;
    // Only what a list says has an order.
    if (m_row.kind != groupRow_t::LIST)
    {
        wanted.sort();
        seen.sort();
    }
    if (!compare("the signals after its report", wanted.join("; "), seen.join("; ")))
        return false;
    return !m_recorder.cameFromOtherThreads() ||
           find("the thread of its signals", "the one that the proxy lives in", "another one");
}

bool rowCheck_t::checkStates(std::vector<step_t const*> const& steps)
{
    if (!m_row.state)
        return true;
    if (!compare("the getters after its report", QString::fromUtf8(steps.back()->known), state()))
        return false;
    int at = 0;
    for (step_t const* step : steps)
    {
        for (int i = 0; i < signalsOf(*step).size(); ++i)
        {
            if (!compare("the getters when its signal comes", QString::fromUtf8(step->known),
                         m_recorder.states.at(at++)))
                return false;
        }
    }
    return true;
}

bool rowCheck_t::checkOrders()
{
    if (m_row.kind == groupRow_t::ANSWERS)
        return true;
    for (order_t const& order : m_row.orders)
    {
        QString const before = state();
        if (!checkOrder(order) || !checkSilence(order.name, order.known ? QString::fromUtf8(order.known) : before))
            return false;
    }
    if (m_row.orders.empty() || m_row.steps.empty())
        return true;
    // The receiver's answer to an order is a report like any other.
    return m_row.kind == groupRow_t::LIST ? checkSteps() : play({&m_row.steps.back()});
}

bool rowCheck_t::checkOrder(order_t const& order)
{
    return checkCall(order.name, [&]() { order.give(*m_device); }) && checkHeard(order);
}

bool rowCheck_t::checkHeard(order_t const& order)
{
    message_t const expected = {order.message ? order.message : m_row.group, order.value};
    auto const last = [this]()
    {
        QList<message_t> messages;
        m_adapter.heard(messages);
        return messages.isEmpty() ? QString() : toText(messages.last());
    };
    QList<message_t> messages;
    if (expected.group.isEmpty() || !m_adapter.heard(messages))
        return true;
    waitFor([&]() { return last() == toText(expected); }, m_wait);
    return compare(QString(order.name) + ", what the receiver hears last", toText(expected), last());
}

QList<finding_t> checkEnumerators()
{
    QList<finding_t> findings;
    for (enumerator_t const& one : enumerators())
    {
        finding_t const finding = {ENUMERATIONS, one.name, QString::number(one.expected), QString::number(one.value)};
        if (one.value != one.expected)
            findings << finding;
    }
    return findings;
}

} // namespace

QString toText(finding_t const& finding)
{
    return QString("%1: %2: expected %3, seen %4").arg(finding.group, finding.what, finding.expected, finding.seen);
}

QStringList groupNames()
{
    QStringList names;
    names << ENUMERATIONS;
    for (groupRow_t const& row : groupRows())
        names << row.group;
    return names;
}

QList<finding_t> checkGroup(QString const& group, adapter_t& adapter, int wait)
{
    groupRow_t const* const row = findRow(group);
    return row ? rowCheck_t(*row, adapter, wait).run() : checkEnumerators();
}

} // namespace melvox_proxycheck
