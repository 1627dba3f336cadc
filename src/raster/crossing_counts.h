// The crossings of one line by many edges, brought in order without comparing them.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace quarlo {

/// Counts crossings by column. Where hundreds of edges cross a line and change places from line to
/// line, this takes half the time of keeping them sorted.
class CrossingCounts {
  public:
    /// The widest area that crossings can be counted on.
    static constexpr int32_t kMostColumns = 4094;

    /// For an area of at most kMostColumns columns.
    CrossingCounts(int32_t left, int32_t right) : left_(left - 1), right_(right + 1) {}

    /// Columns beside the area all count as the one next to it.
    void add(int32_t column) {
        column = column < left_ ? left_ : column;
        column = column > right_ ? right_ : column;
        const auto place = static_cast<uint32_t>(column - left_);
        ++counts_[place];
        used_[place / 64] |= uint64_t{1} << (place % 64);
    }

    /// Calls visit(column) from left to right, as often as each was added, and forgets them.
    template <typename Visit>
    void drain(const Visit& visit) {
        const auto words = static_cast<size_t>(right_ - left_) / 64 + 1;
        for (size_t word = 0; word < words; ++word) {
            for (uint64_t bits = used_[word]; bits != 0; bits &= bits - 1) {
                const auto place = word * 64 + static_cast<size_t>(std::countr_zero(bits));
                for (uint32_t left = std::exchange(counts_[place], uint16_t{0}); left != 0;
                     --left) {
                    visit(left_ + static_cast<int32_t>(place));
                }
            }
            used_[word] = 0;
        }
    }

  private:
    static constexpr size_t kPlaces = kMostColumns + 2;

    int32_t left_;
    int32_t right_;
    std::array<uint16_t, kPlaces> counts_{};
    std::array<uint64_t, kPlaces / 64> used_{};
};

} // namespace quarlo
