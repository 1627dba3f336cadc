#include "palette.h"

#include "pictures.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quarlo::test {
namespace {

using namespace grf;

std::vector<Color> grays(int count, int step) {
    std::vector<Color> colors;
    for (int i = 0; i < count; ++i) {
        const auto level = static_cast<uint8_t>(i * step);
        colors.push_back({level, level, level});
    }
    return colors;
}

TEST(GrfPalette, HasEachColorOnceInTheOrderOfItsFirstUse) {
    const std::vector<Color> colors = {kWhite, kRed, kWhite, kBlack, kRed};
    EXPECT_EQ(distinct(colors), (std::vector<Color>{kWhite, kRed, kBlack}));
    EXPECT_EQ(chooseColors(colors, 3), (std::vector<Color>{kWhite, kRed, kBlack}));
    EXPECT_TRUE(chooseColors({}, 3).empty());
}

TEST(GrfPalette, HasMeansOfColorsThatAreTooMany) {
    EXPECT_EQ(chooseColors(grays(10, 10), 2), (std::vector<Color>{{20, 20, 20}, {70, 70, 70}}));
    EXPECT_EQ(chooseColors(grays(256, 1), 16).size(), 16U);
}

TEST(GrfPalette, KeepsAColorThatManyPixelsHave) {
    std::vector<Color> colors = grays(8, 1); // 28 in the sum
    colors.insert(colors.end(), 3, kWhite);
    EXPECT_EQ(chooseColors(colors, 1), (std::vector<Color>{kWhite}));
    colors.pop_back();
    EXPECT_EQ(chooseColors(colors, 1), (std::vector<Color>{{54, 54, 54}}));
}

TEST(GrfPalette, SplitsWhereColorsDifferMost) {
    std::vector<Color> colors;
    for (int i = 0; i < 16; ++i) {
        colors.push_back({static_cast<uint8_t>(i), static_cast<uint8_t>(i % 2 * 200), 0});
    }
    for (const Color& color : chooseColors(colors, 2)) {
        EXPECT_TRUE(color.green == 0 || color.green == 200);
    }
}

TEST(GrfPalette, FindsTheNearestColor) {
    const std::vector<Color> palette = {kBlack, kRed, kWhite};
    EXPECT_EQ(nearest(palette, {10, 20, 30}), 0U);
    EXPECT_EQ(nearest(palette, {200, 60, 30}), 1U);
    EXPECT_EQ(nearest(palette, {200, 200, 190}), 2U);
}

} // namespace
} // namespace quarlo::test
