#ifndef FOREIGN_PORT_H
#define FOREIGN_PORT_H

#include "brel_common_qt/brelCommonQtExport.h"
#include "brel_common_qt/remoteDevice.h"

/** A second making of the declared libraries, which shares nothing with the development kit: what the pages get on with
 *  here is what is declared. Its receiver is a memory: it takes every setting as it is and tells it again. */
namespace foreign
{

BREL_COMMON_QT_EXPORT brel_common_qt::remotePort_t* createPort();

} // namespace foreign

#endif
