// Pictures read from JPEG files.
#pragma once

#include <quarlo/file.h>
#include <quarlo/surface.h>

#include <cstdint>
#include <span>
#include <vector>

namespace gpi {

/// What a JPEG stream holds, scaled down by 1, 2, 4 or 8.
///
/// @throws IoError G_IO_UNSUPPORTED for what is no JPEG, G_IO_DAMAGED for a broken header
GJpegInfo jpegInfo(std::span<const uint8_t> stream, int scale);

/// A decoded picture: rows of pixels with the bytes red, green, blue.
struct Picture {
    int width;
    int height;
    std::vector<uint8_t> pixels;
    bool whole; ///< false when the stream broke off; what was missing is grey
};

/// Decodes a JPEG stream.
///
/// @throws IoError as for jpegInfo(), and G_IO_TOO_LARGE for more than 64 million pixels
Picture decodeJpeg(std::span<const uint8_t> stream, int scale);

/// Draws a picture from a surface's upper left, in the surface's format; on a palette surface by
/// the nearest colours. What does not fit, or lies outside the drawable rectangle, is left out.
///
/// @throws IoError G_IO_ARGUMENT for a surface that has no pixels or no known format
void drawPicture(const Picture& picture, const GVram& surface);

} // namespace gpi
