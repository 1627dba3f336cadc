#include "profile/profile_folder.h"

#include "file/error.h"
#include "file/lock.h"
#include "file/path_text.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

namespace gpi {
namespace {

constexpr size_t kMostBytes = 1 << 20;

UniqueFd openToRead(const Place& place) {
    return UniqueFd(openat(place.folder.get(), place.name.c_str(),
                           O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
}

std::string readAll(int file) {
    std::string bytes;
    char piece[4096];
    while (const ssize_t count = ::read(file, piece, sizeof piece)) {
        if (count < 0) {
            throwSystemError();
        }
        bytes.append(piece, static_cast<size_t>(count));
        if (bytes.size() > kMostBytes) {
            throw IoError(G_IO_TOO_LARGE);
        }
    }
    return bytes;
}

void writeAll(int file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(file, bytes.data(), bytes.size());
        if (count < 0 && errno != EINTR) {
            throwSystemError();
        }
        bytes.remove_prefix(static_cast<size_t>(std::max<ssize_t>(count, 0)));
    }
}

/// The document of a file, and an empty one where there is none.
ProfileDocument load(const Place& place, const char* codePage) {
    const UniqueFd file = openToRead(place);
    if (!file && errno == ENOENT) {
        return {};
    }
    if (!file) {
        throwSystemError();
    }
    return ProfileDocument(readAll(file.get()), codePage);
}

/// Writes a new file beside the old one and has it take the old one's name once it is on the
/// medium.
void replace(const Place& place, int folder, const std::string& bytes) {
    const std::string fresh = place.name + ".new";
    const UniqueFd file(
        openat(folder, fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0666));
    if (!file) {
        throwSystemError();
    }
    struct stat old {};
    if (fstatat(folder, place.name.c_str(), &old, AT_SYMLINK_NOFOLLOW) == 0 &&
        fchmod(file.get(), old.st_mode & 07777) != 0) {
        throwSystemError();
    }
    writeAll(file.get(), bytes);
    if (fsync(file.get()) != 0 ||
        renameat(folder, fresh.c_str(), folder, place.name.c_str()) != 0 || fsync(folder) != 0) {
        throwSystemError();
    }
}

} // namespace

ProfileFolder::ProfileFolder(std::filesystem::path folder, const char* codePage)
    : folder_(std::move(folder)), codePage_(codePage), root_(folder_) {}

Place ProfileFolder::locate(const char16_t* file) const {
    const std::u16string_view name = pathText(file);
    if (name.empty() || name.find_first_of(u"/\\:") != name.npos || name.starts_with(u'.')) {
        throw IoError(G_IO_DENIED);
    }
    return root_.locate(file);
}

ProfileFolder::Stamp ProfileFolder::stampOf(int file) {
    struct stat status {};
    if (fstat(file, &status) != 0) {
        throwSystemError();
    }
    if (!S_ISREG(status.st_mode)) {
        throw IoError(G_IO_UNSUPPORTED);
    }
    return {status.st_ino, status.st_mtim.tv_sec, status.st_mtim.tv_nsec, status.st_size};
}

std::shared_ptr<const ProfileDocument> ProfileFolder::read(const char16_t* file) {
    static const auto empty = std::make_shared<const ProfileDocument>();
    if (!std::filesystem::exists(folder_)) {
        return empty;
    }
    const Place place = locate(file);
    const UniqueFd descriptor = openToRead(place);
    if (!descriptor && errno == ENOENT) {
        return empty;
    }
    if (!descriptor) {
        throwSystemError();
    }
    const Stamp stamp = stampOf(descriptor.get());
    const std::lock_guard lock(mutex_);
    Known& known = known_[place.name];
    if (known.stamp != stamp) {
        known.document =
            std::make_shared<const ProfileDocument>(readAll(descriptor.get()), codePage_);
        known.stamp = stamp;
    }
    return known.document;
}

void ProfileFolder::change(const char16_t* file,
                           const std::function<void(ProfileDocument&)>& action) {
    std::filesystem::create_directories(folder_);
    const Place place = locate(file);
    const UniqueFd folder(openat(place.folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder) {
        throwSystemError();
    }
    lockFile(folder.get(), Sharing::OneWriter, -1); // until the folder is closed
    ProfileDocument document = load(place, codePage_);
    action(document);
    replace(place, folder.get(), document.bytes());
}

} // namespace gpi
