// The time that a controller lives in.
#pragma once

#include <cstdint>
#include <functional>

namespace gpi::nc {

/// Milliseconds that never jump: the system's, or a test's.
using Clock = std::function<int64_t()>;

/// The platform's, whatever a panel sets its own clock to.
int64_t steadyMilliseconds();

} // namespace gpi::nc
