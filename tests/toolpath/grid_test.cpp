#include "drawing/grid.h"

#include "drawn.h"

#include <cmath>

namespace toolpath {
namespace {

TEST(Grid, StepsByOneTwoOrFive) {
    EXPECT_DOUBLE_EQ(gridFor(11.0, 1.0).step, 1.0);
    EXPECT_DOUBLE_EQ(gridFor(6.0, 1.0).step, 2.0);
    EXPECT_DOUBLE_EQ(gridFor(3.0, 1.0).step, 5.0);
    EXPECT_DOUBLE_EQ(gridFor(2.0, 1.0).step, 10.0);
    EXPECT_DOUBLE_EQ(gridFor(110.0, 1.0).step, 0.1);
    EXPECT_DOUBLE_EQ(gridFor(1.2e-8, 1.0).step, 1e9);
}

TEST(Grid, CountsInTheUnitOfTheProgram) {
    EXPECT_DOUBLE_EQ(gridFor(3.0, 25.4).step, 0.2 * 25.4);
}

TEST(Grid, LeavesRoomBetweenItsLinesAtEveryScale) {
    for (int i = 0; i < 400; ++i) {
        const double scale = 1e-7 * std::pow(1.07, i);
        const Grid grid = gridFor(scale, 1.0);
        EXPECT_GE(grid.step * scale, 11.0 - 1e-9) << scale;
        EXPECT_LE(grid.step * scale, 27.5 + 1e-9) << scale;
        const double strong = grid.step * grid.strongEvery;
        const double decade = std::log10(strong);
        EXPECT_TRUE(std::abs(decade - std::round(decade)) < 1e-9 ||
                    std::abs(decade - std::log10(5) - std::round(decade - std::log10(5))) < 1e-9)
            << strong;
    }
}

TEST(Grid, GrowsBoxesPastTheirEdges) {
    const Box3 grown = grownToGrid({{-5, 0.1, -3}, {104, 98, 2}}, {10, 10});
    EXPECT_EQ(grown.low, (Point3{-10, -10, -3}));
    EXPECT_EQ(grown.high, (Point3{110, 110, 2}));
}

TEST(Grid, DrawsItsStrongLinesStrong) {
    Drawn drawn(200, 200, 16);
    const View view(Projection::Plan, {{0, 0, 0}, {188, 188, 0}}, {0, 0, 199, 199});
    view.select(drawn.handle);
    drawGrid(drawn.handle, view, {20, 5}, {{0, 0, 0}, {188, 188, 0}}, 1, 2);
    // Ten lines each way of which those at 0 and 100 are strong, 189 pixels long.
    EXPECT_EQ(drawn.count({0, 0, 199, 199}, 2), 2 * 2 * 189 - 4);
    EXPECT_EQ(drawn.count({0, 0, 199, 199}, 1), 2 * 8 * (189 - 2) - 64);
}

TEST(Grid, EndsWhereStepsAreTooSmallToCount) {
    Drawn drawn(50, 50, 16);
    const Box3 far{{1e18, 1e18, 0}, {1e18 + 1000, 1e18 + 1000, 0}};
    const View view(Projection::Plan, far, {0, 0, 49, 49});
    view.select(drawn.handle);
    drawGrid(drawn.handle, view, {0.01, 5}, far, 1, 2);
    EXPECT_GT(drawn.count({0, 0, 49, 49}, 1) + drawn.count({0, 0, 49, 49}, 2), 0);
}

} // namespace
} // namespace toolpath
