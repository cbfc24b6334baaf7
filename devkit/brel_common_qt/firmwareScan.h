#ifndef MELVOX_KIT_FIRMWARE_SCAN_H
#define MELVOX_KIT_FIRMWARE_SCAN_H

#include "brel_common_qt/brelCommonQtExport.h"
#include "brel_common_qt/melvoxFirmware.h"

namespace melvox_kit
{

/** Reads the components of a firmware file, in the order of the file. False, with the reason, when it cannot be read or
 *  is damaged; the reason is empty when the scan was stopped. Reads in blocks: a mapped file would take the program
 *  down with a drive that is pulled out. */
BREL_COMMON_QT_EXPORT bool
readFirmwareFile(QString const& path, QList<brel_common_qt::melvoxFirmwareScanRecord_t>& records, QString& reason);

} // namespace melvox_kit

#endif
