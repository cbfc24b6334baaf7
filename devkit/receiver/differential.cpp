#include "receiver/differential.h"

namespace melvox_receiver
{

namespace
{

int const RTCM_23 = 1;
double const BASE_INTERVAL = 1.0; // seconds

/** What a base puts out in each mode, a rover nothing. */
QStringList const MESSAGES_OF_MODE[] = {{}, {"RTCM1", "RTCM31"}, {"RTCM9", "RTCM34"}};
int const NUM_MODES = 3;

} // namespace

differential_t::differential_t(receiver_t& owner)
    : behaviour_t(owner), m_outputs(outputsOf(owner.setting("diffConfig").toMap()))
{
}

differential_t::outputs_t differential_t::outputsOf(QVariantMap const& config)
{
    outputs_t outputs;
    int const mode = config.value("mode").toInt();
    if (mode >= 0 && mode < NUM_MODES)
    {
        for (QString const& message : MESSAGES_OF_MODE[mode])
            outputs << qMakePair(config.value("port").toUInt(), message);
    }
    return outputs;
}

void differential_t::setOutput(QPair<unsigned int, QString> const& output, bool on)
{
    receiver.obey("output", QVariantMap{{"port", output.first},
                                        {"message", output.second},
                                        {"method", on ? 1 : 0},
                                        {"interval", on ? BASE_INTERVAL : 0.0}});
}

void differential_t::settingChanged(QString const& group)
{
    if (group != "diffConfig")
        return;
    outputs_t const before = m_outputs;
    m_outputs = outputsOf(receiver.setting(group).toMap());
    for (auto const& output : before)
    {
        if (!m_outputs.contains(output))
            setOutput(output, false);
    }
    for (auto const& output : m_outputs)
    {
        if (!before.contains(output))
            setOutput(output, true);
    }
    if (!m_outputs.isEmpty())
        receiver.set("rtcmVersion", RTCM_23);
}

} // namespace melvox_receiver
