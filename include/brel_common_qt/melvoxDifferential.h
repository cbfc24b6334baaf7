#ifndef BREL_COMMON_QT_MELVOX_DIFFERENTIAL_H
#define BREL_COMMON_QT_MELVOX_DIFFERENTIAL_H

#include "brel_common_qt/brelCommonQtExport.h"
#include "brel_common_qt/melvoxPort.h"

#include <QMetaType>

/** Work as a rover that takes RTCM corrections in, or as a base that sends them out. */
namespace brel_common_qt
{

enum melvoxDiffMode_t : int
{
    MELVOX_DIFF_MODE_ROVER_RTCM = 0,
    MELVOX_DIFF_MODE_BASE_MIN = 1,
    MELVOX_DIFF_MODE_BASE_RTCM1 = 1,
    MELVOX_DIFF_MODE_BASE_RTCM9 = 2,
    NUM_MELVOX_DIFF_MODES = 3
};

enum melvoxRtcmVersion_t : int
{
    MELVOX_RTCM_VERSION_32 = 0,
    MELVOX_RTCM_VERSION_23 = 1
};

struct melvoxDiffConfig_t
{
    melvoxDiffMode_t mode;
    unsigned int stationId; //!< station id of a base, site id of a rover
    bool dynamic;
    melvoxPort_t port; //!< where a base puts its corrections out
    bool portSet;      //!< the port above is meant
};

struct melvoxBasePosition_t
{
    double latitude;  //!< radians
    double longitude; //!< radians
    double height;    //!< metres
};

/** True for the modes from MELVOX_DIFF_MODE_BASE_MIN on. */
BREL_COMMON_QT_EXPORT bool melvoxDiffModeIsBase(melvoxDiffMode_t mode);

/** True where the receiver may move: a rover. A base stands still. */
BREL_COMMON_QT_EXPORT bool melvoxDiffModeIsDynamic(melvoxDiffMode_t mode);

} // namespace brel_common_qt

Q_DECLARE_METATYPE(brel_common_qt::melvoxDiffConfig_t)
Q_DECLARE_METATYPE(brel_common_qt::melvoxRtcmVersion_t)
Q_DECLARE_METATYPE(brel_common_qt::melvoxBasePosition_t)

#endif
