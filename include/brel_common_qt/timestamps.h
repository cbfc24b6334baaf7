#ifndef BREL_COMMON_QT_TIMESTAMPS_H
#define BREL_COMMON_QT_TIMESTAMPS_H

#include "brel_common_qt/brelCommonQtExport.h"

#include <QString>

namespace brel_common_qt
{

/** Now, in seconds since 1970-01-01 00:00 UTC. */
BREL_COMMON_QT_EXPORT double dataTimestamp();

/** A time in UTC as text for a file name, "20261121_093005". With `decimals` above 0 an underscore and so many zeros
 *  follow, which keeps names of one list equally long. */
BREL_COMMON_QT_EXPORT QString filenameTimestamp(unsigned int seconds, int decimals);

} // namespace brel_common_qt

#endif
