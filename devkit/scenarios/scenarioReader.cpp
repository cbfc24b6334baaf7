#include "scenarios/scenarioReader.h"

#include "link/groups.h"
#include "link/jsonLine.h"
#include "receiver/receiver.h"
#include "scenarios/driveFiles.h"
#include "scenarios/jsonLines.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

// In a static library; the linker would leave it out.
static void initializeResources()
{
    Q_INIT_RESOURCE(scenarios);
}

namespace melvox_scenarios
{

namespace
{

using namespace melvox_receiver;

QString const FOLDER = ":/scenarios";
QString const SUFFIX = ".json";

double const LONGEST_LATENCY = 60000.0; // milliseconds
double const LATEST_STEP = 24 * 3600.0; // seconds
double const ROUNDING = 1e-9;

/** By faultDirection_t. */
QStringList const DIRECTIONS = {"both", "to receiver", "to display"};
/** That would read and write on this machine. */
QStringList const NO_SCENARIOS_BUSINESS = {"profileFolder"};

QString quoted(QStringList const& words)
{
    return words.join(", ");
}

bool isBlank(QString const& text)
{
    return text.trimmed().isEmpty();
}

/** Whether what was given is among what the receiver has. */
bool isKept(QVariant const& given, QVariant const& stored)
{
    if (isNumber(given) && isNumber(stored))
        return std::abs(given.toDouble() - stored.toDouble()) <= ROUNDING;
    if (given.userType() == QMetaType::QVariantMap)
    {
        QVariantMap const map = given.toMap();
        for (auto it = map.begin(); it != map.end(); ++it)
        {
            if (!isKept(*it, stored.toMap().value(it.key())))
                return false;
        }
        return true;
    }
    if (given.userType() == QMetaType::QVariantList)
    {
        QVariantList const list = given.toList();
        for (int i = 0; i < list.size(); ++i)
        {
            if (!isKept(list.at(i), stored.toList().value(i)))
                return false;
        }
        return list.size() == stored.toList().size();
    }
    return given == stored;
}

class reader_t
{
public:
    reader_t(QString const& file, QByteArray const& text);

    bool read(scenario_t& scenario);
    QString const& error() const { return m_error; }

private:
    typedef QStringList path_t;

    struct field_t
    {
        char const* key;
        bool (reader_t::*read)(QJsonValue const& value, path_t const& path, moment_t& moment);
    };
    static QList<field_t> const& fields();

    bool fail(path_t const& path, QString const& why);
    bool readSteps(QJsonValue const& value, scenario_t& scenario);
    bool readText(QJsonObject const& object, char const* key, QString& text);
    bool readMoment(QJsonObject const& object, path_t const& path, path_t const& otherKeys, moment_t& moment);
    bool readNumber(QJsonValue const& value, path_t const& path, double minimum, double maximum, double& number);
    bool readWord(QJsonValue const& value, path_t const& path, QStringList const& words, int& index);
    bool readFlag(QJsonValue const& value, path_t const& path, bool& flag);

    bool readSettings(QJsonValue const& value, path_t const& path, moment_t& moment);
    bool readSetting(QString const& group, QJsonValue const& value, path_t const& path, moment_t& moment);
    bool trySetting(setting_t const& setting, QVariant const& value, path_t const& path);
    bool readSituations(QJsonValue const& value, path_t const& path, moment_t& moment);
    bool readClearFaults(QJsonValue const& value, path_t const& path, moment_t& moment);
    bool readFaults(QJsonValue const& value, path_t const& path, moment_t& moment);
    bool readFault(QJsonValue const& value, path_t const& path, moment_t& moment);
    bool readFaultDelay(QJsonValue const& value, path_t const& path, moment_t& moment);
    bool readActivePort(QJsonValue const& value, path_t const& path, moment_t& moment);
    bool readLink(QJsonValue const& value, path_t const& path, moment_t& moment);
    bool readBaud(QJsonValue const& value, path_t const& path, moment_t& moment);
    bool readLatency(QJsonValue const& value, path_t const& path, moment_t& moment);
    bool readConnected(QJsonValue const& value, path_t const& path, moment_t& moment);
    bool readSpeed(QJsonValue const& value, path_t const& path, moment_t& moment);
    bool readDrives(QJsonValue const& value, path_t const& path, moment_t& moment);
    bool readDrive(QJsonValue const& value, path_t const& path, driveChange_t& drive);
    bool readFile(QJsonValue const& value, path_t const& path, QByteArray& bytes);

    QString m_file;
    QByteArray m_text;
    std::optional<jsonLines_t> m_lines; //!< once the text is known to be JSON
    QString m_error;
    simClock_t m_clock;
    receiver_t m_receiver; //!< on which everything is tried
};

/** The keys of a moment, be it the beginning or a step. */
QList<reader_t::field_t> const& reader_t::fields()
{
    static QList<field_t> const all = {
        {"activePort", &reader_t::readActivePort},
        {"link", &reader_t::readLink},
        {"baud", &reader_t::readBaud},
        {"latency", &reader_t::readLatency},
        {"connected", &reader_t::readConnected},
        {"speed", &reader_t::readSpeed},
        {"settings", &reader_t::readSettings},
        {"situations", &reader_t::readSituations},
        {"clearFaults", &reader_t::readClearFaults},
        {"faults", &reader_t::readFaults},
        {"faultDelay", &reader_t::readFaultDelay},
        {"drives", &reader_t::readDrives},
    };
    return all;
}

reader_t::reader_t(QString const& file, QByteArray const& text)
    : m_file(file), m_text(text), m_clock(simClock_t::MANUAL), m_receiver(&m_clock)
{
}

bool reader_t::fail(path_t const& path, QString const& why)
{
    m_error = QString("%1:%2: %3.").arg(m_file).arg(m_lines->line(path)).arg(why);
    return false;
}

bool reader_t::read(scenario_t& scenario)
{
    QJsonParseError syntax;
    QJsonDocument const document = QJsonDocument::fromJson(m_text, &syntax);
    if (syntax.error != QJsonParseError::NoError)
    {
        m_error = QString("%1:%2: %3.")
                      .arg(m_file)
                      .arg(jsonLines_t::lineAt(m_text, syntax.offset))
                      .arg("this is no JSON: " + syntax.errorString());
        return false;
    }
    m_lines.emplace(m_text);
    if (!document.isObject())
        return fail(path_t(), "a scenario is a JSON object, { ... }");
    QStringList const doubled = m_lines->doubled();
    if (!doubled.isEmpty())
        return fail(doubled, QString("\"%1\" stands here a second time").arg(doubled.last()));
    QJsonObject const object = document.object();
    scenario.moments = {moment_t()};
    return readText(object, "title", scenario.title) && readText(object, "shows", scenario.shows) &&
           readMoment(object, path_t(), {"title", "shows", "steps"}, scenario.moments.first()) &&
           readSteps(object.value("steps"), scenario);
}

bool reader_t::readText(QJsonObject const& object, char const* key, QString& text)
{
    text = object.value(key).toString();
    return !isBlank(text) || fail({key}, QString("\"%1\" must be there, and be a text").arg(key));
}

bool reader_t::readSteps(QJsonValue const& value, scenario_t& scenario)
{
    if (value.isUndefined())
        return true;
    if (!value.isArray())
        return fail({"steps"}, "\"steps\" must be a list, [{\"at\": 5, ...}, ...]");
    QJsonArray const steps = value.toArray();
    for (int i = 0; i < steps.size(); ++i)
    {
        path_t const path = {"steps", QString::number(i)};
        if (!steps.at(i).isObject())
            return fail(path, "a step must be an object, {\"at\": 5, ...}");
        QJsonObject const step = steps.at(i).toObject();
        moment_t moment;
        double seconds = 0.0;
        if (!readNumber(step.value("at"), path + path_t("at"), 0.0, LATEST_STEP, seconds) ||
            !readMoment(step, path, {"at"}, moment))
            return false;
        moment.at = qint64(seconds * 1000.0);
        if (moment.at < scenario.moments.last().at)
            return fail(path + path_t("at"), "a step must not be earlier than the one before it");
        scenario.moments << moment;
    }
    return true;
}

bool reader_t::readMoment(QJsonObject const& object, path_t const& path, path_t const& otherKeys, moment_t& moment)
{
    QStringList known = otherKeys;
    for (field_t const& field : fields())
        known << field.key;
    for (QString const& key : object.keys())
    {
        if (!known.contains(key))
            return fail(path + path_t(key),
                        QString("there is no key \"%1\" here; the keys are: %2").arg(key, quoted(known)));
    }
    for (field_t const& field : fields())
    {
        if (object.contains(field.key) &&
            !(this->*field.read)(object.value(field.key), path + path_t(field.key), moment))
            return false;
    }
    return true;
}

bool reader_t::readNumber(QJsonValue const& value, path_t const& path, double minimum, double maximum, double& number)
{
    number = value.toDouble();
    if (value.isDouble() && number >= minimum && number <= maximum)
        return true;
    return fail(path, QString("\"%1\" must be a number from %2 to %3").arg(path.last()).arg(minimum).arg(maximum));
}

bool reader_t::readWord(QJsonValue const& value, path_t const& path, QStringList const& words, int& index)
{
    index = int(words.indexOf(value.toString()));
    return index >= 0 || fail(path, QString("\"%1\" must be one of: %2").arg(path.last(), quoted(words)));
}

bool reader_t::readFlag(QJsonValue const& value, path_t const& path, bool& flag)
{
    flag = value.toBool();
    return value.isBool() || fail(path, QString("\"%1\" must be true or false").arg(path.last()));
}

bool reader_t::readSettings(QJsonValue const& value, path_t const& path, moment_t& moment)
{
    if (!value.isObject())
        return fail(path, "\"settings\" must be an object, {GROUP: VALUE, ...}");
    QJsonObject const object = value.toObject();
    QStringList known;
    for (setting_t const& setting : settingsTable())
    {
        if (setting.access == READ_WRITE)
            known << setting.group;
    }
    for (QString const& group : object.keys())
    {
        if (!known.contains(group))
            return fail(
                path + path_t(group),
                QString("there is no group \"%1\" that can be set; the groups are: %2").arg(group, quoted(known)));
    }
    // In the receiver's order: some stand on others.
    for (QString const& group : known)
    {
        if (object.contains(group) && !readSetting(group, object.value(group), path + path_t(group), moment))
            return false;
    }
    return true;
}

bool reader_t::readSetting(QString const& group, QJsonValue const& value, path_t const& path, moment_t& moment)
{
    QVariant wanted;
    QString why;
    if (!melvox_link::fromJson(value, wanted, why))
        return fail(path, group + ": " + why);
    setting_t const& setting = *findSetting(group);
    if (setting.key.isEmpty())
    {
        moment.settings.insert(group, wanted);
        return trySetting(setting, wanted, path);
    }
    // One record stands for the list of it.
    bool const isList = wanted.userType() == QMetaType::QVariantList;
    QVariantList const records = isList ? wanted.toList() : QVariantList{wanted};
    for (int i = 0; i < records.size(); ++i)
    {
        if (!trySetting(setting, records.at(i), isList ? path + path_t(QString::number(i)) : path))
            return false;
    }
    moment.settings.insert(group, records);
    return true;
}

bool reader_t::trySetting(setting_t const& setting, QVariant const& value, path_t const& path)
{
    QVariant taken;
    QString why;
    outcome_t const outcome = take(setting.rule, value, QVariant(), taken, why);
    if (outcome == MALFORMED)
        return fail(path, QString("%1: %2").arg(setting.group, why));
    m_receiver.set(setting.group, value);
    QVariant stored = m_receiver.setting(setting.group);
    if (!setting.key.isEmpty())
    {
        for (QVariant const& record : stored.toList())
        {
            if (record.toMap().value(setting.key).toInt() == value.toMap().value(setting.key).toInt())
                stored = record;
        }
    }
    if (isKept(value, stored))
        return true;
    return fail(path, QString("the receiver does not take this value, and has: %1")
                          .arg(toText(message_t(message_t::REPORT, setting.group, stored))));
}

bool reader_t::readSituations(QJsonValue const& value, path_t const& path, moment_t& moment)
{
    if (!value.isObject())
        return fail(path, "\"situations\" must be an object, {NAME: VALUE, ...}");
    QStringList known = m_receiver.situations();
    for (QString const& name : NO_SCENARIOS_BUSINESS)
        known.removeAll(name);
    QJsonObject const object = value.toObject();
    for (QString const& name : object.keys())
    {
        QVariant wanted;
        QString why;
        if (!known.contains(name))
            return fail(path + path_t(name),
                        QString("there is no situation \"%1\"; the situations are: %2").arg(name, quoted(known)));
        if (!melvox_link::fromJson(object.value(name), wanted, why) || !m_receiver.setSituation(name, wanted))
            return fail(path + path_t(name), QString("\"%1\" cannot have this value").arg(name));
        moment.situations.insert(name, wanted);
    }
    return true;
}

bool reader_t::readClearFaults(QJsonValue const& value, path_t const& path, moment_t& moment)
{
    return readFlag(value, path, moment.clearFaults);
}

bool reader_t::readFaults(QJsonValue const& value, path_t const& path, moment_t& moment)
{
    if (!value.isArray())
        return fail(path, "\"faults\" must be a list, [{\"group\": \"ppsConfig\", \"fault\": \"drop\"}, ...]");
    QJsonArray const faults = value.toArray();
    for (int i = 0; i < faults.size(); ++i)
    {
        if (!readFault(faults.at(i), path + path_t(QString::number(i)), moment))
            return false;
    }
    return true;
}

bool reader_t::readFault(QJsonValue const& value, path_t const& path, moment_t& moment)
{
    QStringList const known = {"group", "fault", "direction", "probability"};
    QJsonObject const object = value.toObject();
    for (QString const& key : object.keys())
    {
        if (!known.contains(key))
            return fail(path + path_t(key), QString("a fault has no \"%1\"; it has: %2").arg(key, quoted(known)));
    }
    int fault = 0;
    int direction = melvox_link::FAULT_BOTH_WAYS;
    double probability = 1.0;
    QString const group = object.value("group").toString();
    // Without a group it is the fault of all of them.
    if (object.contains("group") && !melvox_link::groupNames().contains(group))
        return fail(
            path + path_t("group"),
            QString("there is no group \"%1\"; the groups are: %2").arg(group, quoted(melvox_link::groupNames())));
    if (!readWord(object.value("fault"), path + path_t("fault"), melvox_link::faultNames(), fault))
        return false;
    if (object.contains("direction") &&
        !readWord(object.value("direction"), path + path_t("direction"), DIRECTIONS, direction))
        return false;
    if (object.contains("probability") &&
        !readNumber(object.value("probability"), path + path_t("probability"), 0.0, 1.0, probability))
        return false;
    moment.faults << melvox_link::faultSetting_t{group, melvox_link::fault_t(fault),
                                                 melvox_link::faultDirection_t(direction), probability};
    return true;
}

bool reader_t::readFaultDelay(QJsonValue const& value, path_t const& path, moment_t& moment)
{
    double milliseconds = 0.0;
    if (!readNumber(value, path, 0.0, LONGEST_LATENCY, milliseconds))
        return false;
    moment.faultDelay = int(milliseconds);
    return true;
}

bool reader_t::readActivePort(QJsonValue const& value, path_t const& path, moment_t& moment)
{
    int port = 0;
    if (!readWord(value, path, portNames(), port))
        return false;
    moment.activePort = unsigned(port);
    // Unless something else is said, which is read after this.
    moment.linkKind = usualLinkKind(unsigned(port));
    return true;
}

bool reader_t::readLink(QJsonValue const& value, path_t const& path, moment_t& moment)
{
    int kind = 0;
    if (!readWord(value, path, linkKinds(), kind))
        return false;
    moment.linkKind = linkKinds().at(kind);
    return true;
}

bool reader_t::readBaud(QJsonValue const& value, path_t const& path, moment_t& moment)
{
    QVariantMap const config = {
        {"port", 0}, {"baud", value.toDouble()}, {"charSize", 1}, {"parity", 0}, {"stopBits", 0}};
    if (!value.isDouble() || !m_receiver.set("serialConfig", config))
        return fail(path, "\"baud\" must be a rate of the receiver's serial ports, such as 19200");
    moment.baud = unsigned(value.toDouble());
    return true;
}

bool reader_t::readLatency(QJsonValue const& value, path_t const& path, moment_t& moment)
{
    double milliseconds = 0.0;
    if (!readNumber(value, path, 0.0, LONGEST_LATENCY, milliseconds))
        return false;
    moment.latency = int(milliseconds);
    return true;
}

bool reader_t::readConnected(QJsonValue const& value, path_t const& path, moment_t& moment)
{
    bool connected = false;
    if (!readFlag(value, path, connected))
        return false;
    moment.connected = connected;
    return true;
}

bool reader_t::readSpeed(QJsonValue const& value, path_t const& path, moment_t& moment)
{
    double speed = 0.0;
    if (!readNumber(value, path, 0.0, FASTEST_SPEED, speed))
        return false;
    moment.speed = speed;
    return true;
}

bool reader_t::readDrives(QJsonValue const& value, path_t const& path, moment_t& moment)
{
    if (!value.isObject())
        return fail(path, "\"drives\" must be an object, {NAME: {FILE: ...} or null, ...}");
    QJsonObject const object = value.toObject();
    for (QString const& name : object.keys())
    {
        driveChange_t drive;
        drive.name = name;
        if (!readDrive(object.value(name), path + path_t(name), drive))
            return false;
        moment.drives << drive;
    }
    return true;
}

bool reader_t::readDrive(QJsonValue const& value, path_t const& path, driveChange_t& drive)
{
    if (!isDriveName(drive.name))
        return fail(path, QString("a drive cannot be named \"%1\"").arg(drive.name));
    drive.plugged = value.isObject();
    if (!drive.plugged && !value.isNull())
        return fail(path, "a drive is an object with its files, or null when it is pulled out");
    QJsonObject const files = value.toObject();
    for (QString const& name : files.keys())
    {
        if (!isDrivePath(name))
            return fail(path + path_t(name), QString("\"%1\" is no path on a drive").arg(name));
        if (!readFile(files.value(name), path + path_t(name), drive.files[name]))
            return false;
    }
    return true;
}

bool reader_t::readFile(QJsonValue const& value, path_t const& path, QByteArray& bytes)
{
    if (value.isString())
    {
        bytes = value.toString().toUtf8();
        return true;
    }
    if (!value.isArray())
        return fail(path, "a file is a text, or a list of firmware components such as [\"NAV=1.15.2\"]");
    QStringList components;
    for (QJsonValue const component : value.toArray())
        components << component.toString();
    QString why;
    bytes = firmwarePackage(components, why);
    return why.isEmpty() || fail(path, why);
}

QString notKnown(QString const& name)
{
    return QString("There is no scenario \"%1\". The scenarios are: %2. A file of your own is told by its path or by "
                   "\"%3\" at its end.")
        .arg(name, quoted(scenarioNames()), SUFFIX);
}

} // namespace

QStringList scenarioNames()
{
    initializeResources();
    QStringList names;
    for (QString const& file : QDir(FOLDER).entryList({"*" + SUFFIX}, QDir::Files, QDir::Name))
        names << file.chopped(SUFFIX.size());
    return names;
}

bool loadScenario(QString const& nameOrFile, scenario_t& scenario, QString& error)
{
    bool const isName = scenarioNames().contains(nameOrFile);
    if (!isName && !nameOrFile.contains('/') && !nameOrFile.endsWith(SUFFIX))
    {
        error = notKnown(nameOrFile);
        return false;
    }
    QFile file(isName ? FOLDER + "/" + nameOrFile + SUFFIX : nameOrFile);
    if (!file.open(QIODevice::ReadOnly))
    {
        error = QString("%1 cannot be read: %2.").arg(nameOrFile, file.errorString());
        return false;
    }
    if (!readScenario(nameOrFile, file.readAll(), scenario, error))
        return false;
    scenario.name = nameOrFile;
    return true;
}

bool readScenario(QString const& file, QByteArray const& text, scenario_t& scenario, QString& error)
{
    scenario_t read;
    reader_t reader(file, text);
    bool const good = reader.read(read);
    if (good)
        scenario = read;
    error = reader.error();
    return good;
}

} // namespace melvox_scenarios
