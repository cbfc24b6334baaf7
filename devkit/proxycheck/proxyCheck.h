#ifndef MELVOX_PROXYCHECK_PROXY_CHECK_H
#define MELVOX_PROXYCHECK_PROXY_CHECK_H

#include <QList>
#include <QString>
#include <QStringList>

namespace melvox_proxycheck
{

class adapter_t;

/** Something in which a proxy does not keep the contract. */
struct finding_t
{
    QString group;
    QString what; //!< where it was looked: "the signals after its report"
    QString expected;
    QString seen;
};

/** "pdopLimit: the signals after its report: expected pdopLimitUpdated 4.75, seen nothing". */
QString toText(finding_t const& finding);

/** The names of all groups, in the order in which they are checked. */
QStringList groupNames();

/** Checks one group on a proxy of its own. A group's check ends with its first finding: what would follow mostly comes
 *  of it. `wait` is how long, in milliseconds, an expected signal or message may take. */
QList<finding_t> checkGroup(QString const& group, adapter_t& adapter, int wait);

} // namespace melvox_proxycheck

#endif
