// Reads a part program from its file.
#pragma once

#include <optional>
#include <string>

namespace toolpath {

/// @return the file's bytes; nothing, with the reason in `reason`, where it cannot be read
std::optional<std::string> readProgramFile(const char* path, std::string& reason);

} // namespace toolpath
