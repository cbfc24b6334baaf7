#ifndef MELVOX_LINK_RETRY_H
#define MELVOX_LINK_RETRY_H

#include <QTimer>

#include <functional>

namespace melvox_link
{

/** Tries something again after pauses that get longer. */
class retry_t
{
public:
    explicit retry_t(std::function<void()> const& attempt);

    /** The first pause and the longest one, in milliseconds. */
    void setPauses(int first, int longest);

    void failed();
    void succeeded();
    void stop();

    /** How long the pause after the next failure is, in milliseconds. */
    int nextPause() const;

private:
    QTimer m_timer;
    int m_first;
    int m_longest;
    int m_next;
};

} // namespace melvox_link

#endif
