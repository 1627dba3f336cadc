// Eight pixels at a time between the direct-colour formats, as lanes of vectors. The lanes stand in
// memory order only on little-endian processors; others convert pixel by pixel.
#pragma once

#include "raster/kernel/block.h"
#include "raster/kernel/channel_move.h"
#include "raster/kernel/format.h"

#include <bit>
#include <cstdint>

namespace quarlo::kernel {

inline constexpr int32_t kLanes = 8;

using Lanes16 = uint16_t __attribute__((vector_size(16)));
using Lanes32 = uint32_t __attribute__((vector_size(16)));
using Lanes64 = uint64_t __attribute__((vector_size(16)));

/// Eight pixel values of 32 bits.
struct Wide {
    Lanes32 low;
    Lanes32 high;
};

/// 24-bit pixels are handled as three words of eight bytes, of which each pair of pixels takes 48
/// bits.
inline Wide loadEight24(const uint8_t* at) {
    const auto first = loadWord<uint64_t>(at);
    const auto second = loadWord<uint64_t>(at + 8);
    const auto third = loadWord<uint64_t>(at + 16);
    const auto spread = [](uint64_t one, uint64_t two) {
        const Lanes64 pairs{one, two};
        return reinterpret_cast<Lanes32>((pairs & 0xFFFFFF) | (pairs << 8 & 0xFFFFFF00000000));
    };
    return {spread(first, first >> 48 | second << 16),
            spread(second >> 32 | third << 32, third >> 16)};
}

inline void storeEight24(uint8_t* at, const Wide& pixels) {
    const auto gather = [](Lanes32 lanes) {
        const auto pairs = reinterpret_cast<Lanes64>(lanes);
        return (pairs & 0xFFFFFF) | (pairs >> 8 & 0xFFFFFF000000);
    };
    const Lanes64 low = gather(pixels.low);
    const Lanes64 high = gather(pixels.high);
    storeWord(at, low[0] | low[1] << 48);
    storeWord(at + 8, low[1] >> 16 | high[0] << 32);
    storeWord(at + 16, high[0] >> 32 | high[1] << 16);
}

/// The lower two bytes of eight pixels, and their upper bytes.
struct Halves {
    Lanes16 lower;
    Lanes16 upper;
};

inline Wide join(const Halves& halves) {
    return {reinterpret_cast<Lanes32>(
                __builtin_shufflevector(halves.lower, halves.upper, 0, 8, 1, 9, 2, 10, 3, 11)),
            reinterpret_cast<Lanes32>(
                __builtin_shufflevector(halves.lower, halves.upper, 4, 12, 5, 13, 6, 14, 7, 15))};
}

inline Halves split(const Wide& pixels) {
    const auto low = reinterpret_cast<Lanes16>(pixels.low);
    const auto high = reinterpret_cast<Lanes16>(pixels.high);
    return {__builtin_shufflevector(low, high, 0, 2, 4, 6, 8, 10, 12, 14),
            __builtin_shufflevector(low, high, 1, 3, 5, 7, 9, 11, 13, 15)};
}

/// Converts eight pixels between two formats of which at least one has 16 bits.
template <typename From, typename To, bool kWidens>
inline void convertEight(uint8_t* to, const uint8_t* from, const PixelMove& move) {
    const auto channel = [&](int index, Lanes16 values) {
        return move.channels[index].move<kWidens>(values);
    };
    if constexpr (From::kBytes == 3) {
        const Halves halves = split(loadEight24(from));
        storeWord(to,
                  channel(0, halves.lower) | channel(1, halves.lower) | channel(2, halves.upper));
    } else {
        const auto values = loadWord<Lanes16>(from);
        const Lanes16 first = channel(0, values);
        const Lanes16 second = channel(1, values);
        const Lanes16 third = channel(2, values);
        if constexpr (To::kBytes == 2) {
            storeWord(to, first | second | third);
        } else {
            storeEight24(to, join({first | second << 8, third}));
        }
    }
}

} // namespace quarlo::kernel
