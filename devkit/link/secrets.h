#ifndef MELVOX_LINK_SECRETS_H
#define MELVOX_LINK_SECRETS_H

#include "link/message.h"

#include <QString>

namespace melvox_link
{

/** What stands in place of a secret. */
extern char const* const SECRET_TEXT;

/** True for the name of a group, a field or a widget that holds a secret: "passkey", "wifiPassword", "pskText", ... */
bool isSecretName(QString const& name);

/** The message as it may be kept. Secrets become SECRET_TEXT. Bytes, which are the contents of files that nobody here can
 *  look into, become {bytes: how many, sha256: what they hash to}. */
message_t withoutSecrets(message_t const& message);

/** A message that was kept, with as many bytes again as there were: zeros. */
message_t withBytes(message_t const& message);

} // namespace melvox_link

#endif
