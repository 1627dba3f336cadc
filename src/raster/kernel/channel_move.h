// How a channel travels from its place in one pixel layout to its place in another.
#pragma once

#include "raster/kernel/transfer.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <type_traits>

namespace quarlo::kernel {

/// Whether a mask is one run of at most eight bits, as those of all usual layouts are.
constexpr bool isPlain(uint32_t mask) {
    const uint32_t bits = mask == 0 ? 0 : mask >> std::countr_zero(mask);
    return bits <= 0xFF && (bits & (bits + 1)) == 0;
}

/// The move of a channel between plain masks: its bits go as a whole; where the destination has
/// more of them, the lowest one is copied into those below it.
struct ChannelMove {
    uint32_t keep;   ///< source bits that arrive
    int up;          ///< shift left, then
    int down;        ///< shift right
    uint32_t lowest; ///< the arrived bit that is copied, 0 where none is missing below it
    int missing;     ///< how many bits are

    ChannelMove(uint32_t from, uint32_t to) {
        const int shift = channelShift(to) - channelShift(from);
        keep = from & shiftBy(to, -shift);
        up = std::max(shift, 0);
        down = std::max(-shift, 0);
        const uint32_t arrived = shiftBy(keep, shift);
        lowest = arrived & (~arrived + 1);
        missing = lowest == 0 ? 0 : std::countr_zero(lowest) - std::countr_zero(to);
        lowest = missing == 0 ? 0 : lowest;
    }

    template <bool kWidens, typename Lanes>
    Lanes move(Lanes values) const {
        using Lane = std::remove_cvref_t<decltype(values[0])>;
        const Lanes moved = (values & static_cast<Lane>(keep)) << up >> down;
        if constexpr (!kWidens) {
            return moved;
        }
        const Lanes copied = moved & static_cast<Lane>(lowest);
        return moved | (copied - (copied >> missing));
    }
};

/// Whether the channels are whole bytes, one each.
constexpr bool isOfBytes(const PixelLayout& layout) {
    const auto isByte = [](uint32_t mask) {
        return mask == 0xFF || mask == 0xFF00 || mask == 0xFF0000;
    };
    return isByte(layout.red) && isByte(layout.green) && isByte(layout.blue) &&
           (layout.red | layout.green | layout.blue) == 0xFFFFFF;
}

/// The moves of a pixel's three channels: in any order between layouts of 16 bits, in the order of
/// their bytes from or to a layout of bytes.
struct PixelMove {
    ChannelMove channels[3];

    PixelMove(const PixelLayout& from, const PixelLayout& to)
        : channels{channel(from, to, 0), channel(from, to, 1), channel(from, to, 2)} {}

    bool widens() const {
        return (channels[0].lowest | channels[1].lowest | channels[2].lowest) != 0;
    }

  private:
    static uint32_t mask(const PixelLayout& layout, int index) {
        return index == 0 ? layout.red : index == 1 ? layout.green : layout.blue;
    }

    /// Which channel of a layout stands in a byte.
    static int channelOfByte(const PixelLayout& layout, int byte) {
        const uint32_t place = 0xFFU << 8 * byte;
        return layout.red == place ? 0 : layout.green == place ? 1 : 2;
    }

    /// Vectors hold the lower two bytes of eight pixels in one, the upper bytes in another.
    static ChannelMove channel(const PixelLayout& from, const PixelLayout& to, int index) {
        if (from.bitsPerPixel == 24) {
            return {index == 1 ? 0xFF00U : 0xFFU, mask(to, channelOfByte(from, index))};
        }
        if (to.bitsPerPixel == 24) {
            return {mask(from, channelOfByte(to, index)), 0xFF};
        }
        return {mask(from, index), mask(to, index)};
    }
};

} // namespace quarlo::kernel
