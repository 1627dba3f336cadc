#include "support/scripted_font.h"

#include <gtest/gtest.h>

namespace quarlo::test {
namespace {

bool isPair(const char16_t* text) {
    return (text[0] & 0xFC00) == 0xD800 && (text[1] & 0xFC00) == 0xDC00;
}

} // namespace

ScriptedFont::ScriptedFont(RecordingPlatform& platform, int16_t bitsPerPixel, int16_t height)
    : bitsPerPixel_(bitsPerPixel), height_(height) {
    scale_.magnifyX = scale_.magnifyY = 1;
    record_.scale = &scale_;
    platform.serve<20>(
        [this](GFontRecord* font, GGlyphRequest* request) { return answer(font, request); });
}

ScriptedFont::Glyph ScriptedFont::glyphOf(const char16_t* text) const {
    Glyph glyph;
    glyph.units = isPair(text) ? 2 : 1;
    if ((*text & 0xFF00) == 0xE000 || missing_.contains(*text)) {
        return glyph;
    }
    glyph.width = *text == u' ' ? 4 : 3 + *text % 17;
    glyph.height = height_;
    uint32_t state = *text * 2654435761U + 12345;
    for (int32_t y = 0; y < glyph.height; ++y) {
        glyph.levels.emplace_back();
        for (int32_t x = 0; x < glyph.width; ++x) {
            state = state * 1664525U + 1013904223U;
            const uint32_t level = state >> 24 & ((1U << bitsPerPixel_) - 1);
            glyph.levels.back().push_back((state & 0x10000) != 0 ? level : 0);
        }
    }
    return glyph;
}

int32_t ScriptedFont::answer(GFontRecord* font, GGlyphRequest* request) {
    EXPECT_TRUE(font == nullptr || font == &record_);
    EXPECT_NE(*request->text, u'\0');
    flags_.push_back(request->metricsOnly);
    const Glyph glyph = glyphOf(request->text);
    if (glyph.width < 0) {
        return 0x7FFF0000; // only the low 16 bits count
    }
    request->next = request->text + glyph.units;
    request->width = static_cast<int16_t>(glyph.width);
    request->height = static_cast<int16_t>(glyph.height);
    request->bitsPerPixel = bitsPerPixel_;
    const int32_t rowBytes = (glyph.width * bitsPerPixel_ + 7) / 8;
    bitmap_.assign(static_cast<size_t>(rowBytes * glyph.height), 0);
    for (int32_t y = 0; y < glyph.height; ++y) {
        for (int32_t x = 0; x < glyph.width; ++x) {
            const int32_t bit = x * bitsPerPixel_;
            const uint32_t level = glyph.levels[static_cast<size_t>(y)][static_cast<size_t>(x)];
            bitmap_[static_cast<size_t>(y * rowBytes + bit / 8)] |=
                static_cast<uint8_t>(level << (8 - bit % 8 - bitsPerPixel_));
        }
    }
    request->bits = bitmap_.data();
    return 0x10001;
}

} // namespace quarlo::test
