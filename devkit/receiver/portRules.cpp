#include "receiver/portRules.h"

namespace melvox_receiver
{

namespace
{

unsigned int const SLOWEST_GOOD_BAUD = 115200;

} // namespace

portRules_t::portRules_t(receiver_t& owner) : behaviour_t(owner)
{
}

/** Whoever comes in over USB would cut his own link. */
behaviour_t::answer_t portRules_t::command(link_t* from, QString const& group, QVariant const&)
{
    unsigned int const port = receiver.activePort(from);
    if (group != "usbMode" || port < FIRST_USB_PORT || port >= NUM_PHYSICAL_PORTS)
        return NOT_MINE;
    receiver.report(from, group, receiver.setting(group));
    return DONE;
}

void portRules_t::passed(link_t* link, message_t const& message)
{
    bool const fromDisplay = message.kind == message_t::REQUEST || message.kind == message_t::COMMAND;
    if (!fromDisplay || m_heard.contains(link))
        return;
    m_heard.insert(link);
    checkBaud(link);
}

void portRules_t::settingChanged(QString const& group)
{
    if (group != "serialConfig")
        return;
    for (link_t* link : receiver.links())
    {
        if (m_heard.contains(link))
            checkBaud(link);
    }
}

void portRules_t::linkAttached(link_t* link)
{
    m_heard.remove(link);
}

void portRules_t::linkClosed(link_t* link)
{
    m_heard.remove(link);
}

void portRules_t::checkBaud(link_t* link)
{
    melvox_link::line_t line;
    if (receiver.activePort(link) < NUM_PHYSICAL_PORTS && link->line(line) && line.baud < SLOWEST_GOOD_BAUD)
        receiver.event(link, "badBaud");
}

} // namespace melvox_receiver
