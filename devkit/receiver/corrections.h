#ifndef MELVOX_RECEIVER_CORRECTIONS_H
#define MELVOX_RECEIVER_CORRECTIONS_H

#include "receiver/behaviour.h"
#include "receiver/correctionSignal.h"

#include <map>

namespace melvox_receiver
{

/** Reception of correction satellites and of their almanac. Of the satellites that are locked the strongest is in use,
 *  and stays in use while it is locked; once a satellite is selected, no other is looked for.
 *
 *  Situations:
 *  - "correctionReports": a flag, whether satellites are received at all, their statistics told every second and new
 *    almanacs taken after their time. Off at first, and the receiver then rests.
 *  - "correctionSatsInView": the list of the ids of the satellites that can be received; all at first.
 *  - "newAlmanac": true, a new almanac has come in just now. Otherwise one comes a day after the last was taken. */
class corrections_t : public behaviour_t
{
public:
    explicit corrections_t(receiver_t& receiver);

    answer_t command(link_t* from, QString const& group, QVariant const& value) override;
    QStringList situations() const override;
    answer_t situation(QString const& name, QVariant const& value) override;
    void settingChanged(QString const& group) override;
    void restarted() override;
    void advance(int milliseconds) override;

private:
    answer_t setReports(QVariant const& value);
    answer_t setInView(QVariant const& value);

    void receiveForASecond();
    void updateSky();
    void updateSignals();
    unsigned int chooseSatellite();
    void tellStats();

    void checkAlmanac();
    void newAlmanacCame();
    void useNewAlmanac();

    bool m_reports;
    QVariantList m_satellites; //!< all that there are, as the group "correctionSats" tells them
    QList<int> m_hidden;       //!< the ids of those that are out of view
    std::map<unsigned int, correctionSignal_t> m_signals;
    unsigned int m_inUse;   //!< 0: none
    qint64 m_almanacCameAt; //!< simulated time; means something while a new one is ready
};

} // namespace melvox_receiver

#endif
