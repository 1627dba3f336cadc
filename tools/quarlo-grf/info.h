// What there is to say about an image.
#pragma once

#include <quarlo/grf_file.h>

#include <string>

namespace grf {

/// Size and format, like "32 x 32, 16 bits, 5-6-5".
std::string describeFormat(const GGrfFile& file);

/// Lines about an image: size and format, its runs, and its bytes beside those it would have
/// without runs.
std::string describe(const GGrfFile& file);

/// Like "812 bytes of runs against 2048 raw: 1236 saved (60 %)".
std::string describeSaving(const GGrfFile& file);

} // namespace grf
