#include "support/random_calls.h"
#include "support/records.h"

#include <quarlo/rect.h>

#include <gtest/gtest.h>

using quarlo::test::Random;
using quarlo::test::testSeed;

namespace {

GRect randomRect(Random& random) {
    return {random.coordinate(-20, 20), random.coordinate(-20, 20), random.coordinate(-20, 20),
            random.coordinate(-20, 20)};
}

/// The low 16 bits as a signed number, by arithmetic alone.
int16_t wrapped(int32_t value) {
    while (value > 32767) {
        value -= 65536;
    }
    while (value < -32768) {
        value += 65536;
    }
    return static_cast<int16_t>(value);
}

TEST(GRSetRect, SortsCornersGivenInAnyOrder) {
    GRect rect{};
    GRSetRect(&rect, 10, 20, 5, 2);
    EXPECT_EQ(rect, (GRect{5, 2, 10, 20}));
    GRSetRect(&rect, 5, 20, 10, 2);
    EXPECT_EQ(rect, (GRect{5, 2, 10, 20}));
    GRSetRect(&rect, 5, 2, 10, 20);
    EXPECT_EQ(rect, (GRect{5, 2, 10, 20}));
}

TEST(GRSetRect, ComparesAsSigned) {
    GRect rect{};
    GRSetRect(&rect, 1, -1, -32768, 32767);
    EXPECT_EQ(rect, (GRect{-32768, -1, 1, 32767}));
}

TEST(GRGetRect, CopiesTheFieldsOut) {
    const GRect rect = {1, -2, 3, 32767};
    int16_t left = 0;
    int16_t top = 0;
    int16_t right = 0;
    int16_t bottom = 0;
    GRGetRect(&rect, &left, &top, &right, &bottom);
    EXPECT_EQ((GRect{left, top, right, bottom}), rect);
}

TEST(GRDuplicateRect, CopiesFromFirstToSecondUnsorted) {
    const GRect source = {9, 8, -7, 6};
    GRect destination = {1, 1, 1, 1};
    GRDuplicateRect(&source, &destination);
    EXPECT_EQ(destination, source);
}

TEST(GREqualRect, ComparesEachField) {
    const GRect rect = {1, 2, 3, 4};
    EXPECT_EQ(GREqualRect(&rect, &rect), 1);
    for (const GRect& other : {GRect{0, 2, 3, 4}, {1, 0, 3, 4}, {1, 2, 0, 4}, {1, 2, 3, 0}}) {
        EXPECT_EQ(GREqualRect(&rect, &other), 0) << other;
    }
}

TEST(GRCheckRect, WantsBothPairsInOrder) {
    const GRect onePixel = {4, 4, 4, 4};
    const GRect turnedOver = {5, 4, 4, 4};
    const GRect upsideDown = {4, 5, 4, 4};
    EXPECT_EQ(GRCheckRect(&onePixel), 1);
    EXPECT_EQ(GRCheckRect(&turnedOver), 0);
    EXPECT_EQ(GRCheckRect(&upsideDown), 0);
}

TEST(GRInceptRect, RectanglesThatShareACornerMeetInIt) {
    const GRect a = {0, 0, 9, 9};
    const GRect b = {9, 9, 20, 20};
    GRect out{};
    EXPECT_EQ(GRInceptRect(&a, &b, &out), 1);
    EXPECT_EQ(out, (GRect{9, 9, 9, 9}));
}

TEST(GRInceptRect, DisjointRectanglesLeaveTheResultAsItWas) {
    const GRect a = {0, 0, 9, 9};
    const GRect content = {1, 2, 3, 4};
    for (const GRect& b : {GRect{10, 0, 20, 9}, {-5, 0, -1, 9}, {0, 10, 9, 20}, {0, -5, 9, -1}}) {
        GRect out = content;
        EXPECT_EQ(GRInceptRect(&a, &b, &out), 0) << b;
        EXPECT_EQ(out, content);
    }
}

TEST(GRInceptRect, TheResultMayBeEitherArgument) {
    GRect a = {0, 0, 9, 9};
    GRect b = {5, -3, 20, 7};
    EXPECT_EQ(GRInceptRect(&a, &b, &a), 1);
    EXPECT_EQ(a, (GRect{5, 0, 9, 7}));
    a = {0, 0, 9, 9};
    EXPECT_EQ(GRInceptRect(&a, &b, &b), 1);
    EXPECT_EQ(b, (GRect{5, 0, 9, 7}));
}

TEST(GRInceptRect, InvertedRectanglesMayMeetInAnInvertedOne) {
    const GRect a = {9, 0, 0, 9};
    const GRect b = {0, 0, 9, 9};
    GRect out{};
    EXPECT_EQ(GRInceptRect(&a, &b, &out), 1);
    EXPECT_EQ(out, (GRect{9, 0, 0, 9}));
}

TEST(GRInceptRect, HoldsJustThePixelsOfBoth) {
    Random random(testSeed());
    for (int round = 0; round < 20000; ++round) {
        const auto small = [&] { return static_cast<int16_t>(random.between(0, 7)); };
        GRect a{};
        GRect b{};
        GRSetRect(&a, small(), small(), small(), small());
        GRSetRect(&b, small(), small(), small(), small());
        GRect common = {0, 0, -1, -1};
        GRInceptRect(&a, &b, &common);
        for (int16_t y = 0; y < 8; ++y) {
            for (int16_t x = 0; x < 8; ++x) {
                const GPoint point = {x, y};
                ASSERT_EQ(GRPointInRect(&point, &common),
                          GRPointInRect(&point, &a) && GRPointInRect(&point, &b))
                    << a << ' ' << b << " at " << point;
            }
        }
    }
}

TEST(GRUnionRect, IsTheBoundingBox) {
    const GRect a = {0, 5, 9, 9};
    const GRect b = {20, -3, 30, 7};
    GRect out{};
    GRUnionRect(&a, &b, &out);
    EXPECT_EQ(out, (GRect{0, -3, 30, 9}));
}

TEST(GRUnionRect, TakesInvertedRectanglesLikeAnyOther) {
    const GRect a = {9, 0, 5, 9};
    const GRect b = {7, 3, 7, 3};
    GRect out{};
    GRUnionRect(&a, &b, &out);
    EXPECT_EQ(out, (GRect{7, 0, 7, 9}));
}

TEST(GRUnionRect, TheResultMayBeEitherArgument) {
    GRect a = {0, 5, 9, 9};
    GRect b = {20, -3, 30, 7};
    GRUnionRect(&a, &b, &b);
    EXPECT_EQ(b, (GRect{0, -3, 30, 9}));
    b = {20, -3, 30, 7};
    GRUnionRect(&a, &b, &a);
    EXPECT_EQ(a, (GRect{0, -3, 30, 9}));
}

TEST(GRPointInRect, HoldsAllFourCornersAndNothingBeyond) {
    const GRect rect = {-3, 2, 8, 6};
    for (const GPoint& corner : {GPoint{-3, 2}, {8, 2}, {-3, 6}, {8, 6}}) {
        EXPECT_EQ(GRPointInRect(&corner, &rect), 1) << corner;
    }
    for (const GPoint& beside : {GPoint{-4, 2}, {9, 2}, {-3, 1}, {-3, 7}}) {
        EXPECT_EQ(GRPointInRect(&beside, &rect), 0) << beside;
    }
}

TEST(GROffsetRect, WrapsAtSixteenBits) {
    GRect rect = {0, 0, 32767, 9};
    GROffsetRect(&rect, 1, 0);
    EXPECT_EQ(rect, (GRect{1, 0, -32768, 9}));
}

TEST(GROffsetRect, AddsToBothEdges) {
    Random random(testSeed());
    for (int round = 0; round < 20000; ++round) {
        const GRect start = randomRect(random);
        const int16_t dx = random.coordinate(-20, 20);
        const int16_t dy = random.coordinate(-20, 20);
        GRect rect = start;
        GROffsetRect(&rect, dx, dy);
        ASSERT_EQ(rect, (GRect{wrapped(start.left + dx), wrapped(start.top + dy),
                               wrapped(start.right + dx), wrapped(start.bottom + dy)}))
            << start << " by " << dx << ", " << dy;
    }
}

TEST(GRResizeRect, GrowsOnEverySide) {
    GRect rect = {0, 0, 9, 9};
    GRResizeRect(&rect, 2, 3);
    EXPECT_EQ(rect, (GRect{-2, -3, 11, 12}));
}

TEST(GRResizeRect, ShrinkingPastNothingTurnsOver) {
    GRect rect = {0, 0, 9, 9};
    GRResizeRect(&rect, -6, 0);
    EXPECT_EQ(rect, (GRect{3, 0, 6, 9}));
}

TEST(GRResizeRect, WrapsBeforeItSorts) {
    GRect rect = {-32768, 0, 9, 9};
    GRResizeRect(&rect, 1, 0);
    EXPECT_EQ(rect, (GRect{10, 0, 32767, 9}));
}

TEST(GRResizeRect, IsAlwaysValidAfterwards) {
    Random random(testSeed());
    for (int round = 0; round < 20000; ++round) {
        const GRect start = randomRect(random);
        const int16_t dx = random.coordinate(-20, 20);
        const int16_t dy = random.coordinate(-20, 20);
        GRect rect = start;
        GRResizeRect(&rect, dx, dy);
        GRect expected{};
        GRSetRect(&expected, wrapped(start.left - dx), wrapped(start.top - dy),
                  wrapped(start.right + dx), wrapped(start.bottom + dy));
        ASSERT_EQ(rect, expected) << start << " by " << dx << ", " << dy;
        ASSERT_EQ(GRCheckRect(&rect), 1);
    }
}

} // namespace
