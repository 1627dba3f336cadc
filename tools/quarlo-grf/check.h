// What is wrong in a GRF file.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace grf {

/// A malformation, and where in the file.
struct Finding {
    size_t offset;
    std::string what;
};

/// Everything that is wrong in a file; nothing for one that GGrfOpenFile() takes.
std::vector<Finding> check(std::span<const uint8_t> file);

} // namespace grf
