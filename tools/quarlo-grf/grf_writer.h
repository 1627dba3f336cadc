// Images as GRF files; <quarlo/grf_file.h> describes them.
#pragma once

#include "image.h"

#include <cstdint>
#include <span>
#include <vector>

namespace grf {

/// A file of an image and the stream that encodeRuns() made of it.
std::vector<uint8_t> writeGrf(const Image& image, std::span<const uint8_t> stream);

} // namespace grf
