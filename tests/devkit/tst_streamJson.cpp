#include "link/jsonLine.h"

#include "support/test.h"

#include <cmath>

using namespace melvox_link;

class tst_streamJson : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void writesOneLine();
    void bringsEveryValueBack_data();
    void bringsEveryValueBack();
    void readsALineOfAnotherProgram();
    void writesBytesInAnObjectOfTheirOwn();
    void losesNumbersThatAreNone();
    void saysWhyALineIsNoMessage_data();
    void saysWhyALineIsNoMessage();
};

void tst_streamJson::writesOneLine()
{
    QByteArray const line = toLine({message_t::COMMAND, "elevationMask", 12.5});
    QCOMPARE(line, QByteArray("{\"group\":\"elevationMask\",\"kind\":\"command\",\"value\":12.5}\n"));
    QCOMPARE(toLine({message_t::COMMAND, "baseName", "a\nb"}).count('\n'), 1);
}

void tst_streamJson::bringsEveryValueBack_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("true") << QVariant(true);
    QTest::newRow("number") << QVariant(0.1);
    QTest::newRow("third") << QVariant(1.0 / 3.0);
    QTest::newRow("whole number") << QVariant(-7);
    QTest::newRow("address") << QVariant(4294967295u);
    QTest::newRow("large") << QVariant(1e300);
    QTest::newRow("text") << QVariant(QString::fromUtf8("N\xc3\xb6rdliches Feld\n\"1\""));
    QTest::newRow("empty text") << QVariant(QString(""));
    QTest::newRow("bytes") << QVariant(QByteArray("\0\xff{\n", 4));
    QTest::newRow("no bytes") << QVariant(QByteArray(""));
    QTest::newRow("map") << QVariant(QVariantMap{{"mode", 1}, {"name", "x"}, {"data", QByteArray("abc")}});
    QTest::newRow("list") << QVariant(QVariantList{QVariantMap{{"use", false}}, 2, "x"});
    QTest::newRow("empty list") << QVariant(QVariantList());
}

void tst_streamJson::bringsEveryValueBack()
{
    QFETCH(QVariant, value);
    message_t back;
    QString reason;
    QVERIFY2(fromLine(toLine({message_t::EVENT, "group", value}), back, reason), qPrintable(reason));
    QCOMPARE(int(back.kind), int(message_t::EVENT));
    QCOMPARE(back.group, QString("group"));
    QCOMPARE(back.value, value);
    QCOMPARE(back.value.userType(), value.userType());
}

void tst_streamJson::readsALineOfAnotherProgram()
{
    message_t message;
    QString reason;
    QVERIFY(fromLine(" { \"later\" : 1, \"kind\" : \"report\", \"group\" : \"pdopLimit\", \"value\" : 6 } \r\n",
                     message, reason));
    QCOMPARE(int(message.kind), int(message_t::REPORT));
    QCOMPARE(message.group, QString("pdopLimit"));
    QCOMPARE(message.value, QVariant(6));
}

void tst_streamJson::writesBytesInAnObjectOfTheirOwn()
{
    QCOMPARE(toLine({message_t::COMMAND, "uploadData", QByteArray("abc")}),
             QByteArray("{\"group\":\"uploadData\",\"kind\":\"command\",\"value\":{\"base64\":\"YWJj\"}}\n"));
}

void tst_streamJson::losesNumbersThatAreNone()
{
    message_t message;
    QString reason;
    QVERIFY(fromLine(toLine({message_t::REPORT, "pdopLimit", std::nan("")}), message, reason));
    QVERIFY(!message.value.isValid());
}

void tst_streamJson::saysWhyALineIsNoMessage_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no JSON") << QByteArray("elevationMask 12.5") << "";
    QTest::newRow("half a line") << QByteArray("{\"kind\":\"report\",\"group\":\"pd") << "";
    QTest::newRow("no UTF-8") << QByteArray("{\"kind\":\"report\",\"group\":\"\xff\xfe\"}") << "";
    QTest::newRow("a list") << QByteArray("[1]") << "the kind is unknown";
    QTest::newRow("no kind") << QByteArray("{\"group\":\"pdopLimit\"}") << "the kind is unknown";
    QTest::newRow("another kind") << QByteArray("{\"kind\":\"wish\",\"group\":\"pdopLimit\"}") << "the kind is unknown";
    QTest::newRow("no group") << QByteArray("{\"kind\":\"report\"}") << "the group is missing";
    QTest::newRow("group no text") << QByteArray("{\"kind\":\"report\",\"group\":7}") << "the group is missing";
    QTest::newRow("damaged bytes") << QByteArray(
                                          "{\"kind\":\"report\",\"group\":\"x\",\"value\":{\"base64\":\"Y*Jj\"}}")
                                   << "the bytes are no base64";
    QTest::newRow("damaged bytes deep down")
        << QByteArray("{\"kind\":\"report\",\"group\":\"x\",\"value\":[{\"data\":{\"base64\":7}}]}")
        << "the bytes are no base64";
}

void tst_streamJson::saysWhyALineIsNoMessage()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, reason);
    message_t message(message_t::COMMAND, "untouched", 5);
    QString why;
    QVERIFY(!fromLine(line, message, why));
    QVERIFY(!why.isEmpty());
    if (!reason.isEmpty())
        QCOMPARE(why, reason);
    QCOMPARE(toText(message), QString("untouched 5"));
}

QTEST_MAIN(tst_streamJson)
#include "tst_streamJson.moc"
