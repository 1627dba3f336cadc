// Random drawing calls, made on the library and on the plain model, which must agree in every byte
// and in all state that a program can see.
#pragma once

#include "raster/draw_call.h"
#include "raster/drawing.h"
#include "support/random_calls.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace quarlo::test {

/// Who does the drawing on the library's side.
enum class Through {
    Kernels,    ///< a memory surface
    CopiedOps,  ///< a memory surface, slot by slot
    Device,     ///< a device surface whose platform has all operations
    BareDevice, ///< a device surface whose platform sets pixels and draws spans, no more
};

/// What calls are made.
struct DrawMix {
    std::vector<DrawCall::Kind> setters;
    std::vector<DrawCall::Kind> drawing; ///< as many as setters
    /// Modes beside 0 to 3. Those that reach an entry of another format are for kernels only.
    std::vector<int16_t> wildModes = {-1, 4, 7, 31, 255, INT16_MIN, INT16_MAX};
};

/// Where shapes lie, and whether they are seen.
inline const std::vector<DrawCall::Kind> kPlaceSetters = {
    DrawCall::LocalMode, DrawCall::VirtualMode, DrawCall::ClipRect, DrawCall::DrawingMode};

/// Every setter, and every drawing call that the model knows.
inline const DrawMix kEveryCall = {{DrawCall::PenColor, DrawCall::FillColor, DrawCall::FillPattern,
                                    DrawCall::Dash, DrawCall::DashPhase, DrawCall::DefineDash,
                                    DrawCall::DefinePattern, DrawCall::Gradation},
                                   {DrawCall::MoveTo, DrawCall::LineTo, DrawCall::DrawLine,
                                    DrawCall::DrawRect, DrawCall::SetPixel, DrawCall::GetPixel}};

/// What the model does not know.
inline const DrawMix kCurvedShapes = {
    kEveryCall.setters, {DrawCall::Oval, DrawCall::RoundRect, DrawCall::Arc, DrawCall::Pie}};

/// A setter or a drawing call of a mix, for surfaces of up to about 70 x 35 pixels.
DrawCall randomCall(const DrawMix& mix, Random& random);

/// Makes lists of random calls on surfaces of every format and of several sizes. Fails with the
/// shortest list of calls after which the library and the model differ.
void expectLikeModel(const DrawMix& mix, Through through);

/// The same, through every side in turn.
void expectLikeModel(const DrawMix& mix);

/// Makes lists of random calls on memory surfaces whose record `distort` has changed. Fails with
/// the shortest list after which a byte outside the surface's memory was written.
void expectWithinMemory(const DrawMix& mix, const std::function<void(GVram&)>& distort);

} // namespace quarlo::test
