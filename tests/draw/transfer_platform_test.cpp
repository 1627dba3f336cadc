// Block transfers through the platform.
#include "draw/transfer_fixture.h"

#include <gtest/gtest.h>

#include <vector>

using namespace quarlo::test;

namespace {

TEST_F(Transfer, OntoTheDisplayIsThePlatforms) {
    GuardedSurface from(10, 8, 24);
    copy(from.get(), 1, 2, 5, 4, display.get(), 100, 200, G_MODE_OR);
    EXPECT_EQ(platform.calls, std::vector{call(8, handle.get(), from.get(), 1, 2, 5, 4,
                                               display.get(), 100, 200, G_MODE_OR)});
}

TEST_F(Transfer, ThePlatformGetsWhatIsLeftAfterCutting) {
    GuardedSurface from(10, 8, 24);
    GRect clip = {102, 0, 639, 479};
    display->drawable = &clip;
    copy(from.get(), -3, 5, 100, 100, display.get(), 100, 200);
    EXPECT_EQ(platform.calls, std::vector{call(8, handle.get(), from.get(), 0, 5, 10, 3,
                                               display.get(), 103, 200, G_MODE_COPY)});
}

TEST_F(Transfer, ThePlatformGetsAWildModeAsItIs) {
    GuardedSurface from(10, 8, 24);
    copy(from.get(), 0, 0, 1, 1, display.get(), 0, 0, 77);
    ASSERT_EQ(platform.count(8), 1U);
    EXPECT_EQ(platform.calls.back().arguments.back(), 77);
}

TEST_F(Transfer, WithinTheDisplayIsThePlatformsToo) {
    copy(display.get(), 0, 0, 10, 10, display.get(), 0, 0);
    EXPECT_EQ(platform.count(8), 1U);
}

TEST_F(Transfer, ThePlatformIsNotAskedForNothing) {
    GuardedSurface from(10, 8, 24);
    copy(from.get(), 10, 0, 5, 5, display.get(), 0, 0);
    copy(from.get(), 0, 0, 5, 5, display.get(), 640, 0);
    display->colorType = G_COLOR_PALETTE;
    copy(from.get(), 0, 0, 5, 5, display.get(), 0, 0);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Transfer, OntoAnotherDeviceSurfaceIsTheLibrarys) {
    GuardedSurface from(2, 1, 16);
    GuardedSurface second(2, 1, 16);
    second->id = 1;
    paint(from, {"12"});
    copy(from.get(), 0, 0, 2, 1, second.get(), 0, 0);
    EXPECT_TRUE(shows(*second, {"12"}, kDigits));
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(Transfer, FromTheDisplayIsTheLibrarys) {
    GuardedSurface to(2, 1, 16);
    setPixelAt(*display, 5, 7, 3);
    copy(display.get(), 5, 7, 2, 1, to.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {"3."}, kDigits));
}

TEST_F(Transfer, WithoutThePlatformsTransferNothingIsCopied) {
    GuardedSurface from(2, 1, 16);
    GuardedSurface to(2, 1, 16);
    paint(from, {"12"});
    platform.remove({8});
    copy(from.get(), 0, 0, 2, 1, to.get(), 0, 0);
    copy(from.get(), 0, 0, 2, 1, display.get(), 0, 0);
    EXPECT_TRUE(shows(*to, {".."}));
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_TRUE(platform.requests.empty());
}

TEST_F(Transfer, NeedsAHandleAndBothSurfaces) {
    GuardedSurface from(2, 1, 16);
    GuardedSurface to(2, 1, 16);
    paint(from, {"12"});
    GDBitBlt(nullptr, from.get(), 0, 0, 2, 1, to.get(), 0, 0, G_MODE_COPY);
    GDBitBlt(nullptr, from.get(), 0, 0, 2, 1, display.get(), 0, 0, G_MODE_COPY);
    copy(nullptr, 0, 0, 2, 1, to.get(), 0, 0);
    copy(from.get(), 0, 0, 2, 1, nullptr, 0, 0);
    EXPECT_TRUE(shows(*to, {".."}));
    EXPECT_TRUE(platform.calls.empty());
}

} // namespace
