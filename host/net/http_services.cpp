#include "net/header_list.h"
#include "net/http_info.h"
#include "net/http_request.h"
#include "net/network.h"
#include "net/services.h"
#include "net/text.h"
#include "net/url.h"

#include <optional>
#include <string_view>

namespace gpi {
namespace {

constexpr uint32_t kRequestFlags = G_NET_RELOAD | G_NET_NO_REDIRECT | G_NET_KEEP_CONNECTION;
constexpr size_t kMostAccepted = 64;

/// The whole URL of a path on a server. Whatever the path is, it stays on that server.
std::string urlOn(const std::string& server, const std::string& path) {
    const bool rooted = path.starts_with('/');
    return Url(server + withoutForbidden(rooted ? path.substr(1) : path, Escapes::Kept)).text();
}

/// "Accept: a, b", or empty text for null.
std::string acceptHeader(const char16_t* const* accept) {
    std::string header;
    for (size_t kind = 0; accept != nullptr && accept[kind] != nullptr; ++kind) {
        require(kind < kMostAccepted);
        header += (kind == 0 ? "Accept: " : ", ") + netLine(accept[kind]);
    }
    return header;
}

} // namespace

GNetHandle* httpOpenRequest(GNetHandle* connection, const char16_t* verb, const char16_t* path,
                            const char16_t* version, const char16_t* referrer,
                            const char16_t* const* accept, uint32_t flags) {
    return netCall<GNetHandle*>(nullptr, [&] {
        const auto server = network().find<HttpConnection>(connection);
        require((flags & ~kRequestFlags) == 0);
        HttpRequest::Ask ask{.url = urlOn(server->url(), netLineOrNone(path)),
                             .version = netLineOrNone(version),
                             .referrer = netLineOrNone(referrer),
                             .flags = flags};
        if (verb != nullptr) {
            ask.verb = netLine(verb);
        }
        require(isToken(ask.verb));
        curlHttpVersion(ask.version);
        const auto request = std::make_shared<HttpRequest>(server, server->options(),
                                                           server->lines(), std::move(ask));
        request->addHeaders(acceptHeader(accept), G_HEADER_ADD);
        return network().handles.add(request);
    });
}

int32_t httpAddRequestHeaders(GNetHandle* request, const char16_t* headers, uint32_t flags) {
    return netDone([&] {
        network().with<HttpRequest>(
            request, [&](const auto& asked) { asked->addHeaders(netText(headers), flags); });
    });
}

int32_t httpSendRequest(GNetHandle* request, const char16_t* headers, const void* body,
                        int32_t size) {
    return netDone([&] {
        require(size >= -1 && (body != nullptr || size <= 0) && (body == nullptr || size >= 0));
        const std::string more = headers != nullptr ? netText(headers) : "";
        std::optional<std::string_view> whole;
        if (size >= 0) {
            whole = {static_cast<const char*>(body), static_cast<size_t>(size)};
        }
        network().with<HttpRequest>(request, [&](const auto& asked) { asked->send(more, whole); });
    });
}

int32_t httpEndRequest(GNetHandle* request, uint32_t flags) {
    return netDone([&] {
        require(flags == 0);
        network().with<HttpRequest>(request, [](const auto& asked) { asked->endBody(); });
    });
}

int32_t httpQueryInfo(GNetHandle* request, int32_t info, void* buffer, int32_t* size,
                      int32_t* index) {
    return netDone([&] {
        network().with<HttpRequest>(request, [&](const auto& asked) {
            queryHttpInfo(asked->answer(), info, buffer, size, index);
        });
    });
}

} // namespace gpi
