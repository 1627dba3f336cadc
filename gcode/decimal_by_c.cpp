// By a C library that rounds exactly and has one locale, as that of emscripten.
#include "gcode/decimal.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace gcode {

std::from_chars_result readDecimal(const char* first, const char* last, double& value) {
    constexpr std::string_view kOfDecimals = "-.0123456789"; // makes no exponents, and no names
    const auto* const behind = std::find_if(
        first, last, [&](char each) { return kOfDecimals.find(each) == kOfDecimals.npos; });
    const std::string number(first, behind);
    char* end = nullptr;
    const double read = std::strtod(number.c_str(), &end);
    const auto length = end - number.c_str();
    if (length == 0) {
        return {first, std::errc::invalid_argument};
    }
    if (std::isinf(read)) {
        return {first + length, std::errc::result_out_of_range};
    }
    value = read;
    return {first + length, std::errc()};
}

std::to_chars_result writeDecimal(char* first, char* last, double value, int decimals) {
    std::string text(static_cast<size_t>(last - first) + 1, '\0');
    const int length = std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    if (length < 0 || length > last - first) {
        return {last, std::errc::value_too_large};
    }
    return {std::copy_n(text.data(), length, first), std::errc()};
}

} // namespace gcode
