#include "net/http_info.h"

#include "net/error.h"
#include "net/options.h"
#include "net/text.h"

#include <charconv>
#include <limits>
#include <string>

namespace gpi {
namespace {

std::string fieldOf(const HttpHead& head, const std::string& name, size_t index = 0) {
    auto field = head.field(name, index);
    require(field.has_value(), G_NET_NOT_FOUND);
    return std::move(*field);
}

int32_t contentLength(const HttpHead& head) {
    const std::string digits = head.field("Content-Length").value_or("");
    int32_t length = -1;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), length);
    return error == std::errc() && end == digits.data() + digits.size() ? length : -1;
}

uint32_t lastModified(const HttpHead& head) {
    const time_t time = curl_getdate(fieldOf(head, "Last-Modified").c_str(), nullptr);
    require(time >= 0 && time <= int64_t{std::numeric_limits<uint32_t>::max()}, G_NET_NOT_FOUND);
    return static_cast<uint32_t>(time);
}

/// The name of a header that a program wrote into its buffer.
std::string nameIn(const char16_t* buffer, const int32_t* size) {
    require(buffer != nullptr && size != nullptr && *size > 0);
    const std::u16string_view room(buffer, static_cast<size_t>(*size));
    require(room.find(u'\0') != room.npos);
    return netLine(buffer);
}

void queryField(const HttpHead& head, char16_t* buffer, int32_t* size, int32_t* index) {
    require(index == nullptr || *index >= 0);
    const std::string name = nameIn(buffer, size);
    const int32_t wanted = index != nullptr ? *index : 0;
    handOutText(fieldOf(head, name, static_cast<size_t>(wanted)), buffer, size);
    if (index != nullptr) {
        *index = wanted + 1;
    }
}

template <typename Number>
void handOutNumber(Number number, void* buffer, int32_t* size) {
    handOutBytes(&number, sizeof number, buffer, size);
}

} // namespace

void queryHttpInfo(const HttpHead& head, int32_t info, void* buffer, int32_t* size,
                   int32_t* index) {
    auto* const text = static_cast<char16_t*>(buffer);
    switch (info) {
    case G_HTTP_STATUS:
        return handOutNumber(head.status(), buffer, size);
    case G_HTTP_STATUS_TEXT:
        return handOutText(head.statusText(), text, size);
    case G_HTTP_VERSION:
        return handOutText(head.version(), text, size);
    case G_HTTP_HEADERS:
        return handOutText(head.allFields(), text, size);
    case G_HTTP_CONTENT_LENGTH:
        return handOutNumber(contentLength(head), buffer, size);
    case G_HTTP_CONTENT_TYPE:
        return handOutText(fieldOf(head, "Content-Type"), text, size);
    case G_HTTP_LAST_MODIFIED:
        return handOutNumber(lastModified(head), buffer, size);
    case G_HTTP_LOCATION:
        return handOutText(fieldOf(head, "Location"), text, size);
    case G_HTTP_HEADER:
        return queryField(head, text, size, index);
    default:
        throw NetError(G_NET_ARGUMENT);
    }
}

} // namespace gpi
