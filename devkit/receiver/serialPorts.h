#ifndef MELVOX_RECEIVER_SERIAL_PORTS_H
#define MELVOX_RECEIVER_SERIAL_PORTS_H

#include "receiver/behaviour.h"

namespace melvox_receiver
{

/** Links over serial lines follow the settings of their ports. */
class serialPorts_t : public behaviour_t
{
public:
    explicit serialPorts_t(receiver_t& receiver);

    void linkAttached(link_t* link) override;
    void settingChanged(QString const& group) override;
};

} // namespace melvox_receiver

#endif
