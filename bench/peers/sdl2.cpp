// SDL 2 surfaces, and its software renderer for lines.
//
// SDL_FillRect stores past the cache wherever SSE is present, which costs a rectangle that is in
// the cache much of its time; SDL offers no way to choose otherwise. Lines are flushed one by one,
// as a line that has to be seen is.
#include "contender.h"

#include <SDL.h>

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
        default:
            return {};
        }
    }
};

} // namespace

std::unique_ptr<Contender> makeSdl2() {
    return std::make_unique<Sdl2>();
}

} // namespace bench
