#ifndef MELVOX_ROBUSTNESS_SHRINK_H
#define MELVOX_ROBUSTNESS_SHRINK_H

#include <algorithm>
#include <functional>
#include <vector>

namespace melvox_robustness
{

/** The steps that were done, by their numbers. */
typedef std::vector<int> steps_t;

/** Leaves out as many steps as it can while `fails` still holds of those that are left: first halves, then ever smaller
 *  parts, in the end single steps. Stops early, with what it has, once `outOfTime` holds. */
inline steps_t shrunk(steps_t steps, std::function<bool(steps_t const&)> const& fails,
                      std::function<bool()> const& outOfTime)
{
    std::size_t part = (steps.size() + 1) / 2;
    while (part > 0 && !steps.empty())
    {
        bool shorter = false;
        // From the end: what comes after the failure's cause goes first.
        for (std::size_t end = steps.size(); end > 0 && !outOfTime();)
        {
            std::size_t const begin = end > part ? end - part : 0;
            steps_t fewer(steps.begin(), steps.begin() + std::ptrdiff_t(begin));
            fewer.insert(fewer.end(), steps.begin() + std::ptrdiff_t(end), steps.end());
            if (fails(fewer))
            {
                steps = fewer;
                shorter = true;
            }
            end = begin;
        }
        if (outOfTime())
            break;
        if (part == 1 && !shorter)
            break;
        if (!shorter || part > steps.size())
            part = std::max<std::size_t>(1, part / 2);
    }
    return steps;
}

} // namespace melvox_robustness

#endif
