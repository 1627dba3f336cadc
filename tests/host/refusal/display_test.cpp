// Displays: surfaces that there are not, arguments out of range.
#include "refusing.h"
#include "support/guarded_surface.h"

#include <gtest/gtest.h>

#include <quarlo/pixel_ops.h>

namespace {

using namespace gpi::test;
using quarlo::test::GuardedMemory;

class DisplayRefuses : public testing::Test {
  protected:
    DisplayRefuses() : display_(*StartedPlatform::surface()) {
        foreign_ = display_;
        foreign_.pixels = pixels_.data();
    }
    /// Whatever was refused has drawn nothing.
    ~DisplayRefuses() override {
        for (int y = 0; y < display_.height; ++y) {
            for (int x = 0; x < display_.width; ++x) {
                if (StartedPlatform::pixel(display_, x, y) != 0) {
                    ADD_FAILURE() << "drew at " << x << ", " << y;
                    return;
                }
            }
        }
    }

    StartedPlatform platform_{{"QUARLO_WIDTH", "40"}, {"QUARLO_HEIGHT", "30"}};
    GVram& display_;
    GuardedMemory pixels_{40 * 30 * 2};
    GVram foreign_; ///< a record like the display's that is none of the platform's
    const GRect rect_{0, 0, 5, 5};
    const uint8_t pattern_[8] = {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
};

TEST_F(DisplayRefuses, SurfacesThatThereAreNot) {
    const auto get = refuser<GPIGetSurface>(GPI_SERVICE_GET_SURFACE);
    for (const int32_t number : {INT32_MIN, -1, 4, INT32_MAX}) {
        EXPECT_EQ(get(nullptr, number), nullptr) << number;
    }
    const auto release = refuser<GPIReleaseSurface>(GPI_SERVICE_RELEASE_SURFACE);
    EXPECT_EQ(release(nullptr, nullptr), 0);
    EXPECT_EQ(release(nullptr, &foreign_), 0);
    const auto change = refuser<GPIChangeVirtualSurface>(GPI_SERVICE_CHANGE_VIRTUAL_SURFACE);
    EXPECT_EQ(change(4, 0), 0U);
    EXPECT_EQ(change(UINTPTR_MAX, 0), 0U);
}

TEST_F(DisplayRefuses, ToDrawOnForeignSurfaces) {
    for (GVram* const surface : {static_cast<GVram*>(nullptr), &foreign_}) {
        EXPECT_EQ(refuser<GPISetPixel>(5)(nullptr, surface, 0, 0, 1, 0), 0);
        EXPECT_EQ(refuser<GPISpan>(6)(nullptr, surface, 0, 0, 1, 0, 5), 0);
        EXPECT_EQ(refuser<GPICoveragePixel>(43)(nullptr, surface, 0, 0, 1, 0, 15), 0);
        EXPECT_EQ(refuser<GPIDrawRect>(67)(nullptr, surface, &rect_, 1, 0), 0);
        EXPECT_EQ(refuser<GPIFillRect>(68)(nullptr, surface, &rect_, 1, 0), 0);
        EXPECT_EQ(refuser<GPIFillPatternNotice>(69)(nullptr, surface, 1, 0, pattern_), 0);
        EXPECT_EQ(refuser<GPIPatternRect>(70)(nullptr, surface, &rect_, 1, 0, 0, pattern_), 0);
        EXPECT_EQ(refuser<GPIBlockTransfer>(8)(nullptr, &display_, 0, 0, 5, 5, surface, 1, 1, 0),
                  0);
    }
    EXPECT_EQ(refuser<GPIBlockTransfer>(8)(nullptr, nullptr, 0, 0, 5, 5, &display_, 1, 1, 0), 0);
    EXPECT_EQ(pixels_.data()[0], GuardedMemory::kFresh);
}

TEST_F(DisplayRefuses, RectanglesAndPatternsThatThereAreNot) {
    EXPECT_EQ(refuser<GPIDrawRect>(67)(nullptr, &display_, nullptr, 1, 0), 0);
    EXPECT_EQ(refuser<GPIFillRect>(68)(nullptr, &display_, nullptr, 1, 0), 0);
    EXPECT_EQ(refuser<GPIFillPatternNotice>(69)(nullptr, &display_, 1, 0, nullptr), 0);
    EXPECT_EQ(refuser<GPIPatternRect>(70)(nullptr, &display_, nullptr, 1, 1, 0, pattern_), 0);
    EXPECT_EQ(refuser<GPIPatternRect>(70)(nullptr, &display_, &rect_, 1, 1, 0, nullptr), 0);
}

TEST_F(DisplayRefuses, DrawingModesThatThereAreNot) {
    for (const int32_t mode : {INT32_MIN, -1, 4, 32, INT32_MAX}) {
        EXPECT_EQ(refuser<GPISetPixel>(5)(nullptr, &display_, 0, 0, 1, mode), 0) << mode;
        EXPECT_EQ(refuser<GPISpan>(6)(nullptr, &display_, 0, 0, 1, mode, 5), 0) << mode;
        EXPECT_EQ(refuser<GPICoveragePixel>(43)(nullptr, &display_, 0, 0, 1, mode, 15), 0) << mode;
        EXPECT_EQ(refuser<GPIDrawRect>(67)(nullptr, &display_, &rect_, 1, mode), 0) << mode;
        EXPECT_EQ(refuser<GPIFillRect>(68)(nullptr, &display_, &rect_, 1, mode), 0) << mode;
        EXPECT_EQ(refuser<GPIPatternRect>(70)(nullptr, &display_, &rect_, 1, 1, mode, pattern_), 0)
            << mode;
        EXPECT_EQ(
            refuser<GPIBlockTransfer>(8)(nullptr, &display_, 0, 0, 5, 5, &display_, 1, 1, mode), 0)
            << mode;
    }
}

TEST_F(DisplayRefuses, ToDrawOutside) {
    constexpr int16_t kOutside[] = {INT16_MIN, -1, 40, INT16_MAX};
    for (const int16_t at : kOutside) {
        refuser<GPISetPixel>(5)(nullptr, &display_, at, at, 1, 0);
        refuser<GPISpan>(6)(nullptr, &display_, 0, at, 1, 0, 5);
        refuser<GPISpan>(6)(nullptr, &display_, 40, 0, 1, 0, at);
        refuser<GPICoveragePixel>(43)(nullptr, &display_, at, at, 1, 0, 15);
        const GRect rect{at, at, at, at};
        refuser<GPIFillRect>(68)(nullptr, &display_, &rect, 1, 0);
        refuser<GPIPatternRect>(70)(nullptr, &display_, &rect, 1, 1, 0, pattern_);
    }
}

TEST_F(DisplayRefuses, ToShowNothing) {
    const auto flush = refuser<GPIFlush>(GPI_SERVICE_FLUSH);
    const auto flushForce = refuser<GPIFlushForce>(GPI_SERVICE_FLUSH_FORCE);
    for (const auto& show : {flush, flushForce}) {
        EXPECT_EQ(show(nullptr, 0, 0, 0, 5), 0);
        EXPECT_EQ(show(nullptr, 0, 0, 5, -1), 0);
        EXPECT_EQ(show(nullptr, 40, 0, 5, 5), 0);
        EXPECT_EQ(show(nullptr, -5, -5, 5, 5), 0);
    }
}

TEST_F(DisplayRefuses, PaletteEntriesOfADirectDisplay) {
    uint32_t color = 0;
    EXPECT_EQ(refuser<GPISetPalette>(10)(nullptr, 0, 1, &color), 0U);
    EXPECT_EQ(refuser<GPIGetPalette>(11)(nullptr, 0, 1, &color), 0U);
}

TEST_F(DisplayRefuses, RegionsThatLeaveNothingOrWereNotSet) {
    const auto set = refuser<GPISetDrawableRegion>(GPI_SERVICE_SET_DRAWABLE_REGION);
    const auto remove = refuser<GPIRemoveDrawableRegion>(GPI_SERVICE_REMOVE_DRAWABLE_REGION);
    const GRect outside{50, 50, 60, 60};
    const GRect inverted{5, 5, 4, 4};
    EXPECT_EQ(set(nullptr, nullptr), 0);
    EXPECT_EQ(set(nullptr, &outside), 0);
    EXPECT_EQ(set(nullptr, &inverted), 0);
    EXPECT_EQ(remove(nullptr, nullptr), 0);
    EXPECT_EQ(remove(nullptr, &rect_), 0);
}

TEST_F(DisplayRefuses, FactorsAndPositionsOutOfRange) {
    for (const int32_t factor : {INT32_MIN, -1, 0, 17, INT32_MAX}) {
        EXPECT_EQ(refuser<GPISetZoomScale>(55)(nullptr, factor, 1), 0U) << factor;
        EXPECT_EQ(refuser<GPISetZoomScale>(55)(nullptr, 1, factor), 0U) << factor;
    }
    for (const int32_t position : {INT32_MIN, -1, 40, INT32_MAX}) {
        EXPECT_EQ(refuser<GPISetScrollPos>(56)(nullptr, position, 0), 0U) << position;
        EXPECT_EQ(refuser<GPISetScrollPos>(56)(nullptr, 0, position), 0U) << position;
    }
}

TEST(PaletteDisplayRefuses, EntriesThatThereAreNot) {
    const StartedPlatform platform{{"QUARLO_FORMAT", "8"}};
    uint32_t colors[300] = {};
    const auto set = refuser<GPISetPalette>(GPI_SERVICE_SET_PALETTE);
    const auto get = refuser<GPIGetPalette>(GPI_SERVICE_GET_PALETTE);
    struct {
        int32_t first;
        int32_t count;
    } const wrong[] = {{-1, 1}, {256, 1},       {255, 2},       {0, 257},  {0, 0},
                       {0, -1}, {INT32_MAX, 1}, {1, INT32_MAX}, {-1, 257}, {INT32_MIN, 1}};
    for (const auto& [first, count] : wrong) {
        EXPECT_EQ(set(nullptr, first, count, colors), 0U) << first << ", " << count;
        EXPECT_EQ(get(nullptr, first, count, colors), 0U) << first << ", " << count;
    }
    EXPECT_EQ(set(nullptr, 0, 1, nullptr), 0U);
    EXPECT_EQ(get(nullptr, 0, 1, nullptr), 0U);
}

} // namespace
