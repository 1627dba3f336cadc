// GRF images stretched to a rectangle.
#include "draw/clip.h"
#include "geometry/view.h"
#include "image/grf_format.h"
#include "image/grf_reader.h"
#include "raster/canvas.h"

#include <quarlo/image.h>

namespace quarlo {
namespace {

/// Stretched images have one byte a value, of which three bits count.
constexpr int32_t kUnitBytes = 1;
constexpr uint8_t kValueMask = 7;

/// One row of the destination.
class ZoomedRow {
  public:
    ZoomedRow(const Canvas& canvas, const GRect& visible, const GRect& box, int32_t sourceWidth,
              int32_t y)
        : canvas_(canvas),
          visible_(visible),
          box_(box),
          clipped_(!contains(visible, box)),
          sourceWidth_(sourceWidth),
          y_(y) {}

    void add(const GrfPiece& piece) {
        if (piece.kind == GrfPiece::Skip) {
            return;
        }
        const int32_t last = piece.x + piece.count - 1;
        int32_t left = columnOf(piece.x);
        int32_t right = columnOf(last);
        if (left >= 0 && left <= drawn_) { // no column twice
            left = drawn_ + 1;
            right = std::max(right, left);
        }
        right = std::min<int32_t>(right, box_.right);
        if (left > right) {
            return;
        }
        drawn_ = right;
        if (piece.kind == GrfPiece::Fill) {
            fill(left, right, piece.units[0] & kValueMask);
        } else {
            literal(left, right, piece);
        }
    }

  private:
    int32_t columnOf(int32_t source) const {
        return box_.left + static_cast<int32_t>(int64_t{source} * widthOf(box_) / sourceWidth_);
    }

    void fill(int32_t left, int32_t right, uint32_t value) const {
        const bool single = canvas_.kernels == nullptr && (clipped_ || left == right);
        left = std::max<int32_t>(left, visible_.left);
        right = std::min<int32_t>(right, visible_.right);
        if (left <= right && !single) {
            canvas_.span(low16(left), low16(y_), right - left + 1, value,
                         canvas_.handle.drawingMode);
        }
        for (; single && left <= right; ++left) {
            plot(left, value);
        }
    }

    void literal(int32_t left, int32_t right, const GrfPiece& piece) const {
        int32_t source = 0;
        for (int32_t column = left; column <= right; ++column) {
            // The last value at or before the column, and of those that fall on it the first that
            // is not 0.
            uint32_t value = valueAt(piece, source);
            while (source + 1 < piece.count && columnOf(piece.x + source + 1) <= column) {
                ++source;
                const bool falls = columnOf(piece.x + source - 1) == column;
                value = falls && value != 0 ? value : valueAt(piece, source);
            }
            if (column >= visible_.left && column <= visible_.right) {
                plot(column, value);
            }
        }
    }

    static uint32_t valueAt(const GrfPiece& piece, int32_t index) {
        return piece.units[index] & kValueMask;
    }

    void plot(int32_t x, uint32_t value) const {
        if (canvas_.kernels != nullptr) {
            uint8_t* const at = canvas_.addressOf(x, y_);
            canvas_.kernels->putPixel(at, value);
            canvas_.leaveCell(value, at + canvas_.kernels->bytesPerPixel);
        } else {
            canvas_.setPixel(low16(x), low16(y_), value, canvas_.handle.drawingMode);
        }
    }

    const Canvas& canvas_;
    const GRect& visible_;
    const GRect& box_;
    const bool clipped_;
    const int32_t sourceWidth_;
    const int32_t y_;
    int32_t drawn_ = -1; ///< the last column
};

/// Reads the pieces of the row that comes next, and hands them on.
template <typename Action>
void readRow(GrfReader& reader, const Action& action) {
    const int32_t row = reader.row();
    GrfPiece piece;
    while (reader.row() == row && reader.next(piece)) {
        action(piece);
    }
}

void drawZoomed(const Canvas& canvas, const GGrfImage& image, const uint8_t* stream,
                const GRect& box, const GRect& visible) {
    GrfReader reader(stream, image.width, kUnitBytes);
    const int64_t height = heightOf(box);
    int64_t error = -height;
    int32_t row = 0;
    for (int32_t y = box.top; y <= visible.bottom; ++y) {
        GrfReader again = reader; // the same row may be drawn once more
        if (y >= visible.top) {
            ZoomedRow zoomed(canvas, visible, box, image.width, y);
            readRow(again, [&zoomed](const GrfPiece& piece) { zoomed.add(piece); });
        }
        // Nearest neighbour by an error term; the last row is repeated rather than left.
        error += 2 * int64_t{image.height};
        for (; error > 0; error -= 2 * height) {
            if (row + 1 < image.height) {
                ++row;
                readRow(reader, [](const GrfPiece&) {});
            }
        }
    }
}

} // namespace
} // namespace quarlo

using namespace quarlo;

int32_t GDDrawGrfZoom(GDrawHandle* handle, const GGrfImage* image, const uint8_t* stream, int16_t x,
                      int16_t y, int16_t width, int16_t height) {
    if (width <= 0 || height <= 0) {
        return GDDrawGrf(handle, image, stream, x, y, width, height);
    }
    if (stream == nullptr) {
        return 0;
    }
    GRect box{x, y, low16(x + width - 1), low16(y + height - 1)};
    mapToScreen(*handle, box);
    const Canvas canvas(*handle);
    GRect visible = box;
    if (isReadable(*image) && isValid(canvas.area) && clipTo(visible, canvas.area)) {
        drawZoomed(canvas, *image, stream, box, visible);
    }
    return 1;
}
