// Numbers out of a fuzzer's bytes.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace quarlo::fuzz {

/// The bytes of an input, read from the first to the last. Behind the last there are zeros.
class Input {
  public:
    explicit Input(std::span<const uint8_t> bytes) : bytes_(bytes) {}

    bool isUsedUp() const { return bytes_.empty(); }

    uint8_t byte() {
        if (bytes_.empty()) {
            return 0;
        }
        const uint8_t first = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return first;
    }

    std::array<uint8_t, 8> eightBytes() {
        std::array<uint8_t, 8> eight{};
        const size_t count = std::min(eight.size(), bytes_.size());
        std::copy_n(bytes_.begin(), count, eight.begin());
        bytes_ = bytes_.subspan(count);
        return eight;
    }

    bool flag() { return byte() % 2 != 0; }

    /// A number from 0 to count - 1, of at most 256.
    int32_t below(int32_t count) { return byte() % count; }

    int16_t word() {
        const uint8_t low = byte();
        return static_cast<int16_t>(low | byte() << 8);
    }

    uint32_t pixel() {
        const auto low = static_cast<uint16_t>(word());
        return low | static_cast<uint32_t>(static_cast<uint16_t>(word())) << 16;
    }

    /// A coordinate in or near a small surface by one byte, or any coordinate by three.
    int16_t coordinate() {
        const int32_t near = byte();
        return near < kFar ? static_cast<int16_t>(near - kFar / 3) : word();
    }

  private:
    static constexpr int32_t kFar = 224;

    std::span<const uint8_t> bytes_;
};

} // namespace quarlo::fuzz
