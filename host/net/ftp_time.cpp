#include "net/ftp_time.h"

#include <cstdio>
#include <limits>
#include <string_view>

#include <ctime>

namespace gpi {
namespace {

constexpr uint32_t kDay = 24 * 60 * 60;

uint32_t secondsOf(std::tm time) {
    const time_t seconds = timegm(&time);
    const bool fits = seconds > 0 && seconds <= int64_t{std::numeric_limits<uint32_t>::max()};
    return fits ? static_cast<uint32_t>(seconds) : 0;
}

/// 0 to 11, or -1.
int monthOf(std::string_view name) {
    constexpr std::string_view kMonths = "JanFebMarAprMayJunJulAugSepOctNovDec";
    const size_t at = name.size() == 3 ? kMonths.find(name) : kMonths.npos;
    return at != kMonths.npos && at % 3 == 0 ? static_cast<int>(at / 3) : -1;
}

uint32_t ofUnix(const char* text, uint32_t now) {
    char month[4] = {};
    std::tm time{};
    int year = 0;
    if (std::sscanf(text, "%3s %2d %2d:%2d", month, &time.tm_mday, &time.tm_hour, &time.tm_min) ==
        4) {
        const time_t moment = now;
        std::tm today{};
        gmtime_r(&moment, &today);
        year = today.tm_year;
    } else if (std::sscanf(text, "%3s %2d %4d", month, &time.tm_mday, &year) == 3) {
        year -= 1900;
        time.tm_hour = 0;
        now = std::numeric_limits<uint32_t>::max() - kDay;
    } else {
        return 0;
    }
    time.tm_mon = monthOf(month);
    time.tm_year = year;
    if (time.tm_mon < 0) {
        return 0;
    }
    const uint32_t seconds = secondsOf(time);
    if (seconds <= now + kDay) { // clocks differ
        return seconds;
    }
    --time.tm_year;
    return secondsOf(time);
}

uint32_t ofDos(const char* text) {
    std::tm time{};
    char half = 0;
    if (std::sscanf(text, "%2d-%2d-%4d %2d:%2d%cM", &time.tm_mon, &time.tm_mday, &time.tm_year,
                    &time.tm_hour, &time.tm_min, &half) != 6) {
        return 0;
    }
    --time.tm_mon;
    time.tm_year -= time.tm_year >= 1900 ? 1900 : 0;
    time.tm_year += time.tm_year < 70 ? 100 : 0;
    time.tm_hour = time.tm_hour % 12 + (half == 'P' ? 12 : 0);
    return secondsOf(time);
}

} // namespace

uint32_t listedTime(const std::string& text, uint32_t now) {
    const bool dos = !text.empty() && text[0] >= '0' && text[0] <= '9';
    return dos ? ofDos(text.c_str()) : ofUnix(text.c_str(), now);
}

} // namespace gpi
