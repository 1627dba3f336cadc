// Pixel formats as graphics cards name them.
#pragma once

#include "display/screen/screen_format.h"

#include <cstdint>
#include <optional>
#include <span>

namespace gpi {

struct DrmFormat {
    uint32_t code; ///< four characters
    ScreenFormat format;
};

/// The best of the formats that a card offers: as many bits as our colours have, no more than
/// needed. Nothing when none is known.
std::optional<DrmFormat> bestFormat(std::span<const uint32_t> offered);

} // namespace gpi
