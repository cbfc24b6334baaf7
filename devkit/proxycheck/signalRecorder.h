#ifndef MELVOX_PROXYCHECK_SIGNAL_RECORDER_H
#define MELVOX_PROXYCHECK_SIGNAL_RECORDER_H

#include "proxycheck/proxyText.h"

#include <QMetaMethod>
#include <QMutex>
#include <QStringList>

#include <functional>

namespace melvox_proxycheck
{

using brel_common_qt::measUse_t;

/** Writes down every signal of a proxy with its arguments, and what the proxy's getters said just then. */
class signalRecorder_t : public QObject
{
    Q_OBJECT

public:
    typedef std::function<QString()> state_t;

    explicit signalRecorder_t(brel_common_qt::remoteMelvoxDevice_t* device, state_t const& state = state_t());

    /** Also writes down the signals of the proxy's port. */
    void watchPort(brel_common_qt::remotePort_t* port);

    /** The signals that there have to be, with their exact signatures. */
    static QList<QByteArray> expected();
    /** Those of them that the proxy or the port do not have. */
    QList<QByteArray> const& missing() const { return m_missing; }

    void clear();
    /** Signals may come from any thread; the lists are to be read once they have come. */
    int count() const;
    bool cameFromOtherThreads() const;

    QStringList told;   //!< "elevationMaskUpdated 12.5"
    QStringList states; //!< of the getters, beside each entry of `told`

public slots:
    void antennaInfosUpdated() { note("antennaInfosUpdated"); }
    void antennaHeightsUpdated() { note("antennaHeightsUpdated"); }
    void antennaRemoteUpdated(brel_common_qt::melvoxAntennaRemote_t const& a) { note("antennaRemoteUpdated", a); }
    void antennaDualModeUpdated(brel_common_qt::melvoxAntennaDualMode_t const& a) { note("antennaDualModeUpdated", a); }
    void correctionSatsUpdated() { note("correctionSatsUpdated"); }
    void irdmStatUpdated(std::string const& a, std::string const& b, std::string const& c)
    {
        note("irdmStatUpdated", a, b, c);
    }
    void correctionSatStatsUpdated() { note("correctionSatStatsUpdated"); }
    void mrvAlmanacInfoUpdated() { note("mrvAlmanacInfoUpdated"); }
    void starfireAlmStatusUpdated() { note("starfireAlmStatusUpdated"); }
    void correctionSelectionUpdated(brel_common_qt::melvoxCorrectionSelection_t a)
    {
        note("correctionSelectionUpdated", a);
    }
    void netPriorityUpdated(brel_common_qt::melvoxNetPriority_t a) { note("netPriorityUpdated", a); }
    void rtgUseModeUpdated(brel_common_qt::melvoxRtgUseMode_t a) { note("rtgUseModeUpdated", a); }
    void starfireAlmSwitchPolicyUpdated() { note("starfireAlmSwitchPolicyUpdated"); }
    void userCorrectionSatUpdated() { note("userCorrectionSatUpdated"); }
    void diffConfigUpdated(brel_common_qt::melvoxDiffConfig_t const& a) { note("diffConfigUpdated", a); }
    void rtcmVersionUpdated(brel_common_qt::melvoxRtcmVersion_t a) { note("rtcmVersionUpdated", a); }
    void baseNameUpdated(std::string const& a) { note("baseNameUpdated", a); }
    void basePositionUpdated(brel_common_qt::melvoxBasePosition_t const& a) { note("basePositionUpdated", a); }
    void ethernetConfigUpdated(bool a, brel_common_qt::ethernetConfig_t const& b)
    {
        note("ethernetConfigUpdated", a, b);
    }
    void extendedNavInfoUpdated() { note("extendedNavInfoUpdated"); }
    void activePortUpdated(brel_common_qt::melvoxPort_t a) { note("activePortUpdated", a); }
    void productInfoUpdated(std::string const& a, std::string const& b) { note("productInfoUpdated", a, b); }
    void firmwareUpdateStateUpdated(brel_common_qt::firmwareUpdateState_t a, std::string const& b)
    {
        note("firmwareUpdateStateUpdated", a, b);
    }
    void firmwareUpdateProgressUpdated(double a) { note("firmwareUpdateProgressUpdated", a); }
    void firmwareVersionUpdated(std::string const& a, std::string const& b) { note("firmwareVersionUpdated", a, b); }
    void measUseUpdated(measUse_t const& a) { note("measUseUpdated", a); }
    void dynamicConfigUpdated(brel_common_qt::melvoxDynamicConfig_t const& a) { note("dynamicConfigUpdated", a); }
    void portTxRxInfoUpdated() { note("portTxRxInfoUpdated"); }
    void ggaModeUpdated() { note("ggaModeUpdated"); }
    void outputConfigUpdated(brel_common_qt::melvoxPort_t a, std::string const& b,
                             brel_common_qt::melvoxMessageOutput_t const& c)
    {
        note("outputConfigUpdated", a, b, c);
    }
    void talkerIdModeUpdated(brel_common_qt::melvoxTalkerIdMode_t a) { note("talkerIdModeUpdated", a); }
    void serialConfigUpdated(brel_common_qt::melvoxPort_t a, brel_common_qt::melvoxSerialPortConfig_t const& b)
    {
        note("serialConfigUpdated", a, b);
    }
    void vcomConfigUpdated(brel_common_qt::melvoxPort_t a, brel_common_qt::melvoxVcomConfig_t const& b)
    {
        note("vcomConfigUpdated", a, b);
    }
    void usbModeUpdated(brel_common_qt::melvoxUsbMode_t a) { note("usbModeUpdated", a); }
    void ppsConfigUpdated(brel_common_qt::melvoxPpsConfig_t const& a) { note("ppsConfigUpdated", a); }
    void lteModemStatUpdated(std::string const& a, std::string const& b, std::string const& c)
    {
        note("lteModemStatUpdated", a, b, c);
    }
    void antennaAlignmentModeUpdated(brel_common_qt::melvoxAntennaAlignmentMode_t a)
    {
        note("antennaAlignmentModeUpdated", a);
    }
    void antennaAlignmentUserAngleUpdated(endian::f32_t a) { note("antennaAlignmentUserAngleUpdated", a); }
    void activeProfileUpdated(std::string const& a) { note("activeProfileUpdated", a); }
    void profileUpdated(std::string const& a, endian::u32_t b) { note("profileUpdated", a, b); }
    void elevationMaskUpdated(endian::f64_t a) { note("elevationMaskUpdated", a); }
    void pdopLimitUpdated(endian::f64_t a) { note("pdopLimitUpdated", a); }
    void correctionEnabledUpdated(brel_common_qt::melvoxCorrectionType_t a, bool b)
    {
        note("correctionEnabledUpdated", a, b);
    }
    void correctionMaxAgeUpdated(brel_common_qt::melvoxCorrectionType_t a, endian::u32_t b)
    {
        note("correctionMaxAgeUpdated", a, b);
    }
    void geoidalModelUpdated(brel_common_qt::melvoxGeoidalModel_t a) { note("geoidalModelUpdated", a); }
    void ntripPPPModeUpdated(brel_common_qt::melvoxNtripPPP_t a) { note("ntripPPPModeUpdated", a); }
    void vhdInfoUpdated(double a, double b, double c, double d) { note("vhdInfoUpdated", a, b, c, d); }
    void webControlUpdated() { note("webControlUpdated"); }
    void webUiUploadStateUpdated() { note("webUiUploadStateUpdated"); }
    void webUiUploadPercentUpdated(double a) { note("webUiUploadPercentUpdated", a); }
    void antennaListReset() { note("antennaListReset"); }
    void antennaNameAdded(QString const& a) { note("antennaNameAdded", a); }
    void correctionSatAutoSelected() { note("correctionSatAutoSelected"); }
    void correctionSatSelected(endian::s32_t a) { note("correctionSatSelected", a); }
    void outputsCleared() { note("outputsCleared"); }
    void badBaudDetected() { note("badBaudDetected"); }
    void profilesCleared() { note("profilesCleared"); }
    void firmwareUpdateProgress(QList<brel_common_qt::melvoxFirmwareUpdateProgress_t> const& a)
    {
        note("firmwareUpdateProgress", a);
    }
    void serialRs232ModeUpdated(brel_common_qt::melvoxPort_t a, bool b) { note("serialRs232ModeUpdated", a, b); }
    void profileDumpDone(std::string const& a, bool b, std::string const& c) { note("profileDumpDone", a, b, c); }

    void openChanged(bool a) { note("openChanged", a); }
    void lockStateUpdated(brel_common_qt::portLock_t a) { note("lockStateUpdated", a); }
    void uploadResult(brel_common_qt::uploadStatus_t a) { note("uploadResult", a); }
    /** Comes with every message and says nothing of a group. */
    void messageReceived(int) {}

private:
    template <typename... argument_t> void note(char const* name, argument_t const&... arguments)
    {
        add(name + joined(arguments...));
    }

    void listen(QObject* sender, QByteArray const& signature);
    void add(QString const& text);

    state_t m_state;
    QList<QByteArray> m_missing;
    mutable QMutex m_mutex;
    bool m_foreign;
};

QByteArray signatureOf(QMetaMethod const& method);

} // namespace melvox_proxycheck

#endif
