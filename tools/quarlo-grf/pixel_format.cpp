#include "pixel_format.h"

#include <bit>

namespace grf {
namespace {

uint32_t packed(uint8_t channel, uint32_t mask) {
    const int bits = std::popcount(mask);
    return static_cast<uint32_t>(channel >> (8 - bits)) << std::countr_zero(mask);
}

/// Full stays full, and everything else in proportion.
uint8_t widened(uint32_t value, uint32_t mask) {
    const uint32_t most = mask >> std::countr_zero(mask);
    const uint32_t channel = (value & mask) >> std::countr_zero(mask);
    return static_cast<uint8_t>((channel * 255 + most / 2) / most);
}

} // namespace

std::optional<PixelFormat> surfaceNamed(std::string_view name) {
    struct Surface {
        std::string_view name;
        PixelFormat format;
    };
    constexpr Surface kSurfaces[] = {{"8", kFormat8},
                                     {"555", kFormat555},
                                     {"565", kFormat565},
                                     {"24", kFormat24},
                                     {"palette", kFormatIndexed}};
    for (const Surface& surface : kSurfaces) {
        if (surface.name == name) {
            return surface.format;
        }
    }
    return std::nullopt;
}

std::string nameOf(const PixelFormat& format) {
    const auto bits = [](uint32_t mask) { return std::to_string(std::popcount(mask)); };
    return bits(format.red) + '-' + bits(format.green) + '-' + bits(format.blue);
}

uint32_t valueOf(const PixelFormat& format, Color color) {
    return packed(color.red, format.red) | packed(color.green, format.green) |
           packed(color.blue, format.blue);
}

Color colorOf(const PixelFormat& format, uint32_t value) {
    return {widened(value, format.red), widened(value, format.green), widened(value, format.blue)};
}

Color colorOfRgb(uint32_t rgb) {
    return {static_cast<uint8_t>(rgb >> 16), static_cast<uint8_t>(rgb >> 8),
            static_cast<uint8_t>(rgb)};
}

uint32_t rgbOf(Color color) {
    return static_cast<uint32_t>(color.red) << 16 | static_cast<uint32_t>(color.green) << 8 |
           color.blue;
}

} // namespace grf
