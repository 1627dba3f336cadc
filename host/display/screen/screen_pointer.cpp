#include "display/screen/screen_pointer.h"

#include "display/area.h"
#include "display/arrow.h"

#include <algorithm>
#include <cmath>

namespace gpi {
namespace {

constexpr GRect kNothing{0, 0, -1, -1};

/// As large on large screens as on small ones, about.
int scaleFor(Size screen) {
    constexpr int kSmallScreen = 480;
    return std::max(1, screen.height / kSmallScreen);
}

} // namespace

ScreenPointer::ScreenPointer(const Projection& projection, Size frame, Size screen)
    : projection_(projection),
      frame_(frame),
      screen_(screen),
      scale_(scaleFor(screen)),
      column_(screen.width / 2),
      row_(screen.height / 2) {}

void ScreenPointer::setProjection(const Projection& projection) {
    projection_ = projection;
}

void ScreenPointer::moveBy(int columns, int rows) {
    const GRect picture = projection_.onScreen(wholeArea(frame_.width, frame_.height));
    column_ = std::clamp(column_ + columns, int{picture.left}, int{picture.right});
    row_ = std::clamp(row_ + rows, int{picture.top}, int{picture.bottom});
    visible_ = true;
}

void ScreenPointer::moveTo(double across, double down, bool arrow) {
    const auto place = [](double share, int size) {
        return std::clamp(static_cast<int>(std::floor(share * size)), 0, size - 1);
    };
    column_ = place(across, screen_.width);
    row_ = place(down, screen_.height);
    visible_ = arrow;
}

GRect ScreenPointer::arrow() const {
    if (!visible_) {
        return kNothing;
    }
    const int right = std::min(column_ + kArrowWidth * scale_, screen_.width) - 1;
    const int bottom = std::min(row_ + kArrowHeight * scale_, screen_.height) - 1;
    return {static_cast<int16_t>(column_), static_cast<int16_t>(row_), static_cast<int16_t>(right),
            static_cast<int16_t>(bottom)};
}

void ScreenPointer::draw(int y, int left, int width, uint32_t* row) const {
    constexpr uint32_t kInside = 0xFFFFFF;
    constexpr uint32_t kEdge = 0x000000;
    const GRect covered = arrow();
    if (isEmpty(covered) || y < covered.top || y > covered.bottom) {
        return;
    }
    const auto line = static_cast<size_t>((y - row_) / scale_);
    const auto shape = kArrow.substr(line * kArrowWidth, size_t{kArrowWidth});
    const int end = std::min(left + width, covered.right + 1);
    for (int x = std::max(left, int{covered.left}); x < end; ++x) {
        const char part = shape[static_cast<size_t>((x - column_) / scale_)];
        if (part != ' ') {
            row[x - left] = part == 'o' ? kInside : kEdge;
        }
    }
}

} // namespace gpi
