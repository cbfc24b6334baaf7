#ifndef MELVOX_LINK_SCRIPTED_LINK_H
#define MELVOX_LINK_SCRIPTED_LINK_H

#include "link/link.h"

#include <QList>
#include <QStringList>
#include <QVariant>

namespace melvox_link
{

/** The display's end of a link whose other side is played by a test: it says what the receiver tells, and reads what
 *  the receiver was sent. Open at first. */
class scriptedLink_t : public link_t
{
    Q_OBJECT

public:
    explicit scriptedLink_t(QObject* parent = 0);
    ~scriptedLink_t();

    bool isOpen() const override;
    QString description() const override;
    void send(melvox_link::message_t const& message) override;
    bool line(melvox_link::line_t& line) const override;
    void setLine(melvox_link::line_t const& line) override;

    void setOpen(bool open);

    /** Makes the link one over a serial line; at first it is of no such kind. */
    void makeSerial(melvox_link::line_t const& line);
    /** The line settings that were set since the beginning or clear(), such as "115200 8N1". */
    QStringList lines() const;

    /** The receiver speaks: received() is out when this returns. Nothing passes while the link is closed. */
    void report(QString const& group, QVariant const& value = QVariant());
    void event(QString const& group, QVariant const& value = QVariant());
    using link_t::event; // ours does not hide Qt's

    /** What was sent since the beginning or clear(), in order. */
    QList<message_t> const& messages() const; //!< as it was sent
    QStringList sent() const;                 //!< all, such as "request elevationMask", "command elevationMask 12.5"
    QStringList commands() const;             //!< the commands alone, such as "elevationMask 12.5"
    QStringList requests() const;             //!< the groups of the requests alone, such as "elevationMask"
    void clear();

private:
    bool m_open;
    bool m_serial;
    line_t m_line;
    QStringList m_lines;
    QList<message_t> m_messages;
};

} // namespace melvox_link

#endif
