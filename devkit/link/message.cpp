#include "link/message.h"

#include <QByteArray>
#include <QStringList>
#include <QVariant>

namespace melvox_link
{

namespace
{

struct kindName_t
{
    message_t::kind_t kind;
    char const* name;
};

kindName_t const KIND_NAMES[] = {{message_t::REQUEST, "request"},
                                 {message_t::COMMAND, "command"},
                                 {message_t::REPORT, "report"},
                                 {message_t::EVENT, "event"}};

/** 15 digits give back every number that a person writes; only results of arithmetic need more. */
QString doubleText(double value)
{
    for (int digits = 15; digits < 17; ++digits)
    {
        QString const text = QString::number(value, 'g', digits);
        if (text.toDouble() == value)
            return text;
    }
    return QString::number(value, 'g', 17);
}

QString floatText(float value)
{
    for (int digits = 6; digits < 9; ++digits)
    {
        QString const text = QString::number(double(value), 'g', digits);
        if (text.toFloat() == value)
            return text;
    }
    return QString::number(double(value), 'g', 9);
}

QString stringText(QString text)
{
    if (text.isEmpty())
        return "\"\"";
    text.replace('\\', "\\\\");
    text.replace('\n', "\\n");
    text.replace('\r', "\\r");
    return text;
}

QString valueText(QVariant const& value, bool inner);

QString mapText(QVariantMap const& map)
{
    QStringList parts;
    for (QVariantMap::const_iterator it = map.begin(); it != map.end(); ++it)
        parts << it.key() + '=' + valueText(it.value(), true);
    return parts.join(" ");
}

QString listText(QVariantList const& list)
{
    QStringList parts;
    for (int i = 0; i < list.size(); ++i)
    {
        QString const text = valueText(list.at(i), true);
        int const type = list.at(i).userType();
        bool const bracketed = type == QMetaType::QVariantMap || type == QMetaType::QVariantList;
        parts << (bracketed ? text : '[' + text + ']');
    }
    return parts.join(" ");
}

QString valueText(QVariant const& value, bool inner)
{
    switch (value.userType())
    {
    case QMetaType::Bool:
        return value.toBool() ? "true" : "false";
    case QMetaType::Double:
        return doubleText(value.toDouble());
    case QMetaType::Float:
        return floatText(value.value<float>());
    case QMetaType::QByteArray:
        return QString("<%1 bytes>").arg(value.toByteArray().size());
    case QMetaType::QVariantMap:
        return inner || value.toMap().isEmpty() ? '[' + mapText(value.toMap()) + ']' : mapText(value.toMap());
    case QMetaType::QVariantList:
        return inner || value.toList().isEmpty() ? '[' + listText(value.toList()) + ']' : listText(value.toList());
    default:
        return stringText(value.toString());
    }
}

} // namespace

QString kindName(message_t::kind_t kind)
{
    for (kindName_t const& entry : KIND_NAMES)
    {
        if (entry.kind == kind)
            return entry.name;
    }
    return QString();
}

bool kindFromName(QString const& name, message_t::kind_t& kind)
{
    for (kindName_t const& entry : KIND_NAMES)
    {
        if (name == entry.name)
        {
            kind = entry.kind;
            return true;
        }
    }
    return false;
}

QString toText(message_t const& message)
{
    if (!message.value.isValid())
        return message.group;
    return message.group + ' ' + valueText(message.value, false);
}

} // namespace melvox_link
