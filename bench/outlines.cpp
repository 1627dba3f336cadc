#include "outlines.h"

#include "random.h"

#include <algorithm>
#include <cmath>

namespace bench {
namespace {

constexpr double kTurn = 6.28318530717958648;
constexpr int kManyVertices = 1000;

Vertex onCircle(double radius, double distance, double turn) {
    return {static_cast<int>(std::lround(radius + distance * std::sin(kTurn * turn))),
            static_cast<int>(std::lround(radius - distance * std::cos(kTurn * turn)))};
}

/// Ten points, every third joined.
std::vector<Vertex> makeStar() {
    std::vector<Vertex> star;
    for (int i = 0; i < 10; ++i) {
        star.push_back(onCircle(100, 100, i * 3 / 10.0));
    }
    return star;
}

/// A closed outline that does not cross itself.
std::vector<Vertex> makeRagged() {
    Random random(0xB10B);
    std::vector<Vertex> outline;
    for (int i = 0; i < kManyVertices; ++i) {
        const double distance = 120 + random.below(80);
        outline.push_back(onCircle(199.5, distance, static_cast<double>(i) / kManyVertices));
    }
    return outline;
}

std::vector<Vertex> makeScribble() {
    Random random(0x5C81B);
    std::vector<Vertex> points;
    for (int i = 0; i < kManyVertices; ++i) {
        const int x = static_cast<int>(random.below(400));
        points.push_back({x, static_cast<int>(random.below(400))});
    }
    return points;
}

/// Where a row crosses the edges of a polygon, from left to right.
std::vector<double> crossings(const std::vector<Vertex>& polygon, int y) {
    std::vector<double> found;
    for (size_t i = 0; i < polygon.size(); ++i) {
        const Vertex& a = polygon[i];
        const Vertex& b = polygon[(i + 1) % polygon.size()];
        if ((a.y <= y) != (b.y <= y)) {
            found.push_back(a.x + static_cast<double>(b.x - a.x) * (y - a.y) / (b.y - a.y));
        }
    }
    std::sort(found.begin(), found.end());
    return found;
}

std::vector<Run> polygonRuns(const std::vector<Vertex>& polygon, int height) {
    std::vector<Run> runs;
    for (int y = 0; y < height; ++y) {
        const std::vector<double> columns = crossings(polygon, y);
        for (size_t i = 0; i + 1 < columns.size(); i += 2) {
            runs.push_back({static_cast<int>(std::lround(columns[i])),
                            static_cast<int>(std::lround(columns[i + 1])), y});
        }
    }
    return runs;
}

bool isInOval(const Workload& shape, double x, double y) {
    const double across = (2 * x + 1) / shape.width - 1;
    const double down = (2 * y + 1) / shape.height - 1;
    return across * across + down * down <= 1;
}

bool isInSector(const Workload& shape, double x, double y) {
    const double angle = std::atan2(shape.height / 2.0 - y, x - shape.width / 2.0) * 360 / kTurn;
    const double positive = angle < 0 ? angle + 360 : angle;
    return positive >= kArcStart && positive <= kArcEnd;
}

bool isInRoundRect(const Workload& shape, double x, double y) {
    const double across = std::max(kCornerRadius - 0.5 - std::min(x, shape.width - 1 - x), 0.0);
    const double down = std::max(kCornerRadius - 0.5 - std::min(y, shape.height - 1 - y), 0.0);
    return across * across + down * down <= kCornerRadius * kCornerRadius;
}

bool holds(const Workload& shape, int x, int y) {
    switch (shape.operation) {
    case Operation::Oval:
        return isInOval(shape, x, y);
    case Operation::Pie:
        return isInOval(shape, x, y) && isInSector(shape, x, y);
    case Operation::RoundRect:
        return isInRoundRect(shape, x, y);
    default:
        return false;
    }
}

std::vector<Run> pixelRuns(const Workload& shape) {
    std::vector<Run> runs;
    for (int y = 0; y < shape.height; ++y) {
        bool inside = false;
        for (int x = 0; x < shape.width; ++x) {
            const bool held = holds(shape, x, y);
            if (held && !inside) {
                runs.push_back({x, x, y});
            } else if (held) {
                runs.back().right = x;
            }
            inside = held;
        }
    }
    return runs;
}

} // namespace

bool isPolygon(Operation operation) {
    return operation == Operation::Triangle || operation == Operation::Star ||
           operation == Operation::Ragged || operation == Operation::Scribble;
}

const std::vector<Vertex>& polygonOf(Operation operation) {
    static const std::vector<Vertex> triangle = {{0, 30}, {99, 0}, {60, 99}};
    static const std::vector<Vertex> star = makeStar();
    static const std::vector<Vertex> ragged = makeRagged();
    static const std::vector<Vertex> scribble = makeScribble();
    switch (operation) {
    case Operation::Star:
        return star;
    case Operation::Ragged:
        return ragged;
    case Operation::Scribble:
        return scribble;
    default:
        return triangle;
    }
}

std::vector<Run> runsOf(const Workload& workload) {
    return isPolygon(workload.operation)
               ? polygonRuns(polygonOf(workload.operation), workload.height)
               : pixelRuns(workload);
}

} // namespace bench
