// Pictures in full colour.
#pragma once

#include <cstdint>
#include <vector>

namespace grf {

/// Red, green and blue are not multiplied by alpha.
struct Color {
    uint8_t red;
    uint8_t green;
    uint8_t blue;
    uint8_t alpha = 255;

    friend bool operator==(const Color&, const Color&) = default;
};

/// Larger pictures and images are refused, lest a small file take all memory.
inline constexpr int64_t kMostPixels = 16'000'000;

/// Rows of pixels, the upper left one first.
struct Picture {
    int width;
    int height;
    std::vector<Color> pixels;

    friend bool operator==(const Picture&, const Picture&) = default;
};

} // namespace grf
