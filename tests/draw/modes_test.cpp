// Drawing, text and coordinate modes, and the local origin.
#include "draw/draw_test.h"

#include "raster/pixel_ops.h"

#include <gtest/gtest.h>

using namespace quarlo::test;

namespace {

using Modes = HandleTest;

TEST_F(Modes, ADrawingModeIsCutTo16BitsAndNotChecked) {
    for (const int32_t mode : {0, 1, 2, 3, 4, -1, 0x7FFF, 0x12343, -0x10000}) {
        GDSetDrawingMode(handle.get(), mode);
        EXPECT_EQ(handle->drawingMode, static_cast<int16_t>(mode)) << mode;
    }
}

TEST_F(Modes, ADrawingModeSelectsTheOperations) {
    attach(handle, makeSurface(4, 4, 16));
    const GPixelOps* const copy = handle->pixelOps;
    GDSetDrawingMode(handle.get(), G_MODE_XOR);
    EXPECT_NE(handle->pixelOps, copy);
    EXPECT_NE(handle->pixelOps->setPixel, copy->setPixel);
    GDSetDrawingMode(handle.get(), 4);
    EXPECT_EQ(handle->pixelOps->setPixel, nullptr);
    GDSetDrawingMode(handle.get(), G_MODE_COPY);
    EXPECT_EQ(handle->pixelOps, copy);
}

TEST_F(Modes, ADrawingModeAsksADeviceAnew) {
    platform.remove({5, 67});
    GDSetDrawingMode(handle.get(), G_MODE_COPY);
    EXPECT_EQ(handle->pixelOps, &quarlo::deviceOps);
    EXPECT_EQ(handle->pixelOps->setPixel, nullptr);
    EXPECT_EQ(handle->pixelOps->drawRect, nullptr);
    EXPECT_NE(handle->pixelOps->fillRect, nullptr);
}

TEST_F(Modes, ATextModeIsKept) {
    GDSetTextMode(handle.get(), G_TEXT_TRANSPARENT);
    EXPECT_EQ(handle->textMode, G_TEXT_TRANSPARENT);
    GDSetTextMode(handle.get(), 0x1FFFF);
    EXPECT_EQ(handle->textMode, -1);
}

TEST_F(Modes, TextAlignmentIsNotKept) {
    const auto before = bytesOf(*handle);
    EXPECT_EQ(GDSetTextAlign(handle.get(), 2), handle.get());
    EXPECT_EQ(GDSetTextAlign(nullptr, 2), nullptr);
    EXPECT_EQ(bytesOf(*handle), before);
}

TEST_F(Modes, AHandleStartsInLocalMode) {
    EXPECT_EQ(handle->modeFlags, 0);
}

TEST_F(Modes, CoordinateModesAreOneBit) {
    handle->modeFlags = 0xFFFF;
    GDSetLocalMode(handle.get());
    EXPECT_EQ(handle->modeFlags, 0xFFFE);
    handle->modeFlags = 0x8000;
    GDSetVirtualMode(handle.get());
    EXPECT_EQ(handle->modeFlags, 0x8001);
    GDSetVirtualMode(handle.get());
    EXPECT_EQ(handle->modeFlags, 0x8001);
}

TEST_F(Modes, TheCoordinateModeStaysWithANewSurface) {
    GDSetVirtualMode(handle.get());
    attach(handle, makeSurface(4, 4, 16));
    EXPECT_EQ(handle->modeFlags, G_FLAG_VIRTUAL);
}

TEST_F(Modes, AVirtualRectangleIsNeitherCheckedNorSorted) {
    const GRect rect = {100, 32767, -32768, -5};
    GDSetVirtualRect(handle.get(), &rect);
    EXPECT_EQ(handle->virtualRect, rect);
}

TEST_F(Modes, TheLocalOriginIsSetReadAndMoved) {
    const GPoint origin = {100, -50};
    GDSetLocalOrigin(handle.get(), &origin);
    GPoint read{};
    GDGetLocalOrigin(handle.get(), &read);
    EXPECT_EQ(read, origin);
    const GPoint delta = {-1, 7};
    GDOffsetLocalOrigin(handle.get(), &delta);
    GDGetLocalOrigin(handle.get(), &read);
    EXPECT_EQ(read, (GPoint{99, -43}));
}

TEST_F(Modes, TheLocalOriginWrapsAt16Bits) {
    const GPoint origin = {32767, -32768};
    GDSetLocalOrigin(handle.get(), &origin);
    const GPoint delta = {1, -1};
    GDOffsetLocalOrigin(handle.get(), &delta);
    EXPECT_EQ(handle->localOrigin, (GPoint{-32768, 32767}));
}

} // namespace
