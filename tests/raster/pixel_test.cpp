#include "raster/random_drawing.h"

using namespace quarlo::test;

namespace {

using Pixel = RasterTest;

/// What a surface's memory would get: the offset of the only byte that is not zero.
size_t offsetOfMark(GuardedSurface& surface) {
    const GuardedMemory& memory = surface.memory();
    const uint8_t* const end = memory.data() + memory.size();
    return static_cast<size_t>(
        std::find_if(memory.data(), end, [](uint8_t byte) { return byte != 0; }) - memory.data());
}

TEST_F(Pixel, IsDrawnInThePenColour) {
    Drawing drawing(4, 3, 16);
    GDSetPenColor(drawing, 0x7C1F);
    EXPECT_EQ(GDSetPixel(drawing, 2, 1), 1);
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"....", //
                       "..p.", //
                       "...."},
                      {{'.', 0}, {'p', 0x7C1F}}));
}

TEST_F(Pixel, IsCombinedByTheDrawingMode) {
    Drawing drawing(1, 1);
    setPixelAt(*drawing.surface(), 0, 0, 0x0F);
    GDSetPenColor(drawing, 0x3C);
    GDSetDrawingMode(drawing, G_MODE_XOR);
    GDSetPixel(drawing, 0, 0);
    EXPECT_EQ(pixelAt(*drawing.surface(), 0, 0), 0x33U);
    GDSetPixel(drawing, 0, 0);
    EXPECT_EQ(pixelAt(*drawing.surface(), 0, 0), 0x0FU);
}

TEST_F(Pixel, WithoutPenColourIsNotDrawnAndLeavesThePen) {
    Drawing drawing(2, 2);
    GDMoveTo(drawing, 9, 8);
    GDSetPenColor(drawing, G_NO_COLOR);
    EXPECT_EQ(GDSetPixel(drawing, 1, 1), -1);
    EXPECT_TRUE(shows(*drawing.surface(), {"..", ".."}));
    EXPECT_EQ(drawing->penPos.x, 9);
    EXPECT_EQ(drawing->penPos.y, 8);
}

TEST_F(Pixel, MovesThePenWhereverItLies) {
    Drawing drawing(2, 2);
    GDSetPixel(drawing, 1, 0);
    EXPECT_EQ(drawing->penPos.x, 1);
    EXPECT_EQ(drawing->penPos.y, 0);
    GDSetPixel(drawing, -300, 5000);
    EXPECT_EQ(drawing->penPos.x, -300);
    EXPECT_EQ(drawing->penPos.y, 5000);
}

TEST_F(Pixel, PenPositionIsInApplicationCoordinates) {
    Drawing drawing(4, 4);
    const GPoint origin{10, 20};
    GDSetLocalOrigin(drawing, &origin);
    GDSetPixel(drawing, 11, 22);
    EXPECT_EQ(drawing->penPos.x, 11);
    EXPECT_EQ(drawing->penPos.y, 22);
    EXPECT_EQ(pixelAt(*drawing.surface(), 1, 2), 1U);
}

TEST_F(Pixel, LiesAtRowTimesBytesPerLinePlusColumnTimesBytes) {
    Drawing drawing(640, 480, 16);
    const GPoint origin{100, 50};
    GDSetLocalOrigin(drawing, &origin);
    GDSetPixel(drawing, 130, 70);
    EXPECT_EQ(offsetOfMark(drawing.surface()), 25660U);
}

TEST_F(Pixel, InVirtualModeIsScaledOntoTheSurface) {
    Drawing drawing(640, 480, 16);
    const GRect frame{0, 0, 999, 999};
    GDSetVirtualRect(drawing, &frame);
    GDSetVirtualMode(drawing);
    GDSetPixel(drawing, 500, 250);
    EXPECT_EQ(offsetOfMark(drawing.surface()), 154240U);
    EXPECT_EQ(GDGetPixel(drawing, 500, 250), 1U);
}

TEST_F(Pixel, OutsideTheSurfaceIsNotDrawn) {
    Drawing drawing(3, 2);
    for (const auto& [x, y] :
         {std::pair{-1, 0}, {0, -1}, {3, 0}, {0, 2}, {4, 1}, {1, 3}, {-32768, 0}, {0, 32767}}) {
        EXPECT_EQ(GDSetPixel(drawing, static_cast<int16_t>(x), static_cast<int16_t>(y)), 0);
        EXPECT_EQ(GDGetPixel(drawing, static_cast<int16_t>(x), static_cast<int16_t>(y)),
                  G_NO_COLOR);
    }
    EXPECT_TRUE(shows(*drawing.surface(), {"...", "..."}));
}

TEST_F(Pixel, OutsideTheClipRectangleIsNeitherDrawnNorRead) {
    Drawing drawing(4, 4);
    setPixelAt(*drawing.surface(), 0, 0, 5);
    setClip(drawing, 1, 1, 2, 2);
    for (int16_t y = 0; y < 4; ++y) {
        for (int16_t x = 0; x < 4; ++x) {
            GDSetPixel(drawing, x, y);
        }
    }
    EXPECT_TRUE(shows(*drawing.surface(),
                      {"5...", //
                       ".##.", //
                       ".##.", //
                       "...."},
                      {{'.', 0}, {'#', 1}, {'5', 5}}));
    EXPECT_EQ(GDGetPixel(drawing, 0, 0), G_NO_COLOR);
    EXPECT_EQ(GDGetPixel(drawing, 1, 1), 1U);
}

TEST_F(Pixel, IsReadInEveryFormat) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(3, 3, bits);
        const uint32_t pixel = 0x89ABCDU & ((uint32_t{1} << bits) - 1);
        setPixelAt(*drawing.surface(), 2, 2, pixel);
        EXPECT_EQ(GDGetPixel(drawing, 2, 2), pixel);
    }
}

TEST_F(Pixel, ReadingLeavesThePen) {
    Drawing drawing(3, 3);
    GDMoveTo(drawing, 1, 2);
    GDGetPixel(drawing, 0, 0);
    EXPECT_EQ(drawing->penPos.x, 1);
    EXPECT_EQ(drawing->penPos.y, 2);
}

TEST_F(Pixel, ThroughAnEmptyEntryIsNeitherDrawnNorRead) {
    Drawing drawing(2, 1);
    GDSetDrawingMode(drawing, 4);
    EXPECT_EQ(GDSetPixel(drawing, 1, 0), 0);
    EXPECT_EQ(GDGetPixel(drawing, 1, 0), G_NO_COLOR);
    EXPECT_TRUE(shows(*drawing.surface(), {".."}));
}

TEST_F(Pixel, OnADeviceIsTheSetPixelOperation) {
    DeviceDrawing drawing(4, 4, 16);
    const GPoint origin{10, 10};
    GDSetLocalOrigin(drawing, &origin);
    GDSetPenColor(drawing, 0x1234);
    GDSetDrawingMode(drawing, G_MODE_OR);
    platform.serve<5>([](GDrawHandle*, GVram*, int16_t, int16_t, uint32_t, int32_t) { return 42; });
    EXPECT_EQ(GDSetPixel(drawing, 13, 12), 42);
    GDrawHandle* const handle = drawing;
    EXPECT_EQ(platform.calls,
              std::vector{call(5, handle, drawing.surface().get(), 3, 2, 0x1234, G_MODE_OR)});
}

TEST_F(Pixel, OnADeviceWithoutTheOperationIsNotDrawn) {
    platform.remove({5});
    DeviceDrawing drawing(2, 1);
    EXPECT_EQ(GDSetPixel(drawing, 1, 0), 0);
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_EQ(drawing->penPos.x, 1);
}

TEST_F(Pixel, OnADeviceIsReadFromItsMemory) {
    for (const int16_t bits : kDepths) {
        DeviceDrawing drawing(3, 3, bits);
        setPixelAt(*drawing.surface(), 1, 2, 0x77);
        EXPECT_EQ(GDGetPixel(drawing, 1, 2), 0x77U);
    }
}

TEST_F(Pixel, OnADeviceWithoutMemoryCannotBeRead) {
    DeviceDrawing drawing(3, 3);
    drawing.surface()->pixels = nullptr;
    EXPECT_EQ(GDGetPixel(drawing, 1, 2), G_NO_COLOR);
}

TEST_F(Pixel, OnADeviceMayLieOnePastTheSizeWhereTheClipRectangleSaysSo) {
    DeviceDrawing drawing(10, 8);
    drawing.surface()->pixels = nullptr;
    drawing.surface()->bounds = {-5, -5, 40, 40};
    for (const auto& [x, y, drawn] :
         {std::tuple{10, 8, true}, {11, 0, false}, {0, 9, false}, {-1, 0, false}, {0, -1, false}}) {
        platform.forget();
        platform.serve<5>(
            [](GDrawHandle*, GVram*, int16_t, int16_t, uint32_t, int32_t) { return 1; });
        GDSetPixel(drawing, static_cast<int16_t>(x), static_cast<int16_t>(y));
        EXPECT_EQ(platform.count(5), drawn ? 1U : 0U) << x << ", " << y;
    }
}

TEST_F(Pixel, LikeModel) {
    expectLikeModel({{DrawCall::PenColor, DrawCall::DrawingMode},
                     {DrawCall::SetPixel, DrawCall::SetPixel, DrawCall::GetPixel}});
}

} // namespace
