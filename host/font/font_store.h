// The fonts of a started platform.
#pragma once

#include "config/settings.h"
#include "font/built_in_faces.h"
#include "font/face_finder.h"
#include "font/font.h"
#include "font/glyph_cache.h"

#include <cstdint>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

namespace gpi {

/// All fonts, the faces they draw from, and the glyphs that are held ready. Used from the thread
/// that draws, as drawing itself is.
class FontStore {
  public:
    explicit FontStore(const Settings& settings);

    /// Loads a font by the name of its face. Null when there is no such face.
    Font* load(const std::u16string& name);

    /// The font of a record; null for any record that is not in use, which is not read.
    Font* find(const GFontRecord* record) const;

    /// False for a record that is not in use.
    bool release(const GFontRecord* record);

    /// A glyph and how many units it takes.
    struct Found {
        Glyph glyph;
        size_t units;
    };

    /// The glyph that a text begins with, which is not at its NUL. Its bits stay good until the
    /// next call. A unit without a glyph is one of its own.
    Found glyphAt(Font& font, const char16_t* text);

    /// Which form an ideograph takes that two scripts share.
    void setChineseFirst(bool chineseFirst) { chineseFirst_ = chineseFirst; }

    GFontInformation informationOf(Font& font);

    /// Families that are installed, and the panel face.
    int32_t count();

  private:
    struct DoneLibrary {
        void operator()(FT_Library library) const { FT_Done_FreeType(library); }
    };
    using Library = std::unique_ptr<FT_LibraryRec_, DoneLibrary>;
    using StyleKey = std::tuple<const Face*, bool, Style>;

    Face* faceOf(const FaceFile& file);
    uint32_t styleNumberOf(Font& font);
    Glyph glyphOf(Font& font, uint32_t character);

    Library library_;
    BuiltInFaces builtIn_;
    FaceFinder finder_;
    std::map<FaceFile, std::unique_ptr<Face>> faces_; ///< all that were ever asked for
    std::vector<std::unique_ptr<Font>> fonts_;
    std::map<StyleKey, uint32_t> styles_;
    GlyphCache cache_;
    std::vector<uint8_t> uncached_; ///< bits of a glyph that is too large for the cache
    bool chineseFirst_ = false;
};

} // namespace gpi
