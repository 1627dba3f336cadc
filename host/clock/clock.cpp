#include "clock/clock.h"

#include "clock/time_source.h"

namespace gpi {
namespace {

constexpr uint64_t kCountMask = UINT64_MAX >> 1;

uint64_t monotonicMilliseconds() {
    return static_cast<uint64_t>(steadyMilliseconds());
}

} // namespace

int64_t TickClock::now() const {
    return static_cast<int64_t>((monotonicMilliseconds() + offset_.load()) & kCountMask);
}

void TickClock::set(int64_t ticks) {
    offset_ = static_cast<uint64_t>(ticks) - monotonicMilliseconds();
}

} // namespace gpi
