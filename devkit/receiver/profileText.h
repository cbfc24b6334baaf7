#ifndef MELVOX_RECEIVER_PROFILE_TEXT_H
#define MELVOX_RECEIVER_PROFILE_TEXT_H

#include "receiver/settingsTable.h"

#include <QByteArray>

namespace melvox_receiver
{

/** Settings as the text of a profile file: a line with the version, one line of JSON for each group that a display can
 *  change, a line with a checksum over all before it. */
QByteArray profileText(settings_t const& settings);

/** What bytes that come in one after another are so far. */
enum profileState_t
{
    PROFILE_INCOMPLETE,
    PROFILE_COMPLETE,
    PROFILE_DAMAGED //!< no profile, of another version, or the checksum is wrong
};

/** True for the first bytes of a profile, so that one that was broken off before is forgotten. */
bool startsProfile(QByteArray const& text);

/** Sets `settings` when complete. */
profileState_t readProfile(QByteArray const& text, settings_t& settings);

} // namespace melvox_receiver

#endif
