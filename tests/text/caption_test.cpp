#include "text/random_caption.h"

#include <cstring>

using namespace quarlo::test;

namespace {

class Caption : public TextTest {
  protected:
    static constexpr GCaptionAttr kPlain = {1, G_ALIGN_LEFT, G_ALIGN_TOP, 0, 0, 0, 0};

    /// Rows of a drawing that have any pixel.
    static int32_t lastRow(Drawing& drawing) {
        int32_t last = -1;
        for (int32_t y = 0; y < drawing.surface()->height; ++y) {
            for (int32_t x = 0; x < drawing.surface()->width; ++x) {
                last = pixelAt(*drawing.surface(), x, y) != 0 ? y : last;
            }
        }
        return last;
    }

    /// Opaque text, so that each line shows as a box.
    static void makeOpaque(GDrawHandle* handle, ScriptedFont& font) {
        GDSetFont(handle, font.get());
        GDSetBackColor(handle, 2);
    }
};

TEST_F(Caption, IsDrawnAsByAPlainModel) {
    expectLikeModel(platform, CaptionKind::Plain);
}

TEST_F(Caption, IsScrolledAsByAPlainModel) {
    expectLikeModel(platform, CaptionKind::Scrolled);
}

TEST_F(Caption, PaintsEachPixelAsOftenAsAPlainModel) {
    expectPaintedLikeModel(platform, CaptionKind::Plain);
    expectPaintedLikeModel(platform, CaptionKind::Scrolled);
}

TEST_F(Caption, InARectangleSmallerThanItsMarginsIsNothing) {
    ScriptedFont font(platform);
    Drawing drawing(40, 40);
    makeOpaque(drawing, font);
    platform.forget();
    const GRect rect{0, 0, 20, 20};
    for (const GCaptionAttr& attr :
         {GCaptionAttr{1, 0, 0, 11, 10, 0, 0}, GCaptionAttr{1, 0, 0, 0, 0, 10, 11}}) {
        GDDrawCaptionString(drawing, &rect, &attr, u"ABC");
    }
    EXPECT_EQ(lastRow(drawing), -1);
    EXPECT_EQ(platform.count(41), 0U);
}

TEST_F(Caption, HasAsManyLinesAsBeginInItsRectangle) {
    ScriptedFont font(platform);
    for (const int16_t bottom : {int16_t{17}, int16_t{12}}) { // two lines, one and a half
        Drawing drawing(60, 40);
        makeOpaque(drawing, font);
        const GRect rect{0, 0, 59, bottom};
        GDDrawCaptionString(drawing, &rect, &kPlain, u"AB\nCD\nEF");
        EXPECT_EQ(lastRow(drawing), bottom);
        EXPECT_EQ(drawing->penPos.y, 9);
    }
}

TEST_F(Caption, BreaksAtCrLfAndLfAlike) {
    ScriptedFont font(platform);
    const auto drawn = [&](const char16_t* text, uint8_t vertical) {
        Drawing drawing(60, 40);
        makeOpaque(drawing, font);
        const GRect rect{0, 0, 59, 39};
        GCaptionAttr attr = kPlain;
        attr.vertical = vertical;
        GDDrawCaptionString(drawing, &rect, &attr, text);
        return pictureOf(*drawing.surface());
    };
    EXPECT_TRUE(samePicture(drawn(u"AB\r\nC", 0), drawn(u"AB\nC", 0)));
    EXPECT_TRUE(samePicture(drawn(u"AB\nC\n", 2), drawn(u"AB\nC", 2)));
    EXPECT_FALSE(samePicture(drawn(u"AB\rC", 0), drawn(u"ABC", 0)));
}

TEST_F(Caption, OfOneLineIsLeftToThePlatform) {
    offer(44);
    ScriptedFont font(platform);
    Drawing drawing(60, 40);
    makeOpaque(drawing, font);
    const GPoint origin{10, 10};
    GDSetLocalOrigin(drawing, &origin);
    const GRect rect{12, 14, 49, 33};
    GRect clip{};
    platform.serve<44>(
        [&clip](GDrawHandle*, const char16_t*, int16_t, int16_t, const GRect* given) {
            clip = *given;
            return 1;
        });
    const char16_t* const text = u"AB\n";
    GCaptionAttr attr = kPlain;
    attr.horizontal = G_ALIGN_RIGHT;
    GDDrawCaptionString(drawing, &rect, &attr, text);
    ASSERT_EQ(platform.count(44), 1U);
    const auto arguments = platform.callsOf(44)[0].arguments;
    EXPECT_EQ(arguments[1], asWord(text));
    EXPECT_EQ(arguments[2], 40 - font.glyphOf(u"A").width - font.glyphOf(u"B").width);
    EXPECT_EQ(arguments[3], 4);
    EXPECT_EQ(clip.left, 2);
    EXPECT_EQ(clip.bottom, 23);
    GDDrawCaptionString(drawing, &rect, &kPlain, u"A\nB");
    font.magnify(2, 1);
    GDDrawCaptionString(drawing, &rect, &kPlain, u"AB");
    EXPECT_EQ(platform.count(44), 1U);
}

TEST_F(Caption, IsHandedOverLineByLine) {
    ScriptedFont font(platform);
    Drawing drawing(60, 40);
    makeOpaque(drawing, font);
    const GRect rect{2, 4, 49, 33};
    const char16_t* const text = u"AB\r\nC\nDEF";
    GDDrawCaptionStringDirect(drawing, &rect, &kPlain, text);
    EXPECT_EQ(platform.count(75), 0U);
    EXPECT_EQ(lastRow(drawing), -1);
    offer(75);
    font.magnify(1, 2);
    GDDrawCaptionStringDirect(drawing, &rect, &kPlain, text);
    const auto calls = platform.callsOf(75);
    ASSERT_EQ(calls.size(), 2U); // the third begins below the rectangle
    EXPECT_EQ(calls[0].arguments[1], asWord(text));
    EXPECT_EQ(calls[1].arguments[1], asWord(text + 4));
    EXPECT_EQ(calls[1].arguments[2], 2);
    EXPECT_EQ(calls[1].arguments[3], 4 + 18);
    EXPECT_EQ(lastRow(drawing), -1);
}

TEST_F(Caption, IsMeasuredForLayoutAndAskedForToDraw) {
    ScriptedFont font(platform);
    Drawing drawing(60, 40);
    makeOpaque(drawing, font);
    const GRect rect{0, 0, 59, 39};
    GDDrawCaptionString(drawing, &rect, &kPlain, u"AB");
    EXPECT_EQ(font.takeFlags(), (std::vector<uint16_t>{1, 1, 1, 0, 0}));
}

TEST_F(Caption, WithoutTheLetterAOrFontOrTextIsNothing) {
    ScriptedFont font(platform);
    Drawing drawing(60, 40);
    const GRect rect{0, 0, 59, 39};
    GDDrawCaptionString(drawing, &rect, &kPlain, u"B");
    makeOpaque(drawing, font);
    GDDrawCaptionString(drawing, &rect, &kPlain, nullptr);
    GDDrawCaptionScrollString(drawing, &rect, &kPlain, nullptr, 0, 0);
    GDDrawCaptionStringDirect(drawing, &rect, &kPlain, nullptr);
    font.takeOut(u'A');
    GDDrawCaptionString(drawing, &rect, &kPlain, u"B");
    platform.remove({20});
    GDDrawCaptionString(drawing, &rect, &kPlain, u"B");
    EXPECT_EQ(lastRow(drawing), -1);
}

TEST_F(Caption, WithoutMemoryOrPlaceChangesNothing) {
    ScriptedFont font(platform);
    Drawing drawing(60, 40);
    makeOpaque(drawing, font);
    GDrawHandle before = *drawing.operator->();
    const GRect rect{0, 0, 59, 39};
    const GRect away{100, 100, 120, 120};
    const GCaptionCursor cursor{};
    platform.failAllocation(1);
    GDDrawCaptionString(drawing, &rect, &kPlain, u"AB");
    platform.failAllocation(1);
    GDDrawCaptionCursorString(drawing, &rect, &kPlain, &cursor, 0, u"AB");
    platform.failAllocation(0);
    GDDrawCaptionString(drawing, &away, &kPlain, u"AB");
    EXPECT_EQ(lastRow(drawing), -1);
    EXPECT_EQ(std::memcmp(&before, drawing.operator->(), sizeof before), 0);
}

TEST_F(Caption, TakesATableOfItsLinesAndGivesItBack) {
    ScriptedFont font(platform);
    Drawing drawing(60, 40);
    makeOpaque(drawing, font);
    const GRect rect{0, 0, 59, 39};
    const GCaptionCursor cursor{};
    platform.forget();
    const size_t blocks = platform.blocksInUse();
    GDDrawCaptionString(drawing, &rect, &kPlain, u"AB");
    GDDrawCaptionCursorString(drawing, &rect, &kPlain, &cursor, 0, u"AB");
    ASSERT_EQ(platform.count(41), 2U);
    EXPECT_EQ(platform.callsOf(41)[0].arguments[0], 1);
    EXPECT_EQ(platform.callsOf(41)[0].arguments[1], 0);
    if (sizeof(void*) == 4) {
        EXPECT_EQ(platform.callsOf(41)[0].arguments[2], 5 * 12);
        EXPECT_EQ(platform.callsOf(41)[1].arguments[2], 6 * 16);
    }
    EXPECT_EQ(platform.blocksInUse(), blocks);
}

TEST_F(Caption, OfAMillionUnitsStaysLinear) {
    ScriptedFont font(platform);
    Drawing drawing(60, 40);
    makeOpaque(drawing, font);
    int64_t calls = 0;
    platform.serve<20>([&calls](GFontRecord*, GGlyphRequest* request) {
        ++calls;
        request->next = request->text + 1;
        request->width = 8;
        request->height = 9;
        request->bitsPerPixel = 1;
        request->bits = nullptr;
        return 1;
    });
    const std::u16string text(1'000'000, u'x');
    const GRect rect{0, 0, 59, 39};
    GDDrawCaptionString(drawing, &rect, &kPlain, text.c_str());
    EXPECT_EQ(calls, 2'000'001);
}

} // namespace
