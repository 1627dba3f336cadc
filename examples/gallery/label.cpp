#include "label.h"

#include "font.h"

#include <quarlo/draw.h>
#include <quarlo/handle.h>
#include <quarlo/text.h>

#include <cstdint>

namespace gallery {

std::u16string wide(std::string_view text) {
    return {text.begin(), text.end()};
}

int labelWidth(GDrawHandle* handle, std::string_view text, int height) {
    const HandleFont font(handle, height);
    return GDGetStringWidth(handle, wide(text).c_str());
}

void drawLabel(GDrawHandle* handle, int left, int top, std::string_view text, uint32_t color,
               int height) {
    const HandleFont font(handle, height);
    const uint32_t penBefore = handle->penColor;
    const int16_t modeBefore = handle->textMode;
    GDSetPenColor(handle, color);
    GDSetTextMode(handle, G_TEXT_TRANSPARENT);
    GDMoveTo(handle, static_cast<int16_t>(left), static_cast<int16_t>(top));
    GDDrawString(handle, wide(text).c_str());
    GDSetTextMode(handle, modeBefore);
    GDSetPenColor(handle, penBefore);
}

void drawCentredLabel(GDrawHandle* handle, GPoint centre, std::string_view text, uint32_t color,
                      int height) {
    drawLabel(handle, centre.x - labelWidth(handle, text, height) / 2, centre.y - height / 2, text,
              color, height);
}

} // namespace gallery
