#include "png_file.h"

#include "failure.h"
#include "pictures.h"

#include <png.h>

#include <gtest/gtest.h>

namespace quarlo::test {
namespace {

using namespace grf;

TEST(GrfPngFile, GivesBackWhatWasWritten) {
    Random random(testSeed());
    for (int round = 0; round < 50; ++round) {
        const Picture picture = randomPicture(random, 40);
        EXPECT_EQ(readPng(writePng(picture)), picture);
    }
}

TEST(GrfPngFile, OfAnyPrefixIsRefused) {
    const auto file = writePng({5, 4, std::vector<Color>(20, kRed)});
    constexpr size_t kEndChunk = 12; // nothing that libpng waits for
    for (size_t size = 0; size < file.size() - kEndChunk; ++size) {
        EXPECT_THROW(readPng(std::span(file).first(size)), Failure) << size;
    }
}

TEST(GrfPngFile, WithAnyByteDamagedIsRefusedOrRead) {
    const auto file = writePng({5, 4, std::vector<Color>(20, kRed)});
    int refused = 0;
    for (size_t at = 0; at < file.size(); ++at) {
        auto damaged = file;
        damaged[at] = static_cast<uint8_t>(~damaged[at]);
        try {
            EXPECT_EQ(readPng(damaged).pixels.size(), 20U);
        } catch (const Failure&) {
            ++refused;
        }
    }
    EXPECT_GT(refused, 60);
}

/// A PNG file of one grey row, as long as asked for.
std::vector<uint8_t> grayRow(uint32_t width) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.format = PNG_FORMAT_GRAY;
    image.width = width;
    image.height = 1;
    const std::vector<uint8_t> pixels(width);
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    std::vector<uint8_t> file(size);
    png_image_write_to_memory(&image, file.data(), &size, 0, pixels.data(), 0, nullptr);
    file.resize(size);
    return file;
}

TEST(GrfPngFile, IsAsLargeAsAnImageCanBe) {
    EXPECT_EQ(readPng(grayRow(32767)).width, 32767);
    EXPECT_THROW(readPng(grayRow(32768)), Failure);
}

} // namespace
} // namespace quarlo::test
