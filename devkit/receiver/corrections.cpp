#include "receiver/corrections.h"

namespace melvox_receiver
{

namespace
{

qint64 const SECOND = 1000; // milliseconds
qint64 const MINUTE = 60 * SECOND;
qint64 const BETWEEN_ALMANACS = 24 * 60 * MINUTE;

int const AUTOMATIC_SWITCH = 0;
int const USER_LOOK_ANGLE = 30; // nobody knows where the user's satellite stands

int idOf(QVariant const& satellite)
{
    return satellite.toMap().value("id").toInt();
}

QVariantMap userSatellite(int id)
{
    return {{"id", id},       {"longitude", 0.0}, {"lookAngle", USER_LOOK_ANGLE},
            {"net1", false},  {"net2", false},    {"flagU", false},
            {"flagA", false}, {"flagC", false}};
}

QVariantMap almanacFrom(qint64 milliseconds)
{
    qint64 const seconds = milliseconds / SECOND;
    return {{"updateTime", double(seconds)}};
}

bool contains(QVariantList const& satellites, int id)
{
    for (QVariant const& satellite : satellites)
    {
        if (idOf(satellite) == id)
            return true;
    }
    return false;
}

} // namespace

corrections_t::corrections_t(receiver_t& owner)
    : behaviour_t(owner), m_reports(false), m_satellites(owner.setting("correctionSats").toList()), m_inUse(0),
      m_almanacCameAt(owner.clock().now())
{
    // The last almanac came yesterday, whenever the receiver is started.
    receiver.change("mrvAlmanacInfo", almanacFrom(receiver.clock().now() - BETWEEN_ALMANACS));
}

behaviour_t::answer_t corrections_t::command(link_t*, QString const& group, QVariant const&)
{
    if (group != "useNewStarfireAlm")
        return NOT_MINE;
    useNewAlmanac();
    return DONE;
}

QStringList corrections_t::situations() const
{
    return {"correctionReports", "correctionSatsInView", "newAlmanac"};
}

behaviour_t::answer_t corrections_t::situation(QString const& name, QVariant const& value)
{
    if (name == "correctionReports")
        return setReports(value);
    if (name == "correctionSatsInView")
        return setInView(value);
    if (name != "newAlmanac")
        return NOT_MINE;
    if (value.userType() != QMetaType::Bool || !value.toBool())
        return UNREADABLE;
    newAlmanacCame();
    return DONE;
}

behaviour_t::answer_t corrections_t::setReports(QVariant const& value)
{
    if (value.userType() != QMetaType::Bool)
        return UNREADABLE;
    m_reports = value.toBool();
    wantTicks(m_reports);
    return DONE;
}

behaviour_t::answer_t corrections_t::setInView(QVariant const& value)
{
    if (value.userType() != QMetaType::QVariantList)
        return UNREADABLE;
    for (QVariant const& id : value.toList())
    {
        if (!isNumber(id))
            return UNREADABLE;
    }
    m_hidden.clear();
    for (QVariant const& satellite : m_satellites)
    {
        if (!value.toList().contains(idOf(satellite)))
            m_hidden << idOf(satellite);
    }
    return DONE;
}

void corrections_t::settingChanged(QString const& group)
{
    if (group == "starfireAlmSwitchPolicy")
        checkAlmanac();
    if (group != "userCorrectionSat")
        return;
    // A selected satellite that is no longer defined cannot stay selected.
    QVariantMap const selection = receiver.setting("correctionSatSelection").toMap();
    int const id = selection.value("id").toInt();
    QVariantMap const user = receiver.setting(group).toMap();
    bool const isUser = user.value("defined").toBool() && user.value("id").toInt() == id;
    if (!selection.value("auto").toBool() && !isUser && !contains(m_satellites, id))
        receiver.set("correctionSatSelection", QVariantMap{{"auto", true}});
}

void corrections_t::restarted()
{
    m_inUse = 0;
    for (auto& signal : m_signals)
        signal.second.restart();
}

void corrections_t::advance(int milliseconds)
{
    // At whole seconds, however the clock is turned.
    qint64 const now = receiver.clock().now();
    for (qint64 seconds = now / SECOND - (now - milliseconds) / SECOND; seconds > 0; --seconds)
        receiveForASecond();
}

void corrections_t::receiveForASecond()
{
    updateSky();
    updateSignals();
    m_inUse = chooseSatellite();
    tellStats();
    checkAlmanac();
    if (!receiver.setting("starfireAlmStatus").toMap().value("newReady").toBool() &&
        receiver.clock().now() - m_almanacCameAt >= BETWEEN_ALMANACS)
        newAlmanacCame();
}

void corrections_t::updateSky()
{
    QVariantList sky;
    for (QVariant const& satellite : m_satellites)
    {
        if (!m_hidden.contains(idOf(satellite)))
            sky << satellite;
    }
    QVariantMap const user = receiver.setting("userCorrectionSat").toMap();
    if (user.value("defined").toBool() && !contains(sky, user.value("id").toInt()))
        sky << userSatellite(user.value("id").toInt());
    receiver.change("correctionSats", sky);
}

void corrections_t::updateSignals()
{
    QVariantList const sky = receiver.setting("correctionSats").toList();
    for (auto signal = m_signals.begin(); signal != m_signals.end();)
        signal = contains(sky, int(signal->first)) ? std::next(signal) : m_signals.erase(signal);
    QVariantMap const selection = receiver.setting("correctionSatSelection").toMap();
    unsigned int beam = 0;
    for (QVariant const& satellite : sky)
    {
        int const id = idOf(satellite);
        ++beam;
        auto const found =
            m_signals.try_emplace(id, unsigned(id), beam, satellite.toMap().value("lookAngle").toInt()).first;
        found->second.setProcessed(selection.value("auto").toBool() || selection.value("id").toInt() == id);
        found->second.advance(int(SECOND));
    }
}

unsigned int corrections_t::chooseSatellite()
{
    unsigned int best = 0;
    double strength = 0.0;
    for (auto const& signal : m_signals)
    {
        if (signal.second.status() != LOCKED)
            continue;
        if (signal.first == m_inUse)
            return m_inUse;
        if (signal.second.bestStrength() > strength)
        {
            best = signal.first;
            strength = signal.second.bestStrength();
        }
    }
    return best;
}

void corrections_t::tellStats()
{
    QVariantList stats;
    for (auto& signal : m_signals)
        stats << signal.second.stats();
    receiver.change("correctionSatStats", QVariantMap{{"inUse", m_inUse}, {"sats", stats}});
}

void corrections_t::checkAlmanac()
{
    QVariantMap const policy = receiver.setting("starfireAlmSwitchPolicy").toMap();
    if (policy.value("mode").toInt() != AUTOMATIC_SWITCH)
        return;
    qint64 const delay = (policy.value("hours").toLongLong() * 60 + policy.value("minutes").toLongLong()) * MINUTE;
    if (receiver.clock().now() - m_almanacCameAt >= delay)
        useNewAlmanac();
}

void corrections_t::newAlmanacCame()
{
    m_almanacCameAt = receiver.clock().now();
    receiver.change("starfireAlmStatus", QVariantMap{{"newReady", true}});
    checkAlmanac();
}

void corrections_t::useNewAlmanac()
{
    if (!receiver.setting("starfireAlmStatus").toMap().value("newReady").toBool())
        return;
    receiver.change("mrvAlmanacInfo", almanacFrom(receiver.clock().now()));
    receiver.change("starfireAlmStatus", QVariantMap{{"newReady", false}});
}

} // namespace melvox_receiver
