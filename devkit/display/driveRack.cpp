#include "display/driveRack.h"

#include "brel_common_qt/kitUsb.h"
#include "brel_common_qt/usbDriveManager.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace melvox_display
{

namespace
{

bool writeMissing(QString const& path, QByteArray const& bytes)
{
    if (QFileInfo::exists(path))
        return true;
    QFile file(path);
    return QDir().mkpath(QFileInfo(path).path()) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size();
}

} // namespace

driveRack_t::driveRack_t(QString const& folder, QObject* parent) : QObject(parent), m_folder(folder)
{
    if (!m_folder.isEmpty())
        open();
}

driveRack_t::~driveRack_t()
{
    m_manager.reset();
    melvox_kit::setUsbRoot(QString());
}

bool driveRack_t::open()
{
    if (m_manager)
        return true;
    if (m_folder.isEmpty())
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        if (!m_temporary->isValid())
        {
            m_temporary.reset();
            return false;
        }
        m_folder = m_temporary->path();
    }
    melvox_kit::setUsbRoot(m_folder);
    createManager();
    return true;
}

void driveRack_t::openReal()
{
    m_mounts.reset(melvox_kit::createSystemMounts());
    melvox_kit::setUsbMounts(m_mounts.get());
    createManager();
}

void driveRack_t::createManager()
{
    m_manager = std::make_unique<brel_common_qt::usbDriveManager_t>();
    connect(m_manager.get(), SIGNAL(drivesChanged()), SIGNAL(changed()));
}

QString driveRack_t::path(QString const& name) const
{
    return m_folder + '/' + name;
}

QString driveRack_t::hidden(QString const& name) const
{
    return path('.' + name);
}

QStringList driveRack_t::pluggedIn() const
{
    QStringList names;
    if (m_manager)
    {
        for (brel_common_qt::usbDrive_t const& drive : m_manager->drives())
            names << drive.name;
    }
    return names;
}

QStringList driveRack_t::pulledOut() const
{
    QStringList names;
    if (!m_manager || isReal())
        return names;
    for (QString const& name :
         QDir(m_folder).entryList({".*"}, QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name))
        names << name.mid(1);
    return names;
}

bool driveRack_t::plugIn(QString const& name, QMap<QString, QByteArray> const& files)
{
    if (isReal() || !open())
        return false;
    bool const isNew = !QFileInfo::exists(path(name));
    // Whoever waits for the drive must find its files on it.
    QString const place = isNew ? hidden(name) : path(name);
    bool good = QDir().mkpath(place);
    for (auto it = files.begin(); it != files.end(); ++it)
        good = writeMissing(place + '/' + it.key(), *it) && good;
    if (isNew)
        good = QDir().rename(place, path(name)) && good;
    return good;
}

bool driveRack_t::pullOut(QString const& name)
{
    return m_manager && !isReal() && QDir().rename(path(name), hidden(name));
}

QString driveRack_t::newName() const
{
    QStringList const taken = pluggedIn() + pulledOut();
    for (int number = 1;; ++number)
    {
        QString const name = QString("DRIVE%1").arg(number);
        if (!taken.contains(name))
            return name;
    }
}

} // namespace melvox_display
