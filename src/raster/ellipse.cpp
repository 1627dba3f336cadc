#include "raster/ellipse.h"

#include "geometry/map.h"
#include "raster/ramp.h"

#include <algorithm>

namespace quarlo {
namespace {

void describeFill(GEllipseState& state, const Ellipse& ellipse, const Paint& paint, int32_t mode) {
    state.fore = paint.fore;
    state.back = paint.back;
    state.mode = static_cast<uint16_t>(mode);
    state.rows = paint.rows;
    leaveCentres(state, ellipse);
}

/// Calls action(left, right, y) for the visible part of every row.
template <typename Action>
void forVisibleRows(const Ellipse& ellipse, const GRect& area, const Action& action) {
    walkRows(ellipse, [&](int32_t x, int32_t y) {
        const int32_t left = std::max<int32_t>(ellipse.leftCentre - x, area.left);
        const int32_t right = std::min<int32_t>(ellipse.rightCentre + x, area.right);
        ellipse.forRowsAt(y, [&](int32_t row) {
            if (left <= right && area.top <= row && row <= area.bottom) {
                action(left, right, row);
            }
        });
    });
}

/// A row of a gradation from left to right, cut at the bands.
void paintAcross(const Canvas& canvas, const Ramp& ramp, int32_t start, int32_t left, int32_t right,
                 int32_t y) {
    for (int32_t band = ramp.bandAt(left - start); left <= right; ++band) {
        const int32_t last = start + (band < 0 ? ramp.lead() - 1 : ramp.lastLine(band));
        const int32_t end = band >= ramp.bands() - 1 ? right : std::min(last, right);
        const GRect run{low16(left), low16(y), low16(end), low16(y)};
        fillRect(canvas, run, ramp.color(std::max(band, 0)), canvas.handle.drawingMode);
        left = end + 1;
    }
}

} // namespace

void leaveCentres(GEllipseState& state, const Ellipse& ellipse) {
    state.leftCentre = low16(ellipse.leftCentre);
    state.rightCentre = low16(ellipse.rightCentre);
    state.topCentre = low16(ellipse.topCentre);
    state.bottomCentre = low16(ellipse.bottomCentre);
}

void fillEllipse(const Canvas& canvas, const Ellipse& ellipse, const Paint& paint, int32_t mode) {
    describeFill(canvas.handle.ellipse, ellipse, paint, mode);
    SpanPainter painter(canvas, paint, mode);
    walkRows(ellipse, [&](int32_t x, int32_t y) {
        ellipse.forRowsAt(y, [&](int32_t row) {
            painter.add(ellipse.leftCentre - x, ellipse.rightCentre + x, row);
        });
    });
}

void fillEllipseGradation(const Canvas& canvas, const Ellipse& ellipse, const GRect& box) {
    const GGradationInfo& info = canvas.handle.gradation;
    const int32_t mode = canvas.handle.drawingMode;
    if (info.direction > G_GRADATION_ACROSS) {
        return;
    }
    const bool down = info.direction == G_GRADATION_DOWN;
    const Ramp ramp(info, down ? box.bottom - box.top : box.right - box.left);
    if (ramp.bands() <= 1) {
        fillEllipse(canvas, ellipse, Paint::solid(ramp.color(0)), mode);
        return;
    }
    forVisibleRows(ellipse, canvas.area, [&](int32_t left, int32_t right, int32_t y) {
        if (!down) {
            paintAcross(canvas, ramp, box.left, left, right, y);
            return;
        }
        const int32_t band = ramp.bandAt(y - box.top);
        // The lead of a downward ramp takes the start colour as it was given, unpacked.
        const uint32_t pixel = band < 0 ? info.startColor : ramp.color(band);
        canvas.span(low16(left), low16(y), right - left + 1, pixel, mode);
    });
}

} // namespace quarlo
