#include "receiver/receiver.h"

#include "receiver/behaviour.h"
#include "receiver/behaviours.h"

#include <QLoggingCategory>

namespace melvox_receiver
{

Q_LOGGING_CATEGORY(receiverLog, "melvox.receiver")

namespace
{

int const LONGEST_LOGGED_TEXT = 200;

/** The place of the record with the same key in a keyed group, -1: there is none. */
int findRecord(setting_t const& setting, QVariantList const& records, QVariant const& record)
{
    QVariant const key = record.toMap().value(setting.key);
    for (int i = 0; isNumber(key) && i < records.size(); ++i)
    {
        if (records.at(i).toMap().value(setting.key).toInt() == key.toInt())
            return i;
    }
    return -1;
}

} // namespace

receiver_t::receiver_t(simClock_t* clock, QObject* parent)
    : QObject(parent), m_clock(clock), m_settings(startSettings()), m_lockHolder(nullptr), m_lock(0), m_ignoredCount(0),
      m_powered(true)
{
    connect(clock, &simClock_t::ticked, this, &receiver_t::advance);
    m_behaviours = makeBehaviours(*this);
}

receiver_t::receiver_t(link_t* end, simClock_t* clock, QObject* parent) : receiver_t(clock, parent)
{
    addLink(end, 0);
}

receiver_t::~receiver_t() = default;

void receiver_t::addLink(link_t* end, unsigned int activePort)
{
    m_displays << display_t{end, activePort};
    connect(end, &link_t::received, this, [this, end](message_t const& message) { take(end, message); });
    connect(end, &link_t::openChanged, this,
            [this, end](bool open)
            {
                if (!open)
                    closed(end);
            });
    connect(end, &QObject::destroyed, this, [this, end]() { removeLink(end); });
    for (auto const& behaviour : m_behaviours)
        behaviour->linkAttached(end);
}

void receiver_t::removeLink(link_t* end)
{
    for (int i = 0; i < m_displays.size(); ++i)
    {
        if (m_displays.at(i).end != end)
            continue;
        m_displays.removeAt(i);
        disconnect(end, nullptr, this, nullptr);
        closed(end);
        return;
    }
}

void receiver_t::closed(link_t* end)
{
    for (auto const& behaviour : m_behaviours)
        behaviour->linkClosed(end);
}

void receiver_t::setActivePort(link_t* end, unsigned int port)
{
    for (display_t& display : m_displays)
    {
        if (display.end != end)
            continue;
        display.activePort = port;
        report(end, "activePort", port);
        for (auto const& behaviour : m_behaviours)
            behaviour->linkAttached(end);
        return;
    }
}

unsigned int receiver_t::activePort(link_t* end) const
{
    for (display_t const& display : m_displays)
    {
        if (display.end == end)
            return display.activePort;
    }
    return NUM_PORTS;
}

QList<link_t*> receiver_t::links() const
{
    QList<link_t*> links;
    for (display_t const& display : m_displays)
        links << display.end;
    return links;
}

simClock_t& receiver_t::clock() const
{
    return *m_clock;
}

QVariant receiver_t::setting(QString const& group) const
{
    return m_settings.value(group);
}

settings_t const& receiver_t::settings() const
{
    return m_settings;
}

int receiver_t::ignoredCount() const
{
    return m_ignoredCount;
}

void receiver_t::ignore(QString const& why, message_t const& message)
{
    ++m_ignoredCount;
    QString const text = (kindName(message.kind) + ' ' + toText(message)).left(LONGEST_LOGGED_TEXT);
    qCDebug(receiverLog).noquote() << "ignored," << why + ':' << text;
    emit ignored(why, text);
}

void receiver_t::takeIn(unsigned int port, QByteArray const& bytes)
{
    for (auto const& behaviour : m_behaviours)
        behaviour->portInput(port, bytes);
}

void receiver_t::putOut(unsigned int port, QByteArray const& bytes)
{
    if (m_powered)
        emit portOutput(port, bytes);
}

QVariant receiver_t::ask(QString const& name, qint64 at)
{
    for (auto const& behaviour : m_behaviours)
    {
        QVariant const answer = behaviour->answer(name, at);
        if (answer.isValid())
            return answer;
    }
    return QVariant();
}

void receiver_t::send(link_t* to, message_t const& message)
{
    if (!to)
        return; // the receiver's own command
    for (auto const& behaviour : m_behaviours)
        behaviour->passed(to, message);
    to->send(message);
}

void receiver_t::take(link_t* from, message_t const& message)
{
    for (auto const& behaviour : m_behaviours)
        behaviour->passed(from, message);
    if (message.kind == message_t::REQUEST)
        takeRequest(from, message);
    else if (message.kind == message_t::COMMAND)
        takeCommand(from, message);
    else
        ignore("not for a receiver", message);
}

void receiver_t::takeRequest(link_t* from, message_t const& message)
{
    if (message.group == "activePort")
    {
        report(from, message.group, activePort(from));
        // Who asks for the port wants to know the ports: displays have no other request for the table of them.
        for (char const* table : {"serialConfig", "serialRs232Mode", "vcomConfig"})
            reportSetting(from, *findSetting(table));
        return;
    }
    for (auto const& behaviour : m_behaviours)
    {
        if (behaviour->request(from, message.group) != behaviour_t::NOT_MINE)
            return;
    }
    setting_t const* const setting = findSetting(message.group);
    if (setting)
        reportSetting(from, *setting);
    else
        ignore("no group that can be requested", message);
}

void receiver_t::reportSetting(link_t* to, setting_t const& setting)
{
    QVariant const value = m_settings.value(setting.group);
    if (setting.key.isEmpty())
    {
        report(to, setting.group, value);
        return;
    }
    for (QVariant const& one : value.toList())
        report(to, setting.group, one);
}

void receiver_t::takeCommand(link_t* from, message_t const& message)
{
    for (auto const& behaviour : m_behaviours)
    {
        behaviour_t::answer_t const answer = behaviour->command(from, message.group, message.value);
        if (answer == behaviour_t::UNREADABLE)
            ignore("value makes no sense", message);
        if (answer != behaviour_t::NOT_MINE)
            return;
    }
    setting_t const* const setting = findSetting(message.group);
    if (!setting || setting->access == READ_ONLY)
    {
        ignore("no group that can be commanded", message);
        return;
    }
    QVariantMap value = message.value.toMap();
    if (message.group == "serialConfig" && !value.isEmpty() && !value.contains("port"))
        value.insert("port", activePort(from));
    QVariant taken;
    bool changed = false;
    QString why;
    if (takeSetting(*setting, value.isEmpty() ? message.value : QVariant(value), taken, changed, why) == MALFORMED)
        ignore(why, message);
    else if (!changed)
        report(from, message.group, taken);
    else
        tellChanged(message.group);
}

/** `taken` is what stands afterwards, the old value when the new one was refused. A change is reported to all. */
outcome_t receiver_t::takeSetting(setting_t const& setting, QVariant const& value, QVariant& taken, bool& changed,
                                  QString& why)
{
    QVariant& stored = m_settings[setting.group];
    QVariantList records = stored.toList();
    int const place = setting.key.isEmpty() ? 0 : findRecord(setting, records, value);
    if (place < 0)
    {
        why = "no such " + setting.key;
        return MALFORMED;
    }
    QVariant const old = setting.key.isEmpty() ? stored : records.at(place);
    taken = old;
    QVariant wanted;
    outcome_t outcome = melvox_receiver::take(setting.rule, value, old, wanted, why);
    if (outcome == TAKEN && setting.adjust && !setting.adjust(m_settings, old, wanted))
        outcome = REFUSED;
    if (outcome != TAKEN)
        return outcome;
    taken = wanted;
    changed = wanted != old;
    if (!changed)
        return TAKEN;
    if (!setting.key.isEmpty())
        records[place] = wanted;
    stored = setting.key.isEmpty() ? wanted : QVariant(records);
    report(setting.group, wanted);
    return TAKEN;
}

bool receiver_t::set(QString const& group, QVariant const& value)
{
    setting_t const* const setting = findSetting(group);
    QVariant taken;
    bool changed = false;
    QString why;
    if (!setting || setting->access == READ_ONLY || takeSetting(*setting, value, taken, changed, why) != TAKEN)
        return false;
    if (changed)
        tellChanged(group);
    return true;
}

bool receiver_t::setSituation(QString const& name, QVariant const& value)
{
    for (auto const& behaviour : m_behaviours)
    {
        if (behaviour->situations().contains(name))
            return behaviour->situation(name, value) == behaviour_t::DONE;
    }
    return false;
}

QStringList receiver_t::situations() const
{
    QStringList names;
    for (auto const& behaviour : m_behaviours)
        names << behaviour->situations();
    return names;
}

void receiver_t::startReports()
{
    for (char const* reports : {"solutionReports", "headingReports", "correctionReports", "outputs"})
        setSituation(reports, true);
}

void receiver_t::tellChanged(QString const& group)
{
    for (auto const& behaviour : m_behaviours)
        behaviour->settingChanged(group);
}

void receiver_t::change(QString const& group, QVariant const& value)
{
    QVariant& stored = m_settings[group];
    if (stored == value)
        return;
    stored = value;
    report(group, value);
    tellChanged(group);
}

void receiver_t::obey(QString const& group, QVariant const& value)
{
    takeCommand(nullptr, message_t(message_t::COMMAND, group, value));
}

void receiver_t::restore(settings_t const& settings)
{
    for (setting_t const& setting : settingsTable())
    {
        if (setting.access != READ_WRITE || !settings.contains(setting.group))
            continue;
        QVariant const value = settings.value(setting.group);
        if (setting.key.isEmpty())
        {
            set(setting.group, value);
            continue;
        }
        for (QVariant const& one : value.toList())
            set(setting.group, one);
    }
}

void receiver_t::report(QString const& group, QVariant const& value)
{
    for (display_t const& display : QList<display_t>(m_displays))
        report(display.end, group, value);
}

void receiver_t::report(link_t* to, QString const& group, QVariant const& value)
{
    send(to, message_t(message_t::REPORT, group, value));
}

void receiver_t::event(QString const& group, QVariant const& value)
{
    for (display_t const& display : QList<display_t>(m_displays))
        event(display.end, group, value);
}

void receiver_t::event(link_t* to, QString const& group, QVariant const& value)
{
    send(to, message_t(message_t::EVENT, group, value));
}

void receiver_t::setLock(link_t* holder, int state)
{
    link_t* const before = m_lockHolder;
    m_lockHolder = holder;
    m_lock = holder ? state : 0;
    if (before != holder)
    {
        for (auto const& behaviour : m_behaviours)
            behaviour->lockChanged();
    }
}

int receiver_t::lockOf(link_t* link) const
{
    return link && link == m_lockHolder ? m_lock : 0;
}

void receiver_t::wantTicks(behaviour_t* who, bool wanted)
{
    if (wanted)
        m_ticking.insert(who);
    else
        m_ticking.remove(who);
    m_clock->wantTicks(this, !m_ticking.isEmpty());
}

void receiver_t::advance(int milliseconds)
{
    for (auto const& behaviour : m_behaviours)
    {
        if (m_ticking.contains(behaviour.get()))
            behaviour->advance(milliseconds);
    }
}

void receiver_t::restart()
{
    for (auto const& behaviour : m_behaviours)
        behaviour->restarted();
}

void receiver_t::setPowered(bool powered)
{
    m_powered = powered;
}

} // namespace melvox_receiver
