#include "net/options.h"

#include "net/error.h"
#include "net/text.h"

#include <cstring>
#include <limits>

namespace gpi {
namespace {

struct NumberOption {
    int32_t option;
    int32_t Options::*member;
    int32_t least;
    int32_t most;
};

struct TextOption {
    int32_t option;
    std::string Options::*member;
};

constexpr int32_t kMost = std::numeric_limits<int32_t>::max();
constexpr int32_t kMostRedirects = 50;
constexpr int32_t kMostUnits = 4096;

constexpr NumberOption kNumbers[] = {
    {G_NET_OPTION_CONNECT_TIMEOUT, &Options::connectTimeout, 1, kMost},
    {G_NET_OPTION_IDLE_TIMEOUT, &Options::idleTimeout, 1, kMost},
    {G_NET_OPTION_REDIRECTS, &Options::redirects, 0, kMostRedirects},
    {G_NET_OPTION_RATE, &Options::rate, 0, kMost},
};

constexpr TextOption kTexts[] = {
    {G_NET_OPTION_AGENT, &Options::agent},
    {G_NET_OPTION_USER, &Options::user},
    {G_NET_OPTION_PASSWORD, &Options::password},
    {G_NET_OPTION_PROXY, &Options::proxy},
    {G_NET_OPTION_AUTHORITIES, &Options::authorities},
};

template <typename Known, size_t kCount>
const Known* find(const Known (&list)[kCount], int32_t option) {
    for (const Known& known : list) {
        if (known.option == option) {
            return &known;
        }
    }
    return nullptr;
}

std::string textValue(const void* value, int32_t size) {
    require(size >= 0 && size <= kMostUnits && (value != nullptr || size == 0));
    std::u16string text(static_cast<size_t>(size), u'\0');
    if (size > 0) { // memory of a program's own, on any address
        std::memcpy(text.data(), value, text.size() * sizeof(char16_t));
    }
    require(text.find(u'\0') == text.npos);
    return netLine(text.c_str());
}

void requireProxy(const std::string& url) {
    const bool known = url.empty() || url.starts_with("http://") || url.starts_with("https://");
    require(known, G_NET_URL);
}

} // namespace

void handOutBytes(const void* bytes, int32_t count, void* value, int32_t* size) {
    require(size != nullptr && *size >= 0 && (value != nullptr || *size == 0));
    const bool fits = *size >= count;
    *size = count;
    require(fits, G_NET_BUFFER);
    std::memcpy(value, bytes, static_cast<size_t>(count));
}

void queryOption(const Options& options, int32_t option, void* value, int32_t* size) {
    if (const NumberOption* const number = find(kNumbers, option)) {
        handOutBytes(&(options.*number->member), sizeof(int32_t), value, size);
        return;
    }
    const TextOption* const text = find(kTexts, option);
    require(text != nullptr, G_NET_NOT_FOUND);
    require(option != G_NET_OPTION_PASSWORD, G_NET_DENIED);
    handOutText(options.*text->member, static_cast<char16_t*>(value), size);
}

void setOption(Options& options, int32_t option, const void* value, int32_t size) {
    if (const NumberOption* const number = find(kNumbers, option)) {
        require(value != nullptr && size == int32_t{sizeof(int32_t)});
        int32_t chosen = 0;
        std::memcpy(&chosen, value, sizeof chosen);
        require(chosen >= number->least && chosen <= number->most);
        options.*number->member = chosen;
        return;
    }
    const TextOption* const text = find(kTexts, option);
    require(text != nullptr, G_NET_NOT_FOUND);
    std::string chosen = textValue(value, size);
    if (option == G_NET_OPTION_PROXY) {
        requireProxy(chosen);
    }
    options.*text->member = std::move(chosen);
}

} // namespace gpi
