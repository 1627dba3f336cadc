#include "text/code_page.h"

#include "text/characters.h"
#include "text/conversion.h"

#include <quarlo/convert.h>

namespace gpi {
namespace {

constexpr CodePage kPages[] = {{G_CODE_PAGE_UTF8, "UTF-8"},
                               {G_CODE_PAGE_CP932, "CP932"},
                               {G_CODE_PAGE_GBK, "GBK"},
                               {G_CODE_PAGE_CP1252, "CP1252"}};

constexpr bool isBetween(uint8_t byte, uint8_t low, uint8_t high) {
    return low <= byte && byte <= high;
}

} // namespace

CodePage codePageOf(int32_t number) {
    for (const CodePage& page : kPages) {
        if (page.number == number) {
            return page;
        }
    }
    return kPages[0];
}

std::string toCodePage(std::u16string_view text, const CodePage& page, size_t most) {
    Conversion conversion(kNativeUtf16, page.name);
    std::string out;
    while (!text.empty()) {
        const size_t units = unitsOfCharacter(text.data(), text.size());
        std::string_view bytes(reinterpret_cast<const char*>(text.data()), units * 2);
        std::string character;
        if (!conversion.isOpen() || !conversion.advance(bytes, character)) {
            character.assign(1, '?');
        }
        if (out.size() + character.size() > most) {
            break;
        }
        out += character;
        text.remove_prefix(units);
    }
    return out;
}

std::u16string fromCodePage(std::string_view text, const CodePage& page, size_t most) {
    Conversion conversion(page.name, kNativeUtf16);
    std::string bytes;
    while (conversion.isOpen() && !conversion.advance(text, bytes)) {
        const char16_t replacement = 0xFFFD;
        bytes.append(reinterpret_cast<const char*>(&replacement), 2);
        text.remove_prefix(1);
    }
    std::u16string out(bytes.size() / 2, u'\0');
    bytes.copy(reinterpret_cast<char*>(out.data()), out.size() * 2);
    if (out.size() > most) {
        const bool split = most > 0 && isHighSurrogate(out[most - 1]) && isLowSurrogate(out[most]);
        out.resize(most - (split ? 1 : 0));
    }
    return out;
}

bool isLeadByte(uint8_t byte, int32_t codePage) {
    switch (codePage) {
    case G_CODE_PAGE_CP932:
        return isBetween(byte, 0x81, 0x9F) || isBetween(byte, 0xE0, 0xFC);
    case G_CODE_PAGE_GBK:
        return isBetween(byte, 0x81, 0xFE);
    case G_CODE_PAGE_UTF8:
        return isBetween(byte, 0xC2, 0xF4);
    default:
        return false;
    }
}

} // namespace gpi
