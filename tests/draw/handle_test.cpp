// Draw handles: opened, given a display, closed.
#include "draw/draw_test.h"

#include "geometry/view.h"
#include "raster/pixel_ops.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

using namespace quarlo;
using namespace quarlo::test;

namespace {

using OpenHandle = DrawTest;

TEST_F(OpenHandle, TakesItsRecordThenTheDisplay) {
    const Handle handle = openHandle();
    ASSERT_NE(handle, nullptr);
    EXPECT_EQ(platform.calls,
              (std::vector{call(41, 1, 0, sizeof(GDrawHandle)), call(3, handle.get(), 0)}));
}

TEST_F(OpenHandle, EveryFieldIsZeroButThese) {
    const Handle handle(GDOpenDrawHandle(0x1234, GWord{0} - 1));
    ASSERT_NE(handle, nullptr);
    GDrawHandle expected;
    std::memset(&expected, 0, sizeof expected);
    expected.view = {0, 0, 639, 479};
    expected.virtualRect = {0, 0, 639, 479};
    expected.penWidth = 1;
    expected.penHeight = 1;
    expected.display = display.get();
    expected.target = display.get();
    expected.pixelOps = &deviceOps;
    std::memcpy(expected.dashes, handle->dashes, sizeof expected.dashes);
    std::memcpy(expected.fillPatterns, handle->fillPatterns, sizeof expected.fillPatterns);
    expected.openArg1 = 0x1234;
    expected.openArg2 = GWord{0} - 1;
    EXPECT_EQ(bytesOf(*handle), bytesOf(expected));
}

TEST_F(OpenHandle, ThePlatformSeesTheArguments) {
    GWord seen[2] = {};
    platform.serve<3>([&](GDrawHandle* handle, int32_t) {
        seen[0] = handle->openArg1;
        seen[1] = handle->openArg2;
        return display.get();
    });
    platform.serve<4>([](GDrawHandle*, GVram*) { return 1; });
    const Handle handle(GDOpenDrawHandle(8, 9));
    EXPECT_EQ(seen[0], 8U);
    EXPECT_EQ(seen[1], 9U);
}

TEST_F(OpenHandle, SetsThePhysicalRectangle) {
    physicalRect = {};
    const Handle handle = openHandle();
    EXPECT_EQ(physicalRect, (GRect{0, 0, 639, 479}));
}

TEST_F(OpenHandle, WithoutADisplayThereIsNone) {
    platform.serve<3>([](GDrawHandle*, int32_t) { return nullptr; });
    EXPECT_EQ(GDOpenDrawHandle(0, 0), nullptr);
    EXPECT_EQ(platform.blocksInUse(), 0U);
    EXPECT_EQ(platform.count(4), 0U);
}

TEST_F(OpenHandle, WithoutTheServiceThereIsNoDisplay) {
    platform.remove({3});
    EXPECT_EQ(GDOpenDrawHandle(0, 0), nullptr);
    EXPECT_EQ(platform.blocksInUse(), 0U);
}

TEST_F(OpenHandle, WithoutMemoryThereIsNone) {
    failEachAllocation(platform, [&] {
        const Handle handle = openHandle();
        EXPECT_EQ(handle == nullptr, platform.allocationFailed());
    });
    EXPECT_EQ(platform.displaysInUse(), 0);
}

using CloseHandleTest = DrawTest;

TEST_F(CloseHandleTest, NoHandleDoesNothing) {
    GDCloseDrawHandle(nullptr);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(CloseHandleTest, GivesTheDisplayBackThenTheRecord) {
    GDrawHandle* const handle = GDOpenDrawHandle(0, 0);
    platform.forget();
    GDCloseDrawHandle(handle);
    EXPECT_EQ(platform.calls,
              (std::vector{call(4, handle, display.get()), call(42, 1, 0, handle)}));
    EXPECT_EQ(platform.displaysInUse(), 0);
}

TEST_F(CloseHandleTest, AMemorySurfaceIsTheProgramsFromThenOn) {
    GDrawHandle* const handle = GDOpenDrawHandle(0, 0);
    const Surface surface = makeSurface(10, 10, 8);
    ASSERT_EQ(GDSetVram(handle, G_MEMORY_SURFACE, surface.get()), 1);
    platform.forget();
    GDCloseDrawHandle(handle);
    EXPECT_EQ(platform.calls, std::vector{call(42, 1, 0, handle)});
}

TEST_F(CloseHandleTest, ItIsTheDisplaySurfaceThatGoesBack) {
    GuardedSurface second(20, 10, 8);
    platform.addDisplay(1, second);
    GDrawHandle* const handle = GDOpenDrawHandle(0, 0);
    GDSetDisplay(handle, 1);
    GDCloseDrawHandle(handle);
    EXPECT_EQ(platform.callsOf(4), std::vector{call(4, handle, second.get())});
}

TEST_F(CloseHandleTest, APlatformThatTakesNothingBackIsNotAsked) {
    platform.remove({4});
    GDCloseDrawHandle(GDOpenDrawHandle(0, 0));
    EXPECT_EQ(platform.blocksInUse(), 0U);
}

TEST_F(HandleTest, BeginAndEndGiveTheirArgument) {
    const auto before = bytesOf(*handle);
    EXPECT_EQ(GDBeginDraw(handle.get()), handle.get());
    EXPECT_EQ(GDEndDraw(handle.get()), handle.get());
    EXPECT_EQ(GDBeginDraw(nullptr), nullptr);
    EXPECT_EQ(GDEndDraw(nullptr), nullptr);
    EXPECT_EQ(bytesOf(*handle), before);
    EXPECT_TRUE(platform.callsOf(9).empty());
}

class SetDisplay : public HandleTest {
  protected:
    SetDisplay() { platform.addDisplay(3, other); }

    GuardedSurface other{20, 10, 8};
};

TEST_F(SetDisplay, ChangesTheDisplayOnly) {
    platform.forget();
    GDrawHandle expected;
    std::memcpy(&expected, handle.get(), sizeof expected);
    expected.display = other.get();
    EXPECT_EQ(GDSetDisplay(handle.get(), 3), 1);
    EXPECT_EQ(bytesOf(*handle), bytesOf(expected));
    EXPECT_EQ(GDGetVram(handle.get()), other.get());
    EXPECT_EQ(platform.calls, std::vector{call(3, handle.get(), 3)});
}

TEST_F(SetDisplay, AMissingDisplayChangesNothing) {
    const auto before = bytesOf(*handle);
    EXPECT_EQ(GDSetDisplay(handle.get(), 4), 0);
    platform.remove({3});
    EXPECT_EQ(GDSetDisplay(handle.get(), 3), 0);
    EXPECT_EQ(bytesOf(*handle), before);
}

TEST_F(SetDisplay, NoHandleAsksForNothing) {
    platform.forget();
    EXPECT_EQ(GDSetDisplay(nullptr, 3), 0);
    EXPECT_TRUE(platform.calls.empty());
}

} // namespace
