#include "link/groups.h"
#include "receiver/receiver.h"
#include "scenarios/jsonLines.h"
#include "scenarios/scenarioReader.h"
#include "support/folder.h"
#include "support/test.h"

using namespace melvox_scenarios;

namespace
{

/** A scenario with these lines in it, from line 4 on. */
QByteArray scenarioWith(QByteArray const& lines)
{
    return "{\n\"title\": \"T\",\n\"shows\": \"S\",\n" + lines + "\n}\n";
}

} // namespace

class tst_scenarioReader : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void everyScenarioOfTheKitMakesSense_data()
    {
        QTest::addColumn<QString>("name");
        for (QString const& name : scenarioNames())
            QTest::newRow(qPrintable(name)) << name;
    }

    void everyScenarioOfTheKitMakesSense()
    {
        QFETCH(QString, name);
        scenario_t scenario;
        QString error;
        QVERIFY2(loadScenario(name, scenario, error), qPrintable(error));
        QCOMPARE(scenario.name, name);
        QVERIFY(scenario.shows.endsWith('.'));
        QVERIFY(scenario.title != scenario.shows);
    }

    void readsAllThatAScenarioCanSay()
    {
        QByteArray const text = R"({
            "title": "All", "shows": "Everything.",
            "activePort": "USB2", "baud": 9600, "latency": 250, "connected": false, "speed": 60,
            "settings": {"elevationMask": 12.5, "correctionMaxAge": {"type": 1, "seconds": 42}},
            "situations": {"solution": "float", "refusedGroups": ["ggaMode"]},
            "faults": [{"group": "pdopLimit", "fault": "garble", "direction": "to display", "probability": 0.25},
                       {"fault": "delay"}],
            "faultDelay": 900,
            "drives": {"A": {"x/y.txt": "text", "fw.srec": ["NAV=1.2.3"]}, "B": null},
            "steps": [{"at": 0.5, "clearFaults": true, "connected": true}, {"at": 7, "link": "tcp"}]
        })";
        scenario_t scenario;
        QString error;
        QVERIFY2(readScenario("all.json", text, scenario, error), qPrintable(error));
        QCOMPARE(scenario.title, QString("All"));
        QCOMPARE(int(scenario.moments.size()), 3);
        moment_t const& start = scenario.moments.at(0);
        QCOMPARE(start.activePort.value(), 5u);
        QCOMPARE(start.linkKind, QString("other"));
        QCOMPARE(start.baud.value(), 9600u);
        QCOMPARE(start.latency.value(), 250);
        QCOMPARE(start.connected.value(), false);
        QCOMPARE(start.speed.value(), 60.0);
        QCOMPARE(start.faultDelay.value(), 900);
        QCOMPARE(start.settings.value("elevationMask").toDouble(), 12.5);
        // As the receiver keeps the group: a list of records.
        QCOMPARE(int(start.settings.value("correctionMaxAge").toList().size()), 1);
        QCOMPARE(start.situations.value("solution").toString(), QString("float"));
        QCOMPARE(int(start.faults.size()), 2);
        QCOMPARE(start.faults.at(0).group, QString("pdopLimit"));
        QCOMPARE(start.faults.at(0).fault, melvox_link::FAULT_GARBLE);
        QCOMPARE(start.faults.at(0).direction, melvox_link::FAULT_TO_DISPLAY);
        QCOMPARE(start.faults.at(0).probability, 0.25);
        QCOMPARE(start.faults.at(1).group, QString());
        QCOMPARE(start.faults.at(1).direction, melvox_link::FAULT_BOTH_WAYS);
        QCOMPARE(start.faults.at(1).probability, 1.0);
        QCOMPARE(int(start.drives.size()), 2);
        QVERIFY(start.drives.at(0).plugged && !start.drives.at(1).plugged);
        QCOMPARE(start.drives.at(0).files.value("x/y.txt"), QByteArray("text"));
        QVERIFY(start.drives.at(0).files.value("fw.srec").startsWith("S0"));
        QCOMPARE(scenario.moments.at(1).at, qint64(500));
        QVERIFY(scenario.moments.at(1).clearFaults);
        QCOMPARE(scenario.moments.at(2).at, qint64(7000));
        QCOMPARE(scenario.moments.at(2).linkKind, QString("tcp"));
    }

    void saysFileLineAndReason_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("line");
        QTest::addColumn<QString>("reason");
        QTest::newRow("no JSON") << QByteArray("{\n\"title\": \"T\",\n\"shows\" \"S\"\n}") << 3 << "this is no JSON: ";
        QTest::newRow("nothing") << QByteArray() << 1 << "this is no JSON: ";
        QTest::newRow("ends early") << QByteArray("{\"title\": \"T\",\n\"settings\": {") << 2 << "this is no JSON: ";
        QTest::newRow("no object") << QByteArray("\n[1]") << 1 << "a scenario is a JSON object";
        QTest::newRow("no title") << QByteArray("{\n\"shows\": \"S\"}") << 1 << "\"title\" must be there";
        QTest::newRow("blank line") << QByteArray("{\n\"title\": \"T\",\n\"shows\": \" \"}") << 3
                                    << "\"shows\" must be there";
        auto row = [](char const* name, QByteArray const& lines, int line, char const* reason)
        { QTest::newRow(name) << scenarioWith(lines) << line << reason; };
        row("key", "\"sets\": {}", 4, "there is no key \"sets\" here; the keys are: title, shows, steps, activePort,");
        row("key twice", "\"latency\": 1,\n\"latency\": 2", 5, "\"latency\" stands here a second time");
        row("group", "\"settings\": {\n\"elevation\": 5}", 5,
            "there is no group \"elevation\" that can be set; the groups");
        row("group only read", "\"settings\": {\n\"netPriority\": 5}", 5, "there is no group \"netPriority\"");
        row("type of a value", "\"settings\": {\n\"pdopLimit\": 3,\n\"elevationMask\": \"steep\"}", 6,
            "elevationMask: ");
        row("field", "\"settings\": {\"ntripPPP\": {\n\"mode\": 1}}", 4, "ntripPPP: protocol is missing");
        row("value outside", "\"settings\": {\n\"elevationMask\": 95}", 5,
            "the receiver does not take this value, and has: elevationMask 90");
        row("record",
            "\"settings\": {\"serialConfig\": [\n{\"port\": 1, \"baud\": 9600, \"charSize\": 1, \"parity\": 0, "
            "\"stopBits\": 0},\n{\"port\": 1, \"baud\": 9601, \"charSize\": 1, \"parity\": 0, \"stopBits\": 0}]}",
            6, "the receiver does not take this value");
        row("situation", "\"situations\": {\n\"weather\": 1}", 5,
            "there is no situation \"weather\"; the situations are: ");
        row("value of a situation", "\"situations\": {\n\"solution\": \"perfect\"}", 5,
            "\"solution\" cannot have this value");
        row("place on this machine", "\"situations\": {\n\"profileFolder\": \"/tmp\"}", 5,
            "there is no situation \"profileFolder\"");
        row("fault", "\"faults\": [\n{\"fault\": \"drop\"},\n{\"group\": \"pdopLimit\",\n\"fault\": \"eat\"}]", 7,
            "\"fault\" must be one of: drop, delay, duplicate, reorder, garble");
        row("no fault", "\"faults\": [\n{\"group\": \"pdopLimit\"}]", 5, "\"fault\" must be one of");
        row("group of a fault", "\"faults\": [{\"fault\": \"drop\",\n\"group\": \"pdop\"}]", 5,
            "there is no group \"pdop\"; the groups are: elevationMask,");
        row("direction", "\"faults\": [{\"fault\": \"drop\", \"direction\": \"up\"}]", 4,
            "\"direction\" must be one of: both, to receiver, to display");
        row("probability", "\"faults\": [{\"fault\": \"drop\", \"probability\": 1.5}]", 4,
            "\"probability\" must be a number from 0 to 1");
        row("key of a fault", "\"faults\": [{\"fault\": \"drop\", \"chance\": 1}]", 4, "a fault has no \"chance\"");
        row("port", "\"activePort\": \"COM9\"", 4, "\"activePort\" must be one of: COM1, ");
        row("link", "\"link\": \"tube\"", 4, "\"link\" must be one of: serial, tcp, other");
        row("baud", "\"baud\": 19201", 4, "\"baud\" must be a rate");
        row("latency", "\"latency\": -1", 4, "\"latency\" must be a number from 0 to 60000");
        row("speed", "\"speed\": \"fast\"", 4, "\"speed\" must be a number from 0 to 1000");
        row("connected", "\"connected\": 1", 4, "\"connected\" must be true or false");
        row("drive", "\"drives\": {\n\"../out\": {}}", 5, "a drive cannot be named \"../out\"");
        row("hidden drive", "\"drives\": {\n\".A\": {}}", 5, "a drive cannot be named \".A\"");
        row("file", "\"drives\": {\"A\": {\n\"../x\": \"\"}}", 5, "\"../x\" is no path on a drive");
        row("component", "\"drives\": {\"A\": {\n\"x\": [\"NAV=1\",\n\"WINGS=2\"]}}", 5,
            "\"WINGS=2\" is no component with its version");
        row("step without a time", "\"steps\": [\n{\"latency\": 1}]", 5, "\"at\" must be a number from 0 to 86400");
        row("key of a step", "\"steps\": [{\"at\": 1,\n\"title\": \"T\"}]", 5, "there is no key \"title\" here");
        row("order of steps", "\"steps\": [{\"at\": 2},\n{\"at\": 1}]", 5, "a step must not be earlier");
        row("value in a step", "\"steps\": [{\"at\": 2, \"settings\": {\n\"elevationMask\": true}}]", 5,
            "elevationMask: ");
    }

    void saysFileLineAndReason()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, line);
        QFETCH(QString, reason);
        scenario_t scenario;
        scenario.title = "as it was";
        QString error;
        QVERIFY(!readScenario("my.json", text, scenario, error));
        QString const start = QString("my.json:%1: %2").arg(line).arg(reason);
        QVERIFY2(error.startsWith(start), qPrintable(error + "\n" + start));
        QVERIFY2(error.endsWith('.') && !error.contains('\n'), qPrintable(error));
        QCOMPARE(scenario.title, QString("as it was"));
    }

    void anUnknownNameListsTheKnownOnes()
    {
        scenario_t scenario;
        QString error;
        QVERIFY(!loadScenario("rain", scenario, error));
        QVERIFY2(error.startsWith("There is no scenario \"rain\". The scenarios are: almanac-switch, "),
                 qPrintable(error));
        for (QString const& name : scenarioNames())
            QVERIFY2(error.contains(name), qPrintable(name));
    }

    void readsAFileOfOnesOwn()
    {
        melvox_test::folder_t const folder;
        QString const path = folder.write("mine", scenarioWith("\"latency\": 7"));
        scenario_t scenario;
        QString error;
        QVERIFY2(loadScenario(path, scenario, error), qPrintable(error));
        QCOMPARE(scenario.name, path);
        QCOMPARE(scenario.moments.first().latency.value(), 7);
    }

    void saysWhenAFileCannotBeRead()
    {
        scenario_t scenario;
        QString error;
        QVERIFY(!loadScenario("/nowhere/mine.json", scenario, error));
        QVERIFY2(error.startsWith("/nowhere/mine.json cannot be read: "), qPrintable(error));
    }

    /** A satellite can only be selected once it is defined. */
    void settingsAreTriedInTheReceiversOrder()
    {
        scenario_t scenario;
        QString error;
        QByteArray const text =
            scenarioWith("\"settings\": {\"correctionSatSelection\": {\"auto\": false, \"id\": 700},\n"
                         "\"userCorrectionSat\": {\"defined\": true, \"id\": 700, \"frequency\": 1545500}}");
        QVERIFY2(readScenario("f", text, scenario, error), qPrintable(error));
    }

    void linesAreFoundThroughEscapesAndNesting()
    {
        QByteArray const text = "{\n \"a\\\"b\": [1, {\"x\\u0079\":\n[true,\n\"}]\\\\\"]}],\n\n\"c\": null}";
        jsonLines_t const lines(text);
        QCOMPARE(lines.line({"a\"b"}), 2);
        QCOMPARE(lines.line({"a\"b", "1", "xy"}), 2);
        QCOMPARE(lines.line({"a\"b", "1", "xy", "0"}), 3);
        QCOMPARE(lines.line({"a\"b", "1", "xy", "1"}), 4);
        QCOMPARE(lines.line({"c"}), 6);
        QCOMPARE(lines.line({"c", "not there"}), 6);
        QVERIFY(lines.doubled().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_scenarioReader)
#include "tst_scenarioReader.moc"
