#ifndef MELVOX_RECEIVER_NMEA_H
#define MELVOX_RECEIVER_NMEA_H

#include "receiver/fix.h"

#include <QByteArray>
#include <QByteArrayList>

namespace melvox_receiver
{

/** What holds for the sentences of all ports. */
struct nmeaOptions_t
{
    bool highPrecision;   //!< seven decimals of a minute and three of a metre, instead of four and one
    int satelliteQuality; //!< the quality of GGA with corrections from satellites: 2 or 5
    double ageDivisor;
    QByteArray forcedTalker; //!< empty: by the constellations in use
};

nmeaOptions_t nmeaOptions(settings_t const& settings);

/** "$", the body, its checksum, and the end of the line. */
QByteArray nmeaSentence(QByteArray const& body);

/** The sentences of one message, such as "GGA" or "PZLQSET": one, or several that belong together. Empty: there is no
 *  such message, or nothing to tell. */
QByteArrayList nmeaSentences(QByteArray const& type, fix_t const& fix, nmeaOptions_t const& options);

} // namespace melvox_receiver

#endif
