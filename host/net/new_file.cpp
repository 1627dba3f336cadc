#include "net/new_file.h"

#include "file/error.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>

namespace gpi {
namespace {

/// Like no other's, of this and other programs.
std::string freshName() {
    static std::atomic<unsigned> count = 0;
    return ".quarlo-" + std::to_string(getpid()) + '-' + std::to_string(count++) + ".new";
}

} // namespace

void requireFree(const Place& place, bool replace) {
    struct stat old {};
    if (fstatat(place.folder.get(), place.name.c_str(), &old, AT_SYMLINK_NOFOLLOW) != 0) {
        return;
    }
    if (!replace) {
        throw IoError(G_IO_EXISTS);
    }
    if ((old.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) {
        throw IoError(G_IO_READ_ONLY);
    }
}

NewFile::NewFile(Place place)
    : place_(std::move(place)),
      name_(freshName()),
      file_(openat(place_.folder.get(), name_.c_str(),
                   O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666)) {
    if (!file_) {
        throwSystemError();
    }
}

NewFile::~NewFile() {
    if (!name_.empty()) {
        unlinkat(place_.folder.get(), name_.c_str(), 0);
    }
}

void NewFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(file_.get(), bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR) {
            throwSystemError();
        }
        bytes.remove_prefix(static_cast<size_t>(std::max<ssize_t>(count, 0)));
    }
}

void NewFile::become(End end) {
    struct stat status {};
    const mode_t writing = S_IWUSR | S_IWGRP | S_IWOTH;
    if ((end.readOnly && (fstat(file_.get(), &status) != 0 ||
                          fchmod(file_.get(), status.st_mode & ~writing & 07777) != 0)) ||
        fsync(file_.get()) != 0 ||
        renameat2(place_.folder.get(), name_.c_str(), place_.folder.get(), place_.name.c_str(),
                  end.replace ? 0 : RENAME_NOREPLACE) != 0) {
        throwSystemError();
    }
    name_.clear();
}

} // namespace gpi
