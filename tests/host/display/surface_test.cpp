// Device surfaces: pages, palette, regions, view.
#include "support/started_platform.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace gpi::test;

const auto getSurface = service<GPIGetSurface>(GPI_SERVICE_GET_SURFACE);
const auto releaseSurface = service<GPIReleaseSurface>(GPI_SERVICE_RELEASE_SURFACE);
const auto setPalette = service<GPISetPalette>(GPI_SERVICE_SET_PALETTE);
const auto getPalette = service<GPIGetPalette>(GPI_SERVICE_GET_PALETTE);
const auto setRegion = service<GPISetDrawableRegion>(GPI_SERVICE_SET_DRAWABLE_REGION);
const auto removeRegion = service<GPIRemoveDrawableRegion>(GPI_SERVICE_REMOVE_DRAWABLE_REGION);
const auto setZoom = service<GPISetZoomScale>(GPI_SERVICE_SET_ZOOM_SCALE);
const auto setScroll = service<GPISetScrollPos>(GPI_SERVICE_SET_SCROLL_POS);
const auto showPage = service<GPIChangeVirtualSurface>(GPI_SERVICE_CHANGE_VIRTUAL_SURFACE);
const auto fillRect = service<GPIFillRect>(GPI_SERVICE_FILL_RECT);

using Corners = std::vector<int>;

Corners corners(const GRect& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

struct Expected {
    const char* format;
    int bits;
    int colorType;
    uint32_t red;
    uint32_t green;
    uint32_t blue;
};

TEST(Surface, HasTheRecordOfItsFormat) {
    const Expected formats[] = {
        {"8", 8, G_COLOR_PALETTE, 0xFF0000, 0xFF00, 0xFF},
        {"555", 16, G_COLOR_DIRECT, 0x7C00, 0x3E0, 0x1F},
        {"565", 16, G_COLOR_DIRECT, 0xF800, 0x7E0, 0x1F},
        {"24", 24, G_COLOR_DIRECT, 0xFF, 0xFF00, 0xFF0000},
    };
    for (const Expected& expected : formats) {
        const StartedPlatform platform{
            {"QUARLO_FORMAT", expected.format}, {"QUARLO_WIDTH", "33"}, {"QUARLO_HEIGHT", "17"}};
        const GVram* const surface = getSurface(nullptr, 0);
        ASSERT_NE(surface, nullptr);
        EXPECT_EQ(surface->id, 0);
        EXPECT_EQ(surface->width, 33);
        EXPECT_EQ(surface->height, 17);
        EXPECT_EQ(surface->bitsPerPixel, expected.bits);
        EXPECT_EQ(surface->bytesPerLine, 33 * expected.bits / 8);
        EXPECT_EQ(surface->colorType, expected.colorType);
        EXPECT_EQ(surface->redMask, expected.red);
        EXPECT_EQ(surface->greenMask, expected.green);
        EXPECT_EQ(surface->blueMask, expected.blue);
        EXPECT_EQ(surface->paletteCount, expected.bits == 8 ? 256 : 0);
        EXPECT_EQ(surface->palette != nullptr, expected.bits == 8);
        EXPECT_EQ(corners(surface->bounds), (Corners{0, 0, 32, 16}));
        EXPECT_EQ(corners(*surface->drawable), (Corners{0, 0, 32, 16}));
        EXPECT_NE(surface->drawable, &surface->bounds);
    }
}

TEST(SurfaceDeathTest, HasNothingBehindItsLastPixel) {
    const StartedPlatform platform{{"QUARLO_WIDTH", "40"}, {"QUARLO_HEIGHT", "32"}};
    const GVram* const page = getSurface(nullptr, 0);
    volatile uint8_t* const end = page->pixels + page->height * page->bytesPerLine;
    EXPECT_DEATH(*end = 1, "");
}

TEST(Surface, IsOneOfFourPages) {
    const StartedPlatform platform;
    for (int32_t number = 0; number < 4; ++number) {
        GVram* const page = getSurface(nullptr, number);
        ASSERT_NE(page, nullptr);
        EXPECT_EQ(page->id, number);
        EXPECT_EQ(getSurface(nullptr, number), page);
        EXPECT_EQ(releaseSurface(nullptr, page), 1);
        EXPECT_EQ(getSurface(nullptr, number), page);
    }
    for (const int32_t number : {-1, 4, 65536, INT32_MIN, INT32_MAX}) {
        EXPECT_EQ(getSurface(nullptr, number), nullptr);
    }
}

TEST(Surface, GoesBackOnlyToItsOwner) {
    const StartedPlatform platform;
    GVram other = *getSurface(nullptr, 0);
    EXPECT_EQ(releaseSurface(nullptr, &other), 0);
    EXPECT_EQ(releaseSurface(nullptr, nullptr), 0);
}

TEST(Palette, SpellsColoursAtFirst) {
    const StartedPlatform platform{{"QUARLO_FORMAT", "8"}};
    std::vector<uint32_t> colors(256);
    ASSERT_EQ(getPalette(nullptr, 0, 256, colors.data()), 1U);
    EXPECT_EQ(colors[0], 0U);
    EXPECT_EQ(colors[0b11100000], 0xFF0000U);
    EXPECT_EQ(colors[0b00011100], 0x00FF00U);
    EXPECT_EQ(colors[0b00000011], 0x0000FFU);
    EXPECT_EQ(colors[0xFF], 0xFFFFFFU);
    EXPECT_EQ(colors[0b10010010], 0x9191AAU);
}

TEST(Palette, Changes) {
    const StartedPlatform platform{{"QUARLO_FORMAT", "8"}};
    const uint32_t colors[] = {0x112233, 0xFF445566};
    ASSERT_EQ(setPalette(nullptr, 254, 2, colors), 1U);
    uint32_t read[3] = {};
    ASSERT_EQ(getPalette(nullptr, 253, 3, read), 1U);
    EXPECT_EQ(read[0], 0xFFFF55U);
    EXPECT_EQ(read[1], 0x112233U);
    EXPECT_EQ(read[2], 0x445566U);
    EXPECT_EQ(platform.surface()->palette[255], 0x445566U);
}

TEST(Palette, RefusesWhatItLacks) {
    const StartedPlatform platform{{"QUARLO_FORMAT", "8"}};
    uint32_t colors[2] = {};
    const std::pair<int32_t, int32_t> wrong[] = {{-1, 1},        {256, 1},       {255, 2},
                                                 {0, 0},         {0, -1},        {0, 257},
                                                 {INT32_MIN, 1}, {INT32_MAX, 1}, {1, INT32_MAX}};
    for (const auto& [first, count] : wrong) {
        EXPECT_EQ(setPalette(nullptr, first, count, colors), 0U) << first << ' ' << count;
        EXPECT_EQ(getPalette(nullptr, first, count, colors), 0U) << first << ' ' << count;
    }
    EXPECT_EQ(setPalette(nullptr, 0, 1, nullptr), 0U);
    EXPECT_EQ(getPalette(nullptr, 0, 1, nullptr), 0U);
}

TEST(Palette, IsMissingInDirectFormats) {
    const StartedPlatform platform;
    uint32_t color = 0;
    EXPECT_EQ(setPalette(nullptr, 0, 1, &color), 0U);
    EXPECT_EQ(getPalette(nullptr, 0, 1, &color), 0U);
}

TEST(Region, ConfinesDrawing) {
    const StartedPlatform platform{{"QUARLO_WIDTH", "10"}, {"QUARLO_HEIGHT", "4"}};
    GVram* const surface = platform.surface();
    const GRect region{2, 1, 20, 2};
    ASSERT_EQ(setRegion(nullptr, &region), 1);
    EXPECT_EQ(corners(*surface->drawable), (Corners{2, 1, 9, 2}));
    *surface->drawable = surface->bounds; // as a later clip rectangle does
    ASSERT_EQ(fillRect(nullptr, surface, &surface->bounds, 1, G_MODE_COPY), 1);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 10; ++x) {
            EXPECT_EQ(platform.pixel(*surface, x, y), x >= 2 && y >= 1 && y <= 2 ? 1U : 0U)
                << x << ' ' << y;
        }
    }
}

TEST(Region, AddsUpAndGoesAgain) {
    const StartedPlatform platform{{"QUARLO_WIDTH", "100"}, {"QUARLO_HEIGHT", "100"}};
    const GRect left{0, 0, 49, 99};
    const GRect upper{0, 0, 99, 49};
    ASSERT_EQ(setRegion(nullptr, &left), 1);
    ASSERT_EQ(setRegion(nullptr, &upper), 1);
    const GRect& clip = *platform.surface()->drawable;
    EXPECT_EQ(corners(clip), (Corners{0, 0, 49, 49}));
    ASSERT_EQ(removeRegion(nullptr, &left), 1);
    EXPECT_EQ(corners(clip), (Corners{0, 0, 99, 49}));
    EXPECT_EQ(removeRegion(nullptr, &left), 0);
    ASSERT_EQ(removeRegion(nullptr, &upper), 1);
    EXPECT_EQ(corners(clip), (Corners{0, 0, 99, 99}));
}

TEST(Region, RefusesWhatLeavesNothing) {
    const StartedPlatform platform{{"QUARLO_WIDTH", "100"}, {"QUARLO_HEIGHT", "100"}};
    const GRect refused[] = {{100, 0, 120, 10}, {-20, -20, -1, -1}, {10, 10, 9, 20}};
    for (const GRect& region : refused) {
        EXPECT_EQ(setRegion(nullptr, &region), 0);
        EXPECT_EQ(removeRegion(nullptr, &region), 0);
    }
    EXPECT_EQ(setRegion(nullptr, nullptr), 0);
    EXPECT_EQ(removeRegion(nullptr, nullptr), 0);
    const GRect left{0, 0, 49, 99};
    const GRect right{50, 0, 99, 99};
    ASSERT_EQ(setRegion(nullptr, &left), 1);
    EXPECT_EQ(setRegion(nullptr, &right), 0);
    EXPECT_EQ(corners(*platform.surface()->drawable), (Corners{0, 0, 49, 99}));
}

TEST(View, TakesFactorsAndPositionsInRange) {
    const StartedPlatform platform{{"QUARLO_WIDTH", "100"}, {"QUARLO_HEIGHT", "80"}};
    EXPECT_EQ(setZoom(nullptr, 1, 1), 1U);
    EXPECT_EQ(setZoom(nullptr, 16, 3), 1U);
    EXPECT_EQ(setScroll(nullptr, 99, 79), 1U);
    EXPECT_EQ(setScroll(nullptr, 0, 0), 1U);
    for (const int32_t factor : {0, -1, 17, INT32_MIN, INT32_MAX}) {
        EXPECT_EQ(setZoom(nullptr, factor, 1), 0U);
        EXPECT_EQ(setZoom(nullptr, 1, factor), 0U);
    }
    EXPECT_EQ(setScroll(nullptr, 100, 0), 0U);
    EXPECT_EQ(setScroll(nullptr, 0, 80), 0U);
    EXPECT_EQ(setScroll(nullptr, -1, 0), 0U);
    EXPECT_EQ(setScroll(nullptr, 0, INT32_MIN), 0U);
}

TEST(Pages, AreShownByNumber) {
    const StartedPlatform platform;
    EXPECT_EQ(showPage(3, 0), 1U);
    EXPECT_EQ(showPage(0, 0), 1U);
    EXPECT_EQ(showPage(4, 0), 0U);
    EXPECT_EQ(showPage(~GWord{0}, 0), 0U);
}

} // namespace
