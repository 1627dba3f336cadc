// The program's handler of messages, which runs while a thread waits for events.
#include "support/started_platform.h"

#include <gpi/host.h>
#include <quarlo/event.h>
#include <quarlo/platform.h>

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <future>
#include <thread>
#include <vector>

namespace {

using namespace gpi::test;

constexpr uint16_t kInput = 100; ///< the type of the events that handlers post
constexpr uint16_t kOther = 101;
constexpr int32_t kNoWait = 0;
constexpr int32_t kLong = 60'000;

int32_t post(uint32_t number, GWord param1 = 0) {
    GMessage message{};
    message.number = number;
    message.param1 = param1;
    return GPIHostPostMessage(&message);
}

void postEvent(uint16_t type, uint32_t param1 = 0) {
    GESetEvent({type, 0, param1, 0, {}}, 0);
}

using Action = std::function<void(const GMessage&)>;

void call(void* action, const GMessage* message) {
    (*static_cast<Action*>(action))(*message);
}

class Handler : public testing::Test {
  protected:
    Handler() {
        GetGPIFunction();
        GEInitEvent();
    }
    ~Handler() override {
        GPIHostSetMessageHandler(nullptr, nullptr);
        GEQuitEvent();
    }

    void handleBy(Action newAction) {
        action = std::move(newAction);
        GPIHostSetMessageHandler(call, &action);
    }

    /// Makes an event of every message.
    void postInput() {
        handleBy([](const GMessage& message) {
            postEvent(kInput, static_cast<uint32_t>(message.param1));
        });
    }

    StartedPlatform platform;
    Action action;
    GEventMsg event{};
};

TEST_F(Handler, TurnsMessagesIntoEvents) {
    postInput();
    for (GWord i = 0; i < 200; ++i) {
        ASSERT_EQ(post(0x400, i), 1);
    }
    for (uint32_t i = 0; i < 200; ++i) {
        ASSERT_EQ(GEGetEvent(&event, kNoWait), 1) << "input must not flood the queue of events";
        ASSERT_EQ(event.type, kInput);
        ASSERT_EQ(event.param1, i);
    }
    EXPECT_EQ(GEGetEvent(&event, kNoWait), 0);
}

TEST_F(Handler, WakesTheThreadThatWaits) {
    postInput();
    auto waiting = std::async(std::launch::async, [&] { return GEGetEvent(&event, kLong); });
    post(0x400, 5);
    EXPECT_EQ(waiting.get(), 1);
    EXPECT_EQ(event.param1, 5U);
}

TEST_F(Handler, RunsInTheThreadThatWaits) {
    std::atomic<std::thread::id> ran;
    handleBy([&](const GMessage&) {
        ran = std::this_thread::get_id();
        postEvent(kInput);
    });
    std::thread::id waited;
    std::thread waiter([&] {
        waited = std::this_thread::get_id();
        GEGetEvent(&event, kLong);
    });
    post(0x400);
    waiter.join();
    EXPECT_EQ(ran.load(), waited);
}

TEST_F(Handler, ThatPostsNothingLetsTheWaitGoOn) {
    int handled = 0;
    handleBy([&](const GMessage& message) {
        ++handled;
        if (message.number == G_MESSAGE_QUIT) {
            postEvent(G_EVENT_QUIT);
        }
    });
    for (GWord i = 0; i < 5; ++i) {
        post(0x400, i);
    }
    post(G_MESSAGE_QUIT);
    EXPECT_EQ(GEGetEvent(&event, kLong), 1);
    EXPECT_EQ(event.type, G_EVENT_QUIT);
    EXPECT_EQ(handled, 6);
}

TEST_F(Handler, ThatPostsNothingDoesNotProlongTheWait) {
    int handled = 0;
    handleBy([&](const GMessage&) { ++handled; });
    post(0x400);
    EXPECT_EQ(GEGetEvent(&event, 20), 0);
    EXPECT_EQ(handled, 1);
}

TEST_F(Handler, IsNotHeldUpByEventsThatKeepComing) {
    postInput();
    post(0x400, 1);
    post(0x400, 2);
    for (int i = 0; i < 3; ++i) {
        postEvent(kOther);
    }
    std::vector<uint16_t> types;
    for (int i = 0; i < 6; ++i) {
        ASSERT_EQ(GEGetEvent(&event, kNoWait), 1);
        types.push_back(event.type);
        postEvent(kOther); // as many come as go
    }
    EXPECT_EQ(types, (std::vector{kOther, kOther, kOther, kInput, kOther, kInput}))
        << "each wait lets one message in, behind the events that are there by then";
}

TEST_F(Handler, TakesMessagesThatWaitedForIt) {
    post(0x400, 1);
    EXPECT_EQ(GEGetEvent(&event, kNoWait), 0) << "nobody takes messages yet";
    auto waiting = std::async(std::launch::async, [&] { return GEGetEvent(&event, kLong); });
    postInput();
    EXPECT_EQ(waiting.get(), 1);
    EXPECT_EQ(event.param1, 1U);
    GMessage message;
    EXPECT_EQ(GPIHostWaitMessage(&message, kNoWait), 0);
}

TEST_F(Handler, ThatIsNullLeavesMessagesInTheQueue) {
    postInput();
    GPIHostSetMessageHandler(nullptr, nullptr);
    post(0x400, 1);
    EXPECT_EQ(GEGetEvent(&event, kNoWait), 0);
    GMessage message;
    EXPECT_EQ(GPIHostWaitMessage(&message, kNoWait), 1);
}

TEST_F(Handler, MayRemoveItself) {
    int handled = 0;
    handleBy([&](const GMessage&) {
        ++handled;
        GPIHostSetMessageHandler(nullptr, nullptr);
    });
    post(0x400);
    post(0x400);
    EXPECT_EQ(GEGetEvent(&event, kNoWait), 0);
    EXPECT_EQ(handled, 1);
    GMessage message;
    EXPECT_EQ(GPIHostWaitMessage(&message, kNoWait), 1) << "the second message stays";
}

TEST_F(Handler, MaySetAnotherOne) {
    std::vector<int> handled;
    Action second = [&](const GMessage&) { handled.push_back(2); };
    handleBy([&](const GMessage&) {
        handled.push_back(1);
        GPIHostSetMessageHandler(call, &second);
    });
    for (int i = 0; i < 3; ++i) {
        post(0x400);
    }
    EXPECT_EQ(GEGetEvent(&event, kNoWait), 0);
    EXPECT_EQ(handled, (std::vector{1, 2, 2}));
}

TEST_F(Handler, MayPostMessagesAndWaitForEvents) {
    std::vector<GWord> handled;
    handleBy([&](const GMessage& message) {
        handled.push_back(message.param1);
        if (message.param1 == 1) {
            post(0x400, 2);
            EXPECT_EQ(GEGetEvent(&event, kNoWait), 0) << "a handler is not called inside itself";
        }
    });
    post(0x400, 1);
    EXPECT_EQ(GEGetEvent(&event, kNoWait), 0);
    EXPECT_EQ(handled, (std::vector<GWord>{1, 2}));
}

TEST_F(Handler, HasEndedWhenAnotherThreadHasRemovedIt) {
    std::atomic<bool> ended = false;
    std::promise<void> runs;
    std::promise<void> goOn;
    handleBy([&](const GMessage&) {
        runs.set_value();
        goOn.get_future().wait();
        ended = true;
    });
    post(0x400);
    auto waiting = std::async(std::launch::async, [&] { return GEGetEvent(&event, kNoWait); });
    runs.get_future().wait();
    auto removing = std::async(std::launch::async, [&] {
        GPIHostSetMessageHandler(nullptr, nullptr);
        return ended.load();
    });
    goOn.set_value();
    EXPECT_TRUE(removing.get());
    EXPECT_EQ(waiting.get(), 0);
}

TEST_F(Handler, RunsOnceAtATimeAndInOrderForSeveralThreads) {
    constexpr GWord kMessages = 20'000;
    std::atomic<int> inside = 0;
    GWord expected = 0; // guarded by there being one call at a time
    handleBy([&](const GMessage& message) {
        EXPECT_EQ(++inside, 1);
        EXPECT_EQ(message.param1, expected);
        ++expected;
        --inside;
        const bool last = message.param1 + 1 == kMessages;
        postEvent(last ? uint16_t{G_EVENT_QUIT} : kInput);
    });
    std::atomic<bool> running = true;
    std::vector<std::thread> waiters;
    for (int i = 0; i < 3; ++i) {
        waiters.emplace_back([&] {
            GEventMsg taken{};
            while (running) {
                if (GEGetEvent(&taken, kLong) == 1 && taken.type == G_EVENT_QUIT) {
                    running = false;
                    GPIShutdownEvents(); // ends the waits of the others
                }
            }
        });
    }
    for (GWord i = 0; i < kMessages; ++i) {
        while (post(0x400, i) == 0) {
            std::this_thread::yield();
        }
    }
    for (std::thread& waiter : waiters) {
        waiter.join();
    }
    EXPECT_EQ(expected, kMessages);
}

} // namespace
