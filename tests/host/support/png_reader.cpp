#include "support/png_reader.h"

#include <gtest/gtest.h>
#include <png.h>

#include <cstdio>
#include <memory>

namespace gpi::test {
namespace {

uint32_t rgb(unsigned red, unsigned green, unsigned blue) {
    return red << 16 | green << 8 | blue;
}

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

} // namespace

PngPicture readPng(const std::string& path) {
    PngPicture picture;
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "rb"));
    if (file == nullptr) {
        ADD_FAILURE() << "no file " << path;
        return picture;
    }
    png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_init_io(png, file.get());
    png_read_png(png, info, PNG_TRANSFORM_IDENTITY, nullptr);
    EXPECT_EQ(png_get_bit_depth(png, info), 8);
    picture.width = static_cast<int>(png_get_image_width(png, info));
    picture.height = static_cast<int>(png_get_image_height(png, info));
    picture.palette = png_get_color_type(png, info) == PNG_COLOR_TYPE_PALETTE;
    png_colorp colors = nullptr;
    int count = 0;
    if (picture.palette && png_get_PLTE(png, info, &colors, &count) != 0) {
        for (int index = 0; index < count; ++index) {
            picture.colors.push_back(
                rgb(colors[index].red, colors[index].green, colors[index].blue));
        }
    }
    const png_bytepp rows = png_get_rows(png, info);
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            const png_bytep at = rows[y] + (picture.palette ? x : x * 3);
            picture.pixels.push_back(picture.palette ? at[0] : rgb(at[0], at[1], at[2]));
        }
    }
    png_destroy_read_struct(&png, &info, nullptr);
    return picture;
}

} // namespace gpi::test
