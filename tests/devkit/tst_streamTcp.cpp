#include "link/streamLink.h"
#include "link/tcpLink.h"
#include "link/tcpServer.h"
#include "linkListener.h"

#include "support/test.h"

using namespace melvox_link;
using melvox_test::linkListener_t;
using melvox_test::waitFor;

namespace
{

/** The receiver's side: sends back what comes, as reports. */
class echo_t : public QObject
{
public:
    bool listen(quint16 port = 0)
    {
        server.reset(new tcpServer_t);
        connect(server.data(), &tcpServer_t::accepted, this,
                [this](link_t* link)
                {
                    links << link;
                    connect(link, &link_t::received, link,
                            [link](message_t const& message) {
                                link->send({message_t::REPORT, message.group, message.value});
                            });
                });
        return server->listen(QHostAddress::LocalHost, port);
    }

    QScopedPointer<tcpServer_t> server;
    QList<QPointer<link_t>> links;
};

} // namespace

class tst_streamTcp : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void carriesMessagesBothWays();
    void describesBothSides();
    void acceptsSeveralDisplays();
    void connectsOnceTheReceiverIsThere();
    void connectsAgainAfterTheReceiverWasGone();
    void isGoneAtTheReceiverWhenTheDisplayStops();
    void staysClosedOnceStopped();
    void pausesLongerAndLonger();
    void refusesAPortInUse();
    void turnsTooManyDisplaysAway();
};

void tst_streamTcp::carriesMessagesBothWays()
{
    echo_t echo;
    QVERIFY(echo.listen());
    tcpLink_t link("127.0.0.1", echo.server->port());
    linkListener_t listener(link);
    QVERIFY(!link.isOpen());
    link.start();
    QVERIFY(!link.isOpen());
    QVERIFY(waitFor([&]() { return link.isOpen(); }));
    link.send({message_t::COMMAND, "uploadData", QByteArray(300000, 'x')});
    link.send({message_t::COMMAND, "pdopLimit", 5});
    QVERIFY(waitFor([&]() { return listener.texts.size() == 2; }));
    QCOMPARE(listener.texts, (QStringList{"report uploadData <300000 bytes>", "report pdopLimit 5"}));
    QCOMPARE(listener.changes, QList<bool>{true});
}

void tst_streamTcp::describesBothSides()
{
    echo_t echo;
    QVERIFY(echo.listen());
    tcpLink_t link("127.0.0.1", echo.server->port());
    QCOMPARE(link.description(), QString("tcp:127.0.0.1:%1").arg(echo.server->port()));
    QCOMPARE(echo.server->description(), link.description());
    QCOMPARE(tcpLink_t("::1", 5000).description(), QString("tcp:[::1]:5000"));
}

void tst_streamTcp::acceptsSeveralDisplays()
{
    echo_t echo;
    QVERIFY(echo.listen());
    tcpLink_t first("127.0.0.1", echo.server->port());
    tcpLink_t second("127.0.0.1", echo.server->port());
    linkListener_t firstListener(first);
    linkListener_t secondListener(second);
    first.start();
    second.start();
    QVERIFY(waitFor([&]() { return first.isOpen() && second.isOpen(); }));
    first.send({message_t::COMMAND, "pdopLimit", 5});
    second.send({message_t::COMMAND, "elevationMask", 7});
    QVERIFY(waitFor([&]() { return !firstListener.texts.isEmpty() && !secondListener.texts.isEmpty(); }));
    QCOMPARE(firstListener.texts, QStringList("report pdopLimit 5"));
    QCOMPARE(secondListener.texts, QStringList("report elevationMask 7"));
}

static quint16 freePort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    return server.serverPort();
}

void tst_streamTcp::connectsOnceTheReceiverIsThere()
{
    quint16 const port = freePort();
    tcpLink_t link("127.0.0.1", port);
    link.setPauses(5, 20);
    link.start();
    QVERIFY(waitFor([&]() { return link.errorText().contains("refused"); }));
    QVERIFY(!link.isOpen());
    echo_t echo;
    QVERIFY(echo.listen(port));
    QVERIFY(waitFor([&]() { return link.isOpen(); }));
}

void tst_streamTcp::connectsAgainAfterTheReceiverWasGone()
{
    echo_t echo;
    QVERIFY(echo.listen());
    quint16 const port = echo.server->port();
    tcpLink_t link("127.0.0.1", port);
    link.setPauses(5, 20);
    linkListener_t listener(link);
    link.start();
    QVERIFY(waitFor([&]() { return echo.links.size() == 1 && link.isOpen(); }));
    echo.server.reset();
    QVERIFY(waitFor([&]() { return !link.isOpen(); }));
    QVERIFY(echo.listen(port));
    QVERIFY(waitFor([&]() { return link.isOpen(); }));
    link.send({message_t::COMMAND, "pdopLimit", 5});
    QVERIFY(waitFor([&]() { return !listener.texts.isEmpty(); }));
    QCOMPARE(listener.changes, (QList<bool>{true, false, true}));
}

void tst_streamTcp::isGoneAtTheReceiverWhenTheDisplayStops()
{
    echo_t echo;
    QVERIFY(echo.listen());
    tcpLink_t link("127.0.0.1", echo.server->port());
    link.start();
    QVERIFY(waitFor([&]() { return echo.links.size() == 1; }));
    linkListener_t listener(*echo.links.first());
    QVERIFY(waitFor([&]() { return link.isOpen(); }));
    link.stop();
    QVERIFY(waitFor([&]() { return !echo.links.first(); }));
    QCOMPARE(listener.changes, QList<bool>{false});
}

void tst_streamTcp::staysClosedOnceStopped()
{
    echo_t echo;
    QVERIFY(echo.listen());
    tcpLink_t link("127.0.0.1", echo.server->port());
    link.setPauses(1, 1);
    linkListener_t listener(link);
    link.start();
    QVERIFY(waitFor([&]() { return link.isOpen(); }));
    link.stop();
    QVERIFY(!link.isOpen());
    // Somebody else's connection shows that time has passed.
    tcpLink_t other("127.0.0.1", echo.server->port());
    other.start();
    QVERIFY(waitFor([&]() { return other.isOpen(); }));
    QVERIFY(!link.isOpen());
    QCOMPARE(listener.changes, (QList<bool>{true, false}));
}

void tst_streamTcp::pausesLongerAndLonger()
{
    int attempts = 0;
    retry_t retry([&]() { ++attempts; });
    retry.setPauses(20, 60);
    QList<int> pauses;
    for (int i = 0; i < 4; ++i)
    {
        pauses << retry.nextPause();
        retry.failed();
    }
    QCOMPARE(pauses, (QList<int>{20, 40, 60, 60}));
    QVERIFY(waitFor([&]() { return attempts > 0; }));
    // Failures while it pauses put the attempt off; they do not add one.
    QCOMPARE(attempts, 1);
    retry.succeeded();
    QCOMPARE(retry.nextPause(), 20);
}

void tst_streamTcp::refusesAPortInUse()
{
    echo_t echo;
    QVERIFY(echo.listen());
    tcpServer_t second;
    QVERIFY(!second.listen(QHostAddress::LocalHost, echo.server->port()));
    QVERIFY(!second.errorText().isEmpty());
}

void tst_streamTcp::turnsTooManyDisplaysAway()
{
    echo_t echo;
    QVERIFY(echo.listen());
    QList<QSharedPointer<QTcpSocket>> sockets;
    for (int i = 0; i <= tcpServer_t::MOST_DISPLAYS; ++i)
    {
        sockets << QSharedPointer<QTcpSocket>::create();
        sockets.last()->connectToHost("127.0.0.1", echo.server->port());
        QVERIFY(waitFor([&]() { return sockets.last()->state() != QAbstractSocket::ConnectingState; }));
    }
    auto const count = [&]()
    {
        int connected = 0;
        for (auto const& socket : sockets)
            connected += socket->state() == QAbstractSocket::ConnectedState;
        return connected;
    };
    QVERIFY(waitFor([&]() { return count() == tcpServer_t::MOST_DISPLAYS; }));
    QCOMPARE(int(echo.links.size()), tcpServer_t::MOST_DISPLAYS);
}

QTEST_MAIN(tst_streamTcp)
#include "tst_streamTcp.moc"
