#include "run_decoder.h"

#include "failure.h"

#include <string>

namespace grf {
namespace {

/// Hands on all runs of a stream that is known to be whole.
template <typename Action>
void forEachRun(const GGrfImage& image, Action action) {
    GGrfRun run{};
    while (GGrfReadRun(image.data, image.size, run.next, GGrfBytesOfUnit(&image), &run) != 0 &&
           run.kind != G_GRF_END) {
        action(run);
    }
}

} // namespace

Image decodeRuns(const GGrfFile& file) {
    const GGrfImage& record = file.image;
    if (int64_t{record.width} * record.height > kMostPixels) {
        throw Failure("the image is too large: " + std::to_string(record.width) + " x " +
                      std::to_string(record.height));
    }
    const size_t pixels = static_cast<size_t>(record.width) * static_cast<size_t>(record.height);
    const bool packed = record.type == G_GRF_PALETTE;
    Image image{record.width,
                record.height,
                packed,
                record.bits,
                {file.redMask, file.greenMask, file.blueMask},
                {file.colors, file.colors + file.palette.count},
                {}};
    image.values.reserve(pixels);
    const int unitBytes = image.unitBytes();
    const auto putUnit = [&](const uint8_t* at) {
        const uint32_t unit = GGrfReadUnit(at, unitBytes);
        for (int i = 0; i < image.pixelsPerUnit() && image.values.size() < pixels; ++i) {
            image.values.push_back(packed ? GGrfIndexInUnit(unit, i, image.bits, unitBytes) : unit);
        }
    };
    forEachRun(record, [&](const GGrfRun& run) {
        if (run.kind == G_GRF_SKIP) {
            image.values.insert(image.values.end(), static_cast<size_t>(run.count), kClear);
        }
        const int step = run.kind == G_GRF_LITERAL ? unitBytes : 0;
        const int units = run.kind == G_GRF_LITERAL || run.kind == G_GRF_FILL ? run.count : 0;
        for (int i = 0; i < units; ++i) {
            putUnit(record.data + run.units + static_cast<ptrdiff_t>(i) * step);
        }
    });
    image.values.resize(pixels, kClear);
    return image;
}

std::array<size_t, 4> countRuns(const GGrfFile& file) {
    std::array<size_t, 4> counts{};
    forEachRun(file.image,
               [&counts](const GGrfRun& run) { ++counts[static_cast<size_t>(run.kind)]; });
    return counts;
}

} // namespace grf
