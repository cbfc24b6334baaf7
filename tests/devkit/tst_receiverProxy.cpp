#include "brel_common_qt/kitPort.h"
#include "brel_common_qt/remoteMelvoxDevice.h"
#include "firmware/firmwareFile.h"
#include "link/localLink.h"
#include "receiver/receiver.h"

#include "support/test.h"

#include <QFile>
#include <QTemporaryDir>

#include <cstring>

using namespace brel_common_qt;
using melvox_test::waitFor;

/** The proxy and the receiver, written apart from the same table, understand one another. */
class tst_receiverProxy : public melvox_test::test_t
{
    Q_OBJECT

protected:
    void setUp() override
    {
        pair.reset(new melvox_link::localLinkPair_t);
        clock.reset(new melvox_receiver::simClock_t);
        receiver.reset(new melvox_receiver::receiver_t(pair->receiverEnd(), clock.data()));
        device.reset(new remoteMelvoxDevice_t(melvox_kit::createPort(pair->displayEnd(), melvox_kit::LINK_OTHER)));
    }
    void tearDown() override
    {
        device.reset();
        receiver.reset();
        clock.reset();
        pair.reset();
    }

private slots:
    void everyGroupIsKnownOnceEverythingIsAskedFor();
    void everyCommandIsUnderstood();
    void settingsComeBackAsTheyWereSent();
    void aWebPackageIsTransferred();
    void aMissingWebPackageEndsInAnError();
    void firmwareFilesAreTransferred();
    void aDumpIsWrittenAndCanBeLoaded();
    void theLockIsGivenAndTakenBack();

private:
    QString writeFile(QString const& name, int size);
    QString writePackage(QString const& name, QList<int> const& components);
    int upload(QByteArray const& data);

    QScopedPointer<melvox_link::localLinkPair_t> pair;
    QScopedPointer<melvox_receiver::simClock_t> clock;
    QScopedPointer<melvox_receiver::receiver_t> receiver;
    QScopedPointer<remoteMelvoxDevice_t> device;
    QTemporaryDir dir;
};

QString tst_receiverProxy::writeFile(QString const& name, int size)
{
    QFile file(dir.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(size, 'f')) != size)
        return QString();
    return file.fileName();
}

QString tst_receiverProxy::writePackage(QString const& name, QList<int> const& components)
{
    melvox_firmware::packageWriter_t writer;
    for (int component : components)
    {
        melvox_firmware::part_t part;
        part.component = component;
        part.version = "9.8.7";
        part.product = 8;
        writer.start(part);
        std::string const bytes(20000, char('a' + component));
        writer.add(bytes.data(), bytes.size());
    }
    writer.finish();
    std::string const text = writer.takeText();
    QFile file(dir.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(text.data(), qint64(text.size())) != qint64(text.size()))
        return QString();
    return file.fileName();
}

void tst_receiverProxy::everyGroupIsKnownOnceEverythingIsAskedFor()
{
    device->queryAll();
    // The last answer to arrive is that of the antenna names, which take their time.
    QVERIFY(waitFor([&]() { return device->antennaList().size() == melvox_receiver::antennaNames().size(); }));
    QVERIFY(device->elevationMaskValid() && device->pdopLimitValid() && device->geoidalModelValid());
    QVERIFY(device->ntripPPPModeValid() && device->dynamicConfigValid() && device->extendedNavInfoValid());
    QVERIFY(device->antennaAlignmentValid() && device->antennaInfoValid() && device->antennaHeightValid());
    QVERIFY(device->antennaRemoteValid() && device->antennaDualModeValid() && device->correctionSelectionValid());
    QVERIFY(device->netPriorityValid() && device->rtgUseModeValid() && device->correctionSatSelectionValid());
    QVERIFY(device->correctionSatInUseValid() && device->userCorrectionSatValid() && device->mrvAlmanacInfoValid());
    QVERIFY(device->starfireAlmStatusValid() && device->starfireAlmSwitchPolicyValid() && device->diffConfigValid());
    QVERIFY(device->rtcmVersionValid() && device->baseNameValid() && device->basePositionValid());
    QVERIFY(device->activePortValid() && device->ggaModeValid() && device->talkerIdModeValid());
    QVERIFY(device->usbModeValid() && device->webControlValid() && device->ppsConfigValid());
    QVERIFY(device->productInfoValid() && device->activeProfileValid());
    QVERIFY(device->ethernetConfig(MELVOX_ETH_CFG_SOURCE_CABLE) && device->ethernetConfig(MELVOX_ETH_CFG_SOURCE_WIFI));
    QVERIFY(device->portOutputs(MELVOX_PORT_COM2) && !device->portOutputs(MELVOX_PORT_COM2)->empty());
    bool value = false;
    unsigned int seconds = 0;
    for (int type = MELVOX_CORR_TYPE_RTCM19; type <= MELVOX_CORR_TYPE_RTG; ++type)
    {
        QVERIFY(device->getCorrectionEnabled(melvoxCorrectionType_t(type), value));
        QVERIFY(device->getCorrectionMaxAge(melvoxCorrectionType_t(type), seconds));
    }
    for (char const* name : {"GPS", "GLO", "GAL", "BEI"})
        QVERIFY(device->getMeasUse(name, value));
    QCOMPARE(int(device->firmwareVersions().size()), 9);
    QCOMPARE(receiver->ignoredCount(), 0);
}

void tst_receiverProxy::everyCommandIsUnderstood()
{
    device->setElevationMask(12.5);
    device->setPdopLimit(6.5);
    device->setGeoidalModel(MELVOX_GEOIDAL_MODEL_NONE);
    device->setCorrectionEnabled(MELVOX_CORR_TYPE_RTG, true);
    device->setCorrectionMaxAge(MELVOX_CORR_TYPE_RTG, 30);
    device->setNtripPPPMode({MELVOX_NTRIP_PPP_MODE_ON, MELVOX_NTRIP_PPP_MODE_HTTPS});
    device->setMeasUse({{"GPS", true}, {"GLO", false}, {"GAL", false}, {"BEI", true}});
    device->setDynamicConfig({false, MELVOX_DYN_MODE_HIGH, false});
    device->setAntennaAlignment(MELVOX_ANT_ALIGN_MODE_USER_SPECIFIED, 45.5f);
    device->setAntennaInfo({"NONE", "A", 1}, {"NONE", "B", 2});
    device->setAntennaHeight({true, 1, 2, 3}, {false, 4, 5, 6});
    device->setAntennaRemote({true, ""});
    device->setAntennaDualMode("SFONLY");
    device->setCorrectionSelection(MELVOX_CORRECTION_SELECTION_SECONDARY);
    device->defineUserCorrectionSat(700, 1545500.0f);
    device->selectCorrectionSat(700);
    device->autoSelectCorrectionSat();
    device->deleteUserCorrectionSat();
    device->setStarfireAlmSwitchPolicy({MELVOX_STARFIRE_ALM_SWITCH_MODE_AUTO, 24, 0});
    device->useNewStarfireAlm();
    device->setDiffConfig({MELVOX_DIFF_MODE_ROVER_RTCM, 0, true, MELVOX_PORT_UNKNOWN, false});
    device->setRtcmVersion(MELVOX_RTCM_VERSION_23);
    device->setBaseName("North field");
    device->setBasePosition({0.5, 3.14159265358979, 12});
    device->setOutput(MELVOX_PORT_COM3, "??", {MELVOX_OUTPUT_METHOD_INTERVAL, 0.2});
    device->turnOffAllOutput(MELVOX_PORT_COM2);
    device->setGgaMode(MELVOX_GGA_MODE_STANDARD, GGA_QUALITY_UNKNOWN, MELVOX_GGA_CORRECTIONS_SCALED);
    device->setTalkerIdMode(MELVOX_TALKER_ID_MODE_GP);
    device->setSerialConfig(MELVOX_PORT_COM3, {9600, CHAR_SIZE_8, PARITY_E, STOP_2});
    device->setVcomConfig(MELVOX_PORT_ETH8, {true, MODE_UDP_RESTRICT, 3232235527u, 65535, 1});
    device->setUsbMode(MELVOX_USB_MODE_DRIVE);
    device->setEthernetConfig(MELVOX_ETH_CFG_SOURCE_CABLE, {1, 2, 3, 4, 4294967295u});
    device->setEthernetConfigDhcp(MELVOX_ETH_CFG_SOURCE_CABLE);
    device->setWebUiEnabled(false);
    device->cancelWebUiUpload();
    device->setPpsConfig({1, 2, 3, 4, 5});
    device->useProfile("Factory");
    device->saveAsProfile("Mine");
    device->deleteProfile("Mine");
    device->setLteModemStatus(true);
    device->coldRestart(true);
    device->warmRestart();
    device->reboot(0);
    // Links keep the order: with this answer all that came before has been taken.
    device->queryActivePort();
    QVERIFY(waitFor([&]() { return device->activePortValid(); }));
    QCOMPARE(receiver->ignoredCount(), 0);
}

void tst_receiverProxy::settingsComeBackAsTheyWereSent()
{
    device->setPpsConfig({0, 1599999, 32767, 11, 12});
    device->setVcomConfig(MELVOX_PORT_ETH3, {true, MODE_UDP_RESTRICT, 4294967295u, 65534, 7});
    device->setAntennaAlignment(MELVOX_ANT_ALIGN_MODE_USER_SPECIFIED, 359.99f);
    device->setOutput(MELVOX_PORT_COM4, "NMEAGGA", {MELVOX_OUTPUT_METHOD_INTERVAL, 0.2});
    QVERIFY(waitFor([&]() { return device->messageOutput(MELVOX_PORT_COM4, "NMEAGGA") != nullptr; }));
    melvoxPpsConfig_t const& pps = device->ppsConfig();
    QCOMPARE(int(pps.polarity), 0);
    QCOMPARE(pps.width, 1599999u);
    QCOMPARE(pps.interval, 32767u);
    QCOMPARE(pps.signalDelay, 11u);
    QCOMPARE(pps.chipDelay, 12u);
    QCOMPARE(device->antennaAlignmentUserAngle(), 359.99f);
    QCOMPARE(device->messageOutput(MELVOX_PORT_COM4, "NMEAGGA")->interval, 0.2);
}

void tst_receiverProxy::aWebPackageIsTransferred()
{
    clock->setSpeed(100); // the receiver restarts twice
    double percent = 0;
    QList<int> states;
    connect(device.data(), &remoteMelvoxDevice_t::webUiUploadStateUpdated, this,
            [&]() { states << device->webUiUploadState(); });
    connect(device.data(), &remoteMelvoxDevice_t::webUiUploadPercentUpdated, this,
            [&](double fraction) { percent = fraction; });
    device->startWebUiUpload(writeFile("web.pkg", 100000).toStdString());
    QVERIFY(waitFor([&]() { return states.contains(MELVOX_WEB_UI_UPLOAD_COMPLETE); }));
    QCOMPARE(states.first(), int(MELVOX_WEB_UI_UPLOAD_IN_PROGRESS));
    QVERIFY(!states.contains(MELVOX_WEB_UI_UPLOAD_ERROR));
    QCOMPARE(percent, 1.0);
    QCOMPARE(receiver->ignoredCount(), 0);
}

void tst_receiverProxy::aMissingWebPackageEndsInAnError()
{
    device->startWebUiUpload(dir.filePath("nothing").toStdString());
    QVERIFY(waitFor([&]() { return device->webUiUploadState() == MELVOX_WEB_UI_UPLOAD_ERROR; }));
    QCOMPARE(receiver->ignoredCount(), 0);
}

void tst_receiverProxy::firmwareFilesAreTransferred()
{
    clock->setSpeed(100);
    QList<int> states;
    connect(device.data(), &remoteMelvoxDevice_t::firmwareUpdateStateUpdated, this,
            [&](firmwareUpdateState_t state, std::string const&) { states << state; });
    device->port()->setLockState(PORT_LOCK_PLUGIN);
    QVERIFY(waitFor([&]() { return device->port()->lockState() == PORT_LOCK_PLUGIN; }));
    std::string const nav = writePackage("nav.srec", {MELVOX_FW_COMP_NAV}).toStdString();
    std::string const pio = writePackage("pio.srec", {MELVOX_FW_COMP_PIO_APP}).toStdString();
    device->startFirmwareUpdate({{0, MELVOX_FW_COMP_NAV, nav}, {0, MELVOX_FW_COMP_PIO_APP, pio}}, "");
    QVERIFY(waitFor([&]() { return states.contains(FIRMWARE_UPDATE_COMPLETE); }));
    states.clear();
    std::string const both = writePackage("both.srec", {MELVOX_FW_COMP_NAV, MELVOX_FW_COMP_PIO_APP}).toStdString();
    device->startFirmwareUpdate({{0, MELVOX_FW_COMP_NAV, ""}, {1, MELVOX_FW_COMP_PIO_APP, ""}}, both);
    QVERIFY(waitFor([&]() { return states.contains(FIRMWARE_UPDATE_COMPLETE); }));
    QVERIFY(!states.contains(FIRMWARE_UPDATE_ERROR));
    QCOMPARE(receiver->ignoredCount(), 0);
}

int tst_receiverProxy::upload(QByteArray const& data)
{
    int result = -1;
    auto const connection =
        connect(device->port(), &remotePort_t::uploadResult, this, [&](uploadStatus_t status) { result = status; });
    QExplicitlySharedDataPointer<buffer_t> buffer(new buffer_t(unsigned(data.size())));
    std::memcpy(buffer->data(), data.constData(), size_t(data.size()));
    buffer->setLength(unsigned(data.size()));
    device->port()->uploadData(buffer);
    waitFor([&]() { return result >= 0; });
    disconnect(connection);
    return result;
}

void tst_receiverProxy::aDumpIsWrittenAndCanBeLoaded()
{
    QString const path = dir.filePath("profile.dump");
    bool done = false;
    connect(device.data(), &remoteMelvoxDevice_t::profileDumpDone, this,
            [&](std::string const&, bool success, std::string const&) { done = success; });
    device->setElevationMask(33.5);
    device->dumpAsProfile(path.toStdString());
    QVERIFY(waitFor([&]() { return done; }));
    device->useProfile("Factory");
    QVERIFY(waitFor([&]() { return device->elevationMask() == 7.0; }));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    while (!file.atEnd())
        QCOMPARE(upload(file.read(1024)), int(UPLOAD_OK));
    QVERIFY(waitFor([&]() { return device->elevationMask() == 33.5; }));
    QCOMPARE(upload("garbage"), int(UPLOAD_ERROR));
}

void tst_receiverProxy::theLockIsGivenAndTakenBack()
{
    device->port()->setLockState(PORT_LOCK_PLUGIN);
    QVERIFY(waitFor([&]() { return device->port()->lockState() == PORT_LOCK_PLUGIN; }));
    device->port()->setLockState(PORT_LOCK_NONE);
    QVERIFY(waitFor([&]() { return device->port()->lockState() == PORT_LOCK_NONE; }));
}

QTEST_MAIN(tst_receiverProxy)
#include "tst_receiverProxy.moc"
