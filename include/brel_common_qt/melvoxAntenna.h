#ifndef BREL_COMMON_QT_MELVOX_ANTENNA_H
#define BREL_COMMON_QT_MELVOX_ANTENNA_H

#include "brel_common_qt/brelCommonQtExport.h"
#include "brel_common_qt/stdStringMetaType.h"

#include <QMetaType>
#include <QString>

#include <string>

/** The receiver's two antennas, that of its base station, and how they lie on the vehicle. */
namespace brel_common_qt
{

/** How the line between the two antennas lies relative to the vehicle. */
enum melvoxAntennaAlignmentMode_t : int
{
    MELVOX_ANT_ALIGN_MODE_LATERAL = 0,
    MELVOX_ANT_ALIGN_MODE_LONGITUDINAL = 1,
    MELVOX_ANT_ALIGN_MODE_USER_SPECIFIED = 2 //!< at the user angle
};

enum melvoxAntenna_t : int
{
    MELVOX_ANTENNA_FIRST = 0,
    MELVOX_ANTENNA_SECOND = 1,
    MELVOX_NUM_ANTENNAS = 2
};

struct melvoxAntennaInfo_t
{
    std::string name; //!< IGS antenna name
    std::string serial;
    unsigned int id; //!< setup id, 0 to 255
};

struct melvoxAntennaHeight_t
{
    bool useAdjustments;
    double height;     //!< millimetres
    double slantRange; //!< millimetres
    double radius;     //!< millimetres
};

/** The antenna of the remote base station. */
struct melvoxAntennaRemote_t
{
    bool automatic;   //!< the receiver takes it from the base station's messages
    std::string name; //!< IGS antenna name
};

/** The receiver's word for how it uses its two antennas, such as "DEFAULT" or "SFONLY". */
typedef std::string melvoxAntennaDualMode_t;

/** "Primary", "Secondary"; the unknown text for any other value. */
BREL_COMMON_QT_EXPORT QString melvoxAntennaName(melvoxAntenna_t antenna);

} // namespace brel_common_qt

Q_DECLARE_METATYPE(brel_common_qt::melvoxAntennaAlignmentMode_t)
Q_DECLARE_METATYPE(brel_common_qt::melvoxAntennaRemote_t)

#endif
