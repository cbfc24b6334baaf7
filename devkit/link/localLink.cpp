#include "link/localLink.h"

namespace melvox_link
{

localLink_t::localLink_t(QString const& description, QObject* parent)
    : link_t(parent), m_description(description), m_open(true), m_serial(false), m_line(), m_latency(0)
{
    m_clock.start();
    m_timer.setSingleShot(true);
    connect(&m_timer, SIGNAL(timeout()), SLOT(deliver()));
}

localLink_t::~localLink_t()
{
}

bool localLink_t::isOpen() const
{
    return m_open && m_peer;
}

QString localLink_t::description() const
{
    return m_description;
}

bool localLink_t::line(line_t& line) const
{
    if (m_serial)
        line = m_line;
    return m_serial;
}

void localLink_t::setLine(line_t const& line)
{
    if (!m_serial)
        return;
    m_line = line;
}

void localLink_t::setCut(bool cut)
{
    setOpen(!cut);
}

void localLink_t::makeSerial(line_t const& line)
{
    m_serial = true;
    m_line = line;
}

void localLink_t::makePlain()
{
    m_serial = false;
}

void localLink_t::send(message_t const& message)
{
    if (isOpen())
        m_peer->take(message);
}

void localLink_t::setOpen(bool open)
{
    QPointer<localLink_t> const peer = m_peer;
    changeOpen(open);
    if (peer)
        peer->changeOpen(open);
}

void localLink_t::changeOpen(bool open)
{
    if (open == m_open)
        return;
    m_open = open;
    m_waiting.clear();
    m_timer.stop();
    emit openChanged(open);
}

void localLink_t::take(message_t const& message)
{
    waiting_t waiting;
    waiting.message = message;
    waiting.due = m_clock.elapsed() + m_latency;
    // A latency that was lowered must not let a message overtake those before it.
    if (!m_waiting.isEmpty())
        waiting.due = qMax(waiting.due, m_waiting.last().due);
    m_waiting << waiting;
    scheduleNext();
}

void localLink_t::scheduleNext()
{
    if (m_waiting.isEmpty())
        m_timer.stop();
    else if (!m_timer.isActive())
        m_timer.start(int(qMax<qint64>(0, m_waiting.first().due - m_clock.elapsed())));
}

void localLink_t::deliver()
{
    QPointer<localLink_t> const self(this);
    qint64 const now = m_clock.elapsed();
    while (self && !m_waiting.isEmpty() && m_waiting.first().due <= now)
    {
        message_t const message = m_waiting.takeFirst().message;
        // Whoever receives may run an event loop of its own; what follows must come through there too.
        scheduleNext();
        emit received(message);
    }
    if (self)
        scheduleNext();
}

localLinkPair_t::localLinkPair_t()
    : m_displayEnd(new localLink_t("simulated receiver", 0)), m_receiverEnd(new localLink_t("local display", 0))
{
    m_displayEnd->m_peer = m_receiverEnd.data();
    m_receiverEnd->m_peer = m_displayEnd.data();
}

localLinkPair_t::~localLinkPair_t()
{
}

localLink_t* localLinkPair_t::displayEnd() const
{
    return m_displayEnd.data();
}

localLink_t* localLinkPair_t::receiverEnd() const
{
    return m_receiverEnd.data();
}

void localLinkPair_t::setLatency(int milliseconds)
{
    m_displayEnd->m_latency = m_receiverEnd->m_latency = qMax(0, milliseconds);
}

int localLinkPair_t::latency() const
{
    return m_displayEnd->m_latency;
}

void localLinkPair_t::setOpen(bool open)
{
    m_displayEnd->setOpen(open);
}

bool localLinkPair_t::isOpen() const
{
    return m_displayEnd->isOpen();
}

} // namespace melvox_link
