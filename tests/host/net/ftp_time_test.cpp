#include "net/ftp_time.h"

#include <gtest/gtest.h>

namespace {

using gpi::listedTime;

constexpr uint32_t kNow = 1795244400; // 2026-11-21 07:00

TEST(FtpTime, OfThisYearComesWithoutIt) {
    EXPECT_EQ(listedTime("Nov 21 06:30", kNow), kNow - 30 * 60);
    EXPECT_EQ(listedTime("Jan  1 00:00", kNow), 1767225600U);
    EXPECT_EQ(listedTime("Nov 21 09:00", kNow), kNow + 2 * 60 * 60) << "clocks differ";
    EXPECT_EQ(listedTime("Dec 31 23:59", kNow), 1767225540U) << "last year's";
}

TEST(FtpTime, OfOtherYearsComesWithoutTheHour) {
    EXPECT_EQ(listedTime("Feb 29  2024", kNow), 1709164800U);
    EXPECT_EQ(listedTime("Jan  1  1971", kNow), 31536000U);
    EXPECT_EQ(listedTime("Jan  1  2090", kNow), 3786912000U);
}

TEST(FtpTime, MayBeWrittenAsDosDid) {
    EXPECT_EQ(listedTime("11-21-26  06:30AM", kNow), kNow - 30 * 60);
    EXPECT_EQ(listedTime("11-21-2026  06:30PM", kNow), kNow + (11 * 60 + 30) * 60);
    EXPECT_EQ(listedTime("01-01-71  12:00AM", kNow), 31536000U);
    EXPECT_EQ(listedTime("01-01-71  12:00PM", kNow), 31536000U + 12 * 60 * 60);
}

TEST(FtpTime, ThatIsNoneIsNotTold) {
    for (const char* const text : {"", "yesterday", "Nov", "Now 21 06:30", "ovD 21 06:30",
                                   "Jan  1  1900", "11-21-26", "99", "Nov 21 :"}) {
        EXPECT_EQ(listedTime(text, kNow), 0U) << text;
    }
}

} // namespace
