#ifndef BREL_COMMON_QT_MELVOX_PPS_H
#define BREL_COMMON_QT_MELVOX_PPS_H

#include <QMetaType>

namespace brel_common_qt
{

/** The one-pulse-per-second output. */
struct melvoxPpsConfig_t
{
    unsigned char polarity;   //!< 0 negative, 1 positive
    unsigned int width;       //!< nanoseconds
    unsigned int interval;    //!< milliseconds
    unsigned int signalDelay; //!< milliseconds
    unsigned int chipDelay;   //!< nanoseconds
};

} // namespace brel_common_qt

Q_DECLARE_METATYPE(brel_common_qt::melvoxPpsConfig_t)

#endif
