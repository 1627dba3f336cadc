#include "event/pending.h"

#include <gtest/gtest.h>

#include <deque>
#include <vector>

using namespace quarlo::test;

namespace {

using Events = std::vector<GEventMsg>;

class MessagePump : public testing::Test {
  protected:
    MessagePump() {
        platform.serve<124>([this](GMessage* message) {
            if (waiting.empty()) {
                return 0;
            }
            *message = {};
            message->number = waiting.front();
            waiting.pop_front();
            return 0x10000; // any value but 0 is a message
        });
    }

    /// The calls, without those that fetch a message.
    std::vector<ServiceCall> calls() const {
        std::vector<ServiceCall> others;
        for (const ServiceCall& call : platform.calls) {
            if (call.service != 124) {
                others.push_back(call);
            }
        }
        return others;
    }

    std::deque<uint32_t> waiting;
    EventPlatform platform;
};

TEST_F(MessagePump, DropsInput) {
    waiting = {0x100, 0x101, 0x200, 0x2FF};
    GEClearWindowsEvent();
    EXPECT_EQ(calls(), (std::vector{call(34, -1), call(35)}));
    EXPECT_EQ(platform.count(124), 5U);
}

TEST_F(MessagePump, AQuitMessagePostsAnEventAndLeavesTheRest) {
    GESetEvent(event(5, 1), 0);
    platform.forget();
    waiting = {18, 15};
    EXPECT_EQ(GEClearWindowsEvent(), 1);
    EXPECT_EQ(calls(), (std::vector{call(34, -1), call(34, -1), call(31), call(35)}))
        << "the first lock stays held";
    EXPECT_EQ(waiting.size(), 1U);
    EXPECT_EQ(takeAll(), (Events{event(5, 1), event(G_EVENT_QUIT, 0)}));
}

TEST_F(MessagePump, ALockThatFailsLeavesMessagesAndEvents) {
    GESetEvent(event(5, 1), 0);
    waiting = {15};
    platform.answer(34, -1);
    EXPECT_EQ(GEClearWindowsEvent(), 0);
    EXPECT_EQ(waiting.size(), 1U);
    platform.answer(34, 0);
    EXPECT_EQ(takeAll(), Events{event(5, 1)});
}

TEST_F(MessagePump, WithoutAPumpStillDropsPendingEvents) {
    GESetEvent(event(5, 1), 0);
    platform.remove({124});
    EXPECT_EQ(GEClearWindowsEvent(), 1);
    EXPECT_EQ(takeAll(), Events{});
}

TEST_F(MessagePump, EmptiesAFullQueue) {
    platform.moveIndices(20);
    for (int i = 0; i < 50; ++i) {
        GESetEvent(event(5, 1), 0);
    }
    platform.forget();
    GEClearWindowsEvent();
    EXPECT_EQ(platform.count(32), 0U);
    EXPECT_EQ(takeAll(), Events{});
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ(GESetEvent(event(5, 2), 0), 1);
    }
}

#ifndef _WIN32 // which dispatches by itself: window_messages_test.cpp

TEST_F(MessagePump, DispatchesMessagesAndDropsPendingEvents) {
    GESetEvent(event(5, 1), 0);
    GESetEvent(event(5, 2), 0);
    platform.forget();
    waiting = {15, 0x300};
    EXPECT_EQ(GEClearWindowsEvent(), 1);
    EXPECT_EQ(calls(), (std::vector{call(34, -1), call(kTranslateMessage, 15),
                                    call(kDispatchMessage, 15), call(kTranslateMessage, 0x300),
                                    call(kDispatchMessage, 0x300), call(35)}));
    EXPECT_EQ(takeAll(), Events{});
}

TEST_F(MessagePump, MessagesBesideTheInputRangeAreDispatched) {
    waiting = {0xFF, 0x300, 0xFFFFFFFF};
    GEClearWindowsEvent();
    EXPECT_EQ(platform.count(kTranslateMessage), 3U);
    EXPECT_EQ(platform.count(kDispatchMessage), 3U);
}

#endif

} // namespace
