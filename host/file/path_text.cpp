#include "file/path_text.h"

#include "file/error.h"

#include <quarlo/file.h>

namespace gpi {
namespace {

constexpr bool isLetter(char16_t unit) {
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

} // namespace

std::u16string_view pathText(const char16_t* path) {
    if (path == nullptr) {
        throw IoError(G_IO_ARGUMENT);
    }
    size_t units = 0;
    while (path[units] != u'\0') {
        if (++units == G_PATH_SIZE) {
            throw IoError(G_IO_TOO_LARGE);
        }
    }
    return {path, units};
}

size_t drivePrefix(std::u16string_view path) {
    return path.size() >= 2 && isLetter(path[0]) && path[1] == u':' ? 2 : 0;
}

} // namespace gpi
