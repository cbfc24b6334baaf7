#ifndef MELVOX_RECEIVER_DIFFERENTIAL_H
#define MELVOX_RECEIVER_DIFFERENTIAL_H

#include "receiver/behaviour.h"

#include <QList>
#include <QPair>

namespace melvox_receiver
{

/** What follows from work as a base station: its corrections go out on its port, in RTCM 2.3. A rover puts none out. */
class differential_t : public behaviour_t
{
public:
    explicit differential_t(receiver_t& receiver);

    void settingChanged(QString const& group) override;

private:
    typedef QList<QPair<unsigned int, QString>> outputs_t; //!< port and message

    static outputs_t outputsOf(QVariantMap const& config);
    void setOutput(QPair<unsigned int, QString> const& output, bool on);

    outputs_t m_outputs;
};

} // namespace melvox_receiver

#endif
