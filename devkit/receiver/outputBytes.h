#ifndef MELVOX_RECEIVER_OUTPUT_BYTES_H
#define MELVOX_RECEIVER_OUTPUT_BYTES_H

#include "receiver/fix.h"

#include <QByteArrayList>

namespace melvox_receiver
{

/** One output message of a moment as it goes out: sentences or frames, none when there is nothing to tell. `sequence`
 *  counts the frames of corrections on the port. */
QByteArrayList outputBytes(QString const& message, fix_t const& fix, settings_t const& settings, unsigned int sequence);

} // namespace melvox_receiver

#endif
