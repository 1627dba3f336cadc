#include "file/root.h"

#include "file/error.h"
#include "file/path_text.h"

#include <fcntl.h>

namespace gpi {
namespace {

namespace fs = std::filesystem;

/// A program's path as one of the system's, relative to the root.
fs::path relativePath(const char16_t* path) {
    std::u16string text(pathText(path).substr(drivePrefix(path)));
    for (char16_t& unit : text) {
        unit = isSlash(unit) ? u'/' : unit;
    }
    return fs::path(text).relative_path();
}

fs::path withoutLastLink(const fs::path& path) {
    const fs::path name = path.filename();
    if (name.empty() || name == "." || name == "..") {
        throw IoError(G_IO_ARGUMENT);
    }
    return fs::weakly_canonical(path.parent_path()) / name;
}

UniqueFd openFolder(int above, const char* name) {
    // No link is followed here: the path has none left, unless someone has just put one there.
    UniqueFd folder(openat(above, name, O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!folder) {
        throwSystemError();
    }
    return folder;
}

} // namespace

fs::path Root::resolve(const char16_t* path, LastLink last) const {
    const fs::path root = fs::canonical(folder_);
    fs::path target = root / relativePath(path);
    if (!target.has_filename()) { // ends in a slash
        target = target.parent_path();
    }
    target = last == LastLink::Kept ? withoutLastLink(target) : fs::weakly_canonical(target);
    const fs::path relative = target.lexically_relative(root);
    if (relative.empty() || *relative.begin() == "..") {
        throw IoError(G_IO_DENIED);
    }
    if (last == LastLink::Kept && relative == ".") {
        throw IoError(G_IO_ARGUMENT);
    }
    return target;
}

Place Root::locate(const char16_t* path, LastLink last) const {
    const fs::path relative = resolve(path, last).lexically_relative(fs::canonical(folder_));
    Place place{openFolder(AT_FDCWD, fs::canonical(folder_).c_str()), relative.filename()};
    for (const fs::path& name : relative.parent_path()) {
        place.folder = openFolder(place.folder.get(), name.c_str());
    }
    return place;
}

} // namespace gpi
