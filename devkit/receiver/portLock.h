#ifndef MELVOX_RECEIVER_PORT_LOCK_H
#define MELVOX_RECEIVER_PORT_LOCK_H

#include "receiver/behaviour.h"

namespace melvox_receiver
{

/** One display at a time may have the receiver for itself.
 *
 *  Situation "lockRefused": a flag, whether nobody gets the lock. Whoever has it keeps it. */
class portLock_t : public behaviour_t
{
public:
    explicit portLock_t(receiver_t& receiver);

    answer_t command(link_t* from, QString const& group, QVariant const& value) override;
    QStringList situations() const override;
    answer_t situation(QString const& name, QVariant const& value) override;
    void linkClosed(link_t* link) override;
    void restarted() override;

private:
    void hold(link_t* holder, int state);

    link_t* m_holder;
    bool m_refused;
};

} // namespace melvox_receiver

#endif
