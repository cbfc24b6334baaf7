#include "hostileReceiver.h"

#include "support/everything.h"
#include "support/operator.h"

#include <QVariant>

#include <cmath>
#include <limits>

using melvox_link::message_t;
using melvox_test::list;
using melvox_test::map;

namespace melvox_robustness
{

namespace
{

int const MUTED_PERCENT = 25;
int const SPOILT_PERCENT = 50;
int const HONEST_PERCENT = 75;
int const MOST_UNANSWERED = 200;
int const MOST_FILES = 20;
int const LONG_TEXT = 3000;
int const MANY_ENTRIES = 40;

/** Groups that only answer something, or that the samples have no value for. */
QList<message_t> rareReports()
{
    return {
        message_t(message_t::REPORT, "firmwareUpdateState", map("state", 1, "description", "Writing NAV")),
        message_t(message_t::REPORT, "firmwareUpdateState", map("state", 0, "description", "NAV could not be written")),
        message_t(message_t::REPORT, "firmwareUpdateState", map("state", 2, "description", "")),
        message_t(message_t::REPORT, "firmwareUpdateProgress",
                  list(map("component", 2, "status", 1), map("component", 6, "status", 2))),
        message_t(message_t::REPORT, "firmwareUpdatePercent", 0.123),
        message_t(message_t::REPORT, "webUiUploadState", map("state", 0, "description", "No room")),
        message_t(message_t::REPORT, "webUiUploadState", map("state", 2, "description", "")),
        // Mostly none: whoever is told that it has the lock holds everything else back.
        message_t(message_t::REPORT, "portLock", 0),
        message_t(message_t::REPORT, "portLock", 0),
        message_t(message_t::REPORT, "portLock", 0),
        message_t(message_t::REPORT, "portLock", 1),
        message_t(message_t::REPORT, "portLock", 2),
        message_t(message_t::REPORT, "uploadResult", 0),
        message_t(message_t::REPORT, "uploadResult", 1),
        message_t(message_t::REPORT, "profileDump",
                  map("path", "/etc/never", "success", true, "description", "Done", "data", QByteArray("x"))),
        message_t(message_t::EVENT, "badBaud"),
        message_t(message_t::EVENT, "fileWanted", map("path", "/etc/passwd", "offset", 0, "size", 100)),
    };
}

double anyNumber(dice_t& dice)
{
    static double const numbers[] = {0,
                                     -1,
                                     1,
                                     1e300,
                                     -1e300,
                                     4294967295.0,
                                     4294967296.0,
                                     2147483648.0,
                                     -2147483649.0,
                                     1e-300,
                                     0.1,
                                     90.0000001,
                                     -180,
                                     1e18,
                                     std::numeric_limits<double>::infinity(),
                                     -std::numeric_limits<double>::infinity(),
                                     std::nan("")};
    return dice.oneOf(numbers);
}

QString anyText(dice_t& dice)
{
    static QString const texts[] = {QString(),
                                    " ",
                                    "%1%2%99",
                                    "<b>bold</b><img src='x'>",
                                    QString::fromLatin1("a\0b", 3),
                                    QString::fromUtf8("\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80"),
                                    "line\nline\r\n\tline",
                                    QString(LONG_TEXT, 'W'),
                                    "NaN",
                                    "-1",
                                    "99999999999999999999",
                                    "1..2...3"};
    return dice.oneOf(texts);
}

QVariant anyLeaf(dice_t& dice, QVariant const& value)
{
    switch (dice.choice(7))
    {
    case 0:
        return QVariant();
    case 1:
        return anyText(dice);
    case 2:
        return int(dice.roll());
    case 3:
        return uint(dice.roll());
    case 4:
        return value.userType() == QMetaType::QString ? QVariant(anyText(dice)) : QVariant(value.toDouble() + 1);
    case 5:
        return value.userType() == QMetaType::QString ? QVariant(value.toString() + anyText(dice))
                                                      : QVariant(value.toDouble() - 1);
    default:
        return anyNumber(dice);
    }
}

QVariantMap spoiltMap(dice_t& dice, QVariantMap entries)
{
    QStringList const keys = entries.keys();
    if (keys.isEmpty())
        return entries;
    int const times = 1 + dice.choice(3);
    for (int i = 0; i < times; ++i)
    {
        QString const key = keys.at(dice.choice(keys.size()));
        entries.insert(key, spoilt(dice, entries.value(key)));
    }
    if (dice.chance(5))
        entries.remove(keys.at(dice.choice(keys.size())));
    return entries;
}

QVariantList spoiltList(dice_t& dice, QVariantList entries)
{
    if (entries.isEmpty())
        return entries;
    int const which = dice.choice(entries.size());
    switch (dice.choice(6))
    {
    case 0:
        entries.removeAt(which);
        break;
    case 1:
        entries << entries.at(which);
        break;
    case 2:
        while (entries.size() < MANY_ENTRIES)
            entries << spoilt(dice, entries.at(dice.choice(which + 1)));
        break;
    case 3:
        return QVariantList();
    default:
        entries[which] = spoilt(dice, entries.at(which));
        break;
    }
    return entries;
}

} // namespace

QVariant spoilt(dice_t& dice, QVariant const& value)
{
    if (value.userType() == QMetaType::QVariantMap && !dice.chance(3))
        return spoiltMap(dice, value.toMap());
    if (value.userType() == QMetaType::QVariantList && !dice.chance(3))
        return spoiltList(dice, value.toList());
    return anyLeaf(dice, value);
}

hostileReceiver_t::hostileReceiver_t(melvox_link::scriptedLink_t* link, QObject* parent) : QObject(parent), m_link(link)
{
    // What can be is learnt from the samples that the page tests use.
    melvox_link::scriptedLink_t samples;
    connect(&samples, &melvox_link::link_t::received, this, &hostileReceiver_t::learn);
    melvox_test::reportEverything(&samples);
    melvox_test::reportTheLongest(&samples);
    QList<message_t> const rare = rareReports();
    for (message_t const& message : rare)
        learn(message);
    m_groups.sort();
}

void hostileReceiver_t::learn(message_t const& message)
{
    if (!m_known.contains(message.group))
        m_groups << message.group;
    m_known[message.group] << message.value;
}

void hostileReceiver_t::drawMuted(dice_t dice)
{
    m_muted.clear();
    for (QString const& group : qAsConst(m_groups))
    {
        if (dice.chance(MUTED_PERCENT))
            m_muted << group;
    }
}

void hostileReceiver_t::take(message_t const& message)
{
    if (m_unanswered.size() < MOST_UNANSWERED)
        m_unanswered << message;
}

QString hostileReceiver_t::report(QString const& group, QVariant const& value)
{
    if (m_muted.contains(group))
        return "keeps " + group + " to itself";
    m_link->report(group, value);
    return "tells " + melvox_link::toText(message_t(message_t::REPORT, group, value)).left(200);
}

QVariant hostileReceiver_t::anyValue(dice_t& dice, QString const& group)
{
    QList<QVariant> const known = m_known.value(group);
    QVariant const value = known.isEmpty() ? QVariant() : known.at(dice.choice(known.size()));
    return dice.chance(SPOILT_PERCENT) ? spoilt(dice, value) : value;
}

QString hostileReceiver_t::tell(dice_t& dice)
{
    QString const group = m_groups.at(dice.choice(m_groups.size()));
    return report(group, anyValue(dice, group));
}

QString hostileReceiver_t::answer(dice_t& dice)
{
    if (m_unanswered.isEmpty())
        return tell(dice);
    message_t const message = m_unanswered.takeFirst();
    if (!dice.chance(HONEST_PERCENT))
        return "says nothing to " + message.group;
    if (message.kind == message_t::REQUEST)
        return report(message.group, anyValue(dice, message.group));
    return answerCommand(dice, message);
}

QString hostileReceiver_t::answerCommand(dice_t& dice, message_t const& message)
{
    QVariantMap const value = message.value.toMap();
    if (message.group == "portLock")
        return report("portLock", dice.chance(HONEST_PERCENT) ? message.value : QVariant(dice.choice(4)));
    if (message.group == "uploadData")
        return report("uploadResult", dice.chance(HONEST_PERCENT) ? 0 : dice.choice(5) - 1);
    if (message.group == "dumpProfile")
        return report("profileDump", map("path", message.value, "success", dice.chance(HONEST_PERCENT), "description",
                                         "Done", "data", QByteArray("settings")));
    if (message.group == "startWebUiUpload")
        return wantFile(dice, value.value("path").toString());
    if (message.group == "startFirmwareUpdate")
    {
        QVariantList const components = value.value("components").toList();
        QString const own = components.isEmpty() ? QString() : components.first().toMap().value("path").toString();
        return wantFile(dice, own.isEmpty() ? value.value("combinedPath").toString() : own);
    }
    if (message.group == "fileBlock" && dice.chance(HONEST_PERCENT))
        return wantFile(dice, value.value("path").toString());
    return report(message.group, dice.chance(SPOILT_PERCENT) ? spoilt(dice, message.value) : message.value);
}

QString hostileReceiver_t::wantFile(dice_t& dice, QString const& name)
{
    if (!m_files.contains(name) && m_files.size() < MOST_FILES)
        m_files << name;
    QVariantMap wanted = map("path", m_files.at(dice.choice(m_files.size())), "offset", dice.choice(1000), "size",
                             1 + dice.choice(2000));
    if (!dice.chance(HONEST_PERCENT))
        wanted = spoiltMap(dice, wanted);
    return report("fileWanted", wanted);
}

} // namespace melvox_robustness
