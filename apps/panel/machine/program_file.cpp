#include "machine/program_file.h"

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

bool looksLikeProgram(const GDirectoryEntry& entry) {
    if ((entry.attributes & G_FILE_DIRECTORY) != 0) {
        return false;
    }
    std::array<char16_t, G_NAME_SIZE> extension{};
    GIOSplitPath(entry.name, nullptr, nullptr, nullptr, extension.data());
    const std::u16string_view found = extension.data();
    return found == u".nc" || found == u".NC" || found == u".ngc" || found == u".tap";
}

} // namespace

ProgramFile::ProgramFile(const std::u16string& path) : path_(path) {
    bytes_ = readFile(path);
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
    std::u16string text(end - start, u'\0');
    const int32_t units =
        GRCMultiByteToUnicode(bytes_.data() + start, static_cast<int32_t>(end - start), text.data(),
                              static_cast<int32_t>(text.size()));
    text.resize(static_cast<size_t>(std::max(units, 0)));
    return text;
}

std::vector<std::u16string> programNames() {
    const int32_t count = GIOGetDirectory(u".", nullptr, 0);
    std::vector<GDirectoryEntry> entries(static_cast<size_t>(std::max(count, 0)));
    GIOGetDirectory(u".", entries.data(), count);
    std::vector<std::u16string> names;
    for (const GDirectoryEntry& entry : entries) {
        if (looksLikeProgram(entry)) {
            names.emplace_back(entry.name);
        }
    }
    return names;
}

} // namespace panel
