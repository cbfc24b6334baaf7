#ifndef MELVOX_KIT_PORT_H
#define MELVOX_KIT_PORT_H

#include "brel_common_qt/brelCommonQtExport.h"
#include "brel_common_qt/remoteDevice.h"

namespace melvox_link
{
class link_t;
}

/** How a host on the kit makes the port that it gives its proxy. */
namespace melvox_kit
{

enum linkKind_t
{
    LINK_SERIAL, //!< the port is a remoteSerialPort_t
    LINK_TCP,
    LINK_OTHER //!< USB, UDP
};

/** The port does not own the link; the link must live as long. */
BREL_COMMON_QT_EXPORT brel_common_qt::remotePort_t* createPort(melvox_link::link_t* link, linkKind_t kind,
                                                               QObject* parent = 0);

} // namespace melvox_kit

#endif
