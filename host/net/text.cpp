#include "net/text.h"

#include "net/error.h"
#include "text/transcode.h"

#include <algorithm>

namespace gpi {
namespace {

// Longer text has lost its end.
constexpr size_t kMostUnits = 65536;

} // namespace

std::string netText(const char16_t* text) {
    require(text != nullptr);
    size_t units = 0;
    while (text[units] != u'\0') {
        require(++units <= kMostUnits);
    }
    auto utf8 = utf8Of({text, units});
    require(utf8.has_value());
    return std::move(*utf8);
}

std::string netLine(const char16_t* text) {
    std::string line = netText(text);
    requireLine(line);
    return line;
}

std::string netLineOrNone(const char16_t* text) {
    return text != nullptr ? netLine(text) : std::string();
}

void requireLine(std::string_view text) {
    require(std::none_of(text.begin(), text.end(), [](char byte) {
        const auto code = static_cast<uint8_t>(byte);
        return code < ' ' || code == 0x7F;
    }));
}

void handOutText(std::string_view utf8, char16_t* out, int32_t* size) {
    require(size != nullptr && *size >= 0 && (out != nullptr || *size == 0));
    const std::u16string text = utf16Of(utf8);
    const auto units = static_cast<int32_t>(text.size());
    if (units >= *size) {
        *size = units + 1;
        throw NetError(G_NET_BUFFER);
    }
    std::copy_n(text.c_str(), text.size() + 1, out);
    *size = units;
}

void handOutText(std::string_view utf8, char16_t* out, size_t room) {
    auto size = static_cast<int32_t>(room);
    handOutText(utf8, out, &size);
}

} // namespace gpi
