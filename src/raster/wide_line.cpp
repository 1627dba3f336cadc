#include "raster/wide_line.h"

#include "geometry/geometry.h"
#include "raster/ellipse.h"
#include "raster/polygon.h"

#include <quarlo/draw.h>

#include <algorithm>
#include <cmath>

namespace quarlo {
namespace {

/// An all-set pattern: joins are patterned fills in one colour.
constexpr int32_t kJoinPattern = 1;

/// The lowest coordinate is left out: as a polygon's it would mark a table edge.
int16_t saturated(int64_t value) {
    return static_cast<int16_t>(std::clamp<int64_t>(value, G_TABLE_EDGE + 1, INT16_MAX));
}

/// The corners of the pen's quadrilateral, seen along the line: left and right at its start, right
/// and left at its end.
struct Quad {
    GPoint corners[4];
};

/// Where the two long sides of a quadrilateral run, as distances from the line.
struct Side {
    int32_t dx;
    int32_t dy;
};

GPoint moved(int32_t x, int32_t y, const Side& side) {
    return {saturated(x + side.dx), saturated(y + side.dy)};
}

Quad between(const GLine& line, Side one, Side other) {
    const int64_t turn = int64_t{one.dx - other.dx} * (line.y2 - line.y1) -
                         int64_t{one.dy - other.dy} * (line.x2 - line.x1);
    const Side& left = turn > 0 ? one : other;
    const Side& right = turn > 0 ? other : one;
    return {{moved(line.x1, line.y1, left), moved(line.x1, line.y1, right),
             moved(line.x2, line.y2, right), moved(line.x2, line.y2, left)}};
}

/// Pixels of the pen before and behind the line on one axis; even pens reach further before it.
struct Reach {
    int32_t before;
    int32_t behind;

    explicit Reach(int32_t pen) : before(pen / 2), behind((pen - 1) / 2) {}
};

/// The lowest row of a polygon is not painted, so that its lower edge stands one row below the
/// pen's.
Quad horizontalQuad(const GLine& line, int32_t penHeight) {
    const Reach reach(penHeight);
    return between(line, {0, -reach.before}, {0, reach.behind + 1});
}

Quad verticalQuad(const GLine& line, int32_t penWidth) {
    const Reach reach(penWidth);
    GLine longer = line;
    int16_t& lower = line.y2 > line.y1 ? longer.y2 : longer.y1;
    lower = saturated(lower + 1);
    return between(longer, {-reach.before, 0}, {reach.behind, 0});
}

/// How far a pen reaches across a line on one axis, in pixels; `along` is the line's extent on the
/// other axis.
int32_t offsetAcross(int32_t pen, int32_t along, int32_t length) {
    const int64_t product = int64_t{pen + 1} * along - 1;
    return static_cast<int32_t>(std::min<int64_t>(std::abs(product / length), pen));
}

/// The corners stand one pixel nearer on the x axis, since both ends of a run are painted; on the y
/// axis the unpainted lowest row takes that pixel away.
Quad obliqueQuad(const GLine& line, const GDrawHandle& pen, int32_t length) {
    const int32_t dx = line.x2 - line.x1;
    const int32_t dy = line.y2 - line.y1;
    const int32_t acrossX = offsetAcross(pen.penWidth, std::abs(dy), length);
    const int32_t acrossY = offsetAcross(pen.penHeight, std::abs(dx), length);
    const Reach x(std::max(acrossX, 1));
    const int32_t above = acrossY / 2;
    const int32_t below = acrossY - above;
    // Lines that fall to the right have their pen from lower left to upper right.
    const bool falling = (dx > 0) == (dy > 0);
    return between(line, {-x.before, falling ? below : -above},
                   {x.behind, falling ? -above : below});
}

/// False for a line without length.
bool quadOf(const GLine& line, const GDrawHandle& pen, Quad& quad) {
    const int64_t dx = line.x2 - line.x1;
    const int64_t dy = line.y2 - line.y1;
    if (dx == 0 && dy == 0) {
        return false;
    }
    if (dy == 0) {
        quad = horizontalQuad(line, pen.penHeight);
    } else if (dx == 0) {
        quad = verticalQuad(line, pen.penWidth);
    } else {
        const auto length = static_cast<int32_t>(std::sqrt(static_cast<double>(dx * dx + dy * dy)));
        quad = obliqueQuad(line, pen, length);
    }
    return true;
}

void fillQuad(const Canvas& canvas, GPoint (&corners)[4], int32_t pattern) {
    const GPoly poly{4, corners, {}};
    const uint32_t pixel = canvas.handle.penPixel;
    GDFillPolygon(canvas, poly, pixel, pixel, pattern, canvas.handle.drawingMode);
}

void bevel(const Canvas& canvas, const GPoint previous[2], const GPoint start[2]) {
    GPoint corners[4] = {previous[0], previous[1], start[0], start[1]};
    fillQuad(canvas, corners, kJoinPattern);
}

void join(const Canvas& canvas, const GPoint& at, const GPoint start[2]) {
    const GDrawHandle& handle = canvas.handle;
    const GWideLineState& state = handle.wideLine;
    const bool any =
        state.previous[0].x != state.previous[1].x || state.previous[0].y != state.previous[1].y;
    if (!any || state.end.x != at.x || state.end.y != at.y) {
        return;
    }
    if (handle.penJoin == G_JOIN_BEVEL) {
        bevel(canvas, state.previous, start);
    } else if (handle.penJoin == G_JOIN_ROUND) {
        drawPenDot(canvas, at);
    }
}

} // namespace

void drawPenDot(const Canvas& canvas, const GPoint& at) {
    const GDrawHandle& handle = canvas.handle;
    const Reach x(handle.penWidth);
    const Reach y(handle.penHeight);
    const GRect box{saturated(at.x - x.before), saturated(at.y - y.before),
                    saturated(at.x + x.behind), saturated(at.y + y.behind)};
    const uint32_t pixel = handle.penPixel;
    fillEllipse(canvas, {box, x.before, y.before},
                {pixel, pixel, handle.fillPatterns[kJoinPattern]}, handle.drawingMode);
}

void drawWideLine(const Canvas& canvas, const GLine& line) {
    GWideLineState& state = canvas.handle.wideLine;
    Quad quad;
    if (!quadOf(line, canvas.handle, quad)) {
        return;
    }
    std::copy_n(quad.corners, 4, state.corners);
    fillQuad(canvas, quad.corners, kSolidPattern);
    join(canvas, {line.x1, line.y1}, quad.corners);
    state.end = {line.x2, line.y2};
    state.previous[0] = quad.corners[2];
    state.previous[1] = quad.corners[3];
}

void closeFrame(const Canvas& canvas, const GLine& first) {
    const GDrawHandle& handle = canvas.handle;
    Quad quad;
    if (handle.penDash == 0 && isWide(handle) && quadOf(first, handle, quad)) {
        join(canvas, {first.x1, first.y1}, quad.corners);
    }
}

} // namespace quarlo
