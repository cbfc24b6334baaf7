#include "link/scriptedLink.h"

#include "support/test.h"

using melvox_link::message_t;
using melvox_link::scriptedLink_t;

namespace
{

class listener_t : public QObject
{
    Q_OBJECT

public:
    explicit listener_t(scriptedLink_t& link)
    {
        connect(&link, SIGNAL(received(melvox_link::message_t)), SLOT(take(melvox_link::message_t)));
        connect(&link, SIGNAL(openChanged(bool)), SLOT(change(bool)));
    }

    QStringList texts;
    QList<bool> changes;

public slots:
    void take(melvox_link::message_t const& message)
    {
        texts << melvox_link::kindName(message.kind) + ' ' + melvox_link::toText(message);
    }
    void change(bool open) { changes << open; }
};

} // namespace

class tst_linkScripted : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void deliversReportsAndEventsAtOnce();
    void listsWhatWasSentInOrder();
    void forgetsWhatWasSent();
    void passesNothingWhileClosed();
};

void tst_linkScripted::deliversReportsAndEventsAtOnce()
{
    scriptedLink_t link;
    listener_t display(link);
    link.report("elevationMask", 10.0);
    link.event("badBaud");
    QCOMPARE(display.texts, QStringList() << "report elevationMask 10"
                                          << "event badBaud");
}

void tst_linkScripted::listsWhatWasSentInOrder()
{
    scriptedLink_t link;
    link.send(message_t(message_t::REQUEST, "pdopLimit"));
    link.send(message_t(message_t::COMMAND, "elevationMask", 12.5));
    link.send(message_t(message_t::REQUEST, "elevationMask"));
    link.send(message_t(message_t::COMMAND, "warmRestart"));
    QCOMPARE(link.sent(), QStringList() << "request pdopLimit"
                                        << "command elevationMask 12.5"
                                        << "request elevationMask"
                                        << "command warmRestart");
    QCOMPARE(link.commands(), QStringList() << "elevationMask 12.5"
                                            << "warmRestart");
    QCOMPARE(link.requests(), QStringList() << "pdopLimit"
                                            << "elevationMask");
    QCOMPARE(link.messages().at(1).value, QVariant(12.5));
}

void tst_linkScripted::forgetsWhatWasSent()
{
    scriptedLink_t link;
    link.send(message_t(message_t::REQUEST, "pdopLimit"));
    link.clear();
    QVERIFY(link.sent().isEmpty());
}

void tst_linkScripted::passesNothingWhileClosed()
{
    scriptedLink_t link;
    listener_t display(link);
    QVERIFY(link.isOpen());
    link.setOpen(false);
    link.setOpen(false);
    QVERIFY(!link.isOpen());
    link.send(message_t(message_t::REQUEST, "pdopLimit"));
    link.report("pdopLimit", 5.0);
    link.event("badBaud");
    link.setOpen(true);
    QVERIFY(link.sent().isEmpty());
    QVERIFY(display.texts.isEmpty());
    QCOMPARE(display.changes, QList<bool>() << false << true);
}

QTEST_MAIN(tst_linkScripted)
#include "tst_linkScripted.moc"
