// SDL 2 surfaces, and its software renderer for lines.
//
// SDL_FillRect stores past the cache wherever SSE is present, which costs a rectangle that is in
// the cache much of its time; SDL offers no way to choose otherwise. Lines are flushed one by one,
// as a line that has to be seen is.
//
// SDL has no text of its own: its fonts come as surfaces, so a glyph is one, run-length encoded
// with a transparent colour, or a plain one where the background is drawn too. Images are encoded
// alike.
#include "contender.h"
#include "image.h"
#include "text.h"

#include <SDL.h>

#include <array>
#include <stdexcept>
#include <string>

namespace bench {
namespace {

using Surface = std::shared_ptr<SDL_Surface>;
using Renderer = std::shared_ptr<SDL_Renderer>;

SDL_PixelFormatEnum sdlFormat(Format format) {
    switch (format) {
    case Format::Rgb332:
        return SDL_PIXELFORMAT_RGB332;
    case Format::Rgb555:
        return SDL_PIXELFORMAT_RGB555;
    case Format::Rgb565:
        return SDL_PIXELFORMAT_RGB565;
    case Format::Rgb24:
        return SDL_PIXELFORMAT_RGB24;
    case Format::Palette8:
        return SDL_PIXELFORMAT_INDEX8;
    }
    return SDL_PIXELFORMAT_UNKNOWN;
}

void usePalette(SDL_Surface* surface) {
    std::vector<SDL_Color> colors;
    for (const uint32_t color : palette()) {
        colors.push_back({channelOf(color, 0xFF0000), channelOf(color, 0x00FF00),
                          channelOf(color, 0x0000FF), 255});
    }
    SDL_SetPaletteColors(surface->format->palette, colors.data(), 0, 256);
}

Surface surfaceOn(uint8_t* pixels, Format format) {
    SDL_Surface* surface =
        SDL_CreateRGBSurfaceWithFormatFrom(pixels, kWidth, kHeight, 8 * bytesPerPixel(format),
                                           bytesPerLine(format), sdlFormat(format));
    if (surface == nullptr) {
        throw std::runtime_error(std::string("SDL: ") + SDL_GetError());
    }
    if (format == Format::Palette8) {
        usePalette(surface);
    }
    SDL_SetSurfaceBlendMode(surface, SDL_BLENDMODE_NONE);
    return Surface(surface, SDL_FreeSurface);
}

Pass fill(const Workload& workload, const Shapes& shapes, const Surface& target) {
    const uint32_t pixel = foreOf(workload.format);
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        const SDL_Rect rect = {place.x, place.y, w, h};
        SDL_FillRect(target.get(), &rect, pixel);
    });
}

Pass transfer(const Workload& workload, const Shapes& shapes, const Surface& source,
              const Surface& target) {
    return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
        const SDL_Rect from = {place.sourceX, place.sourceY, w, h};
        SDL_Rect to = {place.x, place.y, w, h};
        SDL_BlitSurface(source.get(), &from, target.get(), &to);
    });
}

Pass scroll(const Workload& workload, const Shapes& shapes, const Surface& target) {
    const auto [x, y] = workload.step;
    const SDL_Rect from = {x < 0 ? 1 : 0, y < 0 ? 1 : 0, kWidth - (x != 0), kHeight - (y != 0)};
    return atPlaces(shapes, [=, dx = x, dy = y](const Place&) {
        SDL_Rect to = {from.x + dx, from.y + dy, from.w, from.h};
        SDL_BlitSurface(target.get(), &from, target.get(), &to);
    });
}

Pass lines(const Workload& workload, const Shapes& shapes, const Surface& target) {
    const Renderer renderer(SDL_CreateSoftwareRenderer(target.get()), SDL_DestroyRenderer);
    const Masks masks = masksOf(workload.format);
    const uint32_t pixel = foreOf(workload.format);
    SDL_SetRenderDrawColor(renderer.get(), channelOf(pixel, masks.red),
                           channelOf(pixel, masks.green), channelOf(pixel, masks.blue), 255);
    return alongSegments(shapes, [target, renderer](const Segment& line) {
        SDL_RenderDrawLine(renderer.get(), line.x1, line.y1, line.x2, line.y2);
        SDL_RenderFlush(renderer.get());
    });
}

/// A surface of its own with these pixels; transparent ones are left out when it is drawn.
Surface encoded(const std::vector<uint8_t>& bytes, int width, int height, Format format) {
    const Surface surface(SDL_CreateRGBSurfaceWithFormat(
                              0, width, height, 8 * bytesPerPixel(format), sdlFormat(format)),
                          SDL_FreeSurface);
    const auto row = static_cast<size_t>(width * bytesPerPixel(format));
    for (int y = 0; y < height; ++y) {
        std::copy_n(bytes.data() + static_cast<size_t>(y) * row, row,
                    static_cast<uint8_t*>(surface->pixels) + y * surface->pitch);
    }
    SDL_SetColorKey(surface.get(), SDL_TRUE, kTransparent);
    SDL_SetSurfaceRLE(surface.get(), 1);
    return surface;
}

Surface glyphSurface(char letter, Format format, bool opaque) {
    std::vector<uint8_t> bytes;
    for (const uint8_t row : glyphOf(letter)) {
        for (int x = 0; x < kGlyphWidth; ++x) {
            const bool set = (row >> (kGlyphWidth - 1 - x) & 1) != 0;
            const uint32_t clear = opaque ? backOf(format) : kTransparent;
            const uint32_t pixel = set ? foreOf(format) : clear;
            for (int byte = 0; byte < bytesPerPixel(format); ++byte) {
                bytes.push_back(static_cast<uint8_t>(pixel >> (8 * byte)));
            }
        }
    }
    const Surface glyph = encoded(bytes, kGlyphWidth, kGlyphHeight, format);
    if (opaque) {
        SDL_SetSurfaceRLE(glyph.get(), 0);
        SDL_SetColorKey(glyph.get(), SDL_FALSE, 0);
    }
    return glyph;
}

Pass text(const Workload& workload, const Shapes& shapes, const Surface& target) {
    const bool opaque = workload.operation == Operation::OpaqueText;
    auto glyphs = std::make_shared<std::array<Surface, 128>>();
    for (char letter = kFirstLetter; letter <= kLastLetter; ++letter) {
        (*glyphs)[static_cast<size_t>(letter)] = glyphSurface(letter, workload.format, opaque);
    }
    return atPlaces(shapes, [=, lines = linesOf(workload)](const Place& place) {
        for (const TextLine& line : lines) {
            int x = place.x + line.x;
            for (const char letter : line.letters) {
                SDL_Rect to = {x, place.y + line.y, kGlyphWidth, kGlyphHeight};
                SDL_BlitSurface((*glyphs)[static_cast<size_t>(letter)].get(), nullptr, target.get(),
                                &to);
                x += kGlyphWidth;
            }
        }
    });
}

Pass image(const Workload& workload, const Shapes& shapes, const Surface& target) {
    const Surface source = encoded(imageBytes(workload), kImageSize, kImageSize, workload.format);
    if (workload.operation == Operation::ImageZoom) {
        SDL_SetSurfaceRLE(source.get(), 0); // it would be decoded for each call
        return atPlaces(shapes, [=, w = workload.width, h = workload.height](const Place& place) {
            SDL_Rect to = {place.x, place.y, w, h};
            SDL_BlitScaled(source.get(), nullptr, target.get(), &to);
        });
    }
    const Part part = partOf(workload);
    const bool clipped = workload.operation != Operation::Image;
    return atPlaces(shapes, [=](const Place& place) {
        if (clipped) {
            const SDL_Rect clip = {place.x + part.left, place.y + part.top,
                                   part.right - part.left + 1, part.bottom - part.top + 1};
            SDL_SetClipRect(target.get(), &clip);
        }
        SDL_Rect to = {place.x, place.y, kImageSize, kImageSize};
        SDL_BlitSurface(source.get(), nullptr, target.get(), &to);
    });
}

class Sdl2 final : public Contender {
  public:
    std::string_view name() const override { return "sdl2"; }

    Rule rule(const Workload& workload) const override { return peerRule(workload); }

    Pass prepare(const Workload& workload, const Shapes& shapes, Canvas& canvas) override {
        if (workload.mode != Mode::Copy) {
            return {};
        }
        const Surface target = surfaceOn(canvas.pixels(), workload.format);
        switch (workload.operation) {
        case Operation::Fill:
        case Operation::Span:
        case Operation::Column:
            return fill(workload, shapes, target);
        case Operation::Line:
            // No line of SDL's takes pixels of three bytes.
            return workload.format == Format::Rgb24 ? Pass() : lines(workload, shapes, target);
        case Operation::Transfer:
        case Operation::Convert:
            return transfer(workload, shapes, surfaceOn(canvas.source(), workload.source), target);
        case Operation::Scroll:
            return scroll(workload, shapes, target);
        case Operation::Text:
        case Operation::OpaqueText:
        case Operation::Caption:
            return text(workload, shapes, target);
        default:
            return isImage(workload.operation) ? image(workload, shapes, target) : Pass();
        }
    }
};

} // namespace

std::unique_ptr<Contender> makeSdl2() {
    return std::make_unique<Sdl2>();
}

} // namespace bench
