// Captions a second way: laid out and drawn step by step on the plain model of text.
#pragma once

#include "text/text_model.h"

#include <quarlo/text.h>

#include <cstdint>
#include <string>
#include <vector>

namespace quarlo::test {

/// A caption and all that it depends on.
struct CaptionCase {
    std::u16string text;
    GRect rect;
    GCaptionAttr attr;
    GCaptionCursor cursor;
    GCaptionSelect selection;
    int32_t cursorPos;
    int32_t fromRight;
    int32_t scroll;
    int32_t mode;
    int32_t textMode;
    uint32_t pen;
    uint32_t back;
    uint8_t magnifyX;
    uint8_t magnifyY;
    uint16_t kind;
};

class CaptionModel {
  public:
    CaptionModel(TextModel& canvas, const ScriptedFont& font, const CaptionCase& call)
        : canvas_(canvas), font_(font), call_(call) {
        if (call.kind == 0) {
            fx_ = call.magnifyX != 0 ? call.magnifyX : 1;
            fy_ = call.magnifyY != 0 ? call.magnifyY : 1;
        }
        left_ = call.rect.left + call.attr.leftMargin;
        top_ = call.rect.top + call.attr.topMargin;
        right_ = call.rect.right - call.attr.rightMargin;
        bottom_ = call.rect.bottom - call.attr.bottomMargin;
    }

    void drawPlain() {
        if (!prepare()) {
            return;
        }
        layOut(call_.text, -1);
        int32_t v = vertical(static_cast<int32_t>(lines_.size()));
        int32_t h = stray();
        for (const Line& line : lines_) {
            h = horizontal(line.width, h);
            canvas_.x = left_ + h;
            canvas_.y = top_ + v;
            size_t at = line.start;
            for (int32_t i = 0; i < line.glyphs; ++i) {
                at = drawGlyphAt(call_.text, at);
            }
            v += step_;
        }
        finish();
    }

    void drawScrolled() {
        if (!prepare()) {
            return;
        }
        std::u16string joined;
        for (const char16_t unit : call_.text) {
            if (unit != u'\r' && unit != u'\n') {
                joined += unit;
            }
        }
        layOut(joined, -1);
        if (!lines_.empty()) {
            const int32_t h =
                call_.fromRight != 0 ? boxWidth() : horizontal(lines_[0].width, stray());
            canvas_.x = left_ + h - call_.scroll;
            canvas_.y = top_ + vertical(1);
            size_t at = 0;
            for (int32_t i = 0; i < lines_[0].glyphs; ++i) {
                at = drawGlyphAt(joined, at);
            }
        }
        finish();
    }

    void drawWithCursor() {
        if (!prepare()) {
            return;
        }
        const bool empty = call_.text.empty() && call_.cursorPos == 0;
        const std::u16string text = empty ? std::u16string(1, u' ') : call_.text;
        layOut(text, call_.cursorPos);
        const auto lines = static_cast<int32_t>(lines_.size());
        int32_t v = vertical(lines);
        const int32_t cursorY = cursorLine_ < 0 ? 0 : cursorLine_ * step_;
        if (v + cursorY < 0) {
            v = -cursorY;
        } else if (boxHeight() < v + cursorY + step_) {
            v = boxHeight() - cursorY - step_;
        }
        int32_t scroll = call_.attr.horizontal == 2 ? 1 : 0;
        if (cursorLine_ >= 0) {
            const int32_t width =
                cursorLine_ < lines ? lines_[static_cast<size_t>(cursorLine_)].width : 0;
            const int32_t q = horizontal(width, 0) + cursorX_;
            scroll = q < 0 ? -q : (boxWidth() < q + 4 ? boxWidth() - q - 4 : 0);
        }
        for (const Line& line : lines_) {
            canvas_.x = left_ + horizontal(line.width, 0) + scroll;
            canvas_.y = top_ + v;
            drawCursorLine(text, line);
            v += step_;
        }
        finish();
    }

  private:
    struct Line {
        size_t start;
        int32_t glyphs = 0;
        int32_t width = 0;
        int32_t cursor = -1;
    };

    int32_t boxWidth() const { return right_ - left_ + 1; }
    int32_t boxHeight() const { return bottom_ - top_ + 1; }
    int32_t stray() const { return static_cast<int16_t>(call_.pen & canvas_.mask); }

    bool prepare() {
        if (left_ > right_ || top_ > bottom_) {
            return false;
        }
        const auto letter = font_.glyphOf(u"A");
        if (letter.width < 0) {
            return false;
        }
        step_ = letter.height * fy_;
        most_ = (boxHeight() + step_ - 1) / step_;
        clip_ = canvas_.clip;
        const auto low = [](int32_t value) { return static_cast<int16_t>(value); };
        GRect& clip = canvas_.clip;
        clip = {std::max(clip.left, low(left_)), std::max(clip.top, low(top_)),
                std::min(clip.right, low(right_)), std::min(clip.bottom, low(bottom_))};
        if (clip.left > clip.right || clip.top > clip.bottom) {
            canvas_.clip = clip_;
            return false;
        }
        pen_ = canvas_.pen;
        canvas_.pen = call_.attr.color;
        return true;
    }

    void finish() {
        canvas_.clip = clip_;
        canvas_.pen = pen_;
    }

    void layOut(const std::u16string& text, int32_t cursorPos) {
        Line line{0};
        int32_t counter = 0;
        size_t at = 0;
        const auto look = [&] {
            if (counter == cursorPos) {
                line.cursor = line.glyphs;
                cursorLine_ = static_cast<int32_t>(lines_.size());
                cursorX_ = line.width;
            }
        };
        look();
        while (at < text.size() && static_cast<int32_t>(lines_.size()) < most_) {
            const bool pair = text.compare(at, 2, u"\r\n") == 0;
            if (pair || text[at] == u'\n') {
                lines_.push_back(line);
                at += pair ? 2 : 1;
                line = Line{at};
            } else {
                const auto glyph = font_.glyphOf(text.c_str() + at);
                if (glyph.width >= 0) {
                    ++line.glyphs;
                    line.width += glyph.width * fx_;
                }
                at += static_cast<size_t>(glyph.width >= 0 ? glyph.units : 1);
            }
            ++counter;
            look();
        }
        if (line.glyphs > 0 && static_cast<int32_t>(lines_.size()) < most_) {
            lines_.push_back(line);
        }
    }

    int32_t vertical(int32_t lines) const {
        const int32_t room = boxHeight() - step_ * lines;
        const int32_t offsets[] = {0, room / 2, room};
        return call_.attr.vertical <= 2 ? offsets[call_.attr.vertical] : stray();
    }

    int32_t horizontal(int32_t width, int32_t previous) const {
        const int32_t room = boxWidth() - width;
        const int32_t offsets[] = {0, room / 2, room};
        return call_.attr.horizontal <= 2 ? offsets[call_.attr.horizontal] : previous;
    }

    size_t drawGlyphAt(const std::u16string& text, size_t at) {
        if (at >= text.size()) {
            return at;
        }
        const auto glyph = font_.glyphOf(text.c_str() + at);
        if (glyph.width < 0) {
            return at + 1;
        }
        canvas_.drawGlyph(glyph, fx_, fy_);
        return at + static_cast<size_t>(glyph.units);
    }

    void fillBox(int32_t left, int32_t top, int32_t right, uint32_t color, bool inverting) {
        const int32_t mode = canvas_.mode;
        canvas_.mode = inverting && mode != kCountingMode ? 3 : mode;
        if (left <= right && color != G_NO_COLOR) {
            canvas_.fill(left, top, right, top + step_, color);
        }
        canvas_.mode = mode;
    }

    void drawCursorLine(const std::u16string& text, const Line& line) {
        const bool block = call_.cursor.style == 1;
        const GCaptionSelect& selection = call_.selection;
        int32_t selectedFrom = 0;
        bool reached = false;
        size_t at = line.start;
        for (int32_t k = 0; k < line.glyphs; ++k) {
            const int32_t before = canvas_.x;
            if (selection.shown != 0 && k == selection.first) {
                selectedFrom = canvas_.x;
                reached = true;
            }
            at = drawGlyphAt(text, at);
            if (selection.shown != 0 && k == selection.last && reached) {
                fillBox(selectedFrom, canvas_.y, canvas_.x, selection.color, true);
            }
            if (k == line.cursor) {
                fillBox(before, canvas_.y, block ? canvas_.x - 1 : before + 1, call_.cursor.color,
                        block);
            }
        }
        if (line.cursor == line.glyphs) {
            const int32_t space = std::max(font_.glyphOf(u" ").width, 0);
            fillBox(canvas_.x, canvas_.y, canvas_.x + (block ? space - 1 : 1), call_.cursor.color,
                    block);
        }
    }

    TextModel& canvas_;
    const ScriptedFont& font_;
    const CaptionCase& call_;
    int32_t fx_ = 1;
    int32_t fy_ = 1;
    int32_t left_;
    int32_t top_;
    int32_t right_;
    int32_t bottom_;
    int32_t step_ = 0;
    int32_t most_ = 0;
    GRect clip_{};
    uint32_t pen_ = 0;
    std::vector<Line> lines_;
    int32_t cursorLine_ = -1;
    int32_t cursorX_ = 0;
};

} // namespace quarlo::test
