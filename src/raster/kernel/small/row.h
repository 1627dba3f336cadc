// A row to fill, solid or patterned, as what its first eight pixels do to the bytes there.
#pragma once

#include "raster/kernel/block.h"
#include "raster/kernel/small/ink.h"

#include <cstddef>
#include <cstdint>

namespace quarlo::kernel {

/// Eight pixels of any size are whole words, and a whole row of a pattern.
class RowInk {
  public:
    /// Bit 7 of `bits` is the first pixel: in the fore colour where it is set.
    RowInk(const Ink& fore, const Ink& back, uint32_t bits, int32_t bytesPerPixel)
        : size_(8 * static_cast<size_t>(bytesPerPixel)) {
        size_t at = 0;
        for (uint32_t bit = 0x80; bit != 0; bit >>= 1) {
            Ink ink = (bits & bit) != 0 ? fore : back;
            for (int32_t byte = 0; byte < bytesPerPixel; ++byte, ++at) {
                keep_[at] = static_cast<uint8_t>(ink.keep);
                flip_[at] = static_cast<uint8_t>(ink.flip);
                ink = {ink.keep >> 8, ink.flip >> 8};
            }
        }
    }

    void fill(uint8_t* at, size_t length) const {
        size_t next = 0;
        for (; length >= kWord; length -= kWord, at += kWord) {
            const auto keep = loadWord<uint32_t>(keep_ + next);
            storeWord(at, (loadWord<uint32_t>(at) & keep) ^ loadWord<uint32_t>(flip_ + next));
            next = next + kWord == size_ ? 0 : next + kWord;
        }
        for (; length > 0; --length, ++at, ++next) {
            Ink{keep_[next], flip_[next]}.putByte(at);
        }
    }

  private:
    static constexpr size_t kWord = sizeof(uint32_t);

    size_t size_;
    uint8_t keep_[24];
    uint8_t flip_[24];
};

} // namespace quarlo::kernel
