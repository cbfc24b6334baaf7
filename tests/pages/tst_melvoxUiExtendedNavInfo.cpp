#include "melvox_ui/melvoxUiExtendedNavInfo.h"

#include "support/pageTest.h"

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

char const* const LABELS[] = {
    "gpsWeekLabel",      "gpsTimeLabel",       "navValidLabel",     "datumLabel",
    "sourceTypeLabel",   "stationIdLabel",     "failureCodeLabel",  "setDeltaNorthLabel",
    "setDeltaEastLabel", "setDeltaUpLabel",    "latErrorLabel",     "lonErrorLabel",
    "heightErrorLabel",  "velocityNorthLabel", "velocityEastLabel", "velocityUpLabel",
};

/** A summary with another value in every field. */
QVariantMap summary()
{
    return map("valid", true, "gpsWeek", 2445, "gpsTime", 518412.4, "navValid", 1, "datum", 1, "geoid", 1, "navMode", 7,
               "navSource", 4, "stationId", 1023, "failureCode", 6, "setDeltaNorth", -0.0116, "setDeltaEast", 0.0274,
               "setDeltaUp", 0.084, "latError", 0.0314, "lonError", 1.5, "heightError", 12.34567, "velocityNorth",
               -1.25, "velocityEast", 0.00004, "velocityUp", 2.0);
}

} // namespace

class tst_melvoxUiExtendedNavInfo : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void report(char const* field, QVariant const& value);
    void report(char const* field, QVariant const& value, char const* other, QVariant const& otherValue);
    static QStringList texts(QWidget* page);
    static QStringList noData();

private slots:
    void showsNoDataBeforeTheFirstReport();
    void showsEachFieldInItsLabel();
    void showsASummaryThatTheProxyHeldBeforeThePageWasBuilt();
    void showsWhetherTheSolutionIsValid();
    void showsModeAndSource_data();
    void showsModeAndSource();
    void showsDatumAndGeoid_data();
    void showsDatumAndGeoid();
    void showsTheFailureCode_data();
    void showsTheFailureCode();
    void showsTheTideInWholeMillimetres_data();
    void showsTheTideInWholeMillimetres();
    void clearsAtOnceWhenTheReportIsInvalid();
    void leavesTheTimerAloneWhenTheReportIsInvalid();
    void clearsWhenTheReportsStop();
    void waitsTwoSecondsForTheNextReport();
    void startsTheTimerAnewWithEveryReport();
    void showsReportsAgainAfterItWasCleared();
    void runsNoTimerBeforeTheFirstReport();
    void offersNothingToTouch();
    void isReadableAtArmsLength();
};

void tst_melvoxUiExtendedNavInfo::report(char const* field, QVariant const& value)
{
    QVariantMap info = summary();
    info[field] = value;
    receiver->report("extendedNavInfo", info);
}

void tst_melvoxUiExtendedNavInfo::report(char const* field, QVariant const& value, char const* other,
                                         QVariant const& otherValue)
{
    QVariantMap info = summary();
    info[field] = value;
    info[other] = otherValue;
    receiver->report("extendedNavInfo", info);
}

QStringList tst_melvoxUiExtendedNavInfo::texts(QWidget* page)
{
    QStringList texts;
    for (char const* label : LABELS)
        texts << labelText(page, label);
    return texts;
}

QStringList tst_melvoxUiExtendedNavInfo::noData()
{
    QStringList texts;
    while (texts.size() < 16)
        texts << NoDataString;
    return texts;
}

void tst_melvoxUiExtendedNavInfo::showsNoDataBeforeTheFirstReport()
{
    melvoxUiExtendedNavInfo_t page(device);
    QCOMPARE(texts(&page), noData());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiExtendedNavInfo::showsEachFieldInItsLabel()
{
    melvoxUiExtendedNavInfo_t page(device);
    receiver->report("extendedNavInfo", summary());
    QCOMPARE(labelText(&page, "gpsWeekLabel"), QString("2445"));
    QCOMPARE(labelText(&page, "gpsTimeLabel"), QString("518412"));
    QCOMPARE(labelText(&page, "navValidLabel"), YesString);
    QCOMPARE(labelText(&page, "datumLabel"), QString("ITRF 2020/EGM84"));
    QCOMPARE(labelText(&page, "sourceTypeLabel"), QString("7:CMR"));
    QCOMPARE(labelText(&page, "stationIdLabel"), QString("1023"));
    QCOMPARE(labelText(&page, "failureCodeLabel"), QString("6:Navigation PDOP too high"));
    QCOMPARE(labelText(&page, "setDeltaNorthLabel"), QString("-12"));
    QCOMPARE(labelText(&page, "setDeltaEastLabel"), QString("27"));
    QCOMPARE(labelText(&page, "setDeltaUpLabel"), QString("84"));
    QCOMPARE(labelText(&page, "latErrorLabel"), QString("0.0314"));
    QCOMPARE(labelText(&page, "lonErrorLabel"), QString("1.5000"));
    QCOMPARE(labelText(&page, "heightErrorLabel"), QString("12.3457"));
    QCOMPARE(labelText(&page, "velocityNorthLabel"), QString("-1.2500"));
    QCOMPARE(labelText(&page, "velocityEastLabel"), QString("0.0000"));
    QCOMPARE(labelText(&page, "velocityUpLabel"), QString("2.0000"));
}

void tst_melvoxUiExtendedNavInfo::showsASummaryThatTheProxyHeldBeforeThePageWasBuilt()
{
    receiver->report("extendedNavInfo", summary());
    melvoxUiExtendedNavInfo_t page(device);
    QCOMPARE(labelText(&page, "gpsWeekLabel"), QString("2445"));
    QCOMPARE(labelText(&page, "velocityUpLabel"), QString("2.0000"));
    QVERIFY(find<QTimer>(&page, "clearTimer")->isActive());
}

void tst_melvoxUiExtendedNavInfo::showsWhetherTheSolutionIsValid()
{
    melvoxUiExtendedNavInfo_t page(device);
    report("navValid", 0);
    QCOMPARE(labelText(&page, "navValidLabel"), NoString);
    report("navValid", 2);
    QCOMPARE(labelText(&page, "navValidLabel"), YesString);
}

void tst_melvoxUiExtendedNavInfo::showsModeAndSource_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("source");
    QTest::addColumn<QString>("text");
    QTest::newRow("no corrections") << 0 << 0 << NoneString;
    QTest::newRow("no corrections, whatever the source") << 0 << 99 << NoneString;

    QStringList const differential =
        QString("WAAS;WAAS Test Mode;MRV (C1);RTCM1;RTCM9;EGNOS;MSAS;GAGAN;LEO;MRV (C3)").split(';');
    QStringList const rtk = QString("RTK 5B;Reserved;LEO;RTCM 20/21;CMR;CMR+;RTCM3-L1 Compact;RTCM3-L1 Full;"
                                    "RTCM3-Dual Compact;RTCM3-Dual Full;RTCM3.2 MSM;RTK 62")
                                .split(';');
    for (int mode = 1; mode <= 8; ++mode)
    {
        QStringList const& words = mode >= 3 && mode <= 7 ? rtk : differential;
        for (int source = 0; source <= words.size(); ++source)
        {
            QString const word = source < words.size() ? words.at(source) : UnknownString;
            QTest::newRow(qPrintable(QString("%1 with %2").arg(mode).arg(source)))
                << mode << source << QString::number(mode) + ':' + word;
        }
    }
    QTest::newRow("highest source") << 1 << 2147483647 << "1:" + UnknownString;
    QTest::newRow("unknown mode") << 9 << 3 << "9:" + UnknownString;
    QTest::newRow("another unknown mode") << 250 << 0 << "250:" + UnknownString;
}

void tst_melvoxUiExtendedNavInfo::showsModeAndSource()
{
    QFETCH(int, mode);
    QFETCH(int, source);
    QFETCH(QString, text);
    melvoxUiExtendedNavInfo_t page(device);
    report("navMode", mode, "navSource", source);
    QCOMPARE(labelText(&page, "sourceTypeLabel"), text);
}

void tst_melvoxUiExtendedNavInfo::showsDatumAndGeoid_data()
{
    QTest::addColumn<int>("datum");
    QTest::addColumn<int>("geoid");
    QTest::addColumn<QString>("text");
    QTest::newRow("WGS84, EGM84") << 0 << 1 << "WGS84/EGM84";
    QTest::newRow("ITRF, none") << 1 << 0 << "ITRF 2020/" + NoneString;
    QTest::newRow("non default, unknown") << 2 << 2 << "Non default/" + UnknownString;
    QTest::newRow("unknown, EGM84") << 3 << 1 << UnknownString + "/EGM84";
}

void tst_melvoxUiExtendedNavInfo::showsDatumAndGeoid()
{
    QFETCH(int, datum);
    QFETCH(int, geoid);
    QFETCH(QString, text);
    melvoxUiExtendedNavInfo_t page(device);
    report("datum", datum, "geoid", geoid);
    QCOMPARE(labelText(&page, "datumLabel"), text);
}

void tst_melvoxUiExtendedNavInfo::showsTheFailureCode_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("0") << 0 << "0:Unknown";
    QTest::newRow("1") << 1 << "1:Navigation solution available";
    QTest::newRow("2") << 2 << "2:Too few measurements for navigation init";
    QTest::newRow("3") << 3 << "3:Initialization failed";
    QTest::newRow("4") << 4 << "4:Navigation initialization completing";
    QTest::newRow("5") << 5 << "5:Too few measurements for navigation";
    QTest::newRow("6") << 6 << "6:Navigation PDOP too high";
    QTest::newRow("7") << 7 << "7:No velocity solution";
    QTest::newRow("8") << 8 << "8:Navigation update too large";
    QTest::newRow("9") << 9 << "9:Export height/velocity limits exceeded";
    QTest::newRow("10, with its blank") << 10 << "10:Available navigation modes are disabled ";
    QTest::newRow("11") << 11 << "11:" + UnknownString;
    QTest::newRow("255") << 255 << "255:" + UnknownString;
}

void tst_melvoxUiExtendedNavInfo::showsTheFailureCode()
{
    QFETCH(int, code);
    QFETCH(QString, text);
    melvoxUiExtendedNavInfo_t page(device);
    report("failureCode", code);
    QCOMPARE(labelText(&page, "failureCodeLabel"), text);
}

void tst_melvoxUiExtendedNavInfo::showsTheTideInWholeMillimetres_data()
{
    QTest::addColumn<double>("metres");
    QTest::addColumn<QString>("text");
    QTest::newRow("rounded down") << 0.0834 << "83";
    QTest::newRow("rounded up") << 0.0836 << "84";
    QTest::newRow("negative") << -0.25 << "-250";
    QTest::newRow("more than any tide") << 12.345 << "12345";
    QTest::newRow("zero") << 0.0 << "0";
}

void tst_melvoxUiExtendedNavInfo::showsTheTideInWholeMillimetres()
{
    QFETCH(double, metres);
    QFETCH(QString, text);
    melvoxUiExtendedNavInfo_t page(device);
    report("setDeltaUp", metres);
    QCOMPARE(labelText(&page, "setDeltaUpLabel"), text);
}

void tst_melvoxUiExtendedNavInfo::clearsAtOnceWhenTheReportIsInvalid()
{
    melvoxUiExtendedNavInfo_t page(device);
    receiver->report("extendedNavInfo", summary());
    receiver->report("extendedNavInfo", map("valid", false));
    QCOMPARE(texts(&page), noData());
}

void tst_melvoxUiExtendedNavInfo::leavesTheTimerAloneWhenTheReportIsInvalid()
{
    melvoxUiExtendedNavInfo_t page(device);
    receiver->report("extendedNavInfo", map("valid", false));
    QVERIFY(!find<QTimer>(&page, "clearTimer")->isActive());
}

void tst_melvoxUiExtendedNavInfo::clearsWhenTheReportsStop()
{
    melvoxUiExtendedNavInfo_t page(device);
    receiver->report("extendedNavInfo", summary());
    QVERIFY(texts(&page) != noData());
    QTimer* const timer = find<QTimer>(&page, "clearTimer");
    timer->start(0);
    QVERIFY(melvox_test::waitFor([&]() { return texts(&page) == noData(); }));
    QVERIFY(!timer->isActive());
}

void tst_melvoxUiExtendedNavInfo::waitsTwoSecondsForTheNextReport()
{
    melvoxUiExtendedNavInfo_t page(device);
    receiver->report("extendedNavInfo", summary());
    QTimer const* const timer = find<QTimer>(&page, "clearTimer");
    QVERIFY(timer->isActive());
    QVERIFY(timer->isSingleShot());
    QCOMPARE(timer->interval(), 2000);
}

void tst_melvoxUiExtendedNavInfo::startsTheTimerAnewWithEveryReport()
{
    melvoxUiExtendedNavInfo_t page(device);
    receiver->report("extendedNavInfo", summary());
    QTimer* const timer = find<QTimer>(&page, "clearTimer");
    // About to run out: the next report must take it back to the full time.
    timer->start(0);
    receiver->report("extendedNavInfo", summary());
    QCOMPARE(timer->interval(), 2000);
    melvox_test::settle();
    QVERIFY(timer->isActive());
    QVERIFY(texts(&page) != noData());
}

void tst_melvoxUiExtendedNavInfo::showsReportsAgainAfterItWasCleared()
{
    melvoxUiExtendedNavInfo_t page(device);
    receiver->report("extendedNavInfo", summary());
    page.clearExtendedNavInfo();
    QCOMPARE(texts(&page), noData());
    report("gpsWeek", 2446);
    QCOMPARE(labelText(&page, "gpsWeekLabel"), QString("2446"));
    QVERIFY(find<QTimer>(&page, "clearTimer")->isActive());
}

void tst_melvoxUiExtendedNavInfo::runsNoTimerBeforeTheFirstReport()
{
    melvoxUiExtendedNavInfo_t page(device);
    page.show();
    melvox_test::settle();
    QCOMPARE(page.findChildren<QTimer*>().size(), 1);
    QVERIFY(!find<QTimer>(&page, "clearTimer")->isActive());
}

void tst_melvoxUiExtendedNavInfo::offersNothingToTouch()
{
    melvoxUiExtendedNavInfo_t page(device);
    QVERIFY(page.findChildren<QAbstractButton*>().isEmpty());
    QVERIFY(page.findChildren<QLineEdit*>().isEmpty());
    QVERIFY(page.findChildren<QComboBox*>().isEmpty());
}

void tst_melvoxUiExtendedNavInfo::isReadableAtArmsLength()
{
    melvoxUiExtendedNavInfo_t page(device);
    for (char const* label : LABELS)
    {
        int const size = find<QLabel>(&page, label)->font().pointSize();
        QVERIFY2(size >= 16, label);
        QVERIFY2(size > QApplication::font().pointSize(), label);
    }
}

QTEST_MAIN(tst_melvoxUiExtendedNavInfo)
#include "tst_melvoxUiExtendedNavInfo.moc"
