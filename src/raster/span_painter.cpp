#include "raster/span_painter.h"

#include "draw/clip.h"

namespace quarlo {
namespace {

uint32_t lastColor(const Paint& paint, const kernel::Span& span) {
    if (paint.rows == nullptr) {
        return paint.fore;
    }
    return (paint.rows[span.y & 7] << (span.right & 7) & 0x80) != 0 ? paint.fore : paint.back;
}

} // namespace

SpanPainter::SpanPainter(const Canvas& canvas, const Paint& paint, int32_t mode)
    : canvas_(canvas),
      paint_(paint),
      mode_(mode),
      area_(paint.rows == nullptr && paint.fore == G_NO_COLOR ? kNowhere : canvas.area) {}

void SpanPainter::flush() {
    if (count_ == 0) {
        return;
    }
    const kernel::Kernels* const kernels = canvas_.kernels;
    if (kernels != nullptr) {
        uint8_t* const pixels = canvas_.surface.pixels;
        const ptrdiff_t stride = canvas_.surface.bytesPerLine;
        uint8_t* const cursor =
            paint_.rows == nullptr
                ? kernels->fillSpans(pixels, stride, spans_, count_, paint_.fore)
                : kernels->fillPatternSpans(pixels, stride, spans_, count_, paint_.fore,
                                            paint_.back, paint_.rows);
        canvas_.leaveCell(lastColor(paint_, spans_[count_ - 1]), cursor);
    } else {
        for (int32_t i = 0; i < count_; ++i) {
            const GRect run{spans_[i].left, spans_[i].y, spans_[i].right, spans_[i].y};
            if (paint_.rows == nullptr) {
                fillRect(canvas_, run, paint_.fore, mode_);
            } else {
                fillPatternRect(canvas_, run, paint_.fore, paint_.back, mode_, paint_.rows);
            }
        }
    }
    count_ = 0;
}

} // namespace quarlo
