// Reading the runs of a GRF stream, row by row.
#pragma once

#include <algorithm>
#include <cstdint>

namespace quarlo {

/// Low byte first.
inline uint32_t readUnit(const uint8_t* at, int32_t bytes) {
    uint32_t value = 0;
    for (int32_t i = 0; i < bytes; ++i) {
        value |= uint32_t{at[i]} << (8 * i);
    }
    return value;
}

/// A part of a run that lies on one row. Only the bytes of its own units are read.
struct GrfPiece {
    enum Kind { Skip, Literal, Fill };

    Kind kind;
    int32_t x;
    int32_t count;
    const uint8_t* units; ///< of a literal run `count`, of a fill run one
};

/// Walks a stream. Pixels follow one another in rows; a run that crosses the end of a row comes in
/// pieces. Copies remember a place to read on from.
class GrfReader {
  public:
    /// @param pixelsPerUnit pixels that a unit of a literal or fill run holds; for more than one
    /// the
    ///     caller takes them apart
    GrfReader(const uint8_t* stream, int32_t width, int32_t unitBytes)
        : at_(stream), width_(width), unitBytes_(unitBytes) {}

    /// The next piece; false at the end of the stream. Row y ends with the piece that fills it.
    bool next(GrfPiece& piece) {
        while (left_ == 0) {
            if (ended_ || !readControl()) {
                return false;
            }
        }
        const int32_t count = std::min(left_, width_ - x_);
        piece = {kind_, x_, count, at_};
        left_ -= count;
        if (kind_ == GrfPiece::Literal) {
            at_ += count * unitBytes_;
        } else if (kind_ == GrfPiece::Fill && left_ == 0) {
            at_ += unitBytes_;
        }
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
    /// False for the byte that ends the stream.
    bool readControl() {
        const uint8_t control = *at_;
        if (control == 0) {
            ended_ = true;
            return false;
        }
        ++at_;
        const int32_t count = control & 0x3F;
        switch (control >> 6) {
        case 0:
            kind_ = GrfPiece::Skip;
            ++at_; // a byte of any value
            left_ = count;
            break;
        case 1:
            kind_ = GrfPiece::Literal;
            left_ = count;
            break;
        case 3:
            kind_ = GrfPiece::Fill;
            left_ = count;
            at_ += count == 0 ? unitBytes_ : 0;
            break;
        default:
            break;
        }
        return true;
    }

    const uint8_t* at_;
    int32_t width_;
    int32_t unitBytes_;
    GrfPiece::Kind kind_ = GrfPiece::Skip;
    int32_t left_ = 0; ///< pixels of the run
    int32_t x_ = 0;
    int32_t y_ = 0;
    bool ended_ = false;
};

} // namespace quarlo
