#ifndef MELVOX_RECEIVER_DISPLAYS_H
#define MELVOX_RECEIVER_DISPLAYS_H

#include "link/faultFilter.h"
#include "receiver/receiver.h"
#include "scenarios/scenarioPlayer.h"

#include <QList>
#include <QPointer>

namespace melvox_receiver
{

/** The displays of a receiver that is a program of its own, and what a scenario does to their links: latency, faults and
 *  the port that they come in over. Their drives and the other ends of their links are theirs. */
class displays_t : public melvox_scenarios::stage_t
{
public:
    /** It must live as long. */
    explicit displays_t(receiver_t& receiver);

    /** `port` counts unless a scenario has said another one. The link stays the caller's and may go at any time. */
    void add(melvox_link::link_t* link, unsigned int port);

    void clear() override {}
    receiver_t& receiver() override { return m_receiver; }
    void arrange(melvox_scenarios::moment_t const& moment) override;
    void open() override {}

private:
    struct display_t
    {
        QPointer<melvox_link::faultFilter_t> latency;
        QPointer<melvox_link::faultFilter_t> faults;
    };

    void spoil(display_t const& display) const;

    receiver_t& m_receiver;
    QList<display_t> m_displays;
    std::optional<unsigned int> m_port;
    int m_latency; //!< milliseconds
    int m_faultDelay;
    QList<melvox_link::faultSetting_t> m_faults;
};

/** What of the scenario displays_t does not do, as the names of its keys. */
QStringList leftToDisplays(melvox_scenarios::scenario_t const& scenario);

} // namespace melvox_receiver

#endif
