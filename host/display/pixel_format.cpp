#include "display/pixel_format.h"

#include <bit>

namespace gpi {
namespace {

uint32_t channel(uint32_t pixel, uint32_t mask) {
    const int bits = std::popcount(mask);
    const uint32_t value = (pixel & mask) >> std::countr_zero(mask);
    return (value << (8 - bits) | value >> (2 * bits - 8)) & 0xFF;
}

} // namespace

uint32_t rgbOf(const PixelFormat& format, uint32_t pixel) {
    return channel(pixel, format.red) << 16 | channel(pixel, format.green) << 8 |
           channel(pixel, format.blue);
}

} // namespace gpi
