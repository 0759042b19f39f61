#pragma once

#include <cstdio>
#include <cstdlib>

namespace cuebright::fuzz {

/// Ends the program when a rule does not hold, so that the fuzzer keeps the input.
inline void require(bool holds, const char* rule)
{
    if (holds)
        return;
    std::fprintf(stderr, "does not hold: %s\n", rule);
    std::abort();
}

} // namespace cuebright::fuzz
