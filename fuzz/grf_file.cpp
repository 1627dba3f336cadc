// GRF files of any bytes: what the loader takes can be drawn whole, cut and stretched without a
// byte read outside the file or written outside a surface.
#include "require.h"

#include "image/grf_test.h"

#include <quarlo/grf_file.h>

#include <vector>

namespace quarlo::fuzz {
namespace {

using namespace quarlo::test;

/// Faults in a file, each of which must lie in it or at its end.
int32_t countFaults(const uint8_t* bytes, size_t size) {
    struct Report {
        size_t size;
        int32_t count;
    } report{size, 0};
    GGrfFile file;
    const int32_t told = GGrfInspectFile(
        &file, bytes, size,
        [](void* context, GGrfFault, size_t offset) {
            auto* const each = static_cast<Report*>(context);
            require(offset <= each->size, "a fault lies outside the file");
            ++each->count;
        },
        &report);
    require(told == report.count, "not every fault was told");
    return told;
}

void draw(const GGrfFile& file, int16_t depth) {
    const GGrfImage& image = file.image;
    Drawing drawing(12, 9, depth);
    GDDrawGrf(drawing, &image, image.data, 0, 0, 0, 0);
    GDDrawGrf(drawing, &image, image.data, -3, 2, 7, 5);
    if (GGrfCanZoom(&file) != 0) {
        GDDrawGrfZoom(drawing, &image, image.data, -1, 1, 10, 5);
        GDDrawGrfZoom(drawing, &image, image.data, 2, -1, 3, 30);
    }
    require(drawing.surface().memory().intact(), "memory beside the surface was written");
}

void run(const std::vector<uint8_t>& bytes) {
    RecordingPlatform platform;
    GuardedSurface display(1, 1, 8);
    platform.addDisplay(0, display);
    const ExactStream exact(bytes);
    GGrfFile file;
    const bool opened = GGrfOpenFile(&file, exact.data(), bytes.size()) != 0;
    require(opened == (countFaults(exact.data(), bytes.size()) == 0),
            "opened with faults, or refused without");
    for (const int16_t depth : kDepths) {
        if (opened) {
            draw(file, depth);
        }
    }
}

} // namespace
} // namespace quarlo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    testing::GTEST_FLAG(break_on_failure) = true; // of what the platform watches
    quarlo::fuzz::run({data, data + size});
    return 0;
}
