#ifndef MELVOX_TEST_RECEIVER_END_H
#define MELVOX_TEST_RECEIVER_END_H

#include "link/link.h"

#include <QList>
#include <QStringList>

namespace melvox_test
{

/** The receiver's end of a link whose display is the test: what it asks arrives at once, and so does the answer. */
class receiverEnd_t : public melvox_link::link_t
{
public:
    bool isOpen() const override { return open; }
    QString description() const override { return "test"; }
    void send(melvox_link::message_t const& message) override
    {
        if (open)
            messages << message;
    }

    void setCut(bool cut) override { cuts << cut; }

    void request(QString const& group) { emit received({melvox_link::message_t::REQUEST, group}); }
    void command(QString const& group, QVariant const& value = QVariant())
    {
        emit received({melvox_link::message_t::COMMAND, group, value});
    }
    void setOpen(bool now)
    {
        open = now;
        emit openChanged(now);
    }

    /** What came since the beginning or the last call, such as "elevationMask 7". */
    QStringList texts()
    {
        QStringList texts;
        for (melvox_link::message_t const& message : messages)
            texts << melvox_link::toText(message);
        messages.clear();
        return texts;
    }

    /** The last value that was told of a group. */
    QVariant last(QString const& group) const
    {
        for (int i = int(messages.size()) - 1; i >= 0; --i)
        {
            if (messages.at(i).group == group)
                return messages.at(i).value;
        }
        return QVariant();
    }

    QList<melvox_link::message_t> messages;
    QList<bool> cuts; //!< what became of the way to this end
    bool open = true;
};

inline QStringList times(int count, QString const& text)
{
    QStringList texts;
    for (; count > 0; --count)
        texts << text;
    return texts;
}

} // namespace melvox_test

#endif
