#include "files.h"

#include "failure.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

namespace grf {
namespace {

constexpr std::string_view kStandard = "-";

[[noreturn]] void failWithReason() {
    throw Failure(std::strerror(errno));
}

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

OpenFile openFile(const std::string& path, const char* mode) {
    OpenFile file(std::fopen(path.c_str(), mode));
    if (file == nullptr) {
        failWithReason();
    }
    return file;
}

std::vector<uint8_t> readAll(std::FILE* file) {
    std::vector<uint8_t> bytes;
    std::array<uint8_t, 65536> part;
    while (const size_t count = std::fread(part.data(), 1, part.size(), file)) {
        bytes.insert(bytes.end(), part.begin(), part.begin() + static_cast<ptrdiff_t>(count));
    }
    if (std::ferror(file) != 0) {
        failWithReason();
    }
    return bytes;
}

void writeAll(std::FILE* file, std::span<const uint8_t> bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size() ||
        std::fflush(file) != 0) {
        failWithReason();
    }
}

} // namespace

std::vector<uint8_t> readFile(const std::string& path) {
    return path == kStandard ? readAll(stdin) : readAll(openFile(path, "rb").get());
}

void writeFile(const std::string& path, std::span<const uint8_t> bytes) {
    if (path == kStandard) {
        writeAll(stdout, bytes);
    } else {
        writeAll(openFile(path, "wb").get(), bytes);
    }
}

void writeFile(const std::string& path, std::string_view text) {
    writeFile(path, std::span(reinterpret_cast<const uint8_t*>(text.data()), text.size()));
}

std::string stemOf(const std::string& path) {
    return path == kStandard ? "image" : std::filesystem::path(path).stem().string();
}

} // namespace grf
