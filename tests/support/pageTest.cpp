#include "support/pageTest.h"

#include "brel_common_qt/kitPort.h"

namespace melvox_test
{

void pageTest_t::setUp()
{
    receiver = new melvox_link::scriptedLink_t;
    device = new brel_common_qt::remoteMelvoxDevice_t(melvox_kit::createPort(receiver, melvox_kit::LINK_OTHER));
}

void pageTest_t::tearDown()
{
    QString const left = reportedErrors();
    delete device;
    device = 0;
    delete receiver;
    receiver = 0;
    QVERIFY2(left.isEmpty(), qPrintable("a message box was left open: " + left));
}

} // namespace melvox_test
