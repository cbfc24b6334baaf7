#include "link/journal.h"

#include "link/jsonLine.h"
#include "link/linkTap.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace melvox_link
{

namespace
{

/** Messages are shorter by far; what is longer was never written by a display. */
qint64 const LONGEST_LINE = 4 * 1024 * 1024;
/** Milliseconds; whole numbers in JSON are exact up to here. */
double const LATEST = 9007199254740992.0;

bool readObject(QByteArray const& text, QJsonObject& object, QString& reason)
{
    QJsonParseError error;
    QJsonDocument const document = QJsonDocument::fromJson(text, &error);
    object = document.object();
    if (error.error == QJsonParseError::NoError && document.isObject())
        return true;
    reason = error.error == QJsonParseError::NoError
                 ? QString("the line is no JSON object")
                 : QString("the line is no JSON: %1 (column %2)").arg(error.errorString()).arg(error.offset + 1);
    return false;
}

bool checkHeader(QJsonObject const& object, QString& reason)
{
    int const version = object.value("version").toInt(-1);
    if (object.value("journal").toString() != "melvox")
        reason = "this is no journal of a Melvox display: its first line has no \"journal\":\"melvox\"";
    else if (version != JOURNAL_VERSION)
        reason = QString("the journal has the format version %1; this program reads version %2")
                     .arg(object.value("version").toVariant().toString())
                     .arg(JOURNAL_VERSION);
    return reason.isEmpty();
}

bool readTime(QJsonObject const& object, qint64 earliest, qint64& at, QString& reason)
{
    double const time = object.value("at").toDouble(-1.0);
    at = qint64(qBound(0.0, time, LATEST));
    if (time < 0.0 || time > LATEST)
        reason = "\"at\" must be the time in milliseconds";
    else if (at < earliest)
        reason = QString("the time runs backwards, from %1 to %2 ms").arg(earliest).arg(at);
    return reason.isEmpty();
}

bool readLink(QJsonObject const& object, journalEntry_t& entry, QString& reason)
{
    QString const state = object.value("link").toString();
    entry.kind = state == "open" ? journalEntry_t::OPENED : journalEntry_t::CLOSED;
    if (state != "open" && state != "closed")
        reason = "\"link\" must be \"open\" or \"closed\"";
    return reason.isEmpty();
}

bool readMessage(QJsonObject const& object, journalEntry_t& entry, QString& reason)
{
    message_t message;
    if (!fromObject(object, message, reason))
        return false;
    entry.kind = isFromDisplay(message) ? journalEntry_t::SENT : journalEntry_t::RECEIVED;
    return true;
}

bool readEntry(QJsonObject const& object, journalEntry_t& entry, QString& reason)
{
    if (object.contains("kind"))
        return readMessage(object, entry, reason);
    if (object.contains("link"))
        return readLink(object, entry, reason);
    entry.kind = object.contains("action") ? journalEntry_t::ACTION : journalEntry_t::END;
    if (!object.contains("action") && !object.contains("end"))
        reason = "the line tells of no message (\"kind\"), link, action or end";
    return reason.isEmpty();
}

class reader_t
{
public:
    explicit reader_t(journal_t& journal) : m_journal(journal), m_line(0), m_ended(false) {}

    bool read(QFile& file, QString& fault);

private:
    bool take(QByteArray const& text, QString& reason);

    journal_t& m_journal;
    int m_line;
    bool m_ended;
};

bool reader_t::take(QByteArray const& text, QString& reason)
{
    QJsonObject object;
    if (!readObject(text, object, reason))
        return false;
    if (m_line == 1)
    {
        m_journal.header = object.toVariantMap();
        return checkHeader(object, reason);
    }
    journalEntry_t entry;
    entry.line = m_line;
    entry.text = text;
    qint64 const earliest = m_journal.entries.empty() ? 0 : m_journal.entries.back().at;
    if (m_ended)
        reason = "the journal has ended before this line";
    if (m_ended || !readTime(object, earliest, entry.at, reason) || !readEntry(object, entry, reason))
        return false;
    m_ended = entry.kind == journalEntry_t::END;
    m_journal.isWhole = m_ended && object.value("end").toString() == "closed";
    m_journal.entries.push_back(entry);
    return true;
}

bool reader_t::read(QFile& file, QString& fault)
{
    while (!file.atEnd())
    {
        QByteArray const text = file.readLine(LONGEST_LINE + 1);
        ++m_line;
        QString reason;
        bool const isCut = !text.endsWith('\n');
        if (text.size() > LONGEST_LINE)
            reason = QString("the line is longer than %1 bytes").arg(LONGEST_LINE);
        else if (take(text, reason))
            continue;
        else if (isCut && m_line > 1)
        {
            m_journal.note = m_journal.place(m_line) + "the last line was cut off and is passed over";
            return true;
        }
        fault = m_journal.place(m_line) + reason;
        return false;
    }
    if (file.error() != QFile::NoError || m_line == 0)
    {
        QString const reason = m_line == 0 ? QString("the file is empty") : file.errorString();
        fault = m_journal.place(m_line + 1) + reason;
        return false;
    }
    return true;
}

} // namespace

message_t journalEntry_t::message() const
{
    message_t message;
    QString reason;
    fromLine(text, message, reason);
    return message;
}

QVariantMap journalEntry_t::action() const
{
    return QJsonDocument::fromJson(text).object().toVariantMap();
}

QString journal_t::place(int line) const
{
    return QString("%1:%2: ").arg(QDir::toNativeSeparators(file)).arg(line);
}

bool readJournal(QString const& file, journal_t& journal, QString& fault)
{
    journal = journal_t();
    journal.file = file;
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
    {
        fault = QString("%1: the journal cannot be read: %2").arg(QDir::toNativeSeparators(file), device.errorString());
        return false;
    }
    return reader_t(journal).read(device, fault);
}

} // namespace melvox_link
