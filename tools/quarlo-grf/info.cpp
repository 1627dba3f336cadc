#include "info.h"

#include "pixel_format.h"
#include "run_decoder.h"

#include <cstdint>
#include <cstdlib>
#include <sstream>

namespace grf {
namespace {

/// Bytes that the values take without runs.
int64_t rawBytesOf(const GGrfImage& image) {
    const int64_t perUnit = GGrfPixelsOfUnit(&image);
    const int64_t units = (int64_t{image.width} * image.height + perUnit - 1) / perUnit;
    return units * GGrfBytesOfUnit(&image);
}

} // namespace
std::string describeFormat(const GGrfFile& file) {
    const GGrfImage& image = file.image;
    const PixelFormat format{file.redMask, file.greenMask, file.blueMask};
    std::ostringstream text;
    text << image.width << " x " << image.height << ", " << image.bits << " bits";
    if (image.palette != nullptr) {
        text << " into " << file.palette.count << " colours";
    }
    if (!format.isIndexed()) {
        text << ", " << nameOf(format);
    }
    return text.str();
}

std::string describe(const GGrfFile& file) {
    const auto runs = countRuns(file);
    std::ostringstream text;
    text << describeFormat(file) << '\n'
         << runs[G_GRF_SKIP] + runs[G_GRF_LITERAL] + runs[G_GRF_FILL]
         << " runs: " << runs[G_GRF_SKIP] << " skip, " << runs[G_GRF_LITERAL] << " literal, "
         << runs[G_GRF_FILL] << " fill\n"
         << describeSaving(file) << '\n';
    return text.str();
}

std::string describeSaving(const GGrfFile& file) {
    const int64_t raw = rawBytesOf(file.image);
    const int64_t saved = raw - file.image.size;
    std::ostringstream text;
    text << file.image.size << " bytes of runs against " << raw << " raw: " << std::abs(saved)
         << (saved >= 0 ? " saved (" : " more (") << 100 * std::abs(saved) / raw << " %)";
    return text.str();
}

} // namespace grf
