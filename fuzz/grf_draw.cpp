// Images of any record and any stream: drawn as by a plain model, and stretched alike in every way,
// with no byte read behind the last that the stream needs.
#include "input.h"
#include "require.h"

#include "image/grf_test.h"

#include <quarlo/grf_stream.h>

#include <algorithm>
#include <iterator>

namespace quarlo::fuzz {
namespace {

using namespace quarlo::test;

/// More zeros than a run that is cut off can lack, and one that ends the stream.
constexpr size_t kPadding = G_GRF_COUNT_MASK * 4 + 1;

/// Bytes of a stream that drawing may read: up to its end, or to the run that fills the image.
size_t lengthOf(const GrfCase& call, int32_t unitBytes, int32_t unitPixels) {
    const int32_t most = call.width * call.height;
    GGrfRun run{};
    for (int32_t position = 0; position < most && run.kind != G_GRF_END;) {
        require(GGrfReadRun(call.stream.data(), call.stream.size(), run.next, unitBytes, &run) == 1,
                "a padded stream is cut off");
        if (run.kind == G_GRF_SKIP) {
            position += run.count;
        } else if (run.kind == G_GRF_LITERAL || run.kind == G_GRF_FILL) {
            position += run.count * unitPixels;
        }
    }
    return run.next;
}

int16_t nearSurface(Input& input) {
    return static_cast<int16_t>(input.below(100) - 50);
}

GrfCase read(Input& input, bool zoomed) {
    GrfCase call;
    call.type = static_cast<uint16_t>(input.below(4));
    call.palette = input.flag();
    call.bits = static_cast<int16_t>(1 + input.below(32));
    call.width = static_cast<int16_t>(1 + input.below(48));
    call.height = static_cast<int16_t>(1 + input.below(48));
    call.x = nearSurface(input);
    call.y = nearSurface(input);
    call.boxWidth = static_cast<int16_t>(input.below(130) - (zoomed ? 0 : 65));
    call.boxHeight = static_cast<int16_t>(input.below(130) - (zoomed ? 0 : 65));
    call.mode = input.below(4);
    while (!input.isUsedUp()) {
        call.stream.push_back(input.byte());
    }
    call.stream.insert(call.stream.end(), kPadding, 0);
    const bool packed = call.type == G_GRF_PALETTE && call.palette;
    const bool stretched = zoomed && call.boxWidth > 0 && call.boxHeight > 0;
    const int32_t unitBytes = stretched ? 1 : (call.bits + 7) / 8;
    const int32_t unitPixels = packed && !stretched ? 8 * unitBytes / call.bits : 1;
    call.stream.resize(lengthOf(call, unitBytes, unitPixels));
    return call;
}

/// Stretches an image by the kernels, in place of a model.
void zoomByKernels(GuardedSurface& surface, const GRect& clip, const GrfCase& call) {
    Drawing drawing(kGrfWidth, kGrfHeight, surface->bitsPerPixel);
    GuardedMemory& drawn = drawing.surface().memory();
    std::copy_n(surface.memory().data(), drawn.size(), drawn.data());
    const GGrfImage image = grfRecord(call);
    GDSetClipRect(drawing, &clip);
    GDSetDrawingMode(drawing, call.mode);
    GDDrawGrfZoom(drawing, &image, ExactStream(call.stream).data(), call.x, call.y, call.boxWidth,
                  call.boxHeight);
    for (int y = 0; y < kGrfHeight; ++y) {
        for (int x = 0; x < kGrfWidth; ++x) {
            const bool inside =
                x >= clip.left && x <= clip.right && y >= clip.top && y <= clip.bottom;
            require(inside || pixelAt(*surface, x, y) == pixelAt(*drawing.surface(), x, y),
                    "a pixel outside the clip rectangle was drawn");
        }
    }
    require(drawn.intact(), "memory beside the surface was written");
    std::copy_n(drawn.data(), drawn.size(), surface.memory().data());
}

void run(Input input) {
    RecordingPlatform platform;
    GuardedSurface display(1, 1, 8);
    platform.addDisplay(0, display);
    platform.recordOperations(false);
    constexpr GrfThrough kWays[] = {GrfThrough::Kernels, GrfThrough::CopiedOps, GrfThrough::Device};
    const GrfThrough way = kWays[input.below(static_cast<int32_t>(std::size(kWays)))];
    const int16_t depth = kDepths[input.below(3)];
    const bool zoomed = input.flag();
    const GrfCase call = read(input, zoomed);
    const std::string difference =
        zoomed ? grfDifference(call, way, depth, GDDrawGrfZoom, zoomByKernels)
               : grfDifference(call, way, depth, GDDrawGrf, drawGrfByModel);
    require(difference.empty(), difference.c_str());
}

} // namespace
} // namespace quarlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    testing::GTEST_FLAG(break_on_failure) = true; // of what the platform watches
    quarlo::fuzz::run(quarlo::fuzz::Input({data, size}));
    return 0;
}
