// Pixels byte by byte, to hold the kernels against.
#pragma once

#include "raster/kernel/kernels.h"
#include "support/guarded_surface.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quarlo::test {

inline constexpr int kModes[] = {0, 1, 2, 3};

inline uint8_t combine(uint8_t old, uint8_t color, int mode) {
    const int results[] = {color, old & color, old | color, old ^ color};
    return static_cast<uint8_t>(results[mode]);
}

/// Memory that starts with noise, and what it ought to hold.
class Expected {
  public:
    explicit Expected(GuardedMemory& memory) : memory_(memory), bytes_(memory.size()) {
        for (size_t i = 0; i < bytes_.size(); ++i) {
            bytes_[i] = static_cast<uint8_t>(i * 89 + i / 5 + 3);
            memory.data()[i] = bytes_[i];
        }
    }

    void put(std::ptrdiff_t offset, int bytesPerPixel, uint32_t pixel, int mode) {
        for (int i = 0; i < bytesPerPixel; ++i) {
            uint8_t& byte = bytes_.at(static_cast<size_t>(offset + i));
            byte = combine(byte, static_cast<uint8_t>(pixel >> (8 * i)), mode);
        }
    }

    /// Whether the memory holds just that, and nothing beside it was written.
    bool met() const {
        return std::equal(bytes_.begin(), bytes_.end(), memory_.data()) && memory_.intact();
    }

  private:
    GuardedMemory& memory_;
    std::vector<uint8_t> bytes_;
};

} // namespace quarlo::test
