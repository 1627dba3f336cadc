#include "format.h"

#include "random.h"

#include <bit>

namespace bench {

int bytesPerPixel(Format format) {
    switch (format) {
    case Format::Rgb332:
    case Format::Palette8:
        return 1;
    case Format::Rgb555:
    case Format::Rgb565:
        return 2;
    case Format::Rgb24:
        return 3;
    }
    return 0;
}

uint32_t foreOf(Format format) {
    constexpr uint32_t kValues[] = {0, 0xB5, 0x5A93, 0x3C9A57};
    return kValues[bytesPerPixel(format)];
}

uint32_t backOf(Format format) {
    constexpr uint32_t kValues[] = {0, 0x4E, 0x2DE8, 0xE14788};
    return kValues[bytesPerPixel(format)];
}

Masks masksOf(Format format) {
    switch (format) {
    case Format::Rgb332:
        return {0xE0, 0x1C, 0x03};
    case Format::Rgb555:
        return {0x7C00, 0x03E0, 0x001F};
    case Format::Rgb565:
        return {0xF800, 0x07E0, 0x001F};
    case Format::Rgb24:
        return {0x0000FF, 0x00FF00, 0xFF0000};
    case Format::Palette8:
        return {0xFF0000, 0x00FF00, 0x0000FF};
    }
    return {};
}

uint8_t channelOf(uint32_t pixel, uint32_t mask) {
    uint32_t value = (pixel & mask) >> std::countr_zero(mask);
    int bits = std::popcount(mask);
    value <<= 8 - bits;
    for (; bits < 8; bits *= 2) {
        value |= value >> bits;
    }
    return static_cast<uint8_t>(value);
}

uint32_t patternPixel(Format format, int x, int y) {
    const bool set = (kPattern[static_cast<size_t>(y & 7)] >> (7 - (x & 7)) & 1) != 0;
    return set ? foreOf(format) : backOf(format);
}

std::vector<uint8_t> patternTile(Format format) {
    std::vector<uint8_t> tile;
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            const uint32_t pixel = patternPixel(format, x, y);
            for (int byte = 0; byte < bytesPerPixel(format); ++byte) {
                tile.push_back(static_cast<uint8_t>(pixel >> (8 * byte)));
            }
        }
    }
    return tile;
}

std::span<const uint32_t, 256> palette() {
    static const auto colors = [] {
        std::array<uint32_t, 256> made{};
        Random random(0xC0105u);
        for (uint32_t& color : made) {
            color = random.next() & 0xFFFFFF;
        }
        return made;
    }();
    return colors;
}

} // namespace bench
