#include "alarm_log.h"

#include <gtest/gtest.h>

namespace panel {
namespace {

const Alarm kFirst{100, u"first"};
const Alarm kSecond{200, u"second"};
const Alarm kThird{301, u"third"};

TEST(AlarmLog, NotesEachAlarmOnce) {
    AlarmLog log;
    EXPECT_TRUE(log.follow({kFirst}, 10));
    EXPECT_FALSE(log.follow({kFirst}, 20));
    EXPECT_TRUE(log.follow({kThird, kSecond, kFirst}, 30));
    ASSERT_EQ(log.history().size(), 3U);
    EXPECT_EQ(log.history()[0].alarm, kThird);
    EXPECT_EQ(log.history()[1].alarm, kSecond);
    EXPECT_EQ(log.history()[2].alarm, kFirst);
    EXPECT_EQ(log.history()[2].time, 10U);
    EXPECT_EQ(log.history()[0].time, 30U);
}

TEST(AlarmLog, KeepsAlarmsThatAreCleared) {
    AlarmLog log;
    log.follow({kFirst}, 10);
    EXPECT_TRUE(log.follow({}, 20));
    EXPECT_TRUE(log.standing().empty());
    EXPECT_EQ(log.history().size(), 1U);
    log.follow({kFirst}, 30);
    EXPECT_EQ(log.history().size(), 2U) << "it came again";
}

TEST(AlarmLog, KeepsTheNewest) {
    AlarmLog log;
    for (uint32_t time = 0; time < 300; ++time) {
        log.follow({kFirst}, time);
        log.follow({}, time);
    }
    EXPECT_EQ(log.history().size(), AlarmLog::kMost);
    EXPECT_EQ(log.history().front().time, 299U);
}

} // namespace
} // namespace panel
