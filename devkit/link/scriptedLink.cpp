#include "link/scriptedLink.h"

namespace melvox_link
{

scriptedLink_t::scriptedLink_t(QObject* parent) : link_t(parent), m_open(true), m_serial(false), m_line()
{
}

scriptedLink_t::~scriptedLink_t()
{
}

bool scriptedLink_t::isOpen() const
{
    return m_open;
}

QString scriptedLink_t::description() const
{
    return "scripted receiver";
}

bool scriptedLink_t::line(line_t& line) const
{
    if (m_serial)
        line = m_line;
    return m_serial;
}

void scriptedLink_t::setLine(line_t const& line)
{
    if (!m_serial)
        return;
    m_line = line;
    m_lines << lineText(line);
}

void scriptedLink_t::makeSerial(line_t const& line)
{
    m_serial = true;
    m_line = line;
}

QStringList scriptedLink_t::lines() const
{
    return m_lines;
}

void scriptedLink_t::send(message_t const& message)
{
    if (m_open)
        m_messages << message;
}

void scriptedLink_t::setOpen(bool open)
{
    if (open == m_open)
        return;
    m_open = open;
    emit openChanged(open);
}

void scriptedLink_t::report(QString const& group, QVariant const& value)
{
    if (m_open)
        emit received(message_t(message_t::REPORT, group, value));
}

void scriptedLink_t::event(QString const& group, QVariant const& value)
{
    if (m_open)
        emit received(message_t(message_t::EVENT, group, value));
}

QList<message_t> const& scriptedLink_t::messages() const
{
    return m_messages;
}

QStringList scriptedLink_t::sent() const
{
    QStringList texts;
    for (message_t const& message : m_messages)
        texts << kindName(message.kind) + ' ' + toText(message);
    return texts;
}

QStringList scriptedLink_t::commands() const
{
    QStringList texts;
    for (message_t const& message : m_messages)
    {
        if (message.kind == message_t::COMMAND)
            texts << toText(message);
    }
    return texts;
}

QStringList scriptedLink_t::requests() const
{
    QStringList groups;
    for (message_t const& message : m_messages)
    {
        if (message.kind == message_t::REQUEST)
            groups << message.group;
    }
    return groups;
}

void scriptedLink_t::clear()
{
    m_messages.clear();
    m_lines.clear();
}

} // namespace melvox_link
