#include "receiver/fileFetch.h"

namespace melvox_receiver
{

namespace
{

qint64 const BLOCK = 16 * 1024;    // bytes
int const LONGEST_SILENCE = 10000; // milliseconds

} // namespace

fileFetch_t::fileFetch_t(receiver_t& receiver)
    : m_receiver(receiver), m_from(nullptr), m_size(0), m_received(0), m_silent(0)
{
}

void fileFetch_t::start(link_t* from, QString const& path, qint64 size)
{
    m_from = from;
    m_path = path;
    m_size = size;
    m_received = 0;
    m_data.clear();
    m_error.clear();
    wantNext();
}

void fileFetch_t::stop()
{
    m_from = nullptr;
}

bool fileFetch_t::isRunning() const
{
    return m_from != nullptr;
}

qint64 fileFetch_t::received() const
{
    return m_received;
}

QByteArray fileFetch_t::takeData()
{
    QByteArray const data = m_data;
    m_data.clear();
    return data;
}

QString const& fileFetch_t::error() const
{
    return m_error;
}

void fileFetch_t::wantNext()
{
    m_silent = 0;
    qint64 const size = qMin(BLOCK, m_size - m_received);
    m_receiver.event(m_from, "fileWanted",
                     QVariantMap{{"path", m_path}, {"offset", double(m_received)}, {"size", int(size)}});
}

fileFetch_t::progress_t fileFetch_t::fail(QString const& error)
{
    m_error = error;
    stop();
    return FAILED;
}

fileFetch_t::progress_t fileFetch_t::take(link_t* from, QVariant const& block)
{
    QVariantMap const map = block.toMap();
    if (!isNumber(map.value("offset")) || map.value("path").userType() != QMetaType::QString)
        return UNREADABLE;
    if (!m_from || from != m_from || map.value("path").toString() != m_path)
        return NOT_MINE;
    if (map.value("error").userType() == QMetaType::QString)
        return fail(map.value("error").toString());
    if (map.value("data").userType() != QMetaType::QByteArray)
        return UNREADABLE;
    // A block that came twice.
    if (map.value("offset").toDouble() != double(m_received))
        return GOING_ON;
    return takeNew(map.value("data").toByteArray());
}

fileFetch_t::progress_t fileFetch_t::takeNew(QByteArray const& data)
{
    qint64 const wanted = qMin(BLOCK, m_size - m_received);
    if (data.size() > wanted)
        return UNREADABLE;
    m_received += data.size();
    m_data = data;
    if (data.size() < wanted)
        return fail("The file ended too early");
    if (m_received < m_size)
    {
        wantNext();
        return GOING_ON;
    }
    stop();
    return FINISHED;
}

fileFetch_t::progress_t fileFetch_t::advance(int milliseconds)
{
    if (!m_from)
        return NOT_MINE;
    m_silent += milliseconds;
    return m_silent < LONGEST_SILENCE ? GOING_ON : fail("The display did not send the file");
}

} // namespace melvox_receiver
