// Fonts and text, and what only tools ask for.
#include "services/service.h"

namespace doctor {
namespace {

using enum Need;
using enum Asked;

constexpr Service kFonts[] = {
    {13, "LOAD_FONT", "GPILoadFont", Optional, AtStart, "GFLoadFont(): loads a font",
     "GFLoadFont() and GDSetSimpleFont() give null: no text; GDDrawErrorMessage() draws nothing"},
    {14, "SET_FONT_SIZE", "GPISetFontSize", Optional, AtStart,
     "GFSetSize(): sets a font's cell size", "GFSetSize() gives 0"},
    {15, "GET_FONT_SIZE", "GPIGetFontSize", Optional, AtStart, "GFGetSize(): reads what 14 sets",
     "GFGetSize() gives 0"},
    {16, "SET_FONT_ATTRIBUTE", "GPISetFontAttribute", Optional, AtStart,
     "GFSetFontAttribute(), GDSetSimpleFont(): sets a font's properties",
     "GFSetFontAttribute() gives 0; GDSetSimpleFont() leaves the font as it was loaded"},
    {17, "GET_FONT_ATTRIBUTE", "GPIGetFontAttribute", Optional, AtStart,
     "GFGetFontAttribute(): reads a font's properties", "GFGetFontAttribute() gives 0"},
    {18, "SET_FONT_USER_ATTRIBUTE", "GPISetFontUserAttribute", Optional, AtStart,
     "GFSetFontUserAttribute(): sets what the program keeps with a font",
     "GFSetFontUserAttribute() gives 0"},
    {19, "GET_FONT_USER_ATTRIBUTE", "GPIGetFontUserAttribute", Optional, AtStart,
     "GFGetFontUserAttribute(): reads what 18 sets", "GFGetFontUserAttribute() gives 0"},
    {20, "GLYPH", "GPIGlyph", Optional, AtStart, "finds the glyph that a text begins with",
     "all text measures 0; no caption is drawn, and strings by 44 alone"},
    {21, "RELEASE_FONT", "GPIReleaseFont", Optional, AtStart, "GFReleaseFont(): gives a font back",
     "fonts are not given back"},
    {25, "GET_FONT_INFORMATION", "GPIGetFontInformation", Optional, AtStart,
     "GFGetFontInformation(): tells of a font", "GFGetFontInformation() gives 0"},
    {36, "STRING_LENGTH", "GPIStringLength", Expected, AtStart,
     "GDGetStringLength(): counts the characters of a string", "GDGetStringLength() gives 0"},
    {37, "PREVIOUS_CHAR", "GPIPreviousChar", Expected, AtStart,
     "GDGetPrevChar(): steps back by a character", "GDGetPrevChar() gives null"},
    {38, "NEXT_CHAR", "GPINextChar", Expected, AtStart, "GDGetNextChar(): steps on by a character",
     "GDGetNextChar() gives null"},
    {44, "DRAW_STRING", "GPIDrawString", Optional, AtStart,
     "GDDrawString() and captions of one line, in fonts of natural size",
     "the library draws glyph by glyph"},
    {61, "UNICODE_TO_MULTI_BYTE", "GPIUnicodeToMultiByte", Expected, AtStart,
     "GRCUnicodeToMultiByte(): converts to 8-bit text", "GRCUnicodeToMultiByte() gives 0"},
    {62, "MULTI_BYTE_TO_UNICODE", "GPIMultiByteToUnicode", Expected, AtStart,
     "GRCMultiByteToUnicode(): converts 8-bit text",
     "GRCMultiByteToUnicode() gives 0; outside Windows GDDrawErrorMessage() draws nothing"},
    {75, "DRAW_CAPTION_LINE", "GPIDrawCaptionLine", Optional, AtStart,
     "GDDrawCaptionStringDirect(), GDDrawErrorMessage(): draws a line",
     "GDDrawCaptionStringDirect() and GDDrawErrorMessage() draw nothing"},
    {79, "IS_LEAD_BYTE", "GPIIsLeadByte", Expected, AtStart,
     "GRCIsLeadByte(): whether a byte begins a character of more than one",
     "GRCIsLeadByte() gives 0"},
    {207, "SET_GB_FONT_FLAG", "GPISetGBFontFlag", Optional, AtStart,
     "GFSetGBFontFlag(): chooses the script of ideographs that two share",
     "GFSetGBFontFlag() gives 0"},
};

constexpr Service kQuestions[] = {
    {23, "DESCRIBE", "GPIDescribe", Optional, AtStart, "names the platform and its version",
     "nothing: the library never calls it"},
    {24, "COUNT_SURFACES", "GPICountSurfaces", Optional, AtStart,
     "how many device surfaces there are", "nothing: the library never calls it"},
    {30, "COUNT_SIGNALS", "GPICountSignals", Optional, AtStart,
     "signals of 31 that nobody has waited for yet", "nothing: the library never calls it"},
};

} // namespace

const Group kFontsAndText{"Fonts and text", kFonts};
const Group kTools{"For tools", kQuestions};

} // namespace doctor
