#include "file/folder.h"

#include "file/error.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>

namespace gpi {
namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

std::vector<std::string> namesIn(const Place& place) {
    UniqueFd fd(openat(place.folder.get(), place.name.c_str(),
                       O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    const std::unique_ptr<DIR, CloseFolder> folder(fd ? fdopendir(fd.get()) : nullptr);
    if (folder == nullptr) {
        throwSystemError();
    }
    fd.release();
    std::vector<std::string> names;
    while (const dirent* const entry = readdir(folder.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") {
            names.push_back(name);
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// A name as text; nothing for one that is none.
std::optional<std::u16string> nameText(const std::string& name) {
    try {
        return std::filesystem::path(name).u16string();
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

GDirectoryEntry describe(const Place& place, const std::u16string& name) {
    const struct stat status = statusOf(place);
    GDirectoryEntry entry{};
    name.copy(entry.name, G_NAME_SIZE - 1);
    entry.size = static_cast<uint32_t>(
        std::min<uint64_t>(static_cast<uint64_t>(status.st_size), UINT32_MAX));
    entry.attributes = attributesOf(place, status);
    entry.time = static_cast<uint32_t>(status.st_mtime);
    return entry;
}

} // namespace

struct stat statusOf(const Place& place) {
    struct stat status {};
    if (fstatat(place.folder.get(), place.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
        throwSystemError();
    }
    if (S_ISLNK(status.st_mode)) { // one that leads somewhere was followed
        throw IoError(G_IO_NOT_FOUND);
    }
    return status;
}

uint32_t attributesOf(const Place& place, const struct stat& status) {
    const auto may = [&place](int access) {
        return faccessat(place.folder.get(), place.name.c_str(), access, 0) == 0;
    };
    const bool writable = (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
    return static_cast<uint32_t>(
        (may(R_OK) ? G_FILE_READABLE : 0) | (writable && may(W_OK) ? G_FILE_WRITABLE : 0) |
        (may(X_OK) ? G_FILE_EXECUTABLE : 0) | (S_ISDIR(status.st_mode) ? G_FILE_DIRECTORY : 0));
}

std::vector<GDirectoryEntry> listFolder(const Root& root, const std::u16string& path) {
    std::vector<GDirectoryEntry> entries;
    for (const std::string& name : namesIn(root.locate(path.c_str()))) {
        const auto text = nameText(name);
        if (!text) {
            continue;
        }
        try {
            entries.push_back(describe(root.locate((path + u'/' + *text).c_str()), *text));
        } catch (const IoError&) {
            // A link that leads out or nowhere, or a file that has just gone.
        }
    }
    return entries;
}

namespace {

bool rename(const Place& from, const Place& to) {
    return renameat(from.folder.get(), from.name.c_str(), to.folder.get(), to.name.c_str()) == 0;
}

/// False also where the new name is taken.
bool renameToNew(const Place& from, const Place& to) {
#ifdef RENAME_NOREPLACE
    return renameat2(from.folder.get(), from.name.c_str(), to.folder.get(), to.name.c_str(),
                     RENAME_NOREPLACE) == 0;
#else // in a page, where nobody else could take it meanwhile
    struct stat taken {};
    if (fstatat(to.folder.get(), to.name.c_str(), &taken, AT_SYMLINK_NOFOLLOW) == 0) {
        errno = EEXIST;
        return false;
    }
    return rename(from, to);
#endif
}

} // namespace

void renameFile(const Place& from, const Place& to, uint32_t flags) {
    if ((flags & ~static_cast<uint32_t>(G_RENAME_REPLACE)) != 0) {
        throw IoError(G_IO_ARGUMENT);
    }
    const bool replaces = (flags & G_RENAME_REPLACE) != 0;
    if (!(replaces ? rename(from, to) : renameToNew(from, to))) {
        throwSystemError();
    }
}

void removeFile(const Place& place, uint32_t flags) {
    if ((flags & ~static_cast<uint32_t>(G_REMOVE_DIRECTORY)) != 0) {
        throw IoError(G_IO_ARGUMENT);
    }
    const int folder = place.folder.get();
    if (unlinkat(folder, place.name.c_str(), 0) == 0 ||
        (errno == EISDIR && (flags & G_REMOVE_DIRECTORY) != 0 &&
         unlinkat(folder, place.name.c_str(), AT_REMOVEDIR) == 0)) {
        return;
    }
    throwSystemError();
}

} // namespace gpi
