#include "brel_common_qt/remoteMelvoxDevice_p.h"

#include <QCoreApplication>

#include <chrono>
#include <thread>

/** The kit's proxy with one thing wrong, which the environment names. Each member below is as in the kit but for its own
 *  break. */
namespace
{

bool isBroken(char const* name)
{
    return qgetenv("MELVOX_BREAK") == name;
}

/** Longer than any call may take. */
std::chrono::milliseconds const LONG(120);

template <typename argument_t> void tell(QObject* sender, QMetaObject const& meta, char const* signature, argument_t a)
{
    void* arguments[] = {0, &a};
    QMetaObject::activate(sender, &meta, meta.indexOfSignal(signature) - meta.methodOffset(), arguments);
}

} // namespace

namespace brel_common_qt
{

// --- validity and getters ------------------------------------------------------------------------------------------

bool remoteMelvoxDevice_t::pdopLimitValid() const
{
    return !isBroken("validityNeverSet") && m_data->pdopLimit.valid;
}

bool remoteMelvoxDevice_t::correctionSelectionValid() const
{
    return isBroken("validBeforeAnyReport") || m_data->correctionSelection.valid;
}

bool remoteMelvoxDevice_t::getCorrectionMaxAge(melvoxCorrectionType_t type, unsigned int& seconds) const
{
    auto const found = m_data->correctionMaxAge.find(type);
    if (isBroken("getterWritesOutputOnFalse"))
        seconds = 0;
    if (found == m_data->correctionMaxAge.end())
        return false;
    seconds = found->second;
    return true;
}

PortTxRxInfo const* remoteMelvoxDevice_t::portTxRxInfo(melvoxPort_t port) const
{
    static PortTxRxInfo const none = {false, false, 0, 0};
    if (isBroken("portBeyondTheRange") && port == MELVOX_PORT_UNKNOWN)
        return &none;
    auto const found = m_data->portTxRxInfo.find(port);
    return found == m_data->portTxRxInfo.end() ? 0 : &found->second;
}

melvoxAntennaHeight_t const& remoteMelvoxDevice_t::antennaHeight(melvoxAntenna_t antenna) const
{
    return m_data->antennaHeight.value.of[isBroken("oneAntennaForBoth") ? MELVOX_ANTENNA_FIRST : antenna];
}

// --- signals -------------------------------------------------------------------------------------------------------

void remoteMelvoxDevice_t::geoidalModelUpdated(melvoxGeoidalModel_t model)
{
    static melvox_kit::cached_t<melvoxGeoidalModel_t> before;
    melvox_kit::cached_t<melvoxGeoidalModel_t> const now = m_data->geoidalModel;
    if (isBroken("signalBeforeCache"))
        m_data->geoidalModel = before;
    tell(this, staticMetaObject, "geoidalModelUpdated(brel_common_qt::melvoxGeoidalModel_t)", model);
    m_data->geoidalModel = before = now;
}

void remoteMelvoxDevice_t::elevationMaskUpdated(endian::f64_t degrees)
{
    endian::f64_t const argument = degrees + (isBroken("wrongArgument") ? 1.0 : 0.0);
    tell(this, staticMetaObject, "elevationMaskUpdated(endian::f64_t)", argument);
}

void remoteMelvoxDevice_t::usbModeUpdated(melvoxUsbMode_t mode)
{
    static int last = -1;
    if (!isBroken("signalOnlyOnChange") || mode != last)
        tell(this, staticMetaObject, "usbModeUpdated(brel_common_qt::melvoxUsbMode_t)", mode);
    last = mode;
}

void remoteMelvoxDevice_t::rtgUseModeUpdated(melvoxRtgUseMode_t mode)
{
    for (int i = 0; i < (isBroken("signalTwice") ? 2 : 1); ++i)
        tell(this, staticMetaObject, "rtgUseModeUpdated(brel_common_qt::melvoxRtgUseMode_t)", mode);
}

void remoteMelvoxDevice_t::netPriorityUpdated(melvoxNetPriority_t priority)
{
    auto const emitIt = [this, priority]()
    { tell(this, staticMetaObject, "netPriorityUpdated(brel_common_qt::melvoxNetPriority_t)", priority); };
    if (isBroken("otherThread"))
        std::thread(emitIt).join();
    else
        emitIt();
}

void remoteMelvoxDevice_t::profilesCleared()
{
    // Told of by the first profile, behind it.
    if (!isBroken("listEventsOutOfOrder"))
        QMetaObject::activate(this, &staticMetaObject,
                              staticMetaObject.indexOfSignal("profilesCleared()") - staticMetaObject.methodOffset(), 0);
}

void remoteMelvoxDevice_t::profileUpdated(std::string const& name, endian::u32_t modified)
{
    QMetaObject const& meta = staticMetaObject;
    std::string text = name;
    void* arguments[] = {0, &text, &modified};
    QMetaObject::activate(
        this, &meta, meta.indexOfSignal("profileUpdated(std::string,endian::u32_t)") - meta.methodOffset(), arguments);
    if (isBroken("listEventsOutOfOrder") && name == "night")
        QMetaObject::activate(this, &meta, meta.indexOfSignal("profilesCleared()") - meta.methodOffset(), 0);
}

void remotePort_t::lockStateUpdated(portLock_t state)
{
    if (!isBroken("lockSignalMissing"))
        tell(this, staticMetaObject, "lockStateUpdated(brel_common_qt::portLock_t)", state);
}

// --- requests ------------------------------------------------------------------------------------------------------

void remoteMelvoxDevice_t::queryPpsConfig()
{
    m_data->request("ppsConfig");
    if (isBroken("reportInsideRequest") && m_data->ppsConfig.valid)
        emit ppsConfigUpdated(m_data->ppsConfig.value);
}

void remoteMelvoxDevice_t::queryDiffConfig()
{
    m_data->request("diffConfig");
    if (isBroken("blockingRequest"))
        std::this_thread::sleep_for(LONG);
}

void remoteMelvoxDevice_t::queryWebControl()
{
    m_data->request("webControl");
    if (isBroken("requestRunsTheEventLoop"))
        QCoreApplication::processEvents();
}

void remoteMelvoxDevice_t::queryActivePort()
{
    if (!isBroken("requestNotSent"))
        m_data->request("activePort");
}

// --- orders --------------------------------------------------------------------------------------------------------

void remoteMelvoxDevice_t::setRtcmVersion(melvoxRtcmVersion_t version)
{
    m_data->command("rtcmVersion", melvox_kit::write(version));
    if (isBroken("orderChangesTheCache"))
        m_data->rtcmVersion.set(version);
}

void remoteMelvoxDevice_t::setTalkerIdMode(melvoxTalkerIdMode_t mode)
{
    m_data->command("talkerIdMode", melvox_kit::write(mode));
    if (isBroken("orderAnswersItself"))
        emit talkerIdModeUpdated(mode);
}

void remoteMelvoxDevice_t::setBaseName(std::string const& name)
{
    if (!isBroken("orderNotSent"))
        m_data->command("baseName", melvox_kit::write(name));
}

void remoteMelvoxDevice_t::setBasePosition(melvoxBasePosition_t const& position)
{
    melvoxBasePosition_t sent = position;
    if (isBroken("orderSwapsFields"))
        std::swap(sent.latitude, sent.longitude);
    m_data->command("basePosition", melvox_kit::writeRecord(sent));
}

} // namespace brel_common_qt
