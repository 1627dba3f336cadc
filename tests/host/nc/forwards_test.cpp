// The library's functions on the host platform.
#include "support/started_platform.h"

#include <quarlo/quarlo.h>

#include <gtest/gtest.h>

#include <cmath>

namespace {

using gpi::test::StartedPlatform;

TEST(NcForwards, ReachTheControl) {
    const StartedPlatform platform;
    GetGPIFunction();
    double value = 2.5;
    EXPECT_EQ(GNCDataIsNotaNumber(1, 500), 1);
    EXPECT_EQ(GNCDataSetGNCValue(1, G_NC_MACRO, 500, 0, &value), 1);
    EXPECT_EQ(GNCDataIsNotaNumber(1, 500), 0);
    value = 0.0;
    EXPECT_EQ(GNCDataGetGNCValue(1, G_NC_MACRO, 500, 0, &value), 1);
    EXPECT_EQ(value, 2.5);

    int32_t state = -1;
    EXPECT_EQ(GNCDataGetSystemVal(G_NC_SYSTEM_STATE, &state), 1);
    EXPECT_EQ(state, G_NC_STATE_OFF);
    EXPECT_EQ(GNCDataSetSystemVal(G_NC_SYSTEM_POWER, 1), 1);
    EXPECT_EQ(GNCDataGetSystemVal(G_NC_SYSTEM_STATE, &state), 1);
    EXPECT_EQ(state, G_NC_STATE_IDLE);

    char16_t name[8];
    EXPECT_EQ(GNCDataGetString(1, G_NC_AXIS_NAME, 1, name, 8), 1);
    EXPECT_EQ(std::u16string(name), u"Y");
    EXPECT_EQ(GNCDataSetString(1, G_NC_MANUAL_BLOCK, 0, u"G0 X1"), G_NC_MODE);
}

TEST(NcForwards, HandOnWhatTheControlRefuses) {
    const StartedPlatform platform;
    GetGPIFunction();
    EXPECT_EQ(GNCDataGetGNCValue(1, G_NC_MACRO, 500, 0, nullptr), G_NC_BUFFER);
    EXPECT_EQ(GNCDataGetSystemVal(0, nullptr), G_NC_BUFFER);
    EXPECT_EQ(GNCDataSetSystemVal(0, 0), G_NC_UNKNOWN);
    EXPECT_EQ(GNCDataIsNotaNumber(7, 500), G_NC_UNKNOWN);
}

} // namespace
