// What a row is filled with, solid or patterned, as blocks in registers. Tables in memory would
// have to be read back before their narrower stores have left the processor's store buffer, which
// costs a small rectangle more than its pixels do.
#pragma once

#include "raster/kernel/block.h"
#include "raster/kernel/format.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

namespace quarlo::kernel {

/// 48 bytes divide into whole pixels of 1, 2 and 3 bytes, whole pattern rows of 8 such pixels, and
/// three whole blocks.
inline constexpr size_t kPeriod = 3 * kBlock;

/// The bytes of one row, which repeat after the period.
struct RowColor {
    Block first;
    Block second;
    Block third;
    Block last; ///< what the row's last 16 bytes get; of no meaning in a row shorter than that

    /// The same for a row that ends with a period.
    RowColor wholePeriods() const { return {first, second, third, third}; }
};

/// A single colour.
template <typename Format>
class Solid {
  public:
    explicit Solid(uint32_t pixel) {
        constexpr uint64_t kMask = UINT64_MAX >> (64 - Format::kBits);
        const uint64_t color = pixel & kMask;
        if constexpr (Format::kBytes == 3) {
            const uint64_t words[] = {color * 0x0001'000001'000001,
                                      color * 0x01'000001'000001'00 | color >> 16,
                                      color * 0x00'000001'000001'0000 | color >> 8};
            blocks_[0] = blockOf(words[0], words[1]);
            blocks_[1] = blockOf(words[2], words[0]);
            blocks_[2] = blockOf(words[1], words[2]);
        } else {
            const uint64_t word = color * (UINT64_MAX / kMask);
            blocks_[0] = blockOf(word, word);
        }
    }

    /// A row ends with a pixel, and so does the third block of a period.
    RowColor row() const { return {block(0), block(kBlock), block(2 * kBlock), block(2 * kBlock)}; }

    /// The 16 bytes from a byte of the row on. Those of 24-bit pixels look the same from every
    /// third byte on, and a block is one byte longer than five pixels.
    Block block(size_t at) const { return blocks_[Format::kBytes == 3 ? at % 3 : 0]; }

  private:
    static Block blockOf(uint64_t low, uint64_t high) {
        using Words = uint64_t __attribute__((vector_size(16)));
        if constexpr (std::endian::native == std::endian::big) {
            low = __builtin_bswap64(low);
            high = __builtin_bswap64(high);
        }
        return reinterpret_cast<Block>(Words{low, high});
    }

    Block blocks_[Format::kBytes == 3 ? 3 : 1];
};

/// For each byte of a period and one block more, the pattern bit that decides on it.
template <typename Format>
inline constexpr auto kPatternBits = [] {
    std::array<uint8_t, kPeriod + kBlock> bits{};
    for (size_t at = 0; at < bits.size(); ++at) {
        bits[at] = static_cast<uint8_t>(0x80 >> (at / Format::kBytes % 8));
    }
    return bits;
}();

/// A row of an 8 x 8 pattern: the fore colour where its bits are set, the back colour elsewhere.
template <typename Format>
class Patterned {
  public:
    Patterned(uint32_t fore, uint32_t back) : fore_(fore), back_(back) {}

    /// Bit 7 of `bits` is the row's first pixel.
    RowColor row(uint8_t bits, size_t length) const {
        return {block(bits, 0), block(bits, kBlock), block(bits, 2 * kBlock),
                length < kBlock ? Block{} : block(bits, (length - kBlock) % kPeriod)};
    }

  private:
    Block block(uint8_t bits, size_t at) const {
        const Block deciding = loadBlock(kPatternBits<Format>.data() + at);
        const auto set = reinterpret_cast<Block>((deciding & bits) != 0);
        return (fore_.block(at) & set) | (back_.block(at) & ~set);
    }

    Solid<Format> fore_;
    Solid<Format> back_;
};

} // namespace quarlo::kernel
