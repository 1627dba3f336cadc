#include "info.h"

#include "run_decoder.h"

#include <sstream>

namespace grf {
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
    const Image image = decodeRuns(file);
    const auto runs = countRuns(file);
    std::ostringstream text;
    text << describeFormat(file) << '\n'
         << runs[G_GRF_SKIP] + runs[G_GRF_LITERAL] + runs[G_GRF_FILL]
         << " runs: " << runs[G_GRF_SKIP] << " skip, " << runs[G_GRF_LITERAL] << " literal, "
         << runs[G_GRF_FILL] << " fill\n"
         << describeSaving(image, file.image.size) << '\n';
    return text.str();
}

std::string describeSaving(const Image& image, size_t streamBytes) {
    const size_t raw = image.rawBytes();
    const bool saved = streamBytes <= raw;
    const size_t difference = saved ? raw - streamBytes : streamBytes - raw;
    std::ostringstream text;
    text << streamBytes << " bytes of runs against " << raw << " raw: " << difference
         << (saved ? " saved (" : " more (") << 100 * difference / raw << " %)";
    return text.str();
}

} // namespace grf
