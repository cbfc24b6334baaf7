#include "receiver/corrections.h"

namespace melvox_receiver
{

corrections_t::corrections_t(receiver_t& owner) : behaviour_t(owner)
{
}

behaviour_t::answer_t corrections_t::command(link_t*, QString const& group, QVariant const&)
{
    if (group != "useNewStarfireAlm")
        return NOT_MINE;
    useNewAlmanac();
    return DONE;
}

void corrections_t::useNewAlmanac()
{
    if (!receiver.setting("starfireAlmStatus").toMap().value("newReady").toBool())
        return;
    receiver.change("mrvAlmanacInfo", QVariantMap{{"updateTime", double(receiver.clock().now() / 1000)}});
    receiver.change("starfireAlmStatus", QVariantMap{{"newReady", false}});
}

} // namespace melvox_receiver
