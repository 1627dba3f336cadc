#include "graphic/view.h"

#include <algorithm>
#include <cmath>

namespace panel {
namespace {

constexpr double kFill = 0.86;          // of the area, the rest is margin
constexpr double kSmallestExtent = 1.0; // millimetres
constexpr double kSmallestScale = 0.05; // pixels a millimetre
constexpr double kLargestScale = 500.0;
constexpr double kClosestLines = 14.0; // pixels between lines of the grid

int16_t round16(double value) {
    return static_cast<int16_t>(std::lround(value));
}

} // namespace

void View::fit(const Box3& box) {
    const toolpath::Box2 frame = toolpath::projectBox(projection_, box);
    const double width = std::max(frame.high.x - frame.low.x, kSmallestExtent);
    const double height = std::max(frame.high.y - frame.low.y, kSmallestExtent);
    centre_ = {(frame.low.x + frame.high.x) / 2, (frame.low.y + frame.high.y) / 2};
    scale_ = kFill * std::min(size_.width / width, size_.height / height);
}

void View::zoom(double factor) {
    scale_ = std::clamp(scale_ * factor, kSmallestScale, kLargestScale);
}

void View::pan(int dx, int dy) {
    centre_ = {centre_.x - dx / scale_, centre_.y + dy / scale_};
}

Point2 View::toPixels(const Point3& place) const {
    const Point2 projected = toolpath::project(projection_, place);
    return {(projected.x - centre_.x) * scale_, (centre_.y - projected.y) * scale_};
}

GPoint View::pixel(const Point3& place) const {
    const Point2 at = toPixels(place);
    return {round16(std::clamp(at.x, -reach(), reach())),
            round16(std::clamp(at.y, -reach(), reach()))};
}

bool View::line(const Point3& from, const Point3& to, GLine& line) const {
    Point2 a = toPixels(from);
    Point2 b = toPixels(to);
    if (!toolpath::clipSegment(a, b, reach())) {
        return false;
    }
    GLSetLine(&line, round16(a.x), round16(a.y), round16(b.x), round16(b.y));
    return true;
}

Point3 View::place(GPoint pixel, double height) const {
    return toolpath::unproject(
        projection_, {centre_.x + pixel.x / scale_, centre_.y - pixel.y / scale_}, height);
}

double gridStep(double scale) {
    const double least = kClosestLines / scale;
    const double decade = std::pow(10.0, std::floor(std::log10(least)));
    for (const double step : {1.0, 2.0, 5.0}) {
        if (step * decade >= least) {
            return step * decade;
        }
    }
    return 10.0 * decade;
}

} // namespace panel
