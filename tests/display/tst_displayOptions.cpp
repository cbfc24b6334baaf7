#include "display/options.h"
#include "support/test.h"

#include <QDir>

using namespace melvox_display;
using namespace brel_common_qt;

namespace
{

QStringList const PAGES = {"solutionControl", "ppsConfig"};

parsedOptions_t parse(QStringList const& arguments)
{
    return parseOptions(QStringList("melvox_display") + arguments, PAGES);
}

} // namespace

class tst_displayOptions : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void withoutOptionsTheReceiverIsSimulatedAndTheScreenIsWide()
    {
        parsedOptions_t const parsed = parse({});
        QCOMPARE(parsed.result, parsedOptions_t::RUN);
        QCOMPARE(parsed.options.connection.kind, connection_t::SIMULATED);
        QCOMPARE(parsed.options.size, QSize(1024, 600));
        QVERIFY(parsed.options.page.isEmpty());
        QVERIFY(parsed.options.tourDir.isEmpty());
        QVERIFY(!parsed.options.units);
        QVERIFY(!parsed.options.format);
    }

    void takesAPageThatThereIs() { QCOMPARE(parse({"--page", "ppsConfig"}).options.page, QString("ppsConfig")); }

    void listsThePagesWhenThereIsNoSuchPage()
    {
        parsedOptions_t const parsed = parse({"--page", "ppsConfg"});
        QCOMPARE(parsed.result, parsedOptions_t::REFUSE);
        QCOMPARE(parsed.text, QString("There is no page \"ppsConfg\". The pages are: solutionControl, ppsConfig."));
    }

    void takesATcpAddress_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("host");
        QTest::addColumn<int>("port");
        QTest::newRow("IPv4") << "tcp:192.168.0.7:5000"
                              << "192.168.0.7" << 5000;
        QTest::newRow("name, lowest port") << "tcp:receiver:1"
                                           << "receiver" << 1;
        QTest::newRow("IPv6, highest port") << "tcp:[::1]:65535"
                                            << "::1" << 65535;
    }

    void takesATcpAddress()
    {
        QFETCH(QString, text);
        parsedOptions_t const parsed = parse({"--connect", text});
        QCOMPARE(parsed.result, parsedOptions_t::RUN);
        QCOMPARE(parsed.options.connection.kind, connection_t::TCP);
        QTEST(parsed.options.connection.host, "host");
        QTEST(parsed.options.connection.port, "port");
    }

    void takesASerialDevice_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("device");
        QTest::addColumn<int>("baud");
        QTest::newRow("rate") << "serial:/dev/ttyS1:57600"
                              << "/dev/ttyS1" << 57600;
        QTest::newRow("no rate") << "serial:COM3"
                                 << "COM3" << 115200;
    }

    void takesASerialDevice()
    {
        QFETCH(QString, text);
        parsedOptions_t const parsed = parse({"--connect", text});
        QCOMPARE(parsed.result, parsedOptions_t::RUN);
        QCOMPARE(parsed.options.connection.kind, connection_t::SERIAL);
        QTEST(parsed.options.connection.device, "device");
        QTEST(parsed.options.connection.baud, "baud");
    }

    void refusesAConnectionItCannotRead_data()
    {
        QTest::addColumn<QString>("text");
        for (char const* text : {"", "udp:host:5000", "tcp:", "tcp:host", "tcp::5000", "tcp:host:0", "tcp:host:65536",
                                 "tcp:host:many", "serial:", "serial::9600", "serial:COM3:fast", "serial:COM3:0"})
            QTest::newRow(text) << text;
    }

    void refusesAConnectionItCannotRead()
    {
        QFETCH(QString, text);
        parsedOptions_t const parsed = parse({"--connect=" + text});
        QCOMPARE(parsed.result, parsedOptions_t::REFUSE);
        QVERIFY2(parsed.text.startsWith("--connect takes tcp:HOST:PORT"), qPrintable(parsed.text));
        QVERIFY(parsed.text.endsWith("not \"" + text + "\"."));
    }

    void takesAFolderOfDrives()
    {
        QCOMPARE(parse({}).options.usbDir, QString());
        QCOMPARE(parse({"--usb", QDir::tempPath()}).options.usbDir, QDir::tempPath());
    }

    void refusesAFolderOfDrivesThatIsNotThere()
    {
        parsedOptions_t const parsed = parse({"--usb", "/there/is/none"});
        QCOMPARE(parsed.result, parsedOptions_t::REFUSE);
        QCOMPARE(parsed.text, QString("--usb takes a folder whose folders are the drives, or real for those of this "
                                      "machine; there is no folder \"/there/is/none\"."));
    }

    void takesTheDrivesOfTheMachine()
    {
        QVERIFY(!parse({}).options.realDrives);
        QVERIFY(!parse({"--usb", QDir::tempPath()}).options.realDrives);
        options_t const options = parse({"--usb", "real"}).options;
        QVERIFY(options.realDrives);
        QVERIFY(options.usbDir.isEmpty());
    }

    void takesAFolderForProfiles()
    {
        QVERIFY(parse({}).options.profileFolder.isEmpty());
        QCOMPARE(parse({"--profiles", "kept"}).options.profileFolder, QString("kept"));
        QCOMPARE(parse({"--profiles="}).result, parsedOptions_t::REFUSE);
    }

    void refusesAFolderForTheProfilesOfAnotherReceiver_data()
    {
        QTest::addColumn<QString>("where");
        QTest::newRow("over a link") << "--connect=tcp:receiver:5000";
        QTest::newRow("from a journal") << "--replay=journal.jsonl";
    }

    void refusesAFolderForTheProfilesOfAnotherReceiver()
    {
        QFETCH(QString, where);
        parsedOptions_t const parsed = parse({"--profiles", "kept", where});
        QCOMPARE(parsed.result, parsedOptions_t::REFUSE);
        QCOMPARE(parsed.text, QString("--profiles is for the receiver in this program, which --connect and --replay do "
                                      "without."));
    }

    void takesASize_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QSize>("size");
        QTest::newRow("the small unit") << "800x480" << QSize(800, 480);
        QTest::newRow("smallest") << "640x400" << QSize(640, 400);
        QTest::newRow("largest") << "7680x4320" << QSize(7680, 4320);
    }

    void takesASize()
    {
        QFETCH(QString, text);
        QTEST(parse({"--size", text}).options.size, "size");
    }

    void refusesASizeThatIsNone_data()
    {
        QTest::addColumn<QString>("text");
        for (char const* text : {"", "800", "800x", "x480", "800x480x2", "800*480", "639x400", "640x399", "7681x4320"})
            QTest::newRow(text) << text;
    }

    void refusesASizeThatIsNone()
    {
        QFETCH(QString, text);
        parsedOptions_t const parsed = parse({"--size=" + text});
        QCOMPARE(parsed.result, parsedOptions_t::REFUSE);
        QVERIFY(parsed.text.startsWith("--size takes a width and a height in pixels such as 1024x600"));
    }

    void takesAScenarioAndASpeed()
    {
        options_t const options = parse({"--scenario", "slow-link", "--speed", "2.5"}).options;
        QCOMPARE(options.scenario->title, QString("Slow link"));
        QCOMPARE(*options.speed, 2.5);
        QVERIFY(!parse({}).options.scenario);
        QVERIFY(!parse({}).options.speed);
    }

    void listsTheScenariosWhenThereIsNoSuchScenario()
    {
        parsedOptions_t const parsed = parse({"--scenario", "slow"});
        QCOMPARE(parsed.result, parsedOptions_t::REFUSE);
        QVERIFY2(parsed.text.startsWith("There is no scenario \"slow\". The scenarios are: almanac-switch, "),
                 qPrintable(parsed.text));
    }

    void refusesASpeedThatIsNone_data()
    {
        QTest::addColumn<QString>("text");
        for (char const* text : {"", "0", "-1", "1000.5", "fast", "nan"})
            QTest::newRow(text) << text;
    }

    void refusesASpeedThatIsNone()
    {
        QFETCH(QString, text);
        parsedOptions_t const parsed = parse({"--speed=" + text});
        QCOMPARE(parsed.result, parsedOptions_t::REFUSE);
        QCOMPARE(parsed.text, QString("--speed takes a number above 0, at most 1000, not \"%1\".").arg(text));
    }

    void refusesAScenarioForAReceiverElsewhere()
    {
        for (QStringList const& option : {QStringList{"--scenario", "slow-link"}, QStringList{"--speed", "2"}})
        {
            parsedOptions_t const parsed = parse(QStringList{"--connect", "tcp:host:5000"} + option);
            QCOMPARE(parsed.result, parsedOptions_t::REFUSE);
            QVERIFY2(parsed.text.startsWith(option.first() + " is for the receiver in this program"),
                     qPrintable(parsed.text));
        }
    }

    void takesUnitsAndFormat()
    {
        options_t const options = parse({"--units", "ft", "--format", "dms"}).options;
        QVERIFY(options.units == DISTANCE_UNIT_US_SURVEY_FOOT);
        QVERIFY(options.format == LATLON_FORMAT_DEGMINSEC);
        QVERIFY(parse({"--units", "m"}).options.units == DISTANCE_UNIT_METER);
        QVERIFY(parse({"--format", "deg"}).options.format == LATLON_FORMAT_DEGREE);
        QVERIFY(parse({"--format", "dm"}).options.format == LATLON_FORMAT_DEGMIN);
    }

    void refusesOtherUnitsAndFormats()
    {
        QCOMPARE(parse({"--units", "yd"}).text, QString("--units takes m or ft, not \"yd\"."));
        QCOMPARE(parse({"--format", "utm"}).text, QString("--format takes deg, dm or dms, not \"utm\"."));
    }

    void takesFolderAndFile()
    {
        options_t const options = parse({"--tour", "pictures", "--settings", "my.conf"}).options;
        QCOMPARE(options.tourDir, QString("pictures"));
        QCOMPARE(options.settingsFile, QString("my.conf"));
        QCOMPARE(parse({"--tour="}).result, parsedOptions_t::REFUSE);
    }

    void takesJournals()
    {
        options_t const options =
            parse({"--record", "a.jsonl", "--replay", "b.jsonl", "--replay-actions", "--replay-speed", "2.5"}).options;
        QCOMPARE(options.recordFile, QString("a.jsonl"));
        QCOMPARE(options.replayFile, QString("b.jsonl"));
        QVERIFY(options.replayActions);
        QCOMPARE(options.connection.replaySpeed, 2.5);
        QVERIFY(!parse({"--replay", "b.jsonl"}).options.replayActions);
        QCOMPARE(parse({"--replay", "b.jsonl"}).options.connection.replaySpeed, 1.0);
    }

    void refusesWhatDoesNotGoWithAJournal_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("text");
        QTest::newRow("no name to record") << QStringList{"--record="} << "--record needs a name.";
        QTest::newRow("no name to replay") << QStringList{"--replay="} << "--replay needs a name.";
        QTest::newRow("actions of nothing")
            << QStringList{"--replay-actions"} << "--replay-actions and --replay-speed need --replay FILE.";
        QTest::newRow("negative speed") << QStringList{"--replay=a", "--replay-speed=-1"}
                                        << "--replay-speed takes a factor from 0 to 1000, not \"-1\".";
        QTest::newRow("word") << QStringList{"--replay=a", "--replay-speed=fast"}
                              << "--replay-speed takes a factor from 0 to 1000, not \"fast\".";
        QTest::newRow("another receiver")
            << QStringList{"--replay=a", "--connect=tcp:host:5000"}
            << "A journal brings what --connect says of its own: leave it out with --replay.";
        QTest::newRow("a scenario") << QStringList{"--replay=a", "--scenario=slow-link"}
                                    << "A journal brings what --scenario says of its own: leave it out with --replay.";
        QTest::newRow("another size") << QStringList{"--replay=a", "--size=800x480"}
                                      << "A journal brings what --size says of its own: leave it out with --replay.";
    }

    void refusesWhatDoesNotGoWithAJournal()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, text);
        parsedOptions_t const parsed = parse(arguments);
        QCOMPARE(parsed.result, parsedOptions_t::REFUSE);
        QCOMPARE(parsed.text, text);
    }

    void listsTheOptionsWhenOneIsUnknown_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QString>("beginning");
        QTest::newRow("long") << QStringList{"--pages"} << "There is no option \"--pages\".";
        QTest::newRow("word") << QStringList{"ppsConfig"} << "\"ppsConfig\" is no option.";
        QTest::newRow("value missing") << QStringList{"--page"} << "Missing value after";
    }

    void listsTheOptionsWhenOneIsUnknown()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, beginning);
        parsedOptions_t const parsed = parse(arguments);
        QCOMPARE(parsed.result, parsedOptions_t::REFUSE);
        QVERIFY2(parsed.text.startsWith(beginning), qPrintable(parsed.text));
        QVERIFY2(parsed.text.endsWith(
                     "The options are: --page, --connect, --size, --usb, --scenario, --speed, --tour, --units, "
                     "--format, --settings, --record, --replay, --replay-actions, --replay-speed, "
                     "--profiles, --help, --version."),
                 qPrintable(parsed.text));
    }

    void helpTellsOptionsAndPages()
    {
        parsedOptions_t const parsed = parse({"--help"});
        QCOMPARE(parsed.result, parsedOptions_t::SHOW);
        for (char const* part : {"--page NAME", "--connect WHERE", "--size WxH", "--scenario NAME|FILE", "--speed N",
                                 "--tour DIR", "--units m|ft", "--format deg|dm|dms", "--settings FILE",
                                 "--usb DIR|real", "--profiles DIR", "--version", "solutionControl, ppsConfig"})
            QVERIFY2(parsed.text.contains(part), part);
    }

    void versionIsTold()
    {
        parsedOptions_t const parsed = parse({"--version"});
        QCOMPARE(parsed.result, parsedOptions_t::SHOW);
        QVERIFY(parsed.text.startsWith("melvox_display "));
    }
};

QTEST_APPLESS_MAIN(tst_displayOptions)
#include "tst_displayOptions.moc"
