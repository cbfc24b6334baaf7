#ifndef MELVOX_FUZZ_FUZZ_H
#define MELVOX_FUZZ_FUZZ_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/** Called by the fuzzer, or for each file of the corpus. */
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size);

namespace melvox_fuzz
{

/** Ends the program, so that the input is kept, unless the rule holds. */
inline void hold(bool rule, char const* what)
{
    if (rule)
        return;
    std::fprintf(stderr, "this does not hold: %s\n", what);
    std::abort();
}

} // namespace melvox_fuzz

#endif
