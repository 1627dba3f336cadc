// Strings at the pen position.
#include "geometry/view.h"
#include "text/glyph.h"
#include "text/glyph_finder.h"
#include "text/string_service.h"

#include <quarlo/text.h>

namespace quarlo {

Magnification magnificationOf(const GFontRecord& font) {
    const GFontScale* const scale = font.scale;
    const int32_t x = scale != nullptr ? scale->magnifyX : 1;
    const int32_t y = scale != nullptr ? scale->magnifyY : 1;
    return {x == 0 ? 1 : x, y == 0 ? 1 : y};
}

namespace {

/// Calls draw(glyph) for each glyph of a text.
template <typename Draw>
void forEachGlyph(GFontRecord* font, const char16_t* text, const Draw& draw) {
    GlyphFinder finder(font, GlyphPurpose::Drawing);
    while (*text != u'\0') {
        const bool found = finder.find(text);
        if (found) {
            draw(finder.glyph());
        }
        text = finder.step(text, found);
    }
}

} // namespace
} // namespace quarlo

using namespace quarlo;

void GDDrawString(GDrawHandle* handle, const char16_t* text) {
    GFontRecord* const font = handle->font;
    if (text == nullptr || font == nullptr) {
        return;
    }
    const Magnification scale = magnificationOf(*font);
    if (font->kind != 0 || !scale.isNatural()) {
        forEachGlyph(font, text,
                     [&](const GGlyphRequest& glyph) { drawGlyphZoomed(handle, glyph, scale); });
        return;
    }
    if (DrawStringService::bound()) {
        GPoint at = handle->penPos;
        mapToScreen(*handle, at);
        DrawStringService::checked(handle, text, at.x, at.y, nullptr);
        return;
    }
    const Canvas canvas(*handle);
    forEachGlyph(font, text, [&](const GGlyphRequest& glyph) { drawGlyph(canvas, glyph); });
}
