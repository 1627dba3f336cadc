// The one mapping formula, for every kind of record.
#include "support/random_calls.h"
#include "support/records.h"

#include <quarlo/line.h>
#include <quarlo/point.h>
#include <quarlo/poly.h>
#include <quarlo/rect.h>

#include <gtest/gtest.h>

using quarlo::test::Random;
using quarlo::test::testSeed;

namespace {

constexpr GRect kHundred = {0, 0, 99, 99};
constexpr GRect kDisplay = {0, 0, 639, 479};

int16_t mapX(int16_t x, const GRect& source, const GRect& destination) {
    GRect rect = {x, 0, 0, 0};
    GRMapRect(&rect, &source, &destination);
    return rect.left;
}

int16_t mapY(int16_t y, const GRect& source, const GRect& destination) {
    GRect rect = {0, y, 0, 0};
    GRMapRect(&rect, &source, &destination);
    return rect.top;
}

/// The formula once more, in sign and magnitude.
int16_t modelled(int64_t v, int64_t sourceLow, int64_t sourceHigh, int64_t low, int64_t high) {
    const int64_t from = sourceHigh > sourceLow ? sourceHigh - sourceLow : 1;
    const int64_t to = high > low ? high - low : 1;
    const int64_t sum = (v - sourceLow) * to + from / 2;
    const int64_t quotient = sum < 0 ? -(-sum / from) : sum / from;
    return static_cast<int16_t>(static_cast<uint16_t>((quotient + low) & 0xFFFF));
}

TEST(GRMapRect, MapsOntoALargerFrame) {
    EXPECT_EQ(mapX(0, kHundred, kDisplay), 0);
    EXPECT_EQ(mapX(50, kHundred, kDisplay), 323);
    EXPECT_EQ(mapX(99, kHundred, kDisplay), 639);
    EXPECT_EQ(mapY(99, kHundred, kDisplay), 479);
}

TEST(GRMapRect, PullsNegativeOffsetsTowardsTheFrame) {
    EXPECT_EQ(mapX(-1, kHundred, kDisplay), -5);
    EXPECT_EQ(mapX(-7, kDisplay, kHundred), 0);
}

TEST(GRMapRect, MapsOntoASmallerFrame) {
    EXPECT_EQ(mapX(323, kDisplay, kHundred), 50);
}

TEST(GRMapRect, AFrameWithoutWidthCountsAsOneWide) {
    EXPECT_EQ(mapX(5, {0, 0, 0, 0}, kDisplay), 3195);
}

TEST(GRMapRect, AMirroredFrameCountsAsOneWide) {
    EXPECT_EQ(mapX(5, {10, 0, 0, 0}, kDisplay), -3195);
    EXPECT_EQ(mapX(99, kHundred, {639, 0, 0, 0}), 640);
}

TEST(GRMapRect, EqualFramesChangeNothingFromTheirOriginOn) {
    const GRect frame = {-10, -20, 89, 79};
    GRect rect = {-10, -20, 500, 32000};
    const GRect before = rect;
    GRMapRect(&rect, &frame, &frame);
    EXPECT_EQ(rect, before);
}

TEST(GRMapRect, EqualFramesPullWhatLiesBeforeTheirOrigin) {
    // (-11 + 10) * 99 + 49 = -50, which divides to 0.
    EXPECT_EQ(mapX(-11, {-10, -20, 89, 79}, {-10, -20, 89, 79}), -10);
}

TEST(GRMapRect, DoesNotSort) {
    GRect rect = {99, 99, 0, 0};
    GRMapRect(&rect, &kHundred, &kDisplay);
    EXPECT_EQ(rect, (GRect{639, 479, 0, 0}));
}

TEST(GRMapRect, TheRectangleMayBeAFrameItself) {
    GRect rect = kHundred;
    GRMapRect(&rect, &rect, &kDisplay);
    EXPECT_EQ(rect, kDisplay);
    rect = kHundred;
    GRMapRect(&rect, &kDisplay, &rect);
    EXPECT_EQ(rect, (GRect{0, 0, 15, 20}));
}

TEST(GRMapRect, FramesOfTheFullRangeDoNotOverflow) {
    const GRect all = {-32768, -32768, 32767, 32767};
    GRect rect = all;
    GRMapRect(&rect, &all, &all);
    EXPECT_EQ(rect, all);
    // 65535 * 65535 - 32768, of which the low 16 bits stay.
    EXPECT_EQ(mapX(32767, {-32768, 0, -32768, 0}, all), -32767);
}

TEST(GRMapRect, CornersOfFramesMeet) {
    Random random(testSeed());
    for (int round = 0; round < 20000; ++round) {
        GRect source{};
        GRect destination{};
        GRSetRect(&source, random.coordinate(-500, 500), random.coordinate(-500, 500),
                  random.coordinate(-500, 500), random.coordinate(-500, 500));
        GRSetRect(&destination, random.coordinate(-500, 500), random.coordinate(-500, 500),
                  random.coordinate(-500, 500), random.coordinate(-500, 500));
        if (source.left == source.right || source.top == source.bottom ||
            destination.left == destination.right || destination.top == destination.bottom) {
            continue;
        }
        GRect rect = source;
        GRMapRect(&rect, &source, &destination);
        ASSERT_EQ(rect, destination) << "from " << source;
    }
}

TEST(Mapping, IsTheFormulaForEveryRecord) {
    Random random(testSeed());
    for (int round = 0; round < 50000; ++round) {
        const auto any = [&] { return random.coordinate(-700, 700); };
        const GRect s = {any(), any(), any(), any()};
        const GRect d = {any(), any(), any(), any()};
        const GRect start = {any(), any(), any(), any()};
        const auto x = [&](int16_t v) { return modelled(v, s.left, s.right, d.left, d.right); };
        const auto y = [&](int16_t v) { return modelled(v, s.top, s.bottom, d.top, d.bottom); };
        const GRect expected = {x(start.left), y(start.top), x(start.right), y(start.bottom)};
        SCOPED_TRACE(testing::Message() << start << " from " << s << " to " << d);

        GRect rect = start;
        GRMapRect(&rect, &s, &d);
        ASSERT_EQ(rect, expected);

        GPoint point = {start.left, start.top};
        GPTMapPoint(&point, &s, &d);
        ASSERT_EQ(point, (GPoint{expected.left, expected.top}));

        GLine line = {start.left, start.top, start.right, start.bottom};
        GLMapLine(&line, &s, &d);
        ASSERT_EQ(line, (GLine{expected.left, expected.top, expected.right, expected.bottom}));

        GPoint points[2] = {{start.left, start.top}, {start.right, start.bottom}};
        GPoly poly = {2, points, start};
        GPMapPoly(&poly, &s, &d);
        ASSERT_EQ(points[0], (GPoint{expected.left, expected.top}));
        ASSERT_EQ(points[1], (GPoint{expected.right, expected.bottom}));
        ASSERT_EQ(poly.bounds, expected);
    }
}

} // namespace
