#ifndef MELVOX_KIT_SCAN_STOP_H
#define MELVOX_KIT_SCAN_STOP_H

#include <atomic>

/** How a long look into one file learns that the scan it is part of was told to stop. */
namespace melvox_kit
{

/** While it lives, the thread that made it works for a scan with this flag. */
class scanStop_t
{
public:
    explicit scanStop_t(std::atomic<bool> const& stopped);
    ~scanStop_t();

    /** Whether the scan that this thread works for, if any, was told to stop. */
    static bool isStopped();

private:
    scanStop_t(scanStop_t const&);
    scanStop_t& operator=(scanStop_t const&);
};

} // namespace melvox_kit

#endif
