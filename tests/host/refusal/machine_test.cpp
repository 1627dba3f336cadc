// Numerical-control data: addresses that there are not.
#include "refusing.h"

#include <gtest/gtest.h>

namespace {

using namespace gpi::test;

class MachineRefuses : public testing::Test {
  protected:
    const StartedPlatform platform_;
    double value_ = 100.0;
    char16_t text_[16] = {u'x'};
};

TEST_F(MachineRefuses, ValuesThatThereAreNot) {
    const auto set = refuser<GPISetNCValue>(GPI_SERVICE_SET_NC_VALUE);
    const auto get = refuser<GPIGetNCValue>(GPI_SERVICE_GET_NC_VALUE);
    for (const int32_t wrong : {INT32_MIN, -1, 19, INT32_MAX}) {
        EXPECT_EQ(set(1, wrong, 0, 0, &value_), G_NC_UNKNOWN) << wrong;
        EXPECT_EQ(get(1, wrong, 0, 0, &value_), G_NC_UNKNOWN) << wrong;
        EXPECT_EQ(set(wrong, G_NC_OVERRIDE, 0, 0, &value_), G_NC_UNKNOWN) << wrong;
        EXPECT_EQ(get(wrong, G_NC_OVERRIDE, 0, 0, &value_), G_NC_UNKNOWN) << wrong;
        EXPECT_EQ(set(1, G_NC_OVERRIDE, wrong, 0, &value_), G_NC_UNKNOWN) << wrong;
        EXPECT_EQ(get(1, G_NC_MACHINE_POSITION, 0, wrong, &value_), G_NC_UNKNOWN) << wrong;
    }
    EXPECT_EQ(set(1, G_NC_OVERRIDE, 0, 0, nullptr), G_NC_BUFFER);
    EXPECT_EQ(get(1, G_NC_OVERRIDE, 0, 0, nullptr), G_NC_BUFFER);
    EXPECT_EQ(set(1, G_NC_FEED, 0, 0, &value_), G_NC_READ_ONLY);
    value_ = -1.0;
    EXPECT_EQ(set(1, G_NC_OVERRIDE, 0, 0, &value_), G_NC_RANGE);
}

TEST_F(MachineRefuses, StringsThatThereAreNot) {
    const auto set = refuser<GPISetNCString>(GPI_SERVICE_SET_NC_STRING);
    const auto get = refuser<GPIGetNCString>(GPI_SERVICE_GET_NC_STRING);
    for (const int32_t wrong : {INT32_MIN, -1, 7, INT32_MAX}) {
        EXPECT_EQ(set(1, wrong, 0, u"a"), G_NC_UNKNOWN) << wrong;
        EXPECT_EQ(get(1, wrong, 0, text_, 16), G_NC_UNKNOWN) << wrong;
        EXPECT_EQ(get(wrong, G_NC_CONTROL_NAME, 0, text_, 16), G_NC_UNKNOWN) << wrong;
    }
    EXPECT_EQ(set(1, G_NC_MANUAL_BLOCK, 0, nullptr), G_NC_BUFFER);
    EXPECT_EQ(set(1, G_NC_CONTROL_NAME, 0, u"a"), G_NC_READ_ONLY);
    EXPECT_EQ(get(1, G_NC_CONTROL_NAME, 0, nullptr, 16), G_NC_BUFFER);
    EXPECT_EQ(get(1, G_NC_CONTROL_NAME, 0, text_, 0), G_NC_BUFFER);
    EXPECT_EQ(get(1, G_NC_CONTROL_NAME, 0, text_, -1), G_NC_BUFFER);
    EXPECT_EQ(text_[0], u'x');
}

TEST_F(MachineRefuses, VariablesAndSystemValuesThatThereAreNot) {
    const auto unset = refuser<GPIIsNCValueUnset>(GPI_SERVICE_IS_NC_VALUE_UNSET);
    const auto set = refuser<GPISetNCSystemValue>(GPI_SERVICE_SET_NC_SYSTEM_VALUE);
    const auto get = refuser<GPIGetNCSystemValue>(GPI_SERVICE_GET_NC_SYSTEM_VALUE);
    int32_t value = 7;
    for (const int32_t wrong : {INT32_MIN, -1, 50, 1000, INT32_MAX}) {
        EXPECT_EQ(unset(1, wrong), G_NC_UNKNOWN) << wrong;
        EXPECT_EQ(unset(wrong, 100), G_NC_UNKNOWN) << wrong;
        EXPECT_EQ(set(wrong, 0), G_NC_UNKNOWN) << wrong;
        EXPECT_EQ(get(wrong, &value), G_NC_UNKNOWN) << wrong;
    }
    EXPECT_EQ(get(G_NC_SYSTEM_MODE, nullptr), G_NC_BUFFER);
    EXPECT_EQ(set(G_NC_SYSTEM_MODE, 3), G_NC_RANGE);
    EXPECT_EQ(set(G_NC_SYSTEM_STATE, 0), G_NC_READ_ONLY);
    EXPECT_EQ(value, 7);
}

} // namespace
