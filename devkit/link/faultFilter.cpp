#include "link/faultFilter.h"

#include "link/linkTap.h"

#include <QVariant>

namespace melvox_link
{

namespace
{

char const* const FAULT_NAMES[NUM_FAULTS] = {"drop", "delay", "duplicate", "reorder", "garble"};
char const* const GARBAGE = "\177~garbled~";

bool concerns(faultSetting_t const& setting, message_t const& message)
{
    if (!setting.group.isEmpty() && setting.group != message.group)
        return false;
    return setting.direction == FAULT_BOTH_WAYS || (setting.direction == FAULT_TO_RECEIVER) == isFromDisplay(message);
}

} // namespace

QString faultName(fault_t fault)
{
    return fault >= 0 && fault < NUM_FAULTS ? QString(FAULT_NAMES[fault]) : QString();
}

bool faultFromName(QString const& name, fault_t& fault)
{
    int const index = faultNames().indexOf(name);
    if (index < 0)
        return false;
    fault = fault_t(index);
    return true;
}

QStringList faultNames()
{
    QStringList names;
    for (char const* name : FAULT_NAMES)
        names << name;
    return names;
}

faultFilter_t::faultFilter_t(link_t* link, QObject* parent)
    : link_t(parent), m_link(link), m_delay(USUAL_DELAY), m_strikes(), m_generator(1)
{
    m_clock.start();
    m_timer.setSingleShot(true);
    connect(&m_timer, SIGNAL(timeout()), SLOT(releaseDue()));
    connect(link, SIGNAL(received(melvox_link::message_t)), SLOT(take(melvox_link::message_t)));
    connect(link, SIGNAL(openChanged(bool)), SLOT(changeOpen(bool)));
}

faultFilter_t::~faultFilter_t()
{
}

bool faultFilter_t::isOpen() const
{
    return m_link && m_link->isOpen();
}

QString faultFilter_t::description() const
{
    return m_link ? m_link->description() : QString();
}

bool faultFilter_t::line(line_t& line) const
{
    return m_link && m_link->line(line);
}

void faultFilter_t::setLine(line_t const& line)
{
    if (m_link)
        m_link->setLine(line);
}

void faultFilter_t::setCut(bool cut)
{
    if (m_link)
        m_link->setCut(cut);
}

void faultFilter_t::send(message_t const& message)
{
    if (isOpen())
        pass(message, true);
}

void faultFilter_t::take(message_t const& message)
{
    pass(message, false);
}

void faultFilter_t::changeOpen(bool open)
{
    // What was under way is lost, as on any link.
    m_held.clear();
    m_timer.stop();
    emit openChanged(open);
}

void faultFilter_t::setFault(QString const& group, fault_t fault, double probability, faultDirection_t direction)
{
    for (int i = 0; i < m_faults.size(); ++i)
    {
        faultSetting_t const& there = m_faults.at(i);
        if (there.group == group && there.fault == fault && there.direction == direction)
        {
            m_faults.removeAt(i);
            break;
        }
    }
    // Written so that what is no number takes the fault away too.
    if (!(probability > 0.0))
        return;
    faultSetting_t setting;
    setting.group = group;
    setting.fault = fault;
    setting.direction = direction;
    setting.probability = qMin(1.0, probability);
    m_faults << setting;
}

QList<faultSetting_t> const& faultFilter_t::faults() const
{
    return m_faults;
}

void faultFilter_t::clearFaults()
{
    m_faults.clear();
    QPointer<faultFilter_t> const self(this);
    while (self && !m_held.isEmpty())
    {
        held_t const held = m_held.takeFirst();
        handOn(held.message, held.sending);
    }
}

void faultFilter_t::setSeed(unsigned int seed)
{
    m_generator.seed(seed);
}

void faultFilter_t::setDelay(int milliseconds)
{
    m_delay = qMax(0, milliseconds);
}

int faultFilter_t::strikes(fault_t fault) const
{
    return fault >= 0 && fault < NUM_FAULTS ? m_strikes[fault] : 0;
}

/** The distributions of the standard library differ between its makers; the generator's numbers do not. */
double faultFilter_t::chance()
{
    return double(m_generator()) / 4294967296.0;
}

unsigned int faultFilter_t::choice(unsigned int count)
{
    return unsigned(chance() * count);
}

bool faultFilter_t::drawn(message_t const& message, fault_t fault)
{
    bool strikes = false;
    for (faultSetting_t const& setting : m_faults)
    {
        if (setting.fault == fault && concerns(setting, message) && chance() < setting.probability)
            strikes = true;
    }
    return strikes;
}

void faultFilter_t::strike(message_t const& message, fault_t fault)
{
    ++m_strikes[fault];
    emit struck(message, fault);
}

bool faultFilter_t::oneWaitsForNext(bool sending) const
{
    for (held_t const& held : m_held)
    {
        if (held.untilNext && held.sending == sending)
            return true;
    }
    return false;
}

void faultFilter_t::pass(message_t const& message, bool sending)
{
    // A number is drawn for every fault, needed or not, so that what comes later does not depend on timing.
    bool strikes[NUM_FAULTS];
    for (int fault = 0; fault < NUM_FAULTS; ++fault)
        strikes[fault] = drawn(message, fault_t(fault));
    if (strikes[FAULT_DROP])
    {
        strike(message, FAULT_DROP);
        return;
    }
    message_t changed = message;
    if (strikes[FAULT_GARBLE])
    {
        strike(message, FAULT_GARBLE);
        changed.value = garbled(message.value);
    }
    int times = 1;
    if (strikes[FAULT_DUPLICATE])
    {
        strike(message, FAULT_DUPLICATE);
        times = 2;
    }
    if (strikes[FAULT_DELAY])
        strike(message, FAULT_DELAY);
    // The next message is what a reordered one waits for, so it is not held back itself.
    bool const reordered = strikes[FAULT_REORDER] && !strikes[FAULT_DELAY] && !oneWaitsForNext(sending);
    if (reordered)
        strike(message, FAULT_REORDER);
    if (strikes[FAULT_DELAY] || reordered)
        hold(changed, sending, reordered, times);
    else
        handOn(changed, sending, times);
}

void faultFilter_t::hold(message_t const& message, bool sending, bool untilNext, int times)
{
    held_t held;
    held.message = message;
    held.sending = sending;
    held.untilNext = untilNext;
    held.due = m_clock.elapsed() + m_delay;
    for (; times > 0; --times)
        m_held << held;
    schedule();
}

void faultFilter_t::handOn(message_t const& message, bool sending, int times)
{
    QPointer<faultFilter_t> const self(this);
    for (; self && times > 0; --times)
        handOn(message, sending);
    for (int i = 0; self && i < m_held.size();)
    {
        if (m_held.at(i).untilNext && m_held.at(i).sending == sending)
            handOn(m_held.takeAt(i).message, sending);
        else
            ++i;
    }
}

void faultFilter_t::handOn(message_t const& message, bool sending)
{
    if (!sending)
        emit received(message);
    else if (m_link)
        m_link->send(message);
}

void faultFilter_t::schedule()
{
    if (m_held.isEmpty())
    {
        m_timer.stop();
        return;
    }
    qint64 due = m_held.first().due;
    for (held_t const& held : m_held)
        due = qMin(due, held.due);
    m_timer.start(int(qMax<qint64>(0, due - m_clock.elapsed())));
}

void faultFilter_t::releaseDue()
{
    QPointer<faultFilter_t> const self(this);
    qint64 const now = m_clock.elapsed();
    for (int i = 0; self && i < m_held.size();)
    {
        if (m_held.at(i).due > now)
        {
            ++i;
            continue;
        }
        held_t const held = m_held.takeAt(i);
        schedule();
        handOn(held.message, held.sending);
    }
    if (self)
        schedule();
}

QVariant faultFilter_t::garbled(QVariant const& value)
{
    if (value.userType() == QMetaType::QVariantMap && !value.toMap().isEmpty())
    {
        QVariantMap map = value.toMap();
        QString const key = map.keys().at(int(choice(unsigned(map.size()))));
        if (choice(2) == 0)
            map.remove(key);
        else
            map[key] = QString(GARBAGE);
        return map;
    }
    if (value.userType() == QMetaType::QVariantList && !value.toList().isEmpty())
    {
        QVariantList list = value.toList();
        list[int(choice(unsigned(list.size())))] = QString(GARBAGE);
        return list;
    }
    return QString(GARBAGE);
}

} // namespace melvox_link
