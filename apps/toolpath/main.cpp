// Draws the tool path of a part program: a plan and an isometric view side by side.
#include "drawing/picture.h"
#include "model/path_tracer.h"
#include "program_file.h"

#include <gpi/host.h>
#include <quarlo/quarlo.h>

#include <chrono>
#include <iomanip>
#include <iostream>
#include <string>

namespace {

enum ExitStatus { kShown = 0, kNotShown = 1, kNoProgram = 2 };

double millisecondsSince(std::chrono::steady_clock::time_point start) {
    const auto time = std::chrono::steady_clock::now() - start;
    return std::chrono::duration<double, std::milli>(time).count();
}

/// Draws a path on the platform's display and stays until the user closes it.
ExitStatus show(const toolpath::ToolPath& path, const char* name) {
    GetGPIFunction();
    if (GDInitPlatform(0) == 0) {
        std::cerr << "toolpath: the platform did not start\n";
        return kNotShown;
    }
    GDrawHandle* const handle = GDOpenDrawHandle(0, 0);
    if (handle != nullptr) {
        const auto start = std::chrono::steady_clock::now();
        toolpath::drawPicture(handle, path);
        std::cout << name << ": " << path.moves.size() << " moves drawn in " << std::fixed
                  << std::setprecision(1) << millisecondsSince(start) << " ms" << std::endl;
        GPIHostWaitForClose();
        GDCloseDrawHandle(handle);
    } else {
        std::cerr << "toolpath: the platform has no display\n";
    }
    const bool kept = GDQuitPlatform() != 0; // a picture file is written here
    return handle != nullptr && kept ? kShown : kNotShown;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: toolpath PROGRAM\n";
        return kNoProgram;
    }
    std::string reason;
    const auto program = toolpath::readProgramFile(argv[1], reason);
    if (!program) {
        std::cerr << "toolpath: " << argv[1] << " cannot be read: " << reason << '\n';
        return kNoProgram;
    }

    toolpath::Remarks remarks;
    const toolpath::ToolPath path = toolpath::tracePath(*program, remarks);
    for (const toolpath::Remark& remark : remarks.list()) {
        std::cerr << "line " << remark.line << ": " << remark.text << '\n';
    }
    return show(path, argv[1]);
}
