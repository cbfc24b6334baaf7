#include "receiver/receiver.h"
#include "support/firmware.h"
#include "support/test.h"

#include "receiverEnd.h"

using namespace melvox_receiver;
using melvox_test::package_t;
using melvox_test::receiverEnd_t;

namespace
{

int const PLUGIN_LOCK = 2;
int const WRITING = 3000; // milliseconds for one component

QVariantMap component(int number, QString const& path, qint64 size, int fileIndex = 0)
{
    return {{"fileIndex", fileIndex}, {"component", number}, {"path", path}, {"size", double(size)}};
}

} // namespace

/** Firmware updates as a display sees them. */
class tst_firmwareBehaviour : public melvox_test::test_t
{
    Q_OBJECT

protected:
    void setUp() override
    {
        clock.reset(new simClock_t(simClock_t::MANUAL));
        display.reset(new receiverEnd_t);
        receiver.reset(new receiver_t(display.data(), clock.data()));
        files.clear();
    }
    void tearDown() override { receiver.reset(); }

private:
    void lock()
    {
        display->command("portLock", PLUGIN_LOCK);
        display->texts();
    }
    /** NAV, BOOT1 and PIOAPP, each in a file of its own. */
    void startThree();
    void startCombined();
    /** Sends what the receiver asks for, until it asks for no more. */
    void serve(int blocks = 1000);
    QString state() const
    {
        QVariantMap const told = display->last("firmwareUpdateState").toMap();
        return told.value("state").toString() + " " + told.value("description").toString();
    }
    /** The statuses of the components, such as "210". */
    QString statuses() const
    {
        QString text;
        for (QVariant const& one : display->last("firmwareUpdateProgress").toList())
            text += one.toMap().value("status").toString();
        return text;
    }
    QString version(QString const& name);

    QScopedPointer<simClock_t> clock;
    QScopedPointer<receiverEnd_t> display;
    QScopedPointer<receiver_t> receiver;
    QMap<QString, QByteArray> files;

private slots:
    void refusesAnUpdateWithoutTheLock();
    void refusesAnUpdateWhileAnotherDisplayHasTheLock();
    void refusesAnUpdateOfNothing();
    void drawsEachFileThenWritesEachComponent();
    void drawsACombinedFileOnce();
    void writesOnlyWhatWasAskedForOfACombinedFile();
    void tellsThePercentageWithoutGoingBack();
    void runsTheNewVersionsAfterTheNextRestart();
    void failsAComponentThatCannotBeWrittenAndWritesTheOthers();
    void takesAFailingComponentByName();
    void writesNothingOfADamagedFile();
    void writesNothingOfAFileThatEndsEarly();
    void writesNothingOfAnotherComponentsFile();
    void writesNothingThatIsMadeForAnotherProduct();
    void goesOnWithTheFirstUpdateWhenToldToStartAgain();
    void failsWhenTheDisplayIsSilent();
    void leavesTheOldFirmwareWhenTheLinkBreaksWhileItDraws();
    void finishesWritingWhenTheLinkBreaks();
    void tellsADisplayThatComesBackWhatHappened();
    void saysThatTheWritingWasBrokenOffByALossOfPower();
    void leavesTheOldFirmwareAtALossOfPowerWhileItDraws();
    void mendsAnIncompleteComponentWithTheNextUpdate();
    void canUpdateAgainAfterEachOutcome();
};

void tst_firmwareBehaviour::startThree()
{
    files["nav"] = package_t().add(2, "1.15.2", 8, 40000).bytes();
    files["boot"] = package_t().add(0, "2.9", 8, 5000).bytes();
    files["pio"] = package_t().add(6, "7.7", 0, 5000).bytes();
    lock();
    display->command("startFirmwareUpdate",
                     QVariantMap{{"components", QVariantList{component(2, "nav", files["nav"].size()),
                                                             component(0, "boot", files["boot"].size()),
                                                             component(6, "pio", files["pio"].size())}},
                                 {"combinedPath", ""}});
}

void tst_firmwareBehaviour::startCombined()
{
    files["all"] = package_t().add(2, "1.15.2", 8, 20000).add(0, "2.9").add(6, "7.7").bytes();
    lock();
    display->command("startFirmwareUpdate",
                     QVariantMap{{"components",
                                  QVariantList{component(2, "", 0, 0), component(0, "", 0, 1), component(6, "", 0, 2)}},
                                 {"combinedPath", "all"},
                                 {"combinedSize", files["all"].size()}});
}

void tst_firmwareBehaviour::serve(int blocks)
{
    for (int i = 0; i < display->messages.size() && blocks > 0; ++i)
    {
        melvox_link::message_t const message = display->messages.at(i);
        if (message.group != "fileWanted")
            continue;
        QVariantMap const wanted = message.value.toMap();
        display->messages.removeAt(i--);
        --blocks;
        QByteArray const file = files.value(wanted.value("path").toString());
        int const offset = wanted.value("offset").toInt();
        display->command("fileBlock", QVariantMap{{"path", wanted.value("path")},
                                                  {"offset", offset},
                                                  {"data", file.mid(offset, wanted.value("size").toInt())}});
    }
}

QString tst_firmwareBehaviour::version(QString const& name)
{
    display->messages.clear();
    display->request("firmwareVersions");
    for (melvox_link::message_t const& message : display->messages)
    {
        if (message.value.toMap().value("component").toString() == name)
            return message.value.toMap().value("version").toString();
    }
    return QString();
}

void tst_firmwareBehaviour::refusesAnUpdateWithoutTheLock()
{
    display->command("startFirmwareUpdate",
                     QVariantMap{{"components", QVariantList{component(2, "nav", 9)}}, {"combinedPath", ""}});
    QCOMPARE(state(), QString("0 The port is not locked for the update"));
    QVERIFY(!display->last("fileWanted").isValid());
}

void tst_firmwareBehaviour::refusesAnUpdateWhileAnotherDisplayHasTheLock()
{
    receiverEnd_t other;
    receiver->addLink(&other, 8);
    other.command("portLock", PLUGIN_LOCK);
    display->command("startFirmwareUpdate",
                     QVariantMap{{"components", QVariantList{component(2, "nav", 9)}}, {"combinedPath", ""}});
    QCOMPARE(state(), QString("0 The port is not locked for the update"));
}

void tst_firmwareBehaviour::refusesAnUpdateOfNothing()
{
    lock();
    display->command("startFirmwareUpdate", QVariantMap{{"components", QVariantList()}, {"combinedPath", ""}});
    QCOMPARE(state(), QString("0 There is nothing to update"));
}

void tst_firmwareBehaviour::drawsEachFileThenWritesEachComponent()
{
    startThree();
    QCOMPARE(state(), QString("1 Receiving NAV"));
    serve();
    QCOMPARE(state(), QString("1 Writing NAV"));
    QCOMPARE(statuses(), QString("100"));
    clock->advance(WRITING);
    QCOMPARE(state(), QString("1 Writing BOOT1"));
    QCOMPARE(statuses(), QString("210"));
    clock->advance(WRITING);
    QCOMPARE(statuses(), QString("221"));
    clock->advance(WRITING);
    QCOMPARE(statuses(), QString("222"));
    QCOMPARE(state(), QString("2 Firmware update complete"));
    QCOMPARE(display->last("firmwareUpdatePercent").toDouble(), 1.0);
}

void tst_firmwareBehaviour::drawsACombinedFileOnce()
{
    startCombined();
    QCOMPARE(state(), QString("1 Receiving the package"));
    serve();
    clock->advance(3 * WRITING);
    QCOMPARE(state(), QString("2 Firmware update complete"));
    QCOMPARE(statuses(), QString("222"));
    receiver->restart();
    QCOMPARE(version("BOOT1"), QString("2.9"));
    QCOMPARE(version("PIOAPP"), QString("7.7"));
}

void tst_firmwareBehaviour::writesOnlyWhatWasAskedForOfACombinedFile()
{
    files["all"] = package_t().add(2, "1.15.2").add(0, "2.9").bytes();
    lock();
    display->command("startFirmwareUpdate", QVariantMap{{"components", QVariantList{component(0, "", 0, 1)}},
                                                        {"combinedPath", "all"},
                                                        {"combinedSize", files["all"].size()}});
    serve();
    clock->advance(WRITING);
    receiver->restart();
    QCOMPARE(version("BOOT1"), QString("2.9"));
    QCOMPARE(version("NAV"), QString("1.14.40"));
}

void tst_firmwareBehaviour::tellsThePercentageWithoutGoingBack()
{
    startThree();
    serve();
    clock->advance(3 * WRITING);
    double last = 0;
    int count = 0;
    for (melvox_link::message_t const& message : display->messages)
    {
        if (message.group != "firmwareUpdatePercent")
            continue;
        QVERIFY2(message.value.toDouble() >= last, qPrintable(message.value.toString()));
        last = message.value.toDouble();
        ++count;
    }
    QCOMPARE(last, 1.0);
    QVERIFY(count > 10);
}

void tst_firmwareBehaviour::runsTheNewVersionsAfterTheNextRestart()
{
    startThree();
    serve();
    clock->advance(3 * WRITING);
    display->command("portLock", 0);
    QCOMPARE(version("NAV"), QString("1.14.40"));
    display->messages.clear();
    display->command("reboot", QVariantMap{{"delay", 0}});
    clock->advance(100);
    // It tells by itself what runs now.
    QVERIFY(display->texts().contains("firmwareVersion component=NAV version=1.15.2"));
    QCOMPARE(version("NAV"), QString("1.15.2"));
    QCOMPARE(version("BOOT1"), QString("2.9"));
    QCOMPARE(version("BOOT2"), QString("2.1.0"));
}

void tst_firmwareBehaviour::failsAComponentThatCannotBeWrittenAndWritesTheOthers()
{
    QVERIFY(receiver->setSituation("failingFirmware", "boot1"));
    startThree();
    serve();
    clock->advance(3 * WRITING);
    QCOMPARE(statuses(), QString("232"));
    QCOMPARE(state(), QString("0 Could not be written: BOOT1"));
    receiver->restart();
    QCOMPARE(version("NAV"), QString("1.15.2"));
    QCOMPARE(version("BOOT1"), QString("incomplete"));
}

void tst_firmwareBehaviour::takesAFailingComponentByName()
{
    QVERIFY(!receiver->setSituation("failingFirmware", "TEA"));
    QVERIFY(receiver->setSituation("failingFirmware", "NAV"));
    QVERIFY(receiver->setSituation("failingFirmware", ""));
}

void tst_firmwareBehaviour::writesNothingOfADamagedFile()
{
    startThree();
    files["boot"].replace("7878", "7879");
    serve();
    QVERIFY2(state().startsWith("0 The file is damaged: line "), qPrintable(state()));
    QCOMPARE(statuses(), QString("333"));
    receiver->restart();
    QCOMPARE(version("NAV"), QString("1.14.40"));
    QCOMPARE(version("BOOT1"), QString("2.0.4"));
}

void tst_firmwareBehaviour::writesNothingOfAFileThatEndsEarly()
{
    startThree();
    files["pio"].chop(10);
    serve();
    QCOMPARE(state(), QString("0 The file ended too early"));
    receiver->restart();
    QCOMPARE(version("NAV"), QString("1.14.40"));
}

void tst_firmwareBehaviour::writesNothingOfAnotherComponentsFile()
{
    startThree();
    files["boot"] = package_t().add(1, "2.9", 8, 5000).bytes();
    serve();
    QCOMPARE(state(), QString("0 The file does not hold BOOT1"));
}

void tst_firmwareBehaviour::writesNothingThatIsMadeForAnotherProduct()
{
    startThree();
    files["boot"] = package_t().add(0, "2.9", 3, 5000).bytes();
    serve();
    QCOMPARE(state(), QString("0 BOOT1 is made for product 3, not for this one"));
}

void tst_firmwareBehaviour::goesOnWithTheFirstUpdateWhenToldToStartAgain()
{
    startThree();
    serve(1);
    display->command(
        "startFirmwareUpdate",
        QVariantMap{{"components", QVariantList{component(0, "boot", files["boot"].size())}}, {"combinedPath", ""}});
    serve();
    clock->advance(3 * WRITING);
    QCOMPARE(state(), QString("2 Firmware update complete"));
    QCOMPARE(statuses(), QString("222"));
}

void tst_firmwareBehaviour::failsWhenTheDisplayIsSilent()
{
    startThree();
    clock->advance(10000);
    QCOMPARE(state(), QString("0 The display did not send the file"));
    QCOMPARE(statuses(), QString("333"));
}

void tst_firmwareBehaviour::leavesTheOldFirmwareWhenTheLinkBreaksWhileItDraws()
{
    startThree();
    serve(2);
    display->setOpen(false);
    clock->advance(10 * WRITING);
    display->setOpen(true);
    receiver->restart();
    QCOMPARE(version("NAV"), QString("1.14.40"));
}

void tst_firmwareBehaviour::finishesWritingWhenTheLinkBreaks()
{
    startThree();
    serve();
    display->setOpen(false);
    clock->advance(3 * WRITING);
    display->setOpen(true);
    receiver->restart();
    QCOMPARE(version("PIOAPP"), QString("7.7"));
}

void tst_firmwareBehaviour::tellsADisplayThatComesBackWhatHappened()
{
    startThree();
    serve(1);
    display->setOpen(false);
    display->setOpen(true);
    display->messages.clear();
    display->request("firmwareVersions");
    QCOMPARE(state(), QString("0 The display is gone"));
    // Once is enough.
    display->messages.clear();
    display->request("firmwareVersions");
    QVERIFY(!display->last("firmwareUpdateState").isValid());
}

void tst_firmwareBehaviour::saysThatTheWritingWasBrokenOffByALossOfPower()
{
    startThree();
    serve();
    clock->advance(WRITING + 500);
    display->messages.clear();
    receiver->restart();
    QCOMPARE(state(), QString("0 The power was lost while BOOT1 was written; update it again"));
    QCOMPARE(statuses(), QString("233"));
    QCOMPARE(display->last("portLock").toInt(), 0);
    QCOMPARE(version("NAV"), QString("1.15.2"));
    QCOMPARE(version("BOOT1"), QString("incomplete"));
    QCOMPARE(version("PIOAPP"), QString("1.8.12"));
}

void tst_firmwareBehaviour::leavesTheOldFirmwareAtALossOfPowerWhileItDraws()
{
    startThree();
    serve(2);
    receiver->restart();
    QCOMPARE(state(), QString("0 The power was lost during the update"));
    QCOMPARE(version("NAV"), QString("1.14.40"));
}

void tst_firmwareBehaviour::mendsAnIncompleteComponentWithTheNextUpdate()
{
    startThree();
    serve();
    clock->advance(500);
    receiver->restart();
    QCOMPARE(version("NAV"), QString("incomplete"));
    startThree();
    serve();
    clock->advance(3 * WRITING);
    receiver->restart();
    QCOMPARE(version("NAV"), QString("1.15.2"));
}

void tst_firmwareBehaviour::canUpdateAgainAfterEachOutcome()
{
    for (int i = 0; i < 3; ++i)
    {
        startThree();
        if (i == 1)
        {
            clock->advance(20000);
            continue;
        }
        serve();
        clock->advance(3 * WRITING);
        QCOMPARE(state(), QString("2 Firmware update complete"));
        display->command("portLock", 0);
        display->messages.clear();
    }
}

QTEST_MAIN(tst_firmwareBehaviour)
#include "tst_firmwareBehaviour.moc"
