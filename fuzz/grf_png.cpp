// Pictures, as PNG files of any bytes and as any pixels, made into images for any target: what
// comes out of their files is what went in.
#include "input.h"
#include "require.h"

#include "failure.h"
#include "grf_writer.h"
#include "image.h"
#include "png_file.h"
#include "run_decoder.h"
#include "run_encoder.h"

#include <quarlo/grf_file.h>

#include <algorithm>
#include <vector>

namespace quarlo::fuzz {
namespace {

using namespace grf;

/// Larger pictures take long and show nothing new.
constexpr size_t kMostPixels = 4096;

Target targetOf(Input& input) {
    constexpr PixelFormat kSurfaces[] = {kFormat8, kFormat555, kFormat565, kFormat24,
                                         kFormatIndexed};
    constexpr int kPacked[] = {0, 1, 2, 4, 8};
    Target target;
    target.surface = kSurfaces[input.below(5)];
    target.packedBits = target.surface.isIndexed() ? 0 : kPacked[input.below(5)];
    if (input.flag()) {
        target.matte = colorOfRgb(input.pixel());
    }
    return target;
}

/// Pixels of a few bytes each, so that runs come about.
Picture pixelsOf(Input& input) {
    const int width = 1 + input.below(32);
    Picture picture{width, 0, {}};
    while (!input.isUsedUp()) {
        const uint8_t byte = input.byte();
        const auto alpha = static_cast<uint8_t>(byte % 2 != 0 ? 255 : byte);
        const Color color = {static_cast<uint8_t>(byte & 0xE0), static_cast<uint8_t>(byte << 3),
                             static_cast<uint8_t>(byte << 6), alpha};
        const int count = byte % 8 == 0 ? 1 + input.below(80) : 1;
        picture.pixels.insert(picture.pixels.end(), static_cast<size_t>(count), color);
    }
    const size_t columns = static_cast<size_t>(width);
    picture.height = static_cast<int>(std::max<size_t>(1, picture.pixels.size() / columns));
    picture.pixels.resize(columns * static_cast<size_t>(picture.height));
    return picture;
}

Picture pictureFrom(Input& input) {
    if (input.flag()) {
        return pixelsOf(input);
    }
    std::vector<uint8_t> file;
    while (!input.isUsedUp()) {
        file.push_back(input.byte());
    }
    return readPng(file);
}

void convert(const Picture& picture, const Target& target) {
    const Image image = imageOf(picture, target);
    const auto bytes = writeGrf(image, encodeRuns(image));
    GGrfFile file;
    require(GGrfOpenFile(&file, bytes.data(), bytes.size()) == 1, "the file is malformed");
    require(decodeRuns(file) == image, "the image is another");
    const Picture shown = pictureOf(image);
    require(readPng(writePng(shown)) == shown, "the picture is another");
    require(pictureOf(imageOf(shown, target)) == shown, "the second image is another");
}

void run(Input input) {
    const Target target = targetOf(input);
    try {
        const Picture picture = pictureFrom(input);
        if (picture.pixels.size() <= kMostPixels) {
            convert(picture, target);
        }
    } catch (const Failure&) {
        // Refused: what is no picture, or takes a matte.
    }
}

} // namespace
} // namespace quarlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    quarlo::fuzz::run(quarlo::fuzz::Input({data, size}));
    return 0;
}
