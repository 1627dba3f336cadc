#include "net/error.h"
#include "net/services.h"
#include "net/text.h"
#include "net/url_forms.h"

namespace gpi {

int32_t crackUrl(const char16_t* url, uint32_t flags, GNetUrl* parts) {
    return netDone([&] {
        require(parts != nullptr);
        crackUrl(netLine(url), flags, *parts);
    });
}

int32_t createUrl(const GNetUrl* parts, uint32_t flags, char16_t* url, int32_t* size) {
    return netDone([&] {
        require(parts != nullptr);
        handOutText(createUrl(*parts, flags), url, size);
    });
}

int32_t canonicalizeUrl(const char16_t* url, char16_t* out, int32_t* size, uint32_t flags) {
    return netDone([&] { handOutText(usualUrl(netLine(url), flags), out, size); });
}

int32_t combineUrl(const char16_t* base, const char16_t* relative, char16_t* out, int32_t* size,
                   uint32_t flags) {
    return netDone(
        [&] { handOutText(combineUrl(netLine(base), netLine(relative), flags), out, size); });
}

} // namespace gpi
