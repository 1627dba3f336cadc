#include "raster/overdraw.h"

#include "geometry/geometry.h"
#include "raster/canvas.h"
#include "raster/clip_line.h"
#include "raster/curve_model.h"
#include "raster/wide_line.h"

#include <quarlo/platform.h>

#include <algorithm>
#include <utility>

namespace quarlo::test {

namespace {

constexpr uint32_t kOdd = 0x5B3C69;
constexpr GGradationInfo kOddGradation = {G_GRADATION_DOWN, 0x0000FF, 0xFF80FF, 20, 7};

PaintStyle randomStyle(Random& random) {
    PaintStyle style{};
    style.fill = low16(random.oneIn(3) ? random.between(0, 37) : random.between(-4, -1));
    style.direction = static_cast<uint8_t>(random.between(0, 1));
    style.outlined = !random.oneIn(4);
    style.penWidth = low16(random.oneIn(2) ? 1 : random.between(1, 9));
    style.penHeight = random.oneIn(2) ? style.penWidth : low16(random.between(1, 9));
    style.join = static_cast<uint16_t>(random.between(0, 2));
    style.dash = random.oneIn(4) ? random.between(1, 8) : 0;
    style.clip = random.oneIn(2) ? kCountedArea : GRect{5, 3, 50, 41};
    return style;
}

/// Mostly on the surface; one in four is near another, for corners that meet and flat angles.
std::vector<GPoint> randomPoints(Random& random, int32_t count) {
    std::vector<GPoint> points;
    for (; count > 0; --count) {
        GPoint point{low16(random.between(-12, kCountedWidth + 12)),
                     low16(random.between(-12, kCountedHeight + 12))};
        if (!points.empty() && random.oneIn(4)) {
            point = {low16(points.back().x + random.between(-3, 3)),
                     low16(points.back().y + random.between(-3, 3))};
        }
        points.push_back(point);
    }
    return points;
}

Figure randomFigure(Random& random, const LayeredShape& shape) {
    const int32_t count = random.between(shape.fewestPoints, shape.mostPoints);
    std::vector<GPoint> points = randomPoints(random, count);
    const auto number = [&random] {
        return low16(random.oneIn(4) ? 450 * random.between(0, 8) : random.between(0, 3700));
    };
    const int16_t first = number();
    const int16_t second = number();
    return {std::move(points), first, second, randomStyle(random)};
}

std::string paintedAs(int32_t x, int32_t y, int32_t actual, int32_t expected) {
    return "column " + std::to_string(x) + " row " + std::to_string(y) + " is painted " +
           std::to_string(actual) + " times, not " + std::to_string(expected);
}

/// What is wrong with pixels that `expected(count)` describes; an empty text if nothing is.
template <typename Expected>
std::string difference(GuardedSurface& surface, uint32_t mask, const PaintCounts& counts,
                       const Expected& expected) {
    for (int32_t y = 0; y < kCountedHeight; ++y) {
        for (int32_t x = 0; x < kCountedWidth; ++x) {
            const uint32_t actual = pixelAt(*surface, x, y) & mask;
            if (actual != expected(counts.at(x, y))) {
                return paintedAs(x, y, static_cast<int32_t>(actual), counts.at(x, y));
            }
        }
    }
    return surface.memory().intact() ? "" : "bytes beside the surface were written";
}

std::string differenceInKernels(const LayeredShape& shape, const Figure& figure,
                                const PaintCounts& counts, int16_t depth, int32_t mode) {
    Drawing drawing(kCountedWidth, kCountedHeight, depth);
    figure.style.applyTo(drawing);
    GDSetDrawingMode(drawing, mode);
    shape.draw(drawing, figure);
    const std::string wrong =
        difference(drawing.surface(), 1, counts, [mode](uint32_t count) -> uint32_t {
            return mode == G_MODE_XOR ? count & 1 : std::min<uint32_t>(count, 1);
        });
    return wrong.empty() ? ""
                         : std::to_string(depth) + " bits, mode " + std::to_string(mode) +
                               ", modulo 2: " + wrong;
}

std::string differenceOnDevice(const LayeredShape& shape, const Figure& figure,
                               const PaintCounts& counts) {
    DeviceDrawing drawing(kCountedWidth, kCountedHeight);
    figure.style.applyTo(drawing);
    shape.draw(drawing, figure);
    return difference(drawing.surface(), 0xFF, counts, [](uint32_t count) { return count; });
}

std::string difference(const LayeredShape& shape, const Figure& figure) {
    Layers layers(figure.style);
    shape.layers(layers, figure);
    std::string wrong = differenceOnDevice(shape, figure, layers.counts());
    for (const int16_t depth : kDepths) {
        for (const int32_t mode : {G_MODE_COPY, G_MODE_XOR}) {
            if (wrong.empty()) {
                wrong = differenceInKernels(shape, figure, layers.counts(), depth, mode);
            }
        }
    }
    return wrong;
}

} // namespace

void PaintStyle::applyTo(GDrawHandle* handle) const {
    GGradationInfo gradation = kOddGradation;
    gradation.direction = direction;
    GDSetGradationInfo(handle, &gradation);
    GDSetFillAttribute(handle, fill, kOdd, kOdd);
    GDSetPenColor(handle, outlined ? kOdd : G_NO_COLOR);
    GDSetPenSize(handle, penWidth, penHeight);
    GDSetPenJoin(handle, join);
    GDSetPenDash(handle, dash);
    GDSetClipRect(handle, &clip);
}

std::ostream& operator<<(std::ostream& out, const PaintStyle& style) {
    const GRect& clip = style.clip;
    return out << "fill " << style.fill << " direction " << +style.direction << " outlined "
               << style.outlined << " pen " << style.penWidth << " x " << style.penHeight
               << " join " << style.join << " dash " << style.dash << " clip (" << clip.left << ", "
               << clip.top << ", " << clip.right << ", " << clip.bottom << ")";
}

GRect Figure::box() const {
    const auto [left, right] = std::minmax(points[0].x, points[1].x);
    const auto [top, bottom] = std::minmax(points[0].y, points[1].y);
    return {left, top, right, bottom};
}

std::ostream& operator<<(std::ostream& out, const Figure& figure) {
    for (const GPoint& point : figure.points) {
        out << "(" << point.x << ", " << point.y << ") ";
    }
    return out << "and " << figure.first << ", " << figure.second << "; " << figure.style;
}

Layers::Layers(const PaintStyle& style) : style_(style), drawing_(kCountedWidth, kCountedHeight) {
    style.applyTo(drawing_);
}

bool Layers::drawsJoins() {
    return handle()->penDash == 0 && isWide(*handle());
}

void Layers::addRun(int32_t left, int32_t right, int32_t y) {
    const GRect& clip = style_.clip;
    for (int32_t x = left; x <= right && clip.top <= y && y <= clip.bottom; ++x) {
        if (clip.left <= x && x <= clip.right) {
            counts_.add(x, y);
        }
    }
}

void Layers::take() {
    counts_.add(drawing_.surface().memory());
    wipe();
}

void Layers::wipe() {
    GuardedMemory& memory = drawing_.surface().memory();
    std::fill_n(memory.data(), memory.size(), uint8_t{0});
}

void Layers::addLine(const GLine& line) {
    if (drawsJoins()) {
        GLine visible = line;
        if (GDClipLine(visible, style_.clip)) {
            addWideLine(line);
        }
        return;
    }
    GLine drawn = line;
    add([&](GDrawHandle* pen) { GDDrawLine(pen, &drawn); });
}

void Layers::addWideLine(const GLine& line) {
    const GWideLineState before = handle()->wideLine;
    if (line.x1 == line.x2 && line.y1 == line.y2) {
        return;
    }
    handle()->penJoin = 0;
    add([&](GDrawHandle* pen) { drawWideLine(Canvas(*pen), line); });
    handle()->penJoin = style_.join;
    addJoin(before, {line.x1, line.y1}, handle()->wideLine.corners);
}

void Layers::closeFrame(const GLine& first) {
    if (drawsJoins() && (first.x1 != first.x2 || first.y1 != first.y2)) {
        const GWideLineState before = handle()->wideLine;
        handle()->penJoin = 0;
        drawWideLine(Canvas(*handle()), first); // for its corners alone
        handle()->penJoin = style_.join;
        wipe();
        addJoin(before, {first.x1, first.y1}, handle()->wideLine.corners);
        handle()->wideLine = before;
    }
    handle()->dashPhase = 0;
}

void Layers::addJoin(const GWideLineState& before, const GPoint& at, const GPoint start[2]) {
    const auto& [first, second] = before.previous;
    const bool any = first.x != second.x || first.y != second.y;
    if (!any || before.end.x != at.x || before.end.y != at.y) {
        return;
    }
    if (style_.join == G_JOIN_BEVEL) {
        addPolygon({first, second, start[0], start[1]});
    } else if (style_.join == G_JOIN_ROUND) {
        addPenDot(at);
    }
}

void Layers::addPenDot(const GPoint& at) {
    const int32_t width = handle()->penWidth;
    const int32_t height = handle()->penHeight;
    const GRect box{low16(at.x - width / 2), low16(at.y - height / 2),
                    low16(at.x + (width - 1) / 2), low16(at.y + (height - 1) / 2)};
    for (const CurveModel::Row& row : CurveModel(box, width / 2, height / 2, false).quarterRows()) {
        addRun(row.first, row.last, row.y);
    }
}

void Layers::addPolygon(const std::vector<GPoint>& points) {
    addPolygon(straightEdges(points));
}

void Layers::addPolygon(const std::vector<ModelEdge>& edges) {
    for (const PaintedRun& run : polygonRuns(edges, style_.clip)) {
        addRun(run.left, run.right, run.y);
    }
}

void expectPaintedInLayers(RecordingPlatform& platform, const LayeredShape& shape, int rounds) {
    platform.countPaint();
    for (const bool rectangles : {true, false}) {
        if (!rectangles) {
            platform.remove({67, 68, 70});
            GetGPIFunction();
        }
        forRandomCalls(
            rounds, 1, [&](Random& random) { return randomFigure(random, shape); },
            [&](const std::vector<Figure>& figures) -> std::string {
                return figures.empty() ? "" : difference(shape, figures[0]);
            });
    }
}

} // namespace quarlo::test
