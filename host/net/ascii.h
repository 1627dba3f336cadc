// Letters as protocols know them, whatever the locale.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace gpi {

inline std::string lowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char byte) {
        return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
    });
    return lower;
}

} // namespace gpi
