// Images out of streams.
#pragma once

#include "image.h"

#include <quarlo/grf_file.h>

#include <array>
#include <cstddef>

namespace grf {

/// The values of an image, from a file that GGrfOpenFile() took.
///
/// @throws Failure for more than kMostPixels
Image decodeRuns(const GGrfFile& file);

/// How many runs of each kind a stream has, G_GRF_SKIP to G_GRF_FILL.
std::array<size_t, 4> countRuns(const GGrfFile& file);

} // namespace grf
