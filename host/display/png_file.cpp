#include "display/area.h"
#include "display/frame.h"
#include "report.h"

#include <png.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>

namespace gpi {
namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

void setPalette(png_structp png, png_infop info, const Palette& palette) {
    std::array<png_color, 256> colors{};
    for (size_t index = 0; index < palette.size(); ++index) {
        colors[index] = {static_cast<png_byte>(palette[index] >> 16),
                         static_cast<png_byte>(palette[index] >> 8),
                         static_cast<png_byte>(palette[index])};
    }
    png_set_PLTE(png, info, colors.data(), static_cast<int>(colors.size()));
}

/// The frame's pixels as PNG rows: indexes as they are, direct colours as red, green, blue.
std::vector<uint8_t> rowBytes(const Frame& frame) {
    if (frame.format.palette) {
        return frame.pixels;
    }
    const auto count = static_cast<size_t>(frame.width) * static_cast<size_t>(frame.height);
    std::vector<uint32_t> rgb(count);
    convertToRgb(frame, wholeArea(frame.width, frame.height), rgb);
    std::vector<uint8_t> bytes;
    bytes.reserve(count * 3);
    for (const uint32_t color : rgb) {
        bytes.insert(bytes.end(), {static_cast<uint8_t>(color >> 16),
                                   static_cast<uint8_t>(color >> 8), static_cast<uint8_t>(color)});
    }
    return bytes;
}

[[noreturn]] void fail(png_structp png, png_const_charp /*message*/) {
    png_longjmp(png, 1);
}

void ignore(png_structp /*png*/, png_const_charp /*message*/) {}

/// libpng leaves by a long jump when it fails, so nothing with a destructor lives here.
bool encode(std::FILE* file, const Frame& frame, uint8_t* const* rows) {
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, ignore);
    png_infop info = png != nullptr ? png_create_info_struct(png) : nullptr;
    if (info == nullptr || setjmp(png_jmpbuf(png)) != 0) {
        png_destroy_write_struct(&png, &info);
        return false;
    }
    png_init_io(png, file);
    png_set_IHDR(png, info, static_cast<png_uint_32>(frame.width),
                 static_cast<png_uint_32>(frame.height), 8,
                 frame.format.palette ? PNG_COLOR_TYPE_PALETTE : PNG_COLOR_TYPE_RGB,
                 PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (frame.format.palette) {
        setPalette(png, info, frame.palette);
    }
    png_write_info(png, info);
    png_write_image(png, const_cast<png_bytepp>(rows));
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return true;
}

bool writeWhole(const std::string& path, const Frame& frame) {
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "wb"));
    if (file == nullptr) {
        return false;
    }
    auto bytes = rowBytes(frame);
    const size_t length = bytes.size() / static_cast<size_t>(frame.height);
    std::vector<uint8_t*> rows;
    for (int y = 0; y < frame.height; ++y) {
        rows.push_back(bytes.data() + static_cast<size_t>(y) * length);
    }
    return encode(file.get(), frame, rows.data()) && std::fflush(file.get()) == 0;
}

} // namespace

bool writePng(const Frame& frame, const std::string& path) {
    const std::string fresh = path + ".new";
    if (!writeWhole(fresh, frame) || std::rename(fresh.c_str(), path.c_str()) != 0) {
        report("cannot write the picture " + path + ": " + std::strerror(errno));
        std::remove(fresh.c_str());
        return false;
    }
    return true;
}

} // namespace gpi
