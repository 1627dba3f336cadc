// Pixel formats, and the colours, the pattern and the palette that everything is drawn with.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace bench {

/// Pixel formats. Pixels of 24 bits are the bytes red, green, blue; palette indices are bytes.
enum class Format { Rgb332, Rgb555, Rgb565, Rgb24, Palette8 };

int bytesPerPixel(Format format);

/// Two pixel values that differ in every byte, and whose bytes differ from each other.
uint32_t foreOf(Format format);
uint32_t backOf(Format format);

/// Where the channels of a pixel value lie; of a palette surface, those of its entries.
struct Masks {
    uint32_t red;
    uint32_t green;
    uint32_t blue;
};
Masks masksOf(Format format);

/// A channel of a pixel value widened to eight bits, its top bits repeated in the bits it lacks.
uint8_t channelOf(uint32_t pixel, uint32_t mask);

/// Eight rows from the top, bit 7 leftmost: irregular, so that no row repeats another.
inline constexpr std::array<uint8_t, 8> kPattern = {0xB1, 0x30, 0x03, 0x1B, 0xD8, 0xC0, 0x0C, 0x8D};

/// The pixel value of the pattern at a place, and the tile of 8 x 8 pixels that peers repeat.
uint32_t patternPixel(Format format, int x, int y);
std::vector<uint8_t> patternTile(Format format);

/// The colours of palette surfaces, 0x00RRGGBB.
std::span<const uint32_t, 256> palette();

} // namespace bench
