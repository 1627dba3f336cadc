#include "program_file.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

namespace toolpath {
namespace {

// A device can be read from without end.
constexpr size_t kLargestFile = size_t{256} << 20;

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

} // namespace

std::optional<std::string> readProgramFile(const char* path, std::string& reason) {
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path, "rb"));
    if (!file) {
        reason = std::strerror(errno);
        return std::nullopt;
    }
    std::string text;
    std::array<char, 65536> buffer;
    while (const size_t got = std::fread(buffer.data(), 1, buffer.size(), file.get())) {
        text.append(buffer.data(), got);
        if (text.size() > kLargestFile) {
            reason = "it is larger than 256 MiB";
            return std::nullopt;
        }
    }
    if (std::ferror(file.get()) != 0) {
        reason = std::strerror(errno);
        return std::nullopt;
    }
    return text;
}

} // namespace toolpath
