#include "every_call/calls.h"

namespace quarlo::test {

namespace {

/// A function of a single unit; NUL is none that platforms are asked for.
ProgramCall ofUnit(const char* name, int16_t (*function)(GDrawHandle*, char16_t)) {
    return onHandle(name, [=](Panel& panel) {
        const auto unit = panel.number<char16_t>(u'A');
        function(panel.handle(), unit != u'\0' ? unit : u'A');
    });
}

} // namespace

ProgramCalls textCalls() {
    return {
        with("GDDrawString", GDDrawString),
        with("GDDrawCaptionString", GDDrawCaptionString),
        with("GDDrawCaptionStringDirect", GDDrawCaptionStringDirect),
        with("GDDrawCaptionScrollString", GDDrawCaptionScrollString, {1, 4}),
        with("GDDrawCaptionCursorSelectString", GDDrawCaptionCursorSelectString, {3}),
        with("GDDrawCaptionCursorString", GDDrawCaptionCursorString, {2}),
        with("GDDrawErrorMessage", GDDrawErrorMessage),
        with("GFLoadFont", GFLoadFont),
        with("GFReleaseFont", GFReleaseFont),
        with("GFSetSize", GFSetSize, {8, 16}),
        with("GFGetSize", GFGetSize),
        with("GFSetFontAttribute", GFSetFontAttribute),
        with("GFGetFontAttribute", GFGetFontAttribute),
        with("GFSetFontUserAttribute", GFSetFontUserAttribute),
        with("GFGetFontUserAttribute", GFGetFontUserAttribute),
        with("GFGetFontInformation", GFGetFontInformation),
        with("GFSetGBFontFlag", GFSetGBFontFlag),
        with("GFGetFontCount", GFGetFontCount),
        with("GDSetFont", GDSetFont),
        with("GDSetSimpleFont", GDSetSimpleFont),
        ofUnit("GDGetCharWidth", GDGetCharWidth),
        ofUnit("GDGetCharHeight", GDGetCharHeight),
        with("GDGetStringWidth", GDGetStringWidth),
        with("GDGetStringSize", GDGetStringSize),
        with("GDGetStringLength", GDGetStringLength, {-1}),
        with("GDGetPrevChar", GDGetPrevChar),
        with("GDGetNextChar", GDGetNextChar),
        with("GRCUnicodeToMultiByte", GRCUnicodeToMultiByte, {-1, 0}),
        with("GRCMultiByteToUnicode", GRCMultiByteToUnicode, {-1, 0}),
        with("GRCIsLeadByte", GRCIsLeadByte),
    };
}

} // namespace quarlo::test
