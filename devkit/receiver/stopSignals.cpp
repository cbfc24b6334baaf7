#include "receiver/stopSignals.h"

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace melvox_receiver
{

namespace
{

// In a signal handler little more is allowed than to write to a pipe.
int handles[2] = {-1, -1};

void tell(int)
{
    char const byte = 1;
    // A full pipe has told already.
    ssize_t const ignored = ::write(handles[1], &byte, 1);
    (void)ignored;
}

} // namespace

stopSignals_t::stopSignals_t()
{
    if (::pipe2(handles, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier.reset(new QSocketNotifier(handles[0], QSocketNotifier::Read));
    connect(m_notifier.data(), &QSocketNotifier::activated, this, &stopSignals_t::take);
    std::signal(SIGTERM, &tell);
    std::signal(SIGINT, &tell);
}

stopSignals_t::~stopSignals_t()
{
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGINT, SIG_DFL);
    m_notifier.reset();
    ::close(handles[0]);
    ::close(handles[1]);
}

void stopSignals_t::take()
{
    char bytes[16];
    ssize_t const ignored = ::read(handles[0], bytes, sizeof bytes);
    (void)ignored;
    emit stop();
}

} // namespace melvox_receiver
