#include "raster/drawing.h"

#include "support/random_calls.h"

#include <vector>

using namespace quarlo::test;

namespace {

class Bezier : public RasterTest {
  protected:
    static void draw(GDrawHandle* handle, std::vector<GPoint> points) {
        GPoly poly{0, points.data(), {}};
        GDDrawBezier(handle, &poly);
    }
};

TEST_F(Bezier, ThroughFourEqualPointsDrawsNothing) {
    for (const int16_t at : {int16_t{3}, int16_t{-10922}, int16_t{10922}}) {
        Drawing drawing(8, 8);
        const GPoint origin{static_cast<int16_t>(at - 3), 0};
        GDSetLocalOrigin(drawing, &origin);
        draw(drawing, {{at, 3}, {at, 3}, {at, 3}, {at, 3}});
        EXPECT_EQ(pixelAt(*drawing.surface(), 3, 3), 0U) << at;
    }
}

TEST_F(Bezier, OnOneRowStaysThereAndReachesItsEnd) {
    Drawing drawing(66, 2);
    draw(drawing, {{0, 0}, {0, 0}, {63, 0}, {63, 0}});
    EXPECT_TRUE(shows(*drawing.surface(), {std::string(64, '#') + "..", std::string(66, '.')}));
}

TEST_F(Bezier, WithoutPenColourDrawsNothing) {
    Drawing drawing(66, 2);
    GDSetPenColor(drawing, G_NO_COLOR);
    draw(drawing, {{0, 0}, {0, 0}, {63, 0}, {63, 0}});
    EXPECT_EQ(pixelAt(*drawing.surface(), 30, 0), 0U);
}

TEST_F(Bezier, OnANegativeColumnStaysThere) {
    Drawing drawing(4, 40);
    const GPoint origin{-12, 0};
    GDSetLocalOrigin(drawing, &origin);
    draw(drawing, {{-10, 0}, {-10, 10}, {-10, 20}, {-10, 39}});
    for (int y = 0; y < 40; ++y) {
        EXPECT_EQ(pixelAt(*drawing.surface(), 2, y), 1U);
        EXPECT_EQ(pixelAt(*drawing.surface(), 1, y), 0U);
    }
}

TEST_F(Bezier, StepsBy64FixedWeights) {
    // Steep enough for each row of weights to give a point of its own: the pen is carried through
    // row 31 and row 32, whose weights are known.
    Drawing drawing(1001, 1001);
    draw(drawing, {{0, 0}, {1000, 0}, {0, 1000}, {1000, 1000}});
    const auto at = [](int32_t p1, int32_t p2, int32_t p3, const int32_t(&w)[4]) {
        return (32768 + p1 * w[1] + p2 * w[2] + p3 * w[3]) >> 16;
    };
    const int32_t row31[] = {8588, 24959, 24179, 7808};
    const int32_t row32[] = {7808, 24179, 24959, 8588};
    for (const auto& row : {row31, row32}) {
        const int32_t weights[] = {row[0], row[1], row[2], row[3]};
        EXPECT_EQ(
            pixelAt(*drawing.surface(), at(1000, 0, 1000, weights), at(0, 1000, 1000, weights)),
            1U);
    }
    EXPECT_EQ(pixelAt(*drawing.surface(), 0, 0), 1U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 1000, 1000), 1U);
}

TEST_F(Bezier, OfAnyPointsStaysInsideTheSurface) {
    Random random(testSeed());
    Drawing drawing(40, 30, 16);
    for (int round = 0; round < 300; ++round) {
        std::vector<GPoint> points(4);
        for (GPoint& point : points) {
            point = {random.coordinate(-40, 80), random.coordinate(-30, 60)};
        }
        GDSetPenSize(drawing, random.coordinate(1, 9), random.coordinate(1, 9));
        draw(drawing, points);
    }
    EXPECT_TRUE(drawing.surface().memory().intact());
}

} // namespace
