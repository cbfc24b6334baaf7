#include "display/profileComparison.h"

#include "brel_common_qt/melvoxPort.h"
#include "brel_common_qt/textHelpers.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "receiver/profileText.h"
#include "receiver/settingWords.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHostAddress>
#include <QJsonDocument>
#include <QJsonValue>

#include <cmath>

namespace melvox_display
{

namespace
{

using brel_common_qt_gui::guiSettings_t;
using melvox_receiver::reading_t;
using melvox_receiver::setting_t;
using melvox_receiver::settings_t;
using melvox_receiver::settingWords_t;

qint64 const LONGEST_PROFILE = 1024 * 1024; // bytes
QByteArray const ANY_VERSION = "melvox-profile ";

double const DEGREES = 180.0 / std::acos(-1.0);
int const HEIGHT_DECIMALS = 3;
int const SIGNIFICANT_DIGITS = 10;

QString translated(char const* text)
{
    return QCoreApplication::translate("settings", text);
}

QString tr(char const* text)
{
    return QCoreApplication::translate("profileComparison", text);
}

struct shown_t
{
    QString text;
    QString unit;
};

/** Whatever has not the form that it should have is shown as it stands in the file. */
QString plainText(QVariant const& value)
{
    if (value.userType() == QMetaType::QString)
        return value.toString();
    if (value.userType() == QMetaType::Bool)
        return value.toBool() ? brel_common_qt::YesString : brel_common_qt::NoString;
    if (melvox_receiver::isNumber(value))
        return QString::number(value.toDouble(), 'g', SIGNIFICANT_DIGITS);
    QJsonDocument const document = QJsonDocument::fromVariant(value);
    return document.isNull() ? brel_common_qt::NoneString : QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

QString wordOf(settingWords_t const& words, QVariant const& value)
{
    double const number = value.toDouble();
    for (std::size_t i = 0; i < words.words.size(); ++i)
    {
        if (number == double(i))
            return translated(words.words[i]);
    }
    return plainText(value);
}

QString portOf(QVariant const& value)
{
    double const number = value.toDouble();
    bool const isPort = number >= brel_common_qt::MELVOX_PORT_FIRST && number < brel_common_qt::MELVOX_NUM_PORTS &&
                        std::floor(number) == number;
    return isPort ? brel_common_qt::melvoxPortName(brel_common_qt::melvoxPort_t(int(number)))
                  : brel_common_qt::NoneString;
}

QString addressOf(QVariant const& value)
{
    double const number = value.toDouble();
    bool const isAddress = number >= 0 && number <= 0xFFFFFFFFu && std::floor(number) == number;
    return isAddress ? QHostAddress(quint32(number)).toString() : plainText(value);
}

/** The unit is the last word of what the shared helper makes. */
shown_t distanceOf(QVariant const& value)
{
    QString const text =
        brel_common_qt::distanceString(value.toDouble(), guiSettings_t::get().distanceUnit(), HEIGHT_DECIMALS);
    return {text.section(' ', 0, -2), text.section(' ', -1)};
}

shown_t shownNumber(settingWords_t const& words, QVariant const& value)
{
    brel_common_qt::latLonStringOptions_t const options(guiSettings_t::get().latLonFormat());
    switch (words.reading)
    {
    case reading_t::WORDS:
        return {wordOf(words, value), QString()};
    case reading_t::PORT:
        return {portOf(value), QString()};
    case reading_t::ADDRESS:
        return {addressOf(value), QString()};
    case reading_t::LATITUDE:
        return {brel_common_qt::latitudeString(value.toDouble() * DEGREES, options), QString()};
    case reading_t::LONGITUDE:
        return {brel_common_qt::longitudeString(value.toDouble() * DEGREES, options), QString()};
    case reading_t::DISTANCE:
        return distanceOf(value);
    case reading_t::PLAIN:
    case reading_t::FLAG:
        break;
    }
    return {plainText(value), QString::fromUtf8(words.unit)};
}

shown_t shown(settingWords_t const* words, QVariant const& value)
{
    if (!words)
        return {plainText(value), QString()};
    return melvox_receiver::isNumber(value) ? shownNumber(*words, value)
                                            : shown_t{plainText(value), QString::fromUtf8(words->unit)};
}

/** One value of the settings, with all that it takes to show it. */
struct entry_t
{
    QString name;
    QString text;
    QString unit;
};

/** The values of one group, by what stays the same from one receiver to the other. */
typedef QList<QPair<QString, entry_t>> entries_t;

QString nameOf(QString const& group, QString const& field, settingWords_t const* words)
{
    return words ? translated(words->name) : field.isEmpty() ? group : group + ' ' + field;
}

void addRecord(entries_t& entries, QString const& group, QVariantMap const& record, QString const& prefix,
               settingWords_t const* key)
{
    for (auto it = record.begin(); it != record.end(); ++it)
    {
        if (key && it.key() == key->field)
            continue;
        settingWords_t const* const words = melvox_receiver::findWords(group, it.key());
        QString const name = nameOf(group, it.key(), words);
        shown_t const value = shown(words, it.value());
        entries << qMakePair(prefix + '/' + it.key(),
                             entry_t{prefix.isEmpty() ? name : prefix + ": " + name, value.text, value.unit});
    }
}

void addList(entries_t& entries, QString const& group, QVariantList const& list, settingWords_t const& key)
{
    bool const byPlace = key.field == QString(melvox_receiver::INDEX);
    for (int i = 0; i < list.size(); ++i)
    {
        QVariantMap const record = list.at(i).toMap();
        QVariant const which = byPlace ? QVariant(i) : record.value(key.field);
        addRecord(entries, group, record, shown(&key, which).text, &key);
    }
}

entries_t entriesOf(QString const& group, QVariant const& value)
{
    entries_t entries;
    settingWords_t const* const key = melvox_receiver::findKey(group);
    if (value.userType() == QMetaType::QVariantList && key)
    {
        addList(entries, group, value.toList(), *key);
    }
    else if (value.userType() == QMetaType::QVariantMap)
    {
        addRecord(entries, group, value.toMap(), QString(), nullptr);
    }
    else
    {
        settingWords_t const* const words = melvox_receiver::findWords(group, QString());
        shown_t const one = shown(words, value);
        entries << qMakePair(QString(), entry_t{nameOf(group, QString(), words), one.text, one.unit});
    }
    return entries;
}

QString textOf(entries_t const& entries, QString const& key)
{
    for (auto const& one : entries)
    {
        if (one.first == key)
            return one.second.text;
    }
    return brel_common_qt::NoDataString;
}

QString problemOf(QByteArray const& bytes, settings_t& settings)
{
    if (!bytes.startsWith(ANY_VERSION))
        return tr("This is no settings profile. Choose a file that was dumped from a receiver.");
    if (!melvox_receiver::startsProfile(bytes))
        return tr("This profile is of another version or was altered. Dump it again from the receiver that it is of.");
    switch (melvox_receiver::readProfile(bytes, settings))
    {
    case melvox_receiver::PROFILE_INCOMPLETE:
        return tr("This profile is incomplete: its end is missing. Copy it to the drive again.");
    case melvox_receiver::PROFILE_DAMAGED:
        return tr("This profile is damaged or was altered: its checksum is wrong. Copy it to the drive again.");
    case melvox_receiver::PROFILE_COMPLETE:
        break;
    }
    return settings.isEmpty() ? tr("This profile has no settings in it.") : QString();
}

} // namespace

profileFile_t readProfileFile(QString const& path)
{
    profileFile_t profile;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
    {
        profile.problem = tr("The file cannot be read: %1. Is the drive still plugged in?").arg(file.errorString());
        return profile;
    }
    // One byte more than there may be: what is too long is no profile.
    profile.bytes = file.read(LONGEST_PROFILE + 1);
    if (profile.bytes.size() > LONGEST_PROFILE)
        profile.problem = tr("This is no settings profile: it is too large.");
    else
        profile.problem = problemOf(profile.bytes, profile.settings);
    if (!profile.isGood())
        profile.settings.clear();
    return profile;
}

QList<difference_t> differences(settings_t const& now, settings_t const& then)
{
    QList<difference_t> found;
    for (setting_t const& setting : melvox_receiver::settingsTable())
    {
        if (setting.access != melvox_receiver::READ_WRITE || !then.contains(setting.group))
            continue;
        entries_t const before =
            now.contains(setting.group) ? entriesOf(setting.group, now.value(setting.group)) : entries_t();
        entries_t const after = entriesOf(setting.group, then.value(setting.group));
        for (auto const& one : after)
        {
            QString const text = textOf(before, one.first);
            if (text != one.second.text)
                found << difference_t{one.second.name, text, one.second.text, one.second.unit};
        }
    }
    return found;
}

} // namespace melvox_display
