#include "draw/transfer_model.h"

#include "support/guarded_surface.h"

#include <quarlo/pixel_ops.h>
#include <quarlo/rect.h>

#include <algorithm>
#include <vector>

namespace quarlo::test {

namespace {

bool lies(int x, int y, const GRect& rect) {
    return x >= rect.left && x <= rect.right && y >= rect.top && y <= rect.bottom;
}

/// Whether a pixel is in a surface's memory at all.
bool exists(const GVram& surface, int x, int y) {
    const int bytes = surface.bitsPerPixel / 8;
    return x >= 0 && y >= 0 && x < surface.width && y < surface.height &&
           (x + 1) * bytes <= surface.bytesPerLine;
}

bool isRefused(const GVram& source, const GVram& destination) {
    return source.colorType != G_COLOR_PALETTE && destination.colorType == G_COLOR_PALETTE;
}

bool bitOf(uint32_t word, int bit) {
    return bit >= 0 && bit < 32 && (word >> bit & 1) != 0;
}

int highestBit(uint32_t mask) {
    int bit = 31;
    while (bit >= 0 && !bitOf(mask, bit)) {
        --bit;
    }
    return bit;
}

/// A channel's eight bits, the most significant one being that of the mask.
uint32_t widened(uint32_t pixel, uint32_t mask) {
    const int top = highestBit(mask);
    if (top < 0) {
        return 0;
    }
    int lowest = 7;
    uint32_t channel = 0;
    for (int bit = 7; bit >= 0; --bit) {
        const int place = top - 7 + bit;
        if (bitOf(mask, place)) {
            lowest = bit;
            channel |= (bitOf(pixel, place) ? 1U : 0U) << bit;
        }
    }
    for (int bit = 0; bit < lowest; ++bit) {
        channel |= (bitOf(channel, lowest) ? 1U : 0U) << bit;
    }
    return channel;
}

uint32_t packed(uint32_t channel, uint32_t mask) {
    const int top = highestBit(mask);
    uint32_t pixel = 0;
    for (int bit = 0; bit < 8; ++bit) {
        const int place = top - 7 + bit;
        if (bitOf(mask, place) && bitOf(channel, bit)) {
            pixel |= 1U << place;
        }
    }
    return pixel;
}

bool isSameFormat(const GVram& a, const GVram& b) {
    return a.bitsPerPixel == b.bitsPerPixel && a.redMask == b.redMask &&
           a.greenMask == b.greenMask && a.blueMask == b.blueMask;
}

uint32_t combined(uint32_t old, uint32_t pixel, int32_t mode) {
    switch (mode) {
    case G_MODE_COPY:
        return pixel;
    case G_MODE_AND:
        return old & pixel;
    case G_MODE_OR:
        return old | pixel;
    case G_MODE_XOR:
        return old ^ pixel;
    default:
        return old;
    }
}

/// 0 to count - 1, or the other way round.
std::vector<int> series(int count, bool backwards) {
    std::vector<int> numbers;
    for (int i = 0; i < count; ++i) {
        numbers.push_back(i);
    }
    if (backwards) {
        std::reverse(numbers.begin(), numbers.end());
    }
    return numbers;
}

/// One axis of a place: where it starts, and what it is cut to.
struct Axis {
    int start;
    int low;
    int high;

    bool has(int step) const { return start + step >= low && start + step <= high; }
};

struct Run {
    int first;
    int count;
};

/// The steps from 0 to extent - 1 that both places have.
Run common(int extent, const Axis& a, const Axis& b) {
    Run run{};
    for (int step = 0; step < extent; ++step) {
        if (a.has(step) && b.has(step)) {
            run.first = run.count == 0 ? step : run.first;
            ++run.count;
        }
    }
    return run;
}

} // namespace

MappedBlit mapBlit(const GDrawHandle& handle, const Blit& blit) {
    if (blit.width <= 0 || blit.height <= 0) {
        return {};
    }
    const auto mapped = [&](int16_t x, int16_t y) {
        GRect rect = {x, y, static_cast<int16_t>(x + blit.width - 1),
                      static_cast<int16_t>(y + blit.height - 1)};
        GRMapToScreenRect(&handle, &rect);
        return rect;
    };
    const GRect from = mapped(blit.sourceX, blit.sourceY);
    const GRect to = mapped(blit.x, blit.y);
    return {from.left,
            from.top,
            std::min(from.right - from.left, to.right - to.left) + 1,
            std::min(from.bottom - from.top, to.bottom - to.top) + 1,
            to.left,
            to.top};
}

std::optional<MappedBlit> cutBlit(const GVram& source, const GVram& destination,
                                  const MappedBlit& blit) {
    const GRect& clip = *destination.drawable;
    const GRect& bounds = source.bounds;
    const Run columns = common(blit.width, {blit.x, clip.left, clip.right},
                               {blit.sourceX, bounds.left, bounds.right});
    const Run rows = common(blit.height, {blit.y, clip.top, clip.bottom},
                            {blit.sourceY, bounds.top, bounds.bottom});
    if (isRefused(source, destination) || columns.count == 0 || rows.count == 0) {
        return std::nullopt;
    }
    return MappedBlit{
        blit.sourceX + columns.first, blit.sourceY + rows.first, columns.count, rows.count,
        blit.x + columns.first,       blit.y + rows.first};
}

uint32_t modelConversion(const GVram& source, const GVram& destination, uint32_t pixel) {
    if (isSameFormat(source, destination)) {
        return pixel;
    }
    if (source.colorType == G_COLOR_PALETTE) {
        const uint32_t index = pixel & 0xFF;
        const bool known = source.palette != nullptr && index < source.paletteCount;
        pixel = known ? source.palette[index] : 0;
    }
    return packed(widened(pixel, source.redMask), destination.redMask) |
           packed(widened(pixel, source.greenMask), destination.greenMask) |
           packed(widened(pixel, source.blueMask), destination.blueMask);
}

void modelTransfer(const GVram& source, GVram& destination, const MappedBlit& blit, int32_t mode) {
    const bool within = &source == &destination;
    const int right = blit.x - blit.sourceX;
    const int down = blit.y - blit.sourceY;
    if (isRefused(source, destination) || (within && right == 0 && down == 0)) {
        return;
    }
    for (const int y : series(destination.height, within && down > 0)) {
        for (const int x : series(destination.width, within && down == 0 && right > 0)) {
            const bool asked =
                x >= blit.x && x - blit.x < blit.width && y >= blit.y && y - blit.y < blit.height;
            if (asked && lies(x, y, *destination.drawable) && exists(destination, x, y) &&
                lies(x - right, y - down, source.bounds) && exists(source, x - right, y - down)) {
                const uint32_t pixel =
                    modelConversion(source, destination, pixelAt(source, x - right, y - down));
                setPixelAt(destination, x, y, combined(pixelAt(destination, x, y), pixel, mode));
            }
        }
    }
}

} // namespace quarlo::test
