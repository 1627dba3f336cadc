#include "event/pending.h"

#include <gtest/gtest.h>

#include <vector>

using namespace quarlo::test;

namespace {

using Events = std::vector<GEventMsg>;

class Queue : public testing::Test {
  protected:
    void fill(int count) {
        for (int i = 0; i < count; ++i) {
            ASSERT_EQ(GESetEvent(event(5, static_cast<uint32_t>(i)), 0), 1);
        }
    }

    EventPlatform platform;
};

TEST_F(Queue, InitStartsLockSignalAndClockInOrder) {
    EXPECT_EQ(GEInitEvent(), 1);
    ASSERT_EQ(platform.calls.size(), 3U);
    EXPECT_EQ(platform.calls[0], call(29));
    EXPECT_EQ(platform.calls[1], call(26));
    EXPECT_EQ(platform.calls[2].service, 28);
}

TEST_F(Queue, InitStopsAtAStepThatFails) {
    platform.answer(29, -1);
    EXPECT_EQ(GEInitEvent(), 0);
    EXPECT_EQ(platform.calls, std::vector{call(29)});
    platform.answer(29, 0);
    platform.answer(26, -1);
    platform.forget();
    EXPECT_EQ(GEInitEvent(), 0);
    EXPECT_EQ(platform.calls, (std::vector{call(29), call(26)}));
}

TEST_F(Queue, InitJudgesStepsBySixteenBitsAndTheClockByThirtyTwo) {
    platform.answer(29, 0x8000);
    EXPECT_EQ(GEInitEvent(), 0);
    platform.answer(29, 0x7FFF);
    platform.answer(26, INT32_MIN); // low bits 0
    EXPECT_EQ(GEInitEvent(), 1);
    platform.serve<28>([](GSystemTime*) { return 0x8000; });
    EXPECT_EQ(GEInitEvent(), 1);
    platform.serve<28>([](GSystemTime*) { return -1; });
    EXPECT_EQ(GEInitEvent(), 0);
    platform.serve<28>([](GSystemTime*) { return INT32_MIN; });
    EXPECT_EQ(GEInitEvent(), 0);
}

TEST_F(Queue, InitTakesMissingServicesForSuccess) {
    platform.remove({26, 28, 29});
    EXPECT_EQ(GEInitEvent(), 1);
    EXPECT_TRUE(platform.requests.empty());
}

TEST_F(Queue, InitEmptiesTheQueueEvenWhenItFails) {
    fill(3);
    platform.answer(29, -1);
    GEInitEvent();
    EXPECT_EQ(takeAll(), Events{});
}

TEST_F(Queue, QuitStopsThePlatformAndEmptiesTheQueue) {
    fill(50);
    platform.forget();
    GEQuitEvent();
    EXPECT_EQ(platform.calls, std::vector{call(kShutdownEvents)});
    EXPECT_EQ(takeAll(), Events{});
}

TEST_F(Queue, CreateFillsARecordAndReturnsIt) {
    GEventMsg record = {9, 9, 9, 9, {9, 9}};
    EXPECT_EQ(GECreateEventMessage(&record, 0xFFFF, 0x80000000, 3, 4), &record);
    EXPECT_EQ(record, (GEventMsg{0xFFFF, 0x80000000, 3, 4, {0, 0}}));
}

TEST_F(Queue, EventsLeaveInTheOrderTheyCame) {
    const Events posted = {event(5, 1, 2, 3), event(0, 0), {7, 1, 2, 3, {4, 5}}};
    for (const GEventMsg& message : posted) {
        EXPECT_EQ(GESetEvent(message, 0), 1);
    }
    EXPECT_EQ(takeAll(), posted) << "reserved words are copied as given";
}

TEST_F(Queue, PostingLocksSignalsAndUnlocks) {
    GESetEvent(event(5, 1), 0);
    EXPECT_EQ(platform.calls, (std::vector{call(34, -1), call(31), call(35)}));
}

TEST_F(Queue, TakingWaitsLocksTellsAndUnlocks) {
    GESetEvent(event(5, 1), 0);
    platform.forget();
    GEventMsg taken{};
    EXPECT_EQ(GEGetEvent(&taken, 1234), 1);
    EXPECT_EQ(platform.calls, (std::vector{call(33, 1234), call(34, -1), call(32), call(35)}));
}

TEST_F(Queue, TakingFromAnEmptyQueueLeavesTheRecord) {
    GEventMsg record = event(9, 9);
    EXPECT_EQ(GEGetEvent(&record, -1), 0);
    EXPECT_EQ(record, event(9, 9));
    EXPECT_EQ(platform.calls, (std::vector{call(33, -1), call(34, -1), call(35)}));
}

TEST_F(Queue, AWaitThatBringsNothingTakesNoLock) {
    GESetEvent(event(5, 1), 0);
    platform.forget();
    GEventMsg record{};
    platform.answer(33, 0x10000); // low bits 0
    EXPECT_EQ(GEGetEvent(&record, 0), 0);
    EXPECT_EQ(platform.calls, std::vector{call(33, 0)});
    platform.answer(33, 0x8000);
    EXPECT_EQ(GEGetEvent(&record, 0), 1);
}

TEST_F(Queue, ALockThatFailsFailsTheCall) {
    GESetEvent(event(5, 1), 0);
    platform.answer(34, 0x8000);
    platform.forget();
    GEventMsg record = event(9, 9);
    EXPECT_EQ(GESetEvent(event(5, 2), 0), 0);
    EXPECT_EQ(GEGetEvent(&record, 0), 0);
    GEClearTargetEvent(1);
    EXPECT_EQ(platform.count(35), 0U);
    EXPECT_EQ(platform.count(31), 0U);
    EXPECT_EQ(platform.count(32), 0U);
    platform.answer(34, 0x7FFF0000);
    EXPECT_EQ(takeAll(), Events{event(5, 1)});
}

TEST_F(Queue, WorksWithoutAnyService) {
    platform.remove({31, 32, 33, 34, 35});
    EXPECT_EQ(GESetEvent(event(5, 1), 0), 1);
    EXPECT_EQ(takeAll(), Events{event(5, 1)});
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_TRUE(platform.requests.empty());
}

TEST_F(Queue, HoldsFiftyEvents) {
    fill(50);
    platform.forget();
    EXPECT_EQ(GESetEvent(event(5, 50), 0), 0);
    EXPECT_EQ(platform.calls, (std::vector{call(34, -1), call(35)}));

    GEventMsg taken{};
    EXPECT_EQ(GEGetEvent(&taken, 0), 1);
    EXPECT_EQ(GESetEvent(event(5, 50), 0), 1);
    EXPECT_EQ(GESetEvent(event(5, 51), 0), 0);
    const Events rest = takeAll();
    ASSERT_EQ(rest.size(), 50U);
    for (uint32_t i = 0; i < 50; ++i) {
        EXPECT_EQ(rest[i].target, i + 1);
    }
}

TEST_F(Queue, AUniqueEventIsPendingOnce) {
    EXPECT_EQ(GESetEvent(event(5, 1, 1, 1), 1), 1);
    platform.forget();
    EXPECT_EQ(GESetEvent(event(5, 1, 2, 2), 1), 1) << "parameters do not count";
    EXPECT_EQ(platform.calls, (std::vector{call(34, -1), call(35)}));
    EXPECT_EQ(GESetEvent(event(5, 2), 1), 1);
    EXPECT_EQ(GESetEvent(event(6, 1), 1), 1);
    EXPECT_EQ(takeAll(), (Events{event(5, 1, 1, 1), event(5, 2), event(6, 1)}));
}

TEST_F(Queue, AUniqueTimerEventCountsItsParameters) {
    EXPECT_EQ(GESetEvent(event(G_EVENT_TIMER, 1, 7, 1), 1), 1);
    EXPECT_EQ(GESetEvent(event(G_EVENT_TIMER, 1, 7, 2), 1), 1);
    EXPECT_EQ(GESetEvent(event(G_EVENT_TIMER, 1, 7, 2), 1), 0);
    EXPECT_EQ(takeAll().size(), 2U);
}

TEST_F(Queue, OnlyTheValueOneMakesAnEventUnique) {
    GESetEvent(event(5, 1), 2);
    GESetEvent(event(5, 1), 2);
    EXPECT_EQ(takeAll().size(), 2U);
}

TEST_F(Queue, ClearTargetCompactsTheRest) {
    for (const uint32_t target : {1U, 2U, 1U, 3U, 2U}) {
        GESetEvent(event(5, target), 0);
    }
    platform.forget();
    GEClearTargetEvent(2);
    EXPECT_EQ(platform.calls, (std::vector{call(34, -1), call(35)}));
    EXPECT_EQ(takeAll(), (Events{event(5, 1), event(5, 1), event(5, 3)}));
}

TEST_F(Queue, ClearTargetMakesRoomAcrossTheEnd) {
    platform.moveIndices(30);
    fill(49);
    for (uint32_t target = 0; target < 48; ++target) {
        GEClearTargetEvent(target);
    }
    fill(48);
    EXPECT_EQ(takeAll().size(), 49U);
}

TEST_F(Queue, ClearTargetLeavesAFullQueue) {
    fill(50);
    GEClearTargetEvent(3);
    EXPECT_EQ(takeAll().size(), 50U);
}

TEST_F(Queue, ClearTimerDropsTheTimersEventsAndTellsEach) {
    GESetEvent(event(G_EVENT_TIMER, 1, 0xABCD0007, 1), 0);
    GESetEvent(event(G_EVENT_TIMER, 1, 7, 2), 0);
    GESetEvent(event(G_EVENT_TIMER, 1, 8, 3), 0);
    GESetEvent(event(G_EVENT_TIMER, 2, 7, 4), 0);
    GESetEvent(event(5, 1, 7, 5), 0);
    platform.forget();
    GEClearTimerEvent(1, 7);
    EXPECT_EQ(platform.calls, (std::vector{call(32), call(32)}));
    EXPECT_EQ(takeAll(), (Events{event(G_EVENT_TIMER, 1, 8, 3), event(G_EVENT_TIMER, 2, 7, 4),
                                 event(5, 1, 7, 5)}));
}

TEST_F(Queue, ClearTimerWorksOnAFullQueue) {
    for (int i = 0; i < 50; ++i) {
        GESetEvent(event(G_EVENT_TIMER, 1, 7), 0);
    }
    GEClearTimerEvent(1, 7);
    EXPECT_EQ(platform.count(32), 50U);
    EXPECT_EQ(takeAll(), Events{});
}

TEST_F(Queue, AFullQueueEmptiedAtItsFrontLooksEmpty) {
    for (int i = 0; i < 50; ++i) {
        GESetEvent(event(G_EVENT_TIMER, 1, i == 49 ? 8 : 7), 0);
    }
    GEClearTimerEvent(1, 7);
    EXPECT_EQ(takeAll(), Events{});
    for (int i = 0; i < 49; ++i) {
        GESetEvent(event(5, 1), 0);
    }
    EXPECT_EQ(GESetEvent(event(5, 1), 0), 0) << "the last place is still in use";
    Events expected(49, event(5, 1));
    expected.push_back(event(G_EVENT_TIMER, 1, 8));
    EXPECT_EQ(takeAll(), expected);
}

} // namespace
