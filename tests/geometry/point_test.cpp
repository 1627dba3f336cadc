#include "support/records.h"

#include <quarlo/point.h>

#include <gtest/gtest.h>

#include <cstring>

namespace {

TEST(GPTSetPoint, StoresBoth) {
    GPoint point{};
    GPTSetPoint(&point, -32768, 32767);
    EXPECT_EQ(point, (GPoint{-32768, 32767}));
}

TEST(GPTGetPoint, CopiesBothOut) {
    const GPoint point = {3, -4};
    int16_t x = 0;
    int16_t y = 0;
    GPTGetPoint(&point, &x, &y);
    EXPECT_EQ(x, 3);
    EXPECT_EQ(y, -4);
}

TEST(GPTDuplicatePoint, WritesTheSameBytesAtAnOddAddress) {
    const GPoint point = {0x1234, 0x5678};
    GPoint aligned{};
    GPTDuplicatePoint(&point, &aligned);
    EXPECT_EQ(aligned, point);

    alignas(GPoint) unsigned char bytes[6] = {0xEE, 0, 0, 0, 0, 0xEE};
    GPTDuplicatePoint(&point, bytes + 1);
    EXPECT_EQ(std::memcmp(bytes + 1, &point, sizeof point), 0);
    EXPECT_EQ(bytes[0], 0xEE);
    EXPECT_EQ(bytes[5], 0xEE);
}

TEST(GPTOffsetPoint, AddsAndWraps) {
    GPoint point = {10, -32768};
    GPTOffsetPoint(&point, -11, -1);
    EXPECT_EQ(point, (GPoint{-1, 32767}));
}

TEST(GPTMapPoint, MapsLikeACorner) {
    const GRect source = {0, 0, 99, 99};
    const GRect destination = {0, 0, 639, 479};
    GPoint point = {50, 99};
    GPTMapPoint(&point, &source, &destination);
    EXPECT_EQ(point, (GPoint{323, 479}));
}

} // namespace
