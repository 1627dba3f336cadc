#include "clock/services.h"

#include "clock/time_source.h"
#include "platform.h"

#include <chrono>

namespace gpi {

int32_t setSystemTime(const GSystemTime* time) {
    if (time == nullptr) {
        return 0;
    }
    platform().ticks.set(static_cast<int64_t>(time->high) << 32 | time->low);
    return 1;
}

int32_t getSystemTime(GSystemTime* time) {
    if (time == nullptr) {
        return -1;
    }
    const int64_t ticks = platform().ticks.now();
    *time = {static_cast<uint32_t>(ticks), static_cast<int32_t>(ticks >> 32)};
    return 1;
}

uint32_t timeOfDay(uint32_t* time) {
    const uint32_t seconds = secondsOfDay();
    if (time != nullptr) {
        *time = seconds;
    }
    return seconds;
}

GBrokenDownTime* breakDownTime(GBrokenDownTime* out, uint32_t time) {
    if (out == nullptr) {
        return nullptr;
    }
    using namespace std::chrono;
    const sys_seconds moment{seconds(time)};
    const sys_days day = floor<days>(moment);
    const year_month_day date(day);
    const hh_mm_ss clock(moment - day);
    *out = {static_cast<int32_t>(clock.seconds().count()),
            static_cast<int32_t>(clock.minutes().count()),
            static_cast<int32_t>(clock.hours().count()),
            static_cast<int32_t>(static_cast<unsigned>(date.day())),
            static_cast<int32_t>(static_cast<unsigned>(date.month())),
            static_cast<int>(date.year()),
            static_cast<int32_t>(weekday(day).c_encoding())};
    return out;
}

} // namespace gpi
