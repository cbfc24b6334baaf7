#include "brel_common_qt/melvoxAntenna.h"
#include "brel_common_qt/melvoxDifferential.h"
#include "brel_common_qt/melvoxFirmware.h"
#include "brel_common_qt/melvoxNavigation.h"
#include "brel_common_qt/melvoxOutput.h"
#include "brel_common_qt/melvoxPort.h"
#include "brel_common_qt/textHelpers.h"
#include "brel_common_qt/timestamps.h"
#include "brel_common_qt/usbDriveManager.h"
#include "brel_common_qt/version.h"

#include <QDateTime>
#include <QStringList>

namespace brel_common_qt
{

QString const YesString("yes");
QString const NoString("no");
QString const NoneString("none");
QString const UnknownString("unknown");
QString const NoDataString("no data");
QString const utcString(" UTC");

std::string const MELVOX_MEAS_NAME_GPS("GPS");
std::string const MELVOX_MEAS_NAME_GLONASS("GLO");
std::string const MELVOX_MEAS_NAME_GALILEO("GAL");
std::string const MELVOX_MEAS_NAME_BEIDOU("BEI");

QString const SrecFileSuffix("srec");
QString const MelvoxWebUiPackageFileSuffix("webui");
QString const UsbUpdatesDir("/updates");

namespace
{

QStringList portNames()
{
    return QString("COM1 COM2 COM3 COM4 USB1 USB2 ETH1 ETH2 ETH3 ETH4 ETH5 ETH6 ETH7 ETH8").split(' ');
}

QString angleString(double degrees, char const* sides, bool useDirection)
{
    QString const number = QString::number(useDirection ? qAbs(degrees) : degrees, 'f', 9);
    return useDirection ? number + ' ' + sides[degrees < 0] : number;
}

} // namespace

QString melvoxPortName(melvoxPort_t port)
{
    return portNames().value(port, UnknownString);
}

melvoxPort_t melvoxPortFromName(QString const& name)
{
    int const index = portNames().indexOf(name);
    return index < 0 ? MELVOX_PORT_UNKNOWN : static_cast<melvoxPort_t>(index);
}

QString melvoxAntennaName(melvoxAntenna_t antenna)
{
    return antenna == MELVOX_ANTENNA_FIRST ? "first" : "second";
}

bool melvoxDiffModeIsBase(melvoxDiffMode_t mode)
{
    return mode >= MELVOX_DIFF_MODE_BASE_MIN;
}

bool melvoxDiffModeIsDynamic(melvoxDiffMode_t mode)
{
    return mode == MELVOX_DIFF_MODE_ROVER_RTCM;
}

QString melvoxFirmwareComponentString(melvoxFirmwareComponent_t component)
{
    return "component " + QString::number(component);
}

QString melvoxFirmwareUpdateStatusString(melvoxFirmwareUpdateStatus_t status)
{
    return "status " + QString::number(status);
}

// No file is firmware here.
void melvoxFirmwareScanFile(QString const&, QList<melvoxFirmwareScanRecord_t>&, int)
{
}

void melvoxFirmwareScanDir(QString const&, QStringList&, QList<melvoxFirmwareScanRecord_t>&, int)
{
}

QString toString(ggaQuality_t quality)
{
    return quality == GGA_QUALITY_UNKNOWN ? "" : quality == GGA_QUALITY_RTK ? "5" : "2";
}

QString baudString(unsigned int baud)
{
    return QString::number(baud);
}

QString parityString(parity_t parity)
{
    return parity == PARITY_N ? "none" : parity == PARITY_O ? "odd" : "even";
}

QString charSizeString(charSize_t charSize)
{
    return charSize == CHAR_SIZE_7 ? "7" : "8";
}

QString stopBitsString(stopBits_t stopBits)
{
    return stopBits == STOP_1 ? "1" : "2";
}

QString latitudeString(double degrees, latLonStringOptions_t const& options)
{
    return angleString(degrees, "NS", options.useDirection);
}

QString longitudeString(double degrees, latLonStringOptions_t const& options)
{
    return angleString(degrees, "EW", options.useDirection);
}

QString distanceString(double metres, distanceUnit_t unit, int decimals)
{
    if (unit == DISTANCE_UNIT_US_SURVEY_FOOT)
        return QString::number(metres * 3937 / 1200, 'f', decimals) + " ft";
    return QString::number(metres, 'f', decimals) + " m";
}

double dataTimestamp()
{
    return QDateTime::currentMSecsSinceEpoch() / 1000.0;
}

QString filenameTimestamp(unsigned int seconds, int)
{
    return QString::number(seconds);
}

bool parseVersion(std::string const& text, std::vector<unsigned int>& version)
{
    std::vector<unsigned int> parts;
    QStringList const words = QString::fromStdString(text).split('.');
    for (QString const& word : words)
    {
        bool good = false;
        parts.push_back(word.toUInt(&good));
        if (!good)
            return false;
    }
    version = parts;
    return true;
}

int versionCompare(std::vector<unsigned int> const& a, std::vector<unsigned int> const& b)
{
    return a < b ? -1 : b < a ? 1 : 0;
}

bool buildVersion(QString& text, std::vector<unsigned int> const& version)
{
    QStringList parts;
    for (unsigned int part : version)
        parts << QString::number(part);
    text = parts.join(".");
    return !version.empty();
}

struct usbDriveManager_t::privateData_t
{
};

// A unit without USB drives.
usbDriveManager_t* usbDriveManager_t::m_instance = nullptr;

usbDriveManager_t::usbDriveManager_t(QObject* parent) : QObject(parent), m_data(nullptr)
{
    m_instance = this;
}

usbDriveManager_t::~usbDriveManager_t()
{
    m_instance = nullptr;
    delete m_data;
}

QList<usbDrive_t> usbDriveManager_t::drives() const
{
    return QList<usbDrive_t>();
}

} // namespace brel_common_qt
