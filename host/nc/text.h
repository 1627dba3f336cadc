// Text between panels, which write UTF-16, and controls, which write UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace gpi::nc {

/// What is no character becomes U+FFFD, in either direction: comments of part programs may be in
/// any encoding.
std::string toUtf8(std::u16string_view text);
std::u16string toUtf16(std::string_view text);

/// Copies what fits, never half a character, and a NUL.
/// @param size room in `out`, units; at least 1
void copyText(std::u16string_view text, char16_t* out, size_t size);

} // namespace gpi::nc
