/* A font with ideographs, and what it costs. */
#include <quarlo/quarlo.h>

/* The panel's face at 16 x 16 pixels and one bit a pixel, the cheapest that is good to read. */
GFontRecord* loadIdeographs(GDrawHandle* handle) {
    const GSimpleFont font = {u"TORVANDELL CNC Gothic", .size = 16, .bitsPerPixel = 1};
    return GDSetSimpleFont(handle, &font);
}

/* Bytes that the glyphs take which are held ready. */
uint32_t glyphBytes(GFontRecord* font) {
    GFontInformation information;
    return GFGetFontInformation(font, &information) ? information.cachedBytes : 0;
}
