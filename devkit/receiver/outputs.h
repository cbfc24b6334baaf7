#ifndef MELVOX_RECEIVER_OUTPUTS_H
#define MELVOX_RECEIVER_OUTPUTS_H

#include "receiver/behaviour.h"

#include <QMap>
#include <QPair>

namespace melvox_receiver
{

/** Which messages are put out on which port, and how often. */
class outputs_t : public behaviour_t
{
public:
    explicit outputs_t(receiver_t& receiver);

    answer_t request(link_t* from, QString const& group) override;
    answer_t command(link_t* from, QString const& group, QVariant const& value) override;

private:
    answer_t set(link_t* from, QVariant const& value);
    answer_t turnOffAll(QVariant const& value);
    void list(link_t* to);

    /** Seconds between two outputs, by port and message; what is not put out is not there. */
    typedef QMap<QPair<unsigned int, QString>, double> intervals_t;
    intervals_t m_intervals;
};

/** All messages that the receiver can put out. */
QStringList outputMessages();

} // namespace melvox_receiver

#endif
