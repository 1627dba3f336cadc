#include "rgb_image.h"

#include "support/guarded_surface.h"

#include <bit>
#include <iomanip>
#include <memory>
#include <sstream>

#include <stb_image.h>
#include <stb_image_write.h>

namespace quarlo::test {

namespace {

constexpr int kChannels = 3;

/// A channel's bits moved to the top of a byte.
uint32_t channelOf(uint32_t pixel, uint32_t mask) {
    const auto top = static_cast<int>(std::bit_width(mask));
    const uint32_t value = pixel & mask;
    return (top > 8 ? value >> (top - 8) : value << (8 - top)) & 0xFF;
}

uint32_t topBits(int count) {
    return 0xFFU << (8 - count) & 0xFF;
}

constexpr uint32_t kDifferent = 0xFF0000;

uint32_t pale(uint32_t color) {
    return 0xC0C0C0 + (color >> 2 & 0x3F3F3F);
}

RgbImage differenceOf(const RgbImage& actual, const RgbImage& expected) {
    RgbImage difference = expected;
    for (size_t i = 0; i < difference.pixels.size(); ++i) {
        const bool same = actual.pixels[i] == expected.pixels[i];
        difference.pixels[i] = same ? pale(expected.pixels[i]) : kDifferent;
    }
    return difference;
}

std::string color(uint32_t value) {
    std::ostringstream text;
    text << std::hex << std::uppercase << std::setfill('0') << std::setw(6) << value;
    return text.str();
}

} // namespace

std::optional<RgbImage> readPng(const std::filesystem::path& path) {
    RgbImage image;
    const std::unique_ptr<stbi_uc, decltype(&stbi_image_free)> bytes(
        stbi_load(path.c_str(), &image.width, &image.height, nullptr, kChannels), stbi_image_free);
    if (bytes == nullptr) {
        return std::nullopt;
    }
    image.pixels.resize(static_cast<size_t>(image.width) * static_cast<size_t>(image.height));
    const stbi_uc* byte = bytes.get();
    for (uint32_t& pixel : image.pixels) {
        pixel = uint32_t{byte[0]} << 16 | uint32_t{byte[1]} << 8 | byte[2];
        byte += kChannels;
    }
    return image;
}

bool writePng(const RgbImage& image, const std::filesystem::path& path) {
    std::vector<uint8_t> bytes;
    for (const uint32_t pixel : image.pixels) {
        bytes.insert(bytes.end(), {static_cast<uint8_t>(pixel >> 16),
                                   static_cast<uint8_t>(pixel >> 8), static_cast<uint8_t>(pixel)});
    }
    return stbi_write_png(path.c_str(), image.width, image.height, kChannels, bytes.data(),
                          image.width * kChannels) != 0;
}

RgbImage imageOf(const GVram& surface) {
    RgbImage image{surface.width, surface.height, {}};
    for (int y = 0; y < surface.height; ++y) {
        for (int x = 0; x < surface.width; ++x) {
            const uint32_t pixel = pixelAt(surface, x, y);
            image.pixels.push_back(channelOf(pixel, surface.redMask) << 16 |
                                   channelOf(pixel, surface.greenMask) << 8 |
                                   channelOf(pixel, surface.blueMask));
        }
    }
    return image;
}

RgbImage truncated(RgbImage image, ChannelBits bits) {
    const uint32_t mask = topBits(bits.red) << 16 | topBits(bits.green) << 8 | topBits(bits.blue);
    for (uint32_t& pixel : image.pixels) {
        pixel &= mask;
    }
    return image;
}

testing::AssertionResult sameImage(const RgbImage& actual, const RgbImage& expected,
                                   const std::filesystem::path& folder, const std::string& name) {
    if (actual.width != expected.width || actual.height != expected.height) {
        return testing::AssertionFailure()
               << name << " is " << actual.width << " x " << actual.height << ", not "
               << expected.width << " x " << expected.height;
    }
    for (int y = 0; y < actual.height; ++y) {
        for (int x = 0; x < actual.width; ++x) {
            if (actual.at(x, y) == expected.at(x, y)) {
                continue;
            }
            std::filesystem::create_directories(folder);
            const auto picture = folder / (name + ".png");
            const bool written =
                writePng(actual, picture) &&
                writePng(differenceOf(actual, expected), folder / (name + "-difference.png"));
            return testing::AssertionFailure()
                   << name << " differs first at (" << x << ", " << y
                   << "): " << color(actual.at(x, y)) << ", not " << color(expected.at(x, y))
                   << "; see "
                   << (written ? picture.string() : "nothing, " + folder.string() + " refused it");
        }
    }
    return testing::AssertionSuccess();
}

} // namespace quarlo::test
