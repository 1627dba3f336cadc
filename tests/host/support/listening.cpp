#include "support/listening.h"

#include <netdb.h>
#include <sys/socket.h>

#include <cstdlib>
#include <filesystem>

namespace gpi::test {
namespace {

bool listens(int descriptor) {
    int yes = 0;
    socklen_t length = sizeof yes;
    return getsockopt(descriptor, SOL_SOCKET, SO_ACCEPTCONN, &yes, &length) == 0 && yes != 0;
}

std::string addressOf(int descriptor) {
    sockaddr_storage storage{};
    auto* const name = reinterpret_cast<sockaddr*>(&storage);
    socklen_t length = sizeof storage;
    char text[NI_MAXHOST] = "";
    if (getsockname(descriptor, name, &length) != 0 ||
        getnameinfo(name, length, text, sizeof text, nullptr, 0, NI_NUMERICHOST) != 0) {
        return "unknown";
    }
    return text;
}

} // namespace

std::vector<std::string> listening() {
    std::vector<std::string> addresses;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        const int descriptor = std::atoi(entry.path().filename().c_str());
        if (listens(descriptor)) {
            addresses.push_back(addressOf(descriptor));
        }
    }
    return addresses;
}

} // namespace gpi::test
