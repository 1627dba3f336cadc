#include "font/services.h"

#include "guard.h"
#include "platform.h"

#include <cstring>
#include <string>

namespace gpi {
namespace {

/// Runs an action on a font in use; 0 when it is none.
template <typename Action>
int32_t onFont(const GFontRecord* record, const Action& action) {
    return guarded(0, [&] {
        FontStore* const fonts = platform().fonts.get();
        Font* const font = fonts != nullptr ? fonts->find(record) : nullptr;
        return font != nullptr && action(*font) ? 1 : 0;
    });
}

/// Copies an answer out; false when there is no place for it.
template <typename Record>
bool give(Record* out, const Record& value) {
    if (out != nullptr) {
        *out = value;
    }
    return out != nullptr;
}

/// The name that a face or a GSimpleFont begins with, at any address; empty when it does not end
/// in time.
std::u16string nameAt(const char16_t* face) {
    std::u16string name;
    const char* bytes = reinterpret_cast<const char*>(face);
    for (int unit = 0; unit < G_FACE_SIZE; ++unit, bytes += sizeof(char16_t)) {
        char16_t read = 0;
        std::memcpy(&read, bytes, sizeof read);
        if (read == 0) {
            return name;
        }
        name += read;
    }
    return {};
}

} // namespace

GFontRecord* loadFont(const char16_t* face) {
    return guarded<GFontRecord*>(nullptr, [&]() -> GFontRecord* {
        FontStore* const fonts = platform().fonts.get();
        if (fonts == nullptr || face == nullptr) {
            return nullptr;
        }
        Font* const font = fonts->load(nameAt(face));
        return font != nullptr ? &font->record() : nullptr;
    });
}

int32_t setFontSize(GFontRecord* font, int16_t width, int16_t height) {
    return onFont(font, [&](Font& self) { return self.setSize(width, height); });
}

int32_t getFontSize(GFontRecord* font, int16_t* width, int16_t* height) {
    return onFont(font, [&](Font& self) {
        const CellSize& size = self.style().size;
        return width != nullptr && give(height, static_cast<int16_t>(size.height)) &&
               give(width, static_cast<int16_t>(size.narrow));
    });
}

int32_t setFontAttribute(GFontRecord* font, const GFontAttribute* attribute) {
    return onFont(
        font, [&](Font& self) { return attribute != nullptr && self.setAttribute(*attribute); });
}

int32_t getFontAttribute(GFontRecord* font, GFontAttribute* attribute) {
    return onFont(font, [&](Font& self) { return give(attribute, self.attribute()); });
}

int32_t setFontUserAttribute(GFontRecord* font, const GFontUserAttribute* attribute) {
    return onFont(font,
                  [&](Font& self) { return attribute != nullptr && give(&self.user, *attribute); });
}

int32_t getFontUserAttribute(GFontRecord* font, GFontUserAttribute* attribute) {
    return onFont(font, [&](Font& self) { return give(attribute, self.user); });
}

int32_t findGlyph(GFontRecord* font, GGlyphRequest* request) {
    return onFont(font, [&](Font& self) {
        if (request == nullptr || request->text == nullptr) {
            return false;
        }
        const auto [glyph, units] = platform().fonts->glyphAt(self, request->text);
        if (glyph.exists) {
            request->next = request->text + units;
            request->width = glyph.width;
            request->height = glyph.height;
            request->bitsPerPixel = glyph.bitsPerPixel;
            request->bits = glyph.bits;
        }
        return glyph.exists;
    });
}

void releaseFont(GFontRecord* font) {
    if (platform().fonts != nullptr) {
        platform().fonts->release(font);
    }
}

int32_t getFontInformation(GFontRecord* font, GFontInformation* information) {
    return onFont(font, [&](Font& self) {
        return information != nullptr && give(information, platform().fonts->informationOf(self));
    });
}

int32_t setGbFontFlag(int32_t flag) {
    if (platform().fonts == nullptr || flag < 0 || flag > 1) {
        return 0;
    }
    platform().fonts->setChineseFirst(flag == 1);
    return 1;
}

int32_t fontCount() {
    return guarded(0, [] { return platform().fonts != nullptr ? platform().fonts->count() : 0; });
}

} // namespace gpi
