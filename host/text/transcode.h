// Text from one encoding to another, by the C library's iconv.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace gpi {

/// Converts text whole.
///
/// @param from name of an encoding as iconv knows it
/// @return nothing when the text is broken, or there is no such encoding
std::optional<std::string> transcode(std::string_view text, const char* from, const char* to);

/// UTF-8 of what a program hands over. Nothing for half a surrogate pair.
std::optional<std::string> utf8Of(std::u16string_view text);

/// What a program gets. Broken places read as U+FFFD.
std::u16string utf16Of(std::string_view utf8);

} // namespace gpi
