#include "text/format.h"

#include "panel_bench.h"

#include <gtest/gtest.h>

#include <limits>

namespace panel {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

TEST(Format, LengthsHaveTheDecimalsOfTheUnit) {
    EXPECT_EQ(lengthText(-12.3456, false), u"-12.346");
    EXPECT_EQ(lengthText(25.4, true), u"1.0000");
    EXPECT_EQ(lengthText(-0.0004, false), u"0.000");
}

TEST(Format, NumbersAreAsShortAsTheySayTheSame) {
    EXPECT_EQ(shortest(5.0), u"5");
    EXPECT_EQ(shortest(-0.25), u"-0.25");
    EXPECT_EQ(shortest(1.0 / 3.0), u"0.333333");
    EXPECT_EQ(shortest(1000.0), u"1000");
    EXPECT_EQ(shortest(kNan), u"");
}

TEST(Format, WhatIsNoNumberIsNotShownAsOne) {
    EXPECT_EQ(fixed(kNan, 3), u"---");
}

TEST(Format, TimesHaveTwoDigits) {
    const test::Bench bench;
    EXPECT_EQ(clockText(1'709'251'199), u"23:59:59");
    EXPECT_EQ(spanText(3'723.9), u"1:02:03");
}

TEST(Format, NumbersAreReadInFull) {
    double value = 0.0;
    EXPECT_TRUE(parseNumber(u"-12.5", value));
    EXPECT_EQ(value, -12.5);
    for (const char16_t* wrong :
         {u"", u"-", u"1.2.3", u"5 ", u"1e3", u"ⅴ", u"nan", u"inf", u"0x10"}) {
        EXPECT_FALSE(parseNumber(wrong, value));
    }
}

TEST(Format, FilesGoByWhatFollowsTheFolder) {
    EXPECT_EQ(fileName(u"C:\\NC\\A.NC"), u"A.NC");
    EXPECT_EQ(fileName(u"/parts/b.nc"), u"b.nc");
    EXPECT_EQ(fileName(u"c.nc"), u"c.nc");
}

} // namespace
} // namespace panel
