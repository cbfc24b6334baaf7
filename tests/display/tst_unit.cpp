#include "brel_common_qt/remoteMelvoxDevice.h"
#include "display/unit.h"
#include "link/linkTap.h"
#include "link/localLink.h"
#include "link/tcpServer.h"
#include "receiver/receiver.h"
#include "receiver/simClock.h"
#include "support/test.h"

using namespace melvox_display;

namespace
{

struct counter_t
{
    explicit counter_t(unit_t& unit)
    {
        connection = QObject::connect(unit.tap(), &melvox_link::linkTap_t::passed,
                                      [this](melvox_link::message_t const& message, bool fromDisplay)
                                      {
                                          if (fromDisplay && message.group == "elevationMask")
                                              ++requests;
                                      });
    }
    ~counter_t() { QObject::disconnect(connection); }

    int requests = 0;
    QMetaObject::Connection connection;
};

} // namespace

class tst_unit : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void asksForEverythingOnceWhenTheLinkOpens()
    {
        unit_t unit{connection_t()};
        counter_t counter(unit);
        melvox_test::settle();
        QCOMPARE(counter.requests, 0);
        unit.start();
        QVERIFY(melvox_test::waitFor([&]() { return unit.device()->elevationMaskValid(); }));
        QVERIFY(melvox_test::waitFor([&]() { return unit.device()->pdopLimitValid(); }));
        QCOMPARE(counter.requests, 1);
    }

    void asksAgainAfterAnInterruption()
    {
        unit_t unit{connection_t()};
        counter_t counter(unit);
        unit.start();
        QVERIFY(melvox_test::waitFor([&]() { return unit.device()->elevationMaskValid(); }));
        unit.localLink()->setOpen(false);
        QVERIFY(unit.receiver()->set("elevationMask", 33.0));
        unit.localLink()->setOpen(true);
        QVERIFY(melvox_test::waitFor([&]() { return unit.device()->elevationMask() == 33.0; }));
        QCOMPARE(counter.requests, 2);
    }

    void tellsHowTheLinkIs()
    {
        unit_t unit{connection_t()};
        QCOMPARE(unit.linkState(), linkState_t::CONNECTING);
        QSignalSpy changed(&unit, &unit_t::linkStateChanged);
        unit.start();
        QCOMPARE(unit.linkState(), linkState_t::CONNECTED);
        QCOMPARE(changed.size(), 1);
        unit.localLink()->setOpen(false);
        QCOMPARE(unit.linkState(), linkState_t::INTERRUPTED);
        QCOMPARE(changed.size(), 2);
        unit.localLink()->setOpen(true);
        QCOMPARE(unit.linkState(), linkState_t::CONNECTED);
        QVERIFY(unit.isSimulated());
    }

    void reachesAReceiverOverTcpAndComesBackAfterALoss()
    {
        melvox_link::tcpServer_t server;
        QVERIFY(server.listen(QHostAddress::LocalHost, 0));
        melvox_receiver::simClock_t clock(melvox_receiver::simClock_t::MANUAL);
        melvox_receiver::receiver_t receiver(&clock);
        connect(&server, &melvox_link::tcpServer_t::accepted, &receiver,
                [&](melvox_link::link_t* link) { receiver.addLink(link, 6); });

        connection_t connection;
        connection.kind = connection_t::TCP;
        connection.host = "127.0.0.1";
        connection.port = server.port();
        unit_t unit(connection);
        QVERIFY(!unit.receiver());
        QCOMPARE(unit.linkState(), linkState_t::CONNECTING);
        unit.start();
        QVERIFY(melvox_test::waitFor([&]() { return unit.device()->elevationMaskValid(); }));
        QCOMPARE(unit.linkState(), linkState_t::CONNECTED);
        QVERIFY(unit.device()->isPortTcpConnect());
        QCOMPARE(unit.description(), QString("tcp:127.0.0.1:%1").arg(server.port()));
        QVERIFY(unit.isSimulated());
    }
};

QTEST_MAIN(tst_unit)
#include "tst_unit.moc"
