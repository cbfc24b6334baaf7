#include "support/degrees.h"

#include "support/test.h"

using namespace brel_common_qt_gui;

class tst_degrees : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void turnsRadiansIntoDegrees();
};

void tst_degrees::turnsRadiansIntoDegrees()
{
    QCOMPARE(degreesFromRadians(0), 0.0);
    QCOMPARE(degreesFromRadians(1.5707963267948966), 90.0);
    QCOMPARE(degreesFromRadians(-3.1415926535897931), -180.0);
    QCOMPARE(degreesFromRadians(0.017453292519943295), 1.0);
}

QTEST_MAIN(tst_degrees)
#include "tst_degrees.moc"
