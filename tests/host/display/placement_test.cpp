#include "display/placement.h"

#include "support/random_calls.h"

#include <gtest/gtest.h>

namespace gpi {

void PrintTo(const Placement& at, std::ostream* out) {
    *out << at.x << ',' << at.y << ' ' << at.width << 'x' << at.height;
}

} // namespace gpi

namespace {

using gpi::place;
using gpi::Placement;

TEST(Placement, FillsAWindowOfItsOwnSize) {
    EXPECT_EQ(place(800, 600, 800, 600), (Placement{0, 0, 800, 600}));
}

TEST(Placement, EnlargesByWholeFactorsAndCentres) {
    EXPECT_EQ(place(800, 600, 1599, 1300), (Placement{399, 350, 800, 600}));
    EXPECT_EQ(place(800, 600, 1700, 1200), (Placement{50, 0, 1600, 1200}));
    EXPECT_EQ(place(100, 100, 1000, 350), (Placement{350, 25, 300, 300}));
}

TEST(Placement, ShrinksToFit) {
    EXPECT_EQ(place(800, 600, 400, 400), (Placement{0, 50, 400, 300}));
    EXPECT_EQ(place(800, 600, 900, 300), (Placement{250, 0, 400, 300}));
    EXPECT_EQ(place(2560, 1, 10, 10), (Placement{0, 4, 10, 1}));
}

TEST(Placement, StaysInsideAnyWindow) {
    quarlo::test::Random random(quarlo::test::testSeed());
    for (int round = 0; round < 100'000; ++round) {
        const int width = random.between(1, 2560);
        const int height = random.between(1, 2560);
        const int windowWidth = random.between(1, 8000);
        const int windowHeight = random.between(1, 8000);
        const Placement at = place(width, height, windowWidth, windowHeight);
        ASSERT_GE(at.x, 0);
        ASSERT_GE(at.y, 0);
        ASSERT_GE(at.width, 1);
        ASSERT_GE(at.height, 1);
        ASSERT_LE(at.x + at.width, windowWidth);
        ASSERT_LE(at.y + at.height, windowHeight);
        if (at.width >= width && at.height >= height) {
            ASSERT_EQ(at.width % width, 0);
            ASSERT_EQ(at.width / width, at.height / height);
        }
    }
}

} // namespace
