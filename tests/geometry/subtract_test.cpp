#include "support/random_calls.h"
#include "support/records.h"

#include <quarlo/rect.h>

#include <gtest/gtest.h>

#include <vector>

using quarlo::test::Random;
using quarlo::test::testSeed;

namespace {

using Rects = std::vector<GRect>;

constexpr GRect kUntouched = {111, 222, 333, 444};

Rects rest(const GRect& a, const GRect& b) {
    GRect out[4] = {kUntouched, kUntouched, kUntouched, kUntouched};
    const int16_t count = GRRestRect(&a, &b, out);
    for (int i = count; i < 4; ++i) {
        EXPECT_EQ(out[i], kUntouched) << "piece " << i << " of " << count;
    }
    return Rects(out, out + count);
}

/// The strips that a move uncovers; the moved rectangle is checked beside.
Rects shift(const GRect& rect, int16_t dx, int16_t dy) {
    GRect moved = rect;
    GRect expected = rect;
    GROffsetRect(&expected, dx, dy);
    GRect out[2] = {kUntouched, kUntouched};
    const int16_t count = GRShiftRect(&moved, dx, dy, &out[0], &out[1]);
    EXPECT_EQ(moved, expected);
    for (int i = count; i < 2; ++i) {
        EXPECT_EQ(out[i], kUntouched) << "strip " << i << " of " << count;
    }
    return Rects(out, out + count);
}

TEST(GRRestRect, AHoleLeavesFourPiecesInOrder) {
    EXPECT_EQ(rest({0, 0, 99, 99}, {10, 10, 19, 19}),
              (Rects{{0, 0, 9, 99}, {20, 0, 99, 99}, {10, 0, 19, 9}, {10, 20, 19, 99}}));
}

TEST(GRRestRect, ACoveredRectangleLeavesNothing) {
    EXPECT_EQ(rest({0, 0, 99, 99}, {-5, -5, 200, 200}), Rects{});
    EXPECT_EQ(rest({0, 0, 99, 99}, {0, 0, 99, 99}), Rects{});
}

TEST(GRRestRect, ADisjointRectangleLeavesAllOfIt) {
    EXPECT_EQ(rest({0, 0, 99, 99}, {100, 0, 199, 99}), (Rects{{0, 0, 99, 99}}));
}

TEST(GRRestRect, ACutCornerLeavesTwoPieces) {
    EXPECT_EQ(rest({0, 0, 9, 9}, {5, 5, 20, 20}), (Rects{{0, 0, 4, 9}, {5, 0, 9, 4}}));
}

TEST(GRRestRect, EdgesBesideTheLimitsWrapAround) {
    // One column left of -32768 is column 32767, so the left piece is no longer turned over.
    EXPECT_EQ(rest({0, 0, 9, 9}, {-32768, 0, 32767, 9}),
              (Rects{{0, 0, 32767, 9}, {-32768, 0, 9, 9}}));
}

TEST(GRRestRect, TheResultMayBeWhereTheArgumentsAre) {
    GRect rects[4] = {{0, 0, 99, 99}, {10, 10, 19, 19}, {}, {}};
    EXPECT_EQ(GRRestRect(&rects[0], &rects[1], rects), 4);
    EXPECT_EQ(rects[0], (GRect{0, 0, 9, 99}));
    EXPECT_EQ(rects[1], (GRect{20, 0, 99, 99}));
    EXPECT_EQ(rects[2], (GRect{10, 0, 19, 9}));
    EXPECT_EQ(rects[3], (GRect{10, 20, 19, 99}));
}

TEST(GRRestRect, EveryPixelLeftLiesInJustOnePiece) {
    Random random(testSeed());
    for (int round = 0; round < 20000; ++round) {
        const auto small = [&] { return static_cast<int16_t>(random.between(0, 7)); };
        GRect a{};
        GRect b{};
        GRSetRect(&a, small(), small(), small(), small());
        GRSetRect(&b, small(), small(), small(), small());
        const Rects pieces = rest(a, b);
        for (int16_t y = 0; y < 8; ++y) {
            for (int16_t x = 0; x < 8; ++x) {
                const GPoint point = {x, y};
                int times = 0;
                for (const GRect& piece : pieces) {
                    times += GRPointInRect(&point, &piece);
                }
                ASSERT_EQ(times, GRPointInRect(&point, &a) && !GRPointInRect(&point, &b))
                    << a << " without " << b << " at " << point;
            }
        }
    }
}

TEST(GRShiftRect, NoMovementUncoversNothing) {
    EXPECT_EQ(shift({0, 0, 9, 9}, 0, 0), Rects{});
}

TEST(GRShiftRect, AMovePastItsOwnSizeUncoversAllOfIt) {
    EXPECT_EQ(shift({0, 0, 9, 9}, 10, 0), (Rects{{0, 0, 9, 9}}));
    EXPECT_EQ(shift({0, 0, 9, 9}, 3, -10), (Rects{{0, 0, 9, 9}}));
}

TEST(GRShiftRect, AStripIncludesTheMovedEdge) {
    EXPECT_EQ(shift({0, 0, 99, 99}, 5, 0), (Rects{{0, 0, 5, 99}})); // six columns
}

TEST(GRShiftRect, StraightMovesUncoverOneStrip) {
    EXPECT_EQ(shift({0, 0, 99, 99}, -5, 0), (Rects{{94, 0, 99, 99}}));
    EXPECT_EQ(shift({0, 0, 99, 99}, 0, 7), (Rects{{0, 0, 99, 7}}));
    EXPECT_EQ(shift({0, 0, 99, 99}, 0, -7), (Rects{{0, 92, 99, 99}}));
}

TEST(GRShiftRect, DiagonalMovesUncoverTwo) {
    EXPECT_EQ(shift({0, 0, 99, 99}, 5, 7), (Rects{{0, 0, 5, 99}, {5, 0, 99, 7}}));
    EXPECT_EQ(shift({0, 0, 99, 99}, 5, -7), (Rects{{0, 0, 5, 99}, {5, 92, 99, 99}}));
    EXPECT_EQ(shift({0, 0, 99, 99}, -5, 7), (Rects{{94, 0, 99, 99}, {0, 0, 94, 7}}));
    EXPECT_EQ(shift({0, 0, 99, 99}, -5, -7), (Rects{{94, 0, 99, 99}, {0, 92, 94, 99}}));
}

TEST(GRShiftRect, AnInvertedRectangleIsDisjointFromItsMove) {
    EXPECT_EQ(shift({9, 0, 0, 9}, 1, 0), (Rects{{9, 0, 0, 9}}));
    EXPECT_EQ(shift({9, 0, 0, 9}, 0, 0), (Rects{{9, 0, 0, 9}}));
}

TEST(GRShiftRect, StripsAndMovedRectangleCoverTheOldArea) {
    Random random(testSeed());
    for (int round = 0; round < 20000; ++round) {
        const auto small = [&] { return static_cast<int16_t>(random.between(0, 7)); };
        GRect old{};
        GRSetRect(&old, small(), small(), small(), small());
        const auto dx = static_cast<int16_t>(random.between(-9, 9));
        const auto dy = static_cast<int16_t>(random.between(-9, 9));
        Rects cover = shift(old, dx, dy);
        for (const GRect& strip : cover) {
            GRect inside{};
            ASSERT_EQ(GRInceptRect(&strip, &old, &inside), 1);
            ASSERT_EQ(inside, strip) << old << " by " << dx << ", " << dy;
        }
        cover.push_back(old);
        GROffsetRect(&cover.back(), dx, dy);
        for (int16_t y = old.top; y <= old.bottom; ++y) {
            for (int16_t x = old.left; x <= old.right; ++x) {
                const GPoint point = {x, y};
                int times = 0;
                for (const GRect& rect : cover) {
                    times += GRPointInRect(&point, &rect);
                }
                ASSERT_GE(times, 1) << old << " by " << dx << ", " << dy << " at " << point;
            }
        }
    }
}

} // namespace
