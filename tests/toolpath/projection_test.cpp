#include "model/projection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

namespace toolpath {
namespace {

void expectPoint(const Point2& got, double x, double y) {
    EXPECT_NEAR(got.x, x, 1e-9);
    EXPECT_NEAR(got.y, y, 1e-9);
}

TEST(Projection, LooksFromAboveInThePlan) {
    expectPoint(project(Projection::Plan, {3, 4, 5}), 3, 4);
}

TEST(Projection, LooksFromTheFrontInTheElevation) {
    expectPoint(project(Projection::Elevation, {3, 4, 5}), 3, 5);
    const Point3 found = unproject(Projection::Elevation, {3, 5}, 7);
    EXPECT_EQ(found, (Point3{3, 0, 5}));
}

TEST(Projection, RaisesAxesByThirtyDegreesInTheIsometricView) {
    const double cos30 = std::sqrt(3.0) / 2.0;
    expectPoint(project(Projection::Isometric, {1, 0, 0}), cos30, -0.5);
    expectPoint(project(Projection::Isometric, {0, 1, 0}), cos30, 0.5);
    expectPoint(project(Projection::Isometric, {0, 0, 1}), 0, 1);
}

TEST(Projection, HidesTheDirectionOfSight) {
    expectPoint(project(Projection::Isometric, {7, -7, 7}), 0, 0);
    expectPoint(project(Projection::Plan, {0, 0, 7}), 0, 0);
}

TEST(Projection, FindsThePlaceAgainAtItsHeight) {
    for (const Projection projection : {Projection::Plan, Projection::Isometric}) {
        const Point3 place{12.5, -7.25, 3.75};
        const Point3 found = unproject(projection, project(projection, place), place[kZ]);
        for (const Axis axis : {kX, kY, kZ}) {
            EXPECT_NEAR(found[axis], place[axis], 1e-9);
        }
    }
}

TEST(Projection, BoxesAllEightCorners) {
    const Box2 plan = projectBox(Projection::Plan, {{-1, -2, -3}, {4, 5, 6}});
    expectPoint(plan.low, -1, -2);
    expectPoint(plan.high, 4, 5);
    const Box2 isometric = projectBox(Projection::Isometric, {{0, 0, 0}, {10, 10, 10}});
    expectPoint(isometric.low, 0, -5);
    expectPoint(isometric.high, 10 * std::sqrt(3.0), 15);
}

TEST(ClipSegment, KeepsWhatLiesInside) {
    Point2 a{-1, 2};
    Point2 b{3, -4};
    ASSERT_TRUE(clipSegment(a, b, 10));
    expectPoint(a, -1, 2);
    expectPoint(b, 3, -4);
}

TEST(ClipSegment, CutsBothEnds) {
    Point2 a{-20, 0};
    Point2 b{20, 10};
    ASSERT_TRUE(clipSegment(a, b, 10));
    expectPoint(a, -10, 2.5);
    expectPoint(b, 10, 7.5);
}

TEST(ClipSegment, RefusesWhatPassesBy) {
    Point2 a{-20, 5};
    Point2 b{5, 30};
    EXPECT_FALSE(clipSegment(a, b, 10));
    Point2 c{11, 0};
    Point2 d{11, 5};
    EXPECT_FALSE(clipSegment(c, d, 10));
}

TEST(ClipSegment, TakesASinglePoint) {
    Point2 a{3, 3};
    Point2 b{3, 3};
    EXPECT_TRUE(clipSegment(a, b, 10));
    Point2 c{30, 3};
    Point2 d{30, 3};
    EXPECT_FALSE(clipSegment(c, d, 10));
}

TEST(ClipSegment, KeepsCutEndsInsideAndOnTheLine) {
    const unsigned seed = 77;
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> place(-1e9, 1e9);
    std::uniform_real_distribution<double> near(-3000, 3000);
    for (int round = 0; round < 5000; ++round) {
        const Point2 from{place(random), place(random)};
        const Point2 to{near(random), near(random)};
        Point2 a = from;
        Point2 b = to;
        if (!clipSegment(a, b, 2000)) {
            continue;
        }
        const double length = std::hypot(to.x - from.x, to.y - from.y);
        for (const Point2& p : {a, b}) {
            EXPECT_LE(std::max(std::abs(p.x), std::abs(p.y)), 2000.001) << "round " << round;
            const double off = (to.x - from.x) * (p.y - from.y) - (to.y - from.y) * (p.x - from.x);
            EXPECT_LE(std::abs(off) / length, 0.01) << "round " << round;
        }
    }
}

} // namespace
} // namespace toolpath
