#ifndef MELVOX_TEST_PAGE_TEST_H
#define MELVOX_TEST_PAGE_TEST_H

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/textHelpers.h"
#include "link/scriptedLink.h"
#include "support/operator.h"
#include "support/test.h"

namespace melvox_test
{

/** Base of tests of one page: a proxy of its own for each test function, on a receiver that the test plays. */
class pageTest_t : public test_t
{
    Q_OBJECT

protected:
    void setUp() override;
    /** A message box that is still open is one that the test did not expect. */
    void tearDown() override;

    /** Speaks as the receiver: receiver->report("elevationMask", 10.0); and reads what it was sent. */
    melvox_link::scriptedLink_t* receiver;
    brel_common_qt::remoteMelvoxDevice_t* device;
};

} // namespace melvox_test

using melvox_test::answer;
using melvox_test::choose;
using melvox_test::chosen;
using melvox_test::editText;
using melvox_test::find;
using melvox_test::isEnabled;
using melvox_test::labelText;
using melvox_test::list;
using melvox_test::map;
using melvox_test::reportedErrors;
using melvox_test::tap;
using melvox_test::type;

#endif
