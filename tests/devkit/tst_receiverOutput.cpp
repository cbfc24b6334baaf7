#include "support/test.h"

#include <QProcess>
#include <QSerialPort>
#include <QTcpServer>
#include <QTcpSocket>

using melvox_test::waitFor;

namespace
{

/** The receiver as a process of its own, read at the places where it puts out. */
class program_t
{
public:
    explicit program_t(QStringList const& outputs)
    {
        QStringList arguments = {"--quiet", "--tcp", "0"};
        for (QString const& output : outputs)
            arguments << "--output" << output;
        process.start(MELVOX_RECEIVER_PROGRAM, arguments);
    }
    ~program_t()
    {
        process.kill();
        process.waitForFinished();
    }

    /** "putting out COM2 on tcp:127.0.0.1:5001", the n-th of them. */
    QString place(int index)
    {
        auto const told = [&]()
        {
            output += process.readAllStandardOutput();
            return output.count("putting out ") > index && output.endsWith('\n');
        };
        return waitFor(told, 20000) ? QString::fromUtf8(output.split('\n').value(1 + index)) : QString();
    }

    QProcess process;
    QByteArray output;
};

bool isSentence(QByteArray const& line)
{
    int const star = int(line.indexOf('*'));
    int sum = 0;
    for (char c : line.mid(1, star - 1))
        sum ^= c;
    return line.startsWith('$') && line.endsWith("\r\n") && line.mid(star + 1, 2).toInt(nullptr, 16) == sum;
}

/** The next so many lines, each a sentence with a right checksum; what stands before the first one is passed over. */
QByteArrayList sentences(QIODevice& device, int count)
{
    QByteArrayList found;
    waitFor(
        [&]()
        {
            while (found.size() < count && device.canReadLine())
            {
                QByteArray const line = device.readLine();
                if (isSentence(line) || !found.isEmpty())
                    found << line;
            }
            return found.size() >= count;
        },
        20000);
    return found;
}

} // namespace

class tst_receiverOutput : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void putsSentencesOutOverTcp();
    void putsSentencesOutOverAPseudoTerminal();
    void servesSeveralReadersAndPorts();
    void goesOnWhenAReaderLeaves();
    void saysInOneSentenceWhatIsWrong_data();
    void saysInOneSentenceWhatIsWrong();
    void refusesAPortInUse();
};

void tst_receiverOutput::putsSentencesOutOverTcp()
{
    program_t program({"COM2=tcp:0"});
    QString const place = program.place(0);
    QVERIFY2(place.startsWith("putting out COM2 on tcp:127.0.0.1:"), qPrintable(place));
    QTcpSocket socket;
    socket.connectToHost("127.0.0.1", place.section(':', -1).toUShort());
    QByteArrayList const found = sentences(socket, 12);
    QCOMPARE(int(found.size()), 12);
    QByteArray const all = found.join();
    QVERIFY2(all.contains("GGA,") && all.contains("VTG,"), all);
    for (QByteArray const& sentence : found)
        QVERIFY2(isSentence(sentence), sentence);
}

void tst_receiverOutput::putsSentencesOutOverAPseudoTerminal()
{
    program_t program({"COM2=pty"});
    QString const place = program.place(0);
    QVERIFY2(place.startsWith("putting out COM2 on pty:/dev/"), qPrintable(place));
    QSerialPort port;
    port.setPortName(place.section(':', 1));
    QVERIFY(port.open(QIODevice::ReadWrite));
    QByteArrayList const found = sentences(port, 6);
    QCOMPARE(int(found.size()), 6);
    for (QByteArray const& sentence : found)
        QVERIFY2(isSentence(sentence), sentence);
}

void tst_receiverOutput::servesSeveralReadersAndPorts()
{
    program_t program({"COM2=tcp:0", "ETH1=tcp:0"});
    quint16 const com = program.place(0).section(':', -1).toUShort();
    quint16 const eth = program.place(1).section(':', -1).toUShort();
    QVERIFY(com && eth && com != eth);
    QTcpSocket first;
    QTcpSocket second;
    QTcpSocket other;
    first.connectToHost("127.0.0.1", com);
    second.connectToHost("127.0.0.1", com);
    other.connectToHost("127.0.0.1", eth);
    QVERIFY(!sentences(first, 5).isEmpty());
    QVERIFY(!sentences(second, 5).isEmpty());
    QByteArray const others = sentences(other, 5).join();
    QVERIFY2(others.contains("GSV,") && !others.contains("VTG,"), others);
}

void tst_receiverOutput::goesOnWhenAReaderLeaves()
{
    program_t program({"COM2=tcp:0"});
    quint16 const port = program.place(0).section(':', -1).toUShort();
    {
        QTcpSocket leaving;
        leaving.connectToHost("127.0.0.1", port);
        leaving.write("what a reader says has no effect\r\n");
        QVERIFY(!sentences(leaving, 1).isEmpty());
        leaving.abort();
    }
    QTcpSocket next;
    next.connectToHost("127.0.0.1", port);
    QCOMPARE(int(sentences(next, 6).size()), 6);
    QCOMPARE(int(program.process.state()), int(QProcess::Running));
}

void tst_receiverOutput::saysInOneSentenceWhatIsWrong_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("part");
    QTest::newRow("no place") << "COM2"
                              << "names no output";
    QTest::newRow("no port") << "COM9=pty"
                             << "names no output";
    QTest::newRow("small letters") << "com2=pty"
                                   << "names no output";
    QTest::newRow("another kind") << "COM2=file:x"
                                  << "names no output";
    QTest::newRow("no number") << "COM2=tcp:many"
                               << "is no TCP port";
    QTest::newRow("no address") << "COM2=tcp:here:5000"
                                << "is no TCP port";
}

void tst_receiverOutput::saysInOneSentenceWhatIsWrong()
{
    QFETCH(QString, text);
    QFETCH(QString, part);
    program_t program({text});
    QVERIFY(waitFor([&]() { return program.process.state() == QProcess::NotRunning; }, 20000));
    QByteArray const error = program.process.readAllStandardError();
    QVERIFY2(error.contains(part.toUtf8()), error);
    QCOMPARE(error.count('\n'), 1);
    QVERIFY(program.process.exitCode() != 0);
}

void tst_receiverOutput::refusesAPortInUse()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    program_t program({QString("COM2=tcp:%1").arg(server.serverPort())});
    QVERIFY(waitFor([&]() { return program.process.state() == QProcess::NotRunning; }, 20000));
    QVERIFY(program.process.readAllStandardError().contains("choose another one"));
}

QTEST_MAIN(tst_receiverOutput)
#include "tst_receiverOutput.moc"
