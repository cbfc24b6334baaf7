#include "link/localLink.h"

#include "support/test.h"

#include <QEventLoop>

using melvox_link::localLink_t;
using melvox_link::localLinkPair_t;
using melvox_link::message_t;

namespace
{

message_t request(int number)
{
    return message_t(message_t::REQUEST, "group", number);
}

/** Notes what one end hears, and answers if told to. */
class listener_t : public QObject
{
    Q_OBJECT

public:
    explicit listener_t(localLink_t* link) : end(link), nested(false)
    {
        connect(link, SIGNAL(received(melvox_link::message_t)), SLOT(take(melvox_link::message_t)));
        connect(link, SIGNAL(openChanged(bool)), SLOT(change(bool)));
    }

    QStringList texts;
    QList<bool> changes;
    localLink_t* end;
    bool nested;

public slots:
    void take(melvox_link::message_t const& message)
    {
        texts << melvox_link::toText(message);
        if (nested)
        {
            nested = false;
            QVERIFY(melvox_test::waitFor([this]() { return texts.size() == 3; }));
        }
    }
    void change(bool open) { changes << open; }
};

} // namespace

class tst_linkLocal : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void deliversInTheNextTurnOfTheEventLoop();
    void keepsTheOrder();
    void carriesBothWays();
    void takesAsLongAsTheLatency();
    void doesNotOvertakeWhenTheLatencyIsLowered();
    void losesWhatIsSentWhileClosed();
    void losesWhatIsUnderWayWhenItCloses();
    void bothEndsHearOfOpeningAndClosing_data();
    void bothEndsHearOfOpeningAndClosing();
    void deliversTheRestInsideAnEventLoopOfAReceiver();
};

void tst_linkLocal::deliversInTheNextTurnOfTheEventLoop()
{
    localLinkPair_t pair;
    listener_t receiver(pair.receiverEnd());
    pair.displayEnd()->send(request(1));
    QVERIFY(receiver.texts.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(receiver.texts, QStringList() << "group 1");
}

void tst_linkLocal::keepsTheOrder()
{
    localLinkPair_t pair;
    listener_t receiver(pair.receiverEnd());
    QStringList expected;
    for (int i = 0; i < 100; ++i)
    {
        pair.displayEnd()->send(request(i));
        expected << QString("group %1").arg(i);
    }
    QVERIFY(melvox_test::waitFor([&]() { return receiver.texts.size() == 100; }));
    QCOMPARE(receiver.texts, expected);
}

void tst_linkLocal::carriesBothWays()
{
    localLinkPair_t pair;
    listener_t display(pair.displayEnd());
    pair.receiverEnd()->send(message_t(message_t::REPORT, "elevationMask", 7.5));
    QVERIFY(melvox_test::waitFor([&]() { return !display.texts.isEmpty(); }));
    QCOMPARE(display.texts, QStringList() << "elevationMask 7.5");
}

void tst_linkLocal::takesAsLongAsTheLatency()
{
    localLinkPair_t pair;
    pair.setLatency(60);
    QCOMPARE(pair.latency(), 60);
    listener_t receiver(pair.receiverEnd());
    QElapsedTimer timer;
    timer.start();
    pair.displayEnd()->send(request(1));
    QVERIFY(melvox_test::waitFor([&]() { return !receiver.texts.isEmpty(); }));
    // The ends' clocks count whole milliseconds.
    QVERIFY2(timer.elapsed() >= 59, qPrintable(QString::number(timer.elapsed())));
}

void tst_linkLocal::doesNotOvertakeWhenTheLatencyIsLowered()
{
    localLinkPair_t pair;
    listener_t receiver(pair.receiverEnd());
    pair.setLatency(50);
    pair.displayEnd()->send(request(1));
    pair.setLatency(-5);
    QCOMPARE(pair.latency(), 0);
    pair.displayEnd()->send(request(2));
    QVERIFY(melvox_test::waitFor([&]() { return receiver.texts.size() == 2; }));
    QCOMPARE(receiver.texts, QStringList() << "group 1"
                                           << "group 2");
}

void tst_linkLocal::losesWhatIsSentWhileClosed()
{
    localLinkPair_t pair;
    listener_t receiver(pair.receiverEnd());
    pair.setOpen(false);
    pair.displayEnd()->send(request(1));
    pair.setOpen(true);
    pair.displayEnd()->send(request(2));
    QVERIFY(melvox_test::waitFor([&]() { return !receiver.texts.isEmpty(); }));
    QCOMPARE(receiver.texts, QStringList() << "group 2");
}

void tst_linkLocal::losesWhatIsUnderWayWhenItCloses()
{
    localLinkPair_t pair;
    listener_t receiver(pair.receiverEnd());
    pair.displayEnd()->send(request(1));
    pair.setOpen(false);
    pair.setOpen(true);
    pair.displayEnd()->send(request(2));
    QVERIFY(melvox_test::waitFor([&]() { return !receiver.texts.isEmpty(); }));
    QCOMPARE(receiver.texts, QStringList() << "group 2");
}

void tst_linkLocal::bothEndsHearOfOpeningAndClosing_data()
{
    QTest::addColumn<int>("who");
    QTest::newRow("display") << 0;
    QTest::newRow("receiver") << 1;
    QTest::newRow("pair") << 2;
}

void tst_linkLocal::bothEndsHearOfOpeningAndClosing()
{
    QFETCH(int, who);
    localLinkPair_t pair;
    listener_t display(pair.displayEnd());
    listener_t receiver(pair.receiverEnd());
    QVERIFY(pair.isOpen());
    bool const steps[] = {false, false, true};
    for (bool open : steps)
    {
        if (who == 2)
            pair.setOpen(open);
        else
            (who == 0 ? pair.displayEnd() : pair.receiverEnd())->setOpen(open);
        QCOMPARE(pair.displayEnd()->isOpen(), open);
        QCOMPARE(pair.receiverEnd()->isOpen(), open);
    }
    QCOMPARE(display.changes, QList<bool>() << false << true);
    QCOMPARE(receiver.changes, QList<bool>() << false << true);
}

void tst_linkLocal::deliversTheRestInsideAnEventLoopOfAReceiver()
{
    localLinkPair_t pair;
    listener_t receiver(pair.receiverEnd());
    receiver.nested = true;
    for (int i = 1; i <= 3; ++i)
        pair.displayEnd()->send(request(i));
    QVERIFY(melvox_test::waitFor([&]() { return receiver.texts.size() == 3; }));
    QCOMPARE(receiver.texts, QStringList() << "group 1"
                                           << "group 2"
                                           << "group 3");
}

QTEST_MAIN(tst_linkLocal)
#include "tst_linkLocal.moc"
