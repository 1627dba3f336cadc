#include "nc/text.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace gpi::nc {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

constexpr bool isLeading(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

constexpr bool isTrailing(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

char32_t takeUtf16(std::u16string_view& text) {
    const char32_t unit = text.front();
    text.remove_prefix(1);
    if (isLeading(unit) && !text.empty() && isTrailing(text.front())) {
        const char32_t low = text.front();
        text.remove_prefix(1);
        return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
    }
    return isLeading(unit) || isTrailing(unit) ? kReplacement : unit;
}

/// A lead byte's length, its own bits, and the least character that needs that length.
struct Lead {
    size_t length;
    uint8_t bits;
    char32_t least;
};

constexpr Lead leadOf(uint8_t byte) {
    return byte < 0x80   ? Lead{1, 0x7F, 0}
           : byte < 0xC0 ? Lead{0, 0, 0}
           : byte < 0xE0 ? Lead{2, 0x1F, 0x80}
           : byte < 0xF0 ? Lead{3, 0x0F, 0x800}
           : byte < 0xF8 ? Lead{4, 0x07, 0x10000}
                         : Lead{0, 0, 0};
}

char32_t takeUtf8(std::string_view& text) {
    const auto first = static_cast<uint8_t>(text.front());
    const Lead lead = leadOf(first);
    char32_t character = first & lead.bits;
    size_t length = 1;
    for (; length < lead.length && length < text.size(); ++length) {
        const auto byte = static_cast<uint8_t>(text[length]);
        if ((byte & 0xC0) != 0x80) {
            break;
        }
        character = character << 6 | (byte & 0x3F);
    }
    text.remove_prefix(length);
    const bool valid = length == lead.length && character >= lead.least && character <= 0x10FFFF &&
                       !isLeading(character) && !isTrailing(character);
    return valid ? character : kReplacement;
}

void append(std::string& out, char32_t character) {
    if (character < 0x80) {
        out += static_cast<char>(character);
        return;
    }
    const int more = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    constexpr std::array<uint8_t, 4> kMarks = {0, 0xC0, 0xE0, 0xF0};
    out += static_cast<char>(kMarks[static_cast<size_t>(more)] | character >> (6 * more));
    for (int left = more - 1; left >= 0; --left) {
        out += static_cast<char>(0x80 | (character >> (6 * left) & 0x3F));
    }
}

} // namespace

std::string toUtf8(std::u16string_view text) {
    std::string out;
    while (!text.empty()) {
        append(out, takeUtf16(text));
    }
    return out;
}

std::u16string toUtf16(std::string_view text) {
    std::u16string out;
    while (!text.empty()) {
        const char32_t character = takeUtf8(text);
        if (character < 0x10000) {
            out += static_cast<char16_t>(character);
        } else {
            out += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
            out += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
        }
    }
    return out;
}

void copyText(std::u16string_view text, char16_t* out, size_t size) {
    size_t length = std::min(text.size(), size - 1);
    if (length < text.size() && length > 0 && isLeading(text[length - 1])) {
        --length;
    }
    std::copy_n(text.begin(), length, out);
    out[length] = u'\0';
}

} // namespace gpi::nc
