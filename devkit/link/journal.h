#ifndef MELVOX_LINK_JOURNAL_H
#define MELVOX_LINK_JOURNAL_H

#include "link/message.h"

#include <QByteArray>
#include <QString>
#include <QVariantMap>

#include <vector>

namespace melvox_link
{

/** What a journal's first line says of its format. */
int const JOURNAL_VERSION = 1;

/** One line of a journal; README.md has the format. */
struct journalEntry_t
{
    enum kind_t
    {
        SENT,     //!< a request or a command of the display
        RECEIVED, //!< a report or an event of the receiver
        OPENED,
        CLOSED,
        ACTION, //!< of the operator
        END     //!< nothing was written any more
    };

    kind_t kind = END;
    int line = 0;  //!< counted from 1, as editors do
    qint64 at = 0; //!< milliseconds since the journal was begun
    QByteArray text;

    bool isCommand() const { return kind == SENT && message().kind == message_t::COMMAND; }
    /** Of SENT and RECEIVED. */
    message_t message() const;
    /** Of ACTION: its members. */
    QVariantMap action() const;
};

/** What happened between a display, its operator and a receiver, read from a file. */
struct journal_t
{
    QString file;
    QVariantMap header;
    std::vector<journalEntry_t> entries;
    /** False when the display did not come to its end: it crashed, or the journal had to stop. */
    bool isWhole = false;
    /** For people, when the last line was cut off and passed over; otherwise empty. */
    QString note;

    /** "journal.jsonl:12: ", for messages about a line. */
    QString place(int line) const;
};

/** False, and `fault` for people with file, line and reason, when the file is no journal that can be played. A last line
 *  that was cut off, as a crash leaves it, is passed over. */
bool readJournal(QString const& file, journal_t& journal, QString& fault);

} // namespace melvox_link

#endif
