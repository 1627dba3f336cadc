// The pixel formats: how many bytes a pixel takes and in which order they stand.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace quarlo::kernel {

/// A pixel of `Bytes` bytes, low byte of the pixel value first.
template <int Bytes>
struct Format {
    static constexpr int kBytes = Bytes;
    static constexpr int kBits = Bytes * 8;
};

using Format8 = Format<1>;
using Format16 = Format<2>;
using Format24 = Format<3>;

/// Swaps the bytes of 2 or 4 where the machine has the high one first.
template <typename Word>
constexpr Word inOrder(Word word) {
    if constexpr (std::endian::native == std::endian::little || sizeof(Word) == 1) {
        return word;
    } else if constexpr (sizeof(Word) == 2) {
        return __builtin_bswap16(word);
    } else {
        static_assert(sizeof(Word) == 4);
        return __builtin_bswap32(word);
    }
}

/// The unsigned integer of exactly `Bytes` bytes that stands low byte first in memory.
template <typename Word>
inline Word loadLittle(const uint8_t* at) {
    Word word;
    std::memcpy(&word, at, sizeof word);
    return inOrder(word);
}

template <typename Word>
inline void storeLittle(uint8_t* at, Word word) {
    word = inOrder(word);
    std::memcpy(at, &word, sizeof word);
}

template <typename Format>
inline uint32_t loadPixel(const uint8_t* at) {
    if constexpr (Format::kBytes == 1) {
        return at[0];
    } else if constexpr (Format::kBytes == 2) {
        return loadLittle<uint16_t>(at);
    } else {
        return loadLittle<uint16_t>(at) | static_cast<uint32_t>(at[2]) << 16;
    }
}

/// Combines one pixel into memory by a drawing mode.
template <typename Format, typename Mode>
inline void putPixel(uint8_t* at, uint32_t pixel) {
    if constexpr (Format::kBytes == 1) {
        at[0] = Mode::combine(at[0], static_cast<uint8_t>(pixel));
    } else {
        const auto old = Mode::kReads ? loadLittle<uint16_t>(at) : uint16_t{0};
        storeLittle(at, Mode::combine(old, static_cast<uint16_t>(pixel)));
        if constexpr (Format::kBytes == 3) {
            at[2] = Mode::combine(at[2], static_cast<uint8_t>(pixel >> 16));
        }
    }
}

} // namespace quarlo::kernel
