#ifndef MELVOX_RECEIVER_RTCM_H
#define MELVOX_RECEIVER_RTCM_H

#include "receiver/fix.h"

#include <QByteArray>

namespace melvox_receiver
{

/** One frame of corrections in RTCM 2.3 as it goes over a serial line, 6 bits in each byte. `sequence` counts the frames
 *  of a port, so that whoever listens sees that none was lost. Empty: there is no such type, or nothing to tell. */
QByteArray rtcmFrame(int type, fix_t const& fix, settings_t const& settings, unsigned int sequence);

} // namespace melvox_receiver

#endif
