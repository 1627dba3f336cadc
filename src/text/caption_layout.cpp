#include "text/caption_layout.h"

namespace quarlo {
namespace {

/// Calls visit(builder) before each step and at the end.
template <typename Line, typename Visit>
void split(LineTable<Line>& lines, LineBuilder<Line>& builder, int32_t most, const Visit& visit) {
    for (visit(builder); !builder.atEnd() && lines.count() < most; visit(builder)) {
        const int32_t units = breakAt(builder.text());
        if (units == 0) {
            builder.takeGlyph();
        } else {
            lines.add(builder.line());
            builder.breakLine(units);
        }
    }
    if (builder.line().glyphs > 0) { // none after the last line that there is room for
        lines.add(builder.line());
    }
}

} // namespace

void splitLines(LineTable<CaptionLine>& lines, GFontRecord* font, const char16_t* text,
                int32_t scale, int32_t most) {
    LineBuilder<CaptionLine> builder(font, text, scale);
    split(lines, builder, most, [](const auto&) {});
}

CursorPlace splitLines(LineTable<CursorLine>& lines, GFontRecord* font, const char16_t* text,
                       int32_t scale, int32_t most, int32_t cursorPos) {
    LineBuilder<CursorLine> builder(font, text, scale);
    CursorPlace place;
    int32_t steps = 0;
    split(lines, builder, most, [&](LineBuilder<CursorLine>& at) {
        if (steps++ == cursorPos) {
            at.line().cursor = at.line().glyphs;
            place = {lines.count(), at.line().width};
        }
    });
    return place;
}

void joinLines(LineTable<CaptionLine>& lines, GFontRecord* font, const char16_t* text,
               int32_t scale) {
    LineBuilder<CaptionLine> builder(font, text, scale);
    while (!builder.atEnd()) {
        if (*builder.text() == u'\r' || *builder.text() == u'\n') {
            builder.skip();
        } else {
            builder.takeGlyph();
        }
    }
    if (builder.line().glyphs > 0) {
        lines.add(builder.line());
    }
}

} // namespace quarlo
