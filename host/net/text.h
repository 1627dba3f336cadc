// Text that crosses the border: UTF-16 there, UTF-8 here.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace gpi {

/// A program's text. @throws NetError G_NET_ARGUMENT for null, broken and overlong text
std::string netText(const char16_t* text);

/// The same for one line: control characters are refused too, so that nothing can be smuggled into
/// what is said to a server.
std::string netLine(const char16_t* text);

/// The same with empty text for null.
std::string netLineOrNone(const char16_t* text);

/// Refuses text with control characters. @throws NetError G_NET_ARGUMENT
void requireLine(std::string_view text);

/// Hands out text to a buffer.
///
/// @param size its room in units; receives the units written, or needed
/// @throws NetError G_NET_BUFFER
void handOutText(std::string_view utf8, char16_t* out, int32_t* size);

/// Hands out text to a part of a record. @throws NetError G_NET_BUFFER
void handOutText(std::string_view utf8, char16_t* out, size_t room);

} // namespace gpi
