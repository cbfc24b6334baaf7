#ifndef MELVOX_LINK_LINK_FACTORY_H
#define MELVOX_LINK_LINK_FACTORY_H

#include "link/link.h"

namespace melvox_link
{

/** Makes and starts a display's link from its description: "tcp:HOST:PORT", "serial:DEVICE" or "serial:DEVICE@BAUD".
 *  Null, and `error` says in a sentence what is wrong with the text, when it is none of these. Whether the other side
 *  is there shows later: the link opens when it is. */
link_t* makeLink(QString const& description, QString& error, QObject* parent = nullptr);

} // namespace melvox_link

#endif
