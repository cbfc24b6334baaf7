#ifndef MELVOX_UI_FIRMWARE_PACKAGE_H
#define MELVOX_UI_FIRMWARE_PACKAGE_H

#include "brel_common_qt/fileScanner.h"
#include "brel_common_qt/melvoxFirmware.h"
#include "melvox_ui/melvoxUiExport.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace brel_common_qt_gui
{

/** A file or directory of firmware, and what a scan found in it. A plain value: a copy stands for itself. Whoever holds
 *  a pointer to one deletes it. */
class MELVOX_UI_EXPORT melvoxUiFirmwarePackage_t : public brel_common_qt::scanFile_t
{
public:
    /** Named after the file, without records and files. */
    explicit melvoxUiFirmwarePackage_t(QFileInfo const& fileInfo);
    ~melvoxUiFirmwarePackage_t();

    QString name; //!< for display
    QList<brel_common_qt::melvoxFirmwareScanRecord_t> records;
    /** Paths. One file may hold all the records; otherwise the i-th record is in the i-th file. */
    QStringList files;
};

} // namespace brel_common_qt_gui

#endif
