#ifndef MELVOX_RECEIVER_RECEIVER_H
#define MELVOX_RECEIVER_RECEIVER_H

#include "link/link.h"
#include "receiver/settingsTable.h"
#include "receiver/simClock.h"

#include <QList>
#include <QObject>
#include <QSet>

#include <memory>
#include <vector>

namespace melvox_receiver
{

using melvox_link::link_t;
using melvox_link::message_t;

class behaviour_t;

/** A receiver that is not there: it keeps settings, answers displays over links, and behaves in simulated time. What it
 *  cannot read it counts, logs in the category "melvox.receiver" and passes over. */
class receiver_t : public QObject
{
    Q_OBJECT

public:
    /** Without a link at first. The clock must outlive the receiver. */
    explicit receiver_t(simClock_t* clock, QObject* parent = nullptr);

    /** With one display, on COM1. */
    receiver_t(link_t* end, simClock_t* clock, QObject* parent = nullptr);
    ~receiver_t() override;

    /** Attaches another display by the receiver's end of its link. `activePort` is the receiver's port over which that
     *  display comes in, 0 to 13. The link stays the caller's and may go at any time. */
    void addLink(link_t* end, unsigned int activePort);
    void removeLink(link_t* end);

    /** The display hears of it. */
    void setActivePort(link_t* end, unsigned int port);
    unsigned int activePort(link_t* end) const;
    QList<link_t*> links() const;

    simClock_t& clock() const;

    /** The value of one group as it stands; of a keyed group the list of its records. Invalid: no such group. */
    QVariant setting(QString const& group) const;
    settings_t const& settings() const;

    /** As if a display had sent it as a command; false when it was not taken. */
    bool set(QString const& group, QVariant const& value);

    /** What goes on around the receiver and is no setting of it, such as satellites out of view: for scenarios and
     *  tests, by the names that behaviours document. False when none knows the name or the value makes no sense. */
    bool setSituation(QString const& name, QVariant const& value);
    QStringList situations() const; //!< all names

    /** From now on it tells by itself, as a receiver does that is switched on: solution, heading, correction satellites,
     *  and what it puts out. */
    void startReports();

    /** How many messages made no sense. */
    int ignoredCount() const;

    /** What whoever listens at a port sends; it counts as the port's traffic and has no other effect. */
    void takeIn(unsigned int port, QByteArray const& bytes);

    // For behaviours.

    /** Stores a value that needs no rule and reports it to all displays if it is another one. */
    void change(QString const& group, QVariant const& value);

    /** The receiver tells itself, as a display would; nobody is answered, but what changes is reported. */
    void obey(QString const& group, QVariant const& value);

    /** Takes the settings that displays can change over from a stored profile, each by its rule, and reports those that
     *  are others now. */
    void restore(settings_t const& settings);

    void report(QString const& group, QVariant const& value);             //!< to all displays
    void report(link_t* to, QString const& group, QVariant const& value); //!< to one
    void reportSetting(link_t* to, setting_t const& setting); //!< as it stands, all records of a keyed group
    void event(QString const& group, QVariant const& value = QVariant());
    void event(link_t* to, QString const& group, QVariant const& value = QVariant());
    using QObject::event; // ours do not hide Qt's
    void wantTicks(behaviour_t* who, bool wanted);
    void putOut(unsigned int port, QByteArray const& bytes);

    /** What one of the behaviours knows; see behaviour_t::answer(). Invalid: none does. */
    QVariant ask(QString const& name, qint64 at);

    /** Who has the receiver for himself, and how: 0 for nobody, 1 for the framework, 2 for a plug-in. */
    void setLock(link_t* holder, int state);
    int lockOf(link_t* link) const; //!< 0 for everybody but the holder

    /** All behaviours start anew, as after a loss of power. */
    void restart();

    /** Without power nothing is put out. */
    void setPowered(bool powered);

signals:
    /** A message that made no sense: why, and the message as text, cut to a length that one can read. */
    void ignored(QString const& why, QString const& text);

    /** The receiver puts bytes out on one of its ports: whole sentences or frames, in their order. */
    void portOutput(unsigned int port, QByteArray const& bytes);

private:
    struct display_t
    {
        link_t* end;
        unsigned int activePort;
    };

    void take(link_t* from, message_t const& message);
    void send(link_t* to, message_t const& message);
    void takeRequest(link_t* from, message_t const& message);
    void takeCommand(link_t* from, message_t const& message);
    outcome_t takeSetting(setting_t const& setting, QVariant const& value, QVariant& taken, bool& changed,
                          QString& why);
    void tellChanged(QString const& group);
    void ignore(QString const& why, message_t const& message);
    void closed(link_t* end);
    void advance(int milliseconds);

    simClock_t* m_clock;
    settings_t m_settings;
    QList<display_t> m_displays;
    link_t* m_lockHolder;
    int m_lock;
    int m_ignoredCount;
    bool m_powered;
    QSet<behaviour_t*> m_ticking;
    std::vector<std::unique_ptr<behaviour_t>> m_behaviours;
};

} // namespace melvox_receiver

#endif
