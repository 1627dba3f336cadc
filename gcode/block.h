// One block of a part program: the words of a line.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace gcode {

/// The number of a G or M code, in tenths.
using Code = int32_t;

/// code(38, 2) is that of G38.2.
constexpr Code code(int whole, int tenths = 0) {
    return whole * 10 + tenths;
}

/// "G41", "G38.2"
std::string nameOf(char letter, Code number);

/// A macro variable that a block sets.
struct Assignment {
    int32_t variable;
    double value;
};

/// The words of a line. A word that comes twice has its last value.
struct Block {
    int32_t line = 0;       ///< of the program, from 1
    bool deletable = false; ///< begins with the / of block delete
    std::vector<Code> gCodes;
    std::vector<Code> mCodes;
    std::vector<Assignment> assignments;

    bool has(char letter) const { return (present_ & bit(letter)) != 0; }
    /// The value of a word, 0 where the block does not have it.
    double value(char letter) const { return has(letter) ? values_[index(letter)] : 0.0; }

    void set(char letter, double value) {
        values_[index(letter)] = value;
        present_ |= bit(letter);
    }
    void clear() {
        deletable = false;
        gCodes.clear();
        mCodes.clear();
        assignments.clear();
        present_ = 0;
    }

  private:
    static size_t index(char letter) { return static_cast<size_t>(letter - 'A'); }
    static uint32_t bit(char letter) { return uint32_t{1} << index(letter); }

    std::array<double, 26> values_{};
    uint32_t present_ = 0;
};

} // namespace gcode
