#include "scenarios/scenarioPlayer.h"

#include "receiver/receiver.h"

namespace melvox_scenarios
{

stage_t::~stage_t() = default;

scenarioPlayer_t::scenarioPlayer_t(stage_t& stage, melvox_receiver::simClock_t& clock, QObject* parent)
    : QObject(parent), m_stage(stage), m_clock(clock), m_next(0), m_start(0)
{
    connect(&m_clock, &melvox_receiver::simClock_t::ticked, this, &scenarioPlayer_t::follow);
}

int scenarioPlayer_t::stepsLeft() const
{
    return int(m_scenario.moments.size()) - m_next;
}

void scenarioPlayer_t::start(scenario_t const& scenario, std::optional<double> speed)
{
    m_scenario = scenario;
    m_speed = speed;
    m_start = m_clock.now();
    m_next = 0;
    m_clock.setSpeed(m_speed.value_or(1.0));
    m_stage.clear();
    take(m_scenario.moments.at(m_next++));
    m_stage.open();
    m_clock.wantTicks(this, stepsLeft() > 0);
}

void scenarioPlayer_t::follow()
{
    qint64 const now = m_clock.now();
    if (stepsLeft() == 0 || now < m_start + m_scenario.moments.at(m_next).at)
        return;
    while (stepsLeft() > 0 && now >= m_start + m_scenario.moments.at(m_next).at)
    {
        moment_t const moment = m_scenario.moments.at(m_next++);
        take(moment);
    }
    m_clock.wantTicks(this, stepsLeft() > 0);
    emit stepped();
}

void scenarioPlayer_t::take(moment_t const& moment)
{
    if (moment.speed && !m_speed)
        m_clock.setSpeed(*moment.speed);
    m_stage.arrange(moment);
    m_stage.receiver().restore(moment.settings);
    for (auto it = moment.situations.begin(); it != moment.situations.end(); ++it)
        m_stage.receiver().setSituation(it.key(), *it);
}

} // namespace melvox_scenarios
