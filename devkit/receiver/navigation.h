#ifndef MELVOX_RECEIVER_NAVIGATION_H
#define MELVOX_RECEIVER_NAVIGATION_H

#include "receiver/behaviour.h"
#include "receiver/heading.h"
#include "receiver/solution.h"

namespace melvox_receiver
{

/** The position solution and the heading: asked for or told at their rates, and lost for a while after a restart.
 *
 *  Situations:
 *  - "solutionReports", "headingReports": a flag each, whether the receiver tells its solution every second and its
 *    heading five times a second. Both off at first, and the receiver then rests.
 *  - "solution": the best solution there can be, "none", "autonomous", "differential" (at first), "float" or "fixed".
 *  - "failureCode": 0 to 255, why there is none while "solution" is "none". */
class navigation_t : public behaviour_t
{
public:
    explicit navigation_t(receiver_t& receiver);

    answer_t request(link_t* from, QString const& group) override;
    answer_t command(link_t* from, QString const& group, QVariant const& value) override;
    QStringList situations() const override;
    answer_t situation(QString const& name, QVariant const& value) override;
    QVariant answer(QString const& name, qint64 at) override;
    void restarted() override;
    void advance(int milliseconds) override;

private:
    answer_t reboot(QVariant const& value);
    answer_t setReports(bool& reports, QVariant const& value);
    void loseSolution(int recovery);
    void reportSolution(qint64 at);
    void reportHeading(qint64 at);
    void updateTicks();

    solution_t m_solution;
    heading_t m_heading;
    bool m_solutionReports;
    bool m_headingReports;
    bool m_recovering; //!< the end of it is still to be told
    qint64 m_rebootAt; //!< simulated time; negative: not at all
};

} // namespace melvox_receiver

#endif
