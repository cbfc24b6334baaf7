#ifndef MELVOX_LINK_JOURNAL_WRITER_H
#define MELVOX_LINK_JOURNAL_WRITER_H

#include "link/message.h"

#include <QElapsedTimer>
#include <QFile>
#include <QObject>
#include <QString>
#include <QVariantMap>

class QJsonObject;

namespace melvox_link
{

class linkTap_t;

/** Writes a journal: what passes over a link, and what else it is told. Every line is with the operating system before
 *  the call returns, so that a crash of the display loses none but the one that is being written. No secret is
 *  written (secrets.h).
 *
 *  The file is bounded: before it would grow beyond the limit, a last line says that it is full, and nothing more is
 *  written. Then, and when the file can no longer be written, one warning tells so, and all goes on without a journal. */
class journalWriter_t : public QObject
{
    Q_OBJECT

public:
    static qint64 const LIMIT = 64 * 1024 * 1024;

    explicit journalWriter_t(QObject* parent = nullptr);
    /** Closes the journal. */
    ~journalWriter_t() override;

    /** A file that holds something already is refused: it may be the journal of a crash. False, and `reason` for people,
     *  when it cannot be used. */
    bool open(QString const& file, QString& reason, qint64 limit = LIMIT);
    bool isWriting() const { return m_file.isOpen(); }

    /** The first line, and from then on whatever passes the tap. `header` says what the display started with. */
    void begin(QVariantMap const& header, melvox_link::linkTap_t* tap);

    /** Writes that the journal was closed, and nothing any more. */
    void close();

public slots:
    void writeMessage(melvox_link::message_t const& message);
    void writeOpen(bool open);
    /** What an operator did, in members of the caller's own. */
    void writeAction(QVariantMap const& action);

private:
    void write(QJsonObject object);
    void put(QByteArray const& line);
    void stop(QString const& reason);
    QByteArray endLine(char const* how) const;

    QFile m_file;
    QElapsedTimer m_clock;
    qint64 m_limit;
    qint64 m_written;
};

} // namespace melvox_link

#endif
