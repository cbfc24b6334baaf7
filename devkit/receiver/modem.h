#ifndef MELVOX_RECEIVER_MODEM_H
#define MELVOX_RECEIVER_MODEM_H

#include "receiver/behaviour.h"

namespace melvox_receiver
{

/** The LTE modem, which takes its time. */
class modem_t : public behaviour_t
{
public:
    explicit modem_t(receiver_t& receiver);

    answer_t request(link_t* from, QString const& group) override;
    answer_t command(link_t* from, QString const& group, QVariant const& value) override;
    void advance(int milliseconds) override;

private:
    QVariantMap status() const;

    bool m_on;
    int m_pending; //!< milliseconds until it is there
};

/** The Iridium modem: after a restart it starts up, looks for the network and tells what it found.
 *
 *  Situation: "iridiumProvisioned" tells whether the network knows it. */
class iridium_t : public behaviour_t
{
public:
    explicit iridium_t(receiver_t& receiver);

    answer_t situation(QString const& name, QVariant const& value) override;
    void restarted() override;
    void advance(int milliseconds) override;

private:
    void enter(int state);

    bool m_provisioned;
    int m_state;
    int m_left; //!< milliseconds
};

} // namespace melvox_receiver

#endif
