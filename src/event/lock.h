// The platform's lock around the event queue.
#pragma once

#include "platform/service_table.h"

#include <gpi/gpi.h>

#include <cstdint>

namespace quarlo {

/// Event services report in the low 16 bits of their result. A missing one has answered 0, which
/// is no failure.
constexpr bool failed(int32_t result) {
    return static_cast<int16_t>(result) < 0;
}

/// Locks the queue, without limit of time.
inline bool lockEvents() {
    return !failed(Service<int32_t(int32_t), GPI_SERVICE_LOCK_EVENTS>::checked(-1));
}

inline void unlockEvents() {
    Service<int32_t(), GPI_SERVICE_UNLOCK_EVENTS>::checked();
}

} // namespace quarlo
