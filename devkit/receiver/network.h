#ifndef MELVOX_RECEIVER_NETWORK_H
#define MELVOX_RECEIVER_NETWORK_H

#include "receiver/behaviour.h"
#include "receiver/cutLinks.h"

namespace melvox_receiver
{

/** New addresses of the cable Ethernet interface: what comes in over it is cut for a while. */
class network_t : public behaviour_t
{
public:
    explicit network_t(receiver_t& receiver);

    void settingChanged(QString const& group) override;
    void advance(int milliseconds) override;

private:
    QVariant cable() const;
    void cut();
    void join();

    QVariant m_cable; //!< as it was
    qint64 m_cutAt;   //!< simulated time; negative: not at all
    qint64 m_joinAt;  //!< likewise
    cutLinks_t m_cutLinks;
};

} // namespace melvox_receiver

#endif
