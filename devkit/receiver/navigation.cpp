#include "receiver/navigation.h"

namespace melvox_receiver
{

namespace
{

// Milliseconds until there is a solution again. Ephemerides come from the satellites within seconds; without an almanac
// the satellites have to be searched for first.
int const WARM_RECOVERY = 20000;
int const ALMANAC_RECOVERY = 40000;
int const COLD_RECOVERY = 60000;
int const REBOOT_RECOVERY = 30000;

int const SOLUTION_INTERVAL = 1000; // milliseconds
int const HEADING_INTERVAL = 200;
int const HIGHEST_FAILURE_CODE = 255;

double const LONGEST_REBOOT_DELAY = 3600.0; // seconds

/** Calls `tell` with each whole multiple of the interval within the tick that ends now: reports come at whole seconds,
 *  whenever ticks come. */
template <typename tell_t> void forEachDue(qint64 now, int tick, int interval, tell_t tell)
{
    for (qint64 at = (now - tick) / interval * interval + interval; at <= now; at += interval)
        tell(at);
}

} // namespace

navigation_t::navigation_t(receiver_t& owner)
    : behaviour_t(owner), m_solutionReports(false), m_headingReports(false), m_recovering(false), m_rebootAt(-1)
{
}

behaviour_t::answer_t navigation_t::request(link_t* from, QString const& group)
{
    if (group != "extendedNavInfo")
        return NOT_MINE;
    receiver.report(from, group, m_solution.info(receiver.settings(), receiver.clock().now()));
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

QStringList navigation_t::situations() const
{
    return {"solutionReports", "headingReports", "solution", "failureCode"};
}

behaviour_t::answer_t navigation_t::situation(QString const& name, QVariant const& value)
{
    if (name == "solutionReports")
        return setReports(m_solutionReports, value);
    if (name == "headingReports")
        return setReports(m_headingReports, value);
    if (name == "solution")
        return m_solution.setBest(receiver.clock().now(), value.toString()) ? DONE : UNREADABLE;
    if (name != "failureCode")
        return NOT_MINE;
    if (!isNumber(value) || value.toInt() < 0 || value.toInt() > HIGHEST_FAILURE_CODE)
        return UNREADABLE;
    m_solution.setFailure(value.toInt());
    return DONE;
}

QVariant navigation_t::answer(QString const& name, qint64 at)
{
    settings_t const& settings = receiver.settings();
    if (name == "solutionMode")
        return int(m_solution.mode(settings, at));
    if (name == "extendedNavInfo")
        return m_solution.info(settings, at);
    return name == "vhdInfo" ? m_heading.info(settings, m_solution.mode(settings, at), at) : QVariant();
}

behaviour_t::answer_t navigation_t::setReports(bool& reports, QVariant const& value)
{
    if (value.userType() != QMetaType::Bool)
        return UNREADABLE;
    reports = value.toBool();
    updateTicks();
    return DONE;
}

behaviour_t::answer_t navigation_t::reboot(QVariant const& value)
{
    QVariant const delay = value.toMap().value("delay");
    if (!isNumber(delay) || !(delay.toDouble() >= 0.0 && delay.toDouble() <= LONGEST_REBOOT_DELAY))
        return UNREADABLE;
    m_rebootAt = receiver.clock().now() + qint64(delay.toDouble() * 1000.0);
    updateTicks();
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
    m_solution.lose(receiver.clock().now(), recovery);
    m_recovering = true;
    updateTicks();
    reportSolution(receiver.clock().now());
}

void navigation_t::reportSolution(qint64 at)
{
    receiver.report("extendedNavInfo", m_solution.info(receiver.settings(), at));
}

void navigation_t::reportHeading(qint64 at)
{
    settings_t const& settings = receiver.settings();
    QVariant const info = m_heading.info(settings, m_solution.mode(settings, at), at);
    if (info.isValid())
        receiver.report("vhdInfo", info);
}

void navigation_t::advance(int milliseconds)
{
    qint64 const now = receiver.clock().now();
    if (m_rebootAt >= 0 && now >= m_rebootAt)
    {
        receiver.restart();
        return;
    }
    if (m_headingReports)
        forEachDue(now, milliseconds, HEADING_INTERVAL, [this](qint64 at) { reportHeading(at); });
    if (m_solutionReports)
        forEachDue(now, milliseconds, SOLUTION_INTERVAL, [this](qint64 at) { reportSolution(at); });
    if (m_recovering && !m_solution.isRecovering(now))
    {
        m_recovering = false;
        // Who is not told every second is told that it is back.
        if (!m_solutionReports)
            reportSolution(now);
    }
    updateTicks();
}

void navigation_t::updateTicks()
{
    wantTicks(m_solutionReports || m_headingReports || m_recovering || m_rebootAt >= 0);
}

} // namespace melvox_receiver
