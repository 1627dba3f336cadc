// Where the platform's clocks take time from: the system, or a program that holds them.
#pragma once

#include <cstdint>

namespace gpi {

/// Milliseconds that never jump. May be called from any thread, and so may all below.
int64_t steadyMilliseconds();

/// Seconds since 1970-01-01 00:00:00 UTC.
uint32_t secondsOfDay();

/// Stops time. It goes on from here by steps only.
///
/// @param timeOfDay as of secondsOfDay()
void holdTime(uint32_t timeOfDay);

/// Lets held time go on. False when it is not held.
bool stepTime(uint32_t milliseconds);

/// Time is the system's again.
void releaseTime();

} // namespace gpi
