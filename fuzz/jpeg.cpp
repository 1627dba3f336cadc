// JPEG streams of any bytes, decoded and drawn on small surfaces between inaccessible pages.
#include "input.h"
#include "require.h"

#include "file/error.h"
#include "jpeg/picture.h"
#include "support/guarded_surface.h"

#include <span>

namespace gpi {
namespace {

using quarlo::fuzz::require;
using quarlo::test::GuardedSurface;

/// Larger pictures take the fuzzer too long; their header is all that is read of them.
constexpr int64_t kMostPixels = 1 << 18;

void decode(std::span<const uint8_t> stream, int scale, GuardedSurface& surface) {
    const GJpegInfo info = jpegInfo(stream, scale);
    require(info.width > 0 && info.height > 0 && info.components > 0, "a picture of no size");
    const GJpegInfo whole = jpegInfo(stream, 1);
    if (int64_t{whole.width} * whole.height > kMostPixels) {
        return;
    }
    const Picture picture = decodeJpeg(stream, scale);
    require(picture.width == info.width && picture.height == info.height,
            "a picture of another size than its header has");
    drawPicture(picture, *surface);
    require(surface.memory().intact(), "memory beside the surface was written");
}

} // namespace
} // namespace gpi

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    constexpr size_t kHead = 4;
    if (size < kHead) {
        return 0;
    }
    quarlo::fuzz::Input input({data, kHead});
    const int scale = 1 << input.below(4);
    const int16_t bits = quarlo::test::kDepths[input.below(3)];
    const auto width = static_cast<int16_t>(1 + input.below(24));
    quarlo::test::GuardedSurface surface(width, static_cast<int16_t>(1 + input.below(16)), bits);
    try {
        gpi::decode({data + kHead, size - kHead}, scale, surface);
    } catch (const gpi::IoError&) { // refused
    }
    return 0;
}
