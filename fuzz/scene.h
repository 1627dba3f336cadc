// A small surface between inaccessible pages, and what must hold of everything that draws on it.
#pragma once

#include "input.h"
#include "require.h"

#include "raster/drawing.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace quarlo::fuzz {

using namespace quarlo::test;

/// A wild mode may select the operations of another format. The library knows its own and keeps
/// their pixels in memory; of a copy it cannot tell the format.
inline bool isModeKnown(int32_t mode) {
    return mode >= G_MODE_COPY && mode <= G_MODE_XOR;
}

/// Ways to the pixels.
enum class Through { Kernels, CopiedOps, Device, kCount };

/// A drawing of any format, and a second surface to copy from.
class Scene {
  public:
    explicit Scene(Input& input)
        : through_(static_cast<Through>(input.below(static_cast<int32_t>(Through::kCount)))),
          display_(1, 1, 8),
          source_(9, 7, kDepths[input.below(3)]) {
        platform_.addDisplay(0, display_);
        platform_.recordOperations(false);
        const auto width = static_cast<int16_t>(1 + input.below(64));
        const auto height = static_cast<int16_t>(1 + input.below(48));
        const int16_t bits = kDepths[input.below(3)];
        const auto padding = static_cast<int16_t>(input.below(8));
        const Against side = input.flag() ? Against::Start : Against::End;
        if (through_ == Through::Device) {
            drawing_ = std::make_unique<DeviceDrawing>(width, height, bits, side, padding);
        } else {
            drawing_ = std::make_unique<Drawing>(width, height, bits, side, padding);
        }
        platform_.failAllocation(input.below(16));
    }

    RecordingPlatform& platform() { return platform_; }
    GDrawHandle* handle() { return *drawing_; }
    GVram& surface() { return *drawing_->surface(); }
    GuardedMemory& memory() { return drawing_->surface().memory(); }
    GVram* source() { return source_.get(); }

    /// To be called before each drawing call.
    void prepare() {
        if (through_ == Through::CopiedOps && isModeKnown(handle()->drawingMode)) {
            copied_.attach(handle());
        }
    }

  private:
    RecordingPlatform platform_;
    Through through_;
    GuardedSurface display_;
    GuardedSurface source_;
    std::unique_ptr<Drawing> drawing_;
    CopiedOps copied_;
};

/// Whether a byte may be written: it belongs to a pixel inside the clip rectangle.
class Writable {
  public:
    explicit Writable(const GVram& surface)
        : clip_(*surface.drawable),
          bytesPerPixel_(surface.bitsPerPixel / 8),
          rowBytes_(surface.width * bytesPerPixel_) {}

    bool operator()(int row, int byte) const {
        const int column = byte / bytesPerPixel_;
        return byte < rowBytes_ && row >= clip_.top && row <= clip_.bottom &&
               column >= clip_.left && column <= clip_.right;
    }

  private:
    GRect clip_;
    int bytesPerPixel_;
    int rowBytes_;
};

inline GPoint readPoint(Input& in) {
    const int16_t x = in.coordinate();
    return {x, in.coordinate()};
}

inline GRect readRect(Input& in) {
    const GPoint first = readPoint(in);
    const GPoint second = readPoint(in);
    return {first.x, first.y, second.x, second.y};
}

/// Calls the member functions that an input picks, as long as it lasts: those that draw and those
/// that set something.
template <typename Program, size_t Draws, size_t Settings>
void runSteps(Program& program, Input& in, int most, void (Program::*const (&draws)[Draws])(),
              void (Program::*const (&settings)[Settings])()) {
    for (int i = 0; i < most && !in.isUsedUp(); ++i) {
        if (in.flag()) {
            (program.*draws[in.below(static_cast<int32_t>(Draws))])();
        } else {
            (program.*settings[in.below(static_cast<int32_t>(Settings))])();
        }
    }
}

/// Draws by draw(): nothing but pixels inside the clip rectangle may change.
template <typename Draw>
void checkDrawing(Scene& scene, Draw draw) {
    scene.prepare();
    const GuardedMemory& memory = scene.memory();
    const std::vector<uint8_t> before(memory.data(), memory.data() + memory.size());
    const Writable writable(scene.surface());
    draw();
    require(memory.intact(), "memory beside the surface was written");
    if (!isModeKnown(scene.handle()->drawingMode)) {
        return;
    }
    const int bytesPerLine = scene.surface().bytesPerLine;
    for (size_t i = 0; i < before.size(); ++i) {
        const int at = static_cast<int>(i);
        require(memory.data()[i] == before[i] || writable(at / bytesPerLine, at % bytesPerLine),
                "a byte outside the clip rectangle was written");
    }
}

} // namespace quarlo::fuzz
