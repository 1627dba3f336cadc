// The ways to convert pixels. All write the same bytes.
#pragma once

#include "raster/kernel/pixel_move.h"
#include "raster/kernel/transfer.h"

#include <cstdint>

namespace quarlo::kernel {

/// As convertRect(), for the formats and the mode that it was asked for with.
using ConvertPixels = void (*)(const Transfer& transfer, const PixelLayout& from,
                               const PixelLayout& to, int32_t mode);

/// The way for any two layouts and drawing mode 0 to 3, in portable code.
ConvertPixels portableConversion(const PixelLayout& from, const PixelLayout& to, int32_t mode);

/// The same in vector code; null where the processor lacks the instructions, or for layouts that it
/// does not convert.
ConvertPixels vectorConversion(const PixelLayout& from, const PixelLayout& to, int32_t mode);

} // namespace quarlo::kernel
