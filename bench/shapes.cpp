#include "shapes.h"

#include "random.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace bench {
namespace {

constexpr size_t kPlaces = 256;
constexpr size_t kPlacesOfLargeShapes = 16;
constexpr size_t kSegments = 10'000;

std::vector<Place> makePlaces(int width, int height) {
    const auto right = static_cast<uint32_t>(kWidth - width);
    const auto bottom = static_cast<uint32_t>(kHeight - height);
    if (right == 0 && bottom == 0) {
        return {Place{0, 0, 0, 0}};
    }
    Random random(0x51A7E5u + static_cast<uint32_t>(width * 1000 + height));
    std::vector<Place> places(width * height >= 400 * 400 ? kPlacesOfLargeShapes : kPlaces);
    for (Place& place : places) {
        place.x = static_cast<int16_t>(random.below(right + 1));
        place.y = static_cast<int16_t>(random.below(bottom + 1));
        place.sourceX = static_cast<int16_t>(random.below(right + 1));
        place.sourceY = static_cast<int16_t>(random.below(bottom + 1));
    }
    return places;
}

/// Lines of one Euclidean length in every direction, or, for length 0, between any two points.
std::vector<Segment> makeSegments(int length) {
    Random random(0x11A35u + static_cast<uint32_t>(length));
    const auto x = [&] { return static_cast<int>(random.below(kWidth)); };
    const auto y = [&] { return static_cast<int>(random.below(kHeight)); };
    const auto fits = [&](int x1, int y1, int x2, int y2) {
        if (length == 0) {
            return x1 != x2 || y1 != y2;
        }
        const int squared = (x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1);
        return squared >= (length - 1) * (length - 1) && squared <= length * length && x2 >= 0 &&
               x2 < kWidth && y2 >= 0 && y2 < kHeight;
    };
    const auto offset = [&] {
        return static_cast<int>(random.below(static_cast<uint32_t>(2 * length + 1))) - length;
    };
    std::vector<Segment> segments;
    segments.reserve(kSegments);
    while (segments.size() < kSegments) {
        const int x1 = x();
        const int y1 = y();
        const int x2 = length == 0 ? x() : x1 + offset();
        const int y2 = length == 0 ? y() : y1 + offset();
        if (fits(x1, y1, x2, y2)) {
            segments.push_back({static_cast<int16_t>(x1), static_cast<int16_t>(y1),
                                static_cast<int16_t>(x2), static_cast<int16_t>(y2)});
        }
    }
    return segments;
}

} // namespace

Shapes Shapes::first(size_t limit) const {
    return {places.first(std::min(limit, places.size())),
            segments.first(std::min(limit, segments.size()))};
}

Shapes shapesOf(const Workload& workload) {
    if (isLine(workload.operation)) {
        static std::map<int, std::vector<Segment>> segments;
        auto& made = segments[workload.width];
        if (made.empty()) {
            made = makeSegments(workload.width);
        }
        return {{}, made};
    }
    static std::map<std::pair<int, int>, std::vector<Place>> places;
    auto& made = places[{workload.width, workload.height}];
    if (made.empty()) {
        made = makePlaces(workload.width, workload.height);
    }
    return {made, {}};
}

} // namespace bench
