#include "apart.h"

#include <array>
#include <csignal>
#include <cstring>

#include <sys/wait.h>
#include <unistd.h>

namespace doctor {
namespace {

/// Ends a complaint that is whole: without it the child did not come to an end of its own.
constexpr char kDone = '\n';

[[noreturn]] void runAsChild(const std::function<Complaint()>& action, std::chrono::seconds limit,
                             int result) {
    static_cast<void>(std::signal(SIGALRM, SIG_DFL)); // cannot fail: there is such a signal
    alarm(static_cast<unsigned>(limit.count()));
    const std::string text = action() + kDone;
    const bool told = write(result, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    _exit(told ? 0 : 1); // without the destructors of a platform that may be broken
}

std::string readAll(int file) {
    std::string text;
    std::array<char, 256> part{};
    for (ssize_t count; (count = read(file, part.data(), part.size())) > 0;) {
        text.append(part.data(), static_cast<size_t>(count));
    }
    return text;
}

Complaint complaintOf(int status, std::chrono::seconds limit) {
    if (WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM) {
        return "does not return within " + std::to_string(limit.count()) + " s";
    }
    if (WIFSIGNALED(status)) {
        return std::string("crashes: ") + strsignal(WTERMSIG(status));
    }
    return "ends the process with status " + std::to_string(WEXITSTATUS(status));
}

} // namespace

Complaint runApart(const std::function<Complaint()>& action, std::chrono::seconds limit) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        return "cannot be probed: no pipe";
    }
    const pid_t child = fork();
    if (child < 0) {
        close(ends[0]);
        close(ends[1]);
        return "cannot be probed: no process";
    }
    if (child == 0) {
        close(ends[0]);
        runAsChild(action, limit, ends[1]);
    }
    close(ends[1]);
    std::string text = readAll(ends[0]);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (text.empty() || text.back() != kDone) {
        return complaintOf(status, limit);
    }
    text.pop_back();
    return text;
}

} // namespace doctor
