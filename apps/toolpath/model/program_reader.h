// Splits the text of a part program into blocks and words.
#pragma once

#include "model/remarks.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace toolpath {

/// The number of a G or M code, in tenths.
using Code = int32_t;

/// code(38, 2) is that of G38.2.
constexpr Code code(int whole, int tenths = 0) {
    return whole * 10 + tenths;
}

/// One block: the words of a line. A word that comes twice has its last value.
struct Block {
    int32_t line = 0; ///< of the program, from 1
    std::vector<Code> gCodes;
    std::vector<Code> mCodes;

    bool has(char letter) const { return (present_ & bit(letter)) != 0; }
    /// The value of a word, 0 where the block does not have it.
    double value(char letter) const { return has(letter) ? values_[index(letter)] : 0.0; }

    void set(char letter, double value) {
        values_[index(letter)] = value;
        present_ |= bit(letter);
    }
    void clear() {
        gCodes.clear();
        mCodes.clear();
        present_ = 0;
    }

  private:
    static size_t index(char letter) { return static_cast<size_t>(letter - 'A'); }
    static uint32_t bit(char letter) { return uint32_t{1} << index(letter); }

    std::array<double, 26> values_{};
    uint32_t present_ = 0;
};

/// Reads a program block by block.
///
/// A word is a letter and a decimal number, in either case and with blanks between. Comments stand
/// in ( ) or after a semicolon; N and O words and lines that begin with % are passed over, as is
/// the / of block delete: such blocks are drawn, as a machine runs them while its switch is off.
/// A block that cannot be read as words is named and dropped whole, for half a block is a wrong
/// move.
class ProgramReader {
  public:
    /// @param text must outlive the reader
    ProgramReader(std::string_view text, Remarks& remarks);

    /// Reads the next block. @return false at the end of the program
    bool next(Block& block);

  private:
    std::string_view takeLine();
    bool readWords(std::string_view line, Block& block);
    bool readWord(std::string_view& rest, Block& block);
    bool refuse(const std::string& what);

    std::string_view rest_;
    Remarks& remarks_;
    int32_t line_ = 0;
};

} // namespace toolpath
