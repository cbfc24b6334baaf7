#ifndef MELVOX_RECEIVER_NAVIGATION_H
#define MELVOX_RECEIVER_NAVIGATION_H

#include "receiver/behaviour.h"

namespace melvox_receiver
{

/** The position solution: there, or lost for a while after a restart. */
class navigation_t : public behaviour_t
{
public:
    explicit navigation_t(receiver_t& receiver);

    answer_t request(link_t* from, QString const& group) override;
    answer_t command(link_t* from, QString const& group, QVariant const& value) override;
    void restarted() override;
    void advance(int milliseconds) override;

private:
    answer_t reboot(QVariant const& value);
    void loseSolution(int recovery);
    QVariantMap info() const;

    int m_recovery;    //!< milliseconds until there is a solution again
    qint64 m_rebootAt; //!< simulated time; negative: not at all
};

} // namespace melvox_receiver

#endif
