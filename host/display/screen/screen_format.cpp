#include "display/screen/screen_format.h"

#include <bit>
#include <cstring>
#include <initializer_list>

namespace gpi {
namespace {

constexpr int kMostChannelBits = 16;

bool isRun(uint32_t mask) {
    const uint64_t run = uint64_t{mask} >> (mask != 0 ? std::countr_zero(mask) : 0);
    return mask != 0 && std::has_single_bit(run + 1) && std::popcount(mask) <= kMostChannelBits;
}

uint32_t placed(uint32_t value, uint32_t mask) {
    const int bits = std::popcount(mask);
    const uint32_t sixteen = value << 8 | value;
    return sixteen >> (kMostChannelBits - bits) << std::countr_zero(mask);
}

std::array<uint32_t, 256> valuesOf(uint32_t mask, uint32_t always) {
    std::array<uint32_t, 256> values{};
    for (uint32_t value = 0; value < values.size(); ++value) {
        values[value] = placed(value, mask) | always;
    }
    return values;
}

} // namespace

bool isUsable(const ScreenFormat& format) {
    if (format.bits != 16 && format.bits != 24 && format.bits != 32) {
        return false;
    }
    const uint64_t pixel = (uint64_t{1} << format.bits) - 1;
    uint32_t seen = 0;
    for (const uint32_t mask : {format.red, format.green, format.blue}) {
        if (!isRun(mask) || (mask & ~pixel) != 0 || (mask & seen) != 0) {
            return false;
        }
        seen |= mask;
    }
    return (format.opaque & ~pixel) == 0;
}

PixelPacker::PixelPacker(const ScreenFormat& format)
    : red_(valuesOf(format.red, format.opaque)),
      green_(valuesOf(format.green, 0)),
      blue_(valuesOf(format.blue, 0)),
      row_(format.bytes() == 2   ? packRow<2>
           : format.bytes() == 3 ? packRow<3>
                                 : packRow<4>) {}

template <int kBytes>
void PixelPacker::packRow(const PixelPacker& self, const uint32_t* rgb, int count, uint8_t* to) {
    for (int index = 0; index < count; ++index, to += kBytes) {
        const uint32_t color = rgb[index];
        const uint32_t pixel = self.red_[color >> 16 & 0xFF] | self.green_[color >> 8 & 0xFF] |
                               self.blue_[color & 0xFF];
        if constexpr (kBytes == 2) {
            const auto narrow = static_cast<uint16_t>(pixel);
            std::memcpy(to, &narrow, sizeof narrow);
        } else if constexpr (kBytes == 4) {
            std::memcpy(to, &pixel, sizeof pixel);
        } else {
            to[0] = static_cast<uint8_t>(pixel);
            to[1] = static_cast<uint8_t>(pixel >> 8);
            to[2] = static_cast<uint8_t>(pixel >> 16);
        }
    }
}

} // namespace gpi
