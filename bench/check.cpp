#include "check.h"

#include <bit>
#include <cmath>
#include <cstdio>
#include <optional>

namespace bench {
namespace {

/// As many lines as leave most of their pixels to themselves.
constexpr size_t kCountedLines = 64;
/// Peers differ at the ends of lines and of dashes; Cairo strokes are one pixel wide across the
/// line's direction, which takes more pixels than one a step.
constexpr double kMostExtraPixels = 0.15;
/// Where hundreds of edges cross each row, it matters most whether the pixels at both ends of a run
/// belong to it.
constexpr double kMostExtraInScribbles = 0.4;

using Picture = std::vector<uint8_t>;

/// A background that every mode changes.
uint8_t backgroundOf(const Workload& workload) {
    return workload.mode == Mode::And ? 0xFF : 0;
}

/// Whether the contenders' own rules for steps and outlines show.
bool isCounted(Operation operation) {
    return isLine(operation) || isShape(operation) || operation == Operation::ImageZoom;
}

std::optional<Picture> draw(Contender& contender, const Workload& workload, Canvas& canvas) {
    const bool counted = isCounted(workload.operation);
    const size_t count = isLine(workload.operation) ? kCountedLines : 1;
    const Shapes shapes = shapesOf(workload);
    const Pass pass = contender.prepare(workload, counted ? shapes.first(count) : shapes, canvas);
    if (!pass) {
        return std::nullopt;
    }
    canvas.reset();
    if (counted) {
        canvas.clear(backgroundOf(workload));
    }
    pass();
    const auto bytes = canvas.bytes(workload.format);
    return Picture(bytes.begin(), bytes.end());
}

uint32_t pixelAt(const Picture& picture, size_t index, int size) {
    uint32_t pixel = 0;
    for (int byte = 0; byte < size; ++byte) {
        pixel |= uint32_t{picture[index * static_cast<size_t>(size) + static_cast<size_t>(byte)]}
                 << (8 * byte);
    }
    return pixel;
}

/// The destination bits of a channel that a conversion takes from the source as they are.
uint32_t commonBits(uint32_t to, int fromBits) {
    uint32_t bits = 0;
    for (uint32_t bit = uint32_t{1} << 31; bit != 0 && fromBits > 0; bit >>= 1) {
        if ((to & bit) != 0) {
            bits |= bit;
            --fromBits;
        }
    }
    return bits;
}

Verdict compareChannels(const Picture& ours, const Picture& theirs, const Workload& workload) {
    const Masks from = masksOf(workload.source);
    const Masks to = masksOf(workload.format);
    const uint32_t common = commonBits(to.red, std::popcount(from.red)) |
                            commonBits(to.green, std::popcount(from.green)) |
                            commonBits(to.blue, std::popcount(from.blue));
    const int size = bytesPerPixel(workload.format);
    for (size_t i = 0; i < ours.size() / static_cast<size_t>(size); ++i) {
        if (((pixelAt(ours, i, size) ^ pixelAt(theirs, i, size)) & common) != 0) {
            return {false, "other channels"};
        }
    }
    return {true, ours == theirs ? "same bytes" : "same channels, own widening"};
}

Verdict comparePixels(const Picture& ours, const Picture& theirs, const Workload& workload) {
    const int size = bytesPerPixel(workload.format);
    const uint32_t background = backgroundOf(workload) * (0xFFFFFFu >> (24 - 8 * size) & 0x010101u);
    size_t both = 0;
    size_t ourPixels = 0;
    size_t theirPixels = 0;
    for (size_t i = 0; i < ours.size() / static_cast<size_t>(size); ++i) {
        const bool our = pixelAt(ours, i, size) != background;
        const bool their = pixelAt(theirs, i, size) != background;
        ourPixels += our ? 1 : 0;
        theirPixels += their ? 1 : 0;
        both += our && their ? 1 : 0;
    }
    const double more = static_cast<double>(theirPixels) / static_cast<double>(ourPixels) - 1;
    const double shared = static_cast<double>(both) / static_cast<double>(ourPixels);
    char note[64];
    std::snprintf(note, sizeof note, "own steps: %+.1f %% pixels, %.0f %% shared", 100 * more,
                  100 * shared);
    const double most =
        workload.operation == Operation::Scribble ? kMostExtraInScribbles : kMostExtraPixels;
    return {std::abs(more) <= most, note};
}

} // namespace

Verdict compare(Contender& library, Contender& contender, const Workload& workload,
                Canvas& canvas) {
    const Rule rule = contender.rule(workload);
    if (&contender == &library || rule == Rule::Amount) {
        return {true, ""};
    }
    const auto ours = draw(library, workload, canvas);
    const auto theirs = draw(contender, workload, canvas);
    if (!ours || !theirs) {
        return {true, ""};
    }
    switch (rule) {
    case Rule::Channels:
        return compareChannels(*ours, *theirs, workload);
    case Rule::Line:
    case Rule::Shape:
        return comparePixels(*ours, *theirs, workload);
    default:
        break;
    }
    return {*ours == *theirs, *ours == *theirs ? "same bytes" : "other bytes"};
}

} // namespace bench
