#include "raster/model.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quarlo::test {

namespace {

bool isInside(const GRect& rect, int x, int y) {
    return x >= rect.left && x <= rect.right && y >= rect.top && y <= rect.bottom;
}

GRect common(const GRect& a, const GRect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

bool isEmpty(const GRect& rect) {
    return rect.left > rect.right || rect.top > rect.bottom;
}

int16_t scaled(int value, int low, int high, int toLow, int toHigh) {
    const int64_t extent = std::max(high - low, 1);
    const int64_t toExtent = std::max(toHigh - toLow, 1);
    return static_cast<int16_t>(((value - low) * toExtent + extent / 2) / extent + toLow);
}

enum Code { kLeft = 1, kTop = 2, kRight = 4, kBottom = 8 };

int codeOf(int64_t x, int64_t y, const GRect& rect) {
    int code = 0;
    code += x < rect.left ? kLeft : 0;
    code += y < rect.top ? kTop : 0;
    code += x > rect.right ? kRight : 0;
    code += y > rect.bottom ? kBottom : 0;
    return code;
}

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

Model::Model(const GDrawHandle& like) : handle(like), surface(*like.target) {
    bytes.assign(surface.pixels, surface.pixels + surface.height * surface.bytesPerLine);
    surface.pixels = bytes.data();
    surface.drawable = &surface.bounds;
    handle.display = &surface;
    handle.target = &surface;
}

/// A memory surface is drawn on by the entry at mode + bits x 4, be it another format's.
Model::Operation Model::operation() const {
    if (surface.id != G_MEMORY_SURFACE) {
        const bool known = handle.drawingMode >= 0 && handle.drawingMode <= 3;
        return {known ? surface.bitsPerPixel / 8 : 0, handle.drawingMode};
    }
    const int entry = handle.drawingMode + surface.bitsPerPixel * 4;
    for (const int bits : {8, 16, 24}) {
        if (entry >= bits * 4 && entry <= bits * 4 + 3) {
            return {bits / 8, entry - bits * 4};
        }
    }
    return {0, 0};
}

/// The clip rectangle, and no pixel that would not end within its row.
GRect Model::limit() const {
    const int bytesPerPixel = std::max(operation().bytesPerPixel, 1);
    const int width = std::min<int>(surface.width, surface.bytesPerLine / bytesPerPixel);
    const GRect memory{0, 0, static_cast<int16_t>(width - 1),
                       static_cast<int16_t>(surface.height - 1)};
    return common(*surface.drawable, memory);
}

GPoint Model::mapped(GPoint point) const {
    if ((handle.modeFlags & G_FLAG_VIRTUAL) == 0) {
        return {static_cast<int16_t>(point.x - handle.localOrigin.x),
                static_cast<int16_t>(point.y - handle.localOrigin.y)};
    }
    const GRect& from = handle.virtualRect;
    const GRect& to = handle.view;
    return {scaled(point.x, from.left, from.right, to.left, to.right),
            scaled(point.y, from.top, from.bottom, to.top, to.bottom)};
}

std::ptrdiff_t Model::offsetOf(int x, int y) const {
    return y * std::ptrdiff_t{surface.bytesPerLine} + x * operation().bytesPerPixel;
}

void Model::plot(int x, int y, uint32_t pixel) {
    const Operation op = operation();
    if (op.bytesPerPixel == 0) {
        return;
    }
    const std::ptrdiff_t offset = offsetOf(x, y);
    for (int i = 0; i < op.bytesPerPixel; ++i) {
        uint8_t& old = bytes.at(static_cast<size_t>(offset + i));
        const auto color = static_cast<uint8_t>(pixel >> (8 * i));
        const uint8_t results[] = {color, static_cast<uint8_t>(old & color),
                                   static_cast<uint8_t>(old | color),
                                   static_cast<uint8_t>(old ^ color)};
        old = results[op.mode];
    }
    if (surface.id == G_MEMORY_SURFACE) {
        cells[op.bytesPerPixel - 1] = {pixel, offset + op.bytesPerPixel};
    }
}

bool Model::isReachable(const GPoint& point) const {
    return point.x >= 0 && point.y >= 0 && point.x <= surface.width && point.y <= surface.height &&
           isInside(limit(), point.x, point.y);
}

int32_t Model::setPixel(int16_t x, int16_t y) {
    if (handle.penPixel == G_NO_COLOR) {
        return -1;
    }
    moveTo(x, y);
    const GPoint point = mapped({x, y});
    const bool hasOperation = surface.id != G_MEMORY_SURFACE || operation().bytesPerPixel != 0;
    if (!isReachable(point) || !hasOperation) {
        return 0;
    }
    plot(point.x, point.y, handle.penPixel);
    return 1;
}

uint32_t Model::getPixel(int16_t x, int16_t y) const {
    const GPoint point = mapped({x, y});
    const int bytesPerPixel =
        surface.id == G_MEMORY_SURFACE ? operation().bytesPerPixel : surface.bitsPerPixel / 8;
    if (!isReachable(point) || bytesPerPixel == 0) {
        return G_NO_COLOR;
    }
    uint32_t pixel = 0;
    const std::ptrdiff_t offset =
        point.y * std::ptrdiff_t{surface.bytesPerLine} + point.x * bytesPerPixel;
    for (int i = 0; i < bytesPerPixel; ++i) {
        pixel |= uint32_t{bytes.at(static_cast<size_t>(offset + i))} << (8 * i);
    }
    return pixel;
}

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
