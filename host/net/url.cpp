#include "net/url.h"

#include "net/ascii.h"
#include "net/error.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <new>
#include <utility>

namespace gpi {
namespace {

constexpr const char* kSchemes[] = {nullptr, "http", "https", "ftp"};

void check(CURLUcode result) {
    switch (result) {
    case CURLUE_OK:
        return;
    case CURLUE_OUT_OF_MEMORY:
        throw std::bad_alloc();
    case CURLUE_UNSUPPORTED_SCHEME:
    case CURLUE_BAD_FILE_URL:
        throw NetError(G_NET_PROTOCOL);
    default:
        throw NetError(G_NET_URL);
    }
}

bool isEscape(std::string_view text) {
    return text.size() >= 3 && text[0] == '%' && std::isxdigit(static_cast<uint8_t>(text[1])) &&
           std::isxdigit(static_cast<uint8_t>(text[2]));
}

} // namespace

const char* schemeOf(int32_t protocol) {
    require(protocol >= G_NET_HTTP && protocol <= G_NET_FTP, G_NET_PROTOCOL);
    return kSchemes[protocol];
}

Url::Url(const std::string& text, unsigned flags) : url_(curl_url()) {
    if (url_ == nullptr) {
        throw std::bad_alloc();
    }
    follow(text, flags);
}

Url Url::ofServer(int32_t protocol, const std::string& host, int32_t port) {
    const bool bareAddress = host.find(':') != host.npos && !host.starts_with('[');
    try {
        Url url(std::string(schemeOf(protocol)) + "://server/");
        url.set(CURLUPART_HOST, bareAddress ? std::string("[").append(host).append("]") : host);
        require(!host.empty());
        url.set(CURLUPART_PORT, port != 0 ? std::to_string(port) : "");
        return url;
    } catch (const NetError& error) {
        throw NetError(error.number() == G_NET_URL ? G_NET_ARGUMENT : error.number());
    }
}

void Url::follow(const std::string& relative, unsigned flags) {
    check(curl_url_set(url_.get(), CURLUPART_URL, relative.c_str(), flags));
    protocol(); // only those of these have a host for certain
    set(CURLUPART_HOST, lowerCase(part(CURLUPART_HOST)));
}

std::string Url::part(CURLUPart part, unsigned flags) const {
    char* found = nullptr;
    const CURLUcode result = curl_url_get(url_.get(), part, &found, flags);
    const std::unique_ptr<char, decltype(&curl_free)> owner(found, curl_free);
    switch (result) {
    case CURLUE_NO_USER:
    case CURLUE_NO_PASSWORD:
    case CURLUE_NO_PORT:
    case CURLUE_NO_QUERY:
    case CURLUE_NO_FRAGMENT:
        return {};
    default:
        check(result);
        return found;
    }
}

void Url::set(CURLUPart part, const std::string& text) {
    check(curl_url_set(url_.get(), part, text.empty() ? nullptr : text.c_str(), 0));
}

int32_t Url::protocol() const {
    const auto* const found = std::find(std::begin(kSchemes) + 1, std::end(kSchemes),
                                        std::string_view(part(CURLUPART_SCHEME)));
    require(found != std::end(kSchemes), G_NET_PROTOCOL);
    return static_cast<int32_t>(found - kSchemes);
}

std::string Url::extra(unsigned flags) const {
    std::string extra;
    for (const auto& [mark, kind] : {std::pair('?', CURLUPART_QUERY), {'#', CURLUPART_FRAGMENT}}) {
        const std::string text = part(kind, flags);
        if (!text.empty()) {
            extra.append(1, mark).append(text);
        }
    }
    return extra;
}

std::string Url::text() const {
    return part(CURLUPART_URL, CURLU_NO_DEFAULT_PORT);
}

std::string withoutForbidden(std::string_view text, Escapes escapes) {
    constexpr std::string_view kForbidden = "\"<>\\^`{|}";
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string out;
    for (size_t at = 0; at < text.size(); ++at) {
        const auto byte = static_cast<uint8_t>(text[at]);
        const bool allowed =
            byte == '%' ? escapes == Escapes::Kept && isEscape(text.substr(at))
                        : byte > ' ' && byte < 0x7F && kForbidden.find(text[at]) == kForbidden.npos;
        if (allowed) {
            out += text[at];
        } else {
            out.append({'%', kDigits[byte >> 4], kDigits[byte & 15]});
        }
    }
    return out;
}

std::string escaped(const std::string& text) {
    const std::unique_ptr<char, decltype(&curl_free)> out(
        curl_easy_escape(nullptr, text.c_str(), static_cast<int>(text.size())), curl_free);
    if (out == nullptr) {
        throw std::bad_alloc();
    }
    return out.get();
}

std::string escapedPath(const std::string& path) {
    std::string text;
    for (size_t begin = 0; begin <= path.size();) {
        const size_t end = std::min(path.find('/', begin), path.size());
        text += escaped(path.substr(begin, end - begin));
        text += end < path.size() ? "/" : "";
        begin = end + 1;
    }
    return text;
}

} // namespace gpi
