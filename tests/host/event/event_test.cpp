#include "support/started_platform.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <thread>
#include <vector>

namespace {

using namespace gpi::test;

const auto startLock = service<GPIStartEventLock>(GPI_SERVICE_START_EVENT_LOCK);
const auto startSignal = service<GPIStartEventSignal>(GPI_SERVICE_START_EVENT_SIGNAL);
const auto signal_ = service<GPISignalEvent>(GPI_SERVICE_SIGNAL_EVENT);
const auto taken = service<GPIEventTaken>(GPI_SERVICE_EVENT_TAKEN);
const auto wait_ = service<GPIWaitEvent>(GPI_SERVICE_WAIT_EVENT);
const auto lock = service<GPILockEvents>(GPI_SERVICE_LOCK_EVENTS);
const auto unlock = service<GPIUnlockEvents>(GPI_SERVICE_UNLOCK_EVENTS);

TEST(EventSignal, LetsAsManyWaitsPassAsThereWereSignals) {
    EXPECT_EQ(startLock(), 1);
    EXPECT_EQ(startSignal(), 1);
    EXPECT_EQ(wait_(0), 0);
    EXPECT_EQ(signal_(), 1);
    EXPECT_EQ(signal_(), 1);
    EXPECT_EQ(wait_(0), 1);
    EXPECT_EQ(wait_(-1), 1);
    EXPECT_EQ(wait_(0), 0);
    EXPECT_EQ(taken(), 1);
    signal_();
    startSignal();
    EXPECT_EQ(wait_(0), 0);
}

TEST(EventSignal, WaitsInTime) {
    using namespace std::chrono;
    startSignal();
    const auto start = steady_clock::now();
    EXPECT_EQ(wait_(20), 0);
    EXPECT_GE(steady_clock::now() - start, milliseconds(20));
    auto waiting = std::async(std::launch::async, [] { return wait_(60'000); });
    signal_();
    EXPECT_EQ(waiting.get(), 1);
}

TEST(EventSignal, ShutDownEndsAllWaits) {
    startSignal();
    std::vector<std::future<int32_t>> waiting;
    for (int i = 0; i < 3; ++i) {
        waiting.push_back(std::async(std::launch::async, [] { return wait_(-1); }));
    }
    GPIShutdownEvents();
    for (auto& result : waiting) {
        EXPECT_EQ(result.get(), 0);
    }
    EXPECT_EQ(wait_(-1), 0);
    startSignal();
}

class EventLock : public testing::Test {
  protected:
    EventLock() { startLock(); }
};

TEST_F(EventLock, MayBeTakenSeveralTimesByOneThread) {
    EXPECT_EQ(lock(-1), 1);
    EXPECT_EQ(lock(0), 1);
    auto other = std::async(std::launch::async, [] { return lock(10); });
    EXPECT_LT(other.get(), 0);
    EXPECT_EQ(unlock(), 1);
    other = std::async(std::launch::async, [] { return lock(0); });
    EXPECT_LT(other.get(), 0);
    other = std::async(std::launch::async, [] { return unlock(); });
    EXPECT_LT(other.get(), 0);
    EXPECT_EQ(unlock(), 1);
    EXPECT_LT(unlock(), 0);
    other = std::async(std::launch::async, [] { return lock(0) == 1 ? unlock() : -1; });
    EXPECT_EQ(other.get(), 1);
}

TEST_F(EventLock, IsFreeAfterAStart) {
    lock(-1);
    lock(-1);
    EXPECT_EQ(startLock(), 1);
    auto other = std::async(std::launch::async, [] { return lock(0) == 1 ? unlock() : -1; });
    EXPECT_EQ(other.get(), 1);
    EXPECT_LT(unlock(), 0);
}

TEST_F(EventLock, ShutDownEndsAllWaits) {
    lock(-1);
    std::vector<std::future<int32_t>> waiting;
    for (int i = 0; i < 3; ++i) {
        waiting.push_back(std::async(std::launch::async, [] { return lock(-1); }));
    }
    GPIShutdownEvents();
    for (auto& result : waiting) {
        EXPECT_LT(result.get(), 0);
    }
    EXPECT_EQ(lock(-1), 1) << "its holder goes on";
    EXPECT_EQ(unlock(), 1);
    EXPECT_EQ(unlock(), 1);
    startSignal();
}

TEST_F(EventLock, KeepsThreadsApart) {
    int64_t counter = 0;
    std::vector<std::thread> threads;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([&counter] {
            for (int i = 0; i < 5000; ++i) {
                lock(-1);
                ++counter;
                unlock();
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(counter, 20'000);
}

} // namespace
