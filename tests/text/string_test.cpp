#include "text/text_test.h"

#include "raster/pixel_ops.h"
#include "support/records.h"

#include <quarlo/point.h>

#include <cstring>

using namespace quarlo::test;

namespace {

class String : public TextTest {};

constexpr int16_t kWidth = 90;
constexpr int16_t kHeight = 40;

TEST_F(String, WithoutTextOrFontIsNothing) {
    ScriptedFont font(platform);
    Drawing drawing(20, 10);
    GDMoveTo(drawing, 3, 4);
    GDDrawString(drawing, u"ABC");
    GDSetFont(drawing, font.get());
    GDDrawString(drawing, nullptr);
    GDDrawString(drawing, u"");
    EXPECT_EQ(drawing->penPos.x, 3);
    EXPECT_EQ(drawing->penPos.y, 4);
    EXPECT_EQ(platform.count(20), 0U);
}

TEST_F(String, MovesThePenPastEachGlyphAlsoOutOfSight) {
    ScriptedFont font(platform);
    Drawing drawing(20, 10);
    GDSetFont(drawing, font.get());
    GDMoveTo(drawing, -1000, 500);
    GDDrawString(drawing, u"AB");
    EXPECT_EQ(drawing->penPos.x, -1000 + font.glyphOf(u"A").width + font.glyphOf(u"B").width);
    EXPECT_EQ(drawing->penPos.y, 500);
}

/// The bytes of a surface on which two letters were drawn.
std::vector<uint8_t> lettersAt(Drawing& drawing, ScriptedFont& font, int16_t x, int16_t y) {
    GDSetFont(drawing, font.get());
    GDMoveTo(drawing, x, y);
    GDDrawString(drawing, u"AB");
    const GuardedMemory& memory = drawing.surface().memory();
    return {memory.data(), memory.data() + memory.size()};
}

TEST_F(String, BeginsWhereTheOriginPutsThePen) {
    ScriptedFont font(platform);
    Drawing plain(40, 12);
    Drawing moved(40, 12);
    const GPoint origin{100, 50};
    GDSetLocalOrigin(moved, &origin);
    EXPECT_EQ(lettersAt(moved, font, 103, 52), lettersAt(plain, font, 3, 2));
    Drawing beside(40, 12);
    EXPECT_NE(lettersAt(beside, font, 4, 2), lettersAt(plain, font, 3, 2));
}

TEST_F(String, GoesOnByTheWidthOfItsGlyphsOnTheSurface) {
    ScriptedFont font(platform);
    Drawing plain(40, 12);
    Drawing stretched(40, 12);
    const GRect twice{0, 0, 79, 23};
    GDSetVirtualMode(stretched);
    GDSetVirtualRect(stretched, &twice);
    EXPECT_EQ(lettersAt(stretched, font, 6, 4), lettersAt(plain, font, 3, 2));
    GPoint pen = stretched->penPos;
    GPTVirtualToPhysicalPoint(stretched, &pen);
    EXPECT_EQ(pen, plain->penPos);
}

TEST_F(String, TakesALineFeedForAGlyph) {
    ScriptedFont font(platform);
    Drawing drawing(40, 10);
    GDSetFont(drawing, font.get());
    GDDrawString(drawing, u"\n");
    EXPECT_EQ(drawing->penPos.x, font.glyphOf(u"\n").width);
}

TEST_F(String, IsLeftToThePlatformAtItsNaturalSize) {
    offer(44);
    ScriptedFont font(platform);
    Drawing drawing(20, 10);
    const GPoint origin{100, 50};
    GDSetLocalOrigin(drawing, &origin);
    GDSetFont(drawing, font.get());
    GDMoveTo(drawing, 103, 54);
    const char16_t* const text = u"AB";
    platform.forget();
    GDDrawString(drawing, text);
    ASSERT_EQ(platform.calls.size(), 1U);
    EXPECT_EQ(platform.calls[0], call(44, drawing.operator->(), text, 3, 4, 0));
    EXPECT_EQ(drawing->penPos.x, 103);
    font.magnify(2, 1);
    GDDrawString(drawing, text);
    font.magnify(1, 1);
    font.setKind(1);
    GDDrawString(drawing, text);
    EXPECT_EQ(platform.count(44), 1U);
}

TEST_F(String, LeavesColorsAndFillStyleAfterMagnifiedGlyphs) {
    ScriptedFont font(platform);
    font.magnify(2, 3);
    Drawing drawing(60, 40, 16);
    GDSetFont(drawing, font.get());
    GDSetColorMode(drawing, 1, 0x7C00, 0x3E0, 0x1F);
    GDSetPenColor(drawing, 0xFF8000);
    GDSetFillAttribute(drawing, 7, 0x123456, 0x00FF00);
    GDrawHandle before = *drawing.operator->();
    GDDrawString(drawing, u"A");
    before.penPos = {static_cast<int16_t>(2 * font.glyphOf(u"A").width), 0};
    EXPECT_EQ(std::memcmp(&before, drawing.operator->(), sizeof before), 0);
}

/// A string in one of many styles.
struct StyledString {
    std::u16string text;
    int16_t x;
    int16_t y;
    int32_t mode;
    int32_t textMode;
    uint32_t pen;
    uint32_t back;
    uint8_t magnifyX;
    uint8_t magnifyY;
    uint16_t kind;

    friend std::ostream& operator<<(std::ostream& out, const StyledString& string) {
        for (const char16_t unit : string.text) {
            out << std::hex << +unit << std::dec << ' ';
        }
        return out << "at " << string.x << ", " << string.y << " mode " << string.mode << " text "
                   << string.textMode << " pen " << string.pen << " back " << string.back
                   << " magnified " << +string.magnifyX << " x " << +string.magnifyY << " kind "
                   << string.kind;
    }
};

StyledString randomString(Random& random) {
    const auto color = [&random] {
        return random.oneIn(5) ? G_NO_COLOR : static_cast<uint32_t>(random.bits() & 0xFFFFFF);
    };
    const auto factor = [&random] {
        return static_cast<uint8_t>(random.oneIn(2) ? 1 : random.between(0, 4));
    };
    return {randomText(random, 8),
            static_cast<int16_t>(random.between(-30, 90)),
            static_cast<int16_t>(random.between(-15, 45)),
            random.between(0, 3),
            random.between(0, 3),
            color(),
            color(),
            factor(),
            factor(),
            static_cast<uint16_t>(random.oneIn(6) ? 1 : 0)};
}

void drawStyled(GDrawHandle* handle, ScriptedFont& font, const StyledString& string) {
    font.magnify(string.magnifyX, string.magnifyY);
    font.setKind(string.kind);
    GDSetDrawingMode(handle, string.mode);
    GDSetTextMode(handle, string.textMode);
    GDSetPenColor(handle, string.pen);
    GDSetBackColor(handle, string.back);
    GDMoveTo(handle, string.x, string.y);
}

void drawByModel(TextModel& model, const ScriptedFont& font, const StyledString& string) {
    model.mode = string.mode;
    model.transparent = (string.textMode & 2) != 0;
    model.pen = string.pen;
    model.back = string.back;
    model.x = string.x;
    model.y = string.y;
    model.drawString(font, string.text, std::max<int32_t>(string.magnifyX, 1),
                     std::max<int32_t>(string.magnifyY, 1));
}

TEST_F(String, IsDrawnAsByAPlainModel) {
    const GRect clip{5, 3, 80, 33};
    platform.recordOperations(false);
    for (const TextThrough through :
         {TextThrough::Kernels, TextThrough::CopiedOps, TextThrough::Device}) {
        // A device that has no coverage operation draws all glyph pixels solid.
        platform.remove({43});
        GetGPIFunction();
        for (const int16_t depth : kDepths) {
            for (const int16_t bits : {int16_t{1}, int16_t{2}, int16_t{4}, int16_t{8}}) {
                ScriptedFont font(platform, bits);
                forRandomCalls(25, 4, randomString, [&](const auto& strings) -> std::string {
                    Drawing memory(kWidth, kHeight, depth, Against::End);
                    DeviceDrawing device(kWidth, kHeight, depth);
                    Drawing& drawing = through == TextThrough::Device ? device : memory;
                    CopiedOps ops;
                    GDSetFont(drawing, font.get());
                    GDSetClipRect(drawing, &clip);
                    TextModel model(*drawing.surface());
                    model.clip = clip;
                    for (const StyledString& string : strings) {
                        drawStyled(drawing, font, string);
                        if (through == TextThrough::CopiedOps) {
                            ops.attach(drawing);
                        }
                        GDDrawString(drawing, string.text.c_str());
                        drawByModel(model, font, string);
                        if (drawing->penPos.x != model.x || drawing->penPos.y != model.y) {
                            return "the pen is elsewhere";
                        }
                    }
                    return drawing.surface().memory().intact()
                               ? difference(*drawing.surface(), model)
                               : "bytes beside the surface were written";
                });
            }
        }
    }
}

TEST_F(String, PaintsABackgroundOnceAndItsLettersOnceMore) {
    const GRect clip{5, 3, 80, 33};
    platform.countPaint();
    platform.remove({43});
    GetGPIFunction();
    for (const int16_t bits : {int16_t{1}, int16_t{4}}) {
        ScriptedFont font(platform, bits);
        forRandomCalls(200, 4, randomString, [&](auto strings) -> std::string {
            DeviceDrawing drawing(kWidth, kHeight);
            GDSetFont(drawing, font.get());
            GDSetClipRect(drawing, &clip);
            TextModel model(*drawing.surface());
            model.clip = clip;
            for (StyledString& string : strings) {
                string.mode = kCountingMode;
                drawStyled(drawing, font, string);
                GDDrawString(drawing, string.text.c_str());
                drawByModel(model, font, string);
            }
            return difference(*drawing.surface(), model);
        });
    }
}

TEST_F(String, LeavesTheSameCellsByKernelsAndBySlots) {
    ScriptedFont font(platform);
    forRandomCalls(200, 2, randomString, [&](const auto& strings) -> std::string {
        quarlo::PixelCell cells[2];
        ptrdiff_t cursors[2];
        for (const bool copied : {false, true}) {
            quarlo::pixelCells[1] = {};
            Drawing drawing(kWidth, kHeight, 16);
            GDSetFont(drawing, font.get());
            CopiedOps ops;
            for (const StyledString& string : strings) {
                drawStyled(drawing, font, string);
                if (copied) {
                    ops.attach(drawing);
                }
                GDDrawString(drawing, string.text.c_str());
            }
            cells[copied] = quarlo::pixelCells[1];
            cursors[copied] = cells[copied].cursor == nullptr
                                  ? -1
                                  : cells[copied].cursor - drawing.surface().memory().data();
        }
        return cells[0].color == cells[1].color && cursors[0] == cursors[1] ? "" : "cells differ";
    });
}

TEST_F(String, HandsLevelsToACoverageOperation) {
    for (const int16_t bits : {int16_t{2}, int16_t{4}, int16_t{8}}) {
        ScriptedFont font(platform, bits);
        DeviceDrawing drawing(40, 20);
        GDSetFont(drawing, font.get());
        GDMoveTo(drawing, 2, 3);
        platform.forget();
        GDDrawString(drawing, u"M");
        const auto glyph = font.glyphOf(u"M");
        size_t next = 0;
        const auto plots = platform.callsOf(43);
        for (int32_t y = 0; y < glyph.height; ++y) {
            for (int32_t x = 0; x < glyph.width; ++x) {
                const uint32_t level = glyph.levels[static_cast<size_t>(y)][static_cast<size_t>(x)];
                if (level != 0) {
                    ASSERT_LT(next, plots.size());
                    EXPECT_EQ(plots[next].arguments[2], 2 + x);
                    EXPECT_EQ(plots[next].arguments[3], 3 + y);
                    EXPECT_EQ(plots[next].arguments[6], bits == 8 ? level >> 4 : level);
                    ++next;
                }
            }
        }
        EXPECT_EQ(next, plots.size());
    }
}

TEST_F(String, WithGlyphsOfNonsenseIsCalm) {
    Random random(testSeed());
    std::vector<uint8_t> bits(1 << 16, 0xFF);
    platform.serve<20>([&](GFontRecord*, GGlyphRequest* request) {
        request->next = random.oneIn(2) ? request->text + 1 : nullptr;
        request->width = random.coordinate(-20, 60);
        request->height = static_cast<int16_t>(random.between(-20, 60));
        request->bitsPerPixel = static_cast<int16_t>(random.between(-1, 9));
        request->bits = random.oneIn(4) ? nullptr : bits.data();
        if (request->width > 60) {
            request->width = 60;
        }
        return random.between(0, 4);
    });
    GFontScale scale{{}, 1, 1};
    GFontRecord record{0, 0, &scale};
    for (int round = 0; round < 2000; ++round) {
        Drawing drawing(40, 20, 24);
        GDSetFont(drawing, &record);
        scale.magnifyX = static_cast<uint8_t>(random.between(0, 2));
        GDMoveTo(drawing, random.coordinate(-30, 40), random.coordinate(-30, 40));
        GDDrawString(drawing, u"ABCDEF");
        EXPECT_TRUE(drawing.surface().memory().intact());
    }
    record.scale = nullptr;
    Drawing drawing(40, 20, 24);
    GDSetFont(drawing, &record);
    GDDrawString(drawing, u"ABCDEF");
}

} // namespace
