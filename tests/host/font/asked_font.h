// Fonts as the library asks for them: by the services of the platform.
#pragma once

#include "support/started_platform.h"

#include <quarlo/font.h>

#include <cstdint>
#include <set>
#include <vector>

namespace gpi::test {

inline const auto load = service<GPILoadFont>(GPI_SERVICE_LOAD_FONT);
inline const auto release = service<GPIReleaseFont>(GPI_SERVICE_RELEASE_FONT);
inline const auto setSize = service<GPISetFontSize>(GPI_SERVICE_SET_FONT_SIZE);
inline const auto getSize = service<GPIGetFontSize>(GPI_SERVICE_GET_FONT_SIZE);
inline const auto setAttribute = service<GPISetFontAttribute>(GPI_SERVICE_SET_FONT_ATTRIBUTE);
inline const auto getAttribute = service<GPIGetFontAttribute>(GPI_SERVICE_GET_FONT_ATTRIBUTE);
inline const auto setUser = service<GPISetFontUserAttribute>(GPI_SERVICE_SET_FONT_USER_ATTRIBUTE);
inline const auto getUser = service<GPIGetFontUserAttribute>(GPI_SERVICE_GET_FONT_USER_ATTRIBUTE);
inline const auto findGlyph = service<GPIGlyph>(GPI_SERVICE_GLYPH);
inline const auto information = service<GPIGetFontInformation>(GPI_SERVICE_GET_FONT_INFORMATION);
inline const auto setGb = service<GPISetGBFontFlag>(GPI_SERVICE_SET_GB_FONT_FLAG);

inline constexpr const char16_t* kPanel = u"TORVANDELL CNC Gothic";

/// A glyph as a program has it, its bits copied.
struct Answer {
    bool found = false;
    int units = 0;
    int width = 0;
    int height = 0;
    int depth = 0;
    std::vector<uint8_t> bits;

    bool operator==(const Answer&) const = default;

    int level(int x, int y) const {
        const int stride = (width * depth + 7) / 8;
        const int byte = bits[static_cast<size_t>(y * stride + x * depth / 8)];
        return byte >> (8 - depth - x * depth % 8) & ((1 << depth) - 1);
    }

    std::set<int> levels() const {
        std::set<int> all;
        for (int at = 0; at < width * height; ++at) {
            all.insert(level(at % width, at / width));
        }
        return all;
    }
};

inline Answer ask(GFontRecord* font, const char16_t* text) {
    GGlyphRequest request{};
    request.text = text;
    Answer answer;
    answer.found = (findGlyph(font, &request) & 0xFFFF) != 0;
    if (answer.found) {
        answer.units = static_cast<int>(request.next - text);
        answer.width = request.width;
        answer.height = request.height;
        answer.depth = request.bitsPerPixel;
        const int bytes = (request.width * request.bitsPerPixel + 7) / 8 * request.height;
        answer.bits.assign(request.bits, request.bits + bytes);
    }
    return answer;
}

/// Whether a font took a number of bits a pixel.
inline bool setDepth(GFontRecord* font, uint16_t bits) {
    GFontAttribute attribute{};
    return getAttribute(font, &attribute) == 1 &&
           (attribute.bitsPerPixel = bits, setAttribute(font, &attribute) == 1);
}

} // namespace gpi::test
