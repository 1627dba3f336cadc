// Where a picture goes in a window.
#pragma once

#include <algorithm>
#include <cstdint>

namespace gpi {

struct Placement {
    int x;
    int y;
    int width;
    int height;

    friend constexpr bool operator==(const Placement&, const Placement&) = default;
};

/// Centres a picture in a window: enlarged by the largest whole factor that fits, so that all its
/// pixels stay equally large, or made smaller where even the picture itself does not fit.
constexpr Placement place(int pictureWidth, int pictureHeight, int windowWidth, int windowHeight) {
    const int factor = std::min(windowWidth / pictureWidth, windowHeight / pictureHeight);
    int width = pictureWidth * factor;
    int height = pictureHeight * factor;
    if (factor == 0) {
        // Limited by whichever side is too short by more.
        const bool byWidth =
            int64_t{windowWidth} * pictureHeight < int64_t{windowHeight} * pictureWidth;
        width = byWidth ? windowWidth : windowHeight * pictureWidth / pictureHeight;
        height = byWidth ? windowWidth * pictureHeight / pictureWidth : windowHeight;
        width = std::max(width, 1);
        height = std::max(height, 1);
    }
    return {(windowWidth - width) / 2, (windowHeight - height) / 2, width, height};
}

/// Which of `size` units, spread over `length` pixels from `first`, a pixel lies on; below 0 or
/// from `size` on for a pixel beside them.
constexpr int unitAt(int pixel, int first, int length, int size) {
    const int64_t distance = int64_t{pixel} - first;
    const int64_t unit = distance * size / length;
    return static_cast<int>(distance < 0 ? std::min<int64_t>(unit, -1) : unit);
}

} // namespace gpi
