#ifndef MELVOX_RECEIVER_MODEM_H
#define MELVOX_RECEIVER_MODEM_H

#include "receiver/behaviour.h"

namespace melvox_receiver
{

/** The LTE modem: once it is switched on it starts, looks for a network and registers there; what it lacks it says for as
 *  long as it lacks it. While it is being switched its modem status is PENDING.
 *
 *  Situations: "lteSim" tells whether there is a SIM card in it; "lteSignal" is how strong the network is, in dBm;
 *  "lteModem" is "OFF", "ON", or "PENDING", which then never ends, whatever the modem is told. */
class modem_t : public behaviour_t
{
public:
    explicit modem_t(receiver_t& receiver);

    answer_t request(link_t* from, QString const& group) override;
    answer_t command(link_t* from, QString const& group, QVariant const& value) override;
    QStringList situations() const override;
    answer_t situation(QString const& name, QVariant const& value) override;
    void restarted() override;
    void advance(int milliseconds) override;

private:
    QVariantMap status() const;
    bool hearsNetwork() const;
    void switchTo(bool on);
    void enter(int state);
    void tell();
    void goOn();
    void search();
    void takeSim(bool present);
    void takeSignal(double strength);
    answer_t takeState(QString const& state);

    bool m_on;        //!< as it was told
    bool m_switching; //!< not there yet
    bool m_stuck;     //!< and never will be
    bool m_sim;
    double m_signal; //!< dBm
    int m_state;
    int m_left; //!< milliseconds until the state is over; 0: it lasts
    QVariantMap m_told;
};

/** The Iridium modem: after a restart it starts up, looks for the network and tells what it found.
 *
 *  Situation: "iridiumProvisioned" tells whether the network knows it. */
class iridium_t : public behaviour_t
{
public:
    explicit iridium_t(receiver_t& receiver);

    QStringList situations() const override;
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
