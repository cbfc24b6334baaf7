#include "brel_common_qt/kitPort.h"
#include "brel_common_qt/remoteMelvoxDevice.h"

#include "link/scriptedLink.h"
#include "support/test.h"

using namespace brel_common_qt;
using melvox_link::line_t;
using melvox_link::message_t;

namespace
{

line_t const LINE = {9600, 7, 'E', 2};
serialPortConfig_t const CONFIG = {115200, CHAR_SIZE_8, PARITY_O, STOP_1, FLOW_BREL};

/** Writes down what comes first: the message or the change of the line. */
class orderedLink_t : public melvox_link::scriptedLink_t
{
    Q_OBJECT

public:
    void send(message_t const& message) override
    {
        order << toText(message);
        melvox_link::scriptedLink_t::send(message);
    }
    void setLine(line_t const& line) override
    {
        order << "line " + lineText(line);
        melvox_link::scriptedLink_t::setLine(line);
    }

    QStringList order;
};

} // namespace

/** The display's own serial line. */
class tst_serialPort : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void knowsTheSettingsOfItsLine_data();
    void knowsTheSettingsOfItsLine();
    void knowsNoSettingsOfALinkWithoutALine();
    void tellsTheReceiverFirstAndMovesItsOwnLineThen();
    void leavesTheReceiverAsItIsWhenOnlyItsOwnLineIsToMove();
    void movesItsLineWithEachSetting_data();
    void movesItsLineWithEachSetting();
    void knowsTheNewSettingsAfterwards();
    void movesWhileTheLockIsHeld();
    void doesNothingOnALinkWithoutALine();
    void staysAsItIsForARateOfZero();

protected:
    void setUp();
    void tearDown();

private:
    remoteSerialPort_t* port() const { return qobject_cast<remoteSerialPort_t*>(m_device->port()); }

    orderedLink_t* m_link;
    remoteMelvoxDevice_t* m_device;
};

void tst_serialPort::setUp()
{
    m_link = new orderedLink_t;
    m_device = new remoteMelvoxDevice_t(melvox_kit::createPort(m_link, melvox_kit::LINK_SERIAL));
}

void tst_serialPort::tearDown()
{
    delete m_device;
    delete m_link;
}

void tst_serialPort::knowsTheSettingsOfItsLine_data()
{
    QTest::addColumn<int>("dataBits");
    QTest::addColumn<char>("parity");
    QTest::addColumn<int>("stopBits");
    QTest::addColumn<int>("charSizeSetting");
    QTest::addColumn<int>("paritySetting");
    QTest::addColumn<int>("stopBitsSetting");
    QTest::newRow("8N1") << 8 << 'N' << 1 << int(CHAR_SIZE_8) << int(PARITY_N) << int(STOP_1);
    QTest::newRow("7O2") << 7 << 'O' << 2 << int(CHAR_SIZE_7) << int(PARITY_O) << int(STOP_2);
    QTest::newRow("8E1") << 8 << 'E' << 1 << int(CHAR_SIZE_8) << int(PARITY_E) << int(STOP_1);
}

void tst_serialPort::knowsTheSettingsOfItsLine()
{
    QFETCH(int, dataBits);
    QFETCH(char, parity);
    QFETCH(int, stopBits);
    QFETCH(int, charSizeSetting);
    QFETCH(int, paritySetting);
    QFETCH(int, stopBitsSetting);
    line_t const line = {57600, dataBits, parity, stopBits};
    m_link->makeSerial(line);
    serialPortConfig_t const* const config = port()->serialPortConfig();
    QVERIFY(config);
    QCOMPARE(config->baud, 57600u);
    QCOMPARE(int(config->charSize), charSizeSetting);
    QCOMPARE(int(config->parity), paritySetting);
    QCOMPARE(int(config->stopBits), stopBitsSetting);
    QCOMPARE(int(config->flow), int(FLOW_NONE));
}

void tst_serialPort::knowsNoSettingsOfALinkWithoutALine()
{
    QVERIFY(port()->serialPortConfig() == 0);
}

// The other way round the receiver would be told at a rate that it does not listen at yet. The command names no port:
// the receiver knows best where it came in.
void tst_serialPort::tellsTheReceiverFirstAndMovesItsOwnLineThen()
{
    m_link->makeSerial(LINE);
    port()->configure(CONFIG, false);
    QCOMPARE(m_link->order, QStringList() << "serialConfig baud=115200 charSize=1 parity=1 stopBits=0"
                                          << "line 115200 8O1");
}

void tst_serialPort::leavesTheReceiverAsItIsWhenOnlyItsOwnLineIsToMove()
{
    m_link->makeSerial(LINE);
    port()->configure(CONFIG, true);
    QCOMPARE(m_link->order, QStringList("line 115200 8O1"));
}

void tst_serialPort::movesItsLineWithEachSetting_data()
{
    QTest::addColumn<int>("charSize");
    QTest::addColumn<int>("parity");
    QTest::addColumn<int>("stopBits");
    QTest::addColumn<QString>("line");
    QTest::newRow("8N1") << int(CHAR_SIZE_8) << int(PARITY_N) << int(STOP_1) << "1200 8N1";
    QTest::newRow("7O2") << int(CHAR_SIZE_7) << int(PARITY_O) << int(STOP_2) << "1200 7O2";
    QTest::newRow("8E1") << int(CHAR_SIZE_8) << int(PARITY_E) << int(STOP_1) << "1200 8E1";
}

void tst_serialPort::movesItsLineWithEachSetting()
{
    QFETCH(int, charSize);
    QFETCH(int, parity);
    QFETCH(int, stopBits);
    QFETCH(QString, line);
    m_link->makeSerial(LINE);
    serialPortConfig_t const config = {1200, charSize_t(charSize), parity_t(parity), stopBits_t(stopBits), FLOW_NONE};
    port()->configure(config, false);
    QCOMPARE(m_link->lines(), QStringList(line));
}

void tst_serialPort::knowsTheNewSettingsAfterwards()
{
    m_link->makeSerial(LINE);
    port()->configure(CONFIG, false);
    serialPortConfig_t const* const config = port()->serialPortConfig();
    QVERIFY(config);
    QCOMPARE(config->baud, 115200u);
    QCOMPARE(int(config->charSize), int(CHAR_SIZE_8));
    QCOMPARE(int(config->parity), int(PARITY_O));
    QCOMPARE(int(config->stopBits), int(STOP_1));
    QCOMPARE(int(config->flow), int(FLOW_BREL));
}

// Both ends move or neither does: a command that waited would leave the display alone at its new rate.
void tst_serialPort::movesWhileTheLockIsHeld()
{
    m_link->makeSerial(LINE);
    m_link->report("portLock", 2);
    port()->configure(CONFIG, false);
    QCOMPARE(m_link->order.size(), 2);
}

void tst_serialPort::doesNothingOnALinkWithoutALine()
{
    port()->configure(CONFIG, false);
    QVERIFY(m_link->order.isEmpty());
}

// Whoever chooses no rate sends none; a device at rate 0 hangs up, and the receiver would wait for it in vain.
void tst_serialPort::staysAsItIsForARateOfZero()
{
    melvox_test::expectWarning("The line stays at 9600 baud");
    m_link->makeSerial(LINE);
    serialPortConfig_t none = CONFIG;
    none.baud = 0;
    port()->configure(none, false);
    QVERIFY(m_link->order.isEmpty());
    QCOMPARE(port()->serialPortConfig()->baud, 9600u);
}

QTEST_MAIN(tst_serialPort)
#include "tst_serialPort.moc"
