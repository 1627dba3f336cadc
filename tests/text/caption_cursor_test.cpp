#include "text/random_caption.h"

using namespace quarlo::test;

namespace {

class CaptionCursor : public TextTest {
  protected:
    static constexpr GCaptionAttr kPlain = {1, G_ALIGN_LEFT, G_ALIGN_TOP, 0, 0, 0, 0};
};

TEST_F(CaptionCursor, IsDrawnAsByAPlainModel) {
    expectLikeModel(platform, CaptionKind::Cursor);
}

TEST_F(CaptionCursor, WithoutASelectionIsDrawnAsByAPlainModel) {
    expectLikeModel(platform, CaptionKind::CursorWithoutSelection);
}

TEST_F(CaptionCursor, PaintsEachPixelAsOftenAsAPlainModel) {
    expectPaintedLikeModel(platform, CaptionKind::Cursor);
    expectPaintedLikeModel(platform, CaptionKind::CursorWithoutSelection);
}

TEST_F(CaptionCursor, OnEmptyTextIsShownAlone) {
    ScriptedFont font(platform);
    for (const uint8_t style : {G_CURSOR_BAR, G_CURSOR_BLOCK}) {
        Drawing drawing(60, 20);
        GDSetFont(drawing, font.get());
        GDSetTextMode(drawing, G_TEXT_TRANSPARENT);
        GDSetBackColor(drawing, G_NO_COLOR);
        font.takeOut(u' ' + 1);
        const GRect rect{10, 2, 49, 18};
        const GCaptionAttr attr{G_NO_COLOR, G_ALIGN_LEFT, G_ALIGN_TOP, 0, 0, 0, 0};
        const GCaptionCursor cursor{style, 5};
        GDDrawCaptionCursorString(drawing, &rect, &attr, &cursor, 0, u"");
        int32_t columns = 0;
        for (int32_t x = 0; x < 60; ++x) {
            columns += pixelAt(*drawing.surface(), x, 2) == 5 ? 1 : 0;
        }
        EXPECT_EQ(columns, style == G_CURSOR_BLOCK ? font.glyphOf(u" ").width : 2);
        EXPECT_EQ(pixelAt(*drawing.surface(), 10, 2 + 9), 5U);
        EXPECT_EQ(pixelAt(*drawing.surface(), 10, 2 + 10), 0U);
    }
}

TEST_F(CaptionCursor, WithoutTextIsNotShown) {
    ScriptedFont font(platform);
    Drawing drawing(60, 20);
    GDSetFont(drawing, font.get());
    const GRect rect{10, 2, 49, 18};
    const GCaptionCursor cursor{G_CURSOR_BLOCK, 5};
    GDDrawCaptionCursorString(drawing, &rect, &kPlain, &cursor, 0, nullptr);
    EXPECT_EQ(pixelAt(*drawing.surface(), 10, 2), 0U);
    GDDrawCaptionCursorString(drawing, &rect, &kPlain, &cursor, 0, u"");
    EXPECT_EQ(pixelAt(*drawing.surface(), 10, 2), 5U);
}

TEST_F(CaptionCursor, BeyondTheRightEdgeScrollsTheLine) {
    ScriptedFont font(platform);
    Drawing drawing(60, 20);
    GDSetFont(drawing, font.get());
    GDSetBackColor(drawing, G_NO_COLOR);
    const GRect rect{10, 2, 49, 18};
    const GCaptionAttr attr{G_NO_COLOR, G_ALIGN_LEFT, G_ALIGN_TOP, 0, 0, 0, 0};
    const GCaptionCursor cursor{G_CURSOR_BAR, 5};
    GDDrawCaptionCursorString(drawing, &rect, &attr, &cursor, 10, u"ABCDEFGHIJKLMN");
    // 40 columns: the cursor stands 4 of them inside the right edge.
    EXPECT_EQ(pixelAt(*drawing.surface(), 10 + 36, 5), 5U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 10 + 37, 5), 5U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 10 + 35, 5), 0U);
}

TEST_F(CaptionCursor, ScrollsInABoxNarrowerThanItsRoom) {
    ScriptedFont font(platform);
    Drawing drawing(60, 20);
    GDSetFont(drawing, font.get());
    const GRect rect{10, 2, 12, 18};
    const GCaptionAttr attr{G_NO_COLOR, G_ALIGN_LEFT, G_ALIGN_TOP, 0, 0, 0, 0};
    const GCaptionCursor cursor{G_CURSOR_BAR, 5};
    GDDrawCaptionCursorString(drawing, &rect, &attr, &cursor, 0, u"");
    // 3 columns: of the cursor, 4 inside the right edge, one can be seen.
    EXPECT_EQ(pixelAt(*drawing.surface(), 10, 5), 5U);
    EXPECT_EQ(pixelAt(*drawing.surface(), 11, 5), 0U);
}

TEST_F(CaptionCursor, LeavesItsFillStyleAndForeColor) {
    ScriptedFont font(platform);
    Drawing drawing(60, 20);
    GDSetFont(drawing, font.get());
    GDSetFillAttribute(drawing, 7, 1, 2);
    GDSetDrawingMode(drawing, G_MODE_OR);
    const GRect rect{0, 0, 49, 18};
    const GCaptionCursor cursor{G_CURSOR_BLOCK, 5};
    const GCaptionSelect selection{1, 1, 2, 9};
    GDDrawCaptionCursorSelectString(drawing, &rect, &kPlain, &cursor, &selection, 0, u"ABC");
    EXPECT_EQ(drawing->fillPattern, G_FILL_FORE);
    EXPECT_EQ(drawing->forePixel, 9U);
    EXPECT_EQ(drawing->drawingMode, G_MODE_OR);
    EXPECT_EQ(drawing->penPixel, 1U);
}

TEST_F(CaptionCursor, SelectsTheSameColumnsOfEachLine) {
    ScriptedFont font(platform);
    Drawing drawing(60, 30);
    GDSetFont(drawing, font.get());
    GDSetBackColor(drawing, G_NO_COLOR);
    const GRect rect{0, 0, 59, 29};
    const GCaptionAttr attr{G_NO_COLOR, G_ALIGN_LEFT, G_ALIGN_TOP, 0, 0, 0, 0};
    const GCaptionCursor cursor{G_CURSOR_BAR, G_NO_COLOR};
    const GCaptionSelect selection{1, 1, 1, 9};
    GDDrawCaptionCursorSelectString(drawing, &rect, &attr, &cursor, &selection, 99, u"AB\nAB");
    const int32_t left = font.glyphOf(u"A").width;
    for (const int32_t y : {2, 12}) {
        EXPECT_EQ(pixelAt(*drawing.surface(), left, y), 9U);
        EXPECT_EQ(pixelAt(*drawing.surface(), left - 1, y), 0U);
        EXPECT_EQ(pixelAt(*drawing.surface(), left + font.glyphOf(u"B").width, y), 9U);
        EXPECT_EQ(pixelAt(*drawing.surface(), left + font.glyphOf(u"B").width + 1, y), 0U);
    }
}

} // namespace
