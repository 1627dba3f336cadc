#include "display/screen/graphics_console.h"

#include "display/blocked_signals.h"

#include <fcntl.h>
#include <linux/kd.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace gpi {
namespace {

/// The console in front of which the program was started, else the one that is seen; none where
/// there is no console, or something else draws on it.
UniqueFd textConsole() {
    for (const char* const path : {"/dev/tty", "/dev/tty0"}) {
        UniqueFd console(open(path, O_RDWR | O_NOCTTY | O_CLOEXEC));
        int mode = KD_GRAPHICS;
        if (console && ioctl(console.get(), KDGETMODE, &mode) == 0) {
            return mode == KD_TEXT ? std::move(console) : UniqueFd();
        }
    }
    return UniqueFd();
}

void giveBack(int console) {
    ioctl(console, KDSETMODE, KD_TEXT);
}

/// Returns when the other end of a connection is closed.
void waitForEnd(int connection) {
    char byte = 0;
    ssize_t length = 0;
    do {
        length = read(connection, &byte, sizeof byte);
    } while (length > 0 || (length < 0 && errno == EINTR));
}

/// What the guarding process does. The process that it came from may have other threads, so only
/// calls that a signal handler could make are made here.
[[noreturn]] void guard(int console, int connection) {
    setpgid(0, 0); // Ctrl+C is for the program
    waitForEnd(connection);
    giveBack(console);
    _exit(0);
}

/// Leaves two descriptors open, as 0 and 1: whatever else the program holds is not to be held on.
void keepOnly(int first, int second) {
    const int kept[] = {dup(first), dup(second)};
    dup2(kept[0], 0);
    dup2(kept[1], 1);
    close_range(2, ~0U, 0);
}

/// Starts a process that gives the console back when the other end of a connection closes. It is
/// nobody's child, so that the program never meets it among its own.
void startGuard(int console, int connection) {
    const pid_t parent = fork();
    if (parent == 0) {
        blockSignals();
        if (fork() == 0) {
            keepOnly(console, connection);
            guard(0, 1);
        }
        _exit(0);
    }
    if (parent > 0) {
        waitpid(parent, nullptr, 0);
    }
}

} // namespace

GraphicsConsole::GraphicsConsole() : console_(textConsole()) {
    int ends[2] = {};
    if (!console_ || socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) {
        return;
    }
    guard_ = UniqueFd(ends[0]);
    const UniqueFd guarding(ends[1]);
    startGuard(console_.get(), guarding.get());
    ioctl(console_.get(), KDSETMODE, KD_GRAPHICS);
}

GraphicsConsole::~GraphicsConsole() {
    if (guard_) {
        shutdown(guard_.get(), SHUT_WR);
        waitForEnd(guard_.get());
        giveBack(console_.get());
    }
}

} // namespace gpi
