#include "brel_common_qt/remoteMelvoxDevice.h"

#include "support/pageTest.h"

#include <QMetaMethod>
#include <QSet>
#include <QSignalSpy>

using namespace brel_common_qt;

namespace
{

// clang-format off
char const* const PROXY_SIGNALS[] = {
    "antennaInfosUpdated()",
    "antennaHeightsUpdated()",
    "antennaRemoteUpdated(brel_common_qt::melvoxAntennaRemote_t const &)",
    "antennaDualModeUpdated(brel_common_qt::melvoxAntennaDualMode_t const &)",
    "correctionSatsUpdated()",
    "irdmStatUpdated(std::string const &, std::string const &, std::string const &)",
    "correctionSatStatsUpdated()",
    "mrvAlmanacInfoUpdated()",
    "starfireAlmStatusUpdated()",
    "correctionSelectionUpdated(brel_common_qt::melvoxCorrectionSelection_t)",
    "netPriorityUpdated(brel_common_qt::melvoxNetPriority_t)",
    "rtgUseModeUpdated(brel_common_qt::melvoxRtgUseMode_t)",
    "starfireAlmSwitchPolicyUpdated()",
    "userCorrectionSatUpdated()",
    "diffConfigUpdated(brel_common_qt::melvoxDiffConfig_t const &)",
    "rtcmVersionUpdated(brel_common_qt::melvoxRtcmVersion_t)",
    "baseNameUpdated(std::string const &)",
    "basePositionUpdated(brel_common_qt::melvoxBasePosition_t const &)",
    "ethernetConfigUpdated(bool, brel_common_qt::ethernetConfig_t const &)",
    "extendedNavInfoUpdated()",
    "activePortUpdated(brel_common_qt::melvoxPort_t)",
    "productInfoUpdated(std::string const &, std::string const &)",
    "firmwareUpdateStateUpdated(brel_common_qt::firmwareUpdateState_t, std::string const &)",
    "firmwareUpdateProgressUpdated(double)",
    "firmwareVersionUpdated(std::string const &, std::string const &)",
    "measUseUpdated(measUse_t const &)",
    "dynamicConfigUpdated(brel_common_qt::melvoxDynamicConfig_t const &)",
    "portTxRxInfoUpdated()",
    "ggaModeUpdated()",
    "outputConfigUpdated(brel_common_qt::melvoxPort_t, std::string const &, brel_common_qt::melvoxMessageOutput_t const &)",
    "talkerIdModeUpdated(brel_common_qt::melvoxTalkerIdMode_t)",
    "serialConfigUpdated(brel_common_qt::melvoxPort_t, brel_common_qt::melvoxSerialPortConfig_t const &)",
    "vcomConfigUpdated(brel_common_qt::melvoxPort_t, brel_common_qt::melvoxVcomConfig_t const &)",
    "usbModeUpdated(brel_common_qt::melvoxUsbMode_t)",
    "ppsConfigUpdated(brel_common_qt::melvoxPpsConfig_t const &)",
    "lteModemStatUpdated(std::string const &, std::string const &, std::string const &)",
    "antennaAlignmentModeUpdated(brel_common_qt::melvoxAntennaAlignmentMode_t)",
    "antennaAlignmentUserAngleUpdated(endian::f32_t)",
    "activeProfileUpdated(std::string const &)",
    "profileUpdated(std::string const &, endian::u32_t)",
    "elevationMaskUpdated(endian::f64_t)",
    "pdopLimitUpdated(endian::f64_t)",
    "correctionEnabledUpdated(brel_common_qt::melvoxCorrectionType_t, bool)",
    "correctionMaxAgeUpdated(brel_common_qt::melvoxCorrectionType_t, endian::u32_t)",
    "geoidalModelUpdated(brel_common_qt::melvoxGeoidalModel_t)",
    "ntripPPPModeUpdated(brel_common_qt::melvoxNtripPPP_t)",
    "vhdInfoUpdated(double, double, double, double)",
    "webControlUpdated()",
    "webUiUploadStateUpdated()",
    "webUiUploadPercentUpdated(double)",
    "antennaListReset()",
    "antennaNameAdded(QString const &)",
    "correctionSatAutoSelected()",
    "correctionSatSelected(endian::s32_t)",
    "outputsCleared()",
    "badBaudDetected()",
    "profilesCleared()",
    "firmwareUpdateProgress(QList<brel_common_qt::melvoxFirmwareUpdateProgress_t> const &)",
    "serialRs232ModeUpdated(brel_common_qt::melvoxPort_t, bool)",
    "profileDumpDone(std::string const &, bool, std::string const &)"};
// clang-format on

char const* const PORT_SIGNALS[] = {"openChanged(bool)", "lockStateUpdated(brel_common_qt::portLock_t)",
                                    "uploadResult(brel_common_qt::uploadStatus_t)"};

char const* const DEVICE_SIGNALS[] = {"messageReceived(int)"};

QByteArray normalized(char const* signature)
{
    return QMetaObject::normalizedSignature(signature);
}

QByteArray signatureOf(QMetaMethod const& method)
{
#if QT_VERSION < 0x050000
    return method.signature();
#else
    return method.methodSignature();
#endif
}

/** The signals that the class itself declares, beside those of its bases. */
QSet<QByteArray> signalsOf(QMetaObject const& object)
{
    QSet<QByteArray> found;
    for (int i = object.methodOffset(); i < object.methodCount(); ++i)
    {
        if (object.method(i).methodType() == QMetaMethod::Signal)
            found << signatureOf(object.method(i));
    }
    return found;
}

template <int count> QSet<QByteArray> setOf(char const* const (&signatures)[count])
{
    QSet<QByteArray> all;
    for (char const* signature : signatures)
        all << normalized(signature);
    return all;
}

template <int count> void addRows(char const* const (&signatures)[count])
{
    QTest::addColumn<QByteArray>("signature");
    for (char const* signature : signatures)
        QTest::newRow(QByteArray(signature).left(QByteArray(signature).indexOf('(')).constData())
            << QByteArray(signature);
}

} // namespace

/** Pages connect by the text of a signature, so the text is the contract. */
class tst_signals : public melvox_test::pageTest_t
{
    Q_OBJECT

private slots:
    void theProxyDeclaresEachSignalWithItsExactSignature_data();
    void theProxyDeclaresEachSignalWithItsExactSignature();
    void theProxyDeclaresNoSignalBesideThese();
    void eachSignalOfTheProxyCanBeRecorded_data();
    void eachSignalOfTheProxyCanBeRecorded();
    void buttonsReachTheseSlotsOfTheProxyDirectly_data();
    void buttonsReachTheseSlotsOfTheProxyDirectly();
    void thePortDeclaresItsSignalsAndNoOther();
    void everyDeviceTellsOfItsMessages();
};

void tst_signals::theProxyDeclaresEachSignalWithItsExactSignature_data()
{
    addRows(PROXY_SIGNALS);
}

void tst_signals::theProxyDeclaresEachSignalWithItsExactSignature()
{
    QFETCH(QByteArray, signature);
    QVERIFY(signalsOf(remoteMelvoxDevice_t::staticMetaObject).contains(normalized(signature.constData())));
}

void tst_signals::theProxyDeclaresNoSignalBesideThese()
{
    QSet<QByteArray> const unknown = signalsOf(remoteMelvoxDevice_t::staticMetaObject) - setOf(PROXY_SIGNALS);
    QVERIFY2(unknown.isEmpty(), unknown.isEmpty() ? "" : unknown.begin()->constData());
}

void tst_signals::eachSignalOfTheProxyCanBeRecorded_data()
{
    addRows(PROXY_SIGNALS);
}

// A spy warns of an argument whose type the meta-type system does not know, and a queued connection would drop it.
void tst_signals::eachSignalOfTheProxyCanBeRecorded()
{
    QFETCH(QByteArray, signature);
    QSignalSpy const spy(device, QByteArray('2' + signature).constData());
    QVERIFY(spy.isValid());
}

void tst_signals::buttonsReachTheseSlotsOfTheProxyDirectly_data()
{
    QTest::addColumn<QByteArray>("slot");
    QTest::newRow("warm restart") << QByteArray("warmRestart()");
    QTest::newRow("new almanac") << QByteArray("useNewStarfireAlm()");
    QTest::newRow("cancel upload") << QByteArray("cancelWebUiUpload()");
}

void tst_signals::buttonsReachTheseSlotsOfTheProxyDirectly()
{
    QFETCH(QByteArray, slot);
    int const index = remoteMelvoxDevice_t::staticMetaObject.indexOfSlot(slot.constData());
    QVERIFY(index >= 0);
    QCOMPARE(int(remoteMelvoxDevice_t::staticMetaObject.method(index).access()), int(QMetaMethod::Public));
}

void tst_signals::thePortDeclaresItsSignalsAndNoOther()
{
    QCOMPARE(signalsOf(remotePort_t::staticMetaObject), setOf(PORT_SIGNALS));
    QVERIFY(signalsOf(remoteSerialPort_t::staticMetaObject).isEmpty());
}

void tst_signals::everyDeviceTellsOfItsMessages()
{
    QCOMPARE(signalsOf(remoteDevice_t::staticMetaObject), setOf(DEVICE_SIGNALS));
}

QTEST_MAIN(tst_signals)
#include "tst_signals.moc"
