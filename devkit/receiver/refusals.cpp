#include "receiver/refusals.h"

namespace melvox_receiver
{

namespace
{

bool isCommanded(QString const& group)
{
    setting_t const* const setting = findSetting(group);
    return setting && setting->access == READ_WRITE;
}

} // namespace

refusals_t::refusals_t(receiver_t& owner) : behaviour_t(owner)
{
}

behaviour_t::answer_t refusals_t::command(link_t* from, QString const& group, QVariant const&)
{
    if (!m_groups.contains(group))
        return NOT_MINE;
    receiver.reportSetting(from, *findSetting(group));
    return DONE;
}

QStringList refusals_t::situations() const
{
    return {"refusedGroups"};
}

behaviour_t::answer_t refusals_t::situation(QString const&, QVariant const& value)
{
    if (value.userType() != QMetaType::QVariantList && value.userType() != QMetaType::QStringList)
        return UNREADABLE;
    QStringList const groups = value.toStringList();
    for (QString const& group : groups)
    {
        if (!isCommanded(group))
            return UNREADABLE;
    }
    m_groups = groups;
    return DONE;
}

} // namespace melvox_receiver
