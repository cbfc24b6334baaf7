#include "portEndpoint.h"

#include "values.h"

#include <QTimer>

using namespace brel_common_qt;
using melvox_link::message_t;

namespace melvox_kit
{

portEndpoint_t::portEndpoint_t(melvox_link::link_t* link, linkKind_t kind)
    : m_link(link), m_kind(kind), m_lock(PORT_LOCK_NONE), m_lockAsked(false), m_releasing(false), m_uploading(false),
      m_line()
{
    qRegisterMetaType<message_t>("melvox_link::message_t");
    connect(link, SIGNAL(received(melvox_link::message_t)), SLOT(take(melvox_link::message_t)));
    connect(link, SIGNAL(openChanged(bool)), SLOT(takeOpen(bool)));
}

bool portEndpoint_t::isOpen() const
{
    return m_link && m_link->isOpen();
}

void portEndpoint_t::send(message_t const& message)
{
    if (!isHeldBack())
    {
        sendNow(message);
        return;
    }
    if (message.kind == message_t::REQUEST)
    {
        for (int i = 0; i < m_waiting.size(); ++i)
        {
            if (m_waiting.at(i).kind == message_t::REQUEST && m_waiting.at(i).group == message.group)
                return;
        }
    }
    m_waiting << message;
}

void portEndpoint_t::sendNow(message_t const& message)
{
    if (m_link)
        m_link->send(message);
}

void portEndpoint_t::requestLock(portLock_t lock)
{
    if (!isOpen())
    {
        QTimer::singleShot(0, this, SLOT(refuseLock()));
        return;
    }
    sendNow(message_t(message_t::COMMAND, "portLock", int(lock)));
    m_lockAsked = lock != PORT_LOCK_NONE;
    m_releasing = lock == PORT_LOCK_NONE;
    if (m_releasing)
        sendWaiting();
}

void portEndpoint_t::refuseLock()
{
    takeLock(PORT_LOCK_NONE);
}

void portEndpoint_t::upload(QByteArray const& bytes)
{
    m_uploading = true;
    if (isOpen())
        sendNow(message_t(message_t::COMMAND, "uploadData", bytes));
    else
        QTimer::singleShot(0, this, SLOT(refuseUpload()));
}

void portEndpoint_t::refuseUpload()
{
    if (!m_uploading)
        return;
    m_uploading = false;
    emit uploadResult(UPLOAD_PORT_CLOSED);
}

void portEndpoint_t::take(message_t const& message)
{
    // A line that loops back must not pass for a receiver that took everything.
    if (message.kind != message_t::REPORT && message.kind != message_t::EVENT)
        return;
    int number = 0;
    if (message.group == "portLock")
    {
        if (read(message.value, number) && number >= PORT_LOCK_NONE && number <= PORT_LOCK_PLUGIN)
            takeLock(portLock_t(number));
    }
    else if (message.group == "uploadResult")
    {
        // One that comes twice must not pass for the result of the next block.
        if (m_uploading && read(message.value, number))
        {
            m_uploading = false;
            emit uploadResult(uploadStatus_t(number));
        }
    }
    else
    {
        emit received(message);
    }
}

void portEndpoint_t::takeOpen(bool open)
{
    if (!open)
        loseAll();
    emit openChanged(open);
}

/** What waited was meant for a receiver that is gone; whoever holds the lock, waits for it, or sent a block must hear
 *  of it. */
void portEndpoint_t::loseAll()
{
    m_waiting.clear();
    refuseUpload();
    if (m_lock != PORT_LOCK_NONE || m_lockAsked)
        takeLock(PORT_LOCK_NONE);
}

void portEndpoint_t::takeLock(portLock_t lock)
{
    m_lock = lock;
    m_lockAsked = false;
    m_releasing = false;
    // Before anybody is told, who may have more to send.
    if (!isHeldBack())
        sendWaiting();
    emit lockStateUpdated(lock);
}

void portEndpoint_t::sendWaiting()
{
    QList<message_t> const waiting = m_waiting;
    m_waiting.clear();
    for (int i = 0; i < waiting.size(); ++i)
        send(waiting.at(i));
}

serialPortConfig_t const* portEndpoint_t::line()
{
    melvox_link::line_t line = melvox_link::line_t();
    if (!m_link || !m_link->line(line))
        return 0;
    m_line.baud = line.baud;
    m_line.charSize = line.dataBits == 7 ? CHAR_SIZE_7 : CHAR_SIZE_8;
    m_line.parity = line.parity == 'O' ? PARITY_O : line.parity == 'E' ? PARITY_E : PARITY_N;
    m_line.stopBits = line.stopBits == 2 ? STOP_2 : STOP_1;
    return &m_line;
}

void portEndpoint_t::setLine(serialPortConfig_t const& config, bool localOnly)
{
    melvox_link::line_t line = melvox_link::line_t();
    if (!m_link || !m_link->line(line))
        return;
    // A serial device takes it for hanging up, and no receiver would follow.
    if (config.baud == 0)
    {
        qWarning("The line stays at %u baud: 0 is no rate, choose another one", line.baud);
        return;
    }
    if (!localOnly)
    {
        melvoxSerialPortConfig_t const receiverSide = {config.baud, config.charSize, config.parity, config.stopBits};
        sendNow(message_t(message_t::COMMAND, "serialConfig", writeRecord(receiverSide)));
    }
    m_line.flow = config.flow;
    line.baud = config.baud;
    line.dataBits = config.charSize == CHAR_SIZE_7 ? 7 : 8;
    line.parity = config.parity == PARITY_O ? 'O' : config.parity == PARITY_E ? 'E' : 'N';
    line.stopBits = config.stopBits == STOP_2 ? 2 : 1;
    m_link->setLine(line);
}

} // namespace melvox_kit
