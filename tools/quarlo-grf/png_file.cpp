#include "png_file.h"

#include "failure.h"

#include <png.h>

#include <string>

namespace grf {
namespace {

constexpr png_uint_32 kLongestSide = INT16_MAX;
constexpr size_t kChannels = 4;

/// libpng's view of a picture, given back at the end.
class PngImage {
  public:
    PngImage() {
        image_.version = PNG_IMAGE_VERSION;
        image_.format = PNG_FORMAT_RGBA;
    }
    ~PngImage() { png_image_free(&image_); }
    PngImage(const PngImage&) = delete;
    PngImage& operator=(const PngImage&) = delete;

    png_image* get() { return &image_; }
    png_image* operator->() { return &image_; }

    /// Throws what libpng says unless an operation succeeded.
    void require(int succeeded) const {
        if (succeeded == 0) {
            throw Failure(image_.message);
        }
    }

  private:
    png_image image_{};
};

} // namespace

Picture readPng(std::span<const uint8_t> file) {
    PngImage image;
    image.require(png_image_begin_read_from_memory(image.get(), file.data(), file.size()));
    image->format = PNG_FORMAT_RGBA;
    if (image->width > kLongestSide || image->height > kLongestSide ||
        int64_t{image->width} * image->height > kMostPixels) {
        throw Failure("the picture is too large: " + std::to_string(image->width) + " x " +
                      std::to_string(image->height));
    }
    std::vector<uint8_t> bytes(PNG_IMAGE_SIZE(*image.get()));
    image.require(png_image_finish_read(image.get(), nullptr, bytes.data(), 0, nullptr));
    Picture picture{static_cast<int>(image->width), static_cast<int>(image->height), {}};
    picture.pixels.reserve(bytes.size() / kChannels);
    for (size_t i = 0; i < bytes.size(); i += kChannels) {
        picture.pixels.push_back({bytes[i], bytes[i + 1], bytes[i + 2], bytes[i + 3]});
    }
    return picture;
}

std::vector<uint8_t> writePng(const Picture& picture) {
    PngImage image;
    image->width = static_cast<png_uint_32>(picture.width);
    image->height = static_cast<png_uint_32>(picture.height);
    std::vector<uint8_t> pixels;
    pixels.reserve(picture.pixels.size() * kChannels);
    for (const Color& color : picture.pixels) {
        pixels.insert(pixels.end(), {color.red, color.green, color.blue, color.alpha});
    }
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(*image.get());
    std::vector<uint8_t> file(size);
    image.require(
        png_image_write_to_memory(image.get(), file.data(), &size, 0, pixels.data(), 0, nullptr));
    file.resize(size);
    return file;
}

} // namespace grf
