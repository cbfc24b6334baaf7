#ifndef MELVOX_TEST_REPLY_ROWS_H
#define MELVOX_TEST_REPLY_ROWS_H

#include "brel_common_qt/remoteMelvoxDevice.h"

#include <QVariant>

namespace melvox_test
{

/** One group that a receiver reports. Each field of the report has a value of its own that is not its default. */
struct replyRow_t
{
    char const* group;
    QVariant (*report)();
    QString (*state)(brel_common_qt::remoteMelvoxDevice_t const&); //!< what the getters say
    char const* unknown;                                           //!< that, before any report; null: not looked at
    char const* known;                                             //!< that, after the report
    char const* told;                                              //!< the signals, parted by "; "
};

extern QList<replyRow_t> const REPLY_ROWS;

} // namespace melvox_test

#endif
