#ifndef MELVOX_KIT_USB_H
#define MELVOX_KIT_USB_H

#include "brel_common_qt/brelCommonQtExport.h"

#include <QList>
#include <QObject>
#include <QString>

/** How a host on the kit plugs USB drives in: folders that stand for drives, or the drives of the machine. */
namespace melvox_kit
{

/** Each folder in this one stands for a USB drive, named after it. Made and removed, they are plugged in and pulled
 *  out. The folder must be there; empty: no drives. May be called before and after the drive manager is made. */
BREL_COMMON_QT_EXPORT void setUsbRoot(QString const& path);

/** A file system that this program can read, where it is mounted. */
struct mount_t
{
    QString device; //!< such as /dev/sdb1
    QString path;
    QString name; //!< its label; may be empty
};

/** What a machine has mounted. */
class BREL_COMMON_QT_EXPORT mountTable_t : public QObject
{
    Q_OBJECT

public:
    mountTable_t();
    ~mountTable_t();

    virtual QList<melvox_kit::mount_t> mounts() const = 0;

signals:
    /** Something may have been mounted or unmounted. */
    void changed();

private:
    Q_DISABLE_COPY(mountTable_t)
};

/** What this machine has mounted. The caller owns it; null where Qt does not know, which is before 5.4. */
BREL_COMMON_QT_EXPORT mountTable_t* createSystemMounts();

/** Instead of folders the drives are what of this is removable: mounted where desktops mount such drives, or said to be
 *  by the kernel, which tells about block devices below `sysRoot`. Once the table is gone there are no drives. */
BREL_COMMON_QT_EXPORT void setUsbMounts(mountTable_t* mounts, QString const& sysRoot = QLatin1String("/sys"));

} // namespace melvox_kit

#endif
