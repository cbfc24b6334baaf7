#include "support/utcText.h"

#include "brel_common_qt/textHelpers.h"
#include "support/test.h"

#include <limits>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

class tst_utcText : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void writesADateAndATimeInUtc_data();
    void writesADateAndATimeInUtc();
    void writesTheSameInEveryTimeZoneAndLanguage();
    void showsNoDataForWhatIsNoTime_data();
    void showsNoDataForWhatIsNoTime();
};

void tst_utcText::writesADateAndATimeInUtc_data()
{
    QTest::addColumn<double>("seconds");
    QTest::addColumn<QString>("text");
    QTest::newRow("the beginning") << 0.0 << "Thu Jan 1 00:00:00 1970 UTC";
    QTest::newRow("one digit of the day") << 1772600767.0 << "Wed Mar 4 05:06:07 2026 UTC";
    QTest::newRow("a fraction is cut off") << 1772600767.999 << "Wed Mar 4 05:06:07 2026 UTC";
    QTest::newRow("two digits") << 1798761599.0 << "Thu Dec 31 23:59:59 2026 UTC";
    QTest::newRow("beyond 32 bits") << 4294967296.0 << "Sun Feb 7 06:28:16 2106 UTC";
    QTest::newRow("before the beginning") << -1.0 << "Wed Dec 31 23:59:59 1969 UTC";
}

void tst_utcText::writesADateAndATimeInUtc()
{
    QFETCH(double, seconds);
    QFETCH(QString, text);
    QCOMPARE(utcText(seconds), text);
}

void tst_utcText::writesTheSameInEveryTimeZoneAndLanguage()
{
    QByteArray const zone = qgetenv("TZ");
    qputenv("TZ", "Asia/Tokyo");
    QLocale::setDefault(QLocale(QLocale::German));
    QString const text = utcText(1772600767.0);
    QLocale::setDefault(QLocale::c());
    qputenv("TZ", zone);
    QCOMPARE(text, QString("Wed Mar 4 05:06:07 2026 UTC"));
}

void tst_utcText::showsNoDataForWhatIsNoTime_data()
{
    QTest::addColumn<double>("seconds");
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity();
    QTest::newRow("infinitely long ago") << -std::numeric_limits<double>::infinity();
    QTest::newRow("beyond all calendars") << 1e300;
}

void tst_utcText::showsNoDataForWhatIsNoTime()
{
    QFETCH(double, seconds);
    QCOMPARE(utcText(seconds), NoDataString);
}

QTEST_MAIN(tst_utcText)
#include "tst_utcText.moc"
