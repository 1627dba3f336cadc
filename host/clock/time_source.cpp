#include "clock/time_source.h"

#include <chrono>
#include <mutex>
#include <optional>

namespace gpi {
namespace {

using namespace std::chrono;

/// Time as a program has it.
struct HeldTime {
    int64_t start;
    uint32_t timeOfDay; ///< at the start
    int64_t passed = 0; ///< milliseconds since
};

std::mutex heldMutex;
std::optional<HeldTime> heldTime; // guarded by it

int64_t systemMilliseconds() {
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

std::optional<HeldTime> held() {
    const std::lock_guard lock(heldMutex);
    return heldTime;
}

} // namespace

int64_t steadyMilliseconds() {
    const auto time = held();
    return time ? time->start + time->passed : systemMilliseconds();
}

uint32_t secondsOfDay() {
    if (const auto time = held()) {
        return time->timeOfDay + static_cast<uint32_t>(time->passed / 1000);
    }
    return static_cast<uint32_t>(
        duration_cast<seconds>(system_clock::now().time_since_epoch()).count());
}

void holdTime(uint32_t timeOfDay) {
    const int64_t now = steadyMilliseconds();
    const std::lock_guard lock(heldMutex);
    heldTime = {now, timeOfDay};
}

bool stepTime(uint32_t milliseconds) {
    const std::lock_guard lock(heldMutex);
    if (heldTime) {
        heldTime->passed += milliseconds;
    }
    return heldTime.has_value();
}

void releaseTime() {
    const std::lock_guard lock(heldMutex);
    heldTime.reset();
}

} // namespace gpi
