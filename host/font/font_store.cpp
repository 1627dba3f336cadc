#include "font/font_store.h"

#include "text/characters.h"
#include "text/transcode.h"

#include <algorithm>
#include <new>

namespace gpi {
namespace {

// A key of the cache: the style, then which script goes first, then the character.
constexpr int kCharacterBits = 21;
constexpr int kStyleShift = kCharacterBits + 1;

FT_Library startFreeType() {
    FT_Library library = nullptr;
    if (FT_Init_FreeType(&library) != 0) {
        throw std::bad_alloc();
    }
    return library;
}

} // namespace

FontStore::FontStore(const Settings& settings)
    : library_(startFreeType()),
      builtIn_(chooseBuiltInFaces(settings)),
      cache_(static_cast<size_t>(settings.glyphCache) << 10) {}

Face* FontStore::faceOf(const FaceFile& file) {
    auto& face = faces_[file];
    if (face == nullptr) {
        face = Face::open(library_.get(), file);
    }
    return face.get();
}

Font* FontStore::load(const std::u16string& name) {
    FaceChoice choice;
    choice.panel = name == kPanelFace;
    if (choice.panel) {
        choice.own = faceOf(builtIn_.panel);
    } else if (const auto family = utf8Of(name); family && !family->empty()) {
        const auto file = finder_.find(*family);
        choice.own = file ? faceOf(*file) : nullptr;
    }
    if (choice.own == nullptr) {
        return nullptr;
    }
    choice.japanese = faceOf(builtIn_.japanese);
    choice.chinese = faceOf(builtIn_.chinese);
    return fonts_.emplace_back(std::make_unique<Font>(name, choice)).get();
}

Font* FontStore::find(const GFontRecord* record) const {
    for (const auto& font : fonts_) {
        if (&font->record() == record) {
            return font.get();
        }
    }
    return nullptr;
}

bool FontStore::release(const GFontRecord* record) {
    return std::erase_if(fonts_, [&](const auto& font) { return &font->record() == record; }) != 0;
}

uint32_t FontStore::styleNumberOf(Font& font) {
    if (font.styleNumber == 0) {
        const StyleKey key(&font.face(), font.isPanel(), font.style());
        font.styleNumber =
            styles_.try_emplace(key, static_cast<uint32_t>(styles_.size()) + 1).first->second;
    }
    return font.styleNumber;
}

Glyph FontStore::glyphOf(Font& font, uint32_t character) {
    const uint64_t key = uint64_t{styleNumberOf(font)} << kStyleShift |
                         uint64_t{chineseFirst_} << kCharacterBits | character;
    if (const auto cached = cache_.find(key)) {
        return *cached;
    }
    Glyph glyph;
    uncached_.clear();
    if (const auto cell = font.render(character, chineseFirst_)) {
        const int bits = font.style().bits;
        uncached_ = cell->packed(bits);
        glyph = {true, static_cast<int16_t>(cell->width()), static_cast<int16_t>(cell->height()),
                 static_cast<int16_t>(bits), uncached_.data()};
    }
    return cache_.keep(key, glyph, uncached_.size()).value_or(glyph);
}

FontStore::Found FontStore::glyphAt(Font& font, const char16_t* text) {
    const size_t units = unitsOfCharacter(text, 2);
    Glyph glyph = glyphOf(font, codePointOf(text, units));
    if (!glyph.exists && font.user.substitute != 0) {
        glyph = glyphOf(font, font.user.substitute);
    }
    return {glyph, glyph.exists ? units : 1};
}

GFontInformation FontStore::informationOf(Font& font) {
    GFontInformation information = font.information();
    const uint64_t style = styleNumberOf(font);
    const auto use = cache_.useOf(style << kStyleShift, (style + 1) << kStyleShift);
    information.cachedGlyphs = use.glyphs;
    information.cachedBytes = use.bytes;
    return information;
}

int32_t FontStore::count() {
    return finder_.count() + (faceOf(builtIn_.panel) != nullptr ? 1 : 0);
}

} // namespace gpi
