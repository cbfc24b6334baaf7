#include "link/replayLink.h"

#include "link/secrets.h"

#include <QFileInfo>

#include <algorithm>
#include <limits>

namespace melvox_link
{

namespace
{

/** A display that has not sent a command by then will not send it. */
int const PATIENCE_MS = 3000;

bool readLine(QVariantMap const& map, line_t& line)
{
    QString const parity = map.value("parity").toString();
    line = {map.value("baud").toUInt(), map.value("dataBits").toInt(), parity.isEmpty() ? 'N' : parity.at(0).toLatin1(),
            map.value("stopBits").toInt()};
    return line.baud > 0;
}

} // namespace

replayLink_t::replayLink_t(std::shared_ptr<journal_t const> journal, QObject* parent)
    : link_t(parent), m_journal(std::move(journal)), m_next(0), m_speed(1.0), m_open(false), m_serial(false), m_line(),
      m_commandsSent(0), m_commandsPassed(0), m_patient(true)
{
    m_serial = readLine(m_journal->header.value("line").toMap(), m_line);
    for (QTimer* timer : {&m_timer, &m_patience})
        timer->setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_patience.setInterval(PATIENCE_MS);
    connect(&m_timer, &QTimer::timeout, this, &replayLink_t::play);
    connect(&m_patience, &QTimer::timeout, this, &replayLink_t::giveUpWaiting);
}

replayLink_t::~replayLink_t() = default;

bool replayLink_t::isOpen() const
{
    return m_open;
}

QString replayLink_t::description() const
{
    return "journal " + QFileInfo(m_journal->file).fileName();
}

bool replayLink_t::line(line_t& line) const
{
    if (m_serial)
        line = m_line;
    return m_serial;
}

void replayLink_t::setLine(line_t const& line)
{
    if (m_serial)
        m_line = line;
}

void replayLink_t::setSpeed(double speed)
{
    m_speed = std::max(0.0, speed);
}

void replayLink_t::send(message_t const& message)
{
    if (!m_open)
        return;
    m_sent << message;
    if (message.kind != message_t::COMMAND)
        return;
    ++m_commandsSent;
    if (!m_patience.isActive())
        return;
    m_patience.stop();
    schedule();
}

void replayLink_t::start()
{
    m_clock.start();
    schedule();
}

/** The next one has a turn of the event loop of its own, so that what this one set off is done before. */
void replayLink_t::schedule()
{
    qint64 wait = 0;
    if (m_speed > 0.0 && m_next < m_journal->entries.size())
        wait = qint64(double(m_journal->entries[m_next].at) / m_speed) - m_clock.elapsed();
    m_timer.start(int(std::clamp<qint64>(wait, 0, std::numeric_limits<int>::max())));
}

bool replayLink_t::mustWait(journalEntry_t const& entry)
{
    return m_speed <= 0.0 && m_patient && entry.isCommand() && m_commandsSent <= m_commandsPassed;
}

void replayLink_t::giveUpWaiting()
{
    // One is missing, and so it will be at each that follows.
    m_patient = false;
    schedule();
}

void replayLink_t::play()
{
    if (m_next == m_journal->entries.size())
    {
        emit ended();
        return;
    }
    journalEntry_t const& entry = m_journal->entries[m_next];
    if (mustWait(entry))
    {
        m_patience.start();
        return;
    }
    m_commandsPassed += entry.isCommand();
    ++m_next;
    // Before it is passed on: that may run an event loop of its own, which the journal must go on in.
    schedule();
    pass(entry, int(m_next) - 1);
}

void replayLink_t::pass(journalEntry_t const& entry, int index)
{
    switch (entry.kind)
    {
    case journalEntry_t::RECEIVED:
        if (m_open)
            emit received(withBytes(entry.message()));
        break;
    case journalEntry_t::OPENED:
    case journalEntry_t::CLOSED:
        if (m_open == (entry.kind == journalEntry_t::OPENED))
            break;
        m_open = !m_open;
        emit openChanged(m_open);
        break;
    case journalEntry_t::ACTION:
        emit reached(index);
        break;
    case journalEntry_t::SENT:
    case journalEntry_t::END:
        break;
    }
}

} // namespace melvox_link
