#include "link/streamLink.h"

#include "link/jsonLine.h"

#include <QLoggingCategory>

namespace melvox_link
{

Q_LOGGING_CATEGORY(linkLog, "melvox.link")

namespace
{

qint64 const CHUNK = 16 * 1024; // bytes

}

streamLink_t::streamLink_t(QString const& description, QObject* parent)
    : link_t(parent), m_description(description), m_attached(false), m_skipping(false), m_ignoredLines(0)
{
}

streamLink_t::streamLink_t(QIODevice* device, QString const& description, QObject* parent)
    : streamLink_t(description, parent)
{
    connect(device, &QIODevice::aboutToClose, this, &streamLink_t::detach);
    connect(device, &QIODevice::readChannelFinished, this, &streamLink_t::detach);
    connect(device, &QObject::destroyed, this, &streamLink_t::detach);
    attach(device);
    // What was there already is not announced again.
    QMetaObject::invokeMethod(this, &streamLink_t::read, Qt::QueuedConnection);
}

streamLink_t::~streamLink_t() = default;

void streamLink_t::attach(QIODevice* device)
{
    m_buffer.clear();
    m_skipping = false;
    m_device = device;
    m_attached = true;
    connect(device, &QIODevice::readyRead, this, &streamLink_t::read);
    emit openChanged(true);
}

void streamLink_t::detach()
{
    if (!m_attached)
        return;
    m_attached = false;
    m_buffer.clear();
    if (m_device)
        disconnect(m_device, &QIODevice::readyRead, this, &streamLink_t::read);
    m_device = nullptr;
    emit openChanged(false);
}

bool streamLink_t::isOpen() const
{
    return m_device && m_device->isOpen();
}

QString streamLink_t::description() const
{
    return m_description;
}

void streamLink_t::setDescription(QString const& description)
{
    m_description = description;
}

int streamLink_t::ignoredLines() const
{
    return m_ignoredLines;
}

void streamLink_t::send(message_t const& message)
{
    if (isOpen() && m_device->bytesToWrite() <= MOST_UNSENT)
        m_device->write(toLine(message));
}

void streamLink_t::setCut(bool cut)
{
    if (cut && m_device)
        m_device->close();
}

void streamLink_t::read()
{
    QPointer<streamLink_t> const self(this);
    while (self && m_device)
    {
        QByteArray const chunk = m_device->read(CHUNK);
        if (chunk.isEmpty())
            return;
        m_buffer += chunk;
        takeBuffer();
    }
}

void streamLink_t::takeBuffer()
{
    QPointer<streamLink_t> const self(this);
    while (self)
    {
        int const end = int(m_buffer.indexOf('\n'));
        if (end < 0)
            break;
        QByteArray const line = m_buffer.left(end);
        m_buffer.remove(0, end + 1);
        if (m_skipping)
            m_skipping = false;
        else if (line.size() > LONGEST_LINE)
            ignore("the line is too long", line);
        else
            takeLine(line);
    }
    if (!self || (m_buffer.size() <= LONGEST_LINE && !m_skipping))
        return;
    QByteArray const beginning = m_buffer.left(LONGEST_REPORTED_TEXT);
    m_buffer.clear();
    if (m_skipping)
        return;
    m_skipping = true;
    ignore("the line is too long", beginning);
}

void streamLink_t::takeLine(QByteArray const& line)
{
    if (line.trimmed().isEmpty())
        return;
    message_t message;
    QString reason;
    if (fromLine(line, message, reason))
        emit received(message);
    else
        ignore(reason, line);
}

void streamLink_t::ignore(QString const& reason, QByteArray const& line)
{
    ++m_ignoredLines;
    QByteArray const text = line.left(LONGEST_REPORTED_TEXT);
    qCDebug(linkLog) << "line ignored," << reason << text;
    emit lineIgnored(reason, text);
}

} // namespace melvox_link
