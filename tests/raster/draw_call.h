// Drawing calls as values, which can be made on a handle and on the model, and printed.
#pragma once

#include "raster/model.h"

#include <quarlo/handle.h>

#include <array>
#include <cstdint>
#include <ostream>

namespace quarlo::test {

/// A call on a draw handle with its arguments. Setters come first.
struct DrawCall {
    enum Kind {
        PenColor,
        FillColor,
        FillPattern,
        DrawingMode,
        Dash,       ///< dash number, pen width, pen height
        DashPhase,  ///< written into the record
        DefineDash, ///< number, two words of steps
        DefinePattern,
        Gradation,
        LocalMode,   ///< with an origin
        VirtualMode, ///< with a rectangle
        ClipRect,
        MoveTo,
        LineTo,
        DrawLine,
        DrawRect,
        SetPixel,
        GetPixel,
        // Not for the model: box, and two 16-bit numbers in the last argument, low one first.
        Oval,
        RoundRect, ///< with radii
        Arc,       ///< with angles
        Pie,
    };

    Kind kind;
    std::array<int32_t, 5> arguments;
};

/// What a call gave back, and the line that it may have changed.
using DrawResult = std::array<int64_t, 5>;

DrawResult make(const DrawCall& call, GDrawHandle* handle);
DrawResult make(const DrawCall& call, Model& model);

std::ostream& operator<<(std::ostream& out, const DrawCall& call);

} // namespace quarlo::test
