#ifndef BREL_COMMON_QT_MELVOX_FIRMWARE_H
#define BREL_COMMON_QT_MELVOX_FIRMWARE_H

#include "brel_common_qt/brelCommonQtExport.h"

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

#include <string>

/** Firmware of the receiver: its components, packages of it in files, and how an update goes. */
namespace brel_common_qt
{

enum melvoxFirmwareComponent_t : int
{
    MELVOX_FW_COMP_MIN = 0,
    MELVOX_FW_COMP_BOOT1 = 0,
    MELVOX_FW_COMP_BOOT2 = 1,
    MELVOX_FW_COMP_NAV = 2,
    MELVOX_FW_COMP_MTEST = 3,
    MELVOX_FW_COMP_PIO_BOOT1 = 4,
    MELVOX_FW_COMP_PIO_BOOT2 = 5,
    MELVOX_FW_COMP_PIO_APP = 6,
    MELVOX_FW_COMP_PIO_BLUETOOTH = 7,
    MELVOX_FW_COMP_STM8 = 8,
    MELVOX_FW_COMP_MFG_PIOB = 9,
    MELVOX_FW_COMP_MFG_GNSS = 10,
    MELVOX_FW_COMP_OCEAN_TIDE = 11,
    MELVOX_FW_COMP_GLOBAL_GEOID_GRID = 12,
    MELVOX_FW_COMP_GPB = 13,
    MELVOX_FW_COMP_GEOID99 = 14,
    MELVOX_FW_COMP_GGM02 = 15,
    MELVOX_FW_COMP_ALL = 16,
    MELVOX_NUM_FW_COMPONENTS = 17,
    MELVOX_FW_UNKNOWN_COMPONENT = 255
};

enum melvoxFirmwareUpdateStatus_t : int
{
    MELVOX_FWU_STATUS_NOT_STARTED = 0,
    MELVOX_FWU_STATUS_IN_PROGRESS = 1,
    MELVOX_FWU_STATUS_SUCCESS = 2,
    MELVOX_FWU_STATUS_FAILURE = 3,
    NUM_MELVOX_FWU_STATUS = 4
};

enum firmwareUpdateState_t : int
{
    FIRMWARE_UPDATE_ERROR = 0,
    FIRMWARE_UPDATE_IN_PROGRESS = 1,
    FIRMWARE_UPDATE_COMPLETE = 2
};

/** One component found in a firmware file. */
struct melvoxFirmwareScanRecord_t
{
    unsigned int fileIndex; //!< which part of the file holds it, counted from 0
    melvoxFirmwareComponent_t component;
    int product; //!< the product code that the component is made for
    QString version;
};

/** One component to update. */
struct melvoxFirmwareUpdateComponent_t
{
    unsigned int fileIndex; //!< as the scan gave it
    melvoxFirmwareComponent_t component;
    std::string path; //!< empty when the whole package is one file
};

/** How far one component has come. */
struct melvoxFirmwareUpdateProgress_t
{
    melvoxFirmwareComponent_t component;
    melvoxFirmwareUpdateStatus_t status;
};

/** Short display names; the unknown text for any other value. */
BREL_COMMON_QT_EXPORT QString melvoxFirmwareComponentString(melvoxFirmwareComponent_t component);
BREL_COMMON_QT_EXPORT QString melvoxFirmwareUpdateStatusString(melvoxFirmwareUpdateStatus_t status);

/** Suffixes of files, without the dot. */
BREL_COMMON_QT_EXPORT extern QString const SrecFileSuffix;
BREL_COMMON_QT_EXPORT extern QString const MelvoxWebUiPackageFileSuffix;

/** What to append to a drive's mount point, as it stands, for the directory of update files. */
BREL_COMMON_QT_EXPORT extern QString const UsbUpdatesDir;

/** Appends the components that an S-record file holds, those made for `productCode` first. A file that cannot be read
 *  or is damaged adds nothing. Safe to call from any thread. */
BREL_COMMON_QT_EXPORT void melvoxFirmwareScanFile(QString const& path, QList<melvoxFirmwareScanRecord_t>& records,
                                                  int productCode);

/** The same for the firmware files that lie directly in a directory, in the order of their names: the i-th of the
 *  records appended belongs to the i-th of the files appended. */
BREL_COMMON_QT_EXPORT void melvoxFirmwareScanDir(QString const& path, QStringList& files,
                                                 QList<melvoxFirmwareScanRecord_t>& records, int productCode);

} // namespace brel_common_qt

Q_DECLARE_METATYPE(brel_common_qt::firmwareUpdateState_t)
Q_DECLARE_METATYPE(QList<brel_common_qt::melvoxFirmwareUpdateProgress_t>)

#endif
