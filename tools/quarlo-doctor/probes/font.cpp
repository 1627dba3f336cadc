// Fonts, tried on the one that the error message is written in.
#include "probe.h"
#include "screen.h"

namespace doctor {
namespace {

constexpr const char16_t* kFace = u"TORVANDELL CNC Gothic";
constexpr const char* kNoFont = "does not load the font of the error message";
constexpr int16_t kWidth = 8;
constexpr int16_t kHeight = 16;

/// The font in its usual size, or null.
GFontRecord* load(const Platform& platform) {
    GFontRecord* const font = platform.service<GPILoadFont>(GPI_SERVICE_LOAD_FONT)(kFace);
    const auto setSize = platform.service<GPISetFontSize>(GPI_SERVICE_SET_FONT_SIZE);
    if (font != nullptr && setSize != nullptr) {
        setSize(font, kWidth, kHeight);
    }
    return font;
}

/// A probe of a service that takes a font.
template <Complaint (*Run)(const Platform& platform, GFontRecord* font)>
Complaint withFont(const Platform& platform) {
    GFontRecord* const font = load(platform);
    return font != nullptr ? Run(platform, font) : kNoFont;
}

Complaint loads(const Platform&, GFontRecord* font) {
    return font->scale != nullptr ? "" : "gives a font without a scale";
}

Complaint setsSize(const Platform& platform, GFontRecord* font) {
    const auto set = platform.service<GPISetFontSize>(GPI_SERVICE_SET_FONT_SIZE);
    if (set(font, kWidth, kHeight) != 1) {
        return "refuses cells of 8 x 16 pixels";
    }
    return set(font, 0, -1) == 0 ? "" : "takes cells of no extent";
}

Complaint getsSize(const Platform& platform, GFontRecord* font) {
    int16_t width = 0;
    int16_t height = 0;
    const auto get = platform.service<GPIGetFontSize>(GPI_SERVICE_GET_FONT_SIZE);
    const bool same = get(font, &width, &height) == 1 && width == kWidth && height == kHeight;
    return same ? "" : "does not read what was set";
}

Complaint getsAttribute(const Platform& platform, GFontRecord* font) {
    GFontAttribute attribute{};
    const auto get = platform.service<GPIGetFontAttribute>(GPI_SERVICE_GET_FONT_ATTRIBUTE);
    if (get(font, &attribute) != 1) {
        return "refuses to tell a font's properties";
    }
    return attribute.height == kHeight ? "" : "tells another height than was set";
}

Complaint setsAttribute(const Platform& platform, GFontRecord* font) {
    GFontAttribute attribute{};
    platform.service<GPIGetFontAttribute>(GPI_SERVICE_GET_FONT_ATTRIBUTE)(font, &attribute);
    attribute.bitsPerPixel = 1;
    const auto set = platform.service<GPISetFontAttribute>(GPI_SERVICE_SET_FONT_ATTRIBUTE);
    return set(font, &attribute) == 1 ? "" : "refuses glyphs of one bit a pixel";
}

Complaint setsUserAttribute(const Platform& platform, GFontRecord* font) {
    const GFontUserAttribute attribute{u'?', 0, 77};
    const auto set = platform.service<GPISetFontUserAttribute>(GPI_SERVICE_SET_FONT_USER_ATTRIBUTE);
    return set(font, &attribute) == 1 ? "" : "refuses what a program keeps";
}

Complaint getsUserAttribute(const Platform& platform, GFontRecord* font) {
    const GFontUserAttribute kept{u'?', 0, 77};
    GFontUserAttribute read{};
    platform.service<GPISetFontUserAttribute>(GPI_SERVICE_SET_FONT_USER_ATTRIBUTE)(font, &kept);
    const auto get = platform.service<GPIGetFontUserAttribute>(GPI_SERVICE_GET_FONT_USER_ATTRIBUTE);
    const bool same =
        get(font, &read) == 1 && read.substitute == kept.substitute && read.data == kept.data;
    return same ? "" : "does not read what was set";
}

Complaint findsGlyph(const Platform& platform, GFontRecord* font) {
    const char16_t text[] = u"AB";
    GGlyphRequest request{};
    request.text = text;
    const auto glyph = platform.service<GPIGlyph>(GPI_SERVICE_GLYPH);
    if ((glyph(font, &request) & 0xFFFF) == 0) {
        return "has no letter A";
    }
    if (request.next != text + 1) {
        return "takes another number of units than one for the letter A";
    }
    if (request.width <= 0 || request.height <= 0) {
        return "has a letter A of no extent";
    }
    const int bits = request.bitsPerPixel;
    if (bits != 1 && bits != 2 && bits != 4 && bits != 8) {
        return "has glyphs of other than 1, 2, 4 or 8 bits a pixel";
    }
    if (request.bits == nullptr) {
        return "has a letter A without a bitmap";
    }
    const int bytes = (request.width * bits + 7) / 8 * request.height;
    for (int i = 0; i < bytes; ++i) {
        if (request.bits[i] != 0) {
            return "";
        }
    }
    return "has a letter A that is blank";
}

Complaint releases(const Platform& platform, GFontRecord* font) {
    platform.service<GPIReleaseFont>(GPI_SERVICE_RELEASE_FONT)(font);
    return load(platform) != nullptr ? "" : "takes a font back for good";
}

Complaint informs(const Platform& platform, GFontRecord* font) {
    GFontInformation information{};
    const auto get = platform.service<GPIGetFontInformation>(GPI_SERVICE_GET_FONT_INFORMATION);
    if (get(font, &information) != 1) {
        return "refuses to tell of a font";
    }
    return information.height == kHeight ? "" : "tells another height than was set";
}

Complaint choosesScript(const Platform& platform) {
    const auto choose = platform.service<GPISetGBFontFlag>(GPI_SERVICE_SET_GB_FONT_FLAG);
    return choose(0) == 1 ? "" : "refuses to put Japanese first";
}

/// Services 44 and 75.
template <int32_t Number>
Complaint drawsText(const Platform& platform, GFontRecord* font) {
    Screen screen(platform);
    screen.handle.font = font;
    if (!screen.isReadable()) {
        return screen.isUsable() ? "" : "has no surface of 16 x 16 pixels to draw on";
    }
    screen.clear();
    screen.handle.penWidth = screen.handle.penHeight = 1;
    screen.handle.penPixel = 1;
    screen.handle.textMode = G_TEXT_TRANSPARENT;
    const GRect all = *screen.surface->drawable;
    platform.service<GPIDrawString>(Number)(&screen.handle, u"A", 0, 0, &all);
    return screen.holdsOnly({0, 0, -1, -1}, 0) ? "draws no letter A" : "";
}

} // namespace

std::span<const Probe> fontProbes() {
    static const std::vector<int32_t> kLoad = {GPI_SERVICE_LOAD_FONT};
    static const std::vector<int32_t> kSized = {GPI_SERVICE_LOAD_FONT, GPI_SERVICE_SET_FONT_SIZE};
    static const std::vector<int32_t> kDrawing = {GPI_SERVICE_LOAD_FONT, GPI_SERVICE_GET_SURFACE};
    static const Probe kProbes[] = {
        {GPI_SERVICE_LOAD_FONT, withFont<loads>, {}},
        {GPI_SERVICE_SET_FONT_SIZE, withFont<setsSize>, kLoad},
        {GPI_SERVICE_GET_FONT_SIZE, withFont<getsSize>, kSized},
        {GPI_SERVICE_SET_FONT_ATTRIBUTE,
         withFont<setsAttribute>,
         {GPI_SERVICE_LOAD_FONT, GPI_SERVICE_GET_FONT_ATTRIBUTE}},
        {GPI_SERVICE_GET_FONT_ATTRIBUTE, withFont<getsAttribute>, kSized},
        {GPI_SERVICE_SET_FONT_USER_ATTRIBUTE, withFont<setsUserAttribute>, kLoad},
        {GPI_SERVICE_GET_FONT_USER_ATTRIBUTE,
         withFont<getsUserAttribute>,
         {GPI_SERVICE_LOAD_FONT, GPI_SERVICE_SET_FONT_USER_ATTRIBUTE}},
        {GPI_SERVICE_GLYPH, withFont<findsGlyph>, kLoad},
        {GPI_SERVICE_RELEASE_FONT, withFont<releases>, kLoad},
        {GPI_SERVICE_GET_FONT_INFORMATION, withFont<informs>, kSized},
        {GPI_SERVICE_SET_GB_FONT_FLAG, choosesScript, {}},
        {GPI_SERVICE_DRAW_STRING, withFont<drawsText<GPI_SERVICE_DRAW_STRING>>, kDrawing},
        {GPI_SERVICE_DRAW_CAPTION_LINE, withFont<drawsText<GPI_SERVICE_DRAW_CAPTION_LINE>>,
         kDrawing},
    };
    return kProbes;
}

} // namespace doctor
