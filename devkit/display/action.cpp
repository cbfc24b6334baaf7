#include "display/action.h"

#include <QStringList>

namespace melvox_display
{

namespace
{

QString const ACTION = "action";
QString const SECRET = "secret";
QString const ROW = "row";

struct kindEntry_t
{
    action_t::kind_t kind;
    char const* name;
    QStringList needed;
};

QList<kindEntry_t> const& kinds()
{
    static QList<kindEntry_t> const all = {{action_t::PAGE, "page", {"page"}},
                                           {action_t::TAP, "tap", {"page", "widget"}},
                                           {action_t::TYPE, "type", {"page", "widget", "text"}},
                                           {action_t::LEAVE, "leave", {"page", "widget"}},
                                           {action_t::CHOOSE, "choose", {"page", "widget", "text"}},
                                           {action_t::SELECT, "select", {"page", "widget", "text", "row"}},
                                           {action_t::OPEN, "open", {"page", "widget", "text", "row"}},
                                           {action_t::ANSWER, "answer", {"page", "text", "button"}},
                                           {action_t::BACK, "back", {"page"}},
                                           {action_t::CLOSE, "close", {"page", "dialog"}},
                                           {action_t::CHOOSE_FILE, "chooseFile", {"page", "text"}}};
    return all;
}

QString const FIELD_NAMES[] = {"page", "dialog", "widget", "text", "button"};

QString action_t::*const FIELDS[] = {&action_t::page, &action_t::dialog, &action_t::widget, &action_t::text,
                                     &action_t::button};
int const FIELD_COUNT = sizeof(FIELDS) / sizeof(FIELDS[0]);

kindEntry_t const* findKind(QString const& name)
{
    for (kindEntry_t const& entry : kinds())
    {
        if (name == entry.name)
            return &entry;
    }
    return nullptr;
}

QString unknownKind(QString const& name)
{
    QStringList names;
    for (kindEntry_t const& entry : kinds())
        names << entry.name;
    return QString("there is no action \"%1\"; the actions are: %2").arg(name, names.join(", "));
}

bool readText(QVariantMap const& map, QString const& name, bool isNeeded, QString& text, QString& reason)
{
    QVariant const value = map.value(name);
    text = value.toString();
    if (value.userType() != QMetaType::QString && (isNeeded || value.isValid()))
        reason = QString("\"%1\" must be a text").arg(name);
    return reason.isEmpty();
}

bool readRow(QVariantMap const& map, bool isNeeded, QList<int>& row, QString& reason)
{
    bool isGood = true;
    for (QVariant const& value : map.value(ROW).toList())
    {
        bool isNumber = false;
        row << value.toInt(&isNumber);
        isGood = isGood && isNumber && row.last() >= 0;
    }
    if (!isGood || (isNeeded && row.isEmpty()))
        reason = "\"row\" must be a list of row numbers";
    return reason.isEmpty();
}

} // namespace

QVariantMap toMap(action_t const& action)
{
    QVariantMap map;
    for (kindEntry_t const& entry : kinds())
    {
        if (entry.kind != action.kind)
            continue;
        map.insert(ACTION, entry.name);
        for (int i = 0; i < FIELD_COUNT; ++i)
        {
            if (entry.needed.contains(FIELD_NAMES[i]) || !(action.*FIELDS[i]).isEmpty())
                map.insert(FIELD_NAMES[i], action.*FIELDS[i]);
        }
    }
    QVariantList row;
    for (int number : action.row)
        row << number;
    if (!row.isEmpty())
        map.insert(ROW, row);
    if (action.isSecret)
    {
        map.remove("text");
        map.insert(SECRET, true);
    }
    return map;
}

bool fromMap(QVariantMap const& map, action_t& action, QString& reason)
{
    QString const name = map.value(ACTION).toString();
    kindEntry_t const* kind = findKind(name);
    if (!kind)
    {
        reason = unknownKind(name);
        return false;
    }
    action = action_t();
    action.kind = kind->kind;
    action.isSecret = map.value(SECRET).toBool();
    for (int i = 0; i < FIELD_COUNT; ++i)
    {
        bool const isNeeded =
            kind->needed.contains(FIELD_NAMES[i]) && !(action.isSecret && FIELDS[i] == &action_t::text);
        if (!readText(map, FIELD_NAMES[i], isNeeded, action.*FIELDS[i], reason))
            return false;
    }
    return readRow(map, kind->needed.contains(ROW), action.row, reason);
}

} // namespace melvox_display
