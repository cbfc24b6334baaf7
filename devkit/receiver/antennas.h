#ifndef MELVOX_RECEIVER_ANTENNAS_H
#define MELVOX_RECEIVER_ANTENNAS_H

#include "receiver/behaviour.h"

#include <QHash>

namespace melvox_receiver
{

/** The names of known antennas, which arrive one by one. */
class antennas_t : public behaviour_t
{
public:
    explicit antennas_t(receiver_t& receiver);

    answer_t request(link_t* from, QString const& group) override;
    void linkClosed(link_t* link) override;
    void restarted() override;
    void advance(int milliseconds) override;

private:
    QHash<link_t*, int> m_next; //!< the name that each display is told next
    int m_waited;               //!< milliseconds since the last name
};

} // namespace melvox_receiver

#endif
