// Pictures in colour: read from and written to PNG files, brought down to other formats, compared.
#pragma once

#include <quarlo/surface.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <vector>

namespace quarlo::test {

/// A picture of 0x00RRGGBB pixels, row by row.
struct RgbImage {
    int width = 0;
    int height = 0;
    std::vector<uint32_t> pixels;

    uint32_t at(int x, int y) const {
        return pixels[static_cast<size_t>(y) * static_cast<size_t>(width) + static_cast<size_t>(x)];
    }
};

/// The top bits of each channel that a format keeps.
struct ChannelBits {
    int red;
    int green;
    int blue;
};

std::optional<RgbImage> readPng(const std::filesystem::path& path);
bool writePng(const RgbImage& image, const std::filesystem::path& path);

/// The picture of a direct-colour surface. The bits that its channels lack are zero.
RgbImage imageOf(const GVram& surface);

/// The picture with all bits cleared that a format does not keep.
RgbImage truncated(RgbImage image, ChannelBits bits);

/// Whether two pictures are the same. If not, the first pixel that differs is named, and the
/// actual picture is written to `folder` as NAME.png, with the pixels that differ in red on a pale
/// expected picture as NAME-difference.png.
testing::AssertionResult sameImage(const RgbImage& actual, const RgbImage& expected,
                                   const std::filesystem::path& folder, const std::string& name);

} // namespace quarlo::test
