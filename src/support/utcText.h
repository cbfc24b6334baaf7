#ifndef MELVOX_UI_UTC_TEXT_H
#define MELVOX_UI_UTC_TEXT_H

#include <QString>

namespace brel_common_qt_gui
{

/** A time in seconds since 1970-01-01 00:00 UTC as a date, a time and the UTC suffix, such as
 *  "Wed Mar 4 05:06:07 2026 UTC" whatever the time zone and language. Fractions of a second are cut off; the no-data
 *  text for what is no time at all. */
QString utcText(double seconds);

} // namespace brel_common_qt_gui

#endif
