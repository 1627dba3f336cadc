#include "file/file.h"

#include "file/error.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

namespace gpi {
namespace {

constexpr uint32_t kAllModes =
    G_OPEN_READ | G_OPEN_WRITE | G_OPEN_CREATE | G_OPEN_TRUNCATE | G_OPEN_APPEND | G_OPEN_EXCLUSIVE;
constexpr uint32_t kWritingModes = G_OPEN_CREATE | G_OPEN_TRUNCATE | G_OPEN_APPEND;

bool makesSense(uint32_t mode) {
    const bool writes = (mode & G_OPEN_WRITE) != 0;
    return (mode & ~kAllModes) == 0 && (mode & (G_OPEN_READ | G_OPEN_WRITE)) != 0 &&
           (writes || (mode & kWritingModes) == 0) &&
           ((mode & G_OPEN_EXCLUSIVE) == 0 || (mode & G_OPEN_CREATE) != 0);
}

int systemFlags(uint32_t mode) {
    const bool reads = (mode & G_OPEN_READ) != 0;
    const bool writes = (mode & G_OPEN_WRITE) != 0;
    // Without O_NONBLOCK opening a pipe would wait for its other end.
    return (reads && writes ? O_RDWR : (writes ? O_WRONLY : O_RDONLY)) |
           ((mode & G_OPEN_CREATE) != 0 ? O_CREAT : 0) |
           ((mode & G_OPEN_EXCLUSIVE) != 0 ? O_EXCL : 0) |
           ((mode & G_OPEN_APPEND) != 0 ? O_APPEND : 0) | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
}

const char* streamMode(uint32_t mode) {
    if ((mode & G_OPEN_WRITE) == 0) {
        return "r";
    }
    if ((mode & G_OPEN_APPEND) != 0) {
        return (mode & G_OPEN_READ) != 0 ? "a+" : "a";
    }
    return (mode & G_OPEN_READ) != 0 ? "r+" : "w";
}

} // namespace

UniqueFd openFile(const Place& place, uint32_t mode) {
    if (!makesSense(mode)) {
        throw IoError(G_IO_ARGUMENT);
    }
    UniqueFd file(openat(place.folder.get(), place.name.c_str(), systemFlags(mode), 0666));
    if (!file) {
        throw IoError(errno == EISDIR ? G_IO_UNSUPPORTED : ioErrorOf(errno));
    }
    struct stat status {};
    if (fstat(file.get(), &status) != 0) {
        throwSystemError();
    }
    if (!S_ISREG(status.st_mode)) {
        throw IoError(G_IO_UNSUPPORTED);
    }
    // The superuser may write any file; one that nobody may write stays as it is all the same.
    if ((mode & G_OPEN_WRITE) != 0 && (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) {
        throw IoError(G_IO_READ_ONLY);
    }
    return file;
}

UniqueFd folderToKeep(Place place, uint32_t mode) {
    return (mode & G_OPEN_CREATE) != 0 ? std::move(place.folder) : UniqueFd();
}

File::File(UniqueFd file, uint32_t mode, UniqueFd folder)
    : mode_(mode), folder_(std::move(folder)) {
    if ((mode & G_OPEN_TRUNCATE) != 0 && ftruncate(file.get(), 0) != 0) {
        throwSystemError();
    }
    stream_.reset(fdopen(file.get(), streamMode(mode)));
    if (stream_ == nullptr) {
        throwSystemError();
    }
    file.release();
}

void File::turn(Direction next) {
    if (direction_ != Direction::None && direction_ != next) {
        fseeko(stream_.get(), 0, SEEK_CUR);
    }
    direction_ = next;
    std::clearerr(stream_.get());
    errno = 0;
}

int32_t File::failure() const {
    return std::ferror(stream_.get()) != 0 ? ioErrorOf(errno) : 1;
}

int32_t File::read(void* buffer, int32_t size, int32_t* done) {
    if (done != nullptr) {
        *done = 0;
    }
    if (buffer == nullptr || size < 0) {
        return G_IO_ARGUMENT;
    }
    if ((mode_ & G_OPEN_READ) == 0) {
        return G_IO_DENIED;
    }
    const std::lock_guard lock(mutex_);
    turn(Direction::Reading);
    const size_t count = std::fread(buffer, 1, static_cast<size_t>(size), stream_.get());
    if (done != nullptr) {
        *done = static_cast<int32_t>(count);
    }
    return failure();
}

int32_t File::write(const void* buffer, int32_t size, int32_t* done) {
    if (done != nullptr) {
        *done = 0;
    }
    if (buffer == nullptr || size < 0) {
        return G_IO_ARGUMENT;
    }
    if ((mode_ & G_OPEN_WRITE) == 0) {
        return G_IO_DENIED;
    }
    const std::lock_guard lock(mutex_);
    turn(Direction::Writing);
    const size_t count = std::fwrite(buffer, 1, static_cast<size_t>(size), stream_.get());
    if (done != nullptr) {
        *done = static_cast<int32_t>(count);
    }
    return failure();
}

int32_t File::seek(int32_t offset, int32_t origin) {
    constexpr int kOrigins[] = {SEEK_SET, SEEK_CUR, SEEK_END};
    if (origin < G_SEEK_START || origin > G_SEEK_END) {
        return G_IO_ARGUMENT;
    }
    const std::lock_guard lock(mutex_);
    direction_ = Direction::None; // after a seek either may follow
    const off_t before = ftello(stream_.get());
    if (fseeko(stream_.get(), offset, kOrigins[origin]) != 0) {
        return ioErrorOf(errno);
    }
    const off_t position = ftello(stream_.get());
    if (position > INT32_MAX) {
        fseeko(stream_.get(), before, SEEK_SET);
        return G_IO_TOO_LARGE;
    }
    return static_cast<int32_t>(position);
}

int32_t File::readLine(char* line, int32_t size) {
    if (line == nullptr || size < 2) {
        return G_IO_ARGUMENT;
    }
    if ((mode_ & G_OPEN_READ) == 0) {
        return G_IO_DENIED;
    }
    const std::lock_guard lock(mutex_);
    turn(Direction::Reading);
    int32_t count = 0;
    for (int byte = 0; count < size - 1 && byte != '\n'; ++count) {
        byte = getc_unlocked(stream_.get());
        if (byte == EOF) {
            break;
        }
        line[count] = static_cast<char>(byte);
    }
    line[count] = '\0';
    const int32_t result = failure();
    return result == 1 ? count : result;
}

int32_t File::readByte() {
    if ((mode_ & G_OPEN_READ) == 0) {
        return G_IO_DENIED;
    }
    const std::lock_guard lock(mutex_);
    turn(Direction::Reading);
    const int byte = getc_unlocked(stream_.get());
    if (byte != EOF) {
        return byte;
    }
    const int32_t result = failure();
    return result == 1 ? static_cast<int32_t>(G_IO_END) : result;
}

int32_t File::close(Closing closing) {
    const std::lock_guard lock(mutex_);
    int32_t result = 1;
    if (std::fflush(stream_.get()) != 0 ||
        (closing == Closing::Lasting && fsync(fileno(stream_.get())) != 0)) {
        result = ioErrorOf(errno);
    }
    if (std::fclose(stream_.release()) != 0 && result == 1) {
        result = ioErrorOf(errno);
    }
    if (closing == Closing::Lasting && folder_ && result == 1) {
        const UniqueFd folder(openat(folder_.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        if (!folder || fsync(folder.get()) != 0) {
            result = ioErrorOf(errno);
        }
    }
    return result;
}

} // namespace gpi
