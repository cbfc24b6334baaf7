#ifndef BREL_COMMON_QT_MELVOX_CORRECTIONS_H
#define BREL_COMMON_QT_MELVOX_CORRECTIONS_H

#include <QMetaType>

#include <map>

/** The L-band correction receiver: its satellites, the almanac, and what it prefers. */
namespace brel_common_qt
{

struct melvoxCorrectionSatStats_t
{
    unsigned int id;
    unsigned char beam;
    unsigned char status; //!< signal status code, 0 to 10; 9 is locked
    float strength;       //!< signal to noise
    float agcVoltage;     //!< volts
    float goodPercent;    //!< of all packets
    float idlePercent;    //!< of all packets
    unsigned int resyncCount;
    float frequencyOffset; //!< hertz
};

struct melvoxCorrectionSat_t
{
    unsigned int id;
    double longitude;        //!< degrees, negative is west
    unsigned char lookAngle; //!< degrees
    bool net1;
    bool net2;
    bool flagU;
    bool flagA;
    bool flagC;
};

/** By satellite id, in id order. */
typedef std::map<unsigned short, melvoxCorrectionSatStats_t> melvoxCorrectionSatStatsMap_t;
typedef std::map<unsigned short, melvoxCorrectionSat_t> melvoxCorrectionSatMap_t;

enum melvoxCorrectionSelection_t : int
{
    MELVOX_CORRECTION_SELECTION_DEFAULT = 0,
    MELVOX_CORRECTION_SELECTION_SECONDARY = 1
};

enum melvoxNetPriority_t : int
{
    MELVOX_NET_PRIORITY_NET1 = 0,
    MELVOX_NET_PRIORITY_NET2 = 1
};

enum melvoxRtgUseMode_t : int
{
    MELVOX_RTG_USE_MODE_OFF = 0,
    MELVOX_RTG_USE_MODE_ON = 1
};

enum melvoxStarfireAlmSwitchMode_t : int
{
    MELVOX_STARFIRE_ALM_SWITCH_MODE_AUTO = 0,
    MELVOX_STARFIRE_ALM_SWITCH_MODE_MANUAL = 1
};

/** When the receiver takes a newly received almanac into use. */
struct melvoxStarfireAlmSwitchPolicy_t
{
    melvoxStarfireAlmSwitchMode_t mode;
    unsigned int hours; //!< hours and minutes to wait in automatic mode, at most 24 hours together
    unsigned int minutes;
};

struct melvoxMrvAlmanacInfo_t
{
    double updateTime; //!< seconds since 1970-01-01 00:00 UTC
};

} // namespace brel_common_qt

Q_DECLARE_METATYPE(brel_common_qt::melvoxCorrectionSelection_t)
Q_DECLARE_METATYPE(brel_common_qt::melvoxNetPriority_t)
Q_DECLARE_METATYPE(brel_common_qt::melvoxRtgUseMode_t)

#endif
