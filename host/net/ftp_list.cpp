#include "net/ftp_list.h"

#include "net/ftp_time.h"
#include "text/transcode.h"

#include <algorithm>
#include <ctime>
#include <iterator>

namespace gpi {
namespace {

/// What libcurl finds in the listing goes here.
struct Found {
    std::u16string pattern;
    uint32_t now;
    std::vector<GNetFileInfo> entries;
};

uint32_t attributesOf(const curl_fileinfo& file) {
    constexpr unsigned kRead = 0444;
    constexpr unsigned kWrite = 0222;
    constexpr unsigned kExecute = 0111;
    const bool known = (file.flags & CURLFINFOFLAG_KNOWN_PERM) != 0;
    const unsigned rights = known ? file.perm : kRead | kWrite;
    return static_cast<uint32_t>(((rights & kRead) != 0 ? G_FILE_READABLE : 0) |
                                 ((rights & kWrite) != 0 ? G_FILE_WRITABLE : 0) |
                                 ((rights & kExecute) != 0 ? G_FILE_EXECUTABLE : 0) |
                                 (file.filetype == CURLFILETYPE_DIRECTORY ? G_FILE_DIRECTORY : 0));
}

void add(Found& found, const curl_fileinfo& file) {
    const std::u16string name = utf16Of(file.filename);
    const bool fits = name.size() < std::size(GNetFileInfo{}.name);
    if (!fits || name.find(u'/') != name.npos || !matches(found.pattern, name)) {
        return;
    }
    GNetFileInfo info{};
    std::copy(name.begin(), name.end(), std::begin(info.name));
    const bool known = (file.flags & CURLFINFOFLAG_KNOWN_SIZE) != 0 && file.size > 0;
    const uint64_t size = known ? static_cast<uint64_t>(file.size) : 0;
    info.sizeLow = static_cast<uint32_t>(size);
    info.sizeHigh = static_cast<uint32_t>(size >> 32);
    info.attributes = attributesOf(file);
    info.time = file.strings.time != nullptr ? listedTime(file.strings.time, found.now) : 0;
    found.entries.push_back(info);
}

/// Called for each entry; wants the entry alone and not what the file holds.
long entryCame(const void* entry, void* self, int /*remaining*/) {
    auto& found = *static_cast<Found*>(self);
    try {
        add(found, *static_cast<const curl_fileinfo*>(entry));
        return CURL_CHUNK_BGN_FUNC_SKIP;
    } catch (const std::exception&) {
        return CURL_CHUNK_BGN_FUNC_FAIL;
    }
}

int matchesAny(void* /*self*/, const char* /*pattern*/, const char* /*name*/) {
    return CURL_FNMATCHFUNC_MATCH; // the name is judged by matches() later
}

} // namespace

FtpList::FtpList(const std::shared_ptr<FtpConnection>& connection, const std::string& pattern)
    : Node(G_NET_KIND_FIND, connection, connection->options()) {
    const size_t begin = pattern.rfind('/') + 1; // 0 where there is none
    const std::string folder = pattern.substr(0, begin);
    const std::string name = pattern.substr(begin);
    Found found{utf16Of(name.empty() ? "*" : name), static_cast<uint32_t>(std::time(nullptr)), {}};
    auto transfer = connection->prepare(connection->urlOf(folder + '*'));
    transfer->set(CURLOPT_WILDCARDMATCH, 1L);
    transfer->set(CURLOPT_FNMATCH_FUNCTION, &matchesAny);
    transfer->set(CURLOPT_CHUNK_BGN_FUNCTION, &entryCame);
    transfer->set(CURLOPT_CHUNK_DATA, &found);
    transfer->awaitEnd();
    require(!found.entries.empty(), G_NET_NOT_FOUND);
    entries_ = std::move(found.entries);
}

const GNetFileInfo& FtpList::next() {
    require(next_ < entries_.size(), G_NET_END);
    return entries_[next_++];
}

bool matches(std::u16string_view pattern, std::u16string_view name) {
    // After a mismatch the last star takes one unit more; an earlier one never has to.
    size_t at = 0;
    size_t unit = 0;
    size_t star = pattern.npos;
    size_t taken = 0;
    while (unit < name.size()) {
        if (at < pattern.size() && pattern[at] == u'*') {
            star = at++;
            taken = unit;
        } else if (at < pattern.size() && (pattern[at] == u'?' || pattern[at] == name[unit])) {
            ++at;
            ++unit;
        } else if (star != pattern.npos) {
            at = star + 1;
            unit = ++taken;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(u'*', at) == pattern.npos;
}

} // namespace gpi
