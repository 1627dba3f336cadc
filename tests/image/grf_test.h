// Drawing GRF cases on the library and on the model.
#pragma once

#include "image/grf_model.h"
#include "raster/drawing.h"

#include <algorithm>
#include <functional>
#include <string>

namespace quarlo::test {

inline constexpr int16_t kGrfWidth = 40;
inline constexpr int16_t kGrfHeight = 30;
inline constexpr GRect kGrfClip = {3, 2, 35, 26};

/// A stream that ends where its memory does: a byte read behind it faults.
class ExactStream {
  public:
    explicit ExactStream(const std::vector<uint8_t>& bytes) : memory_(bytes.size(), Against::End) {
        std::copy(bytes.begin(), bytes.end(), memory_.data());
    }
    const uint8_t* data() const { return memory_.data(); }

  private:
    GuardedMemory memory_;
};

/// The record of a case; its stream is given beside it.
inline GGrfImage grfRecord(const GrfCase& call) {
    static const GGrfPalette palette{0, grfPalette().data()};
    return {call.type,
            call.width,
            call.height,
            call.bits,
            0,
            nullptr,
            call.palette ? &palette : nullptr};
}

enum class GrfThrough { Kernels, CopiedOps, Device };

/// What is wrong after drawing a case; an empty text if nothing is.
template <typename Draw, typename Model>
std::string grfDifference(const GrfCase& call, GrfThrough through, int16_t depth, Draw draw,
                          Model model) {
    Drawing memory(kGrfWidth, kGrfHeight, depth, Against::Start);
    DeviceDrawing device(kGrfWidth, kGrfHeight, depth);
    Drawing& drawing = through == GrfThrough::Device ? device : memory;
    GuardedSurface expected(kGrfWidth, kGrfHeight, depth);
    for (GuardedSurface* const surface : {&drawing.surface(), &expected}) {
        for (size_t i = 0; i < surface->memory().size(); ++i) {
            surface->memory().data()[i] = static_cast<uint8_t>(i * 29);
        }
    }
    const GGrfImage image = grfRecord(call);
    const ExactStream stream(call.stream);
    CopiedOps ops;
    GDSetClipRect(drawing, &kGrfClip);
    GDSetDrawingMode(drawing, call.mode);
    if (through == GrfThrough::CopiedOps) {
        ops.attach(drawing);
    }
    if (draw(drawing, &image, stream.data(), call.x, call.y, call.boxWidth, call.boxHeight) != 1) {
        return "it did not give 1";
    }
    model(expected, kGrfClip, call);
    const bool same =
        std::equal(expected.memory().data(), expected.memory().data() + expected.memory().size(),
                   drawing.surface().memory().data());
    return same && drawing.surface().memory().intact() ? "" : "the surfaces differ";
}

} // namespace quarlo::test
