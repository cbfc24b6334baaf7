#ifndef BREL_COMMON_QT_MELVOX_PORT_H
#define BREL_COMMON_QT_MELVOX_PORT_H

#include "brel_common_qt/brelCommonQtExport.h"

#include <QMetaType>
#include <QString>

namespace brel_common_qt
{

/** The receiver's ports in its own numbering, which also serves as an index.
 *  Loops run from MELVOX_PORT_FIRST while below MELVOX_NUM_PORTS. */
enum melvoxPort_t : int
{
    MELVOX_PORT_COM1 = 0,
    MELVOX_PORT_FIRST = MELVOX_PORT_COM1,
    MELVOX_PORT_MIN_COM = MELVOX_PORT_COM1,
    MELVOX_PORT_COM2 = 1,
    MELVOX_PORT_COM3 = 2,
    MELVOX_PORT_COM4 = 3,
    MELVOX_PORT_MAX_COM = MELVOX_PORT_COM4,
    MELVOX_PORT_USB1 = 4,
    MELVOX_PORT_USB2 = 5,
    MELVOX_PORT_MAX_PHYSICAL = MELVOX_PORT_USB2, //!< the last one with serial line settings
    MELVOX_PORT_ETH1 = 6,
    MELVOX_PORT_MIN_ETH = MELVOX_PORT_ETH1,
    MELVOX_PORT_ETH2 = 7,
    MELVOX_PORT_ETH3 = 8,
    MELVOX_PORT_ETH4 = 9,
    MELVOX_PORT_ETH5 = 10,
    MELVOX_PORT_ETH6 = 11,
    MELVOX_PORT_ETH7 = 12,
    MELVOX_PORT_ETH8 = 13,
    MELVOX_PORT_MAX_ETH = MELVOX_PORT_ETH8,
    MELVOX_NUM_PORTS = 14,
    MELVOX_PORT_UNKNOWN = MELVOX_NUM_PORTS
};

/** "COM1" .. "COM4", "USB1", "USB2", "ETH1" .. "ETH8"; the unknown text for any other value. */
BREL_COMMON_QT_EXPORT QString melvoxPortName(melvoxPort_t port);

/** The port of that display name, MELVOX_PORT_UNKNOWN when there is none. */
BREL_COMMON_QT_EXPORT melvoxPort_t melvoxPortFromName(QString const& name);

} // namespace brel_common_qt

Q_DECLARE_METATYPE(brel_common_qt::melvoxPort_t)

#endif
