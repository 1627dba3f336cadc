#include "display/damage.h"

#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace {

using namespace gpi;
using quarlo::test::Random;
using quarlo::test::testSeed;

TEST(Damage, HoldsAreasApart) {
    Damage damage;
    EXPECT_TRUE(damage.isEmpty());
    damage.add({0, 0, 9, 9});
    damage.add({100, 100, 109, 109});
    EXPECT_EQ(damage.areas().size(), 2U);
    damage.clear();
    EXPECT_TRUE(damage.isEmpty());
    EXPECT_EQ(damage.areas().size(), 0U);
}

TEST(Damage, IgnoresAreasWithoutPixels) {
    Damage damage;
    damage.add({5, 5, 4, 9});
    EXPECT_TRUE(damage.isEmpty());
}

TEST(Damage, HoldsAnAreaOnce) {
    Damage damage;
    damage.add({10, 10, 19, 19});
    damage.add({12, 12, 14, 14});
    ASSERT_EQ(damage.areas().size(), 1U);
    EXPECT_TRUE(sameArea(damage.areas()[0], {10, 10, 19, 19}));
    damage.add({0, 0, 30, 30});
    ASSERT_EQ(damage.areas().size(), 1U);
    EXPECT_TRUE(sameArea(damage.areas()[0], {0, 0, 30, 30}));
}

TEST(Damage, JoinsNeighboursWhenItIsFull) {
    Damage damage;
    for (size_t at = 0; at < Damage::kMost; ++at) {
        const auto x = static_cast<int16_t>(at * 100);
        damage.add({x, 0, static_cast<int16_t>(x + 9), 9});
    }
    damage.add({312, 0, 319, 9});
    EXPECT_EQ(damage.areas().size(), Damage::kMost);
    const auto joined = [](const GRect& area) { return sameArea(area, {300, 0, 319, 9}); };
    EXPECT_TRUE(std::any_of(damage.areas().begin(), damage.areas().end(), joined));
}

TEST(Damage, LosesNoPixel) {
    Random random(testSeed());
    constexpr int kSize = 64;
    std::array<std::array<bool, kSize>, kSize> changed{};
    Damage damage;
    for (int round = 0; round < 200; ++round) {
        const auto side = [&] { return static_cast<int16_t>(random.bits() % kSize); };
        const int16_t x = side();
        const int16_t y = side();
        const GRect area{x, y, static_cast<int16_t>(std::min(x + side() % 8, kSize - 1)),
                         static_cast<int16_t>(std::min(y + side() % 8, kSize - 1))};
        damage.add(area);
        for (int row = area.top; row <= area.bottom; ++row) {
            for (int column = area.left; column <= area.right; ++column) {
                changed[static_cast<size_t>(row)][static_cast<size_t>(column)] = true;
            }
        }
    }
    for (int y = 0; y < kSize; ++y) {
        for (int x = 0; x < kSize; ++x) {
            const bool held = std::any_of(damage.areas().begin(), damage.areas().end(),
                                          [&](const GRect& area) { return contains(area, x, y); });
            EXPECT_TRUE(held || !changed[static_cast<size_t>(y)][static_cast<size_t>(x)])
                << x << ' ' << y << " seed " << testSeed();
        }
    }
}

} // namespace
