// Services that are asked for what they have to refuse, and a count of them.
#pragma once

#include "support/started_platform.h"

#include <set>

namespace gpi::test {

/// The services that this program has asked for so far.
inline std::set<int32_t>& refusing() {
    static std::set<int32_t> numbers;
    return numbers;
}

/// A service that is to refuse something.
template <typename Signature>
Signature refuser(int32_t number) {
    refusing().insert(number);
    return service<Signature>(number);
}

} // namespace gpi::test
