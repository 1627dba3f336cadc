#include "text.h"

#include "random.h"

namespace bench {
namespace {

constexpr int kLetters = kLastLetter - kFirstLetter + 1;

/// Strokes in the manner of seven segments, the letter's number telling which: about as many pixels
/// set, and as many runs a row, as in real letters.
Glyph makeGlyph(int number) {
    constexpr uint8_t kAcross = 0x7C;
    constexpr uint8_t kLeft = 0x40;
    constexpr uint8_t kRight = 0x04;
    constexpr size_t kTop = 2;
    constexpr size_t kMiddle = 7;
    constexpr size_t kBottom = 12;
    const auto stroke = [number](int segment, uint8_t bits) {
        return (number >> segment & 1) != 0 ? bits : uint8_t{0};
    };
    Glyph glyph{};
    for (size_t row = kTop; row <= kBottom; ++row) {
        const bool upper = row < kMiddle;
        glyph[row] = stroke(upper ? 3 : 4, kLeft) | stroke(upper ? 5 : 6, kRight);
    }
    glyph[kTop] |= stroke(0, kAcross);
    glyph[kMiddle] |= stroke(1, kAcross);
    glyph[kBottom] |= stroke(2, kAcross);
    return glyph;
}

std::string makeLetters(size_t count) {
    Random random(0x7E47);
    std::string letters;
    while (letters.size() < count) {
        letters += static_cast<char>(kFirstLetter + static_cast<int>(random.below(kLetters)));
    }
    return letters;
}

} // namespace

const Glyph& glyphOf(char letter) {
    static const auto glyphs = [] {
        std::array<Glyph, kLetters> made{};
        for (int i = 0; i < kLetters; ++i) {
            made[static_cast<size_t>(i)] = makeGlyph(i + kFirstLetter);
        }
        return made;
    }();
    return glyphs[static_cast<size_t>(letter - kFirstLetter)];
}

std::vector<TextLine> linesOf(const Workload& workload) {
    const int letters = workload.width / kGlyphWidth;
    std::vector<TextLine> lines;
    for (int y = 0; y < workload.height; y += kGlyphHeight) {
        // Every other line of a caption is shorter, and centred.
        const int missing = y / kGlyphHeight % 2 * 16;
        lines.push_back(
            {missing / 2 * kGlyphWidth, y, makeLetters(static_cast<size_t>(letters - missing))});
    }
    return lines;
}

} // namespace bench
