#include "melvoxFiles.h"

#include <QFileInfo>

namespace melvox_kit
{

namespace
{

// A receiver that asks for more at once gets this much; it asks again.
qint64 const LARGEST_BLOCK = 64 * 1024;

} // namespace

QString pathFromText(std::string const& path)
{
    return QFile::decodeName(QByteArray(path.data(), int(path.size())));
}

std::string textFromPath(QString const& path)
{
    QByteArray const name = QFile::encodeName(path);
    return std::string(name.constData(), std::size_t(name.size()));
}

qint64 sentFiles_t::offer(QString const& path)
{
    m_offered.insert(path);
    QFileInfo const info(path);
    return info.isFile() && info.isReadable() ? info.size() : -1;
}

void sentFiles_t::withdrawAll()
{
    m_offered.clear();
    m_open.close();
}

bool sentFiles_t::read(QString const& path, qint64 offset, qint64 size, QByteArray& block, QString& reason)
{
    if (!m_offered.contains(path))
    {
        reason = "This file was not offered.";
        return false;
    }
    if (!m_open.isOpen() || m_open.fileName() != path)
    {
        m_open.close();
        m_open.setFileName(path);
        if (!m_open.open(QIODevice::ReadOnly))
        {
            reason = m_open.errorString();
            return false;
        }
    }
    if (!m_open.seek(offset))
    {
        reason = m_open.errorString();
        return false;
    }
    qint64 const wanted = qMin(size, LARGEST_BLOCK);
    block = m_open.read(wanted);
    if (m_open.error() != QFile::NoError)
    {
        reason = m_open.errorString();
        m_open.close();
        return false;
    }
    if (block.size() < wanted)
        m_open.close();
    return true;
}

bool writeWhole(QString const& path, QByteArray const& bytes, QString& reason)
{
    QFile part(path + ".part");
    bool good = part.open(QIODevice::WriteOnly) && part.write(bytes) == bytes.size() && part.flush();
    if (good)
    {
        part.close();
        good = part.error() == QFile::NoError;
    }
    if (good)
    {
        // There is no rename in Qt that replaces; what stood there before is kept until the new file is whole.
        QFile::remove(path);
        good = part.rename(path);
    }
    if (!good)
    {
        reason = part.errorString();
        part.remove();
    }
    return good;
}

} // namespace melvox_kit
