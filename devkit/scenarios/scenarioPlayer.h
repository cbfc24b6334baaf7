#ifndef MELVOX_SCENARIOS_SCENARIO_PLAYER_H
#define MELVOX_SCENARIOS_SCENARIO_PLAYER_H

#include "scenarios/scenario.h"

#include <QObject>

namespace melvox_receiver
{
class receiver_t;
class simClock_t;
} // namespace melvox_receiver

namespace melvox_scenarios
{

/** Where scenarios are played: a receiver and what is around it. */
class stage_t
{
public:
    virtual ~stage_t();

    /** Everything as at the first start, with no display attached that could hear of half a scenario. */
    virtual void clear() = 0;
    /** The receiver as it stands, also after clear(). */
    virtual melvox_receiver::receiver_t& receiver() = 0;
    /** The part of a moment that is no matter of the receiver and its clock. What a stage does not have it passes
     *  over. */
    virtual void arrange(moment_t const& moment) = 0;
    /** The beginning is set. */
    virtual void open() = 0;
};

/** Plays a scenario in simulated time. */
class scenarioPlayer_t : public QObject
{
    Q_OBJECT

public:
    /** Both must live as long. */
    scenarioPlayer_t(stage_t& stage, melvox_receiver::simClock_t& clock, QObject* parent = nullptr);

    /** The beginning is there when this returns. With a speed, the scenario's own are passed over. */
    void start(scenario_t const& scenario, std::optional<double> speed = std::nullopt);

    /** The one that was started last; its name is empty before. */
    scenario_t const& scenario() const { return m_scenario; }
    /** How many steps are still to come. */
    int stepsLeft() const;

signals:
    /** A step was taken. */
    void stepped();

private:
    void follow();
    void take(moment_t const& moment);

    stage_t& m_stage;
    melvox_receiver::simClock_t& m_clock;
    scenario_t m_scenario;
    int m_next;
    qint64 m_start; //!< simulated time
    std::optional<double> m_speed;
};

} // namespace melvox_scenarios

#endif
