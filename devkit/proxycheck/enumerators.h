#ifndef MELVOX_PROXYCHECK_ENUMERATORS_H
#define MELVOX_PROXYCHECK_ENUMERATORS_H

#include <vector>

namespace melvox_proxycheck
{

struct enumerator_t
{
    char const* name;
    int value; //!< in the headers that this was built with
    int expected;
};

/** The numbers that pages use as indexes and that loops run by. */
std::vector<enumerator_t> const& enumerators();

} // namespace melvox_proxycheck

#endif
