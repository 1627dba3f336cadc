#include "display/vnc/listener.h"

#include <arpa/inet.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <cerrno>
#include <cstring>
#include <memory>

namespace gpi {
namespace {

struct FreeAddresses {
    void operator()(addrinfo* list) const { freeaddrinfo(list); }
};
using Addresses = std::unique_ptr<addrinfo, FreeAddresses>;

/// The address as the system has it; null, with the reason, when it is none.
Addresses resolve(const std::string& address, int port, std::string& failure) {
    addrinfo hints{};
    hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV | AI_PASSIVE;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* list = nullptr;
    const int error = getaddrinfo(address.c_str(), std::to_string(port).c_str(), &hints, &list);
    if (error != 0) {
        failure = gai_strerror(error);
    }
    return Addresses(list);
}

void set(int socket, int level, int option, int value) {
    setsockopt(socket, level, option, &value, sizeof value);
}

int portOf(int socket) {
    sockaddr_storage name{};
    socklen_t length = sizeof name;
    if (getsockname(socket, reinterpret_cast<sockaddr*>(&name), &length) != 0) {
        return 0;
    }
    // The port stands in the same place for both versions of the protocol.
    return ntohs(reinterpret_cast<const sockaddr_in&>(name).sin_port);
}

} // namespace

Listener Listener::open(const std::string& address, int port, std::string& failure) {
    Listener self;
    const Addresses place = resolve(address, port, failure);
    if (place == nullptr) {
        return self;
    }
    UniqueFd fd(socket(place->ai_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    set(fd.get(), SOL_SOCKET, SO_REUSEADDR, 1);
    if (!fd || bind(fd.get(), place->ai_addr, place->ai_addrlen) != 0 ||
        listen(fd.get(), SOMAXCONN) != 0) {
        failure = std::strerror(errno);
        return self;
    }
    self.port_ = portOf(fd.get());
    self.socket_ = std::move(fd);
    return self;
}

UniqueFd Listener::accept() const {
    // A viewer that has not taken for this long what was sent to it is gone, or as good as.
    constexpr int kPatienceMilliseconds = 5000;
    UniqueFd fd(accept4(socket_.get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!fd) {
        return fd;
    }
    set(fd.get(), IPPROTO_TCP, TCP_NODELAY, 1);
    set(fd.get(), IPPROTO_TCP, TCP_USER_TIMEOUT, kPatienceMilliseconds);
    set(fd.get(), SOL_SOCKET, SO_KEEPALIVE, 1);
    return fd;
}

bool isLoopback(const std::string& address) {
    std::string failure;
    const Addresses place = resolve(address, 0, failure);
    if (place == nullptr) {
        return false;
    }
    if (place->ai_family == AF_INET6) {
        const auto& name = reinterpret_cast<const sockaddr_in6&>(*place->ai_addr);
        return IN6_IS_ADDR_LOOPBACK(&name.sin6_addr);
    }
    constexpr uint32_t kLoopbackNet = 127;
    const auto& name = reinterpret_cast<const sockaddr_in&>(*place->ai_addr);
    return ntohl(name.sin_addr.s_addr) >> 24 == kLoopbackNet;
}

} // namespace gpi
