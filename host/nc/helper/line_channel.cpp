#include "nc/helper/line_channel.h"

#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include <array>
#include <cerrno>

namespace gpi::nc {
namespace {

// Time to end by itself once nobody listens any more.
constexpr int kGraceMilliseconds = 1000;

/// Starts a program on a socket. @return its process, or -1
pid_t start(const std::filesystem::path& program, int socket) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, socket, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, socket, STDOUT_FILENO);
    std::string name = program.string();
    char* const arguments[] = {name.data(), nullptr};
    pid_t process = -1;
    const int failure = posix_spawn(&process, name.c_str(), &actions, nullptr, arguments, environ);
    posix_spawn_file_actions_destroy(&actions);
    return failure == 0 ? process : -1;
}

} // namespace

LineChannel::LineChannel(const std::filesystem::path& program) {
    std::array<int, 2> ends{};
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) {
        return;
    }
    socket_ = UniqueFd(ends[0]);
    const UniqueFd theirs(ends[1]);
    process_ = start(program, theirs.get());
}

LineChannel::~LineChannel() {
    end();
}

/// Hangs up, and kills a program that does not take the hint.
void LineChannel::end() {
    socket_ = UniqueFd();
    if (process_ < 0) {
        return;
    }
    const UniqueFd ended(static_cast<int>(syscall(SYS_pidfd_open, process_, 0)));
    pollfd waiting{ended.get(), POLLIN, 0};
    if (!ended || poll(&waiting, 1, kGraceMilliseconds) != 1) {
        kill(process_, SIGKILL);
    }
    while (waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
    }
}

std::optional<std::string_view> LineChannel::takeLine() {
    const size_t length = received_.find('\n', taken_);
    if (length == std::string::npos) {
        received_.erase(0, taken_);
        taken_ = 0;
        return std::nullopt;
    }
    const auto line = std::string_view(received_).substr(taken_, length - taken_);
    taken_ = length + 1;
    return line;
}

LineChannel::Event LineChannel::receive(std::string_view& line, std::chrono::milliseconds wait,
                                        int cancel) {
    const auto end = std::chrono::steady_clock::now() + wait;
    for (;;) {
        if (const auto taken = takeLine()) {
            line = *taken;
            return line.size() <= kLongestLine ? Event::Line : Event::Broken;
        }
        if (received_.size() > kLongestLine || process_ < 0) {
            return Event::Broken;
        }
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        std::array<pollfd, 2> waiting{{{socket_.get(), POLLIN, 0}, {cancel, POLLIN, 0}}};
        const int ready = poll(waiting.data(), waiting.size(),
                               static_cast<int>(std::max<int64_t>(left.count(), 0)));
        if (ready < 0 && errno == EINTR) {
            continue;
        }
        if (waiting[1].revents != 0) {
            return Event::Cancelled;
        }
        if (ready <= 0) {
            return Event::Nothing;
        }
        std::array<char, kLongestLine> buffer;
        const ssize_t got = recv(socket_.get(), buffer.data(), buffer.size(), MSG_DONTWAIT);
        if (got < 0 && (errno == EAGAIN || errno == EINTR)) {
            continue;
        }
        if (got <= 0) {
            return Event::Broken;
        }
        received_.append(buffer.data(), static_cast<size_t>(got));
    }
}

bool LineChannel::send(std::string_view line) {
    const std::string whole = std::string(line) + '\n';
    const ssize_t sent =
        ::send(socket_.get(), whole.data(), whole.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
    if (sent > 0 && sent < static_cast<ssize_t>(whole.size())) {
        shutdown(socket_.get(), SHUT_RDWR); // half a line is worse than none
    }
    return sent == static_cast<ssize_t>(whole.size());
}

} // namespace gpi::nc
