// Pixman: pixman_fill where it has the format, boxes and composites elsewhere.
#include "contender.h"
#include "text.h"

#include <pixman.h>

#include <array>
#include <stdexcept>

namespace bench {
namespace {

using Image = std::shared_ptr<pixman_image_t>;

/// Bytes are alpha unless their channels matter: that is the format Pixman serves best.
pixman_format_code_t pixmanFormat(Format format, bool channelsMatter) {
    switch (format) {
    case Format::Rgb332:
        return channelsMatter ? PIXMAN_r3g3b2 : PIXMAN_a8;
    case Format::Rgb555:
        return PIXMAN_x1r5g5b5;
    case Format::Rgb565:
        return PIXMAN_r5g6b5;
    case Format::Rgb24:
        return PIXMAN_b8g8r8;
    case Format::Palette8:
        return PIXMAN_c8;
    }
    return PIXMAN_a8;
}

Image imageOn(uint8_t* pixels, int width, int height, pixman_format_code_t format) {
    const int stride = width * PIXMAN_FORMAT_BPP(format) / 8;
    pixman_image_t* image = pixman_image_create_bits(format, width, height,
                                                     reinterpret_cast<uint32_t*>(pixels), stride);
    if (image == nullptr) {
        throw std::runtime_error("pixman: no image");
    }
    return Image(image, pixman_image_unref);
}

const pixman_indexed_t* indexedPalette() {
    static const pixman_indexed_t indexed = [] {
        pixman_indexed_t made{};
        made.color = 1;
        for (size_t i = 0; i < 256; ++i) {
            made.rgba[i] = 0xFF000000 | palette()[i];
        }
        return made;
    }();
    return &indexed;
}

Pass fillWords(const Workload& workload, const Shapes& shapes, uint8_t* pixels) {
    const int bits = 8 * bytesPerPixel(workload.format);
    const int stride = bytesPerLine(workload.format) / 4;
    const uint32_t pixel = foreOf(workload.format) * (bits == 8 ? 0x01010101u : 0x00010001u);
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        pixman_fill(reinterpret_cast<uint32_t*>(pixels), stride, bits, place.x, place.y, w, h,
                    pixel);
    });
}

pixman_color_t colorOf(const Workload& workload) {
    const Masks masks = masksOf(workload.format);
    const auto wide = [pixel = foreOf(workload.format)](uint32_t mask) {
        return static_cast<uint16_t>(channelOf(pixel, mask) * 0x101);
    };
    return {wide(masks.red), wide(masks.green), wide(masks.blue), 0xFFFF};
}

Pass fillBoxes(const Workload& workload, const Shapes& shapes, const Image& target) {
    const pixman_color_t color = colorOf(workload);
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        const pixman_box32_t box = {place.x, place.y, place.x + w, place.y + h};
        pixman_image_fill_boxes(PIXMAN_OP_SRC, target.get(), &color, 1, &box);
    });
}

/// Pixman's fast fill lacks pixels of three bytes.
Pass fill(const Workload& workload, const Shapes& shapes, const Image& target, uint8_t* pixels) {
    return workload.format == Format::Rgb24 ? fillBoxes(workload, shapes, target)
                                            : fillWords(workload, shapes, pixels);
}

Pass pattern(const Workload& workload, const Shapes& shapes, const Image& target) {
    auto tile = std::make_shared<std::vector<uint8_t>>(patternTile(workload.format));
    const Image image = imageOn(tile->data(), 8, 8, pixmanFormat(workload.format, false));
    pixman_image_set_repeat(image.get(), PIXMAN_REPEAT_NORMAL);
    const auto draw = [=, w = workload.width, h = workload.height](const Place& place) {
        pixman_image_composite32(PIXMAN_OP_SRC, image.get(), nullptr, target.get(), place.x,
                                 place.y, 0, 0, place.x, place.y, w, h);
    };
    return [tile, pass = atPlaces(shapes, draw)] { pass(); };
}

Pass transfer(const Workload& workload, const Shapes& shapes, const Image& source,
              const Image& target) {
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        pixman_image_composite32(PIXMAN_OP_SRC, source.get(), nullptr, target.get(), place.sourceX,
                                 place.sourceY, 0, 0, place.x, place.y, w, h);
    });
}

/// A cache of all glyphs, as masks of eight bits: those it serves best.
class Glyphs {
  public:
    Glyphs() : cache_(pixman_glyph_cache_create()) {
        pixman_glyph_cache_freeze(cache_);
        for (char letter = kFirstLetter; letter <= kLastLetter; ++letter) {
            std::array<uint8_t, kGlyphWidth * kGlyphHeight> mask;
            for (size_t i = 0; i < mask.size(); ++i) {
                const int shift = kGlyphWidth - 1 - static_cast<int>(i) % kGlyphWidth;
                const bool set = (glyphOf(letter)[i / kGlyphWidth] >> shift & 1) != 0;
                mask[i] = set ? 0xFF : 0;
            }
            const Image image = imageOn(mask.data(), kGlyphWidth, kGlyphHeight, PIXMAN_a8);
            const size_t key = static_cast<size_t>(letter);
            glyphs_[key] =
                pixman_glyph_cache_insert(cache_, this, &glyphs_[key], 0, 0, image.get());
        }
    }
    ~Glyphs() {
        pixman_glyph_cache_thaw(cache_);
        pixman_glyph_cache_destroy(cache_);
    }
    Glyphs(const Glyphs&) = delete;
    Glyphs& operator=(const Glyphs&) = delete;

    pixman_glyph_cache_t* cache() { return cache_; }
    const void* operator[](char letter) const { return glyphs_[static_cast<size_t>(letter)]; }

  private:
    pixman_glyph_cache_t* cache_;
    std::array<const void*, 128> glyphs_{};
};

/// All lines by one call, as a program that has laid them out beforehand would.
Pass text(const Workload& workload, const Shapes& shapes, const Image& target) {
    const auto cached = std::make_shared<Glyphs>();
    std::vector<pixman_glyph_t> glyphs;
    for (const TextLine& line : linesOf(workload)) {
        int x = line.x;
        for (const char letter : line.letters) {
            glyphs.push_back({x, line.y, (*cached)[letter]});
            x += kGlyphWidth;
        }
    }
    const pixman_color_t color = colorOf(workload);
    const Image source(pixman_image_create_solid_fill(&color), pixman_image_unref);
    return atPlaces(shapes, [=](const Place& place) {
        pixman_composite_glyphs_no_mask(PIXMAN_OP_OVER, source.get(), target.get(), 0, 0, place.x,
                                        place.y, cached->cache(), static_cast<int>(glyphs.size()),
                                        glyphs.data());
    });
}

class Pixman final : public Contender {
  public:
    std::string_view name() const override { return "pixman"; }

    Rule rule(const Workload& workload) const override { return peerRule(workload); }

    Pass prepare(const Workload& workload, const Shapes& shapes, Canvas& canvas) override {
        if (workload.mode != Mode::Copy) {
            return {};
        }
        const bool converts = workload.operation == Operation::Convert;
        const Image target =
            imageOn(canvas.pixels(), kWidth, kHeight, pixmanFormat(workload.format, converts));
        switch (workload.operation) {
        case Operation::Fill:
        case Operation::Span:
        case Operation::Column:
            return fill(workload, shapes, target, canvas.pixels());
        case Operation::Pattern:
            return pattern(workload, shapes, target);
        case Operation::Text:
        case Operation::Caption:
            // On bytes it would blend alpha rather than set a colour.
            return workload.format == Format::Rgb332 ? Pass() : text(workload, shapes, target);
        case Operation::Transfer:
        case Operation::Convert: {
            const Image source =
                imageOn(canvas.source(), kWidth, kHeight, pixmanFormat(workload.source, converts));
            if (workload.source == Format::Palette8) {
                pixman_image_set_indexed(source.get(), indexedPalette());
            }
            return transfer(workload, shapes, source, target);
        }
        default:
            return {};
        }
    }
};

} // namespace

std::unique_ptr<Contender> makePixman() {
    return std::make_unique<Pixman>();
}

} // namespace bench
