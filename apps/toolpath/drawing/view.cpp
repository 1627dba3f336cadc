#include "drawing/view.h"

#include <algorithm>
#include <cmath>

namespace toolpath {
namespace {

constexpr double kFill = 0.94;          // of the area, the rest is margin
constexpr double kSmallestExtent = 1.0; // millimetres: a single hole has none at all

int16_t round16(double value) {
    return static_cast<int16_t>(std::lround(value));
}

} // namespace

View::View(Projection projection, const Box3& shown, const GRect& area)
    : projection_(projection), area_(area) {
    const Box2 frame = projectBox(projection, shown);
    const double width = area.right - area.left + 1;
    const double height = area.bottom - area.top + 1;
    scale_ = kFill * std::min(width / std::max(frame.high.x - frame.low.x, kSmallestExtent),
                              height / std::max(frame.high.y - frame.low.y, kSmallestExtent));
    centre_ = {(frame.low.x + frame.high.x) / 2, (frame.low.y + frame.high.y) / 2};
    middle_ = {static_cast<int16_t>((area.left + area.right) / 2),
               static_cast<int16_t>((area.top + area.bottom) / 2)};
    reach_ = std::max(width, height);
}

void View::select(GDrawHandle* handle) const {
    const GPoint origin{static_cast<int16_t>(-middle_.x), static_cast<int16_t>(-middle_.y)};
    GDSetLocalOrigin(handle, &origin);
    const GRect clip = bounds();
    GDSetClipRect(handle, &clip);
}

GRect View::bounds() const {
    return {static_cast<int16_t>(area_.left - middle_.x),
            static_cast<int16_t>(area_.top - middle_.y),
            static_cast<int16_t>(area_.right - middle_.x),
            static_cast<int16_t>(area_.bottom - middle_.y)};
}

Point2 View::toPixels(const Point3& place) const {
    const Point2 projected = project(projection_, place);
    return {(projected.x - centre_.x) * scale_, (centre_.y - projected.y) * scale_};
}

GPoint View::pixel(const Point3& place) const {
    const Point2 at = toPixels(place);
    return {round16(std::clamp(at.x, -reach_, reach_)), round16(std::clamp(at.y, -reach_, reach_))};
}

bool View::line(const Point3& from, const Point3& to, GLine& line) const {
    Point2 a = toPixels(from);
    Point2 b = toPixels(to);
    if (!clipSegment(a, b, reach_)) {
        return false;
    }
    line = {round16(a.x), round16(a.y), round16(b.x), round16(b.y)};
    return true;
}

Point3 View::place(const GPoint& pixel, double height) const {
    return unproject(projection_, {centre_.x + pixel.x / scale_, centre_.y - pixel.y / scale_},
                     height);
}

void drawLine(GDrawHandle* handle, const View& view, const Point3& from, const Point3& to) {
    GLine line;
    if (view.line(from, to, line)) {
        GDDrawLine(handle, &line);
    }
}

} // namespace toolpath
