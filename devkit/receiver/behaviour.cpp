#include "receiver/behaviour.h"

namespace melvox_receiver
{

behaviour_t::behaviour_t(receiver_t& owner) : receiver(owner)
{
}

behaviour_t::~behaviour_t() = default;

behaviour_t::answer_t behaviour_t::request(link_t*, QString const&)
{
    return NOT_MINE;
}

behaviour_t::answer_t behaviour_t::command(link_t*, QString const&, QVariant const&)
{
    return NOT_MINE;
}

QStringList behaviour_t::situations() const
{
    return QStringList();
}

behaviour_t::answer_t behaviour_t::situation(QString const&, QVariant const&)
{
    return NOT_MINE;
}

QVariant behaviour_t::answer(QString const&, qint64)
{
    return QVariant();
}

void behaviour_t::passed(link_t*, message_t const&)
{
}

void behaviour_t::portInput(unsigned int, QByteArray const&)
{
}

void behaviour_t::settingChanged(QString const&)
{
}

void behaviour_t::linkAttached(link_t*)
{
}

void behaviour_t::linkClosed(link_t*)
{
}

void behaviour_t::lockChanged()
{
}

void behaviour_t::restarted()
{
}

void behaviour_t::advance(int)
{
}

void behaviour_t::wantTicks(bool wanted)
{
    receiver.wantTicks(this, wanted);
}

} // namespace melvox_receiver
