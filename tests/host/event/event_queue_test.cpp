// The library's event queue on this platform, used by several threads.
#include "support/started_platform.h"

#include <gpi/host.h>
#include <quarlo/event.h>
#include <quarlo/platform.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <functional>
#include <future>
#include <thread>
#include <vector>

namespace {

using namespace gpi::test;

constexpr uint32_t kThreads = 4;
constexpr int32_t kNoLimit = -1;

/// QUARLO_SOAK_EVENTS makes more of them.
uint32_t eventsPerThread() {
    const char* const wanted = std::getenv("QUARLO_SOAK_EVENTS");
    return (wanted != nullptr ? static_cast<uint32_t>(std::strtoul(wanted, nullptr, 10))
                              : 200'000) /
           kThreads;
}

/// Posts a numbered event. False when the queue is full or cannot be locked.
bool post(uint32_t thread, uint32_t number) {
    return GESetEvent({100, thread, number, 0, {}}, 0) == 1;
}

class EventQueue : public testing::Test {
  protected:
    EventQueue() { GetGPIFunction(); }
    ~EventQueue() override { GEQuitEvent(); }
    void SetUp() override { ASSERT_EQ(GEInitEvent(), 1); }

    static void runInThreads(const std::function<void(uint32_t)>& work) {
        std::vector<std::thread> threads;
        for (uint32_t thread = 0; thread < kThreads; ++thread) {
            threads.emplace_back(work, thread);
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
    }

    StartedPlatform platform;
};

TEST_F(EventQueue, KeepsTheOrderOfEachOfFourThreads) {
    const uint32_t count = eventsPerThread();
    std::thread taker([=] {
        std::vector<uint32_t> next(kThreads);
        GEventMsg event{};
        for (uint32_t taken = 0; taken < kThreads * count; ++taken) {
            ASSERT_EQ(GEGetEvent(&event, kNoLimit), 1);
            ASSERT_LT(event.target, kThreads);
            ASSERT_EQ(event.param1, next[event.target]++) << "of thread " << event.target;
        }
    });
    runInThreads([=](uint32_t thread) {
        for (uint32_t number = 0; number < count; ++number) {
            while (!post(thread, number)) {
                std::this_thread::yield();
            }
        }
    });
    taker.join();
    GEventMsg event{};
    EXPECT_EQ(GEGetEvent(&event, 0), 0);
}

TEST_F(EventQueue, LosesAndDoublesNothingBetweenFourThreadsThatPostAndTake) {
    const uint32_t count = eventsPerThread();
    std::vector<std::atomic<uint8_t>> taken(size_t{kThreads} * count);
    std::atomic<uint32_t> left = kThreads * count;
    runInThreads([&](uint32_t thread) {
        GEventMsg event{};
        for (uint32_t number = 0; left > 0;) {
            if (number < count && post(thread, number)) {
                ++number;
            }
            if (GEGetEvent(&event, 0) == 1) {
                ++taken[size_t{event.target} * count + event.param1];
                --left;
            }
        }
    });
    const auto wrong =
        std::count_if(taken.begin(), taken.end(), [](const auto& times) { return times != 1; });
    EXPECT_EQ(wrong, 0) << "events that were not taken once";
    GEventMsg event{};
    EXPECT_EQ(GEGetEvent(&event, 0), 0);
}

TEST_F(EventQueue, IsLeftByThreadsThatPostWhenTheProgramQuits) {
    GMessage quit{};
    quit.number = G_MESSAGE_QUIT;
    GPIHostPostMessage(&quit);
    ASSERT_EQ(GEClearWindowsEvent(), 1); // and keeps the lock
    auto posting = std::async(std::launch::async, [] { return post(1, 1); });
    GEventMsg event{};
    EXPECT_EQ(GEGetEvent(&event, 0), 1);
    EXPECT_EQ(event.type, G_EVENT_QUIT);
    GEQuitEvent();
    EXPECT_FALSE(posting.get());
    ASSERT_EQ(GEInitEvent(), 1);
    auto again = std::async(std::launch::async, [] { return post(1, 2); });
    EXPECT_TRUE(again.get()) << "a start frees the lock";
    EXPECT_EQ(GEGetEvent(&event, 0), 1);
    EXPECT_EQ(event.param1, 2U);
}

} // namespace
