#include "link/serialLink.h"
#include "link/tcpLink.h"
#include "linkListener.h"

#include "support/folder.h"
#include "support/test.h"

#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>

#include <csignal>

using namespace melvox_link;
using melvox_test::linkListener_t;
using melvox_test::waitFor;

namespace
{

/** The receiver as a process of its own. */
class program_t
{
public:
    /** Unless wanted, without the reports that come by themselves: answers can then be counted. */
    explicit program_t(QStringList const& arguments, bool reports = false)
    {
        process.start(MELVOX_RECEIVER_PROGRAM, reports ? arguments : QStringList("--quiet") + arguments);
    }
    ~program_t()
    {
        process.kill();
        process.waitForFinished();
    }

    bool finishes()
    {
        return waitFor([this]() { return process.state() == QProcess::NotRunning; }, 20000);
    }
    int exitCode() { return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1; }

    /** The places where it listens, once it has told so many. */
    QStringList places(int count)
    {
        auto const enough = [&]()
        {
            output += process.readAllStandardOutput();
            return output.count('\n') >= count || process.state() == QProcess::NotRunning;
        };
        if (!waitFor(enough, 20000))
            return QStringList();
        QStringList places;
        for (QString const& line : QString::fromUtf8(output).split('\n'))
        {
            if (line.startsWith("listening on "))
                places << line.mid(13);
        }
        return places;
    }
    int tcpPort() { return places(1).value(0).section(':', -1).toInt(); }
    QString serialDevice() { return places(1).value(0).section(':', 1); }

    QProcess process;
    QByteArray output;
};

} // namespace

class tst_receiverProgram : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void answersOverTcp();
    void tellsSolutionAndHeadingByItself();
    void answersOverAPseudoTerminal();
    void listensInSeveralPlaces();
    void tellsOneDisplayWhatAnotherOneChanged();
    void goesOnAfterGarbage();
    void keepsProfilesInAFolder();
    void isFoundAgainOverTcpAfterItWasKilled();
    void isFoundAgainOverASerialLineAfterItWasKilled();
    void answersOverASerialDevice();
    void stopsCleanly_data();
    void stopsCleanly();
    void saysInOneSentenceWhatIsWrong_data();
    void saysInOneSentenceWhatIsWrong();
    void refusesAPortInUse();
    void playsAScenarioAtItsSpeed();
    void spoilsTheLinkOfEachDisplay();
    void saysWhatOfAScenarioIsTheDisplays();
    void listsItsOptions();
    void tellsItsVersion();
};

void tst_receiverProgram::answersOverTcp()
{
    program_t program({"--tcp", "0"});
    QVERIFY(program.tcpPort() > 0);
    tcpLink_t link("127.0.0.1", quint16(program.tcpPort()));
    linkListener_t listener(link);
    link.start();
    QVERIFY(waitFor([&]() { return link.isOpen(); }));
    link.send({message_t::REQUEST, "activePort"});
    link.send({message_t::COMMAND, "elevationMask", 95.0});
    QVERIFY(waitFor([&]() { return listener.texts.contains("report elevationMask 90"); }));
    QCOMPARE(listener.texts.first(), QString("report activePort 6"));
}

void tst_receiverProgram::tellsSolutionAndHeadingByItself()
{
    program_t program({"--tcp", "0"}, true);
    tcpLink_t link("127.0.0.1", quint16(program.tcpPort()));
    linkListener_t listener(link);
    link.start();
    QVERIFY(waitFor([&]() { return !listener.texts.filter("report extendedNavInfo ").isEmpty(); }));
    QVERIFY(waitFor([&]() { return !listener.texts.filter("report vhdInfo ").isEmpty(); }));
}

void tst_receiverProgram::answersOverAPseudoTerminal()
{
    program_t program({"--pty"});
    QString const device = program.serialDevice();
    QVERIFY(device.startsWith("/dev/"));
    serialLink_t link(device);
    linkListener_t listener(link);
    link.start();
    QVERIFY2(link.isOpen(), qPrintable(link.errorText()));
    link.send({message_t::REQUEST, "activePort"});
    link.send({message_t::REQUEST, "antennaList"});
    QVERIFY(waitFor([&]() { return listener.texts.filter("report antennaName ").size() == 16; }));
    QCOMPARE(listener.texts.first(), QString("report activePort 0"));
    QCOMPARE(listener.texts.filter("antenna").first(), QString("event antennaListReset"));
}

void tst_receiverProgram::listensInSeveralPlaces()
{
    program_t program({"--pty", "--tcp", "0", "--tcp", "127.0.0.1:0", "--pty"});
    QStringList const places = program.places(4);
    QCOMPARE(int(places.size()), 4);
    QCOMPARE(int(places.filter("tcp:127.0.0.1:").size()), 2);
    QCOMPARE(int(places.filter("serial:/dev/").size()), 2);
}

void tst_receiverProgram::tellsOneDisplayWhatAnotherOneChanged()
{
    program_t program({"--tcp", "0"});
    tcpLink_t first("127.0.0.1", quint16(program.tcpPort()));
    tcpLink_t second("127.0.0.1", quint16(program.tcpPort()));
    linkListener_t listener(second);
    first.start();
    second.start();
    QVERIFY(waitFor([&]() { return first.isOpen() && second.isOpen(); }));
    // Its answer shows that the receiver knows the second display.
    second.send({message_t::REQUEST, "usbMode"});
    QVERIFY(waitFor([&]() { return listener.texts.size() == 1; }));
    first.send({message_t::COMMAND, "pdopLimit", 6.5});
    QVERIFY(waitFor([&]() { return listener.texts.size() == 2; }));
    QCOMPARE(listener.texts.last(), QString("report pdopLimit 6.5"));
}

void tst_receiverProgram::goesOnAfterGarbage()
{
    program_t program({"--tcp", "0"});
    QTcpSocket socket;
    socket.connectToHost("127.0.0.1", quint16(program.tcpPort()));
    QVERIFY(waitFor([&]() { return socket.state() == QAbstractSocket::ConnectedState; }));
    socket.write(QByteArray("\0\1\2garbage\n", 11) + QByteArray(2 * 1024 * 1024, 'x') +
                 "\n{\"kind\":\"command\",\"group\":\"espresso\",\"value\":2}\n"
                 "{\"kind\":\"command\",\"group\":\"elevationMask\",\"value\":\"steep\"}\n"
                 "{\"kind\":\"request\",\"group\":\"elevationMask\"}\n");
    QByteArray answer;
    QVERIFY(waitFor(
        [&]()
        {
            answer += socket.readAll();
            return answer.endsWith('\n');
        },
        20000));
    QCOMPARE(answer, QByteArray("{\"group\":\"elevationMask\",\"kind\":\"report\",\"value\":7}\n"));
}

void tst_receiverProgram::keepsProfilesInAFolder()
{
    QTemporaryDir dir;
    QString const folder = dir.filePath("kept/here");
    for (char const* command : {"saveAsProfile", "deleteProfile"})
    {
        program_t program({"--tcp", "0", "--profiles", folder});
        tcpLink_t link("127.0.0.1", quint16(program.tcpPort()));
        linkListener_t listener(link);
        link.start();
        QVERIFY(waitFor([&]() { return link.isOpen(); }));
        link.send({message_t::COMMAND, command, "Field"});
        link.send({message_t::REQUEST, "profiles"});
        QVERIFY(waitFor([&]() { return !listener.texts.filter("name=Factory").isEmpty(); }));
        bool const saves = QString(command) == "saveAsProfile";
        QCOMPARE(QFile::exists(folder + "/Field.profile"), saves);
    }
}

void tst_receiverProgram::isFoundAgainOverTcpAfterItWasKilled()
{
    QScopedPointer<program_t> program(new program_t({"--tcp", "0"}));
    QString const port = QString::number(program->tcpPort());
    tcpLink_t link("127.0.0.1", port.toUShort());
    link.setPauses(10, 100);
    linkListener_t listener(link);
    link.start();
    QVERIFY(waitFor([&]() { return link.isOpen(); }));
    program->process.kill();
    QVERIFY(waitFor([&]() { return !link.isOpen(); }));
    program.reset(new program_t({"--tcp", port}));
    QVERIFY(waitFor([&]() { return link.isOpen(); }, 20000));
    link.send({message_t::REQUEST, "pdopLimit"});
    QVERIFY(waitFor([&]() { return !listener.texts.isEmpty(); }));
    QCOMPARE(listener.texts, QStringList("report pdopLimit 25"));
    QCOMPARE(listener.changes, (QList<bool>{true, false, true}));
}

void tst_receiverProgram::isFoundAgainOverASerialLineAfterItWasKilled()
{
    QTemporaryDir dir;
    QString const device = dir.filePath("receiver");
    QScopedPointer<program_t> program(new program_t({"--pty"}));
    QVERIFY(QFile::link(program->serialDevice(), device));
    serialLink_t link(device);
    link.setPauses(10, 100);
    linkListener_t listener(link);
    link.start();
    QVERIFY2(link.isOpen(), qPrintable(link.errorText()));
    program->process.kill();
    QVERIFY(waitFor([&]() { return !link.isOpen(); }));
    QVERIFY(QFile::remove(device));
    program.reset(new program_t({"--pty"}));
    QVERIFY(QFile::link(program->serialDevice(), device));
    QVERIFY(waitFor([&]() { return link.isOpen(); }));
    link.send({message_t::REQUEST, "pdopLimit"});
    QVERIFY(waitFor([&]() { return !listener.texts.isEmpty(); }));
    QCOMPARE(listener.texts, QStringList("report pdopLimit 25"));
}

void tst_receiverProgram::answersOverASerialDevice()
{
    // The far end of another receiver's line does for a device: its requests are no news to either.
    program_t other({"--pty"});
    program_t program({"--serial", other.serialDevice()});
    QCOMPARE(program.places(1), QStringList("serial:" + other.serialDevice()));
}

void tst_receiverProgram::stopsCleanly_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGINT") << SIGINT;
}

void tst_receiverProgram::stopsCleanly()
{
    QFETCH(int, number);
    program_t program({"--tcp", "0", "--pty"});
    QCOMPARE(int(program.places(2).size()), 2);
    QCOMPARE(::kill(pid_t(program.process.processId()), number), 0);
    QVERIFY(program.finishes());
    QCOMPARE(program.exitCode(), 0);
    QCOMPARE(program.process.readAllStandardError(), QByteArray());
}

void tst_receiverProgram::saysInOneSentenceWhatIsWrong_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("part");
    QTest::newRow("no option") << QStringList() << 2 << "--tcp PORT, --pty or --serial DEVICE";
    QTest::newRow("unknown option") << QStringList{"--bluetooth"} << 2 << "--scenario, --speed, --quiet.";
    QTest::newRow("no option but a word") << QStringList{"5000"} << 2 << "\"5000\"";
    QTest::newRow("no port") << QStringList{"--tcp"} << 2 << "--tcp";
    QTest::newRow("no scenario") << QStringList{"--pty", "--scenario", "rain"} << 2
                                 << "The scenarios are: almanac-switch, ";
    QTest::newRow("no speed") << QStringList{"--pty", "--speed", "fast"} << 2 << "\"fast\"";
    QTest::newRow("no number") << QStringList{"--tcp", "five"} << 1 << "\"five\"";
    QTest::newRow("too great a number") << QStringList{"--tcp", "65536"} << 1 << "\"65536\"";
    QTest::newRow("no address") << QStringList{"--tcp", "somewhere:5000"} << 1 << "\"somewhere:5000\"";
    QTest::newRow("no folder for profiles")
        << QStringList{"--tcp", "0", "--profiles", "/dev/null/profiles"} << 1 << "\"/dev/null/profiles\"";
    QTest::newRow("profiles without a name") << QStringList{"--tcp", "0", "--profiles", ""} << 1 << "folder \"\"";
    QTest::newRow("no device") << QStringList{"--serial", "/nowhere/ttyS0"} << 1 << "/nowhere/ttyS0";
}

void tst_receiverProgram::saysInOneSentenceWhatIsWrong()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, code);
    QFETCH(QString, part);
    program_t program(arguments);
    QVERIFY(program.finishes());
    QCOMPARE(program.exitCode(), code);
    QCOMPARE(program.process.readAllStandardOutput(), QByteArray());
    QString const text = QString::fromUtf8(program.process.readAllStandardError());
    QVERIFY2(text.startsWith("melvox_receiver: ") && text.contains(part), qPrintable(text));
    QVERIFY2(text.endsWith(".\n") && text.count('\n') == 1, qPrintable(text));
}

void tst_receiverProgram::refusesAPortInUse()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QString const port = QString::number(server.serverPort());
    program_t program({"--tcp", port});
    QVERIFY(program.finishes());
    QCOMPARE(program.exitCode(), 1);
    QString const text = QString::fromUtf8(program.process.readAllStandardError());
    QVERIFY2(text.contains(port) && text.contains("choose another one"), qPrintable(text));
}

void tst_receiverProgram::playsAScenarioAtItsSpeed()
{
    melvox_test::folder_t const folder;
    QString const file = folder.write("late.json", "{\"title\": \"Late\", \"shows\": \"A step after a minute.\", "
                                                   "\"steps\": [{\"at\": 60, \"settings\": {\"elevationMask\": 20}}]}");
    program_t program({"--tcp", "0", "--scenario", file, "--speed", "100"});
    tcpLink_t link("127.0.0.1", quint16(program.tcpPort()));
    linkListener_t listener(link);
    link.start();
    QVERIFY(waitFor([&]() { return link.isOpen(); }));
    // At the usual speed it would not come in time.
    QVERIFY(waitFor(
        [&]()
        {
            link.send({message_t::REQUEST, "elevationMask"});
            return listener.texts.contains("report elevationMask 20");
        },
        30000));
}

void tst_receiverProgram::spoilsTheLinkOfEachDisplay()
{
    program_t program({"--tcp", "0", "--scenario", "silent-group"});
    tcpLink_t link("127.0.0.1", quint16(program.tcpPort()));
    linkListener_t listener(link);
    link.start();
    QVERIFY(waitFor([&]() { return link.isOpen(); }));
    link.send({message_t::REQUEST, "ppsConfig"});
    link.send({message_t::REQUEST, "pdopLimit"});
    QVERIFY(waitFor([&]() { return !listener.texts.isEmpty(); }));
    QCOMPARE(listener.texts, QStringList("report pdopLimit 25"));
}

void tst_receiverProgram::saysWhatOfAScenarioIsTheDisplays()
{
    program_t program({"--tcp", "0", "--scenario", "drive-pulled-out"});
    // The first line is about the scenario.
    QCOMPARE(int(program.places(2).size()), 1);
    QVERIFY2(program.output.startsWith("playing drive-pulled-out without what is the display's: drives\n"),
             program.output.constData());
}

void tst_receiverProgram::listsItsOptions()
{
    program_t program({"--help"});
    QVERIFY(program.finishes());
    QCOMPARE(program.exitCode(), 0);
    QString const text = QString::fromUtf8(program.process.readAllStandardOutput());
    for (char const* option : {"--tcp", "--pty", "--serial", "--scenario", "--speed", "--quiet", "--help", "--version"})
        QVERIFY2(text.contains(option), option);
}

void tst_receiverProgram::tellsItsVersion()
{
    program_t program({"--version"});
    QVERIFY(program.finishes());
    QCOMPARE(program.exitCode(), 0);
    QVERIFY(QString::fromUtf8(program.process.readAllStandardOutput()).startsWith("melvox_receiver "));
}

QTEST_MAIN(tst_receiverProgram)
#include "tst_receiverProgram.moc"
