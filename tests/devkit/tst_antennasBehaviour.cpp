#include "behaviourTest.h"

using namespace melvox_receiver;

class tst_antennasBehaviour : public melvox_test::behaviourTest_t
{
    Q_OBJECT

private:
    QString remote() const
    {
        return melvox_link::toText(
            {melvox_link::message_t::REPORT, "antennaRemote", receiver->setting("antennaRemote")});
    }

private slots:
    void tellsTheNamesAnewToAllDisplays();
    void refusesToTellNamesForNoReason();
    void tellsNoMoreNamesAfterARestart();
    void hearsTheBaseStationsAntenna();
    void keepsAnAntennaThatWasChosen();
    void restsWhenAllIsTold();
    void refusesAntennasThatItDoesNotKnow();
    void holdsAdjustmentsWithinItsLimits();
    void keepsBothAntennas();
};

void tst_antennasBehaviour::tellsTheNamesAnewToAllDisplays()
{
    melvox_test::receiverEnd_t other;
    receiver->addLink(&other, 5);
    display->request("antennaList");
    clock->advance(60);
    display->texts();
    QVERIFY(receiver->setSituation("antennaNamesAnew", true));
    clock->advance(40);
    QStringList const expected = {"antennaListReset", "antennaName " + antennaNames().at(0),
                                  "antennaName " + antennaNames().at(1)};
    QCOMPARE(display->texts(), expected);
    QCOMPARE(other.texts(), expected);
    receiver->removeLink(&other);
    clock->advance(1000);
    QCOMPARE(int(told("antennaName").size()), int(antennaNames().size()) - 2);
    QVERIFY(other.messages.isEmpty());
}

void tst_antennasBehaviour::refusesToTellNamesForNoReason()
{
    QVERIFY(!receiver->setSituation("antennaNamesAnew", false));
    QVERIFY(!receiver->setSituation("antennaNamesAnew", 1));
    QVERIFY(display->messages.isEmpty());
}

void tst_antennasBehaviour::tellsNoMoreNamesAfterARestart()
{
    display->request("antennaList");
    clock->advance(60);
    QCOMPARE(int(told("antennaName").size()), 3);
    receiver->restart();
    clock->advance(1000);
    QCOMPARE(int(told("antennaName").size()), 3);
}

void tst_antennasBehaviour::hearsTheBaseStationsAntenna()
{
    display->command("antennaRemote", QVariantMap{{"automatic", false}, {"name", "NONE"}});
    display->command("antennaRemote", QVariantMap{{"automatic", true}, {"name", ""}});
    QCOMPARE(remote(), QString("antennaRemote automatic=true name=NONE"));
    clock->advance(4999);
    QCOMPARE(remote(), QString("antennaRemote automatic=true name=NONE"));
    clock->advance(1);
    QCOMPARE(remote(), QString("antennaRemote automatic=true name=MVXBASE2         NONE"));
    QCOMPARE(display->last("antennaRemote"), receiver->setting("antennaRemote"));
}

void tst_antennasBehaviour::keepsAnAntennaThatWasChosen()
{
    display->command("antennaRemote", QVariantMap{{"automatic", false}, {"name", "NONE"}});
    display->command("antennaRemote", QVariantMap{{"automatic", true}, {"name", ""}});
    clock->advance(1000);
    display->command("antennaRemote", QVariantMap{{"automatic", false}, {"name", "MVXHP7           NONE"}});
    clock->advance(10000);
    QCOMPARE(remote(), QString("antennaRemote automatic=false name=MVXHP7           NONE"));
}

void tst_antennasBehaviour::restsWhenAllIsTold()
{
    simClock_t real;
    real.setSpeed(1000);
    melvox_test::receiverEnd_t end;
    receiver_t resting(&end, &real);
    end.command("antennaRemote", QVariantMap{{"automatic", false}, {"name", "NONE"}});
    QVERIFY(!real.isTicking());
    end.command("antennaRemote", QVariantMap{{"automatic", true}, {"name", ""}});
    QVERIFY(real.isTicking());
    QVERIFY(melvox_test::waitFor([&]() { return !real.isTicking(); }));
    QCOMPARE(end.last("antennaRemote").toMap().value("name").toString(), QString("MVXBASE2         NONE"));
}

void tst_antennasBehaviour::refusesAntennasThatItDoesNotKnow()
{
    QVariant const before = receiver->setting("antennaInfo");
    QVariantMap const known = {{"name", "NONE"}, {"serial", "1"}, {"id", 1}};
    QVariantMap const unknown = {{"name", "UNHEARD OF"}, {"serial", "2"}, {"id", 2}};
    display->command("antennaInfo", QVariantList{known, unknown});
    QCOMPARE(display->last("antennaInfo"), before);
    display->command("antennaDualMode", "TRIPLE");
    QCOMPARE(display->last("antennaDualMode").toString(), QString("DEFAULT"));
}

void tst_antennasBehaviour::holdsAdjustmentsWithinItsLimits()
{
    QVariantMap const high = {{"useAdjustments", true}, {"height", 1.0}, {"slantRange", 99999.0}, {"radius", 32767.0}};
    QVariantMap const low = {{"useAdjustments", true}, {"height", 1.0}, {"slantRange", -32768.0}, {"radius", -99999.0}};
    display->command("antennaHeight", QVariantList{high, low});
    QVariantList const taken = display->last("antennaHeight").toList();
    QCOMPARE(taken.at(0).toMap().value("slantRange").toDouble(), 32767.0);
    QCOMPARE(taken.at(0).toMap().value("radius").toDouble(), 32767.0);
    QCOMPARE(taken.at(1).toMap().value("slantRange").toDouble(), -32768.0);
    QCOMPARE(taken.at(1).toMap().value("radius").toDouble(), -32768.0);
}

void tst_antennasBehaviour::keepsBothAntennas()
{
    QVariantMap const first = {{"name", "MVXHP7           NONE"}, {"serial", "S1"}, {"id", 7}};
    QVariantMap const second = {{"name", "NONE"}, {"serial", "S2"}, {"id", 255}};
    display->command("antennaInfo", QVariantList{first, second});
    display->texts();
    display->request("antennaInfo");
    QCOMPARE(display->last("antennaInfo"), QVariant(QVariantList{first, second}));
}

QTEST_MAIN(tst_antennasBehaviour)
#include "tst_antennasBehaviour.moc"
