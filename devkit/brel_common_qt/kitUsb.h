#ifndef MELVOX_KIT_USB_H
#define MELVOX_KIT_USB_H

#include "brel_common_qt/brelCommonQtExport.h"

#include <QString>

/** How a host on the kit plugs USB drives in. */
namespace melvox_kit
{

/** Each folder in this one stands for a USB drive, named after it. Made and removed, they are plugged in and pulled
 *  out. The folder must be there; empty: no drives. May be called before and after the drive manager is made. */
BREL_COMMON_QT_EXPORT void setUsbRoot(QString const& path);

} // namespace melvox_kit

#endif
