// The text that is drawn, and the glyphs that it is drawn with.
#pragma once

#include "workload.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace bench {

inline constexpr int kGlyphWidth = 8;
inline constexpr int kGlyphHeight = 16;

/// Rows from the top, bit 7 leftmost.
using Glyph = std::array<uint8_t, kGlyphHeight>;

inline constexpr char kFirstLetter = '!';
inline constexpr char kLastLetter = '~';

/// Of a letter from the first to the last.
const Glyph& glyphOf(char letter);

/// A line of text and its place in the box of a workload.
struct TextLine {
    int x;
    int y;
    std::string letters;
};

/// One line, or those of a caption.
std::vector<TextLine> linesOf(const Workload& workload);

} // namespace bench
