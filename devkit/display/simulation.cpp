#include "display/simulation.h"

#include "display/driveRack.h"
#include "display/unit.h"
#include "link/localLink.h"
#include "receiver/receiver.h"

#include <QLoggingCategory>

#include <algorithm>
#include <iterator>

namespace melvox_display
{

namespace
{

using namespace melvox_scenarios;

Q_LOGGING_CATEGORY(simulationLog, "melvox.simulation")

/** In the order of linkKinds(). */
melvox_kit::linkKind_t const KINDS[] = {melvox_kit::LINK_SERIAL, melvox_kit::LINK_TCP, melvox_kit::LINK_OTHER};

} // namespace

simulation_t::simulation_t(unit_t& unit, driveRack_t& drives, std::optional<double> speed, QObject* parent)
    : QObject(parent), m_unit(unit), m_drives(drives), m_speed(speed), m_opening(false), m_connected(true)
{
    connect(&m_unit, &unit_t::linkStateChanged, this, &simulation_t::changed);
    connect(&m_drives, &driveRack_t::changed, this, &simulation_t::changed);
    if (!hasReceiver())
        return;
    stage_t& stage = *this;
    m_player = std::make_unique<scenarioPlayer_t>(stage, m_unit.receiver()->clock());
    connect(m_player.get(), &scenarioPlayer_t::stepped, this, &simulation_t::changed);
    if (m_speed)
        m_unit.receiver()->clock().setSpeed(*m_speed);
}

simulation_t::~simulation_t() = default;

bool simulation_t::hasReceiver() const
{
    return m_unit.receiver() != nullptr;
}

void simulation_t::start(scenario_t const& scenario)
{
    if (!m_player)
        return;
    m_scenario = scenario;
    m_player->start(scenario, m_speed);
    emit changed();
}

int simulation_t::stepsLeft() const
{
    return m_player ? m_player->stepsLeft() : 0;
}

void simulation_t::clear()
{
    m_opening = true;
    m_connected = true;
    m_unit.localLink()->setOpen(false);
    m_unit.localLink()->setLatency(unit_t::USUAL_LATENCY);
    m_unit.faultFilter()->clearFaults();
    m_unit.faultFilter()->setDelay(melvox_link::faultFilter_t::USUAL_DELAY);
    m_unit.setLinkKind(melvox_kit::LINK_SERIAL);
    m_unit.setBaud(unit_t::USUAL_BAUD);
    m_unit.renewReceiver();
}

melvox_receiver::receiver_t& simulation_t::receiver()
{
    return *m_unit.receiver();
}

void simulation_t::open()
{
    m_opening = false;
    m_unit.localLink()->setOpen(m_connected);
}

void simulation_t::arrange(moment_t const& moment)
{
    if (!moment.linkKind.isEmpty())
        setLinkKind(moment.linkKind);
    if (moment.baud)
        setBaud(*moment.baud);
    if (moment.activePort)
        setActivePort(*moment.activePort);
    if (moment.latency)
        m_unit.localLink()->setLatency(*moment.latency);
    arrangeFaults(moment);
    arrangeDrives(moment);
    if (moment.connected)
        setConnected(*moment.connected);
}

void simulation_t::arrangeFaults(moment_t const& moment)
{
    if (moment.clearFaults)
        m_unit.faultFilter()->clearFaults();
    if (moment.faultDelay)
        m_unit.faultFilter()->setDelay(*moment.faultDelay);
    for (melvox_link::faultSetting_t const& fault : moment.faults)
        setFault(fault);
}

void simulation_t::arrangeDrives(moment_t const& moment)
{
    for (driveChange_t const& drive : moment.drives)
    {
        bool const good = drive.plugged ? m_drives.plugIn(drive.name, drive.files) : m_drives.pullOut(drive.name);
        // Somebody may have pulled it out before.
        if (!good && drive.plugged)
            qCWarning(simulationLog).noquote()
                << "the drive" << drive.name << "could not be written in" << m_drives.folder();
    }
}

unsigned int simulation_t::activePort() const
{
    return hasReceiver() ? m_unit.receiver()->activePort(m_unit.localLink()->receiverEnd()) : 0;
}

void simulation_t::setActivePort(unsigned int port)
{
    if (!hasReceiver())
        return;
    m_unit.receiver()->setActivePort(m_unit.localLink()->receiverEnd(), port);
    emit changed();
}

QString simulation_t::linkKind() const
{
    int const index = int(std::find(std::begin(KINDS), std::end(KINDS), m_unit.linkKind()) - std::begin(KINDS));
    return linkKinds().value(index);
}

void simulation_t::setLinkKind(QString const& kind)
{
    int const index = int(linkKinds().indexOf(kind));
    if (!hasReceiver() || index < 0)
        return;
    m_unit.setLinkKind(KINDS[index]);
    emit changed();
}

/** Another rate is another line: both ends come in anew. */
void simulation_t::setBaud(unsigned int baud)
{
    bool const open = isConnected();
    m_unit.localLink()->setOpen(false);
    m_unit.setBaud(baud);
    setActivePort(activePort());
    if (!m_opening)
        m_unit.localLink()->setOpen(open);
}

double simulation_t::speed() const
{
    return hasReceiver() ? m_unit.receiver()->clock().speed() : 1.0;
}

void simulation_t::setSpeed(double speed)
{
    if (!hasReceiver())
        return;
    m_unit.receiver()->clock().setSpeed(speed);
    emit changed();
}

bool simulation_t::isConnected() const
{
    return hasReceiver() && m_unit.localLink()->isOpen();
}

void simulation_t::setConnected(bool connected)
{
    m_connected = connected;
    if (hasReceiver() && !m_opening)
        m_unit.localLink()->setOpen(connected);
}

QList<melvox_link::faultSetting_t> simulation_t::faults() const
{
    return m_unit.faultFilter()->faults();
}

void simulation_t::setFault(melvox_link::faultSetting_t const& fault)
{
    m_unit.faultFilter()->setFault(fault.group, fault.fault, fault.probability, fault.direction);
    emit changed();
}

void simulation_t::clearFaults()
{
    m_unit.faultFilter()->clearFaults();
    emit changed();
}

} // namespace melvox_display
