// The error message: text on the display without a draw handle of the program.
#include "draw/device_surface.h"
#include "draw/handle.h"
#include "platform/system.h"

#include <quarlo/font.h>
#include <quarlo/profile.h>
#include <quarlo/text.h>

#include <algorithm>
#include <cstdint>

namespace quarlo {
namespace {

constexpr int32_t kMessageUnits = 128;
constexpr uint32_t kRed = 0xF800; // as a 5-6-5 pixel value
constexpr uint32_t kWhite = 0x00FFFFFF;

/// A number from the profile of the screen.
int32_t screenSetting(const char16_t* key, const char16_t* usual) {
    constexpr int32_t kUnits = 17;
    char16_t text[kUnits] = {};
    for (int32_t i = 0; usual[i] != u'\0'; ++i) {
        text[i] = usual[i]; // also when nobody answers
    }
    GIOGetPrivateProfileString(u"SCREEN", key, usual, text, kUnits, G_PROFILE_ANY, u"Config.ini");
    text[kUnits - 1] = u'\0';
    const char16_t* at = text;
    while (*at == u' ' || *at == u'\t') {
        ++at;
    }
    const bool negative = *at == u'-';
    at += negative || *at == u'+' ? 1 : 0;
    int64_t number = 0;
    for (; *at >= u'0' && *at <= u'9'; ++at) {
        number = std::min<int64_t>(number * 10 + (*at - u'0'), INT32_MAX);
    }
    return static_cast<int32_t>(negative ? -number : number);
}

/// Two places, by the size of the display alone, deliberately.
GRect messageRect() {
    const int32_t width = screenSetting(u"WIDTH", u"640");
    const int32_t height = screenSetting(u"HEIGHT", u"480");
    return width == 640 && height == 480 ? GRect{270, 403, 640, 419} : GRect{383, 688, 869, 706};
}

/// The panel's own font, of one bit a pixel. May be null.
GFontRecord* panelFont() {
    GFontRecord* const font = GFLoadFont(u"TORVANDELL CNC Gothic");
    GFontAttribute attribute{};
    GFGetFontAttribute(font, &attribute);
    attribute.bitsPerPixel = 1;
    GFSetFontAttribute(font, &attribute);
    GFSetSize(font, 8, 16);
    return font;
}

void setStyle(GDrawHandle& handle) {
    GDSetFillColor(&handle, G_NO_COLOR, kRed);
    GDSetPenColor(&handle, G_NO_COLOR);
    GDSetBackColor(&handle, kRed);
    GDSetTextMode(&handle, 0);
    GDSetFillPattern(&handle, G_FILL_BACK);
}

/// Everything may be drawn on, whatever was set before.
void openScreen(GDrawHandle& handle) {
    handle.virtualRect = handle.view;
    if (handle.target->drawable != nullptr) {
        *handle.target->drawable = handle.view;
    }
}

} // namespace
} // namespace quarlo

using namespace quarlo;

void GDDrawErrorMessage(const char* message) {
    GDrawHandle handle{};
    if (!initialiseHandle(handle)) {
        return;
    }
    GVram* const surface = handle.target;
    openScreen(handle);
    GFontRecord* const font = panelFont();
    GDSetFont(&handle, font);
    setStyle(handle);
    const GCaptionAttr attr{kWhite, G_ALIGN_LEFT, G_ALIGN_MIDDLE, 0, 0, 0, 0};
    const GRect rect = messageRect();
    char16_t text[kMessageUnits] = {};
    systemTextToUnicode(message, text, kMessageUnits);
    GDDrawCaptionStringDirect(&handle, &rect, &attr, text);
    GFReleaseFont(font);
    if (surface->id != G_MEMORY_SURFACE) {
        ReleaseDeviceSurface::checked(&handle, surface);
    }
}
