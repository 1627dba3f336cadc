#include "net/ftp_reply.h"

#include "net/ascii.h"

#include <quarlo/network.h>

#include <algorithm>
#include <charconv>
#include <initializer_list>

namespace gpi {
namespace {

constexpr size_t kCodeDigits = 3;

bool holdsOneOf(const std::string& text, std::initializer_list<const char*> words) {
    return std::any_of(words.begin(), words.end(),
                       [&text](const char* word) { return text.find(word) != text.npos; });
}

int32_t ofRefusedFile(std::string_view line) {
    const std::string words = lowerCase(line);
    if (holdsOneOf(words, {"denied", "permi", "privilege", "allowed", "read-only", "not empty"})) {
        return G_NET_DENIED;
    }
    if (holdsOneOf(words, {"no such", "not exist", "n't exist", "not found"})) {
        return G_NET_NOT_FOUND;
    }
    return holdsOneOf(words, {"exist"}) ? G_NET_EXISTS : G_NET_NOT_FOUND;
}

} // namespace

int codeOfFtpReply(std::string_view line) {
    int code = 0;
    const auto [end, error] =
        std::from_chars(line.data(), line.data() + std::min(line.size(), kCodeDigits), code);
    const bool whole = error == std::errc() && end == line.data() + kCodeDigits && code >= 100;
    const bool last = line.size() == kCodeDigits || (line.size() > kCodeDigits && line[3] != '-');
    return whole && last ? code : 0;
}

int32_t errorOfFtpReply(std::string_view line) {
    switch (codeOfFtpReply(line)) {
    case 421:
    case 425:
    case 426:
        return G_NET_BROKEN;
    case 450:
    case 553:
        return G_NET_DENIED;
    case 452:
    case 552:
        return G_NET_FULL;
    case 500:
    case 501:
    case 502:
    case 503:
    case 504:
        return G_NET_UNSUPPORTED;
    case 530:
    case 532:
        return G_NET_LOGIN;
    case 550:
        return ofRefusedFile(line);
    default:
        return G_NET_SERVER;
    }
}

std::optional<std::string> folderOfFtpReply(std::string_view line) {
    const size_t begin = line.find('"');
    if (codeOfFtpReply(line) != 257 || begin == line.npos) {
        return std::nullopt;
    }
    std::string folder;
    for (size_t at = begin + 1; at < line.size(); ++at) {
        if (line[at] == '"' && (at + 1 == line.size() || line[at + 1] != '"')) {
            return folder;
        }
        at += line[at] == '"'; // a quote inside is doubled
        folder += line[at];
    }
    return std::nullopt;
}

} // namespace gpi
