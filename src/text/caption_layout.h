// The lines of a caption.
#pragma once

#include "memory/memory.h"
#include "text/glyph_finder.h"

#include <cstdint>

namespace quarlo {

inline constexpr int32_t kNoCursor = -1;

/// A line as it stands in the text.
struct CaptionLine {
    const char16_t* start;
    int32_t glyphs;
    int32_t width; ///< pixels, magnified; wraps around
};

/// A line of a text with a cursor.
struct CursorLine : CaptionLine {
    int32_t cursor; ///< glyphs before the cursor; kNoCursor when it is elsewhere
};

static_assert(sizeof(void*) != 4 || (sizeof(CaptionLine) == 12 && sizeof(CursorLine) == 16),
              "the block sizes that platforms see");

/// Where the cursor of a caption stands.
struct CursorPlace {
    int32_t line = kNoCursor; ///< kNoCursor when the text ends before it
    int32_t x = 0;            ///< pixels from the line's begin
};

/// Units of the line break that a text begins with: 2 for CR LF, 1 for LF, else 0. The text must
/// not be at its NUL.
inline int32_t breakAt(const char16_t* text) {
    return text[0] == u'\n' ? 1 : (text[0] == u'\r' && text[1] == u'\n' ? 2 : 0);
}

/// The lines of a text, in the library's memory.
template <typename Line>
class LineTable {
  public:
    /// @param lines at least one, and no more than pixel rows
    explicit LineTable(int32_t lines) : lines_(allocate(lines)) {}
    ~LineTable() {
        if (lines_ != nullptr) {
            release(lines_);
        }
    }
    LineTable(const LineTable&) = delete;
    LineTable& operator=(const LineTable&) = delete;

    /// False when memory is short. Nothing else may be called then.
    bool isReady() const { return lines_ != nullptr; }

    int32_t count() const { return count_; }
    const Line* begin() const { return lines_; }
    const Line* end() const { return lines_ + count_; }

    void add(const Line& line) { lines_[count_++] = line; }

  private:
    static Line* allocate(int32_t lines) {
        constexpr auto kSize = static_cast<int32_t>(sizeof(Line));
        return static_cast<Line*>(allocateCleared(kLibrarySpace, lines * kSize));
    }

    Line* lines_;
    int32_t count_ = 0;
};

/// Walks a text glyph by glyph and gathers lines.
template <typename Line>
class LineBuilder {
  public:
    /// @param scale columns drawn for each column of a glyph
    LineBuilder(GFontRecord* font, const char16_t* text, int32_t scale)
        : finder_(font, GlyphPurpose::Measuring), text_(text), scale_(scale) {
        begin();
    }

    bool atEnd() const { return *text_ == u'\0'; }
    const char16_t* text() const { return text_; }
    Line& line() { return line_; }

    /// Skips units and begins a line after them.
    void breakLine(int32_t units) {
        text_ += units;
        begin();
    }

    void skip() { ++text_; }

    /// Takes the next glyph in; a unit that has none is stepped over.
    void takeGlyph() {
        const bool found = finder_.find(text_);
        if (found) {
            ++line_.glyphs;
            line_.width =
                static_cast<int32_t>(line_.width + int64_t{finder_.glyph().width} * scale_);
        }
        text_ = finder_.step(text_, found);
    }

  private:
    void begin() {
        line_ = Line{};
        line_.start = text_;
        if constexpr (requires { line_.cursor; }) {
            line_.cursor = kNoCursor;
        }
    }

    GlyphFinder finder_;
    const char16_t* text_;
    const int32_t scale_;
    Line line_{};
};

/// Splits a text at its line breaks into at most `most` lines. A last line counts only with a glyph
/// in it.
void splitLines(LineTable<CaptionLine>& lines, GFontRecord* font, const char16_t* text,
                int32_t scale, int32_t most);

/// The same for a text with a cursor.
///
/// @param cursorPos steps before the cursor: glyphs, units without one, line breaks
CursorPlace splitLines(LineTable<CursorLine>& lines, GFontRecord* font, const char16_t* text,
                       int32_t scale, int32_t most, int32_t cursorPos);

/// Takes all of a text for one line and leaves out every CR and LF.
void joinLines(LineTable<CaptionLine>& lines, GFontRecord* font, const char16_t* text,
               int32_t scale);

} // namespace quarlo
