#include "text/services.h"

#include "guard.h"
#include "platform.h"
#include "text/characters.h"

#include <limits>
#include <string>

namespace gpi {
namespace {

/// Text of a given length, or up to and with its NUL for -1.
template <typename Unit>
std::basic_string_view<Unit> textOf(const Unit* text, int32_t length) {
    const std::basic_string_view<Unit> whole =
        length < 0 ? std::basic_string_view<Unit>(text) : std::basic_string_view<Unit>();
    return {text, length < 0 ? whole.size() + 1 : static_cast<size_t>(length)};
}

/// Whether there is a text, and room or none wanted.
bool makesSense(const void* text, int32_t length, const void* out, int32_t size) {
    return text != nullptr && length >= -1 && size >= 0 && (out != nullptr || size == 0);
}

/// Without room the result is only measured.
size_t roomFor(int32_t size) {
    return size > 0 ? static_cast<size_t>(size) : std::numeric_limits<int32_t>::max();
}

} // namespace

int32_t stringLength(const char16_t* text, int32_t limit) {
    if (limit < -1) {
        return 0;
    }
    int32_t characters = 0;
    for (int32_t at = 0; text != nullptr && (limit < 0 || at < limit) && text[at] != u'\0';
         ++characters) {
        const size_t left = limit < 0 ? 2 : static_cast<size_t>(limit - at);
        at += static_cast<int32_t>(unitsOfCharacter(text + at, left));
    }
    return characters;
}

const char16_t* previousChar(const char16_t* text, const char16_t* position, uint32_t* character) {
    if (text == nullptr || position == nullptr || position <= text) {
        return nullptr;
    }
    const bool pair =
        position - text > 1 && isLowSurrogate(position[-1]) && isHighSurrogate(position[-2]);
    const size_t units = pair ? 2 : 1;
    if (character != nullptr) {
        *character = codePointOf(position - units, units);
    }
    return position - units;
}

const char16_t* nextChar(const char16_t* position, const char16_t* end, uint32_t* character) {
    if (position == nullptr || (end != nullptr ? position >= end : *position == u'\0')) {
        return nullptr;
    }
    const size_t left = end != nullptr ? static_cast<size_t>(end - position) : 2;
    const size_t units = unitsOfCharacter(position, left);
    if (character != nullptr) {
        *character = codePointOf(position, units);
    }
    return position + units;
}

int32_t unicodeToMultiByte(const char16_t* text, int32_t units, char* out, int32_t size) {
    return guarded(0, [&] {
        if (!makesSense(text, units, out, size)) {
            return 0;
        }
        const std::string bytes =
            toCodePage(textOf(text, units), platform().codePage, roomFor(size));
        return static_cast<int32_t>(size > 0 ? bytes.copy(out, bytes.size()) : bytes.size());
    });
}

int32_t multiByteToUnicode(const char* text, int32_t bytes, char16_t* out, int32_t units) {
    return guarded(0, [&] {
        if (!makesSense(text, bytes, out, units)) {
            return 0;
        }
        const std::u16string wide =
            fromCodePage(textOf(text, bytes), platform().codePage, roomFor(units));
        return static_cast<int32_t>(units > 0 ? wide.copy(out, wide.size()) : wide.size());
    });
}

int32_t isLeadByteOf(uint8_t byte, int32_t codePage) {
    const int32_t page = codePage == G_CODE_PAGE_DEFAULT ? platform().codePage.number : codePage;
    return isLeadByte(byte, page) ? 1 : 0;
}

} // namespace gpi
