#include "proxycheck/signalRecorder.h"
#include "support/pageTest.h"

#include "brel_common_qt/kitPort.h"

using namespace brel_common_qt;
using melvox_link::scriptedLink_t;

namespace
{

QExplicitlySharedDataPointer<buffer_t> block(QByteArray const& bytes)
{
    QExplicitlySharedDataPointer<buffer_t> const buffer(new buffer_t(1024));
    std::copy(bytes.constData(), bytes.constData() + bytes.size(), buffer->data());
    buffer->setLength(static_cast<unsigned int>(bytes.size()));
    return buffer;
}

/** What a page that holds the lock sees of the port. */
class watcher_t : public QObject
{
    Q_OBJECT

public:
    explicit watcher_t(remotePort_t* port)
    {
        connect(port, SIGNAL(lockStateUpdated(brel_common_qt::portLock_t)), SLOT(noteLock(brel_common_qt::portLock_t)));
        connect(port, SIGNAL(uploadResult(brel_common_qt::uploadStatus_t)),
                SLOT(noteResult(brel_common_qt::uploadStatus_t)));
        connect(port, SIGNAL(openChanged(bool)), SLOT(noteOpen(bool)));
    }

    QStringList told;

private slots:
    void noteLock(brel_common_qt::portLock_t lock) { told << QString("lock %1").arg(int(lock)); }
    void noteResult(brel_common_qt::uploadStatus_t status) { told << QString("result %1").arg(int(status)); }
    void noteOpen(bool open) { told << (open ? "open" : "closed"); }
};

/** Asks for something as soon as the lock is free again, and sends the next block as soon as one is through. */
class eagerPage_t : public QObject
{
    Q_OBJECT

public:
    explicit eagerPage_t(remoteMelvoxDevice_t* device) : m_device(device)
    {
        connect(device->port(), SIGNAL(lockStateUpdated(brel_common_qt::portLock_t)),
                SLOT(query(brel_common_qt::portLock_t)));
        connect(device->port(), SIGNAL(uploadResult(brel_common_qt::uploadStatus_t)), SLOT(sendNext()));
    }

private slots:
    void query(brel_common_qt::portLock_t lock)
    {
        if (lock == PORT_LOCK_NONE)
            m_device->queryUsbMode();
    }
    void sendNext() { m_device->port()->uploadData(block("next")); }

private:
    remoteMelvoxDevice_t* m_device;
};

} // namespace

class tst_port : public melvox_test::pageTest_t
{
    Q_OBJECT

private slots:
    void isFreeAtFirst();
    void isOpenAsLongAsItsLink();
    void asksTheReceiverForTheLock();
    void hasTheLockWhenTheReceiverSaysSo();
    void hasNoLockWhenTheReceiverRefuses();
    void theReceiverMayGiveAnotherLockThanWasAskedFor();
    void ignoresLocksThatAreNone_data();
    void ignoresLocksThatAreNone();
    void losesTheLockWhenTheLinkCloses();
    void aLockAskedForIsRefusedWhenTheLinkCloses();
    void aClosedLinkRefusesTheLockLater();

    void requestsAndCommandsWaitForTheLockInOrder();
    void aWaitingRequestIsNotQueuedTwice();
    void waitingCommandsAreAllKept();
    void whatWaitsFollowsTheReleaseAtOnce();
    void whatIsSentAfterTheReleaseDoesNotWaitForItsAnswer();
    void whatWaitedGoesBeforeWhatASlotSendsThen();
    void whatWaitsIsSentWhenTheReceiverTakesTheLockBack();
    void whatWaitsIsDroppedWhenTheLinkCloses();
    void aFirmwareUpdateDoesNotWaitForItsOwnLock();

    void sendsABlockAsItIs();
    void sendsOnlyTheFilledPartOfABlock();
    void aBlockPassesWhileTheLockIsHeld();
    void tellsTheResultOfABlock_data();
    void tellsTheResultOfABlock();
    void ignoresResultsOfNoBlock();
    void ignoresResultsThatAreNoNumber();
    void theNextBlockMayBeSentWhenTheResultIsTold();
    void aClosedLinkRefusesABlockLater();
    void aBlockInFlightIsRefusedOnceWhenTheLinkCloses();
    void aRefusedBlockIsToldOfOnceAlsoWhenTheLinkComesAndGoes();

    void tellsWhenTheLinkOpensAndCloses();
    void isReachedByTcpOverATcpLinkOnly_data();
    void isReachedByTcpOverATcpLinkOnly();
    void isASerialPortOverASerialLinkOnly_data();
    void isASerialPortOverASerialLinkOnly();
};

// --- the lock ------------------------------------------------------------------------------------------------------

void tst_port::isFreeAtFirst()
{
    QCOMPARE(int(device->port()->lockState()), int(PORT_LOCK_NONE));
}

void tst_port::isOpenAsLongAsItsLink()
{
    QVERIFY(device->port()->isOpen());
    receiver->setOpen(false);
    QVERIFY(!device->port()->isOpen());
}

void tst_port::asksTheReceiverForTheLock()
{
    watcher_t const watcher(device->port());
    device->port()->setLockState(PORT_LOCK_PLUGIN);
    melvox_test::settle();
    QCOMPARE(receiver->sent(), QStringList("command portLock 2"));
    QVERIFY(watcher.told.isEmpty());
    QCOMPARE(int(device->port()->lockState()), int(PORT_LOCK_NONE));
}

void tst_port::hasTheLockWhenTheReceiverSaysSo()
{
    watcher_t const watcher(device->port());
    device->port()->setLockState(PORT_LOCK_PLUGIN);
    receiver->report("portLock", 2);
    QCOMPARE(watcher.told, QStringList("lock 2"));
    QCOMPARE(int(device->port()->lockState()), int(PORT_LOCK_PLUGIN));
}

void tst_port::hasNoLockWhenTheReceiverRefuses()
{
    watcher_t const watcher(device->port());
    device->port()->setLockState(PORT_LOCK_FRAMEWORK);
    receiver->report("portLock", 0);
    QCOMPARE(watcher.told, QStringList("lock 0"));
    QCOMPARE(int(device->port()->lockState()), int(PORT_LOCK_NONE));
}

void tst_port::theReceiverMayGiveAnotherLockThanWasAskedFor()
{
    watcher_t const watcher(device->port());
    device->port()->setLockState(PORT_LOCK_FRAMEWORK);
    receiver->report("portLock", 2);
    QCOMPARE(watcher.told, QStringList("lock 2"));
}

void tst_port::ignoresLocksThatAreNone_data()
{
    QTest::addColumn<QVariant>("lock");
    QTest::newRow("below") << QVariant(-1);
    QTest::newRow("above") << QVariant(3);
    QTest::newRow("text") << QVariant("2");
    QTest::newRow("fraction") << QVariant(1.5);
    QTest::newRow("nothing") << QVariant();
}

void tst_port::ignoresLocksThatAreNone()
{
    QFETCH(QVariant, lock);
    watcher_t const watcher(device->port());
    receiver->report("portLock", lock);
    QVERIFY(watcher.told.isEmpty());
    QCOMPARE(int(device->port()->lockState()), int(PORT_LOCK_NONE));
}

void tst_port::losesTheLockWhenTheLinkCloses()
{
    receiver->report("portLock", 1);
    watcher_t const watcher(device->port());
    receiver->setOpen(false);
    QCOMPARE(watcher.told, QStringList() << "lock 0"
                                         << "closed");
    QCOMPARE(int(device->port()->lockState()), int(PORT_LOCK_NONE));
}

// A page would otherwise wait for ever.
void tst_port::aLockAskedForIsRefusedWhenTheLinkCloses()
{
    device->port()->setLockState(PORT_LOCK_FRAMEWORK);
    watcher_t const watcher(device->port());
    receiver->setOpen(false);
    QCOMPARE(watcher.told, QStringList() << "lock 0"
                                         << "closed");
}

void tst_port::aClosedLinkRefusesTheLockLater()
{
    receiver->setOpen(false);
    watcher_t const watcher(device->port());
    device->port()->setLockState(PORT_LOCK_PLUGIN);
    QVERIFY(watcher.told.isEmpty());
    QVERIFY(melvox_test::waitFor([&watcher]() { return !watcher.told.isEmpty(); }));
    QCOMPARE(watcher.told, QStringList("lock 0"));
}

// --- what waits for it ---------------------------------------------------------------------------------------------

void tst_port::requestsAndCommandsWaitForTheLockInOrder()
{
    receiver->report("portLock", 2);
    device->queryElevationMask();
    device->setElevationMask(12.5);
    device->queryPdopLimit();
    QVERIFY(receiver->sent().isEmpty());
    receiver->report("portLock", 0);
    QCOMPARE(receiver->sent(), QStringList() << "request elevationMask"
                                             << "command elevationMask 12.5"
                                             << "request pdopLimit");
}

void tst_port::aWaitingRequestIsNotQueuedTwice()
{
    receiver->report("portLock", 2);
    device->queryElevationMask();
    device->queryPdopLimit();
    device->queryElevationMask();
    receiver->report("portLock", 0);
    QCOMPARE(receiver->requests(), QStringList() << "elevationMask"
                                                 << "pdopLimit");
}

void tst_port::waitingCommandsAreAllKept()
{
    receiver->report("portLock", 2);
    device->setElevationMask(10.0);
    device->setElevationMask(12.5);
    device->setElevationMask(10.0);
    receiver->report("portLock", 0);
    QCOMPARE(receiver->commands(), QStringList() << "elevationMask 10"
                                                 << "elevationMask 12.5"
                                                 << "elevationMask 10");
}

void tst_port::whatWaitsFollowsTheReleaseAtOnce()
{
    receiver->report("portLock", 2);
    device->setElevationMask(12.5);
    device->port()->setLockState(PORT_LOCK_NONE);
    QStringList const expected = QStringList() << "command portLock 0"
                                               << "command elevationMask 12.5";
    QCOMPARE(receiver->sent(), expected);
    receiver->report("portLock", 0);
    QCOMPARE(receiver->sent(), expected);
}

void tst_port::whatIsSentAfterTheReleaseDoesNotWaitForItsAnswer()
{
    receiver->report("portLock", 2);
    device->port()->setLockState(PORT_LOCK_NONE);
    device->reboot(0);
    QCOMPARE(receiver->commands(), QStringList() << "portLock 0"
                                                 << "reboot delay=0");
    QCOMPARE(int(device->port()->lockState()), int(PORT_LOCK_PLUGIN));
}

void tst_port::whatWaitedGoesBeforeWhatASlotSendsThen()
{
    receiver->report("portLock", 2);
    eagerPage_t const page(device);
    device->setElevationMask(12.5);
    receiver->report("portLock", 0);
    QCOMPARE(receiver->sent(), QStringList() << "command elevationMask 12.5"
                                             << "request usbMode");
}

void tst_port::whatWaitsIsSentWhenTheReceiverTakesTheLockBack()
{
    receiver->report("portLock", 2);
    device->port()->setLockState(PORT_LOCK_NONE);
    receiver->report("portLock", 2);
    receiver->clear();
    device->queryElevationMask();
    QVERIFY(receiver->sent().isEmpty());
    receiver->report("portLock", 0);
    QCOMPARE(receiver->requests(), QStringList("elevationMask"));
}

void tst_port::whatWaitsIsDroppedWhenTheLinkCloses()
{
    receiver->report("portLock", 2);
    device->setElevationMask(12.5);
    receiver->setOpen(false);
    receiver->setOpen(true);
    receiver->report("portLock", 0);
    QVERIFY(receiver->sent().isEmpty());
}

void tst_port::aFirmwareUpdateDoesNotWaitForItsOwnLock()
{
    receiver->report("portLock", 2);
    device->startFirmwareUpdate(QList<melvoxFirmwareUpdateComponent_t>(), "");
    QCOMPARE(receiver->commands(), QStringList("startFirmwareUpdate combinedPath=\"\" components=[]"));
}

// --- blocks of raw bytes -------------------------------------------------------------------------------------------

void tst_port::sendsABlockAsItIs()
{
    QByteArray const bytes("\0\x01\xff\n\r", 5);
    device->port()->uploadData(block(bytes));
    QCOMPARE(receiver->commands(), QStringList("uploadData <5 bytes>"));
    QCOMPARE(receiver->messages().at(0).value.toByteArray(), bytes);
}

void tst_port::sendsOnlyTheFilledPartOfABlock()
{
    QExplicitlySharedDataPointer<buffer_t> const half = block("abcdef");
    half->setLength(3);
    device->port()->uploadData(half);
    half->data()[0] = 'x';
    QCOMPARE(receiver->messages().at(0).value.toByteArray(), QByteArray("abc"));
}

void tst_port::aBlockPassesWhileTheLockIsHeld()
{
    receiver->report("portLock", 1);
    device->port()->uploadData(block("a"));
    QCOMPARE(receiver->commands(), QStringList("uploadData <1 bytes>"));
}

void tst_port::tellsTheResultOfABlock_data()
{
    QTest::addColumn<int>("result");
    QTest::newRow("well") << int(UPLOAD_OK);
    QTest::newRow("failed") << int(UPLOAD_ERROR);
    QTest::newRow("closed") << int(UPLOAD_PORT_CLOSED);
    QTest::newRow("of another kind") << 17;
}

void tst_port::tellsTheResultOfABlock()
{
    QFETCH(int, result);
    watcher_t const watcher(device->port());
    device->port()->uploadData(block("a"));
    QVERIFY(watcher.told.isEmpty());
    receiver->report("uploadResult", result);
    QCOMPARE(watcher.told, QStringList(QString("result %1").arg(result)));
}

// One that came twice would let the loader send a block before the one before has gone.
void tst_port::ignoresResultsOfNoBlock()
{
    watcher_t const watcher(device->port());
    receiver->report("uploadResult", 0);
    QVERIFY(watcher.told.isEmpty());
    device->port()->uploadData(block("a"));
    receiver->report("uploadResult", 0);
    receiver->report("uploadResult", 0);
    QCOMPARE(watcher.told, QStringList("result 0"));
}

void tst_port::ignoresResultsThatAreNoNumber()
{
    watcher_t const watcher(device->port());
    device->port()->uploadData(block("a"));
    receiver->report("uploadResult", "0");
    receiver->report("uploadResult");
    QVERIFY(watcher.told.isEmpty());
    receiver->report("uploadResult", 0);
    QCOMPARE(watcher.told, QStringList("result 0"));
}

void tst_port::theNextBlockMayBeSentWhenTheResultIsTold()
{
    eagerPage_t const page(device);
    watcher_t const watcher(device->port());
    device->port()->uploadData(block("a"));
    receiver->report("uploadResult", 0);
    receiver->report("uploadResult", 0);
    QCOMPARE(receiver->commands(), QStringList() << "uploadData <1 bytes>"
                                                 << "uploadData <4 bytes>"
                                                 << "uploadData <4 bytes>");
    QCOMPARE(watcher.told.size(), 2);
}

void tst_port::aClosedLinkRefusesABlockLater()
{
    receiver->setOpen(false);
    watcher_t const watcher(device->port());
    device->port()->uploadData(block("a"));
    QVERIFY(watcher.told.isEmpty());
    QVERIFY(melvox_test::waitFor([&watcher]() { return !watcher.told.isEmpty(); }));
    QCOMPARE(watcher.told, QStringList("result 2"));
}

void tst_port::aBlockInFlightIsRefusedOnceWhenTheLinkCloses()
{
    receiver->report("portLock", 1);
    device->port()->uploadData(block("a"));
    watcher_t const watcher(device->port());
    receiver->setOpen(false);
    melvox_test::settle();
    QCOMPARE(watcher.told, QStringList() << "result 2"
                                         << "lock 0"
                                         << "closed");
}

void tst_port::aRefusedBlockIsToldOfOnceAlsoWhenTheLinkComesAndGoes()
{
    receiver->setOpen(false);
    device->port()->uploadData(block("a"));
    receiver->setOpen(true);
    watcher_t const watcher(device->port());
    receiver->setOpen(false);
    melvox_test::settle();
    QCOMPARE(watcher.told, QStringList() << "result 2"
                                         << "closed");
}

// --- the link ------------------------------------------------------------------------------------------------------

void tst_port::tellsWhenTheLinkOpensAndCloses()
{
    watcher_t const watcher(device->port());
    receiver->setOpen(false);
    receiver->setOpen(true);
    QCOMPARE(watcher.told, QStringList() << "closed"
                                         << "open");
}

void tst_port::isReachedByTcpOverATcpLinkOnly_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("tcp");
    QTest::newRow("serial") << int(melvox_kit::LINK_SERIAL) << false;
    QTest::newRow("tcp") << int(melvox_kit::LINK_TCP) << true;
    QTest::newRow("other") << int(melvox_kit::LINK_OTHER) << false;
}

void tst_port::isReachedByTcpOverATcpLinkOnly()
{
    QFETCH(int, kind);
    QFETCH(bool, tcp);
    scriptedLink_t link;
    remoteMelvoxDevice_t const proxy(melvox_kit::createPort(&link, melvox_kit::linkKind_t(kind)));
    QCOMPARE(proxy.isPortTcpConnect(), tcp);
}

void tst_port::isASerialPortOverASerialLinkOnly_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("serial");
    QTest::newRow("serial") << int(melvox_kit::LINK_SERIAL) << true;
    QTest::newRow("tcp") << int(melvox_kit::LINK_TCP) << false;
    QTest::newRow("other") << int(melvox_kit::LINK_OTHER) << false;
}

void tst_port::isASerialPortOverASerialLinkOnly()
{
    QFETCH(int, kind);
    QFETCH(bool, serial);
    scriptedLink_t link;
    remoteMelvoxDevice_t const proxy(melvox_kit::createPort(&link, melvox_kit::linkKind_t(kind)));
    QCOMPARE(qobject_cast<remoteSerialPort_t*>(proxy.port()) != 0, serial);
}

QTEST_MAIN(tst_port)
#include "tst_port.moc"
