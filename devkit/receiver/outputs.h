#ifndef MELVOX_RECEIVER_OUTPUTS_H
#define MELVOX_RECEIVER_OUTPUTS_H

#include "receiver/behaviour.h"
#include "receiver/fix.h"
#include "receiver/traffic.h"

#include <QMap>
#include <QPair>

#include <array>

namespace melvox_receiver
{

/** Which messages are put out on which port and how often; puts them out, and tells how busy the ports are.
 *
 *  Situation "outputs": a flag, whether anything is really put out and the ports' usage told every second. Off at first,
 *  and the receiver then rests. */
class outputs_t : public behaviour_t
{
public:
    explicit outputs_t(receiver_t& receiver);

    answer_t request(link_t* from, QString const& group) override;
    answer_t command(link_t* from, QString const& group, QVariant const& value) override;
    QStringList situations() const override;
    answer_t situation(QString const& name, QVariant const& value) override;
    void passed(link_t* link, message_t const& message) override;
    void portInput(unsigned int port, QByteArray const& bytes) override;
    void linkAttached(link_t* link) override;
    void advance(int milliseconds) override;

private:
    typedef QPair<unsigned int, QString> key_t;

    void change(key_t const& key, double interval, link_t* asker);
    void startDatum(key_t const& trigger);
    void putOutDue(qint64 now, int milliseconds);
    void putOut(key_t const& key, fix_t const& fix);
    bool isInUse(unsigned int port) const;
    double capacity(unsigned int port) const;
    void measure();
    void tellUsage(link_t* to);
    answer_t set(link_t* from, QVariant const& value);
    answer_t turnOffAll(QVariant const& value);
    void list(link_t* to);

    /** Seconds between two outputs, by port and message; what is not put out is not there. */
    QMap<key_t, double> m_intervals;
    bool m_puttingOut;
    std::array<traffic_t, NUM_PORTS> m_traffic;
    std::array<QVariantMap, NUM_PORTS> m_usage; //!< as it was told last
    std::array<unsigned int, NUM_PORTS> m_frames;
};

/** All messages that the receiver can put out. */
QStringList outputMessages();

} // namespace melvox_receiver

#endif
