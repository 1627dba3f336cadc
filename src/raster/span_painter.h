// The span painter: where every filled shape that is not a rectangle ends.
#pragma once

#include "raster/canvas.h"
#include "raster/kernel/kernels.h"

#include <cstdint>

namespace quarlo {

/// What an area is filled with: an 8 x 8 pattern in two colours, or the fore colour alone where
/// there are no rows. A solid fore colour of -1 paints nothing.
struct Paint {
    uint32_t fore;
    uint32_t back;
    const uint8_t* rows;

    static Paint solid(uint32_t pixel) { return {pixel, pixel, nullptr}; }
};

/// Paints horizontal runs, clipped to the canvas, in the order in which they come. Kernels take
/// them in batches; a platform gets each as a rectangle of one line.
class SpanPainter {
  public:
    SpanPainter(const Canvas& canvas, const Paint& paint, int32_t mode);
    ~SpanPainter() { flush(); }
    SpanPainter(const SpanPainter&) = delete;
    SpanPainter& operator=(const SpanPainter&) = delete;

    /// Where anything can be seen.
    const GRect& area() const { return area_; }
    int32_t top() const { return top_; }
    int32_t bottom() const { return bottom_; }

    /// A run from column `left` to `right`, both included; nothing when they stand the other way.
    void add(int32_t left, int32_t right, int32_t y) {
        if (y < top_ || y > bottom_) {
            return;
        }
        left = left < left_ ? left_ : left;
        right = right > right_ ? right_ : right;
        if (left > right) {
            return;
        }
        spans_[count_] = {static_cast<int16_t>(left), static_cast<int16_t>(right),
                          static_cast<int16_t>(y)};
        if (++count_ == kBatch) {
            flush();
        }
    }

  private:
    static constexpr int32_t kBatch = 64;

    void flush();

    const Canvas& canvas_;
    const Paint paint_;
    const int32_t mode_;
    const GRect area_; ///< nowhere when the paint shows nothing
    // Its edges in a type that no store of a span's can change, so that they stay in registers.
    const int32_t left_ = area_.left;
    const int32_t top_ = area_.top;
    const int32_t right_ = area_.right;
    const int32_t bottom_ = area_.bottom;
    int32_t count_ = 0;
    kernel::Span spans_[kBatch];
};

} // namespace quarlo
