#include "gcode/program_lines.h"

namespace gcode {

std::string_view takeLine(std::string_view& text) {
    const size_t length = text.find_first_of("\r\n");
    const std::string_view line = text.substr(0, length);
    text.remove_prefix(line.size());
    if (!text.empty()) {
        text.remove_prefix(text.starts_with("\r\n") ? 2 : 1);
    }
    return line;
}

std::string_view withoutByteOrderMark(std::string_view text) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(kByteOrderMark)) {
        text.remove_prefix(kByteOrderMark.size());
    }
    return text;
}

} // namespace gcode
