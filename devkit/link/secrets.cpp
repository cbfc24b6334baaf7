#include "link/secrets.h"

#include <QCryptographicHash>

namespace melvox_link
{

namespace
{

QString const BYTES = "bytes";
QString const HASH = "sha256";
/** No message carries more. */
int const MOST_BYTES = 1024 * 1024;

bool standsForBytes(QVariantMap const& map)
{
    return map.size() == 2 && map.contains(BYTES) && map.contains(HASH);
}

/** Maps and lists are walked; `change` turns every other value into another one, or a map as a whole. */
template <typename change_t> QVariant changed(QVariant const& value, change_t const& change)
{
    QVariant result = value;
    if (change(result))
        return result;
    if (value.userType() == QMetaType::QVariantMap)
    {
        QVariantMap map = value.toMap();
        for (auto it = map.begin(); it != map.end(); ++it)
            it.value() = isSecretName(it.key()) ? QVariant(SECRET_TEXT) : changed(it.value(), change);
        return map;
    }
    if (value.userType() == QMetaType::QVariantList)
    {
        QVariantList list = value.toList();
        for (QVariant& entry : list)
            entry = changed(entry, change);
        return list;
    }
    return result;
}

bool hideBytes(QVariant& value)
{
    if (value.userType() != QMetaType::QByteArray)
        return false;
    QByteArray const bytes = value.toByteArray();
    QByteArray const hash = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
    value = QVariantMap{{BYTES, int(bytes.size())}, {HASH, QString::fromLatin1(hash)}};
    return true;
}

bool showBytes(QVariant& value)
{
    QVariantMap const map = value.toMap();
    if (!standsForBytes(map))
        return false;
    value = QByteArray(qBound(0, map.value(BYTES).toInt(), MOST_BYTES), '\0');
    return true;
}

} // namespace

char const* const SECRET_TEXT = "(secret)";

bool isSecretName(QString const& name)
{
    for (char const* part : {"passkey", "password", "passphrase", "psk", "secret"})
    {
        if (name.contains(QLatin1String(part), Qt::CaseInsensitive))
            return true;
    }
    return false;
}

message_t withoutSecrets(message_t const& message)
{
    message_t kept = message;
    if (isSecretName(message.group) && message.value.isValid())
        kept.value = SECRET_TEXT;
    else
        kept.value = changed(message.value, hideBytes);
    return kept;
}

message_t withBytes(message_t const& message)
{
    message_t whole = message;
    whole.value = changed(message.value, showBytes);
    return whole;
}

} // namespace melvox_link
