// Times of the platform's clock, which counts modulo 2^63.
#pragma once

#include <quarlo/timer.h>

#include <cstdint>

namespace quarlo {

constexpr int64_t ticksOf(const GSystemTime& time) {
    return static_cast<int64_t>(uint64_t{static_cast<uint32_t>(time.high)} << 32 | time.low);
}

/// Ticks from `start` to `now`; a start later than now means that the clock has wrapped.
constexpr uint64_t ticksBetween(const GSystemTime& start, const GSystemTime& now) {
    const uint64_t difference =
        static_cast<uint64_t>(ticksOf(now)) - static_cast<uint64_t>(ticksOf(start));
    return ticksOf(start) <= ticksOf(now) ? difference : difference + (uint64_t{1} << 63);
}

} // namespace quarlo
