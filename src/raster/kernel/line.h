// Thin lines, solid and dashed.
#pragma once

#include "raster/kernel/format.h"
#include "raster/kernel/kernels.h"

#include <cstddef>
#include <cstdint>

namespace quarlo::kernel {

/// Moves along a line. The minor step is masked rather than jumped over: on random lines the jump
/// would be mispredicted every few pixels.
class LineWalk {
  public:
    LineWalk(uint8_t* at, const LineSteps& steps) : at_(at), error_(steps.error), steps_(steps) {}

    uint8_t* at() const { return at_; }

    void advance() {
        error_ += steps_.grow;
        const int32_t taken = ~(error_ >> 31);
        at_ += steps_.major + (steps_.minor & static_cast<ptrdiff_t>(taken));
        error_ -= steps_.shrink & taken;
    }

  private:
    uint8_t* at_;
    int32_t error_;
    const LineSteps steps_;
};

template <typename Format, typename Mode>
uint8_t* line(uint8_t* at, const LineSteps& steps, uint32_t pixel) {
    LineWalk walk(at, steps);
    for (int32_t left = steps.count - 1; left > 0; --left) {
        putPixel<Format, Mode>(walk.at(), pixel);
        walk.advance();
    }
    putPixel<Format, Mode>(walk.at(), pixel);
    return walk.at() + Format::kBytes;
}

template <typename Format, typename Mode>
uint8_t* dashedLine(uint8_t* at, const LineSteps& steps, const DashSteps& dash, uint32_t pixel) {
    LineWalk walk(at, steps);
    uint8_t* cursor = nullptr;
    uint32_t phase = dash.phase;
    for (int32_t left = steps.count;;) {
        phase += dash.step;
        if ((dash.pattern >> (phase >> 16 & 63) & 1) != 0) {
            putPixel<Format, Mode>(walk.at(), pixel);
            cursor = walk.at() + Format::kBytes;
        }
        if (--left == 0) {
            return cursor;
        }
        walk.advance();
    }
}

} // namespace quarlo::kernel
