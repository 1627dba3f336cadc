#include "event/pending.h"

#include <quarlo/timer.h>

#include <gtest/gtest.h>

#include <vector>

using namespace quarlo::test;

namespace {

using Events = std::vector<GEventMsg>;

class Timers : public testing::Test {
  protected:
    ~Timers() override {
        for (const auto& [target, id] : set) {
            GEKillTimer(target, id);
        }
    }

    int32_t setTimer(uint32_t target, uint16_t id, uint32_t interval) {
        const int32_t result = GESetTimer(target, id, interval);
        if (result == 1) {
            set.emplace_back(target, id);
        }
        return result;
    }

    /// The events of a check at a time.
    Events check(int64_t time) {
        platform.clock = time;
        GECheckTimer();
        return takeAll();
    }

    static GEventMsg expiry(uint32_t target, uint16_t id) {
        return event(G_EVENT_TIMER, target, id);
    }

    EventPlatform platform;
    std::vector<std::pair<uint32_t, uint16_t>> set;
};

TEST_F(Timers, ExpireOnceTheirIntervalIsOver) {
    platform.clock = 1000;
    EXPECT_EQ(setTimer(0x80000001, 0xFFFF, 100), 1);
    EXPECT_EQ(check(1099), Events{});
    EXPECT_EQ(check(1100), Events{expiry(0x80000001, 0xFFFF)});
    EXPECT_EQ(check(1100), Events{});
}

TEST_F(Timers, StartAnewWhenTheirEventIsPosted) {
    setTimer(1, 2, 100);
    EXPECT_EQ(check(150), Events{expiry(1, 2)});
    EXPECT_EQ(check(249), Events{});
    EXPECT_EQ(check(250), Events{expiry(1, 2)});
}

TEST_F(Timers, DoNotCatchUp) {
    setTimer(1, 2, 100);
    EXPECT_EQ(check(310), Events{expiry(1, 2)});
    EXPECT_EQ(check(400), Events{});
    EXPECT_EQ(check(410), Events{expiry(1, 2)});
}

TEST_F(Timers, OfIntervalZeroExpireAtEveryCheck) {
    setTimer(1, 2, 0);
    EXPECT_EQ(check(0), Events{expiry(1, 2)});
    EXPECT_EQ(check(0), Events{expiry(1, 2)});
}

TEST_F(Timers, StayDueWhileTheirLastEventIsPending) {
    setTimer(1, 2, 100);
    platform.clock = 100;
    GECheckTimer();
    platform.clock = 250;
    GECheckTimer();
    EXPECT_EQ(takeAll(), Events{expiry(1, 2)});
    EXPECT_EQ(check(260), Events{expiry(1, 2)}) << "due since 200, posted now";
    EXPECT_EQ(check(359), Events{});
    EXPECT_EQ(check(360), Events{expiry(1, 2)});
}

TEST_F(Timers, StayDueWhileTheQueueIsFull) {
    setTimer(1, 2, 100);
    for (int i = 0; i < 50; ++i) {
        GESetEvent(event(5, 5), 0);
    }
    platform.clock = 100;
    GECheckTimer();
    takeAll();
    EXPECT_EQ(check(101), Events{expiry(1, 2)});
}

TEST_F(Timers, WithOneTargetAndIdRunBesideEachOther) {
    setTimer(1, 2, 100);
    setTimer(1, 2, 250);
    EXPECT_EQ(check(100), Events{expiry(1, 2)});
    EXPECT_EQ(check(250).size(), 1U) << "both are due, but their events are equal";
    GEKillTimer(1, 2);
    EXPECT_EQ(check(500), Events{expiry(1, 2)}) << "the second still runs";
}

TEST_F(Timers, FiftyRunAtOnce) {
    for (uint16_t id = 0; id < 50; ++id) {
        EXPECT_EQ(setTimer(1, id, 10), 1);
    }
    EXPECT_EQ(GESetTimer(1, 50, 10), 0);
    Events expected;
    for (uint16_t id = 0; id < 50; ++id) {
        expected.push_back(expiry(1, id));
    }
    EXPECT_EQ(check(10), expected);
    GEKillTimer(1, 20);
    EXPECT_EQ(setTimer(1, 50, 10), 1);
}

TEST_F(Timers, KillingDropsThePendingEventAndNoOther) {
    setTimer(1, 2, 10);
    setTimer(1, 3, 10);
    platform.clock = 10;
    GECheckTimer();
    GESetEvent(event(5, 1, 2), 0);
    platform.forget();
    GEKillTimer(1, 2);
    EXPECT_EQ(platform.calls, std::vector{call(32)});
    EXPECT_EQ(takeAll(), (Events{expiry(1, 3), event(5, 1, 2)}));
    EXPECT_EQ(check(1000), Events{expiry(1, 3)});
}

TEST_F(Timers, KillingOneThatDoesNotRunDoesNothing) {
    setTimer(1, 2, 10);
    GESetEvent(event(G_EVENT_TIMER, 7, 2), 0);
    platform.forget();
    GEKillTimer(7, 2);
    GEKillTimer(1, 3);
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_EQ(takeAll(), Events{event(G_EVENT_TIMER, 7, 2)});
    EXPECT_EQ(check(10), Events{expiry(1, 2)});
}

TEST_F(Timers, NeedAClock) {
    platform.remove({28});
    EXPECT_EQ(GESetTimer(1, 2, 0), 0);
    GECheckTimer();
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_TRUE(platform.requests.empty());
}

TEST_F(Timers, TheClocksOwnResultIsIgnored) {
    platform.serve<28>([this](GSystemTime* time) {
        *time = {static_cast<uint32_t>(platform.clock), 0};
        return -1;
    });
    EXPECT_EQ(setTimer(1, 2, 10), 1);
    EXPECT_EQ(check(10), Events{expiry(1, 2)});
}

TEST_F(Timers, ACheckReadsTheClockOnce) {
    for (uint16_t id = 0; id < 3; ++id) {
        setTimer(1, id, 10);
    }
    platform.forget();
    GECheckTimer();
    EXPECT_EQ(platform.count(28), 1U);
}

TEST_F(Timers, OnlyTheLowWordOfTheElapsedTimeCounts) {
    setTimer(1, 2, 100);
    EXPECT_EQ(check(int64_t{1} << 32), Events{});
    EXPECT_EQ(check((int64_t{1} << 32) + 100), Events{expiry(1, 2)});
}

TEST_F(Timers, IntervalsCompareAsUnsigned) {
    setTimer(1, 2, 0x80000000);
    EXPECT_EQ(check(0x7FFFFFFF), Events{});
    EXPECT_EQ(check(0x80000000), Events{expiry(1, 2)});
}

TEST_F(Timers, SurviveTheWrapOfTheClock) {
    platform.clock = INT64_MAX - 10;
    setTimer(1, 2, 100);
    EXPECT_EQ(check(88), Events{});
    EXPECT_EQ(check(89), Events{expiry(1, 2)});
}

} // namespace
