#include "memory/heap.h"

#include "support/random_calls.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <cstring>
#include <map>
#include <thread>

namespace {

using gpi::Heap;
using quarlo::test::Random;
using quarlo::test::testSeed;

TEST(Heap, AlignsBlocksForAnyType) {
    Heap heap;
    for (int32_t size = 1; size < 100; ++size) {
        void* const block = heap.allocate(1, size, false);
        EXPECT_EQ(reinterpret_cast<uintptr_t>(block) % alignof(std::max_align_t), 0U);
    }
}

TEST(Heap, RefusesSizesOfZeroAndLess) {
    Heap heap;
    for (const int32_t size : {0, -1, INT32_MIN}) {
        EXPECT_EQ(heap.allocate(1, size, false), nullptr);
    }
    void* const block = heap.allocate(1, 10, false);
    EXPECT_EQ(heap.resize(1, block, 0, false), nullptr);
    EXPECT_EQ(heap.resize(1, block, -5, false), nullptr);
    EXPECT_EQ(heap.used(1), 10U);
}

TEST(Heap, StopsAtTheLimitOfASpaceAndNotAtThatOfAnother) {
    Heap heap;
    ASSERT_TRUE(heap.open(1, 100));
    void* const block = heap.allocate(1, 60, false);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(heap.allocate(1, 41, false), nullptr);
    EXPECT_NE(heap.allocate(2, 1000, false), nullptr);
    EXPECT_NE(heap.allocate(1, 40, false), nullptr);
    EXPECT_EQ(heap.allocate(1, 1, false), nullptr);
    EXPECT_TRUE(heap.release(1, block));
    EXPECT_NE(heap.allocate(1, 60, false), nullptr);
}

TEST(Heap, LimitsSpacesThatNobodyOpenedByTheDefault) {
    Heap heap;
    heap.setDefaultLimit(50);
    EXPECT_EQ(heap.allocate(1, 51, false), nullptr);
    EXPECT_NE(heap.allocate(1, 50, false), nullptr);
    ASSERT_TRUE(heap.open(2, 0));
    EXPECT_NE(heap.allocate(2, 51, false), nullptr);
}

TEST(Heap, ChangesLimitsButNotBelowWhatIsInUse) {
    Heap heap;
    ASSERT_NE(heap.allocate(1, 60, false), nullptr);
    EXPECT_FALSE(heap.open(1, 59));
    EXPECT_TRUE(heap.open(1, 60));
    EXPECT_EQ(heap.allocate(1, 1, false), nullptr);
    EXPECT_TRUE(heap.open(1, 0));
    EXPECT_NE(heap.allocate(1, 1, false), nullptr);
}

TEST(Heap, CountsAResizedBlockOnce) {
    Heap heap;
    ASSERT_TRUE(heap.open(1, 100));
    void* block = heap.allocate(1, 60, false);
    block = heap.resize(1, block, 100, false);
    ASSERT_NE(block, nullptr);
    EXPECT_EQ(heap.used(1), 100U);
    EXPECT_EQ(heap.resize(1, block, 101, false), nullptr);
    EXPECT_EQ(heap.used(1), 100U);
    EXPECT_TRUE(heap.release(1, block));
    EXPECT_EQ(heap.used(1), 0U);
}

TEST(Heap, KeepsTheBytesOfAResizedBlockAndZerosTheNewOnes) {
    Heap heap;
    heap.setChecked(true);
    auto* block = static_cast<uint8_t*>(heap.allocate(1, 4, false));
    std::memcpy(block, "\1\2\3\4", 4);
    block = static_cast<uint8_t*>(heap.resize(1, block, 8, true));
    const uint8_t larger[] = {1, 2, 3, 4, 0, 0, 0, 0};
    EXPECT_TRUE(std::equal(larger, larger + 8, block));
    block = static_cast<uint8_t*>(heap.resize(1, block, 2, false));
    EXPECT_EQ(block[0], 1);
    EXPECT_EQ(block[1], 2);
}

TEST(Heap, OverwritesFreshBytesInCheckedMode) {
    Heap heap;
    heap.setChecked(true);
    const auto* const block = static_cast<uint8_t*>(heap.allocate(1, 16, false));
    EXPECT_TRUE(std::all_of(block, block + 16, [](uint8_t byte) { return byte == 0xA5; }));
    const auto* const zeros = static_cast<uint8_t*>(heap.allocate(1, 16, true));
    EXPECT_TRUE(std::all_of(zeros, zeros + 16, [](uint8_t byte) { return byte == 0; }));
}

TEST(Heap, KnowsPointersThatAreNotItsOwn) {
    Heap heap;
    auto* const block = static_cast<char*>(heap.allocate(1, 16, false));
    int local = 0;
    EXPECT_FALSE(heap.release(1, &local));
    EXPECT_FALSE(heap.release(1, block + 8));
    EXPECT_FALSE(heap.release(2, block)); // another space's
    EXPECT_EQ(heap.resize(1, &local, 4, false), nullptr);
    EXPECT_EQ(heap.resize(2, block, 4, false), nullptr);
    EXPECT_TRUE(heap.release(1, block));
    EXPECT_FALSE(heap.release(1, block)); // a second time
    EXPECT_EQ(heap.resize(1, block, 4, false), nullptr);
}

TEST(Heap, ClosesSpaces) {
    Heap heap;
    EXPECT_FALSE(heap.close(1, true));
    void* const block = heap.allocate(1, 16, false);
    EXPECT_FALSE(heap.close(1, false));
    EXPECT_TRUE(heap.close(1, true));
    EXPECT_FALSE(heap.release(1, block));
    EXPECT_FALSE(heap.close(1, true));
    ASSERT_TRUE(heap.open(1, 10));
    EXPECT_TRUE(heap.close(1, false));
}

TEST(Heap, FreesAtTheEndOfAResetWhatWasThereAtItsBegin) {
    Heap heap;
    void* const old = heap.allocate(1, 10, false);
    void* const other = heap.allocate(2, 10, false);
    ASSERT_TRUE(heap.beginReset(1));
    void* const young = heap.allocate(1, 20, false);
    EXPECT_EQ(heap.used(1), 30U);
    ASSERT_TRUE(heap.endReset(1));
    EXPECT_EQ(heap.used(1), 20U);
    EXPECT_FALSE(heap.release(1, old));
    EXPECT_TRUE(heap.release(1, young));
    EXPECT_TRUE(heap.release(2, other));
}

TEST(Heap, KeepsEverythingWhenAResetIsCancelled) {
    Heap heap;
    void* const old = heap.allocate(1, 10, false);
    ASSERT_TRUE(heap.beginReset(1));
    void* const young = heap.allocate(1, 20, false);
    ASSERT_TRUE(heap.cancelReset(1));
    EXPECT_TRUE(heap.release(1, young));
    // A second reset starts anew.
    ASSERT_TRUE(heap.beginReset(1));
    ASSERT_TRUE(heap.endReset(1));
    EXPECT_FALSE(heap.release(1, old));
}

TEST(Heap, TakesAResizedBlockForTheSameBlockInAReset) {
    Heap heap;
    void* const old = heap.allocate(1, 10, false);
    ASSERT_TRUE(heap.beginReset(1));
    ASSERT_NE(heap.resize(1, old, 5000, false), nullptr);
    void* const young = heap.resize(1, heap.allocate(1, 10, false), 5000, false);
    ASSERT_TRUE(heap.endReset(1));
    EXPECT_EQ(heap.used(1), 5000U);
    EXPECT_TRUE(heap.release(1, young));
}

TEST(Heap, RefusesResetsOutOfOrder) {
    Heap heap;
    EXPECT_FALSE(heap.beginReset(1));
    EXPECT_FALSE(heap.endReset(1));
    EXPECT_FALSE(heap.cancelReset(1));
    ASSERT_TRUE(heap.open(1, 0));
    EXPECT_FALSE(heap.endReset(1));
    EXPECT_FALSE(heap.cancelReset(1));
    EXPECT_TRUE(heap.beginReset(1));
    EXPECT_FALSE(heap.beginReset(1));
    EXPECT_TRUE(heap.endReset(1));
    EXPECT_FALSE(heap.endReset(1));
}

TEST(Heap, ServesSeveralThreads) {
    constexpr int kThreads = 4;
    constexpr int kCalls = 20'000;
    Heap heap;
    ASSERT_TRUE(heap.open(9, 4000));
    std::atomic<int> damaged = 0;
    const auto work = [&](uint8_t mark) {
        Random random(testSeed() + mark);
        std::map<uint8_t*, std::pair<int32_t, int32_t>> blocks; // to space and size
        for (int call = 0; call < kCalls; ++call) {
            if (blocks.size() < 20 && !random.oneIn(3)) {
                const int32_t size = random.between(1, 400);
                // Space 9 is shared and short; the other is this thread's alone.
                const int32_t space = random.oneIn(2) ? 9 : mark;
                auto* const block = static_cast<uint8_t*>(heap.allocate(space, size, false));
                if (block != nullptr) {
                    std::memset(block, mark, static_cast<size_t>(size));
                    blocks[block] = {space, size};
                }
            } else if (!blocks.empty()) {
                const auto [block, known] = *blocks.begin();
                blocks.erase(blocks.begin());
                const bool whole = std::all_of(block, block + known.second,
                                               [&](uint8_t byte) { return byte == mark; });
                damaged += !whole || !heap.release(known.first, block) ? 1 : 0;
            }
        }
        for (const auto& [block, known] : blocks) {
            damaged += heap.release(known.first, block) ? 0 : 1;
        }
    };
    std::vector<std::thread> threads;
    for (int index = 0; index < kThreads; ++index) {
        threads.emplace_back(work, static_cast<uint8_t>(index + 1));
    }
    for (auto& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(damaged, 0) << "seed " << testSeed();
    EXPECT_EQ(heap.used(9), 0U);
}

} // namespace
