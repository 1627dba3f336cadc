#include "support/records.h"

#include <quarlo/poly.h>

#include <gtest/gtest.h>

namespace {

constexpr GRect kHundred = {0, 0, 99, 99};
constexpr GRect kDisplay = {0, 0, 639, 479};

TEST(GPSetPoly, KeepsThePointsByReferenceAndTheBoundsByValue) {
    GPoint points[3] = {{0, 0}, {9, 0}, {0, 9}};
    GRect bounds = {-1, -2, 3, 4};
    GPoly poly{};
    GPSetPoly(&poly, 3, points, &bounds);
    bounds = {};
    EXPECT_EQ(poly.count, 3);
    EXPECT_EQ(poly.points, points);
    EXPECT_EQ(poly.bounds, (GRect{-1, -2, 3, 4}));
}

TEST(GPGetPoly, CopiesTheFieldsOut) {
    GPoint points[1] = {{7, 8}};
    const GPoly poly = {1, points, {1, 2, 3, 4}};
    int16_t count = 0;
    GPoint* out = nullptr;
    GRect bounds{};
    GPGetPoly(&poly, &count, &out, &bounds);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(out, points);
    EXPECT_EQ(bounds, poly.bounds);
}

TEST(GPOffsetPoly, MovesEveryPointAndLeavesTheBounds) {
    GPoint points[3] = {{0, 0}, {9, 0}, {32767, 9}};
    GPoly poly = {3, points, {0, 0, 9, 9}};
    GPOffsetPoly(&poly, 3, 4);
    EXPECT_EQ(points[0], (GPoint{3, 4}));
    EXPECT_EQ(points[1], (GPoint{12, 4}));
    EXPECT_EQ(points[2], (GPoint{-32766, 13}));
    EXPECT_EQ(poly.bounds, (GRect{0, 0, 9, 9}));
}

TEST(GPMapPoly, WithoutPointsMapsTheBoundsOnly) {
    for (const int16_t count : {int16_t{0}, int16_t{-1}, int16_t{-32768}}) {
        GPoint point = {50, 50};
        GPoly poly = {count, &point, {50, 0, 99, 99}};
        GPMapPoly(&poly, &kHundred, &kDisplay);
        EXPECT_EQ(point, (GPoint{50, 50}));
        EXPECT_EQ(poly.bounds, (GRect{323, 0, 639, 479}));
    }
}

TEST(GPMapPoly, LeavesPointsBeyondTheCount) {
    GPoint points[2] = {{99, 99}, {99, 99}};
    GPoly poly = {1, points, {}};
    GPMapPoly(&poly, &kHundred, &kDisplay);
    EXPECT_EQ(points[0], (GPoint{639, 479}));
    EXPECT_EQ(points[1], (GPoint{99, 99}));
}

} // namespace
