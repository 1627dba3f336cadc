#include "gcode/block.h"

namespace gcode {

std::string nameOf(char letter, Code number) {
    std::string name = letter + std::to_string(number / 10);
    if (number % 10 != 0) {
        name += '.';
        name += std::to_string(number % 10);
    }
    return name;
}

} // namespace gcode
