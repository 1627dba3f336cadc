#include "pixel_format.h"

#include <gtest/gtest.h>

namespace quarlo::test {
namespace {

using namespace grf;

TEST(GrfPixelFormat, IsKnownByTheNameOfItsSurface) {
    EXPECT_EQ(surfaceNamed("8"), kFormat8);
    EXPECT_EQ(surfaceNamed("555"), kFormat555);
    EXPECT_EQ(surfaceNamed("565"), kFormat565);
    EXPECT_EQ(surfaceNamed("24"), kFormat24);
    EXPECT_EQ(surfaceNamed("palette"), kFormatIndexed);
    EXPECT_EQ(surfaceNamed("16"), std::nullopt);
    EXPECT_EQ(surfaceNamed(""), std::nullopt);
}

TEST(GrfPixelFormat, HasTheBitsOfItsSurface) {
    EXPECT_EQ(kFormat8.bits(), 8);
    EXPECT_EQ(kFormat555.bits(), 16);
    EXPECT_EQ(kFormat565.bits(), 16);
    EXPECT_EQ(kFormat24.bits(), 24);
    EXPECT_EQ(kFormatIndexed.bits(), 8);
    EXPECT_EQ(nameOf(kFormat8), "3-3-2");
    EXPECT_EQ(nameOf(kFormat565), "5-6-5");
}

TEST(GrfPixelFormat, TakesTheUpperBitsOfAColor) {
    const Color color{0xFF, 0x84, 0x1F};
    EXPECT_EQ(valueOf(kFormat8, color), 0xF0U);
    EXPECT_EQ(valueOf(kFormat555, color), 0x7E03U);
    EXPECT_EQ(valueOf(kFormat565, color), 0xFC23U);
    EXPECT_EQ(valueOf(kFormat24, color), 0x1F84FFU);
}

TEST(GrfPixelFormat, ShowsColorsThatBecomeTheSameValueAgain) {
    for (const PixelFormat& format : {kFormat8, kFormat555, kFormat565}) {
        for (uint32_t value = 0; value <= (format.red | format.green | format.blue); ++value) {
            ASSERT_EQ(valueOf(format, colorOf(format, value)), value);
        }
    }
    EXPECT_EQ(colorOf(kFormat24, 0x123456), (Color{0x56, 0x34, 0x12}));
    EXPECT_EQ(colorOf(kFormat565, 0xFFFF), (Color{255, 255, 255}));
}

} // namespace
} // namespace quarlo::test
