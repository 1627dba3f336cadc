// Reads a part program block by block.
#pragma once

#include "gcode/block.h"
#include "model/remarks.h"

#include <cstdint>
#include <string_view>

namespace toolpath {

using gcode::Block;
using gcode::code;
using gcode::Code;

/// Reads a program block by block. Lines without a block are passed over, as is the / of block
/// delete: such blocks are drawn, as a machine runs them while its switch is off. A block that
/// cannot be read as words is named and dropped whole, for half a block is a wrong move.
class ProgramReader {
  public:
    /// @param text must outlive the reader
    ProgramReader(std::string_view text, Remarks& remarks);

    /// Reads the next block. @return false at the end of the program
    bool next(Block& block);

  private:
    std::string_view rest_;
    Remarks& remarks_;
    int32_t line_ = 0;
};

} // namespace toolpath
