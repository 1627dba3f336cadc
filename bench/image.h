// The image that is drawn: runs of 4 to 24 pixels, every other one transparent, and every other of
// the rest in one colour.
#pragma once

#include "outlines.h"
#include "workload.h"

#include <cstdint>
#include <vector>

namespace bench {

/// Columns and rows of the image.
inline constexpr int kImageSize = 200;

/// A transparent pixel.
inline constexpr uint32_t kTransparent = 0;

/// The opaque runs, from the top and from the left.
const std::vector<Run>& imageRuns();

/// What of the image a workload shows, both ends included.
struct Part {
    int left;
    int top;
    int right;
    int bottom;
};
Part partOf(const Workload& workload);

/// Its pixel values, row by row. Where it is stretched, opaque ones are 1 to 7.
std::vector<uint32_t> imagePixels(const Workload& workload);

/// The same as bytes of the workload's format.
std::vector<uint8_t> imageBytes(const Workload& workload);

} // namespace bench
