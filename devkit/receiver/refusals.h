#ifndef MELVOX_RECEIVER_REFUSALS_H
#define MELVOX_RECEIVER_REFUSALS_H

#include "receiver/behaviour.h"

namespace melvox_receiver
{

/** Groups of which the receiver takes no value, however good: it answers with what stands.
 *
 *  Situation "refusedGroups": the list of their names; none at first. */
class refusals_t : public behaviour_t
{
public:
    explicit refusals_t(receiver_t& receiver);

    answer_t command(link_t* from, QString const& group, QVariant const& value) override;
    QStringList situations() const override;
    answer_t situation(QString const& name, QVariant const& value) override;

private:
    QStringList m_groups;
};

} // namespace melvox_receiver

#endif
