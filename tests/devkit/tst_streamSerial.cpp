#include "link/linkFactory.h"
#include "link/ptyPort.h"
#include "link/serialLink.h"
#include "linkListener.h"

#include "support/test.h"

#include <QFile>
#include <QTemporaryDir>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

using namespace melvox_link;
using melvox_test::linkListener_t;
using melvox_test::waitFor;

class tst_streamSerial : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void carriesMessagesBothWays();
    void carriesBytesAsTheyAre();
    void opensWhileSomebodyHasTheOtherSide();
    void isRawForWhoeverOpensIt();
    void closesAtTheFirstErrorWhenTheOtherSideIsGone();
    void opensAgainWhenTheDeviceIsBack();
    void staysClosedWithoutADevice();
    void hasLineSettings();
    void changesItsLineOnceEverythingIsSent();
    void keepsItsLineSettingsWhenItOpensAgain();
    void describesItself();
    void makesLinksFromTheirDescriptions_data();
    void makesLinksFromTheirDescriptions();
    void saysWhatIsWrongWithADescription_data();
    void saysWhatIsWrongWithADescription();
};

void tst_streamSerial::carriesMessagesBothWays()
{
    ptyPort_t receiver;
    QVERIFY2(receiver.create(), qPrintable(receiver.errorText()));
    linkListener_t receiverListener(receiver);
    serialLink_t display(receiver.path());
    linkListener_t displayListener(display);
    display.start();
    QVERIFY2(display.isOpen(), qPrintable(display.errorText()));
    display.send({message_t::COMMAND, "pdopLimit", 5});
    QVERIFY(waitFor([&]() { return !receiverListener.texts.isEmpty(); }));
    QCOMPARE(receiverListener.texts, QStringList("command pdopLimit 5"));
    receiver.send({message_t::REPORT, "pdopLimit", 6});
    QVERIFY(waitFor([&]() { return !displayListener.texts.isEmpty(); }));
    QCOMPARE(displayListener.texts, QStringList("report pdopLimit 6"));
}

void tst_streamSerial::carriesBytesAsTheyAre()
{
    ptyPort_t receiver;
    QVERIFY(receiver.create());
    linkListener_t receiverListener(receiver);
    serialLink_t display(receiver.path());
    QVariant back;
    connect(&display, &link_t::received, this, [&](message_t const& message) { back = message.value; });
    display.start();
    QVERIFY(waitFor([&]() { return receiver.isOpen(); }));
    QByteArray bytes;
    for (int i = 0; i < 40000; ++i)
        bytes += char(i);
    receiver.send({message_t::REPORT, "profileDump", bytes});
    QVERIFY(waitFor([&]() { return back.isValid(); }));
    QCOMPARE(back.toByteArray(), bytes);
    display.send({message_t::COMMAND, "uploadData", bytes});
    QVERIFY(waitFor([&]() { return !receiverListener.texts.isEmpty(); }));
    QCOMPARE(receiverListener.texts, QStringList("command uploadData <40000 bytes>"));
    QCOMPARE(display.ignoredLines() + receiver.ignoredLines(), 0);
}

void tst_streamSerial::opensWhileSomebodyHasTheOtherSide()
{
    ptyPort_t receiver;
    QVERIFY(receiver.create());
    QVERIFY(!receiver.isOpen());
    linkListener_t listener(receiver);
    for (int round = 0; round < 2; ++round)
    {
        serialLink_t display(receiver.path());
        display.start();
        QVERIFY(waitFor([&]() { return receiver.isOpen(); }));
        display.stop();
        QVERIFY(waitFor([&]() { return !receiver.isOpen(); }));
    }
    QCOMPARE(listener.changes, (QList<bool>{true, false, true, false}));
}

void tst_streamSerial::isRawForWhoeverOpensIt()
{
    ptyPort_t receiver;
    QVERIFY(receiver.create());
    int const handle = ::open(QFile::encodeName(receiver.path()).constData(), O_RDWR | O_NOCTTY);
    QVERIFY(handle >= 0);
    QVERIFY(waitFor([&]() { return receiver.isOpen(); }));
    termios settings;
    int const result = ::tcgetattr(handle, &settings);
    ::close(handle);
    QCOMPARE(result, 0);
    QCOMPARE(int(settings.c_lflag & (ECHO | ICANON | ISIG)), 0);
    QCOMPARE(int(settings.c_oflag & OPOST), 0);
}

void tst_streamSerial::closesAtTheFirstErrorWhenTheOtherSideIsGone()
{
    QScopedPointer<ptyPort_t> receiver(new ptyPort_t);
    QVERIFY(receiver->create());
    serialLink_t display(receiver->path());
    display.setPauses(100000, 100000);
    linkListener_t listener(display);
    display.start();
    QVERIFY(waitFor([&]() { return receiver->isOpen(); }));
    receiver.reset();
    QVERIFY(waitFor([&]() { return !display.isOpen(); }));
    QVERIFY(!display.errorText().isEmpty());
    QCOMPARE(listener.changes, (QList<bool>{true, false}));
}

/** Puts another pseudo-terminal in the place of a device. */
static bool plugIn(ptyPort_t& port, QString const& device)
{
    QFile::remove(device);
    return QFile::link(port.path(), device);
}

void tst_streamSerial::opensAgainWhenTheDeviceIsBack()
{
    QTemporaryDir dir;
    QString const device = dir.filePath("receiver");
    QScopedPointer<ptyPort_t> receiver(new ptyPort_t);
    QVERIFY(receiver->create() && plugIn(*receiver, device));
    serialLink_t display(device);
    display.setPauses(5, 20);
    linkListener_t listener(display);
    display.start();
    QVERIFY(display.isOpen());
    QVERIFY(waitFor([&]() { return receiver->isOpen(); }));
    receiver.reset();
    QVERIFY(waitFor([&]() { return !display.isOpen(); }));
    receiver.reset(new ptyPort_t);
    QVERIFY(receiver->create() && plugIn(*receiver, device));
    QVERIFY(waitFor([&]() { return display.isOpen() && receiver->isOpen(); }));
    receiver->send({message_t::REPORT, "pdopLimit", 6});
    QVERIFY(waitFor([&]() { return !listener.texts.isEmpty(); }));
    QCOMPARE(listener.changes, (QList<bool>{true, false, true}));
}

void tst_streamSerial::staysClosedWithoutADevice()
{
    QTemporaryDir dir;
    serialLink_t display(dir.filePath("nothing"));
    linkListener_t listener(display);
    display.start();
    QVERIFY(!display.isOpen());
    QVERIFY(!display.errorText().isEmpty());
    display.send({message_t::REQUEST, "pdopLimit"});
    display.stop();
    QVERIFY(listener.changes.isEmpty());
}

static QString lineOf(link_t const& link)
{
    line_t line = line_t();
    return link.line(line) ? lineText(line) : QString("none");
}

/** The speed and the number of stop bits that the far side of a pseudo-terminal is set to. */
static QPair<speed_t, bool> terminal(QString const& path)
{
    termios settings = termios();
    int const handle = ::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY);
    ::tcgetattr(handle, &settings);
    ::close(handle);
    return {::cfgetospeed(&settings), (settings.c_cflag & CSTOPB) != 0};
}

void tst_streamSerial::hasLineSettings()
{
    ptyPort_t receiver;
    QVERIFY(receiver.create());
    QCOMPARE(lineOf(receiver), QString("none"));
    serialLink_t display(receiver.path(), 9600);
    QCOMPARE(lineOf(display), QString("9600 8N1"));
    display.start();
    QVERIFY(display.isOpen());
    // Only root may open what somebody else has for himself.
    if (::geteuid() != 0)
        return;
    QCOMPARE(terminal(receiver.path()), qMakePair(speed_t(B9600), false));
    display.setLine({57600, 8, 'N', 2});
    QCOMPARE(lineOf(display), QString("57600 8N2"));
    QVERIFY(waitFor([&]() { return terminal(receiver.path()) == qMakePair(speed_t(B57600), true); }));
    QVERIFY(display.isOpen());
}

void tst_streamSerial::changesItsLineOnceEverythingIsSent()
{
    ptyPort_t receiver;
    QVERIFY(receiver.create());
    linkListener_t listener(receiver);
    serialLink_t display(receiver.path());
    display.start();
    QVERIFY(waitFor([&]() { return receiver.isOpen(); }));
    display.send({message_t::COMMAND, "baseName", QString(30000, 'x')});
    display.setLine({9600, 8, 'N', 1});
    display.send({message_t::REQUEST, "baseName"});
    QVERIFY(waitFor([&]() { return listener.texts.size() == 2; }));
    QCOMPARE(lineOf(display), QString("9600 8N1"));
}

void tst_streamSerial::keepsItsLineSettingsWhenItOpensAgain()
{
    QTemporaryDir dir;
    QString const device = dir.filePath("receiver");
    serialLink_t display(device);
    display.setPauses(5, 20);
    display.start();
    display.setLine({19200, 7, 'E', 2});
    ptyPort_t receiver;
    QVERIFY(receiver.create() && plugIn(receiver, device));
    QVERIFY(waitFor([&]() { return display.isOpen(); }));
    QCOMPARE(lineOf(display), QString("19200 7E2"));
}

void tst_streamSerial::describesItself()
{
    ptyPort_t receiver;
    QVERIFY(receiver.create());
    QVERIFY(receiver.path().startsWith("/dev/"));
    QCOMPARE(receiver.description(), "serial:" + receiver.path());
    QCOMPARE(serialLink_t("/dev/ttyS9").description(), QString("serial:/dev/ttyS9"));
}

void tst_streamSerial::makesLinksFromTheirDescriptions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("line");
    QTest::newRow("address") << "tcp:127.0.0.1:1"
                             << "tcp:127.0.0.1:1"
                             << "none";
    QTest::newRow("IPv6") << "tcp:[::1]:1"
                          << "tcp:[::1]:1"
                          << "none";
    QTest::newRow("device") << "serial:/nowhere/ttyS9"
                            << "serial:/nowhere/ttyS9"
                            << "115200 8N1";
    QTest::newRow("device with baud rate") << "serial:/nowhere/ttyS9@9600"
                                           << "serial:/nowhere/ttyS9"
                                           << "9600 8N1";
}

void tst_streamSerial::makesLinksFromTheirDescriptions()
{
    QFETCH(QString, text);
    QFETCH(QString, description);
    QFETCH(QString, line);
    QString error;
    QScopedPointer<link_t> const link(makeLink(text, error));
    QVERIFY2(link, qPrintable(error));
    QCOMPARE(link->description(), description);
    QCOMPARE(lineOf(*link), line);
    QVERIFY(error.isEmpty());
}

void tst_streamSerial::saysWhatIsWrongWithADescription_data()
{
    QTest::addColumn<QString>("text");
    for (char const* text :
         {"", "tcp", "tcp:", "tcp:5000", "tcp:host:", "tcp:host:0", "tcp:host:65536", "tcp:host:x", "tcp::5000",
          "tcp:::1:5000", "serial:", "serial:/dev/ttyS0@", "serial:/dev/ttyS0@fast", "udp:host:5000", "/dev/ttyS0"})
        QTest::newRow(text) << text;
}

void tst_streamSerial::saysWhatIsWrongWithADescription()
{
    QFETCH(QString, text);
    QString error;
    QScopedPointer<link_t> const link(makeLink(text, error));
    QVERIFY(!link);
    QVERIFY2(error.contains(": write "), qPrintable(error));
}

QTEST_MAIN(tst_streamSerial)
#include "tst_streamSerial.moc"
