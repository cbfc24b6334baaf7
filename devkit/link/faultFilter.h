#ifndef MELVOX_LINK_FAULT_FILTER_H
#define MELVOX_LINK_FAULT_FILTER_H

#include "link/link.h"

#include <QElapsedTimer>
#include <QList>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <random>

namespace melvox_link
{

/** What may happen to a message on its way. */
enum fault_t
{
    FAULT_DROP,      //!< it never arrives
    FAULT_DELAY,     //!< it arrives later, and others overtake it
    FAULT_DUPLICATE, //!< it arrives twice
    FAULT_REORDER,   //!< it arrives after the next one in its direction
    FAULT_GARBLE,    //!< it arrives with a value that makes no sense
    NUM_FAULTS
};

enum faultDirection_t
{
    FAULT_BOTH_WAYS,
    FAULT_TO_RECEIVER, //!< requests and commands
    FAULT_TO_DISPLAY   //!< reports and events
};

/** "drop", "delay", "duplicate", "reorder", "garble". */
QString faultName(fault_t fault);
bool faultFromName(QString const& name, fault_t& fault);
QStringList faultNames();

/** One fault as it was set. */
struct faultSetting_t
{
    QString group; //!< empty: every group
    fault_t fault;
    faultDirection_t direction;
    double probability; //!< above 0, at most 1
};

/** A link over another one that spoils messages, the same ones each time for the same seed and the same messages. It
 *  works at the display's end as well as at the receiver's. The other link stays the caller's; once it is gone the
 *  filter is closed. Does nothing until a fault is set. */
class faultFilter_t : public link_t
{
    Q_OBJECT

public:
    enum
    {
        USUAL_DELAY = 500 //!< milliseconds
    };

    explicit faultFilter_t(melvox_link::link_t* link, QObject* parent = 0);
    ~faultFilter_t();

    bool isOpen() const override;
    QString description() const override;
    void send(melvox_link::message_t const& message) override;
    bool line(melvox_link::line_t& line) const override;
    void setLine(melvox_link::line_t const& line) override;
    void setCut(bool cut) override;

    /** A group may have several faults, and those set for every group (an empty group name) come on top. Replaces the
     *  same fault of the same group and direction. The probability is held within 0 and 1; 0 takes the fault away. */
    void setFault(QString const& group, melvox_link::fault_t fault, double probability,
                  melvox_link::faultDirection_t direction = FAULT_BOTH_WAYS);
    QList<faultSetting_t> const& faults() const;

    /** Takes all faults away; messages that are held go on their way. */
    void clearFaults();

    /** Starts the sequence of chances anew. 1 at first. */
    void setSeed(unsigned int seed);

    /** How long FAULT_DELAY holds a message, and how long FAULT_REORDER waits for the next one, in milliseconds;
     *  USUAL_DELAY at first. Holds for messages that come from now on. */
    void setDelay(int milliseconds);

    /** How often each fault has struck. */
    int strikes(melvox_link::fault_t fault) const;

signals:
    /** Comes before the message, as it was, is spoilt. */
    void struck(melvox_link::message_t const& message, melvox_link::fault_t fault);

private slots:
    void take(melvox_link::message_t const& message);
    void changeOpen(bool open);
    void releaseDue();

private:
    struct held_t
    {
        melvox_link::message_t message;
        bool sending;
        bool untilNext;
        qint64 due;
    };

    void pass(melvox_link::message_t const& message, bool sending);
    bool drawn(melvox_link::message_t const& message, melvox_link::fault_t fault);
    void strike(melvox_link::message_t const& message, melvox_link::fault_t fault);
    bool oneWaitsForNext(bool sending) const;
    void hold(melvox_link::message_t const& message, bool sending, bool untilNext, int times);
    void handOn(melvox_link::message_t const& message, bool sending, int times);
    void handOn(melvox_link::message_t const& message, bool sending);
    void schedule();
    double chance();
    unsigned int choice(unsigned int count);
    QVariant garbled(QVariant const& value);

    QPointer<link_t> m_link;
    QList<faultSetting_t> m_faults;
    QList<held_t> m_held;
    int m_delay;
    int m_strikes[NUM_FAULTS];
    std::mt19937 m_generator;
    QElapsedTimer m_clock;
    QTimer m_timer;
};

} // namespace melvox_link

#endif
