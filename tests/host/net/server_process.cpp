#include "server_process.h"

#include "support/process.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <utility>

namespace gpi::test {
namespace {

constexpr int kFirstPort = 3;
constexpr int kOutOfTheWay = 100;

sockaddr_in loopback(int port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<uint16_t>(port));
    return address;
}

} // namespace

ListeningPort::ListeningPort() : file_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    auto* const general = reinterpret_cast<sockaddr*>(&address);
    if (bind(file_, general, size) == 0 && listen(file_, SOMAXCONN) == 0 &&
        getsockname(file_, general, &size) == 0) {
        number_ = ntohs(address.sin_port);
    }
}

void ListeningPort::stop() {
    if (file_ >= 0) {
        close(std::exchange(file_, -1));
    }
}

ServerProcess::ServerProcess(const std::vector<std::string>& words,
                             const std::vector<ListeningPort*>& ports, const std::string& log)
    : process_(fork()) {
    if (process_ == 0) {
        for (ListeningPort* const port : ports) { // none may lie where another one goes to
            fcntl(port->file(), F_DUPFD, kOutOfTheWay);
        }
        const int count = static_cast<int>(ports.size());
        for (int port = 0; port < count; ++port) {
            dup2(kOutOfTheWay + port, kFirstPort + port);
            close(kOutOfTheWay + port);
        }
        prctl(PR_SET_PDEATHSIG, SIGKILL); // also when the test dies before it can tidy up
        become(words, log);
    }
    for (ListeningPort* const port : ports) {
        port->stop();
    }
}

void ServerProcess::freeze() const {
    kill(process_, SIGSTOP);
}

void ServerProcess::thaw() const {
    kill(process_, SIGCONT);
}

void ServerProcess::end() {
    if (process_ > 0) {
        kill(process_, SIGKILL);
        waitpid(std::exchange(process_, -1), nullptr, 0);
    }
}

bool ServerProcess::ended() {
    if (process_ > 0 && waitpid(process_, nullptr, WNOHANG) == process_) {
        process_ = -1;
    }
    return process_ < 0;
}

bool answers(int port) {
    const int file = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_in address = loopback(port);
    const bool taken =
        connect(file, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(file);
    return taken;
}

} // namespace gpi::test
