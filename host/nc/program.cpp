#include "nc/program.h"

#include "gcode/program_lines.h"

#include <unistd.h>

#include <array>
#include <cerrno>

namespace gpi::nc {

Program::Program(std::string name, std::filesystem::path path, std::string text)
    : name_(std::move(name)), path_(std::move(path)), text_(std::move(text)) {
    for (std::string_view rest = gcode::withoutByteOrderMark(text_); !rest.empty();) {
        lines_.push_back(gcode::takeLine(rest));
    }
}

std::optional<std::string> readProgramText(const UniqueFd& file) {
    std::string text;
    std::array<char, 65536> buffer;
    for (;;) {
        const ssize_t got = read(file.get(), buffer.data(), buffer.size());
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0 || text.size() > Program::kLargestFile) {
            return std::nullopt;
        }
        if (got == 0) {
            return text;
        }
        text.append(buffer.data(), static_cast<size_t>(got));
    }
}

} // namespace gpi::nc
