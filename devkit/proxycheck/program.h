#ifndef MELVOX_PROXYCHECK_PROGRAM_H
#define MELVOX_PROXYCHECK_PROGRAM_H

#include <QStringList>

namespace melvox_proxycheck
{

class adapter_t;

/** Does what the arguments say and prints what was found. 0: nothing wrong, 1: findings, 2: the arguments are wrong. */
int run(QStringList const& arguments, adapter_t& adapter);

} // namespace melvox_proxycheck

#endif
