// URLs taken apart, put together, brought into their usual form and followed: no answer is longer
// than the room for it, and what one service makes the others understand.
#include "require.h"

#include "net/error.h"
#include "net/services.h"
#include "net/url_forms.h"

#include <quarlo/network.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace gpi {
namespace {

using quarlo::fuzz::require;

/// Room of an exact size, which the sanitizer watches.
class Room {
  public:
    explicit Room(int32_t size) : size_(size), units_(static_cast<size_t>(size)) {}

    char16_t* data() { return units_.data(); }
    int32_t* size() { return &size_; }

    std::u16string text() const {
        const auto end = std::find(units_.begin(), units_.end(), u'\0');
        require(end != units_.end(), "an answer does not end");
        require(end - units_.begin() == size_, "an answer has another length than was said");
        return {units_.begin(), end};
    }

  private:
    int32_t size_;
    std::vector<char16_t> units_;
};

void checkUsual(const std::u16string& url, uint32_t flags, int32_t size) {
    Room first(size);
    if (canonicalizeUrl(url.c_str(), first.data(), first.size(), flags) == 0) {
        return;
    }
    // What was decoded may be no URL any more, and what is decoded again becomes something else.
    if ((flags & G_URL_DECODE) == 0) {
        Room second(G_URL_SIZE);
        require(canonicalizeUrl(first.text().c_str(), second.data(), second.size(), flags) == 1,
                "a URL in its usual form was refused");
        require(second.text() == first.text(), "a URL in its usual form has another one");
    }
}

void checkParts(const std::u16string& url, uint32_t flags) {
    const auto parts = std::make_unique<GNetUrl>();
    if (crackUrl(url.c_str(), flags, parts.get()) == 0) {
        return;
    }
    Room whole(G_URL_SIZE);
    if (createUrl(parts.get(), flags & G_URL_DECODE ? uint32_t{G_URL_ENCODE} : 0, whole.data(),
                  whole.size()) == 0) {
        return;
    }
    const auto again = std::make_unique<GNetUrl>();
    require(crackUrl(whole.text().c_str(), flags, again.get()) == 1,
            "a URL that was put together does not come apart");
    require(std::u16string(again->host) == parts->host && again->protocol == parts->protocol,
            "a URL leads to another server after it was put together");
}

} // namespace
} // namespace gpi

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size < 3) {
        return 0;
    }
    const uint32_t flags = data[0];
    const int32_t room = 1 + data[1] * 12;
    // UTF-8 bytes as units, so that the fuzzer's dictionary reads as text; a tab parts two URLs.
    std::u16string text(data + 2, data + size);
    std::replace(text.begin(), text.end(), u'\0', char16_t{0xD800});
    const size_t tab = text.find(u'\t');
    const std::u16string url = text.substr(0, tab);
    gpi::checkUsual(url, flags, room);
    gpi::checkParts(url, flags);
    if (tab != text.npos) {
        gpi::Room out(room);
        if (gpi::combineUrl(url.c_str(), text.c_str() + tab + 1, out.data(), out.size(), flags)) {
            out.text();
        }
    }
    return 0;
}
