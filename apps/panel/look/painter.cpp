#include "look/painter.h"

#include <algorithm>
#include <iterator>

namespace panel {
namespace {

constexpr char16_t kFaceName[] = u"TORVANDELL CNC Gothic";

/// Edges are smooth where pixels between two colours can be had.
uint8_t glyphBits(const GVram& display) {
    return display.colorType == G_COLOR_PALETTE ? 1 : 4;
}

/// @param height of a cell
GSimpleFont descriptor(const GVram& display, int height) {
    GSimpleFont font{};
    std::copy(std::begin(kFaceName), std::end(kFaceName), font.face);
    font.size = static_cast<uint8_t>(height);
    font.bitsPerPixel = glyphBits(display);
    return font;
}

} // namespace

bool canPaint() {
    GDrawHandle* const handle = GDOpenDrawHandle(0, 0);
    if (handle == nullptr) {
        return false;
    }
    const GSimpleFont font = descriptor(*GDGetVram(handle), 16);
    GFontRecord* const found = GDSetSimpleFont(handle, &font);
    GDCloseDrawHandle(handle);
    GFReleaseFont(found);
    return found != nullptr;
}

Painter::Painter()
    : handle_(GDOpenDrawHandle(0, 0)),
      measures_(&measuresFor(widthOf(handle_->view), heightOf(handle_->view))),
      palette_(preparePalette(handle_)) {
    GDSetTextMode(handle_, G_TEXT_TRANSPARENT);
    for (size_t i = 0; i < kFaceCount; ++i) {
        const GSimpleFont font = descriptor(*GDGetVram(handle_), measures_->faces[i]);
        fonts_[i] = GDSetSimpleFont(handle_, &font);
    }
}

Painter::~Painter() {
    GDCloseDrawHandle(handle_);
    for (GFontRecord* const font : fonts_) {
        GFReleaseFont(font);
    }
}

void Painter::fill(const GRect& rect, Ink ink) const {
    GDSetPenColor(handle_, G_NO_COLOR);
    GDSetFillAttribute(handle_, G_FILL_FORE, color(ink), color(ink));
    GDDrawRect(handle_, &rect);
}

void Painter::frame(const GRect& rect, Ink ink) const {
    GDSetPenColor(handle_, color(ink));
    GDSetFillPattern(handle_, G_FILL_NONE);
    GDDrawRect(handle_, &rect);
}

void Painter::plate(const GRect& rect, Ink ground, Ink edge) const {
    GDSetPenColor(handle_, color(edge));
    GDSetFillAttribute(handle_, G_FILL_FORE, color(ground), color(ground));
    GDDrawRRect(handle_, &rect, measures_->radius, measures_->radius);
}

void Painter::text(const GRect& rect, const TextLook& look, const std::u16string& text) const {
    if (text.empty()) {
        return;
    }
    select(look.face);
    const GCaptionAttr attr{
        color(look.ink), static_cast<uint8_t>(look.align), G_ALIGN_MIDDLE, 0, 0, 0, 0};
    GDDrawCaptionString(handle_, &rect, &attr, text.c_str());
}

void Painter::select(Face face) const {
    GDSetFont(handle_, fonts_[static_cast<size_t>(face)]);
}

} // namespace panel
