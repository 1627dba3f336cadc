// Which services are asked for, when, and where they end up.
#include "platform/service_table.h"

#include "support/recording_platform.h"

#include <quarlo/memory.h>
#include <quarlo/platform.h>

#include <gtest/gtest.h>

#include <iterator>
#include <set>
#include <vector>

using namespace quarlo;
using namespace quarlo::test;

namespace {

/// The slots of the service table, as programs and platforms know them.
constexpr int kSlots[] = {
    1,   2,   3,   4,   5,   6,   7,   8,   9,   10,  11,  12,  13,  14,  15,  16,  17,  18,  19,
    20,  21,  22,  23,  24,  25,  26,  27,  28,  29,  30,  31,  32,  33,  34,  35,  36,  37,  38,
    39,  40,  41,  42,  57,  43,  44,  45,  128, 47,  46,  48,  49,  125, 50,  51,  52,  53,  126,
    54,  127, 55,  56,  58,  59,  60,  61,  62,  63,  64,  65,  66,  67,  68,  69,  70,  71,  72,
    73,  74,  75,  76,  77,  78,  79,  80,  81,  82,  83,  84,  85,  86,  87,  88,  89,  90,  91,
    92,  93,  94,  95,  96,  97,  98,  99,  100, 101, 102, 103, 104, 105, 106, 107, 108, 109, 110,
    111, 112, 113, 114, 115, 116, 117, 118, 119, 120, 121, 122, 123, 124, 129, 130, 131, 132, 133,
    134, 135, 136, 137, 200, 201, 202, 203, 204, 205, 206, 207};

/// The requests of GetGPIFunction().
constexpr int kRequests[] = {
    1,   2,   3,   4,   5,   6,   7,   8,   9,   10,  11,  12,  13,  14,  15,  16,  17,  18,
    19,  20,  21,  22,  23,  24,  25,  26,  27,  28,  29,  30,  31,  32,  33,  34,  35,  36,
    37,  38,  39,  40,  41,  42,  57,  43,  44,  45,  128, 46,  47,  48,  49,  125, 50,  51,
    52,  53,  54,  126, 127, 55,  56,  58,  59,  60,  61,  62,  63,  64,  67,  68,  69,  70,
    71,  72,  73,  74,  75,  76,  77,  78,  79,  80,  81,  82,  83,  84,  85,  86,  87,  88,
    89,  90,  91,  92,  93,  94,  95,  96,  97,  98,  99,  100, 101, 102, 103, 104, 105, 106,
    107, 108, 109, 110, 111, 112, 113, 114, 115, 116, 117, 118, 119, 120, 121, 122, 123, 124,
    129, 130, 131, 132, 133, 134, 135, 136, 137, 200, 201, 202, 203, 204, 205, 206, 207};

std::vector<int> startupRequests() {
    return {std::begin(kRequests), std::end(kRequests)};
}

TEST(ServiceTable, HasASlotForEachServiceInTheKnownOrder) {
    ASSERT_EQ(std::size(kSlots), 145U);
    ASSERT_EQ(serviceTable.slots.size(), 145U);
    for (size_t slot = 0; slot < std::size(kSlots); ++slot) {
        EXPECT_EQ(slotOf(kSlots[slot]), slot) << "service " << kSlots[slot];
    }
}

TEST(ServiceTable, HasNoSlotForOtherNumbers) {
    const std::set<int> services(std::begin(kSlots), std::end(kSlots));
    for (int number = -300; number <= 300; ++number) {
        if (!services.contains(number)) {
            EXPECT_EQ(slotOf(number), kServiceCount) << number;
        }
    }
}

TEST(Binding, AsksForEveryServiceInOrder) {
    RecordingPlatform platform;
    platform.unbind();
    GetGPIFunction();
    EXPECT_EQ(std::size(kRequests), 143U);
    EXPECT_EQ(platform.requests, startupRequests());
    EXPECT_TRUE(platform.calls.empty());
}

TEST(Binding, FillsEverySlotButTwo) {
    RecordingPlatform platform;
    for (const int number : kSlots) {
        const bool bound = serviceTable.slots[slotOf(number)] != nullptr;
        EXPECT_EQ(bound, platform.offers(number) && number != 65 && number != 66) << number;
    }
}

TEST(Binding, AMissingServiceLeavesItsSlotEmpty) {
    RecordingPlatform platform;
    platform.remove({9});
    GetGPIFunction();
    EXPECT_EQ(serviceTable.slots[slotOf(9)], nullptr);
}

TEST(Binding, BindingAgainFollowsThePlatform) {
    RecordingPlatform platform;
    const GPIFunction flush = serviceTable.slots[slotOf(9)];
    ASSERT_NE(flush, nullptr);
    platform.remove({9});
    platform.restore(9);
    GetGPIFunction();
    EXPECT_EQ(serviceTable.slots[slotOf(9)], flush);
    EXPECT_EQ(platform.requests, startupRequests());
}

TEST(Binding, BindingAgainTakesAwayWhatIsGone) {
    RecordingPlatform platform;
    platform.remove({9});
    serviceTable.slots[slotOf(9)] = serviceTable.slots[slotOf(1)];
    GetGPIFunction();
    EXPECT_EQ(serviceTable.slots[slotOf(9)], nullptr);
}

TEST(Binding, BindingAgainKeepsServicesBoundOnDemand) {
    RecordingPlatform platform;
    GMMemoryFree(1, 0, GMMemoryRealloc(1, 0, nullptr, 4));
    const GPIFunction bound = serviceTable.slots[slotOf(66)];
    ASSERT_NE(bound, nullptr);
    GetGPIFunction();
    EXPECT_EQ(serviceTable.slots[slotOf(66)], bound);
}

TEST(Binding, ReturnsTheLowBitsOfTheLastService) {
    RecordingPlatform platform;
    const int32_t result = GetGPIFunction();
    const auto last = reinterpret_cast<uintptr_t>(serviceTable.slots[slotOf(207)]);
    EXPECT_EQ(static_cast<uint32_t>(result), static_cast<uint32_t>(last));
    platform.remove({207});
    EXPECT_EQ(GetGPIFunction(), 0);
}

// The three ways to call a service, on a service that is optional, one that must be there, and
// one that may turn up late.
using Probe = Service<GWord(GWord), 12>;

TEST(CallingAService, EachWayPassesArgumentAndResult) {
    RecordingPlatform platform;
    platform.answer(12, 99);
    EXPECT_EQ(Probe::unchecked(1), 99U);
    EXPECT_EQ(Probe::checked(2), 99U);
    EXPECT_EQ(Probe::lazy(3), 99U);
    EXPECT_EQ(platform.calls, (std::vector{call(12, 1), call(12, 2), call(12, 3)}));
    EXPECT_TRUE(platform.requests.empty());
}

TEST(CallingAService, OnlyTheLazyWayAsksForAMissingService) {
    RecordingPlatform platform;
    platform.remove({12});
    EXPECT_EQ(Probe::unchecked(1), 0U);
    EXPECT_EQ(Probe::checked(2), 0U);
    EXPECT_TRUE(platform.requests.empty());
    EXPECT_EQ(Probe::lazy(3), 0U);
    EXPECT_EQ(Probe::lazy(4), 0U);
    EXPECT_EQ(platform.requests, (std::vector{12, 12}));
    EXPECT_TRUE(platform.calls.empty());
}

TEST(CallingAService, TheLazyWayFindsAServiceThatTurnsUpLate) {
    RecordingPlatform platform;
    platform.remove({12});
    EXPECT_EQ(Probe::lazy(1), 0U);
    platform.restore(12);
    EXPECT_EQ(Probe::checked(2), 0U);
    EXPECT_EQ(Probe::lazy(3), 1U);
    EXPECT_EQ(Probe::checked(4), 1U);
    EXPECT_EQ(platform.calls, (std::vector{call(12, 3), call(12, 4)}));
    EXPECT_EQ(platform.requests, (std::vector{12, 12}));
}

} // namespace
