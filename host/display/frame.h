// The picture that a display shows.
#pragma once

#include "display/pixel_format.h"

#include <quarlo/types.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace gpi {

/// A picture in a display's own format. Rows are not padded.
struct Frame {
    Frame(int width, int height, const PixelFormat& format);

    int width;
    int height;
    PixelFormat format;
    Palette palette = defaultPalette(); ///< of a palette format
    std::vector<uint8_t> pixels;        ///< black at first

    size_t stride() const {
        return static_cast<size_t>(width) * static_cast<size_t>(format.bytes());
    }
    const uint8_t* at(int x, int y) const { return pixels.data() + offset(x, y); }
    uint8_t* at(int x, int y) { return pixels.data() + offset(x, y); }

  private:
    size_t offset(int x, int y) const {
        return static_cast<size_t>(y) * stride() +
               static_cast<size_t>(x) * static_cast<size_t>(format.bytes());
    }
};

/// Copies an area of packed rows of the frame's size and format into the frame.
void copyInto(Frame& frame, const uint8_t* pixels, const GRect& area);

/// Converts an area of a frame into words 0x00RRGGBB; `rgb` is a picture of the frame's size.
void convertToRgb(const Frame& frame, const GRect& area, std::vector<uint32_t>& rgb);

/// Colours 0x00RRGGBB as the bytes red, green, blue: some, or a whole frame's.
std::vector<uint8_t> rgbBytes(std::span<const uint32_t> colors);
std::vector<uint8_t> rgbBytes(const Frame& frame);

/// CRC-32 of a frame's colours, each as the bytes red, green, blue.
uint32_t checksum(const Frame& frame);

/// Writes a frame as a PNG file, in 256 colours where it has a palette, to a new file that then
/// takes the place of an old one. False, and one line is reported, when that fails.
bool writePng(const Frame& frame, const std::string& path);

} // namespace gpi
