#include "image.h"

#include "random.h"

#include <algorithm>

namespace bench {
namespace {

std::vector<Run> makeRuns() {
    Random random(0x13A6E);
    std::vector<Run> runs;
    for (int y = 0; y < kImageSize; ++y) {
        bool opaque = y % 2 != 0;
        for (int x = 0; x < kImageSize; opaque = !opaque) {
            const int count = 4 + static_cast<int>(random.below(21));
            const int right = std::min(x + count, kImageSize) - 1;
            if (opaque) {
                runs.push_back({x, right, y});
            }
            x = right + 1;
        }
    }
    return runs;
}

} // namespace

const std::vector<Run>& imageRuns() {
    static const std::vector<Run> runs = makeRuns();
    return runs;
}

Part partOf(const Workload& workload) {
    constexpr int kLast = kImageSize - 1;
    switch (workload.operation) {
    case Operation::ImageRight:
        return {kImageSize / 2, 0, kLast, kLast};
    case Operation::ImageLower:
        return {0, kImageSize / 2, kLast, kLast};
    default:
        return {0, 0, kLast, kLast};
    }
}

std::vector<uint32_t> imagePixels(const Workload& workload) {
    const uint32_t most = workload.operation == Operation::ImageZoom
                              ? 7
                              : (1U << (8 * bytesPerPixel(workload.format))) - 1;
    Random random(0xC0105);
    const auto color = [&] { return 1 + random.below(most); };
    std::vector<uint32_t> pixels(kImageSize * kImageSize, kTransparent);
    bool solid = false;
    for (const Run& run : imageRuns()) {
        uint32_t* const row = pixels.data() + run.y * kImageSize;
        if (solid) {
            std::fill(row + run.left, row + run.right + 1, color());
        } else {
            std::generate(row + run.left, row + run.right + 1, color);
        }
        solid = !solid;
    }
    return pixels;
}

std::vector<uint8_t> imageBytes(const Workload& workload) {
    std::vector<uint8_t> bytes;
    for (const uint32_t pixel : imagePixels(workload)) {
        for (int byte = 0; byte < bytesPerPixel(workload.format); ++byte) {
            bytes.push_back(static_cast<uint8_t>(pixel >> (8 * byte)));
        }
    }
    return bytes;
}

} // namespace bench
