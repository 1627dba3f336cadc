// Colours in the memory of screens of every make.
#include "display/screen/screen_format.h"

#include "display/pixel_format.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

namespace {

using namespace gpi;

/// The bytes that one colour becomes.
std::vector<int> packed(const ScreenFormat& format, uint32_t rgb) {
    constexpr uint8_t kUntouched = 0xA5;
    std::array<uint8_t, 6> bytes;
    bytes.fill(kUntouched);
    PixelPacker(format).pack(&rgb, 1, bytes.data() + 1);
    const auto count = static_cast<size_t>(format.bytes());
    EXPECT_EQ(bytes[0], kUntouched);
    EXPECT_EQ(bytes[count + 1], kUntouched);
    return {bytes.begin() + 1, bytes.begin() + 1 + static_cast<ptrdiff_t>(count)};
}

using Bytes = std::vector<int>;

TEST(ScreenFormat, HasItsChannelsInAnyOrder) {
    constexpr uint32_t kColor = 0x123456;
    EXPECT_EQ(packed({32, 0xFF0000, 0xFF00, 0xFF}, kColor), (Bytes{0x56, 0x34, 0x12, 0}));
    EXPECT_EQ(packed({32, 0xFF, 0xFF00, 0xFF0000}, kColor), (Bytes{0x12, 0x34, 0x56, 0}));
    EXPECT_EQ(packed({32, 0xFF000000, 0xFF0000, 0xFF00}, kColor), (Bytes{0, 0x56, 0x34, 0x12}));
    EXPECT_EQ(packed({32, 0xFF00, 0xFF0000, 0xFF000000}, kColor), (Bytes{0, 0x12, 0x34, 0x56}));
    EXPECT_EQ(packed({24, 0xFF0000, 0xFF00, 0xFF}, kColor), (Bytes{0x56, 0x34, 0x12}));
    EXPECT_EQ(packed({24, 0xFF, 0xFF00, 0xFF0000}, kColor), (Bytes{0x12, 0x34, 0x56}));
    EXPECT_EQ(packed({16, 0xF800, 0x7E0, 0x1F}, 0xFF0000), (Bytes{0x00, 0xF8}));
    EXPECT_EQ(packed({16, 0x1F, 0x7E0, 0xF800}, 0xFF0000), (Bytes{0x1F, 0x00}));
    EXPECT_EQ(packed({16, 0x1F, 0x7E0, 0xF800}, 0x0000FF), (Bytes{0x00, 0xF8}));
    EXPECT_EQ(packed({16, 0xF00, 0xF0, 0xF}, 0x123456), (Bytes{0x35, 0x01}));
}

TEST(ScreenFormat, SetsBitsThatMakeItOpaque) {
    EXPECT_EQ(packed({32, 0xFF0000, 0xFF00, 0xFF, 0xFF000000}, 0), (Bytes{0, 0, 0, 0xFF}));
    EXPECT_EQ(packed({16, 0x7C00, 0x3E0, 0x1F, 0x8000}, 0), (Bytes{0, 0x80}));
}

/// The value of a channel in a packed pixel.
uint32_t channelIn(const std::vector<int>& bytes, uint32_t mask) {
    uint32_t pixel = 0;
    for (size_t at = 0; at < bytes.size(); ++at) {
        pixel |= static_cast<uint32_t>(bytes[at]) << (8 * at);
    }
    while ((mask & 1) == 0) {
        mask >>= 1;
        pixel >>= 1;
    }
    return pixel & mask;
}

TEST(ScreenFormat, KeepsTheHighBitsOfNarrowChannelsAndFillsWideOnes) {
    const std::array<std::array<int, 3>, 6> orders = {
        {{0, 1, 2}, {0, 2, 1}, {1, 0, 2}, {1, 2, 0}, {2, 0, 1}, {2, 1, 0}}};
    for (const int width : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}) {
        for (const auto& order : orders) {
            std::array<uint32_t, 3> masks{};
            int low = 0;
            for (const int channel : order) {
                masks[static_cast<size_t>(channel)] = ((1U << width) - 1) << low;
                low += width;
            }
            const ScreenFormat format{low <= 16 ? 16 : 32, masks[0], masks[1], masks[2]};
            ASSERT_TRUE(isUsable(format));
            for (uint32_t value = 0; value < 256; ++value) {
                // Full and half full stay what they are, and order is kept.
                const uint32_t expected =
                    width <= 8 ? value / (1U << (8 - width))
                               : value * (1U << (width - 8)) + value / (1U << (16 - width));
                const auto bytes = packed(format, value << 16 | (255 - value) << 8 | value);
                ASSERT_EQ(channelIn(bytes, masks[0]), expected);
                ASSERT_EQ(channelIn(bytes, masks[2]), expected);
            }
            EXPECT_EQ(channelIn(packed(format, 0xFF00), masks[1]), (1U << width) - 1);
            EXPECT_EQ(channelIn(packed(format, 0xFF00), masks[0]), 0U);
        }
    }
}

TEST(ScreenFormat, OfADisplaysOwnKindGivesThePixelsBack) {
    const std::pair<PixelFormat, ScreenFormat> formats[] = {
        {kFormat565, {16, kFormat565.red, kFormat565.green, kFormat565.blue}},
        {kFormat555, {16, kFormat555.red, kFormat555.green, kFormat555.blue}}};
    for (const auto& [display, screen] : formats) {
        const uint32_t all = display.red | display.green | display.blue;
        for (uint32_t pixel = 0; pixel <= 0xFFFF; ++pixel) {
            const auto bytes = packed(screen, rgbOf(display, pixel));
            ASSERT_EQ(static_cast<uint32_t>(bytes[0] | bytes[1] << 8), pixel & all);
        }
    }
}

TEST(ScreenFormat, IsPackedRowByRow) {
    std::vector<uint32_t> rgb;
    for (uint32_t value = 0; value < 37; ++value) {
        rgb.push_back(value * 0x30507);
    }
    for (const ScreenFormat& format :
         {ScreenFormat{16, 0xF800, 0x7E0, 0x1F}, ScreenFormat{24, 0xFF, 0xFF00, 0xFF0000},
          ScreenFormat{32, 0xFF00, 0xFF0000, 0xFF000000}}) {
        const auto bytes = static_cast<size_t>(format.bytes());
        std::vector<uint8_t> row(rgb.size() * bytes + 1, 0xA5);
        PixelPacker(format).pack(rgb.data(), static_cast<int>(rgb.size()), row.data());
        EXPECT_EQ(row.back(), 0xA5);
        for (size_t at = 0; at < rgb.size(); ++at) {
            const auto one = packed(format, rgb[at]);
            EXPECT_TRUE(std::equal(one.begin(), one.end(), row.data() + at * bytes));
        }
    }
}

TEST(ScreenFormat, IsRefusedWhenItMakesNoSense) {
    EXPECT_TRUE(isUsable({16, 0xF800, 0x7E0, 0x1F}));
    EXPECT_TRUE(isUsable({32, 0x3FF00000, 0xFFC00, 0x3FF}));
    for (const ScreenFormat& format : {
             ScreenFormat{8, 0xE0, 0x1C, 0x3},              // a palette, mostly
             ScreenFormat{15, 0x7C00, 0x3E0, 0x1F},         // no whole bytes
             ScreenFormat{0, 0, 0, 0},                      //
             ScreenFormat{64, 0xFF0000, 0xFF00, 0xFF},      //
             ScreenFormat{32, 0, 0xFF00, 0xFF},             // a channel is missing
             ScreenFormat{32, 0xFF0000, 0xFF00, 0xFF00},    // two in one place
             ScreenFormat{32, 0xF0F000, 0xF00, 0xFF},       // one in two pieces
             ScreenFormat{16, 0xFF0000, 0xFF00, 0xFF},      // beyond the pixel
             ScreenFormat{32, 0xFFFF8000, 0x7F00, 0xFF},    // too wide
             ScreenFormat{16, 0x7C00, 0x3E0, 0x1F, 0x10000} // opaque beyond the pixel
         }) {
        EXPECT_FALSE(isUsable(format)) << format.bits << ' ' << format.red;
    }
}

} // namespace
