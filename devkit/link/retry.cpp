#include "link/retry.h"

namespace melvox_link
{

namespace
{

int const FIRST_PAUSE = 250; // milliseconds
int const LONGEST_PAUSE = 4000;

} // namespace

retry_t::retry_t(std::function<void()> const& attempt)
    : m_first(FIRST_PAUSE), m_longest(LONGEST_PAUSE), m_next(FIRST_PAUSE)
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, attempt);
}

void retry_t::setPauses(int first, int longest)
{
    m_first = m_next = first;
    m_longest = longest;
}

void retry_t::failed()
{
    m_timer.start(m_next);
    m_next = qMin(m_longest, 2 * m_next);
}

void retry_t::succeeded()
{
    m_timer.stop();
    m_next = m_first;
}

void retry_t::stop()
{
    succeeded();
}

int retry_t::nextPause() const
{
    return m_next;
}

} // namespace melvox_link
