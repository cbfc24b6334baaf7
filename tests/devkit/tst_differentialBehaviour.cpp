#include "behaviourTest.h"

using namespace melvox_receiver;

namespace
{

unsigned int const COM2 = 1;
unsigned int const ETH3 = 8;

QVariantMap config(int mode, int stationId, unsigned int port)
{
    return {{"mode", mode}, {"stationId", stationId}, {"dynamic", false}, {"port", port}, {"portSet", true}};
}

} // namespace

class tst_differentialBehaviour : public melvox_test::behaviourTest_t
{
    Q_OBJECT

private:
    /** The corrections that are put out on a port. */
    QString outputs(unsigned int port);

private slots:
    void putsCorrectionsOutAsABase_data();
    void putsCorrectionsOutAsABase();
    void tellsWhatChangedRightAfterTheConfiguration();
    void putsOtherCorrectionsOutInTheOtherMode();
    void movesCorrectionsToAnotherPort();
    void putsNoneOutAsARover();
    void leavesOtherOutputAlone();
    void changesNoOutputWithTheStationIdAlone();
    void refusesABaseThatCannotBe();
    void goesToRtcm23AsABase();
    void holdsPositionsWithinItsLimits_data();
    void holdsPositionsWithinItsLimits();
    void cutsALongName();
};

QString tst_differentialBehaviour::outputs(unsigned int port)
{
    display->texts();
    display->request("outputs");
    QStringList messages;
    for (QVariant const& value : told("output"))
    {
        QVariantMap const output = value.toMap();
        if (output.value("port").toUInt() == port && output.value("message").toString().startsWith("RTCM"))
            messages << output.value("message").toString() + ' ' + output.value("interval").toString();
    }
    messages.sort();
    return messages.join(", ");
}

void tst_differentialBehaviour::putsCorrectionsOutAsABase_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("messages");
    QTest::newRow("1 and 31") << 1 << "RTCM1 1, RTCM31 1";
    QTest::newRow("9 and 34") << 2 << "RTCM34 1, RTCM9 1";
}

void tst_differentialBehaviour::putsCorrectionsOutAsABase()
{
    QFETCH(int, mode);
    QFETCH(QString, messages);
    display->command("diffConfig", config(mode, 7, ETH3));
    QCOMPARE(outputs(ETH3), messages);
    QCOMPARE(outputs(COM2), QString());
}

void tst_differentialBehaviour::tellsWhatChangedRightAfterTheConfiguration()
{
    display->command("diffConfig", config(1, 7, ETH3));
    QStringList const texts = display->texts();
    QVERIFY(texts.first().startsWith("diffConfig "));
    QVERIFY(texts.contains("output interval=1 message=RTCM1 method=1 port=8"));
    QVERIFY(texts.contains("output interval=1 message=RTCM31 method=1 port=8"));
}

void tst_differentialBehaviour::putsOtherCorrectionsOutInTheOtherMode()
{
    display->command("diffConfig", config(1, 7, ETH3));
    display->command("diffConfig", config(2, 7, ETH3));
    QCOMPARE(outputs(ETH3), QString("RTCM34 1, RTCM9 1"));
}

void tst_differentialBehaviour::movesCorrectionsToAnotherPort()
{
    display->command("diffConfig", config(1, 7, ETH3));
    display->command("diffConfig", config(1, 7, COM2));
    QCOMPARE(outputs(ETH3), QString());
    QCOMPARE(outputs(COM2), QString("RTCM1 1, RTCM31 1"));
}

void tst_differentialBehaviour::putsNoneOutAsARover()
{
    display->command("diffConfig", config(2, 7, ETH3));
    display->command("diffConfig", config(0, 7, ETH3));
    QCOMPARE(outputs(ETH3), QString());
}

void tst_differentialBehaviour::leavesOtherOutputAlone()
{
    display->command("output", QVariantMap{{"port", ETH3}, {"message", "RTCM3"}, {"method", 1}, {"interval", 5.0}});
    display->command("diffConfig", config(1, 7, ETH3));
    display->command("diffConfig", config(0, 7, ETH3));
    QCOMPARE(outputs(ETH3), QString("RTCM3 5"));
}

void tst_differentialBehaviour::changesNoOutputWithTheStationIdAlone()
{
    display->command("diffConfig", config(1, 7, ETH3));
    display->command("output", QVariantMap{{"port", ETH3}, {"message", "RTCM31"}, {"method", 1}, {"interval", 5.0}});
    display->command("diffConfig", config(1, 8, ETH3));
    QCOMPARE(outputs(ETH3), QString("RTCM1 1, RTCM31 5"));
}

void tst_differentialBehaviour::refusesABaseThatCannotBe()
{
    display->command("diffConfig", config(1, 0, ETH3));
    QCOMPARE(display->last("diffConfig").toMap().value("mode"), QVariant(0));
    QCOMPARE(outputs(ETH3), QString());
}

void tst_differentialBehaviour::goesToRtcm23AsABase()
{
    QCOMPARE(receiver->setting("rtcmVersion").toInt(), 0);
    display->command("diffConfig", config(1, 7, ETH3));
    QCOMPARE(display->last("rtcmVersion").toInt(), 1);
    display->command("rtcmVersion", 0);
    QCOMPARE(receiver->setting("rtcmVersion").toInt(), 1);
    display->command("diffConfig", config(0, 7, ETH3));
    display->command("rtcmVersion", 0);
    QCOMPARE(receiver->setting("rtcmVersion").toInt(), 0);
}

void tst_differentialBehaviour::holdsPositionsWithinItsLimits_data()
{
    QTest::addColumn<double>("latitude");
    QTest::addColumn<double>("height");
    QTest::addColumn<double>("takenLatitude");
    QTest::addColumn<double>("takenHeight");
    double const before = 0.5907;
    double const heightBefore = 38.42;
    QTest::newRow("inside") << -0.5 << 1234.5 << -0.5 << 1234.5;
    QTest::newRow("north of the pole") << 1.6 << 1234.5 << before << heightBefore;
    QTest::newRow("south of the pole") << -1.6 << 1234.5 << before << heightBefore;
    QTest::newRow("highest") << 0.5 << 20000.0 << 0.5 << 20000.0;
    QTest::newRow("too high") << 0.5 << 20001.0 << 0.5 << 20000.0;
    QTest::newRow("too low") << 0.5 << -1001.0 << 0.5 << -1000.0;
}

void tst_differentialBehaviour::holdsPositionsWithinItsLimits()
{
    QFETCH(double, latitude);
    QFETCH(double, height);
    QFETCH(double, takenLatitude);
    QFETCH(double, takenHeight);
    display->command("basePosition", QVariantMap{{"latitude", latitude}, {"longitude", 0.25}, {"height", height}});
    QCOMPARE(display->last("basePosition").toMap().value("latitude").toDouble(), takenLatitude);
    QCOMPARE(display->last("basePosition").toMap().value("height").toDouble(), takenHeight);
}

void tst_differentialBehaviour::cutsALongName()
{
    display->command("baseName", QString(40, 'n'));
    QCOMPARE(display->last("baseName").toString(), QString(31, 'n'));
}

QTEST_MAIN(tst_differentialBehaviour)
#include "tst_differentialBehaviour.moc"
