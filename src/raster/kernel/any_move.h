// Conversion of single pixel values between layouts with any masks, however odd.
#pragma once

#include "raster/kernel/transfer.h"

#include <algorithm>
#include <bit>
#include <cstdint>

namespace quarlo::kernel {

/// Brings a channel's top bit to bit 7, copies its lowest bit into all those below, and moves it on
/// to its place in the destination.
struct AnyChannel {
    uint32_t mask;
    int down;
    int up;
    uint32_t lowest; ///< lowest bit of the mask so moved
    int below;       ///< how many bits are below that
    int placeDown;
    int placeUp;
    uint32_t place; ///< destination mask

    AnyChannel(uint32_t from, uint32_t to) : mask(from), place(to) {
        const int source = channelShift(from);
        const int target = channelShift(to);
        down = std::max(source, 0);
        up = std::max(-source, 0);
        placeDown = std::max(-target, 0);
        placeUp = std::max(target, 0);
        const uint32_t moved = shiftBy(from, -source) & 0xFF;
        lowest = moved & (~moved + 1);
        below = lowest == 0 ? 0 : std::countr_zero(lowest);
    }

    uint32_t operator()(uint32_t value) const {
        uint32_t channel = (value & mask) >> down << up;
        const uint32_t copied = channel & lowest;
        channel |= copied - (copied >> below);
        return channel >> placeDown << placeUp & place;
    }
};

struct AnyMove {
    AnyChannel red;
    AnyChannel green;
    AnyChannel blue;

    AnyMove(const PixelLayout& from, const PixelLayout& to)
        : red(from.red, to.red), green(from.green, to.green), blue(from.blue, to.blue) {}

    uint32_t operator()(uint32_t value) const { return red(value) | green(value) | blue(value); }
};

} // namespace quarlo::kernel
