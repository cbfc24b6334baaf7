#include "melvox_ui/melvoxUiVHDInfo.h"

#include "support/pageTest.h"

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

char const* const LABELS[] = {"correctedHeadingLabel", "attitudeLabel", "baselineLabel", "headingRMSLabel",
                              "rawHeadingLabel"};

} // namespace

class tst_melvoxUiVHDInfo : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void report(double rawHeading, double attitude, double baseline, double headingRms);
    static QString texts(QWidget* page);
    static QString noData();

private slots:
    void showsNoDataBeforeTheFirstReport();
    void showsEachValueInItsLabel();
    void addsTheAttitudeToTheHeading_data();
    void addsTheAttitudeToTheHeading();
    void clearsWhenTheReportsStop();
    void waitsTwoAndAHalfSecondsForTheNextReport();
    void startsTheTimerAnewWithEveryReport();
    void showsReportsAgainAfterItWasCleared();
    void doesNotShowAReportFromBeforeItWasBuilt();
    void runsNoTimerBeforeTheFirstReport();
    void offersNothingToTouch();
    void isReadableAtArmsLength();
};

void tst_melvoxUiVHDInfo::report(double rawHeading, double attitude, double baseline, double headingRms)
{
    receiver->report(
        "vhdInfo", map("rawHeading", rawHeading, "attitude", attitude, "baseline", baseline, "headingRms", headingRms));
}

QString tst_melvoxUiVHDInfo::texts(QWidget* page)
{
    QStringList texts;
    for (char const* label : LABELS)
        texts << labelText(page, label);
    return texts.join("; ");
}

QString tst_melvoxUiVHDInfo::noData()
{
    return (QStringList() << NoDataString << NoDataString << NoDataString << NoDataString << NoDataString).join("; ");
}

void tst_melvoxUiVHDInfo::showsNoDataBeforeTheFirstReport()
{
    melvoxUiVHDInfo_t page(device);
    QCOMPARE(texts(&page), noData());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiVHDInfo::showsEachValueInItsLabel()
{
    melvoxUiVHDInfo_t page(device);
    report(123.456, -1.2344, 1.9972, 0.1238);
    QCOMPARE(labelText(&page, "correctedHeadingLabel"), QString("122.222"));
    QCOMPARE(labelText(&page, "attitudeLabel"), QString("-1.234"));
    QCOMPARE(labelText(&page, "baselineLabel"), QString("1.997"));
    QCOMPARE(labelText(&page, "headingRMSLabel"), QString("0.124"));
    QCOMPARE(labelText(&page, "rawHeadingLabel"), QString("123.46"));
}

void tst_melvoxUiVHDInfo::addsTheAttitudeToTheHeading_data()
{
    QTest::addColumn<double>("rawHeading");
    QTest::addColumn<double>("attitude");
    QTest::addColumn<QString>("corrected");
    QTest::newRow("nothing") << 10.0 << 0.0 << "10.000";
    QTest::newRow("beyond a turn, not brought back") << 359.5 << 1.0 << "360.500";
    QTest::newRow("below zero, not brought back") << 0.5 << -2.0 << "-1.500";
}

void tst_melvoxUiVHDInfo::addsTheAttitudeToTheHeading()
{
    QFETCH(double, rawHeading);
    QFETCH(double, attitude);
    QFETCH(QString, corrected);
    melvoxUiVHDInfo_t page(device);
    report(rawHeading, attitude, 2.0, 0.1);
    QCOMPARE(labelText(&page, "correctedHeadingLabel"), corrected);
}

void tst_melvoxUiVHDInfo::clearsWhenTheReportsStop()
{
    melvoxUiVHDInfo_t page(device);
    report(123.456, -1.2344, 1.9972, 0.1238);
    QVERIFY(texts(&page) != noData());
    QTimer* const timer = find<QTimer>(&page, "clearTimer");
    timer->start(0);
    QVERIFY(melvox_test::waitFor([&]() { return texts(&page) == noData(); }));
    QVERIFY(!timer->isActive());
}

void tst_melvoxUiVHDInfo::waitsTwoAndAHalfSecondsForTheNextReport()
{
    melvoxUiVHDInfo_t page(device);
    report(123.456, -1.2344, 1.9972, 0.1238);
    QTimer const* const timer = find<QTimer>(&page, "clearTimer");
    QVERIFY(timer->isActive());
    QVERIFY(timer->isSingleShot());
    QCOMPARE(timer->interval(), 2500);
}

void tst_melvoxUiVHDInfo::startsTheTimerAnewWithEveryReport()
{
    melvoxUiVHDInfo_t page(device);
    report(123.456, -1.2344, 1.9972, 0.1238);
    QTimer* const timer = find<QTimer>(&page, "clearTimer");
    // About to run out: the next report must take it back to the full time.
    timer->start(0);
    report(124.0, -1.0, 1.9972, 0.1238);
    QCOMPARE(timer->interval(), 2500);
    melvox_test::settle();
    QVERIFY(timer->isActive());
    QCOMPARE(labelText(&page, "rawHeadingLabel"), QString("124.00"));
}

void tst_melvoxUiVHDInfo::showsReportsAgainAfterItWasCleared()
{
    melvoxUiVHDInfo_t page(device);
    report(123.456, -1.2344, 1.9972, 0.1238);
    page.clearVHDInfo();
    QCOMPARE(texts(&page), noData());
    report(90.0, 1.0, 2.0, 0.25);
    QCOMPARE(texts(&page), QString("91.000; 1.000; 2.000; 0.250; 90.00"));
}

void tst_melvoxUiVHDInfo::doesNotShowAReportFromBeforeItWasBuilt()
{
    report(90.0, 1.0, 2.0, 0.25);
    melvoxUiVHDInfo_t page(device);
    QCOMPARE(texts(&page), noData());
}

void tst_melvoxUiVHDInfo::runsNoTimerBeforeTheFirstReport()
{
    melvoxUiVHDInfo_t page(device);
    page.show();
    melvox_test::settle();
    QCOMPARE(page.findChildren<QTimer*>().size(), 1);
    QVERIFY(!find<QTimer>(&page, "clearTimer")->isActive());
}

void tst_melvoxUiVHDInfo::offersNothingToTouch()
{
    melvoxUiVHDInfo_t page(device);
    QVERIFY(page.findChildren<QAbstractButton*>().isEmpty());
    QVERIFY(page.findChildren<QLineEdit*>().isEmpty());
    QVERIFY(page.findChildren<QComboBox*>().isEmpty());
}

void tst_melvoxUiVHDInfo::isReadableAtArmsLength()
{
    melvoxUiVHDInfo_t page(device);
    for (char const* label : LABELS)
        QVERIFY2(find<QLabel>(&page, label)->font().pointSize() >= 16, label);
}

QTEST_MAIN(tst_melvoxUiVHDInfo)
#include "tst_melvoxUiVHDInfo.moc"
