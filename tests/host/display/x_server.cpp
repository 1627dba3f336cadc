#include "x_server.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace gpi::test {
namespace {

[[noreturn]] void become(const std::vector<std::string>& words) {
    const int nowhere = open("/dev/null", O_RDWR);
    dup2(nowhere, STDIN_FILENO);
    dup2(nowhere, STDOUT_FILENO);
    dup2(nowhere, STDERR_FILENO);
    std::vector<char*> arguments;
    for (const std::string& word : words) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    _exit(127);
}

} // namespace

XServer::XServer() {
    int ready[2] = {};
    if (pipe(ready) != 0) {
        return;
    }
    process_ = fork();
    if (process_ == 0) {
        close(ready[0]);
        // The server chooses a free number and tells it when it is ready.
        become({XVFB, "-displayfd", std::to_string(ready[1]), "-screen", "0", "640x480x24",
                "-nolisten", "tcp"});
    }
    close(ready[1]);
    char byte = 0;
    std::string number;
    while (read(ready[0], &byte, 1) == 1 && byte != '\n') {
        number += byte;
    }
    close(ready[0]);
    display_ = number.empty() ? "" : ":" + number;
}

XServer::~XServer() {
    if (process_ > 0) {
        kill(process_, SIGTERM);
        waitpid(process_, nullptr, 0);
    }
}

int run(const std::vector<std::string>& words) {
    const pid_t child = fork();
    if (child == 0) {
        become(words);
    }
    int status = 0;
    const bool ended = child > 0 && waitpid(child, &status, 0) == child && WIFEXITED(status);
    return ended ? WEXITSTATUS(status) : -1;
}

} // namespace gpi::test
