#include "brel_common_qt/usbDriveManager.h"

#include "brel_common_qt/kitUsb.h"

#include <QDir>
#include <QFileSystemWatcher>

namespace brel_common_qt
{

namespace
{

QString usbRoot;

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

QList<usbDrive_t> findDrives(QString const& root)
{
    QList<usbDrive_t> drives;
    if (root.isEmpty())
        return drives;
    QFileInfoList const folders =
        QDir(root).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Readable | QDir::Writable, QDir::Name);
    for (int i = 0; i < folders.size(); ++i)
    {
        usbDrive_t drive;
        drive.mountPoint = folders.at(i).absoluteFilePath() + QLatin1Char('/');
        drive.name = folders.at(i).fileName();
        drives << drive;
    }
    return drives;
}

class driveWatcher_t;
QList<driveWatcher_t*> watchers;

/** Follows the folder whose folders are drives. */
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

    void followRoot()
    {
        QStringList const before = m_watcher.directories();
        if (!before.isEmpty())
            m_watcher.removePaths(before);
        if (QFileInfo(usbRoot).isDir())
            m_watcher.addPath(usbRoot);
        update();
    }

    QList<usbDrive_t> const& drives() const { return m_drives; }

signals:
    void changed();

public slots:
    void update()
    {
        QList<usbDrive_t> const now = findDrives(usbRoot);
        if (isSame(now, m_drives))
            return;
        m_drives = now;
        emit changed();
    }

private:
    QFileSystemWatcher m_watcher;
    QList<usbDrive_t> m_drives;
};

} // namespace

struct usbDriveManager_t::privateData_t
{
    driveWatcher_t watcher;
};

usbDriveManager_t* usbDriveManager_t::m_instance = nullptr;

usbDriveManager_t::usbDriveManager_t(QObject* parent) : QObject(parent), m_data(new privateData_t)
{
    m_instance = this;
    m_data->watcher.followRoot();
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

void melvox_kit::setUsbRoot(QString const& path)
{
    brel_common_qt::usbRoot = path;
    for (int i = 0; i < brel_common_qt::watchers.size(); ++i)
        brel_common_qt::watchers.at(i)->followRoot();
}

#include "usbDriveManager.moc"
