// The model's rectangles: solid, patterned, with a gradation.
#include "raster/model.h"
#include "raster/model_rect.h"

#include <algorithm>

namespace quarlo::test {
namespace {

uint32_t pack(uint32_t red, uint32_t green, uint32_t blue) {
    return (red & 0xF8) << 7 | (green & 0xF8) << 2 | blue >> 3;
}

uint32_t byteOf(uint32_t value, int shift) {
    return value >> shift & 0xFF;
}

/// One channel of band `k` of `bands`.
uint32_t between(uint32_t start, uint32_t end, int k, int bands) {
    const int from = static_cast<int>(start);
    const int to = static_cast<int>(end);
    return static_cast<uint32_t>(from + (to - from) * k / (bands - 1));
}

uint32_t bandColor(const GGradationInfo& info, int k, int bands) {
    uint32_t channels[3];
    for (int i = 0; i < 3; ++i) {
        channels[i] = between(byteOf(info.startColor, 16 - 8 * i),
                              byteOf(info.endColor, 16 - 8 * i), k, bands);
    }
    return pack(channels[0], channels[1], channels[2]);
}

} // namespace

void Model::drawRect(const GRect& rect) {
    const GPoint first = mapped({rect.left, rect.top});
    const GPoint second = mapped({rect.right, rect.bottom});
    const GRect whole{first.x, first.y, second.x, second.y};
    const GRect visible = common(whole, limit());
    if (isEmpty(visible)) {
        return;
    }
    fill(visible, whole);
    if (handle.penPixel == G_NO_COLOR) {
        return;
    }
    rasterLine({whole.left, whole.top, whole.right, whole.top});
    rasterLine({whole.right, whole.top, whole.right, whole.bottom});
    rasterLine({whole.right, whole.bottom, whole.left, whole.bottom});
    rasterLine({whole.left, whole.bottom, whole.left, whole.top});
    handle.dashPhase = 0;
}

void Model::fill(const GRect& visible, const GRect& whole) {
    const int style = handle.fillPattern;
    if (style == G_FILL_GRADATION) {
        fillGradation(visible, whole);
        return;
    }
    if (style == G_FILL_NONE || style < G_FILL_GRADATION || style > 37) {
        return;
    }
    const uint32_t solid = style == G_FILL_FORE ? handle.forePixel : handle.backPixel;
    if (style < 0 && solid == G_NO_COLOR) {
        return;
    }
    for (int y = visible.top; y <= visible.bottom; ++y) {
        for (int x = visible.left; x <= visible.right; ++x) {
            uint32_t pixel = solid;
            if (style >= 0) {
                const int row = handle.fillPatterns[style][y % 8];
                const bool set = (row >> (7 - x % 8) & 1) != 0;
                pixel = set ? handle.forePixel : handle.backPixel;
            }
            plot(x, y, pixel);
        }
    }
}

void Model::fillGradation(const GRect& visible, const GRect& whole) {
    const GGradationInfo& info = handle.gradation;
    if (info.direction > 1) {
        return;
    }
    const bool down = info.direction == 0;
    const int64_t extent = down ? whole.bottom - whole.top : whole.right - whole.left;
    const int64_t lead = extent * info.lead / 100;
    const int64_t remaining = extent - lead;
    const int64_t bands = std::min<int64_t>(std::min<int>(info.steps, 256), remaining);
    const uint32_t packedStart =
        pack(byteOf(info.startColor, 16), byteOf(info.startColor, 8), byteOf(info.startColor, 0));
    std::vector<uint32_t> lines(static_cast<size_t>(extent) + 1, packedStart);
    if (bands > 1) {
        for (int64_t line = 0; line < lead; ++line) {
            lines[static_cast<size_t>(line)] = down ? info.startColor : packedStart;
        }
        for (int64_t k = 0; k < bands; ++k) {
            const int64_t end = k == bands - 1 ? extent + 1 : lead + (k + 1) * remaining / bands;
            for (int64_t line = lead + k * remaining / bands; line < end; ++line) {
                lines[static_cast<size_t>(line)] =
                    bandColor(info, static_cast<int>(k), static_cast<int>(bands));
            }
        }
    }
    for (int y = visible.top; y <= visible.bottom; ++y) {
        for (int x = visible.left; x <= visible.right; ++x) {
            const int line = down ? y - whole.top : x - whole.left;
            plot(x, y, lines[static_cast<size_t>(line)]);
        }
    }
}

} // namespace quarlo::test
