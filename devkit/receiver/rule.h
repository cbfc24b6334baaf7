#ifndef MELVOX_RECEIVER_RULE_H
#define MELVOX_RECEIVER_RULE_H

#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace melvox_receiver
{

/** What becomes of a value that a display sends. */
enum outcome_t
{
    TAKEN,    //!< as it is, or held within the limits
    REFUSED,  //!< readable, but outside the limits: the old value stays
    MALFORMED //!< of the wrong type, or something is missing
};

enum outside_t
{
    CLAMP,
    REFUSE
};

/** Which values a setting can have. */
struct rule_t
{
    enum kind_t
    {
        NUMBER,
        WHOLE,
        FLAG,
        TEXT,
        RECORD,
        LIST
    };

    typedef QList<QPair<QString, rule_t>> fields_t;

    kind_t kind = FLAG;
    double minimum = 0.0;
    double maximum = 0.0;
    outside_t outside = REFUSE;
    int length = 0;              //!< longest text; number of entries of a list, -1: any
    QStringList words;           //!< the texts there are, when not empty
    QList<unsigned int> numbers; //!< the whole numbers there are, when not empty
    fields_t fields;             //!< of a record
    QList<rule_t> entry;         //!< of a list: one rule
    bool optional = false;       //!< a record need not have this field
    QVariant absent;             //!< what a missing optional field counts as; invalid: its old value stays
};

rule_t number(double minimum, double maximum, outside_t outside = CLAMP);
rule_t whole(double minimum, double maximum, outside_t outside = REFUSE);
rule_t wholeOf(QList<unsigned int> const& numbers);
rule_t flag();
rule_t text(int length);               //!< longer ones are cut
rule_t word(QStringList const& words); //!< without regard to case
rule_t record(rule_t::fields_t const& fields);
rule_t listOf(rule_t const& entry, int count = -1);
rule_t optional(rule_t rule, QVariant const& absent = QVariant());

/** Reads `value` by the rule. TAKEN sets `taken`; MALFORMED says why. */
outcome_t take(rule_t const& rule, QVariant const& value, QVariant const& old, QVariant& taken, QString& why);

/** True for every numeric type; texts are none. */
bool isNumber(QVariant const& value);

} // namespace melvox_receiver

#endif
