#ifndef MELVOX_RECEIVER_CORRECTIONS_H
#define MELVOX_RECEIVER_CORRECTIONS_H

#include "receiver/behaviour.h"

namespace melvox_receiver
{

/** Reception of correction satellites and their almanac. */
class corrections_t : public behaviour_t
{
public:
    explicit corrections_t(receiver_t& receiver);

    answer_t command(link_t* from, QString const& group, QVariant const& value) override;

private:
    void useNewAlmanac();
};

} // namespace melvox_receiver

#endif
