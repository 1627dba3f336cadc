// What the other tests rest on must itself fail when it should.
#include "support/guarded_surface.h"
#include "support/picture.h"
#include "support/random_calls.h"
#include "support/recording_platform.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <numeric>
#include <utility>

using namespace quarlo::test;

namespace {

TEST(GuardedMemoryDeathTest, OneByteBehindTheBlockFaults) {
    GuardedMemory memory(100, Against::End);
    volatile uint8_t* const bytes = memory.data();
    bytes[99] = 1;
    EXPECT_DEATH(bytes[100] = 1, "");
}

TEST(GuardedMemoryDeathTest, OneByteBeforeTheBlockFaults) {
    GuardedMemory memory(100, Against::Start);
    volatile uint8_t* const bytes = memory.data();
    bytes[0] = 1;
    EXPECT_DEATH(bytes[-1] = 1, "");
}

TEST(GuardedMemory, BytesOnTheOtherSideAreWatched) {
    GuardedMemory memory(100, Against::End);
    EXPECT_TRUE(memory.intact());
    const uint8_t watched = std::exchange(memory.data()[-1], uint8_t{0});
    EXPECT_FALSE(memory.intact());
    memory.data()[-1] = watched;
}

TEST(GuardedMemory, ReportsAtItsEndWhatWasWrittenBesideIt) {
    EXPECT_NONFATAL_FAILURE(
        {
            GuardedSurface surface(5, 4, 16);
            surface->pixels[-1] = 0;
        },
        "written beside a block of 40 bytes");
}

TEST(GuardedMemory, StartsFilledWithAPattern) {
    const GuardedMemory memory(3, Against::End, 16);
    EXPECT_EQ(memory.data()[0], GuardedMemory::kFresh);
    EXPECT_EQ(memory.data()[2], GuardedMemory::kFresh);
}

TEST(GuardedSurface, PixelsReadBackInEveryDepth) {
    for (const int16_t bits : kDepths) {
        GuardedSurface surface(5, 3, bits, Against::Start, 7);
        const uint32_t pixel = 0x123456U & ((uint32_t{1} << bits) - 1);
        setPixelAt(*surface, 4, 2, pixel);
        EXPECT_EQ(pixelAt(*surface, 4, 2), pixel);
        EXPECT_EQ(pixelAt(*surface, 3, 2), 0U);
    }
}

TEST(Picture, ShowsWhatIsThere) {
    GuardedSurface surface(3, 2, 16);
    setPixelAt(*surface, 2, 0, 0x7C00);
    setPixelAt(*surface, 0, 1, 0x001F);
    EXPECT_TRUE(shows(*surface, {"..#", //
                                 "#.."}));
    EXPECT_TRUE(shows(*surface, {"..r", "?.."}, {{'.', 0}, {'r', 0x7C00}}));
    EXPECT_FALSE(shows(*surface, {"..#", "..."}));
    EXPECT_FALSE(shows(*surface, {"..#"}));
}

TEST(Picture, PrintsBothSidesAndMarksRows) {
    GuardedSurface surface(3, 2, 8);
    setPixelAt(*surface, 0, 1, 1);
    EXPECT_STREQ(shows(*surface, {"...", "..#"}).message(), "\nexpected  actual"
                                                            "\n...       ..."
                                                            "\n..#       #..  <- row 1");
}

TEST(RecordingPlatform, KeepsServicesAndArguments) {
    RecordingPlatform platform;
    void* const block = GMMemoryAlloc(8, 3, 40);
    GMMemoryFree(8, 4, block);
    EXPECT_EQ(platform.calls, (std::vector{call(41, 8, 3, 40), call(42, 8, 4, block)}));
}

TEST(RecordingPlatform, ReportsBlocksThatWereNotFreed) {
    EXPECT_NONFATAL_FAILURE(
        {
            RecordingPlatform platform;
            GMMemoryAlloc(1, 0, 40);
        },
        "40 bytes were not freed");
}

TEST(RecordingPlatform, ReportsABlockFreedTwice) {
    RecordingPlatform platform;
    void* const block = GMMemoryAlloc(1, 0, 40);
    GMMemoryFree(1, 0, block);
    EXPECT_NONFATAL_FAILURE(GMMemoryFree(1, 0, block), "not in use");
}

TEST(RecordingPlatform, ReportsABlockFreedInAnotherSpace) {
    RecordingPlatform platform;
    void* const block = GMMemoryAlloc(1, 0, 40);
    EXPECT_NONFATAL_FAILURE(GMMemoryFree(2, 0, block), "another space");
}

TEST(RecordingPlatform, ReportsBytesWrittenBesideABlock) {
    RecordingPlatform platform;
    auto* const block = static_cast<uint8_t*>(GMMemoryAlloc(1, 0, 40));
    block[40] = 0;
    EXPECT_NONFATAL_FAILURE(GMMemoryFree(1, 0, block), "written beside");
}

TEST(RecordingPlatform, FailsTheAllocationThatWasAskedFor) {
    RecordingPlatform platform;
    platform.failAllocation(2);
    void* const first = GMMemoryAlloc(1, 0, 4);
    EXPECT_FALSE(platform.allocationFailed());
    EXPECT_EQ(GMMemoryAlloc(1, 0, 4), nullptr);
    EXPECT_TRUE(platform.allocationFailed());
    void* const third = GMMemoryAlloc(1, 0, 4);
    EXPECT_NE(first, nullptr);
    EXPECT_NE(third, nullptr);
    GMMemoryFree(1, 0, first);
    GMMemoryFree(1, 0, third);
}

TEST(RecordingPlatform, AServiceCanBeTakenAwayAndGivenBack) {
    RecordingPlatform platform;
    platform.remove({41});
    EXPECT_EQ(GMMemoryAlloc(1, 0, 4), nullptr);
    EXPECT_EQ(platform.requests, std::vector{41});
    platform.restore(41);
    void* const block = GMMemoryAlloc(1, 0, 4);
    EXPECT_NE(block, nullptr);
    GMMemoryFree(1, 0, block);
}

TEST(RandomCalls, GiveTheSameNumbersForASeed) {
    Random a(7);
    Random b(7);
    for (int i = 0; i < 100; ++i) {
        const int32_t value = a.between(-3, 12);
        EXPECT_EQ(value, b.between(-3, 12));
        EXPECT_GE(value, -3);
        EXPECT_LE(value, 12);
    }
    EXPECT_EQ(a.between(5, 5), 5);
}

int32_t makeNumber(Random& random) {
    return random.between(0, 99);
}

std::string checkSum(const std::vector<int32_t>& numbers) {
    return std::accumulate(numbers.begin(), numbers.end(), 0) >= 50 ? "reached fifty" : "";
}

TEST(RandomCalls, ReportTheShortestListThatFails) {
    EXPECT_FATAL_FAILURE(forRandomCalls(50, 30, makeNumber, checkSum), "reached fifty");
    const auto fails = [](const std::vector<int>& list) { return !checkSum(list).empty(); };
    const auto shortened = shortest(std::vector{1, 30, 2, 3, 20, 4}, fails);
    EXPECT_EQ(shortened, (std::vector{30, 20}));
}

} // namespace
