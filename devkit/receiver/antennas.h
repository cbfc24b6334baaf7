#ifndef MELVOX_RECEIVER_ANTENNAS_H
#define MELVOX_RECEIVER_ANTENNAS_H

#include "receiver/behaviour.h"

#include <QHash>

namespace melvox_receiver
{

/** The names of known antennas, which arrive one by one; and the base station's antenna, which its messages tell a
 *  receiver that is to find it out by itself.
 *
 *  Situation "antennaNamesAnew": true, the receiver's table of antennas was replaced, and all displays are told the
 *  names again. */
class antennas_t : public behaviour_t
{
public:
    explicit antennas_t(receiver_t& receiver);

    answer_t request(link_t* from, QString const& group) override;
    QStringList situations() const override;
    answer_t situation(QString const& name, QVariant const& value) override;
    void settingChanged(QString const& group) override;
    void linkClosed(link_t* link) override;
    void restarted() override;
    void advance(int milliseconds) override;

private:
    void tellNames(link_t* to);
    void advanceNames(int milliseconds);
    void advanceRemote(int milliseconds);
    void updateTicks();

    QHash<link_t*, int> m_next; //!< the name that each display is told next
    int m_waited;               //!< milliseconds since the last name
    int m_untilRemote;          //!< milliseconds until the base station tells its antenna; 0: it has told
};

} // namespace melvox_receiver

#endif
