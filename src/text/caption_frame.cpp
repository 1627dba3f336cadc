#include "text/caption_frame.h"

#include "geometry/geometry.h"
#include "text/glyph_finder.h"

#include <quarlo/clip.h>

namespace quarlo {
namespace {

Magnification captionScale(const GFontRecord& font) {
    return font.kind == 0 ? magnificationOf(font) : Magnification{1, 1};
}

} // namespace

bool measureBox(GDrawHandle* handle, const GRect& rect, const GCaptionAttr& attr, CaptionBox& box) {
    box.rect = {low16(rect.left + attr.leftMargin), low16(rect.top + attr.topMargin),
                low16(rect.right - attr.rightMargin), low16(rect.bottom - attr.bottomMargin)};
    box.scale = captionScale(*handle->font);
    box.width = widthOf(box.rect);
    box.height = heightOf(box.rect);
    box.lineHeight = isValid(box.rect) ? GDGetCharHeight(handle, u'A') * box.scale.y : 0;
    return box.lineHeight > 0;
}

CaptionFrame::CaptionFrame(GDrawHandle* handle, const CaptionBox& box, uint32_t color)
    : handle_(handle),
      penColor_(handle->penColor),
      penPixel_(handle->penPixel),
      visible_(GDInceptClipRect(handle, &box.rect, &clip_) != 0) {
    if (visible_) {
        GDSetPenColor(handle, color);
    }
}

CaptionFrame::~CaptionFrame() {
    if (visible_) {
        GDSetClipRect(handle_, &clip_);
        handle_->penColor = penColor_;
        handle_->penPixel = penPixel_;
    }
}

int32_t verticalOffset(const CaptionBox& box, uint8_t alignment, int32_t lines, int32_t stray) {
    const int32_t room = box.height - box.lineHeight * lines;
    switch (alignment) {
    case G_ALIGN_TOP:
        return 0;
    case G_ALIGN_MIDDLE:
        return room / 2;
    case G_ALIGN_BOTTOM:
        return room;
    default:
        return stray;
    }
}

int32_t horizontalOffset(const CaptionBox& box, uint8_t alignment, int32_t width,
                         int32_t previous) {
    switch (alignment) {
    case G_ALIGN_LEFT:
        return 0;
    case G_ALIGN_CENTRE:
        return static_cast<int32_t>((int64_t{box.width} - width) / 2);
    case G_ALIGN_RIGHT:
        return static_cast<int32_t>(int64_t{box.width} - width);
    default:
        return previous;
    }
}

const char16_t* drawCaptionGlyph(const Canvas& canvas, const Magnification& scale,
                                 const char16_t* text) {
    GlyphFinder finder(canvas.handle.font, GlyphPurpose::Drawing);
    const bool found = finder.find(text);
    if (found && scale.isNatural()) {
        drawGlyph(canvas, finder.glyph());
    } else if (found) {
        drawGlyphZoomed(&canvas.handle, finder.glyph(), scale);
    }
    return finder.step(text, found);
}

} // namespace quarlo
