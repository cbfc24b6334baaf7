#include "link/message.h"

#include "support/test.h"

using melvox_link::message_t;

class tst_linkMessage : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void namesEachKindBothWays_data();
    void namesEachKindBothWays();
    void refusesAnUnknownKindName();
    void writesValuesAsShortTexts_data();
    void writesValuesAsShortTexts();
};

void tst_linkMessage::namesEachKindBothWays_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");
    QTest::newRow("request") << int(message_t::REQUEST) << "request";
    QTest::newRow("command") << int(message_t::COMMAND) << "command";
    QTest::newRow("report") << int(message_t::REPORT) << "report";
    QTest::newRow("event") << int(message_t::EVENT) << "event";
}

void tst_linkMessage::namesEachKindBothWays()
{
    QFETCH(int, kind);
    QFETCH(QString, name);
    QCOMPARE(melvox_link::kindName(message_t::kind_t(kind)), name);
    message_t::kind_t found = kind == message_t::EVENT ? message_t::REQUEST : message_t::EVENT;
    QVERIFY(melvox_link::kindFromName(name, found));
    QCOMPARE(int(found), kind);
}

void tst_linkMessage::refusesAnUnknownKindName()
{
    message_t::kind_t kind = message_t::COMMAND;
    QVERIFY(!melvox_link::kindFromName("Report", kind));
    QVERIFY(!melvox_link::kindFromName("", kind));
    QCOMPARE(int(kind), int(message_t::COMMAND));
}

static QVariantMap meas(char const* name, bool use)
{
    QVariantMap map;
    map["use"] = use;
    map["name"] = QString(name);
    return map;
}

void tst_linkMessage::writesValuesAsShortTexts_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");

    QVariantMap ppp;
    ppp["protocol"] = 0;
    ppp["mode"] = 1;
    QVariantList uses;
    uses << meas("GPS", true) << meas("GLO", false);
    QVariantMap update;
    update["combinedPath"] = QString();
    update["components"] = uses;
    QVariantList numbers;
    numbers << 1 << 2.5;

    QTest::newRow("nothing") << "warmRestart" << QVariant() << "warmRestart";
    QTest::newRow("double") << "elevationMask" << QVariant(12.5) << "elevationMask 12.5";
    QTest::newRow("whole double") << "elevationMask" << QVariant(10.0) << "elevationMask 10";
    QTest::newRow("tenth") << "output" << QVariant(0.1) << "output 0.1";
    QTest::newRow("third") << "output" << QVariant(1.0 / 3.0) << "output 0.3333333333333333";
    QTest::newRow("large") << "ppsConfig" << QVariant(1600000.0) << "ppsConfig 1600000";
    QTest::newRow("float") << "antennaAlignment" << QVariant(359.99f) << "antennaAlignment 359.99";
    QTest::newRow("int") << "pdopLimit" << QVariant(-7) << "pdopLimit -7";
    QTest::newRow("address") << "remote" << QVariant(3232235527u) << "remote 3232235527";
    QTest::newRow("true") << "webControl" << QVariant(true) << "webControl true";
    QTest::newRow("false") << "webControl" << QVariant(false) << "webControl false";
    QTest::newRow("text") << "baseName" << QVariant(QString("North field")) << "baseName North field";
    QTest::newRow("empty text") << "baseName" << QVariant(QString("")) << "baseName \"\"";
    QTest::newRow("two lines") << "baseName" << QVariant(QString("a\nb")) << "baseName a\\nb";
    QTest::newRow("bytes") << "uploadData" << QVariant(QByteArray(1024, 'x')) << "uploadData <1024 bytes>";
    QTest::newRow("map by key") << "ntripPPP" << QVariant(ppp) << "ntripPPP mode=1 protocol=0";
    QTest::newRow("list of maps") << "measUse" << QVariant(uses) << "measUse [name=GPS use=true] [name=GLO use=false]";
    QTest::newRow("list of numbers") << "list" << QVariant(numbers) << "list [1] [2.5]";
    QTest::newRow("empty list") << "measUse" << QVariant(QVariantList()) << "measUse []";
    QTest::newRow("empty map") << "webControl" << QVariant(QVariantMap()) << "webControl []";
    QTest::newRow("list in map") << "startFirmwareUpdate" << QVariant(update)
                                 << "startFirmwareUpdate combinedPath=\"\" "
                                    "components=[[name=GPS use=true] [name=GLO use=false]]";
}

void tst_linkMessage::writesValuesAsShortTexts()
{
    QFETCH(QString, group);
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    QCOMPARE(melvox_link::toText(message_t(message_t::COMMAND, group, value)), text);
}

QTEST_MAIN(tst_linkMessage)
#include "tst_linkMessage.moc"
