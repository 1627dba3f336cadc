// Asking the platform for one glyph after the other.
#pragma once

#include "platform/service_table.h"

#include <quarlo/font.h>

#include <cstdint>

namespace quarlo {

using GlyphService = Service<int32_t(GFontRecord*, GGlyphRequest*), 20>;

/// What a request is for.
enum class GlyphPurpose : uint16_t { Drawing = 0, Measuring = 1 };

/// Finds the glyphs of a text in a font. Whatever the platform answers, each step takes at least
/// one unit and none goes past the text's NUL.
class GlyphFinder {
  public:
    GlyphFinder(GFontRecord* font, GlyphPurpose purpose) : font_(font) {
        request_.metricsOnly = static_cast<uint16_t>(purpose);
    }

    /// Looks for the glyph that a text begins with; false when there is none. The text must not be
    /// at its NUL.
    bool find(const char16_t* text) {
        request_.text = text;
        request_.next = nullptr;
        return (GlyphService::checked(font_, &request_) & 0xFFFF) != 0;
    }

    /// Steps over the glyph that was found, or over one unit.
    const char16_t* step(const char16_t* text, bool found) const {
        const char16_t* next = text + 1;
        const auto end = reinterpret_cast<uintptr_t>(request_.next);
        while (found && reinterpret_cast<uintptr_t>(next) < end && *next != u'\0') {
            ++next;
        }
        return next;
    }

    /// The answer to the last request, whose out fields are valid when a glyph was found.
    const GGlyphRequest& glyph() const { return request_; }

  private:
    GFontRecord* font_;
    GGlyphRequest request_{};
};

} // namespace quarlo
