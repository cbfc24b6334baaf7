#ifndef BREL_COMMON_QT_TEXT_HELPERS_H
#define BREL_COMMON_QT_TEXT_HELPERS_H

#include "brel_common_qt/brelCommonQtExport.h"
#include "brel_common_qt/melvoxPortConfig.h"
#include "brel_common_qt/units.h"

#include <QString>

/** Texts that all screens share. Latitudes and longitudes in degrees, distances in metres. */
namespace brel_common_qt
{

BREL_COMMON_QT_EXPORT extern QString const YesString;
BREL_COMMON_QT_EXPORT extern QString const NoString;
BREL_COMMON_QT_EXPORT extern QString const NoneString;
BREL_COMMON_QT_EXPORT extern QString const UnknownString;
BREL_COMMON_QT_EXPORT extern QString const NoDataString; //!< the receiver has not told yet
BREL_COMMON_QT_EXPORT extern QString const utcString;    //!< follows a date and time that is in UTC

/** The rate in decimal, such as "115200". */
BREL_COMMON_QT_EXPORT QString baudString(unsigned int baud);

/** "None", "Odd", "Even"; the unknown text for any other value. */
BREL_COMMON_QT_EXPORT QString parityString(parity_t parity);

/** "7", "8"; the unknown text for any other value. */
BREL_COMMON_QT_EXPORT QString charSizeString(charSize_t charSize);

/** "1", "2"; the unknown text for any other value. */
BREL_COMMON_QT_EXPORT QString stopBitsString(stopBits_t stopBits);

/** A latitude or longitude in degrees, in the format of the options. Rounded once, in its last part, and carried
 *  from there: minutes and seconds never read 60. Default precision: 9 decimals of a degree, 7 of a minute, 5 of a
 *  second. A longitude is brought within 180 degrees east or west: 190 reads 170 W. A value that is no number, a latitude
 *  beyond 90 or a longitude beyond 360 degrees gives the no-data text. */
BREL_COMMON_QT_EXPORT QString latitudeString(double degrees, latLonStringOptions_t const& options);
BREL_COMMON_QT_EXPORT QString longitudeString(double degrees, latLonStringOptions_t const& options);

/** A distance in the unit, with so many decimals, a blank and the unit's symbol ("m" or "ft"). One that is no number, or
 *  infinite, gives the no-data text. */
BREL_COMMON_QT_EXPORT QString distanceString(double metres, distanceUnit_t unit, int decimals);

} // namespace brel_common_qt

#endif
