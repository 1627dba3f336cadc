#include "jpeg/services.h"

#include "jpeg/picture.h"
#include "platform.h"

#include <sys/stat.h>

namespace gpi {
namespace {

constexpr off_t kMostBytes = 64 << 20;

bool isScale(int32_t scale) {
    return scale == 1 || scale == 2 || scale == 4 || scale == 8;
}

std::vector<uint8_t> contents(const char16_t* path) {
    if (platform().files == nullptr) {
        throw IoError(G_IO_DEVICE);
    }
    const UniqueFd file = openFile(platform().files->root.locate(path), G_OPEN_READ);
    struct stat status {};
    if (fstat(file.get(), &status) != 0) {
        throwSystemError();
    }
    if (status.st_size > kMostBytes) {
        throw IoError(G_IO_TOO_LARGE);
    }
    std::vector<uint8_t> bytes(static_cast<size_t>(status.st_size));
    size_t filled = 0;
    while (filled < bytes.size()) {
        const ssize_t count = read(file.get(), bytes.data() + filled, bytes.size() - filled);
        if (count < 0) {
            throwSystemError();
        }
        if (count == 0) { // it has just become shorter
            break;
        }
        filled += static_cast<size_t>(count);
    }
    bytes.resize(filled);
    return bytes;
}

} // namespace

int32_t getJpegInfo(const char16_t* path, int32_t scale, GJpegInfo* info) {
    if (info == nullptr || !isScale(scale)) {
        return G_IO_ARGUMENT;
    }
    return ioResult([&] {
        *info = jpegInfo(contents(path), scale);
        return 1;
    });
}

int32_t loadJpeg(const char16_t* path, int32_t scale, GVram* surface) {
    if (surface == nullptr || !isScale(scale)) {
        return G_IO_ARGUMENT;
    }
    return ioResult([&] {
        const Picture picture = decodeJpeg(contents(path), scale);
        drawPicture(picture, *surface);
        return picture.whole ? 1 : static_cast<int32_t>(G_IO_DAMAGED);
    });
}

} // namespace gpi
