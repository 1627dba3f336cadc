// Every address, and what may be written there.
#include "nc/address.h"

#include <gpi/nc.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace gpi::nc {
namespace {

constexpr Extent kExtent{3, 1, 24, 15000.0, true, 800.0};
constexpr double kInfinite = std::numeric_limits<double>::infinity();
const double kNan = std::nan("");

struct Reach {
    int32_t area;
    int32_t firstNumber, lastNumber;
    int32_t firstIndex, lastIndex;
    bool writable;
};

constexpr Reach kReaches[] = {
    {G_NC_MACHINE_POSITION, 0, 0, 0, 2, false},
    {G_NC_WORK_POSITION, 0, 0, 0, 2, false},
    {G_NC_DISTANCE_TO_GO, 0, 0, 0, 2, false},
    {G_NC_FOLLOWING_ERROR, 0, 0, 0, 2, false},
    {G_NC_FEED, 0, 0, 0, 1, false},
    {G_NC_SPINDLE, 0, 0, 0, 1, false},
    {G_NC_OVERRIDE, 0, 2, 0, 0, true},
    {G_NC_TOOL, 0, 1, 0, 0, false},
    {G_NC_TOOL_OFFSET, 1, 24, 0, 3, true},
    {G_NC_WORK_OFFSET, 0, 6, 0, 2, true},
    {G_NC_LIMIT, 0, 1, 0, 2, false},
    {G_NC_MODAL, 0, 9, 0, 0, false},
    {G_NC_LINE, 0, 1, 0, 0, false},
    {G_NC_TIME, 0, 1, 0, 0, false},
    {G_NC_ALARM, 0, 31, 0, 0, false},
    {G_NC_JOG, 0, 0, 0, 2, true},
    {G_NC_JOG_STEP, 0, 0, 0, 2, true},
};

class AddressOf : public testing::TestWithParam<Reach> {};
INSTANTIATE_TEST_SUITE_P(Areas, AddressOf, testing::ValuesIn(kReaches),
                         [](const auto& info) { return "Area" + std::to_string(info.param.area); });

TEST_P(AddressOf, ReachesFromFirstToLast) {
    const Reach& reach = GetParam();
    const int32_t written = reach.writable ? kDone : G_NC_READ_ONLY;
    for (const int32_t number : {reach.firstNumber, reach.lastNumber}) {
        for (const int32_t index : {reach.firstIndex, reach.lastIndex}) {
            EXPECT_EQ(checkRead(kExtent, 1, {reach.area, number, index}), kDone);
            EXPECT_EQ(checkWrite(kExtent, 1, {reach.area, number, index}, 1.0), written);
        }
    }
}

TEST_P(AddressOf, ReachesNoFurther) {
    const Reach& reach = GetParam();
    const ValueAddress outside[] = {
        {reach.area, reach.firstNumber - 1, reach.firstIndex},
        {reach.area, reach.lastNumber + 1, reach.firstIndex},
        {reach.area, reach.firstNumber, reach.firstIndex - 1},
        {reach.area, reach.firstNumber, reach.lastIndex + 1},
        {reach.area, INT32_MIN, INT32_MIN},
        {reach.area, INT32_MAX, INT32_MAX},
    };
    for (const ValueAddress& address : outside) {
        EXPECT_EQ(checkRead(kExtent, 1, address), G_NC_UNKNOWN)
            << address.number << ' ' << address.index;
        EXPECT_EQ(checkWrite(kExtent, 1, address, 0.0), G_NC_UNKNOWN);
    }
    for (const int32_t channel : {INT32_MIN, -1, 0, 2, INT32_MAX}) {
        EXPECT_EQ(checkRead(kExtent, channel, {reach.area, reach.firstNumber, reach.firstIndex}),
                  G_NC_UNKNOWN);
    }
}

TEST(Address, KnowsNoOtherAreas) {
    for (const int32_t area : {INT32_MIN, -1, 0, 19, INT32_MAX}) {
        EXPECT_EQ(checkRead(kExtent, 1, {area, 0, 0}), G_NC_UNKNOWN);
        EXPECT_EQ(checkWrite(kExtent, 1, {area, 0, 0}, 0.0), G_NC_UNKNOWN);
    }
}

TEST(Address, HoldsThreeRangesOfMacroVariables) {
    for (const int32_t variable : {1, 33, 100, 199, 500, 999}) {
        EXPECT_EQ(checkRead(kExtent, 1, {G_NC_MACRO, variable, 0}), kDone);
        EXPECT_EQ(checkWrite(kExtent, 1, {G_NC_MACRO, variable, 0}, kNan), kDone);
    }
    for (const int32_t variable : {-1, 0, 34, 99, 200, 499, 1000, INT32_MAX}) {
        EXPECT_EQ(checkRead(kExtent, 1, {G_NC_MACRO, variable, 0}), G_NC_UNKNOWN);
    }
    Extent without = kExtent;
    without.macros = false;
    EXPECT_EQ(checkRead(without, 1, {G_NC_MACRO, 100, 0}), G_NC_UNKNOWN);
}

TEST(Address, BoundsWhatIsWritten) {
    struct Bound {
        ValueAddress address;
        double least, most;
    };
    const Bound bounds[] = {
        {{G_NC_OVERRIDE, 0, 0}, 0.0, 200.0},
        {{G_NC_TOOL_OFFSET, 1, 0}, -100'000.0, 100'000.0},
        {{G_NC_WORK_OFFSET, 1, 0}, -100'000.0, 100'000.0},
        {{G_NC_JOG, 0, 0}, -15000.0, 15000.0},
        {{G_NC_JOG_STEP, 0, 0}, -800.0, 800.0},
    };
    for (const Bound& bound : bounds) {
        for (const double value : {bound.least, bound.most}) {
            EXPECT_EQ(checkWrite(kExtent, 1, bound.address, value), kDone) << bound.address.area;
        }
        for (const double value :
             {std::nextafter(bound.least, -kInfinite), std::nextafter(bound.most, kInfinite),
              kInfinite, -kInfinite, kNan}) {
            EXPECT_EQ(checkWrite(kExtent, 1, bound.address, value), G_NC_RANGE)
                << bound.address.area << ' ' << value;
        }
    }
    EXPECT_EQ(checkWrite(kExtent, 1, {G_NC_MACRO, 100, 0}, 1e300), kDone);
    EXPECT_EQ(checkWrite(kExtent, 1, {G_NC_MACRO, 100, 0}, -kInfinite), G_NC_RANGE);
}

TEST(Address, HasItsStrings) {
    for (int32_t string = 0; string <= 7; ++string) {
        const bool exists = string >= 1 && string <= 6;
        const bool writable = string == G_NC_PROGRAM_NAME || string == G_NC_MANUAL_BLOCK;
        const int32_t written = !exists ? G_NC_UNKNOWN : writable ? kDone : G_NC_READ_ONLY;
        EXPECT_EQ(checkTextRead(kExtent, 1, string, 0), exists ? kDone : G_NC_UNKNOWN) << string;
        EXPECT_EQ(checkTextWrite(kExtent, 1, string, 0), written) << string;
        EXPECT_EQ(checkTextRead(kExtent, 0, string, 0), G_NC_UNKNOWN);
        EXPECT_EQ(checkTextRead(kExtent, 1, string, -1), G_NC_UNKNOWN);
    }
    EXPECT_EQ(checkTextRead(kExtent, 1, G_NC_PROGRAM_NAME, 1), G_NC_UNKNOWN);
    EXPECT_EQ(checkTextRead(kExtent, 1, G_NC_PROGRAM_LINE, INT32_MAX), kDone);
    EXPECT_EQ(checkTextRead(kExtent, 1, G_NC_AXIS_NAME, 3), G_NC_UNKNOWN);
    EXPECT_EQ(checkTextRead(kExtent, 1, G_NC_ALARM_TEXT, 32), G_NC_UNKNOWN);
}

TEST(Address, HasItsSystemValues) {
    const int32_t most[] = {-1, 2, -1, 7, 1, 1, 1, 1, 1, 1, 3, -1, -1, -1, -1, -1, -1, -1};
    for (int32_t number = 1; number <= 17; ++number) {
        EXPECT_EQ(checkSystemRead(number), kDone) << number;
        if (most[number] < 0) {
            EXPECT_EQ(checkSystemWrite(number, 0), G_NC_READ_ONLY) << number;
            continue;
        }
        EXPECT_EQ(checkSystemWrite(number, 0), kDone) << number;
        EXPECT_EQ(checkSystemWrite(number, most[number]), kDone) << number;
        for (const int32_t value : {-1, most[number] + 1, INT32_MIN, INT32_MAX}) {
            EXPECT_EQ(checkSystemWrite(number, value), G_NC_RANGE) << number << ' ' << value;
        }
    }
    for (const int32_t number : {INT32_MIN, 0, 18, INT32_MAX}) {
        EXPECT_EQ(checkSystemRead(number), G_NC_UNKNOWN);
        EXPECT_EQ(checkSystemWrite(number, 0), G_NC_UNKNOWN);
    }
}

} // namespace
} // namespace gpi::nc
