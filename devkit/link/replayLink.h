#ifndef MELVOX_LINK_REPLAY_LINK_H
#define MELVOX_LINK_REPLAY_LINK_H

#include "link/journal.h"
#include "link/link.h"

#include <QElapsedTimer>
#include <QList>
#include <QTimer>

#include <memory>

namespace melvox_link
{

/** The display's end of a link whose other side is a journal: what the receiver told then it tells again. Closed until
 *  the journal says that the link opened; open and silent once the journal is over. */
class replayLink_t : public link_t
{
    Q_OBJECT

public:
    explicit replayLink_t(std::shared_ptr<journal_t const> journal, QObject* parent = nullptr);
    ~replayLink_t() override;

    bool isOpen() const override;
    QString description() const override;
    void send(melvox_link::message_t const& message) override;
    bool line(melvox_link::line_t& line) const override;
    void setLine(melvox_link::line_t const& line) override;

    /** 1, as at first: everything at its time. 2: in half of it. 0: as fast as the display follows; at a command of the
     *  journal the link then waits until the display has sent as many. To be set before start(). */
    void setSpeed(double speed);
    void start();

    /** What the display sent, in order. */
    QList<message_t> const& sent() const { return m_sent; }

signals:
    /** It is the turn of this action of the operator; an index into the journal's entries. */
    void reached(int index);
    void ended();

private:
    void schedule();
    void play();
    void pass(journalEntry_t const& entry, int index);
    bool mustWait(journalEntry_t const& entry);
    void giveUpWaiting();

    std::shared_ptr<journal_t const> m_journal;
    std::size_t m_next;
    double m_speed;
    bool m_open;
    bool m_serial;
    line_t m_line;
    QList<message_t> m_sent;
    int m_commandsSent;
    int m_commandsPassed;
    bool m_patient;
    QElapsedTimer m_clock;
    QTimer m_timer;
    QTimer m_patience;
};

} // namespace melvox_link

#endif
