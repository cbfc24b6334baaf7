#include "link/linkTap.h"
#include "link/scriptedLink.h"

#include "support/test.h"

using melvox_link::linkTap_t;
using melvox_link::message_t;
using melvox_link::scriptedLink_t;

namespace
{

class watcher_t : public QObject
{
    Q_OBJECT

public:
    explicit watcher_t(linkTap_t& tap)
    {
        connect(&tap, SIGNAL(passed(melvox_link::message_t, bool)), SLOT(watch(melvox_link::message_t, bool)));
        connect(&tap, SIGNAL(received(melvox_link::message_t)), SLOT(take(melvox_link::message_t)));
        connect(&tap, SIGNAL(openChanged(bool)), SLOT(change(bool)));
    }

    QStringList texts;

public slots:
    void watch(melvox_link::message_t const& message, bool fromDisplay)
    {
        texts << (fromDisplay ? "display: " : "receiver: ") + melvox_link::toText(message);
    }
    void take(melvox_link::message_t const& message) { texts << "received: " + melvox_link::toText(message); }
    void change(bool open) { texts << (open ? "open" : "closed"); }
};

} // namespace

class tst_linkTap : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void tellsOfWhatIsSentAndHandsItOn();
    void tellsOfWhatIsReceivedBeforeItHandsItOn();
    void followsTheLinkItWraps();
    void isClosedOnceTheLinkIsGone();
};

void tst_linkTap::tellsOfWhatIsSentAndHandsItOn()
{
    scriptedLink_t link;
    linkTap_t tap(&link);
    watcher_t watcher(tap);
    tap.send(message_t(message_t::REQUEST, "pdopLimit"));
    tap.send(message_t(message_t::COMMAND, "pdopLimit", 5));
    QCOMPARE(watcher.texts, QStringList() << "display: pdopLimit"
                                          << "display: pdopLimit 5");
    QCOMPARE(link.sent(), QStringList() << "request pdopLimit"
                                        << "command pdopLimit 5");
}

void tst_linkTap::tellsOfWhatIsReceivedBeforeItHandsItOn()
{
    scriptedLink_t link;
    linkTap_t tap(&link);
    watcher_t watcher(tap);
    link.report("pdopLimit", 5);
    link.event("badBaud");
    QCOMPARE(watcher.texts, QStringList() << "receiver: pdopLimit 5"
                                          << "received: pdopLimit 5"
                                          << "receiver: badBaud"
                                          << "received: badBaud");
}

void tst_linkTap::followsTheLinkItWraps()
{
    scriptedLink_t link;
    linkTap_t tap(&link);
    watcher_t watcher(tap);
    QVERIFY(tap.isOpen());
    QCOMPARE(tap.description(), link.description());
    link.setOpen(false);
    QVERIFY(!tap.isOpen());
    tap.send(message_t(message_t::REQUEST, "pdopLimit"));
    link.setOpen(true);
    QCOMPARE(watcher.texts, QStringList() << "closed"
                                          << "open");
    QVERIFY(link.sent().isEmpty());
}

void tst_linkTap::isClosedOnceTheLinkIsGone()
{
    QScopedPointer<scriptedLink_t> link(new scriptedLink_t);
    linkTap_t tap(link.data());
    link.reset();
    QVERIFY(!tap.isOpen());
    QCOMPARE(tap.description(), QString());
    tap.send(message_t(message_t::REQUEST, "pdopLimit"));
}

QTEST_MAIN(tst_linkTap)
#include "tst_linkTap.moc"
