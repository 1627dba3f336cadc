#include "display/frame.h"
#include "report.h"

#include <png.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>
#include <vector>

namespace gpi {
namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

bool writeWhole(const std::string& path, const Frame& frame) {
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "wb"));
    if (file == nullptr) {
        return false;
    }
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(frame.width);
    image.height = static_cast<png_uint_32>(frame.height);
    int written = 0;
    if (frame.format.palette) {
        image.format = PNG_FORMAT_RGB_COLORMAP;
        image.colormap_entries = static_cast<png_uint_32>(frame.palette.size());
        written = png_image_write_to_stdio(&image, file.get(), 0, frame.pixels.data(), 0,
                                           rgbBytes(frame.palette).data());
    } else {
        image.format = PNG_FORMAT_RGB;
        written =
            png_image_write_to_stdio(&image, file.get(), 0, rgbBytes(frame).data(), 0, nullptr);
    }
    return written != 0 && std::fflush(file.get()) == 0;
}

} // namespace

bool writePng(const Frame& frame, const std::string& path) {
    const std::string fresh = path + ".new";
    if (!writeWhole(fresh, frame) || std::rename(fresh.c_str(), path.c_str()) != 0) {
        report("cannot write the picture " + path + ": " + std::strerror(errno));
        static_cast<void>(std::remove(fresh.c_str()));
        return false;
    }
    return true;
}

} // namespace gpi
