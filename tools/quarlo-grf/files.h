// Whole files, and the standard streams under the name "-".
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace grf {

/// @throws Failure with the reason when a file cannot be read
std::vector<uint8_t> readFile(const std::string& path);

/// @throws Failure with the reason when it cannot be written
void writeFile(const std::string& path, std::span<const uint8_t> bytes);
void writeFile(const std::string& path, std::string_view text);

/// A path's last part without its extension; "image" for a standard stream.
std::string stemOf(const std::string& path);

} // namespace grf
