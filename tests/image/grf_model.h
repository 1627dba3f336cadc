// GRF images a second way: one pixel after the other, step by step.
#pragma once

#include "support/guarded_surface.h"
#include "support/random_calls.h"
#include "support/recording_platform.h"

#include <quarlo/draw.h>
#include <quarlo/image.h>

#include <cstdint>
#include <ostream>
#include <vector>

namespace quarlo::test {

/// An image and how it is drawn.
struct GrfCase {
    uint16_t type;
    int16_t width;
    int16_t height;
    int16_t bits;
    bool palette;
    std::vector<uint8_t> stream;
    int16_t x;
    int16_t y;
    int16_t boxWidth;
    int16_t boxHeight;
    int32_t mode;

    friend std::ostream& operator<<(std::ostream& out, const GrfCase& call) {
        out << "type " << call.type << (call.palette ? " with" : " without") << " palette, "
            << call.width << " x " << call.height << " of " << call.bits << " bits at " << call.x
            << ", " << call.y << " in " << call.boxWidth << " x " << call.boxHeight << " mode "
            << call.mode << ':';
        for (const uint8_t byte : call.stream) {
            out << ' ' << +byte;
        }
        return out;
    }
};

inline const std::vector<uint32_t>& grfPalette() {
    static const std::vector<uint32_t> palette = [] {
        std::vector<uint32_t> colors(1 << 16);
        for (size_t i = 0; i < colors.size(); ++i) {
            colors[i] = static_cast<uint32_t>(i * 0x9E3779B1U);
        }
        return colors;
    }();
    return palette;
}

/// The runs of a stream as pixels: the value, or nothing for one that is skipped.
struct GrfPixel {
    bool set;
    uint32_t value;
};

/// All pixels up to the end of the stream or the last row, with values of `unitBytes` bytes each
/// holding `perUnit` pixels of `bits` bits.
inline std::vector<GrfPixel> grfPixels(const GrfCase& call, int32_t unitBytes, bool packed) {
    const size_t most = static_cast<size_t>(call.width) * static_cast<size_t>(call.height);
    const auto& colors = grfPalette();
    std::vector<GrfPixel> pixels;
    size_t at = 0;
    const auto unit = [&](size_t from) {
        uint32_t value = 0;
        for (int32_t byte = 0; byte < unitBytes; ++byte) {
            value |= uint32_t{call.stream[from + static_cast<size_t>(byte)]} << (8 * byte);
        }
        return value;
    };
    const auto put = [&](uint32_t value) {
        if (!packed) {
            pixels.push_back({true, value});
            return;
        }
        for (int32_t i = 0; i < 8 * unitBytes / call.bits && pixels.size() < most; ++i) {
            const int32_t shift = 8 * unitBytes - (i + 1) * call.bits;
            pixels.push_back({true, colors[value >> shift & ((1U << call.bits) - 1)]});
        }
    };
    while (pixels.size() < most && call.stream[at] != 0) {
        const uint8_t control = call.stream[at++];
        const int32_t count = control & 0x3F;
        switch (control >> 6) {
        case 0:
            ++at;
            pixels.insert(pixels.end(), static_cast<size_t>(count), {false, 0});
            break;
        case 1:
            for (int32_t i = 0; i < count && pixels.size() < most; ++i) {
                put(unit(at));
                at += static_cast<size_t>(unitBytes);
            }
            break;
        case 3:
            for (int32_t i = 0; i < count && pixels.size() < most; ++i) {
                put(unit(at));
            }
            at += static_cast<size_t>(unitBytes);
            break;
        default:
            break;
        }
    }
    pixels.resize(most, {false, 0});
    return pixels;
}

/// Combines a value into a pixel of a surface inside a clip rectangle. The mode may be
/// kCountingMode.
inline void plotByModel(GuardedSurface& surface, const GRect& clip, int32_t x, int32_t y,
                        uint32_t value, int32_t mode) {
    if (x < clip.left || x > clip.right || y < clip.top || y > clip.bottom) {
        return;
    }
    const uint32_t mask = 0xFFFFFFU >> (24 - surface->bitsPerPixel);
    const uint32_t old = pixelAt(*surface, x, y);
    const uint32_t results[] = {value, old & value, old | value, old ^ value, old + 1};
    setPixelAt(*surface, x, y, results[mode] & mask);
}

inline void drawGrfByModel(GuardedSurface& surface, const GRect& clip, const GrfCase& call) {
    const bool packed = call.type == 2 && call.palette;
    if (packed && call.bits > 16) {
        return;
    }
    const auto pixels = grfPixels(call, (call.bits + 7) / 8, packed);
    const bool cropped = call.boxWidth > 0 && call.boxHeight > 0;
    for (int32_t y = 0; y < call.height; ++y) {
        for (int32_t x = 0; x < call.width; ++x) {
            const int32_t at = y * call.width + x;
            const GrfPixel& pixel = pixels[static_cast<size_t>(at)];
            if (pixel.set && !(cropped && (x >= call.boxWidth || y >= call.boxHeight))) {
                plotByModel(surface, clip, call.x + x, call.y + y, pixel.value, call.mode);
            }
        }
    }
}

/// Random runs that fill the image, or end before, or go past its last row. Units are bytes of any
/// value.
inline std::vector<uint8_t> randomStream(Random& random, int32_t pixels, int32_t unitBytes) {
    std::vector<uint8_t> stream;
    const auto byte = [&random] {
        return static_cast<uint8_t>(random.oneIn(3) ? 0 : random.between(0, 255));
    };
    for (int32_t left = random.between(0, pixels + 40); left > 0;) {
        const int32_t count = random.oneIn(8) ? 0 : random.between(1, random.oneIn(3) ? 63 : 9);
        const int32_t kind = random.between(0, 3);
        if (kind == 0 && count == 0) {
            continue; // the end of the stream
        }
        stream.push_back(static_cast<uint8_t>(kind << 6 | count));
        const int32_t units = kind == 1 ? count : (kind == 3 ? 1 : 0);
        for (int32_t i = 0; i < (kind == 0 ? 1 : units * unitBytes); ++i) {
            stream.push_back(byte());
        }
        left -= count == 0 ? 1 : count;
    }
    stream.push_back(0);
    return stream;
}

} // namespace quarlo::test
