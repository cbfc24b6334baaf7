#ifndef MELVOX_TEST_LINK_LISTENER_H
#define MELVOX_TEST_LINK_LISTENER_H

#include "link/link.h"

#include <QList>
#include <QStringList>

namespace melvox_test
{

/** Notes what comes out of a link. */
class linkListener_t : public QObject
{
public:
    explicit linkListener_t(melvox_link::link_t& link)
    {
        connect(&link, &melvox_link::link_t::received, this,
                [this](melvox_link::message_t const& message)
                { texts << kindName(message.kind) + ' ' + toText(message); });
        connect(&link, &melvox_link::link_t::openChanged, this, [this](bool open) { changes << open; });
    }

    QStringList texts;
    QList<bool> changes;
};

} // namespace melvox_test

#endif
