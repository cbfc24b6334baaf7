#ifndef MELVOX_TEST_BEHAVIOUR_TEST_H
#define MELVOX_TEST_BEHAVIOUR_TEST_H

#include "receiver/receiver.h"
#include "receiverEnd.h"
#include "support/test.h"

namespace melvox_test
{

/** Base of tests of what a receiver does while its clock is turned. */
class behaviourTest_t : public test_t
{
protected:
    void setUp() override
    {
        clock.reset(new melvox_receiver::simClock_t(melvox_receiver::simClock_t::MANUAL));
        display.reset(new receiverEnd_t);
        receiver.reset(new melvox_receiver::receiver_t(display.data(), clock.data()));
    }
    void tearDown() override
    {
        receiver.reset();
        display.reset();
        clock.reset();
    }

    /** What was told of a group since the last look at the texts. */
    QList<QVariant> told(QString const& group) const
    {
        QList<QVariant> values;
        for (melvox_link::message_t const& message : display->messages)
        {
            if (message.group == group)
                values << message.value;
        }
        return values;
    }

    QScopedPointer<melvox_receiver::simClock_t> clock;
    QScopedPointer<receiverEnd_t> display;
    QScopedPointer<melvox_receiver::receiver_t> receiver;
};

} // namespace melvox_test

#endif
