// Fonts: services 13 to 21, 25 and 207, and the number of fonts.
#pragma once

#include <quarlo/font.h>

namespace gpi {

GFontRecord* loadFont(const char16_t* face);
int32_t setFontSize(GFontRecord* font, int16_t width, int16_t height);
int32_t getFontSize(GFontRecord* font, int16_t* width, int16_t* height);
int32_t setFontAttribute(GFontRecord* font, const GFontAttribute* attribute);
int32_t getFontAttribute(GFontRecord* font, GFontAttribute* attribute);
int32_t setFontUserAttribute(GFontRecord* font, const GFontUserAttribute* attribute);
int32_t getFontUserAttribute(GFontRecord* font, GFontUserAttribute* attribute);
int32_t findGlyph(GFontRecord* font, GGlyphRequest* request);
void releaseFont(GFontRecord* font);
int32_t getFontInformation(GFontRecord* font, GFontInformation* information);
int32_t setGbFontFlag(int32_t flag);

/// Fonts that there are; 0 before the start.
int32_t fontCount();

} // namespace gpi
