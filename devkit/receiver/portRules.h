#ifndef MELVOX_RECEIVER_PORT_RULES_H
#define MELVOX_RECEIVER_PORT_RULES_H

#include "receiver/behaviour.h"

#include <QSet>

namespace melvox_receiver
{

/** What a display must not do to the port that it comes in over, and what it is told of it: a line that is too slow, as
 *  soon as the display has said something over it, or the line becomes so. */
class portRules_t : public behaviour_t
{
public:
    explicit portRules_t(receiver_t& receiver);

    answer_t command(link_t* from, QString const& group, QVariant const& value) override;
    void passed(link_t* link, message_t const& message) override;
    void settingChanged(QString const& group) override;
    void linkAttached(link_t* link) override;
    void linkClosed(link_t* link) override;

private:
    void checkBaud(link_t* link);

    QSet<link_t*> m_heard;
};

} // namespace melvox_receiver

#endif
