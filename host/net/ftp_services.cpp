#include "net/ftp_connection.h"
#include "net/ftp_copy.h"
#include "net/ftp_file.h"
#include "net/ftp_list.h"
#include "net/network.h"
#include "net/services.h"
#include "net/text.h"

namespace gpi {
namespace {

/// Has a connection do something. @throws NetError
template <typename Action>
auto withServer(const GNetHandle* connection, Action&& action) {
    return network().with<FtpConnection>(connection, std::forward<Action>(action));
}

/// A path on a server. @throws NetError
std::string serverPath(const char16_t* path) {
    std::string text = netLine(path);
    require(!text.empty());
    return text;
}

bool isAscii(uint32_t flags, uint32_t others = 0) {
    require((flags & ~(uint32_t{G_NET_ASCII} | others)) == 0);
    return (flags & G_NET_ASCII) != 0;
}

} // namespace

GNetHandle* ftpFindFirstFile(GNetHandle* connection, const char16_t* pattern, GNetFileInfo* info,
                             uint32_t flags) {
    return netCall<GNetHandle*>(nullptr, [&] {
        require(info != nullptr && (flags & ~uint32_t{G_NET_RELOAD}) == 0);
        const auto list = withServer(connection, [&](const auto& server) {
            return std::make_shared<FtpList>(server, netLineOrNone(pattern));
        });
        GNetHandle* const handle = network().handles.add(list);
        *info = list->next();
        return handle;
    });
}

int32_t ftpGetFile(GNetHandle* connection, const char16_t* remote, const char16_t* local,
                   int32_t failIfExists, uint32_t attributes, uint32_t flags) {
    return netDone([&] {
        require(attributes == 0 || attributes == G_FILE_READABLE);
        const bool ascii = isAscii(flags, G_NET_RELOAD);
        withServer(connection, [&](const auto& server) {
            fetchFile(*server, serverPath(remote), ascii, network().files().locate(local),
                      {.replace = failIfExists == 0, .readOnly = attributes != 0});
        });
    });
}

int32_t ftpPutFile(GNetHandle* connection, const char16_t* local, const char16_t* remote,
                   uint32_t flags) {
    return netDone([&] {
        const bool ascii = isAscii(flags);
        withServer(connection, [&](const auto& server) {
            sendFile(*server, network().files().locate(local), serverPath(remote), ascii);
        });
    });
}

int32_t ftpDeleteFile(GNetHandle* connection, const char16_t* path) {
    return netDone([&] {
        withServer(connection, [&](const auto& server) { server->remove(serverPath(path)); });
    });
}

int32_t ftpRenameFile(GNetHandle* connection, const char16_t* from, const char16_t* to) {
    return netDone([&] {
        withServer(connection,
                   [&](const auto& server) { server->rename(serverPath(from), serverPath(to)); });
    });
}

GNetHandle* ftpOpenFile(GNetHandle* connection, const char16_t* path, uint32_t mode,
                        uint32_t flags) {
    return netCall<GNetHandle*>(nullptr, [&] {
        require(mode == G_OPEN_READ || mode == G_OPEN_WRITE);
        const bool ascii = isAscii(flags);
        const auto file = withServer(connection, [&](const auto& server) {
            const std::string name = serverPath(path);
            auto open = std::make_shared<FtpFile>(server, server, server->urlOf(name), name, ascii);
            mode == G_OPEN_READ ? open->openToRead() : open->openToWrite();
            return open;
        });
        return network().handles.add(file);
    });
}

int32_t ftpCreateDirectory(GNetHandle* connection, const char16_t* path) {
    return netDone([&] {
        withServer(connection, [&](const auto& server) { server->makeFolder(serverPath(path)); });
    });
}

int32_t ftpRemoveDirectory(GNetHandle* connection, const char16_t* path) {
    return netDone([&] {
        withServer(connection, [&](const auto& server) { server->removeFolder(serverPath(path)); });
    });
}

int32_t ftpSetCurrentDirectory(GNetHandle* connection, const char16_t* path) {
    return netDone([&] {
        withServer(connection, [&](const auto& server) { server->changeFolder(serverPath(path)); });
    });
}

int32_t ftpGetCurrentDirectory(GNetHandle* connection, char16_t* path, int32_t* size) {
    return netDone([&] {
        withServer(connection,
                   [&](const auto& server) { handOutText(server->folder(), path, size); });
    });
}

} // namespace gpi
