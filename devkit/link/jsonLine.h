#ifndef MELVOX_LINK_JSON_LINE_H
#define MELVOX_LINK_JSON_LINE_H

#include "link/message.h"

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>

namespace melvox_link
{

/** A message as one line of JSON, its line feed included. */
QByteArray toLine(message_t const& message);

/** Reads a line, with or without its line feed. False, and `reason` for people, when it is no message. */
bool fromLine(QByteArray const& line, message_t& message, QString& reason);

/** The same for lines that tell more than the message. */
QJsonObject toObject(message_t const& message);
bool fromObject(QJsonObject const& object, message_t& message, QString& reason);
/** Reads the value of a message. */
bool fromJson(QJsonValue const& json, QVariant& value, QString& reason);

} // namespace melvox_link

#endif
