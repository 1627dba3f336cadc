// Allegro 4 memory bitmaps.
#include "contender.h"
#include "image.h"
#include "outlines.h"
#include "text.h"

#define ALLEGRO_NO_MAGIC_MAIN
#include <allegro.h>

#include <stdexcept>

namespace bench {
namespace {

using Bitmap = std::shared_ptr<BITMAP>;

int depthOf(Format format) {
    return format == Format::Rgb555 ? 15 : 8 * bytesPerPixel(format);
}

Bitmap makeBitmap(int width, int height, Format format) {
    BITMAP* bitmap = create_bitmap_ex(depthOf(format), width, height);
    if (bitmap == nullptr) {
        throw std::runtime_error("allegro: no bitmap");
    }
    return Bitmap(bitmap, destroy_bitmap);
}

/// Allegro finds rows through a table of pointers, so a bitmap can be laid over the canvas. Its own
/// memory stays with it, unused.
Bitmap bitmapOn(uint8_t* pixels, Format format) {
    Bitmap bitmap = makeBitmap(kWidth, kHeight, format);
    for (int y = 0; y < kHeight; ++y) {
        bitmap->line[y] = pixels + y * bytesPerLine(format);
    }
    return bitmap;
}

/// Channel positions are the process's in Allegro, one set a depth.
void useChannelOrder() {
    _rgb_r_shift_15 = 10;
    _rgb_g_shift_15 = 5;
    _rgb_b_shift_15 = 0;
    _rgb_r_shift_16 = 11;
    _rgb_g_shift_16 = 5;
    _rgb_b_shift_16 = 0;
    _rgb_r_shift_24 = 0;
    _rgb_g_shift_24 = 8;
    _rgb_b_shift_24 = 16;
}

/// Palette entries have six bits a channel here.
void usePalette() {
    PALETTE colors{};
    for (size_t i = 0; i < 256; ++i) {
        colors[i].r = static_cast<unsigned char>(channelOf(palette()[i], 0xFF0000) >> 2);
        colors[i].g = static_cast<unsigned char>(channelOf(palette()[i], 0x00FF00) >> 2);
        colors[i].b = static_cast<unsigned char>(channelOf(palette()[i], 0x0000FF) >> 2);
    }
    select_palette(colors);
}

Pass fill(const Workload& workload, const Shapes& shapes, const Bitmap& target) {
    const int color = static_cast<int>(foreOf(workload.format));
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        rectfill(target.get(), place.x, place.y, place.x + w - 1, place.y + h - 1, color);
    });
}

Pass span(const Workload& workload, const Shapes& shapes, const Bitmap& target) {
    const int color = static_cast<int>(foreOf(workload.format));
    return atPlaces(shapes, [=, w = workload.width](const Place& place) {
        hline(target.get(), place.x, place.y, place.x + w - 1, color);
    });
}

Pass column(const Workload& workload, const Shapes& shapes, const Bitmap& target) {
    const int color = static_cast<int>(foreOf(workload.format));
    return atPlaces(shapes, [=, h = workload.height](const Place& place) {
        vline(target.get(), place.x, place.y, place.y + h - 1, color);
    });
}

Pass pattern(const Workload& workload, const Shapes& shapes, const Bitmap& target) {
    const Bitmap tile = makeBitmap(8, 8, workload.format);
    for (int y = 0; y < 8; ++y) {
        for (int x = 0; x < 8; ++x) {
            putpixel(tile.get(), x, y, static_cast<int>(patternPixel(workload.format, x, y)));
        }
    }
    drawing_mode(DRAW_MODE_COPY_PATTERN, tile.get(), 0, 0);
    return [tile, pass = fill(workload, shapes, target)] { pass(); };
}

Pass lines(const Workload& workload, const Shapes& shapes, const Bitmap& target) {
    const int color = static_cast<int>(foreOf(workload.format));
    return alongSegments(
        shapes, [=](const Segment& s) { line(target.get(), s.x1, s.y1, s.x2, s.y2, color); });
}

int dashStep = 0;

/// Allegro walks a line and leaves its dots to a callback.
void plotDash(BITMAP* bitmap, int x, int y, int color) {
    if ((dashStep++ & kDash) == 0) {
        putpixel(bitmap, x, y, color);
    }
}

Pass dashes(const Workload& workload, const Shapes& shapes, const Bitmap& target) {
    const int color = static_cast<int>(foreOf(workload.format));
    return alongSegments(shapes, [=](const Segment& s) {
        dashStep = 0;
        do_line(target.get(), s.x1, s.y1, s.x2, s.y2, color, plotDash);
    });
}

Pass transfer(const Workload& workload, const Shapes& shapes, const Bitmap& source,
              const Bitmap& target) {
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        blit(source.get(), target.get(), place.sourceX, place.sourceY, place.x, place.y, w, h);
    });
}

Pass scroll(const Workload& workload, const Shapes& shapes, const Bitmap& target) {
    const auto [x, y] = workload.step;
    return atPlaces(shapes, [=, dx = x, dy = y](const Place&) {
        blit(target.get(), target.get(), dx < 0 ? 1 : 0, dy < 0 ? 1 : 0, dx > 0 ? 1 : 0,
             dy > 0 ? 1 : 0, kWidth - (dx != 0), kHeight - (dy != 0));
    });
}

Pass polygons(const Workload& workload, const Shapes& shapes, const Bitmap& target) {
    const int color = static_cast<int>(foreOf(workload.format));
    std::vector<std::vector<int>> moved;
    for (const Place& place : shapes.places) {
        auto& points = moved.emplace_back();
        for (const auto& [x, y] : polygonOf(workload.operation)) {
            points.insert(points.end(), {place.x + x, place.y + y});
        }
    }
    return [=]() mutable {
        for (auto& points : moved) {
            polygon(target.get(), static_cast<int>(points.size() / 2), points.data(), color);
        }
    };
}

/// Ellipses by `draw`, which takes the centre and the radii.
Pass ellipses(const Workload& workload, const Shapes& shapes, const Bitmap& target,
              void (*draw)(BITMAP*, int, int, int, int, int)) {
    const int color = static_cast<int>(foreOf(workload.format));
    return atPlaces(shapes,
                    [=, rx = workload.width / 2, ry = workload.height / 2](const Place& place) {
                        draw(target.get(), place.x + rx, place.y + ry, rx, ry, color);
                    });
}

/// A full turn has 256 degrees here.
Pass arcs(const Workload& workload, const Shapes& shapes, const Bitmap& target) {
    const int color = static_cast<int>(foreOf(workload.format));
    const fixed start = ftofix(kArcStart * 256.0 / 360);
    const fixed end = ftofix(kArcEnd * 256.0 / 360);
    return atPlaces(shapes, [=, radius = (workload.width - 1) / 2](const Place& place) {
        arc(target.get(), place.x + radius, place.y + radius, start, end, radius, color);
    });
}

Pass beziers(const Workload& workload, const Shapes& shapes, const Bitmap& target) {
    const int color = static_cast<int>(foreOf(workload.format));
    return atPlaces(shapes, [=](const Place& place) {
        int points[2 * kCurve.size()];
        for (size_t i = 0; i < kCurve.size(); ++i) {
            points[2 * i] = place.x + kCurve[i].x;
            points[2 * i + 1] = place.y + kCurve[i].y;
        }
        spline(target.get(), points, color);
    });
}

/// It has neither rounded rectangles nor sectors.
Pass shape(const Workload& workload, const Shapes& shapes, const Bitmap& target) {
    switch (workload.operation) {
    case Operation::Oval:
        return ellipses(workload, shapes, target, ellipsefill);
    case Operation::OvalLine:
        return ellipses(workload, shapes, target, ellipse);
    case Operation::Arc:
        return arcs(workload, shapes, target);
    case Operation::Bezier:
        return beziers(workload, shapes, target);
    default:
        return isPolygon(workload.operation) ? polygons(workload, shapes, target) : Pass();
    }
}

/// Allegro finds the glyphs of a font in a picture of them, in cells with edges of colour 255. Its
/// fonts begin at the space.
std::shared_ptr<FONT> makeFont() {
    constexpr int kEdge = 255;
    constexpr int kColumns = 16;
    constexpr int kRows = 6;
    const Bitmap cells = makeBitmap(kColumns * (kGlyphWidth + 1) + 1,
                                    kRows * (kGlyphHeight + 1) + 1, Format::Palette8);
    clear_to_color(cells.get(), kEdge);
    for (char letter = ' '; letter <= kLastLetter; ++letter) {
        const int left = 1 + (letter - ' ') % kColumns * (kGlyphWidth + 1);
        const int top = 1 + (letter - ' ') / kColumns * (kGlyphHeight + 1);
        for (int y = 0; y < kGlyphHeight; ++y) {
            const uint8_t row = letter == ' ' ? 0 : glyphOf(letter)[static_cast<size_t>(y)];
            for (int x = 0; x < kGlyphWidth; ++x) {
                putpixel(cells.get(), left + x, top + y, row >> (kGlyphWidth - 1 - x) & 1);
            }
        }
    }
    FONT* font = grab_font_from_bitmap(cells.get());
    if (font == nullptr || text_length(font, "A") != kGlyphWidth) {
        throw std::runtime_error("allegro: no font");
    }
    return {font, destroy_font};
}

Pass text(const Workload& workload, const Shapes& shapes, const Bitmap& target) {
    const auto font = makeFont();
    const auto lines = linesOf(workload);
    if (workload.operation == Operation::Measure) {
        return atPlaces(
            shapes, [=](const Place&) { text_length(font.get(), lines.front().letters.c_str()); });
    }
    constexpr int kNoBackground = -1;
    const int color = static_cast<int>(foreOf(workload.format));
    const int background = workload.operation == Operation::OpaqueText
                               ? static_cast<int>(backOf(workload.format))
                               : kNoBackground;
    return atPlaces(shapes, [=](const Place& place) {
        for (const TextLine& line : lines) {
            textout_ex(target.get(), font.get(), line.letters.c_str(), place.x + line.x,
                       place.y + line.y, color, background);
        }
    });
}

/// The image with Allegro's colour for transparent pixels.
Bitmap imageBitmap(const Workload& workload) {
    const Bitmap bitmap = makeBitmap(kImageSize, kImageSize, workload.format);
    const std::vector<uint32_t> pixels = imagePixels(workload);
    const int transparent = bitmap_mask_color(bitmap.get());
    for (int i = 0; i < kImageSize * kImageSize; ++i) {
        const uint32_t pixel = pixels[static_cast<size_t>(i)];
        putpixel(bitmap.get(), i % kImageSize, i / kImageSize,
                 pixel == kTransparent ? transparent : static_cast<int>(pixel));
    }
    return bitmap;
}

Pass image(const Workload& workload, const Shapes& shapes, const Bitmap& target) {
    const Bitmap bitmap = imageBitmap(workload);
    if (workload.operation == Operation::ImageZoom) {
        return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
            stretch_sprite(target.get(), bitmap.get(), place.x, place.y, w, h);
        });
    }
    const std::shared_ptr<RLE_SPRITE> sprite(get_rle_sprite(bitmap.get()), destroy_rle_sprite);
    const Part part = partOf(workload);
    const bool clipped = workload.operation != Operation::Image;
    return atPlaces(shapes, [=](const Place& place) {
        if (clipped) {
            set_clip_rect(target.get(), place.x + part.left, place.y + part.top,
                          place.x + part.right, place.y + part.bottom);
        }
        draw_rle_sprite(target.get(), sprite.get(), place.x, place.y);
    });
}

class Allegro4 final : public Contender {
  public:
    Allegro4() {
        if (install_allegro(SYSTEM_NONE, &errno, nullptr) != 0) {
            throw std::runtime_error("allegro: does not start");
        }
        useChannelOrder();
        usePalette();
    }
    ~Allegro4() override { allegro_exit(); }

    std::string_view name() const override { return "allegro4"; }

    Rule rule(const Workload& workload) const override { return peerRule(workload); }

    Pass prepare(const Workload& workload, const Shapes& shapes, Canvas& canvas) override {
        const bool combines = workload.mode == Mode::Xor;
        if (workload.mode != Mode::Copy && !combines) {
            return {};
        }
        drawing_mode(combines ? DRAW_MODE_XOR : DRAW_MODE_SOLID, nullptr, 0, 0);
        const Bitmap target = bitmapOn(canvas.pixels(), workload.format);
        switch (workload.operation) {
        case Operation::Fill:
            return fill(workload, shapes, target);
        case Operation::Span:
            return span(workload, shapes, target);
        case Operation::Column:
            return column(workload, shapes, target);
        case Operation::Line:
            return lines(workload, shapes, target);
        case Operation::Dash:
            return dashes(workload, shapes, target);
        default:
            return combines ? Pass() : prepareCopy(workload, shapes, target, canvas);
        }
    }

  private:
    static Pass prepareCopy(const Workload& workload, const Shapes& shapes, const Bitmap& target,
                            Canvas& canvas) {
        switch (workload.operation) {
        case Operation::Pattern:
            return pattern(workload, shapes, target);
        case Operation::Scroll:
            return scroll(workload, shapes, target);
        case Operation::Convert:
            if (!converts(workload)) {
                return {};
            }
            [[fallthrough]];
        case Operation::Transfer:
            return transfer(workload, shapes, bitmapOn(canvas.source(), workload.source), target);
        default:
            break;
        }
        if (isText(workload.operation)) {
            return text(workload, shapes, target);
        }
        return isImage(workload.operation) ? image(workload, shapes, target)
                                           : shape(workload, shapes, target);
    }

    /// Bytes are palette indices only, and six bits a channel are too few for 24 bits a pixel.
    static bool converts(const Workload& workload) {
        if (workload.source == Format::Palette8) {
            return workload.format != Format::Rgb24;
        }
        return workload.source != Format::Rgb332;
    }
};

} // namespace

std::unique_ptr<Contender> makeAllegro4() {
    return std::make_unique<Allegro4>();
}

} // namespace bench
