#include "support/process.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

namespace gpi::test {

void become(const std::vector<std::string>& words, const std::string& output) {
    const int nothing = open("/dev/null", O_RDONLY);
    const int log = open(output.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    dup2(nothing, STDIN_FILENO);
    dup2(log, STDOUT_FILENO);
    dup2(log, STDERR_FILENO);
    std::vector<char*> arguments;
    for (const std::string& word : words) {
        arguments.push_back(const_cast<char*>(word.c_str()));
    }
    arguments.push_back(nullptr);
    execv(arguments[0], arguments.data());
    _exit(127);
}

Process::Process(const std::vector<std::string>& words) : process_(fork()) {
    if (process_ == 0) {
        become(words);
    }
}

Process::~Process() {
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
