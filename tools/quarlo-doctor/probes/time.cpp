// The clock, and the time of day.
#include "probe.h"

#include <chrono>

namespace doctor {
namespace {

constexpr uint32_t kDay = 86400;

int64_t ticksOf(const GSystemTime& time) {
    return int64_t{time.high} * (int64_t{1} << 32) + time.low;
}

GSystemTime timeOf(int64_t ticks) {
    return {static_cast<uint32_t>(ticks), static_cast<int32_t>(ticks >> 32)};
}

Complaint readsClock(const Platform& platform) {
    using std::chrono::steady_clock;
    const auto get = platform.service<GPIGetSystemTime>(GPI_SERVICE_GET_SYSTEM_TIME);
    GSystemTime first{};
    if (get(&first) != 1) {
        return "cannot be read";
    }
    GSystemTime last = first;
    // The last reading comes after the end, however late the system lets this thread go on.
    const auto end = steady_clock::now() + std::chrono::milliseconds(100);
    for (bool over = false; !over;) {
        over = steady_clock::now() >= end;
        GSystemTime now{};
        get(&now);
        if (ticksOf(now) < ticksOf(last)) {
            return "runs backwards";
        }
        last = now;
    }
    const int64_t passed = ticksOf(last) - ticksOf(first);
    if (passed == 0) {
        return "stands still";
    }
    return passed >= 50 && passed <= 5000 ? "" : "does not count milliseconds";
}

/// Puts the clock an hour on, and back again.
Complaint setsClock(const Platform& platform) {
    constexpr int64_t kHour = int64_t{3600} * 1000;
    const auto get = platform.service<GPIGetSystemTime>(GPI_SERVICE_GET_SYSTEM_TIME);
    const auto set = platform.service<GPISetSystemTime>(GPI_SERVICE_SET_SYSTEM_TIME);
    GSystemTime before{};
    get(&before);
    const GSystemTime ahead = timeOf(ticksOf(before) + kHour);
    if (set(&ahead) != 1) {
        return "refuses a time";
    }
    GSystemTime after{};
    get(&after);
    const GSystemTime back = timeOf(ticksOf(after) - kHour);
    set(&back);
    const int64_t since = ticksOf(after) - ticksOf(ahead);
    return since >= 0 && since <= 5000 ? "" : "does not set the clock";
}

Complaint tellsTime(const Platform& platform) {
    const auto time = platform.service<GPITime>(GPI_SERVICE_TIME);
    uint32_t also = 0;
    const uint32_t now = time(&also);
    if (now != also) {
        return "tells two times at once";
    }
    return time(nullptr) >= now ? "" : "runs backwards";
}

Complaint breaksDown(const Platform& platform) {
    GBrokenDownTime date{};
    platform.service<GPIBrokenDownTime>(GPI_SERVICE_BROKEN_DOWN_TIME)(&date, 365 * kDay + 3661);
    constexpr int32_t kFriday = 5;
    const bool right = date.year == 1971 && date.month == 1 && date.day == 1 && date.hour == 1 &&
                       date.minute == 1 && date.second == 1 && date.weekday == kFriday;
    return right ? "" : "gets the date wrong";
}

} // namespace

std::span<const Probe> timeProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_GET_SYSTEM_TIME, readsClock, {}},
        {GPI_SERVICE_SET_SYSTEM_TIME, setsClock, {GPI_SERVICE_GET_SYSTEM_TIME}},
        {GPI_SERVICE_TIME, tellsTime, {}},
        {GPI_SERVICE_BROKEN_DOWN_TIME, breaksDown, {}},
    };
    return kProbes;
}

} // namespace doctor
