#include "text/string_drawing.h"

#include "font/font_store.h"
#include "geometry/map.h"
#include "guard.h"
#include "platform.h"
#include "text/text_target.h"

#include <algorithm>

namespace gpi {
namespace {

using quarlo::FrameMap;
using quarlo::low16;

/// The pen of a handle while it goes along a line of text. In virtual mode every glyph begins where
/// the mapped pen is, so that rounding adds up as it does when glyphs are drawn one by one.
class TextPen {
  public:
    /// @param at where the pen is on the surface
    TextPen(GDrawHandle& handle, GPoint at) : handle_(handle), at_(at) {}

    GPoint at() const { return at_; }

    void advance(int width) {
        GPoint next{low16(at_.x + width), at_.y};
        at_ = next;
        if ((handle_.modeFlags & G_FLAG_VIRTUAL) != 0) {
            FrameMap(handle_.view, handle_.virtualRect)(next);
            handle_.penPos = next;
            FrameMap(handle_.virtualRect, handle_.view)(next);
            at_ = next;
        } else {
            handle_.penPos = {low16(next.x + handle_.localOrigin.x),
                              low16(next.y + handle_.localOrigin.y)};
        }
    }

  private:
    GDrawHandle& handle_;
    GPoint at_;
};

struct Factors {
    int x = 1;
    int y = 1;
};

Factors factorsOf(const Font& font) {
    return {std::max<int>(font.scale().magnifyX, 1), std::max<int>(font.scale().magnifyY, 1)};
}

bool isLineEnd(const char16_t* text) {
    return *text == u'\n' || (text[0] == u'\r' && text[1] == u'\n');
}

void drawGlyph(const TextTarget& target, const GDrawHandle& handle, const Glyph& glyph, GPoint at,
               const Factors& factors) {
    if ((handle.textMode & G_TEXT_TRANSPARENT) == 0) {
        target.fill(at.x, at.y, glyph.width * factors.x, glyph.height * factors.y,
                    handle.backPixel);
    }
    if (factors.x == 1 && factors.y == 1) {
        target.blit(glyph, at.x, at.y, handle.penPixel);
    } else {
        target.blitBlocks(glyph, at.x, at.y, factors.x, factors.y, handle.penPixel);
    }
}

bool draw(GDrawHandle* handle, const char16_t* text, GPoint at, const GRect* clip, bool magnified) {
    FontStore* const fonts = platform().fonts.get();
    if (fonts == nullptr || handle == nullptr || text == nullptr || handle->target == nullptr) {
        return false;
    }
    Font* const font = fonts->find(handle->font);
    if (font == nullptr) {
        return false;
    }
    const TextTarget target(*handle, clip, screen()->display, screen()->drawing);
    const Factors factors = magnified ? factorsOf(*font) : Factors{};
    TextPen pen(*handle, at);
    while (*text != u'\0' && !(clip != nullptr && isLineEnd(text))) {
        const auto found = fonts->glyphAt(*font, text);
        if (found.glyph.exists) {
            drawGlyph(target, *handle, found.glyph, pen.at(), factors);
            pen.advance(found.glyph.width * factors.x);
        }
        text += found.units;
    }
    return true;
}

} // namespace

int32_t drawString(GDrawHandle* handle, const char16_t* text, int16_t x, int16_t y,
                   const GRect* clip) {
    return guarded(0, [&] { return draw(handle, text, {x, y}, clip, false) ? 1 : 0; });
}

int32_t drawCaptionLine(GDrawHandle* handle, const char16_t* line, int16_t x, int16_t y,
                        const GRect* clip) {
    return guarded(0, [&] {
        return clip != nullptr && draw(handle, line, {x, y}, clip, true) ? 1 : 0;
    });
}

bool drawsWholeStrings() {
    return guarded(true, [] {
        return screen() != nullptr
                   ? platform().wholeStrings
                   : SettingSource::standard().find(kWholeStringsSetting).value_or("yes") != "no";
    });
}

} // namespace gpi
