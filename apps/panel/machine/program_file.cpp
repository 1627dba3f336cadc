#include "machine/program_file.h"

#include "text/format.h"

#include <quarlo/quarlo.h>

#include <algorithm>
#include <array>

namespace panel {
namespace {

std::string readFile(const std::u16string& path) {
    std::string bytes;
    GFile* const file = GIOOpen(path.c_str(), G_OPEN_READ, nullptr);
    if (file == nullptr) {
        return bytes;
    }
    std::array<char, 16384> piece;
    int32_t got = 0;
    while (GIORead(file, piece.data(), static_cast<int32_t>(piece.size()), &got) == 1 && got > 0) {
        bytes.append(piece.data(), static_cast<size_t>(got));
    }
    GIOClose(file);
    return bytes;
}

} // namespace

bool isProgramName(const std::u16string& name) {
    std::array<char16_t, G_NAME_SIZE> extension{};
    const bool plain = name.find_first_of(u"/\\:") == std::u16string::npos;
    if (!plain || GIOSplitPath(name.c_str(), nullptr, nullptr, nullptr, extension.data()) != 1) {
        return false;
    }
    const std::u16string_view found = extension.data();
    return found == u".nc" || found == u".NC" || found == u".ngc" || found == u".tap";
}

bool writeProgram(const std::u16string& name, const std::string& bytes) {
    const std::u16string part = name + u".part";
    constexpr uint32_t kAnew = G_OPEN_WRITE | G_OPEN_CREATE | G_OPEN_TRUNCATE;
    GFile* const file = GIOOpen(part.c_str(), kAnew, nullptr);
    if (file == nullptr) {
        return false;
    }
    int32_t done = 0;
    const auto size = static_cast<int32_t>(bytes.size());
    const bool wrote = size == 0 || GIOWrite(file, bytes.data(), size, &done) == 1;
    const bool closed = GIOClose(file) == 1;
    if (wrote && closed && GIORename(part.c_str(), name.c_str(), G_RENAME_REPLACE) == 1) {
        return true;
    }
    GIORemove(part.c_str(), 0);
    return false;
}

ProgramFile::ProgramFile(const std::u16string& path) : path_(path), bytes_(readFile(path)) {
    for (size_t start = 0; start < bytes_.size(); ++start) {
        starts_.push_back(start);
        start = std::min(bytes_.find('\n', start), bytes_.size());
    }
}

std::u16string ProgramFile::line(int32_t number) const {
    if (number < 1 || number > lines()) {
        return {};
    }
    const size_t start = starts_[static_cast<size_t>(number - 1)];
    size_t end = std::min(bytes_.find('\n', start), bytes_.size());
    while (end > start && bytes_[end - 1] == '\r') {
        --end;
    }
    return decoded(std::string_view(bytes_).substr(start, end - start));
}

std::vector<std::u16string> programNames() {
    const int32_t count = GIOGetDirectory(u".", nullptr, 0);
    std::vector<GDirectoryEntry> entries(static_cast<size_t>(std::max(count, 0)));
    GIOGetDirectory(u".", entries.data(), count);
    std::vector<std::u16string> names;
    for (const GDirectoryEntry& entry : entries) {
        if ((entry.attributes & G_FILE_DIRECTORY) == 0 && isProgramName(entry.name)) {
            names.emplace_back(entry.name);
        }
    }
    return names;
}

} // namespace panel
