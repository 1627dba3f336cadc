#include "event/pending.h"

#include <gtest/gtest.h>

#include <vector>

using namespace quarlo::test;

namespace {

using Events = std::vector<GEventMsg>;

class ForcedInsertion : public testing::Test {
  protected:
    void post(const Events& events) {
        GESetForceEventFlag(0);
        for (const GEventMsg& message : events) {
            ASSERT_EQ(GESetEvent(message, 0), 1);
        }
        GESetForceEventFlag(1);
        platform.forget();
    }

    EventPlatform platform;
};

/// What came of two events before the first test, when nobody had set the flag yet.
class AtTheStart : public testing::Environment {
  public:
    void SetUp() override {
        const RecordingPlatform platform;
        GEInitEvent();
        GESetEvent(event(3, 1), 0);
        GESetEvent(event(7, 2), 0);
        taken = takeAll();
    }

    Events taken;
};

const auto* const kAtTheStart =
    static_cast<AtTheStart*>(testing::AddGlobalTestEnvironment(new AtTheStart));

TEST_F(ForcedInsertion, IsOffAtTheStart) {
    EXPECT_EQ(kAtTheStart->taken, (Events{event(3, 1), event(7, 2)}));
}

TEST_F(ForcedInsertion, GoesBehindItsOwnTypeAndSupersedesItsTarget) {
    post({event(7, 1), event(3, 2), event(9, 3)});
    EXPECT_EQ(GESetEvent(event(7, 2), 0), 1);
    EXPECT_EQ(platform.calls, (std::vector{call(34, -1), call(31), call(35)}));
    EXPECT_EQ(takeAll(), (Events{event(7, 1), event(7, 2), event(9, 3)}));
}

TEST_F(ForcedInsertion, GoesFirstPastOtherTypes) {
    post({event(3, 1), event(7, 1), event(9, 3)});
    GESetEvent(event(7, 2), 0);
    EXPECT_EQ(takeAll(), (Events{event(7, 2), event(3, 1), event(7, 1), event(9, 3)}));
}

TEST_F(ForcedInsertion, IntoAnEmptyQueueIsAnOrdinaryPost) {
    post({});
    EXPECT_EQ(GESetEvent(event(7, 2), 1), 1);
    EXPECT_EQ(GESetEvent(event(7, 3), 1), 1);
    EXPECT_EQ(takeAll(), (Events{event(7, 2), event(7, 3)}));
}

TEST_F(ForcedInsertion, BehindARunThatReachesTheEndIsTheLast) {
    post({event(7, 1), event(7, 3)});
    GESetEvent(event(7, 2), 0);
    EXPECT_EQ(takeAll(), (Events{event(7, 1), event(7, 3), event(7, 2)}));
}

TEST_F(ForcedInsertion, SupersedesEveryEventForItsTarget) {
    post({event(3, 2), event(7, 2), event(9, 2, 1), event(9, 1)});
    GESetEvent(event(7, 2, 5), 0);
    Events first(2);
    for (GEventMsg& taken : first) {
        GEGetEvent(&taken, 0);
    }
    EXPECT_EQ(first, (Events{event(7, 2, 5), event(9, 1)}));
}

TEST_F(ForcedInsertion, OnlyTheValueOneForces) {
    post({event(3, 1)});
    GESetForceEventFlag(2);
    GESetEvent(event(7, 2), 0);
    EXPECT_EQ(takeAll(), (Events{event(3, 1), event(7, 2)}));
}

TEST_F(ForcedInsertion, AUniqueEventBeforeItsEqualIsNotPostedAndTheFrontIsLost) {
    post({event(7, 1), event(7, 2), event(9, 3)});
    EXPECT_EQ(GESetEvent(event(7, 2), 1), 1);
    EXPECT_EQ(platform.calls, (std::vector{call(34, -1), call(35)}));
    EXPECT_EQ(takeAll(), (Events{event(7, 2), event(9, 3)}));
}

TEST_F(ForcedInsertion, AUniqueTimerEventBeforeItsEqualGivesOneToo) {
    post({event(G_EVENT_TIMER, 2, 7)});
    EXPECT_EQ(GESetEvent(event(G_EVENT_TIMER, 2, 8), 1), 1);
    EXPECT_EQ(takeAll(), Events{event(G_EVENT_TIMER, 2, 7)});
}

TEST_F(ForcedInsertion, UniqueLooksOnlyWhereTheFrontRunStops) {
    post({event(3, 1), event(7, 2)});
    EXPECT_EQ(GESetEvent(event(7, 2, 9), 1), 1);
    EXPECT_EQ(takeAll(), (Events{event(7, 2, 9), event(3, 1)}));
}

TEST_F(ForcedInsertion, AnEmptiedPlaceEndsTheFrontRun) {
    post({event(7, 1), event(G_EVENT_TIMER, 9, 9), event(7, 3)});
    GEClearTimerEvent(9, 9);
    GESetEvent(event(7, 2), 0);
    EXPECT_EQ(takeAll(), (Events{event(7, 1), event(7, 2), event(7, 3)}));
}

TEST_F(ForcedInsertion, WorksAcrossTheEndOfTheRing) {
    platform.moveIndices(48);
    post({event(7, 1), event(3, 2), event(9, 3), event(9, 4)});
    GESetEvent(event(7, 2), 0);
    EXPECT_EQ(takeAll(), (Events{event(7, 1), event(7, 2), event(9, 3), event(9, 4)}));
}

TEST_F(ForcedInsertion, IntoAFullQueueIsRefused) {
    post(Events(50, event(7, 1)));
    EXPECT_EQ(GESetEvent(event(7, 2), 0), 0);
    EXPECT_EQ(takeAll().size(), 50U);
}

TEST_F(ForcedInsertion, BehindFortyNineEventsFillsTheRing) {
    Events expected(49, event(7, 1));
    post(expected);
    EXPECT_EQ(GESetEvent(event(7, 2), 0), 1);
    GESetForceEventFlag(0);
    EXPECT_EQ(GESetEvent(event(7, 3), 0), 0) << "the ring is full";
    expected.push_back(event(7, 2));
    EXPECT_EQ(takeAll(), expected);
}

TEST_F(ForcedInsertion, PlacesBehindTheNewEndKeepWhatTheyHeld) {
    // Five events shrink to three; the two old places behind them are read once the reader comes
    // to the new end.
    post({event(3, 2), event(4, 2), event(5, 2), event(9, 8), event(9, 9)});
    GESetEvent(event(7, 2), 0);
    EXPECT_EQ(takeAll(), (Events{event(7, 2), event(9, 8), event(9, 9), event(9, 8), event(9, 9)}));
}

TEST_F(ForcedInsertion, AnOldEventBehindTheEndMakesTheQueueFull) {
    post({event(3, 2), event(4, 2), event(9, 9)});
    GESetEvent(event(7, 2), 0);
    GESetForceEventFlag(0);
    EXPECT_EQ(GESetEvent(event(5, 5), 0), 0);
}

} // namespace
