#include "link/journalWriter.h"

#include "link/journal.h"
#include "link/jsonLine.h"
#include "link/linkTap.h"
#include "link/secrets.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtDebug>

namespace melvox_link
{

namespace
{

/** Kept free for the line that says that the journal is full. */
qint64 const END_ROOM = 100;

QByteArray lineOf(QJsonObject const& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

} // namespace

journalWriter_t::journalWriter_t(QObject* parent) : QObject(parent), m_limit(LIMIT), m_written(0)
{
}

journalWriter_t::~journalWriter_t()
{
    close();
}

void journalWriter_t::close()
{
    if (isWriting())
        put(endLine("closed"));
    m_file.close();
}

bool journalWriter_t::open(QString const& file, QString& reason, qint64 limit)
{
    QString const name = QDir::toNativeSeparators(file);
    QFileInfo const before(file);
    if (before.isFile() && before.size() > 0)
    {
        reason = QString("there is a file \"%1\" already; name another one, or move it away").arg(name);
        return false;
    }
    m_file.setFileName(file);
    m_limit = limit;
    // Without a buffer: what is in one is lost in a crash.
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        reason = QString("the file \"%1\" cannot be written: %2").arg(name, m_file.errorString());
    return isWriting();
}

void journalWriter_t::begin(QVariantMap const& header, linkTap_t* tap)
{
    m_clock.start();
    QJsonObject first = QJsonObject::fromVariantMap(header);
    first.insert("journal", "melvox");
    first.insert("version", JOURNAL_VERSION);
    if (isWriting())
        put(lineOf(first));
    connect(tap, &linkTap_t::passed, this, &journalWriter_t::writeMessage);
    connect(tap, &linkTap_t::openChanged, this, &journalWriter_t::writeOpen);
    if (tap->isOpen())
        writeOpen(true);
}

void journalWriter_t::writeMessage(message_t const& message)
{
    if (isWriting())
        write(toObject(withoutSecrets(message)));
}

void journalWriter_t::writeOpen(bool open)
{
    write({{"link", open ? "open" : "closed"}});
}

void journalWriter_t::writeAction(QVariantMap const& action)
{
    write(QJsonObject::fromVariantMap(action));
}

void journalWriter_t::write(QJsonObject object)
{
    if (!isWriting())
        return;
    object.insert("at", m_clock.elapsed());
    QByteArray const line = lineOf(object);
    if (m_written + line.size() + END_ROOM <= m_limit)
    {
        put(line);
        return;
    }
    put(endLine("full"));
    if (isWriting())
        stop(QString("it has reached its limit of %1 bytes").arg(m_limit));
}

QByteArray journalWriter_t::endLine(char const* how) const
{
    return lineOf({{"at", m_clock.isValid() ? m_clock.elapsed() : 0}, {"end", how}});
}

void journalWriter_t::put(QByteArray const& line)
{
    m_written += line.size();
    if (m_file.write(line) != line.size())
        stop(m_file.errorString());
}

void journalWriter_t::stop(QString const& reason)
{
    QString const name = QDir::toNativeSeparators(m_file.fileName());
    // First, as the warning may be shown by something that speaks to the receiver.
    m_file.close();
    qWarning("The journal %s ends here: %s. The display goes on without it.", qPrintable(name), qPrintable(reason));
}

} // namespace melvox_link
