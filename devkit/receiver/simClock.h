#ifndef MELVOX_RECEIVER_SIM_CLOCK_H
#define MELVOX_RECEIVER_SIM_CLOCK_H

#include <QElapsedTimer>
#include <QObject>
#include <QSet>
#include <QTimer>

namespace melvox_receiver
{

/** The receiver's time: it follows the time of day at some speed, or stands still until a test turns it. */
class simClock_t : public QObject
{
    Q_OBJECT

public:
    enum mode_t
    {
        REAL_TIME, //!< starts at the time of day
        MANUAL     //!< starts at 2026-01-01 00:00 UTC, so that tests see the same times each run
    };

    explicit simClock_t(mode_t mode = REAL_TIME, QObject* parent = nullptr);
    ~simClock_t() override;

    mode_t mode() const;

    /** Milliseconds since 1970-01-01 00:00 UTC, in simulated time. */
    qint64 now() const;

    /** Turns a manual clock on and ticks all the way. A real-time clock goes by itself: nothing happens. */
    void advance(qint64 milliseconds);

    /** How many seconds pass in one real second: 1 at first, 0 stands still, held within 0 and 1000. */
    void setSpeed(double speed);
    double speed() const;

    /** A real-time clock runs its timer only while somebody wants ticks. Whoever is destroyed wants none. */
    void wantTicks(QObject* who, bool wanted);
    bool isTicking() const;

    /** No tick is longer, in milliseconds. */
    static int const LONGEST_TICK = 100;

signals:
    /** Simulated milliseconds since the last tick; now() is the end of them. */
    void ticked(int milliseconds);

private:
    void forget(QObject* who);
    void follow();
    void tickUntil(qint64 end);
    void anchor();
    void updateTimer();
    qint64 timeOfDay() const;

    mode_t const m_mode;
    double m_speed;
    qint64 m_base;   //!< simulated time when m_sinceBase was started
    qint64 m_ticked; //!< simulated time up to which ticks are out
    bool m_inTick;
    QElapsedTimer m_sinceBase;
    QTimer m_timer;
    QSet<QObject*> m_users;
};

} // namespace melvox_receiver

#endif
