#ifndef MELVOX_PROXYCHECK_GROUP_ROWS_H
#define MELVOX_PROXYCHECK_GROUP_ROWS_H

#include "brel_common_qt/remoteMelvoxDevice.h"

#include <QVariant>

#include <vector>

namespace melvox_proxycheck
{

typedef brel_common_qt::remoteMelvoxDevice_t device_t;

/** Something that the receiver says, and what has to come of it. */
struct step_t
{
    step_t(QVariant const& value_, char const* told_, char const* known_, char const* message_ = 0)
        : message(message_), value(value_), told(told_), known(known_)
    {
    }

    char const* message; //!< null: the row's group
    QVariant value;
    char const* told;  //!< the signals with their arguments, parted by "; "
    char const* known; //!< what the getters say from then on; null where nothing is kept
};

/** A command, and what has to arrive of it at the receiver. */
struct order_t
{
    order_t(char const* name_, void (*give_)(device_t&), QVariant const& value_, char const* message_ = 0,
            char const* known_ = 0)
        : name(name_), give(give_), message(message_), value(value_), known(known_)
    {
    }

    char const* name;
    void (*give)(device_t&);
    char const* message; //!< null: the row's group; empty: nothing is sent
    QVariant value;
    char const* known; //!< what the getters say afterwards; null: what they said before
};

/** One group of the proxy. Each field of what is said has a value of its own, so that none can stand in for another. */
struct groupRow_t
{
    enum kind_t
    {
        EACH,   //!< each step stands for itself
        LIST,   //!< the steps follow each other without a pause
        ANSWERS //!< each step answers the row's only order
    };

    char const* group;
    kind_t kind;
    void (device_t::*query)();         //!< null: none
    QString (*state)(device_t const&); //!< what the getters say; null where nothing is kept
    char const* unknown;               //!< that, before anything was said
    std::vector<step_t> steps;
    std::vector<order_t> orders;

    char const* messageOf(step_t const& step) const { return step.message ? step.message : group; }
};

/** All groups. To be called while there is a QCoreApplication: files to be sent are made. */
std::vector<groupRow_t> const& groupRows();

} // namespace melvox_proxycheck

#endif
