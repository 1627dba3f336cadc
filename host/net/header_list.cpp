#include "net/header_list.h"

#include "net/ascii.h"
#include "net/error.h"
#include "net/text.h"

#include <algorithm>

namespace gpi {

bool isToken(std::string_view text) {
    static constexpr std::string_view kOthers = "!#$%&'*+-.^_`|~";
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char byte) {
        return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') ||
               (byte >= 'a' && byte <= 'z') || kOthers.find(byte) != kOthers.npos;
    });
}

HeaderList::Header HeaderList::parse(const std::string& line) {
    requireLine(line);
    const size_t colon = line.find(':');
    require(colon != line.npos && isToken(std::string_view(line).substr(0, colon)));
    const size_t begin = std::min(line.find_first_not_of(' ', colon + 1), line.size());
    return {line.substr(0, colon), line.substr(begin)};
}

void HeaderList::add(const std::string& headers, uint32_t flags) {
    require(flags == 0 || flags == G_HEADER_ADD || flags == G_HEADER_REPLACE);
    HeaderList changed = *this;
    for (size_t begin = 0; begin < headers.size();) {
        const size_t end = std::min(headers.find("\r\n", begin), headers.size());
        changed.addOne(parse(headers.substr(begin, end - begin)), flags);
        begin = end + 2;
    }
    *this = std::move(changed);
}

void HeaderList::addOne(Header header, uint32_t flags) {
    require(flags != 0 || !has(header.name), G_NET_EXISTS);
    if (flags == G_HEADER_REPLACE) {
        header.removed = header.value.empty();
        std::erase_if(headers_, [&header](const Header& other) {
            return lowerCase(other.name) == lowerCase(header.name);
        });
    }
    headers_.push_back(std::move(header));
}

bool HeaderList::has(const std::string& name) const {
    return std::any_of(headers_.begin(), headers_.end(), [&name](const Header& header) {
        return !header.removed && lowerCase(header.name) == lowerCase(name);
    });
}

std::vector<std::string> HeaderList::forCurl() const {
    std::vector<std::string> lines;
    for (const Header& header : headers_) {
        if (header.removed) {
            lines.push_back(header.name + ':');
        } else {
            lines.push_back(header.value.empty() ? header.name + ';'
                                                 : header.name + ": " + header.value);
        }
    }
    return lines;
}

} // namespace gpi
