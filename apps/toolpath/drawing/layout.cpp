#include "drawing/layout.h"

#include <algorithm>

namespace toolpath {
namespace {

constexpr int kMargin = 8;    // pixels around and between the views
constexpr int kBarHeight = 4; // pixels

GRect makeRect(int left, int top, int right, int bottom) {
    return {static_cast<int16_t>(left), static_cast<int16_t>(top), static_cast<int16_t>(right),
            static_cast<int16_t>(bottom)};
}

/// The area inside a frame of one pixel, itself at least one pixel.
GRect inside(const GRect& frame) {
    const int left = frame.left + 1;
    const int top = frame.top + 1;
    return makeRect(left, top, std::max(left, frame.right - 1), std::max(top, frame.bottom - 1));
}

} // namespace

Layout::Layout(const GVram& surface) {
    const int right = surface.width - 1 - kMargin;
    const int bottom = surface.height - 1 - kMargin;
    const int middle = surface.width * 2 / 5;
    display = makeRect(0, 0, surface.width - 1, surface.height - 1);
    planFrame = makeRect(kMargin, kMargin, middle - kMargin / 2 - 1, bottom);
    plan = inside(planFrame);
    isometricFrame = makeRect(middle + kMargin / 2, kMargin, right, bottom);
    isometric = inside(isometricFrame);
    const int barTop = bottom + 1 + (kMargin - kBarHeight) / 2;
    bar = makeRect(kMargin, barTop, right, barTop + kBarHeight - 1);
}

} // namespace toolpath
