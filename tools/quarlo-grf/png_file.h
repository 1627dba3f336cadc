// Pictures as PNG files.
#pragma once

#include "picture.h"

#include <cstdint>
#include <span>
#include <vector>

namespace grf {

/// @throws Failure for what is no PNG file, is damaged, or is larger than a GRF image can be
Picture readPng(std::span<const uint8_t> file);

std::vector<uint8_t> writePng(const Picture& picture);

} // namespace grf
