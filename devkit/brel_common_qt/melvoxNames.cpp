#include "brel_common_qt/melvoxAntenna.h"
#include "brel_common_qt/melvoxDifferential.h"
#include "brel_common_qt/melvoxFirmware.h"
#include "brel_common_qt/melvoxNavigation.h"
#include "brel_common_qt/melvoxOutput.h"
#include "brel_common_qt/melvoxPort.h"
#include "brel_common_qt/textHelpers.h"

#include <QCoreApplication>

namespace brel_common_qt
{

std::string const MELVOX_MEAS_NAME_GPS("GPS");
std::string const MELVOX_MEAS_NAME_GLONASS("GLO");
std::string const MELVOX_MEAS_NAME_GALILEO("GAL");
std::string const MELVOX_MEAS_NAME_BEIDOU("BEI");

QString const SrecFileSuffix("srec");
QString const MelvoxWebUiPackageFileSuffix("webui");

// With a separator of its own: right after mount points that end with one, and after those that do not.
QString const UsbUpdatesDir("/updates");

namespace
{

char const* const PORT_NAMES[MELVOX_NUM_PORTS] = {"COM1", "COM2", "COM3", "COM4", "USB1", "USB2", "ETH1",
                                                  "ETH2", "ETH3", "ETH4", "ETH5", "ETH6", "ETH7", "ETH8"};

char const* const COMPONENT_NAMES[MELVOX_NUM_FW_COMPONENTS] = {
    "BOOT1",        // MELVOX_FW_COMP_BOOT1
    "BOOT2",        // MELVOX_FW_COMP_BOOT2
    "NAV",          // MELVOX_FW_COMP_NAV
    "MTEST",        // MELVOX_FW_COMP_MTEST
    "PIOBOOT1",     // MELVOX_FW_COMP_PIO_BOOT1
    "PIOBOOT2",     // MELVOX_FW_COMP_PIO_BOOT2
    "PIOAPP",       // MELVOX_FW_COMP_PIO_APP
    "PIOBLUETOOTH", // MELVOX_FW_COMP_PIO_BLUETOOTH
    "STM8",         // MELVOX_FW_COMP_STM8
    "MFGPIOB",      // MELVOX_FW_COMP_MFG_PIOB
    "MFGGNSS",      // MELVOX_FW_COMP_MFG_GNSS
    "OCEANTIDE",    // MELVOX_FW_COMP_OCEAN_TIDE
    "GEOIDGRID",    // MELVOX_FW_COMP_GLOBAL_GEOID_GRID
    "GPB",          // MELVOX_FW_COMP_GPB
    "GEOID99",      // MELVOX_FW_COMP_GEOID99
    "GGM02",        // MELVOX_FW_COMP_GGM02
    "ALL"           // MELVOX_FW_COMP_ALL
};

} // namespace

QString melvoxPortName(melvoxPort_t port)
{
    unsigned int const index = port;
    return index < MELVOX_NUM_PORTS ? QString::fromLatin1(PORT_NAMES[index]) : UnknownString;
}

melvoxPort_t melvoxPortFromName(QString const& name)
{
    for (int port = MELVOX_PORT_FIRST; port < MELVOX_NUM_PORTS; ++port)
    {
        if (name == QLatin1String(PORT_NAMES[port]))
            return static_cast<melvoxPort_t>(port);
    }
    return MELVOX_PORT_UNKNOWN;
}

QString melvoxAntennaName(melvoxAntenna_t antenna)
{
    switch (antenna)
    {
    case MELVOX_ANTENNA_FIRST:
        return QCoreApplication::translate("brel_common_qt", "Primary");
    case MELVOX_ANTENNA_SECOND:
        return QCoreApplication::translate("brel_common_qt", "Secondary");
    default:
        return UnknownString;
    }
}

bool melvoxDiffModeIsBase(melvoxDiffMode_t mode)
{
    return mode >= MELVOX_DIFF_MODE_BASE_MIN;
}

bool melvoxDiffModeIsDynamic(melvoxDiffMode_t mode)
{
    return !melvoxDiffModeIsBase(mode);
}

QString toString(ggaQuality_t quality)
{
    switch (quality)
    {
    case GGA_QUALITY_DIFF_SPS:
        return QLatin1String("2");
    case GGA_QUALITY_RTK:
        return QLatin1String("5");
    default:
        return QString();
    }
}

QString melvoxFirmwareComponentString(melvoxFirmwareComponent_t component)
{
    unsigned int const index = component;
    return index < MELVOX_NUM_FW_COMPONENTS ? QString::fromLatin1(COMPONENT_NAMES[index]) : UnknownString;
}

QString melvoxFirmwareUpdateStatusString(melvoxFirmwareUpdateStatus_t status)
{
    switch (status)
    {
    case MELVOX_FWU_STATUS_NOT_STARTED:
        return QCoreApplication::translate("brel_common_qt", "Not started");
    case MELVOX_FWU_STATUS_IN_PROGRESS:
        return QCoreApplication::translate("brel_common_qt", "In progress");
    case MELVOX_FWU_STATUS_SUCCESS:
        return QCoreApplication::translate("brel_common_qt", "Success");
    case MELVOX_FWU_STATUS_FAILURE:
        return QCoreApplication::translate("brel_common_qt", "Failure");
    default:
        return UnknownString;
    }
}

} // namespace brel_common_qt
