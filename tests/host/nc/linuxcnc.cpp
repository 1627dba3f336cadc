#include "linuxcnc.h"

#include "turn.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <utility>

namespace gpi::nc::test {
namespace {

/// Takes the turn, if this process does not have it yet. A test's time counts from what is said.
void takeTurn() {
    static const Turn turn(LinuxCnc::turn());
    std::cout << "LinuxCNC is free\n" << std::flush;
}

} // namespace

bool LinuxCnc::installed() {
    return std::filesystem::exists("/usr/bin/linuxcnc") &&
           std::filesystem::exists("/usr/share/doc/linuxcnc/examples");
}

std::string LinuxCnc::turn() {
    return std::filesystem::temp_directory_path() / "quarlo-linuxcnc.lock";
}

LinuxCnc::LinuxCnc(std::string folder) : folder_(std::move(folder)) {
    takeTurn();
    process_ = fork();
    if (process_ == 0) {
        const int nowhere = open("/dev/null", O_RDWR | O_CLOEXEC);
        const int log =
            open((folder_ + "/log").c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
        dup2(nowhere, STDIN_FILENO);
        dup2(log, STDOUT_FILENO);
        dup2(log, STDERR_FILENO);
        execl(RUN_LINUXCNC, RUN_LINUXCNC, folder_.c_str(), nullptr);
        _exit(127);
    }
}

LinuxCnc::~LinuxCnc() {
    close(open((folder_ + "/stop").c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644));
    waitpid(process_, nullptr, 0);
}

std::string LinuxCnc::log() const {
    std::ifstream file(folder_ + "/log");
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace gpi::nc::test
