// The size of text.
#include "geometry/map.h"
#include "text/glyph_finder.h"

#include <quarlo/font.h>
#include <quarlo/handle.h>

#include <cstring>

namespace quarlo {
namespace {

/// The answer for a single unit; all zero without a glyph.
GGlyphRequest measured(GDrawHandle* handle, char16_t unit) {
    const char16_t text[] = {unit, u'\0'};
    GlyphFinder finder(handle->font, GlyphPurpose::Measuring);
    return finder.find(text) ? finder.glyph() : GGlyphRequest{};
}

} // namespace
} // namespace quarlo

using namespace quarlo;

int16_t GDGetCharWidth(GDrawHandle* handle, char16_t unit) {
    return measured(handle, unit).width;
}

int16_t GDGetCharHeight(GDrawHandle* handle, char16_t unit) {
    return measured(handle, unit).height;
}

int16_t GDGetStringWidth(GDrawHandle* handle, const char16_t* text) {
    GlyphFinder finder(handle->font, GlyphPurpose::Measuring);
    int16_t width = 0;
    while (*text != u'\0') {
        const bool found = finder.find(text);
        if (found && *text != u'\n') {
            width = low16(width + finder.glyph().width);
        }
        text = finder.step(text, found);
    }
    return width;
}

GSize* GDGetStringSize(GSize* out, GDrawHandle* handle, const char16_t* text) {
    const int16_t lineHeight = GDGetCharHeight(handle, u'A');
    GlyphFinder finder(handle->font, GlyphPurpose::Measuring);
    GSize size{0, lineHeight};
    int16_t lineWidth = 0;
    while (*text != u'\0') {
        const bool found = finder.find(text);
        if (*text == u'\n') {
            size.width = size.width < lineWidth ? lineWidth : size.width;
            size.height = low16(size.height + lineHeight);
            lineWidth = 0;
        } else if (found) {
            lineWidth = low16(lineWidth + finder.glyph().width);
        }
        text = finder.step(text, found);
    }
    size.width = size.width < lineWidth ? lineWidth : size.width;
    std::memcpy(out, &size, sizeof size);
    return out;
}
