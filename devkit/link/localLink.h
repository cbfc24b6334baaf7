#ifndef MELVOX_LINK_LOCAL_LINK_H
#define MELVOX_LINK_LOCAL_LINK_H

#include "link/link.h"

#include <QElapsedTimer>
#include <QList>
#include <QPointer>
#include <QScopedPointer>
#include <QTimer>

namespace melvox_link
{

/** One end of a link between a display and a receiver in the same process; made by a localLinkPair_t. */
class localLink_t : public link_t
{
    Q_OBJECT

public:
    ~localLink_t();

    bool isOpen() const override;
    QString description() const override;
    void send(melvox_link::message_t const& message) override;
    bool line(melvox_link::line_t& line) const override;
    void setLine(melvox_link::line_t const& line) override;

    void setCut(bool cut) override;

    /** Makes this end one of a serial line, or of none, as at first. */
    void makeSerial(melvox_link::line_t const& line);
    void makePlain();

    /** Opens or closes the link for both ends; both hear of it before this returns. What is under way is lost. */
    void setOpen(bool open);

private slots:
    void deliver();

private:
    friend class localLinkPair_t;

    struct waiting_t
    {
        melvox_link::message_t message;
        qint64 due;
    };

    localLink_t(QString const& description, QObject* parent);

    void take(melvox_link::message_t const& message);
    void changeOpen(bool open);
    void scheduleNext();

    QString m_description;
    QPointer<localLink_t> m_peer;
    bool m_open;
    bool m_serial;
    line_t m_line;
    int m_latency;
    QList<waiting_t> m_waiting;
    QElapsedTimer m_clock;
    QTimer m_timer;
};

/** Both ends of a link in one process. Messages pass through the event loop, in the order in which they were sent.
 *  The pair owns the ends. */
class localLinkPair_t
{
public:
    localLinkPair_t();
    ~localLinkPair_t();

    localLink_t* displayEnd() const;
    localLink_t* receiverEnd() const;

    /** How long a message is under way, in milliseconds, in both directions. 0, as at first: until the next turn of
     *  the event loop. Holds for messages sent from now on. Negative counts as 0. */
    void setLatency(int milliseconds);
    int latency() const;

    /** Open at first. */
    void setOpen(bool open);
    bool isOpen() const;

private:
    Q_DISABLE_COPY(localLinkPair_t)

    QScopedPointer<localLink_t> m_displayEnd;
    QScopedPointer<localLink_t> m_receiverEnd;
};

} // namespace melvox_link

#endif
