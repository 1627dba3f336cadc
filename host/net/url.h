// URLs, by libcurl.
#pragma once

#include <curl/curl.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace gpi {

/// An absolute URL of HTTP, HTTPS or FTP.
class Url {
  public:
    /// @param flags CURLU_PATH_AS_IS or 0 @throws NetError G_NET_URL, G_NET_PROTOCOL
    explicit Url(const std::string& text, unsigned flags = 0);

    /// "scheme://host:port/" @param port 0 for the protocol's own @throws NetError G_NET_ARGUMENT
    static Url ofServer(int32_t protocol, const std::string& host, int32_t port);

    /// Goes where a relative URL leads.
    void follow(const std::string& relative, unsigned flags = 0);

    /// A part, empty where the URL lacks it. @param flags CURLU_URLDECODE or 0
    std::string part(CURLUPart part, unsigned flags = 0) const;

    /// Sets a part; an empty one is taken away.
    void set(CURLUPart part, const std::string& text);

    /// G_NET_HTTP, G_NET_HTTPS or G_NET_FTP.
    int32_t protocol() const;

    /// Query and fragment with the characters before them.
    std::string extra(unsigned flags = 0) const;

    /// The URL, its host in lower case, without the port if it is the usual one.
    std::string text() const;

  private:
    struct Free {
        void operator()(CURLU* url) const { curl_url_cleanup(url); }
    };

    std::unique_ptr<CURLU, Free> url_;
};

/// What a '%' with two digits behind it becomes.
enum class Escapes { Kept, Escaped };

/// Text in which every character that no URL can hold has become %xx.
std::string withoutForbidden(std::string_view text, Escapes escapes);

/// Text with everything escaped that could mean something in a URL.
std::string escaped(const std::string& text);

/// The same but for slashes.
std::string escapedPath(const std::string& path);

/// "http" and so on. @throws NetError G_NET_PROTOCOL
const char* schemeOf(int32_t protocol);

} // namespace gpi
