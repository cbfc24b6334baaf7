#ifndef MELVOX_KIT_FORMAT_H
#define MELVOX_KIT_FORMAT_H

#include "brel_common_qt/brelCommonQtExport.h"
#include "brel_common_qt/units.h"

#include <QString>
#include <QStringList>

/** What texts and edits must do alike. */
namespace melvox_kit
{

/** The decimals of the last part that the format has when nobody asks for others. */
BREL_COMMON_QT_EXPORT int defaultAnglePrecision(brel_common_qt::latLonFormat_t format);

/** Degrees, or degrees and minutes, or degrees, minutes and seconds of an angle of 0 degrees or more. Rounded once, in
 *  the last part, and carried from there. Minutes and seconds have two digits before the decimal point. */
BREL_COMMON_QT_EXPORT QStringList angleParts(double degrees, brel_common_qt::latLonFormat_t format, int precision);

BREL_COMMON_QT_EXPORT double fromMetres(double metres, brel_common_qt::distanceUnit_t unit);
BREL_COMMON_QT_EXPORT double toMetres(double distance, brel_common_qt::distanceUnit_t unit);

/** "m", "ft". */
BREL_COMMON_QT_EXPORT QString unitSymbol(brel_common_qt::distanceUnit_t unit);

} // namespace melvox_kit

#endif
