#include "display/projection.h"

#include <algorithm>

namespace gpi {
namespace {

Placement partOf(const View& view, Size frame) {
    return {view.left, view.top, std::max(1, frame.width / view.zoomX),
            std::max(1, frame.height / view.zoomY)};
}

Placement placeOf(const View& view, Size frame, Size screen) {
    const Placement part = partOf(view, frame);
    return place(part.width * view.zoomX, part.height * view.zoomY, screen.width, screen.height);
}

} // namespace

Projection::Axis::Axis(int screenSize, int placeFirst, int placeSize, int partFirst, int partSize)
    : begin(placeFirst), end(placeFirst + placeSize), units(static_cast<size_t>(screenSize)) {
    for (int at = 0; at < screenSize; ++at) {
        const int unit = unitAt(std::clamp(at, begin, end - 1), placeFirst, placeSize, partSize);
        units[static_cast<size_t>(at)] = static_cast<int16_t>(partFirst + unit);
    }
}

int16_t Projection::Axis::placeOf(int unit) const {
    const auto found = std::lower_bound(units.begin() + begin, units.begin() + end, unit);
    return static_cast<int16_t>(found - units.begin());
}

int16_t Projection::Axis::nearest(int at) const {
    return units[static_cast<size_t>(std::clamp(at, 0, static_cast<int>(units.size()) - 1))];
}

Projection::Projection(const View& view, Size frame, Size screen)
    : Projection(partOf(view, frame), placeOf(view, frame, screen), frame, screen) {}

Projection::Projection(const Placement& part, const Placement& place, Size frame, Size screen)
    : frameWidth_(frame.width),
      columns_(screen.width, place.x, place.width, part.x, part.width),
      rows_(screen.height, place.y, place.height, part.y, part.height),
      natural_(place.width == part.width) {}

GRect Projection::onScreen(const GRect& area) const {
    const auto before = [](int16_t place) { return static_cast<int16_t>(place - 1); };
    return {columns_.placeOf(area.left), rows_.placeOf(area.top),
            before(columns_.placeOf(area.right + 1)), before(rows_.placeOf(area.bottom + 1))};
}

void Projection::copyRow(const std::vector<uint32_t>& rgb, int y, int left, int width,
                         uint32_t* to) const {
    const int begin = std::clamp(columns_.begin, left, left + width);
    const int end = std::clamp(columns_.end, begin, left + width);
    if (rows_.isBeside(y) || begin == end) {
        std::fill_n(to, width, 0U);
        return;
    }
    std::fill(to, to + (begin - left), 0U);
    std::fill(to + (end - left), to + width, 0U);
    const uint32_t* const row =
        &rgb[static_cast<size_t>(rows_.nearest(y)) * static_cast<size_t>(frameWidth_)];
    if (natural_) {
        std::copy_n(row + columns_.nearest(begin), end - begin, to + (begin - left));
        return;
    }
    for (int x = begin; x < end; ++x) {
        to[x - left] = row[columns_.units[static_cast<size_t>(x)]];
    }
}

Projection::Pixel Projection::pixelAt(int x, int y) const {
    return {columns_.nearest(x), rows_.nearest(y), columns_.isBeside(x) || rows_.isBeside(y)};
}

} // namespace gpi
