// A font of the test's own, answered by the platform's glyph service.
#pragma once

#include "support/recording_platform.h"

#include <quarlo/font.h>

#include <cstdint>
#include <functional>
#include <map>
#include <utility>
#include <vector>

namespace quarlo::test {

/// Glyphs that differ in width and pixels from unit to unit. A surrogate pair is one glyph; units
/// from U+E000 to U+E0FF have none, and neither have those that are taken out.
class ScriptedFont {
  public:
    /// Serves service 20 of the platform.
    explicit ScriptedFont(RecordingPlatform& platform, int16_t bitsPerPixel = 1,
                          int16_t height = 9);
    ScriptedFont(const ScriptedFont&) = delete;
    ScriptedFont& operator=(const ScriptedFont&) = delete;

    GFontRecord* get() { return &record_; }
    void magnify(uint8_t x, uint8_t y) { scale_.magnifyX = x, scale_.magnifyY = y; }
    void setKind(uint16_t kind) { record_.kind = kind; }
    void takeOut(char16_t unit) { missing_[unit] = true; }

    /// What the service answers for a text; a width of -1 when there is no glyph.
    struct Glyph {
        int32_t width = -1;
        int32_t height = 0;
        int32_t units = 1;
        std::vector<std::vector<uint32_t>> levels; ///< by row and column
    };
    Glyph glyphOf(const char16_t* text) const;

    int16_t bitsPerPixel() const { return bitsPerPixel_; }

    /// Metrics-only flags of the requests since the last call.
    std::vector<uint16_t> takeFlags() { return std::exchange(flags_, {}); }

  private:
    int32_t answer(GFontRecord* font, GGlyphRequest* request);

    GFontScale scale_{};
    GFontRecord record_{};
    int16_t bitsPerPixel_;
    int16_t height_;
    std::map<char16_t, bool> missing_;
    std::vector<uint8_t> bitmap_;
    std::vector<uint16_t> flags_;
};

} // namespace quarlo::test
