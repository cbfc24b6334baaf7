#ifndef BREL_COMMON_QT_MELVOX_OUTPUT_H
#define BREL_COMMON_QT_MELVOX_OUTPUT_H

#include "brel_common_qt/brelCommonQtExport.h"

#include <QMetaType>
#include <QString>

#include <map>
#include <string>

/** What the receiver puts out on its ports. */
namespace brel_common_qt
{

enum melvoxOutputMethod_t : int
{
    MELVOX_OUTPUT_METHOD_OFF = 0,
    MELVOX_OUTPUT_METHOD_INTERVAL = 1
};

/** How one message is put out on one port. */
struct melvoxMessageOutput_t
{
    melvoxOutputMethod_t method;
    double interval; //!< seconds; meaningful with MELVOX_OUTPUT_METHOD_INTERVAL
};

/** All messages of one port, by the receiver's name of the message. */
typedef std::map<std::string, melvoxMessageOutput_t> melvoxPortOutputs_t;

/** How busy one port is. */
struct PortTxRxInfo
{
    bool txValid;
    bool rxValid;
    float txUsage; //!< percent
    float rxUsage; //!< percent
};

enum melvoxGgaMode_t : int
{
    MELVOX_GGA_MODE_HIGH_PRECISION = 0,
    MELVOX_GGA_MODE_STANDARD = 1
};

enum ggaQuality_t : int
{
    GGA_QUALITY_UNKNOWN = 0,
    GGA_QUALITY_DIFF_SPS = 1,
    GGA_QUALITY_RTK = 2
};

enum melvoxGgaCorrectionsScaling_t : int
{
    MELVOX_GGA_CORRECTIONS_UNSCALED = 0,
    MELVOX_GGA_CORRECTIONS_SCALED = 1,
    MELVOX_GGA_CORRECTIONS_SUPERSCALED = 2
};

enum melvoxTalkerIdMode_t : int
{
    MELVOX_TALKER_ID_MODE_OFF = 0,
    MELVOX_TALKER_ID_MODE_GP = 1,
    MELVOX_TALKER_ID_MODE_GL = 2
};

/** The GGA quality number as operators know it: "2" or "5". Empty for GGA_QUALITY_UNKNOWN, which stands for a
 *  receiver that has no such setting. */
BREL_COMMON_QT_EXPORT QString toString(ggaQuality_t quality);

} // namespace brel_common_qt

Q_DECLARE_METATYPE(brel_common_qt::melvoxMessageOutput_t)
Q_DECLARE_METATYPE(brel_common_qt::melvoxTalkerIdMode_t)

#endif
