// Fonts whose platform answers nonsense: every call ends, costs what it shows, and stays inside.
#include "text/text_test.h"

#include <cstring>
#include <string>
#include <utility>
#include <vector>

using namespace quarlo::test;

namespace {

class HostileFont : public TextTest {
  protected:
    HostileFont() { platform.recordOperations(false); }

    /// Serves one answer for every unit but the letter A, whose height lines are measured by.
    void answerAlways(const GGlyphRequest& request) {
        answer_ = request;
        platform.serve<20>([this](GFontRecord*, GGlyphRequest* asked) {
            ++questions;
            const char16_t* const text = asked->text;
            *asked = answer_;
            asked->text = text;
            asked->next = text + 1;
            if (*text == u'A') {
                asked->width = 1;
                asked->height = 9;
                asked->bits = nullptr;
            }
            return 1;
        });
    }

    static GGlyphRequest glyph(int16_t width, int16_t height, const uint8_t* bits) {
        return {nullptr, nullptr, width, height, 1, bits, 0};
    }

    /// All calls that draw text, in a box of 40 x 20.
    static void drawAll(GDrawHandle* handle, const std::u16string& text) {
        const GRect box{0, 0, 39, 19};
        const GCaptionAttr attr{1, G_ALIGN_CENTRE, G_ALIGN_MIDDLE, 0, 0, 0, 0};
        const GCaptionCursor cursor{G_CURSOR_BLOCK, 3};
        const GCaptionSelect selection{1, 0, 2, 5};
        GDMoveTo(handle, 0, 0);
        GDDrawString(handle, text.c_str());
        GDDrawCaptionString(handle, &box, &attr, text.c_str());
        GDDrawCaptionStringDirect(handle, &box, &attr, text.c_str());
        GDDrawCaptionScrollString(handle, &box, &attr, text.c_str(), 1, 30);
        GDDrawCaptionCursorString(handle, &box, &attr, &cursor, 1, text.c_str());
        GDDrawCaptionCursorSelectString(handle, &box, &attr, &cursor, &selection, 1, text.c_str());
    }

    GFontScale scale{{}, 1, 1};
    GFontRecord font{0, 0, &scale};
    int64_t questions = 0;

  private:
    GGlyphRequest answer_{};
};

TEST_F(HostileFont, AHugeMagnifiedGlyphCostsWhatItShows) {
    scale = {{}, 2, 2};
    constexpr int32_t kRows = 10; // those that a surface 20 pixels high shows
    const GuardedMemory bits(kRows * 4096);
    answerAlways(glyph(INT16_MAX, INT16_MAX, bits.data()));
    size_t blocks = 0;
    platform.serve<68>([&blocks](GDrawHandle*, GVram*, const GRect*, uint32_t, int32_t) {
        ++blocks;
        return 1;
    });
    platform.remove({67}); // which would go first
    GetGPIFunction();
    DeviceDrawing drawing(40, 20);
    GDSetFont(drawing, &font);
    GDSetTextMode(drawing, G_TEXT_TRANSPARENT);
    GDDrawString(drawing, u"x");
    EXPECT_EQ(blocks, size_t{kRows} * 20 / 2); // of the pattern 0xA5 half the bits are set
}

TEST_F(HostileFont, AHugeMagnifiedGlyphShowsWhereCoordinatesWrapAround) {
    scale = {{}, 2, 1};
    const std::vector<uint8_t> bits(4096, 0xFF);
    answerAlways(glyph(INT16_MAX, 1, bits.data()));
    Drawing drawing(8, 1);
    GDSetFont(drawing, &font);
    GDSetBackColor(drawing, G_NO_COLOR);
    GDMoveTo(drawing, 4, 0); // 65534 columns from here reach column 1 from the other side
    GDDrawString(drawing, u"x");
    EXPECT_TRUE(shows(*drawing.surface(), {"##..####"}));
}

TEST_F(HostileFont, AHugeGlyphInAVirtualFrameEndsSoon) {
    scale = {{}, 3, 1};
    const std::vector<uint8_t> bits(1 << 20, 0xFF);
    answerAlways(glyph(INT16_MAX, INT16_MAX, bits.data()));
    Drawing drawing(8, 8);
    GDSetFont(drawing, &font);
    const GRect frame{0, 0, INT16_MAX, INT16_MAX};
    GDSetVirtualRect(drawing, &frame);
    GDSetVirtualMode(drawing);
    GDSetBackColor(drawing, G_NO_COLOR);
    GDDrawString(drawing, u"x"); // a thousand million blocks on 64 pixels
    EXPECT_TRUE(shows(*drawing.surface(), std::vector<std::string>(8, "........")));
    answerAlways(glyph(512, 512, bits.data()));
    GDMoveTo(drawing, 0, 0);
    GDDrawString(drawing, u"x");
    EXPECT_EQ(pixelAt(*drawing.surface(), 0, 0), 1U);
}

TEST_F(HostileFont, HugeGlyphsOfNaturalSizeAreReadWhereTheyShow) {
    constexpr int32_t kRows = 20;
    const GuardedMemory bits(kRows * 4096 - 4096 + 5); // up to the last pixel that shows
    for (const int16_t depth : kDepths) {
        answerAlways(glyph(INT16_MAX, INT16_MAX, bits.data()));
        Drawing drawing(40, kRows, depth);
        GDSetFont(drawing, &font);
        GDDrawString(drawing, u"xy");
        EXPECT_EQ(pixelAt(*drawing.surface(), 39, kRows - 1), 1U); // the last bit of 0xA5
        EXPECT_TRUE(drawing.surface().memory().intact());
    }
}

TEST_F(HostileFont, GlyphsOfNegativeSizeMoveThePenBack) {
    answerAlways(glyph(-7, -3, nullptr));
    Drawing drawing(40, 20);
    GDSetFont(drawing, &font);
    for (const uint8_t magnify : {uint8_t{1}, uint8_t{2}}) {
        scale.magnifyX = magnify;
        GDMoveTo(drawing, 10, 5);
        GDDrawString(drawing, u"xx");
        EXPECT_EQ(drawing->penPos.x, 10 - 2 * 7 * magnify);
    }
    drawAll(drawing, u"xx\nyy");
    EXPECT_TRUE(drawing.surface().memory().intact());
}

TEST_F(HostileFont, ALineOfNoHeightDrawsNoCaption) {
    for (const int16_t height : {int16_t{0}, int16_t{-9}}) {
        platform.serve<20>([height](GFontRecord*, GGlyphRequest* request) {
            request->next = request->text + 1;
            request->width = 8;
            request->height = height;
            request->bits = nullptr;
            return 1;
        });
        Drawing drawing(40, 20);
        GDSetFont(drawing, &font);
        platform.forget();
        const GRect box{0, 0, 39, 19};
        const GCaptionAttr attr{1, G_ALIGN_LEFT, G_ALIGN_TOP, 0, 0, 0, 0};
        const GCaptionCursor cursor{};
        GDDrawCaptionString(drawing, &box, &attr, u"x");
        GDDrawCaptionScrollString(drawing, &box, &attr, u"x", 0, 0);
        GDDrawCaptionCursorString(drawing, &box, &attr, &cursor, 0, u"x");
        EXPECT_EQ(platform.count(41), 0U);
        EXPECT_EQ(platform.count(20), 3U); // the letter A each time
    }
}

TEST_F(HostileFont, APlaceBehindTheTextEndsIt) {
    int64_t asked = 0;
    for (const ptrdiff_t jump : {ptrdiff_t{-1}, ptrdiff_t{0}, ptrdiff_t{5'000'000}}) {
        platform.serve<20>([&asked, jump](GFontRecord*, GGlyphRequest* request) {
            ++asked;
            EXPECT_NE(*request->text, u'\0');
            request->next = request->text + jump;
            request->width = 5;
            request->height = 9;
            request->bitsPerPixel = 1;
            request->bits = nullptr;
            return 1;
        });
        Drawing drawing(40, 20);
        GDSetFont(drawing, &font);
        const std::u16string text(20, u'x');
        asked = 0;
        GDDrawString(drawing, text.c_str());
        EXPECT_EQ(asked, jump > 0 ? 1 : 20);
        drawAll(drawing, text);
        scale.magnifyX = 3;
        drawAll(drawing, text);
        scale.magnifyX = 1;
        EXPECT_TRUE(drawing.surface().memory().intact());
    }
}

TEST_F(HostileFont, FewerGlyphsThanWereMeasuredEndTheLine) {
    int64_t drawn = 0;
    platform.serve<20>([&drawn](GFontRecord*, GGlyphRequest* request) {
        const bool draws = request->metricsOnly == 0;
        drawn += draws ? 1 : 0;
        EXPECT_NE(*request->text, u'\0');
        request->next = request->text + (draws ? 3 : 1);
        request->width = 5;
        request->height = 9;
        request->bitsPerPixel = 1;
        request->bits = nullptr;
        return 1;
    });
    platform.remove({75, 76});
    GetGPIFunction();
    Drawing drawing(40, 20);
    GDSetFont(drawing, &font);
    const GRect box{0, 0, 39, 19};
    const GCaptionAttr attr{1, G_ALIGN_LEFT, G_ALIGN_TOP, 0, 0, 0, 0};
    const GCaptionCursor cursor{G_CURSOR_BAR, 3};
    GDDrawCaptionString(drawing, &box, &attr, u"xxxx");
    EXPECT_EQ(std::exchange(drawn, 0), 2);
    GDDrawCaptionScrollString(drawing, &box, &attr, u"xxxx", 0, 0);
    EXPECT_EQ(std::exchange(drawn, 0), 2);
    GDDrawCaptionCursorString(drawing, &box, &attr, &cursor, 0, u"xxxx");
    EXPECT_EQ(std::exchange(drawn, 0), 2);
}

TEST_F(HostileFont, EveryCallTakesTimeInProportionToItsText) {
    answerAlways(glyph(8, 9, nullptr));
    Drawing drawing(40, 20);
    GDSetFont(drawing, &font);
    constexpr int64_t kUnits = 1'000'000;
    const std::u16string text(kUnits, u'x');
    const GRect box{0, 0, 39, 19};
    const GCaptionAttr attr{1, G_ALIGN_RIGHT, G_ALIGN_TOP, 0, 0, 0, 0};
    const GCaptionCursor cursor{G_CURSOR_BLOCK, 3};
    const GCaptionSelect selection{1, 0, 9, 5};
    const auto asked = [this](const auto& call) {
        const int64_t before = questions;
        call();
        return questions - before;
    };
    GSize size;
    EXPECT_EQ(asked([&] { GDDrawString(drawing, text.c_str()); }), kUnits);
    EXPECT_EQ(asked([&] { GDGetStringSize(&size, drawing, text.c_str()); }), kUnits + 1);
    EXPECT_EQ(asked([&] { GDDrawCaptionScrollString(drawing, &box, &attr, text.c_str(), 0, 7); }),
              2 * kUnits + 1);
    EXPECT_EQ(asked([&] {
                  GDDrawCaptionCursorSelectString(drawing, &box, &attr, &cursor, &selection,
                                                  kUnits / 2, text.c_str());
              }),
              2 * kUnits + 1);
    scale.magnifyX = 2;
    EXPECT_EQ(asked([&] { GDDrawString(drawing, text.c_str()); }), kUnits);
}

TEST_F(HostileFont, WidthsWrapAroundWhereCoordinatesDo) {
    answerAlways(glyph(30'000, 9, nullptr));
    Drawing drawing(40, 20);
    GDSetFont(drawing, &font);
    const std::u16string text(7, u'x');
    const GRect box{0, 0, 39, 19};
    GCaptionAttr attr{1, G_ALIGN_RIGHT, G_ALIGN_TOP, 0, 0, 0, 0};
    GDDrawCaptionString(drawing, &box, &attr, text.c_str());
    EXPECT_EQ(drawing->penPos.x, 40); // from 210,000 to the left of there
    attr.horizontal = G_ALIGN_CENTRE;
    GDDrawCaptionString(drawing, &box, &attr, text.c_str());
    EXPECT_EQ(drawing->penPos.x, static_cast<int16_t>((40 - 210'000) / 2 + 210'000));
    scale.magnifyX = 255;
    attr.horizontal = G_ALIGN_RIGHT;
    GDDrawCaptionString(drawing, &box, &attr, text.c_str());
    EXPECT_EQ(drawing->penPos.x, 40);
    EXPECT_TRUE(drawing.surface().memory().intact());
}

TEST_F(HostileFont, WithoutAnyOneServiceTextIsCalm) {
    constexpr int kMemoryFree = 42; // without it no block can be given back
    ScriptedFont scripted(platform);
    for (int service = 1; service <= RecordingPlatform::kLastService; ++service) {
        if (!platform.offers(service) || service == kMemoryFree) {
            continue;
        }
        Drawing drawing(40, 20);
        DeviceDrawing device(40, 20, 16);
        platform.remove({service});
        GetGPIFunction();
        for (GDrawHandle* const handle :
             {static_cast<GDrawHandle*>(drawing), static_cast<GDrawHandle*>(device)}) {
            GDSetFont(handle, scripted.get());
            GSize size;
            GDGetStringSize(&size, handle, u"AB\nC");
            scripted.magnify(1, 1);
            drawAll(handle, u"AB\r\nC");
            scripted.magnify(2, 1);
            drawAll(handle, u"AB\r\nC");
        }
        EXPECT_TRUE(drawing.surface().memory().intact());
        platform.restore(service);
        GetGPIFunction();
    }
}

TEST_F(HostileFont, WithoutMemoryTextLeavesNothingBehind) {
    ScriptedFont scripted(platform);
    Drawing drawing(40, 20);
    GDSetFont(drawing, scripted.get());
    const size_t blocks = platform.blocksInUse();
    failEachAllocation(platform, [&] {
        drawAll(drawing, u"AB\nC");
        EXPECT_EQ(platform.blocksInUse(), blocks);
    });
}

TEST_F(HostileFont, WithoutTheLetterANoCaptionIsDrawn) {
    ScriptedFont scripted(platform);
    scripted.takeOut(u'A');
    Drawing drawing(40, 20);
    GDSetFont(drawing, scripted.get());
    GDrawHandle before = *drawing.operator->();
    const GRect box{0, 0, 39, 19};
    const GCaptionAttr attr{1, G_ALIGN_LEFT, G_ALIGN_TOP, 0, 0, 0, 0};
    const GCaptionCursor cursor{};
    GDDrawCaptionString(drawing, &box, &attr, u"B");
    GDDrawCaptionStringDirect(drawing, &box, &attr, u"B");
    GDDrawCaptionScrollString(drawing, &box, &attr, u"B", 0, 0);
    GDDrawCaptionCursorString(drawing, &box, &attr, &cursor, 0, u"B");
    EXPECT_EQ(std::memcmp(&before, drawing.operator->(), sizeof before), 0);
    EXPECT_EQ(platform.count(41), 0U);
    GSize size{7, 7};
    GDGetStringSize(&size, drawing, u"B\nB");
    EXPECT_EQ(size.width, scripted.glyphOf(u"B").width);
    EXPECT_EQ(size.height, 0);
}

} // namespace
