#include "watch.h"

using brel_common_qt::remoteMelvoxDevice_t;
using melvox_link::message_t;

namespace melvox_robustness
{

namespace
{

/** Commands of groups that are edited only once their value is known, and how one tells. */
struct guarded_t
{
    char const* group;
    bool (remoteMelvoxDevice_t::*valid)() const;
};

guarded_t const GUARDED[] = {
    {"elevationMask", &remoteMelvoxDevice_t::elevationMaskValid},
    {"pdopLimit", &remoteMelvoxDevice_t::pdopLimitValid},
    {"geoidalModel", &remoteMelvoxDevice_t::geoidalModelValid},
    {"dynamicConfig", &remoteMelvoxDevice_t::dynamicConfigValid},
    {"antennaAlignment", &remoteMelvoxDevice_t::antennaAlignmentValid},
    {"ppsConfig", &remoteMelvoxDevice_t::ppsConfigValid},
    {"correctionSelection", &remoteMelvoxDevice_t::correctionSelectionValid},
    {"useNewStarfireAlm", &remoteMelvoxDevice_t::starfireAlmStatusValid},
    {"starfireAlmSwitchPolicy", &remoteMelvoxDevice_t::starfireAlmSwitchPolicyValid},
    {"diffConfig", &remoteMelvoxDevice_t::diffConfigValid},
    {"output", &remoteMelvoxDevice_t::activePortValid},
    {"turnOffAllOutput", &remoteMelvoxDevice_t::activePortValid},
    {"ggaMode", &remoteMelvoxDevice_t::ggaModeValid},
    {"talkerIdMode", &remoteMelvoxDevice_t::talkerIdModeValid},
    {"usbMode", &remoteMelvoxDevice_t::usbModeValid},
    {"webControl", &remoteMelvoxDevice_t::webControlValid},
};

/** What may be sent whatever is known of the receiver: settings that can be made before it told of them, and things to
 *  do rather than values. */
char const* const ALWAYS[] = {"ntripPPP",     // can be chosen before the receiver reported it
                              "measUse",      // goes out in full, rows that were never reported as "No"
                              "baseName",     // as it stands in the field
                              "basePosition", // zeros while there is none
                              "antennaRemote",     "antennaDualMode", // as they are chosen
                              "userCorrectionSat",                    // defined and cleared freely
                              "ethernetConfig", // behind a question; DHCP, or addresses that were all typed
                              "startWebUiUpload",  "saveAsProfile",   "dumpProfile",
                              "coldRestart",       "warmRestart",     "portLock"};

template <typename list_t> bool contains(list_t const& list, QString const& group)
{
    for (char const* name : list)
    {
        if (group == QLatin1String(name))
            return true;
    }
    return false;
}

bool valueOf(QVariantMap const& map, char const* key, int& number)
{
    bool good = false;
    number = map.value(key).toInt(&good);
    return good;
}

/** Others are not taken for one. */
bool isLock(QVariant const& value)
{
    int const type = value.userType();
    double const number = value.toDouble();
    bool const isNumber = type == QMetaType::Int || type == QMetaType::UInt || type == QMetaType::Double;
    return isNumber && (number == 0 || number == 1 || number == 2);
}

} // namespace

watch_t::watch_t(QObject* parent)
    : QObject(parent), m_device(nullptr), m_wantedLock(0), m_blocksInFlight(0), m_partsWanted(0), m_lockGranted(0),
      m_updateEnded(false), m_webUploadSeen(false), m_modemSeen(false), m_updating(false)
{
}

void watch_t::setDevice(remoteMelvoxDevice_t const* device)
{
    m_device = device;
}

void watch_t::setFault(QString const& fault)
{
    if (m_fault.isEmpty())
        m_fault = fault;
}

void watch_t::take(message_t const& message, bool fromDisplay)
{
    if (!fromDisplay)
        takeReport(message);
    else if (message.kind == message_t::COMMAND)
        takeCommand(message);
}

void watch_t::takeOpen(bool open)
{
    if (open)
        return;
    // Whatever was under way is lost, and the display is told so.
    m_wantedLock = 0;
    m_lockGranted = 0;
    m_blocksInFlight = 0;
    m_updating = false;
}

/** Before the display has it. What is noted here only ever allows more than the display may know. */
void watch_t::takeReport(message_t const& message)
{
    QVariantMap const value = message.value.toMap();
    int port = 0;
    if (message.group == "portLock" && isLock(message.value))
    {
        m_lockGranted = message.value.toInt();
        // Refused, or another one than was asked for, which nobody here holds.
        if (m_lockGranted != m_wantedLock)
            m_wantedLock = 0;
    }
    else if (message.group == "uploadResult")
        m_blocksInFlight = 0;
    else if (message.group == "fileWanted")
        ++m_partsWanted;
    else if (message.group == "firmwareUpdateState")
    {
        m_updateEnded = true;
        m_updating = m_updating && value.value("state") != 0 && value.value("state") != 2;
    }
    else if (message.group == "webUiUploadState")
        m_webUploadSeen = true;
    else if (message.group == "lteModemStat")
        m_modemSeen = true;
    else if (message.group == "profile")
        m_profiles << value.value("name").toString();
    else if (message.group == "vcomConfig" && valueOf(value, "port", port))
        m_virtualPorts << port;
    else if (message.group.startsWith("serial") && valueOf(value, "port", port))
        m_serialPorts << port;
    else if (message.group == "correctionSats")
    {
        QVariantList const all = message.value.toList();
        for (QVariant const& one : all)
            m_satellites << one.toMap().value("id").toUInt();
    }
}

void watch_t::takeCommand(message_t const& message)
{
    if (message.group == "portLock")
        m_wantedLock = message.value.toInt();
    m_updating = m_updating || message.group == "startFirmwareUpdate";
    countBlocks(message);
    if (!isAllowed(message))
        setFault("unasked: sent without knowing the receiver's value: " + melvox_link::toText(message).left(200));
}

void watch_t::countBlocks(message_t const& message)
{
    if (message.group == "uploadData")
    {
        if (++m_blocksInFlight > 1)
            setFault("blocks: more than one block of a profile under way");
        if (m_lockGranted == 0)
            setFault("unlocked: a block of a profile is sent without the lock");
        if (message.value.toByteArray().size() > 1024)
            setFault("blocks: a block is too long");
    }
    else if (message.group == "fileBlock" && --m_partsWanted < 0)
        setFault("blocks: a part of a file is sent that was not asked for");
}

bool watch_t::isAllowed(message_t const& message) const
{
    QString const& group = message.group;
    if (contains(ALWAYS, group))
        return true;
    for (guarded_t const& guarded : GUARDED)
    {
        if (group == QLatin1String(guarded.group))
            return (m_device->*guarded.valid)();
    }
    QVariantMap const value = message.value.toMap();
    int const type = value.value("type").toInt();
    bool enabled = false;
    unsigned int seconds = 0;
    if (group == "correctionEnabled")
        return m_device->getCorrectionEnabled(brel_common_qt::melvoxCorrectionType_t(type), enabled);
    if (group == "correctionMaxAge")
        return m_device->getCorrectionMaxAge(brel_common_qt::melvoxCorrectionType_t(type), seconds);
    if (group == "correctionSatSelection")
        return value.value("auto").toBool() || m_satellites.contains(value.value("id").toUInt());
    // A base always uses one version, which is sent with its configuration.
    if (group == "rtcmVersion")
        return m_device->rtcmVersionValid() || m_device->diffConfigValid();
    // Both go out together, from a row that one of them made.
    if (group == "antennaInfo" || group == "antennaHeight")
        return m_device->antennaInfoValid() || m_device->antennaHeightValid();
    bool known = false;
    bool const good = isAllowedAmongPorts(group, value, known);
    return known ? good : isAllowedAmongFiles(group, message.value, known) && known;
}

bool watch_t::isAllowedAmongPorts(QString const& group, QVariantMap const& value, bool& known) const
{
    known = group == "serialConfig" || group == "vcomConfig";
    int port = 0;
    if (!known || !valueOf(value, "port", port))
        return known; // the one over which the display itself is connected
    return group == "serialConfig" ? m_serialPorts.contains(port) : m_virtualPorts.contains(port);
}

bool watch_t::isAllowedAmongFiles(QString const& group, QVariant const& value, bool& known) const
{
    known = true;
    if (group == "useProfile" || group == "deleteProfile")
        return m_profiles.contains(value.toString());
    if (group == "cancelWebUiUpload")
        return m_webUploadSeen;
    // Switched off freely, on only when it told that it is off.
    if (group == "lteModemStat")
        return m_modemSeen || !value.toMap().value("on").toBool();
    // Only the boxes that tell how an update went restart the receiver.
    if (group == "reboot")
        return m_updateEnded;
    if (group == "startFirmwareUpdate")
        return m_device->activePortValid() && m_lockGranted != 0;
    if (group == "uploadData" || group == "fileBlock")
        return true; // counted
    known = false;
    return false;
}

} // namespace melvox_robustness
