// Fonts: forwards to the platform that owns them, and the font of a draw handle.
#include "platform/service_table.h"

#include <gpi/gpi.h>
#include <quarlo/font.h>
#include <quarlo/handle.h>

#include <cstring>

using quarlo::ForwardTo;

GFontRecord* GFLoadFont(const char16_t* face) {
    return ForwardTo<GFLoadFont, 13>::checked(face);
}

int32_t GFSetSize(GFontRecord* font, int16_t width, int16_t height) {
    return ForwardTo<GFSetSize, 14>::checked(font, width, height);
}

int32_t GFGetSize(GFontRecord* font, int16_t* width, int16_t* height) {
    return ForwardTo<GFGetSize, 15>::checked(font, width, height);
}

int32_t GFSetFontAttribute(GFontRecord* font, const GFontAttribute* attribute) {
    return ForwardTo<GFSetFontAttribute, 16>::checked(font, attribute);
}

int32_t GFGetFontAttribute(GFontRecord* font, GFontAttribute* attribute) {
    return ForwardTo<GFGetFontAttribute, 17>::checked(font, attribute);
}

int32_t GFSetFontUserAttribute(GFontRecord* font, const GFontUserAttribute* attribute) {
    return ForwardTo<GFSetFontUserAttribute, 18>::checked(font, attribute);
}

int32_t GFGetFontUserAttribute(GFontRecord* font, GFontUserAttribute* attribute) {
    return ForwardTo<GFGetFontUserAttribute, 19>::checked(font, attribute);
}

void GFReleaseFont(GFontRecord* font) {
    if (font != nullptr) {
        ForwardTo<GFReleaseFont, 21>::checked(font);
    }
}

int32_t GFGetFontInformation(GFontRecord* font, GFontInformation* information) {
    return ForwardTo<GFGetFontInformation, 25>::checked(font, information);
}

int32_t GFSetGBFontFlag(int32_t flag) {
    return ForwardTo<GFSetGBFontFlag, 207>::checked(flag);
}

int32_t GFGetFontCount() {
    return GPIGetFontCount();
}

int32_t GDSetFont(GDrawHandle* handle, GFontRecord* font) {
    if (handle == nullptr) {
        return 0;
    }
    handle->font = font;
    return 1;
}

GFontRecord* GDSetSimpleFont(GDrawHandle* handle, const GSimpleFont* descriptor) {
    // The platform is given the descriptor as it stands, aligned or not.
    GFontRecord* const font = GFLoadFont(reinterpret_cast<const char16_t*>(descriptor));
    GDSetFont(handle, font);
    if (font == nullptr) {
        return nullptr;
    }
    GSimpleFont simple;
    std::memcpy(&simple, descriptor, sizeof simple);
    GFontAttribute attribute{};
    attribute.height = simple.size;
    attribute.wideWidth = simple.size;
    attribute.bitsPerPixel = simple.bitsPerPixel;
    attribute.bold = simple.flags & G_SIMPLE_FONT_BOLD;
    attribute.magnification = static_cast<uint16_t>(simple.magnifyX | simple.magnifyY << 8);
    GFSetFontAttribute(font, &attribute);
    return font;
}
