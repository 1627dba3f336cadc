// Reads a line of a part program into a block.
#pragma once

#include "gcode/block.h"
#include "gcode/expression.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace gcode {

enum class Reading : uint8_t {
    Words,   ///< the block is to be run
    Nothing, ///< blank, a comment or a line that begins with %
    Refused, ///< it cannot be read as words: half a block is a wrong move
};

/// Reads one line.
///
/// A word is a letter and a value, in either case and with blanks between. Comments stand in ( ) or
/// after a semicolon. A value is a decimal number or, where there are macro variables, an
/// expression; there a block may also set variables: #100 = 5.
///
/// @param variables null where the program has none
/// @param block cleared first; its line is left as it is
/// @param fault receives what could not be read of a refused line, such as "X without a number"
Reading readBlock(std::string_view line, const Variables* variables, Block& block,
                  std::string& fault);

} // namespace gcode
