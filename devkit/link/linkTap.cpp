#include "link/linkTap.h"

namespace melvox_link
{

bool isFromDisplay(message_t const& message)
{
    return message.kind == message_t::REQUEST || message.kind == message_t::COMMAND;
}

linkTap_t::linkTap_t(link_t* link, QObject* parent) : link_t(parent), m_link(link)
{
    connect(link, SIGNAL(received(melvox_link::message_t)), SLOT(take(melvox_link::message_t)));
    connect(link, SIGNAL(openChanged(bool)), SIGNAL(openChanged(bool)));
}

linkTap_t::~linkTap_t()
{
}

bool linkTap_t::isOpen() const
{
    return m_link && m_link->isOpen();
}

QString linkTap_t::description() const
{
    return m_link ? m_link->description() : QString();
}

bool linkTap_t::line(line_t& line) const
{
    return m_link && m_link->line(line);
}

void linkTap_t::setLine(line_t const& line)
{
    if (m_link)
        m_link->setLine(line);
}

void linkTap_t::setCut(bool cut)
{
    if (m_link)
        m_link->setCut(cut);
}

void linkTap_t::send(message_t const& message)
{
    if (!isOpen())
        return;
    emit passed(message, isFromDisplay(message));
    if (m_link)
        m_link->send(message);
}

void linkTap_t::take(message_t const& message)
{
    emit passed(message, isFromDisplay(message));
    emit received(message);
}

} // namespace melvox_link
