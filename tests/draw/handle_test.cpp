// Draw handles: opened, retargeted, closed.
#include "draw/draw_test.h"

#include "geometry/view.h"
#include "raster/pixel_ops.h"

#include <quarlo/platform.h>

#include <gtest/gtest.h>

#include <algorithm>
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

/// The entry that the table has for a format and mode 0 to 3.
const GPixelOps* entryFor(int16_t bitsPerPixel, int16_t mode) {
    GVram surface{};
    surface.id = G_MEMORY_SURFACE;
    surface.bitsPerPixel = bitsPerPixel;
    GDrawHandle handle{};
    handle.target = &surface;
    handle.drawingMode = mode;
    selectPixelOps(handle);
    return handle.pixelOps;
}

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

class SelectOperations : public HandleTest {
  protected:
    GPixelOps* deviceEntry() { return &deviceOps; }
};

TEST_F(SelectOperations, TheDeviceEntryComesFromThePlatform) {
    EXPECT_EQ(handle->pixelOps, deviceEntry());
    const auto slot = [](auto* operation) { return reinterpret_cast<GPIFunction>(operation); };
    EXPECT_EQ(slot(deviceOps.setPixel), GPIGetService(5));
    EXPECT_EQ(slot(deviceOps.span), GPIGetService(6));
    EXPECT_EQ(slot(deviceOps.nextPixel), GPIGetService(7));
    EXPECT_EQ(slot(deviceOps.coveragePixel), GPIGetService(43));
    EXPECT_EQ(slot(deviceOps.drawRect), GPIGetService(67));
    EXPECT_EQ(slot(deviceOps.fillRect), GPIGetService(68));
    EXPECT_EQ(slot(deviceOps.patternRect), GPIGetService(70));
}

TEST_F(SelectOperations, AnOperationThatThePlatformLacksStaysEmpty) {
    platform.remove({6, 43, 67, 70});
    GDSetDrawingMode(handle.get(), G_MODE_COPY);
    EXPECT_NE(deviceOps.setPixel, nullptr);
    EXPECT_EQ(deviceOps.span, nullptr);
    EXPECT_NE(deviceOps.nextPixel, nullptr);
    EXPECT_EQ(deviceOps.coveragePixel, nullptr);
    EXPECT_EQ(deviceOps.drawRect, nullptr);
    EXPECT_NE(deviceOps.fillRect, nullptr);
    EXPECT_EQ(deviceOps.patternRect, nullptr);
}

TEST_F(SelectOperations, TwoSlotsOfTheDeviceEntryAreLeftAsTheyAre) {
    const auto noOperation = [] {};
    const auto read = [](GDrawHandle*, GVram*, int16_t, int16_t) -> uint32_t { return 0; };
    const GPixelOps before = deviceOps;
    deviceOps.unused = noOperation;
    deviceOps.readPixel = read;
    GDSetDrawingMode(handle.get(), G_MODE_OR);
    EXPECT_EQ(deviceOps.unused, +noOperation);
    EXPECT_EQ(deviceOps.readPixel, +read);
    deviceOps = before;
}

TEST_F(SelectOperations, EveryHandleOnADeviceSurfaceSharesItsEntry) {
    GuardedSurface second(20, 10, 24);
    platform.addDisplay(1, second);
    const Handle other = openHandle();
    EXPECT_EQ(GDSetVram(other.get(), 1, nullptr), 1);
    GDSetDrawingMode(other.get(), G_MODE_XOR);
    EXPECT_EQ(other->pixelOps, handle->pixelOps);
}

TEST_F(SelectOperations, EachFormatAndModeHasItsEntry) {
    for (const int16_t bits : kDepths) {
        for (int16_t mode = G_MODE_COPY; mode <= G_MODE_XOR; ++mode) {
            const GPixelOps* const entry = entryFor(bits, mode);
            EXPECT_NE(entry->setPixel, nullptr);
            EXPECT_NE(entry->span, nullptr);
            EXPECT_NE(entry->nextPixel, nullptr);
            EXPECT_EQ(entry->unused, nullptr);
            EXPECT_EQ(entry->coveragePixel, nullptr);
            EXPECT_EQ(entry->drawRect, nullptr);
            EXPECT_EQ(entry->fillRect, nullptr);
            EXPECT_EQ(entry->patternRect, nullptr);
            for (const int16_t otherBits : kDepths) {
                for (int16_t other = G_MODE_COPY; other <= G_MODE_XOR; ++other) {
                    EXPECT_EQ(entryFor(otherBits, other) == entry,
                              otherBits == bits && other == mode);
                }
            }
        }
    }
}

TEST_F(SelectOperations, AWildModeReachesTheEntryThatItsIndexNames) {
    const GPixelOps* const empty = entryFor(8, 4);
    EXPECT_EQ(bytesOf(*empty), bytesOf(GPixelOps{}));
    for (int mode = -32768; mode < 32768; ++mode) {
        const int index = mode + 8 * 4;
        const bool named = index >= 32 && index < 128 && index % 32 < 4;
        const GPixelOps* const expected =
            named ? entryFor(static_cast<int16_t>(index / 32 * 8), static_cast<int16_t>(index % 32))
                  : empty;
        ASSERT_EQ(entryFor(8, static_cast<int16_t>(mode)), expected) << mode;
    }
}

TEST_F(SelectOperations, AWildDepthReachesTheEmptyEntry) {
    const GPixelOps* const empty = entryFor(8, 4);
    for (const int16_t bits :
         std::initializer_list<int16_t>{-32768, -8, 0, 4, 32, 40, 256, 32767}) {
        EXPECT_EQ(entryFor(bits, G_MODE_COPY), empty) << bits;
    }
}

} // namespace
