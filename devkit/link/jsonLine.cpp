#include "link/jsonLine.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <limits>

namespace melvox_link
{

namespace
{

QString const BASE64 = "base64";

QJsonValue toJson(QVariant const& value)
{
    switch (value.userType())
    {
    case QMetaType::QByteArray:
        return QJsonObject{{BASE64, QString::fromLatin1(value.toByteArray().toBase64())}};
    case QMetaType::QVariantMap:
    {
        QJsonObject object;
        QVariantMap const map = value.toMap();
        for (auto it = map.begin(); it != map.end(); ++it)
            object.insert(it.key(), toJson(it.value()));
        return object;
    }
    case QMetaType::QVariantList:
    {
        QJsonArray array;
        for (QVariant const& entry : value.toList())
            array.append(toJson(entry));
        return array;
    }
    case QMetaType::Float:
        // By way of its shortest text, so that 359.99 stays 359.99.
        return QString::number(double(value.toFloat()), 'g', 7).toDouble();
    default:
        return QJsonValue::fromVariant(value);
    }
}

QVariant fromNumber(double number)
{
    if (number == std::floor(number))
    {
        if (number >= std::numeric_limits<int>::min() && number <= std::numeric_limits<int>::max())
            return int(number);
        if (number > 0.0 && number <= std::numeric_limits<unsigned int>::max())
            return static_cast<unsigned int>(number);
    }
    return number;
}

bool valueFromObject(QJsonObject const& object, QVariant& value, QString& reason)
{
    if (object.size() == 1 && object.contains(BASE64))
    {
        QByteArray::FromBase64Result const bytes = QByteArray::fromBase64Encoding(
            object.value(BASE64).toString().toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
        if (!bytes || !object.value(BASE64).isString())
        {
            reason = "the bytes are no base64";
            return false;
        }
        value = *bytes;
        return true;
    }
    QVariantMap map;
    for (auto it = object.begin(); it != object.end(); ++it)
    {
        if (!fromJson(it.value(), map[it.key()], reason))
            return false;
    }
    value = map;
    return true;
}

} // namespace

bool fromJson(QJsonValue const& json, QVariant& value, QString& reason)
{
    switch (json.type())
    {
    case QJsonValue::Bool:
        value = json.toBool();
        return true;
    case QJsonValue::Double:
        value = fromNumber(json.toDouble());
        return true;
    case QJsonValue::String:
        value = json.toString();
        return true;
    case QJsonValue::Object:
        return valueFromObject(json.toObject(), value, reason);
    case QJsonValue::Array:
    {
        QVariantList list;
        for (QJsonValue const entry : json.toArray())
        {
            QVariant one;
            if (!fromJson(entry, one, reason))
                return false;
            list << one;
        }
        value = list;
        return true;
    }
    case QJsonValue::Null:
    case QJsonValue::Undefined:
        break;
    }
    value = QVariant();
    return true;
}

QJsonObject toObject(message_t const& message)
{
    QJsonObject object = {{"kind", kindName(message.kind)}, {"group", message.group}};
    if (message.value.isValid())
        object.insert("value", toJson(message.value));
    return object;
}

QByteArray toLine(message_t const& message)
{
    return QJsonDocument(toObject(message)).toJson(QJsonDocument::Compact) + '\n';
}

bool fromLine(QByteArray const& line, message_t& message, QString& reason)
{
    QJsonParseError error;
    QJsonDocument const document = QJsonDocument::fromJson(line, &error);
    if (error.error != QJsonParseError::NoError)
    {
        reason = error.errorString();
        return false;
    }
    return fromObject(document.object(), message, reason);
}

bool fromObject(QJsonObject const& object, message_t& message, QString& reason)
{
    message_t found;
    if (!kindFromName(object.value("kind").toString(), found.kind))
    {
        reason = "the kind is unknown";
        return false;
    }
    found.group = object.value("group").toString();
    if (found.group.isEmpty())
    {
        reason = "the group is missing";
        return false;
    }
    if (!fromJson(object.value("value"), found.value, reason))
        return false;
    message = found;
    return true;
}

} // namespace melvox_link
