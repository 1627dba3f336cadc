#include "model/program_reader.h"

#include "gcode/block_reader.h"
#include "gcode/program_lines.h"

#include <string>

namespace toolpath {

ProgramReader::ProgramReader(std::string_view text, Remarks& remarks)
    : rest_(gcode::withoutByteOrderMark(text)), remarks_(remarks) {}

bool ProgramReader::next(Block& block) {
    std::string fault;
    while (!rest_.empty()) {
        const std::string_view line = gcode::takeLine(rest_);
        block.line = ++line_;
        switch (gcode::readBlock(line, nullptr, block, fault)) {
        case gcode::Reading::Words:
            return true;
        case gcode::Reading::Nothing:
            break;
        case gcode::Reading::Refused:
            remarks_.add(line_, fault + " is not drawn");
            break;
        }
    }
    return false;
}

} // namespace toolpath
