#include "support/started_platform.h"

#include <gpi/host.h>
#include <quarlo/timer.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <limits>

namespace {

using namespace gpi::test;

const auto setTime = service<GPISetSystemTime>(GPI_SERVICE_SET_SYSTEM_TIME);
const auto getTime = service<GPIGetSystemTime>(GPI_SERVICE_GET_SYSTEM_TIME);
const auto timeOfDay = service<GPITime>(GPI_SERVICE_TIME);
const auto breakDown = service<GPIBrokenDownTime>(GPI_SERVICE_BROKEN_DOWN_TIME);

constexpr int64_t kMinute = 60'000;

int64_t ticks() {
    GSystemTime time{};
    EXPECT_EQ(getTime(&time), 1);
    return static_cast<int64_t>(time.high) << 32 | time.low;
}

void set(int64_t value) {
    const GSystemTime time{static_cast<uint32_t>(value), static_cast<int32_t>(value >> 32)};
    EXPECT_EQ(setTime(&time), 1);
}

/// Whether the clock has just been at a value.
testing::AssertionResult justAt(int64_t value) {
    const int64_t now = ticks();
    return now >= value && now < value + kMinute ? testing::AssertionSuccess()
                                                 : testing::AssertionFailure() << now;
}

TEST(TickClock, StartsFromZeroWithThePlatform) {
    set(123 * kMinute);
    const StartedPlatform platform;
    EXPECT_TRUE(justAt(0));
}

TEST(TickClock, NeverRunsBackwards) {
    int64_t last = ticks();
    for (int call = 0; call < 10'000; ++call) {
        const int64_t now = ticks();
        ASSERT_GE(now, last);
        last = now;
    }
}

TEST(TickClock, CountsMilliseconds) {
    using namespace std::chrono;
    const auto start = steady_clock::now();
    const int64_t first = ticks();
    int64_t passed = 0;
    while (passed < 30) {
        passed = ticks() - first;
    }
    const auto expected = duration_cast<milliseconds>(steady_clock::now() - start).count();
    EXPECT_LE(passed, expected + 1);
    EXPECT_GT(expected, 28);
}

TEST(TickClock, GoesOnFromWhereItIsSet) {
    for (const int64_t value : {int64_t{0}, int64_t{5} << 32, int64_t{0xFFFFFFFF}}) {
        set(value);
        EXPECT_TRUE(justAt(value));
    }
}

TEST(TickClock, WrapsAroundAt63Bits) {
    set(INT64_MAX);
    const int64_t now = ticks();
    EXPECT_TRUE(now == INT64_MAX || now < kMinute) << now;
    set(-1); // modulo 2^63 the same
    const int64_t again = ticks();
    EXPECT_TRUE(again == INT64_MAX || again < kMinute) << again;
}

TEST(TickClock, RefusesNull) {
    EXPECT_EQ(getTime(nullptr), -1);
    EXPECT_EQ(setTime(nullptr), 0);
}

TEST(HeldClock, StandsStillAndMovesBySteps) {
    const StartedPlatform platform;
    ASSERT_EQ(GPIHostHoldClock(1'000'000), 1);
    const int64_t start = ticks();
    EXPECT_EQ(timeOfDay(nullptr), 1'000'000);
    EXPECT_EQ(GPIHostStepClock(2'999), 1);
    EXPECT_EQ(ticks(), start + 2'999);
    EXPECT_EQ(timeOfDay(nullptr), 1'000'002);
    EXPECT_EQ(GPIHostStepClock(1), 1);
    EXPECT_EQ(ticks(), start + 3'000);
    EXPECT_EQ(timeOfDay(nullptr), 1'000'003);
}

TEST(HeldClock, CanBeSet) {
    const StartedPlatform platform;
    GPIHostHoldClock(0);
    set(kMinute);
    GPIHostStepClock(10);
    EXPECT_EQ(ticks(), kMinute + 10);
}

TEST(HeldClock, IsTheSystemsAgainOnceThePlatformStops) {
    {
        const StartedPlatform platform;
        GPIHostHoldClock(1'000'000);
    }
    EXPECT_EQ(GPIHostStepClock(1), 0);
    EXPECT_GT(timeOfDay(nullptr), 1'000'000'000U);
}

TEST(TimeOfDay, IsTheSystems) {
    const auto before = static_cast<uint32_t>(std::time(nullptr));
    uint32_t stored = 0;
    const uint32_t now = timeOfDay(&stored);
    const auto after = static_cast<uint32_t>(std::time(nullptr));
    EXPECT_EQ(now, stored);
    EXPECT_GE(now, before);
    EXPECT_LE(now, after);
    EXPECT_GE(timeOfDay(nullptr), now);
}

TEST(TimeOfDay, BreaksDownKnownMoments) {
    struct Known {
        uint32_t time;
        GBrokenDownTime expected;
    };
    const Known moments[] = {
        {0, {0, 0, 0, 1, 1, 1970, 4}},
        {951'827'696, {56, 34, 12, 29, 2, 2000, 2}},
        {1'709'251'199, {59, 59, 23, 29, 2, 2024, 4}},
        {UINT32_MAX, {15, 28, 6, 7, 2, 2106, 0}},
    };
    for (const Known& known : moments) {
        GBrokenDownTime out{};
        EXPECT_EQ(breakDown(&out, known.time), &out);
        EXPECT_EQ(out.second, known.expected.second);
        EXPECT_EQ(out.minute, known.expected.minute);
        EXPECT_EQ(out.hour, known.expected.hour);
        EXPECT_EQ(out.day, known.expected.day);
        EXPECT_EQ(out.month, known.expected.month);
        EXPECT_EQ(out.year, known.expected.year);
        EXPECT_EQ(out.weekday, known.expected.weekday);
    }
}

TEST(TimeOfDay, BreaksDownLikeTheSystem) {
    const uint64_t last = std::min<uint64_t>(UINT32_MAX, std::numeric_limits<std::time_t>::max());
    for (uint64_t time = 0; time <= last; time += 86'399 * 11) {
        GBrokenDownTime out{};
        breakDown(&out, static_cast<uint32_t>(time));
        const auto moment = static_cast<std::time_t>(time);
        std::tm expected{};
        gmtime_r(&moment, &expected);
        ASSERT_EQ(out.second, expected.tm_sec) << time;
        ASSERT_EQ(out.minute, expected.tm_min) << time;
        ASSERT_EQ(out.hour, expected.tm_hour) << time;
        ASSERT_EQ(out.day, expected.tm_mday) << time;
        ASSERT_EQ(out.month, expected.tm_mon + 1) << time;
        ASSERT_EQ(out.year, expected.tm_year + 1900) << time;
        ASSERT_EQ(out.weekday, expected.tm_wday) << time;
    }
}

TEST(TimeOfDay, RefusesNull) {
    EXPECT_EQ(breakDown(nullptr, 0), nullptr);
}

} // namespace
