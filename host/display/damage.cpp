#include "display/damage.h"

#include <algorithm>
#include <cstdint>

namespace gpi {
namespace {

int64_t pixels(const GRect& area) {
    return int64_t{widthOf(area)} * heightOf(area);
}

/// How many pixels more than `area` the smallest area around both has.
int64_t growth(const GRect& area, const GRect& more) {
    return pixels(unite(area, more)) - pixels(area);
}

} // namespace

void Damage::add(const GRect& area) {
    if (gpi::isEmpty(area)) {
        return;
    }
    auto* const end = areas_.begin() + count_;
    const auto overlays = [&](const GRect& known) {
        return growth(known, area) == 0 || growth(area, known) == 0;
    };
    if (auto* const one = std::find_if(areas_.begin(), end, overlays); one != end) {
        *one = unite(*one, area);
    } else if (count_ < kMost) {
        areas_[count_++] = area;
    } else {
        auto* const cheapest =
            std::min_element(areas_.begin(), end, [&](const GRect& a, const GRect& b) {
                return growth(a, area) < growth(b, area);
            });
        *cheapest = unite(*cheapest, area);
    }
}

} // namespace gpi
