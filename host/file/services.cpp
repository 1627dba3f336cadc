#include "file/services.h"

#include "file/folder.h"
#include "file/path_text.h"
#include "platform.h"

#include <algorithm>

namespace gpi {
namespace {

/// The store of a platform that runs. @throws IoError
FileStore<GFile>& store() {
    if (platform().files == nullptr) {
        throw IoError(G_IO_DEVICE);
    }
    return *platform().files;
}

template <typename Action>
int32_t withFile(GFile* file, Action&& action) {
    return ioResult([&] { return store().with(file, action); });
}

} // namespace

GFile* openFile(const char16_t* path, uint32_t mode, int32_t* error) {
    return ioHandle<GFile>(error, [&] {
        Place place = store().root.locate(path);
        UniqueFd file = openFile(place, mode);
        return store().add(
            std::make_shared<File>(std::move(file), mode, folderToKeep(std::move(place), mode)));
    });
}

int32_t closeFile(GFile* file) {
    return ioResult([&] { return store().close(file, File::Closing::Plain); });
}

int32_t flushAndCloseFile(GFile* file) {
    return ioResult([&] { return store().close(file, File::Closing::Lasting); });
}

int32_t readFile(GFile* file, void* buffer, int32_t size, int32_t* done) {
    return withFile(file, [&](File& open) { return open.read(buffer, size, done); });
}

int32_t writeFile(GFile* file, const void* buffer, int32_t size, int32_t* done) {
    return withFile(file, [&](File& open) { return open.write(buffer, size, done); });
}

int32_t seekFile(GFile* file, int32_t offset, int32_t origin) {
    return withFile(file, [&](File& open) { return open.seek(offset, origin); });
}

int32_t readLine(GFile* file, char* line, int32_t size) {
    return withFile(file, [&](File& open) { return open.readLine(line, size); });
}

int32_t readByte(GFile* file) {
    return withFile(file, [](File& open) { return open.readByte(); });
}

int32_t renameFile(const char16_t* from, const char16_t* to, uint32_t flags) {
    return ioResult([&] {
        const Root& root = store().root;
        renameFile(root.locate(from, Root::LastLink::Kept), root.locate(to, Root::LastLink::Kept),
                   flags);
        return 1;
    });
}

int32_t removeFile(const char16_t* path, uint32_t flags) {
    return ioResult([&] {
        removeFile(store().root.locate(path, Root::LastLink::Kept), flags);
        return 1;
    });
}

int32_t getFileAccess(const char16_t* path, uint32_t wanted, uint32_t* attributes) {
    return ioResult([&] {
        const Place place = store().root.locate(path);
        const uint32_t found = attributesOf(place, statusOf(place));
        if (attributes != nullptr) {
            *attributes = found;
        }
        return (wanted & ~found) == 0 ? 1 : static_cast<int32_t>(G_IO_DENIED);
    });
}

int32_t getFileSize(const char16_t* path, int32_t* size) {
    if (size == nullptr) {
        return G_IO_ARGUMENT;
    }
    const int32_t result = ioResult([&] {
        const auto bytes = statusOf(store().root.locate(path)).st_size;
        *size =
            bytes <= INT32_MAX ? static_cast<int32_t>(bytes) : static_cast<int32_t>(G_IO_TOO_LARGE);
        return *size >= 0 ? 1 : *size;
    });
    *size = result == 1 ? *size : result;
    return result;
}

int32_t getDirectory(const char16_t* path, GDirectoryEntry* entries, int32_t count) {
    if (count < 0 || (entries == nullptr && count > 0)) {
        return G_IO_ARGUMENT;
    }
    return ioResult([&] {
        const auto found = listFolder(store().root, std::u16string(pathText(path)));
        const auto written = std::min(static_cast<size_t>(count), found.size());
        std::copy_n(found.begin(), written, entries);
        return static_cast<int32_t>(found.size());
    });
}

} // namespace gpi
