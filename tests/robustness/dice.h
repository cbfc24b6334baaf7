#ifndef MELVOX_ROBUSTNESS_DICE_H
#define MELVOX_ROBUSTNESS_DICE_H

#include <cstdint>
#include <iterator>

namespace melvox_robustness
{

/** Chances that depend on a seed and the number of a step alone, so that a step rolls the same whichever others were
 *  left out before it. */
class dice_t
{
public:
    dice_t(std::uint64_t seed, std::uint64_t step) : m_state(mixed(mixed(seed) + step)) {}

    std::uint64_t roll()
    {
        m_state += STRIDE;
        return mixed(m_state);
    }
    /** 0 to count - 1; 0 when there is nothing to choose from. */
    int choice(int count) { return count > 0 ? int(roll() % std::uint64_t(count)) : 0; }
    bool chance(int percent) { return choice(100) < percent; }

    template <typename list_t> auto const& oneOf(list_t const& list) { return list[choice(int(std::size(list)))]; }

private:
    static constexpr std::uint64_t STRIDE = 0x9e3779b97f4a7c15u;

    static std::uint64_t mixed(std::uint64_t value)
    {
        value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9u;
        value = (value ^ (value >> 27)) * 0x94d049bb133111ebu;
        return value ^ (value >> 31);
    }

    std::uint64_t m_state;
};

} // namespace melvox_robustness

#endif
