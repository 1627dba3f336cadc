#include "net/services.h"

#include "net/ftp_connection.h"
#include "net/ftp_list.h"
#include "net/http_request.h"
#include "net/network.h"
#include "net/text.h"
#include "net/url.h"

namespace gpi {
namespace {

constexpr int32_t kMostPort = 65535;
constexpr uint32_t kUrlFlags =
    G_NET_RELOAD | G_NET_NO_REDIRECT | G_NET_KEEP_CONNECTION | G_NET_ASCII | G_NET_ACTIVE;

} // namespace

GNetHandle* netOpen(const char16_t* agent) {
    return netCall<GNetHandle*>(nullptr, [&] {
        Options options = network().defaults();
        options.agent = agent != nullptr ? netLine(agent) : options.agent;
        return network().handles.add(std::make_shared<Session>(std::move(options)));
    });
}

int32_t netCloseHandle(GNetHandle* handle) {
    return netDone([&] { network().close(handle); });
}

GNetHandle* netConnect(GNetHandle* session, const char16_t* server, int32_t port,
                       const char16_t* user, const char16_t* password, int32_t protocol,
                       uint32_t flags) {
    return netCall<GNetHandle*>(nullptr, [&] {
        const auto parent = network().find<Session>(session);
        const uint32_t known = protocol == G_NET_FTP ? uint32_t{G_NET_ACTIVE} : 0;
        require(port >= 0 && port <= kMostPort && (flags & ~known) == 0);
        require(user != nullptr || password == nullptr);
        const Url url = Url::ofServer(protocol, netLine(server), port);
        Options options = parent->options();
        if (user != nullptr) {
            options.user = netLine(user);
            options.password = netLineOrNone(password);
        }
        if (protocol != G_NET_FTP) {
            return network().handles.add(std::make_shared<HttpConnection>(parent, options, url));
        }
        const auto connection = std::make_shared<FtpConnection>(parent, options, url, flags != 0);
        connection->connect();
        return network().handles.add(connection);
    });
}

GNetHandle* netOpenUrl(GNetHandle* session, const char16_t* url, const char16_t* headers,
                       uint32_t flags) {
    return netCall<GNetHandle*>(nullptr, [&] {
        require((flags & ~kUrlFlags) == 0);
        return network().openUrl(session, netLine(url), headers != nullptr ? netText(headers) : "",
                                 flags);
    });
}

int32_t netReadFile(GNetHandle* file, void* buffer, int32_t size) {
    return netCall<int32_t>(-1, [&] {
        return network().with<RemoteFile>(
            file, [&](const auto& open) { return open->read(buffer, size); });
    });
}

int32_t netSetFilePointer(GNetHandle* file, int32_t offset, int32_t origin) {
    return netCall<int32_t>(-1, [&] {
        return network().with<RemoteFile>(
            file, [&](const auto& open) { return open->seek(offset, origin); });
    });
}

int32_t netWriteFile(GNetHandle* file, const void* buffer, int32_t size, int32_t* written) {
    return netDone([&] {
        network().with<RemoteFile>(file,
                                   [&](const auto& open) { open->write(buffer, size, written); });
    });
}

int32_t netQueryDataAvailable(GNetHandle* file, int32_t* bytes) {
    return netDone([&] {
        require(bytes != nullptr);
        *bytes =
            network().with<RemoteFile>(file, [](const auto& open) { return open->available(); });
    });
}

int32_t netFindNextFile(GNetHandle* find, GNetFileInfo* info) {
    return netDone([&] {
        require(info != nullptr);
        *info = network().with<FtpList>(find, [](const auto& list) { return list->next(); });
    });
}

int32_t netQueryOption(GNetHandle* handle, int32_t option, void* value, int32_t* size) {
    return netDone([&] { network().queryOption(handle, option, value, size); });
}

int32_t netSetOption(GNetHandle* handle, int32_t option, const void* value, int32_t size,
                     uint32_t flags) {
    return netDone([&] {
        require((flags & ~uint32_t{G_NET_OPTION_ALL}) == 0);
        network().setOption(handle, option, value, size, flags != 0);
    });
}

int32_t netLockRequestFile(GNetHandle* file, GNetLock** lock) {
    return netDone([&] {
        require(lock != nullptr);
        *lock = network().keeper.keep(
            network().with<RemoteFile>(file, [](const auto& open) { return open->keep(); }));
    });
}

int32_t netUnlockRequestFile(GNetLock* lock) {
    return netDone([&] { network().keeper.giveUp(lock); });
}

int32_t netGetLastError() {
    return lastNetError();
}

} // namespace gpi
