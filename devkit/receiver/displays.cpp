#include "receiver/displays.h"

namespace melvox_receiver
{

using namespace melvox_link;

displays_t::displays_t(receiver_t& receiver)
    : m_receiver(receiver), m_latency(0), m_faultDelay(faultFilter_t::USUAL_DELAY)
{
}

void displays_t::add(link_t* link, unsigned int port)
{
    // They go with the link.
    faultFilter_t* const latency = new faultFilter_t(link, link);
    faultFilter_t* const faults = new faultFilter_t(latency, link);
    m_displays << display_t{latency, faults};
    spoil(m_displays.last());
    m_receiver.addLink(faults, m_port.value_or(port));
}

void displays_t::arrange(melvox_scenarios::moment_t const& moment)
{
    m_latency = moment.latency.value_or(m_latency);
    m_faultDelay = moment.faultDelay.value_or(m_faultDelay);
    if (moment.clearFaults)
        m_faults.clear();
    m_faults << moment.faults;
    if (moment.activePort)
        m_port = moment.activePort;
    QList<display_t> const displays = m_displays;
    m_displays.clear();
    for (display_t const& display : displays)
    {
        if (!display.faults)
            continue;
        m_displays << display;
        spoil(display);
        if (moment.activePort)
            m_receiver.setActivePort(display.faults, *m_port);
    }
}

void displays_t::spoil(display_t const& display) const
{
    display.latency->setDelay(m_latency);
    display.latency->setFault(QString(), FAULT_DELAY, m_latency > 0 ? 1.0 : 0.0);
    display.faults->setDelay(m_faultDelay);
    display.faults->clearFaults();
    for (faultSetting_t const& fault : m_faults)
        display.faults->setFault(fault.group, fault.fault, fault.probability, fault.direction);
}

QStringList leftToDisplays(melvox_scenarios::scenario_t const& scenario)
{
    bool baud = false;
    bool connected = false;
    bool drives = false;
    bool link = false;
    for (melvox_scenarios::moment_t const& moment : scenario.moments)
    {
        baud = baud || moment.baud;
        connected = connected || moment.connected;
        drives = drives || !moment.drives.isEmpty();
        link = link || !moment.linkKind.isEmpty();
    }
    QStringList left;
    if (baud)
        left << "baud";
    if (connected)
        left << "connected";
    if (drives)
        left << "drives";
    if (link)
        left << "link";
    return left;
}

} // namespace melvox_receiver
