#include "receiver/navigation.h"

namespace melvox_receiver
{

namespace
{

int const WARM_RECOVERY = 20000; // milliseconds
int const ALMANAC_RECOVERY = 40000;
int const COLD_RECOVERY = 60000;
int const REBOOT_RECOVERY = 30000;

int const SOLUTION_AVAILABLE = 1;
int const TOO_FEW_MEASUREMENTS = 2;

qint64 const GPS_EPOCH = 315964800000; // 1980-01-06 00:00 UTC
qint64 const LEAP_SECONDS = 18000;     // milliseconds
qint64 const WEEK = 7 * 24 * 3600 * 1000;

double const LONGEST_REBOOT_DELAY = 3600.0; // seconds

} // namespace

navigation_t::navigation_t(receiver_t& owner) : behaviour_t(owner), m_recovery(0), m_rebootAt(-1)
{
}

QVariantMap navigation_t::info() const
{
    bool const available = m_recovery == 0;
    qint64 const gpsTime = receiver.clock().now() - GPS_EPOCH + LEAP_SECONDS;
    QVariantMap info = {{"valid", true},
                        {"gpsWeek", int(gpsTime / WEEK)},
                        {"gpsTime", double(gpsTime % WEEK) / 1000.0},
                        {"navValid", available ? 1 : 0},
                        {"datum", 1},
                        {"geoid", receiver.setting("geoidalModel").toInt() == 0 ? 0 : 1},
                        {"navMode", available ? 2 : 0},
                        {"navSource", available ? 9 : 0},
                        {"stationId", available ? 446 : 0},
                        {"failureCode", available ? SOLUTION_AVAILABLE : TOO_FEW_MEASUREMENTS}};
    QVariantMap const details = {{"setDeltaNorth", -0.011}, {"setDeltaEast", 0.027},   {"setDeltaUp", 0.084},
                                 {"latError", 0.0312},      {"lonError", 0.0287},      {"heightError", 0.0641},
                                 {"velocityNorth", 0.0021}, {"velocityEast", -0.0013}, {"velocityUp", 0.0034}};
    for (auto it = details.begin(); it != details.end(); ++it)
        info.insert(it.key(), available ? it.value().toDouble() : 0.0);
    return info;
}

behaviour_t::answer_t navigation_t::request(link_t* from, QString const& group)
{
    if (group != "extendedNavInfo")
        return NOT_MINE;
    receiver.report(from, group, info());
    return DONE;
}

behaviour_t::answer_t navigation_t::command(link_t*, QString const& group, QVariant const& value)
{
    if (group == "warmRestart")
    {
        loseSolution(WARM_RECOVERY);
        return DONE;
    }
    if (group == "coldRestart")
    {
        QVariant const useAlmanac = value.toMap().value("useBuiltInAlmanac");
        if (useAlmanac.userType() != QMetaType::Bool)
            return UNREADABLE;
        loseSolution(useAlmanac.toBool() ? ALMANAC_RECOVERY : COLD_RECOVERY);
        return DONE;
    }
    return group == "reboot" ? reboot(value) : NOT_MINE;
}

behaviour_t::answer_t navigation_t::reboot(QVariant const& value)
{
    QVariant const delay = value.toMap().value("delay");
    if (!isNumber(delay) || !(delay.toDouble() >= 0.0 && delay.toDouble() <= LONGEST_REBOOT_DELAY))
        return UNREADABLE;
    m_rebootAt = receiver.clock().now() + qint64(delay.toDouble() * 1000.0);
    wantTicks(true);
    return DONE;
}

void navigation_t::restarted()
{
    m_rebootAt = -1;
    loseSolution(REBOOT_RECOVERY);
}

/** That the solution is gone is also how a display sees that the receiver took the restart. */
void navigation_t::loseSolution(int recovery)
{
    m_recovery = recovery;
    wantTicks(true);
    receiver.report("extendedNavInfo", info());
}

void navigation_t::advance(int milliseconds)
{
    if (m_rebootAt >= 0 && receiver.clock().now() >= m_rebootAt)
    {
        receiver.restart();
        return;
    }
    if (m_recovery > 0)
    {
        m_recovery = qMax(0, m_recovery - milliseconds);
        if (m_recovery == 0)
            receiver.report("extendedNavInfo", info());
    }
    wantTicks(m_recovery > 0 || m_rebootAt >= 0);
}

} // namespace melvox_receiver
