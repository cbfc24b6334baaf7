#include "receiver/profileText.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>

namespace melvox_receiver
{

namespace
{

QByteArray const FIRST_LINE = "melvox-profile 1\n";
QByteArray const CHECKSUM = "sha1 ";
int const CHECKSUM_LENGTH = 40;

QByteArray checksumLine(QByteArray const& text)
{
    return CHECKSUM + QCryptographicHash::hash(text, QCryptographicHash::Sha1).toHex() + '\n';
}

} // namespace

QByteArray profileText(settings_t const& settings)
{
    QByteArray text = FIRST_LINE;
    for (auto it = settings.begin(); it != settings.end(); ++it)
    {
        setting_t const* const setting = findSetting(it.key());
        if (!setting || setting->access == READ_ONLY)
            continue;
        QJsonObject const object = {{it.key(), QJsonValue::fromVariant(it.value())}};
        text += QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
    }
    return text + checksumLine(text);
}

bool startsProfile(QByteArray const& text)
{
    return text.startsWith(FIRST_LINE);
}

profileState_t readProfile(QByteArray const& text, settings_t& settings)
{
    if (!text.startsWith(FIRST_LINE.left(text.size())))
        return PROFILE_DAMAGED;
    int const end = text.lastIndexOf('\n' + CHECKSUM);
    if (end < 0 || text.size() < end + 1 + CHECKSUM.size() + CHECKSUM_LENGTH + 1)
        return PROFILE_INCOMPLETE;
    QByteArray const checked = text.left(end + 1);
    if (text.mid(end + 1) != checksumLine(checked))
        return PROFILE_DAMAGED;
    settings_t found;
    for (QByteArray const& line : checked.mid(FIRST_LINE.size()).split('\n'))
    {
        if (line.isEmpty())
            continue;
        QVariantMap const map = QJsonDocument::fromJson(line).object().toVariantMap();
        if (map.isEmpty())
            return PROFILE_DAMAGED;
        found.insert(map.firstKey(), map.first());
    }
    settings = found;
    return PROFILE_COMPLETE;
}

} // namespace melvox_receiver
