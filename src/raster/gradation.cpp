#include "raster/gradation.h"

#include "draw/clip.h"
#include "raster/ramp.h"

#include <algorithm>

namespace quarlo {
namespace {

/// Rows are spans, not rectangles: a device may accelerate the two differently. A lead is painted
/// in any colour, -1 included.
void fillRows(const Canvas& canvas, const GRect& rect, uint32_t pixel) {
    const int32_t mode = canvas.handle.drawingMode;
    if (canvas.kernels != nullptr && pixel != G_NO_COLOR) {
        fillRect(canvas, rect, pixel, mode);
        return;
    }
    for (int32_t y = rect.top; y <= rect.bottom; ++y) {
        canvas.span(rect.left, low16(y), widthOf(rect), pixel, mode);
    }
}

/// Lines `first` to `last` of the whole rectangle, as far as they are visible.
template <typename Fill>
void fillLines(const GRect& visible, const GRect& whole, bool down, int32_t first, int32_t last,
               const Fill& fill) {
    const int32_t start = down ? whole.top : whole.left;
    const int32_t from = std::max<int32_t>(start + first, down ? visible.top : visible.left);
    const int32_t to = std::min<int32_t>(start + last, down ? visible.bottom : visible.right);
    if (from > to) {
        return;
    }
    fill(down ? GRect{visible.left, low16(from), visible.right, low16(to)}
              : GRect{low16(from), visible.top, low16(to), visible.bottom});
}

} // namespace

void fillGradation(const Canvas& canvas, const GRect& visible, const GRect& whole) {
    const GGradationInfo& info = canvas.handle.gradation;
    if (info.direction > G_GRADATION_ACROSS) {
        return;
    }
    const bool down = info.direction == G_GRADATION_DOWN;
    const Ramp ramp(info, (down ? heightOf(whole) : widthOf(whole)) - 1);
    const int32_t mode = canvas.handle.drawingMode;
    if (ramp.bands() <= 1) {
        fillRect(canvas, visible, ramp.color(0), mode);
        return;
    }
    // The lead of a downward ramp takes the start colour as it was given, unpacked.
    const uint32_t leadColor = down ? info.startColor : ramp.color(0);
    for (int32_t band = -1; band < ramp.bands(); ++band) {
        const int32_t first = band < 0 ? 0 : ramp.firstLine(band);
        const int32_t last = band < 0 ? ramp.lead() - 1 : ramp.lastLine(band);
        const uint32_t pixel = band < 0 ? leadColor : ramp.color(band);
        fillLines(visible, whole, down, first, last, [&](const GRect& rect) {
            if (down) {
                fillRows(canvas, rect, pixel);
            } else {
                fillRect(canvas, rect, pixel, mode);
            }
        });
    }
}

} // namespace quarlo
