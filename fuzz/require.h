// What must hold for every input.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace quarlo::fuzz {

/// Ends the process, as the fuzzer expects it of a failure, unless a condition holds.
inline void require(bool holds, const char* what) {
    if (!holds) {
        std::fprintf(stderr, "broken: %s\n", what);
        std::abort();
    }
}

} // namespace quarlo::fuzz
