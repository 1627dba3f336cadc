// URLs, which need no network.
#include "probe.h"

#include <memory>
#include <string_view>

namespace doctor {
namespace {

constexpr const char16_t* kUrl = u"http://panel.example:8080/nc/list?from=1";

Complaint cracks(const Platform& platform) {
    const auto crack = platform.service<GPICrackUrl>(GPI_SERVICE_CRACK_URL);
    const auto parts = std::make_unique<GNetUrl>();
    const bool right = crack(kUrl, 0, parts.get()) == 1 && parts->protocol == G_NET_HTTP &&
                       parts->port == 8080 &&
                       parts->host == std::u16string_view(u"panel.example") &&
                       parts->path == std::u16string_view(u"/nc/list") &&
                       parts->extra == std::u16string_view(u"?from=1");
    if (!right) {
        return "takes a URL apart wrongly";
    }
    return crack(nullptr, 0, parts.get()) == 0 ? "" : "takes no URL apart";
}

Complaint creates(const Platform& platform) {
    const auto create = platform.service<GPICreateUrl>(GPI_SERVICE_CREATE_URL);
    const auto parts = std::make_unique<GNetUrl>();
    parts->protocol = G_NET_HTTP;
    parts->port = 8080;
    std::u16string_view(u"panel.example").copy(parts->host, G_URL_PART_SIZE);
    std::u16string_view(u"/nc/list").copy(parts->path, G_URL_PATH_SIZE);
    std::u16string_view(u"?from=1").copy(parts->extra, G_URL_PART_SIZE);
    char16_t url[64] = {};
    int32_t size = 64;
    return create(parts.get(), 0, url, &size) == 1 && url == std::u16string_view(kUrl)
               ? ""
               : "puts a URL together wrongly";
}

Complaint canonicalizes(const Platform& platform) {
    const auto usual = platform.service<GPICanonicalizeUrl>(GPI_SERVICE_CANONICALIZE_URL);
    char16_t url[64] = {};
    int32_t size = 64;
    const int32_t result = usual(u"http://panel.example/a/../b", url, &size, 0);
    return result == 1 && url == std::u16string_view(u"http://panel.example/b")
               ? ""
               : "leaves dots in a path";
}

Complaint combines(const Platform& platform) {
    const auto combine = platform.service<GPICombineUrl>(GPI_SERVICE_COMBINE_URL);
    char16_t url[64] = {};
    int32_t size = 64;
    const int32_t result = combine(u"http://panel.example/a/b", u"c", url, &size, 0);
    return result == 1 && url == std::u16string_view(u"http://panel.example/a/c")
               ? ""
               : "combines URLs wrongly";
}

} // namespace

std::span<const Probe> urlProbes() {
    static const Probe kProbes[] = {
        {GPI_SERVICE_CRACK_URL, cracks, {}},
        {GPI_SERVICE_CREATE_URL, creates, {}},
        {GPI_SERVICE_CANONICALIZE_URL, canonicalizes, {}},
        {GPI_SERVICE_COMBINE_URL, combines, {}},
    };
    return kProbes;
}

} // namespace doctor
