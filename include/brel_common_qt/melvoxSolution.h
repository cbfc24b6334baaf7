#ifndef BREL_COMMON_QT_MELVOX_SOLUTION_H
#define BREL_COMMON_QT_MELVOX_SOLUTION_H

#include <QMetaType>

/** How the receiver forms its position solution. */
namespace brel_common_qt
{

/** The correction inputs. */
enum melvoxCorrectionType_t : int
{
    MELVOX_CORR_TYPE_RTCM19 = 0, //!< RTCM code corrections
    MELVOX_CORR_TYPE_SBAS = 1,   //!< WAAS, EGNOS and the like
    MELVOX_CORR_TYPE_RTG = 2
};

enum melvoxGeoidalModel_t : int
{
    MELVOX_GEOIDAL_MODEL_NONE = 0,
    MELVOX_GEOIDAL_MODEL_EGM96 = 1,
    MELVOX_GEOIDAL_MODEL_DEFAULT = 2
};

enum melvoxNtripPPPMode_t : int
{
    MELVOX_NTRIP_PPP_MODE_OFF = 0,
    MELVOX_NTRIP_PPP_MODE_ON = 1
};

enum melvoxNtripPPPProtocol_t : int
{
    MELVOX_NTRIP_PPP_MODE_HTTP = 0,
    MELVOX_NTRIP_PPP_MODE_HTTPS = 1
};

struct melvoxNtripPPP_t
{
    melvoxNtripPPPMode_t mode;
    melvoxNtripPPPProtocol_t protocol; //!< without meaning while the mode is off
};

} // namespace brel_common_qt

Q_DECLARE_METATYPE(brel_common_qt::melvoxCorrectionType_t)
Q_DECLARE_METATYPE(brel_common_qt::melvoxGeoidalModel_t)
Q_DECLARE_METATYPE(brel_common_qt::melvoxNtripPPP_t)

#endif
