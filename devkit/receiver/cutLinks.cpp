#include "receiver/cutLinks.h"

namespace melvox_receiver
{

void cutLinks_t::cut(melvox_link::link_t* link)
{
    m_links << link;
    link->setCut(true);
}

void cutLinks_t::joinAll()
{
    QList<QPointer<melvox_link::link_t>> const links = m_links;
    m_links.clear();
    for (QPointer<melvox_link::link_t> const& link : links)
    {
        if (link)
            link->setCut(false);
    }
}

} // namespace melvox_receiver
