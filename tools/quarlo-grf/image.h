// Images as values: what a GRF stream holds, without its runs.
#pragma once

#include "picture.h"
#include "pixel_format.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace grf {

/// A value that no image has: the pixel is left as it is.
inline constexpr uint32_t kClear = UINT32_MAX;

struct Image {
    int width;
    int height;
    bool packed;                   ///< values are indexes into the palette, several in a unit
    int bits;                      ///< a value
    PixelFormat format;            ///< of the values, or of the palette's in a packed image
    std::vector<uint32_t> palette; ///< of an indexed format 0x00RRGGBB
    std::vector<uint32_t> values;  ///< row by row

    int unitBytes() const { return (bits + 7) / 8; }
    int pixelsPerUnit() const { return packed ? 8 / bits : 1; }

    friend bool operator==(const Image&, const Image&) = default;
};

/// What an image is made for.
struct Target {
    PixelFormat surface = kFormat555;
    int packedBits = 0;                        ///< 1, 2, 4 or 8, or 0 for direct values
    std::optional<std::vector<Color>> palette; ///< the colours to take, or the image's own
    std::optional<Color> matte;                ///< what will be under the image
};

/// Makes an image out of a picture. Colours that do not fit a palette become others near them.
///
/// With a matte, colours that show it through are mixed with it; without one, pixels are drawn or
/// left by half their alpha. Where a unit holds several pixels, transparent ones cannot be left
/// between others at will: those that must be drawn take the matte.
///
/// @throws Failure where a matte is needed and there is none, or the palette has too many colours
Image imageOf(const Picture& picture, const Target& target);

/// The picture that an image shows, transparent where it leaves pixels.
Picture pictureOf(const Image& image);

} // namespace grf
