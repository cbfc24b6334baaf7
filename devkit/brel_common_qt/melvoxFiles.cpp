#include "melvoxFiles.h"

#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace melvox_kit
{

namespace
{

qint64 const LARGEST_BLOCK = 64 * 1024; // bytes

QString lastError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

/** Operators pull a drive out as soon as they are told that a file is written. */
bool writeThrough(QFile& file)
{
    if (!file.flush())
        return false;
#ifdef Q_OS_UNIX
    return ::fsync(file.handle()) == 0;
#else
    return true;
#endif
}

/** Not QFile::rename(): that refuses to replace a file, and between removing the old one and renaming there is none. */
bool replace(QString const& from, QString const& to)
{
    QByteArray const fromName = QFile::encodeName(from);
    QByteArray const toName = QFile::encodeName(to);
#ifdef Q_OS_WIN
    std::remove(toName.constData());
#endif
    return std::rename(fromName.constData(), toName.constData()) == 0;
}

} // namespace

QString pathFromText(std::string const& path)
{
    return QFile::decodeName(QByteArray(path.data(), int(path.size())));
}

qint64 sentFiles_t::offer(QString const& name, QString const& path)
{
    m_paths.insert(name, path);
    QFileInfo const info(path);
    return info.isFile() && info.isReadable() ? info.size() : -1;
}

bool sentFiles_t::isOffered(QString const& name) const
{
    return m_paths.contains(name);
}

void sentFiles_t::withdrawAll()
{
    m_paths.clear();
    release();
}

bool sentFiles_t::open(QString const& path, QString& reason)
{
    if (m_open.isOpen() && m_open.fileName() == path)
        return true;
    m_open.close();
    // Opening a pipe would wait for somebody to write into it.
    QFileInfo const info(path);
    if (info.exists() && !info.isFile())
    {
        reason = tr("This is not a file.");
        return false;
    }
    m_open.setFileName(path);
    if (m_open.open(QIODevice::ReadOnly))
        return true;
    reason = m_open.errorString();
    return false;
}

bool sentFiles_t::read(QString const& name, qint64 offset, qint64 size, QByteArray& block, QString& reason)
{
    if (!isOffered(name))
    {
        reason = tr("This file was not offered.");
        return false;
    }
    if (size > LARGEST_BLOCK)
    {
        reason = tr("At most %1 bytes can be sent at once.").arg(LARGEST_BLOCK);
        return false;
    }
    if (!open(m_paths.value(name), reason))
        return false;
    bool const good = m_open.seek(offset);
    QByteArray const found = good ? m_open.read(size) : QByteArray();
    if (!good || m_open.error() != QFile::NoError)
    {
        reason = m_open.errorString();
        m_open.close();
        return false;
    }
    block = found;
    if (m_open.atEnd())
        m_open.close();
    return true;
}

void sentFiles_t::release()
{
    m_open.close();
}

bool writeWhole(QString const& path, QByteArray const& bytes, QString& reason)
{
    QFile part(path + ".part");
    if (!part.open(QIODevice::WriteOnly))
    {
        reason = part.errorString();
        return false;
    }
    bool good = part.write(bytes) == bytes.size() && writeThrough(part);
    if (!good)
        reason = part.error() == QFile::NoError ? lastError() : part.errorString();
    part.close();
    if (good && !replace(part.fileName(), path))
    {
        good = false;
        reason = lastError();
    }
    if (!good)
        part.remove();
    return good;
}

} // namespace melvox_kit
