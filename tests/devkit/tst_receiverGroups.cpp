#include "link/groups.h"
#include "receiver/receiver.h"
#include "receiverEnd.h"

#include "support/test.h"

#include <QFile>
#include <QRegularExpression>

using namespace melvox_receiver;
using melvox_link::toText;

namespace
{

struct group_t
{
    QString name;
    QString access;
};

/** The groups as they are written down for whoever writes the other end. */
QList<group_t> documentedGroups()
{
    QList<group_t> groups;
    QFile file(QString(MELVOX_DEVKIT_DIR) + "/link/README.md");
    if (!file.open(QIODevice::ReadOnly))
        return groups;
    QRegularExpression const row("^\\| ([A-Za-z0-9, ]+) \\| ([RC]*) *\\| ");
    while (!file.atEnd())
    {
        QRegularExpressionMatch const match = row.match(QString::fromUtf8(file.readLine()));
        if (!match.hasMatch() || match.captured(1) == "group")
            continue;
        for (QString const& name : match.captured(1).split(", "))
            groups << group_t{name, match.captured(2)};
    }
    return groups;
}

/** What a request is answered with, where that is not one report of the group itself. */
QMap<QString, QStringList> const ANSWERS = {
    {"correctionEnabled", {"correctionEnabled", "correctionEnabled", "correctionEnabled"}},
    {"correctionMaxAge", {"correctionMaxAge", "correctionMaxAge", "correctionMaxAge"}},
    {"ethernetConfig", {"ethernetConfig", "ethernetConfig"}},
    {"activePort", QStringList("activePort") + melvox_test::times(6, "serialConfig") +
                       melvox_test::times(6, "serialRs232Mode") + melvox_test::times(8, "vcomConfig")},
    {"serialConfig", melvox_test::times(6, "serialConfig")},
    {"serialRs232Mode", melvox_test::times(6, "serialRs232Mode")},
    {"vcomConfig", melvox_test::times(8, "vcomConfig")},
    {"antennaList", QStringList("antennaListReset") + melvox_test::times(16, "antennaName")},
    {"outputs", QStringList("outputsCleared") + melvox_test::times(8, "output")},
    {"firmwareVersions", melvox_test::times(9, "firmwareVersion")},
    {"profiles", {"profilesCleared", "profile"}},
};

QVariantMap antenna(char const* name, char const* serial, int id)
{
    return {{"name", name}, {"serial", serial}, {"id", id}};
}

QVariantMap height(bool use, double height, double slantRange, double radius)
{
    return {{"useAdjustments", use}, {"height", height}, {"slantRange", slantRange}, {"radius", radius}};
}

/** Commands that every receiver takes as they are. For those that are reported back the report is the same. */
QMap<QString, QVariant> const COMMANDS = {
    {"elevationMask", 12.5},
    {"pdopLimit", 6.5},
    {"geoidalModel", 0},
    {"correctionEnabled", QVariantMap{{"type", 2}, {"enabled", true}}},
    {"correctionMaxAge", QVariantMap{{"type", 1}, {"seconds", 42}}},
    {"ntripPPP", QVariantMap{{"mode", 1}, {"protocol", 1}}},
    {"measUse", QVariantList{QVariantMap{{"name", "GPS"}, {"use", true}}, QVariantMap{{"name", "GLO"}, {"use", false}},
                             QVariantMap{{"name", "GAL"}, {"use", true}}, QVariantMap{{"name", "BEI"}, {"use", true}}}},
    {"dynamicConfig", QVariantMap{{"autoMode", false}, {"mode", 3}, {"velocitySmoothing", false}}},
    {"antennaAlignment", QVariantMap{{"mode", 2}, {"angle", 45.5}}},
    {"antennaInfo", QVariantList{antenna("MVXHP7           NONE", "A1", 7), antenna("NONE", "B2", 255)}},
    {"antennaHeight", QVariantList{height(true, 1.5, -20, 30), height(false, 2.5, 40, -32768)}},
    {"antennaRemote", QVariantMap{{"automatic", false}, {"name", "NONE"}}},
    {"antennaDualMode", "SFONLY"},
    {"correctionSelection", 1},
    {"correctionSatSelection", QVariantMap{{"auto", false}, {"id", 678}}},
    {"userCorrectionSat", QVariantMap{{"defined", true}, {"id", 700}, {"frequency", 1545500.0}}},
    {"starfireAlmSwitchPolicy", QVariantMap{{"mode", 0}, {"hours", 23}, {"minutes", 59}}},
    {"useNewStarfireAlm", QVariant()},
    {"diffConfig", QVariantMap{{"mode", 1}, {"stationId", 1023}, {"dynamic", false}, {"port", 3}, {"portSet", true}}},
    {"rtcmVersion", 1},
    {"baseName", "North field"},
    {"basePosition", QVariantMap{{"latitude", 0.25}, {"longitude", -1.5}, {"height", 123.5}}},
    {"output", QVariantMap{{"port", 4}, {"message", "NMEARMC"}, {"method", 1}, {"interval", 2.0}}},
    {"turnOffAllOutput", 1},
    {"ggaMode", QVariantMap{{"mode", 1}, {"quality", 1}, {"scaling", 2}}},
    {"talkerIdMode", 2},
    {"serialConfig", QVariantMap{{"port", 2}, {"baud", 9600}, {"charSize", 0}, {"parity", 2}, {"stopBits", 1}}},
    {"vcomConfig", QVariantMap{{"port", 13},
                               {"enabled", true},
                               {"mode", 0},
                               {"remoteAddress", 3232235527u},
                               {"remotePort", 65535},
                               {"localPort", 1}}},
    {"usbMode", 1},
    {"ethernetConfig", QVariantMap{{"source", 0},
                                   {"dhcp", false},
                                   {"ipAddress", 167772161u},
                                   {"netmask", 4278190080u},
                                   {"gateway", 167772162u},
                                   {"dns1", 167772163u},
                                   {"dns2", 167772164u}}},
    {"webControl", QVariantMap{{"enabled", false}}},
    {"startWebUiUpload", QVariantMap{{"path", "web.pkg"}, {"size", 3}}},
    {"cancelWebUiUpload", QVariant()},
    {"ppsConfig", QVariantMap{{"polarity", 0}, {"width", 1}, {"interval", 2}, {"signalDelay", 3}, {"chipDelay", 4}}},
    {"startFirmwareUpdate",
     QVariantMap{{"components",
                  QVariantList{QVariantMap{{"fileIndex", 0}, {"component", 2}, {"path", "nav.s19"}, {"size", 3}}}},
                 {"combinedPath", ""},
                 {"combinedSize", 0}}},
    {"fileBlock", QVariantMap{{"path", "web.pkg"}, {"offset", 0}, {"data", QByteArray("abc")}}},
    {"useProfile", "Factory"},
    {"saveAsProfile", "Mine"},
    {"deleteProfile", "Mine"},
    {"dumpProfile", "/drive/profile"},
    {"coldRestart", QVariantMap{{"useBuiltInAlmanac", true}}},
    {"warmRestart", QVariant()},
    {"reboot", QVariantMap{{"delay", 0}}},
    {"lteModemStat", QVariantMap{{"on", true}}},
    {"portLock", 1},
    {"uploadData", QByteArray("melvox-profile 1\n")},
};

} // namespace

class tst_receiverGroups : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void theListOfNamesIsThatOfTheTable();
    void documentsItsGroups();
    void answersEachRequest_data();
    void answersEachRequest();
    void takesEachCommand_data();
    void takesEachCommand();
    void reportsWhatAPlainCommandChanged_data();
    void reportsWhatAPlainCommandChanged();
    void countsACommandWithoutSense_data();
    void countsACommandWithoutSense();
    void refusesCommandsOfGroupsThatAreOnlyRequested_data();
    void refusesCommandsOfGroupsThatAreOnlyRequested();
};

void tst_receiverGroups::documentsItsGroups()
{
    QVERIFY(documentedGroups().size() > 60);
    // Each access that the table knows is read.
    QSet<QString> accesses;
    for (group_t const& group : documentedGroups())
        accesses << group.access;
    QCOMPARE(accesses, (QSet<QString>{"", "R", "C", "RC"}));
}

static void addGroups(QString const& access, QStringList const& exceptions = QStringList())
{
    QTest::addColumn<QString>("group");
    for (group_t const& group : documentedGroups())
    {
        if (group.access.contains(access) && !exceptions.contains(group.name))
            QTest::newRow(qPrintable(group.name)) << group.name;
    }
}

void tst_receiverGroups::answersEachRequest_data()
{
    addGroups("R");
}

void tst_receiverGroups::answersEachRequest()
{
    QFETCH(QString, group);
    simClock_t clock(simClock_t::MANUAL);
    melvox_test::receiverEnd_t display;
    receiver_t receiver(&display, &clock);
    display.request(group);
    clock.advance(1000);
    QStringList groups;
    for (message_t const& message : display.messages)
    {
        groups << message.group;
        QVERIFY(message.kind == message_t::REPORT ? message.value.isValid() : message.kind == message_t::EVENT);
    }
    QCOMPARE(groups, ANSWERS.value(group, QStringList(group)));
    QCOMPARE(receiver.ignoredCount(), 0);
}

void tst_receiverGroups::takesEachCommand_data()
{
    addGroups("C");
}

void tst_receiverGroups::takesEachCommand()
{
    QFETCH(QString, group);
    QVERIFY2(COMMANDS.contains(group), "no command for this group in the list");
    simClock_t clock(simClock_t::MANUAL);
    melvox_test::receiverEnd_t display;
    receiver_t receiver(&display, &clock);
    // A block is a reply to the upload's start.
    if (group == "fileBlock")
        display.command("startWebUiUpload", COMMANDS.value("startWebUiUpload"));
    display.command(group, COMMANDS.value(group));
    QCOMPARE(receiver.ignoredCount(), 0);
}

void tst_receiverGroups::reportsWhatAPlainCommandChanged_data()
{
    // The modem is told what to do, and tells how it is. A base changes what ports put out, too.
    addGroups("RC", {"lteModemStat", "diffConfig"});
}

void tst_receiverGroups::reportsWhatAPlainCommandChanged()
{
    QFETCH(QString, group);
    simClock_t clock(simClock_t::MANUAL);
    melvox_test::receiverEnd_t display;
    receiver_t receiver(&display, &clock);
    display.command(group, COMMANDS.value(group));
    QCOMPARE(display.texts(), QStringList(toText({message_t::REPORT, group, COMMANDS.value(group)})));
}

void tst_receiverGroups::countsACommandWithoutSense_data()
{
    // These take no value, so that none is without sense.
    addGroups("C", {"useNewStarfireAlm", "cancelWebUiUpload", "warmRestart"});
}

void tst_receiverGroups::countsACommandWithoutSense()
{
    QFETCH(QString, group);
    simClock_t clock(simClock_t::MANUAL);
    melvox_test::receiverEnd_t display;
    receiver_t receiver(&display, &clock);
    settings_t const before = receiver.settings();
    QList<QVariant> const senseless = {QVariant(), QVariant(QVariantMap{{"nonsense", 1}}), QVariant(true)};
    for (QVariant const& value : senseless)
        display.command(group, value);
    QCOMPARE(receiver.ignoredCount(), int(senseless.size()));
    QVERIFY(display.texts().isEmpty());
    QCOMPARE(receiver.settings(), before);
}

void tst_receiverGroups::theListOfNamesIsThatOfTheTable()
{
    QStringList documented;
    for (group_t const& group : documentedGroups())
        documented << group.name;
    // What only comes in an answer has no line of its own.
    for (QString const& answered : QStringList{"antennaListReset", "antennaName", "outputsCleared", "firmwareVersion",
                                               "profilesCleared", "profile"})
        documented << answered;
    QCOMPARE(melvox_link::groupNames(), documented);
}

void tst_receiverGroups::refusesCommandsOfGroupsThatAreOnlyRequested_data()
{
    QTest::addColumn<QString>("group");
    for (group_t const& group : documentedGroups())
    {
        if (group.access == "R")
            QTest::newRow(qPrintable(group.name)) << group.name;
    }
}

void tst_receiverGroups::refusesCommandsOfGroupsThatAreOnlyRequested()
{
    QFETCH(QString, group);
    simClock_t clock(simClock_t::MANUAL);
    melvox_test::receiverEnd_t display;
    receiver_t receiver(&display, &clock);
    settings_t const before = receiver.settings();
    display.command(group, 1);
    QCOMPARE(receiver.ignoredCount(), 1);
    QVERIFY(display.texts().isEmpty());
    QCOMPARE(receiver.settings(), before);
}

QTEST_MAIN(tst_receiverGroups)
#include "tst_receiverGroups.moc"
