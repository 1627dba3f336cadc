// The stack of saved clip rectangles.
#include "draw/draw_test.h"

#include <gtest/gtest.h>

using namespace quarlo::test;

namespace {

class ClipStack : public HandleTest {
  protected:
    ClipStack() { GDInitBackupClipBuf(); }
    ~ClipStack() override { GDInitBackupClipBuf(); }

    int32_t push(const GRect& rect) { return GDPushClipRect(handle.get(), &rect); }
    int32_t pop() { return GDPopClipRect(handle.get()); }

    void setOrigin(int16_t x, int16_t y) {
        const GPoint origin = {x, y};
        GDSetLocalOrigin(handle.get(), &origin);
    }

    /// Rectangle `n` of a series.
    static GRect numbered(int n) {
        const auto edge = static_cast<int16_t>(n);
        return {edge, edge, 100, 100};
    }

    const GRect& clip() { return *display->drawable; }
};

constexpr GRect kWhole = {0, 0, 639, 479};

TEST_F(ClipStack, APopRestoresWhatAPushSaved) {
    EXPECT_NE(push({10, 10, 20, 20}), 0);
    EXPECT_EQ(clip(), (GRect{10, 10, 20, 20}));
    EXPECT_NE(push({0, 0, 5, 5}), 0);
    EXPECT_EQ(clip(), (GRect{0, 0, 5, 5}));
    EXPECT_NE(pop(), 0);
    EXPECT_EQ(clip(), (GRect{10, 10, 20, 20}));
    EXPECT_NE(pop(), 0);
    EXPECT_EQ(clip(), kWhole);
}

TEST_F(ClipStack, APushOfNoRectangleTakesTheWholeView) {
    push({10, 10, 20, 20});
    EXPECT_NE(GDPushClipRect(handle.get(), nullptr), 0);
    EXPECT_EQ(clip(), kWhole);
    pop();
    EXPECT_EQ(clip(), (GRect{10, 10, 20, 20}));
}

TEST_F(ClipStack, APopOfAnEmptyStackDoesNothing) {
    const GRect rect = {10, 10, 20, 20};
    GDSetClipRect(handle.get(), &rect);
    EXPECT_EQ(pop(), 0);
    EXPECT_EQ(clip(), rect);
    push({1, 1, 2, 2});
    pop();
    EXPECT_EQ(pop(), 0);
    EXPECT_EQ(clip(), rect);
}

TEST_F(ClipStack, Holds22Rectangles) {
    for (int n = 1; n <= 22; ++n) {
        EXPECT_NE(push(numbered(n)), 0);
        EXPECT_EQ(clip(), numbered(n));
    }
    EXPECT_EQ(push(numbered(23)), 22);
    EXPECT_EQ(clip(), numbered(22));
    EXPECT_EQ(GDPushClipRect(handle.get(), nullptr), 22);
    EXPECT_EQ(clip(), numbered(22));
    for (int n = 21; n >= 1; --n) {
        EXPECT_NE(pop(), 0);
        EXPECT_EQ(clip(), numbered(n));
    }
    EXPECT_NE(pop(), 0);
    EXPECT_EQ(clip(), kWhole);
    EXPECT_EQ(pop(), 0);
}

TEST_F(ClipStack, ARefusedPushStillNeedsItsPop) {
    push({10, 10, 20, 20});
    EXPECT_EQ(push({700, 0, 800, 10}), 0);
    EXPECT_EQ(clip(), (GRect{10, 10, 20, 20}));
    EXPECT_NE(pop(), 0);
    EXPECT_EQ(clip(), (GRect{10, 10, 20, 20}));
    EXPECT_NE(pop(), 0);
    EXPECT_EQ(clip(), kWhole);
}

TEST_F(ClipStack, APopCountsEvenWhenTheRestoreIsRefused) {
    push({10, 10, 20, 20});
    setOrigin(1000, 0);
    EXPECT_EQ(pop(), 0);
    EXPECT_EQ(clip(), (GRect{10, 10, 20, 20}));
    setOrigin(0, 0);
    EXPECT_EQ(pop(), 0) << "nothing is saved any more";
    EXPECT_EQ(clip(), (GRect{10, 10, 20, 20}));
}

TEST_F(ClipStack, APopWithAnotherOriginRestoresAShiftedClip) {
    const GRect rect = {100, 100, 200, 200};
    GDSetClipRect(handle.get(), &rect);
    push({0, 0, 5, 5});
    setOrigin(30, 40);
    EXPECT_NE(pop(), 0);
    EXPECT_EQ(clip(), (GRect{70, 60, 170, 160}));
}

TEST_F(ClipStack, IsOneForAllHandles) {
    const Handle other = openHandle();
    const GVram* const surface = attach(other, makeSurface(30, 20, 8));
    push({10, 10, 20, 20});
    const GRect small = {1, 1, 2, 2};
    EXPECT_NE(GDPushClipRect(other.get(), &small), 0);
    EXPECT_NE(pop(), 0) << "what the other handle saved";
    EXPECT_EQ(clip(), (GRect{0, 0, 29, 19}));
    EXPECT_NE(GDPopClipRect(other.get()), 0);
    EXPECT_EQ(*surface->drawable, (GRect{0, 0, 29, 19}));
}

TEST_F(ClipStack, IsEmptiedAtOnce) {
    push({10, 10, 20, 20});
    push({10, 10, 15, 15});
    GDInitBackupClipBuf();
    EXPECT_EQ(pop(), 0);
    EXPECT_EQ(clip(), (GRect{10, 10, 15, 15}));
    EXPECT_NE(push({0, 0, 1, 1}), 0);
    EXPECT_NE(pop(), 0);
    EXPECT_EQ(clip(), (GRect{10, 10, 15, 15}));
}

TEST_F(ClipStack, SavesTheRoundedRectangleOfVirtualMode) {
    const GRect frame = {0, 0, 999, 999};
    GDSetVirtualMode(handle.get());
    GDSetVirtualRect(handle.get(), &frame);
    const GRect rect = {1, 0, 500, 250};
    GDSetClipRect(handle.get(), &rect);
    ASSERT_EQ(clip(), (GRect{1, 0, 320, 120}));
    push({0, 0, 10, 10});
    EXPECT_NE(pop(), 0);
    // Column 1 is saved as 2, which maps to (2 * 639 + 499) / 999 = 1 again.
    EXPECT_EQ(clip(), (GRect{1, 0, 320, 120}));
}

TEST_F(ClipStack, ASurfaceWithoutAClipIsSavedAsNowhere) {
    display->drawable = nullptr;
    EXPECT_EQ(push({1, 1, 5, 5}), 0);
    EXPECT_EQ(pop(), 0);
}

} // namespace
