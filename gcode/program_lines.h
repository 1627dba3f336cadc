// A part program's text as lines.
#pragma once

#include <string_view>

namespace gcode {

/// Takes the first line off a text. Lines end with LF, CR LF or CR, which is left out.
std::string_view takeLine(std::string_view& text);

/// A text without the byte order mark that it may begin with.
std::string_view withoutByteOrderMark(std::string_view text);

} // namespace gcode
