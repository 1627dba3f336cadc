#include "support/recording_platform.h"

#include <quarlo/clip.h>
#include <quarlo/event.h>
#include <quarlo/handle.h>
#include <quarlo/platform.h>
#include <quarlo/timer.h>

#include <gtest/gtest.h>

#include <vector>

using namespace quarlo::test;

namespace {

TEST(GDInitPlatform, CallsBothStartServicesAndReturnsTheSecondResult) {
    RecordingPlatform platform;
    platform.answer(1, 11);
    platform.answer(12, 22);
    EXPECT_EQ(GDInitPlatform(5), 22U);
    EXPECT_EQ(platform.calls, (std::vector{call(1, 5), call(12, 5)}));
}

TEST(GDInitPlatform, CallsTheSecondEvenWhenTheFirstFails) {
    RecordingPlatform platform;
    platform.answer(1, 0);
    platform.answer(12, 22);
    EXPECT_EQ(GDInitPlatform(5), 22U);
    platform.answer(1, 11);
    platform.answer(12, 0);
    EXPECT_EQ(GDInitPlatform(5), 0U);
}

TEST(GDInitPlatform, WithoutTheSecondReturnsTheFirstResult) {
    RecordingPlatform platform;
    platform.remove({12});
    platform.answer(1, 11);
    EXPECT_EQ(GDInitPlatform(5), 11U);
    EXPECT_EQ(platform.calls, std::vector{call(1, 5)});
}

TEST(GDInitPlatform, PassesAPointer) {
    RecordingPlatform platform;
    int thing = 0;
    GDInitPlatform(reinterpret_cast<GWord>(&thing));
    EXPECT_EQ(platform.calls, (std::vector{call(1, &thing), call(12, &thing)}));
}

TEST(GDInitPlatform, BeforeBindingDoesNothing) {
    RecordingPlatform platform;
    platform.unbind();
    EXPECT_EQ(GDInitPlatform(5), 0U);
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_TRUE(platform.requests.empty());
}

TEST(GDQuitPlatform, CallsTheOptionalStopFirst) {
    RecordingPlatform platform;
    platform.answer(2, 7);
    platform.answer(22, 8);
    EXPECT_EQ(GDQuitPlatform(), 7U);
    EXPECT_EQ(platform.calls, (std::vector{call(22), call(2)}));
}

TEST(GDQuitPlatform, WithoutTheOptionalStopCallsTheOther) {
    RecordingPlatform platform;
    platform.remove({22});
    platform.answer(2, 7);
    EXPECT_EQ(GDQuitPlatform(), 7U);
    EXPECT_EQ(platform.calls, std::vector{call(2)});
}

TEST(GDQuitPlatform, KeepsTheServicesBound) {
    RecordingPlatform platform;
    GDQuitPlatform();
    platform.forget();
    GDInitPlatform(1);
    EXPECT_EQ(platform.count(1), 1U);
    EXPECT_TRUE(platform.requests.empty());
}

TEST(Start, TakesNoMemoryBeforeTheFirstDrawHandle) {
    RecordingPlatform platform;
    platform.unbind();
    GetGPIFunction();
    GDInitPlatform(1);
    GDInitBackupClipBuf();
    ASSERT_EQ(GEInitEvent(), 1);
    ASSERT_EQ(GESetTimer(1, 2, 0), 1);
    GECheckTimer();
    GEventMsg event;
    ASSERT_EQ(GEGetEvent(&event, 0), 1);
    GEKillTimer(1, 2);
    EXPECT_EQ(platform.count(41) + platform.count(66), 0U);

    GDrawHandle* const handle = GDOpenDrawHandle(0, 0);
    EXPECT_EQ(platform.callsOf(41), std::vector{call(41, 1, 0, sizeof(GDrawHandle))});
    GDCloseDrawHandle(handle);
    GEQuitEvent();
}

} // namespace
