// Which services a rectangle calls, and in which order.
#include "raster/drawing.h"

using namespace quarlo::test;

namespace {

using RectService = RasterTest;

/// Pen 1, fore colour 2, back colour 3.
void setUp(GDrawHandle* handle, int32_t style) {
    GDSetPenColor(handle, 1);
    GDSetFillAttribute(handle, style, 2, 3);
}

TEST_F(RectService, TheDevicesWholeRectangleOperationGoesFirst) {
    std::vector<GRect> rects;
    platform.serve<67>([&](GDrawHandle*, GVram*, const GRect* rect, uint32_t, int32_t) {
        rects.push_back(*rect);
        return 1;
    });
    for (const int32_t style : {G_FILL_FORE, G_FILL_BACK}) {
        DeviceDrawing drawing(9, 9);
        setUp(drawing, style);
        GDSetPenColor(drawing, G_NO_COLOR);
        GDSetDrawingMode(drawing, G_MODE_OR);
        drawRect(drawing, -3, 2, 5, 20);
        ASSERT_EQ(platform.calls.size(), 1U);
        const ServiceCall& made = platform.calls[0];
        GDrawHandle* const handle = drawing;
        EXPECT_EQ(made, call(67, handle, drawing.surface().get(), made.arguments[2],
                             style == G_FILL_FORE ? 2 : 3, G_MODE_OR));
        EXPECT_EQ(rects.back().left, 0);
        EXPECT_EQ(rects.back().top, 2);
        EXPECT_EQ(rects.back().right, 5);
        EXPECT_EQ(rects.back().bottom, 8);
    }
}

TEST_F(RectService, TheDevicesRectangleFillGoesNextThenItsSpans) {
    platform.remove({67});
    DeviceDrawing drawing(9, 9);
    setUp(drawing, G_FILL_FORE);
    GDSetPenColor(drawing, G_NO_COLOR);
    drawRect(drawing, 1, 2, 5, 3);
    EXPECT_EQ(platform.calls.size(), 1U);
    EXPECT_EQ(platform.count(68), 1U);

    platform.remove({68});
    GDSetDrawingMode(drawing, G_MODE_COPY);
    platform.forget();
    drawRect(drawing, 1, 2, 5, 3);
    GDrawHandle* const handle = drawing;
    GVram* const surface = drawing.surface().get();
    EXPECT_EQ(platform.calls, (std::vector{call(6, handle, surface, 1, 2, 2, 0, 5),
                                           call(6, handle, surface, 1, 3, 2, 0, 5)}));
}

TEST_F(RectService, ADeviceIsNotAskedToFillInNoColour) {
    DeviceDrawing drawing(9, 9);
    GDSetFillAttribute(drawing, G_FILL_FORE, G_NO_COLOR, G_NO_COLOR);
    GDSetPenColor(drawing, G_NO_COLOR);
    drawRect(drawing, 1, 2, 5, 3);
    GDSetFillPattern(drawing, G_FILL_BACK);
    drawRect(drawing, 1, 2, 5, 3);
    GDSetFillPattern(drawing, G_FILL_NONE);
    drawRect(drawing, 1, 2, 5, 3);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(RectService, APatternIsAnnouncedBeforeItIsDrawn) {
    DeviceDrawing drawing(9, 9);
    setUp(drawing, 11);
    GDSetPenColor(drawing, G_NO_COLOR);
    GDSetDrawingMode(drawing, G_MODE_XOR);
    drawRect(drawing, 1, 2, 5, 3);
    GDrawHandle* const handle = drawing;
    GVram* const surface = drawing.surface().get();
    const uint8_t* const rows = drawing->fillPatterns[11];
    ASSERT_EQ(platform.calls.size(), 2U);
    const int64_t rect = platform.calls[1].arguments[2];
    EXPECT_EQ(platform.calls,
              (std::vector{call(69, handle, surface, 2, 3, rows),
                           call(70, handle, surface, rect, 2, 3, G_MODE_XOR, rows)}));
}

TEST_F(RectService, APatternIsAnnouncedOnMemorySurfacesToo) {
    Drawing drawing(9, 9);
    setUp(drawing, 11);
    platform.answer(69, 0);
    drawRect(drawing, 1, 2, 5, 3);
    GDrawHandle* const handle = drawing;
    const uint8_t* const rows = drawing->fillPatterns[11];
    EXPECT_EQ(platform.calls, std::vector{call(69, handle, drawing.surface().get(), 2, 3, rows)});
    EXPECT_EQ(pixelAt(*drawing.surface(), 4, 2), 1U);
}

TEST_F(RectService, APatternOutsideIsNotAnnounced) {
    Drawing drawing(9, 9);
    setUp(drawing, 11);
    drawRect(drawing, 9, 2, 15, 3);
    EXPECT_TRUE(platform.calls.empty());
}

TEST_F(RectService, APatternIsDrawnWhereNobodyListens) {
    platform.remove({69});
    Drawing drawing(3, 1);
    setUp(drawing, 1);
    GDSetPenColor(drawing, G_NO_COLOR);
    drawRect(drawing, 0, 0, 2, 0);
    EXPECT_TRUE(shows(*drawing.surface(), {"fff"}, {{'.', 0}, {'f', 2}}));
}

TEST_F(RectService, ADevicePatternFallsBackToPixels) {
    platform.remove({70});
    DeviceDrawing drawing(9, 9);
    setUp(drawing, 10);
    GDSetPenColor(drawing, G_NO_COLOR);
    drawRect(drawing, 1, 2, 2, 2);
    GDrawHandle* const handle = drawing;
    GVram* const surface = drawing.surface().get();
    EXPECT_EQ(platform.callsOf(5), (std::vector{call(5, handle, surface, 1, 2, 3, 0),
                                                call(5, handle, surface, 2, 2, 2, 0)}));
}

TEST_F(RectService, ADeviceIsFramedBySpansAndPixelsAfterTheFill) {
    DeviceDrawing drawing(9, 9);
    setUp(drawing, G_FILL_FORE);
    drawRect(drawing, 1, 2, 3, 4);
    GDrawHandle* const handle = drawing;
    GVram* const surface = drawing.surface().get();
    ASSERT_EQ(platform.calls.front().service, 67);
    platform.calls.erase(platform.calls.begin());
    EXPECT_EQ(
        platform.calls,
        (std::vector{call(6, handle, surface, 1, 2, 1, 0, 3), call(5, handle, surface, 3, 2, 1, 0),
                     call(5, handle, surface, 3, 3, 1, 0), call(5, handle, surface, 3, 4, 1, 0),
                     call(6, handle, surface, 1, 4, 1, 0, 3), call(5, handle, surface, 1, 2, 1, 0),
                     call(5, handle, surface, 1, 3, 1, 0), call(5, handle, surface, 1, 4, 1, 0)}));
}

TEST_F(RectService, ADeviceWithoutOperationsDrawsNothing) {
    platform.remove({5, 6, 7, 43, 67, 68, 69, 70});
    DeviceDrawing drawing(9, 9);
    for (const int32_t style : std::initializer_list<int32_t>{G_FILL_FORE, G_FILL_GRADATION, 4}) {
        setUp(drawing, style);
        drawRect(drawing, 1, 2, 5, 7);
    }
    EXPECT_TRUE(platform.calls.empty());
    EXPECT_TRUE(shows(*drawing.surface(), std::vector(9, std::string(9, '.'))));
}

} // namespace
