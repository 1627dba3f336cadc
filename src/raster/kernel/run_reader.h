// Reading the runs of an image's stream, row by row.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace quarlo::kernel {

/// The byte that a run begins with: a count in the low 6 bits, the kind in the others.
struct RunControl {
    uint8_t byte;

    int32_t count() const { return byte & 0x3F; }
    bool endsStream() const { return byte == 0; }
    bool skips() const { return byte < 0x40; } ///< a byte of any value follows
    bool hasUnits() const { return (byte & 0x40) != 0; }
    bool fills() const { return (byte & 0x80) != 0; } ///< with one unit, if it has any
};

/// A part of a run that lies on one row. Only the bytes of its own units are read.
struct RunPiece {
    enum Kind { Skip, Literal, Fill };

    Kind kind;
    int32_t x;
    int32_t count;
    const uint8_t* units; ///< of a literal run `count`, of a fill run one
};

/// Walks a stream. Pixels follow one another in rows; a run that crosses the end of a row comes in
/// pieces. Copies remember a place to read on from.
class RunReader {
  public:
    RunReader(const uint8_t* stream, int32_t width, int32_t unitBytes)
        : at_(stream), width_(width), unitBytes_(unitBytes) {}

    /// The next piece; false at the end of the stream. Row y ends with the piece that fills it.
    bool next(RunPiece& piece) {
        while (left_ == 0) {
            const RunControl control{*at_};
            if (control.endsStream()) {
                return false;
            }
            begin(control);
        }
        const int32_t count = std::min(left_, width_ - x_);
        piece = {kind_, x_, count, units_};
        units_ += count * step_;
        left_ -= count;
        x_ += count;
        if (x_ == width_) {
            x_ = 0;
            ++y_;
        }
        return true;
    }

    /// The row of the pixel that comes next.
    int32_t row() const { return y_; }

  private:
    void begin(RunControl control) {
        left_ = control.count();
        units_ = ++at_;
        step_ = 0;
        if (control.skips()) {
            kind_ = RunPiece::Skip;
            ++at_;
        } else if (!control.hasUnits()) {
            left_ = 0;
        } else if (control.fills()) {
            kind_ = RunPiece::Fill;
            at_ += unitBytes_;
        } else {
            kind_ = RunPiece::Literal;
            step_ = unitBytes_;
            at_ += left_ * unitBytes_;
        }
    }

    const uint8_t* at_; ///< the next run
    int32_t width_;
    ptrdiff_t unitBytes_;
    RunPiece::Kind kind_ = RunPiece::Skip;
    const uint8_t* units_ = nullptr; ///< of the rest of this run
    ptrdiff_t step_ = 0;             ///< bytes from the unit of a pixel to that of the next
    int32_t left_ = 0;               ///< pixels of this run
    int32_t x_ = 0;
    int32_t y_ = 0;
};

} // namespace quarlo::kernel
