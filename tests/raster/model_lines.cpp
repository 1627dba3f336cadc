// The model's lines: clipped, thin, dashed.
#include "raster/model.h"
#include "raster/model_rect.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quarlo::test {
namespace {

enum Code { kLeft = 1, kTop = 2, kRight = 4, kBottom = 8 };

int codeOf(int64_t x, int64_t y, const GRect& rect) {
    int code = 0;
    code += x < rect.left ? kLeft : 0;
    code += y < rect.top ? kTop : 0;
    code += x > rect.right ? kRight : 0;
    code += y > rect.bottom ? kBottom : 0;
    return code;
}

} // namespace

void Model::lineTo(int16_t x, int16_t y) {
    if (handle.penPixel == G_NO_COLOR) {
        return;
    }
    GLine line{handle.penPos.x, handle.penPos.y, x, y};
    drawLine(line);
    handle.dashPhase = 0;
    moveTo(x, y);
}

int32_t Model::drawLine(GLine& line) {
    const GPoint from = mapped({line.x1, line.y1});
    const GPoint to = mapped({line.x2, line.y2});
    line = {from.x, from.y, to.x, to.y};
    return handle.penPixel == G_NO_COLOR ? 0 : rasterLine(line);
}

int32_t Model::rasterLine(const GLine& line) {
    GLine clipped = line;
    if (handle.penDash != 0) {
        return dashedLine(line) ? 1 : 0;
    }
    if (isEmpty(limit()) || !clip(clipped)) {
        return 0;
    }
    thinLine(clipped);
    return 1;
}

bool Model::clip(GLine& line) const {
    const GRect rect = limit();
    int64_t x1 = line.x1;
    int64_t y1 = line.y1;
    int64_t x2 = line.x2;
    int64_t y2 = line.y2;
    int swaps = 0;
    while (codeOf(x1, y1, rect) != 0 || codeOf(x2, y2, rect) != 0) {
        if ((codeOf(x1, y1, rect) & codeOf(x2, y2, rect)) != 0) {
            return false;
        }
        if (codeOf(x1, y1, rect) == 0) {
            std::swap(x1, x2);
            std::swap(y1, y2);
            ++swaps;
        }
        const int code = codeOf(x1, y1, rect);
        if ((code & kLeft) != 0) {
            y1 += (y2 - y1) * (rect.left - x1) / (x2 - x1);
            x1 = rect.left;
        } else if ((code & kTop) != 0) {
            x1 += (x2 - x1) * (rect.top - y1) / (y2 - y1);
            y1 = rect.top;
        } else if ((code & kRight) != 0) {
            y1 += (y2 - y1) * (rect.right - x1) / (x2 - x1);
            x1 = rect.right;
        } else {
            x1 += (x2 - x1) * (rect.bottom - y1) / (y2 - y1);
            y1 = rect.bottom;
        }
    }
    if (swaps % 2 == 1) {
        std::swap(x1, x2);
        std::swap(y1, y2);
    }
    line = {static_cast<int16_t>(x1), static_cast<int16_t>(y1), static_cast<int16_t>(x2),
            static_cast<int16_t>(y2)};
    return true;
}

void Model::thinLine(GLine line) {
    const int ddx = 2 * std::abs(line.x2 - line.x1);
    const int ddy = 2 * std::abs(line.y2 - line.y1);
    if (ddx == 0 && ddy == 0) {
        return;
    }
    if (ddy <= ddx) {
        if (line.x1 > line.x2) {
            line = {line.x2, line.y2, line.x1, line.y1};
        }
        int y = line.y1;
        int error = -ddx / 2;
        for (int x = line.x1; x <= line.x2; ++x) {
            plot(x, y, handle.penPixel);
            error += ddy;
            if (error >= 0) {
                y += line.y2 > line.y1 ? 1 : -1;
                error -= ddx;
            }
        }
        return;
    }
    if (line.y1 > line.y2) {
        line = {line.x2, line.y2, line.x1, line.y1};
    }
    int x = line.x1;
    int error = -ddy / 2;
    for (int y = line.y1; y <= line.y2; ++y) {
        plot(x, y, handle.penPixel);
        error += ddx;
        if (error >= 0) {
            x += line.x2 > line.x1 ? 1 : -1;
            error -= ddy;
        }
    }
}

bool Model::dash(uint64_t& steps) const {
    if (handle.penDash < 1 || handle.penDash > 9) {
        return false;
    }
    // Row 9 lies behind the dashes, where the fill patterns begin.
    const uint8_t* const row =
        handle.penDash == 9 ? handle.fillPatterns[0] : handle.dashes[handle.penDash - 1];
    steps = 0;
    for (int k = 0; k < 64; ++k) {
        const uint64_t bit = row[k / 8] >> (k % 8) & 1;
        steps |= bit << k;
    }
    return true;
}

bool Model::dashedLine(const GLine& line) {
    uint64_t pattern;
    if (!dash(pattern)) {
        return false;
    }
    const int64_t adx = std::abs(line.x2 - line.x1);
    const int64_t ady = std::abs(line.y2 - line.y1);
    if (adx == 0 && ady == 0) {
        return true;
    }
    const auto length = static_cast<int64_t>(std::sqrt(static_cast<double>(adx * adx + ady * ady)));
    const int64_t extent = std::max(adx, ady);
    const int64_t phaseStep = length * 65536 / extent;
    int64_t phase = (handle.dashPhase & 63) * 65536;
    const bool flat = ady <= adx;
    const int xStep = line.x2 > line.x1 ? 1 : -1;
    const int yStep = line.y2 > line.y1 ? 1 : -1;
    const GRect visible = limit();
    int x = line.x1;
    int y = line.y1;
    int64_t error = -extent;
    for (int64_t k = 0; k <= extent; ++k) {
        phase = (phase + phaseStep) & 0xFFFFFFF;
        const int first = flat ? y - handle.penHeight / 2 : x - (handle.penWidth - 1) / 2;
        const int last = flat ? y + (handle.penHeight - 1) / 2 : x + handle.penWidth / 2;
        const bool drawn = (pattern >> (phase / 65536 & 63) & 1) != 0;
        for (int at = first; drawn && at <= last; ++at) {
            if (isInside(visible, flat ? x : at, flat ? at : y)) {
                plot(flat ? x : at, flat ? at : y, handle.penPixel);
            }
        }
        error += 2 * std::min(adx, ady);
        const bool both = error >= 0;
        error -= both ? 2 * extent : 0;
        x += flat || both ? xStep : 0;
        y += !flat || both ? yStep : 0;
    }
    handle.dashPhase = static_cast<int16_t>(phase / 65536 & 63);
    return true;
}

} // namespace quarlo::test
