// PNG files as numbers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace gpi::test {

struct PngPicture {
    int width = 0;
    int height = 0;
    bool palette = false;
    std::vector<uint32_t> colors; ///< of the palette, 0x00RRGGBB
    std::vector<uint32_t> pixels; ///< indexes into the palette, else 0x00RRGGBB

    uint32_t at(int x, int y) const {
        return pixels[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
    }
};

/// Reads a file of 8 bits a channel or index; fails the test when it is something else.
PngPicture readPng(const std::string& path);

} // namespace gpi::test
