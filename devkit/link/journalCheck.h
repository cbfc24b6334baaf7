#ifndef MELVOX_LINK_JOURNAL_CHECK_H
#define MELVOX_LINK_JOURNAL_CHECK_H

#include "link/journal.h"

#include <QList>
#include <QStringList>

namespace melvox_link
{

/** In what the display that a journal was played to sent something else than the one that wrote it; each difference names
 *  file and line. Empty: in nothing.
 *
 *  Commands must be the same, in the same order, with the same values; of what names a file only that it does. Requests
 *  must ask for the same groups; how often and in which order depends on clocks. What follows the end of a journal that
 *  was cut off is not known, and is no difference. */
QStringList differences(journal_t const& journal, QList<message_t> const& sent);

} // namespace melvox_link

#endif
