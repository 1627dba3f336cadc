// GRF images stretched to a rectangle.
#include "draw/clip.h"
#include "geometry/view.h"
#include "image/grf_format.h"
#include "raster/canvas.h"
#include "raster/kernel/run_reader.h"

#include <quarlo/image.h>

namespace quarlo {
namespace {

using kernel::RunPiece;
using kernel::RunReader;

/// Stretched images have one byte a value, of which three bits count.
constexpr int32_t kUnitBytes = 1;
constexpr uint8_t kValueMask = 7;

/// Which destination columns source columns fall on.
class Columns {
  public:
    Columns(const GRect& box, int32_t sourceWidth)
        : left_(box.left),
          to_(static_cast<uint32_t>(widthOf(box))),
          from_(static_cast<uint32_t>(sourceWidth)),
          whole_(to_ / from_),
          rest_(to_ % from_) {}

    /// The column of one source column. No product of the widths reaches 2^32.
    int32_t of(int32_t source) const { return at(static_cast<uint32_t>(source) * to_ / from_); }

    /// Goes from one source column to the next without a division.
    class Walk {
      public:
        Walk(const Columns& columns, int32_t source)
            : columns_(columns),
              column_(static_cast<uint32_t>(source) * columns.to_ / columns.from_),
              rest_(static_cast<uint32_t>(source) * columns.to_ % columns.from_) {}

        int32_t column() const { return columns_.at(column_); }

        void advance() {
            column_ += columns_.whole_;
            rest_ += columns_.rest_;
            if (rest_ >= columns_.from_) {
                rest_ -= columns_.from_;
                ++column_;
            }
        }

      private:
        const Columns& columns_;
        uint32_t column_;
        uint32_t rest_;
    };

  private:
    int32_t at(uint32_t column) const { return left_ + static_cast<int32_t>(column); }

    const int32_t left_;
    const uint32_t to_;
    const uint32_t from_;
    const uint32_t whole_;
    const uint32_t rest_;
};

/// One row of the destination.
class ZoomedRow {
  public:
    ZoomedRow(const Canvas& canvas, const GRect& visible, const GRect& box, const Columns& columns,
              int32_t y)
        : canvas_(canvas),
          visible_(visible),
          box_(box),
          clipped_(!contains(visible, box)),
          columns_(columns),
          y_(y) {}

    void add(const RunPiece& piece) {
        if (piece.kind == RunPiece::Skip) {
            return;
        }
        int32_t left = columns_.of(piece.x);
        int32_t right = columns_.of(piece.x + piece.count - 1);
        if (left >= 0 && left <= drawn_) { // no column twice
            left = drawn_ + 1;
            right = std::max(right, left);
        }
        right = std::min<int32_t>(right, box_.right);
        if (left > right) {
            return;
        }
        drawn_ = right;
        const bool single = left == right;
        left = std::max<int32_t>(left, visible_.left);
        right = std::min<int32_t>(right, visible_.right);
        if (left > right) {
            return;
        }
        if (piece.kind == RunPiece::Literal) {
            literal(left, right, piece);
        } else {
            fill(left, right, piece.units[0] & kValueMask, single);
        }
    }

  private:
    /// A span, unless all of it is one pixel or some of the image is out of sight.
    void fill(int32_t left, int32_t right, uint32_t value, bool single) const {
        const int32_t mode = canvas_.handle.drawingMode;
        if (canvas_.kernels != nullptr || !(clipped_ || single)) {
            canvas_.span(low16(left), low16(y_), right - left + 1, value, mode);
            return;
        }
        for (; left <= right; ++left) {
            canvas_.setPixel(low16(left), low16(y_), value, mode);
        }
    }

    /// Each column shows the last value at or before it, or of those that fall on it the first that
    /// is not 0.
    void literal(int32_t left, int32_t right, const RunPiece& piece) const {
        constexpr int32_t kMost = 64;
        uint8_t values[kMost];
        const uint8_t* unit = piece.units;
        const uint8_t* const last = unit + piece.count - 1;
        Columns::Walk walk(columns_, piece.x);
        int32_t falls = walk.column(); // where *unit falls, and then the one after it
        walk.advance();
        for (int32_t column = left; column <= right;) {
            int32_t count = 0;
            for (; count < kMost && column <= right; ++count, ++column) {
                uint8_t value = *unit & kValueMask;
                for (; unit != last && walk.column() <= column; walk.advance()) {
                    value = falls == column && value != 0 ? value : unit[1] & kValueMask;
                    falls = walk.column();
                    ++unit;
                }
                values[count] = value;
            }
            put(column - count, values, count);
        }
    }

    void put(int32_t x, const uint8_t* values, int32_t count) const {
        if (canvas_.kernels != nullptr) {
            canvas_.leaveCell(values[count - 1],
                              canvas_.kernels->bytes(canvas_.addressOf(x, y_), values, count));
            return;
        }
        for (int32_t i = 0; i < count; ++i) {
            canvas_.setPixel(low16(x + i), low16(y_), values[i], canvas_.handle.drawingMode);
        }
    }

    const Canvas& canvas_;
    const GRect& visible_;
    const GRect& box_;
    const bool clipped_;
    const Columns& columns_;
    const int32_t y_;
    int32_t drawn_ = -1; ///< the last column
};

/// Reads the pieces of the row that comes next, and hands them on.
template <typename Action>
void readRow(RunReader& reader, const Action& action) {
    const int32_t row = reader.row();
    RunPiece piece;
    while (reader.row() == row && reader.next(piece)) {
        action(piece);
    }
}

/// Rows that the nearest neighbour, by an error term, lies on from the top downwards.
class RowWalk {
  public:
    RowWalk(int32_t source, int32_t destination)
        : source_(source), destination_(destination), error_(-int64_t{destination}) {}

    /// To the next destination row; how many source rows it lies further down. The last one is
    /// repeated rather than left.
    int32_t advance() {
        const int32_t before = row_;
        error_ += 2 * int64_t{source_};
        for (; error_ > 0; error_ -= 2 * int64_t{destination_}) {
            row_ += row_ + 1 < source_ ? 1 : 0;
        }
        return row_ - before;
    }

  private:
    const int32_t source_;
    const int32_t destination_;
    int64_t error_;
    int32_t row_ = 0;
};

void drawZoomed(const Canvas& canvas, const GGrfImage& image, const uint8_t* stream,
                const GRect& box, const GRect& visible) {
    const auto pass = [](const RunPiece&) {};
    const Columns columns(box, image.width);
    RowWalk rows(image.height, heightOf(box));
    RunReader reader(stream, image.width, kUnitBytes);
    for (int32_t y = box.top; y <= visible.bottom; ++y) {
        const RunReader begin = reader;
        bool isRead = false;
        if (y >= visible.top) {
            ZoomedRow zoomed(canvas, visible, box, columns, y);
            readRow(reader, [&zoomed](const RunPiece& piece) { zoomed.add(piece); });
            isRead = true;
        }
        int32_t further = rows.advance();
        if (further == 0) {
            reader = begin; // the same row once more
        } else if (isRead) {
            --further;
        }
        for (; further > 0; --further) {
            readRow(reader, pass);
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
    if (isReadable(*image) && clipTo(visible, canvas.area)) {
        drawZoomed(canvas, *image, stream, box, visible);
    }
    return 1;
}
