#include "text/format.h"

#include "gcode/decimal.h"

#include <quarlo/quarlo.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace panel {
namespace {

constexpr double kMillimetresPerInch = 25.4;

/// Without the sign of a zero: -0.0004 reads 0.000.
std::string spelled(double value, int decimals) {
    const double scale = std::pow(10.0, decimals);
    const double rounded = std::round(value * scale) / scale;
    std::array<char, 64> digits;
    const auto end = gcode::writeDecimal(digits.data(), digits.data() + digits.size(),
                                         rounded == 0.0 ? 0.0 : rounded, decimals);
    return end.ec == std::errc() ? std::string(digits.data(), end.ptr) : "#";
}

void appendTwo(std::u16string& text, int32_t value) {
    text += static_cast<char16_t>(u'0' + value / 10 % 10);
    text += static_cast<char16_t>(u'0' + value % 10);
}

} // namespace

std::u16string fixed(double value, int decimals) {
    return std::isnan(value) ? u"---" : wide(spelled(value, decimals));
}

std::u16string shortest(double value) {
    if (std::isnan(value)) {
        return {};
    }
    constexpr int kMost = 6;
    std::string text = spelled(value, kMost);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text.pop_back();
    }
    return wide(text);
}

std::u16string lengthText(double millimetres, bool inches) {
    return inches ? fixed(millimetres / kMillimetresPerInch, 4) : fixed(millimetres, 3);
}

std::u16string wholeText(double value) {
    return fixed(value, 0);
}

std::u16string clockText(uint32_t time) {
    GBrokenDownTime parts{};
    GEGmTime(&parts, time);
    std::u16string text;
    appendTwo(text, parts.hour);
    text += u':';
    appendTwo(text, parts.minute);
    text += u':';
    appendTwo(text, parts.second);
    return text;
}

std::u16string spanText(double seconds) {
    const auto whole = static_cast<int32_t>(seconds);
    const int32_t hours = whole / 3600;
    std::u16string text = wholeText(hours);
    text += u':';
    appendTwo(text, whole / 60 % 60);
    text += u':';
    appendTwo(text, whole % 60);
    return text;
}

std::u16string joined(std::initializer_list<std::u16string_view> parts) {
    std::u16string text;
    for (const std::u16string_view part : parts) {
        text += part;
    }
    return text;
}

std::u16string wide(std::string_view text) {
    return {text.begin(), text.end()};
}

std::u16string decoded(std::string_view bytes) {
    std::u16string text(bytes.size(), u'\0'); // a unit a byte at most
    const auto room = static_cast<int32_t>(bytes.size());
    const int32_t units = GRCMultiByteToUnicode(bytes.data(), room, text.data(), room);
    text.resize(static_cast<size_t>(std::max(units, 0)));
    return text;
}

bool parseNumber(const std::u16string& text, double& value) {
    std::string narrow;
    for (const char16_t unit : text) {
        narrow += unit < 0x80 ? static_cast<char>(unit) : '?';
    }
    const char* const end = narrow.data() + narrow.size();
    const auto parsed = gcode::readDecimal(narrow.data(), end, value);
    return parsed.ec == std::errc() && parsed.ptr == end && std::isfinite(value);
}

std::u16string fileName(const std::u16string& path) {
    return path.substr(path.find_last_of(u"/\\") + 1);
}

} // namespace panel
