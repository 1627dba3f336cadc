// The formats that a display can have.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

namespace gpi {

/// How pixels stand in memory: `bits` / 8 bytes, low byte of the pixel value first.
struct PixelFormat {
    int bits;
    bool palette; ///< a pixel value is an index; the masks then describe the palette's entries
    uint32_t red; ///< channel masks
    uint32_t green;
    uint32_t blue;

    constexpr int bytes() const { return bits / 8; }

    friend constexpr bool operator==(const PixelFormat&, const PixelFormat&) = default;
};

inline constexpr PixelFormat kFormat8{8, true, 0xFF0000, 0xFF00, 0xFF};
inline constexpr PixelFormat kFormat555{16, false, 0x7C00, 0x3E0, 0x1F};
inline constexpr PixelFormat kFormat565{16, false, 0xF800, 0x7E0, 0x1F};
inline constexpr PixelFormat kFormat24{24, false, 0xFF, 0xFF00, 0xFF0000};

/// Entries 0x00RRGGBB.
using Palette = std::array<uint32_t, 256>;

/// The palette in which an index holds its colour itself: red in the top three bits, green in the
/// next three, blue in the low two.
constexpr Palette defaultPalette() {
    Palette palette{};
    for (uint32_t index = 0; index < palette.size(); ++index) {
        const uint32_t red = (index >> 5) * 255 / 7;
        const uint32_t green = (index >> 2 & 7) * 255 / 7;
        const uint32_t blue = (index & 3) * 255 / 3;
        palette[index] = red << 16 | green << 8 | blue;
    }
    return palette;
}

/// A channel of 4 to 8 bits as 8 bits: its upper bits are repeated below it, so that full stays
/// full.
constexpr uint32_t widenedChannel(uint32_t pixel, uint32_t mask) {
    const int bits = std::popcount(mask);
    const uint32_t value = (pixel & mask) >> std::countr_zero(mask);
    return (value << (8 - bits) | value >> (2 * bits - 8)) & 0xFF;
}

/// The colour 0x00RRGGBB of a direct pixel value.
constexpr uint32_t rgbOf(const PixelFormat& format, uint32_t pixel) {
    return widenedChannel(pixel, format.red) << 16 | widenedChannel(pixel, format.green) << 8 |
           widenedChannel(pixel, format.blue);
}

} // namespace gpi
