#include "support/recording_platform.h"

#include "memory/memory.h"
#include "platform/service_table.h"

#include <quarlo/memory.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace quarlo;
using namespace quarlo::test;

namespace {

/// Calls every function once and returns the results.
std::vector<int64_t> callAll(void* block) {
    return {asWord(GMSetMemorySpace(-3, 11)),
            asWord(GMDeleteMemorySpace(-4, 12)),
            asWord(GMMemoryAlloc(5, 0x80000001, 13)),
            asWord(GMMemoryRealloc(6, 0x80000002, block, 14)),
            asWord(GMMemoryFree(7, 0x80000003, block)),
            asWord(GMSetMemoryMode(-8)),
            asWord(GMBeginResetMemorySpace(9, 15)),
            asWord(GMEndResetMemorySpace(10, 16)),
            asWord(GMCancelResetMemorySpace(11, 17))};
}

/// Services that answer 100, 101 ... instead of handing out memory.
void answerInTurn(RecordingPlatform& platform) {
    platform.serve<41>([](int32_t, uint32_t, int32_t) { return fromWord<void*>(102); });
    platform.serve<66>([](int32_t, uint32_t, void*, int32_t) { return fromWord<void*>(103); });
    platform.serve<42>([](int32_t, uint32_t, void*) { return 104; });
    int64_t result = 100;
    for (const int service : {39, 40, 41, 66, 42, 57, 80, 81, 82}) {
        platform.answer(service, result++);
    }
}

TEST(MemorySpaces, ArgumentsAndResultsPassUnchanged) {
    RecordingPlatform platform;
    answerInTurn(platform);
    int block = 0;
    EXPECT_EQ(callAll(&block), (std::vector<int64_t>{100, 101, 102, 103, 104, 105, 106, 107, 108}));
    EXPECT_EQ(platform.calls,
              (std::vector{call(39, -3, 11), call(40, -4, 12), call(41, 5, 0x80000001, 13),
                           call(66, 6, 0x80000002, &block, 14), call(42, 7, 0x80000003, &block),
                           call(57, -8), call(80, 9, 15), call(81, 10, 16), call(82, 11, 17)}));
}

TEST(MemorySpaces, WithoutServicesEachCallAsksAgainAndGivesZero) {
    RecordingPlatform platform;
    const std::vector<int> services = {39, 40, 41, 66, 42, 57, 80, 81, 82};
    platform.remove({39, 40, 41, 66, 42, 57, 80, 81, 82});
    int block = 0;
    for (int pass = 0; pass < 2; ++pass) {
        platform.forget();
        EXPECT_EQ(callAll(&block), std::vector<int64_t>(9, 0));
        EXPECT_EQ(platform.requests, services);
        EXPECT_TRUE(platform.calls.empty());
    }
}

TEST(MemorySpaces, NeedNoBindingAtStart) {
    RecordingPlatform platform;
    answerInTurn(platform);
    platform.unbind();
    int block = 0;
    EXPECT_EQ(callAll(&block), (std::vector<int64_t>{100, 101, 102, 103, 104, 105, 106, 107, 108}));
    EXPECT_EQ(platform.requests.size(), 9U);
    callAll(&block);
    EXPECT_EQ(platform.requests.size(), 9U) << "each service is asked for once";
}

TEST(MemorySpaces, ReallocIsBoundByItsFirstCall) {
    RecordingPlatform platform;
    EXPECT_EQ(serviceTable.slots[slotOf(66)], nullptr);
    void* block = GMMemoryRealloc(1, 0, nullptr, 4);
    EXPECT_EQ(platform.requests, std::vector{66});
    block = GMMemoryRealloc(1, 0, block, 8);
    EXPECT_EQ(platform.requests, std::vector{66});
    EXPECT_NE(block, nullptr);
    GMMemoryFree(1, 0, block);
}

TEST(MemorySpaces, AServiceMayTurnUpLate) {
    RecordingPlatform platform;
    platform.remove({41});
    EXPECT_EQ(GMMemoryAlloc(1, 0, 4), nullptr);
    platform.restore(41);
    void* const block = GMMemoryAlloc(1, 0, 4);
    EXPECT_NE(block, nullptr);
    GMMemoryFree(1, 0, block);
}

TEST(AllocateCleared, IsZeroedAndAsksAsComputed) {
    RecordingPlatform platform;
    auto* const bytes = static_cast<uint8_t*>(allocateCleared(8, 100));
    ASSERT_NE(bytes, nullptr);
    EXPECT_EQ(platform.calls, std::vector{call(41, 8, 0, 100)});
    EXPECT_TRUE(std::all_of(bytes, bytes + 100, [](uint8_t byte) { return byte == 0; }));
    GMMemoryFree(8, 0, bytes);
}

TEST(AllocateCleared, GivesNullWhenMemoryIsShort) {
    RecordingPlatform platform;
    platform.failAllocation(1);
    EXPECT_EQ(allocateCleared(1, 100), nullptr);
}

TEST(AllocateCleared, ASizeOfZeroOrLessFailsAndGoesBack) {
    RecordingPlatform platform;
    for (const int32_t size : {0, -1, INT32_MIN}) {
        for (const bool granted : {false, true}) {
            platform.grantEmptyBlocks(granted);
            platform.forget();
            EXPECT_EQ(allocateCleared(1, size), nullptr);
            EXPECT_EQ(platform.callsOf(41), std::vector{call(41, 1, 0, size)});
            EXPECT_EQ(platform.count(42), granted ? 1U : 0U);
        }
    }
}

} // namespace
