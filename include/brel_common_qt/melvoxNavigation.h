#ifndef BREL_COMMON_QT_MELVOX_NAVIGATION_H
#define BREL_COMMON_QT_MELVOX_NAVIGATION_H

#include "brel_common_qt/brelCommonQtExport.h"

#include <QList>
#include <QMetaType>

#include <string>

/** Which measurements the solution uses, how much motion it expects, and what it reports. */
namespace brel_common_qt
{

/** The receiver's names of the constellations' measurements. */
BREL_COMMON_QT_EXPORT extern std::string const MELVOX_MEAS_NAME_GPS;     //!< "GPS"
BREL_COMMON_QT_EXPORT extern std::string const MELVOX_MEAS_NAME_GLONASS; //!< "GLO"
BREL_COMMON_QT_EXPORT extern std::string const MELVOX_MEAS_NAME_GALILEO; //!< "GAL"
BREL_COMMON_QT_EXPORT extern std::string const MELVOX_MEAS_NAME_BEIDOU;  //!< "BEI"

struct meas_t
{
    std::string name;
    bool use;
};

/** The receiver's whole table. */
typedef QList<meas_t> measUse_t;

enum melvoxDynamicMode_t : int
{
    MELVOX_DYN_MODE_STATIC = 0,
    MELVOX_DYN_MODE_LOW = 1,
    MELVOX_DYN_MODE_MEDIUM = 2,
    MELVOX_DYN_MODE_HIGH = 3,
    MELVOX_NUM_DYN_MODES = 4
};

struct melvoxDynamicConfig_t
{
    bool autoMode;            //!< the receiver chooses its mode itself
    melvoxDynamicMode_t mode; //!< meaningful while autoMode is false
    bool velocitySmoothing;   //!< meaningful while autoMode is true
};

enum melvoxNavMode_t : int
{
    MELVOX_NAV_MODE_NON_DIFF = 0,
    MELVOX_NAV_MODE_DGPS = 1,
    MELVOX_NAV_MODE_STARFIRE_DUAL = 2,
    MELVOX_NAV_MODE_RTK_FLOAT = 3,
    MELVOX_NAV_MODE_RTK_X = 4,
    MELVOX_NAV_MODE_RTK_WL_FIXED = 5,
    MELVOX_NAV_MODE_RTK_L1_FIXED = 6,
    MELVOX_NAV_MODE_RTK_DUAL_FIXED = 7,
    MELVOX_NAV_MODE_STARFIRE_LP = 8
};

/** Where the corrections of the solution come from; read against the mode. */
enum melvoxNavSource_t : int
{
    // differential modes
    MELVOX_NAV_SOURCE_DGPS_WAAS = 0,
    MELVOX_NAV_SOURCE_DGPS_WAAS_TEST = 1,
    MELVOX_NAV_SOURCE_DGPS_STARFIRE_GPS = 2,
    MELVOX_NAV_SOURCE_DGPS_RTCM_1 = 3,
    MELVOX_NAV_SOURCE_DGPS_RTCM_9 = 4,
    MELVOX_NAV_SOURCE_DGPS_EGNOS = 5,
    MELVOX_NAV_SOURCE_DGPS_MSAS = 6,
    MELVOX_NAV_SOURCE_DGPS_GAGAN = 7,
    MELVOX_NAV_SOURCE_DGPS_STARFIRE_GNSS = 8,
    // RTK modes
    MELVOX_NAV_SOURCE_RTK_5B = 0,
    MELVOX_NAV_SOURCE_RTK_RESERVED1 = 1,
    MELVOX_NAV_SOURCE_RTK_RTCM_18_19 = 2,
    MELVOX_NAV_SOURCE_RTK_RTCM_20_21 = 3,
    MELVOX_NAV_SOURCE_RTK_CMR = 4,
    MELVOX_NAV_SOURCE_RTK_CMR_PLUS = 5,
    MELVOX_NAV_SOURCE_RTK_RTCM3_L1_COMPACT = 6,
    MELVOX_NAV_SOURCE_RTK_RTCM3_L1_FULL = 7,
    MELVOX_NAV_SOURCE_RTK_RTCM3_DUAL_COMPACT = 8,
    MELVOX_NAV_SOURCE_RTK_RTCM3_DUAL_FULL = 9,
    MELVOX_NAV_SOURCE_RTK_RTCM3_2_MSM = 10,
    MELVOX_NAV_SOURCE_RTK_62 = 11
};

/** The navigation summary. Seconds of week, metres, metres per second. */
struct melvoxExtendedNavInfo_t
{
    unsigned int gpsWeek;
    double gpsTime;
    unsigned int navValid; //!< 0: no
    unsigned int datum;
    unsigned int geoid;
    melvoxNavMode_t navMode;
    melvoxNavSource_t navSource;
    unsigned short stationId;
    unsigned char failureCode;
    double setDeltaNorth; //!< solid earth tide
    double setDeltaEast;
    double setDeltaUp;
    double latError; //!< standard deviations
    double lonError;
    double heightError;
    double velocityNorth;
    double velocityEast;
    double velocityUp;
};

} // namespace brel_common_qt

Q_DECLARE_METATYPE(brel_common_qt::measUse_t)
Q_DECLARE_METATYPE(brel_common_qt::melvoxDynamicConfig_t)

#endif
