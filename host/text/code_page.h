// Text of the code page that the platform is configured for.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace gpi {

/// A code page by its number in the interface and its name for iconv.
struct CodePage {
    int32_t number;
    const char* name;
};

/// UTF-8, CP932, GBK or CP1252, by number; UTF-8 for any other.
CodePage codePageOf(int32_t number);

/// 8-bit text. What the code page cannot say becomes '?'; a character that would make it longer
/// than `most` bytes ends it.
std::string toCodePage(std::u16string_view text, const CodePage& page, size_t most);

/// Text of a code page. Broken places become U+FFFD; a character that would make it longer than
/// `most` units ends it.
std::u16string fromCodePage(std::string_view text, const CodePage& page, size_t most);

/// Whether a byte begins a character of several bytes; false for an unknown code page.
bool isLeadByte(uint8_t byte, int32_t codePage);

} // namespace gpi
