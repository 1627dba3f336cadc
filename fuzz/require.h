// What must hold for every input.
#pragma once

#include <cstdlib>
#include <iostream>

namespace quarlo::fuzz {

/// Ends the process, as the fuzzer expects it of a failure, unless a condition holds.
inline void require(bool holds, const char* what) {
    if (!holds) {
        std::cerr << "broken: " << what << '\n';
        std::abort();
    }
}

} // namespace quarlo::fuzz
