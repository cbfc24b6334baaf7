#include "link/jsonLine.h"
#include "link/streamLink.h"
#include "linkListener.h"

#include "support/test.h"

#include <cstring>

using namespace melvox_link;

namespace
{

/** A device whose other end is the test. */
class wire_t : public QIODevice
{
public:
    wire_t() { open(QIODevice::ReadWrite | QIODevice::Unbuffered); }

    void come(QByteArray const& bytes)
    {
        incoming += bytes;
        emit readyRead();
    }
    bool isSequential() const override { return true; }
    qint64 bytesAvailable() const override { return incoming.size(); }
    qint64 bytesToWrite() const override { return unsent; }

    QByteArray incoming;
    QByteArray outgoing;
    qint64 unsent = 0;

protected:
    qint64 readData(char* data, qint64 size) override
    {
        qint64 const count = qMin<qint64>(size, incoming.size());
        std::memcpy(data, incoming.constData(), size_t(count));
        incoming.remove(0, int(count));
        return count;
    }
    qint64 writeData(char const* data, qint64 size) override
    {
        outgoing.append(data, int(size));
        return size;
    }
};

QByteArray line(int number)
{
    return toLine({message_t::REPORT, "pdopLimit", number});
}

} // namespace

class tst_streamLink : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void sendsLines();
    void receivesLinesInWhateverPieces_data();
    void receivesLinesInWhateverPieces();
    void receivesWhatWasThereBefore();
    void passesOverLinesThatAreNoMessage();
    void passesOverBlankLinesInSilence();
    void readsALineOfTheGreatestLength();
    void passesOverLinesThatAreTooLong_data();
    void passesOverLinesThatAreTooLong();
    void tellsOnlyTheBeginningOfALine();
    void losesWhatTheOtherSideDoesNotTakeIn();
    void closesWithItsDevice();
    void closesWhenItsDeviceIsGone();
    void survivesBeingDeletedByAMessage();
};

void tst_streamLink::sendsLines()
{
    wire_t wire;
    streamLink_t link(&wire, "test");
    QVERIFY(link.isOpen());
    QCOMPARE(link.description(), QString("test"));
    link.send({message_t::REQUEST, "pdopLimit"});
    link.send({message_t::COMMAND, "pdopLimit", 5});
    QCOMPARE(wire.outgoing, QByteArray("{\"group\":\"pdopLimit\",\"kind\":\"request\"}\n"
                                       "{\"group\":\"pdopLimit\",\"kind\":\"command\",\"value\":5}\n"));
}

void tst_streamLink::receivesLinesInWhateverPieces_data()
{
    QTest::addColumn<int>("size");
    QTest::newRow("bytes") << 1;
    QTest::newRow("pieces") << 7;
    QTest::newRow("all at once") << 1000000;
}

void tst_streamLink::receivesLinesInWhateverPieces()
{
    QFETCH(int, size);
    wire_t wire;
    streamLink_t link(&wire, "test");
    melvox_test::linkListener_t listener(link);
    QByteArray bytes;
    QStringList expected;
    for (int i = 0; i < 50; ++i)
    {
        bytes += line(i);
        expected << QString("report pdopLimit %1").arg(i);
    }
    for (int offset = 0; offset < bytes.size(); offset += size)
        wire.come(bytes.mid(offset, size));
    QCOMPARE(listener.texts, expected);
    QCOMPARE(link.ignoredLines(), 0);
}

void tst_streamLink::receivesWhatWasThereBefore()
{
    wire_t wire;
    wire.incoming = line(3);
    streamLink_t link(&wire, "test");
    melvox_test::linkListener_t listener(link);
    QVERIFY(melvox_test::waitFor([&]() { return !listener.texts.isEmpty(); }));
    QCOMPARE(listener.texts, QStringList("report pdopLimit 3"));
}

void tst_streamLink::passesOverLinesThatAreNoMessage()
{
    wire_t wire;
    streamLink_t link(&wire, "test");
    melvox_test::linkListener_t listener(link);
    QList<QByteArray> ignored;
    connect(&link, &streamLink_t::lineIgnored, this,
            [&](QString const& reason, QByteArray const& text)
            {
                QVERIFY(!reason.isEmpty());
                ignored << text;
            });
    wire.come(line(1) + "garbage\n" + QByteArray("\0\xff\n", 3) + "{\"kind\":\"wish\",\"group\":\"x\"}\n" + line(2));
    QCOMPARE(listener.texts, (QStringList{"report pdopLimit 1", "report pdopLimit 2"}));
    QCOMPARE(ignored, (QList<QByteArray>{"garbage", QByteArray("\0\xff", 2), "{\"kind\":\"wish\",\"group\":\"x\"}"}));
    QCOMPARE(link.ignoredLines(), 3);
}

void tst_streamLink::passesOverBlankLinesInSilence()
{
    wire_t wire;
    streamLink_t link(&wire, "test");
    melvox_test::linkListener_t listener(link);
    wire.come("\n\r\n" + line(1).trimmed() + "\r\n");
    QCOMPARE(listener.texts, QStringList("report pdopLimit 1"));
    QCOMPARE(link.ignoredLines(), 0);
}

static QByteArray lineOfLength(int length)
{
    QByteArray const empty = toLine({message_t::REPORT, "baseName", ""}).trimmed();
    QByteArray const line = toLine({message_t::REPORT, "baseName", QString(length - empty.size(), 'x')});
    return line.size() == length + 1 ? line : QByteArray();
}

void tst_streamLink::readsALineOfTheGreatestLength()
{
    wire_t wire;
    streamLink_t link(&wire, "test");
    melvox_test::linkListener_t listener(link);
    wire.come(lineOfLength(streamLink_t::LONGEST_LINE));
    QCOMPARE(int(listener.texts.size()), 1);
    QCOMPARE(link.ignoredLines(), 0);
}

void tst_streamLink::passesOverLinesThatAreTooLong_data()
{
    QTest::addColumn<int>("length");
    QTest::newRow("by one byte") << streamLink_t::LONGEST_LINE + 1;
    QTest::newRow("by far") << 3 * streamLink_t::LONGEST_LINE;
}

void tst_streamLink::passesOverLinesThatAreTooLong()
{
    QFETCH(int, length);
    wire_t wire;
    streamLink_t link(&wire, "test");
    melvox_test::linkListener_t listener(link);
    wire.come(line(1) + lineOfLength(length) + line(2));
    QCOMPARE(listener.texts, (QStringList{"report pdopLimit 1", "report pdopLimit 2"}));
    QCOMPARE(link.ignoredLines(), 1);
}

void tst_streamLink::tellsOnlyTheBeginningOfALine()
{
    wire_t wire;
    streamLink_t link(&wire, "test");
    QList<QByteArray> ignored;
    connect(&link, &streamLink_t::lineIgnored, this, [&](QString const&, QByteArray const& text) { ignored << text; });
    wire.come(QByteArray(5000, 'g') + '\n');
    wire.come(QByteArray(streamLink_t::LONGEST_LINE + 5, 'h') + '\n');
    QCOMPARE(ignored, (QList<QByteArray>{QByteArray(200, 'g'), QByteArray(200, 'h')}));
}

void tst_streamLink::losesWhatTheOtherSideDoesNotTakeIn()
{
    wire_t wire;
    streamLink_t link(&wire, "test");
    wire.unsent = streamLink_t::MOST_UNSENT;
    link.send({message_t::REQUEST, "first"});
    wire.unsent = streamLink_t::MOST_UNSENT + 1;
    link.send({message_t::REQUEST, "second"});
    wire.unsent = 0;
    link.send({message_t::REQUEST, "third"});
    QCOMPARE(wire.outgoing, QByteArray("{\"group\":\"first\",\"kind\":\"request\"}\n"
                                       "{\"group\":\"third\",\"kind\":\"request\"}\n"));
}

void tst_streamLink::closesWithItsDevice()
{
    wire_t wire;
    streamLink_t link(&wire, "test");
    melvox_test::linkListener_t listener(link);
    wire.close();
    QVERIFY(!link.isOpen());
    link.send({message_t::REQUEST, "pdopLimit"});
    QCOMPARE(listener.changes, QList<bool>{false});
    QVERIFY(wire.outgoing.isEmpty());
}

void tst_streamLink::closesWhenItsDeviceIsGone()
{
    QScopedPointer<wire_t> wire(new wire_t);
    streamLink_t link(wire.data(), "test");
    melvox_test::linkListener_t listener(link);
    wire.reset();
    QVERIFY(!link.isOpen());
    link.send({message_t::REQUEST, "pdopLimit"});
    QCOMPARE(listener.changes, QList<bool>{false});
}

void tst_streamLink::survivesBeingDeletedByAMessage()
{
    wire_t wire;
    auto* const link = new streamLink_t(&wire, "test");
    int count = 0;
    connect(link, &link_t::received, &wire,
            [&](message_t const&)
            {
                ++count;
                delete link;
            });
    wire.come(line(1) + line(2));
    QCOMPARE(count, 1);
}

QTEST_MAIN(tst_streamLink)
#include "tst_streamLink.moc"
