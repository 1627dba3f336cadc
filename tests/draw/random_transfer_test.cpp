// Random transfers compared with a model that walks every pixel of the destination.
#include "draw/draw_test.h"

#include "draw/transfer_model.h"
#include "geometry/view.h"
#include "support/random_calls.h"

#include <quarlo/rect.h>
#include <quarlo/transfer.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

using namespace quarlo::test;

namespace {

/// A pixel format that surfaces are given.
struct PixelFormat {
    const char* name;
    int16_t bitsPerPixel;
    int8_t colorType;
    uint32_t red;
    uint32_t green;
    uint32_t blue;
};

constexpr PixelFormat kFormats[] = {
    {"3-3-2", 8, G_COLOR_DIRECT, 0xE0, 0x1C, 0x03},
    {"5-5-5", 16, G_COLOR_DIRECT, 0x7C00, 0x03E0, 0x001F},
    {"5-5-4", 16, G_COLOR_DIRECT, 0x7C00, 0x03E0, 0x001E},
    {"5-6-5", 16, G_COLOR_DIRECT, 0xF800, 0x07E0, 0x001F},
    {"8-8-8", 24, G_COLOR_DIRECT, 0x0000FF, 0x00FF00, 0xFF0000},
    {"8-8-8 the other way round", 24, G_COLOR_DIRECT, 0xFF0000, 0x00FF00, 0x0000FF},
    {"5-5-5 the other way round", 16, G_COLOR_DIRECT, 0x001F, 0x03E0, 0x7C00},
    {"4-4-4", 16, G_COLOR_DIRECT, 0x0F00, 0x00F0, 0x000F},
    {"10 bits", 24, G_COLOR_DIRECT, 0x0003FF, 0x0FFC00, 0xF00000},
    {"one bit each", 8, G_COLOR_DIRECT, 0x80, 0x10, 0x01},
    {"holes", 16, G_COLOR_DIRECT, 0x9040, 0x0A01, 0x0014},
    {"overlapping", 24, G_COLOR_DIRECT, 0x00FFFF, 0x0FFFF0, 0xFFFF00},
    {"past the pixel", 16, G_COLOR_DIRECT, 0xFF000000, 0x00018000, 0x80000001},
    {"no masks", 24, G_COLOR_DIRECT, 0, 0, 0},
    {"all masks", 8, G_COLOR_DIRECT, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF},
    {"no colour type", 16, 0, 0x7C00, 0x03E0, 0x001F},
    {"palette", 8, G_COLOR_PALETTE, 0xFF0000, 0x00FF00, 0x0000FF},
    {"palette of 3-3-2", 8, G_COLOR_PALETTE, 0xE0, 0x1C, 0x03},
    {"palette of 16 bits", 16, G_COLOR_PALETTE, 0xFF0000, 0x00FF00, 0x0000FF},
    {"palette of 24 bits", 24, G_COLOR_PALETTE, 0x3FF00000, 0x000FFC00, 0x000003FF},
};

/// The record of a surface and the seed of its pixels.
struct SurfaceSetup {
    PixelFormat format;
    int16_t width;
    int16_t height;
    int16_t padding;
    Against side;
    GRect bounds;
    GRect clip;
    int paletteCount; ///< -1 for no palette at all
};

std::ostream& operator<<(std::ostream& out, const SurfaceSetup& setup) {
    return out << setup.width << " x " << setup.height << " (" << setup.padding << ") "
               << setup.format.name << ", bounds " << setup.bounds << ", clip " << setup.clip
               << ", palette " << setup.paletteCount;
}

/// How the handle maps.
struct Mapping {
    bool isVirtual;
    GPoint origin;
    GRect frame;
    int16_t physicalWidth;
    int16_t physicalHeight;
};

std::ostream& operator<<(std::ostream& out, const Mapping& mapping) {
    if (mapping.isVirtual) {
        return out << "virtual " << mapping.frame << " on " << mapping.physicalWidth << " x "
                   << mapping.physicalHeight;
    }
    return out << "origin " << mapping.origin;
}

/// One transfer on surfaces of its own.
struct TransferCall {
    SurfaceSetup source;
    SurfaceSetup destination;
    bool within; ///< the source is the destination, too
    bool onDisplay;
    Mapping mapping;
    Blit blit;
    uint64_t seed;
};

std::ostream& operator<<(std::ostream& out, const TransferCall& call) {
    const Blit& blit = call.blit;
    out << (call.onDisplay ? "onto the display, " : "") << "from ";
    if (call.within) {
        out << "itself";
    } else {
        out << call.source;
    }
    return out << "\n      to " << call.destination << "\n      " << call.mapping << ", "
               << blit.sourceX << ", " << blit.sourceY << " (" << blit.width << " x " << blit.height
               << ") to " << blit.x << ", " << blit.y << " mode " << blit.mode;
}

GRect randomLimit(Random& random, int16_t width, int16_t height) {
    const GRect whole = {0, 0, static_cast<int16_t>(width - 1), static_cast<int16_t>(height - 1)};
    if (random.oneIn(2)) {
        return whole;
    }
    const auto x = [&] { return random.coordinate(-4, width + 4); };
    const auto y = [&] { return random.coordinate(-4, height + 4); };
    GRect rect = {x(), y(), x(), y()};
    if (!random.oneIn(8)) {
        GRSetRect(&rect, rect.left, rect.top, rect.right, rect.bottom);
    }
    return rect;
}

SurfaceSetup randomSurface(Random& random, const PixelFormat& format) {
    SurfaceSetup setup{};
    setup.format = format;
    setup.width =
        static_cast<int16_t>(random.oneIn(8) ? random.between(60, 300) : random.between(1, 40));
    setup.height = static_cast<int16_t>(random.between(1, 12));
    const int rowLength = setup.width * setup.format.bitsPerPixel / 8;
    setup.padding = static_cast<int16_t>(random.oneIn(3) ? random.between(-rowLength, 9) : 0);
    setup.side = random.oneIn(2) ? Against::End : Against::Start;
    setup.bounds = randomLimit(random, setup.width, setup.height);
    setup.clip = randomLimit(random, setup.width, setup.height);
    setup.paletteCount =
        random.oneIn(8) ? random.pick({-1, 0, 1, 255, 256, 257, 1000}) : random.between(1, 256);
    return setup;
}

Mapping randomMapping(Random& random) {
    Mapping mapping{};
    mapping.isVirtual = random.oneIn(4);
    const auto near = [&] { return random.oneIn(3) ? random.coordinate(-20, 20) : int16_t{0}; };
    mapping.origin = {near(), near()};
    mapping.physicalWidth = static_cast<int16_t>(random.between(1, 100));
    mapping.physicalHeight = static_cast<int16_t>(random.between(1, 30));
    mapping.frame = {near(), near(), random.coordinate(-5, 120), random.coordinate(-5, 60)};
    return mapping;
}

TransferCall randomTransfer(Random& random) {
    TransferCall call{};
    const PixelFormat& format = random.pick(kFormats);
    call.destination = randomSurface(random, format);
    call.source = randomSurface(random, random.oneIn(4) ? format : random.pick(kFormats));
    call.within = random.oneIn(3);
    call.onDisplay = random.oneIn(16);
    call.mapping = randomMapping(random);
    const SurfaceSetup& from = call.within ? call.destination : call.source;
    Blit& blit = call.blit;
    blit.sourceX = random.coordinate(-10, from.width);
    blit.sourceY = random.coordinate(-4, from.height);
    blit.width = random.coordinate(1, from.width + 10);
    blit.height = random.coordinate(1, from.height + 4);
    // Overlaps need places that lie near each other.
    if (call.within && random.oneIn(2)) {
        blit.x = static_cast<int16_t>(blit.sourceX + random.between(-9, 9));
        blit.y = static_cast<int16_t>(blit.sourceY + random.between(-2, 2));
    } else {
        blit.x = random.coordinate(-10, call.destination.width);
        blit.y = random.coordinate(-4, call.destination.height);
    }
    blit.mode = random.oneIn(12) ? random.pick({-1, 4, 32, 0x10000, -0x10000 + 3})
                                 : random.between(G_MODE_COPY, G_MODE_XOR);
    call.seed = random.bits();
    return call;
}

/// A surface as a setup has it, with noise in its memory.
class NoisySurface {
  public:
    NoisySurface(const SurfaceSetup& setup, uint64_t seed)
        : clip_(setup.clip),
          surface_(setup.width, setup.height, setup.format.bitsPerPixel, setup.side,
                   setup.padding) {
        Random noise(seed);
        uint8_t* const bytes = surface_.memory().data();
        std::generate_n(bytes, surface_.memory().size(),
                        [&] { return static_cast<uint8_t>(noise.bits()); });
        surface_->colorType = setup.format.colorType;
        surface_->redMask = setup.format.red;
        surface_->greenMask = setup.format.green;
        surface_->blueMask = setup.format.blue;
        surface_->bounds = setup.bounds;
        surface_->drawable = &clip_;
        if (setup.paletteCount >= 0) {
            palette_.resize(static_cast<size_t>(setup.paletteCount) + 1);
            std::generate(palette_.begin(), palette_.end(),
                          [&] { return static_cast<uint32_t>(noise.bits()); });
            surface_->paletteCount = static_cast<uint16_t>(setup.paletteCount);
            surface_->palette = palette_.data();
        } else {
            surface_->paletteCount = 256;
        }
    }

    GVram* get() { return surface_.get(); }
    GuardedMemory& memory() { return surface_.memory(); }

  private:
    GRect clip_;
    GuardedSurface surface_;
    std::vector<uint32_t> palette_;
};

/// The two surfaces of a call, made anew for the library and for the model.
struct Stage {
    explicit Stage(const TransferCall& call)
        : source(call.source, call.seed), destination(call.destination, call.seed + 1) {
        destination.get()->id = call.onDisplay ? int16_t{0} : int16_t{G_MEMORY_SURFACE};
        from = call.within ? destination.get() : source.get();
    }

    NoisySurface source;
    NoisySurface destination;
    const GVram* from;
};

std::string difference(const char* what, NoisySurface& actual, NoisySurface& expected) {
    const uint8_t* const bytes = actual.memory().data();
    const uint8_t* const wanted = expected.memory().data();
    const size_t size = actual.memory().size();
    const auto at = static_cast<size_t>(std::mismatch(bytes, bytes + size, wanted).first - bytes);
    std::ostringstream text;
    if (at < size) {
        text << what << ": byte " << at << " is " << int{bytes[at]} << ", not " << int{wanted[at]}
             << "; ";
    }
    if (!actual.memory().intact()) {
        text << what << ": written beside its memory; ";
    }
    return text.str();
}

class RandomTransfer : public HandleTest {
  protected:
    void enter(const Mapping& mapping) {
        handle->modeFlags = mapping.isVirtual ? G_FLAG_VIRTUAL : 0;
        handle->localOrigin = mapping.origin;
        handle->virtualRect = mapping.frame;
        quarlo::physicalRect = {0, 0, static_cast<int16_t>(mapping.physicalWidth - 1),
                                static_cast<int16_t>(mapping.physicalHeight - 1)};
    }

    /// What is wrong with one call, or nothing.
    std::string check(const TransferCall& call) {
        enter(call.mapping);
        Stage library(call);
        Stage model(call);
        platform.forget();
        const Blit& blit = call.blit;
        GDBitBlt(handle.get(), library.from, blit.sourceX, blit.sourceY, blit.width, blit.height,
                 library.destination.get(), blit.x, blit.y, blit.mode);
        const MappedBlit mapped = mapBlit(*handle, blit);
        std::vector<ServiceCall> expected;
        if (call.onDisplay) {
            if (const auto copied = cutBlit(*model.from, *model.destination.get(), mapped)) {
                expected.push_back(quarlo::test::call(
                    8, handle.get(), library.from, copied->sourceX, copied->sourceY, copied->width,
                    copied->height, library.destination.get(), copied->x, copied->y, blit.mode));
            }
        } else {
            modelTransfer(*model.from, *model.destination.get(), mapped, blit.mode);
        }
        std::string text = difference("source", library.source, model.source) +
                           difference("destination", library.destination, model.destination);
        if (platform.calls != expected) {
            text += "the platform was called otherwise; ";
        }
        return text;
    }
};

TEST_F(RandomTransfer, DoesWhatTheModelDoes) {
    forRandomCalls(20000, 1, randomTransfer, [&](const std::vector<TransferCall>& calls) {
        return calls.empty() ? std::string() : check(calls.front());
    });
}

} // namespace
