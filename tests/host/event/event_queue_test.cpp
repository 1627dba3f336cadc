// The library's event queue on this platform, with several threads that post.
#include "support/started_platform.h"

#include <quarlo/event.h>
#include <quarlo/platform.h>

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <thread>
#include <vector>

namespace {

using namespace gpi::test;

constexpr uint32_t kThreads = 4;

/// QUARLO_SOAK_EVENTS makes more of them.
uint32_t eventsPerThread() {
    const char* const wanted = std::getenv("QUARLO_SOAK_EVENTS");
    return (wanted != nullptr ? static_cast<uint32_t>(std::strtoul(wanted, nullptr, 10))
                              : 200'000) /
           kThreads;
}

/// Posts numbered events, waiting while the queue is full.
void post(uint32_t thread, uint32_t count) {
    for (uint32_t number = 0; number < count; ++number) {
        const GEventMsg event{100, thread, number, 0, {}};
        while (GESetEvent(event, 0) == 0) {
            std::this_thread::yield();
        }
    }
}

TEST(EventQueue, LosesAndDoublesNothingUnderFourThreads) {
    const StartedPlatform platform;
    GetGPIFunction();
    ASSERT_EQ(GEInitEvent(), 1);
    const uint32_t count = eventsPerThread();
    std::vector<std::thread> threads;
    for (uint32_t thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back(post, thread, count);
    }
    std::vector<uint32_t> next(kThreads);
    for (uint32_t taken = 0; taken < kThreads * count;) {
        GEventMsg event{};
        if (GEGetEvent(&event, 10'000) == 0) {
            ADD_FAILURE() << "no event came after " << taken;
            break;
        }
        ASSERT_LT(event.target, kThreads);
        ASSERT_EQ(event.param1, next[event.target]) << "of thread " << event.target;
        ++next[event.target];
        ++taken;
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    GEventMsg event{};
    EXPECT_EQ(GEGetEvent(&event, 0), 0);
    GEQuitEvent();
}

} // namespace
