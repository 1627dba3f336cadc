#include "image.h"

#include "failure.h"
#include "pictures.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quarlo::test {
namespace {

using namespace grf;

Picture row(std::vector<Color> pixels) {
    const int width = static_cast<int>(pixels.size());
    return {width, 1, std::move(pixels)};
}

Target packedIn(int bits, std::optional<Color> matte = {}) {
    return {kFormat24, bits, {}, matte};
}

TEST(GrfImageOf, APictureHasTheValuesOfItsSurface) {
    const Image image = imageOf(row({kRed, kWhite}), {kFormat565, 0, {}, {}});
    EXPECT_EQ(image.bits, 16);
    EXPECT_FALSE(image.packed);
    EXPECT_EQ(image.values, (std::vector<uint32_t>{0xF800, 0xFFFF}));
}

TEST(GrfImageOf, APictureDrawsWhatIsHalfOpaque) {
    const auto red = [](uint8_t alpha) { return Color{255, 0, 0, alpha}; };
    const Image image =
        imageOf(row({red(0), red(127), red(128), red(255)}), {kFormat24, 0, {}, {}});
    EXPECT_EQ(image.values, (std::vector<uint32_t>{kClear, kClear, 0x0000FF, 0x0000FF}));
}

TEST(GrfImageOf, APictureIsMixedWithItsMatte) {
    const auto black = [](uint8_t alpha) { return Color{0, 0, 0, alpha}; };
    const Image image = imageOf(row({black(0), black(51), black(204), kWhite}),
                                {kFormat24, 0, {}, Color{255, 255, 255}});
    EXPECT_EQ(image.values, (std::vector<uint32_t>{kClear, 0xCCCCCC, 0x333333, 0xFFFFFF}));
}

TEST(GrfImageOf, WhatShowsNothingButTheMatteIsLeft) {
    const Image image = imageOf(row({{255, 255, 255, 80}}), {kFormat24, 0, {}, kWhite});
    EXPECT_EQ(image.values, (std::vector<uint32_t>{kClear}));
}

TEST(GrfImageOf, APackedPictureHasAPaletteOfItsColors) {
    const Image image = imageOf(row({kRed, kBlue, kRed, kBlack}), packedIn(2));
    EXPECT_TRUE(image.packed);
    EXPECT_EQ(image.bits, 2);
    EXPECT_EQ(image.palette, (std::vector<uint32_t>{0x0000FF, 0xFF0000, 0}));
    EXPECT_EQ(image.values, (std::vector<uint32_t>{0, 1, 0, 2}));
}

TEST(GrfImageOf, ColorsThatTheSurfaceCannotTellApartAreOne) {
    const Image image = imageOf(row({{0, 0, 0}, {1, 2, 3}, {7, 3, 7}}), {kFormat565, 1, {}, {}});
    EXPECT_EQ(image.palette, (std::vector<uint32_t>{0}));
}

TEST(GrfImageOf, NothingAtAllStillHasAPalette) {
    EXPECT_EQ(imageOf(row({kTransparent}), packedIn(8)).palette.size(), 1U);
}

TEST(GrfImageOf, AGivenPaletteIsTaken) {
    Target target{kFormatIndexed, 0, std::vector<Color>{kWhite, kBlack, kRed}, {}};
    const Image image = imageOf(row({kRed, {250, 250, 240}, kTransparent}), target);
    EXPECT_EQ(image.palette, (std::vector<uint32_t>{0xFFFFFF, 0, 0xFF0000}));
    EXPECT_EQ(image.values, (std::vector<uint32_t>{2, 0, kClear}));
    target.palette = std::vector<Color>(257, kRed);
    EXPECT_THROW(imageOf(row({kRed}), target), Failure);
    target.palette->clear();
    EXPECT_THROW(imageOf(row({kRed}), target), Failure);
}

TEST(GrfImageOf, UnitsAreFilledWithTheMatte) {
    // Two pixels a unit: what follows a drawn one in its unit must be drawn, and only that.
    const Picture picture = row({kTransparent, kRed, kTransparent, kTransparent, kRed, kRed,
                                 kTransparent, kRed, kBlue, kRed, kTransparent});
    const Image image = imageOf(picture, packedIn(4, kWhite));
    EXPECT_EQ(pictureOf(image).pixels,
              (std::vector<Color>{kTransparent, kRed, kWhite, kTransparent, kRed, kRed,
                                  kTransparent, kRed, kBlue, kRed, kWhite}));
}

TEST(GrfImageOf, UnitsEndWithTheImage) {
    const Picture picture = row({kRed, kTransparent, kTransparent, kTransparent, kBlue});
    EXPECT_EQ(pictureOf(imageOf(picture, packedIn(8))), picture);
    const Picture opaqueEnd = row({kTransparent, kRed, kBlue, kRed});
    EXPECT_EQ(pictureOf(imageOf(opaqueEnd, packedIn(1))), opaqueEnd);
}

TEST(GrfImageOf, TransparencyInAUnitTakesAMatte) {
    Picture picture{3, 2, {kRed, kRed, kTransparent, kRed, kTransparent, kRed}};
    EXPECT_NO_THROW(imageOf(picture, packedIn(8)));
    try {
        imageOf(picture, packedIn(4));
        FAIL() << "it was taken";
    } catch (const Failure& failure) {
        EXPECT_NE(std::string(failure.what()).find("column 1, row 1 "), std::string::npos)
            << failure.what();
    }
}

TEST(GrfImageOf, ShowsThePictureAsFarAsItsFormatCan) {
    Random random(testSeed());
    for (int round = 0; round < 200; ++round) {
        const Picture picture = randomPicture(random, 20);
        for (const Target& target : allTargets()) {
            const Picture shown = pictureOf(imageOf(picture, target));
            ASSERT_EQ(shown.pixels.size(), picture.pixels.size());
            // An image of what an image shows is that image: nothing is lost a second time.
            EXPECT_EQ(pictureOf(imageOf(shown, target)), shown);
        }
    }
}

} // namespace
} // namespace quarlo::test
