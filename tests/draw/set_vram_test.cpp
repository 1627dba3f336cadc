// Draw handles: given a surface to draw on.
#include "draw/draw_test.h"
#include "draw/pixel_entry.h"

#include "geometry/view.h"

#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <utility>
#include <vector>

using namespace quarlo;
using namespace quarlo::test;

namespace {

/// Every field set to something that no function leaves there by chance.
void scribble(GDrawHandle& handle) {
    handle.view = {1, 2, 3, 4};
    handle.localOrigin = {5, 6};
    handle.virtualRect = {7, 8, 9, 10};
    handle.penPos = {11, 12};
    handle.penPixel = 13;
    handle.penWidth = 14;
    handle.penHeight = 15;
    handle.penJoin = 16;
    handle.penDash = 17;
    handle.dashPhase = 18;
    handle.textMode = 19;
    handle.forePixel = 20;
    handle.backPixel = 21;
    handle.fillPattern = 22;
    handle.modeFlags = G_FLAG_VIRTUAL;
    handle.drawingMode = G_MODE_XOR;
    handle.font = fromWord<GFontRecord*>(23);
    handle.error = 24;
    handle.gradation = {1, 25, 26, 27, 28};
    handle.foreColor = 29;
    handle.backColor = 30;
    handle.penColor = 31;
}

class SetVram : public HandleTest {
  protected:
    SetVram() { platform.addDisplay(2, second); }

    void expectRefused(int16_t id, GVram* surface) {
        const auto before = bytesOf(*handle);
        const GRect physical = physicalRect;
        EXPECT_EQ(GDSetVram(handle.get(), id, surface), 0);
        EXPECT_EQ(bytesOf(*handle), before);
        EXPECT_EQ(physicalRect, physical);
        EXPECT_EQ(platform.count(4), 0U);
        EXPECT_EQ(platform.count(42), 0U);
    }

    /// Back to the display, which deletes a memory surface that is attached.
    void detach() { EXPECT_EQ(GDSetVram(handle.get(), 0, nullptr), 1); }

    GuardedSurface second{50, 40, 8};
};

TEST_F(SetVram, NeedsAHandle) {
    const Surface surface = makeSurface(4, 4, 8);
    EXPECT_EQ(GDSetVram(nullptr, G_MEMORY_SURFACE, surface.get()), 0);
    EXPECT_EQ(GDSetVram(nullptr, 0, nullptr), 0);
    EXPECT_EQ(platform.count(3), 0U);
}

TEST_F(SetVram, NeedsThePlatformsSurfacesEvenForAMemorySurface) {
    const Surface surface = makeSurface(4, 4, 8);
    platform.remove({3});
    expectRefused(G_MEMORY_SURFACE, surface.get());
    expectRefused(2, nullptr);
}

TEST_F(SetVram, RefusesNoSurface) {
    expectRefused(G_MEMORY_SURFACE, nullptr);
}

TEST_F(SetVram, RefusesADeviceSurfacesRecord) {
    expectRefused(G_MEMORY_SURFACE, second.get());
    second->id = 0;
    expectRefused(G_MEMORY_SURFACE, second.get());
}

TEST_F(SetVram, RefusesOtherDepths) {
    GVram surface{};
    surface.id = G_MEMORY_SURFACE;
    for (const int16_t bits :
         std::initializer_list<int16_t>{-8, 0, 1, 4, 7, 9, 15, 23, 25, 32, 264}) {
        surface.bitsPerPixel = bits;
        expectRefused(G_MEMORY_SURFACE, &surface);
    }
}

TEST_F(SetVram, RefusesADisplayThatIsNotThere) {
    expectRefused(5, nullptr);
    expectRefused(-2, nullptr);
    EXPECT_EQ(platform.callsOf(3).back(), call(3, handle.get(), -2));
}

TEST_F(SetVram, AttachesAMemorySurface) {
    GVram* const surface = attach(handle, makeSurface(30, 20, 8));
    EXPECT_EQ(handle->display, surface);
    EXPECT_EQ(handle->target, surface);
    EXPECT_EQ(GDGetVram(handle.get()), surface);
    EXPECT_EQ(platform.count(3), 0U);
}

TEST_F(SetVram, AHandleWithoutASurfaceHasNoneToRelease) {
    GDrawHandle blank{};
    EXPECT_EQ(GDSetVram(&blank, 2, nullptr), 1);
    EXPECT_EQ(blank.target, second.get());
    EXPECT_EQ(platform.count(4), 0U);
}

TEST_F(SetVram, AttachesADeviceSurface) {
    GVram unread{};
    EXPECT_EQ(GDSetVram(handle.get(), 2, &unread), 1);
    EXPECT_EQ(platform.callsOf(3).back(), call(3, handle.get(), 2));
    EXPECT_EQ(handle->display, second.get());
    EXPECT_EQ(handle->target, second.get());
}

TEST_F(SetVram, ShiftsComeFromTheMasksOfADirectSurface) {
    attach(handle, makeSurface(4, 4, 16));
    EXPECT_EQ(handle->redShift, 7);
    EXPECT_EQ(handle->greenShift, 2);
    EXPECT_EQ(handle->blueShift, -3);
}

TEST_F(SetVram, APaletteSurfaceKeepsTheShifts) {
    handle->redShift = 1;
    handle->greenShift = 2;
    handle->blueShift = 3;
    uint32_t palette[1] = {0xFFFFFF};
    GVram record{};
    record.width = 4;
    record.height = 4;
    record.bitsPerPixel = 8;
    record.redMask = 0xFF0000;
    record.paletteCount = 1;
    record.palette = palette;
    for (const int8_t colorType : std::initializer_list<int8_t>{G_COLOR_PALETTE, 0, 3, -1}) {
        record.colorType = colorType;
        attach(handle, Surface(GDCreateVram(&record)));
        EXPECT_EQ(handle->redShift, 1);
        EXPECT_EQ(handle->greenShift, 2);
        EXPECT_EQ(handle->blueShift, 3);
    }
}

TEST_F(SetVram, ShiftsOfADeviceSurfaceComeFromTheColourModesMasks) {
    GDSetColorMode(handle.get(), 0, 0xF800, 0x7E0, 0x1F);
    attach(handle, makeSurface(4, 4, 24));
    EXPECT_EQ(handle->redShift, 0);
    EXPECT_EQ(GDSetVram(handle.get(), 2, nullptr), 1);
    EXPECT_EQ(handle->redShift, 8);
    EXPECT_EQ(handle->greenShift, 3);
    EXPECT_EQ(handle->blueShift, -3);
}

TEST_F(SetVram, DeletesTheMemorySurfaceBefore) {
    const GVram* const first = attach(handle, makeSurface(10, 10, 8));
    const std::vector expected = {call(42, 1, 0, first->pixels), call(42, 1, 0, first)};
    platform.forget();
    attach(handle, makeSurface(4, 4, 24));
    EXPECT_EQ(platform.callsOf(42), expected);
    platform.forget();
    detach();
    EXPECT_EQ(platform.count(42), 2U);
    EXPECT_EQ(platform.blocksInUse(), 1U) << "the handle";
}

TEST_F(SetVram, GivesTheDeviceSurfaceBeforeBack) {
    attach(handle, makeSurface(10, 10, 8));
    EXPECT_EQ(platform.callsOf(4), std::vector{call(4, handle.get(), display.get())});
    EXPECT_EQ(platform.displaysInUse(), 0);
    detach();
    EXPECT_EQ(GDSetVram(handle.get(), 2, nullptr), 1);
    EXPECT_EQ(platform.count(4), 2U);
    EXPECT_EQ(platform.displaysInUse(), 1);
}

TEST_F(SetVram, TheSurfaceBeforeIsTheOneDrawnOn) {
    EXPECT_EQ(GDSetDisplay(handle.get(), 2), 1);
    attach(handle, makeSurface(10, 10, 8));
    EXPECT_EQ(platform.callsOf(4), std::vector{call(4, handle.get(), display.get())});
}

TEST_F(SetVram, TheNewSurfaceIsAttachedBeforeTheOldOneGoes) {
    GVram* seen = nullptr;
    platform.serve<4>([&](GDrawHandle* asked, GVram*) {
        seen = asked->target;
        return 1;
    });
    EXPECT_EQ(GDSetVram(handle.get(), 2, nullptr), 1);
    EXPECT_EQ(seen, second.get());
}

TEST_F(SetVram, AttachingTheAttachedMemorySurfaceReleasesNothing) {
    Surface surface = makeSurface(10, 10, 8);
    GVram* const attached = surface.get();
    attach(handle, std::move(surface));
    platform.forget();
    EXPECT_EQ(GDSetVram(handle.get(), G_MEMORY_SURFACE, attached), 1);
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_EQ(handle->target, attached);
}

TEST_F(SetVram, AttachingTheAttachedDeviceSurfaceReleasesNothing) {
    EXPECT_EQ(GDSetVram(handle.get(), 0, nullptr), 1);
    EXPECT_EQ(platform.count(4), 0U);
    EXPECT_EQ(handle->target, display.get());
}

TEST_F(SetVram, APlatformThatTakesNothingBackIsNotAsked) {
    platform.remove({4});
    EXPECT_EQ(GDSetVram(handle.get(), 2, nullptr), 1);
    EXPECT_EQ(handle->target, second.get());
}

TEST_F(SetVram, ResetsTheGeometryAndKeepsTheRest) {
    Surface surface = makeSurface(30, 20, 8);
    scribble(*handle);
    physicalRect = {};
    GDrawHandle expected;
    std::memcpy(&expected, handle.get(), sizeof expected);
    expected.view = {0, 0, 29, 19};
    expected.virtualRect = {0, 0, 29, 19};
    expected.localOrigin = {0, 0};
    expected.penPos = {0, 0};
    expected.display = surface.get();
    expected.target = surface.get();
    expected.redShift = 0;
    expected.greenShift = -3;
    expected.blueShift = -6;
    expected.pixelOps = entryFor(8, G_MODE_XOR);
    attach(handle, std::move(surface));
    EXPECT_EQ(bytesOf(*handle), bytesOf(expected));
    EXPECT_EQ(physicalRect, (GRect{0, 0, 29, 19}));
}

TEST_F(SetVram, ConvertsTheColoursAnew) {
    GDSetColorMode(handle.get(), 1, 0xF800, 0x7E0, 0x1F);
    GDSetForeColor(handle.get(), 0xFF8040);
    GDSetBackColor(handle.get(), 0xFFFFFF);
    GDSetPenColor(handle.get(), G_NO_COLOR);
    attach(handle, makeSurface(4, 4, 24));
    EXPECT_EQ(handle->forePixel, 0x4080FFU);
    EXPECT_EQ(handle->backPixel, 0xFFFFFFU);
    EXPECT_EQ(handle->penPixel, G_NO_COLOR);
    detach();
    EXPECT_EQ(handle->forePixel, 0xFC08U);
    EXPECT_EQ(handle->foreColor, 0xFF8040U);
}

TEST_F(SetVram, KeepsRawColoursWithoutColourMode) {
    GDSetForeColor(handle.get(), 0xFF8040);
    attach(handle, makeSurface(4, 4, 16));
    EXPECT_EQ(handle->forePixel, 0xFF8040U);
}

TEST_F(SetVram, ASurfaceOfNegativeExtentsHasAViewWithoutPixels) {
    attach(handle, makeSurface(-2, -3, 16));
    EXPECT_EQ(handle->view, (GRect{0, 0, -3, -4}));
}

} // namespace
