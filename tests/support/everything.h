#ifndef MELVOX_TEST_EVERYTHING_H
#define MELVOX_TEST_EVERYTHING_H

#include "link/scriptedLink.h"

namespace melvox_test
{

/** Has the receiver tell all that it can tell, each field with a value of its own. */
void reportEverything(melvox_link::scriptedLink_t* receiver);

/** The same with the longest texts and numbers that a receiver tells. */
void reportTheLongest(melvox_link::scriptedLink_t* receiver);

} // namespace melvox_test

#endif
