#include "font.h"

#include <cstdint>

namespace gallery {

HandleFont::HandleFont(GDrawHandle* handle, int size, const FontStyle& style, const char16_t* face)
    : handle_(handle), before_(handle->font) {
    GSimpleFont font{};
    for (int i = 0; i < G_FACE_SIZE - 1 && face[i] != u'\0'; ++i) {
        font.face[i] = face[i];
    }
    font.size = static_cast<uint8_t>(size);
    font.magnifyX = static_cast<uint8_t>(style.magnifyX);
    font.magnifyY = static_cast<uint8_t>(style.magnifyY);
    font.bitsPerPixel = 1;
    font.flags = style.bold ? G_SIMPLE_FONT_BOLD : 0;
    font_ = GDSetSimpleFont(handle, &font);
}

HandleFont::~HandleFont() {
    GDSetFont(handle_, before_);
    GFReleaseFont(font_);
}

} // namespace gallery
