#include "net/network.h"

#include "file/file.h"
#include "net/ftp_file.h"
#include "net/http_request.h"
#include "net/make_network.h"
#include "net/text.h"
#include "net/url.h"
#include "platform.h"
#include "report.h"
#include "text/transcode.h"

#include <sys/stat.h>
#include <unistd.h>

#include <exception>
#include <fstream>
#include <iterator>

namespace gpi {
namespace {

constexpr off_t kMostCertificateBytes = 4 << 20;

std::shared_ptr<const std::string> shippedCertificates(const std::string& path) {
    if (path.empty()) {
        return nullptr;
    }
    std::ifstream file(path, std::ios::binary);
    auto text = std::make_shared<const std::string>(std::istreambuf_iterator<char>(file),
                                                    std::istreambuf_iterator<char>());
    if (text->empty()) {
        report("cannot read the certificates of QUARLO_NET_CA_FILE, " + path);
        return nullptr;
    }
    return text;
}

/// Takes user and password of a URL over into options, and what no server wants to see off it.
void takeLogin(Url& url, Options& options) {
    const std::string user = url.part(CURLUPART_USER, CURLU_URLDECODE);
    if (!user.empty()) {
        options.user = user;
        options.password = url.part(CURLUPART_PASSWORD, CURLU_URLDECODE);
    }
    url.set(CURLUPART_USER, "");
    url.set(CURLUPART_PASSWORD, "");
    url.set(CURLUPART_FRAGMENT, "");
}

} // namespace

Network& network() {
    require(platform().network != nullptr, G_NET_STATE);
    return *platform().network;
}

std::shared_ptr<Network> makeNetwork(const Settings& settings) {
    return std::make_shared<Network>(settings);
}

Network::Network(const Settings& settings) : files_(settings.files) {
    static const CURLcode ready = curl_global_init(CURL_GLOBAL_DEFAULT);
    require(ready);
    defaults_.connectTimeout = settings.connectTimeout;
    defaults_.idleTimeout = settings.idleTimeout;
    defaults_.redirects = settings.redirects;
    defaults_.proxy = settings.proxy;
    defaults_.shippedCertificates = shippedCertificates(settings.authorities);
}

void Network::close(const GNetHandle* handle) {
    std::exception_ptr failure;
    for (const auto& node : handles.remove(handle)) {
        const std::lock_guard lock(node->mutex());
        try {
            node->finish();
        } catch (const std::exception&) {
            failure = failure != nullptr ? failure : std::current_exception();
        }
    }
    if (failure != nullptr) {
        std::rethrow_exception(failure);
    }
}

GNetHandle* Network::openUrl(const GNetHandle* handle, const std::string& text,
                             const std::string& headers, uint32_t flags) {
    const auto session = find<Session>(handle);
    Url url(withoutForbidden(text, Escapes::Kept));
    Options options = session->options();
    takeLogin(url, options);
    return url.protocol() == G_NET_FTP ? openFtpUrl(session, std::move(url), options, flags)
                                       : openHttpUrl(session, url, options, headers, flags);
}

GNetHandle* Network::openHttpUrl(const std::shared_ptr<Session>& session, const Url& url,
                                 const Options& options, const std::string& headers,
                                 uint32_t flags) {
    HttpRequest::Ask ask;
    ask.url = url.text();
    ask.flags = flags;
    const auto request =
        std::make_shared<HttpRequest>(session, options, session->lines(), std::move(ask));
    if (auto kept = findKept(*request, flags)) {
        request->begin(std::move(kept));
    } else {
        request->send(headers, std::string_view());
    }
    return handles.add(request);
}

GNetHandle* Network::openFtpUrl(const std::shared_ptr<Session>& session, Url url,
                                const Options& options, uint32_t flags) {
    const std::string asked = url.text();
    const std::string path = url.part(CURLUPART_PATH, CURLU_URLDECODE).substr(1);
    url.set(CURLUPART_PATH, "/");
    const auto connection =
        std::make_shared<FtpConnection>(session, options, url, (flags & G_NET_ACTIVE) != 0);
    const auto file =
        std::make_shared<FtpFile>(session, connection, asked, path, (flags & G_NET_ASCII) != 0);
    if (auto kept = findKept(*file, flags)) {
        file->begin(std::move(kept));
    } else {
        connection->connect();
        file->openToRead();
    }
    return handles.add(file);
}

std::shared_ptr<const Kept> Network::findKept(const RemoteFile& file, uint32_t flags) {
    return (flags & (G_NET_RELOAD | G_NET_ASCII)) == 0 ? keeper.find(file.key()) : nullptr;
}

void Network::queryOption(const GNetHandle* handle, int32_t option, void* value, int32_t* size) {
    const auto node = find<Node>(handle);
    if (option == G_NET_OPTION_KIND) {
        const int32_t kind = node->kind();
        handOutBytes(&kind, sizeof kind, value, size);
    } else if (option == G_NET_OPTION_PARENT) {
        const GNetHandle* const parent =
            node->parent() != nullptr ? node->parent()->handle : nullptr;
        handOutBytes(static_cast<const void*>(&parent), sizeof(void*), value, size);
    } else if (option == G_NET_OPTION_URL) {
        const std::lock_guard lock(node->mutex());
        require(!node->url().empty(), G_NET_NOT_FOUND);
        handOutText(node->url(), static_cast<char16_t*>(value), size);
    } else {
        gpi::queryOption(node->options(), option, value, size);
    }
}

void Network::setOption(const GNetHandle* handle, int32_t option, const void* value, int32_t size,
                        bool all) {
    require(option < G_NET_OPTION_KIND || option > G_NET_OPTION_URL, G_NET_READ_ONLY_OPTION);
    HandleTree::Family nodes = handles.familyOf(handle);
    if (!all) {
        nodes.erase(nodes.begin(), nodes.end() - 1);
    }
    Options checked = nodes.back()->options();
    gpi::setOption(checked, option, value, size);
    if (option == G_NET_OPTION_AUTHORITIES) {
        checked.ownCertificates = certificatesOf(checked.authorities);
    }
    for (const auto& node : nodes) {
        node->changeOptions([&](Options& options) {
            gpi::setOption(options, option, value, size);
            if (option == G_NET_OPTION_AUTHORITIES) {
                options.ownCertificates = checked.ownCertificates;
            }
        });
    }
}

std::shared_ptr<const std::string> Network::certificatesOf(const std::string& path) const {
    if (path.empty()) {
        return nullptr;
    }
    const UniqueFd file = openFile(files_.locate(utf16Of(path).c_str()), G_OPEN_READ);
    struct stat status {};
    const bool known = fstat(file.get(), &status) == 0;
    require(known && status.st_size <= kMostCertificateBytes, G_NET_LOCAL_FILE);
    std::string text(static_cast<size_t>(status.st_size), '\0');
    const ssize_t count = read(file.get(), text.data(), text.size());
    require(count == status.st_size, G_NET_LOCAL_FILE);
    return std::make_shared<const std::string>(std::move(text));
}

} // namespace gpi
