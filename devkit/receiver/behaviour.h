#ifndef MELVOX_RECEIVER_BEHAVIOUR_H
#define MELVOX_RECEIVER_BEHAVIOUR_H

#include "receiver/receiver.h"

namespace melvox_receiver
{

/** What a receiver does beyond keeping settings, one subject each. Behaviours are made by the receiver from the list in
 *  behaviours.cpp and live as long as it. */
class behaviour_t
{
public:
    explicit behaviour_t(receiver_t& receiver);
    virtual ~behaviour_t();

    /** `from` asks for a group, or tells it to take a value. A group that is none of this behaviour's business gives
     *  NOT_MINE, and the next behaviour, then the settings, are asked. */
    enum answer_t
    {
        NOT_MINE,
        DONE,
        UNREADABLE //!< mine, but the value makes no sense
    };
    virtual answer_t request(link_t* from, QString const& group);
    virtual answer_t command(link_t* from, QString const& group, QVariant const& value);

    /** Something is another way around the receiver; each behaviour documents the names that are its business, and lists
     *  them: of others it does not hear. */
    virtual QStringList situations() const;
    virtual answer_t situation(QString const& name, QVariant const& value);

    /** What this behaviour knows at a time of the simulated clock and others may ask it by name, such as
     *  "extendedNavInfo"; invalid: nothing of that name. */
    virtual QVariant answer(QString const& name, qint64 at);

    /** A message has come from that display, or goes there. */
    virtual void passed(link_t* link, message_t const& message);

    /** Whoever listens at one of the receiver's ports has sent something. */
    virtual void portInput(unsigned int port, QByteArray const& bytes);

    /** A setting has changed, from whatever side, and its report is out. */
    virtual void settingChanged(QString const& group);

    /** A display comes in over that link, or over another port than before. */
    virtual void linkAttached(link_t* link);

    /** That display is gone. */
    virtual void linkClosed(link_t* link);

    /** Another display has the receiver for itself now, or none. */
    virtual void lockChanged();

    /** The receiver starts anew, as after a loss of power: settings stay. */
    virtual void restarted();

    /** Simulated time has passed. Comes only while this behaviour wants ticks. */
    virtual void advance(int milliseconds);

protected:
    receiver_t& receiver;

    void wantTicks(bool wanted);

private:
    Q_DISABLE_COPY(behaviour_t)
};

} // namespace melvox_receiver

#endif
