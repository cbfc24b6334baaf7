#include "brel_common_qt/usbDriveManager.h"

#include "brel_common_qt/kitUsb.h"

#include <QDir>
#include <QFileSystemWatcher>
#include <QPointer>

#include <algorithm>

namespace brel_common_qt
{

namespace
{

using melvox_kit::mount_t;
using melvox_kit::mountTable_t;

QString usbRoot;
QPointer<mountTable_t> usbMounts;
QString sysRoot;

/** Where desktops and operators mount drives that come and go. */
char const* const PLACES[] = {"/media/", "/run/media/", "/mnt/"};

bool isSame(QList<usbDrive_t> const& a, QList<usbDrive_t> const& b)
{
    if (a.size() != b.size())
        return false;
    for (int i = 0; i < a.size(); ++i)
    {
        if (a.at(i).mountPoint != b.at(i).mountPoint)
            return false;
    }
    return true;
}

bool comesFirst(usbDrive_t const& a, usbDrive_t const& b)
{
    return a.name == b.name ? a.mountPoint < b.mountPoint : a.name < b.name;
}

QList<usbDrive_t> findFolders()
{
    QList<usbDrive_t> drives;
    if (usbRoot.isEmpty())
        return drives;
    QFileInfoList const folders =
        QDir(usbRoot).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Readable, QDir::Name);
    for (int i = 0; i < folders.size(); ++i)
    {
        usbDrive_t drive;
        drive.mountPoint = folders.at(i).absoluteFilePath() + QLatin1Char('/');
        drive.name = folders.at(i).fileName();
        drives << drive;
    }
    return drives;
}

bool isOne(QString const& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll().trimmed() == "1";
}

/** What the kernel says. Hard disks on USB do not count as removable there, but the path tells where they are plugged in;
 *  of a partition its disk is asked, which is the folder around it. */
bool isRemovable(QString const& device)
{
    QString const node = QFileInfo(device).canonicalFilePath();
    QString const name = QFileInfo(node.isEmpty() ? device : node).fileName();
    QString const block = QFileInfo(sysRoot + QLatin1String("/class/block/") + name).canonicalFilePath();
    if (block.isEmpty())
        return false;
    QString const place = QDir(QFileInfo(sysRoot).canonicalFilePath()).relativeFilePath(block);
    return place.contains(QLatin1String("/usb")) || isOne(block + QLatin1String("/removable")) ||
           isOne(block + QLatin1String("/../removable"));
}

bool isDrive(mount_t const& mount)
{
    // Others are no block devices: memory, network, the kernel's own.
    if (mount.path == QLatin1String("/") || !mount.device.startsWith(QLatin1String("/dev/")))
        return false;
    for (char const* place : PLACES)
    {
        if (mount.path.startsWith(QLatin1String(place)))
            return true;
    }
    return isRemovable(mount.device);
}

QList<usbDrive_t> findMounted()
{
    QList<usbDrive_t> drives;
    QList<mount_t> const mounts = usbMounts->mounts();
    for (int i = 0; i < mounts.size(); ++i)
    {
        if (!isDrive(mounts.at(i)))
            continue;
        usbDrive_t drive;
        drive.mountPoint = mounts.at(i).path + QLatin1Char('/');
        drive.name = mounts.at(i).name.isEmpty() ? QFileInfo(mounts.at(i).path).fileName() : mounts.at(i).name;
        drives << drive;
    }
    std::sort(drives.begin(), drives.end(), comesFirst);
    return drives;
}

class driveWatcher_t;
QList<driveWatcher_t*> watchers;

/** Follows the folder whose folders are drives, or what the machine mounts. */
class driveWatcher_t : public QObject
{
    Q_OBJECT

public:
    driveWatcher_t()
    {
        watchers << this;
        connect(&m_watcher, SIGNAL(directoryChanged(QString)), this, SLOT(update()));
    }

    ~driveWatcher_t() { watchers.removeAll(this); }

    void follow()
    {
        QStringList const before = m_watcher.directories();
        if (!before.isEmpty())
            m_watcher.removePaths(before);
        if (QFileInfo(usbRoot).isDir())
            m_watcher.addPath(usbRoot);
        if (m_mounts)
            disconnect(m_mounts.data(), nullptr, this, nullptr);
        m_mounts = usbMounts;
        if (m_mounts)
        {
            connect(m_mounts.data(), SIGNAL(changed()), SLOT(update()));
            connect(m_mounts.data(), SIGNAL(destroyed()), SLOT(update()));
        }
        update();
    }

    QList<usbDrive_t> const& drives() const { return m_drives; }

signals:
    void changed();

public slots:
    void update()
    {
        QList<usbDrive_t> const now = usbMounts ? findMounted() : findFolders();
        if (isSame(now, m_drives))
            return;
        m_drives = now;
        emit changed();
    }

private:
    QFileSystemWatcher m_watcher;
    QPointer<mountTable_t> m_mounts;
    QList<usbDrive_t> m_drives;
};

void followAnew()
{
    for (int i = 0; i < watchers.size(); ++i)
        watchers.at(i)->follow();
}

} // namespace

struct usbDriveManager_t::privateData_t
{
    driveWatcher_t watcher;
};

usbDriveManager_t* usbDriveManager_t::m_instance = nullptr;

usbDriveManager_t::usbDriveManager_t(QObject* parent) : QObject(parent), m_data(new privateData_t)
{
    m_instance = this;
    m_data->watcher.follow();
    connect(&m_data->watcher, SIGNAL(changed()), this, SIGNAL(drivesChanged()));
}

usbDriveManager_t::~usbDriveManager_t()
{
    if (m_instance == this)
        m_instance = nullptr;
    delete m_data;
}

QList<usbDrive_t> usbDriveManager_t::drives() const
{
    return m_data->watcher.drives();
}

} // namespace brel_common_qt

melvox_kit::mountTable_t::mountTable_t()
{
}

melvox_kit::mountTable_t::~mountTable_t()
{
}

void melvox_kit::setUsbRoot(QString const& path)
{
    brel_common_qt::usbRoot = path;
    brel_common_qt::usbMounts = nullptr;
    brel_common_qt::followAnew();
}

void melvox_kit::setUsbMounts(mountTable_t* mounts, QString const& root)
{
    brel_common_qt::usbRoot = QString();
    brel_common_qt::usbMounts = mounts;
    brel_common_qt::sysRoot = root;
    brel_common_qt::followAnew();
}

#include "usbDriveManager.moc"
