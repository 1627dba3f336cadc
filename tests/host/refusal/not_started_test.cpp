// Services before the platform is started: they fail, and nothing happens.
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

TEST(NotStarted, RefusesFiles) {
    int32_t error = 0;
    char16_t value[8] = {};
    EXPECT_EQ(service<GPIOpenFile>(48)(u"file", G_OPEN_READ, &error), nullptr);
    EXPECT_EQ(error, G_IO_DEVICE);
    EXPECT_EQ(service<GPICloseFile>(49)(nullptr), G_IO_DEVICE);
    EXPECT_EQ(service<GPIRemoveFile>(121)(u"file", 0), G_IO_DEVICE);
    EXPECT_EQ(service<GPIGetDirectory>(71)(u"/", nullptr, 0), G_IO_DEVICE);
    EXPECT_EQ(service<GPIOpenDataFile>(129)(u"file", G_OPEN_READ, 0, &error), nullptr);
    EXPECT_EQ(error, G_IO_DEVICE);
    EXPECT_EQ(service<GPIRemoveDataFile>(136)(u"file", 0), G_IO_DEVICE);
    EXPECT_EQ(service<GPIGetProfileInt>(53)(u"s", u"k", 5, G_PROFILE_ANY, u"f.ini"), 5);
    EXPECT_EQ(service<GPIGetProfileString>(54)(u"s", u"k", u"d", value, 8, G_PROFILE_ANY, u"f.ini"),
              G_IO_DEVICE);
    EXPECT_EQ(service<GPISetProfileString>(116)(u"s", u"k", u"v", G_PROFILE_USER, u"f.ini"),
              G_IO_DEVICE);
}

TEST(NotStarted, RefusesModulesProgramsAndTheMachine) {
    double value = 0.0;
    char16_t text[8] = {};
    int32_t number = 0;
    EXPECT_EQ(service<GPILoadModule>(45)(u"module", 0), nullptr);
    EXPECT_EQ(service<GPIFreeModule>(46)(nullptr), 0);
    EXPECT_EQ(service<GPIExecute>(117)(u"program", nullptr, nullptr, 0, nullptr), G_IO_DEVICE);
    EXPECT_EQ(service<GPIExit>(118)(1), G_IO_DEVICE);
    EXPECT_EQ(service<GPIGetNCValue>(201)(1, G_NC_FEED, 0, 0, &value), G_NC_OFFLINE);
    EXPECT_EQ(service<GPISetNCValue>(200)(1, G_NC_OVERRIDE, 0, 0, &value), G_NC_OFFLINE);
    EXPECT_EQ(service<GPIGetNCString>(203)(1, G_NC_CONTROL_NAME, 0, text, 8), G_NC_OFFLINE);
    EXPECT_EQ(service<GPISetNCString>(202)(1, G_NC_MANUAL_BLOCK, 0, u"G0"), G_NC_OFFLINE);
    EXPECT_EQ(service<GPIIsNCValueUnset>(204)(1, 100), G_NC_OFFLINE);
    EXPECT_EQ(service<GPIGetNCSystemValue>(206)(G_NC_SYSTEM_MODE, &number), G_NC_OFFLINE);
    EXPECT_EQ(service<GPISetNCSystemValue>(205)(G_NC_SYSTEM_MODE, 0), G_NC_OFFLINE);
}

} // namespace
