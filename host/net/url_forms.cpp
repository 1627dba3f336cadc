#include "net/url_forms.h"

#include "net/ascii.h"
#include "net/error.h"
#include "net/text.h"
#include "net/url.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace gpi {
namespace {

constexpr int32_t kMostPort = 65535;

unsigned decoding(uint32_t flags) {
    return (flags & G_URL_DECODE) != 0 ? unsigned{CURLU_URLDECODE} : 0;
}

int32_t portOf(const Url& url) {
    const std::string digits = url.part(CURLUPART_PORT);
    int32_t port = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), port);
    return port;
}

/// Text of a part of a record. @throws NetError where it has no end
template <size_t kRoom>
std::string partText(const char16_t (&part)[kRoom]) {
    require(std::find(std::begin(part), std::end(part), u'\0') != std::end(part));
    return netLine(part);
}

unsigned dots(uint32_t flags) {
    require((flags & ~uint32_t{G_URL_DECODE | G_URL_ENCODE | G_URL_KEEP_DOTS}) == 0);
    return (flags & G_URL_KEEP_DOTS) != 0 ? unsigned{CURLU_PATH_AS_IS} : 0;
}

std::string readable(const std::string& text, uint32_t flags) {
    return (flags & G_URL_ENCODE) != 0 ? withoutForbidden(text, Escapes::Kept) : text;
}

/// The usual form, path and query decoded: for people, since a URL may not hold what comes of it.
std::string decodedText(Url url) {
    const std::string tail = url.part(CURLUPART_PATH, CURLU_URLDECODE) + url.extra(CURLU_URLDECODE);
    url.set(CURLUPART_PATH, "/");
    url.set(CURLUPART_QUERY, "");
    url.set(CURLUPART_FRAGMENT, "");
    std::string text = url.text();
    text.pop_back();
    return text + tail;
}

std::string inForm(Url url, uint32_t flags) {
    return (flags & G_URL_DECODE) != 0 ? decodedText(std::move(url)) : url.text();
}

} // namespace

void crackUrl(const std::string& text, uint32_t flags, GNetUrl& parts) {
    require((flags & ~uint32_t{G_URL_DECODE}) == 0);
    const Url url(text, CURLU_PATH_AS_IS);
    const unsigned how = decoding(flags);
    GNetUrl found{};
    found.protocol = url.protocol();
    found.port = portOf(url);
    handOutText(url.part(CURLUPART_USER, how), found.user, std::size(found.user));
    handOutText(url.part(CURLUPART_PASSWORD, how), found.password, std::size(found.password));
    handOutText(url.part(CURLUPART_HOST), found.host, std::size(found.host));
    handOutText(url.part(CURLUPART_PATH, how), found.path, std::size(found.path));
    handOutText(url.extra(how), found.extra, std::size(found.extra));
    parts = found;
}

std::string createUrl(const GNetUrl& parts, uint32_t flags) {
    require((flags & ~uint32_t{G_URL_ENCODE}) == 0 && parts.port >= 0 && parts.port <= kMostPort);
    const bool encode = (flags & G_URL_ENCODE) != 0;
    Url url = Url::ofServer(parts.protocol, partText(parts.host), parts.port);
    const std::string path = partText(parts.path);
    const std::string extra = partText(parts.extra);
    const std::string user = partText(parts.user);
    const std::string password = partText(parts.password);
    url.set(CURLUPART_USER, encode ? escaped(user) : user);
    url.set(CURLUPART_PASSWORD, encode ? escaped(password) : password);
    std::string text = url.text();
    text.pop_back(); // the slash, which the path begins with
    text += path.empty() || path.starts_with('/') ? "" : "/";
    text += encode ? escapedPath(path) : path;
    require(extra.empty() || extra[0] == '?' || extra[0] == '#');
    text += encode ? withoutForbidden(extra, Escapes::Escaped) : extra;
    const Url made(text, CURLU_PATH_AS_IS);
    // What is not encoded may mean something else: a slash in a user's name ends the host.
    require(made.part(CURLUPART_HOST) == lowerCase(url.part(CURLUPART_HOST)), G_NET_URL);
    return made.text();
}

std::string usualUrl(const std::string& url, uint32_t flags) {
    return inForm(Url(readable(url, flags), dots(flags)), flags);
}

std::string combineUrl(const std::string& base, const std::string& relative, uint32_t flags) {
    Url url(readable(base, flags), dots(flags));
    url.follow(readable(relative, flags), dots(flags));
    return inForm(std::move(url), flags);
}

} // namespace gpi
