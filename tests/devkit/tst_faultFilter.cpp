#include "link/faultFilter.h"
#include "link/scriptedLink.h"

#include "support/test.h"

#include <limits>

using namespace melvox_link;

namespace
{

class listener_t : public QObject
{
    Q_OBJECT

public:
    explicit listener_t(faultFilter_t& filter)
    {
        connect(&filter, SIGNAL(received(melvox_link::message_t)), SLOT(take(melvox_link::message_t)));
        connect(&filter, SIGNAL(openChanged(bool)), SLOT(change(bool)));
        connect(&filter, SIGNAL(struck(melvox_link::message_t, melvox_link::fault_t)),
                SLOT(strike(melvox_link::message_t, melvox_link::fault_t)));
    }

    QStringList texts;
    QStringList strikes;
    QList<bool> changes;

public slots:
    void take(melvox_link::message_t const& message) { texts << toText(message); }
    void change(bool open) { changes << open; }
    void strike(melvox_link::message_t const& message, melvox_link::fault_t fault)
    {
        strikes << faultName(fault) + ' ' + toText(message);
    }
};

QVariantMap ppsConfig()
{
    QVariantMap map;
    map["polarity"] = 1;
    map["width"] = 50000;
    return map;
}

} // namespace

class tst_faultFilter : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void namesEachFaultBothWays_data();
    void namesEachFaultBothWays();
    void refusesAnUnknownFaultName();
    void passesEverythingAtFirst();
    void drops();
    void duplicates();
    void delays();
    void reorders();
    void letsAReorderedMessageGoWhenNoneFollows();
    void garblesAMap();
    void garblesAListAndANumber();
    void concernsOnlyItsGroup();
    void concernsOnlyItsDirection_data();
    void concernsOnlyItsDirection();
    void replacesAndTakesAwayAFault();
    void holdsProbabilitiesWithinTheirRange_data();
    void holdsProbabilitiesWithinTheirRange();
    void strikesTheSameMessagesForTheSameSeed();
    void strikesOtherMessagesForAnotherSeed();
    void strikesAboutAsOftenAsItIsTold();
    void letsHeldMessagesGoWhenTheFaultsAreCleared();
    void losesHeldMessagesWhenTheLinkCloses();
    void isClosedOnceTheLinkIsGone();
    void tellsOfEachStrike();
};

void tst_faultFilter::namesEachFaultBothWays_data()
{
    QTest::addColumn<int>("fault");
    QTest::addColumn<QString>("name");
    QTest::newRow("drop") << int(FAULT_DROP) << "drop";
    QTest::newRow("delay") << int(FAULT_DELAY) << "delay";
    QTest::newRow("duplicate") << int(FAULT_DUPLICATE) << "duplicate";
    QTest::newRow("reorder") << int(FAULT_REORDER) << "reorder";
    QTest::newRow("garble") << int(FAULT_GARBLE) << "garble";
}

void tst_faultFilter::namesEachFaultBothWays()
{
    QFETCH(int, fault);
    QFETCH(QString, name);
    QCOMPARE(faultName(fault_t(fault)), name);
    fault_t found = NUM_FAULTS;
    QVERIFY(faultFromName(name, found));
    QCOMPARE(int(found), fault);
    QCOMPARE(faultNames().size(), int(NUM_FAULTS));
}

void tst_faultFilter::refusesAnUnknownFaultName()
{
    fault_t fault = FAULT_DELAY;
    QVERIFY(!faultFromName("explode", fault));
    QCOMPARE(int(fault), int(FAULT_DELAY));
    QCOMPARE(faultName(NUM_FAULTS), QString());
}

void tst_faultFilter::passesEverythingAtFirst()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    listener_t display(filter);
    QVERIFY(filter.isOpen());
    QCOMPARE(filter.description(), link.description());
    filter.send(message_t(message_t::COMMAND, "elevationMask", 12.5));
    link.report("elevationMask", 12.5);
    QCOMPARE(link.commands(), QStringList() << "elevationMask 12.5");
    QCOMPARE(display.texts, QStringList() << "elevationMask 12.5");
}

void tst_faultFilter::drops()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    listener_t display(filter);
    filter.setFault("ppsConfig", FAULT_DROP, 1.0);
    filter.send(message_t(message_t::REQUEST, "ppsConfig"));
    link.report("ppsConfig", ppsConfig());
    QVERIFY(link.sent().isEmpty());
    QVERIFY(display.texts.isEmpty());
    QCOMPARE(filter.strikes(FAULT_DROP), 2);
}

void tst_faultFilter::duplicates()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    listener_t display(filter);
    filter.setFault("pdopLimit", FAULT_DUPLICATE, 1.0);
    filter.send(message_t(message_t::COMMAND, "pdopLimit", 5));
    link.report("pdopLimit", 6);
    QCOMPARE(link.commands(), QStringList() << "pdopLimit 5"
                                            << "pdopLimit 5");
    QCOMPARE(display.texts, QStringList() << "pdopLimit 6"
                                          << "pdopLimit 6");
}

void tst_faultFilter::delays()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    listener_t display(filter);
    filter.setDelay(30);
    filter.setFault("pdopLimit", FAULT_DELAY, 1.0);
    QElapsedTimer timer;
    timer.start();
    link.report("pdopLimit", 6);
    link.report("elevationMask", 7);
    QCOMPARE(display.texts, QStringList() << "elevationMask 7");
    QVERIFY(melvox_test::waitFor([&]() { return display.texts.size() == 2; }));
    QVERIFY2(timer.elapsed() >= 29, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(display.texts.last(), QString("pdopLimit 6"));
}

void tst_faultFilter::reorders()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    listener_t display(filter);
    filter.setDelay(100000);
    filter.setFault(QString(), FAULT_REORDER, 1.0);
    for (int i = 1; i <= 4; ++i)
        link.report("pdopLimit", i);
    QCOMPARE(display.texts, QStringList() << "pdopLimit 2"
                                          << "pdopLimit 1"
                                          << "pdopLimit 4"
                                          << "pdopLimit 3");
}

void tst_faultFilter::letsAReorderedMessageGoWhenNoneFollows()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    filter.setDelay(10);
    filter.setFault("pdopLimit", FAULT_REORDER, 1.0);
    filter.send(message_t(message_t::REQUEST, "pdopLimit"));
    QVERIFY(link.sent().isEmpty());
    QVERIFY(melvox_test::waitFor([&]() { return link.sent().size() == 1; }));
}

void tst_faultFilter::garblesAMap()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    filter.setFault("ppsConfig", FAULT_GARBLE, 1.0);
    for (int i = 0; i < 20; ++i)
        filter.send(message_t(message_t::COMMAND, "ppsConfig", ppsConfig()));
    int shortened = 0;
    for (message_t const& message : link.messages())
    {
        QCOMPARE(message.group, QString("ppsConfig"));
        QVERIFY(message.value.toMap() != ppsConfig());
        if (message.value.toMap().size() < ppsConfig().size())
            ++shortened;
    }
    QVERIFY(shortened > 0 && shortened < 20);
}

void tst_faultFilter::garblesAListAndANumber()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    filter.setFault(QString(), FAULT_GARBLE, 1.0);
    QVariantList list;
    list << 1 << 2;
    filter.send(message_t(message_t::COMMAND, "list", list));
    filter.send(message_t(message_t::COMMAND, "pdopLimit", 5.0));
    filter.send(message_t(message_t::REQUEST, "pdopLimit"));
    QCOMPARE(link.messages().at(0).value.toList().size(), 2);
    QVERIFY(link.messages().at(0).value.toList() != list);
    QCOMPARE(link.messages().at(1).value.userType(), int(QMetaType::QString));
    QVERIFY(link.messages().at(2).value.isValid());
}

void tst_faultFilter::concernsOnlyItsGroup()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    filter.setFault("ppsConfig", FAULT_DROP, 1.0);
    filter.send(message_t(message_t::REQUEST, "ppsConfig"));
    filter.send(message_t(message_t::REQUEST, "pdopLimit"));
    QCOMPARE(link.requests(), QStringList() << "pdopLimit");
}

void tst_faultFilter::concernsOnlyItsDirection_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QStringList>("toReceiver");
    QTest::addColumn<QStringList>("toDisplay");
    QTest::newRow("both ways") << int(FAULT_BOTH_WAYS) << QStringList() << QStringList();
    QTest::newRow("to the receiver") << int(FAULT_TO_RECEIVER) << QStringList()
                                     << (QStringList() << "pdopLimit 5"
                                                       << "badBaud");
    QTest::newRow("to the display") << int(FAULT_TO_DISPLAY)
                                    << (QStringList() << "request pdopLimit"
                                                      << "command pdopLimit 5")
                                    << QStringList();
}

void tst_faultFilter::concernsOnlyItsDirection()
{
    QFETCH(int, direction);
    QFETCH(QStringList, toReceiver);
    QFETCH(QStringList, toDisplay);
    scriptedLink_t link;
    faultFilter_t filter(&link);
    listener_t display(filter);
    filter.setFault(QString(), FAULT_DROP, 1.0, faultDirection_t(direction));
    filter.send(message_t(message_t::REQUEST, "pdopLimit"));
    filter.send(message_t(message_t::COMMAND, "pdopLimit", 5));
    link.report("pdopLimit", 5);
    link.event("badBaud");
    QCOMPARE(link.sent(), toReceiver);
    QCOMPARE(display.texts, toDisplay);
}

void tst_faultFilter::replacesAndTakesAwayAFault()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    filter.setFault("pdopLimit", FAULT_DROP, 0.25);
    filter.setFault("pdopLimit", FAULT_DROP, 1.0);
    QCOMPARE(filter.faults().size(), 1);
    QCOMPARE(filter.faults().first().probability, 1.0);
    filter.setFault("pdopLimit", FAULT_DROP, 0.0, FAULT_TO_DISPLAY);
    QCOMPARE(filter.faults().size(), 1);
    filter.setFault("pdopLimit", FAULT_DROP, 0.0);
    QVERIFY(filter.faults().isEmpty());
    filter.send(message_t(message_t::REQUEST, "pdopLimit"));
    QCOMPARE(link.requests(), QStringList() << "pdopLimit");
}

void tst_faultFilter::holdsProbabilitiesWithinTheirRange_data()
{
    QTest::addColumn<double>("given");
    QTest::addColumn<double>("held");
    QTest::newRow("negative") << -0.5 << 0.0;
    QTest::newRow("none") << 0.0 << 0.0;
    QTest::newRow("half") << 0.5 << 0.5;
    QTest::newRow("always") << 1.0 << 1.0;
    QTest::newRow("more") << 1.5 << 1.0;
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << 0.0;
}

void tst_faultFilter::holdsProbabilitiesWithinTheirRange()
{
    QFETCH(double, given);
    QFETCH(double, held);
    scriptedLink_t link;
    faultFilter_t filter(&link);
    filter.setFault("pdopLimit", FAULT_DROP, given);
    double probability = 0.0;
    if (!filter.faults().isEmpty())
        probability = filter.faults().first().probability;
    QCOMPARE(probability, held);
}

static QStringList survivors(unsigned int seed)
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    filter.setSeed(seed);
    filter.setFault(QString(), FAULT_DROP, 0.5);
    filter.setFault(QString(), FAULT_GARBLE, 0.3);
    filter.setFault(QString(), FAULT_DUPLICATE, 0.2);
    for (int i = 0; i < 200; ++i)
        filter.send(message_t(message_t::COMMAND, "ppsConfig", ppsConfig()));
    return link.sent();
}

void tst_faultFilter::strikesTheSameMessagesForTheSameSeed()
{
    QCOMPARE(survivors(7), survivors(7));
}

void tst_faultFilter::strikesOtherMessagesForAnotherSeed()
{
    QVERIFY(survivors(7) != survivors(8));
}

void tst_faultFilter::strikesAboutAsOftenAsItIsTold()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    filter.setFault("pdopLimit", FAULT_DROP, 0.25);
    for (int i = 0; i < 4000; ++i)
        filter.send(message_t(message_t::REQUEST, "pdopLimit"));
    QVERIFY2(qAbs(filter.strikes(FAULT_DROP) - 1000) < 150, qPrintable(QString::number(filter.strikes(FAULT_DROP))));
    QCOMPARE(link.sent().size(), 4000 - filter.strikes(FAULT_DROP));
}

void tst_faultFilter::letsHeldMessagesGoWhenTheFaultsAreCleared()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    filter.setDelay(100000);
    filter.setFault(QString(), FAULT_DELAY, 1.0);
    filter.send(message_t(message_t::REQUEST, "pdopLimit"));
    filter.send(message_t(message_t::REQUEST, "elevationMask"));
    QVERIFY(link.sent().isEmpty());
    filter.clearFaults();
    QCOMPARE(link.requests(), QStringList() << "pdopLimit"
                                            << "elevationMask");
    QVERIFY(filter.faults().isEmpty());
}

void tst_faultFilter::losesHeldMessagesWhenTheLinkCloses()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    listener_t display(filter);
    filter.setDelay(100000);
    filter.setFault(QString(), FAULT_DELAY, 1.0);
    link.report("pdopLimit", 5);
    link.setOpen(false);
    QVERIFY(!filter.isOpen());
    filter.send(message_t(message_t::REQUEST, "pdopLimit"));
    link.setOpen(true);
    filter.clearFaults();
    QVERIFY(display.texts.isEmpty());
    QVERIFY(link.sent().isEmpty());
    QCOMPARE(display.changes, QList<bool>() << false << true);
}

void tst_faultFilter::isClosedOnceTheLinkIsGone()
{
    QScopedPointer<scriptedLink_t> link(new scriptedLink_t);
    faultFilter_t filter(link.data());
    link.reset();
    QVERIFY(!filter.isOpen());
    filter.send(message_t(message_t::REQUEST, "pdopLimit"));
}

void tst_faultFilter::tellsOfEachStrike()
{
    scriptedLink_t link;
    faultFilter_t filter(&link);
    listener_t display(filter);
    filter.setFault("pdopLimit", FAULT_GARBLE, 1.0);
    filter.setFault("pdopLimit", FAULT_DUPLICATE, 1.0);
    link.report("pdopLimit", 5);
    QCOMPARE(display.strikes.size(), 2);
    QVERIFY(display.strikes.contains("garble pdopLimit 5"));
    QVERIFY(display.strikes.contains("duplicate pdopLimit 5"));
}

QTEST_MAIN(tst_faultFilter)
#include "tst_faultFilter.moc"
