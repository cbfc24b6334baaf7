#include "receiver/rule.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace melvox_receiver
{

namespace
{

outcome_t malformed(QString const& text, QString& why)
{
    why = text;
    return MALFORMED;
}

outcome_t takeNumber(rule_t const& rule, QVariant const& value, QVariant& taken, QString& why)
{
    double number = value.toDouble();
    if (!isNumber(value) || !std::isfinite(number))
        return malformed("not a number", why);
    if (number < rule.minimum || number > rule.maximum)
    {
        if (rule.outside == REFUSE)
            return REFUSED;
        number = std::clamp(number, rule.minimum, rule.maximum);
    }
    taken = number;
    return TAKEN;
}

outcome_t takeWhole(rule_t const& rule, QVariant const& value, QVariant& taken, QString& why)
{
    QVariant number;
    outcome_t const outcome = takeNumber(rule, value, number, why);
    if (outcome != TAKEN)
        return outcome;
    double const found = number.toDouble();
    if (found != std::floor(found))
        return malformed("not a whole number", why);
    if (!rule.numbers.isEmpty() && !rule.numbers.contains(static_cast<unsigned int>(found)))
        return REFUSED;
    if (rule.maximum > std::numeric_limits<int>::max())
        taken = static_cast<unsigned int>(found);
    else
        taken = static_cast<int>(found);
    return TAKEN;
}

outcome_t takeText(rule_t const& rule, QVariant const& value, QVariant& taken, QString& why)
{
    if (value.userType() != QMetaType::QString)
        return malformed("not a text", why);
    QString const found = value.toString();
    if (rule.words.isEmpty())
    {
        taken = found.left(rule.length);
        return TAKEN;
    }
    for (QString const& known : rule.words)
    {
        if (known.compare(found, Qt::CaseInsensitive) == 0)
        {
            taken = known;
            return TAKEN;
        }
    }
    return REFUSED;
}

outcome_t takeRecord(rule_t const& rule, QVariant const& value, QVariant const& old, QVariant& taken, QString& why)
{
    if (value.userType() != QMetaType::QVariantMap)
        return malformed("not a record", why);
    QVariantMap const found = value.toMap();
    QVariantMap result = old.toMap();
    outcome_t worst = TAKEN;
    for (QPair<QString, rule_t> const& field : rule.fields)
    {
        if (!found.contains(field.first))
        {
            if (!field.second.optional)
                return malformed(field.first + " is missing", why);
            if (field.second.absent.isValid())
                result.insert(field.first, field.second.absent);
            continue;
        }
        QVariant part;
        outcome_t const outcome = take(field.second, found.value(field.first), result.value(field.first), part, why);
        if (outcome == MALFORMED)
            return malformed(field.first + ": " + why, why);
        worst = std::max(worst, outcome);
        result.insert(field.first, part);
    }
    taken = result;
    return worst;
}

outcome_t takeList(rule_t const& rule, QVariant const& value, QVariant const& old, QVariant& taken, QString& why)
{
    if (value.userType() != QMetaType::QVariantList)
        return malformed("not a list", why);
    QVariantList const found = value.toList();
    if (rule.length >= 0 && found.size() != rule.length)
        return malformed(QString("not a list of %1").arg(rule.length), why);
    QVariantList const before = old.toList();
    QVariantList result;
    outcome_t worst = TAKEN;
    for (int i = 0; i < found.size(); ++i)
    {
        QVariant part;
        outcome_t const outcome = take(rule.entry.first(), found.at(i), before.value(i), part, why);
        if (outcome == MALFORMED)
            return MALFORMED;
        worst = std::max(worst, outcome);
        result << part;
    }
    taken = result;
    return worst;
}

} // namespace

bool isNumber(QVariant const& value)
{
    switch (value.userType())
    {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
        return true;
    default:
        return false;
    }
}

rule_t number(double minimum, double maximum, outside_t outside)
{
    rule_t rule;
    rule.kind = rule_t::NUMBER;
    rule.minimum = minimum;
    rule.maximum = maximum;
    rule.outside = outside;
    return rule;
}

rule_t whole(double minimum, double maximum, outside_t outside)
{
    rule_t rule = number(minimum, maximum, outside);
    rule.kind = rule_t::WHOLE;
    return rule;
}

rule_t wholeOf(QList<unsigned int> const& numbers)
{
    rule_t rule =
        whole(*std::min_element(numbers.begin(), numbers.end()), *std::max_element(numbers.begin(), numbers.end()));
    rule.numbers = numbers;
    return rule;
}

rule_t flag()
{
    return rule_t();
}

rule_t text(int length)
{
    rule_t rule;
    rule.kind = rule_t::TEXT;
    rule.length = length;
    return rule;
}

rule_t word(QStringList const& words)
{
    rule_t rule = text(0);
    rule.words = words;
    return rule;
}

rule_t record(rule_t::fields_t const& fields)
{
    rule_t rule;
    rule.kind = rule_t::RECORD;
    rule.fields = fields;
    return rule;
}

rule_t listOf(rule_t const& entry, int count)
{
    rule_t rule;
    rule.kind = rule_t::LIST;
    rule.length = count;
    rule.entry << entry;
    return rule;
}

rule_t optional(rule_t rule, QVariant const& absent)
{
    rule.optional = true;
    rule.absent = absent;
    return rule;
}

outcome_t take(rule_t const& rule, QVariant const& value, QVariant const& old, QVariant& taken, QString& why)
{
    switch (rule.kind)
    {
    case rule_t::NUMBER:
        return takeNumber(rule, value, taken, why);
    case rule_t::WHOLE:
        return takeWhole(rule, value, taken, why);
    case rule_t::FLAG:
        if (value.userType() != QMetaType::Bool)
            return malformed("not true or false", why);
        taken = value;
        return TAKEN;
    case rule_t::TEXT:
        return takeText(rule, value, taken, why);
    case rule_t::RECORD:
        return takeRecord(rule, value, old, taken, why);
    case rule_t::LIST:
        return takeList(rule, value, old, taken, why);
    }
    return malformed("no rule", why);
}

} // namespace melvox_receiver
