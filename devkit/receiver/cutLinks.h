#ifndef MELVOX_RECEIVER_CUT_LINKS_H
#define MELVOX_RECEIVER_CUT_LINKS_H

#include "link/link.h"

#include <QList>
#include <QPointer>

namespace melvox_receiver
{

/** The links that somebody has cut and will join again; any of them may be gone by then. */
class cutLinks_t
{
public:
    void cut(melvox_link::link_t* link);
    void joinAll();

private:
    QList<QPointer<melvox_link::link_t>> m_links;
};

} // namespace melvox_receiver

#endif
