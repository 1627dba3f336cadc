// What the tests of block transfers start from.
#pragma once

#include "draw/draw_test.h"

#include "support/picture.h"

#include <quarlo/transfer.h>

#include <string>
#include <vector>

namespace quarlo::test {

using Bytes = std::vector<uint8_t>;

class Transfer : public HandleTest {
  protected:
    Transfer() { platform.forget(); }

    void copy(const GVram* from, int16_t sourceX, int16_t sourceY, int16_t width, int16_t height,
              GVram* to, int16_t x, int16_t y, int32_t mode = G_MODE_COPY) {
        GDBitBlt(handle.get(), from, sourceX, sourceY, width, height, to, x, y, mode);
    }

    /// The bytes that a pixel of one surface becomes on another.
    std::vector<uint8_t> converted(GuardedSurface& from, GuardedSurface& to, uint32_t pixel) {
        setPixelAt(*from, 0, 0, pixel);
        copy(from.get(), 0, 0, 1, 1, to.get(), 0, 0);
        return {to->pixels, to->pixels + to->bitsPerPixel / 8};
    }
};

/// Letters 1 to 9 in a surface, by pixel value.
inline const Letters kDigits = {{'.', 0}, {'1', 1}, {'2', 2}, {'3', 3}, {'4', 4},
                                {'5', 5}, {'6', 6}, {'7', 7}, {'8', 8}, {'9', 9}};

inline void paint(GuardedSurface& surface, const std::vector<std::string>& rows) {
    for (int y = 0; y < surface->height; ++y) {
        for (int x = 0; x < surface->width; ++x) {
            setPixelAt(*surface, x, y,
                       kDigits.at(rows.at(static_cast<size_t>(y)).at(static_cast<size_t>(x))));
        }
    }
}

} // namespace quarlo::test
