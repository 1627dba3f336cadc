#include "data_server/services.h"

#include "file/folder.h"
#include "file/lock.h"
#include "platform.h"

#include <fcntl.h>

namespace gpi {
namespace {

/// The store of a platform that runs. @throws IoError
FileStore<GDataFile>& store() {
    if (platform().dataServer == nullptr) {
        throw IoError(G_IO_DEVICE);
    }
    return *platform().dataServer;
}

template <typename Action>
int32_t withFile(GDataFile* file, Action&& action) {
    return ioResult([&] { return store().with(file, action); });
}

/// Sets room aside, filled with zeros.
void reserve(int file, int32_t size) {
    const int failure = size > 0 ? posix_fallocate(file, 0, size) : 0;
    if (failure != 0) {
        throw IoError(ioErrorOf(failure));
    }
}

} // namespace

GDataFile* openDataFile(const char16_t* path, uint32_t mode, int32_t wait, int32_t* error) {
    return ioHandle<GDataFile>(error, [&] {
        if (wait < -1) {
            throw IoError(G_IO_ARGUMENT);
        }
        Place place = store().root.locate(path);
        UniqueFd file = openFile(place, mode);
        const bool writes = (mode & G_OPEN_WRITE) != 0;
        lockFile(file.get(), writes ? Sharing::OneWriter : Sharing::Readers, wait);
        return store().add(
            std::make_shared<File>(std::move(file), mode, folderToKeep(std::move(place), mode)));
    });
}

GDataFile* createDataFile(const char16_t* path, int32_t size, uint32_t mode, int32_t* error) {
    return ioHandle<GDataFile>(error, [&] {
        if (size < 0 || (mode & ~static_cast<uint32_t>(G_OPEN_TRUNCATE)) != 0) {
            throw IoError(G_IO_ARGUMENT);
        }
        const uint32_t made = G_OPEN_READ | G_OPEN_WRITE | G_OPEN_CREATE |
                              (mode != 0 ? mode : static_cast<uint32_t>(G_OPEN_EXCLUSIVE));
        Place place = store().root.locate(path);
        UniqueFd descriptor = openFile(place, made);
        lockFile(descriptor.get(), Sharing::OneWriter, 0);
        const int fd = descriptor.get();
        auto file = std::make_shared<File>(std::move(descriptor), made);
        try {
            reserve(fd, size);
        } catch (const IoError&) {
            removeFile(place, 0);
            throw;
        }
        return store().add(std::move(file));
    });
}

int32_t closeDataFile(GDataFile* file) {
    return ioResult([&] { return store().close(file, File::Closing::Plain); });
}

int32_t readDataFile(GDataFile* file, void* buffer, int32_t size, int32_t* done) {
    return withFile(file, [&](File& open) { return open.read(buffer, size, done); });
}

int32_t writeDataFile(GDataFile* file, const void* buffer, int32_t size, int32_t* done) {
    return withFile(file, [&](File& open) { return open.write(buffer, size, done); });
}

int32_t seekDataFile(GDataFile* file, int32_t offset, int32_t origin) {
    return withFile(file, [&](File& open) { return open.seek(offset, origin); });
}

int32_t getDataFileSize(const char16_t* path, uint32_t* low, uint32_t* high, int32_t* error) {
    const int32_t result = ioResult([&] {
        if (low == nullptr) {
            throw IoError(G_IO_ARGUMENT);
        }
        const auto bytes = static_cast<uint64_t>(statusOf(store().root.locate(path)).st_size);
        *low = static_cast<uint32_t>(bytes);
        if (high != nullptr) {
            *high = static_cast<uint32_t>(bytes >> 32);
        }
        return 1;
    });
    if (error != nullptr) {
        *error = result;
    }
    return result;
}

int32_t renameDataFile(const char16_t* from, const char16_t* to, uint32_t flags) {
    return ioResult([&] {
        const Root& root = store().root;
        renameFile(root.locate(from, Root::LastLink::Kept), root.locate(to, Root::LastLink::Kept),
                   flags);
        return 1;
    });
}

int32_t removeDataFile(const char16_t* path, uint32_t flags) {
    return ioResult([&] {
        removeFile(store().root.locate(path, Root::LastLink::Kept), flags);
        return 1;
    });
}

} // namespace gpi
