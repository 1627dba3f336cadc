// Paths as programs write them.
#pragma once

#include <string_view>

namespace gpi {

constexpr bool isSlash(char16_t unit) {
    return unit == u'/' || unit == u'\\';
}

/// The units of a path without its NUL.
///
/// @throws IoError for null and for more units than a path can have
std::u16string_view pathText(const char16_t* path);

/// Units of a drive letter and its colon at the begin of a path: 2 or 0.
size_t drivePrefix(std::u16string_view path);

} // namespace gpi
