#include "support/recording_platform.h"

#include "support/random_calls.h"

#include <quarlo/timer.h>

#include <gtest/gtest.h>

using namespace quarlo::test;

namespace {

GSystemTime timeOf(uint64_t ticks) {
    return {static_cast<uint32_t>(ticks), static_cast<int32_t>(static_cast<uint32_t>(ticks >> 32))};
}

uint64_t ticksOf(const GSystemTime& time) {
    return uint64_t{static_cast<uint32_t>(time.high)} << 32 | time.low;
}

uint64_t difference(uint64_t start, uint64_t now) {
    const GSystemTime first = timeOf(start);
    const GSystemTime second = timeOf(now);
    GSystemTime out{};
    EXPECT_EQ(GEDiffTime(&out, &first, &second), &out);
    return ticksOf(out);
}

TEST(GEDiffTime, SubtractsAcrossTheWords) {
    EXPECT_EQ(difference(0, 0), 0U);
    EXPECT_EQ(difference(5, 12), 7U);
    EXPECT_EQ(difference(0x1FFFFFFFF, 0x300000001), 0x100000002U);
}

TEST(GEDiffTime, AStartLaterThanNowMeansThatTheClockWrapped) {
    EXPECT_EQ(difference(10, 3), (uint64_t{1} << 63) - 7);
    EXPECT_EQ(difference((uint64_t{1} << 63) - 1, 0), 1U);
}

TEST(GEDiffTime, ComparesHighWordsAsSigned) {
    EXPECT_EQ(difference(0x8000000000000000, 0x7FFFFFFFFFFFFFFF), 0xFFFFFFFFFFFFFFFFU);
    EXPECT_EQ(difference(0x7FFFFFFFFFFFFFFF, 0x8000000000000000),
              (uint64_t{1} << 63) + 1); // wrapped at 2^64
    EXPECT_EQ(difference(0xFFFFFFFF00000000, 1), 0x100000001U);
}

TEST(GEDiffTime, ComparesLowWordsAsUnsigned) {
    EXPECT_EQ(difference(0x7FFFFFFF, 0x80000000), 1U);
}

TEST(GEDiffTime, TheResultMayBeAnArgument) {
    GSystemTime start = timeOf(5);
    GSystemTime now = timeOf(12);
    GEDiffTime(&start, &start, &now);
    EXPECT_EQ(ticksOf(start), 7U);
    start = timeOf(5);
    GEDiffTime(&now, &start, &now);
    EXPECT_EQ(ticksOf(now), 7U);
}

TEST(GECompareSystemTime, SubtractsLowWordsOnly) {
    const GSystemTime a = {10, 7};
    const GSystemTime b = {3, -7};
    EXPECT_EQ(GECompareSystemTime(&a, &b), 0xFFFFFFF9U);
    EXPECT_EQ(GECompareSystemTime(&b, &a), 7U);
}

TEST(SystemTime, SetsAndReadsThePlatformsClock) {
    RecordingPlatform platform;
    const GSystemTime time = timeOf(0xFEDCBA9876543210);
    GSystemTime out{};
    EXPECT_EQ(GESetSystemTime(&time), 1);
    EXPECT_EQ(GEGetSystemTime(&out), 1);
    EXPECT_EQ(ticksOf(out), ticksOf(time));
    EXPECT_EQ(platform.calls, (std::vector{call(27, &time), call(28, &out)}));
}

TEST(SystemTime, GivesTheServicesResult) {
    RecordingPlatform platform;
    platform.serve<27>([](const GSystemTime*) { return -7; });
    platform.serve<28>([](GSystemTime*) { return -8; });
    GSystemTime time{};
    EXPECT_EQ(GESetSystemTime(&time), -7);
    EXPECT_EQ(GEGetSystemTime(&time), -8);
}

TEST(SystemTime, WithoutAClockGivesZeroAndDoesNotAsk) {
    RecordingPlatform platform;
    platform.remove({27, 28, 76, 77});
    GSystemTime time = {1, 2};
    GBrokenDownTime parts{};
    EXPECT_EQ(GESetSystemTime(&time), 0);
    EXPECT_EQ(GEGetSystemTime(&time), 0);
    EXPECT_EQ(time.low, 1U);
    EXPECT_EQ(GETime(nullptr), 0U);
    EXPECT_EQ(GEGmTime(&parts, 0), nullptr);
    EXPECT_TRUE(platform.requests.empty());
}

TEST(GETime, PassesItsArgumentThrough) {
    RecordingPlatform platform;
    platform.answer(76, 0xFFFFFFFE);
    uint32_t time = 5;
    EXPECT_EQ(GETime(&time), 0xFFFFFFFEU);
    EXPECT_EQ(platform.calls, std::vector{call(76, &time)});
}

TEST(GEGmTime, HandsItsRecordToTheServiceAndReturnsIt) {
    RecordingPlatform platform;
    platform.serve<77>([](GBrokenDownTime* out, uint32_t time) -> GBrokenDownTime* {
        *out = {static_cast<int32_t>(time), 2, 3, 4, 5, 6, 7};
        return nullptr;
    });
    GBrokenDownTime parts{};
    EXPECT_EQ(GEGmTime(&parts, 1), &parts);
    EXPECT_EQ(parts.second, 1);
    EXPECT_EQ(parts.weekday, 7);
    EXPECT_EQ(platform.calls, std::vector{call(77, &parts, 1)});
}

} // namespace
