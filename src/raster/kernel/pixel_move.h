// How the channels of a pixel move from one layout to another.
#pragma once

#include "raster/kernel/transfer.h"

#include <algorithm>
#include <cstdint>

namespace quarlo::kernel {

/// Moves one channel from its place in the source to its place in the destination, widened to eight
/// bits in between.
class ChannelMove {
  public:
    ChannelMove(uint32_t from, uint32_t to) : mask_(from), place_(to) {
        const int source = channelShift(from);
        const int target = channelShift(to);
        down_ = std::max(source, 0);
        up_ = std::max(-source, 0);
        placeDown_ = std::max(-target, 0);
        placeUp_ = std::max(target, 0);
        const uint32_t moved = shiftBy(from, -source) & 0xFF;
        lowest_ = moved & (~moved + 1);
    }

    uint32_t operator()(uint32_t value) const {
        uint32_t channel = (value & mask_) >> down_ << up_;
        channel |= (channel & lowest_) != 0 ? lowest_ - 1 : 0;
        return channel >> placeDown_ << placeUp_ & place_;
    }

  private:
    uint32_t mask_;
    int down_;        ///< right shift that brings the mask's top bit to bit 7, or
    int up_;          ///< left shift that does
    uint32_t lowest_; ///< lowest bit of the mask so moved
    int placeDown_;   ///< then right, or
    int placeUp_;     ///< left to the destination's place
    uint32_t place_;  ///< destination mask
};

/// Moves the three channels of a pixel value. The result has no bits past the destination's pixel.
class PixelMove {
  public:
    PixelMove(const PixelLayout& from, const PixelLayout& to)
        : red_(from.red, to.red),
          green_(from.green, to.green),
          blue_(from.blue, to.blue),
          pixel_(~uint32_t{0} >> (32 - to.bitsPerPixel)) {}

    uint32_t operator()(uint32_t value) const {
        return (red_(value) | green_(value) | blue_(value)) & pixel_;
    }

    /// Moves an array; the two may be one.
    void operator()(const uint32_t* values, uint32_t* results, uint32_t count) const {
        const PixelMove move = *this; // which no store can change
        for (uint32_t i = 0; i < count; ++i) {
            results[i] = move(values[i]);
        }
    }

  private:
    ChannelMove red_;
    ChannelMove green_;
    ChannelMove blue_;
    uint32_t pixel_; ///< all bits of a destination pixel
};

/// What each bit of a source pixel becomes by itself. It becomes that whatever the other bits are,
/// so a pixel moved is the OR of its bits moved: conversions need not know of channels.
struct MovedBits {
    uint32_t bits[24];

    explicit MovedBits(const PixelMove& move) {
        for (int bit = 0; bit < 24; ++bit) {
            bits[bit] = 1U << bit;
        }
        move(bits, bits, 24);
    }
};

/// The palette of 256 entries that a byte can name, moved. Entries that it lacks are 0.
struct MovedPalette {
    uint32_t values[256];

    MovedPalette(const PixelLayout& from, const PixelMove& move) {
        const uint32_t count = std::min<uint32_t>(from.paletteCount, 256);
        move(from.palette, values, count);
        std::fill(values + count, values + 256, 0U);
    }
};

} // namespace quarlo::kernel
