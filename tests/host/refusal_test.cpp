// Every display service before the platform is started: 0 or null, and nothing happens.
#include "support/started_platform.h"

#include <gtest/gtest.h>

namespace {

using namespace gpi::test;

TEST(NotStarted, RefusesToDraw) {
    GVram surface{};
    const GRect rect{0, 0, 5, 5};
    const uint8_t pattern[8] = {};
    EXPECT_EQ(service<GPIGetSurface>(3)(nullptr, 0), nullptr);
    EXPECT_EQ(service<GPIReleaseSurface>(4)(nullptr, &surface), 0);
    EXPECT_EQ(service<GPISetPixel>(5)(nullptr, &surface, 0, 0, 1, 0), 0);
    EXPECT_EQ(service<GPISpan>(6)(nullptr, &surface, 0, 0, 1, 0, 5), 0);
    EXPECT_EQ(service<GPINextPixel>(7)(), 0);
    EXPECT_EQ(service<GPIBlockTransfer>(8)(nullptr, &surface, 0, 0, 5, 5, &surface, 1, 1, 0), 0);
    EXPECT_EQ(service<GPICoveragePixel>(43)(nullptr, &surface, 0, 0, 1, 0, 15), 0);
    EXPECT_EQ(service<GPIDrawRect>(67)(nullptr, &surface, &rect, 1, 0), 0);
    EXPECT_EQ(service<GPIFillRect>(68)(nullptr, &surface, &rect, 1, 0), 0);
    EXPECT_EQ(service<GPIFillPatternNotice>(69)(nullptr, &surface, 1, 0, pattern), 0);
    EXPECT_EQ(service<GPIPatternRect>(70)(nullptr, &surface, &rect, 1, 0, 0, pattern), 0);
}

TEST(NotStarted, RefusesToShow) {
    uint32_t color = 0;
    const GRect rect{0, 0, 5, 5};
    EXPECT_EQ(service<GPIFlush>(9)(nullptr, 0, 0, 5, 5), 0);
    EXPECT_EQ(service<GPIFlushForce>(58)(nullptr, 0, 0, 5, 5), 0);
    EXPECT_EQ(service<GPISetPalette>(10)(nullptr, 0, 1, &color), 0U);
    EXPECT_EQ(service<GPIGetPalette>(11)(nullptr, 0, 1, &color), 0U);
    EXPECT_EQ(service<GPISetZoomScale>(55)(nullptr, 1, 1), 0U);
    EXPECT_EQ(service<GPISetScrollPos>(56)(nullptr, 0, 0), 0U);
    EXPECT_EQ(service<GPISetDrawableRegion>(59)(nullptr, &rect), 0);
    EXPECT_EQ(service<GPIRemoveDrawableRegion>(60)(nullptr, &rect), 0);
    EXPECT_EQ(service<GPIChangeVirtualSurface>(119)(0, 0), 0U);
}

} // namespace
