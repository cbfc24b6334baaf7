#ifndef BREL_COMMON_QT_USB_DRIVE_MANAGER_H
#define BREL_COMMON_QT_USB_DRIVE_MANAGER_H

#include "brel_common_qt/brelCommonQtExport.h"

#include <QList>
#include <QMetaType>
#include <QObject>
#include <QString>

namespace brel_common_qt
{

/** A USB drive that can be read now. Whether it can be written too shows when something is. */
struct usbDrive_t
{
    QString mountPoint; //!< ends with a separator, so that a file name can be appended as it stands
    QString name;       //!< for display
};

/** Knows the unit's USB drives. The host creates the one there is, before any page, if the unit has USB at all. */
class BREL_COMMON_QT_EXPORT usbDriveManager_t : public QObject
{
    Q_OBJECT

public:
    /** Makes itself `m_instance`. */
    explicit usbDriveManager_t(QObject* parent = 0);
    ~usbDriveManager_t();

    /** Null on a unit without USB drives. */
    static usbDriveManager_t* m_instance;

    QList<brel_common_qt::usbDrive_t> drives() const;

signals:
    /** A drive was plugged in or pulled out. */
    void drivesChanged();

private:
    Q_DISABLE_COPY(usbDriveManager_t)

    struct privateData_t;
    privateData_t* m_data;
};

} // namespace brel_common_qt

Q_DECLARE_METATYPE(brel_common_qt::usbDrive_t)

#endif
