// The platform's two clocks: ticks for intervals and timers, and the time of day.
#pragma once

#include <atomic>
#include <cstdint>

namespace gpi {

/// Milliseconds that never jump of their own, counted modulo 2^63. May be used from any thread.
class TickClock {
  public:
    int64_t now() const;

    /// Makes the clock count on from here.
    void set(int64_t ticks);

  private:
    std::atomic<uint64_t> offset_{0};
};

} // namespace gpi
