#ifndef MELVOX_RECEIVER_POWER_H
#define MELVOX_RECEIVER_POWER_H

#include "receiver/behaviour.h"
#include "receiver/cutLinks.h"

namespace melvox_receiver
{

/** Loss of power: what is under way ends, no display gets through, and the receiver starts anew once the power is back.
 *
 *  Situation "powerCut": for how many seconds the power is gone from now on, 1 to 3600. */
class power_t : public behaviour_t
{
public:
    explicit power_t(receiver_t& receiver);

    QStringList situations() const override;
    answer_t situation(QString const& name, QVariant const& value) override;
    void linkAttached(link_t* link) override;
    void advance(int milliseconds) override;

private:
    cutLinks_t m_cutLinks;
    qint64 m_backAt; //!< simulated time; negative: there is power
};

} // namespace melvox_receiver

#endif
