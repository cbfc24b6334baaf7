#ifndef MELVOX_LINK_GROUPS_H
#define MELVOX_LINK_GROUPS_H

#include <QStringList>

namespace melvox_link
{

/** The groups of all messages: in the order of their table in README.md, then those that only answers have. */
QStringList const& groupNames();

} // namespace melvox_link

#endif
