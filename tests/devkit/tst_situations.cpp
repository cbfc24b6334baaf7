#include "behaviourTest.h"
#include "support/firmware.h"

using melvox_test::package_t;

namespace
{

QVariantMap update(QList<int> const& components, qint64 size)
{
    QVariantList list;
    for (int i = 0; i < components.size(); ++i)
        list << QVariantMap{{"fileIndex", i}, {"component", components.at(i)}, {"path", ""}, {"size", 0}};
    return {{"components", list}, {"combinedPath", "all"}, {"combinedSize", double(size)}};
}

} // namespace

/** What a receiver is not always spared. */
class tst_situations : public melvox_test::behaviourTest_t
{
    Q_OBJECT

private:
    /** Firmware of NAV, BOOT1 and PIOAPP, up to where the first is being written. */
    void startUpdate()
    {
        QByteArray const file = package_t().add(2, "1.15.2").add(0, "2.9").add(6, "7.7").bytes();
        display->command("portLock", 2);
        display->command("startFirmwareUpdate", update({2, 0, 6}, file.size()));
        for (int i = 0; i < display->messages.size(); ++i)
        {
            melvox_link::message_t const message = display->messages.at(i);
            if (message.group != "fileWanted")
                continue;
            int const offset = message.value.toMap().value("offset").toInt();
            display->command("fileBlock",
                             QVariantMap{{"path", "all"},
                                         {"offset", offset},
                                         {"data", file.mid(offset, message.value.toMap().value("size").toInt())}});
        }
    }
    QString statuses() const
    {
        QString text;
        for (QVariant const& one : display->last("firmwareUpdateProgress").toList())
            text += one.toMap().value("status").toString();
        return text;
    }

private slots:
    void everySituationIsKnownByItsName()
    {
        QMap<QString, QVariant> const values = {
            {"refusedGroups", QVariantList{"ggaMode"}},
            {"powerCut", 5},
            {"solutionReports", true},
            {"headingReports", true},
            {"solution", "fixed"},
            {"failureCode", 5},
            {"antennaNamesAnew", true},
            {"correctionReports", true},
            {"correctionSatsInView", QVariantList{446}},
            {"newAlmanac", true},
            {"outputs", true},
            {"lockRefused", true},
            {"failingFirmware", "NAV"},
            {"powerCutInFirmware", 1},
            {"firmwareVersions", QVariantMap{{"NAV", "1.0"}}},
            {"profileFolder", ""},
            {"lteModem", "ON"},
            {"lteSim", false},
            {"lteSignal", -90.0},
            {"iridiumProvisioned", false},
        };
        QStringList names = receiver->situations();
        names.sort();
        QCOMPARE(names, QStringList(values.keys()));
        for (QString const& name : names)
        {
            QVERIFY2(receiver->setSituation(name, values.value(name)), qPrintable(name));
            QVERIFY2(!receiver->setSituation(name, QVariantMap{{"nonsense", 1}}) || name == "profileFolder",
                     qPrintable(name));
        }
        QVERIFY(!receiver->setSituation("weather", 1));
    }

    void refusedGroupsKeepTheirValues()
    {
        QVERIFY(receiver->setSituation("refusedGroups", QVariantList{"elevationMask", "correctionMaxAge"}));
        display->command("elevationMask", 12.5);
        QCOMPARE(display->texts(), QStringList("elevationMask 7"));
        display->command("correctionMaxAge", QVariantMap{{"type", 1}, {"seconds", 42}});
        QCOMPARE(int(display->texts().size()), 3);
        display->command("pdopLimit", 6.5);
        QCOMPARE(display->texts(), QStringList("pdopLimit 6.5"));
        QVERIFY(receiver->setSituation("refusedGroups", QVariantList()));
        display->command("elevationMask", 12.5);
        QCOMPARE(display->texts(), QStringList("elevationMask 12.5"));
    }

    void onlyGroupsThatCanBeCommandedCanBeRefused()
    {
        QVERIFY(!receiver->setSituation("refusedGroups", QVariantList{"netPriority"}));
        QVERIFY(!receiver->setSituation("refusedGroups", QVariantList{"espresso"}));
        QVERIFY(!receiver->setSituation("refusedGroups", "elevationMask"));
    }

    void aRefusedLockIsGivenToNobodyAndCanBeGivenBack()
    {
        display->command("portLock", 1);
        QVERIFY(receiver->setSituation("lockRefused", true));
        display->command("portLock", 0);
        QCOMPARE(display->texts(), (QStringList{"portLock 1", "portLock 0"}));
        display->command("portLock", 2);
        QCOMPARE(display->texts(), QStringList("portLock 0"));
        QVERIFY(receiver->setSituation("lockRefused", false));
        display->command("portLock", 2);
        QCOMPARE(display->texts(), QStringList("portLock 2"));
    }

    void aPendingModemStaysSoUntilTheSituationIsOver()
    {
        QVERIFY(receiver->setSituation("lteModem", "PENDING"));
        QCOMPARE(display->last("lteModemStat").toMap().value("modemStatus").toString(), QString("PENDING"));
        display->command("lteModemStat", QVariantMap{{"on", false}});
        clock->advance(100000);
        display->request("lteModemStat");
        QCOMPARE(display->last("lteModemStat").toMap().value("modemStatus").toString(), QString("PENDING"));
        QVERIFY(receiver->setSituation("lteModem", "ON"));
        QCOMPARE(display->last("lteModemStat").toMap().value("networkStatus").toString(), QString("CONNECTED"));
        display->command("lteModemStat", QVariantMap{{"on", false}});
        clock->advance(10000);
        QCOMPARE(display->last("lteModemStat").toMap().value("modemStatus").toString(), QString("OFF"));
    }

    void firmwareVersionsAreToldAndStayOverARestart()
    {
        QVERIFY(receiver->setSituation("firmwareVersions", QVariantMap{{"NAV", "1.12.7"}}));
        QCOMPARE(display->texts(), QStringList("firmwareVersion component=NAV version=1.12.7"));
        receiver->restart();
        QVERIFY(display->texts().contains("firmwareVersion component=NAV version=1.12.7"));
        QVERIFY(!receiver->setSituation("firmwareVersions", QVariantMap{{"NAV", "1.0"}, {"WINGS", "1.0"}}));
        QVERIFY(!receiver->setSituation("firmwareVersions", QVariantMap()));
    }

    void aComponentCanFailByItsPlaceInTheUpdate()
    {
        QVERIFY(receiver->setSituation("failingFirmware", 2));
        startUpdate();
        clock->advance(10000);
        QCOMPARE(statuses(), QString("232"));
        QVERIFY(!receiver->setSituation("failingFirmware", 0));
        QVERIFY(!receiver->setSituation("failingFirmware", 1.5));
    }

    void aPowerCutEndsWhatIsUnderWayAndStartsTheReceiverAnew()
    {
        receiver->startReports();
        clock->advance(2000);
        display->texts();
        display->command("portLock", 1);
        QVERIFY(receiver->setSituation("powerCut", 5));
        QCOMPARE(receiver->lockOf(display.data()), 0);
        clock->advance(6000);
        QCOMPARE(display->last("extendedNavInfo").toMap().value("navValid").toBool(), false);
        clock->advance(40000);
        QCOMPARE(display->last("extendedNavInfo").toMap().value("navValid").toBool(), true);
    }

    void nothingIsPutOutWithoutPower()
    {
        receiver->startReports();
        int bytes = 0;
        connect(receiver.data(), &melvox_receiver::receiver_t::portOutput, this,
                [&](unsigned int, QByteArray const& output) { bytes += int(output.size()); });
        clock->advance(3000);
        QVERIFY(bytes > 0);
        QVERIFY(receiver->setSituation("powerCut", 5));
        bytes = 0;
        clock->advance(4000);
        QCOMPARE(bytes, 0);
        clock->advance(60000);
        QVERIFY(bytes > 0);
    }

    void linksAreCutWhileThereIsNoPower()
    {
        QVERIFY(receiver->setSituation("powerCut", 5));
        QCOMPARE(display->cuts, QList<bool>{true});
        melvox_test::receiverEnd_t late;
        receiver->addLink(&late, 6);
        QCOMPARE(late.cuts, QList<bool>{true});
        clock->advance(5000);
        QCOMPARE(display->cuts, (QList<bool>{true, false}));
        QCOMPARE(late.cuts, (QList<bool>{true, false}));
        QVERIFY(!receiver->setSituation("powerCut", 0));
    }

    void aPowerCutWhileAComponentIsWrittenLeavesItIncomplete()
    {
        QVERIFY(receiver->setSituation("powerCutInFirmware", "boot1"));
        startUpdate();
        clock->advance(4000);
        QVERIFY(display->cuts.isEmpty());
        clock->advance(1000);
        QCOMPARE(display->cuts, QList<bool>{true});
        clock->advance(11000);
        display->messages.clear();
        display->request("firmwareVersions");
        QStringList const texts = display->texts();
        QVERIFY(texts.contains("firmwareVersion component=BOOT1 version=incomplete"));
        QVERIFY(texts.contains("firmwareVersion component=NAV version=1.15.2"));
        // Once: the next update goes through.
        startUpdate();
        clock->advance(10000);
        QCOMPARE(statuses(), QString("222"));
    }
};

QTEST_GUILESS_MAIN(tst_situations)
#include "tst_situations.moc"
