#include "image.h"

#include "failure.h"
#include "palette.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace grf {
namespace {

constexpr int kHalf = 128;

/// A pixel that is drawn, or nothing.
using Pixel = std::optional<Color>;

uint8_t mixed(uint8_t over, uint8_t under, int alpha) {
    return static_cast<uint8_t>((over * alpha + under * (255 - alpha) + 127) / 255);
}

/// What of a colour comes to be seen over a matte, or without one.
Pixel flattened(Color color, const std::optional<Color>& matte) {
    const int alpha = color.alpha;
    if (alpha == 0 || (!matte && alpha < kHalf)) {
        return std::nullopt;
    }
    if (!matte) {
        return Color{color.red, color.green, color.blue};
    }
    const Color seen{mixed(color.red, matte->red, alpha), mixed(color.green, matte->green, alpha),
                     mixed(color.blue, matte->blue, alpha)};
    return alpha < 255 && seen == *matte ? Pixel() : seen;
}

std::vector<Pixel> flattened(const Picture& picture, const std::optional<Color>& matte) {
    std::vector<Pixel> pixels;
    pixels.reserve(picture.pixels.size());
    for (const Color& color : picture.pixels) {
        pixels.push_back(flattened(color, matte));
    }
    return pixels;
}

[[noreturn]] void failForMatte(size_t pixel, int width) {
    const size_t columns = static_cast<size_t>(width);
    throw Failure("the transparent pixel at column " + std::to_string(pixel % columns) + ", row " +
                  std::to_string(pixel / columns) +
                  " shares a unit with drawn ones: it takes a matte or a palette of 8 bits");
}

/// Draws the matte where a unit of `perUnit` pixels begins with a drawn one and cannot leave
/// others.
void fillUnits(std::vector<Pixel>& pixels, size_t perUnit, const Target& target, int width) {
    size_t left = 0; // pixels of the unit that has begun
    for (size_t i = 0; i < pixels.size(); ++i) {
        if (left == 0) {
            left = pixels[i] ? perUnit - 1 : 0;
            continue;
        }
        --left;
        if (!pixels[i] && !target.matte) {
            failForMatte(i, width);
        }
        pixels[i] = pixels[i] ? pixels[i] : target.matte;
    }
}

std::vector<Color> drawnColors(const std::vector<Pixel>& pixels) {
    std::vector<Color> colors;
    for (const Pixel& pixel : pixels) {
        if (pixel) {
            colors.push_back(*pixel);
        }
    }
    return colors;
}

/// Values as indexes into a palette.
class Indexer {
  public:
    explicit Indexer(const std::vector<Color>& palette) : palette_(palette) {}

    uint32_t operator()(Color color) {
        const auto [place, isNew] = known_.emplace(rgbOf(color), 0);
        if (isNew) {
            place->second = static_cast<uint32_t>(nearest(palette_, color));
        }
        return place->second;
    }

  private:
    const std::vector<Color>& palette_;
    std::unordered_map<uint32_t, uint32_t> known_;
};

template <typename ValueOf>
std::vector<uint32_t> valuesOf(const std::vector<Pixel>& pixels, ValueOf valueOf) {
    std::vector<uint32_t> values;
    values.reserve(pixels.size());
    for (const Pixel& pixel : pixels) {
        values.push_back(pixel ? valueOf(*pixel) : kClear);
    }
    return values;
}

/// The colours of an image's palette: those asked for, or chosen for what is drawn.
std::vector<Color> paletteFor(const std::vector<Pixel>& pixels, const Target& target,
                              size_t count) {
    if (!target.palette) {
        auto chosen = chooseColors(drawnColors(pixels), count);
        return chosen.empty() ? std::vector<Color>{{0, 0, 0}} : chosen;
    }
    if (target.palette->empty() || target.palette->size() > count) {
        throw Failure("the palette has " + std::to_string(target.palette->size()) +
                      " colours, not 1 to " + std::to_string(count));
    }
    return *target.palette;
}

} // namespace

Image imageOf(const Picture& picture, const Target& target) {
    const bool packed = target.packedBits != 0;
    const PixelFormat& surface = target.surface;
    Image image{picture.width,
                picture.height,
                packed,
                packed ? target.packedBits : surface.bits(),
                surface,
                {},
                {}};
    std::vector<Pixel> pixels = flattened(picture, target.matte);
    fillUnits(pixels, static_cast<size_t>(image.pixelsPerUnit()), target, image.width);
    if (!packed && !surface.isIndexed()) {
        image.values = valuesOf(pixels, [&](Color color) { return valueOf(surface, color); });
        return image;
    }
    for (Pixel& pixel : pixels) { // colours that the surface cannot tell apart need no two entries
        if (pixel && packed) {
            pixel = colorOf(surface, valueOf(surface, *pixel));
        }
    }
    const auto colors = paletteFor(pixels, target, size_t{1} << image.bits);
    for (const Color& color : colors) {
        image.palette.push_back(packed ? valueOf(surface, color) : rgbOf(color));
    }
    image.values = valuesOf(pixels, Indexer(colors));
    return image;
}

Picture pictureOf(const Image& image) {
    Picture picture{image.width, image.height, {}};
    picture.pixels.reserve(image.values.size());
    for (const uint32_t value : image.values) {
        const uint32_t entry =
            image.palette.empty() || value == kClear ? value : image.palette[value];
        if (value == kClear) {
            picture.pixels.push_back({0, 0, 0, 0});
        } else {
            picture.pixels.push_back(image.format.isIndexed() ? colorOfRgb(entry)
                                                              : colorOf(image.format, entry));
        }
    }
    return picture;
}

} // namespace grf
