#include "net/ftp_time.h"

#include <chrono>
#include <limits>
#include <optional>

#include <locale.h>
#include <time.h>

namespace gpi {
namespace {

using namespace std::chrono;

constexpr uint32_t kDay = 24 * 60 * 60;

/// A time that has a form, with the names of months as servers write them.
std::optional<tm> parse(const std::string& text, const char* form) {
    static const locale_t plain = newlocale(LC_TIME_MASK, "C", nullptr);
    tm time{};
    const char* const end = strptime_l(text.c_str(), form, &time, plain);
    return end != nullptr && *end == '\0' ? std::optional(time) : std::nullopt;
}

/// Without the system's own functions, whose time ends in 2038 on some.
uint32_t secondsOf(const tm& time) {
    const sys_days day = year(time.tm_year + 1900) / (time.tm_mon + 1) / time.tm_mday;
    const sys_seconds moment = day + hours(time.tm_hour) + minutes(time.tm_min);
    const int64_t seconds = moment.time_since_epoch().count();
    const bool fits = seconds > 0 && seconds <= int64_t{std::numeric_limits<uint32_t>::max()};
    return fits ? static_cast<uint32_t>(seconds) : 0;
}

/// A time of the last year as seen from now.
uint32_t lately(tm time, uint32_t now) {
    const year_month_day today(floor<days>(sys_seconds(seconds(now))));
    time.tm_year = static_cast<int>(today.year()) - 1900;
    const uint32_t seconds = secondsOf(time);
    if (seconds <= now + kDay) { // clocks differ
        return seconds;
    }
    --time.tm_year;
    return secondsOf(time);
}

} // namespace

uint32_t listedTime(const std::string& text, uint32_t now) {
    if (const auto time = parse(text, "%b %d %H:%M")) {
        return lately(*time, now);
    }
    for (const char* const form : {"%b %d %Y", "%m-%d-%y %I:%M%p", "%m-%d-%Y %I:%M%p"}) {
        if (const auto time = parse(text, form)) {
            return secondsOf(*time);
        }
    }
    return 0;
}

} // namespace gpi
