// Images of runs, drawn with the values that stand in their streams.
#pragma once

#include "raster/kernel/copy_row.h"
#include "raster/kernel/format.h"
#include "raster/kernel/kernels.h"
#include "raster/kernel/row_color.h"
#include "raster/kernel/rows.h"
#include "raster/kernel/run_reader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace quarlo::kernel {

/// Walks along the rows of an image and draws what of its runs lies in the visible part. Every
/// function returns false behind the last visible row.
template <typename Format, typename Mode>
class RunPainter {
  public:
    RunPainter(uint8_t* at, ptrdiff_t stride, const RunImage& image)
        : at_(at),
          stride_(stride),
          width_(image.width),
          left_(image.left),
          behind_(image.right + 1),
          rowsAbove_(image.top),
          rowsLeft_(image.bottom - image.top + 1) {}

    bool skip(int32_t count) {
        x_ += count;
        while (x_ >= width_) {
            x_ -= width_;
            if (!nextRow()) {
                return false;
            }
        }
        return true;
    }

    /// One value for all pixels, or one for each.
    bool draw(bool fills, int32_t count, const uint8_t* units) {
        while (count > 0) {
            const int32_t part = std::min(count, width_ - x_);
            const int32_t from = std::max(x_, left_);
            const int32_t to = std::min(x_ + part, behind_);
            if (from < to && rowsAbove_ == 0) {
                drawPart(fills, from, to - from,
                         units + (fills ? 0 : (from - x_) * Format::kBytes));
            }
            units += fills ? 0 : part * Format::kBytes;
            count -= part;
            x_ += part;
            if (x_ == width_) {
                x_ = 0;
                if (!nextRow()) {
                    return false;
                }
            }
        }
        return true;
    }

    LastPixel last() const { return {unit_ != nullptr ? loadPixel<Format>(unit_) : 0, cursor_}; }

  private:
    bool nextRow() {
        if (rowsAbove_ > 0) {
            --rowsAbove_;
            return true;
        }
        at_ += stride_;
        return --rowsLeft_ > 0;
    }

    void drawPart(bool fills, int32_t x, int32_t count, const uint8_t* units) {
        uint8_t* const to = at_ + (x - left_) * ptrdiff_t{Format::kBytes};
        const size_t length = static_cast<size_t>(count) * Format::kBytes;
        cursor_ = to + length;
        if (fills) {
            unit_ = units;
            fillRows<Mode>(to, 0, length, 1, Solid<Format>(loadPixel<Format>(units)).row());
        } else {
            unit_ = units + (count - 1) * ptrdiff_t{Format::kBytes};
            copyRow<Mode>(to, units, length);
        }
    }

    uint8_t* at_; ///< the first visible column of the row, once it is visible
    const ptrdiff_t stride_;
    const int32_t width_;
    const int32_t left_;
    const int32_t behind_; ///< the first column that is visible no more
    int32_t rowsAbove_;    ///< to go before the first visible one
    int32_t rowsLeft_;     ///< visible ones, the current one included
    int32_t x_ = 0;
    const uint8_t* unit_ = nullptr; ///< that was drawn last
    uint8_t* cursor_ = nullptr;
};

/// The kind of a run is a jump, which the processor foresees; worked out as a length without one,
/// each run would wait for the one before it.
template <typename Format, typename Mode>
LastPixel drawRuns(uint8_t* at, ptrdiff_t stride, const RunImage& image) {
    RunPainter<Format, Mode> painter(at, stride, image);
    for (const uint8_t* next = image.stream;;) {
        const RunControl control{*next++};
        const int32_t count = control.count();
        const uint8_t* const units = next;
        if (control.skips()) {
            ++next;
            if (control.endsStream() || !painter.skip(count)) {
                break;
            }
        } else if (control.hasUnits()) {
            next += control.fills() ? Format::kBytes : count * Format::kBytes;
            if (!painter.draw(control.fills(), count, units)) {
                break;
            }
        }
    }
    return painter.last();
}

template <typename Format, typename Mode>
uint8_t* putBytes(uint8_t* at, const uint8_t* values, int32_t count) {
    for (int32_t i = 0; i < count; ++i, at += Format::kBytes) {
        putPixel<Format, Mode>(at, values[i]);
    }
    return at;
}

} // namespace quarlo::kernel
