// Cubic Bezier curves, as chains of straight lines.
#include "geometry/view.h"
#include "raster/line.h"

#include <quarlo/draw.h>
#include <quarlo/handle.h>

#include <algorithm>
#include <array>
#include <cstdint>

namespace quarlo {
namespace {

constexpr int32_t kSteps = 63;

using Weights = std::array<uint16_t, 4>;

/// A Bernstein weight as a 16-bit fraction: floor(numerator / 63^3 x 65536), at most 65535.
consteval uint16_t weight(int64_t numerator) {
    constexpr int64_t kCube = int64_t{kSteps} * kSteps * kSteps;
    return static_cast<uint16_t>(std::min<int64_t>(numerator * 65536 / kCube, 65535));
}

/// The cubic Bernstein weights for t = row / 63. Two of them are one larger than the rule gives,
/// and stay so: curves have always been drawn with them.
consteval std::array<Weights, kSteps + 1> weightTable() {
    std::array<Weights, kSteps + 1> table{};
    for (int64_t t = 0; t <= kSteps; ++t) {
        const int64_t s = kSteps - t;
        table[static_cast<size_t>(t)] = {weight(s * s * s), weight(3 * t * s * s),
                                         weight(3 * t * t * s), weight(t * t * t)};
    }
    table[26][1] = 27987;
    table[37][2] = 27987;
    return table;
}

constexpr std::array<Weights, kSteps + 1> kWeights = weightTable();

/// One coordinate of a point of the curve, rounded from its 16-bit fraction. The weights of a row
/// sum to less than 65536, so that the sum fits 32 bits.
int16_t weighted(int32_t p0, int32_t p1, int32_t p2, int32_t p3, const Weights& weights) {
    const int32_t sum =
        32768 + p0 * weights[0] + p1 * weights[1] + p2 * weights[2] + p3 * weights[3];
    return static_cast<int16_t>(sum >> 16);
}

GPoint pointOf(const GPoint p[4], const Weights& weights) {
    return {weighted(p[0].x, p[1].x, p[2].x, p[3].x, weights),
            weighted(p[0].y, p[1].y, p[2].y, p[3].y, weights)};
}

} // namespace
} // namespace quarlo

using namespace quarlo;

void GDDrawBezier(GDrawHandle* handle, const GPoly* poly) {
    if (handle->penPixel == G_NO_COLOR) {
        return;
    }
    const Canvas canvas(*handle);
    GPoint from = poly->points[0];
    for (int32_t step = 1; step <= kSteps; ++step) {
        const GPoint to = pointOf(poly->points, kWeights[static_cast<size_t>(step)]);
        if (to.x == from.x && to.y == from.y) {
            continue;
        }
        GLine line{from.x, from.y, to.x, to.y};
        mapToScreen(*handle, line);
        GDRasterLine(canvas, line);
        from = to;
    }
}
