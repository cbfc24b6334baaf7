#include "qdconfig/config.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QString>

namespace qdconfig
{

struct config_t::privateData_t
{
    QString path;
};

namespace
{

// One character for each byte, whatever the bytes mean; the file then shows plain texts as they are.
QString fromBytes(std::string const& bytes)
{
    return QString::fromLatin1(bytes.data(), static_cast<int>(bytes.size()));
}

std::string toBytes(QString const& text)
{
    QByteArray const bytes = text.toLatin1();
    return std::string(bytes.constData(), bytes.size());
}

/** Keys without any part name nothing. */
bool isKey(std::string const& key)
{
    return key.find_first_not_of('/') != std::string::npos;
}

/** Asked before QSettings is: what that cannot write it keeps and writes at some later time, over values that may have
 *  come back meanwhile. */
bool isWritable(QString const& path)
{
    QString const folder = QFileInfo(path).absolutePath();
    return QDir().mkpath(folder) && QFileInfo(folder).isWritable() && QFile(path).open(QIODevice::ReadWrite);
}

bool write(QString const& path, QString const& key, QVariant const& value)
{
    // An object of its own for each attempt: the first error sticks to it.
    QSettings settings(path, QSettings::IniFormat);
    settings.setValue(key, value);
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace

config_t::config_t(std::string const& path) : m_data(new privateData_t)
{
    m_data->path = QFile::decodeName(QByteArray(path.data(), static_cast<int>(path.size())));
}

config_t::~config_t()
{
    delete m_data;
}

bool config_t::getValue(std::string const& key, std::string& value) const
{
    if (!isKey(key))
        return false;
    QSettings const settings(m_data->path, QSettings::IniFormat);
    QVariant const stored = settings.value(fromBytes(key));
    if (!stored.isValid())
        return false;
    value = toBytes(stored.toString());
    return true;
}

bool config_t::setValue(std::string const& key, std::string const& value)
{
    if (!isKey(key))
        return false;
    if (!isWritable(m_data->path))
        return false;
    QString const name = fromBytes(key);
    QVariant const before = QSettings(m_data->path, QSettings::IniFormat).value(name);
    // A damaged file is an error once; what could be read of it has then been written out whole.
    if (write(m_data->path, name, fromBytes(value)) || write(m_data->path, name, fromBytes(value)))
        return true;
    if (before.isValid())
        write(m_data->path, name, before);
    return false;
}

std::string qdConfigEncode(bool value)
{
    return value ? "true" : "false";
}

bool qdConfigDecode(std::string const& text, bool& value)
{
    if (text == "true" || text == "1")
        value = true;
    else if (text == "false" || text == "0")
        value = false;
    else
        return false;
    return true;
}

} // namespace qdconfig
