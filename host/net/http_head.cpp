#include "net/http_head.h"

#include "net/ascii.h"
#include "net/error.h"

#include <charconv>

namespace gpi {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr size_t kMostFields = 1000;

std::string_view trimmed(std::string_view text) {
    const size_t begin = text.find_first_not_of(kBlanks);
    const size_t end = text.find_last_not_of(kBlanks);
    return begin != text.npos ? text.substr(begin, end - begin + 1) : std::string_view();
}

/// Takes the first word off a text.
std::string_view takeWord(std::string_view& text) {
    const std::string_view word = text.substr(0, text.find(' '));
    text = trimmed(text.substr(word.size()));
    return word;
}

} // namespace

bool HttpHead::take(std::string_view line) {
    const bool ended = line.empty();
    if (line.starts_with("HTTP/")) {
        *this = HttpHead();
        version_ = takeWord(line);
        const std::string_view digits = takeWord(line);
        std::from_chars(digits.data(), digits.data() + digits.size(), status_);
        statusText_ = line;
    } else if (!line.empty()) {
        require(fields_.size() < kMostFields, G_NET_PROTOCOL);
        fields_.emplace_back(line);
    }
    return ended;
}

std::optional<std::string> HttpHead::field(std::string_view name, size_t index) const {
    const std::string wanted = lowerCase(name);
    for (const std::string& field : fields_) {
        const size_t colon = field.find(':');
        if (colon != field.npos && lowerCase(field.substr(0, colon)) == wanted && index-- == 0) {
            return std::string(trimmed(std::string_view(field).substr(colon + 1)));
        }
    }
    return std::nullopt;
}

std::string HttpHead::allFields() const {
    std::string all;
    for (const std::string& field : fields_) {
        all += field + "\r\n";
    }
    return all;
}

} // namespace gpi
