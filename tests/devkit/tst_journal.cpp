#include "link/journal.h"
#include "link/journalCheck.h"
#include "link/journalWriter.h"
#include "link/linkTap.h"
#include "link/replayLink.h"
#include "link/scriptedLink.h"
#include "link/secrets.h"

#include "linkListener.h"
#include "support/folder.h"
#include "support/test.h"

using namespace melvox_link;
using melvox_test::folder_t;

namespace
{

QByteArray const HEADER = "{\"journal\":\"melvox\",\"version\":1}\n";

/** A journal that is being written, of a receiver that the test plays. */
struct written_t
{
    explicit written_t(qint64 limit = journalWriter_t::LIMIT) : tap(&link), writer(std::make_unique<journalWriter_t>())
    {
        QString reason;
        if (!writer->open(folder.path("a.jsonl"), reason, limit))
            qFatal("%s", qPrintable(reason));
        writer->begin({{"size", "800x480"}}, &tap);
    }

    QByteArray bytes() const { return folder.read("a.jsonl"); }

    folder_t folder;
    scriptedLink_t link;
    linkTap_t tap;
    std::unique_ptr<journalWriter_t> writer;
};

/** What a journal of these lines, behind a header, is. */
struct read_t
{
    explicit read_t(QByteArray const& bytes)
    {
        isGood = readJournal(folder.write("b.jsonl", bytes), journal, fault);
        fault.remove(folder.path() + "/");
        journal.note.remove(folder.path() + "/");
    }

    folder_t folder;
    journal_t journal;
    QString fault;
    bool isGood;
};

QStringList textsOf(journal_t const& journal)
{
    QStringList texts;
    for (journalEntry_t const& entry : journal.entries)
    {
        if (entry.kind == journalEntry_t::SENT || entry.kind == journalEntry_t::RECEIVED)
            texts << kindName(entry.message().kind) + " " + toText(entry.message());
    }
    return texts;
}

QByteArray line(int at, char const* kind, char const* group, char const* value = nullptr)
{
    QByteArray text = "{\"at\":" + QByteArray::number(at) + ",\"kind\":\"" + kind + "\",\"group\":\"" + group + "\"";
    if (value)
        text += QByteArray(",\"value\":") + value;
    return text + "}\n";
}

/** A journal of these lines, played. */
struct played_t
{
    explicit played_t(QByteArray const& lines, double speed = 0.0)
        : read(HEADER + "{\"at\":0,\"link\":\"open\"}\n" + lines), link(std::make_shared<journal_t>(read.journal)),
          listener(link)
    {
        link.setSpeed(speed);
        QObject::connect(&link, &replayLink_t::ended, [this]() { isOver = true; });
        if (!read.isGood)
            qFatal("%s", qPrintable(read.fault));
    }

    read_t read;
    replayLink_t link;
    melvox_test::linkListener_t listener;
    bool isOver = false;
};

QStringList differencesFrom(QByteArray const& lines, QList<message_t> const& sent)
{
    read_t const read(HEADER + lines);
    QStringList found = differences(read.journal, sent);
    return found.replaceInStrings(read.folder.path() + "/", "");
}

} // namespace

/** The journal as a file, and the receiver that is played from it. */
class tst_journal : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void readsBackWhatPassedInBothDirections();
    void hasEveryLineInTheFileAtOnce();
    void tellsHowTheLinkWent();
    void neverWritesASecret_data();
    void neverWritesASecret();
    void writesOfBytesOnlyHowManyAndTheirHash();
    void stopsAtItsLimitAndSaysSo();
    void tellsOnceThatTheDiskIsFull();
    void refusesToWriteOverAnotherFile();
    void refusesAFileThatCannotBeMade();
    void passesOverALastLineThatWasCutOff_data();
    void passesOverALastLineThatWasCutOff();
    void takesALastLineThatLacksOnlyItsEnd();
    void namesFileLineAndReasonOfAnError_data();
    void namesFileLineAndReasonOfAnError();
    void namesAFileThatIsNotThere();
    void playsWhatTheReceiverTold();
    void playsAtTheTimesOfTheJournal();
    void playsOpeningAndClosing();
    void givesBytesTheirSizeBack();
    void hasTheLineOfTheJournal();
    void waitsForTheCommandThatAReportAnswers();
    void doesNotWaitForeverForACommand();
    void findsNoDifferenceInTheSame();
    void findsWhatWasSentOtherwise_data();
    void findsWhatWasSentOtherwise();
    void knowsNotWhatFollowsAJournalThatWasCutOff();
};

void tst_journal::readsBackWhatPassedInBothDirections()
{
    written_t written;
    written.tap.send({message_t::REQUEST, "pdopLimit"});
    written.link.report("pdopLimit", 12.5);
    written.tap.send({message_t::COMMAND, "baseName", QString::fromUtf8("N\xc3\xb6rd\n1")});
    written.link.event("badBaud");
    written.writer.reset();
    read_t const read(written.bytes());
    QVERIFY2(read.isGood, qPrintable(read.fault));
    QCOMPARE(textsOf(read.journal), QStringList()
                                        << "request pdopLimit"
                                        << "report pdopLimit 12.5"
                                        << QString::fromUtf8("command baseName N\xc3\xb6rd\\n1") << "event badBaud");
    QCOMPARE(read.journal.header.value("size").toString(), QString("800x480"));
    QVERIFY(read.journal.isWhole);
    QVERIFY(read.journal.note.isEmpty());
}

void tst_journal::hasEveryLineInTheFileAtOnce()
{
    written_t written;
    for (int i = 0; i < 3; ++i)
    {
        written.link.report("pdopLimit", i);
        QVERIFY(written.bytes().endsWith("\"kind\":\"report\",\"value\":" + QByteArray::number(i) + "}\n"));
    }
    // As after a crash.
    read_t const read(written.bytes());
    QVERIFY2(read.isGood, qPrintable(read.fault));
    QVERIFY(!read.journal.isWhole);
}

void tst_journal::tellsHowTheLinkWent()
{
    written_t written;
    written.link.setOpen(false);
    written.link.setOpen(true);
    read_t const read(written.bytes());
    QList<journalEntry_t::kind_t> kinds;
    for (journalEntry_t const& entry : read.journal.entries)
        kinds << entry.kind;
    QVERIFY((kinds ==
             QList<journalEntry_t::kind_t>{journalEntry_t::OPENED, journalEntry_t::CLOSED, journalEntry_t::OPENED}));
}

void tst_journal::neverWritesASecret_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("field") << "wifiConfig" << QVariant(QVariantMap{{"name", "farm"}, {"passkey", "hush1234"}});
    QTest::newRow("group") << "wifiPasskey" << QVariant("hush1234");
    QTest::newRow("whole group") << "accessPassword" << QVariant(QVariantMap{{"text", "hush1234"}});
    QTest::newRow("deep inside") << "networks"
                                 << QVariant(QVariantList{QVariantMap{{"PSK", QVariantList{"hush1234"}}}});
    QTest::newRow("bytes") << "fileBlock" << QVariant(QVariantMap{{"data", QByteArray("key=hush1234")}});
}

void tst_journal::neverWritesASecret()
{
    QFETCH(QString, group);
    QFETCH(QVariant, value);
    written_t written;
    written.tap.send({message_t::COMMAND, group, value});
    written.link.report(group, value);
    QCOMPARE(written.bytes().count("\"group\":\"" + group.toUtf8() + "\""), 2);
    for (QByteArray const& secret :
         {QByteArray("hush1234"), QByteArray("hush1234").toBase64().left(10), QByteArray("key=hush1234").toBase64()})
        QVERIFY2(!written.bytes().contains(secret), written.bytes().constData());
}

void tst_journal::writesOfBytesOnlyHowManyAndTheirHash()
{
    written_t written;
    written.tap.send({message_t::COMMAND, "uploadData", QByteArray("abc")});
    QVERIFY(written.bytes().contains(
        "\"value\":{\"bytes\":3,\"sha256\":\"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad\"}"));
}

void tst_journal::stopsAtItsLimitAndSaysSo()
{
    qint64 const limit = 2000;
    written_t written(limit);
    melvox_test::expectWarning("ends here: it has reached its limit of 2000 bytes");
    for (int i = 0; i < 100; ++i)
        written.link.report("pdopLimit", i);
    QVERIFY(!written.writer->isWriting());
    written.writer.reset();
    QVERIFY(written.bytes().size() <= limit);
    QVERIFY(written.bytes().size() > limit - 200);
    QVERIFY2(written.bytes().endsWith("\"end\":\"full\"}\n"), written.bytes().constData());
    read_t const read(written.bytes());
    QVERIFY2(read.isGood, qPrintable(read.fault));
    QVERIFY(!read.journal.isWhole);
}

void tst_journal::tellsOnceThatTheDiskIsFull()
{
    if (!QFile::exists("/dev/full"))
        QSKIP("this system has no disk that is always full");
    scriptedLink_t link;
    linkTap_t tap(&link);
    journalWriter_t writer;
    QString reason;
    QVERIFY2(writer.open("/dev/full", reason), qPrintable(reason));
    melvox_test::expectWarning("The journal /dev/full ends here: No space left on device.");
    writer.begin({}, &tap);
    melvox_test::linkListener_t listener(tap);
    link.report("pdopLimit", 1);
    link.report("pdopLimit", 2);
    tap.send({message_t::REQUEST, "pdopLimit"});
    QVERIFY(!writer.isWriting());
    QCOMPARE(listener.texts.size(), 2);
    QCOMPARE(link.sent().size(), 1);
}

void tst_journal::refusesToWriteOverAnotherFile()
{
    folder_t folder;
    QString const file = folder.write("a.jsonl", "of a crash");
    journalWriter_t writer;
    QString reason;
    QVERIFY(!writer.open(file, reason));
    QCOMPARE(reason, QString("there is a file \"%1\" already; name another one, or move it away").arg(file));
    QCOMPARE(folder.read("a.jsonl"), QByteArray("of a crash"));
    QVERIFY(writer.open(folder.write("empty.jsonl"), reason));
}

void tst_journal::refusesAFileThatCannotBeMade()
{
    folder_t folder;
    journalWriter_t writer;
    QString reason;
    QVERIFY(!writer.open(folder.path("none/a.jsonl"), reason));
    QVERIFY2(reason.endsWith("cannot be written: No such file or directory"), qPrintable(reason));
    QVERIFY(!writer.open(folder.path(), reason));
}

void tst_journal::passesOverALastLineThatWasCutOff_data()
{
    QTest::addColumn<QByteArray>("rest");
    QByteArray const whole = line(7, "report", "pdopLimit", "12.5").trimmed();
    for (int size : {1, 6, 20, int(whole.size()) - 1})
        QTest::newRow(qPrintable(QString::number(size))) << whole.left(size);
    QTest::newRow("within a letter") << QByteArray("{\"at\":7,\"kind\":\"report\",\"group\":\"N\xc3");
}

void tst_journal::passesOverALastLineThatWasCutOff()
{
    QFETCH(QByteArray, rest);
    read_t const read(HEADER + line(5, "report", "pdopLimit", "2") + rest);
    QVERIFY2(read.isGood, qPrintable(read.fault));
    QCOMPARE(read.journal.note, QString("b.jsonl:3: the last line was cut off and is passed over"));
    QCOMPARE(textsOf(read.journal), QStringList("report pdopLimit 2"));
    QVERIFY(!read.journal.isWhole);
}

void tst_journal::takesALastLineThatLacksOnlyItsEnd()
{
    read_t const read(HEADER + line(5, "report", "pdopLimit", "2").trimmed());
    QVERIFY2(read.isGood, qPrintable(read.fault));
    QVERIFY(read.journal.note.isEmpty());
    QCOMPARE(textsOf(read.journal), QStringList("report pdopLimit 2"));
}

void tst_journal::namesFileLineAndReasonOfAnError_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("fault");
    QByteArray const good = line(5, "report", "pdopLimit", "2");
    QTest::newRow("empty") << QByteArray() << "b.jsonl:1: the file is empty";
    QTest::newRow("other file") << QByteArray("hello\n") << "b.jsonl:1: the line is no JSON";
    QTest::newRow("other JSON") << QByteArray("{\"version\":1}\n") << "b.jsonl:1: this is no journal";
    QTest::newRow("header cut off") << QByteArray("{\"journal\":\"mel") << "b.jsonl:1: the line is no JSON";
    QTest::newRow("later version") << QByteArray("{\"journal\":\"melvox\",\"version\":2}\n")
                                   << "b.jsonl:1: the journal has the format version 2; this program reads version 1";
    QTest::newRow("no version") << QByteArray("{\"journal\":\"melvox\"}\n")
                                << "b.jsonl:1: the journal has the format version";
    QTest::newRow("damaged within") << HEADER + good + "{\"at\":6,\"ki\n" + good << "b.jsonl:3: the line is no JSON";
    QTest::newRow("damaged at the end") << HEADER + good + "{\"at\":6,\"ki\n"
                                        << "b.jsonl:3: the line is no JSON";
    QTest::newRow("list") << HEADER + "[1]\n" + good << "b.jsonl:2: the line is no JSON object";
    QTest::newRow("empty line") << HEADER + "\n" + good << "b.jsonl:2: the line is no JSON";
    QTest::newRow("no time") << HEADER + "{\"link\":\"open\"}\n"
                             << "b.jsonl:2: \"at\" must be the time in milliseconds";
    QTest::newRow("time before") << HEADER + "{\"at\":-1,\"link\":\"open\"}\n"
                                 << "b.jsonl:2: \"at\" must be";
    QTest::newRow("time a text") << HEADER + "{\"at\":\"1\",\"link\":\"open\"}\n"
                                 << "b.jsonl:2: \"at\" must be";
    QTest::newRow("time backwards") << HEADER + good + line(4, "event", "badBaud")
                                    << "b.jsonl:3: the time runs backwards, from 5 to 4 ms";
    QTest::newRow("kind") << HEADER + line(1, "answer", "pdopLimit") << "b.jsonl:2: the kind is unknown";
    QTest::newRow("group") << HEADER + "{\"at\":1,\"kind\":\"report\"}\n"
                           << "b.jsonl:2: the group is missing";
    QTest::newRow("link") << HEADER + "{\"at\":1,\"link\":\"up\"}\n"
                          << "b.jsonl:2: \"link\" must be \"open\" or \"closed\"";
    QTest::newRow("nothing") << HEADER + "{\"at\":1}\n"
                             << "b.jsonl:2: the line tells of no message";
    QTest::newRow("after the end") << HEADER + "{\"at\":1,\"end\":\"closed\"}\n" + good
                                   << "b.jsonl:3: the journal has ended before this line";
}

void tst_journal::namesFileLineAndReasonOfAnError()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, fault);
    read_t const read(bytes);
    QVERIFY(!read.isGood);
    QVERIFY2(read.fault.startsWith(fault), qPrintable(read.fault));
}

void tst_journal::namesAFileThatIsNotThere()
{
    journal_t journal;
    QString fault;
    QVERIFY(!readJournal("/there/is/none", journal, fault));
    QCOMPARE(fault, QString("/there/is/none: the journal cannot be read: No such file or directory"));
}

void tst_journal::playsWhatTheReceiverTold()
{
    played_t played(line(1, "report", "pdopLimit", "2") + line(2, "request", "pdopLimit") +
                    line(3, "event", "badBaud") + line(5000000, "report", "wifi", "{\"passkey\":\"(secret)\"}"));
    QVERIFY(!played.link.isOpen());
    played.link.start();
    QVERIFY(played.listener.texts.isEmpty());
    QVERIFY(melvox_test::waitFor([&]() { return played.isOver; }));
    QCOMPARE(played.listener.texts, QStringList() << "report pdopLimit 2"
                                                  << "event badBaud"
                                                  << "report wifi passkey=(secret)");
    QVERIFY(played.link.isOpen());
    QCOMPARE(played.link.description(), QString("journal b.jsonl"));
}

void tst_journal::playsAtTheTimesOfTheJournal()
{
    played_t played(line(1, "report", "pdopLimit", "2") + line(400, "report", "pdopLimit", "3"), 2.0);
    QElapsedTimer clock;
    clock.start();
    played.link.start();
    QVERIFY(melvox_test::waitFor([&]() { return played.listener.texts.size() == 1; }));
    QVERIFY(melvox_test::waitFor([&]() { return played.listener.texts.size() == 2; }));
    QVERIFY2(clock.elapsed() >= 195, qPrintable(QString::number(clock.elapsed())));
}

void tst_journal::playsOpeningAndClosing()
{
    played_t played("{\"at\":1,\"link\":\"closed\"}\n" + line(2, "report", "pdopLimit", "2") +
                    "{\"at\":3,\"link\":\"open\"}\n");
    played.link.start();
    QVERIFY(melvox_test::waitFor([&]() { return played.isOver; }));
    QCOMPARE(played.listener.changes, QList<bool>() << true << false << true);
    QVERIFY(played.listener.texts.isEmpty());
}

void tst_journal::givesBytesTheirSizeBack()
{
    read_t const read(HEADER +
                      line(1, "report", "profileDump", "{\"data\":{\"bytes\":3,\"sha256\":\"00\"},\"success\":true}"));
    message_t const message = withBytes(read.journal.entries.at(0).message());
    QCOMPARE(message.value.toMap().value("data").toByteArray(), QByteArray("\0\0\0", 3));
    QCOMPARE(message.value.toMap().value("success"), QVariant(true));
    read_t const huge(HEADER + line(1, "report", "x", "{\"bytes\":2000000000,\"sha256\":\"00\"}"));
    QCOMPARE(withBytes(huge.journal.entries.at(0).message()).value.toByteArray().size(), 1024 * 1024);
}

void tst_journal::hasTheLineOfTheJournal()
{
    scriptedLink_t serial;
    serial.makeSerial({9600, 7, 'E', 2});
    linkTap_t tap(&serial);
    auto journal = std::make_shared<journal_t>();
    line_t line = line_t();
    QVERIFY(!replayLink_t(journal).line(line));
    journal->header["line"] = QVariantMap{{"baud", 9600}, {"dataBits", 7}, {"parity", "E"}, {"stopBits", 2}};
    replayLink_t link(journal);
    QVERIFY(link.line(line));
    QCOMPARE(lineText(line), QString("9600 7E2"));
    link.setLine({115200, 8, 'N', 1});
    QVERIFY(link.line(line));
    QCOMPARE(lineText(line), QString("115200 8N1"));
}

void tst_journal::waitsForTheCommandThatAReportAnswers()
{
    played_t played(line(1, "report", "pdopLimit", "2") + line(2, "command", "pdopLimit", "9") +
                    line(3, "report", "pdopLimit", "9"));
    played.link.start();
    QVERIFY(melvox_test::waitFor([&]() { return played.listener.texts.size() == 1; }));
    for (int turn = 0; turn < 10; ++turn)
        melvox_test::settle();
    played.link.send({message_t::REQUEST, "pdopLimit"});
    melvox_test::settle();
    QCOMPARE(played.listener.texts.size(), 1);
    played.link.send({message_t::COMMAND, "pdopLimit", 9});
    QVERIFY(melvox_test::waitFor([&]() { return played.isOver; }, 1000));
    QCOMPARE(played.listener.texts.size(), 2);
    QCOMPARE(played.link.sent().size(), 2);
}

void tst_journal::doesNotWaitForeverForACommand()
{
    played_t played(line(1, "command", "pdopLimit", "9") + line(2, "command", "pdopLimit", "8") +
                    line(3, "report", "pdopLimit", "9"));
    played.link.start();
    QVERIFY(melvox_test::waitFor([&]() { return played.isOver; }));
    QCOMPARE(played.listener.texts, QStringList("report pdopLimit 9"));
}

void tst_journal::findsNoDifferenceInTheSame()
{
    QByteArray const lines = line(1, "request", "a") + line(2, "request", "b") + line(3, "request", "a") +
                             line(4, "command", "x", "{\"rate\":10.0,\"text\":\"y\"}") +
                             line(5, "command", "dumpProfile", "\"/media/usb/profile_2026\"") +
                             line(6, "command", "uploadData",
                                  "{\"bytes\":3,\"sha256\":"
                                  "\"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad\"}") +
                             "{\"at\":7,\"end\":\"closed\"}\n";
    QList<message_t> const sent = {{message_t::REQUEST, "b"},
                                   {message_t::COMMAND, "x", QVariantMap{{"text", "y"}, {"rate", 10}}},
                                   {message_t::REQUEST, "a"},
                                   {message_t::COMMAND, "dumpProfile", "/tmp/profile_2027"},
                                   {message_t::COMMAND, "uploadData", QByteArray("abc")}};
    QCOMPARE(differencesFrom(lines, sent), QStringList());
}

void tst_journal::findsWhatWasSentOtherwise_data()
{
    QTest::addColumn<QByteArray>("commands");
    QTest::addColumn<QByteArray>("requests");
    QTest::addColumn<QString>("difference");
    QTest::newRow("value") << QByteArray("x 1,y 3") << QByteArray("a")
                           << "b.jsonl:4: the command \"y 2\" was \"y 3\" this time";
    QTest::newRow("order") << QByteArray("y 2,x 1") << QByteArray("a")
                           << "b.jsonl:3: the command \"x 1\" was \"y 2\" this time";
    QTest::newRow("missing") << QByteArray("x 1") << QByteArray("a") << "b.jsonl:4: the command \"y 2\" was not sent";
    QTest::newRow("none") << QByteArray() << QByteArray("a") << "b.jsonl:3: the command \"x 1\" was not sent";
    QTest::newRow("one more") << QByteArray("x 1,y 2,y 2") << QByteArray("a")
                              << "b.jsonl:4: after this line the command \"y 2\" was sent, which the journal does not "
                                 "have";
    QTest::newRow("not asked") << QByteArray("x 1,y 2") << QByteArray() << "b.jsonl:2: nobody asked for a";
    QTest::newRow("asked for more") << QByteArray("x 1,y 2") << QByteArray("a,c")
                                    << "b.jsonl:1: the pages asked for what the journal does not have: c";
}

void tst_journal::findsWhatWasSentOtherwise()
{
    QFETCH(QByteArray, commands);
    QFETCH(QByteArray, requests);
    QFETCH(QString, difference);
    QList<message_t> sent;
    for (QString const& text : QString(commands).split(',', Qt::SkipEmptyParts))
        sent << message_t(message_t::COMMAND, text.section(' ', 0, 0), text.section(' ', 1).toInt());
    for (QString const& text : QString(requests).split(',', Qt::SkipEmptyParts))
        sent << message_t(message_t::REQUEST, text);
    QByteArray const lines = line(1, "request", "a") + line(2, "command", "x", "1") + line(3, "command", "y", "2") +
                             "{\"at\":4,\"end\":\"closed\"}\n";
    QCOMPARE(differencesFrom(lines, sent), QStringList(difference));
}

void tst_journal::knowsNotWhatFollowsAJournalThatWasCutOff()
{
    QList<message_t> const sent = {
        {message_t::COMMAND, "x", 1}, {message_t::COMMAND, "y", 2}, {message_t::REQUEST, "a"}};
    QCOMPARE(differencesFrom(line(2, "command", "x", "1"), sent), QStringList());
    QCOMPARE(differencesFrom(line(2, "command", "x", "1") + "{\"at\":3,\"end\":\"full\"}\n", sent), QStringList());
}

QTEST_MAIN(tst_journal)
#include "tst_journal.moc"
