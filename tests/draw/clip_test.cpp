// The clip rectangle, and the mapping of coordinates that it is set through.
#include "draw/draw_test.h"

#include "geometry/view.h"
#include "support/random_calls.h"

#include <quarlo/draw.h>

#include <gtest/gtest.h>

#include <vector>

using namespace quarlo;
using namespace quarlo::test;

namespace {

constexpr GRect kWhole = {0, 0, 639, 479};
constexpr GRect kThousand = {0, 0, 999, 999};

class Clip : public HandleTest {
  protected:
    void enterVirtualMode(const GRect& frame) {
        GDSetVirtualMode(handle.get());
        GDSetVirtualRect(handle.get(), &frame);
    }

    void setOrigin(int16_t x, int16_t y) {
        const GPoint origin = {x, y};
        GDSetLocalOrigin(handle.get(), &origin);
    }

    int32_t set(const GRect& rect) { return GDSetClipRect(handle.get(), &rect); }

    GRect get() {
        GRect rect{};
        GDGetClipRect(handle.get(), &rect);
        return rect;
    }

    /// The clip rectangle in surface coordinates.
    const GRect& clip() { return *display->drawable; }
};

TEST_F(Clip, StartsAsTheWholeOfAMemorySurface) {
    attach(handle, makeSurface(30, 20, 8));
    EXPECT_EQ(get(), (GRect{0, 0, 29, 19}));
}

TEST_F(Clip, IsThePlatformsOnADeviceSurface) {
    GRect own = {5, 6, 7, 8};
    display->drawable = &own;
    EXPECT_EQ(get(), own);
    EXPECT_NE(set({1, 2, 3, 4}), 0);
    EXPECT_EQ(own, (GRect{1, 2, 3, 4}));
    EXPECT_EQ(display->bounds, kWhole);
}

TEST_F(Clip, OfAMemorySurfaceIsItsBounds) {
    const GVram* const surface = attach(handle, makeSurface(30, 20, 8));
    EXPECT_NE(set({1, 2, 3, 4}), 0);
    EXPECT_EQ(surface->bounds, (GRect{1, 2, 3, 4}));
}

TEST_F(Clip, IsCutToTheView) {
    EXPECT_NE(set({-10, -10, 5, 5}), 0);
    EXPECT_EQ(clip(), (GRect{0, 0, 5, 5}));
    EXPECT_NE(set({600, 400, 32767, 32767}), 0);
    EXPECT_EQ(clip(), (GRect{600, 400, 639, 479}));
}

TEST_F(Clip, WhollyOutsideTheViewIsRefused) {
    set({1, 2, 3, 4});
    EXPECT_EQ(set({640, 0, 700, 100}), 0);
    EXPECT_EQ(set({-10, 0, -1, 100}), 0);
    EXPECT_EQ(set({0, 480, 100, 500}), 0);
    EXPECT_EQ(set({0, -9, 100, -1}), 0);
    EXPECT_EQ(clip(), (GRect{1, 2, 3, 4}));
}

TEST_F(Clip, AnInvertedRectangleIsRefused) {
    set({1, 2, 3, 4});
    EXPECT_EQ(set({10, 10, 5, 20}), 0);
    EXPECT_EQ(set({10, 20, 20, 10}), 0);
    EXPECT_EQ(set({639, 479, 0, 0}), 0);
    EXPECT_EQ(clip(), (GRect{1, 2, 3, 4}));
}

TEST_F(Clip, IsReplacedNotNarrowed) {
    EXPECT_NE(set({10, 10, 20, 20}), 0);
    EXPECT_NE(set({15, 5, 100, 100}), 0);
    EXPECT_EQ(clip(), (GRect{15, 5, 100, 100}));
}

TEST_F(Clip, NoRectangleIsTheWholeView) {
    set({10, 10, 20, 20});
    setOrigin(100, 100);
    EXPECT_NE(GDSetClipRect(handle.get(), nullptr), 0);
    EXPECT_EQ(clip(), kWhole);
}

TEST_F(Clip, TheRectangleGivenIsLeftAlone) {
    setOrigin(10, 20);
    const GRect rect = {-100, -100, 100, 100};
    GRect given = rect;
    GDSetClipRect(handle.get(), &given);
    EXPECT_EQ(given, rect);
    GDInceptClipRect(handle.get(), &given, nullptr);
    EXPECT_EQ(given, rect);
}

TEST_F(Clip, OfASurfaceIsSharedByItsHandles) {
    const Handle other = openHandle();
    EXPECT_NE(set({10, 10, 20, 20}), 0);
    GRect seen{};
    GDGetClipRect(other.get(), &seen);
    EXPECT_EQ(seen, (GRect{10, 10, 20, 20}));
}

TEST_F(Clip, LivesAsLongAsTheSurface) {
    EXPECT_NE(set({10, 10, 20, 20}), 0);
    handle.reset();
    handle = openHandle();
    EXPECT_EQ(get(), (GRect{10, 10, 20, 20}));
}

TEST_F(Clip, SpeaksLocalCoordinates) {
    setOrigin(100, 50);
    EXPECT_NE(set({130, 70, 140, 80}), 0);
    EXPECT_EQ(clip(), (GRect{30, 20, 40, 30}));
    EXPECT_EQ(get(), (GRect{130, 70, 140, 80}));
}

TEST_F(Clip, SpeaksVirtualCoordinatesRoundedBothWays) {
    enterVirtualMode(kThousand);
    EXPECT_NE(set({1, 0, 500, 250}), 0);
    EXPECT_EQ(clip(), (GRect{1, 0, 320, 120}));
    EXPECT_EQ(get(), (GRect{2, 0, 500, 250}));
}

TEST_F(Clip, TheLocalOriginIsIgnoredInVirtualMode) {
    setOrigin(100, 50);
    enterVirtualMode(kThousand);
    EXPECT_NE(set({500, 250, 999, 999}), 0);
    EXPECT_EQ(clip(), (GRect{320, 120, 639, 479}));
}

TEST_F(Clip, OpeningAHandleElsewhereChangesEveryVirtualMapping) {
    enterVirtualMode(kThousand);
    const Handle other = openHandle();
    attach(other, makeSurface(320, 240, 16));
    EXPECT_EQ(physicalRect, (GRect{0, 0, 319, 239}));
    EXPECT_NE(set({0, 0, 999, 999}), 0);
    EXPECT_EQ(clip(), (GRect{0, 0, 319, 239}));
}

TEST_F(Clip, OpeningAHandleOnASmallDisplayChangesEveryVirtualMapping) {
    enterVirtualMode(kThousand);
    GuardedSurface small(320, 240, 16);
    platform.addDisplay(0, small);
    Handle other = openHandle();
    EXPECT_NE(set({0, 0, 999, 999}), 0);
    EXPECT_EQ(clip(), (GRect{0, 0, 319, 239}));
    other.reset();
    platform.addDisplay(0, display);
}

TEST_F(Clip, NarrowsToTheIntersection) {
    set({10, 10, 100, 100});
    const GRect rect = {50, -50, 700, 60};
    GRect before{};
    EXPECT_EQ(GDInceptClipRect(handle.get(), &rect, &before), 1);
    EXPECT_EQ(clip(), (GRect{50, 10, 100, 60}));
    EXPECT_EQ(before, (GRect{10, 10, 100, 100}));
    EXPECT_NE(set(before), 0);
    EXPECT_EQ(clip(), (GRect{10, 10, 100, 100}));
}

TEST_F(Clip, NarrowsWithoutHandingBackTheOldOne) {
    const GRect rect = {5, 5, 6, 6};
    EXPECT_EQ(GDInceptClipRect(handle.get(), &rect, nullptr), 1);
    EXPECT_EQ(clip(), rect);
}

TEST_F(Clip, NarrowingHandsBackApplicationCoordinates) {
    set({10, 10, 100, 100});
    setOrigin(1000, 2000);
    const GRect rect = {1020, 2020, 1030, 2030};
    GRect before{};
    EXPECT_EQ(GDInceptClipRect(handle.get(), &rect, &before), 1);
    EXPECT_EQ(clip(), (GRect{20, 20, 30, 30}));
    EXPECT_EQ(before, (GRect{1010, 2010, 1100, 2100}));
}

TEST_F(Clip, NarrowingByNoRectangleIsRefused) {
    GRect before = {9, 9, 9, 9};
    EXPECT_EQ(GDInceptClipRect(handle.get(), nullptr, &before), 0);
    EXPECT_EQ(before, (GRect{9, 9, 9, 9}));
    EXPECT_EQ(clip(), kWhole);
}

TEST_F(Clip, NarrowingToNothingIsRefused) {
    set({10, 10, 20, 20});
    for (const GRect& rect :
         {GRect{30, 30, 40, 40}, GRect{700, 0, 800, 9}, GRect{15, 15, 12, 18}}) {
        GRect before = {9, 9, 9, 9};
        EXPECT_EQ(GDInceptClipRect(handle.get(), &rect, &before), 0);
        EXPECT_EQ(before, (GRect{9, 9, 9, 9}));
        EXPECT_EQ(clip(), (GRect{10, 10, 20, 20}));
    }
}

TEST_F(Clip, OneRecordMayBeGivenForBothRectangles) {
    set({10, 10, 100, 100});
    GRect rect = {50, 50, 60, 60};
    EXPECT_EQ(GDInceptClipRect(handle.get(), &rect, &rect), 1);
    EXPECT_EQ(clip(), (GRect{50, 50, 60, 60}));
    EXPECT_EQ(rect, (GRect{10, 10, 100, 100}));
}

TEST_F(Clip, TheClipItselfMayBeGiven) {
    set({10, 10, 100, 100});
    setOrigin(5, 5);
    EXPECT_NE(GDSetClipRect(handle.get(), display->drawable), 0);
    EXPECT_EQ(clip(), (GRect{5, 5, 95, 95}));
}

TEST_F(Clip, ASurfaceWithoutOneCannotBeClipped) {
    display->drawable = nullptr;
    EXPECT_EQ(set({1, 1, 5, 5}), 0);
    EXPECT_EQ(GDSetClipRect(handle.get(), nullptr), 0);
    const GRect rect = {1, 1, 5, 5};
    EXPECT_EQ(GDInceptClipRect(handle.get(), &rect, nullptr), 0);
    const GRect none = get();
    EXPECT_GT(none.left, none.right);
}

TEST_F(Clip, AnApplicationPointReachesItsPixelInLocalMode) {
    setOrigin(100, 50);
    const GVram* const surface = attach(handle, makeSurface(640, 480, 16));
    setOrigin(100, 50);
    GDSetPenColor(handle.get(), 0x7FFF);
    GDSetPixel(handle.get(), 130, 70);
    EXPECT_EQ(surface->pixels[25660], 0xFF);
    EXPECT_EQ(surface->pixels[25661], 0x7F);
}

TEST_F(Clip, AnApplicationPointReachesItsPixelInVirtualMode) {
    const GVram* const surface = attach(handle, makeSurface(640, 480, 16));
    enterVirtualMode(kThousand);
    GDSetPenColor(handle.get(), 0x7FFF);
    GDSetPixel(handle.get(), 500, 250);
    EXPECT_EQ(surface->pixels[154240], 0xFF);
    EXPECT_EQ(surface->pixels[154241], 0x7F);
}

TEST_F(Clip, StaysInsideTheViewWhateverIsAsked) {
    Random random(testSeed());
    const auto any = [&] { return random.coordinate(-100, 800); };
    for (int round = 0; round < 50000; ++round) {
        handle->modeFlags = random.oneIn(2) ? G_FLAG_VIRTUAL : 0;
        handle->localOrigin = {any(), any()};
        handle->virtualRect = {any(), any(), any(), any()};
        const GRect rect = {any(), any(), any(), any()};
        GRect mapped = rect;
        GRMapToScreenRect(handle.get(), &mapped);
        const GRect before = clip();
        const bool narrows = random.oneIn(2);
        const GRect limit = narrows ? before : kWhole;
        const GRect expected = {std::max({mapped.left, limit.left, kWhole.left}),
                                std::max({mapped.top, limit.top, kWhole.top}),
                                std::min({mapped.right, limit.right, kWhole.right}),
                                std::min({mapped.bottom, limit.bottom, kWhole.bottom})};
        const bool possible = expected.left <= expected.right && expected.top <= expected.bottom;
        const int32_t done = narrows ? GDInceptClipRect(handle.get(), &rect, nullptr) : set(rect);
        ASSERT_EQ(done != 0, possible) << rect << " mapped to " << mapped;
        ASSERT_EQ(clip(), possible ? expected : before) << rect << " mapped to " << mapped;
    }
}

} // namespace
