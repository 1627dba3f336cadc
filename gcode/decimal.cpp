#include "gcode/decimal.h"

namespace gcode {

std::from_chars_result readDecimal(const char* first, const char* last, double& value) {
    return std::from_chars(first, last, value, std::chars_format::fixed);
}

std::to_chars_result writeDecimal(char* first, char* last, double value, int decimals) {
    return std::to_chars(first, last, value, std::chars_format::fixed, decimals);
}

} // namespace gcode
