// The notice that lets a platform prepare a brush before a patterned fill.
#pragma once

#include "platform/service_table.h"
#include "raster/canvas.h"

#include <type_traits>

namespace quarlo {

/// Tells the platform, where it cares, which pattern is about to be drawn in which colours.
inline void noticeFillPattern(const Canvas& canvas, const uint8_t rows[8]) {
    using Notice = Service<std::remove_pointer_t<GPIFillPatternNotice>, 69>;
    Notice::checked(&canvas.handle, &canvas.surface, canvas.handle.forePixel,
                    canvas.handle.backPixel, rows);
}

} // namespace quarlo
