#include "receiver/profileText.h"
#include "receiver/receiver.h"
#include "support/folder.h"
#include "support/test.h"

#include "receiverEnd.h"

#include <QDir>

using namespace melvox_receiver;
using melvox_test::folder_t;
using melvox_test::receiverEnd_t;

/** Profiles that outlive the receiver, web packages and the Iridium modem. */
class tst_fileBehaviours : public melvox_test::test_t
{
    Q_OBJECT

protected:
    void setUp() override
    {
        clock.reset(new simClock_t(simClock_t::MANUAL));
        start();
    }
    void tearDown() override { receiver.reset(); }

private:
    /** Switches a receiver off and a new one on. */
    void start()
    {
        receiver.reset();
        display.reset(new receiverEnd_t);
        receiver.reset(new receiver_t(display.data(), clock.data()));
    }
    QStringList profiles()
    {
        display->messages.clear();
        display->request("profiles");
        return display->texts().filter("profile ");
    }
    QString active()
    {
        display->request("activeProfile");
        return display->last("activeProfile").toString();
    }
    QStringList upload(QByteArray const& bytes);
    void uploadWeb();
    QString webState() const
    {
        QVariantMap const told = display->last("webUiUploadState").toMap();
        return told.value("state").toString() + " " + told.value("description").toString();
    }

    QScopedPointer<simClock_t> clock;
    QScopedPointer<receiverEnd_t> display;
    QScopedPointer<receiver_t> receiver;

private slots:
    void keepsProfilesInAFolderWithTheirTimes();
    void keepsTheSettingsOfAProfile();
    void keepsWhichProfileIsActive();
    void forgetsADeletedProfileForGood();
    void keepsNamesThatFilesCannotHave_data();
    void keepsNamesThatFilesCannotHave();
    void passesSpoiltProfilesOver();
    void refusesAFolderThatCannotBeUsed();
    void refusesAFileThatWasCutOff_data();
    void refusesAFileThatWasCutOff();
    void forgetsAHalfLoadedFileWithTheLock();
    void uploadsAWebPackageWithTwoRestarts();
    void cancelsAWebUploadAtAnyTime_data();
    void cancelsAWebUploadAtAnyTime();
    void tellsWhoeverCancelsThatNoWebUploadRuns();
    void refusesASecondWebUploadUntilTheEnd();
    void breaksAWebUploadOffAtALossOfPower();
    void breaksAWebUploadOffWhenTheDisplayGoes();
    void tellsADisplayThatComesBackHowItsWebUploadEnded_data();
    void tellsADisplayThatComesBackHowItsWebUploadEnded();
    void startsTheIridiumModemAfterARestart();
    void tellsThatTheIridiumModemIsNotProvisioned();
};

QStringList tst_fileBehaviours::upload(QByteArray const& bytes)
{
    display->messages.clear();
    for (int offset = 0; offset < bytes.size(); offset += 1024)
        display->command("uploadData", bytes.mid(offset, 1024));
    return display->texts();
}

void tst_fileBehaviours::keepsProfilesInAFolderWithTheirTimes()
{
    folder_t folder;
    QVERIFY(receiver->setSituation("profileFolder", folder.path("profiles")));
    clock->advance(5000);
    display->command("saveAsProfile", "Field");
    clock->advance(5000);
    display->command("saveAsProfile", "Yard");
    QStringList const before = profiles();
    QCOMPARE(int(before.size()), 3);
    start();
    QCOMPARE(int(profiles().size()), 1);
    QVERIFY(receiver->setSituation("profileFolder", folder.path("profiles")));
    QCOMPARE(profiles().mid(1), before.mid(1)); // the first is the factory's, as old as the receiver
}

void tst_fileBehaviours::keepsTheSettingsOfAProfile()
{
    folder_t folder;
    receiver->setSituation("profileFolder", folder.path());
    display->command("elevationMask", 33.5);
    display->command("saveAsProfile", "Field");
    start();
    receiver->setSituation("profileFolder", folder.path());
    QVERIFY(receiver->setting("elevationMask") != QVariant(33.5));
    display->command("useProfile", "Field");
    QCOMPARE(receiver->setting("elevationMask"), QVariant(33.5));
}

void tst_fileBehaviours::keepsWhichProfileIsActive()
{
    folder_t folder;
    receiver->setSituation("profileFolder", folder.path());
    display->command("saveAsProfile", "Field");
    display->command("useProfile", "Field");
    start();
    receiver->setSituation("profileFolder", folder.path());
    QCOMPARE(active(), QString("Field"));
}

void tst_fileBehaviours::forgetsADeletedProfileForGood()
{
    folder_t folder;
    receiver->setSituation("profileFolder", folder.path());
    display->command("saveAsProfile", "Field");
    display->command("deleteProfile", "Field");
    start();
    receiver->setSituation("profileFolder", folder.path());
    QCOMPARE(int(profiles().size()), 1);
}

void tst_fileBehaviours::keepsNamesThatFilesCannotHave_data()
{
    QTest::addColumn<QString>("name");
    for (char const* name : {"a/b", "..", ".", "a.b.profile", "50% %41", "*?:|<>", "active"})
        QTest::newRow(name) << name;
}

void tst_fileBehaviours::keepsNamesThatFilesCannotHave()
{
    QFETCH(QString, name);
    folder_t folder;
    receiver->setSituation("profileFolder", folder.path("profiles"));
    display->command("saveAsProfile", name);
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden),
             QStringList("profiles"));
    start();
    receiver->setSituation("profileFolder", folder.path("profiles"));
    display->command("useProfile", name);
    QCOMPARE(active(), name);
}

void tst_fileBehaviours::passesSpoiltProfilesOver()
{
    folder_t folder;
    folder.write("Bad.profile", "melvox-profile 1\n{}\nsha1 0\n");
    folder.write("Factory.profile", profileText(startSettings()));
    folder.write("Good.profile", profileText(startSettings()));
    folder.write("notes.txt", "x");
    receiver->setSituation("profileFolder", folder.path());
    QStringList const told = profiles();
    QCOMPARE(int(told.size()), 2);
    QVERIFY(told.last().contains("name=Good"));
}

void tst_fileBehaviours::refusesAFolderThatCannotBeUsed()
{
    folder_t folder;
    folder.write("file", "x");
    QVERIFY(!receiver->setSituation("profileFolder", folder.path("file/profiles")));
    QVERIFY(!receiver->setSituation("profileFolder", folder.path("file")));
}

void tst_fileBehaviours::refusesAFileThatWasCutOff_data()
{
    QTest::addColumn<int>("missing");
    QTest::newRow("the last character") << 1;
    QTest::newRow("the checksum") << 50;
    QTest::newRow("much") << 1500;
}

void tst_fileBehaviours::refusesAFileThatWasCutOff()
{
    QFETCH(int, missing);
    QByteArray bytes = profileText(startSettings());
    QVERIFY((bytes.size() - missing) % 1024 != 0);
    bytes.chop(missing);
    receiver->set("elevationMask", 33.5);
    QStringList const told = upload(bytes);
    QCOMPARE(told.last(), QString("uploadResult 1"));
    QCOMPARE(int(told.filter("uploadResult 0").size()), int(told.size()) - 1);
    QCOMPARE(receiver->setting("elevationMask"), QVariant(33.5));
}

void tst_fileBehaviours::forgetsAHalfLoadedFileWithTheLock()
{
    QByteArray const bytes = profileText(startSettings());
    receiver->set("elevationMask", 33.5);
    display->command("portLock", 1);
    display->command("uploadData", bytes.left(1024));
    display->command("portLock", 0);
    upload(bytes.mid(1024));
    QCOMPARE(receiver->setting("elevationMask"), QVariant(33.5));
}

void tst_fileBehaviours::uploadWeb()
{
    display->command("startWebUiUpload", QVariantMap{{"path", "web"}, {"size", 10}});
    display->command("fileBlock", QVariantMap{{"path", "web"}, {"offset", 0}, {"data", QByteArray(10, 'w')}});
}

void tst_fileBehaviours::uploadsAWebPackageWithTwoRestarts()
{
    int restarts = 0;
    QStringList states;
    display->command("portLock", 1);
    uploadWeb();
    for (int i = 0; i < 200; ++i)
    {
        for (melvox_link::message_t const& message : display->messages)
        {
            // A restart takes the lock from whoever has it, and tells what runs.
            restarts += message.group == "firmwareVersion" && message.value.toMap().value("component") == "NAV";
            if (message.group == "webUiUploadState")
                states << message.value.toMap().value("description").toString();
        }
        display->messages.clear();
        clock->advance(100);
    }
    QCOMPARE(restarts, 2);
    QCOMPARE(states, (QStringList{"Receiving the package", "Restarting the receiver (1 of 2)", "Installing the package",
                                  "Restarting the receiver (2 of 2)", "Upload complete"}));
}

void tst_fileBehaviours::cancelsAWebUploadAtAnyTime_data()
{
    QTest::addColumn<int>("after");
    QTest::newRow("in the first restart") << 1000;
    QTest::newRow("while it installs") << 5000;
    QTest::newRow("in the second restart") << 11000;
}

void tst_fileBehaviours::cancelsAWebUploadAtAnyTime()
{
    QFETCH(int, after);
    uploadWeb();
    clock->advance(after);
    QVERIFY(webState().startsWith("1 "));
    display->command("cancelWebUiUpload");
    QCOMPARE(webState(), QString("0 The upload was cancelled"));
    display->messages.clear();
    clock->advance(20000);
    QVERIFY(!display->last("webUiUploadState").isValid());
    uploadWeb();
    clock->advance(20000);
    QCOMPARE(webState(), QString("2 Upload complete"));
}

void tst_fileBehaviours::tellsWhoeverCancelsThatNoWebUploadRuns()
{
    display->command("cancelWebUiUpload");
    QCOMPARE(webState(), QString("0 No upload is in progress"));
}

void tst_fileBehaviours::refusesASecondWebUploadUntilTheEnd()
{
    uploadWeb();
    display->command("startWebUiUpload", QVariantMap{{"path", "web"}, {"size", 10}});
    QCOMPARE(webState(), QString("1 Another upload is in progress"));
    clock->advance(20000);
    QCOMPARE(webState(), QString("2 Upload complete"));
}

void tst_fileBehaviours::breaksAWebUploadOffAtALossOfPower()
{
    uploadWeb();
    clock->advance(5000);
    receiver->restart();
    QCOMPARE(webState(), QString("0 The receiver was restarted during the upload"));
    clock->advance(20000);
    QVERIFY(webState().startsWith("0 "));
}

void tst_fileBehaviours::breaksAWebUploadOffWhenTheDisplayGoes()
{
    receiverEnd_t other;
    receiver->addLink(&other, 6);
    display->command("startWebUiUpload", QVariantMap{{"path", "web"}, {"size", 10}});
    display->setOpen(false);
    QCOMPARE(other.last("webUiUploadState").toMap().value("description").toString(), QString("The display is gone"));
}

void tst_fileBehaviours::tellsADisplayThatComesBackHowItsWebUploadEnded_data()
{
    QTest::addColumn<bool>("drawn");
    QTest::addColumn<bool>("restarted");
    QTest::addColumn<QString>("state");
    QTest::newRow("gone while it was drawn") << false << false << "0 The display is gone";
    QTest::newRow("gone while it was installed") << true << false << "2 Upload complete";
    QTest::newRow("gone with the power") << true << true << "0 The receiver was restarted during the upload";
}

void tst_fileBehaviours::tellsADisplayThatComesBackHowItsWebUploadEnded()
{
    QFETCH(bool, drawn);
    QFETCH(bool, restarted);
    QFETCH(QString, state);
    if (drawn)
        uploadWeb();
    else
        display->command("startWebUiUpload", QVariantMap{{"path", "web"}, {"size", 10}});
    display->setOpen(false);
    if (restarted)
        receiver->restart();
    clock->advance(20000);
    display->setOpen(true);
    display->messages.clear();
    display->request("webControl");
    QCOMPARE(webState(), state);
    QVERIFY(display->last("webControl").isValid());
    // Once is enough.
    display->messages.clear();
    display->request("webControl");
    QVERIFY(!display->last("webUiUploadState").isValid());
}

void tst_fileBehaviours::startsTheIridiumModemAfterARestart()
{
    display->request("irdmStat");
    QCOMPARE(display->last("irdmStat").toMap().value("modemStatus").toString(), QString("ON"));
    QString const imei = display->last("irdmStat").toMap().value("imei").toString();
    display->messages.clear();
    receiver->restart();
    clock->advance(20000);
    QStringList states;
    for (melvox_link::message_t const& message : display->messages)
    {
        if (message.group != "irdmStat")
            continue;
        QVariantMap const status = message.value.toMap();
        QCOMPARE(status.value("imei").toString(), imei);
        states << status.value("modemStatus").toString() + " " + status.value("provisioningStatus").toString();
    }
    QCOMPARE(states, (QStringList{"STARTING UNKNOWN", "SEARCHING PENDING", "ON PROVISIONED"}));
}

void tst_fileBehaviours::tellsThatTheIridiumModemIsNotProvisioned()
{
    QVERIFY(!receiver->setSituation("iridiumProvisioned", "no"));
    QVERIFY(receiver->setSituation("iridiumProvisioned", false));
    QCOMPARE(display->last("irdmStat").toMap().value("provisioningStatus").toString(), QString("NOT PROVISIONED"));
    receiver->restart();
    clock->advance(20000);
    QCOMPARE(display->last("irdmStat").toMap().value("provisioningStatus").toString(), QString("NOT PROVISIONED"));
}

QTEST_MAIN(tst_fileBehaviours)
#include "tst_fileBehaviours.moc"
