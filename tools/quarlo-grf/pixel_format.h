// What a pixel value is on the surface that an image is made for.
#pragma once

#include "picture.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace grf {

/// Where the channels lie, each in 1 to 8 bits side by side. Without masks a value is an index.
struct PixelFormat {
    uint32_t red;
    uint32_t green;
    uint32_t blue;

    bool isIndexed() const { return (red | green | blue) == 0; }

    /// Bits of a pixel of the surface: 8, 16 or 24.
    int bits() const {
        return std::max(8, (static_cast<int>(std::bit_width(red | green | blue)) + 7) / 8 * 8);
    }

    friend bool operator==(const PixelFormat&, const PixelFormat&) = default;
};

inline constexpr PixelFormat kFormat8{0xE0, 0x1C, 0x03};
inline constexpr PixelFormat kFormat555{0x7C00, 0x03E0, 0x001F};
inline constexpr PixelFormat kFormat565{0xF800, 0x07E0, 0x001F};
inline constexpr PixelFormat kFormat24{0x0000FF, 0x00FF00, 0xFF0000};
inline constexpr PixelFormat kFormatIndexed{0, 0, 0};

/// The format of a surface by the name on the command line: 8, 555, 565, 24 or palette.
std::optional<PixelFormat> surfaceNamed(std::string_view name);

/// The bits of the channels, like "5-6-5".
std::string nameOf(const PixelFormat& format);

/// The pixel value of a colour, by its upper bits.
uint32_t valueOf(const PixelFormat& format, Color color);

/// The colour that a pixel value shows.
Color colorOf(const PixelFormat& format, uint32_t value);

/// An opaque colour from 0x00RRGGBB, and back.
Color colorOfRgb(uint32_t rgb);
uint32_t rgbOf(Color color);

} // namespace grf
