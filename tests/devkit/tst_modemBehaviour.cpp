#include "behaviourTest.h"

/** The LTE modem's way from off to a network and back. */
class tst_modemBehaviour : public melvox_test::behaviourTest_t
{
    Q_OBJECT

private slots:
    void isOffAtFirst();
    void goesThroughItsStatesUntilItIsConnected();
    void isPendingUntilItIsOff();
    void canBeSwitchedOffOnItsWay();
    void canBeSwitchedOnAgainWhileItStops();
    void answersWhoeverTellsItWhatItDoesAlready();
    void saysThatTheSimIsMissing();
    void goesOnOnceTheSimIsThere();
    void losesTheNetworkWithTheSim();
    void searchesWhileThereIsNoSignal();
    void canBeSwitchedOffWhileItSearches();
    void findsTheNetworkAgainAfterTheSignalWasLost();
    void losesTheSignalWhileItRegisters();
    void tellsHowStrongTheSignalIs();
    void hearsNoNetworkThatIsTooWeak_data();
    void hearsNoNetworkThatIsTooWeak();
    void startsAgainAfterARestart();
    void staysOffAfterARestart();
    void refusesWhatIsNoSituation_data();
    void refusesWhatIsNoSituation();
    void letsTheClockRestOnceItIsThere();

private:
    void switchTo(bool on) { display->command("lteModemStat", QVariantMap{{"on", on}}); }
    void connectModem()
    {
        switchTo(true);
        clock->advance(10000);
        display->messages.clear();
    }
    /** What was told since the last look, such as "ON CONNECTED -71 dBm". */
    QStringList states()
    {
        QStringList states;
        for (QVariant const& value : told("lteModemStat"))
        {
            QVariantMap const status = value.toMap();
            states << status.value("modemStatus").toString() + ' ' + status.value("networkStatus").toString() + ' ' +
                          status.value("rssi").toString();
        }
        display->messages.clear();
        return states;
    }
};

void tst_modemBehaviour::isOffAtFirst()
{
    display->request("lteModemStat");
    QCOMPARE(states(), QStringList("OFF DISCONNECTED N/A"));
}

void tst_modemBehaviour::goesThroughItsStatesUntilItIsConnected()
{
    switchTo(true);
    QCOMPARE(states(), QStringList("PENDING DISCONNECTED N/A"));
    clock->advance(1999);
    QCOMPARE(states(), QStringList());
    clock->advance(1);
    QCOMPARE(states(), QStringList("PENDING SEARCHING N/A"));
    clock->advance(2500);
    QCOMPARE(states(), QStringList("PENDING REGISTERING -71 dBm"));
    clock->advance(1500);
    QCOMPARE(states(), QStringList("ON CONNECTED -71 dBm"));
    clock->advance(60000);
    QCOMPARE(states(), QStringList());
}

void tst_modemBehaviour::isPendingUntilItIsOff()
{
    connectModem();
    switchTo(false);
    QCOMPARE(states(), QStringList("PENDING DISCONNECTED N/A"));
    clock->advance(2000);
    QCOMPARE(states(), QStringList("OFF DISCONNECTED N/A"));
}

void tst_modemBehaviour::canBeSwitchedOffOnItsWay()
{
    switchTo(true);
    clock->advance(3000);
    display->messages.clear();
    switchTo(false);
    clock->advance(10000);
    QCOMPARE(states(), (QStringList{"PENDING DISCONNECTED N/A", "OFF DISCONNECTED N/A"}));
}

void tst_modemBehaviour::canBeSwitchedOnAgainWhileItStops()
{
    connectModem();
    switchTo(false);
    clock->advance(1000);
    switchTo(true);
    clock->advance(10000);
    QCOMPARE(states(), (QStringList{"PENDING DISCONNECTED N/A", "PENDING SEARCHING N/A", "PENDING REGISTERING -71 dBm",
                                    "ON CONNECTED -71 dBm"}));
}

void tst_modemBehaviour::answersWhoeverTellsItWhatItDoesAlready()
{
    connectModem();
    switchTo(true);
    QCOMPARE(states(), QStringList("ON CONNECTED -71 dBm"));
}

void tst_modemBehaviour::saysThatTheSimIsMissing()
{
    QVERIFY(receiver->setSituation("lteSim", false));
    switchTo(true);
    clock->advance(10000);
    QCOMPARE(states(), (QStringList{"PENDING DISCONNECTED N/A", "ON SIM MISSING N/A"}));
}

void tst_modemBehaviour::goesOnOnceTheSimIsThere()
{
    receiver->setSituation("lteSim", false);
    connectModem();
    receiver->setSituation("lteSim", true);
    clock->advance(10000);
    QCOMPARE(states(), (QStringList{"ON SEARCHING N/A", "ON REGISTERING -71 dBm", "ON CONNECTED -71 dBm"}));
}

void tst_modemBehaviour::losesTheNetworkWithTheSim()
{
    connectModem();
    receiver->setSituation("lteSim", false);
    clock->advance(10000);
    QCOMPARE(states(), QStringList("ON SIM MISSING N/A"));
}

void tst_modemBehaviour::searchesWhileThereIsNoSignal()
{
    QVERIFY(receiver->setSituation("lteSignal", -120));
    switchTo(true);
    clock->advance(60000);
    QCOMPARE(states(), (QStringList{"PENDING DISCONNECTED N/A", "PENDING SEARCHING N/A", "ON SEARCHING N/A"}));
    receiver->setSituation("lteSignal", -95);
    clock->advance(10000);
    QCOMPARE(states(), (QStringList{"ON REGISTERING -95 dBm", "ON CONNECTED -95 dBm"}));
}

void tst_modemBehaviour::canBeSwitchedOffWhileItSearches()
{
    receiver->setSituation("lteSignal", -120);
    connectModem();
    switchTo(false);
    clock->advance(10000);
    QCOMPARE(states(), (QStringList{"PENDING DISCONNECTED N/A", "OFF DISCONNECTED N/A"}));
    receiver->setSituation("lteSignal", -71);
    clock->advance(10000);
    QCOMPARE(states(), QStringList());
}

void tst_modemBehaviour::findsTheNetworkAgainAfterTheSignalWasLost()
{
    connectModem();
    receiver->setSituation("lteSignal", -120);
    clock->advance(60000);
    QCOMPARE(states(), QStringList("ON SEARCHING N/A"));
    receiver->setSituation("lteSignal", -80);
    clock->advance(10000);
    QCOMPARE(states(), (QStringList{"ON REGISTERING -80 dBm", "ON CONNECTED -80 dBm"}));
}

void tst_modemBehaviour::losesTheSignalWhileItRegisters()
{
    switchTo(true);
    clock->advance(4600);
    QCOMPARE(states().last(), QString("PENDING REGISTERING -71 dBm"));
    receiver->setSituation("lteSignal", -120);
    clock->advance(60000);
    QCOMPARE(states(), (QStringList{"PENDING SEARCHING N/A", "ON SEARCHING N/A"}));
}

void tst_modemBehaviour::tellsHowStrongTheSignalIs()
{
    connectModem();
    receiver->setSituation("lteSignal", -101.4);
    QCOMPARE(states(), QStringList("ON CONNECTED -101 dBm"));
    receiver->setSituation("lteSignal", -101.2);
    QCOMPARE(states(), QStringList());
}

void tst_modemBehaviour::hearsNoNetworkThatIsTooWeak_data()
{
    QTest::addColumn<double>("strength");
    QTest::addColumn<QString>("state");
    QTest::newRow("weakest") << -112.0 << "ON CONNECTED -112 dBm";
    QTest::newRow("too weak") << -113.0 << "ON SEARCHING N/A";
}

void tst_modemBehaviour::hearsNoNetworkThatIsTooWeak()
{
    QFETCH(double, strength);
    receiver->setSituation("lteSignal", strength);
    switchTo(true);
    clock->advance(10000);
    QTEST(states().last(), "state");
}

void tst_modemBehaviour::startsAgainAfterARestart()
{
    connectModem();
    receiver->restart();
    clock->advance(10000);
    QCOMPARE(states(), (QStringList{"PENDING DISCONNECTED N/A", "PENDING SEARCHING N/A", "PENDING REGISTERING -71 dBm",
                                    "ON CONNECTED -71 dBm"}));
}

void tst_modemBehaviour::staysOffAfterARestart()
{
    connectModem();
    switchTo(false);
    receiver->restart();
    QCOMPARE(states().last(), QString("OFF DISCONNECTED N/A"));
    clock->advance(10000);
    QCOMPARE(states(), QStringList());
}

void tst_modemBehaviour::refusesWhatIsNoSituation_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("SIM") << "lteSim" << QVariant("gone");
    QTest::newRow("signal") << "lteSignal" << QVariant("weak");
    QTest::newRow("name") << "lteAntenna" << QVariant(true);
}

void tst_modemBehaviour::refusesWhatIsNoSituation()
{
    QFETCH(QString, name);
    QFETCH(QVariant, value);
    connectModem();
    QVERIFY(!receiver->setSituation(name, value));
    QCOMPARE(states(), QStringList());
}

void tst_modemBehaviour::letsTheClockRestOnceItIsThere()
{
    melvox_receiver::simClock_t running;
    running.setSpeed(1000);
    melvox_receiver::receiver_t other(display.data(), &running);
    QVERIFY(!running.isTicking());
    switchTo(true);
    QVERIFY(running.isTicking());
    QVERIFY(melvox_test::waitFor([&]() { return !running.isTicking(); }));
    QCOMPARE(states().last(), QString("ON CONNECTED -71 dBm"));
}

QTEST_MAIN(tst_modemBehaviour)
#include "tst_modemBehaviour.moc"
