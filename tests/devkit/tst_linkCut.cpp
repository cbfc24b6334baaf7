#include "link/faultFilter.h"
#include "link/linkTap.h"
#include "link/localLink.h"
#include "link/scriptedLink.h"
#include "link/tcpLink.h"
#include "link/tcpServer.h"
#include "linkListener.h"

#include "support/test.h"

using namespace melvox_link;
using melvox_test::linkListener_t;
using melvox_test::waitFor;

class tst_linkCut : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void cutsAndJoinsALocalLinkForBothEnds();
    void losesWhatIsUnderWay();
    void cutsThroughATapAndAFilter();
    void doesNothingOnALinkThatCannotBeCut();
    void aDisplayOverTcpComesAgain();
};

void tst_linkCut::cutsAndJoinsALocalLinkForBothEnds()
{
    localLinkPair_t pair;
    linkListener_t display(*pair.displayEnd());
    link_t& end = *pair.receiverEnd();
    end.setCut(true);
    QVERIFY(!pair.displayEnd()->isOpen() && !pair.receiverEnd()->isOpen());
    end.setCut(true);
    end.setCut(false);
    QVERIFY(pair.displayEnd()->isOpen() && pair.receiverEnd()->isOpen());
    QCOMPARE(display.changes, (QList<bool>{false, true}));
}

void tst_linkCut::losesWhatIsUnderWay()
{
    localLinkPair_t pair;
    linkListener_t display(*pair.displayEnd());
    pair.receiverEnd()->send({message_t::REPORT, "elevationMask", 1.0});
    pair.receiverEnd()->setCut(true);
    pair.receiverEnd()->setCut(false);
    pair.receiverEnd()->send({message_t::REPORT, "elevationMask", 2.0});
    QVERIFY(waitFor([&]() { return !display.texts.isEmpty(); }));
    QCOMPARE(display.texts, QStringList("report elevationMask 2"));
}

void tst_linkCut::cutsThroughATapAndAFilter()
{
    localLinkPair_t pair;
    linkTap_t tap(pair.receiverEnd());
    faultFilter_t filter(&tap);
    filter.setCut(true);
    QVERIFY(!pair.isOpen());
    filter.setCut(false);
    QVERIFY(pair.isOpen());
}

void tst_linkCut::doesNothingOnALinkThatCannotBeCut()
{
    scriptedLink_t link;
    link_t& any = link;
    any.setCut(true);
    QVERIFY(link.isOpen());
}

void tst_linkCut::aDisplayOverTcpComesAgain()
{
    tcpServer_t server;
    QVERIFY(server.listen(QHostAddress::LocalHost, 0));
    QList<QPointer<link_t>> ends;
    connect(&server, &tcpServer_t::accepted, this, [&](link_t* end) { ends << end; });
    tcpLink_t display("127.0.0.1", server.port());
    linkListener_t listener(display);
    display.start();
    QVERIFY(waitFor([&]() { return ends.size() == 1 && display.isOpen(); }));
    ends.first()->setCut(true);
    QVERIFY(waitFor([&]() { return !display.isOpen() || ends.size() == 2; }));
    QVERIFY(waitFor([&]() { return ends.size() == 2 && display.isOpen(); }, 20000));
    QVERIFY(!ends.first());
    QCOMPARE(listener.changes, (QList<bool>{true, false, true}));
}

QTEST_MAIN(tst_linkCut)
#include "tst_linkCut.moc"
