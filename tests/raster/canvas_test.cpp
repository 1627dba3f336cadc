// What confines drawing, whatever the records say.
#include "raster/canvas.h"

#include "raster/random_drawing.h"

using namespace quarlo;
using namespace quarlo::test;

namespace {

using CanvasArea = RasterTest;

std::vector<int> areaOf(Drawing& drawing) {
    const GRect area = Canvas(*drawing).area;
    return {area.left, area.top, area.right, area.bottom};
}

using Area = std::vector<int>;

const Area kNone = {0, 0, -1, -1};

TEST_F(CanvasArea, IsTheClipRectangle) {
    Drawing drawing(10, 8);
    EXPECT_EQ(areaOf(drawing), (Area{0, 0, 9, 7}));
    setClip(drawing, 2, 3, 5, 6);
    EXPECT_EQ(areaOf(drawing), (Area{2, 3, 5, 6}));
}

TEST_F(CanvasArea, IsConfinedToMemory) {
    for (const int16_t bits : kDepths) {
        Drawing drawing(10, 8, bits);
        drawing.surface()->bounds = {-100, -100, 1000, 1000};
        EXPECT_EQ(areaOf(drawing), (Area{0, 0, 9, 7}));
    }
}

TEST_F(CanvasArea, HasOnlyWholePixelsOfARow) {
    Drawing drawing(10, 8, 24);
    drawing.surface()->bytesPerLine = 20;
    EXPECT_EQ(areaOf(drawing), (Area{0, 0, 5, 7}));
    drawing.surface()->bytesPerLine = 2;
    EXPECT_EQ(areaOf(drawing), kNone);
    drawing.surface()->bytesPerLine = -30;
    EXPECT_EQ(areaOf(drawing), kNone);
}

TEST_F(CanvasArea, IsEmptyWithoutMemoryClipRectangleOrSize) {
    for (const auto& [width, height] :
         {std::pair<int16_t, int16_t>{-10, 8}, {10, -8}, {-10, -8}, {0, 8}, {10, 0}}) {
        Drawing drawing(10, 8, 16);
        drawing.surface()->width = width;
        drawing.surface()->height = height;
        EXPECT_EQ(areaOf(drawing), kNone) << width << " x " << height;
    }
    Drawing drawing(10, 8, 16);
    drawing.surface()->bounds = {5, 0, 4, 7};
    EXPECT_EQ(areaOf(drawing), kNone);
    drawing.surface()->drawable = nullptr;
    EXPECT_EQ(areaOf(drawing), kNone);
    Drawing other(10, 8, 16);
    other.surface()->pixels = nullptr;
    EXPECT_EQ(areaOf(other), kNone);
}

TEST_F(CanvasArea, OfPixelsSmallerThanAByteHasNoneInNegativeRows) {
    DeviceDrawing drawing(10, 8);
    drawing.surface()->bitsPerPixel = 4;
    EXPECT_EQ(areaOf(drawing), (Area{0, 0, 9, 7}));
    drawing.surface()->bytesPerLine = -10;
    EXPECT_EQ(areaOf(drawing), kNone);
}

TEST_F(CanvasArea, IsTheEntrysWhereAModeReachesAnotherFormat) {
    Drawing narrow(10, 8, 8);
    GDSetDrawingMode(narrow, 32);
    EXPECT_EQ(areaOf(narrow), (Area{0, 0, 4, 7}));
    Drawing wide(10, 8, 24);
    GDSetDrawingMode(wide, -64);
    EXPECT_EQ(areaOf(wide), (Area{0, 0, 9, 7}));
}

TEST_F(CanvasArea, OfADeviceWithoutMemoryIsItsClipRectangle) {
    DeviceDrawing drawing(10, 8);
    drawing.surface()->pixels = nullptr;
    drawing.surface()->bounds = {-3, -2, 30, 20};
    EXPECT_EQ(areaOf(drawing), (Area{-3, -2, 30, 20}));
    drawing.surface()->bounds = {5, 0, 4, 20};
    EXPECT_EQ(areaOf(drawing), kNone);
}

TEST_F(CanvasArea, OfAnotherFormatIsDrawnInThatFormat) {
    Drawing narrow(6, 2, 8);
    GDSetDrawingMode(narrow, 32 + G_MODE_OR);
    GDSetPenColor(narrow, 0x0201);
    drawLine(narrow, 1, 1, 5, 1);
    EXPECT_TRUE(shows(*narrow.surface(),
                      {"......", //
                       "..1212"},
                      {{'.', 0}, {'1', 1}, {'2', 2}}));
    Drawing middle(4, 1, 16);
    GDSetDrawingMode(middle, -32);
    GDSetPenColor(middle, 7);
    EXPECT_EQ(GDSetPixel(middle, 3, 0), 1);
    EXPECT_EQ(pixelAt(*middle.surface(), 1, 0), 0x0700U);
    EXPECT_EQ(GDGetPixel(middle, 3, 0), 7U);
}

/// Modes that reach entries of other formats from one format or another.
const std::vector<int16_t> kForeignModes = {32,  33,  34,  35,  64,  65,  67,  -29,
                                            -30, -31, -32, -61, -62, -64, -96, 96};

TEST_F(CanvasArea, OfAnotherFormatIsDrawnLikeModel) {
    DrawMix mix = kEveryCall;
    mix.wildModes = kForeignModes;
    expectLikeModel(mix, Through::Kernels);
}

TEST_F(CanvasArea, EveryCallIsLikeModel) {
    expectLikeModel(kEveryCall);
}

/// Calls that reach everywhere: wherever the record lies, memory is all that may be written.
void expectSafe(const std::function<void(GVram&)>& distort) {
    for (DrawMix mix : {kEveryCall, kCurvedShapes}) {
        mix.wildModes = kForeignModes;
        expectWithinMemory(mix, distort);
    }
}

TEST_F(CanvasArea, ALargeClipRectangleDoesNoHarm) {
    expectSafe([](GVram& surface) { surface.bounds = {-32768, -32768, 32767, 32767}; });
}

TEST_F(CanvasArea, AnInvertedClipRectangleDoesNoHarm) {
    expectSafe([](GVram& surface) { surface.bounds = {20, 20, 3, 3}; });
}

TEST_F(CanvasArea, RowsShorterThanTheirPixelsDoNoHarm) {
    expectSafe([](GVram& surface) {
        surface.bytesPerLine = static_cast<int16_t>(surface.bytesPerLine * 2 / 3);
    });
    expectSafe([](GVram& surface) { surface.bytesPerLine = 1; });
    expectSafe([](GVram& surface) { surface.bytesPerLine = 0; });
    expectSafe(
        [](GVram& surface) { surface.bytesPerLine = static_cast<int16_t>(-surface.bytesPerLine); });
}

TEST_F(CanvasArea, NegativeSizesDoNoHarm) {
    expectSafe([](GVram& surface) { surface.width = static_cast<int16_t>(-surface.width); });
    expectSafe([](GVram& surface) { surface.height = static_cast<int16_t>(-surface.height); });
    expectSafe([](GVram& surface) {
        surface.width = INT16_MIN;
        surface.height = INT16_MIN;
    });
}

TEST_F(CanvasArea, AnotherDepthInTheRecordDoesNoHarm) {
    for (const int16_t bits : std::initializer_list<int16_t>{0, -8, 1, 7, 8, 16, 24, 32, 32767}) {
        expectSafe([=](GVram& surface) { surface.bitsPerPixel = bits; });
    }
}

TEST_F(CanvasArea, NoMemoryDoesNoHarm) {
    expectSafe([](GVram& surface) { surface.pixels = nullptr; });
}

TEST_F(CanvasArea, NoClipRectangleDoesNoHarm) {
    expectSafe([](GVram& surface) { surface.drawable = nullptr; });
}

} // namespace
